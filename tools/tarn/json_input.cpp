#include "tarn/json_input.h"

#include <algorithm>
#include <set>

#include "tarn/input.h"

namespace tool {

namespace {

struct Span {
    std::size_t start;
    std::size_t end;
    unsigned line;
};

// Finds where the objects and arrays begin and end that follow each other in a text.
class Splitter {
public:
    explicit Splitter(std::string_view text) : text_(text) {}

    std::vector<Span> run() {
        for (std::size_t i = 0; i < text_.size(); ++i) {
            step(i);
            line_ += text_[i] == '\n' ? 1 : 0;
        }
        if (depth_ != 0)
            spans_.push_back({start_, text_.size(), startLine_}); // the parser says what is missing
        return std::move(spans_);
    }

private:
    void step(std::size_t i) {
        const char c = text_[i];
        if (inString_) {
            inString_ = isEscaped_ || c != '"';
            isEscaped_ = !isEscaped_ && c == '\\';
        } else if (c == '{' || c == '[') {
            if (depth_++ == 0) {
                start_ = i;
                startLine_ = line_;
            }
        } else if (depth_ == 0) {
            if (std::string_view(" \t\r\n").find(c) == std::string_view::npos)
                throw InputError(std::to_string(line_) + ": expected { or [");
        } else if (c == '"') {
            inString_ = true;
        } else if ((c == '}' || c == ']') && --depth_ == 0) {
            spans_.push_back({start_, i + 1, startLine_});
        }
    }

    std::string_view text_;
    std::vector<Span> spans_;
    std::size_t start_ = 0;
    unsigned line_ = 1;
    unsigned startLine_ = 1;
    unsigned depth_ = 0;
    bool inString_ = false;
    bool isEscaped_ = false;
};

// Refuses names that stand twice in one object, of which the parser would keep one in silence.
class DuplicateCheck {
public:
    bool operator()(int, Json::parse_event_t event, const Json &parsed) {
        if (event == Json::parse_event_t::object_start)
            names_.emplace_back();
        else if (event == Json::parse_event_t::object_end)
            names_.pop_back();
        else if (event == Json::parse_event_t::key &&
                 !names_.back().insert(parsed.get<std::string>()).second)
            throw InputError(parsed.dump(-1, ' ', true) + " stands twice in one object");
        return true;
    }

private:
    std::vector<std::set<std::string>> names_;
};

// Parses one object or array that begins on the given line, which an error sets to its own.
Json parse(std::string_view text, unsigned *line) {
    DuplicateCheck check;
    try {
        return Json::parse(text, std::ref(check));
    } catch (const Json::parse_error &error) {
        const std::string_view read = text.substr(0, error.byte != 0 ? error.byte - 1 : 0);
        *line += unsigned(std::count(read.begin(), read.end(), '\n'));
        // The words begin with the parser's own name for the error and a place within the text.
        const std::string_view what = error.what();
        const std::size_t place = what.find(": ");
        throw InputError(std::string(place == what.npos ? what : what.substr(place + 2)));
    }
}

} // namespace

std::vector<JsonMessage> split_json(const std::string &content, const std::string &name) {
    std::vector<JsonMessage> messages;
    unsigned line = 0;
    try {
        for (const Span &span : Splitter(content).run()) {
            line = span.line;
            Json json =
                parse(std::string_view(content).substr(span.start, span.end - span.start), &line);
            if (!json.is_array())
                messages.push_back({line, std::move(json)});
            else
                for (Json &element : json)
                    messages.push_back({line, std::move(element)});
        }
    } catch (const InputError &error) {
        throw InputError(name + ":" + (line != 0 ? std::to_string(line) + ": " : "") +
                         error.what());
    }
    if (messages.empty())
        throw InputError(name + ": no message in it");
    return messages;
}

} // namespace tool
