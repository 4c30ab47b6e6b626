// What lies in a packet between its link and its messages.
#ifndef TARN_TOOL_CAPTURE_LAYERS_H
#define TARN_TOOL_CAPTURE_LAYERS_H

#include "tarn/capture/found.h"
#include "tarn/capture/packets.h"
#include "tarn/capture/tcp.h"

namespace capture {

// What a link type's packets begin with.
enum class LinkKind { unknown, ethernet, cooked, cooked2, ip, loopback, user, exportedPdu };
LinkKind kind_of_link(std::uint32_t link);

class LayerSink {
public:
    // Bytes that are a message for sure.
    virtual void bare(const Found &found) = 0;
    // What UDP or a DATA chunk of SCTP carries, whole.
    virtual void datagram(const Found &found) = 0;
    virtual void segment(const Found &where, const Segment &segment) = 0;
    virtual void fragment(const Found &where) = 0;

protected:
    ~LayerSink() = default;
};

// Takes a packet apart and hands on what is in it; nothing for what is of no interest here.
void take_apart(const Packet &packet, LinkKind kind, LayerSink &sink);

} // namespace capture

#endif
