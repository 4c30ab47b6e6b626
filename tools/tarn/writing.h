// Text put together by hand, as fast as messages come.
#ifndef TARN_TOOL_WRITING_H
#define TARN_TOOL_WRITING_H

#include <charconv>
#include <string>
#include <string_view>

#include "tarn/capture/found.h"

namespace tool {

inline void append_number(std::uint64_t number, std::string *text) {
    char digits[20];
    const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
    text->append(digits, end);
}

inline void append_hex(capture::View bytes, std::string *text) {
    constexpr char digits[] = "0123456789abcdef";
    const std::size_t start = text->size();
    text->resize(start + 2 * bytes.size());
    char *to = text->data() + start;
    for (const std::uint8_t byte : bytes) {
        *to++ = digits[byte >> 4];
        *to++ = digits[byte & 15];
    }
}

// "10.0.0.1:5000", "[2001:db8::1]:5000"; without a port where there is none. Nothing for no
// address.
void append_endpoint(const capture::Endpoint &end, std::string *text);

// Times as text, of which those that follow each other mostly share the second.
class Clock {
public:
    // "2026-11-21T19:01:11.123456Z"; nine decimals where microseconds do not tell all.
    void append(std::uint64_t nanoseconds, std::string *text);

private:
    std::uint64_t second_ = ~std::uint64_t{0};
    std::string text_;
};

// A JSON string, quotes included.
void append_quoted(std::string_view value, std::string *text);

} // namespace tool

#endif
