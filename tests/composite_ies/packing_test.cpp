// Packing of composite IEs that do not fit or hold what they should not: results, counts, and what
// stands in the buffer.
#include <algorithm>
#include <cstring>

#include "support/library_test.h"
#include "support/samples.h"
#include "tarn_if.h"

namespace {

class CompositePacking : public LibraryTest {
protected:
    struct Packed {
        std::uint32_t result;
        std::uint32_t written;
        Bytes buffer; // untouched bytes are 0xEE
    };

    static Packed pack(const Type &type, const TarnIe *ie, std::uint32_t available) {
        Packed packed{0, 77, Bytes(available + 32, 0xEE)};
        packed.result = type.packIe(ie, packed.buffer.data(), available, &packed.written);
        for (std::size_t i = available; i < packed.buffer.size(); ++i)
            EXPECT_EQ(packed.buffer[i], 0xEE) << "beyond the room, at " << i;
        packed.buffer.resize(available);
        return packed;
    }
};

TEST_F(CompositePacking, TooLittleRoomWritesNothing) {
    Random random(1);
    for (const Type *type : samples::composites()) {
        SCOPED_TRACE(type->name);
        const IePtr ie = samples::make_ie(samples::make_node(*type, Amount::slim, random));
        const std::uint32_t size = TarnSizeOfIe(ie.get());
        for (const std::uint32_t room : {0U, 1U, 5U, size / 2, size - 1}) {
            const Packed packed = pack(*type, ie.get(), room);
            EXPECT_EQ(packed.result, 0U);
            EXPECT_EQ(packed.written, 0U);
            EXPECT_EQ(packed.buffer, Bytes(room, 0xEE));
        }
        EXPECT_EQ(pack(*type, ie.get(), size).result, 1U);
        EXPECT_EQ(pack(*type, ie.get(), size + 9).written, size);
    }
}

// LacMatch is the child of no composite.
TEST_F(CompositePacking, ForeignChildEndsThePackAtAnyPosition) {
    Random random(2);
    for (const Type *type : samples::composites()) {
        SCOPED_TRACE(type->name);
        Node node = samples::make_node(*type, Amount::slim, random);
        for (std::size_t at = 0; at <= node.children.size(); ++at) {
            Node withForeign = node;
            withForeign.children.insert(withForeign.children.begin() + std::ptrdiff_t(at),
                                        samples::number_node("LacMatch", 1));
            const IePtr ie = samples::make_ie(withForeign);
            Bytes expected = samples::encode(withForeign);
            const Packed packed = pack(*type, ie.get(), std::uint32_t(expected.size()));
            const Nodes before(node.children.begin(), node.children.begin() + std::ptrdiff_t(at));
            EXPECT_EQ(packed.result, 0U);
            EXPECT_EQ(packed.written, 6 + samples::encode(before).size());
            EXPECT_TRUE(std::equal(expected.begin(), expected.begin() + packed.written,
                                   packed.buffer.begin()));
        }
    }
}

TEST_F(CompositePacking, ForeignGrandchildEndsThePackToo) {
    Random random(3);
    Node ref = samples::make_node(samples::type("UeContextRef"), Amount::slim, random);
    ref.children.back().children.front().children.push_back(samples::number_node("LacMatch", 1));
    const IePtr ie = samples::make_ie(ref);
    const Packed packed = pack(*ref.type, ie.get(), 200);
    EXPECT_EQ(packed.result, 0U);
    EXPECT_EQ(packed.written, 6U + 10U + 10U); // header, AcUeId, Srnti
}

TEST_F(CompositePacking, OrderAndPresenceDoNotMatter) {
    Random random(4);
    for (const Type *type : samples::composites()) {
        Node node = samples::make_node(*type, Amount::slim, random);
        std::reverse(node.children.begin(), node.children.end());
        node.children.pop_back();
        const IePtr ie = samples::make_ie(node);
        const Bytes expected = samples::encode(node);
        EXPECT_EQ(pack(*type, ie.get(), std::uint32_t(expected.size())).buffer, expected)
            << type->name;
    }
}

TEST_F(CompositePacking, TagWrittenIsThatOfTheOperation) {
    Random random(5);
    const Node node = samples::make_node(samples::type("RabDataInfo"), Amount::slim, random);
    const IePtr ie = samples::make_ie(node);
    ie->tag = 58; // RabSetupSuccessInfo
    const Bytes expected = samples::encode(node);
    EXPECT_EQ(pack(*node.type, ie.get(), std::uint32_t(expected.size())).buffer, expected);
}

// The room is compared with the size by the object's own tag: 6 for a tag that no IE has.
TEST_F(CompositePacking, WrongTagOfTheObjectNeverWritesBeyondTheRoom) {
    Random random(6);
    for (const Type *type : samples::composites()) {
        SCOPED_TRACE(type->name);
        const Node node = samples::make_node(*type, Amount::slim, random);
        const IePtr ie = samples::make_ie(node);
        const std::size_t size = samples::encode(node).size();
        ie->tag = 69;
        for (std::uint32_t room = 6; room < size; room += 1 + room / 64) {
            const Packed packed = pack(*type, ie.get(), room);
            EXPECT_EQ(packed.result, 0U);
            if (std::string_view(type->name) == "RabDataInfo") {
                EXPECT_EQ(packed.written, room < 13 ? 6U : room < 23 ? 13U : 23U);
            }
        }
        ie->tag = std::uint16_t(type->tag);
    }
}

TEST_F(CompositePacking, StoredLengthBeyondTheArrayIsNotFollowed) {
    Random random(7);
    Node node = samples::make_node(samples::type("ModifiedSrncContainer"), Amount::slim, random);
    const auto store_length = [&node](std::uint32_t length) {
        std::memcpy(node.children.front().value.data(), &length, sizeof length);
        return samples::make_ie(node);
    };
    const Packed refused = pack(*node.type, store_length(2001).get(), 4000);
    EXPECT_EQ(refused.result, 0U);
    EXPECT_EQ(refused.written, 6U);
    const Packed huge = pack(*node.type, store_length(0xFFFFFFF0).get(), 4000);
    EXPECT_EQ(huge.result, 0U);
    EXPECT_EQ(huge.written, 0U);
}

} // namespace
