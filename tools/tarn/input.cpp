#include "tarn/input.h"

#include <algorithm>

#include "tarn/capture/framer.h"
#include "tarn/capture/packets.h"
#include "tarn/terminal.h"
#include "tarn/text/text.h"
#include "tarn_info.h"

namespace tool {

namespace {

using capture::Severity;
using capture::View;

constexpr std::size_t mostRaw = 16U << 20; // bytes: far beyond any message

bool begins_frame(View start, std::uint32_t longest) {
    if (start.size() < 10)
        return false;
    const std::uint32_t length = capture::big32(start.data());
    return length <= longest && capture::MessageMark::begins(start.subspan(4));
}

void read_raw(capture::Source &source, capture::Sink &sink) {
    const View bytes = source.peek(mostRaw + 1);
    if (bytes.size() > mostRaw)
        return sink.trouble(Severity::fault, "",
                            "longer than any message: no stream of messages "
                            "and no capture either");
    capture::Found found;
    found.packet = 1;
    found.bytes = bytes;
    sink.message(found);
}

class Frames final : public capture::Framer::Taker {
public:
    explicit Frames(capture::Sink &sink) : sink_(sink) {}

    void framed(View message) override {
        capture::Found found;
        found.packet = ++count_;
        found.bytes = message;
        sink_.message(found);
    }
    void skipped(std::uint64_t count) override {
        sink_.trouble(Severity::fault, "behind message " + std::to_string(count_),
                      std::to_string(count) + " bytes skipped: no whole message");
    }

private:
    capture::Sink &sink_;
    std::uint64_t count_ = 0;
};

void read_frames(capture::Source &source, std::uint32_t longest, capture::Sink &sink) {
    constexpr bool isTrusted = true;
    capture::Framer framer(longest, isTrusted);
    Frames frames(sink);
    for (View bytes = source.some(); !bytes.empty(); bytes = source.some()) {
        framer.feed(bytes, frames);
        source.skip(bytes.size());
    }
    framer.lose(frames);
}

// Tells whether anything came through.
class Counter final : public capture::Sink {
public:
    explicit Counter(capture::Sink &sink) : sink_(sink) {}

    void message(const capture::Found &found) override {
        isEmpty_ = false;
        sink_.message(found);
    }
    void trouble(Severity severity, const std::string &place, const std::string &what) override {
        isEmpty_ = isEmpty_ && severity == Severity::note;
        sink_.trouble(severity, place, what);
    }
    bool is_empty() const { return isEmpty_; }

private:
    capture::Sink &sink_;
    bool isEmpty_ = true;
};

} // namespace

Form form_of(View start, std::uint32_t longest) {
    if (capture::is_capture(start))
        return Form::capture;
    if (begins_frame(start, longest))
        return Form::framed;
    const bool holdsZero = std::find(start.begin(), start.end(), std::uint8_t{0}) != start.end();
    return holdsZero ? Form::raw : Form::hex;
}

std::uint32_t longest_message() {
    std::uint32_t count = 0;
    const auto *messages = tarnInfoMessages(&count);
    std::uint32_t longest = 0;
    for (std::uint32_t i = 0; i < count; ++i)
        longest = std::max(longest, messages[i]->largest);
    return longest;
}

void read_messages(capture::Source &source, InputOptions options, capture::Sink &sink) {
    Counter counter(sink);
    options.capture.longest = longest_message();
    Form form = options.form;
    if (form == Form::detect)
        form = form_of(source.peek(10), options.capture.longest);
    if (!source.some().empty()) {
        if (form == Form::capture)
            capture::read_capture(source, options.capture, counter);
        else if (form == Form::framed)
            read_frames(source, options.capture.longest, counter);
        else if (form == Form::raw)
            read_raw(source, counter);
        else
            text::read_text(source, counter);
    }
    if (!source.defect().empty())
        counter.trouble(Severity::fault, "", source.defect());
    if (counter.is_empty())
        counter.trouble(Severity::fault, "", "no message in it");
}

// ---- Files -------------------------------------------------------------------------------------

void FileSink::trouble(Severity severity, const std::string &place, const std::string &what) {
    streams_.err << "tarn: " << name_ << ": " << place << (place.empty() ? "" : ": ")
                 << (severity == Severity::note ? "note: " : "") << what << '\n';
    if (severity == Severity::fault)
        status_ = exitUnusable;
}

void FileSink::read_file(const std::string &file, const InputOptions &options) {
    capture::Source source(file);
    source.beforeWaiting = [this] { streams_.out.flush(); };
    Progress progress(name_, showsProgress_);
    if (progress.is_shown())
        source.progress = std::ref(progress);
    read_messages(source, options, *this);
}

int FileSink::read(const std::vector<std::string> &files, const InputOptions &options) {
    for (const std::string &file : files) {
        name_ = file == "-" ? "standard input" : printable(file);
        try {
            read_file(file, options);
        } catch (const capture::SourceError &error) {
            trouble(Severity::fault, "", error.what());
        }
    }
    return status_;
}

} // namespace tool
