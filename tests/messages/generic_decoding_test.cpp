// Decoding a buffer of unknown type by the id that it begins with.
#include "support/library_test.h"
#include "support/samples.h"
#include "tarn_if.h"

namespace {

class GenericDecoding : public LibraryTest {
protected:
    static std::uint32_t id_of(const Bytes &bytes) {
        const samples::Exact exact(bytes);
        return TarnGetMessageId(exact.data(), exact.size());
    }

    // The id of the message object made; 0 for none, which the output must then tell as well.
    static std::uint32_t unpack(const Bytes &bytes) {
        const samples::Exact exact(bytes);
        TarnMsg *msg = reinterpret_cast<TarnMsg *>(std::uintptr_t{0x10});
        const std::uint32_t result = TarnUnpackNewMsg(exact.data(), exact.size(), &msg);
        EXPECT_EQ(result, msg != nullptr ? 1U : 0U);
        const MsgPtr owner(msg);
        return msg != nullptr ? msg->messageId : 0;
    }
};

TEST_F(GenericDecoding, IdOfTheFirstIe) {
    const struct {
        const char *bytes;
        std::uint32_t id;
    } cases[] = {
        {"0048 00000001 11", 17},
        {"0048 00000001 FF", 255},
        {"0048 00000001 00", 0},
        {"0048 00000001 22", 34},
        {"0048 00000001 11 00", 17},
        {"0048 00000001", 0},       // the value is missing
        {"0048 000000", 0},         // the length is
        {"00", 0},                  // the tag is
        {"", 0},                    //
        {"0048 00000002 11 00", 0}, // a length other than 1
        {"0048 00000000", 0},
        {"0048 80000001 11", 0},
        {"0148 00000001 11", 0}, // another tag
        {"0001 00000004 00000001 0048 00000001 11", 0},
    };
    for (const auto &one : cases)
        EXPECT_EQ(id_of(from_hex(one.bytes)), one.id) << one.bytes;
}

TEST_F(GenericDecoding, EachIdReachesItsUnpackerAndNoOther) {
    Random random(1);
    for (std::uint32_t id = 0; id < 256; ++id)
        for (const Message *message : protocol::messages()) {
            Nodes nodes = samples::make_message(*message, Amount::slim, random);
            samples::set_number(nodes.front(), id);
            const Message *wanted = protocol::message_by_id(id);
            std::uint32_t expected = 0;
            if (wanted != nullptr) {
                const Bytes bytes = samples::encode(nodes);
                const MsgPtr msg(wanted->unpack(bytes.data(), std::uint32_t(bytes.size())));
                expected = msg != nullptr ? id : 0;
                EXPECT_TRUE(expected == id || wanted != message) << message->name;
            }
            EXPECT_EQ(unpack(samples::encode(nodes)), expected) << message->name << " as " << id;
        }
}

TEST_F(GenericDecoding, ResetAloneAndWithItsDomain) {
    EXPECT_EQ(unpack(from_hex("0048 00000001 11")), 0U);
    EXPECT_EQ(unpack(from_hex("0048 00000001 11 0006 00000002 0001")), 17U);
    EXPECT_EQ(unpack(from_hex("0048 00000001 11 0006 00000002 0001 DEADBEEF")), 17U);
    EXPECT_EQ(unpack(from_hex("0048 00000002 11 00 0006 00000002 0001")), 0U);
    EXPECT_EQ(unpack({}), 0U);
}

} // namespace
