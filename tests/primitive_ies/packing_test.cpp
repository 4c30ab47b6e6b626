// Packing every primitive type: exact bytes into exact room, nothing into less.
#include "primitive_ies/primitive_values.h"
#include "support/library_test.h"

namespace {

using samples::untouched;

class PackingTest : public LibraryTest {};

bool counts_failures(const Type &type) {
    return type.shape == Shape::record || type.shape == Shape::list;
}

TEST_F(PackingTest, WritesExactlyTheValue) {
    for (const Type *type : samples::primitives())
        for (Amount amount : samples::allAmounts) {
            const Bytes value = samples::make_value(*type, amount);
            const Bytes expected = samples::encode_value(*type, value.data());
            ASSERT_EQ(type->sizeOf(value.data()), expected.size()) << type->name;
            for (std::size_t more : {0U, 1U, 7U}) {
                samples::Room room(expected.size() + more);
                std::uint32_t written = untouched;
                ASSERT_EQ(type->pack(value.data(), room.data(), room.available(), &written), 1U)
                    << type->name;
                EXPECT_EQ(written, expected.size()) << type->name;
                EXPECT_EQ(room.first(expected.size()), expected) << type->name;
                EXPECT_TRUE(room.is_untouched_behind(expected.size())) << type->name;
            }
        }
}

TEST_F(PackingTest, WritesExactlyTheIe) {
    for (const Type *type : samples::primitive_ies())
        for (Amount amount : samples::allAmounts) {
            const Bytes value = samples::make_value(*type, amount);
            const Bytes expected = samples::ie_wire(*type, value.data());
            const Bytes ie = samples::make_ie(*type, value);
            ASSERT_EQ(TarnSizeOfIe(reinterpret_cast<const TarnIe *>(ie.data())), expected.size());
            for (std::size_t more : {0U, 1U, 7U}) {
                samples::Room room(expected.size() + more);
                std::uint32_t written = untouched;
                ASSERT_EQ(type->packIe(ie.data(), room.data(), room.available(), &written), 1U)
                    << type->name;
                EXPECT_EQ(written, expected.size()) << type->name;
                EXPECT_EQ(room.first(expected.size()), expected) << type->name;
                EXPECT_TRUE(room.is_untouched_behind(expected.size())) << type->name;
            }
        }
}

TEST_F(PackingTest, WritesNothingOfAValueIntoLessRoom) {
    for (const Type *type : samples::primitives()) {
        const Bytes value = samples::make_value(*type, Amount::full);
        for (std::uint32_t left = 0; left < type->sizeOf(value.data()); ++left) {
            samples::Room room(left);
            std::uint32_t written = untouched;
            ASSERT_EQ(type->pack(value.data(), room.data(), left, &written), 0U) << type->name;
            EXPECT_EQ(written, counts_failures(*type) ? 0 : untouched) << type->name;
            ASSERT_TRUE(room.is_untouched_behind(0)) << type->name << " in " << left;
        }
    }
}

TEST_F(PackingTest, WritesNothingOfAnIeIntoLessRoom) {
    for (const Type *type : samples::primitive_ies()) {
        const Bytes value = samples::make_value(*type, Amount::full);
        const Bytes ie = samples::make_ie(*type, value);
        const std::uint32_t size = TarnSizeOfIe(reinterpret_cast<const TarnIe *>(ie.data()));
        for (std::uint32_t left = 0; left < size; ++left) {
            samples::Room room(left);
            std::uint32_t written = untouched;
            ASSERT_EQ(type->packIe(ie.data(), room.data(), left, &written), 0U) << type->name;
            EXPECT_EQ(written, 0U) << type->name;
            ASSERT_TRUE(room.is_untouched_behind(0)) << type->name << " in " << left;
        }
    }
}

// Ranges are the validators' affair: what is out of range packs like anything else, as long as it
// lies within its arrays.
TEST_F(PackingTest, DoesNotLookAtRanges) {
    std::size_t packed = 0;
    for (const Type *type : samples::primitives())
        for (const samples::Spoiler &spoiler : samples::spoilers(*type)) {
            Bytes value = samples::make_value(*type, Amount::most);
            spoiler.spoil(value.data());
            if (!samples::fits_its_arrays(*type, value.data()))
                continue;
            SCOPED_TRACE(spoiler.what);
            const Bytes expected = samples::encode_value(*type, value.data());
            samples::Room room(expected.size());
            std::uint32_t written = untouched;
            ASSERT_EQ(type->pack(value.data(), room.data(), room.available(), &written), 1U);
            EXPECT_EQ(written, expected.size());
            EXPECT_EQ(room.first(expected.size()), expected);
            ++packed;
        }
    EXPECT_GT(packed, 50U);
}

// The room is compared with the size by the object's own tag, header included; the tag and value
// written are those of the operation.
class PackingUnderAnotherTagTest : public PackingTest {
protected:
    // Packs a GtpTeid (10 bytes) whose object bears this tag.
    static void check(std::uint16_t tag, std::uint32_t value, std::size_t left,
                      std::uint32_t result, std::size_t expectedBytes) {
        TarnGtpTeidIe ie{};
        ie.ie.tag = tag;
        ie.value = value;
        Bytes expected;
        samples::put_header(&expected, 171, 4);
        for (unsigned shift : {24U, 16U, 8U, 0U})
            expected.push_back(std::uint8_t(value >> shift));
        expected.resize(expectedBytes);
        samples::Room room(left);
        std::uint32_t written = untouched;
        // All at once: it is asked for each tag there is, and what is told by itself takes time.
        EXPECT_TRUE(TarnPackGtpTeidIe(&ie, room.data(), room.available(), &written) == result &&
                    written == expectedBytes && room.first(expectedBytes) == expected &&
                    room.is_untouched_behind(expectedBytes))
            << "tag " << tag << ", room " << left << ": " << written << " bytes written";
    }
};

TEST_F(PackingUnderAnotherTagTest, ASmallerSizePassesAndFailsAtTheValue) {
    for (const std::uint16_t tag : samples::tags_without_ie()) {
        check(tag, 0x01020304, 5, 0, 0); // 6 bytes by its tag
        check(tag, 0x01020304, 6, 0, 6);
        check(tag, 0x01020304, 9, 0, 6);
        check(tag, 0x01020304, 10, 1, 10);
    }
    check(23, 0x01020304, 6, 0, 0); // 7 bytes as a RabId
    check(23, 0x01020304, 7, 0, 6);
    check(23, 0x01020304, 9, 0, 6);
    check(23, 0x01020304, 10, 1, 10);
}

TEST_F(PackingUnderAnotherTagTest, AGreaterSizeIsRefused) {
    check(117, 0x20, 37, 0, 0); // as a RrcContainer of 32 bytes: 38
    check(117, 0x20, 38, 1, 10);
    check(117, 0xFFFFFFFF, 100, 0, 0);
}

TEST_F(PackingUnderAnotherTagTest, NothingBehindTheHeaderIsWrittenOfAValueThatDoesNotFit) {
    for (const Type *type : samples::primitive_ies()) {
        const Bytes value = samples::make_value(*type, Amount::full);
        Bytes expected = samples::ie_wire(*type, value.data());
        const std::size_t size = expected.size();
        expected.resize(6);
        Bytes ie = samples::make_ie(*type, value);
        reinterpret_cast<TarnIe *>(ie.data())->tag = 69; // 6 bytes, whatever the value
        for (std::size_t left = 6; left < size; ++left) {
            samples::Room room(left);
            std::uint32_t written = untouched;
            ASSERT_EQ(type->packIe(ie.data(), room.data(), room.available(), &written), 0U);
            EXPECT_EQ(written, 6U) << type->name;
            EXPECT_EQ(room.first(6), expected) << type->name;
            ASSERT_TRUE(room.is_untouched_behind(6)) << type->name << " in " << left;
        }
    }
}

} // namespace
