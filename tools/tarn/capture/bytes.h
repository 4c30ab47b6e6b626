// Views of bytes and the numbers in them.
#ifndef TARN_TOOL_CAPTURE_BYTES_H
#define TARN_TOOL_CAPTURE_BYTES_H

#include <cstddef>
#include <cstdint>
#include <span>

namespace capture {

using View = std::span<const std::uint8_t>;

inline std::uint16_t big16(const std::uint8_t *at) {
    return std::uint16_t(at[0] << 8 | at[1]);
}
inline std::uint32_t big32(const std::uint8_t *at) {
    return std::uint32_t(big16(at)) << 16 | big16(at + 2);
}
inline std::uint16_t little16(const std::uint8_t *at) {
    return std::uint16_t(at[1] << 8 | at[0]);
}
inline std::uint32_t little32(const std::uint8_t *at) {
    return std::uint32_t(little16(at + 2)) << 16 | little16(at);
}

// The first bytes of a view, or all of it if it has fewer.
inline View first_of(View bytes, std::size_t count) {
    return bytes.first(count < bytes.size() ? count : bytes.size());
}

} // namespace capture

#endif
