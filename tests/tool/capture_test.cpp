// Messages in captures: every way down from the link, and TCP put together again.
#include <gtest/gtest.h>

#include "collector.h"

namespace {

using collector::Collector;
using collector::read;
using namespace std::string_literals;

const std::string reset = "\x00\x48\x00\x00\x00\x01\x11\x00\x06\x00\x00\x00\x02\x00\x01"s;
const std::string detect = "\x00\x48\x00\x00\x00\x01\x1e\x00\x01\x00\x00\x00\x04\x00\x01\xe2\x40"
                           "\x00\x03\x00\x00\x00\x04\x00\x00\x00\x2a"s;

std::string big(std::uint64_t number, int width) {
    std::string text;
    for (int i = width; i-- != 0;)
        text += char(number >> 8 * i);
    return text;
}

std::string little(std::uint64_t number, int width) {
    const std::string text = big(number, width);
    return {text.rbegin(), text.rend()};
}

// ---- Packets -----------------------------------------------------------------------------------

std::string ports(unsigned from, unsigned to) {
    return big(from, 2) + big(to, 2);
}

std::string udp(const std::string &data) {
    return ports(40000, 5000) + big(8 + data.size(), 2) + "\0\0"s + data;
}

std::string sctp(const std::string &data, char flags = 3) {
    const std::string heartbeat = "\x04\0\0\x05x\0\0\0"s;
    return ports(40000, 5000) + big(0, 8) + heartbeat + "\0"s + flags + big(16 + data.size(), 2) +
           big(0, 12) + data;
}

std::string tcp(std::uint32_t sequence, const std::string &data, char flags = 0x10, bool up = true,
                std::uint32_t acknowledged = 0) {
    return (up ? ports(40000, 5000) : ports(5000, 40000)) + big(sequence, 4) +
           big(acknowledged, 4) + "\x50"s + flags + big(0, 6) + data;
}

std::string ip4(int protocol, const std::string &data, bool up = true, int fragment = 0) {
    return "\x45\0"s + big(20 + data.size(), 2) + big(0, 2) + big(unsigned(fragment), 2) + "\x40"s +
           char(protocol) + big(0, 2) +
           (up ? "\x0a\0\0\x01\x0a\0\0\x02"s : "\x0a\0\0\x02\x0a\0\0\x01"s) + data;
}

std::string ip6(int protocol, const std::string &data) {
    const std::string options = char(protocol) + "\0\0\0\0\0\0\0"s; // hop by hop
    return "\x60\0\0\0"s + big(options.size() + data.size(), 2) + "\0\x40"s + big(1, 16) +
           big(2, 16) + options + data;
}

std::string ethernet(const std::string &data, unsigned type = 0x0800) {
    return std::string(12, 'm') + big(type, 2) + data;
}

// ---- Files -------------------------------------------------------------------------------------

std::string pcap(unsigned link, const std::vector<std::string> &packets) {
    std::string file =
        "\xd4\xc3\xb2\xa1\x02\0\x04\0"s + little(0, 8) + little(65535, 4) + little(link, 4);
    for (const std::string &packet : packets)
        file += little(1700000000, 4) + little(123456, 4) + little(packet.size(), 4) +
                little(packet.size(), 4) + packet;
    return file;
}

std::string block(unsigned type, std::string body) {
    body.resize((body.size() + 3) / 4 * 4);
    const std::string length = little(12 + body.size(), 4);
    return little(type, 4) + length + body + length;
}

std::string exported(const std::string &name, const std::string &data) {
    return big(12, 2) + big(name.size(), 2) + name + big(20, 2) + big(4, 2) + "\x0a\0\0\x01"s +
           big(25, 2) + big(4, 2) + big(40000, 4) + big(0, 4) + data;
}

std::vector<collector::Bytes> bytes_of(const std::vector<std::string> &messages) {
    std::vector<collector::Bytes> all;
    for (const std::string &message : messages)
        all.emplace_back(message.begin(), message.end());
    return all;
}

TEST(Capture, FindsMessagesBelowEveryLink) {
    const std::string packet = ip4(17, udp(reset));
    const struct {
        unsigned link;
        std::string packet;
        std::size_t messages;
    } cases[] = {
        {1, ethernet(packet + "padding"), 1},
        {1,
         ethernet("\x81\0\0\x05\x88\xa8\0\x07\x08\0"s.substr(2, 2) + big(0x88A8, 2) + big(7, 2) +
                      big(0x0800, 2) + packet,
                  0x8100),
         1},
        {1, ethernet(ip6(132, sctp(reset)), 0x86DD), 1},
        {1, ethernet(packet, 0x0806), 0},
        {113, std::string(14, 'c') + big(0x0800, 2) + packet, 1},
        {276, big(0x86DD, 2) + std::string(18, 'c') + ip6(17, udp(reset)), 1},
        {101, packet, 1},
        {12, ip6(17, udp(reset)), 1},
        {0, little(2, 4) + packet, 1},
        {108, big(2, 4) + packet, 1},
        {147, reset, 1},
        {162, "no message, but a user link", 1},
        {252, exported("tarn", reset), 1},
        {252, exported("other", reset), 0},
        {101, ip4(132, sctp(reset)), 1},
        {101, ip4(132, sctp(reset, 2)), 0}, // a fragment
        {101, ip4(17, udp(reset), true, 0x2000), 0},
        {101, ip4(17, udp("something else")), 0},
        {7, reset, 0},
    };
    for (const auto &[link, bytes, messages] : cases) {
        const Collector found = read(pcap(link, {bytes}));
        EXPECT_EQ(found.messages.size(), messages) << link;
        if (messages != 0 && link != 162) {
            EXPECT_EQ(found.messages, bytes_of({reset})) << link;
        }
        // Each packet cut short anywhere: whatever it holds, and no more.
        for (std::size_t size = 0; size < bytes.size(); ++size)
            read(pcap(link, {bytes.substr(0, size)}));
    }
    tool::InputOptions options;
    options.capture.links = {7};
    EXPECT_EQ(read(pcap(7, {reset}), options).messages.size(), 1U);
    options.capture.ports = {5000};
    EXPECT_EQ(read(pcap(101, {ip4(17, udp("anything"))}), options).messages.size(), 1U);
}

TEST(Capture, TellsTimeAndEnds) {
    const Collector found = read(pcap(101, {ip4(17, udp(reset))}));
    EXPECT_EQ(found.last.time, 1700000000123456000U);
    EXPECT_EQ(found.last.from.port, 40000);
    EXPECT_EQ(found.last.to.address[3], 2);
    EXPECT_EQ(found.last.transport, capture::Transport::udp);
}

TEST(Capture, ReadsBothByteOrdersAndAnyUnit) {
    const std::string section = little(0x1A2B3C4D, 4) + little(1, 4) + big(~0ULL, 8);
    const auto interface = [](unsigned link, const std::string &options) {
        return block(1, little(link, 2) + little(0, 6) + options);
    };
    const auto packet = [](unsigned index, std::uint64_t stamp) {
        return block(6, little(index, 4) + little(stamp >> 32, 4) + little(stamp, 4) +
                            little(reset.size(), 4) + little(reset.size(), 4) + reset);
    };
    const std::string file = block(0x0A0D0D0A, section) + interface(101, "") +
                             interface(147, "\x09\0\x01\0\x09\0\0\0"s) +
                             interface(148, "\x09\0\x01\0\x83\0\0\0\x0e\0\x08\0"s + little(10, 8)) +
                             block(99, "unknown");
    EXPECT_EQ(read(file + packet(1, 1700000000123456789)).last.time, 1700000000123456789U);
    EXPECT_EQ(read(file + packet(2, 12)).last.time, 11500000000U); // eighths, and 10 s
    EXPECT_EQ(read(file + packet(3, 0) + packet(1, 0)).troubles,
              std::vector<std::string>{"packet 1: its interface 3 is not described"});
    const std::string simple = block(3, little(reset.size(), 4) + reset);
    EXPECT_EQ(
        read(block(0x0A0D0D0A, section) + interface(147, "") + simple + simple).messages.size(),
        2U);
    const std::string bigEndian = "\xa1\xb2\x3c\x4d"s + big(0x00020004, 4) + big(0, 12) +
                                  big(147, 4) + big(5, 4) + big(7, 4) + big(reset.size(), 4) +
                                  big(reset.size(), 4) + reset;
    EXPECT_EQ(read(bigEndian).last.time, 5000000007U);
    for (std::size_t size = 0; size < bigEndian.size(); ++size)
        EXPECT_FALSE(read(bigEndian.substr(0, size)).troubles.empty()) << size;
}

// ---- TCP ---------------------------------------------------------------------------------------

std::string framed(const std::string &message) {
    return big(message.size(), 4) + message;
}

struct Piece {
    std::size_t from;
    std::size_t to;
};

// A stream of three messages, in segments as told, seen from its beginning.
Collector read_stream(const std::vector<Piece> &pieces, bool isFromBeginning = true) {
    const std::string stream = framed(reset) + framed(detect) + framed(reset);
    constexpr std::uint32_t first = 0xFFFFFFF0; // wraps around within the stream
    std::vector<std::string> packets;
    if (isFromBeginning)
        packets.push_back(ip4(6, tcp(first - 1, "", 2)));
    for (const auto &[from, to] : pieces)
        packets.push_back(ip4(6, tcp(first + std::uint32_t(from), stream.substr(from, to - from))));
    return read(pcap(101, packets));
}

TEST(Tcp, IsPutTogetherAgain) {
    const std::vector<std::vector<Piece>> cases = {
        {{0, 69}},
        {{0, 19}, {19, 50}, {50, 69}},
        {{0, 4}, {4, 19}, {19, 20}, {20, 69}},   // lengths apart from their messages
        {{40, 69}, {10, 40}, {0, 10}},           // out of order
        {{0, 30}, {0, 30}, {10, 50}, {30, 69}},  // sent again, overlapping
        {{0, 10}, {20, 40}, {30, 69}, {10, 25}}, //
    };
    for (const std::vector<Piece> &pieces : cases) {
        const Collector found = read_stream(pieces);
        EXPECT_EQ(found.messages, bytes_of({reset, detect, reset}));
        EXPECT_TRUE(found.troubles.empty()) << found.troubles.front();
    }
    std::vector<Piece> single;
    for (std::size_t i = 0; i < 69; ++i)
        single.push_back({i, i + 1});
    EXPECT_EQ(read_stream(single).messages.size(), 3U);
}

TEST(Tcp, GoesOnBehindGaps) {
    const Collector gap = read_stream({{0, 25}, {30, 69}});
    EXPECT_EQ(gap.messages, bytes_of({reset, reset}));
    EXPECT_EQ(gap.troubles.front(),
              "packet 3: 5 bytes of a TCP stream are missing: it goes on behind them");
    EXPECT_EQ(read_stream({{5, 69}}, false).messages, bytes_of({detect, reset}));
    const Collector cut = read_stream({{0, 40}});
    EXPECT_EQ(cut.troubles,
              std::vector<std::string>{"packet 2: a TCP stream ends within a message, "
                                       "of which 21 bytes are there"});
    // What the other end has acknowledged is not waited for.
    std::vector<std::string> packets = {ip4(6, tcp(0, framed(reset)))};
    for (std::uint32_t at = 100; at < 100 + 4 * 19; at += 19)
        packets.push_back(ip4(6, tcp(at, framed(reset))));
    packets.push_back(ip4(6, tcp(0, "", 0x10, false, 300), false));
    packets.push_back(ip4(6, tcp(0, framed(detect), 0x10, false, 300), false));
    const Collector acknowledged = read(pcap(101, packets));
    EXPECT_EQ(acknowledged.messages, bytes_of({reset, reset, reset, reset, reset, detect}));
}

TEST(Tcp, PassesOverOtherStreams) {
    std::string other;
    for (int i = 0; i < 5000; ++i)
        other += char(i * 7 % 5);
    const Collector found = read(pcap(101, {ip4(6, tcp(0, other))}));
    EXPECT_EQ(found.troubles, std::vector<std::string>{"no message in it"});
}

} // namespace
