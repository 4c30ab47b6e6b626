// All messages from record to bytes and back: the one-call road against the one by objects.
#include "support/library_test.h"
#include "support/samples.h"
#include "tarn_if.h"

namespace {

class RecordRoundTrip : public LibraryTest {};

Record record_of(const Message &message, const Nodes &nodes) {
    Record record(message);
    samples::fill_record(message, nodes, &record);
    record.message_id() = 0xEE; // never read
    return record;
}

void expect_build(const Message &message, const Nodes &nodes, const Bytes &expected) {
    const Record record = record_of(message, nodes);
    const Record before = record;
    Bytes built(expected.size());
    EXPECT_EQ(message.build(built.data(), std::uint32_t(built.size()), record.data()),
              expected.size());
    EXPECT_EQ(built, expected);
    EXPECT_EQ(record, before);
    // Room to spare stays as it was.
    Bytes roomy(expected.size() + 9, 0xEE);
    EXPECT_EQ(message.build(roomy.data(), std::uint32_t(roomy.size()), record.data()),
              expected.size());
    EXPECT_EQ(Bytes(roomy.begin() + std::ptrdiff_t(expected.size()), roomy.end()), Bytes(9, 0xEE));
}

void expect_get(const Message &message, const Nodes &nodes, const Bytes &bytes) {
    const samples::Exact exact(bytes);
    Record record(message);
    EXPECT_EQ(message.get(exact.data(), exact.size(), record.data()), 1U);
    EXPECT_EQ(samples::read_record(message, &record), nodes);
    EXPECT_EQ(test_host::live_blocks(), 0U);
}

void expect_both_roads(const Message &message, const Nodes &nodes) {
    const Bytes expected = samples::encode(nodes);
    expect_build(message, nodes, expected);
    expect_get(message, nodes, expected);
    Bytes packed(expected.size());
    const MsgPtr msg = samples::create_msg(message, nodes);
    ASSERT_NE(msg, nullptr);
    EXPECT_EQ(message.pack(msg.get(), packed.data(), std::uint32_t(packed.size())), 1U);
    EXPECT_EQ(packed, expected);
}

TEST_F(RecordRoundTrip, EveryMessageWithAllSomeAndNoOptionalMembers) {
    Random random(1);
    for (const Message *message : protocol::messages()) {
        SCOPED_TRACE(message->name);
        for (const Amount amount : {Amount::least, Amount::slim, Amount::most})
            expect_both_roads(*message, samples::make_message(*message, amount, random));
        for (int i = 0; i < 10; ++i)
            expect_both_roads(*message, samples::make_message(*message, Amount::random, random));
    }
    EXPECT_TRUE(test_host::debug_tokens().empty());
}

TEST_F(RecordRoundTrip, BothKindsOfRelocationAndReset) {
    Random random(2);
    for (const std::uint32_t id : {18U, 24U})
        for (std::uint32_t deciding = 0; deciding < 4; ++deciding) {
            const Message &message = *protocol::message_by_id(id);
            SCOPED_TRACE(message.name + std::to_string(deciding));
            for (const Amount amount : {Amount::least, Amount::random, Amount::most})
                expect_both_roads(message,
                                  samples::make_message(message, amount, random, deciding));
        }
}

// Each bit of the mask puts its own member in and nothing else.
TEST_F(RecordRoundTrip, EachPresenceBitAlone) {
    Random random(3);
    for (const Message *message : protocol::messages()) {
        if (samples::has_conditional(message->slots))
            continue; // whose bits depend on each other
        const Nodes all = samples::make_message(*message, Amount::slim, random);
        for (const Slot &one : message->slots) {
            SCOPED_TRACE(std::string(message->name) + ' ' + one.name);
            Record record = record_of(*message, all);
            record.presence() = one.presenceBit;
            Nodes expected;
            for (std::size_t i = 0; i < all.size(); ++i)
                if (message->slots[i].presenceBit == 0 || &message->slots[i] == &one)
                    expected.push_back(all[i]);
            Bytes built(samples::encode(expected).size());
            EXPECT_EQ(message->build(built.data(), std::uint32_t(built.size()), record.data()),
                      built.size());
            EXPECT_EQ(built, samples::encode(expected));
        }
    }
}

} // namespace
