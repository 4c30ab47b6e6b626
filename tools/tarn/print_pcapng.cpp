// Messages as exported PDUs, the way Wireshark passes on what it has taken out of other packets.
#include <cerrno>
#include <cstring>
#include <fstream>

#include "tarn/printers.h"
#include "tarn/writing.h"

namespace tool {

namespace {

// Bytes that grow. Blocks have the byte order of the machine that reads them most; what is inside
// an exported PDU is big-endian.
class Block {
public:
    void little(std::uint32_t number, unsigned width) {
        for (unsigned i = 0; i < width; ++i)
            bytes_ += char(number >> 8 * i);
    }
    void big(std::uint32_t number, unsigned width) {
        for (unsigned i = width; i-- != 0;)
            bytes_ += char(number >> 8 * i);
    }
    void bytes(capture::View view) {
        bytes_.append(reinterpret_cast<const char *>(view.data()), view.size());
    }
    void option(std::uint16_t code, std::string_view value) {
        little(code, 2);
        little(std::uint32_t(value.size()), 2);
        bytes_ += value;
        pad();
    }
    void pad() { bytes_.resize((bytes_.size() + 3) / 4 * 4); }
    const std::string &text() const { return bytes_; }
    std::size_t size() const { return bytes_.size(); }
    void clear() { bytes_.clear(); }

private:
    std::string bytes_;
};

void append_pdu(const capture::Found &found, Block *pdu) {
    enum : std::uint16_t { dissector = 12, from4 = 20, from6 = 22, portType = 24, fromPort = 25 };
    const auto tag = [pdu](std::uint16_t number, std::uint16_t length) {
        pdu->big(number, 2);
        pdu->big(length, 2);
    };
    tag(dissector, 4);
    pdu->bytes({reinterpret_cast<const std::uint8_t *>("tarn"), 4});
    const capture::Endpoint *ends[] = {&found.from, &found.to};
    for (std::uint16_t i = 0; i < 2; ++i) {
        if (ends[i]->family == 0)
            continue;
        const std::uint16_t size = ends[i]->family == 4 ? 4 : 16;
        tag(std::uint16_t((size == 4 ? from4 : from6) + i), size);
        pdu->bytes({ends[i]->address.data(), size});
    }
    if (found.transport != capture::Transport::none) {
        tag(portType, 4);
        pdu->big(std::uint32_t(found.transport), 4);
        for (std::uint16_t i = 0; i < 2; ++i) {
            tag(std::uint16_t(fromPort + i), 4);
            pdu->big(ends[i]->port, 4);
        }
    }
    tag(0, 0);
    pdu->bytes(found.bytes);
}

class PcapngPrinter final : public Printer {
public:
    explicit PcapngPrinter(const std::string &path) : file_(path, std::ios::binary) {
        if (!file_)
            throw capture::SourceError(std::strerror(errno));
        write_head();
    }

    void print(const Judged &judged, std::uint64_t, const std::string &) override {
        constexpr std::uint16_t commentOption = 1;
        constexpr std::uint32_t enhancedPacket = 6;
        const capture::Found &found = judged.found();
        pdu_.clear();
        append_pdu(found, &pdu_);
        const std::uint64_t time = found.time.value_or(0);
        block_.clear();
        block_.little(0, 4);
        block_.little(std::uint32_t(time >> 32), 4);
        block_.little(std::uint32_t(time), 4);
        block_.little(std::uint32_t(pdu_.size()), 4);
        block_.little(std::uint32_t(pdu_.size()), 4);
        block_.bytes({reinterpret_cast<const std::uint8_t *>(pdu_.text().data()), pdu_.size()});
        block_.pad();
        block_.option(commentOption, comment_of(judged));
        block_.option(0, "");
        write(enhancedPacket);
    }

    void finish() override {
        if (!file_.flush())
            throw capture::SourceError(std::strerror(errno));
    }

private:
    static std::string comment_of(const Judged &judged) {
        std::string text = tarnInfoVerdictWord(judged.verdict());
        if (!judged.is_valid() && judged.explanation().faultCount != 0)
            text += ": " + words(judged.explanation().faults[0]);
        return text;
    }

    void write_head() {
        constexpr std::uint32_t section = 0x0A0D0D0A;
        constexpr std::uint32_t byteOrder = 0x1A2B3C4D;
        constexpr std::uint32_t interface = 1;
        constexpr std::uint32_t exportedPdus = 252;
        constexpr std::uint16_t timeResolution = 9;
        block_.little(byteOrder, 4);
        block_.little(1, 2);
        block_.little(0, 2);
        block_.little(~0U, 4); // the section's length is not told
        block_.little(~0U, 4);
        write(section);
        block_.clear();
        block_.little(exportedPdus, 4);
        block_.little(0, 4); // no limit to a packet's length
        block_.option(timeResolution, "\x09");
        block_.option(0, "");
        write(interface);
    }

    void write(std::uint32_t type) {
        Block frame;
        frame.little(type, 4);
        frame.little(std::uint32_t(block_.size() + 12), 4);
        file_.write(frame.text().data(), 8);
        file_.write(block_.text().data(), std::streamsize(block_.size()));
        file_.write(frame.text().data() + 4, 4);
        if (!file_)
            throw capture::SourceError(std::strerror(errno));
    }

    std::ofstream file_;
    Block pdu_;
    Block block_;
};

} // namespace

std::unique_ptr<Printer> make_pcapng_printer(const std::string &path) {
    return std::make_unique<PcapngPrinter>(path);
}

} // namespace tool
