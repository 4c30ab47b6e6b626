// The positional and deliberately lenient check of message objects.
#include <algorithm>

#include "support/library_test.h"
#include "support/model.h"
#include "support/samples.h"
#include "tarn_if.h"

namespace {

class MessageValidity : public LibraryTest {
protected:
    static bool is_valid(const Message &message, const Nodes &nodes) {
        return message.isValid(samples::make_msg(message, nodes).get()) == 1;
    }
    static bool is_valid(const char *name, const Nodes &nodes) {
        return is_valid(samples::message(name), nodes);
    }
};

// SduSize is no message's.
Node foreign() {
    return samples::number_node("SduSize", 1);
}

std::size_t mandatory_count(const Message &message) {
    return std::size_t(
        std::count_if(message.slots.begin(), message.slots.end(),
                      [](const Slot &slot) { return slot.presence == Presence::mandatory; }));
}

TEST_F(MessageValidity, IdOfTheObjectMustBeThatOfTheType) {
    Random random(2);
    for (const Message *message : protocol::messages()) {
        const MsgPtr msg =
            samples::make_msg(*message, samples::make_message(*message, Amount::slim, random));
        for (const unsigned change : {0U, 1U, 34U, 256U}) {
            msg->messageId = std::uint16_t(message->id + change);
            EXPECT_EQ(message->isValid(msg.get()), change == 0 ? 1U : 0U) << message->name;
        }
    }
}

TEST_F(MessageValidity, MandatoryIesStandValidAtTheirPositions) {
    Random random(3);
    for (const Message *message : protocol::messages()) {
        const Nodes nodes = samples::make_message(*message, Amount::slim, random);
        for (std::size_t at = 0; at < mandatory_count(*message); ++at) {
            SCOPED_TRACE(std::string(message->name) + " IE " + std::to_string(at));
            Nodes changed = nodes;
            changed[at] = foreign();
            EXPECT_FALSE(is_valid(*message, changed));
            changed.insert(changed.begin() + std::ptrdiff_t(at), nodes[at]);
            EXPECT_FALSE(is_valid(*message, changed) && at + 1 < mandatory_count(*message));
            changed = nodes;
            changed.erase(changed.begin() + std::ptrdiff_t(at));
            EXPECT_FALSE(is_valid(*message, changed));
            if (at + 1 < nodes.size()) {
                changed = nodes;
                std::swap(changed[at], changed[at + 1]);
                EXPECT_FALSE(is_valid(*message, changed));
            }
            if (const auto invalid = samples::make_invalid(*nodes[at].type, random)) {
                changed = nodes;
                changed[at] = *invalid;
                EXPECT_FALSE(is_valid(*message, changed));
            }
        }
    }
}

// All IEs of the zone may stand at all of its positions, and their own validity does not count.
TEST_F(MessageValidity, OptionalIesInAnyOrderNumberAndState) {
    Random random(4);
    for (const Message *message : protocol::messages()) {
        SCOPED_TRACE(message->name);
        const std::size_t first = mandatory_count(*message);
        for (const Slot &slot : message->slots) {
            if (slot.presence != Presence::optional)
                continue;
            const Node optional = samples::make_node(*slot.type, Amount::slim, random);
            // RelocationRequired of a type that calls for no IE.
            Nodes nodes = samples::make_message(*message, Amount::least, random, 2);
            while (nodes.size() < message->slots.size() + 2) {
                nodes.push_back(optional);
                EXPECT_TRUE(is_valid(*message, nodes)) << slot.name;
            }
            if (const auto invalid = samples::make_invalid(*slot.type, random))
                std::fill(nodes.begin() + std::ptrdiff_t(first), nodes.end(), *invalid);
            else if (slot.type->is_composite())
                for (std::size_t i = first; i < nodes.size(); ++i)
                    nodes[i].children.assign(1, foreign());
            EXPECT_TRUE(is_valid(*message, nodes)) << slot.name << ", invalid";
        }
    }
}

TEST_F(MessageValidity, UnexpectedIeCountsUpToTheLastPosition) {
    Random random(6);
    for (const Message *message : protocol::messages()) {
        const std::size_t first = mandatory_count(*message);
        const Nodes least = samples::make_message(*message, Amount::least, random);
        const Slot *optional = message->slots.size() > first ? &message->slots.back() : nullptr;
        for (std::size_t at = first; at < message->slots.size() + 3; ++at) {
            SCOPED_TRACE(std::string(message->name) + " at " + std::to_string(at));
            Nodes nodes = least;
            while (nodes.size() < at)
                nodes.push_back(optional != nullptr && optional->presence == Presence::optional
                                    ? samples::make_node(*optional->type, Amount::slim, random)
                                    : foreign());
            if (optional == nullptr ? at > first : optional->presence == Presence::repeated)
                continue; // only a foreign IE could stand before it
            nodes.push_back(foreign());
            EXPECT_EQ(is_valid(*message, nodes), at >= message->slots.size());
            nodes.back() = least[1]; // a mandatory IE's tag is as unexpected there
            EXPECT_EQ(is_valid(*message, nodes), at >= message->slots.size());
        }
    }
}

TEST_F(MessageValidity, VerdictOnAMandatoryCompositeCounts) {
    Random random(8);
    Nodes request =
        samples::make_message(samples::message("RabAssignmentRequest"), Amount::slim, random);
    EXPECT_TRUE(is_valid("RabAssignmentRequest", request));
    request.back().children.front().children.front() = foreign();
    EXPECT_FALSE(is_valid("RabAssignmentRequest", request));
    Nodes handover =
        samples::make_message(samples::message("HandoverRequest"), Amount::slim, random);
    handover[4].children.clear();
    EXPECT_TRUE(is_valid("HandoverRequest", handover)); // an optional one
    handover[3].children[2] = samples::number_node("NumIuInstances", 3);
    EXPECT_FALSE(is_valid("HandoverRequest", handover));
}

Node any_ie(const Message &message, Random &random) {
    const Slot &slot = message.slots[random.between(0, std::uint32_t(message.slots.size() - 1))];
    if (random.between(0, 7) == 0)
        return foreign();
    if (random.between(0, 3) == 0)
        if (auto invalid = samples::make_invalid(*slot.type, random))
            return *std::move(invalid);
    return samples::make_node(*slot.type, Amount::slim, random);
}

// Lists of IEs near the valid ones: some changed, added or taken away.
TEST_F(MessageValidity, AnyIesAsModelled) {
    Random random(9);
    for (const Message *message : protocol::messages())
        for (int round = 0; round < 200; ++round) {
            Nodes nodes =
                samples::make_message(*message, Amount::slim, random, random.between(0, 3));
            for (std::uint32_t changes = random.between(0, 4); changes != 0; --changes) {
                const auto place = nodes.begin() + random.between(0, std::uint32_t(nodes.size()));
                if (random.coin())
                    nodes.insert(place, any_ie(*message, random));
                else if (place != nodes.end())
                    nodes.erase(place);
            }
            ASSERT_EQ(is_valid(*message, nodes), model::is_valid(*message, nodes))
                << message->name << ' ' << testing::PrintToString(nodes);
        }
}

} // namespace
