// The memory service.
//
// Blocks come from malloc. A thread keeps the blocks that it frees, up to a bound, one list for
// each multiple of 16 bytes: the usual allocation or release is a pop or push there, without a lock
// or an atomic read-modify-write. A block may be freed on any thread; it then goes to that thread's
// lists.
//
// Nothing here holds a lock, and malloc sees to its own, so that a fork at any moment leaves the
// child a host that works.

#include <atomic>
#include <cinttypes>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <new>
#include <pthread.h>

#include "checking.h"
#include "memory.h"
#include "pooling.h"
#include "tarn_host.h"

namespace {

using tarn_host::Place;

// ---- Blocks -------------------------------------------------------------------------------------

// Stands in front of each block. `taken` is what block and header have of malloc's memory. The mark
// tells a live block from a free or a foreign one.
struct Header {
    uint32_t taken;
    uint32_t mark;
};
constexpr uint32_t kLiveMark = 0xA110CA7EU;
constexpr uint32_t kLargeMark = 0x1A46EA7EU; // live, and too large to be kept
constexpr uint32_t kFreeMark = 0xF4EEB10CU;

// What a free block's own bytes hold.
struct FreeBlock {
    FreeBlock *next;
};

// A block of a multiple of 16 bytes and its header fill glibc's chunks to the last byte.
constexpr std::size_t kUnit = 16;
constexpr std::size_t kGreatestKept = 4352;
constexpr std::size_t kShelves = kGreatestKept / kUnit + 1;
static_assert(sizeof(Header) < kUnit && sizeof(FreeBlock) <= kUnit);

// Shelf 0 stays empty: a size of 0 takes the slow road.
std::size_t shelf_for(uint32_t size) {
    return (std::size_t{size} + kUnit - 1) / kUnit;
}

Header *header_of(void *block) {
    return static_cast<Header *>(block) - 1;
}

// ---- The threads' caches ------------------------------------------------------------------------

constexpr std::size_t kCacheBound = 65536;

// Belongs to one thread at a time, which alone writes it; others read the counters. A thread that
// frees what others allocated counts below zero: only the sum over all caches has a meaning. An
// ended thread's cache waits, empty, for the next thread that needs one.
struct alignas(64) Cache {
    std::atomic<std::size_t> live{0};
    std::atomic<std::size_t> kept{0}; // bytes
    FreeBlock *shelves[kShelves] = {};
    std::atomic<bool> is_owned{true};
    Cache *next = nullptr;
};

std::atomic<Cache *> caches{nullptr};

// The blocks of threads that have no cache.
std::atomic<std::size_t> live_elsewhere{0};

// In initial-exec storage, which is read in one instruction even within a shared object, and small
// enough for the room that libc keeps for objects loaded later.
constinit thread_local Cache *thread_cache [[gnu::tls_model("initial-exec")]] = nullptr;
constinit thread_local bool thread_ends [[gnu::tls_model("initial-exec")]] = false;

// Only the owner writes, so that a plain addition will do; atomic for the sake of the readers.
void add(std::atomic<std::size_t> &counter, std::size_t amount) {
    counter.store(counter.load(std::memory_order_relaxed) + amount, std::memory_order_relaxed);
}

void *pop(Cache &cache, std::size_t shelf) {
    FreeBlock *const block = cache.shelves[shelf];
    cache.shelves[shelf] = block->next;
    add(cache.kept, -(shelf * kUnit + sizeof(Header)));
    return block;
}

void push(Cache &cache, void *block, std::size_t taken) {
    cache.shelves[taken / kUnit] = new (block) FreeBlock{cache.shelves[taken / kUnit]};
    add(cache.kept, taken);
}

// Gives blocks back, the largest first, until only this many bytes are kept.
void drain(Cache &cache, std::size_t bytes) {
    for (std::size_t shelf = kShelves; shelf-- > 0;) {
        while (cache.shelves[shelf] != nullptr) {
            if (cache.kept.load(std::memory_order_relaxed) <= bytes) {
                return;
            }
            Header *const header = header_of(pop(cache, shelf));
            tarn_host::give_memory(header, header->taken);
        }
    }
}

void drain_own() {
    if (thread_cache != nullptr) {
        drain(*thread_cache, 0);
    }
}

// Later destructors of the thread may still use the memory; they go to malloc for each block.
void end_thread(void *memory) {
    Cache *const cache = static_cast<Cache *>(memory);
    drain(*cache, 0);
    thread_cache = nullptr;
    thread_ends = true;
    cache->is_owned.store(false, std::memory_order_release);
}

pthread_once_t beginning = PTHREAD_ONCE_INIT;
pthread_key_t thread_end_key;
bool has_caches = false;

void begin() {
    tarn_host::begin_checking();
    has_caches = TARN_HOST_POOLED && !tarn_host::is_checking &&
                 pthread_key_create(&thread_end_key, end_thread) == 0;
}

Cache *find_unowned_cache() {
    for (Cache *cache = caches.load(std::memory_order_acquire); cache != nullptr;
         cache = cache->next) {
        if (!cache->is_owned.load(std::memory_order_relaxed) &&
            !cache->is_owned.exchange(true, std::memory_order_acquire)) {
            return cache;
        }
    }
    return nullptr;
}

Cache *make_cache() {
    void *const memory = std::aligned_alloc(alignof(Cache), sizeof(Cache));
    if (memory == nullptr) {
        return nullptr;
    }
    Cache *const cache = new (memory) Cache;
    cache->next = caches.load(std::memory_order_relaxed);
    while (!caches.compare_exchange_weak(cache->next, cache, std::memory_order_release,
                                         std::memory_order_relaxed)) {
    }
    return cache;
}

// A thread whose end would go unnoticed gets no cache: what it kept would be lost.
void claim_cache() {
    pthread_once(&beginning, begin);
    if (!has_caches || thread_ends) {
        return;
    }
    Cache *const unowned = find_unowned_cache();
    Cache *const cache = unowned != nullptr ? unowned : make_cache();
    if (cache == nullptr) {
        return;
    }
    if (pthread_setspecific(thread_end_key, cache) == 0) {
        thread_cache = cache;
    } else {
        cache->is_owned.store(false, std::memory_order_release);
    }
}

void count_live(std::size_t amount) {
    if (thread_cache != nullptr) {
        add(thread_cache->live, amount);
    } else {
        live_elsewhere.fetch_add(amount, std::memory_order_relaxed);
    }
}

// ---- Allocation and release ---------------------------------------------------------------------

// Each comes in two parts: a quick one that calls nothing and so has no frame to set up, and a slow
// one for every case that the quick one leaves.

[[gnu::noinline]] uint32_t allocate_slowly(uint32_t size, void **block, Place place) {
    if (thread_cache == nullptr) {
        claim_cache();
    }
    if (tarn_host::is_checking) {
        *block = tarn_host::allocate_checked(size, place);
        return 1;
    }
    const std::size_t shelf = shelf_for(size != 0 ? size : 1);
    const bool is_large = shelf >= kShelves;
    const std::size_t taken = sizeof(Header) + (is_large ? size : shelf * kUnit);
    // A size just below 4 GB would not fit the header, and wraps on 32-bit machines.
    void *const memory = tarn_host::take_memory(
        taken > size && taken <= UINT32_MAX ? taken : SIZE_MAX, size, place, drain_own);
    *block = new (memory) Header{uint32_t(taken), is_large ? kLargeMark : kLiveMark} + 1;
    count_live(1);
    return 1;
}

uint32_t refuse(const char *text, Place place) {
    velSwFatalError(text, place.module, place.line);
    return 0;
}

[[gnu::noinline]] uint32_t release_slowly(void **block, Place place) {
    if (block == nullptr || *block == nullptr) {
        return refuse("the block to free is null", place);
    }
    if (thread_cache == nullptr) {
        claim_cache();
    }
    if (tarn_host::is_checking) {
        return tarn_host::release_checked(block, place);
    }
    Header *const header = header_of(*block);
    if (header->mark != kLiveMark && header->mark != kLargeMark) {
        return refuse("the block to free is not allocated", place);
    }
    const bool overflows = thread_cache != nullptr && header->mark == kLiveMark;
    header->mark = kFreeMark;
    *block = nullptr;
    count_live(std::size_t{0} - 1);
    tarn_host::give_memory(header, header->taken);
    if (overflows) {
        drain(*thread_cache, kCacheBound / 2);
    }
    return 1;
}

} // namespace

uint32_t velAllocMemoryWithIds(uint32_t size, void **block, const char *module, uint32_t line) {
    Cache *const cache = thread_cache;
    const std::size_t shelf = shelf_for(size);
    if (cache != nullptr && shelf < kShelves && cache->shelves[shelf] != nullptr) [[likely]] {
        *block = pop(*cache, shelf);
        header_of(*block)->mark = kLiveMark;
        add(cache->live, 1);
        return 1;
    }
    return allocate_slowly(size, block, {module, line});
}

uint32_t velFreeMemoryWithIds(void **block, const char *module, uint32_t line) {
    Cache *const cache = thread_cache;
    if (cache != nullptr && block != nullptr && *block != nullptr) [[likely]] {
        Header *const header = header_of(*block);
        const std::size_t taken = header->taken;
        if (header->mark == kLiveMark &&
            cache->kept.load(std::memory_order_relaxed) + taken <= kCacheBound) [[likely]] {
            header->mark = kFreeMark;
            add(cache->live, std::size_t{0} - 1);
            push(*cache, *block, taken);
            *block = nullptr;
            return 1;
        }
    }
    return release_slowly(block, {module, line});
}

namespace {

// A sum taken while threads are busy may miss an allocation whose release it has seen.
uint64_t not_below_zero(std::size_t sum) {
    return sum > SIZE_MAX / 2 ? 0 : sum;
}

struct Sums {
    std::size_t live = live_elsewhere.load(std::memory_order_relaxed);
    std::size_t kept = 0;

    Sums() {
        for (const Cache *cache = caches.load(std::memory_order_acquire); cache != nullptr;
             cache = cache->next) {
            live += cache->live.load(std::memory_order_relaxed);
            kept += cache->kept.load(std::memory_order_relaxed);
        }
    }
};

} // namespace

uint64_t tarnHostLiveBlocks(void) {
    return tarn_host::is_checking ? tarn_host::count_checked().blocks : not_below_zero(Sums().live);
}

void tarnHostReportLiveBlocks(FILE *stream) {
    if (tarn_host::is_checking) {
        return tarn_host::list_checked(stream);
    }
    const Sums sums;
    std::fprintf(stream, "tarn: %" PRIu64 " live blocks, %" PRIu64 " bytes\n",
                 not_below_zero(sums.live), not_below_zero(tarn_host::held_bytes() - sums.kept));
}

void tarnHostTrim(void) {
    if (tarn_host::is_checking) {
        tarn_host::empty_quarantine();
    } else {
        drain_own();
    }
    tarn_host::give_pages_back();
}
