// The predicates of conditional presence.
#include <algorithm>
#include <iterator>
#include <string_view>

#include "support/library_test.h"
#include "support/samples.h"
#include "tarn_if.h"

namespace {

using protocol::Condition;

class ConditionTest : public LibraryTest {
protected:
    // A message and a composite of the same IEs: the predicate asks one of them.
    static std::uint32_t ask(const Condition &condition, const Nodes &nodes) {
        const MsgPtr msg = samples::make_msg(samples::message("Reset"), nodes);
        const IePtr ie = samples::make_ie(Node{&samples::type("RabParams"), {}, nodes});
        return condition.holds(msg.get(), ie.get());
    }

    // Expects true for exactly the numbers that `isTrue` tells.
    static void expect(const Condition &condition, const char *ie, bool (*isTrue)(std::uint32_t)) {
        const Node other = samples::number_node("LacMatch", 0);
        for (const std::uint32_t number : {0U, 1U, 2U, 3U, 4U, 7U, 8U, 31U, 32U, 33U, 0xFFFFU,
                                           0x10000U, 0x10001U, 0x80000001U, 0xFFFFFFFFU}) {
            const Node node = samples::number_node(ie, number);
            EXPECT_EQ(ask(condition, {node}), isTrue(number) ? 1U : 0U) << number;
            // Wherever it stands, the first one counts.
            for (std::uint32_t later : {0U, 1U, 2U, 3U})
                EXPECT_EQ(ask(condition, {other, node, samples::number_node(ie, later)}),
                          isTrue(number) ? 1U : 0U)
                    << number << " before " << later;
        }
        EXPECT_EQ(ask(condition, {}), 0U); // not there: false
        EXPECT_EQ(ask(condition, {other, other}), 0U);
    }
};

TEST_F(ConditionTest, NumbersForWhichEachIsTrue) {
    const struct {
        std::string_view predicate;
        const char *ie;
        bool (*isTrue)(std::uint32_t number);
    } told[] = {
        {"TarnIsInterRatRelocForMsg", "RelocationType", [](auto n) { return n == 0; }},
        {"TarnIsIntraRatRelocForMsg", "RelocationType", [](auto n) { return n == 1; }},
        {"TarnIsReset3GapNotPresentForMsg", "Reset3GAP", [](auto n) { return n != 1; }},
        {"TarnIsUserPlaneConfigResultSuccessfulForMsg", "UserPlaneResult",
         [](auto n) { return n == 0; }},
        {"TarnIfTrafficClassInteractiveForIe", "TrafficClass", [](auto n) { return n == 3; }},
        {"TarnIfTrafficClassIsRealTimeForIe", "TrafficClass",
         [](auto n) { return n == 0 || n == 2; }},
    };
    for (const Condition &condition : protocol::conditions()) {
        SCOPED_TRACE(condition.predicate);
        const auto one = std::find_if(std::begin(told), std::end(told), [&](const auto &each) {
            return each.predicate == condition.predicate;
        });
        ASSERT_NE(one, std::end(told)) << "its numbers are not told here";
        expect(condition, one->ie, one->isTrue);
    }
}

TEST_F(ConditionTest, OnlyDirectMembersAreLookedAt) {
    const Node deep{&samples::type("RabParams"), {}, {samples::number_node("TrafficClass", 3)}};
    for (const Condition &condition : protocol::conditions())
        EXPECT_EQ(ask(condition, {deep}), 0U);
}

} // namespace
