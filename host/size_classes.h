// The sizes of block that the pool keeps apart.
#ifndef TARN_HOST_SIZE_CLASSES_H
#define TARN_HOST_SIZE_CLASSES_H

#include <array>
#include <cstddef>
#include <cstdint>

namespace tarn_host {

// A stride is a header and a block. As strides are multiples of 16 and headers stand 8 bytes before
// such a multiple, blocks are aligned like those of malloc.
constexpr std::size_t kHeaderSize = 8;
constexpr std::size_t kStrideUnit = 16;
constexpr std::size_t kLeastStride = 32;
constexpr std::size_t kGreatestStride = 8192;
constexpr std::size_t kGreatestPooledSize = kGreatestStride - kHeaderSize;
constexpr std::size_t kClassCount = 55;

constexpr std::size_t unitsFor(std::size_t size) {
    return (size + kHeaderSize + kStrideUnit - 1) / kStrideUnit;
}

// Steps of 16 bytes, and from 256 bytes on eight steps for each doubling.
constexpr std::size_t strideAfter(std::size_t stride) {
    std::size_t step = kStrideUnit;
    while (step * 16 <= stride) {
        step *= 2;
    }
    return stride + step;
}

// Batches of about 16 kB, so that a thread's cache stays small in every class.
constexpr uint8_t batchFor(std::size_t stride) {
    const std::size_t count = 16384 / stride;
    return static_cast<uint8_t>(count < 4 ? 4 : count > 64 ? 64 : count);
}

struct SizeClasses {
    std::array<uint16_t, kClassCount> stride{};
    std::array<uint8_t, kClassCount> batch{};
    std::array<uint8_t, kGreatestStride / kStrideUnit + 1> ofUnits{};
};

constexpr SizeClasses makeSizeClasses() {
    SizeClasses classes;
    std::size_t units = 0;
    std::size_t stride = kLeastStride;
    for (std::size_t i = 0; i < kClassCount; ++i, stride = strideAfter(stride)) {
        classes.stride[i] = static_cast<uint16_t>(stride);
        classes.batch[i] = batchFor(stride);
        for (; units * kStrideUnit <= stride; ++units) {
            classes.ofUnits[units] = static_cast<uint8_t>(i);
        }
    }
    return classes;
}

constexpr SizeClasses kClasses = makeSizeClasses();
static_assert(kClasses.stride.back() == kGreatestStride);

constexpr std::size_t classOf(std::size_t size) {
    return kClasses.ofUnits[unitsFor(size)];
}

} // namespace tarn_host

#endif
