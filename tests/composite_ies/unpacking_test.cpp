// Unpacking of composite IEs from all the bytes that are not quite right: what is taken, what is
// consumed, and what becomes of what was half made.
#include <algorithm>

#include "support/library_test.h"
#include "support/model.h"
#include "support/mutations.h"
#include "support/samples.h"
#include "tarn_if.h"

namespace {

std::size_t count_nodes(const Nodes &nodes) {
    std::size_t count = nodes.size();
    for (const Node &node : nodes)
        count += count_nodes(node.children);
    return count;
}

class CompositeUnpacking : public LibraryTest {
protected:
    static model::Unpacked unpack(const Type &type, const Bytes &bytes) {
        const samples::Exact exact(bytes);
        const IePtr ie = samples::make_empty_ie(type);
        model::Unpacked result{false, 77, {}};
        result.ok = type.unpackIe(ie.get(), exact.data(), exact.size(), &result.consumed) == 1;
        result.children = samples::nodes_of(*samples::children_of(ie.get()));
        // A child that failed is gone with all that it had got.
        EXPECT_EQ(test_host::live_blocks(), 1 + count_nodes(result.children));
        return result;
    }

    static void expect_as_modelled(const Type &type, const Bytes &bytes) {
        const model::Unpacked expected = model::unpack_composite(type, bytes);
        const model::Unpacked result = unpack(type, bytes);
        EXPECT_EQ(result.ok, expected.ok);
        EXPECT_EQ(result.consumed, expected.consumed);
        EXPECT_EQ(result.children, expected.children);
    }

    static void expect(const model::Unpacked &result, bool ok, std::size_t consumed,
                       std::size_t children) {
        EXPECT_EQ(result.ok, ok);
        EXPECT_EQ(result.consumed, consumed);
        EXPECT_EQ(result.children.size(), children);
    }
};

bool has_mandatory(const Type &type) {
    return type.shape == Shape::sequence && type.slots.front().presence == Presence::mandatory;
}

Bytes header(const Type &type, std::uint8_t length) {
    return {0, std::uint8_t(type.tag), 0, 0, 0, length};
}

Bytes with_length(Bytes bytes, std::uint32_t length) {
    for (unsigned i = 0; i < 4; ++i)
        bytes[2 + i] = std::uint8_t(length >> (24 - 8 * i));
    return bytes;
}

TEST_F(CompositeUnpacking, HeaderAloneOrLess) {
    for (const Type *type : samples::composites()) {
        SCOPED_TRACE(type->name);
        const bool isList = type->shape == Shape::compositeList;
        expect(unpack(*type, {}), true, 0, 0); // absent: whether it may be is its owner's affair
        const Bytes whole = header(*type, 0);
        for (std::size_t size = 1; size < 6; ++size)
            expect(unpack(*type, Bytes(whole.begin(), whole.begin() + std::ptrdiff_t(size))), false,
                   size < 2 ? 0 : 2, 0);
        expect(unpack(*type, whole), !has_mandatory(*type), 6, 0);
        expect(unpack(*type, header(*type, 1)), !has_mandatory(*type) && !isList, 6, 0);
        expect(unpack(*type, {0x00, 0xA8, 0, 0, 0, 0}), false, 0, 0);
        expect(unpack(*type, {0x01, std::uint8_t(type->tag), 0, 0, 0, 0}), false, 0, 0);
    }
}

TEST_F(CompositeUnpacking, EveryTruncation) {
    Random random(1);
    for (const Type *type : samples::composites()) {
        const Bytes whole = samples::encode(samples::make_node(*type, Amount::slim, random));
        for (std::size_t size = 0; size <= whole.size(); ++size) {
            SCOPED_TRACE(std::string(type->name) + " cut to " + std::to_string(size));
            expect_as_modelled(*type, Bytes(whole.begin(), whole.begin() + std::ptrdiff_t(size)));
        }
    }
}

TEST_F(CompositeUnpacking, LengthOfASequenceIsNotUsed) {
    Random random(2);
    for (const Type *type : samples::sequences()) {
        SCOPED_TRACE(type->name);
        const Node node = samples::make_node(*type, Amount::slim, random);
        const Bytes whole = samples::encode(node);
        for (const std::uint32_t length : {0U, 1U, 20U, 0x7FFFFFFFU, 0xFFFFFFFFU}) {
            const model::Unpacked result = unpack(*type, with_length(whole, length));
            expect(result, true, whole.size(), node.children.size());
        }
    }
}

TEST_F(CompositeUnpacking, SequenceAbsorbsTheChildThatFollowsIt) {
    const Bytes bytes = from_hex("0067 00000011 0017 00000001 05 0062 00000004 00000001"
                                 "0061 00000004 00000002");
    expect(unpack(samples::type("RabDataInfo"), bytes), true, 33, 3);
}

TEST_F(CompositeUnpacking, BytesBehindTheLastChildAreLeft) {
    Random random(3);
    for (const Type *type : samples::composites()) {
        SCOPED_TRACE(type->name);
        const Node node = samples::make_node(*type, Amount::slim, random);
        Bytes bytes = samples::encode(node);
        const std::size_t size = bytes.size();
        for (const char *tail : {"00", "00A8 00000002 0001", "FFFF FFFFFFFF FF"}) {
            const Bytes more = from_hex(tail);
            bytes.insert(bytes.end(), more.begin(), more.end());
            expect(unpack(*type, bytes), true, size, node.children.size());
            bytes.resize(size);
        }
    }
}

// ---- The budget of lists -----------------------------------------------------------------------

TEST_F(CompositeUnpacking, BudgetMustBeMetExactly) {
    Random random(4);
    for (const Type *type : samples::composite_lists()) {
        SCOPED_TRACE(type->name);
        Node node{type, {}, {samples::make_node(*type->item, Amount::slim, random)}};
        node.children.push_back(node.children.front());
        const Bytes two = samples::encode(node);
        const auto value = std::uint32_t(two.size() - 6);
        expect(unpack(*type, two), true, two.size(), 2);
        // An element behind the budget is not looked at.
        expect(unpack(*type, with_length(two, value / 2)), true, 6 + value / 2, 1);
        expect(unpack(*type, with_length(two, 0)), true, 6, 0);
        // One that passes the budget makes it wrap; the walk goes on to the end and fails.
        expect(unpack(*type, with_length(two, 1)), false, two.size(), 2);
        expect(unpack(*type, with_length(two, value / 2 + 1)), false, two.size(), 2);
        // Budget that is left when the bytes end.
        expect(unpack(*type, with_length(two, value + 1)), false, two.size(), 2);
        expect(unpack(*type, with_length(two, 0xFFFFFFFF)), false, two.size(), 2);
    }
}

TEST_F(CompositeUnpacking, BadElementEndsTheListAndTheOnesBeforeItStay) {
    Random random(5);
    for (const Type *type : samples::composite_lists()) {
        SCOPED_TRACE(type->name);
        const Node element = samples::make_node(*type->item, Amount::slim, random);
        for (std::size_t bad = 0; bad < 3; ++bad) {
            Node node{type, {}, Nodes(3, element)};
            const auto before = std::uint32_t(6 + bad * samples::encode(element).size());
            node.children[bad] = samples::number_node("LacMatch", 1);
            expect(unpack(*type, samples::encode(node)), false, before, bad);
        }
    }
}

TEST_F(CompositeUnpacking, CountBeyondTheGreatestUnpacksAndIsInvalid) {
    Random random(6);
    for (const Type *type : samples::composite_lists()) {
        SCOPED_TRACE(type->name);
        const Node element = samples::make_node(*type->item, Amount::least, random);
        const Node node{type, {}, Nodes(type->greatest + 1, element)};
        const Bytes bytes = samples::encode(node);
        const IePtr ie = samples::make_empty_ie(*type);
        std::uint32_t consumed = 0;
        EXPECT_EQ(type->unpackIe(ie.get(), bytes.data(), std::uint32_t(bytes.size()), &consumed),
                  1U);
        EXPECT_EQ(consumed, bytes.size());
        EXPECT_EQ(samples::nodes_of(*samples::children_of(ie.get())), node.children);
        EXPECT_EQ(type->isIeValid(ie.get()), 0U);
    }
}

// ---- Children ----------------------------------------------------------------------------------

TEST_F(CompositeUnpacking, ForeignIeAtEachPosition) {
    Random random(7);
    for (const Type *type : samples::composites()) {
        const Node node = samples::make_node(*type, Amount::slim, random);
        for (std::size_t at = 0; at <= node.children.size(); ++at) {
            SCOPED_TRACE(std::string(type->name) + " at " + std::to_string(at));
            Node changed = node;
            changed.children.insert(changed.children.begin() + std::ptrdiff_t(at),
                                    samples::number_node("LacMatch", 1));
            expect_as_modelled(*type, samples::encode(changed));
        }
    }
}

// Without it, invalid, or in another's place: mandatory children refuse, optional ones are left
// out.
TEST_F(CompositeUnpacking, EachChildAbsentInvalidOrMisplaced) {
    Random random(8);
    for (const Type *type : samples::sequences()) {
        const Node node = samples::make_node(*type, Amount::slim, random);
        for (std::size_t at = 0; at < node.children.size(); ++at) {
            SCOPED_TRACE(std::string(type->name) + " child " + std::to_string(at));
            Node changed = node;
            changed.children.erase(changed.children.begin() + std::ptrdiff_t(at));
            expect_as_modelled(*type, samples::encode(changed));
            if (const auto invalid = samples::make_invalid(*node.children[at].type, random)) {
                changed = node;
                changed.children[at] = *invalid;
                expect_as_modelled(*type, samples::encode(changed));
            }
            changed = node;
            std::swap(changed.children[at], changed.children.back());
            expect_as_modelled(*type, samples::encode(changed));
        }
    }
}

TEST_F(CompositeUnpacking, MandatoryFailureTellsTheBytesBeforeIt) {
    const Type &type = samples::type("ModifiedSrncContainer");
    const std::string container = "0075 00000002 AABB"; // 8 bytes
    const std::string cell = "0076 00000004 00000001";  // 10 bytes
    expect(unpack(type, from_hex("0074 00000000" + container + cell)), false, 24, 2);
    expect(unpack(type, from_hex("0074 00000000" + container + cell +
                                 "009A 00000001 03")), // NumIuInstances: 1 or 2
           false, 24, 2);
    expect(
        unpack(type, from_hex("0074 00000000" + container + "0076 00000004 10000000")), // 29 bits
        false, 14, 1);
    expect(unpack(type, from_hex("0074 00000000" + cell + container)), false, 6, 0);
}

TEST_F(CompositeUnpacking, OptionalChildOutOfOrderStaysUnconsumed) {
    const Type &type = samples::type("ModifiedSrncContainer");
    const std::string mandatory = "0075 00000000 0076 00000004 00000001 009A 00000001 01"; // 23
    const std::string key = "0010 00000010 000102030405060708090A0B0C0D0E0F";              // 22
    const std::string algorithm = "000C 00000002 0001";
    expect(unpack(type, from_hex("0074 0000003F" + mandatory + algorithm + key)), true,
           6 + 23 + 8 + 22, 5);
    expect(unpack(type, from_hex("0074 0000003F" + mandatory + key + algorithm)), true, 6 + 23 + 22,
           4);
    // Invalid: the key is 15 bytes long; what follows is then no longer at the position.
    expect(unpack(type,
                  from_hex("0074 0000003F" + mandatory +
                           "0010 0000000F 000102030405060708090A0B0C0D0E" + "009D 00000002 0001")),
           true, 6 + 23, 3);
}

TEST_F(CompositeUnpacking, OptionalListThatFailsIsLeftOut) {
    const Type &type = samples::type("UeContextRef");
    const std::string acUeId = "0003 00000004 00000001";
    // A list of no elements decodes, but is invalid; then the bytes of the list stay unconsumed.
    expect(unpack(type, from_hex("005F 00000010" + acUeId + "0066 00000000")), true, 16, 1);
    expect(unpack(type, from_hex("005F 00000010" + acUeId + "0066 00000007 0067")), true, 16, 1);
    expect(unpack(samples::type("RabToSetupPerCnDomain"),
                  from_hex("007D 00000000 0006 00000002 0000 0015 00000000")),
           true, 20, 2); // where none is fine
}

// A RabToSetUpInfo whose RabParams fails late, deep in its own children.
TEST_F(CompositeUnpacking, FailedChildIsReleasedWithAllBelowIt) {
    Random random(9);
    Node info = samples::make_node(samples::type("RabToSetUpInfo"), Amount::slim, random);
    Node &params = info.children[2];
    ASSERT_EQ(params.type->tag, 26U);
    params.children.back() = samples::number_node("LacMatch", 1); // TransDelay is called for
    const Node list{&samples::type("RabList"), {}, {info}};
    expect(unpack(*list.type, samples::encode(list)), false, 6, 0);
    expect(unpack(*info.type, samples::encode(info)), false, 6 + 7 + 10, 2);
}

TEST_F(CompositeUnpacking, MutatedBytes) {
    Random random(10);
    for (const Type *type : samples::composites())
        for (int i = 0; i < 400; ++i) {
            const Node node =
                samples::make_node(*type, i % 2 == 0 ? Amount::slim : Amount::random, random);
            const Bytes bytes = samples::mutate({node}, random);
            SCOPED_TRACE(std::string(type->name) + " round " + std::to_string(i));
            expect_as_modelled(*type, bytes);
            if (HasFailure())
                return;
        }
}

} // namespace
