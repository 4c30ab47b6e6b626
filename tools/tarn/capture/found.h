// What the readers of this room hand out: messages with where they come from, and troubles.
#ifndef TARN_TOOL_CAPTURE_FOUND_H
#define TARN_TOOL_CAPTURE_FOUND_H

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "tarn/capture/bytes.h"

namespace capture {

// By the numbers that the port type of an exported PDU has.
enum class Transport : std::uint8_t { none = 0, sctp = 1, tcp = 2, udp = 3 };

struct Endpoint {
    std::uint8_t family = 0; // 4, 6, or 0 for none
    std::uint16_t port = 0;
    std::array<std::uint8_t, 16> address{}; // of IPv4 the first four

    bool operator==(const Endpoint &) const = default;
};

struct Found {
    View bytes; // valid during the call that hands it out
    std::uint64_t packet = 0;
    std::uint64_t line = 0;            // of text; 0 elsewhere
    std::optional<std::uint64_t> time; // nanoseconds since 1970, UTC
    Transport transport = Transport::none;
    Endpoint from;
    Endpoint to;
};

enum class Severity {
    note,  // worth telling, nothing is lost that could be had
    fault, // a part of the input could not be read
};

class Sink {
public:
    virtual void message(const Found &found) = 0;
    // `place` is "line 3" or "packet 12", or empty for the whole input.
    virtual void trouble(Severity severity, const std::string &place, const std::string &what) = 0;

protected:
    ~Sink() = default;
};

inline std::string packet_place(std::uint64_t number) {
    return "packet " + std::to_string(number);
}

} // namespace capture

#endif
