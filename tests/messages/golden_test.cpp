// Messages against bytes that were worked out by hand.
#include "support/library_test.h"
#include "support/samples.h"
#include "tarn_if.h"

using samples::Bytes;
using samples::from_hex;
using samples::MsgPtr;

namespace {

class MessageGolden : public LibraryTest {
protected:
    static void expect_packs(std::uint32_t id, const TarnMsg *msg, const Bytes &golden) {
        const protocol::Message &message = *protocol::message_by_id(id);
        EXPECT_EQ(message.isValid(msg), 1U);
        ASSERT_EQ(TarnSizeOfMsg(msg), std::int32_t(golden.size()));
        Bytes packed(golden.size());
        EXPECT_EQ(message.pack(msg, packed.data(), std::uint32_t(packed.size())), 1U);
        EXPECT_EQ(packed, golden);
    }

    // The object road there, and the bytes back into another object.
    static MsgPtr expect_bytes(std::uint32_t id, const TarnMsg *msg, const Bytes &golden) {
        expect_packs(id, msg, golden);
        EXPECT_EQ(TarnGetMessageId(golden.data(), std::uint32_t(golden.size())), id);
        const samples::Exact bytes(golden);
        TarnMsg *read = nullptr;
        EXPECT_EQ(TarnUnpackNewMsg(bytes.data(), bytes.size(), &read), 1U);
        MsgPtr owner(read);
        EXPECT_EQ(read->messageId, id);
        expect_packs(id, read, golden);
        return owner;
    }
};

constexpr TarnSrnti srnti = 0x01020304;
constexpr TarnAcUeId acUeId = 0xA0B0C0D0;
constexpr TarnCnDomainId packetDomain = 1;

TEST_F(MessageGolden, SecurityModeReject) {
    const MsgPtr msg(TarnNewSecurityModeRejectMsg());
    const TarnSecRejCause cause = 0x77770005; // the low 16 bits travel
    EXPECT_EQ(TarnSizeOfMsg(msg.get()), 7);
    TarnAppendSrntiToSecurityModeRejectMsg(msg.get(), &srnti);
    TarnAppendAcUeIdToSecurityModeRejectMsg(msg.get(), &acUeId);
    TarnAppendCnDomainIdToSecurityModeRejectMsg(msg.get(), &packetDomain);
    TarnAppendSecRejCauseToSecurityModeRejectMsg(msg.get(), &cause);
    const MsgPtr read = expect_bytes(12, msg.get(),
                                     from_hex("0048 00000001 0C"
                                              "0001 00000004 01020304"
                                              "0003 00000004 A0B0C0D0"
                                              "0006 00000002 0001"
                                              "0012 00000002 0005"));
    TarnSecRejCause extracted = 0;
    EXPECT_EQ(TarnExtractSecRejCauseFromSecurityModeRejectMsg(read.get(), &extracted), 1U);
    EXPECT_EQ(extracted, 5U);
    EXPECT_EQ(TarnExtractSecRejCauseFromSecurityModeRejectMsg(read.get(), &extracted), 0U);
}

TEST_F(MessageGolden, IuReleaseCommandWithNewCause) {
    const MsgPtr msg(TarnNewIuReleaseCommandMsg());
    const TarnIuRelCause cause = 0x0102;
    const TarnRespExpected expected = 1;
    const TarnIuRelCauseNew newCause = 0xFFFE;
    TarnAppendSrntiToIuReleaseCommandMsg(msg.get(), &srnti);
    TarnAppendAcUeIdToIuReleaseCommandMsg(msg.get(), &acUeId);
    TarnAppendCnDomainIdToIuReleaseCommandMsg(msg.get(), &packetDomain);
    TarnAppendIuRelCauseToIuReleaseCommandMsg(msg.get(), &cause);
    TarnAppendRespExpectedToIuReleaseCommandMsg(msg.get(), &expected);
    TarnAppendIuRelCauseNewToIuReleaseCommandMsg(msg.get(), &newCause);
    expect_bytes(9, msg.get(),
                 from_hex("0048 00000001 09"
                          "0001 00000004 01020304"
                          "0003 00000004 A0B0C0D0"
                          "0006 00000002 0001"
                          "0038 00000002 0102"
                          "0065 00000002 0001"
                          "00AA 00000002 FFFE"));
}

TEST_F(MessageGolden, InitDirectTransferWithAllIes) {
    const MsgPtr msg(TarnNewInitDirectTransferMsg());
    const TarnNasMsg nas = {3, {0x05, 0x08, 0x70}};
    const TarnImsi imsi = {16, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15}};
    const TarnIdnns idnns = {2, 1023};
    TarnAppendSrntiToInitDirectTransferMsg(msg.get(), &srnti);
    TarnAppendAcUeIdToInitDirectTransferMsg(msg.get(), &acUeId);
    TarnAppendCnDomainIdToInitDirectTransferMsg(msg.get(), &packetDomain);
    TarnAppendNasMsgToInitDirectTransferMsg(msg.get(), &nas);
    TarnAppendImsiToInitDirectTransferMsg(msg.get(), &imsi);
    TarnAppendIdnnsToInitDirectTransferMsg(msg.get(), &idnns);
    expect_bytes(5, msg.get(),
                 from_hex("0048 00000001 05"
                          "0001 00000004 01020304"
                          "0003 00000004 A0B0C0D0"
                          "0006 00000002 0001"
                          "0007 00000003 050870"
                          "00A9 00000010 000102030405060708090A0B0C0D0E0F"
                          "00B1 00000010 00AF 00000002 0002 00B0 00000002 03FF"));
}

TEST_F(MessageGolden, UeContextReleaseWithTwoRabs) {
    TarnRabDataInfoListIe *list = TarnNewRabDataInfoListIe();
    for (TarnRabId rabId = 5; rabId < 7; ++rabId) {
        TarnRabDataInfoIe *rab = TarnNewRabDataInfoIe();
        const TarnSuccTransferAtPsiw transferred = 0x100U * rabId;
        TarnAppendRabIdToRabDataInfoIe(rab, &rabId);
        TarnAppendSuccTransferAtPsiwToRabDataInfoIe(rab, &transferred);
        TarnAppendRabDataInfoIeToRabDataInfoListIe(list, rab);
    }
    const MsgPtr msg(TarnNewUeContextReleaseMsg());
    const TarnReleaseCause cause = 2;
    TarnAppendSrntiToUeContextReleaseMsg(msg.get(), &srnti);
    TarnAppendAcUeIdToUeContextReleaseMsg(msg.get(), &acUeId);
    TarnAppendReleaseCauseToUeContextReleaseMsg(msg.get(), &cause);
    TarnAppendRabDataInfoListIeToUeContextReleaseMsg(msg.get(), list);
    expect_bytes(4, msg.get(),
                 from_hex("0048 00000001 04"
                          "0001 00000004 01020304"
                          "0003 00000004 A0B0C0D0"
                          "0005 00000002 0002"
                          "0066 0000002E"
                          "  0067 00000011 0017 00000001 05 0062 00000004 00000500"
                          "  0067 00000011 0017 00000001 06 0062 00000004 00000600"));
}

TEST_F(MessageGolden, RelocationRequiredToAnotherRat) {
    const MsgPtr msg(TarnNewRelocationRequiredMsg());
    const TarnRelocationRequiredCause cause = 7;
    const TarnRelocationType interRat = 0;
    const TarnGsmClassmark2 classmark2 = {0, {}};
    const TarnGsmClassmark3 classmark3 = {1, {0x60}};
    const TarnTargetCGI cell = {{3, {0x62, 0xF2, 0x10}}, {2, {1, 2}}, {2, {3, 4}}};
    TarnAppendSrntiToRelocationRequiredMsg(msg.get(), &srnti);
    TarnAppendAcUeIdToRelocationRequiredMsg(msg.get(), &acUeId);
    TarnAppendRelocationRequiredCauseToRelocationRequiredMsg(msg.get(), &cause);
    TarnAppendRelocationTypeToRelocationRequiredMsg(msg.get(), &interRat);
    TarnAppendGsmClassmark2ToRelocationRequiredMsg(msg.get(), &classmark2);
    TarnAppendGsmClassmark3ToRelocationRequiredMsg(msg.get(), &classmark3);
    TarnAppendTargetCGIToRelocationRequiredMsg(msg.get(), &cell);
    expect_bytes(24, msg.get(),
                 from_hex("0048 00000001 18"
                          "0001 00000004 01020304"
                          "0003 00000004 A0B0C0D0"
                          "0068 00000002 0007"
                          "009B 00000002 0000"
                          "0072 00000000"
                          "0073 00000001 60"
                          "0070 00000019 006C 00000003 62F210 006D 00000002 0102"
                          "              0071 00000002 0304"));
}

TEST_F(MessageGolden, RabAssignmentRequestOfNoRab) {
    const MsgPtr msg(TarnNewRabAssignmentRequestMsg());
    TarnAppendSrntiToRabAssignmentRequestMsg(msg.get(), &srnti);
    TarnAppendAcUeIdToRabAssignmentRequestMsg(msg.get(), &acUeId);
    TarnAppendCnDomainIdToRabAssignmentRequestMsg(msg.get(), &packetDomain);
    TarnAppendRabListIeToRabAssignmentRequestMsg(msg.get(), TarnNewRabListIe());
    expect_bytes(13, msg.get(),
                 from_hex("0048 00000001 0D"
                          "0001 00000004 01020304"
                          "0003 00000004 A0B0C0D0"
                          "0006 00000002 0001"
                          "0015 00000000"));
}

TEST_F(MessageGolden, AccessControlRequest) {
    const MsgPtr msg(TarnNewAccessControlRequestMsg());
    const TarnLAC lac = {2, {0xAB, 0xCD}};
    const TarnImsi imsi = {16, {0xFF}};
    TarnAppendSrntiToAccessControlRequestMsg(msg.get(), &srnti);
    TarnAppendAcUeIdToAccessControlRequestMsg(msg.get(), &acUeId);
    TarnAppendLACToAccessControlRequestMsg(msg.get(), &lac);
    TarnAppendImsiToAccessControlRequestMsg(msg.get(), &imsi);
    expect_bytes(38, msg.get(),
                 from_hex("0048 00000001 26"
                          "0001 00000004 01020304"
                          "0003 00000004 A0B0C0D0"
                          "006D 00000002 ABCD"
                          "00A9 00000010 FF000000000000000000000000000000"));
}

} // namespace
