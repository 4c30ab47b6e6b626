#include "checking.h"

#include <algorithm>
#include <cinttypes>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <new>
#include <search.h>

#include "memory.h"
#include "tarn_host.h"

bool tarn_host::is_checking = false;

namespace {

using tarn_host::Locked;
using tarn_host::Place;

constexpr std::size_t kGuard = 32;
constexpr unsigned char kGuardFill = 0xC5;
constexpr unsigned char kNewFill = 0xA5;
constexpr unsigned char kFreeFill = 0xDD;
constexpr std::size_t kQuarantineBound = std::size_t{16} << 20;

// Stands in front of the block and its first guard, which leave it as aligned as malloc does.
struct alignas(std::max_align_t) Block {
    unsigned char *bytes;
    uint32_t size;
    bool is_free;
    Place allocated;
    Place freed;
    const VelDllHead *list; // that the object is linked into
    Block *next;            // in the quarantine
};

static_assert(kGuard % alignof(Block) == 0);

std::size_t taken_by(const Block &block) {
    return sizeof(Block) + block.size + 2 * kGuard;
}

// ---- What is wrong -----------------------------------------------------------------------------

// Filled in while the lock is held, and told after that.
struct Finding {
    char text[256] = "";
    explicit operator bool() const { return text[0] != '\0'; }
};

void describe(Finding &finding, const char *what, const Block &block) {
    const int length = std::snprintf(finding.text, sizeof finding.text,
                                     "%s: block %p of %" PRIu32 " bytes, allocated in %s:%" PRIu32,
                                     what, static_cast<void *>(block.bytes), block.size,
                                     block.allocated.module, block.allocated.line);
    const std::size_t end = std::min(std::size_t(length), sizeof finding.text);
    if (block.is_free) {
        std::snprintf(finding.text + end, sizeof finding.text - end, ", freed in %s:%" PRIu32,
                      block.freed.module, block.freed.line);
    }
}

void describe(Finding &finding, const char *what, const void *address) {
    std::snprintf(finding.text, sizeof finding.text, "%s: %p", what, address);
}

bool is_filled(const unsigned char *bytes, std::size_t size, unsigned char value) {
    // Each byte like the one before it: quicker than one by one, most of all under sanitizers.
    return size == 0 || (bytes[0] == value && std::memcmp(bytes, bytes + 1, size - 1) == 0);
}

void inspect(Finding &finding, const Block &block) {
    if (!is_filled(block.bytes - kGuard, kGuard, kGuardFill)) {
        describe(finding, "bytes before a block were written", block);
    } else if (!is_filled(block.bytes + block.size, kGuard, kGuardFill)) {
        describe(finding, "bytes behind a block were written", block);
    } else if (block.is_free && !is_filled(block.bytes, block.size, kFreeFill)) {
        describe(finding, "a block was written after its release", block);
    }
}

uint32_t tell(const Finding &finding, Place place) {
    if (finding) {
        velSwFatalError(finding.text, place.module, place.line);
    }
    return finding ? 0 : 1;
}

// ---- Records, by address -----------------------------------------------------------------------

// The functions down to the next heading are called with the lock held.

void *tree = nullptr;
tarn_host::Checked live;

// In the order of their release. A block whose release was long ago is given back to malloc.
struct Quarantine {
    Block *first;
    Block *last;
    std::size_t bytes;
} quarantine;

int compare(const void *one, const void *other) {
    const unsigned char *const a = static_cast<const Block *>(one)->bytes;
    const unsigned char *const b = static_cast<const Block *>(other)->bytes;
    return a < b ? -1 : a > b ? 1 : 0;
}

Block *find(const void *address) {
    Block key{};
    key.bytes = static_cast<unsigned char *>(const_cast<void *>(address));
    void *const found = tfind(&key, &tree, compare);
    return found != nullptr ? *static_cast<Block **>(found) : nullptr;
}

void add_to_quarantine(Block *block) {
    (quarantine.last != nullptr ? quarantine.last->next : quarantine.first) = block;
    quarantine.last = block;
    quarantine.bytes += taken_by(*block);
}

// Gives back the oldest, and what it was told to inspect into `finding`, unless there is one.
void let_oldest_go(Finding &finding) {
    Block *const block = quarantine.first;
    if (!finding) {
        inspect(finding, *block);
    }
    quarantine.first = block->next;
    if (quarantine.first == nullptr) {
        quarantine.last = nullptr;
    }
    quarantine.bytes -= taken_by(*block);
    tdelete(block, &tree, compare);
    tarn_host::give_memory(block, taken_by(*block));
}

void shrink_quarantine(Finding &finding, std::size_t bytes) {
    while (quarantine.bytes > bytes) {
        let_oldest_go(finding);
    }
}

} // namespace

// ---- Blocks ------------------------------------------------------------------------------------

namespace {

// What belongs to no call of libtarn.
constexpr Place kHere = {"tarn_host", 0};

void inspect_at_exit() {
    Finding finding;
    {
        const Locked locked;
        for (const Block *block = quarantine.first; block != nullptr && !finding;
             block = block->next) {
            inspect(finding, *block);
        }
    }
    tell(finding, kHere);
}

Block *make_block(uint32_t size, Place place) {
    const std::size_t taken = sizeof(Block) + 2 * kGuard + size;
    void *const memory = tarn_host::take_memory(taken > size ? taken : SIZE_MAX, size, place,
                                                tarn_host::empty_quarantine);
    auto *const bytes = static_cast<unsigned char *>(memory) + sizeof(Block) + kGuard;
    std::memset(bytes - kGuard, kGuardFill, kGuard);
    std::memset(bytes, kNewFill, size);
    std::memset(bytes + size, kGuardFill, kGuard);
    return new (memory) Block{bytes, size, false, place, {}, nullptr, nullptr};
}

// Why the block may not be released, if so.
void judge_release(Finding &finding, const Block *block, const void *address) {
    if (block == nullptr) {
        describe(finding, "the block to free is not one of the host's", address);
    } else if (block->is_free) {
        describe(finding, "the block to free was freed before", *block);
    } else if (block->list != nullptr) {
        describe(finding, "an object is deleted while it is linked", *block);
    } else {
        inspect(finding, *block);
    }
}

void retire(Block *block, Place place) {
    std::memset(block->bytes, kFreeFill, block->size);
    block->is_free = true;
    block->freed = place;
    live.blocks -= 1;
    live.bytes -= block->size;
    add_to_quarantine(block);
}

} // namespace

void tarn_host::begin_checking() {
    const char *const value = secure_getenv("TARN_HOST_CHECK");
    if (value != nullptr && std::strcmp(value, "1") == 0) {
        is_checking = true;
        std::atexit(inspect_at_exit);
    }
}

void *tarn_host::allocate_checked(uint32_t size, Place place) {
    Block *const block = make_block(size, place);
    const Locked locked;
    if (tsearch(block, &tree, compare) == nullptr) {
        end_without_memory(sizeof(Block), size, place);
    }
    live.blocks += 1;
    live.bytes += size;
    return block->bytes;
}

uint32_t tarn_host::release_checked(void **address, Place place) {
    Finding finding;
    {
        const Locked locked;
        Block *const block = find(*address);
        judge_release(finding, block, *address);
        if (!finding) {
            *address = nullptr;
            retire(block, place);
            shrink_quarantine(finding, kQuarantineBound);
        }
    }
    return tell(finding, place);
}

void tarn_host::empty_quarantine() {
    Finding finding;
    {
        const Locked locked;
        shrink_quarantine(finding, 0);
    }
    tell(finding, kHere);
}

tarn_host::Checked tarn_host::count_checked() {
    const Locked locked;
    return live;
}

namespace {

FILE *listing;

void list_live(const void *entry, VISIT visit, int) {
    const Block &block = **static_cast<Block *const *>(entry);
    if ((visit == postorder || visit == leaf) && !block.is_free) {
        Finding line;
        describe(line, "live", block);
        std::fprintf(listing, "tarn: %s\n", line.text);
    }
}

} // namespace

void tarn_host::list_checked(FILE *stream) {
    const Locked locked;
    std::fprintf(stream, "tarn: %" PRIu64 " live blocks, %" PRIu64 " bytes\n", live.blocks,
                 live.bytes);
    listing = stream;
    twalk(tree, list_live);
}

// ---- Links -------------------------------------------------------------------------------------

bool tarn_host::may_link(const VelDllHead *head, const VelDllNode *node, Place place) {
    Finding finding;
    {
        const Locked locked;
        Block *const block = find(node);
        if (block == nullptr) {
            return true;
        }
        if (block->is_free) {
            describe(finding, "an object is linked after its deletion", *block);
        } else if (block->list != nullptr) {
            describe(finding, "an object is linked twice", *block);
        } else {
            block->list = head;
        }
    }
    return tell(finding, place) != 0;
}

void tarn_host::check_unlink(const VelDllHead *head, const VelDllNode *node, Place place) {
    Finding finding;
    {
        const Locked locked;
        Block *const block = find(node);
        if (block == nullptr) {
            return;
        }
        if (block->list != head) {
            describe(finding, "an object is taken from a list that it is not in", *block);
        }
        block->list = nullptr;
    }
    tell(finding, place);
}
