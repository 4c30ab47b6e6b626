// One line of JSON for each message.
#include "tarn/printers.h"
#include "tarn/writing.h"

namespace tool {

namespace {

class JsonPrinter final : public Printer {
public:
    JsonPrinter(const DecodeOptions &options, const Streams &streams)
        : switches_(options.switches | TarnInfoMembers |
                    (options.pretty ? std::uint32_t(TarnInfoPretty) : 0U)),
          isPretty_(options.pretty), streams_(streams) {}

    void print(const Judged &judged, std::uint64_t, const std::string &) override {
        line_.clear();
        append_origin(judged);
        if (judged.verdict() == TarnInfoRefused)
            append_refused(judged);
        else
            append_members(judged);
        if (!judged.is_plain())
            append_notes(judged.explanation());
        line_ += isPretty_ ? "\n}\n" : "}\n";
        streams_.out.write(line_.data(), std::streamsize(line_.size()));
    }

private:
    void append_key(std::string_view key) {
        line_ += isPretty_ ? ",\n  \"" : ",\"";
        line_ += key;
        line_ += isPretty_ ? "\": " : "\":";
    }

    void append_end(const capture::Endpoint &end) {
        if (end.family == 0) {
            line_ += "null";
            return;
        }
        line_ += '"';
        append_endpoint(end, &line_);
        line_ += '"';
    }

    void append_origin(const Judged &judged) {
        const capture::Found &found = judged.found();
        line_ += isPretty_ ? "{\n  \"packet\": " : "{\"packet\":";
        append_number(found.packet, &line_);
        line_ += isPretty_ ? ",\n  \"time\": " : ",\"time\":";
        if (found.time) {
            line_ += '"';
            clock_.append(*found.time, &line_);
            line_ += '"';
        } else {
            line_ += "null";
        }
        line_ += isPretty_ ? ",\n  \"from\": " : ",\"from\":";
        append_end(found.from);
        line_ += isPretty_ ? ",\n  \"to\": " : ",\"to\":";
        append_end(found.to);
        line_ += isPretty_ ? ",\n  \"verdict\": \"" : ",\"verdict\":\"";
        line_ += tarnInfoVerdictWord(judged.verdict());
        line_ += '"';
    }

    void append_members(const Judged &judged) {
        line_ += isPretty_ ? ",\n" : ",";
        const auto take = [](void *context, const char *text, std::uint32_t length) {
            static_cast<std::string *>(context)->append(text, length);
        };
        tarnInfoPrintBytes(judged.bytes().data(), judged.size(), &judged.judgement(), TarnInfoJson,
                           switches_, take, &line_);
        if (!judged.is_valid())
            append_fault(judged);
    }

    void append_refused(const Judged &judged) {
        append_key("message");
        if (judged.message() != nullptr)
            append_quoted(judged.message()->name, &line_);
        else
            line_ += "null";
        append_fault(judged);
        append_key("bytes");
        if ((switches_ & TarnInfoRedact) != 0) { // nobody knows what is in them
            line_ += "null";
            return;
        }
        line_ += '"';
        append_hex(judged.bytes(), &line_);
        line_ += '"';
    }

    void append_fault(const Judged &judged) {
        append_key("fault");
        const TarnInfoExplanation &why = judged.explanation();
        if (why.faultCount == 0) {
            line_ += "null";
            return;
        }
        append_finding(why.faults[0]);
    }

    // What was let pass, if anything was.
    void append_notes(const TarnInfoExplanation &why) {
        if (why.noteCount == 0)
            return;
        append_key("notes");
        for (std::uint32_t i = 0; i < why.noteCount; ++i) {
            line_ += i == 0 ? '[' : ',';
            append_finding(why.notes[i]);
        }
        line_ += ']';
    }

    void append_finding(const TarnInfoFinding &finding) {
        line_ += "{\"offset\":";
        append_number(finding.offset, &line_);
        line_ += ",\"path\":";
        append_quoted(finding.path, &line_);
        line_ += ",\"reason\":";
        append_quoted(finding.sentence, &line_);
        line_ += '}';
    }

    std::uint32_t switches_;
    bool isPretty_;
    Streams streams_;
    std::string line_;
    Clock clock_;
};

} // namespace

std::unique_ptr<Printer> make_json_printer(const DecodeOptions &options, const Streams &streams) {
    return std::make_unique<JsonPrinter>(options, streams);
}

} // namespace tool
