// Sizes on the wire, and which tags are composite.
#include "support/library_test.h"
#include "support/samples.h"

namespace {

class SizesTest : public LibraryTest {};

TEST_F(SizesTest, ExactlyTheTagsOfCompositesAreComposite) {
    for (std::uint32_t tag = 0; tag <= 70000; ++tag) {
        const Type *type = protocol::type_by_tag(tag);
        ASSERT_EQ(TarnIsComplexType(tag) != 0, type != nullptr && type->is_composite()) << tag;
    }
    // Bits above the sixteen of a tag are not dropped.
    for (std::uint32_t tag : {0x80000015U, 0xFFFFFFADU, 0xFFFFFFFFU})
        EXPECT_EQ(TarnIsComplexType(tag), 0U) << tag;
}

TEST_F(SizesTest, IesOfTagsThatAreNotCodedTakeTheirHeaderAlone) {
    for (const std::uint16_t tag : samples::tags_without_ie()) {
        TarnIe head{}; // and no value behind it that could be read
        head.tag = tag;
        ASSERT_EQ(TarnSizeOfIe(&head), 6U) << tag;
        ASSERT_EQ(TarnGetIeTag(&head), tag);
    }
}

TEST_F(SizesTest, AnEmptyCompositeTakesItsHeaderAlone) {
    for (const Type *type : samples::composites()) {
        auto *ie = static_cast<TarnIe *>(type->create());
        EXPECT_EQ(TarnSizeOfIe(ie), 6U) << type->name;
        TarnDeleteIe(ie);
    }
}

TEST_F(SizesTest, ACompositeTakesAllItsDescendants) {
    TarnUeContextRefIe *ref = TarnNewUeContextRefIe();
    const TarnAcUeId acUeId = 7;
    TarnAppendAcUeIdToUeContextRefIe(ref, &acUeId);
    EXPECT_EQ(TarnSizeOfIe(&ref->ie), 16U); // 6 + AcUeId (6 + 4)
    TarnRabDataInfoListIe *list = TarnNewRabDataInfoListIe();
    TarnRabDataInfoIe *info = TarnNewRabDataInfoIe();
    const TarnRabId rabId = 5;
    TarnAppendRabIdToRabDataInfoIe(info, &rabId);
    TarnAppendRabDataInfoIeToRabDataInfoListIe(list, info);
    TarnAppendRabDataInfoIeToRabDataInfoListIe(list, TarnNewRabDataInfoIe());
    TarnAppendRabDataInfoListIeToUeContextRefIe(ref, list);
    EXPECT_EQ(TarnSizeOfIe(&info->ie), 13U); // 6 + RabId (6 + 1)
    EXPECT_EQ(TarnSizeOfIe(&list->ie), 25U); // 6 + 13 + an empty element's 6
    EXPECT_EQ(TarnSizeOfIe(&ref->ie), 41U);  // 16 + 25
    TarnDeleteIe(&ref->ie);
}

TEST_F(SizesTest, AMessageTakesAllItsIesAndNothingElse) {
    TarnMsg *msg = TarnNewUlDirectTransferMsg();
    EXPECT_EQ(TarnSizeOfMsg(msg), 7);
    const TarnCnDomainId domain = 1;
    TarnAppendCnDomainIdToUlDirectTransferMsg(msg, &domain);
    EXPECT_EQ(TarnSizeOfMsg(msg), 15); // 7 + 6 + 2
    TarnNasMsg nas{};
    nas.length = 4095;
    TarnAppendNasMsgToUlDirectTransferMsg(msg, &nas);
    EXPECT_EQ(TarnSizeOfMsg(msg), 4116); // 15 + 6 + 4095
    TarnDeleteMsg(msg);
}

TEST_F(SizesTest, AMessageWithoutIesTakesNothing) {
    TarnMsg empty{};
    EXPECT_EQ(TarnSizeOfMsg(&empty), 0);
}

// Stored lengths that no IE can have, as a caller's object may hold them.

TEST_F(SizesTest, ABeyondAllBoundsLengthDoesNotWrapTheSizeOfItsIe) {
    const struct {
        std::uint32_t length;
        std::uint32_t size;
    } cases[] = {{0xFFFFFFF9, 0xFFFFFFFF},
                 {0xFFFFFFFA, 0xFFFFFFFF},
                 {0xFFFFFFFF, 0xFFFFFFFF},
                 {0xFFFFFFF0, 0xFFFFFFF6}};
    for (const auto &c : cases) {
        TarnCIIe ie{};
        ie.ie.tag = 113;
        ie.value.length = c.length;
        EXPECT_EQ(TarnSizeOfCI(&ie.value), c.length);
        EXPECT_EQ(TarnSizeOfIe(&ie.ie), c.size) << c.length;
    }
}

TEST_F(SizesTest, MembersDoNotWrapTheSizeOfTheirRecord) {
    TarnTargetCGI cgi{};
    cgi.PLMNId.length = 0x7FFFFFFF;
    cgi.LAC.length = 0x7FFFFFFF;
    EXPECT_EQ(TarnSizeOfTargetCGI(&cgi), 0xFFFFFFFFU); // 0xFFFFFFFE and 18 for the headers
    cgi.CI.length = 0xFFFFFFFF;
    EXPECT_EQ(TarnSizeOfTargetCGI(&cgi), 0xFFFFFFFFU);
}

TEST_F(SizesTest, ChildrenDoNotWrapTheSizeOfTheirOwner) {
    TarnModifiedSrncContainerIe *container = TarnNewModifiedSrncContainerIe();
    const TarnRrcContainer rrc{};
    for (int i = 0; i < 2; ++i)
        TarnAppendRrcContainerToModifiedSrncContainerIe(container, &rrc);
    for (VelDllNode *node = container->children.first; node != nullptr; node = node->next)
        reinterpret_cast<TarnRrcContainerIe *>(node)->value.length = 0x7FFFFFFD;
    EXPECT_EQ(TarnSizeOfIe(&container->ie), 0xFFFFFFFFU); // 6 + 2 * (6 + 0x7FFFFFFD)
    TarnMsg *msg = TarnNewHandoverRequestMsg();
    TarnAppendModifiedSrncContainerIeToHandoverRequestMsg(msg, container);
    EXPECT_EQ(TarnSizeOfMsg(msg), INT32_MAX);
    TarnDeleteMsg(msg);
}

TEST_F(SizesTest, AMessageSizeIsNeverNegative) {
    const struct {
        std::uint32_t length;
        std::int32_t size;
    } cases[] = {{0x7FFFFFF1, 0x7FFFFFFE}, // with 6 for the header and 7 for the MessageId IE
                 {0x7FFFFFF2, 0x7FFFFFFF},
                 {0x7FFFFFF3, 0x7FFFFFFF},
                 {0xFFFFFFFF, 0x7FFFFFFF}};
    for (const auto &c : cases) {
        TarnMsg *msg = TarnNewRelocationCommandMsg();
        const TarnRrcContainer rrc{};
        TarnAppendRrcContainerToRelocationCommandMsg(msg, &rrc);
        reinterpret_cast<TarnRrcContainerIe *>(msg->ies.last)->value.length = c.length;
        EXPECT_EQ(TarnSizeOfMsg(msg), c.size) << c.length;
        TarnDeleteMsg(msg);
    }
}

TEST_F(SizesTest, AListBeyondItsArrayIsSizedByItsArray) {
    TarnRabIdList ids{};
    TarnHandoutRabReleaseList handout{};
    handout.items[1].RabIdList.count = 4;
    for (std::uint32_t count : {3U, 4U, 0xFFFFFFFFU}) {
        ids.count = count;
        EXPECT_EQ(TarnSizeOfRabIdList(&ids), 21U); // 3 * (6 + 1)
        handout.count = count;
        // Two items of header, CnDomainId (8) and RabIdList (6), and three ids in the second.
        EXPECT_EQ(TarnSizeOfHandoutRabReleaseList(&handout), 61U);
    }
}

} // namespace
