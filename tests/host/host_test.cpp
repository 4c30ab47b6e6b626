// The Linux host: its memory under several threads, its lists, and what becomes of its reports.

#include "blocks.h"
#include "pooling.h"
#include "tarn_host.h"
#include "vel_platform.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <fstream>
#include <functional>
#include <malloc.h>
#include <mutex>
#include <numeric>
#include <pthread.h>
#include <random>
#include <stdexcept>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <utility>
#include <vector>

namespace {

constexpr const char *kModule = "host_test";

void use_all_sizes() {
    std::vector<void *> blocks;
    for (std::size_t size = 8; size < 10000; size += 8) {
        blocks.push_back(allocate(size));
    }
    std::for_each(blocks.begin(), blocks.end(), release);
}

// A block whose bytes all hold one value, so that a neighbour that reaches into it shows.
struct Filled {
    unsigned char *bytes = nullptr;
    std::size_t size = 0;
    unsigned char value = 0;
};

Filled allocate_filled(std::size_t size, std::size_t value) {
    const Filled filled{allocate(size), size, static_cast<unsigned char>(value)};
    std::fill_n(filled.bytes, size, filled.value);
    return filled;
}

bool is_intact(const Filled &filled) {
    return std::all_of(filled.bytes, filled.bytes + filled.size,
                       [&filled](unsigned char byte) { return byte == filled.value; });
}

// Hands items from one thread to another.
template <typename Item>
class Channel {
public:
    void send(const Item &item) {
        {
            const std::lock_guard<std::mutex> guard(mutex_);
            items_.push_back(item);
        }
        arrived_.notify_one();
    }

    Item receive() {
        std::unique_lock<std::mutex> lock(mutex_);
        arrived_.wait(lock, [this] { return !items_.empty(); });
        const Item item = items_.front();
        items_.pop_front();
        return item;
    }

private:
    std::mutex mutex_;
    std::condition_variable arrived_;
    std::deque<Item> items_;
};

// Every test leaves as many live blocks as it found.
class HostMemory : public testing::Test {
protected:
    void TearDown() override { EXPECT_EQ(tarnHostLiveBlocks(), before_); }

    uint64_t before() const { return before_; }

private:
    const uint64_t before_ = tarnHostLiveBlocks();
};

// ---- Memory -------------------------------------------------------------------------------------

TEST_F(HostMemory, BlocksOfAllSizesAreAlignedAndApart) {
    std::vector<std::size_t> sizes(5001);
    std::iota(sizes.begin(), sizes.end(), std::size_t{0});
    sizes.insert(sizes.end(), {8192, 65536, 1000000});
    std::vector<Filled> blocks;
    for (const std::size_t size : sizes) {
        blocks.push_back(allocate_filled(size, blocks.size()));
    }
    EXPECT_EQ(tarnHostLiveBlocks(), before() + sizes.size());
    for (const Filled &block : blocks) {
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(block.bytes) % alignof(uint64_t), 0U);
        EXPECT_TRUE(is_intact(block)) << block.size << " bytes";
        release(block.bytes);
    }
}

TEST_F(HostMemory, FreeClearsTheCallersPointer) {
    void *block = allocate(32);
    velFreeMemoryWithIds(&block, kModule, __LINE__);
    EXPECT_EQ(block, nullptr);
}

std::string live_report() {
    char *text = nullptr;
    std::size_t size = 0;
    FILE *const stream = open_memstream(&text, &size);
    tarnHostReportLiveBlocks(stream);
    std::fclose(stream);
    std::string report(text, size);
    std::free(text);
    return report;
}

TEST_F(HostMemory, TheReportCountsBlocksAndBytes) {
    EXPECT_EQ(live_report(), "tarn: 0 live blocks, 0 bytes\n");
    void *const one = allocate(24);
    void *const other = allocate(1000008);
    const std::string report = live_report();
    if (isChecked) {
        EXPECT_EQ(report.find("tarn: 2 live blocks, 1000032 bytes\ntarn: live: block 0x"), 0U);
        EXPECT_NE(report.find(" of 1000008 bytes, allocated in maker:11\n"), std::string::npos);
    } else { // headers, and 24 rounded up to 32
        EXPECT_EQ(report, "tarn: 2 live blocks, 1000056 bytes\n");
    }
    release(one);
    release(other);
    EXPECT_EQ(live_report(), "tarn: 0 live blocks, 0 bytes\n");
}

// Fills blocks for the next thread of the ring, then checks and frees those of the one before; many
// enough at a time that free blocks must travel between the threads' caches.
void pass_blocks_on(uint32_t seed, Channel<Filled> &inbox, Channel<Filled> &outbox) {
    constexpr std::array<std::size_t, 6> kSizes = {24, 32, 300, 2024, 4124, 9000};
    std::mt19937 random(seed);
    for (int round = 0; round < 10; ++round) {
        for (std::size_t i = 0; i < 600; ++i) {
            outbox.send(allocate_filled(kSizes[random() % kSizes.size()], i));
        }
        for (std::size_t i = 0; i < 600; ++i) {
            const Filled received = inbox.receive();
            EXPECT_TRUE(is_intact(received));
            release(received.bytes);
        }
    }
}

TEST_F(HostMemory, ThreadsMayFreeEachOthersBlocks) {
    constexpr uint32_t kThreads = 6;
    std::array<Channel<Filled>, kThreads> channels;
    std::vector<std::thread> threads;
    for (uint32_t i = 0; i < kThreads; ++i) {
        threads.emplace_back(pass_blocks_on, i, std::ref(channels[i]),
                             std::ref(channels[(i + 1) % kThreads]));
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
}

TEST_F(HostMemory, BlocksOutliveTheirThread) {
    std::vector<Filled> blocks;
    std::thread([&blocks] {
        for (std::size_t i = 0; i < 300; ++i) {
            blocks.push_back(allocate_filled(i, i));
        }
    }).join();
    EXPECT_EQ(tarnHostLiveBlocks(), before() + blocks.size());
    std::thread([] { release(allocate(100)); }).join();
    for (const Filled &block : blocks) {
        EXPECT_TRUE(is_intact(block));
        release(block.bytes);
    }
}

// Destructors of other thread-specific data run after the host has taken back the thread's cache,
// which by then may be another thread's.
void free_late(void *block) {
    std::thread other([] { release(allocate(64)); });
    release(allocate(64));
    release(block);
    other.join();
}

TEST_F(HostMemory, AThreadsLateDestructorsMayUseTheMemory) {
    release(allocate(1));
    pthread_key_t key;
    ASSERT_EQ(pthread_key_create(&key, free_late), 0);
    std::thread([key] { pthread_setspecific(key, allocate(64)); }).join();
    pthread_key_delete(key);
}

// ---- Memory that comes back --------------------------------------------------------------------

#if TARN_HOST_POOLED

// What malloc has handed out, or keeps for a thread as if it had, which makes the slack.
constexpr std::size_t kSlack = 250000;

std::size_t in_use() {
    return mallinfo2().uordblks;
}

// The quarantine of the checking mode keeps more.
class HostMemoryReturns : public HostMemory {
protected:
    void SetUp() override {
        if (isChecked) {
            GTEST_SKIP() << "not in the checking mode";
        }
    }
};

TEST_F(HostMemoryReturns, AThreadKeepsLittleAndGivesItUpWhenTrimmed) {
    tarnHostTrim();
    const std::size_t before = in_use();
    use_all_sizes();
    EXPECT_LE(in_use(), before + 65536 + kSlack);
    tarnHostTrim();
    EXPECT_LE(in_use(), before + kSlack);
}

TEST_F(HostMemoryReturns, EndedThreadsKeepNothing) {
    std::thread(use_all_sizes).join();
    tarnHostTrim();
    const std::size_t before = in_use();
    for (int i = 0; i < 50; ++i) {
        std::thread(use_all_sizes).join();
    }
    tarnHostTrim();
    EXPECT_LE(in_use(), before + kSlack);
}

// Without a key for thread-specific data the host is not told of a thread's end.
void end_threads_without_keys() {
    pthread_key_t key;
    while (pthread_key_create(&key, nullptr) == 0) {
    }
    std::thread(use_all_sizes).join();
    const std::size_t before = in_use();
    for (int i = 0; i < 50; ++i) {
        std::thread(use_all_sizes).join();
    }
    std::_Exit(in_use() <= before + kSlack && tarnHostLiveBlocks() == 0 ? 0 : 1);
}

using HostMemoryReturnsDeathTest = HostMemoryReturns;

TEST_F(HostMemoryReturnsDeathTest, EndedThreadsKeepNothingWithoutKeysEither) {
    GTEST_FLAG_SET(death_test_style, "threadsafe"); // in a process that has no key yet
    EXPECT_EXIT(end_threads_without_keys(), testing::ExitedWithCode(0), "");
}

#if HOST_TEST_HAS_PLAIN_MALLOC

std::size_t resident_bytes() {
    std::size_t total = 0;
    std::size_t resident = 0;
    std::ifstream("/proc/self/statm") >> total >> resident;
    return resident * std::size_t(sysconf(_SC_PAGESIZE));
}

TEST_F(HostMemoryReturns, BurstsOfDifferentSizesLeaveLittleBehind) {
    constexpr std::size_t kMegabyte = 1048576;
    const std::size_t before = resident_bytes();
    for (const std::size_t size : {24U, 300U}) {
        std::vector<void *> blocks(120 * kMegabyte / size);
        std::generate(blocks.begin(), blocks.end(), [size] { return allocate(size); });
        EXPECT_GT(resident_bytes(), before + 120 * kMegabyte);
        std::for_each(blocks.begin(), blocks.end(), release);
        EXPECT_LT(resident_bytes() - blocks.size() * sizeof(void *), before + 80 * kMegabyte);
    }
    tarnHostTrim();
    EXPECT_LT(resident_bytes(), before + 10 * kMegabyte);
}

#endif
#endif

// ---- Fatal errors -------------------------------------------------------------------------------

// Keeps the latest fatal error for as long as it stands, and returns from the report.
class FatalErrors {
public:
    FatalErrors() : former_(tarnHostSetFatalErrorHandler(&record, this)) {}
    ~FatalErrors() { tarnHostSetFatalErrorHandler(former_.handler, former_.context); }
    FatalErrors(const FatalErrors &) = delete;
    FatalErrors &operator=(const FatalErrors &) = delete;

    const std::string &latest() const { return latest_; }

private:
    static void record(void *context, const char *text, const char *module, uint32_t line) {
        static_cast<FatalErrors *>(context)->latest_ =
            std::string(module) + ':' + std::to_string(line) + ": " + text;
    }

    TarnHostFatalErrorReport former_;
    std::string latest_;
};

TEST_F(HostMemory, FreeingNothingIsAFatalError) {
    void *nothing = nullptr;
    for (void **const address : {static_cast<void **>(nullptr), &nothing}) {
        const FatalErrors errors;
        velFreeMemoryWithIds(address, kModule, 12);
        EXPECT_EQ(errors.latest(), "host_test:12: the block to free is null");
    }
}

#if TARN_HOST_POOLED

TEST_F(HostMemory, FreeingTwiceIsAFatalErrorAndChangesNothing) {
    if (isChecked) {
        GTEST_SKIP() << "has tests of its own";
    }
    for (const std::size_t size : {1U, 32U, 4124U}) {
        const FatalErrors errors;
        void *const block = allocate(size);
        release(block);
        EXPECT_EQ(errors.latest(), "");
        release(block);
        EXPECT_EQ(errors.latest(), "user:22: the block to free is not allocated");

        void *const one = allocate(size);
        void *const other = allocate(size);
        EXPECT_NE(one, other);
        release(one);
        release(other);
    }
}

#endif

TEST(HostFatalErrors, AHandlerMayThrowThroughTheHost) {
    const auto handler = [](void *context, const char *text, const char *module, uint32_t line) {
        throw std::runtime_error(*static_cast<std::string *>(context) + module + ':' +
                                 std::to_string(line) + ": " + text);
    };
    std::string prefix = "seen ";
    const auto former = tarnHostSetFatalErrorHandler(handler, &prefix);
    const auto messageOf = [](void (*action)()) -> std::string {
        try {
            action();
        } catch (const std::runtime_error &error) {
            return error.what();
        }
        return "nothing thrown";
    };
    EXPECT_EQ(messageOf([] { velSwFatalError("", "tarn_if_api", 77); }),
              "seen tarn_if_api:77: a required pointer is null or a buffer is too small");
    EXPECT_EQ(messageOf([] { release(nullptr); }), "seen user:22: the block to free is null");
    tarnHostSetFatalErrorHandler(former.handler, former.context);
}

TEST(HostFatalErrors, SettingAHandlerReturnsTheFormerOne) {
    const TarnHostFatalErrorHandler one = [](void *, const char *, const char *, uint32_t) {};
    const TarnHostFatalErrorHandler other = [](void *, const char *, const char *, uint32_t) {};
    int context = 0;
    EXPECT_EQ(tarnHostSetFatalErrorHandler(one, &context).handler, nullptr);
    const TarnHostFatalErrorReport former = tarnHostSetFatalErrorHandler(other, nullptr);
    EXPECT_EQ(former.handler, one);
    EXPECT_EQ(former.context, &context);
    EXPECT_EQ(tarnHostSetFatalErrorHandler(nullptr, nullptr).handler, other);
}

TEST(HostFatalErrorsDeathTest, TheDefaultPrintsTheErrorAndAborts) {
    struct Case {
        const char *text;
        const char *printed;
    };
    const Case cases[] = {
        {"", "a required pointer is null or a buffer is too small"},
        {nullptr, "a required pointer is null or a buffer is too small"},
        {"something else", "something else"},
    };
    for (const Case &each : cases) {
        EXPECT_EXIT(velSwFatalError(each.text, "tarn_if_api", 4000000000U),
                    testing::KilledBySignal(SIGABRT),
                    std::string("^tarn: fatal error in tarn_if_api:4000000000: ") + each.printed);
    }
}

// ---- Running out of memory ----------------------------------------------------------------------

TEST_F(HostMemory, ReachingTheLimitIsAFatalError) {
    const auto leave = [](void *, const char *text, const char *, uint32_t) {
        throw std::runtime_error(text);
    };
    constexpr std::size_t kLimit = 4000000;
    for (const std::size_t size : {32U, 4124U, 100000U}) {
        tarnHostTrim();
        const auto former = tarnHostSetFatalErrorHandler(leave, nullptr);
        EXPECT_EQ(tarnHostSetLimit(kLimit), 0U);
        std::vector<void *> blocks;
        std::string text;
        try {
            while (blocks.size() * size <= kLimit) {
                blocks.push_back(allocate(size));
            }
        } catch (const std::runtime_error &error) {
            text = error.what();
        }
        EXPECT_EQ(text, "no block of " + std::to_string(size) +
                            " bytes within the limit of 4000000 bytes");
        EXPECT_GT((blocks.size() + 1) * (size + 200), kLimit);
        std::for_each(blocks.begin(), blocks.end(), release);
        release(allocate(kLimit / 2)); // what is kept for reuse gives way
        EXPECT_EQ(tarnHostSetLimit(0), kLimit);
        tarnHostSetFatalErrorHandler(former.handler, former.context);
    }
}

#if HOST_TEST_HAS_PLAIN_MALLOC

void allocate_until_none_is_left(uint32_t size) {
    const rlimit none{1, 1};
    setrlimit(RLIMIT_AS, &none);
    for (;;) {
        allocate(size);
    }
}

TEST(HostMemoryDeathTest, RunningOutOfMemoryEndsTheProgram) {
    for (const uint32_t size : {32U, 4124U, 100000U, 4294967295U}) {
        EXPECT_EXIT(allocate_until_none_is_left(size), testing::KilledBySignal(SIGABRT),
                    "^tarn: fatal error in maker:11: out of memory: no block of " +
                        std::to_string(size) + " bytes");
    }
}

#endif

// ---- Fork ---------------------------------------------------------------------------------------

void use_everything() {
    for (const std::size_t size : {24U, 300U, 4000U, 9000U}) {
        std::array<void *, 40> blocks;
        std::generate(blocks.begin(), blocks.end(), [size] { return allocate(size); });
        std::for_each(blocks.begin(), blocks.end(), release);
        for (int i = 0; i < 100; ++i) { // long enough under the host's lock for a fork to meet it
            tarnHostSetDebugTokenHandler(nullptr, nullptr);
        }
    }
}

// A child that hangs is ended by its alarm.
TEST_F(HostMemory, AForkAtAnyMomentLeavesTheChildAHostThatWorks) {
    std::atomic<bool> ends{false};
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&ends] {
            while (!ends) {
                use_everything();
            }
        });
    }
    int status = 0;
    for (int i = 0; i < 60 && status == 0; ++i) {
        const pid_t child = fork();
        if (child == 0) {
            alarm(20);
            use_everything();
            std::_Exit(0);
        }
        waitpid(child, &status, 0);
    }
    EXPECT_EQ(status, 0);
    ends = true;
    std::for_each(threads.begin(), threads.end(), [](std::thread &thread) { thread.join(); });
}

// ---- Debug tokens -------------------------------------------------------------------------------

TEST(HostDebugTokensDeathTest, TheDefaultPrintsThem) {
    const auto report = [] {
        velSwTokenDebug(0x00D9287CU, 4294967295U);
        std::_Exit(0);
    };
    EXPECT_EXIT(report(), testing::ExitedWithCode(0),
                "^tarn: debug token 0x00D9287C value 4294967295\n$");
}

TEST(HostDebugTokens, AHandlerIsToldOfThem) {
    using Tokens = std::vector<std::pair<uint32_t, uint32_t>>;
    const auto handler = [](void *context, uint32_t token, uint32_t value) {
        static_cast<Tokens *>(context)->emplace_back(token, value);
    };
    Tokens tokens;
    EXPECT_EQ(tarnHostSetDebugTokenHandler(handler, &tokens).handler, nullptr);
    velSwTokenDebug(0x7A0D00B2U, 0);
    velSwTokenDebug(5, 6);
    const TarnHostDebugTokenReport former = tarnHostSetDebugTokenHandler(nullptr, nullptr);
    EXPECT_EQ(former.handler, handler);
    EXPECT_EQ(former.context, &tokens);
    EXPECT_EQ(tokens, (Tokens{{0x7A0D00B2U, 0}, {5, 6}}));
}

// Tells whether it was called with the context that it is set with.
std::array<int, 2> owners;
std::atomic<int> strangers{0};

template <std::size_t own>
void check_owner(void *context, uint32_t, uint32_t) {
    strangers += context == &owners[own] ? 0 : 1;
}

TEST(HostDebugTokens, AHandlerNeverSeesTheContextOfAnother) {
    tarnHostSetDebugTokenHandler(check_owner<0>, &owners[0]);
    std::thread setter([] {
        for (int i = 0; i < 20000; ++i) {
            tarnHostSetDebugTokenHandler(check_owner<1>, &owners[1]);
            tarnHostSetDebugTokenHandler(check_owner<0>, &owners[0]);
        }
    });
    for (int i = 0; i < 40000; ++i) {
        velSwTokenDebug(1, 2);
    }
    setter.join();
    tarnHostSetDebugTokenHandler(nullptr, nullptr);
    EXPECT_EQ(strangers, 0);
}

// ---- Lists --------------------------------------------------------------------------------------

// As libtarn's objects are: the node first, so that a member's address is its node's.
struct Member {
    VelDllNode node;
    char name;
};

// A list of members named a, b, c and so on, whose fields hold rubbish before the host sets them.
class List {
public:
    explicit List(std::size_t count) {
        VelDllNode stray{};
        head_ = {&stray, &stray};
        xVelDllInitHead(&head_, 0, kModule, __LINE__);
        for (std::size_t i = 0; i < count; ++i) {
            members_.push_back({{&stray, &stray}, static_cast<char>('a' + i)});
        }
        for (Member &member : members_) {
            xVelDllInitNode(&member.node, kModule, __LINE__);
            add(member.name);
        }
    }

    void add(char name) { xVelDllAddToTail(&head_, node(name), kModule, __LINE__); }
    void remove(char name) { xVelDllRemoveNode(&head_, node(name), kModule, __LINE__); }

    std::string names() const {
        std::string names;
        for (const VelDllNode *node = xVelDllGetHead(&head_, kModule, __LINE__); node != nullptr;
             node = xVelDllGetNext(&head_, node, kModule, __LINE__)) {
            names += reinterpret_cast<const Member *>(node)->name;
        }
        return names;
    }

    const VelDllHead *head() const { return &head_; }
    VelDllNode *node(char name) { return &members_[static_cast<std::size_t>(name - 'a')].node; }

private:
    VelDllHead head_;
    std::deque<Member> members_;
};

TEST(HostLists, MembersStandInTheOrderOfTheirAdding) {
    EXPECT_EQ(List(0).names(), "");
    EXPECT_EQ(List(1).names(), "a");
    EXPECT_EQ(List(5).names(), "abcde");
}

// Every order of removal: head, middle, tail and only member, with each of the others gone before.
TEST(HostLists, MembersCanBeRemovedInAnyOrderAndAddedAgain) {
    std::string order = "abcd";
    do {
        SCOPED_TRACE(order);
        List list(4);
        std::string expected = "abcd";
        for (const char name : order) {
            list.remove(name);
            expected.erase(expected.find(name), 1);
            EXPECT_EQ(list.names(), expected);
        }
        for (const char name : order) {
            list.add(name);
        }
        EXPECT_EQ(list.names(), order);
    } while (std::next_permutation(order.begin(), order.end()));
}

TEST(HostLists, AMemberRemovedGoesToTheTailWhenAddedAgain) {
    for (const char name : std::string("abcd")) {
        List list(4);
        list.remove(name);
        list.add(name);
        std::string expected = "abcd";
        expected.erase(expected.find(name), 1);
        EXPECT_EQ(list.names(), expected + name);
    }
}

TEST(HostLists, FindReturnsTheFirstMemberThatTheComparisonAccepts) {
    const auto isOneOf = [](const VelDllNode *node, const void *key) -> uint32_t {
        const char name = reinterpret_cast<const Member *>(node)->name;
        return std::strchr(static_cast<const char *>(key), name) != nullptr ? 2 : 0;
    };
    struct Case {
        std::size_t count;
        const char *key;
        char found;
    };
    const Case cases[] = {
        {0, "a", '\0'}, {1, "a", 'a'},  {3, "a", 'a'},  {3, "b", 'b'},
        {3, "c", 'c'},  {3, "cb", 'b'}, {3, "d", '\0'},
    };
    for (const Case &each : cases) {
        SCOPED_TRACE(each.key);
        List list(each.count);
        VelDllNode *const expected = each.found != '\0' ? list.node(each.found) : nullptr;
        EXPECT_EQ(xVelDllFindNode(list.head(), isOneOf, each.key, kModule, __LINE__), expected);
    }
}

} // namespace
