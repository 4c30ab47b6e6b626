// The values of some IEs, with tabs between them: a line for each message.
#include <functional>

#include "tarn/printers.h"
#include "tarn/where.h"
#include "tarn/wire.h"
#include "tarn/writing.h"

namespace tool {

namespace {

// The JSON of a part and of all that is below it, put together from the parts as they come.
class JsonOfPart {
public:
    explicit JsonOfPart(std::string *text) : text_(*text) {}

    // `isNamed` in an object, not in a list.
    void add(const TarnInfoPart &part) {
        if (part.offset < leafEnd_)
            return;
        close(part.depth);
        if (!isFirst_ && !open_.empty())
            text_ += ',';
        isFirst_ = false;
        if (!open_.empty() && open_.back().close == '}') {
            append_quoted(part.name, &text_);
            text_ += ':';
        }
        if (is_leaf(part)) {
            append_leaf(part);
            leafEnd_ = part.offset + headerSize + part.length;
            return;
        }
        const bool isList =
            part.type->shape == TarnInfoList || part.type->shape == TarnInfoCompositeList;
        text_ += isList ? '[' : '{';
        open_.push_back({part.depth, isList ? ']' : '}'});
        isFirst_ = true;
    }

    // Ends what is open at this depth and below it.
    void close(std::uint32_t depth) {
        while (!open_.empty() && open_.back().depth >= depth) {
            text_ += open_.back().close;
            open_.pop_back();
            isFirst_ = false;
        }
    }

private:
    struct Open {
        std::uint32_t depth;
        char close;
    };

    void append_leaf(const TarnInfoPart &part) {
        if (part.type->shape == TarnInfoNumber)
            return append_value(part, &text_);
        std::string value;
        append_value(part, &value);
        append_quoted(value, &text_);
    }

    std::string &text_;
    std::vector<Open> open_;
    std::uint32_t leafEnd_ = 0;
    bool isFirst_ = true;
};

// What one column shows.
using Field = std::function<void(const Judged &, std::string *)>;

void append_parts(const Path &path, const Judged &judged, std::string *text) {
    JsonOfPart json(text);
    bool isFirst = true;
    bool isInside = false;
    std::uint32_t depth = 0; // of the part that is put out with all that is below it
    path.visit(judged, [&](const TarnInfoPart &part, bool isHere) {
        if (isInside && part.depth <= depth) {
            json.close(0);
            isInside = false;
        }
        if (isHere && !isInside) {
            *text += isFirst ? "" : ",";
            isFirst = false;
            isInside = !is_leaf(part);
            depth = part.depth;
            if (!isInside)
                append_value(part, text);
        }
        if (isInside)
            json.add(part);
        return true;
    });
    json.close(0);
}

Field field_of(std::string_view name) {
    if (name == "packet")
        return [](const Judged &judged, std::string *text) {
            append_number(judged.found().packet, text);
        };
    if (name == "time")
        return [clock = Clock()](const Judged &judged, std::string *text) mutable {
            if (judged.found().time)
                clock.append(*judged.found().time, text);
        };
    if (name == "from" || name == "to")
        return [isFrom = name == "from"](const Judged &judged, std::string *text) {
            append_endpoint(isFrom ? judged.found().from : judged.found().to, text);
        };
    if (name == "verdict")
        return [](const Judged &judged, std::string *text) {
            *text += tarnInfoVerdictWord(judged.verdict());
        };
    if (name == "message")
        return [](const Judged &judged, std::string *text) { *text += judged.name(); };
    if (name == "size")
        return [](const Judged &judged, std::string *text) { append_number(judged.size(), text); };
    return [path = Path(name)](const Judged &judged, std::string *text) {
        append_parts(path, judged, text);
    };
}

class FieldsPrinter final : public Printer {
public:
    FieldsPrinter(std::string_view names, const Streams &streams) : streams_(streams) {
        while (!names.empty()) {
            const std::size_t end = std::min(names.find(','), names.size());
            fields_.push_back(field_of(names.substr(0, end)));
            names.remove_prefix(std::min(end + 1, names.size()));
        }
    }

    void print(const Judged &judged, std::uint64_t, const std::string &) override {
        line_.clear();
        for (std::size_t i = 0; i < fields_.size(); ++i) {
            if (i != 0)
                line_ += '\t';
            fields_[i](judged, &line_);
        }
        line_ += '\n';
        streams_.out.write(line_.data(), std::streamsize(line_.size()));
    }

private:
    Streams streams_;
    std::vector<Field> fields_;
    std::string line_;
};

} // namespace

std::unique_ptr<Printer> make_fields_printer(const DecodeOptions &options, const Streams &streams) {
    return std::make_unique<FieldsPrinter>(options.fields, streams);
}

} // namespace tool
