// Blocks of the host, which names their maker and their user where it tells of them.
#ifndef TARN_TEST_HOST_BLOCKS_H
#define TARN_TEST_HOST_BLOCKS_H

#include <cstdint>
#include <cstdlib>

#include "vel_platform.h"

// All tests run in the checking mode as well.
inline const bool isChecked = [] {
    const char *const check = std::getenv("TARN_HOST_CHECK");
    return check != nullptr && *check == '1';
}();

inline unsigned char *allocate(std::size_t size) {
    void *block = nullptr;
    velAllocMemoryWithIds(std::uint32_t(size), &block, "maker", 11);
    return static_cast<unsigned char *>(block);
}

inline void release(void *block) {
    velFreeMemoryWithIds(&block, "user", 22);
}

#endif
