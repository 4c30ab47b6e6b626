// The bytes of messages beside what they are, in a form that decode reads again: a line for each
// part, nested ones indented, with its name, tag and value behind a #.
#include <algorithm>

#include "tarn/printers.h"
#include "tarn/wire.h"
#include "tarn/writing.h"

namespace tool {

namespace {

struct Line {
    std::string bytes;
    std::string comment;
};

void append_spaced(capture::View bytes, std::string *text) {
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        *text += i == 0 ? "" : " ";
        append_hex(bytes.subspan(i, 1), text);
    }
}

std::string count_words(std::uint64_t count, std::string_view thing) {
    return std::to_string(count) + " " + std::string(thing) + (count == 1 ? "" : "s");
}

class HexPrinter final : public Printer {
public:
    HexPrinter(const DecodeOptions &options, const Streams &streams)
        : paint_(options.colours), streams_(streams) {}

    void print(const Judged &judged, std::uint64_t number, const std::string &file) override {
        lines_.clear();
        at_ = 0;
        leafEnd_ = 0;
        judged.visit_parts([this, &judged](const TarnInfoPart &part) {
            if (part.offset >= leafEnd_)
                add(judged.bytes(), part);
            return true;
        });
        add_rest(judged);
        text_ = "# " + place_of(judged, number, file) + ": " + judged.name() + ", " +
                tarnInfoVerdictWord(judged.verdict()) + "\n";
        append_lines();
        text_ += '\n';
        streams_.out.write(text_.data(), std::streamsize(text_.size()));
    }

private:
    void add(capture::View bytes, const TarnInfoPart &part) {
        Line line{std::string(indent(part.depth), ' '), {}};
        append_spaced(bytes.subspan(part.offset, 2), &line.bytes);
        line.bytes += "  ";
        append_spaced(bytes.subspan(part.offset + 2, 4), &line.bytes);
        at_ = part.offset + headerSize;
        line.comment = part.name;
        if (part.index != TarnInfoNoIndex)
            line.comment += "[" + std::to_string(part.index) + "]";
        line.comment += " [" + std::to_string(part.type->tag) + "]";
        if (is_leaf(part)) {
            line.bytes += "  ";
            append_spaced({part.value, part.length}, &line.bytes);
            at_ += part.length;
            leafEnd_ = at_;
        }
        append_summary(part, &line.comment);
        lines_.push_back(std::move(line));
    }

    static void append_summary(const TarnInfoPart &part, std::string *comment) {
        const std::string form = readable(part);
        if (part.type->shape == TarnInfoBytes)
            *comment += " " + count_words(part.length, "byte");
        else if (part.type->shape == TarnInfoNumber)
            *comment += " " + std::to_string(part.number);
        if (!form.empty())
            *comment += " " + form;
    }

    // The first line begins the message; indented ones go on with it.
    std::size_t indent(std::uint32_t depth) const { return lines_.empty() ? 0 : 2 + 2 * depth; }

    void add_rest(const Judged &judged) {
        const capture::View rest =
            judged.bytes().subspan(std::min<std::size_t>(at_, judged.size()));
        if (rest.empty())
            return;
        Line line{std::string(indent(0), ' '), {}};
        append_spaced(rest, &line.bytes);
        const TarnInfoExplanation &why = judged.explanation();
        if (why.faultCount != 0)
            line.comment =
                std::string(tarnInfoVerdictWord(why.verdict)) + ": " + words(why.faults[0]);
        else
            line.comment = count_words(rest.size(), "byte") + " ignored";
        lines_.push_back(std::move(line));
    }

    // Comments stand below each other, but for lines with long values.
    void append_lines() {
        constexpr std::size_t longest = 48;
        std::size_t width = 0;
        for (const Line &line : lines_)
            if (line.bytes.size() <= longest)
                width = std::max(width, line.bytes.size());
        for (const Line &line : lines_) {
            text_ += line.bytes;
            text_.append(line.bytes.size() < width ? width - line.bytes.size() : 0, ' ');
            text_ += "  ";
            text_ += paint_.faint();
            text_ += "# " + line.comment;
            text_ += paint_.off();
            text_ += '\n';
        }
    }

    Paint paint_;
    Streams streams_;
    std::vector<Line> lines_;
    std::uint32_t at_ = 0;      // behind the last part that was put out
    std::uint32_t leafEnd_ = 0; // what is inside a leaf has no line
    std::string text_;
};

} // namespace

std::unique_ptr<Printer> make_hex_printer(const DecodeOptions &options, const Streams &streams) {
    return std::make_unique<HexPrinter>(options, streams);
}

} // namespace tool
