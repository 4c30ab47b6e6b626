// Lengths and counts beyond an array: declared on the wire or stored in a value, they are refused
// and never followed.
#include <algorithm>
#include <cstring>
#include <iterator>

#include "primitive_ies/primitive_values.h"
#include "support/library_test.h"

namespace {

class CapacityTest : public LibraryTest {
protected:
    // An IE of this type with `count` bytes or items, whatever its array holds.
    static Bytes ie_of(const Type &type, std::uint32_t count) {
        Bytes inner;
        if (type.shape == Shape::bytes)
            inner.assign(count, 0x5A);
        else
            for (std::uint32_t i = 0; i < count; ++i) {
                const Bytes item = samples::make_value(*type.item, Amount::full);
                const Bytes tlv = samples::ie_wire(*type.item, item.data());
                inner.insert(inner.end(), tlv.begin(), tlv.end());
            }
        Bytes bytes;
        samples::put_header(&bytes, type.tag, std::uint32_t(inner.size()));
        bytes.insert(bytes.end(), inner.begin(), inner.end());
        return bytes;
    }

    static bool has_capacity(const Type &type) {
        return type.shape == Shape::bytes || type.shape == Shape::list;
    }
};

TEST_F(CapacityTest, AsMuchAsTheArrayHoldsUnpacks) {
    for (const Type *type : samples::primitive_ies()) {
        if (!has_capacity(*type))
            continue;
        const samples::Input input(ie_of(*type, type->capacity));
        Bytes ie = samples::make_ie(*type, Bytes(type->valueSize, 0xCD));
        std::uint32_t consumed = 0;
        EXPECT_EQ(type->unpackIe(ie.data(), input.data(), input.size(), &consumed), 1U);
        EXPECT_EQ(consumed, input.size()) << type->name;
        EXPECT_EQ(*reinterpret_cast<std::uint32_t *>(protocol::value_of(ie.data())),
                  type->capacity);
    }
}

TEST_F(CapacityTest, MoreThanTheArrayHoldsLeavesTheValueAsItWas) {
    for (const Type *type : samples::primitive_ies()) {
        if (!has_capacity(*type))
            continue;
        for (std::uint32_t more : {1U, 2U, 50U, 70000U}) {
            if (more == 70000 && type->shape == Shape::list)
                continue;
            const samples::Input input(ie_of(*type, type->capacity + more));
            const Bytes before = samples::make_ie(*type, Bytes(type->valueSize, 0xCD));
            Bytes ie = before;
            std::uint32_t consumed = 0;
            EXPECT_EQ(type->unpackIe(ie.data(), input.data(), input.size(), &consumed), 0U);
            EXPECT_EQ(consumed, 6U) << type->name;
            EXPECT_EQ(ie, before) << type->name;
        }
    }
}

// What an array held behind the bytes that came is not overwritten with what follows them.
TEST_F(CapacityTest, OnlyTheBytesThatCameAreCopied) {
    const samples::Input input(from_hex("00 75 00 00 00 02 01 02  03 04 05 06"));
    TarnRrcContainerIe ie{};
    std::memset(ie.value.bytes, 0xCD, sizeof ie.value.bytes);
    std::uint32_t consumed = 0;
    ASSERT_EQ(TarnUnpackRrcContainerIe(nullptr, &ie, input.data(), input.size(), &consumed), 1U);
    EXPECT_EQ(consumed, 8U);
    EXPECT_EQ(ie.value.length, 2U);
    EXPECT_EQ(ie.value.bytes[1], 2);
    EXPECT_EQ(std::count(ie.value.bytes + 2, std::end(ie.value.bytes), 0xCD), 1998);
}

// The bare value tells the items before the one that has no place.
TEST_F(CapacityTest, AnItemWithoutAPlaceIsNotCounted) {
    for (const Type *type : samples::primitive_ies()) {
        if (type->shape != Shape::list)
            continue;
        const Bytes whole = ie_of(*type, type->capacity);
        const Bytes bytes = ie_of(*type, type->capacity + 1);
        const samples::Input input(Bytes(bytes.begin() + 6, bytes.end()));
        const Bytes before(type->valueSize, 0xCD);
        Bytes value = before;
        std::uint32_t consumed = 0xC0FFEE;
        EXPECT_EQ(type->unpack(value.data(), input.size(), input.data(), input.size(), &consumed),
                  0U);
        EXPECT_EQ(consumed, whole.size() - 6) << type->name;
        EXPECT_EQ(value, before) << type->name;
    }
}

// The blocks end where the values end: following a count beyond its array is reading beyond it.
TEST_F(CapacityTest, StoredBeyondTheArrayIsNotPacked) {
    std::size_t refused = 0;
    for (const Type *type : samples::primitive_ies())
        for (const samples::Spoiler &spoiler : samples::spoilers(*type)) {
            Bytes value = samples::make_value(*type, Amount::most);
            spoiler.spoil(value.data());
            if (samples::fits_its_arrays(*type, value.data()))
                continue;
            SCOPED_TRACE(spoiler.what);
            const Bytes ie = samples::make_ie(*type, value);
            const std::uint32_t size = TarnSizeOfIe(reinterpret_cast<const TarnIe *>(ie.data()));
            const std::size_t enough = size < 200000 ? size : 200000;
            samples::Room room(enough);
            std::uint32_t written = 0xC0FFEE;
            EXPECT_EQ(type->packIe(ie.data(), room.data(), room.available(), &written), 0U);
            EXPECT_EQ(written, size > enough ? 0U : 6U);
            samples::Room bareRoom(enough);
            written = 0;
            EXPECT_EQ(type->pack(value.data(), bareRoom.data(), room.available(), &written), 0U);
            EXPECT_LE(written, enough);
            ++refused;
        }
    EXPECT_GT(refused, 50U);
}

TEST_F(CapacityTest, ABareRecordTellsTheBytesBeforeTheMemberThatIsRefused) {
    TarnLAI lai{{3, {1, 2, 3}}, {3, {4, 5}}};
    samples::Room room(100);
    std::uint32_t written = 0xC0FFEE;
    EXPECT_EQ(TarnPackLAI(&lai, room.data(), room.available(), &written), 0U);
    EXPECT_EQ(written, 15U); // PLMNId (6 + 3) and the header of LAC
    TarnMasterSalt salt{15, {}};
    written = 0xC0FFEE;
    EXPECT_EQ(TarnPackMasterSalt(&salt, room.data(), room.available(), &written), 0U);
    EXPECT_EQ(written, 0xC0FFEEU);
}

// A list writes what it can.
TEST_F(CapacityTest, ItemsBehindTheOneThatIsRefusedAreStillWritten) {
    const TarnHandoutRabReleaseList list{2, {{0, {4, {1, 2, 3}}}, {1, {1, {9}}}}};
    const Bytes second =
        samples::ie_wire(*protocol::type_by_name("HandoutRabReleaseInfo"), &list.items[1]);
    samples::Room room(200);
    std::uint32_t written = 0;
    EXPECT_EQ(TarnPackHandoutRabReleaseList(&list, room.data(), room.available(), &written), 0U);
    const Bytes bytes = room.first(200);
    EXPECT_NE(std::search(bytes.begin(), bytes.end(), second.begin(), second.end()), bytes.end());
}

// Neither a message nor a composite takes them, or anything else that is out of range.
TEST_F(CapacityTest, InvalidValuesAreNotAppended) {
    const auto check = [](void *owner, const std::vector<Slot> &slots) {
        const std::size_t blocks = test_host::live_blocks();
        for (const Slot &slot : slots) {
            if (slot.type->is_composite() || slot.append == nullptr)
                continue;
            for (const samples::Spoiler &spoiler : samples::spoilers(*slot.type)) {
                Bytes value = samples::make_value(*slot.type, Amount::most);
                spoiler.spoil(value.data());
                EXPECT_EQ(slot.append(owner, value.data()), 0U) << spoiler.what;
            }
        }
        EXPECT_EQ(test_host::live_blocks(), blocks);
    };
    for (const Message *message : protocol::messages()) {
        TarnMsg *msg = message->create();
        check(msg, message->slots);
        EXPECT_EQ(TarnSizeOfMsg(msg), 7) << message->name;
        TarnDeleteMsg(msg);
    }
    for (const Type *type : protocol::types()) {
        if (!type->is_composite())
            continue;
        auto *ie = static_cast<TarnIe *>(type->create());
        check(ie, type->slots);
        EXPECT_EQ(TarnSizeOfIe(ie), 6U) << type->name;
        TarnDeleteIe(ie);
    }
}

} // namespace
