#include "support/test_host.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <unordered_map>

#include "tarn_if.h"
#include "vel_platform.h"

namespace {

constexpr std::size_t guardSize = 16; // keeps blocks aligned for any type
constexpr int guardPattern = 0xA5;
constexpr int freshPattern = 0xCD;
constexpr int freedPattern = 0xDD;

struct State {
    std::unordered_map<void *, std::size_t> blocks; // address given out, size
    std::vector<test_host::FatalReport> fatalReports;
    std::vector<test_host::DebugToken> debugTokens;
    std::size_t allocations = 0;
    std::size_t unsetLinks = 0;
    std::size_t listCalls = 0;
    test_host::OnFatal onFatal = test_host::OnFatal::returns;
    bool throwsTokens = false;
    test_host::Watch watch = nullptr;
};

State &state() {
    static State all;
    return all;
}

void seen(const char *service, const char *module) {
    if (state().watch != nullptr)
        state().watch(service, module);
}

[[noreturn]] void fail(const char *what, const char *module, std::uint32_t line) {
    std::fprintf(stderr, "test host: %s, from %s line %u\n", what, module, unsigned(line));
    std::abort();
}

bool guard_is_whole(const unsigned char *guard) {
    for (std::size_t i = 0; i < guardSize; ++i)
        if (guard[i] != guardPattern)
            return false;
    return true;
}

// A node is the first field of its block.
bool value_is_unset(void *node) {
    const auto found = state().blocks.find(node);
    return found != state().blocks.end() && found->second > sizeof(TarnIe) &&
           static_cast<unsigned char *>(node)[sizeof(TarnIe)] == freshPattern;
}

} // namespace

uint32_t velAllocMemoryWithIds(uint32_t size, void **block, const char *module, uint32_t line) {
    seen(__func__, module);
    if (block == nullptr || *block != nullptr)
        fail("the variable for a new block is not null", module, line);
    auto *start = static_cast<unsigned char *>(std::malloc(size + 2 * guardSize));
    std::memset(start, guardPattern, guardSize);
    std::memset(start + guardSize, freshPattern, size);
    std::memset(start + guardSize + size, guardPattern, guardSize);
    *block = start + guardSize;
    state().blocks[*block] = size;
    ++state().allocations;
    return 0; // the library ignores it: a host may answer anything
}

uint32_t velFreeMemoryWithIds(void **block, const char *module, uint32_t line) {
    seen(__func__, module);
    const auto found = state().blocks.find(*block);
    if (found == state().blocks.end())
        fail("a foreign block, or one released before, is released", module, line);
    auto *start = static_cast<unsigned char *>(*block) - guardSize;
    if (!guard_is_whole(start) || !guard_is_whole(start + guardSize + found->second))
        fail("something was written beyond a block", module, line);
    std::memset(start, freedPattern, found->second + 2 * guardSize);
    std::free(start);
    state().blocks.erase(found);
    *block = nullptr;
    return 0;
}

void xVelDllInitHead(VelDllHead *head, uint32_t reserved, const char *module, uint32_t line) {
    seen(__func__, module);
    if (reserved != 0)
        fail("the reserved argument of a list is not 0", module, line);
    *head = VelDllHead{nullptr, nullptr};
}

void xVelDllInitNode(VelDllNode *node, const char *module, uint32_t) {
    seen(__func__, module);
    *node = VelDllNode{nullptr, nullptr};
}

void xVelDllAddToTail(VelDllHead *head, VelDllNode *node, const char *module, uint32_t line) {
    seen(__func__, module);
    if (node->next != nullptr || node->previous != nullptr || head->first == node)
        fail("a node is linked that is in a list already", module, line);
    state().unsetLinks += value_is_unset(node) ? 1 : 0;
    node->previous = head->last;
    (head->last != nullptr ? head->last->next : head->first) = node;
    head->last = node;
}

VelDllNode *xVelDllGetHead(const VelDllHead *head, const char *module, uint32_t) {
    seen(__func__, module);
    ++state().listCalls;
    return head->first;
}

VelDllNode *xVelDllGetNext(const VelDllHead *, const VelDllNode *current, const char *module,
                           uint32_t) {
    seen(__func__, module);
    ++state().listCalls;
    return current->next;
}

void xVelDllRemoveNode(VelDllHead *head, VelDllNode *node, const char *module, uint32_t) {
    seen(__func__, module);
    (node->previous != nullptr ? node->previous->next : head->first) = node->next;
    (node->next != nullptr ? node->next->previous : head->last) = node->previous;
    *node = VelDllNode{nullptr, nullptr};
}

VelDllNode *xVelDllFindNode(const VelDllHead *head, VelDllComparison compare, const void *key,
                            const char *module, uint32_t) {
    seen(__func__, module);
    ++state().listCalls;
    for (VelDllNode *node = head->first; node != nullptr; node = node->next)
        if (compare(node, key) != 0)
            return node;
    return nullptr;
}

void velSwFatalError(const char *text, const char *module, uint32_t line) {
    state().fatalReports.push_back({text, module, line});
    if (state().onFatal == test_host::OnFatal::throws)
        throw state().fatalReports.back();
    if (state().onFatal == test_host::OnFatal::aborts)
        fail("fatal error", module, line);
}

void velSwTokenDebug(uint32_t token, uint32_t value) {
    state().debugTokens.push_back({token, value});
    if (state().throwsTokens)
        throw test_host::DebugToken{token, value};
}

namespace test_host {

void reset() {
    state().fatalReports.clear();
    state().debugTokens.clear();
    state().allocations = 0;
    state().unsetLinks = 0;
    state().listCalls = 0;
    state().onFatal = OnFatal::returns;
    state().throwsTokens = false;
}

void set_watch(Watch watch) {
    state().watch = watch;
}

void throw_tokens() {
    state().throwsTokens = true;
}

void set_on_fatal(OnFatal reaction) {
    state().onFatal = reaction;
}

const std::vector<FatalReport> &fatal_reports() {
    return state().fatalReports;
}

const std::vector<DebugToken> &debug_tokens() {
    return state().debugTokens;
}

std::size_t live_blocks() {
    return state().blocks.size();
}

std::size_t allocations() {
    return state().allocations;
}

std::size_t unset_links() {
    return state().unsetLinks;
}

std::size_t list_calls() {
    return state().listCalls;
}

} // namespace test_host
