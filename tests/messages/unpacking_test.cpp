// Unpacking of messages from bytes that are not quite right.
#include "support/library_test.h"
#include "support/model.h"
#include "support/mutations.h"
#include "support/samples.h"
#include "tarn_if.h"

namespace {

class MessageUnpacking : public LibraryTest {
protected:
    // Nothing may be left of a message that is refused, which the end of each test checks too.
    static std::optional<Nodes> unpack(const Message &message, const Bytes &bytes) {
        const samples::Exact exact(bytes);
        const MsgPtr msg(message.unpack(exact.data(), exact.size()));
        if (msg == nullptr) {
            EXPECT_EQ(test_host::live_blocks(), 0U);
            return {};
        }
        EXPECT_EQ(msg->messageId, message.id);
        return samples::nodes_of(msg->ies);
    }

    static void expect_as_modelled(const Message &message, const Bytes &bytes) {
        const auto expected = model::unpack_msg(message, bytes);
        const auto result = unpack(message, bytes);
        EXPECT_EQ(result.has_value(), expected.has_value());
        EXPECT_EQ(result.value_or(Nodes()), expected.value_or(Nodes()));
    }

    static Bytes joined(const Nodes &nodes, const Bytes &tail) {
        Bytes bytes = samples::encode(nodes);
        bytes.insert(bytes.end(), tail.begin(), tail.end());
        return bytes;
    }
};

TEST_F(MessageUnpacking, EveryTruncation) {
    Random random(1);
    for (const Message *message : protocol::messages())
        for (std::uint32_t deciding = 0; deciding < 3; ++deciding) {
            const Bytes whole =
                samples::encode(samples::make_message(*message, Amount::slim, random, deciding));
            for (std::size_t size = 0; size <= whole.size(); ++size) {
                SCOPED_TRACE(std::string(message->name) + " cut to " + std::to_string(size));
                expect_as_modelled(*message,
                                   Bytes(whole.begin(), whole.begin() + std::ptrdiff_t(size)));
            }
        }
}

// What the cuts come to, said without the model: null up to the last mandatory IE, and then the
// message with the optional IEs that are whole.
TEST_F(MessageUnpacking, TruncationsOfOneMessage) {
    Random random(2);
    const Message &message = samples::message("InitDirectTransfer");
    const Nodes nodes = samples::make_message(message, Amount::slim, random);
    const Bytes whole = samples::encode(nodes);
    const std::size_t mandatory = samples::encode(Nodes(nodes.begin(), nodes.begin() + 5)).size();
    const std::size_t withImsi = samples::encode(Nodes(nodes.begin(), nodes.begin() + 6)).size();
    for (std::size_t size = 0; size <= whole.size(); ++size) {
        const auto result =
            unpack(message, Bytes(whole.begin(), whole.begin() + std::ptrdiff_t(size)));
        const std::size_t expected = size < mandatory      ? 0
                                     : size < withImsi     ? 5
                                     : size < whole.size() ? 6
                                                           : 7;
        EXPECT_EQ(result ? result->size() : 0, expected) << size;
    }
}

TEST_F(MessageUnpacking, ForeignIeAtEachPosition) {
    Random random(3);
    for (const Message *message : protocol::messages()) {
        const Nodes nodes = samples::make_message(*message, Amount::slim, random);
        for (std::size_t at = 0; at <= nodes.size(); ++at) {
            SCOPED_TRACE(std::string(message->name) + " at " + std::to_string(at));
            Nodes changed = nodes;
            changed.insert(changed.begin() + std::ptrdiff_t(at),
                           samples::number_node("SduSize", 1)); // no message's
            const Bytes bytes = samples::encode(changed);
            expect_as_modelled(*message, bytes);
            const auto result = unpack(*message, bytes);
            const bool isMandatory =
                at < message->slots.size() && message->slots[at].presence == Presence::mandatory;
            Nodes taken;
            if (!isMandatory)
                taken.assign(nodes.begin(), nodes.begin() + std::ptrdiff_t(at));
            // The conditional IEs of IapReset and RelocationRequired may be required.
            EXPECT_TRUE(samples::has_conditional(message->slots) ||
                        result.value_or(Nodes()) == taken);
        }
    }
}

TEST_F(MessageUnpacking, EachIeAbsentMisplacedTwiceOrInvalid) {
    Random random(4);
    for (const Message *message : protocol::messages()) {
        const Nodes nodes = samples::make_message(*message, Amount::slim, random);
        for (std::size_t at = 0; at < nodes.size(); ++at) {
            SCOPED_TRACE(std::string(message->name) + " IE " + std::to_string(at));
            const auto place = std::ptrdiff_t(at);
            Nodes changed = nodes;
            changed.erase(changed.begin() + place);
            expect_as_modelled(*message, samples::encode(changed));
            for (const std::size_t other : {at + 1, nodes.size() - 1})
                if (other < nodes.size()) {
                    changed = nodes;
                    std::swap(changed[at], changed[other]);
                    expect_as_modelled(*message, samples::encode(changed));
                }
            changed = nodes;
            changed.insert(changed.begin() + place, nodes[at]);
            expect_as_modelled(*message, samples::encode(changed));
            if (const auto invalid = samples::make_invalid(*nodes[at].type, random)) {
                changed = nodes;
                changed[at] = *invalid;
                expect_as_modelled(*message, samples::encode(changed));
            }
        }
    }
}

// A host may look at an IE as soon as it is linked. No value of these begins with the byte that
// fills new blocks.
TEST_F(MessageUnpacking, ValuesAreThereWhenTheirIeIsLinked) {
    const TarnAccessControlRequestRecord record = {
        0, 0, 0x01020304, 0x05060708, {2, {0x11, 0x22}}, {16, {0x33}}};
    Bytes bytes(100);
    bytes.resize(TarnBuildAccessControlRequestMsg(bytes.data(), 100, &record));
    EXPECT_NE(unpack(samples::message("AccessControlRequest"), bytes), std::nullopt);
    EXPECT_EQ(test_host::allocations(), 1U + 5);
    EXPECT_EQ(test_host::unset_links(), 0U);
}

TEST_F(MessageUnpacking, TrailingBytesAreIgnored) {
    Random random(6);
    for (const Message *message : protocol::messages()) {
        SCOPED_TRACE(message->name);
        const Nodes nodes = samples::make_message(*message, Amount::slim, random);
        for (const char *tail : {"00", "0048 00000001 01", "FFFF FFFFFFFF", "002A 00000002 0001"})
            EXPECT_EQ(unpack(*message, joined(nodes, from_hex(tail))), nodes);
    }
}

// The type is the caller's: its unpacker takes whatever id the IE carries.
TEST_F(MessageUnpacking, ValueOfMessageIdIsNotComparedWithTheType) {
    Random random(7);
    for (const Message *message : protocol::messages()) {
        Nodes nodes = samples::make_message(*message, Amount::least, random);
        samples::set_number(nodes.front(), samples::unknown_ids().front());
        EXPECT_EQ(unpack(*message, samples::encode(nodes)), nodes) << message->name;
        const MsgPtr msg = samples::make_msg(*message, nodes);
        EXPECT_EQ(message->isValid(msg.get()), 1U) << message->name;
    }
}

TEST_F(MessageUnpacking, FailureDeepInAnOptionalCompositeDropsItWhole) {
    Random random(8);
    const Message &message = samples::message("HandoverRequest");
    Nodes nodes = samples::make_message(message, Amount::slim, random);
    ASSERT_EQ(nodes[4].type->tag, 150U);
    Node *params = &nodes[4].children[0].children[1].children[0].children[2];
    ASSERT_EQ(params->type->tag, 26U);
    params->children.back() = samples::number_node("LacMatch", 1); // TransDelay is called for
    // The RabList with it is left out; then the list's budget is not met and the list is left out.
    EXPECT_EQ(unpack(message, samples::encode(nodes)), Nodes(nodes.begin(), nodes.begin() + 4));
}

TEST_F(MessageUnpacking, MutatedBytes) {
    Random random(9);
    for (const Message *message : protocol::messages())
        for (int i = 0; i < 300; ++i) {
            const Nodes nodes =
                samples::make_message(*message, i % 2 == 0 ? Amount::slim : Amount::random, random);
            const Bytes bytes = samples::mutate(nodes, random);
            SCOPED_TRACE(std::string(message->name) + " round " + std::to_string(i));
            expect_as_modelled(*message, bytes);
            if (HasFailure())
                return;
        }
}

// One item more than the array of a mandatory list value holds, all lengths right.
TEST_F(MessageUnpacking, OneItemTooManyInAListValue) {
    Random random(12);
    const Message &message = samples::message("RabReleaseRequest");
    Bytes bytes = samples::encode(samples::make_message(message, Amount::most, random));
    const Bytes item(bytes.end() - 21, bytes.end()); // 6 + RabId (7) + RabReleaseCause (8)
    bytes[bytes.size() - 64] = 84;                   // the list's length, of three until here
    bytes.insert(bytes.end(), item.begin(), item.end());
    const samples::Exact exact(bytes);
    EXPECT_EQ(message.unpack(exact.data(), exact.size()), nullptr);
    Record record(message);
    EXPECT_EQ(message.get(exact.data(), exact.size(), record.data()), 0U);
}

} // namespace
