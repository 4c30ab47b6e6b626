#include "tarn/json_tree.h"

#include <cstring>
#include <iterator>

#include <nlohmann/json.hpp>

namespace tool {

namespace {

constexpr std::size_t mostNodes = 1U << 20; // of one message
constexpr std::size_t mostText = 16U << 20;
constexpr std::size_t deepestNesting = 64;

} // namespace

const JsonNode *JsonTree::find(const JsonNode &object, std::string_view wanted) const {
    for (std::uint32_t at = object.first; at != 0; at = nodes_[at].next)
        if (key(nodes_[at]) == wanted)
            return &nodes_[at];
    return nullptr;
}

// ---- Building ----------------------------------------------------------------------------------

// What the parser calls. Any false ends the parsing.
class JsonBuilder {
public:
    using number_integer_t = nlohmann::json::number_integer_t;
    using number_unsigned_t = nlohmann::json::number_unsigned_t;
    using number_float_t = nlohmann::json::number_float_t;
    using string_t = nlohmann::json::string_t;
    using binary_t = nlohmann::json::binary_t;

    explicit JsonBuilder(JsonTree *tree) : tree_(*tree) {
        tree_.nodes_.clear();
        tree_.text_.clear();
        open_.clear();
    }

    bool null() { return add(JsonKind::null) != nullptr; }
    bool boolean(bool) { return add(JsonKind::boolean) != nullptr; }
    bool number_unsigned(number_unsigned_t number) { return add_number(number, false); }
    bool number_integer(number_integer_t number) {
        return add_number(number < 0 ? 0 - std::uint64_t(number) : std::uint64_t(number),
                          number < 0);
    }
    bool number_float(number_float_t, const string_t &written) {
        return add_text(JsonKind::otherNumber, written);
    }
    bool string(std::string_view text) { return add_text(JsonKind::string, text); }
    bool binary(binary_t &) { return false; }
    bool start_object(std::size_t) { return start(JsonKind::object); }
    bool start_array(std::size_t) { return start(JsonKind::array); }
    bool end_object() { return end(); }
    bool end_array() { return end(); }
    bool key(std::string_view text) {
        keyLength_ = std::uint32_t(text.size());
        return keep(text, &key_);
    }
    bool parse_error(std::size_t, const std::string &, const nlohmann::detail::exception &error) {
        // The words begin with the parser's own name for the error and a place within the text.
        const std::string_view what = error.what();
        const std::size_t place = what.find("] ");
        const std::size_t colon = what.find(": ");
        what_ = what.substr(colon != what.npos ? colon + 2 : place != what.npos ? place + 2 : 0);
        return false;
    }

    const std::string &what() const { return what_; }

private:
    struct Open {
        std::uint32_t node;
        std::uint32_t last; // child
    };

    bool keep(std::string_view text, std::uint32_t *at) {
        *at = std::uint32_t(tree_.text_.size());
        tree_.text_ += text;
        return tree_.text_.size() <= mostText || give_up();
    }

    bool give_up() {
        what_ = "longer than any message";
        return false;
    }

    JsonNode *add(JsonKind kind) {
        if (tree_.nodes_.size() >= mostNodes) {
            give_up();
            return nullptr;
        }
        const auto number = std::uint32_t(tree_.nodes_.size());
        if (!open_.empty()) {
            Open &owner = open_.back();
            JsonNode &node = tree_.nodes_[owner.node];
            ++node.count;
            (owner.last == 0 ? node.first : tree_.nodes_[owner.last].next) = number;
            owner.last = number;
        }
        tree_.nodes_.emplace_back();
        JsonNode &added = tree_.nodes_.back();
        added.kind = kind;
        added.key = key_;
        added.keyLength = keyLength_;
        keyLength_ = 0;
        return &added;
    }

    bool add_number(std::uint64_t number, bool isNegative) {
        JsonNode *node = add(JsonKind::number);
        if (node == nullptr)
            return false;
        node->number = number;
        node->isNegative = isNegative;
        return true;
    }

    bool add_text(JsonKind kind, std::string_view text) {
        JsonNode *node = add(kind);
        if (node == nullptr)
            return false;
        node->textLength = std::uint32_t(text.size());
        return keep(text, &node->text);
    }

    bool start(JsonKind kind) {
        const auto number = std::uint32_t(tree_.nodes_.size());
        if (add(kind) == nullptr)
            return false;
        open_.push_back({number, 0});
        if (open_.size() <= deepestNesting)
            return true;
        what_ = "nested deeper than any message";
        return false;
    }

    bool end() {
        open_.pop_back();
        return true;
    }

    JsonTree &tree_;
    std::vector<Open> open_;
    std::uint32_t key_ = 0;
    std::uint32_t keyLength_ = 0;
    std::string what_;
};

// ---- Plain lines
// ---------------------------------------------------------------------------------

// Reads what nearly all lines are, and as fast as they come: an object of plain strings and whole
// numbers, all of it at hand. Anything else, wrong or not, it leaves to the parser.
class PlainLine {
public:
    PlainLine(const char *at, const char *end, JsonBuilder *builder)
        : at_(at), end_(end), builder_(*builder) {}

    // Where the object ends, or null.
    const char *run() { return value(0) ? at_ : nullptr; }

private:
    static bool is_plain(char c) { return c >= ' ' && c <= '~' && c != '"' && c != '\\'; }

    bool take(char c) {
        if (at_ == end_ || *at_ != c)
            return false;
        ++at_;
        return true;
    }

    void skip_blanks() {
        while (at_ != end_ && *at_ == ' ')
            ++at_;
    }

    bool text(std::string_view *found) {
        if (!take('"'))
            return false;
        const char *start = at_;
        while (at_ != end_ && is_plain(*at_))
            ++at_;
        *found = {start, std::size_t(at_ - start)};
        return take('"');
    }

    bool number() {
        constexpr int mostDigits = 15;
        const char *start = at_;
        std::uint64_t number = 0;
        for (; at_ != end_ && *at_ >= '0' && *at_ <= '9'; ++at_)
            number = number * 10 + std::uint64_t(*at_ - '0');
        const auto digits = at_ - start;
        const bool isEnded = at_ != end_ && (*at_ == ',' || *at_ == '}' || *at_ == ']');
        return digits != 0 && digits <= mostDigits && (digits == 1 || *start != '0') && isEnded &&
               builder_.number_unsigned(number);
    }

    bool null() {
        constexpr std::string_view word = "null";
        if (std::size_t(end_ - at_) < word.size() || std::memcmp(at_, word.data(), 4) != 0)
            return false;
        at_ += word.size();
        return builder_.null();
    }

    bool value(std::size_t depth) {
        if (at_ == end_ || depth > deepestNesting)
            return false;
        std::string_view found;
        switch (*at_) {
        case '{':
        case '[':
            return container(depth);
        case '"':
            return text(&found) && builder_.string(found);
        case 'n':
            return null();
        default:
            return number();
        }
    }

    bool member(bool isObject, std::size_t depth) {
        std::string_view name;
        skip_blanks();
        if (isObject) {
            if (!text(&name) || !take(':') || !builder_.key(name))
                return false;
            skip_blanks();
        }
        return value(depth + 1);
    }

    bool container(std::size_t depth) {
        const bool isObject = *at_++ == '{';
        const char close = isObject ? '}' : ']';
        if (!(isObject ? builder_.start_object(0) : builder_.start_array(0)))
            return false;
        if (take(close))
            return builder_.end_object();
        while (member(isObject, depth)) {
            if (take(close))
                return builder_.end_object();
            if (!take(','))
                return false;
        }
        return false;
    }

    const char *at_;
    const char *end_;
    JsonBuilder &builder_;
};

// ---- Reading -----------------------------------------------------------------------------------

// The bytes of the reader's source as the parser takes them.
class JsonBytes {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char *;
    using reference = const char &;

    explicit JsonBytes(JsonReader *reader) : reader_(reader) {}
    reference operator*() const { return *reader_->at_; }
    JsonBytes &operator++() {
        ++reader_->at_;
        return *this;
    }
    // All that is compared is whether the end has come.
    bool operator!=(const JsonBytes &) const {
        return reader_->at_ != reader_->end_ || reader_->refill();
    }
    bool operator==(const JsonBytes &other) const { return !(*this != other); }

private:
    JsonReader *reader_;
};

JsonReader::JsonReader(capture::Source &source) : source_(source) {
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    const capture::View start = source_.peek(mark.size());
    if (start.size() >= mark.size() && std::memcmp(start.data(), mark.data(), mark.size()) == 0)
        source_.skip(mark.size());
}

bool JsonReader::refill() {
    line_here();
    source_.skip(viewed_);
    const capture::View bytes = source_.some();
    viewed_ = bytes.size();
    start_ = at_ = reinterpret_cast<const char *>(bytes.data());
    end_ = at_ + bytes.size();
    return viewed_ != 0;
}

std::uint64_t JsonReader::line_here() {
    while (start_ != at_) {
        const void *end = std::memchr(start_, '\n', std::size_t(at_ - start_));
        lines_ += end != nullptr ? 1 : 0;
        start_ = end != nullptr ? static_cast<const char *>(end) + 1 : at_;
    }
    return lines_;
}

// The next byte, or -1 at the end.
int JsonReader::look() {
    return at_ != end_ || refill() ? int(std::uint8_t(*at_)) : -1;
}

void JsonReader::skip_blanks() {
    for (int c = look(); c == ' ' || c == '\t' || c == '\r' || c == '\n'; c = look())
        ++at_;
}

// Skips what is left of the line. False at the end.
bool JsonReader::skip_line() {
    while (look() != -1) {
        const void *end = std::memchr(at_, '\n', std::size_t(end_ - at_));
        if (end != nullptr) {
            at_ = static_cast<const char *>(end) + 1;
            return true;
        }
        at_ = end_;
    }
    return false;
}

void JsonReader::go_to_next_object() {
    isInArray_ = needsComma_ = false;
    while (skip_line() && look() != '{') {
    }
}

JsonReader::Step JsonReader::refuse(const std::string &what) {
    line_ = line_here();
    what_ = what;
    go_to_next_object();
    return Step::wrong;
}

JsonReader::Step JsonReader::next(JsonTree *tree) {
    while (true) {
        skip_blanks();
        const int c = look();
        if (c == -1)
            return isInArray_ ? refuse("an array that does not end") : Step::end;
        if (!isInArray_ && c == '[') {
            isInArray_ = true;
        } else if (isInArray_ && c == ']') {
            isInArray_ = needsComma_ = false;
        } else if (needsComma_ && c == ',') {
            needsComma_ = false;
        } else if (needsComma_) {
            return refuse("expected , or ]");
        } else if (c != '{') {
            return refuse(isInArray_ ? "expected an object" : "expected { or [");
        } else {
            return parse(tree) ? Step::value : Step::wrong;
        }
        ++at_;
    }
}

bool JsonReader::parse_plain(JsonTree *tree) {
    JsonBuilder builder(tree);
    const char *end = PlainLine(at_, end_, &builder).run();
    if (end != nullptr)
        at_ = end;
    return end != nullptr;
}

bool JsonReader::parse(JsonTree *tree) {
    line_ = line_here();
    if (parse_plain(tree)) {
        needsComma_ = isInArray_;
        return true;
    }
    JsonBuilder builder(tree);
    constexpr bool isAll = false; // other values may follow
    if (nlohmann::json::sax_parse(JsonBytes(this), JsonBytes(this), &builder,
                                  nlohmann::json::input_format_t::json, isAll)) {
        needsComma_ = isInArray_;
        return true;
    }
    refuse(builder.what());
    return false;
}

} // namespace tool
