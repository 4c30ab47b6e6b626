// The least that a host over another allocator does, for scripts/allocators.sh: it marks blocks and
// counts them, for each thread, and leaves the rest to malloc.
#include <atomic>
#include <cstdlib>

#include "support.h"

namespace {

struct Header {
    uint32_t size;
    uint32_t mark;
};
constexpr uint32_t kLiveMark = 0xA110CA7EU;

constinit thread_local std::atomic<std::size_t> live [[gnu::tls_model("initial-exec")]]{0};

void add(std::size_t amount) {
    live.store(live.load(std::memory_order_relaxed) + amount, std::memory_order_relaxed);
}

} // namespace

uint32_t velAllocMemoryWithIds(uint32_t size, void **block, const char *, uint32_t) {
    auto *const header = static_cast<Header *>(std::malloc(size + sizeof(Header)));
    if (header == nullptr)
        std::abort();
    *header = {size, kLiveMark};
    *block = header + 1;
    add(1);
    return 1;
}

uint32_t velFreeMemoryWithIds(void **block, const char *module, uint32_t line) {
    Header *const header = *block != nullptr ? static_cast<Header *>(*block) - 1 : nullptr;
    if (header == nullptr || header->mark != kLiveMark) {
        velSwFatalError("the block to free is not allocated", module, line);
        return 0;
    }
    header->mark = 0;
    *block = nullptr;
    add(std::size_t{0} - 1);
    std::free(header);
    return 1;
}
