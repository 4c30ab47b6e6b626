// Messages as readable trees.
#include <algorithm>

#include "tarn/printers.h"
#include "tarn/writing.h"

namespace tool {

namespace {

// Some of the bytes at a position, to find it again in a trace.
std::string bytes_at(capture::View bytes, std::uint32_t at) {
    constexpr std::size_t shown = 12;
    if (at >= bytes.size())
        return "none, they have ended";
    std::string text;
    for (const std::uint8_t byte : capture::first_of(bytes.subspan(at), shown)) {
        text += text.empty() ? "" : " ";
        append_hex({&byte, 1}, &text);
    }
    return text + (at + shown < bytes.size() ? " ..." : "");
}

class TreePrinter final : public Printer {
public:
    TreePrinter(const DecodeOptions &options, const Streams &streams)
        : switches_(options.switches), paint_(options.colours), streams_(streams) {}

    void print(const Judged &judged, std::uint64_t number, const std::string &file) override {
        text_.clear();
        append_head(judged, number, file);
        const auto take = [](void *context, const char *text, std::uint32_t length) {
            static_cast<std::string *>(context)->append(text, length);
        };
        tarnInfoPrintBytes(judged.bytes().data(), judged.size(), &judged.judgement(), TarnInfoTree,
                           switches_, take, &text_);
        if (!judged.is_plain())
            append_explanation(judged);
        text_ += '\n';
        streams_.out.write(text_.data(), std::streamsize(text_.size()));
    }

private:
    void append_head(const Judged &judged, std::uint64_t number, const std::string &file) {
        text_ += place_of(judged, number, file);
        text_ += ": ";
        append_origin(judged.found());
        text_ += paint_.name();
        text_ += judged.message() != nullptr ? judged.message()->name : "no known message";
        text_ += paint_.off();
        if (judged.message() != nullptr) {
            text_ += " (id ";
            append_number(judged.message()->id, &text_);
            text_ += ')';
        }
        text_ += ", ";
        append_number(judged.size(), &text_);
        text_ += judged.size() == 1 ? " byte, " : " bytes, ";
        text_ += paint_.verdict(judged);
        text_ += tarnInfoVerdictWord(judged.verdict());
        text_ += paint_.off();
        text_ += '\n';
    }

    void append_origin(const capture::Found &found) {
        if (found.time) {
            clock_.append(*found.time, &text_);
            text_ += ", ";
        }
        if (found.from.family == 0)
            return;
        append_endpoint(found.from, &text_);
        text_ += " > ";
        append_endpoint(found.to, &text_);
        text_ += ", ";
    }

    void append_explanation(const Judged &judged) {
        const TarnInfoExplanation &why = judged.explanation();
        for (std::uint32_t i = 0; i < why.faultCount; ++i) {
            text_ += paint_.bad();
            text_ += i == 0 ? std::string("  ") + tarnInfoVerdictWord(why.verdict) + ": " : "    ";
            text_ += words(why.faults[i]);
            text_ += paint_.off();
            text_ += '\n';
        }
        if (why.faultCount != 0 && (switches_ & TarnInfoRedact) == 0)
            text_ += "    bytes there: " + bytes_at(judged.bytes(), why.faults[0].offset) + "\n";
        for (std::uint32_t i = 0; i < why.noteCount; ++i)
            text_ += "  note: " + words(why.notes[i]) + "\n";
    }

    std::uint32_t switches_;
    Paint paint_;
    Streams streams_;
    std::string text_;
    Clock clock_;
};

} // namespace

std::string words(const TarnInfoFinding &finding) {
    char hex[12];
    const int width = finding.offset <= 0xFF ? 2 : finding.offset <= 0xFFFF ? 4 : 8;
    std::snprintf(hex, sizeof hex, "0x%0*x", width, unsigned(finding.offset));
    std::string text = "byte " + std::to_string(finding.offset) + " (" + hex + ")";
    if (finding.path[0] != 0)
        text += std::string(", ") + finding.path;
    return text + ": " + finding.sentence;
}

std::string place_of(const Judged &judged, std::uint64_t number, const std::string &file) {
    const capture::Found &found = judged.found();
    std::string text = "message ";
    append_number(number, &text);
    text += " (";
    text += file;
    if (found.line != 0) {
        text += ':';
        append_number(found.line, &text);
    } else if (found.time || found.from.family != 0) {
        text += ": packet ";
        append_number(found.packet, &text);
    }
    return text + ")";
}

std::unique_ptr<Printer> make_tree_printer(const DecodeOptions &options, const Streams &streams) {
    return std::make_unique<TreePrinter>(options, streams);
}

} // namespace tool
