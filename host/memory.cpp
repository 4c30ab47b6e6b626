// The memory service.
//
// Blocks of the sizes that libtarn asks for come from a pool. Each thread has a cache of free
// blocks of its own, one shelf per size class, and the usual allocation or release is a pop or push
// there: no lock, no atomic read-modify-write. Whole batches of blocks move between the caches and
// a depot that a mutex guards. A block may be freed on any thread; it then goes to that thread's
// cache. The pool's memory is kept for reuse until the process ends.

#include "pooling.h"
#include "support.h"
#include "tarn_host.h"

#include <atomic>
#include <cinttypes>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <new>

#if TARN_HOST_POOLED
#include "size_classes.h"

#include <array>
#else
#include <malloc.h>
#endif

namespace {

// Blocks allocated and not yet freed, and the bytes asked for them.
struct Live {
    std::size_t blocks;
    std::size_t bytes;
};

// libtarn uses a block without looking, so that there is no way back from here.
[[noreturn, gnu::cold]] void endWithoutMemory(std::size_t size, const char *module, uint32_t line) {
    std::fprintf(stderr, "tarn: out of memory in %s:%" PRIu32 ": %zu bytes\n", module, line, size);
    std::abort();
}

#if TARN_HOST_POOLED

// ---- Blocks and batches -------------------------------------------------------------------------

using tarn_host::classOf;
using tarn_host::kClassCount;
using tarn_host::kClasses;
using tarn_host::kGreatestPooledSize;
using tarn_host::kLeastStride;

// Stands in front of each block. The mark tells a live block from a free or a foreign one.
struct Header {
    uint32_t size;
    uint32_t mark;
};
constexpr uint32_t kLiveMark = 0xA110CA7EU;
constexpr uint32_t kFreeMark = 0xF4EEB10CU;
static_assert(sizeof(Header) == tarn_host::kHeaderSize);

// What a free block's own bytes hold. The last two fields count in a batch's first block only,
// while the batch is in the depot.
struct FreeBlock {
    FreeBlock *next;
    FreeBlock *nextBatch;
    uint32_t batchCount;
};
static_assert(sizeof(FreeBlock) <= kLeastStride - sizeof(Header));

struct Batch {
    FreeBlock *first = nullptr;
    uint32_t count = 0;

    void push(FreeBlock *block) {
        block->next = first;
        first = block;
        ++count;
    }

    FreeBlock *pop() {
        FreeBlock *const block = first;
        first = block->next;
        --count;
        return block;
    }
};

// A thread's free blocks of one class. Allocations and releases meet at `active`; `spare` keeps a
// thread that hovers about a batch's edge from going to the depot each time.
struct Shelf {
    Batch active;
    Batch spare;
};

// Belongs to one thread at a time, which alone writes it; others read the counters. A thread that
// frees what others allocated counts below zero: only the sum over all caches has a meaning.
struct alignas(64) Cache {
    std::atomic<std::size_t> liveBlocks{0};
    std::atomic<std::size_t> liveBytes{0};
    std::array<Shelf, kClassCount> shelves{};
    Cache *nextKnown = nullptr;
    Cache *nextParked = nullptr;
};

// Only the owner writes, so that a plain addition will do; atomic for the sake of the readers.
void add(std::atomic<std::size_t> &counter, std::size_t amount) {
    counter.store(counter.load(std::memory_order_relaxed) + amount, std::memory_order_relaxed);
}

Header *headerOf(void *block) {
    return static_cast<Header *>(block) - 1;
}

bool isLive(void *block) {
    return headerOf(block)->mark == kLiveMark;
}

void markLive(Cache &cache, void *block, uint32_t size) {
    *headerOf(block) = {size, kLiveMark};
    add(cache.liveBlocks, 1);
    add(cache.liveBytes, size);
}

void markFree(Cache &cache, void *block) {
    Header *const header = headerOf(block);
    header->mark = kFreeMark;
    add(cache.liveBlocks, std::size_t{0} - 1);
    add(cache.liveBytes, std::size_t{0} - header->size);
}

// ---- Depot --------------------------------------------------------------------------------------

// The head of a chunk of pool memory. Headers and blocks follow.
struct alignas(8) Chunk {
    Chunk *next;
};
constexpr std::size_t kChunkSize = 262144;
static_assert(sizeof(Chunk) == sizeof(Header), "else blocks are out of alignment");

// What all threads share. Chunks and caches are chained so that leak checkers find every one.
struct Depot {
    pthread_mutex_t mutex = PTHREAD_MUTEX_INITIALIZER;
    std::array<FreeBlock *, kClassCount> batches{};
    Chunk *chunks = nullptr;
    std::byte *unused = nullptr;
    std::size_t unusedSize = 0;
    Cache *known = nullptr;
    Cache *parked = nullptr;
};

// Never destroyed: other objects' destructors may free blocks until the very end of the process.
// The functions down to the next heading are called with the mutex held.
constinit Depot depot;

void giveBatch(std::size_t sizeClass, const Batch &batch) {
    if (batch.first != nullptr) {
        batch.first->nextBatch = depot.batches[sizeClass];
        batch.first->batchCount = batch.count;
        depot.batches[sizeClass] = batch.first;
    }
}

bool addChunk() {
    void *const memory = std::malloc(kChunkSize);
    if (memory == nullptr) {
        return false;
    }
    depot.chunks = new (memory) Chunk{depot.chunks};
    depot.unused = static_cast<std::byte *>(memory) + sizeof(Chunk);
    depot.unusedSize = kChunkSize - sizeof(Chunk);
    return true;
}

FreeBlock *cutBlock(std::size_t stride) {
    Header *const header = new (depot.unused) Header{0, kFreeMark};
    depot.unused += stride;
    depot.unusedSize -= stride;
    return new (header + 1) FreeBlock{};
}

// Cuts a batch of new blocks: fewer than usual at a chunk's end, none when there is no memory.
Batch cutBatch(std::size_t sizeClass) {
    const std::size_t stride = kClasses.stride[sizeClass];
    Batch batch;
    if (depot.unusedSize < stride && !addChunk()) {
        return batch;
    }
    while (batch.count < kClasses.batch[sizeClass] && depot.unusedSize >= stride) {
        batch.push(cutBlock(stride));
    }
    return batch;
}

Batch takeBatch(std::size_t sizeClass) {
    FreeBlock *const first = depot.batches[sizeClass];
    if (first == nullptr) {
        return cutBatch(sizeClass);
    }
    depot.batches[sizeClass] = first->nextBatch;
    return {first, first->batchCount};
}

// Finds a cache for a thread that has none: one that an ended thread left, or a new one. Null when
// there is no memory.
Cache *claimCache() {
    if (Cache *const cache = depot.parked) {
        depot.parked = cache->nextParked;
        return cache;
    }
    void *const memory = std::aligned_alloc(alignof(Cache), sizeof(Cache));
    if (memory == nullptr) {
        return nullptr;
    }
    Cache *const cache = new (memory) Cache;
    cache->nextKnown = depot.known;
    depot.known = cache;
    return cache;
}

// ---- The thread's cache -------------------------------------------------------------------------

// One word of initial-exec storage: read in one instruction even within a shared object, and small
// enough for the room that libc keeps for objects loaded later.
constinit thread_local Cache *threadCache [[gnu::tls_model("initial-exec")]] = nullptr;

pthread_once_t threadEndOnce = PTHREAD_ONCE_INIT;
pthread_key_t threadEndKey;
bool hasThreadEndKey = false;

// Returns an ending thread's free blocks to the depot. Its counters stay with the cache. Later
// destructors of the thread may still free blocks: they claim a cache anew, and this runs again.
void parkCache(void *memory) {
    Cache *const cache = static_cast<Cache *>(memory);
    threadCache = nullptr;
    const tarn_host::Locked locked(depot.mutex);
    for (std::size_t i = 0; i < kClassCount; ++i) {
        giveBatch(i, cache->shelves[i].active);
        giveBatch(i, cache->shelves[i].spare);
        cache->shelves[i] = {};
    }
    cache->nextParked = depot.parked;
    depot.parked = cache;
}

void makeThreadEndKey() {
    hasThreadEndKey = pthread_key_create(&threadEndKey, parkCache) == 0;
}

// Without the key, or the room to set it, a thread's cache is not handed on, but stays known.
void claimThreadCache() {
    pthread_once(&threadEndOnce, makeThreadEndKey);
    {
        const tarn_host::Locked locked(depot.mutex);
        threadCache = claimCache();
    }
    if (hasThreadEndKey) {
        pthread_setspecific(threadEndKey, threadCache);
    }
}

Cache &ownCache(const char *module, uint32_t line) {
    if (threadCache == nullptr) {
        claimThreadCache();
    }
    if (threadCache == nullptr) {
        endWithoutMemory(sizeof(Cache), module, line);
    }
    return *threadCache;
}

// Puts blocks into an empty `active`; false when there is no memory.
bool refill(Shelf &shelf, std::size_t sizeClass) {
    shelf.active = shelf.spare;
    shelf.spare = {};
    if (shelf.active.first == nullptr) {
        const tarn_host::Locked locked(depot.mutex);
        shelf.active = takeBatch(sizeClass);
    }
    return shelf.active.first != nullptr;
}

// Makes room in a full `active`.
void flush(Shelf &shelf, std::size_t sizeClass) {
    if (shelf.spare.first != nullptr) {
        const tarn_host::Locked locked(depot.mutex);
        giveBatch(sizeClass, shelf.spare);
    }
    shelf.spare = shelf.active;
    shelf.active = {};
}

// ---- Allocation and release ---------------------------------------------------------------------

// Each comes in two parts: a quick one that calls nothing and so has no frame to set up, and a slow
// one for every case that the quick one leaves.

// A large block is preceded by two headers' room, which keeps malloc's alignment.
constexpr std::size_t kLargeHead = 2 * sizeof(Header);

void *takeLarge(std::size_t size) {
    const std::size_t total = size + kLargeHead;
    void *const memory = total > size ? std::malloc(total) : nullptr;
    return memory != nullptr ? static_cast<std::byte *>(memory) + kLargeHead : nullptr;
}

void putLarge(void *block) {
    std::free(static_cast<std::byte *>(block) - kLargeHead);
}

void *takePooled(Cache &cache, std::size_t size) {
    const std::size_t sizeClass = classOf(size);
    Shelf &shelf = cache.shelves[sizeClass];
    return shelf.active.first != nullptr || refill(shelf, sizeClass) ? shelf.active.pop() : nullptr;
}

void putPooled(Cache &cache, std::size_t size, void *block) {
    const std::size_t sizeClass = classOf(size);
    Shelf &shelf = cache.shelves[sizeClass];
    if (shelf.active.count >= kClasses.batch[sizeClass]) {
        flush(shelf, sizeClass);
    }
    shelf.active.push(static_cast<FreeBlock *>(block));
}

[[gnu::noinline]] void allocateSlowly(uint32_t size, void **block, const char *module,
                                      uint32_t line) {
    Cache &cache = ownCache(module, line);
    *block = size <= kGreatestPooledSize ? takePooled(cache, size) : takeLarge(size);
    if (*block == nullptr) {
        endWithoutMemory(size, module, line);
    }
    markLive(cache, *block, size);
}

void allocate(uint32_t size, void **block, const char *module, uint32_t line) {
    Cache *const cache = threadCache;
    if (cache != nullptr && size <= kGreatestPooledSize) [[likely]] {
        Batch &active = cache->shelves[classOf(size)].active;
        if (active.first != nullptr) [[likely]] {
            *block = active.pop();
            return markLive(*cache, *block, size);
        }
    }
    allocateSlowly(size, block, module, line);
}

[[gnu::noinline]] void releaseSlowly(void *block, const char *module, uint32_t line) {
    Cache &cache = ownCache(module, line);
    const uint32_t size = headerOf(block)->size;
    markFree(cache, block);
    if (size <= kGreatestPooledSize) {
        putPooled(cache, size, block);
    } else {
        putLarge(block);
    }
}

void release(void *block, const char *module, uint32_t line) {
    Cache *const cache = threadCache;
    const uint32_t size = headerOf(block)->size;
    if (cache != nullptr && size <= kGreatestPooledSize) [[likely]] {
        const std::size_t sizeClass = classOf(size);
        Batch &active = cache->shelves[sizeClass].active;
        if (active.count < kClasses.batch[sizeClass]) [[likely]] {
            markFree(*cache, block);
            return active.push(static_cast<FreeBlock *>(block));
        }
    }
    releaseSlowly(block, module, line);
}

Live sumLive() {
    Live live{};
    const tarn_host::Locked locked(depot.mutex);
    for (const Cache *cache = depot.known; cache != nullptr; cache = cache->nextKnown) {
        live.blocks += cache->liveBlocks.load(std::memory_order_relaxed);
        live.bytes += cache->liveBytes.load(std::memory_order_relaxed);
    }
    return live;
}

#else

// ---- Each block from malloc ---------------------------------------------------------------------

std::atomic<std::size_t> liveBlocks{0};
std::atomic<std::size_t> liveBytes{0};

void allocate(uint32_t size, void **block, const char *module, uint32_t line) {
    *block = std::malloc(size != 0 ? size : 1);
    if (*block == nullptr) {
        endWithoutMemory(size, module, line);
    }
    liveBlocks.fetch_add(1, std::memory_order_relaxed);
    liveBytes.fetch_add(malloc_usable_size(*block), std::memory_order_relaxed);
}

// malloc, or the checker in its place, judges for itself.
bool isLive(void *) {
    return true;
}

void release(void *block, const char *, uint32_t) {
    liveBlocks.fetch_sub(1, std::memory_order_relaxed);
    liveBytes.fetch_sub(malloc_usable_size(block), std::memory_order_relaxed);
    std::free(block);
}

Live sumLive() {
    return {liveBlocks.load(std::memory_order_relaxed), liveBytes.load(std::memory_order_relaxed)};
}

#endif

// A sum taken while threads are busy may miss an allocation whose release it has seen.
uint64_t notBelowZero(std::size_t sum) {
    return static_cast<std::ptrdiff_t>(sum) < 0 ? 0 : uint64_t{sum};
}

[[gnu::cold]] uint32_t refuse(const char *text, const char *module, uint32_t line) {
    velSwFatalError(text, module, line);
    return 0;
}

} // namespace

uint32_t velAllocMemoryWithIds(uint32_t size, void **block, const char *module, uint32_t line) {
    allocate(size, block, module, line);
    return 1;
}

uint32_t velFreeMemoryWithIds(void **block, const char *module, uint32_t line) {
    if (block == nullptr || *block == nullptr) [[unlikely]] {
        return refuse("the block to free is null", module, line);
    }
    void *const released = *block;
    if (!isLive(released)) [[unlikely]] {
        return refuse("the block to free is not allocated", module, line);
    }
    *block = nullptr;
    release(released, module, line);
    return 1;
}

uint64_t tarnHostLiveBlocks(void) {
    return notBelowZero(sumLive().blocks);
}

void tarnHostReportLiveBlocks(FILE *stream) {
    const Live live = sumLive();
    std::fprintf(stream, "tarn: %" PRIu64 " live blocks, %" PRIu64 " bytes\n",
                 notBelowZero(live.blocks), notBelowZero(live.bytes));
}
