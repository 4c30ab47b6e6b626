// Messages written as text: hex digits, dumps with offsets, strings with escapes.
#ifndef TARN_TOOL_TEXT_TEXT_H
#define TARN_TOOL_TEXT_TEXT_H

#include "tarn/capture/found.h"
#include "tarn/capture/source.h"
#include "tarn/text/hex.h"

namespace text {

// Takes lines and hands out messages. Each line tells by itself what form it has:
//   hex digits      a message; indented lines continue it, # begins a comment
//   a dump          lines that begin with an offset, from 0 up: xxd, hexdump -C, od -t x1
//   strings         in quotes or with \x00 escapes; indented lines continue them
class Reader {
public:
    explicit Reader(capture::Sink &sink) : sink_(sink) {}

    void line(std::string_view text);
    // A line that is too long to be held.
    void long_line();
    // The message that may still go on is over.
    void finish();

    std::uint64_t messages() const { return messages_; }

private:
    enum class Form { none, plain, dump, skipped, skippedDump };

    bool is_skipped() const { return form_ == Form::skipped || form_ == Form::skippedDump; }

    void take(std::string_view text, bool isIndented);
    bool continues_dump(std::string_view text);
    void dump_line(std::string_view data);
    void repeat_until(std::size_t offset);
    void begin(Form form);
    void append(std::string_view text);
    void refuse(const std::string &what);

    capture::Sink &sink_;
    Form form_ = Form::none;
    Bytes bytes_;
    std::uint64_t lines_ = 0;
    std::uint64_t firstLine_ = 0; // of the message
    std::uint64_t messages_ = 0;
    std::size_t lastCount_ = 0; // bytes of the dump's last line
    bool repeats_ = false;      // a * stood in for lines
};

void read_text(capture::Source &source, capture::Sink &sink);

} // namespace text

#endif
