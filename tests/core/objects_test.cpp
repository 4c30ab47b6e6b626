// IE objects and message objects: creation, extract history, deletion.
#include <algorithm>
#include <string>

#include "primitive_ies/primitive_values.h"
#include "support/library_test.h"

namespace {

class ObjectsTest : public LibraryTest {};

// Calls visit(ie, type) for all IE objects below a list, parents first.
template <class Visit>
void walk(const VelDllHead *list, const Visit &visit) {
    for (VelDllNode *node = list->first; node != nullptr; node = node->next) {
        auto *ie = reinterpret_cast<TarnIe *>(node);
        visit(ie);
        if (protocol::type_by_tag(ie->tag)->is_composite())
            walk(protocol::children_of(ie), visit);
    }
}

// Appends two children of each kind, and so on at each level below.
void grow(void *owner, const std::vector<Slot> &slots) {
    for (const Slot &slot : slots)
        for (int twice = 0; slot.append != nullptr && twice < 2; ++twice) {
            if (slot.type->is_composite()) {
                void *child = slot.type->create();
                if (twice == 0)
                    grow(child, slot.type->slots);
                ASSERT_EQ(slot.append(owner, child), 1U);
            } else {
                const Bytes value = samples::make_value(*slot.type, Amount::full);
                ASSERT_EQ(slot.append(owner, value.data()), 1U) << slot.type->name;
            }
        }
}

TarnMsg *new_deep_message() {
    const Message *message = protocol::message_by_name("HandoverRequest");
    TarnMsg *msg = message->create();
    grow(msg, message->slots);
    return msg;
}

TEST_F(ObjectsTest, TheVersionIsAConstantText) {
    const char *version = TarnGetInterfaceVersion();
    EXPECT_STREQ(version, "39");
    EXPECT_EQ(TarnGetInterfaceVersion(), version);
}

TEST_F(ObjectsTest, ANewMessageHoldsItsMessageIdAlone) {
    for (const Message *message : protocol::messages()) {
        TarnMsg *msg = message->create();
        EXPECT_EQ(msg->messageId, message->id);
        EXPECT_EQ(test_host::live_blocks(), 2U) << message->name;
        ASSERT_NE(msg->ies.first, nullptr);
        const auto *first = reinterpret_cast<const TarnMessageIdIe *>(msg->ies.first);
        EXPECT_EQ(first->ie.tag, 72U);
        EXPECT_EQ(first->ie.extractHistory, 0U);
        EXPECT_EQ(first->value, message->id);
        EXPECT_EQ(msg->ies.last, msg->ies.first);
        TarnDeleteMsg(msg);
        EXPECT_EQ(test_host::live_blocks(), 0U) << message->name;
    }
}

// ---- Extract history ----------------------------------------------------------------------------

TEST_F(ObjectsTest, RepeatedIesComeInListOrderOnce) {
    TarnMsg *msg = TarnNewHandoverDetectMsg();
    for (TarnSrnti srnti : {11U, 22U, 33U}) {
        TarnAppendSrntiToHandoverDetectMsg(msg, &srnti);
        TarnAppendAcUeIdToHandoverDetectMsg(msg, &srnti);
    }
    for (int round = 0; round < 2; ++round) {
        TarnSrnti srnti = 0;
        for (TarnSrnti expected : {11U, 22U, 33U}) {
            EXPECT_EQ(TarnExtractSrntiFromHandoverDetectMsg(msg, &srnti), 1U);
            EXPECT_EQ(srnti, expected);
        }
        EXPECT_EQ(TarnExtractSrntiFromHandoverDetectMsg(msg, &srnti), 0U);
        EXPECT_EQ(srnti, 33U) << "nothing found leaves the output as it was";
        // The history of another tag is its own.
        TarnAcUeId acUeId = 0;
        EXPECT_EQ(TarnExtractAcUeIdFromHandoverDetectMsg(msg, &acUeId), 1U);
        EXPECT_EQ(acUeId, 11U);
        TarnResetMsgExtractHistory(msg);
    }
    TarnDeleteMsg(msg);
}

TEST_F(ObjectsTest, TheHistoryBelongsToTheIeAndNotToTheOperation) {
    TarnMsg *msg = TarnNewHandoverDetectMsg();
    const TarnSrnti srnti = 11;
    TarnAppendSrntiToHandoverDetectMsg(msg, &srnti);
    TarnSrnti read = 0;
    EXPECT_EQ(TarnExtractSrntiFromUeContextAcceptMsg(msg, &read), 1U);
    EXPECT_EQ(TarnExtractSrntiFromHandoverDetectMsg(msg, &read), 0U);
    TarnDeleteMsg(msg);
}

TEST_F(ObjectsTest, CompositesAreLentAndAbsentOnesAreNull) {
    TarnMsg *msg = TarnNewUeContextReleaseMsg();
    auto *ie = reinterpret_cast<TarnRabDataInfoListIe *>(msg);
    EXPECT_EQ(TarnExtractRabDataInfoListIeFromUeContextReleaseMsg(msg, &ie), 0U);
    EXPECT_EQ(ie, nullptr);
    TarnRabDataInfoListIe *list = TarnNewRabDataInfoListIe();
    TarnAppendRabDataInfoListIeToUeContextReleaseMsg(msg, list);
    list->ie.tag ^= 0x100; // both bytes of a tag count
    EXPECT_EQ(TarnExtractRabDataInfoListIeFromUeContextReleaseMsg(msg, &ie), 0U);
    list->ie.tag ^= 0x100;
    EXPECT_EQ(TarnExtractRabDataInfoListIeFromUeContextReleaseMsg(msg, &ie), 1U);
    EXPECT_EQ(ie, list);
    EXPECT_EQ(list->ie.extractHistory, 1U);
    EXPECT_EQ(TarnExtractRabDataInfoListIeFromUeContextReleaseMsg(msg, &ie), 0U);
    EXPECT_EQ(ie, nullptr);
    TarnDeleteMsg(msg);
}

TEST_F(ObjectsTest, ExtractingLooksAtDirectMembersOnly) {
    TarnRabSetupSuccessListIe *list = TarnNewRabSetupSuccessListIe();
    TarnRabSetupSuccessInfoIe *info = TarnNewRabSetupSuccessInfoIe();
    const TarnUdpPort port = 9;
    TarnAppendUdpPortToRabSetupSuccessInfoIe(info, &port);
    TarnAppendRabSetupSuccessInfoIeToRabSetupSuccessListIe(list, info);
    TarnResourceInfoPerCnDomainAckIe *ack = TarnNewResourceInfoPerCnDomainAckIe();
    TarnAppendRabSetupSuccessListIeToResourceInfoPerCnDomainAckIe(ack, list);
    TarnRabSetupSuccessInfoIe *found = info;
    // The operation for lists, given the acknowledgement two levels above the element.
    auto *wrong = reinterpret_cast<TarnRabSetupSuccessListIe *>(ack);
    EXPECT_EQ(TarnExtractRabSetupSuccessInfoIeFromRabSetupSuccessListIe(wrong, &found), 0U);
    EXPECT_EQ(found, nullptr);
    EXPECT_EQ(TarnExtractRabSetupSuccessInfoIeFromRabSetupSuccessListIe(list, &found), 1U);
    EXPECT_EQ(found, info);
    TarnDeleteIe(&ack->ie);
}

TEST_F(ObjectsTest, ExtractingChangesNothingElse) {
    TarnMsg *msg = new_deep_message();
    const std::size_t blocks = test_host::live_blocks();
    Bytes before(std::size_t(TarnSizeOfMsg(msg)));
    ASSERT_EQ(TarnPackHandoverRequestMsg(msg, before.data(), std::uint32_t(before.size())), 1U);
    TarnAcUeId acUeId = 0;
    TarnModifiedSrncContainerIe *container = nullptr;
    TarnRrcContainer rrc{};
    EXPECT_EQ(TarnExtractModifiedSrncContainerIeFromHandoverRequestMsg(msg, &container), 1U);
    EXPECT_EQ(TarnExtractRrcContainerFromModifiedSrncContainerIe(container, &rrc), 1U);
    EXPECT_EQ(rrc.length, 2000U);
    for (int i = 0; i < 3; ++i)
        TarnExtractAcUeIdFromHandoverRequestMsg(msg, &acUeId);
    Bytes after(before.size());
    ASSERT_EQ(TarnPackHandoverRequestMsg(msg, after.data(), std::uint32_t(after.size())), 1U);
    EXPECT_EQ(after, before);
    EXPECT_EQ(test_host::live_blocks(), blocks);
    TarnDeleteMsg(msg);
}

TEST_F(ObjectsTest, ResettingReachesEveryDepth) {
    TarnMsg *msg = new_deep_message();
    const auto mark = [](TarnIe *ie) { ie->extractHistory = 1; };
    std::size_t all = 0;
    std::size_t marked = 0;
    const auto count = [&](const TarnIe *ie) {
        ++all;
        marked += ie->extractHistory;
    };
    walk(&msg->ies, mark);
    TarnResetMsgExtractHistory(msg);
    walk(&msg->ies, count);
    EXPECT_GT(all, 60U);
    EXPECT_EQ(marked, 0U);

    // One composite IE alone: all below it and nothing beside it.
    walk(&msg->ies, mark);
    auto *last = reinterpret_cast<TarnIe *>(msg->ies.last);
    while (!TarnIsComplexType(last->tag))
        last = reinterpret_cast<TarnIe *>(last->node.previous);
    last = reinterpret_cast<TarnIe *>(last->node.previous); // the one with children
    TarnResetIeExtractHistory(last);
    all = marked = 0;
    walk(&msg->ies, count);
    const std::size_t allIes = all;
    const std::size_t stillMarked = marked;
    all = marked = 0;
    walk(protocol::children_of(last), count);
    EXPECT_GT(all, 40U);
    EXPECT_EQ(marked, 0U);
    EXPECT_EQ(last->extractHistory, 0U);
    EXPECT_EQ(stillMarked, allIes - all - 1);
    TarnDeleteMsg(msg);
}

TEST_F(ObjectsTest, ResettingAPrimitiveResetsItAlone) {
    TarnMsg *msg = TarnNewUeContextAcceptMsg();
    const TarnSrnti srnti = 5;
    TarnAppendSrntiToUeContextAcceptMsg(msg, &srnti);
    walk(&msg->ies, [](TarnIe *ie) { ie->extractHistory = 1; });
    auto *last = reinterpret_cast<TarnIe *>(msg->ies.last);
    TarnResetIeExtractHistory(last);
    EXPECT_EQ(last->extractHistory, 0U);
    EXPECT_EQ(reinterpret_cast<TarnIe *>(msg->ies.first)->extractHistory, 1U);
    EXPECT_EQ(reinterpret_cast<TarnSrntiIe *>(last)->value, 5U);
    TarnDeleteMsg(msg);

    TarnMsg empty{};
    TarnResetMsgExtractHistory(&empty); // does nothing
}

// ---- Deletion -----------------------------------------------------------------------------------

TEST_F(ObjectsTest, DeletingAnOwnerReleasesAllBelowIt) {
    TarnMsg *other = TarnNewResetMsg();
    const std::size_t before = test_host::live_blocks();
    for (const Message *message : protocol::messages()) {
        TarnMsg *msg = message->create();
        grow(msg, message->slots);
        std::size_t ies = 0;
        walk(&msg->ies, [&ies](TarnIe *) { ++ies; });
        EXPECT_EQ(test_host::live_blocks(), before + 1 + ies) << message->name;
        TarnDeleteMsg(msg);
        EXPECT_EQ(test_host::live_blocks(), before) << message->name;
    }
    for (const Type *type : protocol::types()) {
        if (!type->is_composite())
            continue;
        auto *ie = static_cast<TarnIe *>(type->create());
        grow(ie, type->slots);
        TarnDeleteIe(ie);
        EXPECT_EQ(test_host::live_blocks(), before) << type->name;
    }
    TarnDeleteMsg(other);
}

// An object of a tag that the protocol lacks has no children to be looked for.
TEST_F(ObjectsTest, AnObjectOfAnUnknownTagIsOneBlock) {
    TarnSduFormatInfoParamsIe *ie = TarnNewSduFormatInfoParamsIe();
    for (const std::uint16_t tag : samples::tags_without_ie()) {
        ie->ie.tag = tag;
        ie->children.first = reinterpret_cast<VelDllNode *>(std::uintptr_t(8));
        TarnResetIeExtractHistory(&ie->ie);
        EXPECT_EQ(TarnSizeOfIe(&ie->ie), 6U);
    }
    TarnDeleteIe(&ie->ie);
}

// Both ways the whole value is copied, and the caller keeps its own.
TEST_F(ObjectsTest, WhatIsAppendedComesOutWhole) {
    const auto check = [](void *owner, const Slot &slot) {
        for (Amount amount : samples::allAmounts) {
            Bytes given = samples::make_value(*slot.type, amount);
            if (slot.type->shape == Shape::bytes) // with what stands behind its length
                std::fill(given.begin() + 4 + samples::count_of(given.data()), given.end(),
                          std::uint8_t(0x5C));
            const Bytes expected = given;
            ASSERT_EQ(slot.append(owner, given.data()), 1U) << slot.name;
            std::fill(given.begin(), given.end(), std::uint8_t(0));
            Bytes taken(slot.type->valueSize, 0xCD);
            ASSERT_EQ(slot.extract(owner, taken.data()), 1U) << slot.name;
            EXPECT_EQ(taken, expected) << slot.name;
        }
    };
    TarnMsg *msg = TarnNewResetMsg();
    TarnMessageId id = 0;
    TarnExtractMessageIdFromResetMsg(msg, &id);
    for (const Message *message : protocol::messages())
        for (const Slot &slot : message->slots)
            if (!slot.type->is_composite())
                check(msg, slot);
    TarnDeleteMsg(msg);
    for (const Type *type : protocol::types()) {
        if (!type->is_composite())
            continue;
        void *ie = type->create();
        for (const Slot &slot : type->slots)
            if (!slot.type->is_composite() && slot.append != nullptr)
                check(ie, slot);
        TarnDeleteIe(static_cast<TarnIe *>(ie));
    }
}

} // namespace
