// All messages: created with the library's operations, packed, unpacked, extracted, packed again.
#include "support/library_test.h"
#include "support/samples.h"
#include "tarn_if.h"

namespace {

class MessageRoundTrip : public LibraryTest {};

void expect_packs(const Message &message, const TarnMsg *msg, const Bytes &expected) {
    ASSERT_EQ(TarnSizeOfMsg(msg), std::int32_t(expected.size()));
    Bytes packed(expected.size());
    EXPECT_EQ(message.pack(msg, packed.data(), std::uint32_t(packed.size())), 1U);
    EXPECT_EQ(packed, expected);
}

void expect_unpacked(const Message &message, TarnMsg *msg, const Nodes &nodes) {
    ASSERT_NE(msg, nullptr);
    EXPECT_EQ(msg->messageId, message.id);
    EXPECT_EQ(samples::nodes_of(msg->ies), nodes);
    EXPECT_EQ(message.isValid(msg), 1U);
    EXPECT_EQ(samples::extract_all(msg, message), nodes);
    EXPECT_EQ(samples::extract_all(msg, message), Nodes());
    TarnResetMsgExtractHistory(msg);
    EXPECT_EQ(samples::extract_all(msg, message), nodes);
    expect_packs(message, msg, samples::encode(nodes));
}

void expect_round_trip(const Message &message, const Nodes &nodes) {
    const MsgPtr msg = samples::create_msg(message, nodes);
    ASSERT_NE(msg, nullptr);
    EXPECT_EQ(msg->messageId, message.id);
    EXPECT_EQ(samples::nodes_of(msg->ies), nodes);
    EXPECT_EQ(message.isValid(msg.get()), 1U);
    const Bytes expected = samples::encode(nodes);
    expect_packs(message, msg.get(), expected);

    const samples::Exact bytes(expected);
    const MsgPtr read(message.unpack(bytes.data(), bytes.size()));
    expect_unpacked(message, read.get(), nodes);
    TarnMsg *generic = nullptr;
    EXPECT_EQ(TarnUnpackNewMsg(bytes.data(), bytes.size(), &generic), 1U);
    const MsgPtr owner(generic);
    expect_unpacked(message, generic, nodes);
}

TEST_F(MessageRoundTrip, EveryMessageWithAllSomeAndNoOptionalIes) {
    Random random(1);
    for (const Message *message : protocol::messages()) {
        SCOPED_TRACE(message->name);
        for (const Amount amount : {Amount::least, Amount::slim, Amount::most})
            expect_round_trip(*message, samples::make_message(*message, amount, random));
        for (int i = 0; i < 8; ++i)
            expect_round_trip(*message, samples::make_message(*message, Amount::random, random));
    }
}

// Buffers may start anywhere: nothing in them is read or written but byte by byte.
TEST_F(MessageRoundTrip, BuffersAtAnyAddress) {
    Random random(6);
    for (const Message *message : protocol::messages()) {
        SCOPED_TRACE(message->name);
        const Bytes expected =
            samples::encode(samples::make_message(*message, Amount::most, random));
        const auto size = std::uint32_t(expected.size());
        for (std::size_t offset = 1; offset < 8; ++offset) {
            Bytes received(offset, 0);
            received.insert(received.end(), expected.begin(), expected.end());
            const MsgPtr msg(message->unpack(received.data() + offset, size));
            ASSERT_NE(msg, nullptr);
            Bytes sent(offset + expected.size());
            EXPECT_EQ(message->pack(msg.get(), sent.data() + offset, size), 1U);
            EXPECT_EQ(sent, received);
        }
    }
}

TEST_F(MessageRoundTrip, BothKindsOfRelocationAndReset) {
    Random random(2);
    for (const std::uint32_t id : {18U, 24U})
        for (std::uint32_t deciding = 0; deciding < 4; ++deciding) {
            const Message &message = *protocol::message_by_id(id);
            SCOPED_TRACE(message.name + std::to_string(deciding));
            for (const Amount amount : {Amount::least, Amount::slim, Amount::most})
                expect_round_trip(message,
                                  samples::make_message(message, amount, random, deciding));
        }
}

// Appending looks at the value alone: order, number and the message's type are the validator's
// affair.
TEST_F(MessageRoundTrip, AppendedIesStandInTheOrderOfTheCalls) {
    Random random(3);
    for (const Message *message : protocol::messages()) {
        SCOPED_TRACE(message->name);
        Nodes nodes = samples::make_message(*message, Amount::slim, random);
        Nodes reversed(nodes.rbegin(), nodes.rend()); // ends with a second MessageId
        reversed.insert(reversed.begin(), nodes.front());
        const MsgPtr msg = samples::create_msg(*message, reversed);
        ASSERT_NE(msg, nullptr);
        EXPECT_EQ(samples::nodes_of(msg->ies), reversed);
        expect_packs(*message, msg.get(), samples::encode(reversed));
    }
}

} // namespace
