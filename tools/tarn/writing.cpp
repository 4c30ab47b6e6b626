#include "tarn/writing.h"

#include <arpa/inet.h>

#include <chrono>

namespace tool {

namespace {

void append_padded(std::uint64_t number, unsigned width, std::string *text) {
    const std::size_t start = text->size();
    text->resize(start + width);
    for (char *to = text->data() + start + width; width != 0; --width) {
        *--to = char('0' + number % 10);
        number /= 10;
    }
}

std::string text_of_second(std::uint64_t second) {
    constexpr std::uint64_t day = 86400;
    const std::chrono::sys_days days{std::chrono::days(std::int64_t(second / day))};
    const std::chrono::year_month_day date(days);
    const std::uint64_t rest = second % day;
    std::string text;
    append_padded(std::uint64_t(int(date.year())), 4, &text);
    const std::pair<char, std::uint64_t> parts[] = {{'-', unsigned(date.month())},
                                                    {'-', unsigned(date.day())},
                                                    {'T', rest / 3600},
                                                    {':', rest / 60 % 60},
                                                    {':', rest % 60},
                                                    {'.', 0}};
    for (const auto &[mark, number] : parts) {
        text += mark;
        if (mark != '.')
            append_padded(number, 2, &text);
    }
    return text;
}

} // namespace

void Clock::append(std::uint64_t nanoseconds, std::string *text) {
    constexpr std::uint64_t inSecond = 1000000000;
    if (nanoseconds / inSecond != second_) {
        second_ = nanoseconds / inSecond;
        text_ = text_of_second(second_);
    }
    *text += text_;
    const std::uint64_t part = nanoseconds % inSecond;
    if (part % 1000 == 0)
        append_padded(part / 1000, 6, text);
    else
        append_padded(part, 9, text);
    *text += 'Z';
}

void append_endpoint(const capture::Endpoint &end, std::string *text) {
    if (end.family == 4) {
        for (std::size_t i = 0; i < 4; ++i) {
            if (i != 0)
                *text += '.';
            append_number(end.address[i], text);
        }
    } else if (end.family == 6) {
        char address[INET6_ADDRSTRLEN];
        inet_ntop(AF_INET6, end.address.data(), address, sizeof address);
        if (end.port != 0)
            *text += '[';
        *text += address;
        if (end.port != 0)
            *text += ']';
    }
    if (end.family != 0 && end.port != 0) {
        *text += ':';
        append_number(end.port, text);
    }
}

void append_quoted(std::string_view value, std::string *text) {
    constexpr char digits[] = "0123456789abcdef";
    *text += '"';
    for (const char c : value) {
        if (c == '"' || c == '\\')
            *text += '\\';
        if (c >= ' ' || (c & 0x80) != 0) {
            *text += c;
        } else {
            *text += "\\u00";
            *text += digits[c >> 4];
            *text += digits[c & 15];
        }
    }
    *text += '"';
}

} // namespace tool
