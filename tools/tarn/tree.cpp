#include "tarn/tree.h"

#include <algorithm>
#include <cctype>
#include <iomanip>

#include "tarn/wording.h"

namespace tool {

namespace {

constexpr std::size_t bytesInLine = 16;

struct Line {
    std::uint32_t at;
    unsigned depth;
    std::string name;
    std::uint32_t tag;
    std::vector<std::string> value; // more than one line for long byte strings
};

// As text if it reads as text: short strings of printable bytes are mostly chance.
std::string as_text(const std::uint8_t *bytes, std::uint32_t count) {
    constexpr std::uint32_t shortest = 4;
    const bool isText = count >= shortest && std::all_of(bytes, bytes + count, [](std::uint8_t c) {
                            return std::isprint(c) != 0;
                        });
    return isText ? " \"" + std::string(bytes, bytes + count) + "\"" : "";
}

std::vector<std::string> bytes_value(const std::uint8_t *bytes, std::uint32_t count) {
    const std::string length = counted(count, "byte");
    if (count <= bytesInLine)
        return {length + (count == 0 ? "" : ": ") + hex_bytes(bytes, count) +
                as_text(bytes, count)};
    std::vector<std::string> lines{length + ":" + as_text(bytes, count)};
    for (std::uint32_t i = 0; i < count; i += bytesInLine)
        lines.push_back(hex_bytes(bytes + i, std::min<std::size_t>(bytesInLine, count - i)));
    return lines;
}

class Tree {
public:
    void add_owner(const Owner &owner, bool isList, std::uint32_t at, unsigned depth) {
        for (const Child &child : children(owner)) {
            std::string name = child.slot->name;
            if (isList)
                name += "[" + std::to_string(child.index) + "]";
            if (child.type().is_composite())
                add_composite(child.type(), child.ie, name, at, depth);
            else
                add_value(child.type(), protocol::value_of(static_cast<const void *>(child.ie)),
                          name, at, depth);
            at += TarnSizeOfIe(child.ie);
        }
    }

    const std::vector<Line> &lines() const { return lines_; }

private:
    static constexpr std::uint32_t headerSize = 6;

    void add_composite(const Type &type, const TarnIe *ie, const std::string &name,
                       std::uint32_t at, unsigned depth) {
        const Owner owner{nullptr, const_cast<TarnIe *>(ie), type.slots};
        const bool isList = type.shape == Shape::compositeList;
        std::vector<std::string> summary;
        if (isList)
            summary.push_back(counted(children(owner).size(), "element"));
        lines_.push_back({at, depth, name, type.tag, std::move(summary)});
        add_owner(owner, isList, at + headerSize, depth + 1);
    }

    void add_value(const Type &type, const void *value, const std::string &name, std::uint32_t at,
                   unsigned depth) {
        lines_.push_back({at, depth, name, type.tag, summary(type, value)});
        if (type.shape == Shape::record)
            add_members(type, value, at + headerSize, depth + 1);
        else if (type.shape == Shape::list && !is_ip_address(type))
            add_items(type, value, at + headerSize, depth + 1);
    }

    void add_members(const Type &record, const void *value, std::uint32_t at, unsigned depth) {
        for (const protocol::Member &member : record.members) {
            const void *part = at_offset(value, member.offset);
            add_value(*member.type, part, member.name, at, depth);
            at += headerSize + member.type->sizeOf(part);
        }
    }

    void add_items(const Type &list, const void *value, std::uint32_t at, unsigned depth) {
        for (std::uint32_t i = 0; i < count_of(value); ++i) {
            const void *item = item_at(list, value, i);
            add_value(*list.item, item, list.item->name + ("[" + std::to_string(i) + "]"), at,
                      depth);
            at += headerSize + list.item->sizeOf(item);
        }
    }

    static std::vector<std::string> summary(const Type &type, const void *value) {
        switch (type.shape) {
        case Shape::scalar: {
            const std::uint32_t number = scalar_of(type, value);
            return {std::to_string(number) + " (" + hex_number(number, type.width) + ")"};
        }
        case Shape::bytes:
            return bytes_value(bytes_of(value), count_of(value));
        case Shape::list:
            return {is_ip_address(type) ? dotted(type, value) : counted(count_of(value), "item")};
        default:
            return {};
        }
    }

    std::vector<Line> lines_;
};

std::string padding(std::size_t width) {
    return std::string(width, ' ');
}

void print_line(std::ostream &out, const Line &line, std::size_t nameWidth) {
    constexpr int offsetWidth = 6;
    constexpr std::size_t tagWidth = 5; // "[177]"
    const std::string tag = "[" + std::to_string(line.tag) + "]";
    out << std::setw(offsetWidth) << line.at << "  " << padding(std::size_t{2} * line.depth)
        << line.name;
    out << padding(nameWidth - line.name.size() - std::size_t{2} * line.depth + 1);
    out << padding(tagWidth - std::min(tagWidth, tag.size())) << tag;
    const std::string margin = padding(offsetWidth + 2 + nameWidth + 1 + tagWidth + 2);
    for (std::size_t i = 0; i < line.value.size(); ++i)
        out << (i == 0 ? "  " : margin) << line.value[i] << (i + 1 < line.value.size() ? "\n" : "");
    out << '\n';
}

} // namespace

void print_tree(std::ostream &out, const TarnMsg &msg, const Message &message) {
    Tree tree;
    tree.add_owner({const_cast<TarnMsg *>(&msg), nullptr, message.slots}, false, 0, 0);
    std::size_t nameWidth = 0;
    for (const Line &line : tree.lines())
        nameWidth = std::max(nameWidth, line.name.size() + std::size_t{2} * line.depth);
    for (const Line &line : tree.lines())
        print_line(out, line, nameWidth);
}

} // namespace tool
