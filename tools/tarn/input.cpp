#include "tarn/input.h"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cstdio>
#include <cstring>

namespace tool {

namespace {

constexpr std::string_view separators = " \t\r,;:-._|";

std::string quoted(char c) {
    if (std::isprint(static_cast<unsigned char>(c)) != 0)
        return std::string("'") + c + "'";
    return "a byte that is no text";
}

unsigned digit_value(char c) {
    if (std::isxdigit(static_cast<unsigned char>(c)) == 0)
        throw InputError(quoted(c) + " is no hex digit");
    return unsigned(c <= '9' ? c - '0' : (c | 0x20) - 'a' + 10);
}

// A run of digits stands for whole bytes.
void append_run(std::string_view run, Bytes *bytes) {
    if (run.starts_with("0x") || run.starts_with("0X"))
        run.remove_prefix(2);
    if (run.empty())
        throw InputError("0x without digits behind it");
    for (std::size_t i = 0; i < run.size(); i += 2) {
        const unsigned high = digit_value(run[i]);
        if (i + 1 == run.size())
            throw InputError("'" + std::string(run.substr(0, 40)) +
                             "' has an odd number of hex digits");
        bytes->push_back(std::uint8_t(high << 4 | digit_value(run[i + 1])));
    }
}

// Reads hex text line by line.
class HexReader {
public:
    void line(std::string_view text) {
        ++number_;
        const bool isIndented = text.starts_with(' ') || text.starts_with('\t');
        const bool isComment = text.find_first_not_of(separators) == text.find('#');
        const bool isBlank = text.find_first_not_of(separators) == text.npos;
        if (isBlank || !(isIndented || isComment))
            isOpen_ = false;
        if (isBlank || isComment)
            return;
        if (!isOpen_)
            messages_.push_back({number_, {}});
        isOpen_ = true;
        append_hex(text.substr(0, text.find('#')), &messages_.back().bytes);
    }

    unsigned number() const { return number_; }
    std::vector<RawMessage> take() { return std::move(messages_); }

private:
    std::vector<RawMessage> messages_;
    unsigned number_ = 0;
    bool isOpen_ = false; // whether an indented line continues the last message
};

std::vector<RawMessage> split_hex(std::string_view content, const std::string &name) {
    HexReader reader;
    try {
        while (!content.empty()) {
            const std::size_t end = std::min(content.find('\n'), content.size());
            reader.line(content.substr(0, end));
            content.remove_prefix(std::min(end + 1, content.size()));
        }
    } catch (const InputError &error) {
        throw InputError(name + ":" + std::to_string(reader.number()) + ": " + error.what());
    }
    return reader.take();
}

} // namespace

// By the C library, which reports the errors of reading as well as those of opening.
std::string read_file(const std::string &path) {
    std::FILE *file = path == "-" ? stdin : std::fopen(path.c_str(), "rb");
    if (file == nullptr)
        throw InputError(path + ": " + std::strerror(errno));
    std::string content;
    char chunk[65536];
    while (const std::size_t count = std::fread(chunk, 1, sizeof chunk, file))
        content.append(chunk, count);
    const int error = std::ferror(file) != 0 ? errno : 0;
    if (file != stdin)
        std::fclose(file);
    if (error != 0)
        throw InputError(path + ": " + std::strerror(error));
    return content;
}

void append_hex(std::string_view text, Bytes *bytes) {
    while (true) {
        const std::size_t start = text.find_first_not_of(separators);
        if (start == text.npos)
            return;
        text.remove_prefix(start);
        const std::size_t end = std::min(text.find_first_of(separators), text.size());
        append_run(text.substr(0, end), bytes);
        text.remove_prefix(end);
    }
}

std::vector<RawMessage> split_messages(const std::string &content, Format format,
                                       const std::string &name) {
    std::vector<RawMessage> messages;
    const bool holdsZero = content.find('\0') != content.npos;
    if (format == Format::raw || (format == Format::detect && holdsZero)) {
        if (!content.empty())
            messages.push_back({0, Bytes(content.begin(), content.end())});
    } else {
        messages = split_hex(content, name);
    }
    if (messages.empty())
        throw InputError(name + ": no message in it");
    for (const RawMessage &message : messages)
        if (message.bytes.size() > 0xFFFFFFFFU)
            throw InputError(name + ": a message of 4 GiB or more");
    return messages;
}

} // namespace tool
