// One line a message: time, ends, message, UE, verdict.
#include "tarn/printers.h"
#include "tarn/wire.h"
#include "tarn/writing.h"

namespace tool {

namespace {

class SummaryPrinter final : public Printer {
public:
    SummaryPrinter(const DecodeOptions &options, const Streams &streams)
        : paint_(options.colours), redacts_((options.switches & TarnInfoRedact) != 0),
          streams_(streams) {}

    void print(const Judged &judged, std::uint64_t, const std::string &) override {
        const capture::Found &found = judged.found();
        line_.clear();
        if (found.time)
            clock_.append(*found.time, &line_);
        else
            append_number(found.packet, &line_);
        line_ += "  ";
        if (found.from.family != 0) {
            append_endpoint(found.from, &line_);
            line_ += " > ";
            append_endpoint(found.to, &line_);
            line_ += "  ";
        }
        append_message(judged);
        append_verdict(judged);
        streams_.out.write(line_.data(), std::streamsize(line_.size()));
    }

private:
    void append_message(const Judged &judged) {
        constexpr std::size_t nameWidth = 23; // RabAssignmentResponse, and two blanks
        const std::string_view name = judged.name();
        line_ += paint_.name();
        line_ += name;
        line_ += paint_.off();
        line_.append(name.size() < nameWidth ? nameWidth - name.size() : 1, ' ');
        const std::size_t before = line_.size();
        append_ue(judged, redacts_, &line_);
        if (line_.size() != before)
            line_ += "  ";
    }

    void append_verdict(const Judged &judged) {
        line_ += paint_.verdict(judged);
        line_ += tarnInfoVerdictWord(judged.verdict());
        if (!judged.is_valid() && judged.explanation().faultCount != 0) {
            line_ += ": ";
            line_ += words(judged.explanation().faults[0]);
        } else if (!judged.is_plain() && judged.explanation().noteCount != 0) {
            line_ += ", note: ";
            line_ += words(judged.explanation().notes[0]);
        }
        line_ += paint_.off();
        line_ += '\n';
    }

    Paint paint_;
    bool redacts_;
    Streams streams_;
    std::string line_;
    Clock clock_;
};

} // namespace

std::unique_ptr<Printer> make_summary_printer(const DecodeOptions &options,
                                              const Streams &streams) {
    return std::make_unique<SummaryPrinter>(options, streams);
}

} // namespace tool
