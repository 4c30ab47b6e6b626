// The positional and deliberately lenient check of composite IE objects.
#include <algorithm>

#include "support/library_test.h"
#include "support/model.h"
#include "support/samples.h"
#include "tarn_if.h"

namespace {

class CompositeValidity : public LibraryTest {
protected:
    static bool is_valid(const Node &node) {
        const IePtr ie = samples::make_ie(node);
        return node.type->isIeValid(ie.get()) == 1;
    }
};

std::size_t mandatory_count(const Type &type) {
    return std::size_t(std::count_if(type.slots.begin(), type.slots.end(), [](const Slot &slot) {
        return slot.presence == Presence::mandatory;
    }));
}

Node foreign() {
    return samples::number_node("LacMatch", 1);
}

// Repeats an optional child that no rule looks at until the composite has `count` children.
void pad(Node &node, std::size_t count) {
    for (const Slot &slot : node.type->slots)
        if (slot.presence == Presence::optional)
            for (const Node &child : Nodes(node.children))
                if (child.type == slot.type)
                    while (node.children.size() < count)
                        node.children.push_back(child);
}

TEST_F(CompositeValidity, OwnTagAndNull) {
    Random random(1);
    for (const Type *type : samples::composites()) {
        SCOPED_TRACE(type->name);
        const IePtr ie = samples::make_ie(samples::make_node(*type, Amount::slim, random));
        EXPECT_EQ(type->isIeValid(ie.get()), 1U);
        ie->tag = type->tag == 26 ? 22 : 26;
        EXPECT_EQ(type->isIeValid(ie.get()), 0U);
        EXPECT_EQ(type->isIeValid(nullptr), 0U);
    }
}

TEST_F(CompositeValidity, EmptyIsValidOnlyWithoutMandatoryChildren) {
    for (const Type *type : samples::composites()) {
        const bool expected =
            type->shape == Shape::compositeList ? type->least == 0 : mandatory_count(*type) == 0;
        EXPECT_EQ(is_valid(Node{type, {}, {}}), expected) << type->name;
    }
}

TEST_F(CompositeValidity, MandatoryChildrenStandValidAtTheirPositions) {
    Random random(2);
    for (const Type *type : samples::sequences()) {
        const Node node = samples::make_node(*type, Amount::slim, random);
        for (std::size_t at = 0; at < mandatory_count(*type); ++at) {
            SCOPED_TRACE(std::string(type->name) + " child " + std::to_string(at));
            Node changed = node;
            changed.children[at] = foreign();
            EXPECT_FALSE(is_valid(changed));
            changed = node;
            changed.children.erase(changed.children.begin() + std::ptrdiff_t(at));
            EXPECT_FALSE(is_valid(changed));
            changed.children.resize(at); // nothing from here on
            EXPECT_FALSE(is_valid(changed));
            changed = node;
            std::swap(changed.children[at], changed.children[at + 1]);
            EXPECT_FALSE(is_valid(changed));
            if (const auto invalid = samples::make_invalid(*node.children[at].type, random)) {
                changed = node;
                changed.children[at] = *invalid;
                EXPECT_FALSE(is_valid(changed));
            }
        }
    }
}

TEST_F(CompositeValidity, OptionalChildrenInAnyOrderNumberAndState) {
    Random random(3);
    for (const Type *type : samples::sequences()) {
        SCOPED_TRACE(type->name);
        const auto first = std::ptrdiff_t(mandatory_count(*type));
        Node node = samples::make_node(*type, Amount::slim, random);
        std::reverse(node.children.begin() + first, node.children.end());
        EXPECT_TRUE(is_valid(node));
        const Nodes optional(node.children.begin() + first, node.children.end());
        node.children.insert(node.children.end(), optional.begin(), optional.end());
        EXPECT_TRUE(is_valid(node));
        for (const Slot &slot : type->slots) {
            const auto invalid = samples::make_invalid(*slot.type, random);
            if (slot.presence != Presence::optional || !invalid)
                continue;
            Node changed = samples::make_node(*type, Amount::least, random);
            changed.children.push_back(*invalid);
            EXPECT_TRUE(is_valid(changed)) << slot.name;
        }
    }
}

TEST_F(CompositeValidity, UnexpectedChildCountsBelowTheLastPositionOnly) {
    Random random(4);
    for (const Type *type : samples::sequences()) {
        const Node least = samples::make_node(*type, Amount::slim, random);
        for (std::size_t at = 0; at < type->slots.size() + 3; ++at) {
            SCOPED_TRACE(std::string(type->name) + " at " + std::to_string(at));
            Node node = least;
            pad(node, type->slots.size() + 4);
            node.children[at] = foreign();
            EXPECT_EQ(is_valid(node), at >= type->slots.size());
            // A mandatory child's tag is as foreign there, unless an optional slot has it too.
            if (at < mandatory_count(*type) || mandatory_count(*type) == 0 ||
                samples::has_conditional(type->slots))
                continue;
            node.children[at] = least.children.front();
            EXPECT_EQ(is_valid(node), at >= type->slots.size());
        }
    }
}

TEST_F(CompositeValidity, VerdictOnAnOptionalCompositeDoesNotCount) {
    Random random(5);
    Node ref = samples::make_node(samples::type("UeContextRef"), Amount::slim, random);
    ref.children.back().children.clear();
    EXPECT_FALSE(is_valid(ref.children.back()));
    EXPECT_TRUE(is_valid(ref));
    Node ack =
        samples::make_node(samples::type("ResourceInfoPerCnDomainAck"), Amount::slim, random);
    ack.children[1].children.front().children.clear();
    EXPECT_TRUE(is_valid(ack));
}

TEST_F(CompositeValidity, VerdictOnAMandatoryCompositeCounts) {
    Random random(6);
    Node info = samples::make_node(samples::type("RabToSetUpInfo"), Amount::slim, random);
    Node &sduParams = info.children[2].children[5];
    ASSERT_EQ(sduParams.type->tag, 33U);
    EXPECT_TRUE(is_valid(info));
    sduParams.children.front().children.pop_back();
    EXPECT_TRUE(is_valid(info)); // without its second BitErrRatio
    sduParams.children.front().children.clear();
    EXPECT_FALSE(is_valid(info));
}

TEST_F(CompositeValidity, TypeNamedTwiceIsTakenByPosition) {
    Random random(7);
    const Type &type = samples::type("SduParamValue");
    const Node delivery = samples::number_node("DeliveryOfErrSdu", 0);
    const Node ratio = samples::make_node(samples::type("BitErrRatio"), Amount::random, random);
    EXPECT_FALSE(is_valid({&type, {}, {delivery}}));
    EXPECT_TRUE(is_valid({&type, {}, {delivery, ratio}}));
    EXPECT_TRUE(is_valid({&type, {}, {delivery, ratio, ratio}}));
    EXPECT_FALSE(is_valid({&type, {}, {delivery, delivery, ratio}}));
    EXPECT_FALSE(is_valid({&type, {}, {ratio, delivery, ratio}}));
}

TEST_F(CompositeValidity, CountsOfLists) {
    struct Bounds {
        const char *list;
        std::size_t least, greatest;
    };
    Random random(8);
    for (const Bounds &bounds : {Bounds{"RabDataInfoList", 1, 3},
                                 {"SduFormatInfoParamList", 0, 64},
                                 {"RabSetupSuccessList", 0, 3},
                                 {"ResourceInfoPerCnDomainListAck", 1, 2},
                                 {"SduParams", 0, 7},
                                 {"RabList", 0, 3},
                                 {"RabToSetupPerCnDomainList", 1, 2}}) {
        const Type &type = samples::type(bounds.list);
        const Node element = samples::make_node(*type.item, Amount::slim, random);
        for (std::size_t count = 0; count <= bounds.greatest + 2; ++count)
            EXPECT_EQ(is_valid({&type, {}, Nodes(count, element)}),
                      count >= bounds.least && count <= bounds.greatest)
                << bounds.list << ' ' << count;
    }
}

TEST_F(CompositeValidity, EveryElementOfAListCounts) {
    Random random(9);
    for (const Type *type : samples::composite_lists()) {
        const std::size_t count = std::min<std::size_t>(type->greatest, 3);
        for (std::size_t at = 0; at < count; ++at) {
            SCOPED_TRACE(std::string(type->name) + " element " + std::to_string(at));
            const Node element = samples::make_node(*type->item, Amount::slim, random);
            Node node{type, {}, Nodes(count, element)};
            EXPECT_TRUE(is_valid(node));
            node.children[at].children.insert(node.children[at].children.begin(), foreign());
            EXPECT_FALSE(is_valid(node));
            node.children[at] = foreign();
            EXPECT_FALSE(is_valid(node));
        }
        // An element beyond the count does not hide behind it.
        Node full{type, {}, {}};
        full.children.assign(type->greatest,
                             samples::make_node(*type->item, Amount::least, random));
        full.children.push_back(foreign());
        EXPECT_FALSE(is_valid(full));
    }
}

Node any_child(const Type &type, Random &random) {
    const Slot &slot = type.slots[random.between(0, std::uint32_t(type.slots.size() - 1))];
    if (random.between(0, 15) == 0)
        return foreign();
    if (random.between(0, 7) == 0)
        if (auto invalid = samples::make_invalid(*slot.type, random))
            return *std::move(invalid);
    return samples::make_node(*slot.type, Amount::slim, random);
}

// Lists of children near the valid ones: some changed, added or taken away.
TEST_F(CompositeValidity, AnyChildrenAsModelled) {
    Random random(10);
    for (const Type *type : samples::composites())
        for (int round = 0; round < 300; ++round) {
            Node node = samples::make_node(*type, Amount::slim, random);
            // Of any kind, with whatever children the others have.
            if (samples::has_conditional(type->slots))
                samples::set_number(node.children.front(), random.between(0, 4));
            for (std::uint32_t changes = random.between(0, 3); changes != 0; --changes) {
                const auto at = random.between(0, std::uint32_t(node.children.size()));
                const auto place = node.children.begin() + at;
                if (random.coin())
                    node.children.insert(place, any_child(*type, random));
                else if (place != node.children.end())
                    node.children.erase(place);
            }
            ASSERT_EQ(is_valid(node), model::is_valid(node)) << node;
        }
}

} // namespace
