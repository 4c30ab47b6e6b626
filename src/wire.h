// Bytes on the wire: big-endian loads and stores at any address, and cursors.
//
// Bounds are checked against what remains and never against a sum of pointers: a 4-byte length
// would overflow a 32-bit address space.
#ifndef TARN_WIRE_H
#define TARN_WIRE_H

#include <stdint.h>
#include <string.h>

#include "build_goal.h"

namespace [[gnu::visibility("hidden")]] tarn {

inline constexpr uint32_t tagSize = 2;
inline constexpr uint32_t lengthSize = 4;
inline constexpr uint32_t headerSize = tagSize + lengthSize;

inline constexpr bool isLittleEndian = __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__;

TARN_INLINE uint32_t load16(const uint8_t *at) {
    uint16_t value;
    memcpy(&value, at, sizeof value);
    return isLittleEndian ? __builtin_bswap16(value) : value;
}

TARN_INLINE uint32_t load32(const uint8_t *at) {
    uint32_t value;
    memcpy(&value, at, sizeof value);
    return isLittleEndian ? __builtin_bswap32(value) : value;
}

TARN_INLINE void store16(uint8_t *at, uint32_t value) {
    const uint16_t bytes = isLittleEndian ? __builtin_bswap16(uint16_t(value)) : uint16_t(value);
    memcpy(at, &bytes, sizeof bytes);
}

TARN_INLINE void store32(uint8_t *at, uint32_t value) {
    const uint32_t bytes = isLittleEndian ? __builtin_bswap32(value) : value;
    memcpy(at, &bytes, sizeof bytes);
}

TARN_INLINE void store_header(uint8_t *at, uint32_t tag, uint32_t length) {
    store16(at, tag);
    store32(at + tagSize, length);
}

// What is still to be read.
struct Input {
    const uint8_t *at;
    uint32_t left;

    TARN_INLINE void skip(uint32_t count) {
        at += count;
        left -= count;
    }
};

// Room that is still to be written.
struct Output {
    uint8_t *at;
    uint32_t left;

    TARN_INLINE void skip(uint32_t count) {
        at += count;
        left -= count;
    }
};

// Sums of sizes stop at the greatest number instead of wrapping: a size that wrapped would pass a
// room check that the true one fails.
inline uint32_t add_sizes(uint32_t a, uint32_t b) {
    const uint32_t sum = a + b;
    return sum < a ? UINT32_MAX : sum;
}

} // namespace tarn

#endif
