// RelocationRequired: which of its five conditional IEs belong into it, its relocation type says.
#include <algorithm>
#include <bit>

#include "support/library_test.h"
#include "support/samples.h"
#include "tarn_if.h"

namespace {

// The IEs behind the mandatory ones in table order, as a set.
enum Ie : unsigned {
    container = 1,
    targetRnc = 2,
    classmark2 = 4,
    classmark3 = 8,
    targetCell = 16,
    bssInfo = 32,
    all = 64
};
constexpr unsigned conditional = container | targetRnc | classmark2 | classmark3 | targetCell;
constexpr const char *names[] = {"ModifiedSrncContainer", "TargetRNCId", "GsmClassmark2",
                                 "GsmClassmark3",         "TargetCGI",   "OldBssToNewBssInfo"};

unsigned called_for(std::uint32_t type) {
    if (type == 0) // inter-RAT
        return classmark2 | classmark3 | targetCell;
    return type == 1 ? container | targetRnc : 0U; // intra-RAT, or neither
}

class RelocationRequired : public LibraryTest {
protected:
    Nodes relocation(std::uint32_t type, unsigned present) {
        Nodes nodes = {samples::number_node("MessageId", 24), samples::number_node("Srnti", 1),
                       samples::number_node("AcUeId", 2),
                       samples::number_node("RelocationRequiredCause", 3),
                       samples::number_node("RelocationType", type)};
        for (unsigned i = 0; i < 6; ++i)
            if ((present >> i & 1) != 0)
                nodes.push_back(samples::make_node(samples::type(names[i]), Amount::slim, random_));
        return nodes;
    }

    static bool is_valid(const Nodes &nodes) {
        return TarnIsRelocationRequiredMsgValid(
                   samples::make_msg(samples::message("RelocationRequired"), nodes).get()) == 1;
    }

    static std::optional<Nodes> unpack(const Nodes &nodes, const char *tail = "") {
        Bytes bytes = samples::encode(nodes);
        const Bytes more = from_hex(tail);
        bytes.insert(bytes.end(), more.begin(), more.end());
        const samples::Exact exact(bytes);
        const MsgPtr msg(TarnUnpackRelocationRequiredMsg(exact.data(), exact.size()));
        if (msg == nullptr)
            return {};
        return samples::nodes_of(msg->ies);
    }

    static Nodes first(const Nodes &nodes, std::ptrdiff_t count) {
        return Nodes(nodes.begin(), nodes.begin() + count);
    }

    Random random_{1};
};

TEST_F(RelocationRequired, ValidWithExactlyTheIesCalledFor) {
    for (const std::uint32_t type : {0U, 1U, 2U, 3U, 0xFFFFU, 0x10000U, 0x10001U})
        for (unsigned present = 0; present < all; ++present) {
            Nodes nodes = relocation(type, present);
            const bool expected = (present & conditional) == called_for(type);
            EXPECT_EQ(is_valid(nodes), expected) << "type " << type << " with " << present;
            std::reverse(nodes.begin() + 5, nodes.end());
            EXPECT_EQ(is_valid(nodes), expected) << "reversed, type " << type;
        }
}

TEST_F(RelocationRequired, InvalidOccurrencesDoNotCount) {
    Node emptyClassmark3{&samples::type("GsmClassmark3"), Bytes(36), {}};
    Nodes nodes = relocation(0, called_for(0));
    nodes[6] = emptyClassmark3;
    EXPECT_FALSE(is_valid(nodes)); // called for
    nodes.push_back(relocation(0, classmark3).back());
    EXPECT_TRUE(is_valid(nodes)); // a valid one besides
    nodes = relocation(2, 0);
    nodes.push_back(emptyClassmark3);
    EXPECT_TRUE(is_valid(nodes)); // not called for
    nodes = relocation(1, called_for(1));
    nodes[5].children.clear();
    EXPECT_FALSE(is_valid(nodes));
    nodes = relocation(2, 0);
    nodes.push_back(*samples::make_invalid(samples::type("TargetCGI"), random_));
    EXPECT_TRUE(is_valid(nodes));
}

TEST_F(RelocationRequired, PositionsFiveToTenAreLookedAt) {
    const Node foreign = samples::number_node("SduSize", 1);
    for (std::size_t at = 5; at < 14; ++at) {
        Nodes nodes = relocation(2, 0);
        nodes.resize(14, relocation(2, bssInfo).back());
        EXPECT_TRUE(is_valid(nodes));
        nodes[at] = foreign;
        EXPECT_EQ(is_valid(nodes), at > 10) << at;
        nodes[at] = nodes[1];
        EXPECT_EQ(is_valid(nodes), at > 10) << at;
    }
    Nodes nodes = relocation(1, container);
    nodes.resize(11, relocation(2, bssInfo).back());
    nodes.push_back(relocation(1, targetRnc).back());
    EXPECT_FALSE(is_valid(nodes)); // TargetRNCId is called for, and not found at position 11
    std::swap(nodes[10], nodes[11]);
    EXPECT_TRUE(is_valid(nodes));
}

TEST_F(RelocationRequired, WithoutRelocationType) {
    Nodes nodes = relocation(2, 0);
    nodes.pop_back();
    EXPECT_FALSE(is_valid(nodes));
    nodes.push_back(relocation(0, bssInfo).back());
    EXPECT_FALSE(is_valid(nodes));
}

// In table order: what is called for must be there; what is not keeps all behind it from being
// taken, since it stays where it is.
TEST_F(RelocationRequired, UnpackerWithEachSetOfIes) {
    for (const std::uint32_t type : {0U, 1U, 2U, 3U})
        for (unsigned present = 0; present < all; ++present)
            for (const char *tail : {"", "00", "002A 00000002 0001"}) {
                const Nodes nodes = relocation(type, present);
                const auto result = unpack(nodes, tail);
                const unsigned wanted = called_for(type);
                const bool stuck = type == 0 && (present & (container | targetRnc)) != 0;
                SCOPED_TRACE("type " + std::to_string(type) + " with " + std::to_string(present));
                if ((present & wanted) != wanted || stuck) {
                    EXPECT_FALSE(result.has_value());
                    continue;
                }
                const bool exact = (present & conditional) == wanted;
                const std::ptrdiff_t taken =
                    5 + std::popcount(wanted) + (exact && (present & bssInfo) != 0 ? 1 : 0);
                EXPECT_EQ(result.value_or(Nodes()), first(nodes, taken));
            }
}

TEST_F(RelocationRequired, UnpackerTakesIesInTableOrderOnly) {
    Nodes nodes = relocation(0, called_for(0));
    std::swap(nodes[5], nodes[6]);
    EXPECT_FALSE(unpack(nodes).has_value());
    nodes = relocation(1, called_for(1));
    std::swap(nodes[5], nodes[6]);
    EXPECT_FALSE(unpack(nodes).has_value());
    nodes = relocation(1, called_for(1) | bssInfo);
    std::swap(nodes[6], nodes[7]);
    EXPECT_FALSE(unpack(nodes).has_value());
}

// An invalid one is left out like one that is not called for; the validator judges the rest.
TEST_F(RelocationRequired, InvalidIeIsLeftOutWhenItIsCalledFor) {
    Nodes nodes = relocation(0, called_for(0) | bssInfo);
    nodes[7] = *samples::make_invalid(samples::type("TargetCGI"), random_);
    EXPECT_EQ(unpack(nodes), first(nodes, 7));
    EXPECT_FALSE(is_valid(first(nodes, 7)));
    // But then TargetCGI is called for as well, and does not stand where it is looked for.
    nodes = relocation(0, called_for(0));
    nodes[6] = Node{&samples::type("GsmClassmark3"), Bytes(36), {}};
    EXPECT_FALSE(unpack(nodes).has_value());
}

TEST_F(RelocationRequired, IeThatDoesNotDecode) {
    const char *broken[] = {"0074 00000000",
                            "0074 0000000A 0075 00000000",
                            "0072 00000006 010203040506",
                            "0073 00000021",
                            "0070 00000000",
                            "0070 00000009 006C 00000003 010203"};
    for (const char *tail : broken) {
        EXPECT_EQ(unpack(relocation(2, 0), tail), relocation(2, 0)) << tail;
        EXPECT_FALSE(unpack(relocation(0, 0), tail).has_value()) << tail;
        EXPECT_FALSE(unpack(relocation(1, 0), tail).has_value()) << tail;
    }
    const Nodes both = relocation(0, classmark2 | classmark3);
    EXPECT_FALSE(unpack(both, "0070 00000009 006C 00000003 010203").has_value());
    // The last one, optional for all types.
    const Nodes complete = relocation(1, called_for(1));
    EXPECT_EQ(unpack(complete, "009F 00000100"), complete);
}

} // namespace
