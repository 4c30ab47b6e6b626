// Records that Build refuses: the token tells where, nothing is written, nothing is left.
#include <algorithm>
#include <cstring>
#include <set>

#include "support/library_test.h"
#include "support/model.h"
#include "support/samples.h"
#include "tarn_if.h"

namespace {

class BuildFailure : public LibraryTest {
protected:
    Record record_of(const Message &message, const Nodes &nodes) {
        Record record(message);
        samples::fill_record(message, nodes, &record);
        return record;
    }

    // One token, no bytes and no blocks.
    static void expect_refused(const Message &message, const Record &record, std::uint32_t token) {
        Bytes buffer(70000, 0xEE);
        const std::size_t before = test_host::debug_tokens().size();
        EXPECT_EQ(message.build(buffer.data(), std::uint32_t(buffer.size()), record.data()), 0U);
        EXPECT_EQ(buffer, Bytes(buffer.size(), 0xEE));
        EXPECT_EQ(test_host::live_blocks(), 0U);
        ASSERT_EQ(test_host::debug_tokens().size(), before + 1);
        EXPECT_EQ(test_host::debug_tokens().back(), (test_host::DebugToken{token, 0}));
    }

    template <class Number>
    static void store(Record &record, std::size_t offset, Number number) {
        std::memcpy(record.at(offset), &number, sizeof number);
    }
};

TEST_F(BuildFailure, TokensTellAllPointsOfFailureApart) {
    std::set<std::uint32_t> tokens = {samples::getToken};
    for (const Message *message : protocol::messages())
        for (const std::uint32_t token :
             {message->appendToken, message->validityToken, message->packToken})
            EXPECT_TRUE(tokens.insert(token).second) << message->name;
}

// Logs and whoever reads them know the numbers: the message's id stands in all but one message's.
TEST_F(BuildFailure, TokensAreTheOnesKnown) {
    for (const Message *message : protocol::messages()) {
        const bool isOdd = std::string(message->name) == "RelocationCommand";
        const std::uint32_t base = 0x7A000000 | message->id << 16;
        EXPECT_EQ(message->appendToken, isOdd ? 0x17F6DF7F : base | 0xA1) << message->name;
        EXPECT_EQ(message->validityToken, isOdd ? 0xF82D7E10 : base | 0xB2) << message->name;
        EXPECT_EQ(message->packToken, isOdd ? 0xCC2F29B3 : base | 0xC3) << message->name;
    }
}

// Visits each primitive below the nodes, to any depth.
template <class Visit>
void for_each_primitive(Nodes &nodes, Visit visit) {
    for (Node &node : nodes) {
        if (node.type->is_composite())
            for_each_primitive(node.children, visit);
        else
            visit(node);
    }
}

TEST_F(BuildFailure, InvalidValueAtAnyDepth) {
    Random random(1);
    for (const Message *message : protocol::messages()) {
        Nodes nodes = samples::make_message(*message, Amount::slim, random);
        for_each_primitive(nodes, [&](Node &node) {
            const auto invalid = samples::make_invalid(*node.type, random);
            if (!invalid)
                return;
            SCOPED_TRACE(std::string(message->name) + ' ' + node.type->name);
            const Node valid = node;
            node = *invalid;
            expect_refused(*message, record_of(*message, nodes), message->appendToken);
            node = valid;
        });
    }
}

TEST_F(BuildFailure, LengthOrCountOfAValueBeyondItsArray) {
    Random random(2);
    for (const Message *message : protocol::messages()) {
        Nodes nodes = samples::make_message(*message, Amount::slim, random);
        for_each_primitive(nodes, [&](Node &node) {
            if (node.type->shape != Shape::bytes && node.type->shape != Shape::list)
                return;
            SCOPED_TRACE(std::string(message->name) + ' ' + node.type->name);
            const Node valid = node;
            for (const std::uint32_t count : {node.type->capacity + 1, 0x10000U, 0xFFFFFFFFU}) {
                std::memcpy(node.value.data(), &count, sizeof count);
                expect_refused(*message, record_of(*message, nodes), message->appendToken);
            }
            node = valid;
        });
    }
}

// Offsets of the counts of all list composites that the nodes put into a record.
struct ListAt {
    const Type *type;
    std::size_t offset;
};

void find_lists(const Type &type, std::size_t offset, std::vector<ListAt> *lists) {
    if (type.shape == Shape::compositeList) {
        lists->push_back({&type, offset});
        find_lists(*type.item, offset + type.itemsOffset, lists);
    } else if (type.shape == Shape::sequence) {
        for (const Slot &slot : type.slots)
            find_lists(*slot.type, offset + slot.recordOffset, lists);
    }
}

std::vector<ListAt> lists_of(const Message &message) {
    std::vector<ListAt> lists;
    for (const Slot &slot : message.slots)
        find_lists(*slot.type, slot.recordOffset, &lists);
    return lists;
}

TEST_F(BuildFailure, CountOfElementsBeyondTheArray) {
    Random random(3);
    std::size_t seen = 0;
    for (const Message *message : protocol::messages()) {
        const Nodes nodes = samples::make_message(*message, Amount::slim, random);
        for (const ListAt &list : lists_of(*message)) {
            SCOPED_TRACE(std::string(message->name) + ' ' + list.type->name);
            for (const unsigned count : {list.type->greatest + 1, 0x100U, 0xFFFFU}) {
                Record record = record_of(*message, nodes);
                store(record, list.offset, std::uint16_t(count));
                expect_refused(*message, record, message->appendToken);
                ++seen;
            }
        }
    }
    EXPECT_GT(seen, 3U * 12);
}

// Also where the list is optional, whose own verdict the validators do not ask for.
TEST_F(BuildFailure, CountOfElementsBelowTheLeast) {
    Random random(4);
    std::set<std::string> seen;
    for (const Message *message : protocol::messages()) {
        const Nodes nodes = samples::make_message(*message, Amount::slim, random);
        for (const ListAt &list : lists_of(*message)) {
            if (list.type->least == 0)
                continue;
            SCOPED_TRACE(std::string(message->name) + ' ' + list.type->name);
            Record record = record_of(*message, nodes);
            store(record, list.offset, std::uint16_t{0});
            expect_refused(*message, record, message->validityToken);
            seen.insert(message->name);
        }
    }
    EXPECT_EQ(seen,
              (std::set<std::string>{"UeContextRelease", "RabReleaseResponse", "IapReset",
                                     "IuReleaseComplete", "HandoverRequest", "HandoverReqAck"}));
}

// A list whose bit is not set is not looked at, whatever its count.
TEST_F(BuildFailure, AbsentMembersAreNotRead) {
    Random random(5);
    for (const Message *message : protocol::messages()) {
        const Nodes nodes = samples::make_message(*message, Amount::least, random);
        Record record(*message, 0xFF);
        samples::fill_record(*message, nodes, &record);
        Bytes buffer(70000);
        EXPECT_EQ(message->build(buffer.data(), std::uint32_t(buffer.size()), record.data()),
                  samples::encode(nodes).size())
            << message->name;
    }
}

TEST_F(BuildFailure, ConditionalRules) {
    Random random(6);
    const Message &relocation = samples::message("RelocationRequired");
    for (const std::uint32_t type : {0U, 1U, 2U}) {
        const Nodes nodes = samples::make_message(relocation, Amount::slim, random, type);
        for (unsigned bit = 0x80; bit > 0x04; bit >>= 1) {
            SCOPED_TRACE("type " + std::to_string(type) + " bit " + std::to_string(bit));
            // All members hold valid values; the mask alone says which are there.
            Record record =
                record_of(relocation, samples::make_message(relocation, Amount::slim, random, 0));
            samples::fill_record(
                relocation, samples::make_message(relocation, Amount::slim, random, 1), &record);
            samples::fill_record(relocation, nodes, &record);
            record.presence() = std::uint8_t(record.presence() ^ bit);
            expect_refused(relocation, record, relocation.validityToken);
        }
    }
    const Message &reset = samples::message("IapReset");
    Record record = record_of(reset, samples::make_message(reset, Amount::slim, random, 0));
    record.presence() = 0;
    expect_refused(reset, record, reset.validityToken);
    record = record_of(reset, samples::make_message(reset, Amount::slim, random, 0));
    store(record, reset.slots[2].recordOffset, std::uint32_t{1}); // Reset3GAP
    expect_refused(reset, record, reset.validityToken);
}

TEST_F(BuildFailure, ConditionalRulesOfAMandatoryComposite) {
    TarnRabAssignmentRequestRecord record = {};
    const Message &message = samples::message("RabAssignmentRequest");
    record.RabList.count = 1;
    TarnRabParamsRecord &params = record.RabList.items[0].RabParams;
    std::uint8_t buffer[400];
    const auto build = [&](std::uint32_t trafficClass, std::uint8_t presence) {
        params.TrafficClass = trafficClass;
        params.presence = presence;
        return TarnBuildRabAssignmentRequestMsg(buffer, sizeof buffer, &record);
    };
    EXPECT_NE(build(0, 0x1C), 0U);
    EXPECT_NE(build(2, 0x1C), 0U);
    EXPECT_NE(build(1, 0x00), 0U);
    EXPECT_NE(build(3, 0x02), 0U);
    EXPECT_TRUE(test_host::debug_tokens().empty());
    EXPECT_EQ(build(0, 0x18), 0U);
    EXPECT_EQ(build(0, 0x1E), 0U);
    EXPECT_EQ(build(1, 0x02), 0U);
    EXPECT_EQ(build(3, 0x00), 0U);
    EXPECT_EQ(test_host::debug_tokens(),
              std::vector<test_host::DebugToken>(4, {message.validityToken, 0}));
}

// What the validators overlook in an optional composite, Build overlooks too; the peer leaves it
// out.
TEST_F(BuildFailure, ConditionalRulesOfAnOptionalComposite) {
    TarnHandoverRequestRecord record = {};
    record.presence = 0x80;
    record.ModifiedSrncContainer.NumIuInstances = 1;
    record.RabToSetupPerCnDomainList.count = 1;
    TarnRabToSetupPerCnDomainRecord &domain = record.RabToSetupPerCnDomainList.items[0];
    domain.presence = 0x80;
    domain.RabList.count = 1;
    domain.RabList.items[0].RabParams.TrafficClass = 3; // without TrafficHandlingPriority
    std::uint8_t buffer[400];
    const std::uint32_t size = TarnBuildHandoverRequestMsg(buffer, sizeof buffer, &record);
    EXPECT_NE(size, 0U);
    TarnHandoverRequestRecord got = {};
    EXPECT_EQ(TarnGetHandoverRequestMsg(buffer, size, &got), 1U);
    EXPECT_EQ(got.presence, 0);
}

bool is_mandatory(const std::vector<Slot> &slots, const Node &node) {
    return std::any_of(slots.begin(), slots.end(), [&node](const Slot &slot) {
        return slot.type == node.type && slot.presence == Presence::mandatory;
    });
}

// Takes away some of what a record can leave out: optional and conditional IEs, elements.
void thin_out(const std::vector<Slot> &slots, Nodes &nodes, Random &random) {
    for (std::size_t i = nodes.size(); i-- > 0;) {
        if (random.between(0, 5) == 0 && !is_mandatory(slots, nodes[i]))
            nodes.erase(nodes.begin() + std::ptrdiff_t(i));
        else if (nodes[i].type->is_composite())
            thin_out(nodes[i].type->slots, nodes[i].children, random);
    }
}

bool has_short_list(const Nodes &nodes) {
    return std::any_of(nodes.begin(), nodes.end(), [](const Node &node) {
        return (node.type->shape == Shape::compositeList &&
                node.children.size() < node.type->least) ||
               has_short_list(node.children);
    });
}

TEST_F(BuildFailure, AnyMembersAsModelled) {
    Random random(9);
    std::size_t built = 0;
    std::size_t refused = 0;
    for (const Message *message : protocol::messages())
        for (int i = 0; i < 60; ++i) {
            Nodes nodes = samples::make_message(*message, Amount::slim, random);
            thin_out(message->slots, nodes, random);
            // Numbers that rules look at, so that what is there is no longer what is called for.
            for_each_primitive(nodes, [&random](Node &node) {
                if (samples::is_deciding(*node.type) && random.between(0, 3) == 0)
                    samples::set_number(node, random.between(0, 3));
            });
            SCOPED_TRACE(message->name);
            const Record record = record_of(*message, nodes);
            if (has_short_list(nodes) || !model::is_valid(*message, nodes)) {
                expect_refused(*message, record, message->validityToken);
                ++refused;
                continue;
            }
            const Bytes expected = samples::encode(nodes);
            Bytes buffer(expected.size());
            EXPECT_EQ(message->build(buffer.data(), std::uint32_t(buffer.size()), record.data()),
                      expected.size());
            EXPECT_EQ(buffer, expected);
            ++built;
        }
    EXPECT_GT(built, 500U);
    EXPECT_GT(refused, 100U);
}

TEST_F(BuildFailure, BufferThatIsTooSmall) {
    Random random(7);
    for (const Message *message : protocol::messages()) {
        SCOPED_TRACE(message->name);
        const Nodes nodes = samples::make_message(*message, Amount::slim, random);
        const Record record = record_of(*message, nodes);
        const auto size = std::uint32_t(samples::encode(nodes).size());
        for (const std::uint32_t room : {0U, 6U, 7U, size / 2, size - 1}) {
            Bytes buffer(size, 0xEE);
            EXPECT_EQ(message->build(buffer.data(), room, record.data()), 0U);
            EXPECT_EQ(buffer, Bytes(size, 0xEE));
            EXPECT_EQ(test_host::live_blocks(), 0U);
            expect_fatals(1, "tarn_if_api");
            EXPECT_EQ(test_host::debug_tokens().back(),
                      (test_host::DebugToken{message->packToken, 0}));
        }
    }
    EXPECT_EQ(test_host::debug_tokens().size(), 5 * protocol::messages().size());
}

// A host may leave by an exception or a jump from its fatal error: nothing is left behind.
TEST_F(BuildFailure, NothingIsLeftWhenTheFatalErrorThrows) {
    Random random(8);
    for (const Message *message : protocol::messages()) {
        const Nodes nodes = samples::make_message(*message, Amount::slim, random);
        const Record record = record_of(*message, nodes);
        Bytes buffer(samples::encode(nodes).size() - 1);
        test_host::set_on_fatal(test_host::OnFatal::throws);
        EXPECT_THROW(message->build(buffer.data(), std::uint32_t(buffer.size()), record.data()),
                     test_host::FatalReport)
            << message->name;
        EXPECT_EQ(test_host::live_blocks(), 0U) << message->name;
        expect_fatals(1, "tarn_if_api");
    }
}

} // namespace
