#include <algorithm>
#include <charconv>
#include <map>

#include "tarn/commands.h"
#include "tarn/near_names.h"
#include "tarn/wording.h"

namespace tool {

namespace {

// Rows of cells, printed in columns as wide as their cells; a row's last cell sets no width.
class Table {
public:
    using Row = std::vector<std::string>;

    void add(Row row) {
        for (std::size_t i = 0; i + 1 < row.size(); ++i) {
            widths_.resize(std::max(widths_.size(), i + 1));
            widths_[i] = std::max(widths_[i], row[i].size());
        }
        rows_.push_back(std::move(row));
    }

    friend std::ostream &operator<<(std::ostream &out, const Table &table) {
        for (const Row &row : table.rows_) {
            for (std::size_t i = 0; i + 1 < row.size(); ++i)
                out << "  " << row[i] << std::string(table.widths_[i] - row[i].size(), ' ');
            out << "  " << row.back() << '\n';
        }
        return out;
    }

private:
    std::vector<Row> rows_;
    std::vector<std::size_t> widths_;
};

const char *shape_words(const Type &type) {
    switch (type.shape) {
    case Shape::scalar:
        return "number";
    case Shape::bytes:
        return "byte string";
    case Shape::record:
        return "record";
    case Shape::list:
        return "list";
    case Shape::sequence:
        return "composite, a sequence of slots";
    default:
        return "composite, a list";
    }
}

std::string label_or_name(const Type &type) {
    return type.tag != 0 ? label(type) : std::string(type.name) + " (no tag)";
}

std::string presence_words(const Slot &slot) {
    switch (slot.presence) {
    case protocol::Presence::mandatory:
        return "mandatory";
    case protocol::Presence::optional:
        return "optional";
    case protocol::Presence::conditional:
        return std::string("required where ") + slot.condition + ", else not allowed";
    default:
        return slot.condition == nullptr ? "repeated"
                                         : std::string("required, once or more, where ") +
                                               slot.condition + ", else not allowed";
    }
}

// ---- The overview ------------------------------------------------------------------------------

std::string heading(const Type &type) {
    if (type.is_composite())
        return "Composite IEs";
    if (!type.hasIe)
        return "Values that travel only within others, or not at all";
    return std::string("Primitive IEs: ") + shape_words(type) + "s";
}

void print_overview(std::ostream &out) {
    Table messages;
    for (const Message *message : protocol::messages())
        messages.add({std::to_string(message->id), message->name, message->term});
    out << "Messages (id, name), " << protocol::messages().size() << ":\n" << messages;
    std::map<std::string, std::vector<const Type *>> groups;
    for (const Type *type : protocol::types())
        groups[heading(*type)].push_back(type);
    for (const auto &[title, group] : groups) {
        Table table;
        for (const Type *type : group)
            table.add({label_or_name(*type), type->term});
        out << '\n' << title << ", " << group.size() << ":\n" << table;
    }
    out << "\n`tarn describe NAME` tells more about each of them.\n";
}

// ---- One message or IE -------------------------------------------------------------------------

void print_slots(std::ostream &out, const std::vector<Slot> &slots) {
    Table table;
    for (std::size_t i = 0; i < slots.size(); ++i) {
        const Slot &slot = slots[i];
        const bool isSecond = std::string_view(slot.name) != slot.type->name;
        table.add({std::to_string(i), slot.name + (" [" + std::to_string(slot.type->tag) + "]"),
                   value_words(*slot.type),
                   presence_words(slot) +
                       (isSecond ? std::string("; a second ") + slot.type->name : "")});
    }
    out << table;
}

void print_message(std::ostream &out, const Message &message) {
    out << message.name << ", message id " << message.id << '\n'
        << "  " << message.term << "\n\nIEs, in order:\n";
    print_slots(out, message.slots);
}

void print_members(std::ostream &out, const Type &record) {
    Table table;
    for (const protocol::Member &member : record.members)
        table.add({label(*member.type), value_words(*member.type)});
    out << "\nMembers, in order, each with tag and length of its own:\n" << table;
}

bool holds(const std::vector<Slot> &slots, const Type &type) {
    return std::any_of(slots.begin(), slots.end(),
                       [&type](const Slot &slot) { return slot.type == &type; });
}

bool holds(const Type &owner, const Type &type) {
    const auto isType = [&type](const protocol::Member &member) { return member.type == &type; };
    return owner.item == &type || holds(owner.slots, type) ||
           std::any_of(owner.members.begin(), owner.members.end(), isType);
}

void print_holders(std::ostream &out, const Type &type) {
    std::string words;
    for (const Type *owner : protocol::types())
        if (holds(*owner, type))
            words += "  " + label_or_name(*owner) + "\n";
    for (const Message *message : protocol::messages())
        if (holds(message->slots, type))
            words += std::string("  ") + message->name + " (message " +
                     std::to_string(message->id) + ")\n";
    out << (words.empty() ? "\nNothing holds it.\n" : "\nHeld by:\n" + words);
}

void print_type(std::ostream &out, const Type &type) {
    out << label_or_name(type) << ", " << shape_words(type) << ": " << value_words(type) << '\n'
        << "  " << type.term << '\n';
    if (!type.hasIe)
        out << "  No IE of its own.\n";
    if (type.shape == Shape::scalar && type.width < type.valueSize)
        out << "  A code word: 32 bits in memory, of which the low 16 travel.\n";
    if (type.shape == Shape::record)
        print_members(out, type);
    if (type.shape == Shape::sequence) {
        out << "\nSlots, in order:\n";
        print_slots(out, type.slots);
    }
    print_holders(out, type);
}

// ---- Finding -----------------------------------------------------------------------------------

bool parse_number(std::string_view text, std::uint32_t *number) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), *number);
    return error == std::errc() && end == text.data() + text.size();
}

const Message *find_message(std::string_view name) {
    std::uint32_t id = 0;
    if (parse_number(name, &id))
        return protocol::message_by_id(id);
    for (const Message *message : protocol::messages())
        if (same_name(message->name, name))
            return message;
    return nullptr;
}

const Type *find_type(std::string_view name) {
    constexpr std::string_view prefix = "tag:";
    std::uint32_t tag = 0;
    if (name.starts_with(prefix) && parse_number(name.substr(prefix.size()), &tag))
        return protocol::type_by_tag(tag);
    for (const Type *type : protocol::types())
        if (same_name(type->name, name))
            return type;
    return nullptr;
}

std::vector<std::string_view> all_names() {
    std::vector<std::string_view> names;
    for (const Message *message : protocol::messages())
        names.emplace_back(message->name);
    for (const Type *type : protocol::types())
        names.emplace_back(type->name);
    return names;
}

} // namespace

int describe(const std::string &name, const Streams &streams) {
    if (name.empty()) {
        print_overview(streams.out);
    } else if (const Message *message = find_message(name)) {
        print_message(streams.out, *message);
    } else if (const Type *type = find_type(name)) {
        print_type(streams.out, *type);
    } else {
        streams.err << "tarn: no message or IE '" << name << "'" << suggestion(name, all_names())
                    << '\n';
        return exitUnusable;
    }
    return exitOk;
}

} // namespace tool
