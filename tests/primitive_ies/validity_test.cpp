// Ranges, and the tag that an IE object must have.
#include <cstring>

#include "primitive_ies/primitive_values.h"
#include "support/library_test.h"

namespace {

class ValidityTest : public LibraryTest {};

TEST_F(ValidityTest, EveryTypeTakesBothOfItsBounds) {
    for (const Type *type : samples::primitives())
        for (Amount amount : samples::allAmounts) {
            const Bytes value = samples::make_value(*type, amount);
            EXPECT_EQ(type->isValid(value.data()), 1U) << samples::show(*type, value.data());
            if (type->hasIe) {
                EXPECT_EQ(type->isIeValid(samples::make_ie(*type, value).data()), 1U) << type->name;
            }
        }
}

TEST_F(ValidityTest, EveryTypeRefusesWhatLiesBeyondThemAtAnyDepth) {
    std::size_t refused = 0;
    for (const Type *type : samples::primitives())
        for (const samples::Spoiler &spoiler : samples::spoilers(*type)) {
            Bytes value = samples::make_value(*type, Amount::most);
            spoiler.spoil(value.data());
            EXPECT_EQ(type->isValid(value.data()), 0U) << spoiler.what;
            if (type->hasIe) {
                EXPECT_EQ(type->isIeValid(samples::make_ie(*type, value).data()), 0U)
                    << spoiler.what;
            }
            ++refused;
        }
    EXPECT_GT(refused, 150U);
}

TEST_F(ValidityTest, AnIeIsValidUnderItsOwnTagAlone) {
    for (const Type *type : samples::primitive_ies()) {
        Bytes ie = samples::make_ie(*type, samples::make_value(*type, Amount::full));
        for (std::uint32_t tag = 0; tag <= 0xFFFF; tag += tag < 0x200 ? 1 : 0x1F) {
            reinterpret_cast<TarnIe *>(ie.data())->tag = std::uint16_t(tag);
            ASSERT_EQ(type->isIeValid(ie.data()), tag == type->tag) << type->name << " " << tag;
        }
    }
}

// The bounds that are not what the width or a power of two would suggest, as numbers of their own:
// the loops above would follow a wrong row.
TEST_F(ValidityTest, UnusualBounds) {
    const struct {
        const char *type;
        std::uint32_t least;
        std::uint32_t greatest;
    } numbers[] = {
        {"RNCId", 0, 4096},
        {"TargetCellId", 0, 0x0FFFFFFF},
        {"RoutingParameter", 0, 1023},
        {"GtpEchoPeriod", 60, 600},
        {"NumIuInstances", 1, 2},
        {"MaxBitRateUplink", 0, 8000000},
        {"MaxBitRateDownlink", 0, 16000000},
        {"CpsSduMaxBitRate", 0, 2097152},
        {"CpsSduAvgBitRate", 0, 2097152},
        {"CpsSduMaxSize", 1, 45},
        {"CpsSduAvgSize", 1, 45},
    };
    const struct {
        const char *type;
        std::uint32_t least;
        std::uint32_t greatest;
    } counts[] = {
        {"NasMsg", 1, 4095},
        {"IntProtKey", 16, 16},
        {"EncryptKey", 16, 16},
        {"TempUeIdValue", 4, 4},
        {"MasterKey", 0, 16},
        {"MasterSalt", 0, 14},
        {"NasUeId", 3, 8},
        {"PLMNId", 3, 3},
        {"LAC", 2, 2},
        {"CI", 2, 2},
        {"GsmClassmark2", 0, 5},
        {"GsmClassmark3", 1, 32},
        {"RrcContainer", 0, 2000},
        {"L3Information", 0, 255},
        {"OldBssToNewBssInfo", 0, 255},
        {"Imsi", 16, 16},
        {"EncryptAlgos", 1, 2},
        {"BitRates", 0, 2},
        {"PdpTypeInfoList", 0, 2},
        {"IpAddress", 4, 4},
        {"RabSetupFailedList", 0, 3},
        {"RabReleaseList", 0, 3},
        {"RabIdList", 1, 3},
    };
    for (const auto &row : numbers) {
        const Type &type = *protocol::type_by_name(row.type);
        for (std::uint64_t number :
             {std::uint64_t(0), row.least - std::uint64_t(1), std::uint64_t(row.least),
              std::uint64_t(row.greatest), std::uint64_t(row.greatest) + 1, std::uint64_t(0xFF)}) {
            if (number > 0xFFFFFFFF)
                continue;
            std::uint32_t value = std::uint32_t(number);
            const auto two = std::uint16_t(number);
            const auto one = std::uint8_t(number);
            if (type.valueSize < 4)
                std::memcpy(&value, type.valueSize == 2 ? static_cast<const void *>(&two) : &one,
                            type.valueSize);
            EXPECT_EQ(type.isValid(&value), number >= row.least && number <= row.greatest)
                << row.type << " " << number;
        }
    }
    for (const auto &row : counts) {
        const Type &type = *protocol::type_by_name(row.type);
        for (std::uint32_t count = 0; count <= 5000; ++count) {
            Bytes value(type.valueSize, 0);
            *reinterpret_cast<std::uint32_t *>(value.data()) = count;
            // The items of none of these lists, all of them zero, are out of range.
            ASSERT_EQ(type.isValid(value.data()), count >= row.least && count <= row.greatest)
                << row.type << " " << count;
        }
    }
}

TEST_F(ValidityTest, AListIsJudgedByTheItemsThatItCountsAlone) {
    TarnHandoutRabReleaseList list{};
    list.count = 1;
    list.items[0].RabIdList.count = 1;
    list.items[1].RabIdList.count = 0; // would be invalid
    EXPECT_EQ(TarnIsHandoutRabReleaseListValid(&list), 1U);
    list.count = 2;
    EXPECT_EQ(TarnIsHandoutRabReleaseListValid(&list), 0U);
    list.items[1].RabIdList.count = 3;
    EXPECT_EQ(TarnIsHandoutRabReleaseListValid(&list), 1U);
    list.count = 0;
    EXPECT_EQ(TarnIsHandoutRabReleaseListValid(&list), 0U);
}

} // namespace
