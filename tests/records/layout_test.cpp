// Message records as callers lay them out: two whole examples, and the presence bits of a third.
#include <cstddef>

#include "support/library_test.h"
#include "support/samples.h"
#include "tarn_if.h"

namespace {

class RecordLayout : public LibraryTest {};

TEST_F(RecordLayout, UeContextRelease) {
    static_assert(offsetof(TarnUeContextReleaseRecord, MessageId) == 0);
    static_assert(offsetof(TarnUeContextReleaseRecord, presence) == 1);
    static_assert(offsetof(TarnUeContextReleaseRecord, Srnti) == 4);
    static_assert(offsetof(TarnUeContextReleaseRecord, AcUeId) == 8);
    static_assert(offsetof(TarnUeContextReleaseRecord, ReleaseCause) == 12);
    static_assert(offsetof(TarnUeContextReleaseRecord, RabDataInfoList) == 16);
    static_assert(offsetof(TarnRabDataInfoListRecord, count) == 0);
    static_assert(offsetof(TarnRabDataInfoListRecord, items) == 4);
    static_assert(sizeof(TarnRabDataInfoListRecord) == 4 + 3 * sizeof(TarnRabDataInfoRecord));
    static_assert(offsetof(TarnRabDataInfoRecord, presence) == 0);
    static_assert(offsetof(TarnRabDataInfoRecord, RabId) == 1);
    static_assert(offsetof(TarnRabDataInfoRecord, SuccTransferAtPsiw) == 4);
    static_assert(offsetof(TarnRabDataInfoRecord, UnSuccTransferAtRlc) == 8);

    TarnUeContextReleaseRecord record = {};
    record.presence = 0x80;
    record.Srnti = 1;
    record.AcUeId = 2;
    record.ReleaseCause = 3;
    record.RabDataInfoList.count = 2;
    record.RabDataInfoList.items[0].presence = 0x80;
    record.RabDataInfoList.items[0].RabId = 5;
    record.RabDataInfoList.items[0].UnSuccTransferAtRlc = 7;
    record.RabDataInfoList.items[1].RabId = 6;
    record.RabDataInfoList.items[1].UnSuccTransferAtRlc = 99; // not present
    const Bytes golden = from_hex("0048 00000001 04"
                                  "0001 00000004 00000001"
                                  "0003 00000004 00000002"
                                  "0005 00000002 0003"
                                  "0066 00000038"
                                  "  0067 0000001B 0017 00000001 05 0062 00000004 00000000"
                                  "                0061 00000004 00000007"
                                  "  0067 00000011 0017 00000001 06 0062 00000004 00000000");
    Bytes buffer(golden.size());
    EXPECT_EQ(TarnBuildUeContextReleaseMsg(buffer.data(), std::uint32_t(buffer.size()), &record),
              golden.size());
    EXPECT_EQ(buffer, golden);
}

TEST_F(RecordLayout, IuReleaseCommand) {
    static_assert(offsetof(TarnIuReleaseCommandRecord, MessageId) == 0);
    static_assert(offsetof(TarnIuReleaseCommandRecord, presence) == 1);
    static_assert(offsetof(TarnIuReleaseCommandRecord, Srnti) == 4);
    static_assert(offsetof(TarnIuReleaseCommandRecord, AcUeId) == 8);
    static_assert(offsetof(TarnIuReleaseCommandRecord, CnDomainId) == 12);
    static_assert(offsetof(TarnIuReleaseCommandRecord, IuRelCause) == 16);
    static_assert(offsetof(TarnIuReleaseCommandRecord, RespExpected) == 20);
    static_assert(offsetof(TarnIuReleaseCommandRecord, IuRelCauseNew) == 24);
    static_assert(sizeof(TarnIuReleaseCommandRecord) == 28);

    TarnIuReleaseCommandRecord record = {0xEE, 0x7F, 1, 2, 3, 4, 5, 6}; // every bit but the one
    const Bytes without = from_hex("0048 00000001 09 0001 00000004 00000001 0003 00000004 00000002"
                                   "0006 00000002 0003 0038 00000002 0004 0065 00000002 0005");
    const Bytes extra = from_hex("00AA 00000002 0006");
    Bytes buffer(without.size() + 8);
    EXPECT_EQ(TarnBuildIuReleaseCommandMsg(buffer.data(), std::uint32_t(buffer.size()), &record),
              without.size());
    EXPECT_EQ(Bytes(buffer.begin(), buffer.begin() + 51), without);
    record.presence = 0x80;
    EXPECT_EQ(TarnBuildIuReleaseCommandMsg(buffer.data(), std::uint32_t(buffer.size()), &record),
              buffer.size());
    EXPECT_EQ(Bytes(buffer.begin() + 51, buffer.end()), extra);

    TarnIuReleaseCommandRecord got = {};
    EXPECT_EQ(TarnGetIuReleaseCommandMsg(buffer.data(), std::uint32_t(buffer.size()), &got), 1U);
    EXPECT_EQ(got.MessageId, 9);
    EXPECT_EQ(got.presence, 0x80);
    EXPECT_EQ(got.RespExpected, 5U);
    EXPECT_EQ(got.IuRelCauseNew, 6U);
}

// Six bits: the container, the target and so on down to OldBssToNewBssInfo.
TEST_F(RecordLayout, RelocationRequiredPresence) {
    TarnRelocationRequiredRecord record = {};
    record.RelocationType = 2;
    std::uint8_t buffer[2600];
    const std::uint32_t least = TarnBuildRelocationRequiredMsg(buffer, sizeof buffer, &record);
    EXPECT_EQ(least, 7U + 10 + 10 + 8 + 8);
    record.presence = 0x04;
    record.OldBssToNewBssInfo.length = 1;
    record.OldBssToNewBssInfo.bytes[0] = 0xAB;
    EXPECT_EQ(TarnBuildRelocationRequiredMsg(buffer, sizeof buffer, &record), least + 7);
    EXPECT_EQ(Bytes(buffer + least, buffer + least + 7), from_hex("009F 00000001 AB"));
    record.RelocationType = 0;
    record.presence = 0x20 | 0x10 | 0x08;
    record.GsmClassmark3.length = 1;
    record.TargetCGI.PLMNId.length = 3;
    record.TargetCGI.LAC.length = 2;
    record.TargetCGI.CI.length = 2;
    EXPECT_EQ(TarnBuildRelocationRequiredMsg(buffer, sizeof buffer, &record), least + 6 + 7 + 31);
    record.RelocationType = 1;
    record.presence = 0x80 | 0x40;
    record.ModifiedSrncContainer.NumIuInstances = 1;
    record.TargetRNCId.LAI.PLMNId.length = 3;
    record.TargetRNCId.LAI.LAC.length = 2;
    EXPECT_EQ(TarnBuildRelocationRequiredMsg(buffer, sizeof buffer, &record),
              least + 6 + (6 + 10 + 7) + 6 + (6 + 9 + 8) + 8);
}

} // namespace
