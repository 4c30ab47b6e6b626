#include "tarn/capture/layers.h"

#include <algorithm>
#include <cstring>

namespace capture {

namespace {

enum : std::uint8_t { protocolTcp = 6, protocolUdp = 17, protocolSctp = 132 };

class Layers {
public:
    Layers(const Packet &packet, LayerSink &sink) : sink_(sink) {
        found_.packet = packet.number;
        found_.time = packet.time;
        cut_ = packet.originalLength > packet.bytes.size()
                   ? packet.originalLength - std::uint32_t(packet.bytes.size())
                   : 0;
    }

    void link(LinkKind kind, View bytes);

private:
    void ether_type(std::uint16_t type, View bytes);
    void ip(View bytes);
    void ip4(View bytes);
    void ip6(View bytes);
    void transport(std::uint8_t protocol, View bytes, bool isFragment);
    void udp(View bytes);
    void tcp(View bytes);
    void sctp(View bytes);
    void exported_pdu(View bytes);
    void read_tag(std::uint16_t tag, View value, bool *isOurs);
    bool take_ports(View bytes, std::size_t header, Transport transport);
    View bounded(View bytes, std::size_t length);

    LayerSink &sink_;
    Found found_;
    std::uint32_t cut_ = 0; // bytes of the packet that were not captured
};

void take_address(const std::uint8_t *at, std::uint8_t family, Endpoint *end) {
    end->family = family;
    std::memcpy(end->address.data(), at, family == 4 ? 4 : 16);
}

// ---- Links -------------------------------------------------------------------------------------

void Layers::link(LinkKind kind, View bytes) {
    const auto behind = [&bytes](std::size_t header) { return bytes.subspan(header); };
    const std::size_t size = bytes.size();
    if (kind == LinkKind::ethernet && size >= 14)
        ether_type(big16(bytes.data() + 12), behind(14));
    else if (kind == LinkKind::cooked && size >= 16)
        ether_type(big16(bytes.data() + 14), behind(16));
    else if (kind == LinkKind::cooked2 && size >= 20)
        ether_type(big16(bytes.data()), behind(20));
    else if (kind == LinkKind::loopback && size >= 4)
        ip(behind(4)); // the family's number differs by system; the version of IP tells as well
    else if (kind == LinkKind::ip)
        ip(bytes);
    else if (kind == LinkKind::exportedPdu)
        exported_pdu(bytes);
    else if (kind == LinkKind::user) {
        found_.bytes = bytes;
        sink_.bare(found_);
    }
}

void Layers::ether_type(std::uint16_t type, View bytes) {
    constexpr std::uint16_t ip4Type = 0x0800;
    constexpr std::uint16_t ip6Type = 0x86DD;
    const auto isVlan = [&type] { return type == 0x8100 || type == 0x88A8 || type == 0x9100; };
    for (; isVlan() && bytes.size() >= 4; bytes = bytes.subspan(4))
        type = big16(bytes.data() + 2);
    if (type == ip4Type || type == ip6Type)
        ip(bytes);
}

// ---- IP ----------------------------------------------------------------------------------------

void Layers::ip(View bytes) {
    if (bytes.empty())
        return;
    if (bytes[0] >> 4 == 4)
        ip4(bytes);
    else if (bytes[0] >> 4 == 6)
        ip6(bytes);
}

// A header tells how much of the packet is its own; the link may pad behind it, and the network
// card may have been left to fill in the length (0). What the capture cut is told by cut_.
View Layers::bounded(View bytes, std::size_t length) {
    if (length == 0)
        return bytes;
    cut_ = length > bytes.size() ? std::uint32_t(length - bytes.size()) : 0;
    return first_of(bytes, length);
}

void Layers::ip4(View bytes) {
    constexpr std::size_t least = 20;
    if (bytes.size() < least)
        return;
    const std::size_t header = std::size_t{4} * (bytes[0] & 15);
    const std::size_t length = big16(bytes.data() + 2);
    if (header < least || header > bytes.size() || (length != 0 && length < header))
        return;
    const bool isFragment = (big16(bytes.data() + 6) & 0x3FFF) != 0;
    take_address(bytes.data() + 12, 4, &found_.from);
    take_address(bytes.data() + 16, 4, &found_.to);
    transport(bytes[9], bounded(bytes, length).subspan(header), isFragment);
}

void Layers::ip6(View bytes) {
    constexpr std::size_t fixed = 40;
    enum : std::uint8_t {
        hopByHop = 0,
        routing = 43,
        fragmented = 44,
        authentication = 51,
        destination = 60
    };
    if (bytes.size() < fixed)
        return;
    const std::size_t length = big16(bytes.data() + 4);
    std::uint8_t next = bytes[6];
    take_address(bytes.data() + 8, 6, &found_.from);
    take_address(bytes.data() + 24, 6, &found_.to);
    bytes = bounded(bytes, length == 0 ? 0 : fixed + length).subspan(fixed);
    bool isFragment = false;
    while (bytes.size() >= 8) {
        std::size_t header = std::size_t{8} * (bytes[1] + 1U);
        if (next == fragmented) {
            isFragment = isFragment || (big16(bytes.data() + 2) & 0xFFF9) != 0;
            header = 8;
        } else if (next == authentication) {
            header = std::size_t{4} * (bytes[1] + 2U);
        } else if (next != hopByHop && next != routing && next != destination) {
            break;
        }
        if (header > bytes.size())
            return;
        next = bytes[0];
        bytes = bytes.subspan(header);
    }
    transport(next, bytes, isFragment);
}

// ---- Transport ---------------------------------------------------------------------------------

void Layers::transport(std::uint8_t protocol, View bytes, bool isFragment) {
    if (protocol != protocolUdp && protocol != protocolTcp && protocol != protocolSctp)
        return;
    if (isFragment)
        sink_.fragment(found_);
    else if (protocol == protocolUdp)
        udp(bytes);
    else if (protocol == protocolTcp)
        tcp(bytes);
    else
        sctp(bytes);
}

bool Layers::take_ports(View bytes, std::size_t header, Transport transport) {
    if (bytes.size() < header)
        return false;
    found_.transport = transport;
    found_.from.port = big16(bytes.data());
    found_.to.port = big16(bytes.data() + 2);
    return true;
}

void Layers::udp(View bytes) {
    constexpr std::size_t header = 8;
    if (!take_ports(bytes, header, Transport::udp))
        return;
    const std::size_t length = big16(bytes.data() + 4);
    if (length != 0 && length < header)
        return;
    found_.bytes = bounded(bytes, length).subspan(header);
    sink_.datagram(found_);
}

void Layers::tcp(View bytes) {
    constexpr std::size_t least = 20;
    enum : std::uint8_t { synchronise = 0x02, acknowledge = 0x10 };
    if (!take_ports(bytes, least, Transport::tcp))
        return;
    const std::size_t header = std::size_t{4} * (bytes[12] >> 4);
    if (header < least || header > bytes.size())
        return;
    Segment segment;
    segment.sequence = big32(bytes.data() + 4);
    if ((bytes[13] & acknowledge) != 0)
        segment.acknowledged = big32(bytes.data() + 8);
    segment.isFirst = (bytes[13] & synchronise) != 0;
    segment.missing = cut_;
    segment.data = bytes.subspan(header);
    sink_.segment(found_, segment);
}

void Layers::sctp(View bytes) {
    constexpr std::size_t header = 12;
    constexpr std::size_t dataHeader = 16;
    constexpr std::uint8_t dataChunk = 0;
    constexpr std::uint8_t wholeMessage = 3; // beginning and end
    if (!take_ports(bytes, header, Transport::sctp))
        return;
    bytes = bytes.subspan(header);
    while (bytes.size() >= 4) {
        const std::size_t length = big16(bytes.data() + 2);
        if (length < 4)
            return;
        const View chunk = first_of(bytes, length);
        if (chunk[0] == dataChunk && chunk.size() >= dataHeader) {
            found_.bytes = chunk.subspan(dataHeader);
            if ((chunk[1] & wholeMessage) == wholeMessage)
                sink_.datagram(found_);
            else
                sink_.fragment(found_);
        }
        bytes = bytes.subspan(std::min(bytes.size(), (length + 3) / 4 * 4));
    }
}

// ---- Exported PDUs -----------------------------------------------------------------------------

void Layers::read_tag(std::uint16_t tag, View value, bool *isOurs) {
    enum : std::uint16_t {
        dissector = 12,
        from4 = 20,
        to4,
        from6,
        to6,
        portType,
        fromPort,
        toPort
    };
    constexpr std::uint8_t name[] = {'t', 'a', 'r', 'n'};
    const std::size_t size = value.size();
    if (tag == dissector) {
        const auto end = std::find(value.begin(), value.end(), std::uint8_t{0});
        *isOurs = std::equal(value.begin(), end, std::begin(name), std::end(name));
    } else if ((tag == from4 || tag == to4) && size >= 4) {
        take_address(value.data(), 4, tag == from4 ? &found_.from : &found_.to);
    } else if ((tag == from6 || tag == to6) && size >= 16) {
        take_address(value.data(), 6, tag == from6 ? &found_.from : &found_.to);
    } else if (tag == portType && size >= 4) {
        const std::uint32_t number = big32(value.data());
        found_.transport = number <= 3 ? Transport(number) : Transport::none;
    } else if ((tag == fromPort || tag == toPort) && size >= 4) {
        (tag == fromPort ? found_.from : found_.to).port = std::uint16_t(big32(value.data()));
    }
}

void Layers::exported_pdu(View bytes) {
    bool isOurs = false;
    while (bytes.size() >= 4) {
        const std::uint16_t tag = big16(bytes.data());
        const std::size_t length = big16(bytes.data() + 2);
        bytes = bytes.subspan(4);
        if (length > bytes.size())
            return;
        if (tag == 0) {
            found_.bytes = bytes.subspan(length);
            if (isOurs)
                sink_.bare(found_);
            return;
        }
        read_tag(tag, bytes.first(length), &isOurs);
        bytes = bytes.subspan(length);
    }
}

} // namespace

LinkKind kind_of_link(std::uint32_t link) {
    switch (link) {
    case 1:
        return LinkKind::ethernet;
    case 113:
        return LinkKind::cooked;
    case 276:
        return LinkKind::cooked2;
    case 12:
    case 14:
    case 101:
    case 228:
    case 229:
        return LinkKind::ip;
    case 0:
    case 108:
        return LinkKind::loopback;
    case 252:
        return LinkKind::exportedPdu;
    default:
        return link >= 147 && link <= 162 ? LinkKind::user : LinkKind::unknown;
    }
}

void take_apart(const Packet &packet, LinkKind kind, LayerSink &sink) {
    Layers(packet, sink).link(kind, packet.bytes);
}

} // namespace capture
