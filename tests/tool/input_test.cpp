// How hex text and raw bytes are taken apart.
#include <gtest/gtest.h>

#include "tarn/input.h"

namespace {

using tool::Bytes;
using tool::Format;

std::vector<Bytes> split(const std::string &content, Format format = Format::detect) {
    std::vector<Bytes> messages;
    for (tool::RawMessage &message : tool::split_messages(content, format, "f"))
        messages.push_back(std::move(message.bytes));
    return messages;
}

TEST(HexText, TakesBytesHoweverTheyAreSet) {
    for (const char *text : {"0048ff", "00 48 FF", "00\t48\tff\r\n", "00:48:ff", "00-48-ff",
                             "0x00, 0x48, 0xff", "0X0048ff", "0048.ff|", "00_48;ff # comment"})
        EXPECT_EQ(split(text), std::vector<Bytes>{(Bytes{0x00, 0x48, 0xFF})}) << text;
}

TEST(HexText, TellsMessagesApart) {
    const std::vector<Bytes> two = {{1, 2}, {3}};
    for (const char *text :
         {"0102\n03", "01\n  02\n03\n", "01\n\t02\n\n03", "01\n# between\n 02\n03",
          " 01\n 02\n\n 03", "# first\n0102 # a\n\n\n# second\n03", "0102\n  \n  03"})
        EXPECT_EQ(split(text), two) << text;
}

TEST(HexText, KeepsTheLineAMessageBeginsOn) {
    const auto messages = tool::split_messages("# c\n01\n 02\n\n03", Format::detect, "f");
    ASSERT_EQ(messages.size(), 2U);
    EXPECT_EQ(messages[0].line, 2U);
    EXPECT_EQ(messages[1].line, 5U);
}

TEST(HexText, SaysWhereItIsNone) {
    const struct {
        const char *text;
        const char *error;
    } cases[] = {
        {"00\n0g", "f:2: 'g' is no hex digit"},
        {"00\n0 1", "f:2: '0' has an odd number of hex digits"},
        {"0x", "f:1: 0x without digits behind it"},
        {"00\x01", "f:1: a byte that is no text is no hex digit"},
        {"", "f: no message in it"},
        {"# nothing\n\n", "f: no message in it"},
    };
    for (const auto &[text, error] : cases) {
        try {
            split(text);
            ADD_FAILURE() << text;
        } catch (const tool::InputError &thrown) {
            EXPECT_STREQ(thrown.what(), error) << text;
        }
    }
}

TEST(RawBytes, AreTakenAsOneMessage) {
    const std::string raw("\x00\x48\n\x00 1", 6);
    const std::vector<Bytes> whole = {{0x00, 0x48, 0x0A, 0x00, 0x20, 0x31}};
    EXPECT_EQ(split(raw), whole);
    EXPECT_EQ(split(raw, Format::raw), whole);
    EXPECT_THROW(split(raw, Format::hex), tool::InputError);
    EXPECT_EQ(split("31", Format::raw), (std::vector<Bytes>{{0x33, 0x31}}));
    EXPECT_THROW(split("", Format::raw), tool::InputError);
}

} // namespace
