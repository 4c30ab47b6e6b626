// The exchange's transport and parties against streams and peers that misbehave.

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include "tarn_host.h"
#include "tarn_if.h"

extern "C" {
#include "party.h"
#include "transport.h"
}

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr int patienceMs = 10000;

// Two ends of a stream: the one under test, and the peer's.
class Stream {
public:
    Stream() {
        int ends[2];
        if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK, 0, ends) != 0)
            std::abort();
        ours = ends[0];
        peers = ends[1];
    }
    ~Stream() {
        close(ours);
        close_peer();
    }
    Stream(const Stream &) = delete;
    Stream &operator=(const Stream &) = delete;

    void peer_writes(const Bytes &bytes) const {
        ASSERT_EQ(write(peers, bytes.data(), bytes.size()), ssize_t(bytes.size()));
    }
    void close_peer() {
        if (peers != -1)
            close(peers);
        peers = -1;
    }

    int ours = -1;
    int peers = -1;
};

Bytes frame(const Bytes &message) {
    Bytes bytes = {0, 0, std::uint8_t(message.size() >> 8), std::uint8_t(message.size())};
    bytes.insert(bytes.end(), message.begin(), message.end());
    return bytes;
}

TEST(ExchangeTransport, KeepsMessagesApartHoweverTheyArrive) {
    Stream stream;
    Bytes both = frame({1, 2, 3});
    const Bytes second = frame({});
    both.insert(both.end(), second.begin(), second.end());
    std::thread peer([&] {
        for (const std::uint8_t byte : both)
            stream.peer_writes({byte});
    });
    std::uint8_t buffer[3] = {};
    std::uint32_t length = 99;
    EXPECT_EQ(receive_frame(stream.ours, buffer, sizeof buffer, &length, patienceMs), transferDone);
    EXPECT_EQ(Bytes(buffer, buffer + length), (Bytes{1, 2, 3}));
    EXPECT_EQ(receive_frame(stream.ours, buffer, sizeof buffer, &length, patienceMs), transferDone);
    EXPECT_EQ(length, 0U);
    peer.join();
}

TEST(ExchangeTransport, CarriesMessagesBeyondTheSocketsBuffers) {
    Stream stream;
    const int little = 4096;
    setsockopt(stream.ours, SOL_SOCKET, SO_SNDBUF, &little, sizeof little);
    Bytes sent(70000);
    for (std::size_t i = 0; i < sent.size(); ++i)
        sent[i] = std::uint8_t(i * 7 + i / 256);
    Bytes received(sent.size());
    std::uint32_t length = 0;
    Transfer transfer = transferFailed;
    std::thread peer([&] {
        transfer = receive_frame(stream.peers, received.data(), std::uint32_t(received.size()),
                                 &length, patienceMs);
    });
    EXPECT_EQ(send_frame(stream.ours, sent.data(), std::uint32_t(sent.size()), patienceMs),
              transferDone);
    peer.join();
    EXPECT_EQ(transfer, transferDone);
    EXPECT_EQ(length, sent.size());
    EXPECT_EQ(received, sent);
}

TEST(ExchangeTransport, TellsBrokenStreamsApart) {
    const struct {
        const char *name;
        Bytes arrives;
        bool isClosed;
        Transfer expected;
    } cases[] = {
        {"closed before a frame", {}, true, transferClosed},
        {"closed within the length", {0, 0}, true, transferCut},
        {"closed behind the length", {0, 0, 0, 1}, true, transferCut},
        {"closed within the message", {0, 0, 0, 3, 7}, true, transferCut},
        {"one byte too long", {0, 0, 0, 9}, false, transferTooLong},
        {"length of all ones", {255, 255, 255, 255}, false, transferTooLong},
        {"silence", {}, false, transferTimedOut},
        {"silence within the message", {0, 0, 0, 3, 7}, false, transferTimedOut},
    };
    for (const auto &one : cases) {
        SCOPED_TRACE(one.name);
        Stream stream;
        stream.peer_writes(one.arrives);
        if (one.isClosed)
            stream.close_peer();
        std::uint8_t buffer[8] = {};
        std::uint32_t length = 0;
        // No patience at all: what has arrived is still read.
        EXPECT_EQ(receive_frame(stream.ours, buffer, sizeof buffer, &length, 0), one.expected);
    }
}

TEST(ExchangeTransport, SurvivesAPeerThatHasGone) {
    Stream stream;
    stream.close_peer();
    const std::uint8_t message[] = {1};
    EXPECT_EQ(send_frame(stream.ours, message, sizeof message, patienceMs), transferFailed);
}

TEST(ExchangeTransport, ConnectsOverLoopback) {
    int listener = -1;
    int ap = -1;
    int ac = -1;
    std::uint16_t port = 0;
    ASSERT_EQ(listen_on_loopback(&listener, &port), transferDone);
    EXPECT_EQ(accept_peer(listener, 0, &ac), transferTimedOut);
    ASSERT_EQ(connect_to_loopback(port, patienceMs, &ap), transferDone);
    ASSERT_EQ(accept_peer(listener, patienceMs, &ac), transferDone);
    close(listener);
    int refused = -1;
    EXPECT_EQ(connect_to_loopback(port, patienceMs, &refused), transferFailed);
    close(ap);
    close(ac);
}

// ---- Parties -----------------------------------------------------------------------------------

const Procedure contextSetUp = {
    "UE context set-up", csDomain, {&ueContextRequest, &ueContextAccept}};

// Lets one end take part while the peer has already sent all that it ever will. Returns what the
// end complains of.
std::string complaint(Side side, const Procedure &course, const Bytes &peerSends) {
    Stream stream;
    stream.peer_writes(peerSends);
    shutdown(stream.peers, SHUT_WR);
    char *text = nullptr;
    std::size_t size = 0;
    std::FILE *errors = open_memstream(&text, &size);
    const Party party = {side, stream.ours, patienceMs, nullptr, errors};
    const bool isDone = take_part(&party, &course, 1);
    std::fclose(errors);
    std::string told(text, size);
    std::free(text);
    EXPECT_EQ(isDone, told.empty());
    EXPECT_EQ(tarnHostLiveBlocks(), 0U);
    return told;
}

const Bytes srnti12001 = {0x00, 0x01, 0x00, 0x00, 0x00, 0x04, 0x00, 0x01, 0x20, 0x01};
const Bytes srnti12002 = {0x00, 0x01, 0x00, 0x00, 0x00, 0x04, 0x00, 0x01, 0x20, 0x02};
const Bytes acUeId9 = {0x00, 0x03, 0x00, 0x00, 0x00, 0x04, 0x00, 0x00, 0x00, 0x09};

Bytes message(std::uint8_t id, std::initializer_list<Bytes> ies) {
    Bytes bytes = {0x00, 0x48, 0x00, 0x00, 0x00, 0x01, id};
    for (const Bytes &ie : ies)
        bytes.insert(bytes.end(), ie.begin(), ie.end());
    return bytes;
}

TEST(ExchangeParty, JudgesWhatThePeerAnswers) {
    const struct {
        const char *name;
        Bytes peerSends;
        std::string_view complaint;
    } cases[] = {
        {"the right answer", frame(message(2, {srnti12001, acUeId9})), ""},
        {"nothing", {}, "AP: UeContextAccept: the peer closed the connection\n"},
        {"the beginning of an answer",
         {0, 0, 0, 27, 0},
         "AP: UeContextAccept: the peer closed the connection within a message\n"},
        {"an answer without its last IE", frame(message(2, {srnti12001})),
         "AP: UeContextAccept: the bytes are no message\n"},
        {"an answer about another UE", frame(message(2, {srnti12002, acUeId9})),
         "AP: UeContextAccept: the message contradicts what was agreed\n"},
        {"a message out of turn", frame(message(30, {srnti12001, acUeId9})),
         "AP: UeContextAccept: another message came in its place\n"},
    };
    for (const auto &one : cases) {
        SCOPED_TRACE(one.name);
        EXPECT_EQ(complaint(sideAp, contextSetUp, one.peerSends), one.complaint);
    }
}

// An IapReset that resets UE contexts and names none decodes; it is for the validator to refuse it.
TEST(ExchangeParty, AsksTheValidator) {
    const MessageKind iapReset = {
        "IapReset", TarnIapResetMsgId, sideAp, TarnIsIapResetMsgValid, nullptr, nullptr};
    const Procedure course = {"Reset", csDomain, {&iapReset}};
    const Bytes errorCause = {0x00, 0x49, 0x00, 0x00, 0x00, 0x02, 0x00, 0x01};
    const Bytes reset3Gap = {0x00, 0x64, 0x00, 0x00, 0x00, 0x02, 0x00, 0x00};
    EXPECT_EQ(complaint(sideAc, course, frame(message(18, {errorCause, reset3Gap}))),
              "AC: IapReset: the message is invalid\n");
}

TEST(ExchangeLadder, KeepsNotesWithinTheirRoom) {
    Notes notes = {};
    const std::string line(sizeof notes.text / 3, 'x');
    for (int i = 0; i < 4; ++i)
        note(&notes, "%s", line.c_str());
    EXPECT_EQ(notes.text, line + "\n" + line + "\n");
    note(&notes, "short");
    EXPECT_EQ(notes.text, line + "\n" + line + "\nshort\n");
}

} // namespace
