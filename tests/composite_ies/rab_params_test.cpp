// RabParams: four of its children depend on the traffic class.
#include <cstring>

#include "support/library_test.h"
#include "support/model.h"
#include "support/samples.h"
#include "tarn_if.h"

namespace {

// The conditional children in table order, as a set.
enum Child : unsigned { secondBitRates = 1, descriptor = 2, delay = 4, priority = 8, all = 16 };

unsigned called_for(std::uint32_t trafficClass) {
    switch (trafficClass) {
    case 0:
    case 2:
        return secondBitRates | descriptor | delay;
    case 3:
        return priority;
    default:
        return 0;
    }
}

class RabParams : public LibraryTest {
protected:
    const Type &type_ = samples::type("RabParams");
    Random random_{1};

    // Without any optional child; with the conditional ones of the set.
    Node params(std::uint32_t trafficClass, unsigned conditional) {
        Node node{&type_, {}, {}};
        for (const char *name : {"TrafficClass", "RabAssymetryInd", "DeliveryOrder", "MaxSduSize",
                                 "BitRates", "SduParams"})
            node.children.push_back(
                samples::make_node(samples::type(name), Amount::least, random_));
        samples::set_number(node.children.front(), trafficClass);
        if ((conditional & secondBitRates) != 0)
            node.children.push_back(
                samples::make_node(samples::type("BitRates"), Amount::most, random_));
        if ((conditional & descriptor) != 0)
            node.children.push_back(samples::number_node("SourceStatsDescriptor", 1));
        if ((conditional & delay) != 0)
            node.children.push_back(samples::number_node("TransDelay", 100));
        if ((conditional & priority) != 0)
            node.children.push_back(samples::number_node("TrafficHandlingPriority", 1));
        return node;
    }

    static bool is_valid(const Node &node) {
        const IePtr ie = samples::make_ie(node);
        return TarnIsRabParamsIeValid(nullptr,
                                      reinterpret_cast<const TarnRabParamsIe *>(ie.get())) == 1;
    }

    struct Outcome {
        bool unpacked;
        bool valid;
        std::size_t children;
        bool operator==(const Outcome &) const = default;
    };

    Outcome unpack(const Bytes &bytes) const {
        const IePtr ie = samples::make_empty_ie(type_);
        const samples::Exact exact(bytes);
        std::uint32_t consumed = 0;
        const bool ok = type_.unpackIe(ie.get(), exact.data(), exact.size(), &consumed) == 1;
        return {ok, type_.isIeValid(ie.get()) == 1,
                samples::nodes_of(*samples::children_of(ie.get())).size()};
    }
};

// 0x10003 is no traffic class, though its low 16 bits, which travel, are one.
constexpr std::uint32_t trafficClasses[] = {0, 1, 2, 3, 4, 5, 8, 32, 0xFFFF, 0x10003, 0x80000000};

TEST_F(RabParams, ValidWithExactlyTheChildrenCalledFor) {
    for (const std::uint32_t trafficClass : trafficClasses)
        for (unsigned present = 0; present < all; ++present)
            EXPECT_EQ(is_valid(params(trafficClass, present)), present == called_for(trafficClass))
                << "class " << trafficClass << " with " << present;
}

TEST_F(RabParams, ChildThatIsItselfInvalidCountsAsAbsent) {
    Node node = params(0, called_for(0));
    EXPECT_TRUE(is_valid(node));
    const std::uint32_t three = 3; // of two at most
    std::memcpy(node.children[6].value.data(), &three, sizeof three);
    EXPECT_FALSE(is_valid(node));
    samples::set_number(node.children.front(), 1);
    node.children.resize(7);
    EXPECT_TRUE(is_valid(node));
    node.children.push_back(params(0, secondBitRates).children.back());
    EXPECT_FALSE(is_valid(node)); // one valid occurrence is enough to be present
}

TEST_F(RabParams, OrderBehindTheMandatoryChildrenDoesNotMatter) {
    Node node = params(2, called_for(2));
    std::swap(node.children[6], node.children[8]);
    node.children.insert(node.children.begin() + 7,
                         samples::number_node("DataVolReportingFlag", 1));
    EXPECT_TRUE(is_valid(node));
}

TEST_F(RabParams, NothingCountsFromPositionThirteenOn) {
    Node node = params(1, 0);
    while (node.children.size() < 12)
        node.children.push_back(samples::number_node("DataVolReportingFlag", 1));
    Node unknown = node;
    unknown.children.push_back(samples::number_node("LacMatch", 1));
    EXPECT_FALSE(is_valid(unknown)); // at 12
    node.children.push_back(samples::number_node("DataVolReportingFlag", 1));
    unknown = node;
    unknown.children.push_back(samples::number_node("LacMatch", 1));
    EXPECT_TRUE(is_valid(unknown)); // at 13
    node.children.push_back(samples::number_node("TransDelay", 1));
    EXPECT_TRUE(is_valid(node)); // not called for, and not looked at
    samples::set_number(node.children.front(), 3);
    node.children.push_back(samples::number_node("TrafficHandlingPriority", 1));
    EXPECT_FALSE(is_valid(node)); // called for, and not found there
}

TEST_F(RabParams, ClassIsThatOfTheFirstTrafficClass) {
    Node node = params(3, priority);
    node.children.push_back(samples::number_node("TrafficClass", 0));
    EXPECT_FALSE(is_valid(node)); // unexpected, but then the rest is not judged by it either
    node.children.pop_back();
    EXPECT_TRUE(is_valid(node));
}

// When nothing follows, the bytes may end before a child that is called for: the unpack succeeds,
// and the validator then refuses what it made.
TEST_F(RabParams, UnpackWhereTheBytesEndBehindIt) {
    for (std::uint32_t trafficClass = 0; trafficClass < 5; ++trafficClass)
        for (unsigned present = 0; present < all; ++present) {
            const unsigned wanted = called_for(trafficClass);
            const Node node = params(trafficClass, present);
            const Outcome outcome = unpack(samples::encode(node));
            SCOPED_TRACE("class " + std::to_string(trafficClass) + " with " +
                         std::to_string(present));
            // The first children called for, without a gap, and none that is not.
            const bool isPrefix =
                present == wanted || ((present & ~wanted) == 0 && (present & (present + 1)) == 0);
            EXPECT_EQ(outcome.unpacked, isPrefix);
            EXPECT_EQ(outcome.unpacked && outcome.valid, present == wanted);
            EXPECT_TRUE(!isPrefix || outcome.children == node.children.size());
        }
}

// When something follows, a child that is missing is noticed at once.
TEST_F(RabParams, UnpackWhereOtherBytesFollow) {
    for (std::uint32_t trafficClass = 0; trafficClass < 5; ++trafficClass)
        for (unsigned present = 0; present < all; ++present) {
            Bytes bytes = samples::encode(params(trafficClass, present));
            bytes.push_back(0x19); // the beginning of something else
            EXPECT_EQ(unpack(bytes).unpacked, present == called_for(trafficClass))
                << "class " << trafficClass << " with " << present;
        }
}

TEST_F(RabParams, UncalledChildThatDoesNotDecodeIsLeftForTheOwner) {
    const Node node = params(1, 0);
    Bytes bytes = samples::encode(node);
    const Bytes broken = from_hex("0030 00000003 000102"); // TransDelay of three bytes
    bytes.insert(bytes.end(), broken.begin(), broken.end());
    EXPECT_EQ(unpack(bytes), (Outcome{true, true, 6}));
    Bytes calledFor = samples::encode(params(0, secondBitRates | descriptor));
    calledFor.insert(calledFor.end(), broken.begin(), broken.end());
    EXPECT_FALSE(unpack(calledFor).unpacked);
}

TEST_F(RabParams, OwnerRefusesParamsThatEndTooEarly) {
    Node info{&samples::type("RabToSetUpInfo"), {}, {}};
    info.children = {samples::number_node("RabId", 1),
                     samples::number_node("AcUserPlaneAssociation", 2),
                     params(0, secondBitRates | descriptor)};
    const Bytes bytes = samples::encode(info);
    const IePtr ie = samples::make_empty_ie(*info.type);
    std::uint32_t consumed = 0;
    EXPECT_EQ(info.type->unpackIe(ie.get(), bytes.data(), std::uint32_t(bytes.size()), &consumed),
              0U);
    EXPECT_EQ(consumed, 6U + 7U + 10U);
}

TEST_F(RabParams, PackAndAppendApplyNoCondition) {
    const Node node = params(1, all - 1);
    const IePtr ie = samples::create_ie(node);
    ASSERT_NE(ie, nullptr);
    const Bytes expected = samples::encode(node);
    Bytes packed(expected.size());
    std::uint32_t written = 0;
    EXPECT_EQ(type_.packIe(ie.get(), packed.data(), std::uint32_t(packed.size()), &written), 1U);
    EXPECT_EQ(packed, expected);
}

} // namespace
