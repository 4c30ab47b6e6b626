// The four primitives that read and write a tag or a length.
#include <vector>

#include "support/library_test.h"
#include "tarn_if.h"

namespace {

class BufferTest : public LibraryTest {};

// Bytes that end where their heap block ends, from an odd address on.
class OddBytes {
public:
    explicit OddBytes(std::vector<std::uint8_t> bytes) : bytes_(std::move(bytes)) {
        bytes_.insert(bytes_.begin(), 0);
        bytes_.shrink_to_fit();
    }
    std::uint8_t *data() { return bytes_.data() + 1; }
    std::uint32_t size() const { return std::uint32_t(bytes_.size() - 1); }
    std::vector<std::uint8_t> content() const { return {bytes_.begin() + 1, bytes_.end()}; }

private:
    std::vector<std::uint8_t> bytes_;
};

TEST_F(BufferTest, ReadsTagsMostSignificantByteFirst) {
    for (std::uint32_t tag = 0; tag <= 0xFFFF; ++tag) {
        OddBytes bytes({std::uint8_t(tag >> 8), std::uint8_t(tag)});
        std::uint16_t read = std::uint16_t(~tag);
        ASSERT_EQ(TarnExtractTagFromBuffer(&read, bytes.data(), 2), 2U);
        ASSERT_EQ(read, tag);
    }
}

TEST_F(BufferTest, ReadsLengthsMostSignificantByteFirst) {
    const struct {
        std::vector<std::uint8_t> bytes;
        std::uint32_t length;
    } cases[] = {
        {{0x00, 0x00, 0x00, 0x00}, 0},          {{0x00, 0x00, 0x01, 0x00}, 256},
        {{0x12, 0x34, 0x56, 0x78}, 0x12345678}, {{0x80, 0x00, 0x00, 0x00}, 0x80000000},
        {{0xFF, 0xFF, 0xFF, 0xFF}, 0xFFFFFFFF}, {{0x00, 0xFF, 0x00, 0x80}, 0x00FF0080},
    };
    for (const auto &c : cases) {
        OddBytes bytes(c.bytes);
        std::uint32_t length = ~c.length;
        EXPECT_EQ(TarnExtractLengthFromBuffer(&length, bytes.data(), 4), 4U);
        EXPECT_EQ(length, c.length);
    }
}

TEST_F(BufferTest, ReadsNothingFromTooFewBytes) {
    for (std::uint32_t available = 0; available < 4; ++available) {
        OddBytes bytes(std::vector<std::uint8_t>(available, 0x77));
        std::uint32_t length = 0x01020304;
        EXPECT_EQ(TarnExtractLengthFromBuffer(&length, bytes.data(), available), 0U);
        EXPECT_EQ(length, 0x01020304U);
        std::uint16_t tag = 0x0102;
        if (available < 2) {
            EXPECT_EQ(TarnExtractTagFromBuffer(&tag, bytes.data(), available), 0U);
            EXPECT_EQ(tag, 0x0102);
        }
    }
}

TEST_F(BufferTest, WritesTheLowSixteenBitsOfATag) {
    const struct {
        std::uint32_t tag;
        std::vector<std::uint8_t> bytes;
    } cases[] = {
        {0x000001AB, {0x01, 0xAB}}, {0xFFFF00B1, {0x00, 0xB1}}, {0x12348765, {0x87, 0x65}}};
    for (const auto &c : cases) {
        OddBytes room({0xEE, 0xEE});
        EXPECT_EQ(TarnPackTagIntoBuffer(c.tag, room.data(), 2), 2U);
        EXPECT_EQ(room.content(), c.bytes);
    }
}

TEST_F(BufferTest, WritesLengthsMostSignificantByteFirst) {
    OddBytes room({0xEE, 0xEE, 0xEE, 0xEE, 0xEE});
    EXPECT_EQ(TarnPackLengthIntoBuffer(0xFEDCBA98, room.data(), 5), 4U);
    EXPECT_EQ(room.content(), (std::vector<std::uint8_t>{0xFE, 0xDC, 0xBA, 0x98, 0xEE}));
}

TEST_F(BufferTest, WritesNothingIntoTooLittleRoom) {
    for (std::uint32_t available = 0; available < 4; ++available) {
        OddBytes room({0xEE, 0xEE, 0xEE, 0xEE});
        const std::vector<std::uint8_t> untouched = room.content();
        EXPECT_EQ(TarnPackLengthIntoBuffer(0x01020304, room.data(), available), 0U);
        if (available < 2) {
            EXPECT_EQ(TarnPackTagIntoBuffer(0x0102, room.data(), available), 0U);
        }
        EXPECT_EQ(room.content(), untouched);
    }
}

TEST_F(BufferTest, LooksNoFurtherThanItNeedsHoweverMuchIsAvailable) {
    OddBytes bytes({0x00, 0x48, 0x00, 0x01});
    std::uint16_t tag = 0;
    EXPECT_EQ(TarnExtractTagFromBuffer(&tag, bytes.data(), 0xFFFFFFFF), 2U);
    EXPECT_EQ(tag, 72);
    std::uint32_t length = 0;
    EXPECT_EQ(TarnExtractLengthFromBuffer(&length, bytes.data(), 0xFFFFFFFF), 4U);
    EXPECT_EQ(length, 0x00480001U);
}

} // namespace
