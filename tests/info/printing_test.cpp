// Readable forms, and what a shared log must not show.
#include <string>

#include "support/library_test.h"
#include "support/samples.h"
#include "tarn_info.h"

namespace {

class Printing : public LibraryTest {};

std::string print(const Bytes &bytes, TarnInfoFormat format, std::uint32_t switches) {
    std::string text;
    const auto sink = [](void *context, const char *piece, std::uint32_t length) {
        static_cast<std::string *>(context)->append(piece, length);
    };
    tarnInfoPrintBytes(bytes.data(), std::uint32_t(bytes.size()), nullptr, format, switches, sink,
                       &text);
    return text;
}

const Bytes accessControl =
    samples::from_hex("00480000000126 0001000000040001e240 0003000000040000002a 006d000000020001"
                      "00a90000001030303130313031323334353637383900");

TEST_F(Printing, JsonAndItsSwitches) {
    const std::string ids = "\"Srnti\":123456,\"AcUeId\":42";
    const struct {
        std::uint32_t switches;
        std::string text;
    } cases[] = {
        {0, "{\"message\":\"AccessControlRequest\"," + ids +
                ",\"LAC\":\"0001\",\"Imsi\":\"30303130313031323334353637383900\"}"},
        {TarnInfoMembers | TarnInfoReadably,
         "\"message\":\"AccessControlRequest\"," + ids +
             ",\"LAC\":\"0x0001\",\"Imsi\":\"001010123456789\""},
        {TarnInfoRedact, "{\"message\":\"AccessControlRequest\"," + ids +
                             ",\"LAC\":\"0001\",\"Imsi\":\"redacted\"}"},
    };
    for (const auto &[switches, text] : cases)
        EXPECT_EQ(print(accessControl, TarnInfoJson, switches), text);
}

TEST_F(Printing, TreeOfWhatStandsBeforeTheFault) {
    Bytes cut = accessControl;
    cut.resize(cut.size() - 1);
    EXPECT_EQ(print(cut, TarnInfoTree, 0), "     0  MessageId  [72]  38 (0x26)\n"
                                           "     7  Srnti       [1]  123456 (0x0001e240)\n"
                                           "    17  AcUeId      [3]  42 (0x0000002a)\n"
                                           "    27  LAC       [109]  2 bytes: 00 01 = 0x0001\n");
}

// Whatever a secret holds, none of its bytes are seen, in any message that has one.
TEST_F(Printing, RedactsEverySecret) {
    samples::Random random(5);
    for (const protocol::Message *message : protocol::messages()) {
        samples::Nodes nodes = samples::make_message(*message, samples::Amount::slim, random);
        const auto spell = [](auto &&self, samples::Nodes &list) -> void {
            for (samples::Node &node : list) {
                const auto secrecy = tarnInfoTypeByTag(node.type->tag)->secrecy;
                if (node.type->shape == protocol::Shape::bytes && secrecy != TarnInfoPublic)
                    std::fill(node.value.begin() + 4, node.value.end(), 0xA5);
                self(self, node.children);
            }
        };
        spell(spell, nodes);
        for (const TarnInfoFormat format : {TarnInfoTree, TarnInfoJson}) {
            const std::string text =
                print(samples::encode(nodes), format, TarnInfoRedact | TarnInfoRedactPayloads);
            EXPECT_EQ(text.find("a5a5"), text.npos) << text;
            EXPECT_EQ(text.find("a5 a5"), text.npos) << text;
        }
    }
}

TEST_F(Printing, ReadableForms) {
    const struct {
        const char *type;
        const char *value;
        const char *text; // empty: none
    } cases[] = {
        {"PLMNId", "00F110", "001-01"},
        {"PLMNId", "130014", "310-410"},
        {"PLMNId", "A0F110", ""},
        {"TempUeIdValue", "C0001234", "0xc0001234"},
        {"LAC", "00", ""},
        {"NasUeId", "00010121436587F9", "001010123456789"},
        {"NasUeId", "2143", "1234"},
        {"NasUeId", "213F", ""},
        {"Imsi", "30303130313031323334353637383900", "001010123456789"},
        {"Imsi", "00010121436587F9FFFFFFFFFFFFFFFF", "001010123456789"},
        {"Imsi", "00000000000000000000000000000000", ""}, // more digits than an IMSI has
        {"Imsi", "", ""},
        {"IpAddress", "003D000000010A003D0000000100003D0000000100003D0000000101", "10.0.0.1"},
        {"NasMsg", "3031", ""},
    };
    for (const auto &[type, value, text] : cases) {
        const Bytes bytes = samples::from_hex(value);
        char shown[64] = "";
        const std::uint32_t length =
            tarnInfoReadable(tarnInfoTypeByName(type), bytes.data(), std::uint32_t(bytes.size()),
                             shown, sizeof shown);
        EXPECT_STREQ(shown, text) << type << " " << value;
        EXPECT_EQ(length, std::string(text).size());
    }
}

} // namespace
