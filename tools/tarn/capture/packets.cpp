#include "tarn/capture/packets.h"

#include <algorithm>

namespace capture {

namespace {

constexpr std::uint32_t sectionBlock = 0x0A0D0D0A;
constexpr std::uint32_t byteOrderMagic = 0x1A2B3C4D;
constexpr std::uint32_t microseconds = 0xA1B2C3D4;
constexpr std::uint32_t nanoseconds = 0xA1B23C4D;
constexpr std::uint32_t longestRecord = 64U << 20; // beyond any that is written
constexpr std::uint64_t second = 1000000000;

bool is_pcap_magic(std::uint32_t magic) {
    return magic == microseconds || magic == nanoseconds;
}

// Of an option that codes a power of 10, or of 2 with the highest bit set.
std::uint64_t unit_of(std::uint8_t resolution) {
    const bool isBinary = (resolution & 0x80) != 0;
    const unsigned power = resolution & 0x7F;
    if (power > (isBinary ? 63U : 19U))
        return 0;
    std::uint64_t unit = 1;
    for (unsigned i = 0; i < power; ++i)
        unit *= isBinary ? 2 : 10;
    return unit;
}

// Nothing for a time that 64 bits of nanoseconds do not reach.
std::optional<std::uint64_t> time_of(std::uint64_t unit, std::uint64_t offset,
                                     std::uint64_t stamp) {
    if (unit == 0)
        return {};
    const std::uint64_t seconds = stamp / unit + offset;
    if (seconds >= ~std::uint64_t{0} / second)
        return {};
    std::uint64_t part = stamp % unit;
    for (; part > ~std::uint64_t{0} / second; unit /= 2)
        part /= 2; // finer than can be told
    return seconds * second + part * second / unit;
}

} // namespace

bool is_capture(View start) {
    return start.size() >= 4 &&
           (big32(start.data()) == sectionBlock || is_pcap_magic(big32(start.data())) ||
            is_pcap_magic(little32(start.data())));
}

PacketReader::PacketReader(Source &source, Sink &sink) : source_(source), sink_(sink) {
    const View start = source_.peek(4);
    isNext_ = start.size() >= 4 && big32(start.data()) == sectionBlock;
    isOver_ = !isNext_ && !read_pcap_header();
}

bool PacketReader::next(Packet *packet) {
    if (isOver_)
        return false;
    source_.skip(pending_);
    pending_ = 0;
    return isNext_ ? next_pcapng(packet) : next_pcap(packet);
}

bool PacketReader::give_up(const std::string &what) {
    sink_.trouble(Severity::fault, number_ == 0 ? "" : "after " + packet_place(number_), what);
    isOver_ = true;
    return false;
}

// ---- pcap --------------------------------------------------------------------------------------

bool PacketReader::read_pcap_header() {
    constexpr std::size_t size = 24;
    const View head = source_.peek(size);
    if (head.size() < size)
        return give_up("the capture ends within its header");
    isBig_ = is_pcap_magic(big32(head.data()));
    fraction_ = number32(head.data()) == nanoseconds ? 1 : 1000;
    link_ = number32(head.data() + 20) & 0xFFFF; // above stands the length of the check sum
    source_.skip(size);
    return true;
}

bool PacketReader::next_pcap(Packet *packet) {
    constexpr std::size_t headSize = 16;
    View record = source_.peek(headSize);
    if (record.empty())
        return false;
    if (record.size() < headSize)
        return give_up("the capture ends within the head of a packet");
    const std::uint32_t captured = number32(record.data() + 8);
    if (captured > longestRecord)
        return give_up("the next packet claims " + std::to_string(captured) +
                       " bytes: the rest is given up");
    record = source_.peek(headSize + captured);
    if (record.size() < headSize + captured)
        return give_up("the capture ends within the next packet");
    packet->number = ++number_;
    packet->time =
        number32(record.data()) * second + std::uint64_t{number32(record.data() + 4)} * fraction_;
    packet->link = link_;
    packet->originalLength = number32(record.data() + 12);
    packet->bytes = record.subspan(headSize, captured);
    pending_ = headSize + captured;
    return true;
}

// ---- pcapng ------------------------------------------------------------------------------------

bool PacketReader::next_pcapng(Packet *packet) {
    constexpr std::size_t headSize = 8;
    constexpr std::size_t tailSize = 4;
    while (true) {
        View block = source_.peek(headSize + tailSize);
        if (block.empty())
            return false;
        if (block.size() < headSize + tailSize)
            return give_up("the capture ends within the head of a block");
        // A section tells its byte order behind its length.
        const bool isSection = big32(block.data()) == sectionBlock;
        if (isSection)
            isBig_ = big32(block.data() + headSize) == byteOrderMagic;
        if (isSection && !isBig_ && little32(block.data() + headSize) != byteOrderMagic)
            return give_up("a section without a byte order");
        const std::uint32_t length = number32(block.data() + 4);
        if (length < headSize + tailSize || length > longestRecord || length % 4 != 0)
            return give_up("a block claims " + std::to_string(length) +
                           " bytes: the rest is given up");
        const std::uint32_t type = number32(block.data());
        block = source_.peek(length);
        if (block.size() < length)
            return give_up("the capture ends within a block");
        const View body = block.subspan(headSize, length - headSize - tailSize);
        if (isSection)
            interfaces_.clear();
        if (!isSection && read_block(type, body, packet)) {
            pending_ = length;
            return true;
        }
        source_.skip(length);
    }
}

// True for a block that holds a packet.
bool PacketReader::read_block(std::uint32_t type, View body, Packet *packet) {
    enum : std::uint32_t { interfaceType = 1, obsoleteType = 2, simpleType = 3, enhancedType = 6 };
    switch (type) {
    case interfaceType:
        read_interface(body);
        return false;
    case enhancedType:
    case obsoleteType:
        return read_enhanced(body, type == obsoleteType, packet);
    case simpleType:
        return read_simple(body, packet);
    default:
        return false; // names, statistics and others
    }
}

void PacketReader::read_interface(View body) {
    constexpr std::size_t fixed = 8;
    enum : std::uint16_t { endOfOptions = 0, timeResolution = 9, timeOffset = 14 };
    Interface found{0, 0, 1000000, 0};
    if (body.size() < fixed) {
        sink_.trouble(Severity::fault, "", "an interface without its link type");
    } else {
        found.link = number16(body.data());
        found.snapLength = number32(body.data() + 4);
        body = body.subspan(fixed);
    }
    while (body.size() >= 4) {
        const std::uint16_t option = number16(body.data());
        const std::size_t length = number16(body.data() + 2);
        const std::size_t padded = 4 + (length + 3) / 4 * 4;
        if (option == endOfOptions || padded > body.size())
            break;
        if (option == timeResolution && length == 1)
            found.unit = unit_of(body[4]);
        if (option == timeOffset && length == 8) {
            const std::uint64_t first = number32(body.data() + 4);
            const std::uint64_t other = number32(body.data() + 8);
            found.offset = isBig_ ? first << 32 | other : other << 32 | first;
        }
        body = body.subspan(padded);
    }
    interfaces_.push_back(found);
}

bool PacketReader::read_enhanced(View body, bool isObsolete, Packet *packet) {
    constexpr std::size_t fixed = 20;
    ++number_;
    if (body.size() < fixed || number32(body.data() + 12) > body.size() - fixed) {
        sink_.trouble(Severity::fault, packet_place(number_), "its block is too short for it");
        return false;
    }
    const std::uint32_t index = isObsolete ? number16(body.data()) : number32(body.data());
    if (index >= interfaces_.size()) {
        sink_.trouble(Severity::fault, packet_place(number_),
                      "its interface " + std::to_string(index) + " is not described");
        return false;
    }
    const std::uint64_t stamp =
        std::uint64_t{number32(body.data() + 4)} << 32 | number32(body.data() + 8);
    packet->number = number_;
    packet->time = time_of(interfaces_[index].unit, interfaces_[index].offset, stamp);
    packet->link = interfaces_[index].link;
    packet->bytes = body.subspan(fixed, number32(body.data() + 12));
    packet->originalLength = number32(body.data() + 16);
    return true;
}

bool PacketReader::read_simple(View body, Packet *packet) {
    ++number_;
    if (body.size() < 4 || interfaces_.empty()) {
        sink_.trouble(Severity::fault, packet_place(number_),
                      "a simple packet without its length or its interface");
        return false;
    }
    const std::uint32_t snapLength = interfaces_.front().snapLength;
    packet->number = number_;
    packet->time.reset();
    packet->link = interfaces_.front().link;
    packet->originalLength = number32(body.data());
    packet->bytes = first_of(body.subspan(4), packet->originalLength);
    if (snapLength != 0)
        packet->bytes = first_of(packet->bytes, snapLength);
    return true;
}

} // namespace capture
