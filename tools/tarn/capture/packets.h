// The packets of a pcap or pcapng file, of either byte order and any time unit.
#ifndef TARN_TOOL_CAPTURE_PACKETS_H
#define TARN_TOOL_CAPTURE_PACKETS_H

#include <vector>

#include "tarn/capture/found.h"
#include "tarn/capture/source.h"

namespace capture {

struct Packet {
    std::uint64_t number = 0; // from 1
    std::optional<std::uint64_t> time;
    std::uint32_t link = 0;
    std::uint32_t originalLength = 0; // on the wire
    View bytes;                       // what was captured of it; valid until the next packet
};

// Whether a file that begins so is a capture.
bool is_capture(View start);

class PacketReader {
public:
    PacketReader(Source &source, Sink &sink);

    // False at the end. A capture that is cut or damaged ends there, which the sink is told.
    bool next(Packet *packet);

private:
    struct Interface {
        std::uint32_t link;
        std::uint32_t snapLength;
        std::uint64_t unit;   // time stamps in a second; 0 if that does not fit
        std::uint64_t offset; // seconds to add
    };

    bool read_pcap_header();
    bool next_pcap(Packet *packet);
    bool next_pcapng(Packet *packet);
    bool read_block(std::uint32_t type, View body, Packet *packet);
    bool read_section(View *body);
    void read_interface(View body);
    bool read_enhanced(View body, bool isObsolete, Packet *packet);
    bool read_simple(View body, Packet *packet);
    bool give_up(const std::string &what);
    std::uint16_t number16(const std::uint8_t *at) const {
        return isBig_ ? big16(at) : little16(at);
    }
    std::uint32_t number32(const std::uint8_t *at) const {
        return isBig_ ? big32(at) : little32(at);
    }

    Source &source_;
    Sink &sink_;
    bool isNext_ = false; // pcapng
    bool isBig_ = false;
    bool isOver_ = false;
    std::uint32_t fraction_ = 0; // pcap: nanoseconds in the unit of its stamps
    std::uint32_t link_ = 0;     // pcap
    std::uint64_t number_ = 0;
    std::uint64_t pending_ = 0; // bytes of the record handed out last
    std::vector<Interface> interfaces_;
};

} // namespace capture

#endif
