// Packing of message objects: what does not fit, does not belong there or cannot be written.
#include <algorithm>
#include <cstring>

#include "support/library_test.h"
#include "support/samples.h"
#include "tarn_if.h"

namespace {

class MessagePacking : public LibraryTest {
protected:
    static std::uint32_t pack(const Message &message, const Nodes &nodes, Bytes *buffer) {
        const MsgPtr msg = samples::make_msg(message, nodes);
        return message.pack(msg.get(), buffer->data(), std::uint32_t(buffer->size()));
    }
};

TEST_F(MessagePacking, BufferThatIsTooSmallIsFatalAndStaysAsItWas) {
    Random random(1);
    for (const Message *message : protocol::messages()) {
        SCOPED_TRACE(message->name);
        const Nodes nodes = samples::make_message(*message, Amount::slim, random);
        const MsgPtr msg = samples::make_msg(*message, nodes);
        const auto size = std::uint32_t(samples::encode(nodes).size());
        Bytes buffer(size, 0xEE);
        for (const std::uint32_t room : {0U, 1U, 6U, size - 1}) {
            EXPECT_EQ(message->pack(msg.get(), buffer.data(), room), 0U);
            expect_fatals(1, "tarn_if_api");
            EXPECT_EQ(buffer, Bytes(size, 0xEE));
        }
        EXPECT_EQ(message->pack(msg.get(), buffer.data(), size), 1U);
    }
}

TEST_F(MessagePacking, RoomBehindTheMessageStaysUntouched) {
    Random random(2);
    for (const Message *message : protocol::messages()) {
        const Nodes nodes = samples::make_message(*message, Amount::slim, random);
        Bytes expected = samples::encode(nodes);
        expected.resize(expected.size() + 9, 0xEE);
        Bytes buffer(expected.size(), 0xEE);
        EXPECT_EQ(pack(*message, nodes, &buffer), 1U) << message->name;
        EXPECT_EQ(buffer, expected) << message->name;
    }
}

TEST_F(MessagePacking, ForeignIeAnywhereEndsThePack) {
    Random random(3);
    for (const Message *message : protocol::messages()) {
        const Nodes nodes = samples::make_message(*message, Amount::slim, random);
        Bytes buffer(samples::encode(nodes).size() + 8);
        for (std::size_t at = 0; at <= nodes.size(); ++at) {
            Nodes changed = nodes;
            changed.insert(changed.begin() + std::ptrdiff_t(at),
                           samples::number_node("SduSize", 1)); // no message's
            EXPECT_EQ(pack(*message, changed, &buffer), 0U) << message->name << " at " << at;
        }
    }
}

// Each message's IEs in another message's packer.
TEST_F(MessagePacking, OnlyTheMessagesOwnIesArePacked) {
    Random random(4);
    Bytes buffer(20000);
    for (const Message *message : protocol::messages()) {
        const Nodes nodes = samples::make_message(*message, Amount::slim, random);
        for (const Message *other : protocol::messages()) {
            const bool fits = std::all_of(nodes.begin(), nodes.end(), [other](const Node &node) {
                return std::any_of(other->slots.begin(), other->slots.end(),
                                   [&node](const Slot &slot) { return slot.type == node.type; });
            });
            EXPECT_EQ(pack(*other, nodes, &buffer), fits ? 1U : 0U)
                << message->name << " as " << other->name;
        }
    }
}

// Puts all values out of range that have a range, at any depth.
void spoil(Nodes *nodes, Random &random) {
    for (Node &node : *nodes) {
        spoil(&node.children, random);
        if (auto invalid = samples::make_invalid(*node.type, random))
            node = *std::move(invalid);
    }
}

TEST_F(MessagePacking, NeitherValidatesNorReorders) {
    Random random(5);
    for (const Message *message : protocol::messages()) {
        Nodes nodes = samples::make_message(*message, Amount::slim, random);
        std::reverse(nodes.begin(), nodes.end());
        nodes.push_back(nodes.front());
        spoil(&nodes, random);
        const Bytes expected = samples::encode(nodes);
        Bytes buffer(expected.size());
        EXPECT_EQ(pack(*message, nodes, &buffer), 1U) << message->name;
        EXPECT_EQ(buffer, expected) << message->name;
    }
}

TEST_F(MessagePacking, CompositeWithAForeignChildEndsThePack) {
    Random random(6);
    Nodes nodes = samples::make_message(samples::message("IapReset"), Amount::slim, random);
    Bytes buffer(500);
    EXPECT_EQ(pack(samples::message("IapReset"), nodes, &buffer), 1U);
    nodes.back().children.back().children.front().children.push_back(
        samples::number_node("SduSize", 1));
    EXPECT_EQ(pack(samples::message("IapReset"), nodes, &buffer), 0U);
}

TEST_F(MessagePacking, StoredLengthBeyondTheArrayIsNotFollowed) {
    Random random(7);
    const Message &message = samples::message("UlDirectTransfer");
    Nodes nodes = samples::make_message(message, Amount::most, random);
    const auto store_length = [&nodes](std::uint32_t length) {
        std::memcpy(nodes.back().value.data(), &length, sizeof length);
    };
    Bytes buffer(10000);
    store_length(4096); // fills the array, out of range
    EXPECT_EQ(pack(message, nodes, &buffer), 1U);
    store_length(4097);
    EXPECT_EQ(pack(message, nodes, &buffer), 0U);
    store_length(0xFFFFFFF0); // with the other IEs more than 32 bits hold
    EXPECT_EQ(pack(message, nodes, &buffer), 0U);
    expect_fatals(1, "tarn_if_api");
    const MsgPtr msg = samples::make_msg(message, nodes);
    EXPECT_EQ(TarnSizeOfMsg(msg.get()), 0x7FFFFFFF); // never negative, never wrapped
}

TEST_F(MessagePacking, NothingToPack) {
    std::uint8_t byte = 0xEE;
    const MsgPtr msg = samples::make_msg(samples::message("Reset"), {});
    EXPECT_EQ(TarnPackResetMsg(msg.get(), &byte, 0), 1U);
    EXPECT_EQ(byte, 0xEE);
}

} // namespace
