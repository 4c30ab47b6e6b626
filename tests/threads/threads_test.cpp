// Many threads at once, each with messages of its own. scripts/threads.sh runs this under
// ThreadSanitizer, which sees whatever the library or the host would share without a lock.

#include <gtest/gtest.h>

#include <condition_variable>
#include <deque>
#include <latch>
#include <mutex>
#include <thread>

#include "support/samples.h"
#include "tarn_host.h"

namespace {

constexpr unsigned threadCount = 8; // more than there are processors, mostly
constexpr unsigned rounds = 5;

// Runs `work(number)` on all threads, which set out together.
template <class Work>
void run_on_all(Work work) {
    std::latch ready(threadCount);
    std::vector<std::jthread> threads;
    for (unsigned number = 0; number < threadCount; ++number)
        threads.emplace_back([&ready, &work, number] {
            ready.arrive_and_wait();
            work(number);
        });
}

Bytes pack(const Message &type, const TarnMsg *msg) {
    Bytes bytes(std::size_t(TarnSizeOfMsg(msg)));
    EXPECT_EQ(type.pack(msg, bytes.data(), std::uint32_t(bytes.size())), 1U) << type.name;
    return bytes;
}

// Objects out and in.
void go_by_objects(const Message &type, const Nodes &nodes, const Bytes &bytes) {
    const MsgPtr sent = samples::create_msg(type, nodes);
    ASSERT_NE(sent, nullptr) << type.name;
    EXPECT_EQ(type.isValid(sent.get()), 1U) << type.name;
    EXPECT_EQ(pack(type, sent.get()), bytes) << type.name;

    TarnMsg *msg = nullptr;
    ASSERT_EQ(TarnUnpackNewMsg(bytes.data(), std::uint32_t(bytes.size()), &msg), 1U) << type.name;
    const MsgPtr received(msg);
    EXPECT_EQ(samples::extract_all(msg, type), nodes);
    TarnResetMsgExtractHistory(msg);
    EXPECT_EQ(samples::extract_all(msg, type), nodes);
}

// Records out and in.
void go_by_records(const Message &type, const Nodes &nodes, const Bytes &bytes) {
    Record sent(type);
    samples::fill_record(type, nodes, &sent);
    Bytes built(bytes.size());
    EXPECT_EQ(type.build(built.data(), std::uint32_t(built.size()), sent.data()), bytes.size());
    EXPECT_EQ(built, bytes) << type.name;

    Record received(type);
    EXPECT_EQ(type.get(bytes.data(), std::uint32_t(bytes.size()), received.data()), 1U);
    EXPECT_EQ(samples::read_record(type, &received), nodes);
}

TEST(Threads, EncodeAndDecodeDifferentMessagesAtOnce) {
    run_on_all([](unsigned number) {
        Random random(number);
        for (unsigned round = 0; round < rounds; ++round)
            for (const Message *type : protocol::messages()) {
                const Nodes nodes = samples::make_message(*type, Amount::random, random);
                const Bytes bytes = samples::encode(nodes);
                go_by_objects(*type, nodes, bytes);
                go_by_records(*type, nodes, bytes);
            }
    });
    EXPECT_EQ(tarnHostLiveBlocks(), 0U);
}

// Failures release what was built before them, in the thread that they happen in.
TEST(Threads, RefuseBrokenMessagesAtOnce) {
    run_on_all([](unsigned number) {
        Random random(number);
        for (const Message *type : protocol::messages()) {
            Bytes bytes = samples::encode(samples::make_message(*type, Amount::least, random));
            bytes.pop_back();
            TarnMsg *msg = nullptr;
            EXPECT_EQ(TarnUnpackNewMsg(bytes.data(), std::uint32_t(bytes.size()), &msg), 0U);
        }
    });
    EXPECT_EQ(tarnHostLiveBlocks(), 0U);
}

// One thread's messages, for another to take.
class Queue {
public:
    void put(MsgPtr msg) {
        const std::scoped_lock lock(mutex_);
        messages_.push_back(std::move(msg));
        filled_.notify_one();
    }
    MsgPtr take() {
        std::unique_lock lock(mutex_);
        filled_.wait(lock, [this] { return !messages_.empty(); });
        MsgPtr msg = std::move(messages_.front());
        messages_.pop_front();
        return msg;
    }

private:
    std::mutex mutex_;
    std::condition_variable filled_;
    std::deque<MsgPtr> messages_;
};

// An object belongs to one thread at a time, not to the one that made it: each thread finishes,
// packs and deletes what its neighbour began.
TEST(Threads, HandMessagesOver) {
    std::vector<Queue> queues(threadCount);
    run_on_all([&queues](unsigned number) {
        Random random(number);
        for (const Message *type : protocol::messages()) {
            const Bytes bytes = samples::encode(samples::make_message(*type, Amount::slim, random));
            queues[(number + 1) % threadCount].put(
                MsgPtr(type->unpack(bytes.data(), std::uint32_t(bytes.size()))));
            const MsgPtr taken = queues[number].take();
            ASSERT_NE(taken, nullptr) << type->name;
            const Message &takenType = *protocol::message_by_id(taken->messageId);
            const Nodes nodes = samples::extract_all(taken.get(), takenType);
            EXPECT_EQ(pack(takenType, taken.get()), samples::encode(nodes));
        }
    });
    EXPECT_EQ(tarnHostLiveBlocks(), 0U);
}

} // namespace
