// How text is taken apart into messages.
#include <gtest/gtest.h>

#include "collector.h"

namespace {

using collector::Bytes;
using collector::Collector;
using collector::read;

TEST(Text, TakesBytesHoweverTheyAreSet) {
    const struct {
        std::string_view text;
        Bytes bytes;
    } cases[] = {
        {"0048ff", {0, 0x48, 0xFF}},
        {"00\t48\tff\r\n", {0, 0x48, 0xFF}},
        {"0x00, 0x48, 0XFF", {0, 0x48, 0xFF}},
        {"00:48-ff|", {0, 0x48, 0xFF}},
        {"\xEF\xBB\xBF"
         "00_48;ff # comment",
         {0, 0x48, 0xFF}},
        {"\"0048\" 'ff'", {0, 0x48, 0xFF}},
        {R"(\x00H\xff)", {0, 0x48, 0xFF}},
        {R"(const char m[] = "\0H" "\377"; // "as in C")", {0, 0x48, 0xFF}},
        {R"(b'\x00H\n\'"\u0022')", {0, 0x48, 0x0A, 0x27, 0x22, 0x22}},
        {"00000000: 0048 ff41 4243 44                        .H.ABCD", // xxd
         {0, 0x48, 0xFF, 0x41, 0x42, 0x43, 0x44}},
        {"00000000  00 48 ff 41 42 43 44 45  46 47                    |.H.ABCDEFG|\n0000000a\n",
         {0, 0x48, 0xFF, 0x41, 0x42, 0x43, 0x44, 0x45, 0x46, 0x47}},
        {"0000000 00 48 ff\n0000003\n", {0, 0x48, 0xFF}},                         // od -t x1
        {"0000000 01 01\n*\n0000010 02\n0000011\n", {1, 1, 1, 1, 1, 1, 1, 1, 2}}, // octal
        {"0000   00 01 02 03 04 05 06 07  08 09 0a 0b 0c 0d 0e 0f   abcd\n"
         "0010   ff                                                .\n",
         {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 0xFF}},
    };
    for (const auto &[text, bytes] : cases) {
        const Collector found = read(text, tool::Form::hex);
        EXPECT_EQ(found.messages, std::vector<Bytes>{bytes}) << text;
        EXPECT_TRUE(found.troubles.empty()) << text << ": " << found.troubles.front();
    }
}

TEST(Text, TellsMessagesApart) {
    const std::vector<Bytes> two = {{1, 2}, {3}};
    for (const char *text :
         {"0102\n03", "01\n  02\n03\n", "01\n\t02\n\n03", "01\n# between\n 02\n03",
          " 01\n 02\n\n 03", "# first\n0102 # a\n\n\n# second\n03", "0102\n  \n  03",
          "\"\\1\"\n \"\\2\"\n\"\\3\"", "0000 01 02\n0000 03", "0000 01\n0001 02\n03",
          "0000: 01\n0001: 02\n\n0000: 03"})
        EXPECT_EQ(read(text).messages, two) << text;
    EXPECT_EQ(read("# c\n01\n 02\n\n03").lines, (std::vector<std::uint64_t>{2, 5}));
}

TEST(Text, GoesOnBehindABadLine) {
    const struct {
        std::string_view text;
        const char *trouble;
        std::size_t messages;
    } cases[] = {
        {"00\n0g\n 00\n01", "line 2: 'g' is no hex digit", 2},
        {"00\n0 1\n01", "line 2: '0' has an odd number of hex digits", 2},
        {"0x\n01", "line 1: 0x without digits behind it", 1},
        {"00\x01\n01", "line 1: a byte that is no text is no hex digit", 1},
        {"\"00\n01", "line 1: a string without its closing quote", 1},
        {"\\x0\n01", "line 1: \\x needs two hex digits", 1},
        {"0000 00 0\n0002 11\n01", "line 1: '0' has an odd number of hex digits", 1},
        {"", "no message in it", 0},
        {"# nothing\n\n", "no message in it", 0},
    };
    for (const auto &[text, trouble, messages] : cases) {
        const Collector found = read(text);
        EXPECT_EQ(found.troubles, std::vector<std::string>{trouble}) << text;
        EXPECT_EQ(found.messages.size(), messages) << text;
    }
}

TEST(Input, IsKnownByItsFirstBytes) {
    using namespace std::string_literals;
    using namespace std::string_view_literals;
    constexpr auto message = "\x00\x48\x00\x00\x00\x01\x11"sv;
    const Bytes bytes(message.begin(), message.end());
    EXPECT_EQ(read(message).messages, std::vector<Bytes>{bytes});
    const std::string framed = "\0\0\0\x07"s + std::string(message);
    EXPECT_EQ(read(framed + framed).messages, (std::vector<Bytes>{bytes, bytes}));
    const Collector cut = read(framed + "??" + framed + framed.substr(0, 9));
    EXPECT_EQ(cut.messages, (std::vector<Bytes>{bytes, bytes}));
    EXPECT_EQ(cut.troubles,
              (std::vector<std::string>{"behind message 1: 2 bytes skipped: no whole message",
                                        "behind message 2: 9 bytes skipped: no whole message"}));
    EXPECT_EQ(read("31", tool::Form::raw).messages, (std::vector<Bytes>{{0x33, 0x31}}));
}

} // namespace
