// `tarn describe`: what the protocol contains, for people and for generators.
#include <fnmatch.h>

#include <algorithm>
#include <charconv>
#include <map>
#include <nlohmann/json.hpp>

#include "tarn/commands.h"
#include "tarn/near_names.h"
#include "tarn_info.h"

namespace tool {

namespace {

using Json = nlohmann::ordered_json;

// ---- The facts as ranges -----------------------------------------------------------------------

template <class Entry>
struct Range {
    const Entry *first;
    std::uint32_t count;
    const Entry *begin() const { return first; }
    const Entry *end() const { return first + count; }
};

template <class Owner>
Range<TarnInfoSlot> slots_of(const Owner &owner) {
    return {owner.slots, owner.slotCount};
}

auto all_types() {
    Range<const TarnInfoType *> types{};
    types.first = tarnInfoTypes(&types.count);
    return types;
}

auto all_messages() {
    Range<const TarnInfoMessage *> messages{};
    messages.first = tarnInfoMessages(&messages.count);
    return messages;
}

auto all_conditions() {
    Range<TarnInfoCondition> conditions{};
    conditions.first = tarnInfoConditions(&conditions.count);
    return conditions;
}

bool is_composite(const TarnInfoType &type) {
    return type.shape >= TarnInfoSequence;
}

// ---- Words -------------------------------------------------------------------------------------

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

std::string label(const TarnInfoType &type) {
    return type.name +
           (type.tag != 0 ? " [" + std::to_string(type.tag) + "]" : std::string(" (no tag)"));
}

std::string counted(std::uint32_t count, const char *thing) {
    return std::to_string(count) + " " + thing + (count == 1 ? "" : "s");
}

const char *shape_words(const TarnInfoType &type) {
    static constexpr const char *words[] = {
        "number",           "byte string", "record", "list", "composite, a sequence of slots",
        "composite, a list"};
    return words[type.shape];
}

// "2 bytes, 60 to 600", "exactly 3 bytes", "1 to 3 items of RabId [23]".
std::string value_words(const TarnInfoType &type) {
    const std::string range = type.least == type.greatest ? "exactly " + std::to_string(type.least)
                                                          : std::to_string(type.least) + " to " +
                                                                std::to_string(type.greatest);
    switch (type.shape) {
    case TarnInfoNumber: {
        const bool isAny = type.least == 0 && type.greatest == 0xFFFFFFFF >> (32 - 8 * type.width);
        return counted(type.width, "byte") + ", " + (isAny ? "any value" : range);
    }
    case TarnInfoBytes:
        return range + " bytes";
    case TarnInfoRecord:
        return counted(type.slotCount, "member");
    case TarnInfoSequence:
        return counted(type.slotCount, "slot");
    default:
        return range + (type.shape == TarnInfoList ? " items of " : " elements of ") +
               label(*type.item);
    }
}

std::string presence_words(const TarnInfoSlot &slot) {
    switch (slot.presence) {
    case TarnInfoMandatory:
        return "mandatory";
    case TarnInfoOptional:
        return "optional";
    case TarnInfoConditional:
        return std::string("required where ") + slot.condition->meaning + ", else not allowed";
    default:
        return slot.condition == nullptr ? "repeated"
                                         : std::string("required, once or more, where ") +
                                               slot.condition->meaning + ", else not allowed";
    }
}

std::string hex(std::uint32_t token) {
    char text[11];
    std::snprintf(text, sizeof text, "0x%08X", token);
    return text;
}

// ---- The overview ------------------------------------------------------------------------------

std::string heading(const TarnInfoType &type) {
    if (is_composite(type))
        return "Composite IEs";
    if (type.hasIe == 0)
        return "Values that travel only within others, or not at all";
    return std::string("Primitive IEs: ") + shape_words(type) + "s";
}

void print_overview(std::ostream &out) {
    Table messages;
    for (const TarnInfoMessage *message : all_messages())
        messages.add({std::to_string(message->id), message->name, message->term});
    out << "Messages (id, name), " << all_messages().count << ":\n" << messages;
    std::map<std::string, Table> groups;
    std::map<std::string, std::uint32_t> counts;
    for (const TarnInfoType *type : all_types()) {
        groups[heading(*type)].add({label(*type), type->term});
        ++counts[heading(*type)];
    }
    for (const auto &[title, table] : groups)
        out << '\n' << title << ", " << counts[title] << ":\n" << table;
    out << "\n`tarn describe NAME` tells more about each of them.\n";
}

// ---- One message, IE, token or module ----------------------------------------------------------

template <class Owner>
void print_slots(std::ostream &out, const Owner &owner) {
    Table table;
    for (const TarnInfoSlot &slot : slots_of(owner)) {
        const bool isSecond = std::string_view(slot.name) != slot.type->name;
        table.add({std::to_string(&slot - owner.slots),
                   slot.name + (" [" + std::to_string(slot.type->tag) + "]"),
                   value_words(*slot.type),
                   presence_words(slot) +
                       (isSecond ? std::string("; a second ") + slot.type->name : "")});
    }
    out << table;
}

void print(std::ostream &out, const TarnInfoMessage &message) {
    out << message.name << ", message id " << message.id << '\n'
        << "  " << message.term << "\n  At most " << message.largest
        << " bytes. Debug tokens: append " << hex(message.appendToken) << ", validity "
        << hex(message.validityToken) << ", packing " << hex(message.packToken)
        << ".\n\nIEs, in order:\n";
    print_slots(out, message);
}

template <class Owner>
bool holds(const Owner &owner, const TarnInfoType &type) {
    const auto slots = slots_of(owner);
    return std::any_of(slots.begin(), slots.end(),
                       [&type](const TarnInfoSlot &slot) { return slot.type == &type; });
}

void print_holders(std::ostream &out, const TarnInfoType &type) {
    std::string words;
    for (const TarnInfoType *owner : all_types())
        if (owner->item == &type || holds(*owner, type))
            words += "  " + label(*owner) + "\n";
    for (const TarnInfoMessage *message : all_messages())
        if (holds(*message, type))
            words += std::string("  ") + message->name + " (message " +
                     std::to_string(message->id) + ")\n";
    out << (words.empty() ? "\nNothing holds it.\n" : "\nHeld by:\n" + words);
}

void print(std::ostream &out, const TarnInfoType &type) {
    out << label(type) << ", " << shape_words(type) << ": " << value_words(type) << '\n'
        << "  " << type.term << '\n';
    if (type.hasIe == 0)
        out << "  No IE of its own.\n";
    if (type.shape == TarnInfoNumber && type.width < type.valueSize)
        out << "  A code word: 32 bits in memory, of which the low 16 travel.\n";
    if (type.shape == TarnInfoRecord) {
        Table table;
        for (const TarnInfoSlot &member : slots_of(type))
            table.add({label(*member.type), value_words(*member.type)});
        out << "\nMembers, in order, each with tag and length of its own:\n" << table;
    }
    if (type.shape == TarnInfoSequence) {
        out << "\nSlots, in order:\n";
        print_slots(out, type);
    }
    print_holders(out, type);
}

// ---- Everything as one document ----------------------------------------------------------------

const char *word(TarnInfoShape shape) {
    static constexpr const char *words[] = {"number", "bytes",    "record",
                                            "list",   "sequence", "compositeList"};
    return words[shape];
}
const char *word(TarnInfoPresence presence) {
    static constexpr const char *words[] = {"mandatory", "optional", "conditional", "repeated"};
    return words[presence];
}
const char *word(TarnInfoForm form) {
    static constexpr const char *words[] = {"plain", "dotted", "digits", "mccMnc", "hexNumber"};
    return words[form];
}
const char *word(TarnInfoSecrecy secrecy) {
    static constexpr const char *words[] = {"public", "key", "identity", "payload"};
    return words[secrecy];
}

template <class Owner>
Json slots_to_json(const Owner &owner) {
    Json slots = Json::array();
    for (const TarnInfoSlot &slot : slots_of(owner)) {
        Json json = {{"name", slot.name}, {"type", slot.type->name}};
        if (slot.type->tag != 0)
            json["tag"] = slot.type->tag;
        json["presence"] = word(slot.presence);
        if (slot.condition != nullptr)
            json["condition"] = slot.condition->name;
        if (slot.presenceBit != 0)
            json["presenceBit"] = slot.presenceBit;
        slots.push_back(std::move(json));
    }
    return slots;
}

Json to_json(const TarnInfoType &type) {
    Json json = {{"name", type.name}};
    if (type.tag != 0)
        json["tag"] = type.tag;
    json.update({{"term", type.term}, {"shape", word(type.shape)}, {"isIe", type.hasIe != 0}});
    if (type.shape == TarnInfoNumber) {
        json["width"] = type.width;
        json["isCode"] = type.width < type.valueSize;
    }
    if (type.shape != TarnInfoRecord && type.shape != TarnInfoSequence)
        json.update({{"least", type.least}, {"greatest", type.greatest}});
    if (type.capacity != 0)
        json["capacity"] = type.capacity;
    if (type.item != nullptr)
        json["item"] = type.item->name;
    json.update(
        {{"largest", type.largest}, {"form", word(type.form)}, {"secrecy", word(type.secrecy)}});
    if (type.item == nullptr && type.slotCount != 0)
        json["slots"] = slots_to_json(type);
    return json;
}

Json to_json(const TarnInfoMessage &message) {
    return {{"name", message.name},
            {"id", message.id},
            {"term", message.term},
            {"largest", message.largest},
            {"tokens",
             {{"append", hex(message.appendToken)},
              {"validity", hex(message.validityToken)},
              {"pack", hex(message.packToken)}}},
            {"slots", slots_to_json(message)}};
}

Json to_json(const TarnInfoCondition &condition) {
    Json values = Json::array();
    for (std::uint32_t value = 0; value < 32; ++value)
        if ((condition.values >> value & 1) != 0)
            values.push_back(value);
    return {{"name", condition.name},
            {"predicate", condition.predicate},
            {"meaning", condition.meaning},
            {"ie", tarnInfoTypeByTag(condition.tag)->name},
            {"values", values},
            {"isInside", condition.isInside != 0}};
}

// ---- Finding -----------------------------------------------------------------------------------

// What the names on the command line stand for.
struct Found {
    std::vector<const TarnInfoMessage *> messages;
    std::vector<const TarnInfoType *> types;
    std::string words; // of what is neither: a token, a module

    bool is_empty() const { return messages.empty() && types.empty() && words.empty(); }
};

// Decimal, or hexadecimal behind 0x.
bool parse_number(std::string_view text, std::uint32_t *number) {
    const bool isHex = text.starts_with("0x") || text.starts_with("0X");
    text.remove_prefix(isHex ? 2 : 0);
    const auto [end, error] =
        std::from_chars(text.data(), text.data() + text.size(), *number, isHex ? 16 : 10);
    return error == std::errc() && end == text.data() + text.size();
}

std::string token_words(std::uint32_t token) {
    const TarnInfoMessage *message = nullptr;
    const TarnInfoStep step = tarnInfoToken(token, &message);
    if (step == TarnInfoNoStep)
        return {};
    return hex(token) + ", debug token" +
           (message != nullptr ? std::string(" of ") + message->name : " of every message") +
           "\n  " + tarnInfoStepWords(step) + ".\n";
}

// A number is a message's id; in hexadecimal a debug token or a tag; behind `tag:` a tag.
void find_number(std::string_view text, Found *found) {
    constexpr std::string_view prefix = "tag:";
    const bool isTag = text.starts_with(prefix);
    std::uint32_t number = 0;
    if (!parse_number(text.substr(isTag ? prefix.size() : 0), &number))
        return;
    if (!isTag && text.size() > 1 && (text[1] == 'x' || text[1] == 'X')) {
        found->words = token_words(number);
        if (!found->words.empty())
            return;
    } else if (!isTag) {
        if (const TarnInfoMessage *message = tarnInfoMessageById(number))
            found->messages.push_back(message);
        return;
    }
    if (const TarnInfoType *type = tarnInfoTypeByTag(number))
        found->types.push_back(type);
}

// Names match as in a shell, whatever their case.
Found find(const std::string &name) {
    Found found;
    find_number(name, &found);
    const auto matches = [&name](const auto *entry) {
        return fnmatch(name.c_str(), entry->name, FNM_CASEFOLD) == 0;
    };
    std::copy_if(all_messages().begin(), all_messages().end(), std::back_inserter(found.messages),
                 matches);
    std::copy_if(all_types().begin(), all_types().end(), std::back_inserter(found.types), matches);
    const std::string module = tarnInfoModuleWords(name.c_str());
    if (found.is_empty() && module != "unknown")
        found.words =
            name + ", module of the library\n  Reports of null pointers by " + module + ".\n";
    return found;
}

std::vector<std::string_view> all_names() {
    std::vector<std::string_view> names;
    for (const TarnInfoMessage *message : all_messages())
        names.emplace_back(message->name);
    for (const TarnInfoType *type : all_types())
        names.emplace_back(type->name);
    return names;
}

void print_document(const std::vector<const TarnInfoMessage *> &messages,
                    const std::vector<const TarnInfoType *> &types, std::ostream &out) {
    Json document = {{"interface", TarnGetInterfaceVersion()},
                     {"messages", Json::array()},
                     {"types", Json::array()},
                     {"conditions", Json::array()},
                     {"reasons", Json::array()}};
    for (const TarnInfoMessage *message : messages)
        document["messages"].push_back(to_json(*message));
    for (const TarnInfoType *type : types)
        document["types"].push_back(to_json(*type));
    for (const TarnInfoCondition &condition : all_conditions())
        document["conditions"].push_back(to_json(condition));
    for (int i = 0; i < TarnInfoReasonCount; ++i)
        document["reasons"].push_back({{"name", tarnInfoReasonName(TarnInfoReason(i))},
                                       {"sentence", tarnInfoReasonSentence(TarnInfoReason(i))}});
    out << document.dump(2) << '\n';
}

} // namespace

int describe(const std::vector<std::string> &names, bool json, const Streams &streams) {
    int status = exitOk;
    Found all;
    const char *separator = "";
    if (names.empty() && json) {
        all.messages.assign(all_messages().begin(), all_messages().end());
        all.types.assign(all_types().begin(), all_types().end());
    } else if (names.empty()) {
        print_overview(streams.out);
    }
    for (const std::string &name : names) {
        const Found found = find(name);
        if (found.is_empty()) {
            streams.err << "tarn: no message or IE '" << name << "'"
                        << suggestion(name, all_names()) << '\n';
            status = exitUnusable;
        }
        all.messages.insert(all.messages.end(), found.messages.begin(), found.messages.end());
        all.types.insert(all.types.end(), found.types.begin(), found.types.end());
        if (json)
            continue;
        const auto show = [&](const auto &what) {
            streams.out << std::exchange(separator, "\n");
            print(streams.out, what);
        };
        for (const TarnInfoMessage *message : found.messages)
            show(*message);
        for (const TarnInfoType *type : found.types)
            show(*type);
        if (!found.words.empty())
            streams.out << std::exchange(separator, "\n") << found.words;
    }
    if (json && status == exitOk)
        print_document(all.messages, all.types, streams.out);
    return status;
}

} // namespace tool
