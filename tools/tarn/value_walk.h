// The part of the diagnosis that reads primitive values: scalars, byte strings, records, lists.
#ifndef TARN_TOOL_VALUE_WALK_H
#define TARN_TOOL_VALUE_WALK_H

#include <optional>

#include "tarn/diagnosis.h"

namespace tool {

// The bytes of a message and a position in them.
struct Input {
    const std::uint8_t *bytes;
    std::uint32_t length;
    std::uint32_t at = 0;

    std::uint32_t left() const { return length - at; }
    const std::uint8_t *here() const { return bytes + at; }
    // The tag at the position, 0 if there is not enough for one.
    std::uint32_t tag() const;
};

constexpr std::uint32_t tagSize = 2;
constexpr std::uint32_t headerSize = 6;

using Fault = std::optional<Finding>;

// Reads the header of an IE or nested TLV of this type and moves behind it.
Fault read_header(const Type &type, const std::string &path, Input *in, std::uint32_t *length);

// Reads a whole primitive IE or nested TLV, header included, moving behind it on success. Where
// lengths disagree although the bytes decode, adds a note.
Fault read_primitive(const Type &type, void *value, const std::string &path, Input *in,
                     std::vector<Finding> *notes);

// Finds what makes a value invalid that was read from position `at` (of its header).
Fault find_invalid(const Type &type, const void *value, const std::string &path, std::uint32_t at);

// Adds a note if a structured IE's length field disagrees with what it took.
void note_length(const Type &type, const std::string &path, std::uint32_t headerAt,
                 std::uint32_t declared, std::uint32_t taken, std::vector<Finding> *notes);

} // namespace tool

#endif
