// Values as they lie in memory: what they hold, what they take on the wire, what is wrong with
// them.
#ifndef TARN_INFO_VALUES_H
#define TARN_INFO_VALUES_H

#include "explanation.h"

namespace info {

inline const void *at_offset(const void *value, std::size_t offset) {
    return static_cast<const std::byte *>(value) + offset;
}

std::uint32_t number_of(const TarnInfoType &type, const void *value);

// Bytes that the value takes, without a header. A count beyond the array counts as a full array.
std::uint32_t size_of_value(const TarnInfoType &type, const void *value);

// Where the parts of a value lie, which is what offsets in a finding count.
enum class Offsets { onTheWire, inMemory };

// What makes a value invalid, whose IE is at this offset; or nothing.
Finding find_invalid(const TarnInfoType &type, const void *value, const std::string &path,
                     std::uint32_t at, Offsets offsets);

// What is wrong with the count of a list or byte string, or nothing.
Finding find_count_fault(const TarnInfoType &type, std::uint32_t count, const std::string &path,
                         std::uint32_t at);

} // namespace info

#endif
