// Values and their bytes, worked out by hand from the wire format: tag, length, value, all most
// significant byte first.
#include "primitive_ies/primitive_values.h"
#include "support/library_test.h"

namespace {

struct Golden {
    const char *type;
    Bytes value;
    const char *bytes; // of the whole IE; of the bare value for a type that is no IE
};

// The value's memory.
template <class Value>
Bytes of(const Value &value) {
    const auto *bytes = reinterpret_cast<const std::uint8_t *>(&value);
    return {bytes, bytes + sizeof value};
}

class GoldenTest : public LibraryTest {
protected:
    static void check_ie(const Golden &golden) {
        const Type &type = *protocol::type_by_name(golden.type);
        const Bytes expected = from_hex(golden.bytes);
        const Bytes ie = samples::make_ie(type, golden.value);
        EXPECT_EQ(TarnSizeOfIe(reinterpret_cast<const TarnIe *>(ie.data())), expected.size());
        samples::Room room(expected.size());
        std::uint32_t written = 0;
        ASSERT_EQ(type.packIe(ie.data(), room.data(), room.available(), &written), 1U);
        EXPECT_EQ(written, expected.size());
        EXPECT_EQ(room.first(written), expected);

        const samples::Input input(expected);
        Bytes read(sizeof(TarnIe) + type.valueSize, 0xCD);
        std::uint32_t consumed = 0;
        ASSERT_EQ(type.unpackIe(read.data(), input.data(), input.size(), &consumed), 1U);
        EXPECT_EQ(consumed, expected.size());
        EXPECT_EQ(samples::show(type, protocol::value_of(read.data())),
                  samples::show(type, golden.value.data()));
    }

    static void check_bare(const Golden &golden) {
        const Type &type = *protocol::type_by_name(golden.type);
        const Bytes expected = from_hex(golden.bytes);
        EXPECT_EQ(type.sizeOf(golden.value.data()), expected.size());
        samples::Room room(expected.size());
        std::uint32_t written = 0;
        ASSERT_EQ(type.pack(golden.value.data(), room.data(), room.available(), &written), 1U);
        EXPECT_EQ(written, expected.size());
        EXPECT_EQ(room.first(written), expected);

        const samples::Input input(expected);
        Bytes read(type.valueSize, 0xCD);
        std::uint32_t consumed = 0;
        ASSERT_EQ(type.unpack(read.data(), input.size(), input.data(), input.size(), &consumed),
                  1U);
        EXPECT_EQ(consumed, expected.size());
        EXPECT_EQ(samples::show(type, read.data()), samples::show(type, golden.value.data()));
    }

    static void check(const std::vector<Golden> &rows) {
        for (const Golden &row : rows) {
            SCOPED_TRACE(row.type);
            if (protocol::type_by_name(row.type)->hasIe)
                check_ie(row);
            else
                check_bare(row);
        }
    }
};

TEST_F(GoldenTest, Scalars) {
    check({
        {"MessageId", of(TarnMessageId{17}), "00 48 00 00 00 01 11"},
        {"RabId", of(TarnRabId{0xFE}), "00 17 00 00 00 01 FE"},
        {"NumIuInstances", of(TarnNumIuInstances{2}), "00 9A 00 00 00 01 02"},
        {"UdpPort", of(TarnUdpPort{0xABCD}), "00 3E 00 00 00 02 AB CD"},
        {"RNCId", of(TarnRNCId{4096}), "00 6F 00 00 00 02 10 00"},
        // The same association takes 4 bytes on one side and 2 on the other.
        {"AcUserPlaneAssociation", of(TarnAcUserPlaneAssociation{0x01020304}),
         "00 18 00 00 00 04 01 02 03 04"},
        {"ApUserPlaneAssociation", of(TarnApUserPlaneAssociation{0x0102}),
         "00 2C 00 00 00 02 01 02"},
        // Code words: 32 bits in memory, 16 on the wire.
        {"EstablishCause", of(TarnEstablishCause{5}), "00 02 00 00 00 02 00 05"},
        {"TrafficClass", of(TarnTrafficClass{0xFFFE}), "00 1B 00 00 00 02 FF FE"},
        {"RoutingBasis", of(TarnRoutingBasis{3}), "00 AF 00 00 00 02 00 03"},
        {"GtpTeid", of(TarnGtpTeid{0x12345678}), "00 AB 00 00 00 04 12 34 56 78"},
        {"TargetCellId", of(TarnTargetCellId{0x0FEDCBA9}), "00 76 00 00 00 04 0F ED CB A9"},
        // 4 bytes, although the range fits in one.
        {"CpsSduMaxSize", of(TarnCpsSduMaxSize{45}), "00 A4 00 00 00 04 00 00 00 2D"},
        // No IEs: no tag and no length.
        {"IpAddressByte", of(TarnIpAddressByte{0x7F}), "7F"},
        {"PdpTypeInfo", of(TarnPdpTypeInfo{0x0102}), "01 02"},
        {"TransactionId", of(TarnTransactionId{0xA1B2}), "A1 B2"},
        {"BitRate", of(TarnBitRate{0x00100000}), "00 10 00 00"},
        {"DataVolReporting", of(TarnDataVolReporting{0xFFFFFFFE}), "FF FF FF FE"},
    });
}

TEST_F(GoldenTest, ByteStrings) {
    check({
        // The bytes as they are: no number, no digits.
        {"LAC", of(TarnLAC{2, {0x12, 0x34}}), "00 6D 00 00 00 02 12 34"},
        {"PLMNId", of(TarnPLMNId{3, {0x00, 0xF1, 0x10}}), "00 6C 00 00 00 03 00 F1 10"},
        {"NasUeId", of(TarnNasUeId{5, {1, 2, 3, 4, 5}}), "00 5C 00 00 00 05 01 02 03 04 05"},
        {"NasMsg", of(TarnNasMsg{1, {0x80}}), "00 07 00 00 00 01 80"},
        {"GsmClassmark2", of(TarnGsmClassmark2{0, {}}), "00 72 00 00 00 00"},
        {"MasterSalt", of(TarnMasterSalt{14, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14}}),
         "00 56 00 00 00 0E 01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E"},
    });
}

TEST_F(GoldenTest, Records) {
    check({
        {"BitErrRatio", of(TarnBitErrRatio{9, 7}),
         "00 24 00 00 00 0E  00 25 00 00 00 01 09  00 26 00 00 00 01 07"},
        {"UserPlaneInfo", of(TarnUserPlaneInfo{1, 0x0203}),
         "00 20 00 00 00 10  00 14 00 00 00 02 00 01  00 27 00 00 00 02 02 03"},
        {"Idnns", of(TarnIdnns{2, 1023}),
         "00 B1 00 00 00 10  00 AF 00 00 00 02 00 02  00 B0 00 00 00 02 03 FF"},
        {"AllocRetPriority", of(TarnAllocRetPriority{14, 1, 0, 2}),
         "00 32 00 00 00 1F  00 33 00 00 00 01 0E  00 34 00 00 00 02 00 01"
         "  00 35 00 00 00 02 00 00  00 36 00 00 00 02 00 02"},
        {"LAI", of(TarnLAI{{3, {0x02, 0xF8, 0x01}}, {2, {0xAB, 0xCD}}}),
         "00 6B 00 00 00 11  00 6C 00 00 00 03 02 F8 01  00 6D 00 00 00 02 AB CD"},
        {"TargetCGI", of(TarnTargetCGI{{3, {1, 2, 3}}, {2, {4, 5}}, {2, {6, 7}}}),
         "00 70 00 00 00 19  00 6C 00 00 00 03 01 02 03  00 6D 00 00 00 02 04 05"
         "  00 71 00 00 00 02 06 07"},
        {"TempUeId", of(TarnTempUeId{1, {4, {0xDE, 0xAD, 0xBE, 0xEF}}}),
         "00 4D 00 00 00 12  00 4E 00 00 00 02 00 01  00 4F 00 00 00 04 DE AD BE EF"},
        {"AlcapLinkCharacteristics", of(TarnAlcapLinkCharacteristics{2097152, 45, 1, 2}),
         "00 A2 00 00 00 28  00 A3 00 00 00 04 00 20 00 00  00 A4 00 00 00 04 00 00 00 2D"
         "  00 A5 00 00 00 04 00 00 00 01  00 A6 00 00 00 04 00 00 00 02"},
        {"IntProtInfo",
         of(TarnIntProtInfo{1, {16, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16}}}),
         "00 0B 00 00 00 1E  00 0C 00 00 00 02 00 01"
         "  00 0D 00 00 00 10 01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F 10"},
        // Both members may be empty strings.
        {"RtpSecurityInfo", of(TarnRtpSecurityInfo{{2, {0x5A, 0xA5}}, {0, {}}}),
         "00 54 00 00 00 0E  00 55 00 00 00 02 5A A5  00 56 00 00 00 00"},
        // The first member is a list.
        {"EncryptInfo",
         of(TarnEncryptInfo{{2, {0, 1}},
                            {16, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16}}}),
         "00 0E 00 00 00 2C  00 0F 00 00 00 10  00 11 00 00 00 02 00 00  00 11 00 00 00 02 00 01"
         "  00 10 00 00 00 10 01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F 10"},
        // No IEs of their own.
        {"RabReleaseInfo", of(TarnRabReleaseInfo{6, 0x0102}),
         "00 17 00 00 00 01 06  00 44 00 00 00 02 01 02"},
        {"IapTransLayerInfo", of(TarnIapTransLayerInfo{{4, {10, 0, 0, 1}}, 2152}),
         "00 3C 00 00 00 1C  00 3D 00 00 00 01 0A  00 3D 00 00 00 01 00"
         "  00 3D 00 00 00 01 00  00 3D 00 00 00 01 01  00 3E 00 00 00 02 08 68"},
    });
}

TEST_F(GoldenTest, Lists) {
    check({
        {"BitRates", of(TarnBitRates{0, {}}), "00 1E 00 00 00 00"},
        {"BitRates", of(TarnBitRates{2, {0x01020304, 5}}),
         "00 1E 00 00 00 14  00 1F 00 00 00 04 01 02 03 04  00 1F 00 00 00 04 00 00 00 05"},
        {"EncryptAlgos", of(TarnEncryptAlgos{1, {1, 0}}),
         "00 0F 00 00 00 08  00 11 00 00 00 02 00 01"},
        {"PdpTypeInfoList", of(TarnPdpTypeInfoList{1, {3, 0}}),
         "00 2D 00 00 00 08  00 2E 00 00 00 02 00 03"},
        {"IpAddress", of(TarnIpAddress{4, {10, 0, 0, 1}}),
         "00 3C 00 00 00 1C  00 3D 00 00 00 01 0A  00 3D 00 00 00 01 00"
         "  00 3D 00 00 00 01 00  00 3D 00 00 00 01 01"},
        // The items carry the tag that the RabId IE has itself.
        {"RabIdList", of(TarnRabIdList{3, {1, 2, 0xFF}}),
         "00 A7 00 00 00 15  00 17 00 00 00 01 01  00 17 00 00 00 01 02  00 17 00 00 00 01 FF"},
        {"RabSetupFailedList", of(TarnRabSetupFailedList{1, {{5, 14}, {}, {}}}),
         "00 3F 00 00 00 15  00 40 00 00 00 0F  00 17 00 00 00 01 05  00 41 00 00 00 02 00 0E"},
        {"RabReleaseList", of(TarnRabReleaseList{2, {{1, 2}, {3, 4}, {}}}),
         "00 42 00 00 00 2A  00 43 00 00 00 0F  00 17 00 00 00 01 01  00 44 00 00 00 02 00 02"
         "  00 43 00 00 00 0F  00 17 00 00 00 01 03  00 44 00 00 00 02 00 04"},
        // A list in a record in a list.
        {"HandoutRabReleaseList",
         of(TarnHandoutRabReleaseList{2, {{0, {1, {7}}}, {1, {2, {8, 9}}}}}),
         "00 79 00 00 00 3D"
         "  00 7A 00 00 00 15  00 06 00 00 00 02 00 00  00 A7 00 00 00 07  00 17 00 00 00 01 07"
         "  00 7A 00 00 00 1C  00 06 00 00 00 02 00 01  00 A7 00 00 00 0E  00 17 00 00 00 01 08"
         "  00 17 00 00 00 01 09"},
    });
}

// The bits of a code word above the sixteen that travel are the caller's: they are dropped when
// packing, refused by nobody, and come back as zeros.
TEST_F(GoldenTest, CodeWordsDropWhatDoesNotTravel) {
    std::size_t codeWords = 0;
    for (const Type *type : samples::primitives()) {
        if (type->shape != Shape::scalar || type->width != 2 || type->valueSize != 4)
            continue;
        ++codeWords;
        for (std::uint32_t value : {0x00010005U, 0xFFFF0005U}) {
            samples::Room room(2);
            std::uint32_t written = 0;
            EXPECT_EQ(type->isValid(&value), 1U) << type->name;
            ASSERT_EQ(type->pack(&value, room.data(), 2, &written), 1U) << type->name;
            EXPECT_EQ(room.first(2), (Bytes{0x00, 0x05})) << type->name;
            std::uint32_t read = 0xFFFFFFFF;
            ASSERT_EQ(type->unpack(&read, 2, room.data(), 2, &written), 1U) << type->name;
            EXPECT_EQ(read, 5U) << type->name;
        }
    }
    // The 2-byte scalars but for thirteen 16-bit quantities and TransactionId.
    EXPECT_GE(codeWords, 43U);
}

} // namespace
