// TCP connections put together again: out of order, sent again, overlapping, and with gaps.
#ifndef TARN_TOOL_CAPTURE_TCP_H
#define TARN_TOOL_CAPTURE_TCP_H

#include <functional>
#include <unordered_map>

#include "tarn/capture/found.h"
#include "tarn/capture/framer.h"

namespace capture {

struct Segment {
    std::uint32_t sequence = 0;
    std::uint32_t acknowledged = 0; // 0 if it acknowledges nothing
    bool isFirst = false;           // SYN
    std::uint32_t missing = 0;      // bytes behind the data that were not captured
    View data;
};

class TcpStreams {
public:
    TcpStreams(std::uint32_t longest, Sink &sink) : longest_(longest), sink_(sink) {}

    // `where` tells packet, time and both ends.
    void add(const Found &where, const Segment &segment, bool isTrusted);
    // The capture is over: what still waits for bytes is given up.
    void finish();

private:
    struct Piece {
        std::uint32_t sequence;
        std::uint32_t missing;
        std::vector<std::uint8_t> bytes;
    };

    // One way of a connection.
    struct Way {
        explicit Way(const Framer &fresh) : framer(fresh) {}
        Framer framer;
        bool isStarted = false;
        std::uint32_t next = 0;     // the sequence number that is waited for
        std::vector<Piece> waiting; // for the bytes before them
        std::size_t waitingBytes = 0;
        Found last; // where its last segment came from, without bytes

        std::size_t held() const { return framer.held() + waitingBytes; }
    };

    struct Connection {
        Way ways[2];
        std::uint64_t lastUse = 0;
    };

    struct Key {
        Endpoint low;
        Endpoint high;
        bool operator==(const Key &) const = default;
    };
    struct KeyHash {
        std::size_t operator()(const Key &key) const;
    };

    Connection &connection_of(const Key &key, bool isTrusted);
    void start(Way &way, const Segment &segment);
    void place(Way &way, const Segment &segment);
    void wait(Way &way, const Segment &segment);
    void deliver(Way &way, View data, std::uint32_t missing);
    void drain(Way &way);
    void give_up_gap(Way &way);
    void finish(Way &way);
    void make_room();

    std::uint32_t longest_;
    Sink &sink_;
    std::unordered_map<Key, Connection, KeyHash> connections_;
    std::size_t bytesHeld_ = 0;
    std::uint64_t uses_ = 0;
};

} // namespace capture

#endif
