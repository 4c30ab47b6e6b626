// Memory from malloc: the limit, the report that there is no more, and what returns to the system.

#include "memory.h"

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <malloc.h>

#include "tarn_host.h"

namespace {

std::atomic<std::size_t> held{0};
std::atomic<std::size_t> limit{SIZE_MAX};

// malloc keeps most of what is freed. Once the host holds this much less than it did at its height,
// malloc is asked to give whole free pages back.
constexpr std::size_t kFallBeforeTrim = std::size_t{64} << 20;
std::atomic<std::size_t> height{0};

bool reserve(std::size_t bytes) {
    const std::size_t bound = limit.load(std::memory_order_relaxed);
    const std::size_t before = held.fetch_add(bytes, std::memory_order_relaxed);
    if (before > bound || bytes > bound - before) {
        held.fetch_sub(bytes, std::memory_order_relaxed);
        return false;
    }
    if (before + bytes > height.load(std::memory_order_relaxed)) {
        height.store(before + bytes, std::memory_order_relaxed);
    }
    return true;
}

void *try_to_take(std::size_t bytes) {
    if (!reserve(bytes)) {
        return nullptr;
    }
    void *const memory = std::malloc(bytes);
    if (memory == nullptr) {
        held.fetch_sub(bytes, std::memory_order_relaxed);
    }
    return memory;
}

} // namespace

void tarn_host::give_pages_back() {
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

// libtarn uses a block without looking, so that there is no way back from here.
void tarn_host::end_without_memory(std::size_t bytes, uint32_t size, Place place) {
    char text[128];
    const std::size_t bound = limit.load(std::memory_order_relaxed);
    const std::size_t now = held.load(std::memory_order_relaxed);
    if (now > bound || bytes > bound - now) {
        std::snprintf(text, sizeof text, "no block of %u bytes within the limit of %zu bytes", size,
                      bound);
    } else {
        std::snprintf(text, sizeof text, "out of memory: no block of %u bytes", size);
    }
    velSwFatalError(text, place.module, place.line);
    std::abort();
}

void *tarn_host::take_memory(std::size_t bytes, uint32_t size, Place place, void (*reclaim)()) {
    void *memory = try_to_take(bytes);
    if (memory == nullptr) [[unlikely]] {
        reclaim();
        give_pages_back();
        memory = try_to_take(bytes);
    }
    if (memory == nullptr) [[unlikely]] {
        end_without_memory(bytes, size, place);
    }
    return memory;
}

void tarn_host::give_memory(void *memory, std::size_t bytes) {
    std::free(memory);
    const std::size_t now = held.fetch_sub(bytes, std::memory_order_relaxed) - bytes;
    std::size_t highest = height.load(std::memory_order_relaxed);
    if (highest > now && highest - now > kFallBeforeTrim &&
        height.compare_exchange_strong(highest, now, std::memory_order_relaxed)) {
        give_pages_back();
    }
}

std::size_t tarn_host::held_bytes() {
    return held.load(std::memory_order_relaxed);
}

uint64_t tarnHostSetLimit(uint64_t bytes) {
    const uint64_t bound = bytes != 0 ? std::min<uint64_t>(bytes, SIZE_MAX) : SIZE_MAX;
    const std::size_t former = limit.exchange(std::size_t(bound), std::memory_order_relaxed);
    return former == SIZE_MAX ? 0 : former;
}
