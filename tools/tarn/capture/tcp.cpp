#include "tarn/capture/tcp.h"

#include <algorithm>
#include <cstring>

namespace capture {

namespace {

constexpr std::size_t mostWaiting = 64;              // pieces of one way
constexpr std::size_t mostWaitingBytes = 512U << 10; // of one way
constexpr std::size_t mostConnections = 50000;       //
constexpr std::size_t mostBytesHeld = 64U << 20;     // of all
constexpr std::size_t pastAnAcknowledgedGap = 3;     // pieces that a late one may be behind
constexpr std::uint32_t farAway = 1U << 30;          // beyond any window

// How far one sequence number is behind another.
std::int32_t distance(std::uint32_t from, std::uint32_t to) {
    return std::int32_t(to - from);
}

// Hands on what the framer finds in one way.
class Hand final : public Framer::Taker {
public:
    Hand(const Found &where, bool isKnown, Sink &sink)
        : where_(where), isKnown_(isKnown), sink_(sink) {}

    void framed(View message) override {
        isKnown_ = true;
        where_.bytes = message;
        sink_.message(where_);
    }
    // A stream that has shown no message yet may be anything.
    void skipped(std::uint64_t count) override {
        if (isKnown_)
            sink_.trouble(Severity::fault, packet_place(where_.packet),
                          std::to_string(count) + (count == 1 ? " byte" : " bytes") +
                              " of a TCP stream skipped: no whole message");
    }

private:
    Found where_;
    bool isKnown_;
    Sink &sink_;
};

bool is_less(const Endpoint &a, const Endpoint &b) {
    const int order = std::memcmp(a.address.data(), b.address.data(), a.address.size());
    return order != 0 ? order < 0 : a.port < b.port;
}

} // namespace

std::size_t TcpStreams::KeyHash::operator()(const Key &key) const {
    std::uint64_t words[4];
    std::memcpy(words, key.low.address.data(), 16);
    std::memcpy(words + 2, key.high.address.data(), 16);
    std::uint64_t hash = std::uint64_t{key.low.port} << 16 | key.high.port;
    for (const std::uint64_t word : words)
        hash = (hash ^ word) * 0x9E3779B97F4A7C15U;
    return std::size_t(hash ^ hash >> 32);
}

TcpStreams::Connection &TcpStreams::connection_of(const Key &key, bool isTrusted) {
    const auto found = connections_.find(key);
    if (found != connections_.end())
        return found->second;
    const Way fresh{Framer(longest_, isTrusted)};
    return connections_.emplace(key, Connection{{fresh, fresh}, 0}).first->second;
}

void TcpStreams::add(const Found &where, const Segment &segment, bool isTrusted) {
    make_room();
    const bool isUp = is_less(where.from, where.to);
    Connection &connection =
        connection_of(isUp ? Key{where.from, where.to} : Key{where.to, where.from}, isTrusted);
    connection.lastUse = ++uses_;
    Way &way = connection.ways[isUp ? 0 : 1];
    way.last = where;
    way.last.bytes = {};
    Way &back = connection.ways[isUp ? 1 : 0];
    bytesHeld_ -= way.held() + back.held();
    start(way, segment);
    place(way, segment);
    // What the other end has received will not be sent again.
    const bool isReceived = !back.waiting.empty() && segment.acknowledged != 0 &&
                            distance(back.waiting.front().sequence, segment.acknowledged) >= 0;
    if (isReceived && back.waiting.size() >= pastAnAcknowledgedGap)
        give_up_gap(back);
    bytesHeld_ += way.held() + back.held();
}

// A connection seen from its beginning starts there, any other with the first segment seen.
void TcpStreams::start(Way &way, const Segment &segment) {
    const std::uint32_t first = segment.sequence + (segment.isFirst ? 1 : 0);
    const bool isAgain = way.isStarted && way.next == first;
    const bool isElsewhere =
        way.isStarted && std::uint32_t(std::abs(distance(way.next, first))) > farAway;
    if (way.isStarted && !isElsewhere && (!segment.isFirst || isAgain))
        return;
    if (way.isStarted)
        finish(way);
    way.isStarted = true;
    way.next = first;
}

void TcpStreams::place(Way &way, const Segment &segment) {
    if (segment.data.empty() && segment.missing == 0)
        return;
    const std::uint32_t first = segment.sequence + (segment.isFirst ? 1 : 0);
    const std::int32_t ahead = distance(way.next, first);
    if (ahead > 0)
        return wait(way, segment);
    const std::uint32_t known = std::uint32_t(-std::int64_t{ahead});
    if (known >= segment.data.size() + segment.missing)
        return; // sent again
    const bool hasNew = known < segment.data.size();
    const auto size = std::uint32_t(segment.data.size());
    deliver(way, hasNew ? segment.data.subspan(known) : View(),
            hasNew ? segment.missing : segment.missing - (known - size));
    drain(way);
}

// Keeps a piece in the order of the sequence numbers.
void TcpStreams::wait(Way &way, const Segment &segment) {
    const auto behind =
        std::find_if(way.waiting.begin(), way.waiting.end(), [&segment](const Piece &piece) {
            return distance(piece.sequence, segment.sequence) <= 0;
        });
    const bool isThere = behind != way.waiting.end() && behind->sequence == segment.sequence &&
                         behind->bytes.size() >= segment.data.size();
    if (isThere)
        return;
    way.waiting.insert(
        behind, {segment.sequence, segment.missing, {segment.data.begin(), segment.data.end()}});
    way.waitingBytes += segment.data.size();
    if (way.waiting.size() > mostWaiting || way.waitingBytes > mostWaitingBytes)
        give_up_gap(way);
}

void TcpStreams::deliver(Way &way, View data, std::uint32_t missing) {
    way.next += std::uint32_t(data.size()) + missing;
    Hand hand(way.last, way.framer.is_known(), sink_);
    way.framer.feed(data, hand);
    if (missing == 0)
        return;
    if (way.framer.is_known())
        sink_.trouble(Severity::fault, packet_place(way.last.packet),
                      std::to_string(missing) + " bytes of a TCP stream were not captured");
    way.framer.lose(hand);
}

// Delivers the pieces whose turn has come.
void TcpStreams::drain(Way &way) {
    while (!way.waiting.empty() && distance(way.next, way.waiting.front().sequence) <= 0) {
        const Piece piece = std::move(way.waiting.front());
        way.waiting.erase(way.waiting.begin());
        way.waitingBytes -= piece.bytes.size();
        const std::uint32_t known = way.next - piece.sequence;
        if (known < piece.bytes.size())
            deliver(way, View(piece.bytes).subspan(known), piece.missing);
    }
}

void TcpStreams::give_up_gap(Way &way) {
    const std::uint32_t gap = way.waiting.front().sequence - way.next;
    if (way.framer.is_known())
        sink_.trouble(Severity::fault, packet_place(way.last.packet),
                      std::to_string(gap) +
                          " bytes of a TCP stream are missing: it goes on behind them");
    Hand hand(way.last, way.framer.is_known(), sink_);
    way.framer.lose(hand);
    way.next += gap;
    drain(way);
}

void TcpStreams::finish(Way &way) {
    while (!way.waiting.empty())
        give_up_gap(way);
    if (way.framer.is_known() && way.framer.held() != 0)
        sink_.trouble(Severity::fault, packet_place(way.last.packet),
                      "a TCP stream ends within a message, of which " +
                          std::to_string(way.framer.held()) + " bytes are there");
    way.framer = Framer(longest_, way.framer.is_trusted());
}

void TcpStreams::finish() {
    std::vector<Way *> ways;
    for (auto &[key, connection] : connections_)
        for (Way &way : connection.ways)
            if (way.framer.held() != 0 || !way.waiting.empty())
                ways.push_back(&way);
    std::sort(ways.begin(), ways.end(),
              [](const Way *a, const Way *b) { return a->last.packet < b->last.packet; });
    for (Way *way : ways)
        finish(*way);
    connections_.clear();
    bytesHeld_ = 0;
}

// Ends the half of all connections that were used longest ago where there are too many, or where
// they hold too much.
void TcpStreams::make_room() {
    if (connections_.size() < mostConnections && bytesHeld_ < mostBytesHeld)
        return;
    std::vector<std::uint64_t> uses;
    for (const auto &[key, connection] : connections_)
        uses.push_back(connection.lastUse);
    const auto middle = uses.begin() + std::ptrdiff_t(uses.size() / 2);
    std::nth_element(uses.begin(), middle, uses.end());
    const std::uint64_t oldest = *middle;
    for (auto at = connections_.begin(); at != connections_.end();) {
        if (at->second.lastUse > oldest) {
            ++at;
            continue;
        }
        for (Way &way : at->second.ways) {
            bytesHeld_ -= way.held();
            finish(way);
        }
        at = connections_.erase(at);
    }
}

} // namespace capture
