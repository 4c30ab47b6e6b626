#include "tarn/capture/capture.h"

#include <algorithm>
#include <map>

#include "tarn/capture/layers.h"

namespace capture {

namespace {

class Reader final : LayerSink {
public:
    Reader(const Options &options, Sink &sink)
        : options_(options), sink_(sink), streams_(options.longest, sink) {}

    void run(Source &source) {
        PacketReader packets(source, sink_);
        Packet packet;
        while (packets.next(&packet)) {
            packetCut_ = packet.originalLength > packet.bytes.size()
                             ? packet.originalLength - packet.bytes.size()
                             : 0;
            take_apart(packet, kind_of(packet), *this);
        }
        streams_.finish();
        tell_what_was_left_out();
    }

private:
    LinkKind kind_of(const Packet &packet) {
        const auto &links = options_.links;
        if (!links.empty() && std::find(links.begin(), links.end(), packet.link) != links.end())
            return LinkKind::user;
        const LinkKind kind = kind_of_link(packet.link);
        if (kind == LinkKind::unknown)
            ++unknownLinks_[packet.link];
        return kind;
    }

    bool is_trusted(const Found &found) const {
        return std::any_of(options_.ports.begin(), options_.ports.end(),
                           [&found](std::uint16_t port) {
                               return port == found.from.port || port == found.to.port;
                           });
    }

    void bare(const Found &found) override {
        if (packetCut_ != 0)
            sink_.trouble(Severity::note, packet_place(found.packet),
                          "its last " + std::to_string(packetCut_) + " bytes were not captured");
        sink_.message(found);
    }

    void datagram(const Found &found) override {
        if (MessageMark::begins(found.bytes) || (is_trusted(found) && !found.bytes.empty()))
            bare(found);
    }

    void segment(const Found &where, const Segment &segment) override {
        streams_.add(where, segment, is_trusted(where));
    }

    void fragment(const Found &where) override {
        if (fragments_++ == 0)
            firstFragment_ = where.packet;
    }

    void tell_what_was_left_out() {
        if (fragments_ != 0)
            sink_.trouble(Severity::note, packet_place(firstFragment_),
                          "a fragment, and " + std::to_string(fragments_ - 1) +
                              " more in the capture; fragments are not put together");
        for (const auto &[link, count] : unknownLinks_)
            sink_.trouble(Severity::note, "",
                          std::to_string(count) + " packets of link type " + std::to_string(link) +
                              " not looked into; --link " + std::to_string(link) +
                              " takes them for bare messages");
    }

    const Options &options_;
    Sink &sink_;
    TcpStreams streams_;
    std::uint64_t packetCut_ = 0;
    std::uint64_t fragments_ = 0;
    std::uint64_t firstFragment_ = 0;
    std::map<std::uint32_t, std::uint64_t> unknownLinks_;
};

} // namespace

void read_capture(Source &source, const Options &options, Sink &sink) {
    Reader(options, sink).run(source);
}

} // namespace capture
