// Bytes on the wire: big-endian loads and stores, and a cursor that counts bytes remaining.
//
// Everything is assembled byte by byte, so buffers may start at any address. Bounds are checked
// against what remains and never against a sum of pointers: a 4-byte length would overflow a 32-bit
// address space.
#ifndef TARN_WIRE_H
#define TARN_WIRE_H

#include <stdint.h>

#include "build_goal.h"

namespace [[gnu::visibility("hidden")]] tarn {

inline constexpr uint32_t tagSize = 2;
inline constexpr uint32_t lengthSize = 4;
inline constexpr uint32_t headerSize = tagSize + lengthSize;

TARN_INLINE uint32_t load16(const uint8_t *at) {
    return uint32_t(at[0]) << 8 | at[1];
}

TARN_INLINE uint32_t load32(const uint8_t *at) {
    return load16(at) << 16 | load16(at + 2);
}

TARN_INLINE void store16(uint8_t *at, uint32_t value) {
    at[0] = uint8_t(value >> 8);
    at[1] = uint8_t(value);
}

TARN_INLINE void store32(uint8_t *at, uint32_t value) {
    store16(at, value >> 16);
    store16(at + 2, value);
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
    // Whether an IE of this tag starts here, as far as its first two bytes tell.
    TARN_INLINE bool has_tag(uint32_t tag) const { return left >= tagSize && load16(at) == tag; }
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
