// JSON as it is read: one value after the other from a source, each as a small tree.
#ifndef TARN_TOOL_JSON_TREE_H
#define TARN_TOOL_JSON_TREE_H

#include <string>
#include <string_view>
#include <vector>

#include "tarn/capture/source.h"

namespace tool {

enum class JsonKind : std::uint8_t { null, boolean, number, otherNumber, string, array, object };

// A value. Text and children live in its tree.
struct JsonNode {
    JsonKind kind = JsonKind::null;
    bool isNegative = false;  // number
    std::uint64_t number = 0; // number: without its sign
    std::uint32_t key = 0;    // in an object: where its name begins, and how long it is
    std::uint32_t keyLength = 0;
    std::uint32_t text = 0; // string: likewise; of another number what stood there
    std::uint32_t textLength = 0;
    std::uint32_t count = 0; // array, object: children
    std::uint32_t first = 0; // child, by number; 0 for none
    std::uint32_t next = 0;  // in the same array or object
};

class JsonTree {
public:
    const JsonNode &root() const { return nodes_.front(); }
    std::string_view key(const JsonNode &node) const { return text_at(node.key, node.keyLength); }
    std::string_view text(const JsonNode &node) const {
        return text_at(node.text, node.textLength);
    }
    // Calls `take(child)` for each child, in order.
    template <class Take>
    void for_each(const JsonNode &node, Take take) const {
        for (std::uint32_t at = node.first; at != 0; at = nodes_[at].next)
            take(nodes_[at]);
    }
    const JsonNode *find(const JsonNode &object, std::string_view key) const;

private:
    friend class JsonBuilder;

    std::string_view text_at(std::uint32_t at, std::uint32_t length) const {
        return std::string_view(text_).substr(at, length);
    }

    std::vector<JsonNode> nodes_;
    std::string text_;
};

// The objects of a source: one after the other, each on one line or on several, or in arrays.
class JsonReader {
public:
    explicit JsonReader(capture::Source &source);
    JsonReader(const JsonReader &) = delete;
    JsonReader &operator=(const JsonReader &) = delete;

    enum class Step { value, wrong, end };
    // Behind something wrong the reading goes on at the next line that begins an object.
    Step next(JsonTree *tree);

    std::uint64_t line() const { return line_; } // on which the value begins, or what is wrong
    const std::string &what() const { return what_; }

private:
    friend class JsonBytes;

    bool refill();
    std::uint64_t line_here();
    int look();
    void skip_blanks();
    Step refuse(const std::string &what);
    void go_to_next_object();
    bool skip_line();
    bool parse(JsonTree *tree);
    bool parse_plain(JsonTree *tree);

    capture::Source &source_;
    const char *start_ = nullptr; // of what lines were counted up to
    const char *at_ = nullptr;
    const char *end_ = nullptr;
    std::size_t viewed_ = 0; // bytes of the source that are in view
    std::uint64_t lines_ = 1;
    std::uint64_t line_ = 1;
    bool isInArray_ = false;
    bool needsComma_ = false;
    std::string what_;
};

} // namespace tool

#endif
