// Get: what it writes into the caller's record, and what it leaves alone.
#include <algorithm>

#include "support/library_test.h"
#include "support/samples.h"
#include "tarn_if.h"

namespace {

class GetTest : public LibraryTest {
protected:
    static std::uint32_t get(const Message &message, const Bytes &bytes, Record *record) {
        const samples::Exact exact(bytes);
        return message.get(exact.data(), exact.size(), record->data());
    }

    // The bytes of the slot's member.
    static Bytes member(const Slot &slot, Record *record) {
        const std::uint8_t *at = record->at(slot.recordOffset);
        const std::size_t size =
            slot.type->is_composite() ? slot.type->recordSize : slot.type->valueSize;
        return Bytes(at, at + size);
    }
};

constexpr std::uint8_t filler = 0x5A;

// Each message's record filled from each message's bytes: members that both share are filled, all
// others stay, and bits are set and never cleared.
TEST_F(GetTest, RecordOfEachMessageFromTheBytesOfEachMessage) {
    Random random(1);
    for (const Message *sent : protocol::messages())
        for (const Amount amount : {Amount::least, Amount::slim}) {
            const Nodes nodes = samples::make_message(*sent, amount, random);
            const Bytes bytes = samples::encode(nodes);
            for (const Message *asked : protocol::messages()) {
                SCOPED_TRACE(std::string(sent->name) + " as " + asked->name);
                Record record(*asked, filler);
                record.presence() = 0x01; // no IE's bit
                EXPECT_EQ(get(*asked, bytes, &record), 1U);
                EXPECT_EQ(record.message_id(), sent->id);
                unsigned presence = 0x01;
                for (const Slot &slot : asked->slots) {
                    const auto found =
                        std::find_if(nodes.begin(), nodes.end(),
                                     [&slot](const Node &node) { return node.type == slot.type; });
                    const Bytes now = member(slot, &record);
                    if (found == nodes.end())
                        EXPECT_EQ(now, Bytes(now.size(), filler)) << slot.name;
                    else
                        presence |= slot.presenceBit;
                }
                EXPECT_EQ(record.presence(), presence);
            }
        }
}

TEST_F(GetTest, SharedMembersHoldTheOtherMessagesValues) {
    const TarnUeContextRejectRecord reject = {0, 0, 0x01020304, 7};
    Bytes bytes(100);
    bytes.resize(TarnBuildUeContextRejectMsg(bytes.data(), 100, &reject));
    TarnUeContextReleaseRecord release = {};
    release.AcUeId = 99;
    EXPECT_EQ(TarnGetUeContextReleaseMsg(bytes.data(), std::uint32_t(bytes.size()), &release), 1U);
    EXPECT_EQ(release.MessageId, 3);
    EXPECT_EQ(release.Srnti, 0x01020304U);
    EXPECT_EQ(release.AcUeId, 99U);
}

TEST_F(GetTest, BitsThatAreSetStaySet) {
    Random random(2);
    for (const Message *message : protocol::messages()) {
        const Bytes bytes = samples::encode(samples::make_message(*message, Amount::least, random));
        Record record(*message, 0xFF);
        EXPECT_EQ(get(*message, bytes, &record), 1U);
        EXPECT_EQ(record.presence(), 0xFF) << message->name;
    }
}

// Inside a composite as in the message itself.
TEST_F(GetTest, ChildrenOfCompositesThatAreAbsent) {
    TarnUeContextReleaseRecord record = {};
    record.presence = 0x80;
    record.RabDataInfoList.count = 1;
    Bytes bytes(200);
    bytes.resize(TarnBuildUeContextReleaseMsg(bytes.data(), 200, &record));
    record.RabDataInfoList.count = 0xFFFF;
    record.RabDataInfoList.items[0].presence = 0x40;
    record.RabDataInfoList.items[0].UnSuccTransferAtRlc = 11;
    record.RabDataInfoList.items[1].RabId = 22;
    EXPECT_EQ(TarnGetUeContextReleaseMsg(bytes.data(), std::uint32_t(bytes.size()), &record), 1U);
    EXPECT_EQ(record.RabDataInfoList.count, 1);
    EXPECT_EQ(record.RabDataInfoList.items[0].presence, 0x40);
    EXPECT_EQ(record.RabDataInfoList.items[0].UnSuccTransferAtRlc, 11U);
    EXPECT_EQ(record.RabDataInfoList.items[1].RabId, 22);
}

// A list that is there and empty says so, whatever the record counted before.
TEST_F(GetTest, CountOfAnEmptyListInAUsedRecord) {
    Random random(7);
    std::size_t seen = 0;
    for (const Message *message : protocol::messages()) {
        Nodes nodes = samples::make_message(*message, Amount::slim, random);
        for (Node &node : nodes) {
            if (node.type->shape != Shape::compositeList || node.type->least != 0)
                continue;
            node.children.clear();
            const auto slot =
                std::find_if(message->slots.begin(), message->slots.end(),
                             [&node](const Slot &one) { return one.type == node.type; });
            Record record(*message, filler);
            EXPECT_EQ(get(*message, samples::encode(nodes), &record), 1U) << message->name;
            EXPECT_EQ(Bytes(record.at(slot->recordOffset), record.at(slot->recordOffset) + 2),
                      Bytes(2))
                << message->name << ' ' << slot->name;
            ++seen;
        }
    }
    EXPECT_GT(seen, 0U);
    TarnRabAssignmentRequestRecord sent = {}; // one within another
    sent.RabList.count = 1;
    sent.RabList.items[0].RabParams.TrafficClass = 1;
    Bytes bytes(200);
    bytes.resize(TarnBuildRabAssignmentRequestMsg(bytes.data(), 200, &sent));
    sent.RabList.items[0].RabParams.SduParams.count = 7;
    EXPECT_EQ(TarnGetRabAssignmentRequestMsg(bytes.data(), std::uint32_t(bytes.size()), &sent), 1U);
    EXPECT_EQ(sent.RabList.items[0].RabParams.SduParams.count, 0);
}

// The second BitErrRatio and BitRates have members of their own, also where what stands between
// the two places is absent.
TEST_F(GetTest, TypeNamedTwice) {
    TarnRabAssignmentRequestRecord record = {};
    record.RabList.count = 1;
    TarnRabParamsRecord &params = record.RabList.items[0].RabParams;
    params.TrafficClass = 2;
    params.presence = 0x1C;
    params.BitRates = {1, {100}};
    params.SecondBitRates = {2, {200, 300}};
    params.SduParams.count = 2;
    params.SduParams.items[0].BitErrRatio = {1, 2};
    params.SduParams.items[1].presence = 0x40;
    params.SduParams.items[1].BitErrRatio = {3, 4};
    params.SduParams.items[1].SecondBitErrRatio = {5, 6};
    Bytes bytes(1000);
    bytes.resize(TarnBuildRabAssignmentRequestMsg(bytes.data(), 1000, &record));
    TarnRabAssignmentRequestRecord got = {};
    EXPECT_EQ(TarnGetRabAssignmentRequestMsg(bytes.data(), std::uint32_t(bytes.size()), &got), 1U);
    const TarnRabParamsRecord &read = got.RabList.items[0].RabParams;
    EXPECT_EQ(read.BitRates.items[0], 100U);
    EXPECT_EQ(read.SecondBitRates.count, 2U);
    EXPECT_EQ(read.SecondBitRates.items[1], 300U);
    EXPECT_EQ(read.presence, 0x1C);
    EXPECT_EQ(read.SduParams.count, 2);
    EXPECT_EQ(read.SduParams.items[0].presence, 0);
    EXPECT_EQ(read.SduParams.items[0].BitErrRatio.Exponent, 2);
    EXPECT_EQ(read.SduParams.items[0].SecondBitErrRatio.Exponent, 0);
    EXPECT_EQ(read.SduParams.items[1].presence, 0x40);
    EXPECT_EQ(read.SduParams.items[1].BitErrRatio.Mantissa, 3);
    EXPECT_EQ(read.SduParams.items[1].SecondBitErrRatio.Mantissa, 5);
}

TEST_F(GetTest, FirstUeContextRefAlone) {
    Random random(3);
    const Message &message = samples::message("IapReset");
    Nodes nodes = samples::make_message(message, Amount::slim, random, 0);
    const Nodes one = nodes;
    nodes.push_back(samples::make_node(samples::type("UeContextRef"), Amount::slim, random));
    Record record(message);
    EXPECT_EQ(get(message, samples::encode(nodes), &record), 1U);
    EXPECT_EQ(record.presence(), 0x80);
    EXPECT_EQ(samples::read_record(message, &record), one);
}

TEST_F(GetTest, BytesThatDoNotUnpack) {
    Random random(4);
    for (const Message *message : protocol::messages()) {
        Nodes nodes = samples::make_message(*message, Amount::least, random);
        std::vector<Bytes> refused = {samples::encode(nodes), {}, {0x00}};
        refused.front().pop_back();
        for (const std::uint32_t id : samples::unknown_ids()) {
            samples::set_number(nodes.front(), id);
            refused.push_back(samples::encode(nodes));
        }
        for (const Bytes &bad : refused) {
            Record record(*message, filler);
            const std::size_t before = test_host::debug_tokens().size();
            EXPECT_EQ(get(*message, bad, &record), 0U) << message->name;
            EXPECT_EQ(record, Record(*message, filler)) << message->name;
            ASSERT_EQ(test_host::debug_tokens().size(), before + 1);
            EXPECT_EQ(test_host::debug_tokens().back(),
                      (test_host::DebugToken{samples::getToken, 0}));
        }
    }
}

} // namespace
