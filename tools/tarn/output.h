// Standard output, which tells why it fails.
#ifndef TARN_TOOL_OUTPUT_H
#define TARN_TOOL_OUTPUT_H

#include <array>
#include <stdexcept>
#include <streambuf>
#include <string>

namespace tool {

struct OutputError : std::runtime_error {
    OutputError(const std::string &what, bool closed)
        : std::runtime_error(what), isClosed(closed) {}
    bool isClosed; // the reader of the pipe has gone, as head does
};

// Throws OutputError. Streams hand it on if badbit is among their exceptions.
class FileBuffer final : public std::streambuf {
public:
    explicit FileBuffer(int file) : file_(file) { setp(buffer_.data(), end()); }

protected:
    int_type overflow(int_type c) override;
    std::streamsize xsputn(const char *text, std::streamsize length) override;
    int sync() override;

private:
    char *end() { return buffer_.data() + buffer_.size(); }
    void write(const char *text, std::size_t length);

    int file_;
    std::array<char, 1U << 16> buffer_;
};

} // namespace tool

#endif
