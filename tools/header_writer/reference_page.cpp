#include "pages.h"
#include "sizes.h"
#include "words.h"

#include <algorithm>

namespace header_writer {
namespace {

// A table in Markdown whose columns line up in the text as well.
class Table {
public:
    explicit Table(std::vector<std::string> header) : rows_{std::move(header)} {}

    void add(std::vector<std::string> row) { rows_.push_back(std::move(row)); }

    std::string text() const {
        std::string text = row_text(rows_.front()) + rule_text();
        for (size_t i = 1; i < rows_.size(); ++i)
            text += row_text(rows_[i]);
        return text + "\n";
    }

private:
    size_t width(size_t column) const {
        size_t widest = 3;
        for (const std::vector<std::string> &row : rows_)
            widest = std::max(widest, row[column].size());
        return widest;
    }

    std::string row_text(const std::vector<std::string> &row) const {
        std::string text = "|";
        for (size_t column = 0; column < row.size(); ++column)
            text += " " + padded(row[column], width(column)) + " |";
        return text + "\n";
    }

    std::string rule_text() const {
        std::string text = "|";
        for (size_t column = 0; column < rows_.front().size(); ++column)
            text += std::string(width(column) + 2, '-') + "|";
        return text + "\n";
    }

    std::vector<std::vector<std::string>> rows_;
};

constexpr const char *page_introduction = R"(# Reference tables

<!-- Written by header_writer from the rows in src/catalogue; do not edit: change the rows or
tools/header_writer, then run `cmake --build --preset release --target tarn_headers`. -->

Every IE on the wire is a 2-byte tag, a 4-byte length and a value; integers are big-endian. A
message is a run of IEs. What the operations do with them stands in the headers in `include/`.

- [Messages](#messages)
- [Composite IEs](#composite-ies)
- [Primitive IEs](#primitive-ies)
- [Debug tokens](#debug-tokens)

)";

constexpr const char *messagesIntroduction = R"(## Messages

Each message begins with the MessageId IE (tag 72), whose value is the id. The mask bit is that of
the message's record. Bytes at most is what the one-call Build can write. An IE under a condition
must be there if the condition holds, and must not be there if it does not.

)";

constexpr const char *compositesIntroduction = R"(## Composite IEs

A sequence has the children of its table in this order; a list repeats one element.

)";

constexpr const char *primitivesIntroduction = R"(## Primitive IEs

Width is that of the value on the wire, in bytes; the IE's header adds 6. A uint32_t of width 2 is
a code word: only its low 16 bits travel. Types marked as items travel only in lists and have no IE
of their own; types without a tag are bare value codecs.

)";

constexpr const char *tokensIntroduction = R"(## Debug tokens

What the one-call operations report to `velSwTokenDebug`, with value 0, when a step fails: Build by
a token for each message and step, every Get by )";

std::string slots_text(const Catalogue &catalogue, const std::vector<Slot> &slots) {
    const std::vector<uint32_t> bits = presence_bits(slots);
    Table table({"IE", "Tag", "Kind", "Presence", "Mask bit"});
    for (size_t i = 0; i < slots.size(); ++i) {
        const Slot &slot = slots[i];
        table.add({slot.second ? slot.child + ", as " + slot.member : slot.child,
                   std::to_string(catalogue.tag_of(slot)),
                   slot.composite ? "composite" : "primitive", presence_text(catalogue, slot),
                   bits[i] == 0 ? "" : bit_text(bits[i])});
    }
    return table.text();
}

std::string messages_text(const Catalogue &catalogue) {
    std::string text = messagesIntroduction;
    Table table({"Id", "Message", "Bytes at most", "Use"});
    for (const Message &row : catalogue.messages)
        table.add({std::to_string(row.id), row.name,
                   std::to_string(greatest_built_size(catalogue, row)), row.term});
    text += table.text();
    for (const Message &row : catalogue.messages)
        text += "### " + std::to_string(row.id) + " " + row.name + "\n\n" +
                slots_text(catalogue, row.slots);
    return text;
}

std::string composites_text(const Catalogue &catalogue) {
    std::string text = compositesIntroduction;
    for (const Composite &row : catalogue.composites) {
        text +=
            "### " + row.name + ", tag " + std::to_string(row.tag) + "\n\n" + row.term + ".\n\n";
        text += row.is_list()
                    ? "List of " + count_text(row.least, row.greatest) + " " + row.element +
                          " (tag " + std::to_string(catalogue.composite(row.element).tag) + ").\n\n"
                    : slots_text(catalogue, row.slots);
    }
    return text;
}

std::string layout_text(const Catalogue &catalogue, const Primitive &row) {
    if (row.shape == Shape::scalar)
        return row.type;
    if (row.shape == Shape::bytes)
        return "array of " + std::to_string(row.capacity);
    std::string text;
    for (const std::string &member : row.members)
        text += (text.empty() ? "" : ", ") + member + " " +
                std::to_string(catalogue.primitive(member).tag);
    return row.shape == Shape::list ? "items " + text : text;
}

std::string valid_note(const Primitive &row) {
    if (row.shape == Shape::record)
        return "all members";
    return row.shape == Shape::list ? count_text(row.least, row.greatest) + " items"
                                    : range_text(row);
}

std::string shape_text(Shape shape) {
    switch (shape) {
    case Shape::scalar:
        return "scalar";
    case Shape::bytes:
        return "byte string";
    case Shape::record:
        return "record";
    case Shape::list:
        return "list";
    }
    return "";
}

std::string tag_text(const Primitive &row) {
    if (row.form == Form::free)
        return "none";
    return std::to_string(row.tag) + (row.form == Form::item ? " (item)" : "");
}

std::string primitives_text(const Catalogue &catalogue) {
    std::string text = primitivesIntroduction;
    std::vector<Primitive> rows = catalogue.primitives;
    std::stable_sort(rows.begin(), rows.end(), [](const Primitive &left, const Primitive &right) {
        return left.tag - 1 < right.tag - 1; // 0, no tag, goes last
    });
    Table table({"Tag", "Name", "Shape", "Holds", "Width", "Valid", "Carries"});
    for (const Primitive &row : rows) {
        const WireSize size = value_size(catalogue, row);
        table.add({tag_text(row), row.name, shape_text(row.shape), layout_text(catalogue, row),
                   count_text(size.least, size.greatest), valid_note(row), row.term});
    }
    return text + table.text();
}

std::string tokens_text(const Catalogue &catalogue) {
    const std::string text = tokensIntroduction + token_text(catalogue.getToken) + ".\n\n";
    Table table({"Message", "Append", "Validity", "Packing"});
    for (const Message &row : catalogue.messages)
        table.add({row.name, token_text(row.appendToken), token_text(row.validityToken),
                   token_text(row.packToken)});
    return text + table.text();
}

} // namespace

std::string reference_tables(const Catalogue &catalogue) {
    std::string text = page_introduction + messages_text(catalogue) + composites_text(catalogue) +
                       primitives_text(catalogue) + tokens_text(catalogue);
    text.pop_back(); // the empty line that the last table leaves
    return text;
}

} // namespace header_writer
