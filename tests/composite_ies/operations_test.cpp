// New, append and extract of all composite IEs, and the road from objects to bytes and back.
#include "support/library_test.h"
#include "support/model.h"
#include "support/samples.h"
#include "tarn_if.h"

namespace {

class CompositeOperations : public LibraryTest {};

TEST_F(CompositeOperations, NewIsEmptyWithItsTag) {
    for (const Type *type : samples::composites()) {
        SCOPED_TRACE(type->name);
        const IePtr ie(static_cast<TarnIe *>(type->create()));
        EXPECT_EQ(TarnGetIeTag(ie.get()), type->tag);
        EXPECT_EQ(ie->extractHistory, 0U);
        EXPECT_EQ(samples::children_of(ie.get())->first, nullptr);
        EXPECT_EQ(TarnIsComplexType(type->tag), 1U);
        Bytes header = {0, std::uint8_t(type->tag), 0, 0, 0, 0};
        Bytes packed(6);
        std::uint32_t written = 0;
        EXPECT_EQ(type->packIe(ie.get(), packed.data(), 6, &written), 1U);
        EXPECT_EQ(written, 6U);
        EXPECT_EQ(packed, header);
    }
}

// Append, pack, unpack and extract, holding each step against what the tables say.
void expect_round_trip(const Node &node) {
    const Type &type = *node.type;
    const IePtr ie = samples::create_ie(node);
    ASSERT_NE(ie, nullptr);
    EXPECT_EQ(samples::nodes_of(*samples::children_of(ie.get())), node.children);
    EXPECT_EQ(type.isIeValid(ie.get()), 1U);

    const Bytes expected = samples::encode(node);
    ASSERT_EQ(TarnSizeOfIe(ie.get()), expected.size());
    Bytes packed(expected.size());
    std::uint32_t written = 0;
    EXPECT_EQ(type.packIe(ie.get(), packed.data(), std::uint32_t(packed.size()), &written), 1U);
    EXPECT_EQ(written, packed.size());
    EXPECT_EQ(packed, expected);

    const samples::Exact bytes(expected);
    const IePtr read = samples::make_empty_ie(type);
    std::uint32_t consumed = 0;
    EXPECT_EQ(type.unpackIe(read.get(), bytes.data(), bytes.size(), &consumed), 1U);
    EXPECT_EQ(consumed, bytes.size());
    EXPECT_EQ(type.isIeValid(read.get()), 1U);
    EXPECT_EQ(samples::nodes_of(*samples::children_of(read.get())), node.children);

    // Extracting takes each child once, again after a reset, and leaves everything in place.
    EXPECT_EQ(samples::extract_all(read.get(), type.slots), node.children);
    EXPECT_EQ(samples::extract_all(read.get(), type.slots), Nodes());
    TarnResetIeExtractHistory(read.get());
    EXPECT_EQ(samples::extract_all(read.get(), type.slots), node.children);
    EXPECT_EQ(type.packIe(read.get(), packed.data(), std::uint32_t(packed.size()), &written), 1U);
    EXPECT_EQ(packed, expected);
}

TEST_F(CompositeOperations, RoundTripThroughObjectsAndBytes) {
    Random random(1);
    for (const Type *type : samples::composites()) {
        SCOPED_TRACE(type->name);
        for (const Amount amount : {Amount::least, Amount::slim, Amount::most})
            expect_round_trip(samples::make_node(*type, amount, random));
        for (int i = 0; i < 10; ++i)
            expect_round_trip(samples::make_node(*type, Amount::random, random));
    }
}

TEST_F(CompositeOperations, SameValueIsAppendedAnyNumberOfTimes) {
    Random random(3);
    for (const Type *type : samples::sequences()) {
        const IePtr ie(static_cast<TarnIe *>(type->create()));
        const Slot &slot = type->slots.front();
        const Node node = samples::make_node(*slot.type, Amount::random, random);
        for (int i = 0; i < 20; ++i)
            EXPECT_EQ(slot.append(ie.get(), node.value.data()), 1U);
        EXPECT_EQ(samples::nodes_of(*samples::children_of(ie.get())), Nodes(20, node));
    }
}

// A composite child is the parent's from then on, whatever its tag and state.
TEST_F(CompositeOperations, CompositeChildIsLinkedUnseen) {
    for (const Type *type : samples::composites())
        for (const Slot &slot : type->slots) {
            if (!slot.type->is_composite())
                continue;
            const IePtr ie(static_cast<TarnIe *>(type->create()));
            TarnIe *child = &TarnNewTargetRNCIdIe()->ie; // no composite's child
            EXPECT_EQ(slot.append(ie.get(), child), 1U) << slot.name;
            EXPECT_EQ(samples::children_of(ie.get())->first, &child->node);
        }
}

TEST_F(CompositeOperations, ExtractOfAbsentChild) {
    for (const Type *type : samples::composites()) {
        const IePtr ie(static_cast<TarnIe *>(type->create()));
        for (const Slot &slot : type->slots) {
            if (slot.extract == nullptr)
                continue;
            Bytes value(sizeof(void *) + slot.type->valueSize, 0xEE);
            EXPECT_EQ(slot.extract(ie.get(), value.data()), 0U);
            if (slot.type->is_composite())
                EXPECT_EQ(value, Bytes(sizeof(void *))) << slot.name; // a null pointer
            else
                EXPECT_EQ(value, Bytes(value.size(), 0xEE)) << slot.name;
        }
    }
}

TEST_F(CompositeOperations, TypeNamedTwiceIsExtractedInItsPlacesOrder) {
    TarnSduParamValueIe *ie = TarnNewSduParamValueIe();
    const IePtr owner(&ie->ie);
    TarnBitErrRatio ratio = {1, 2};
    TarnAppendBitErrRatioToSduParamValueIe(ie, &ratio);
    ratio = {3, 4};
    TarnAppendBitErrRatioToSduParamValueIe(ie, &ratio);
    EXPECT_EQ(TarnExtractBitErrRatioFromSduParamValueIe(ie, &ratio), 1U);
    EXPECT_EQ(ratio.Mantissa, 1);
    EXPECT_EQ(TarnExtractBitErrRatioFromSduParamValueIe(ie, &ratio), 1U);
    EXPECT_EQ(ratio.Mantissa, 3);
    EXPECT_EQ(ratio.Exponent, 4);
    ratio.Mantissa = 99;
    EXPECT_EQ(TarnExtractBitErrRatioFromSduParamValueIe(ie, &ratio), 0U);
    EXPECT_EQ(ratio.Mantissa, 99);
}

} // namespace
