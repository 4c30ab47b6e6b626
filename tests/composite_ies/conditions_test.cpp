// The six predicates of conditional presence.
#include "support/library_test.h"
#include "support/samples.h"
#include "tarn_if.h"

namespace {

class ConditionTest : public LibraryTest {
protected:
    using ForMsg = std::uint32_t (*)(const TarnMsg *);
    using ForIe = std::uint32_t (*)(const TarnMsg *, const TarnRabParamsIe *);

    static std::uint32_t ask(ForMsg predicate, const Nodes &nodes) {
        return predicate(samples::make_msg(samples::message("Reset"), nodes).get());
    }
    static std::uint32_t ask(ForIe predicate, const Nodes &nodes) {
        const IePtr ie = samples::make_ie(Node{&samples::type("RabParams"), {}, nodes});
        return predicate(nullptr, reinterpret_cast<const TarnRabParamsIe *>(ie.get()));
    }

    // Expects true for exactly the numbers that `isTrue` tells.
    template <class Predicate, class IsTrue>
    static void expect(Predicate predicate, const char *ie, IsTrue isTrue) {
        SCOPED_TRACE(ie);
        const Node other = samples::number_node("LacMatch", 0);
        for (const std::uint32_t number : {0U, 1U, 2U, 3U, 4U, 7U, 8U, 31U, 32U, 33U, 0xFFFFU,
                                           0x10000U, 0x10001U, 0x80000001U, 0xFFFFFFFFU}) {
            const Node node = samples::number_node(ie, number);
            EXPECT_EQ(ask(predicate, {node}), isTrue(number) ? 1U : 0U) << number;
            // Wherever it stands, the first one counts.
            for (std::uint32_t later : {0U, 1U, 2U, 3U})
                EXPECT_EQ(ask(predicate, {other, node, samples::number_node(ie, later)}),
                          isTrue(number) ? 1U : 0U)
                    << number << " before " << later;
        }
        EXPECT_EQ(ask(predicate, {}), 0U); // not there: false
        EXPECT_EQ(ask(predicate, {other, other}), 0U);
    }
};

TEST_F(ConditionTest, NumbersForWhichEachIsTrue) {
    expect(TarnIsInterRatRelocForMsg, "RelocationType", [](auto n) { return n == 0; });
    expect(TarnIsIntraRatRelocForMsg, "RelocationType", [](auto n) { return n == 1; });
    expect(TarnIsReset3GapNotPresentForMsg, "Reset3GAP", [](auto n) { return n != 1; });
    expect(TarnIsUserPlaneConfigResultSuccessfulForMsg, "UserPlaneResult",
           [](auto n) { return n == 0; });
    expect(TarnIfTrafficClassInteractiveForIe, "TrafficClass", [](auto n) { return n == 3; });
    expect(TarnIfTrafficClassIsRealTimeForIe, "TrafficClass",
           [](auto n) { return n == 0 || n == 2; });
}

TEST_F(ConditionTest, OnlyDirectMembersAreLookedAt) {
    Node deep{&samples::type("RabParams"), {}, {samples::number_node("TrafficClass", 3)}};
    EXPECT_EQ(ask(TarnIfTrafficClassInteractiveForIe, {deep}), 0U);
    EXPECT_EQ(ask(TarnIfTrafficClassInteractiveForIe, deep.children), 1U);
}

} // namespace
