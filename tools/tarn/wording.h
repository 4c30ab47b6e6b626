// How the tool puts things: labels, ranges, positions, and what is wrong with a value.
#ifndef TARN_TOOL_WORDING_H
#define TARN_TOOL_WORDING_H

#include <string>
#include <string_view>

#include "tarn/values.h"

namespace tool {

// "Srnti [1]"; a tag that the protocol lacks is "unknown tag 300".
std::string label(const Type &type);
std::string label_of_tag(std::uint32_t tag);

// "0x002a", as many digits as the width has.
std::string hex_number(std::uint32_t number, unsigned width);
// "00 2a"
std::string hex_bytes(const std::uint8_t *bytes, std::size_t count);
// "002a"
std::string compact_hex(const std::uint8_t *bytes, std::size_t count);
// "byte 42 (0x2a)"
std::string byte_words(std::uint32_t offset);
// "1 byte", "2 bytes"
std::string counted(std::uint64_t count, std::string_view thing);
// "1 to 3", "exactly 4"
std::string between(std::uint32_t least, std::uint32_t greatest);
// What a value of the type is: "2 bytes, 60 to 600", "1 to 3 items of RabId [23]".
std::string value_words(const Type &type);

// What is wrong with a number, a byte string's length or a list's count; empty if nothing is.
std::string number_fault(const Type &type, std::int64_t number);
std::string count_fault(const Type &type, std::uint64_t count);

std::string needed_words(const Slot &slot);
std::string uncalled_words(const Slot &slot);

} // namespace tool

#endif
