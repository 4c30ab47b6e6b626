// IapReset: UeContextRef IEs belong into it exactly when Reset3GAP is not 1.
#include "support/library_test.h"
#include "support/samples.h"
#include "tarn_if.h"

namespace {

class IapReset : public LibraryTest {
protected:
    Nodes reset(std::uint32_t reset3Gap, const Nodes &more = {}) {
        Nodes nodes = {samples::number_node("MessageId", 18), samples::number_node("ErrorCause", 5),
                       samples::number_node("Reset3GAP", reset3Gap)};
        nodes.insert(nodes.end(), more.begin(), more.end());
        return nodes;
    }

    Node ref(Amount amount = Amount::slim) {
        return samples::make_node(samples::type("UeContextRef"), amount, random_);
    }
    static Node invalid_ref() { return {&samples::type("UeContextRef"), {}, {}}; }
    static Node foreign() { return samples::number_node("SduSize", 1); }

    static bool is_valid(const Nodes &nodes) {
        return TarnIsIapResetMsgValid(
                   samples::make_msg(samples::message("IapReset"), nodes).get()) == 1;
    }

    // The number of IEs unpacked; 0 for none at all.
    static std::size_t unpack(const Bytes &bytes) {
        const samples::Exact exact(bytes);
        const MsgPtr msg(TarnUnpackIapResetMsg(exact.data(), exact.size()));
        return msg == nullptr ? 0 : samples::nodes_of(msg->ies).size();
    }
    static std::size_t unpack(const Nodes &nodes, const char *tail = "") {
        Bytes bytes = samples::encode(nodes);
        const Bytes more = from_hex(tail);
        bytes.insert(bytes.end(), more.begin(), more.end());
        return unpack(bytes);
    }

    Random random_{1};
};

TEST_F(IapReset, ValidatorWantsAValidRefExactlyWhenCalledFor) {
    for (const std::uint32_t reset3Gap : {0U, 1U, 2U, 0xFFFFU, 0x10001U}) {
        SCOPED_TRACE(reset3Gap);
        const bool wanted = reset3Gap != 1;
        EXPECT_EQ(is_valid(reset(reset3Gap)), !wanted);
        EXPECT_EQ(is_valid(reset(reset3Gap, {ref()})), wanted);
        EXPECT_EQ(is_valid(reset(reset3Gap, {ref(), ref(), ref()})), wanted);
        EXPECT_EQ(is_valid(reset(reset3Gap, {invalid_ref()})), !wanted);
        // One valid occurrence makes them present, wherever it stands.
        EXPECT_EQ(is_valid(reset(reset3Gap, {invalid_ref(), ref()})), wanted);
        EXPECT_EQ(is_valid(reset(reset3Gap, {ref(), invalid_ref()})), wanted);
        Nodes many(50, invalid_ref());
        EXPECT_EQ(is_valid(reset(reset3Gap, many)), !wanted);
        many.push_back(ref());
        EXPECT_EQ(is_valid(reset(reset3Gap, many)), wanted);
        // Another IE is unexpected right behind Reset3GAP, and ignored later.
        EXPECT_FALSE(is_valid(reset(reset3Gap, {foreign()})));
        EXPECT_FALSE(is_valid(reset(reset3Gap, {foreign(), ref()})));
        EXPECT_EQ(is_valid(reset(reset3Gap, {ref(), foreign()})), wanted);
        EXPECT_EQ(is_valid(reset(reset3Gap, {invalid_ref(), foreign(), ref()})), wanted);
    }
}

TEST_F(IapReset, ValidatorWithoutItsMandatoryIes) {
    const Nodes whole = reset(0, {ref()});
    EXPECT_FALSE(is_valid({whole[0], whole[1]}));
    EXPECT_FALSE(is_valid({whole[0], whole[2], whole[1], whole[3]}));
    EXPECT_FALSE(is_valid({whole[0], whole[1], whole[3]}));
    EXPECT_FALSE(is_valid({whole[0], whole[1], whole[3], whole[2]}));
}

TEST_F(IapReset, UnpackerTakesTheFirstRefWhenCalledFor) {
    for (const std::uint32_t reset3Gap : {0U, 2U, 0xFFFFU}) {
        SCOPED_TRACE(reset3Gap);
        EXPECT_EQ(unpack(reset(reset3Gap, {ref()})), 4U);
        EXPECT_EQ(unpack(reset(reset3Gap, {ref(Amount::least), ref(), ref()})), 4U);
        EXPECT_EQ(unpack(reset(reset3Gap, {ref()}), "0000"), 4U);
        // What does not decode as one refuses the message.
        EXPECT_EQ(unpack(reset(reset3Gap, {foreign()})), 0U);
        EXPECT_EQ(unpack(reset(reset3Gap), "00"), 0U);
        EXPECT_EQ(unpack(reset(reset3Gap), "005F"), 0U);
        EXPECT_EQ(unpack(reset(reset3Gap), "005F 00000000"), 0U);
        EXPECT_EQ(unpack(reset(reset3Gap), "005F 00000008 0003 00000002 0001"), 0U);
        // Only the end of the bytes does not.
        EXPECT_EQ(unpack(reset(reset3Gap)), 3U);
    }
}

TEST_F(IapReset, UnpackerLeavesARefOutWhenNotCalledFor) {
    EXPECT_EQ(unpack(reset(1)), 3U);
    EXPECT_EQ(unpack(reset(1, {ref()})), 3U);
    EXPECT_EQ(unpack(reset(1, {ref(), ref()})), 3U);
    EXPECT_EQ(unpack(reset(1, {foreign()})), 3U);
    EXPECT_EQ(unpack(reset(1), "005F 00000000"), 3U);
    EXPECT_EQ(unpack(reset(1), "00"), 3U);
}

TEST_F(IapReset, RefTakenIsTheFirstOne) {
    const Node first = ref(Amount::random);
    const Bytes bytes = samples::encode(reset(0, {first, ref(Amount::random)}));
    const MsgPtr msg(TarnUnpackIapResetMsg(bytes.data(), std::uint32_t(bytes.size())));
    ASSERT_NE(msg, nullptr);
    EXPECT_EQ(samples::nodes_of(msg->ies), reset(0, {first}));
    EXPECT_EQ(TarnIsIapResetMsgValid(msg.get()), 1U);
}

TEST_F(IapReset, SeveralRefsAreExtractedOneByOne) {
    const Nodes refs = {ref(Amount::random), ref(Amount::random), ref(Amount::random)};
    const MsgPtr msg = samples::create_msg(samples::message("IapReset"), reset(0, refs));
    ASSERT_NE(msg, nullptr);
    for (const Node &expected : refs) {
        TarnUeContextRefIe *found = nullptr;
        EXPECT_EQ(TarnExtractUeContextRefIeFromIapResetMsg(msg.get(), &found), 1U);
        EXPECT_EQ(samples::node_of(&found->ie), expected);
    }
    TarnUeContextRefIe *none = reinterpret_cast<TarnUeContextRefIe *>(msg.get());
    EXPECT_EQ(TarnExtractUeContextRefIeFromIapResetMsg(msg.get(), &none), 0U);
    EXPECT_EQ(none, nullptr);
    const Bytes expected = samples::encode(reset(0, refs));
    Bytes packed(expected.size());
    EXPECT_EQ(TarnPackIapResetMsg(msg.get(), packed.data(), std::uint32_t(packed.size())), 1U);
    EXPECT_EQ(packed, expected);
}

} // namespace
