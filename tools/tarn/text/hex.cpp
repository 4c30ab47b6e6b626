#include "tarn/text/hex.h"

#include <algorithm>
#include <array>

namespace text {

namespace {

constexpr std::uint8_t separator = 16;
constexpr std::uint8_t other = 17;

constexpr std::array<std::uint8_t, 256> kinds = [] {
    std::array<std::uint8_t, 256> all{};
    all.fill(other);
    for (const char c : std::string_view(" \t\r,;:-._|"))
        all[std::uint8_t(c)] = separator;
    for (unsigned i = 0; i < 10; ++i)
        all['0' + i] = std::uint8_t(i);
    for (unsigned i = 0; i < 6; ++i)
        all['a' + i] = all['A' + i] = std::uint8_t(10 + i);
    return all;
}();

std::uint8_t kind_of(char c) {
    return kinds[std::uint8_t(c)];
}

std::string quoted(char c) {
    if (c >= ' ' && c <= '~')
        return std::string("'") + c + "'";
    return "a byte that is no text";
}

std::string odd_run(std::string_view text) {
    constexpr std::size_t shown = 40;
    const auto end = std::find_if(text.begin(), text.end(), [](char c) { return kind_of(c) > 15; });
    const std::string run(text.begin(), end);
    return "'" + run.substr(0, shown) + (run.size() > shown ? "...' has" : "' has") +
           " an odd number of hex digits";
}

} // namespace

bool is_separator(char c) {
    return kind_of(c) == separator;
}

unsigned hex_digit(char c) {
    return kind_of(c);
}

std::string append_hex(std::string_view text, Bytes *bytes) {
    const std::size_t before = bytes->size();
    bytes->resize(before + text.size() / 2);
    std::uint8_t *to = bytes->data() + before;
    std::string wrong;
    std::size_t start = 0; // of the run of digits
    for (std::size_t at = 0; at < text.size() && wrong.empty();) {
        const std::uint8_t high = kind_of(text[at]);
        const std::uint8_t low = at + 1 < text.size() ? kind_of(text[at + 1]) : separator;
        if ((high | low) < separator) {
            *to++ = std::uint8_t(high << 4 | low);
            at += 2;
        } else if (high == separator) {
            start = ++at;
        } else if (at == start && text[at] == '0' && low == other && (text[at + 1] | 0x20) == 'x') {
            start = at += 2;
            if (at == text.size() || kind_of(text[at]) == separator)
                wrong = "0x without digits behind it";
        } else if (high == other || low == other) {
            wrong = quoted(text[high == other ? at : at + 1]) + " is no hex digit";
        } else {
            wrong = odd_run(text.substr(start));
        }
    }
    bytes->resize(std::size_t(to - bytes->data()));
    return wrong;
}

// ---- Strings -----------------------------------------------------------------------------------

namespace {

// Reads one escape behind its backslash.
class Escape {
public:
    explicit Escape(std::string_view *text) : text_(*text) {}

    std::string read(std::uint8_t *byte) {
        if (text_.empty())
            return "a \\ at the end";
        const char c = text_.front();
        if (c >= '0' && c <= '7')
            return octal(byte);
        text_.remove_prefix(1);
        if (c == 'x')
            return digits(2, byte);
        if (c == 'u')
            return digits(4, byte);
        constexpr std::string_view names = "nrtabfve\\\"'?";
        constexpr std::string_view meant = "\n\r\t\a\b\f\v\x1B\\\"'?";
        const std::size_t found = names.find(c);
        if (found == names.npos)
            return "\\" + std::string(c >= ' ' && c <= '~' ? 1 : 0, c) + " is no escape";
        *byte = std::uint8_t(meant[found]);
        return {};
    }

private:
    std::string octal(std::uint8_t *byte) {
        unsigned value = 0;
        for (int i = 0; i < 3 && !text_.empty() && text_[0] >= '0' && text_[0] <= '7'; ++i) {
            value = value * 8 + unsigned(text_[0] - '0');
            text_.remove_prefix(1);
        }
        *byte = std::uint8_t(value);
        return value <= 0xFF ? "" : "an octal escape above 255";
    }

    std::string digits(std::size_t count, std::uint8_t *byte) {
        unsigned value = 0;
        for (std::size_t i = 0; i < count; ++i) {
            const unsigned digit = i < text_.size() ? hex_digit(text_[i]) : other;
            if (digit > 15)
                return count == 2 ? "\\x needs two hex digits" : "\\u needs four hex digits";
            value = value << 4 | digit;
        }
        text_.remove_prefix(count);
        *byte = std::uint8_t(value);
        return value <= 0xFF ? "" : "\\u above 255 is no byte";
    }

    std::string_view &text_;
};

// Takes a string up to a quote, or to the end of the text if there is none around it.
std::string append_string(std::string_view *text, char quote, Bytes *bytes) {
    while (!text->empty()) {
        const char c = text->front();
        text->remove_prefix(1);
        if (quote != 0 && c == quote)
            return {};
        auto byte = std::uint8_t(c);
        if (c == '\\') {
            std::string wrong = Escape(text).read(&byte);
            if (!wrong.empty())
                return wrong;
        }
        bytes->push_back(byte);
    }
    return quote == 0 ? "" : "a string without its closing quote";
}

} // namespace

std::string append_strings(std::string_view text, Bytes *bytes) {
    if (text.find_first_of("\"'") == text.npos) {
        const std::size_t start = text.find_first_not_of(" \t");
        text.remove_prefix(std::min(start, text.size()));
        while (!text.empty() && (text.back() == ' ' || text.back() == '\t'))
            text.remove_suffix(1);
        return append_string(&text, 0, bytes);
    }
    std::string wrong;
    while (wrong.empty()) {
        const std::size_t quote = text.find_first_of("\"'");
        const std::size_t comment = std::min(text.find('#'), text.find("//"));
        if (quote == text.npos || comment < quote)
            break;
        const char mark = text[quote];
        text.remove_prefix(quote + 1);
        wrong = append_string(&text, mark, bytes);
    }
    return wrong;
}

} // namespace text
