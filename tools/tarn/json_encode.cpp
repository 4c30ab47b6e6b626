#include "tarn/json_encode.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>

#include "tarn/near_names.h"
#include "tarn/terminal.h"
#include "tarn/text/hex.h"
#include "tarn/writing.h"

namespace tool {

namespace {

constexpr std::size_t mostSlots = 16; // more than any owner has

// What decode writes beside the message's IEs.
bool is_about_message(std::string_view key) {
    constexpr std::string_view keys[] = {"message", "packet",  "time",  "from",
                                         "to",      "verdict", "fault", "notes"};
    return std::find(std::begin(keys), std::end(keys), key) != std::end(keys);
}

bool is_list(const TarnInfoType &type) {
    return type.shape == TarnInfoList || type.shape == TarnInfoCompositeList;
}

// A number, or a string of hex digits after 0x.
bool number_from(const JsonTree &tree, const JsonNode &node, std::int64_t *number) {
    if (node.kind == JsonKind::number) {
        constexpr std::uint64_t farOff = std::uint64_t{1}
                                         << 62; // told as out of range all the same
        const auto amount = std::int64_t(std::min(node.number, farOff));
        *number = node.isNegative ? -amount : amount;
        return true;
    }
    std::string_view text = node.kind == JsonKind::string ? tree.text(node) : "";
    if (!text.starts_with("0x"))
        return false;
    text.remove_prefix(2);
    std::uint32_t value = 0;
    const char *end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value, 16);
    *number = value;
    return error == std::errc() && stop == end && !text.empty() && text.size() <= 8;
}

} // namespace

std::string words(const JsonFault &fault) {
    return fault.path.empty() ? fault.what : fault.path + ": " + fault.what;
}

// A step further down for as long as it lives.
class JsonEncoder::In {
public:
    In(JsonEncoder *encoder, std::string_view name) : path_(encoder->path_) {
        path_.push_back({name, 0});
    }
    In(JsonEncoder *encoder, std::size_t index) : path_(encoder->path_) {
        path_.push_back({{}, index});
    }
    In(const In &) = delete;
    In &operator=(const In &) = delete;
    ~In() { path_.pop_back(); }

private:
    std::vector<Step> &path_;
};

// ---- Faults ------------------------------------------------------------------------------------

std::string JsonEncoder::path() const {
    std::string text;
    for (const Step &step : path_) {
        if (step.name.data() == nullptr)
            text += "[" + std::to_string(step.index) + "]";
        else
            text += (text.empty() ? "" : ".") + std::string(step.name);
    }
    return text;
}

void JsonEncoder::fault(const std::string &what) {
    JsonFault found{path(), what};
    if (!is_forced())
        throw JsonFault(found);
    tell_(found);
}

void JsonEncoder::fault(TarnInfoReason reason, const TarnInfoWords &about) {
    char sentence[512];
    tarnInfoSentence(reason, &about, sentence, sizeof sentence);
    fault(sentence);
}

// A piece of JSON, short enough for a line and without control characters.
std::string JsonEncoder::found_words(const JsonNode &node) const {
    constexpr std::size_t shown = 40;
    switch (node.kind) {
    case JsonKind::object:
        return "an object";
    case JsonKind::array:
        return "an array";
    case JsonKind::null:
        return "null";
    case JsonKind::boolean:
        return "true or false";
    case JsonKind::number:
        return (node.isNegative ? "-" : "") + std::to_string(node.number);
    case JsonKind::otherNumber:
        return printable(tree_->text(node), shown);
    default:
        return "\"" + printable(tree_->text(node), shown) + "\"";
    }
}

std::string JsonEncoder::shown_key(std::string_view key) const {
    const bool isName =
        std::all_of(key.begin(), key.end(), [](unsigned char c) { return std::isalnum(c) != 0; });
    return isName ? printable(key, 40) : "\"" + printable(key, 40) + "\"";
}

void JsonEncoder::refuse_kind(const char *expected, const JsonNode &node) {
    fault(std::string("expected ") + expected + ", found " + found_words(node));
}

void JsonEncoder::unknown_name(const TarnInfoSlot *slots, std::uint32_t count, std::string_view key,
                               const char *owner) {
    std::vector<std::string_view> names;
    for (std::uint32_t i = 0; i < count; ++i)
        names.emplace_back(slots[i].name);
    const std::string shown = shown_key(key);
    const In in(this, shown);
    fault(std::string(owner) + " has no such IE" + suggestion(key, names));
}

// ---- Values ------------------------------------------------------------------------------------

void JsonEncoder::append(std::uint32_t number, unsigned width) {
    for (unsigned i = width; i-- != 0;)
        bytes_.push_back(std::uint8_t(number >> 8 * i));
}

// False where the value cannot be written.
bool JsonEncoder::write_number(const TarnInfoType &type, std::int64_t number) {
    const std::int64_t widest = (std::int64_t{1} << 8 * type.width) - 1;
    const bool isBelow = number < std::int64_t{type.least};
    if (isBelow || number > std::int64_t{type.greatest}) {
        const bool fits = number >= 0 && number <= widest;
        TarnInfoWords about{};
        about.type = &type;
        about.number = number;
        if (!fits || !is_forced())
            fault(isBelow ? TarnInfoBelowLeast : TarnInfoAboveGreatest, about);
        if (!fits)
            return false;
    }
    append(std::uint32_t(number), type.width);
    return true;
}

bool JsonEncoder::write_number(const TarnInfoType &type, const JsonNode &node) {
    std::int64_t number = 0;
    if (number_from(*tree_, node, &number))
        return write_number(type, number);
    refuse_kind("a whole number, or a string like \"0x1f\"", node);
    return false;
}

// Where any count can be written, that is no reason to stop.
bool JsonEncoder::is_count_right(const TarnInfoType &type, std::size_t count) {
    if ((count >= type.least && count <= type.greatest) || is_forced())
        return true;
    TarnInfoWords about{};
    about.type = &type;
    about.number = std::int64_t(count);
    fault(TarnInfoCountOutOfRange, about);
    return false;
}

bool JsonEncoder::write_string(const TarnInfoType &type, const JsonNode &node) {
    if (node.kind != JsonKind::string) {
        refuse_kind("a string of hex digits", node);
        return false;
    }
    const std::size_t start = bytes_.size();
    const std::string wrong = text::append_hex(tree_->text(node), &bytes_);
    if (wrong.empty())
        return is_count_right(type, bytes_.size() - start);
    fault(wrong);
    return false;
}

// Four numbers with dots between them, without signs, blanks or leading zeros.
bool JsonEncoder::write_address(const TarnInfoType &type, const JsonNode &node) {
    const std::string_view text = tree_->text(node);
    const char *at = text.data();
    const char *end = at + text.size();
    for (int i = 0; i < 4; ++i) {
        std::uint8_t part = 0;
        const auto [next, error] = std::from_chars(at, end, part);
        const bool isOk = error == std::errc() && (*at != '0' || next - at == 1);
        const bool isLast = i == 3;
        if (!isOk || (isLast ? next != end : next == end || *next != '.')) {
            refuse_kind("an address like \"10.0.0.1\"", node);
            return false;
        }
        append(type.item->tag, 2);
        append(type.item->width, 4);
        append(part, type.item->width);
        at = isLast ? next : next + 1;
    }
    return true;
}

bool JsonEncoder::write_items(const TarnInfoType &type, const JsonNode &node) {
    if (node.kind != JsonKind::array) {
        refuse_kind("an array", node);
        return false;
    }
    if (!is_count_right(type, node.count))
        return false;
    std::size_t index = 0;
    tree_->for_each(node, [&](const JsonNode &child) {
        const In in(this, index++);
        write_ie(*type.item, child);
    });
    return true;
}

bool JsonEncoder::write_value(const TarnInfoType &type, const JsonNode &node) {
    if (type.shape == TarnInfoNumber)
        return write_number(type, node);
    if (type.shape == TarnInfoBytes)
        return write_string(type, node);
    if (type.form == TarnInfoDotted && node.kind == JsonKind::string)
        return write_address(type, node);
    if (is_list(type))
        return write_items(type, node);
    if (node.kind != JsonKind::object) {
        refuse_kind("an object", node);
        return false;
    }
    write_slots(type.slots, type.slotCount, node, type.name,
                type.shape == TarnInfoRecord ? &type : nullptr);
    return true;
}

// With tag and length. False where nothing was written.
bool JsonEncoder::write_ie(const TarnInfoType &type, const JsonNode &node) {
    const std::size_t start = bytes_.size();
    const std::uint8_t header[6] = {std::uint8_t(type.tag >> 8), std::uint8_t(type.tag)};
    bytes_.insert(bytes_.end(), std::begin(header), std::end(header));
    const std::size_t value = bytes_.size();
    if (!write_value(type, node)) {
        bytes_.resize(start);
        return false;
    }
    const auto length = std::uint32_t(bytes_.size() - value);
    for (unsigned i = 0; i < 4; ++i)
        bytes_[start + 2 + i] = std::uint8_t(length >> (24 - 8 * i));
    return true;
}

// ---- Slots -------------------------------------------------------------------------------------

void JsonEncoder::write_missing(const TarnInfoSlot &slot, const TarnInfoType *record) {
    if (slot.presence != TarnInfoMandatory)
        return; // the codec says whether it is called for
    const In in(this, slot.name);
    if (record != nullptr)
        return fault("missing: " + std::string(record->name) + " [" + std::to_string(record->tag) +
                     "] needs all its members");
    TarnInfoWords about{};
    about.type = slot.type;
    about.slot = &slot;
    fault(TarnInfoMissing, about);
}

void JsonEncoder::write_slot(const TarnInfoSlot &slot, const JsonNode &node) {
    const In in(this, slot.name);
    if (path_.size() == 1)
        starts_.push_back(bytes_.size());
    // A child that may be repeated stands as one object or as an array of them.
    if (slot.presence != TarnInfoRepeated || node.kind != JsonKind::array || is_list(*slot.type)) {
        write_ie(*slot.type, node);
        return;
    }
    if (node.count == 0 && !is_forced())
        fault("an empty array");
    const bool isOfMessage = path_.size() == 1;
    if (isOfMessage) {
        firstRepeated_ = starts_.size() - 1;
        repeatedCount_ = node.count;
    }
    std::size_t index = 0;
    tree_->for_each(node, [&](const JsonNode &child) {
        if (isOfMessage && index != 0)
            starts_.push_back(bytes_.size());
        const In inArray(this, index++);
        write_ie(*slot.type, child);
    });
}

// Writes the children in the order of the slots, whatever the order of the JSON object.
void JsonEncoder::write_slots(const TarnInfoSlot *slots, std::uint32_t count,
                              const JsonNode &object, const char *owner,
                              const TarnInfoType *record) {
    if (is_forced())
        return write_as_given(slots, count, object, owner);
    std::array<const JsonNode *, mostSlots> given{};
    std::uint32_t likely = 0; // most objects have the order of the slots
    tree_->for_each(object, [&](const JsonNode &node) {
        const std::string_view key = tree_->key(node);
        std::uint32_t at = likely;
        std::uint32_t tried = 0;
        for (; tried < count && key != slots[at].name; ++tried)
            at = at + 1 < count ? at + 1 : 0;
        if (tried == count) {
            if (!path_.empty() || !is_about_message(key))
                unknown_name(slots, count, key, owner);
            return;
        }
        const In in(this, slots[at].name);
        if (given[at] != nullptr)
            fault("stands twice in one object");
        given[at] = &node;
        likely = at + 1 < count ? at + 1 : 0;
    });
    for (std::uint32_t i = 0; i < count; ++i)
        if (given[i] != nullptr)
            write_slot(slots[i], *given[i]);
        else
            write_missing(slots[i], record);
}

// Writes what is there: also twice, out of order, and IEs that belong elsewhere.
void JsonEncoder::write_as_given(const TarnInfoSlot *slots, std::uint32_t count,
                                 const JsonNode &object, const char *owner) {
    tree_->for_each(object, [&](const JsonNode &node) {
        const std::string key(tree_->key(node));
        if (path_.empty() && is_about_message(key))
            return;
        const auto *slot = std::find_if(
            slots, slots + count, [&key](const TarnInfoSlot &each) { return key == each.name; });
        if (slot != slots + count)
            return write_slot(*slot, node);
        const TarnInfoType *type = tarnInfoTypeByName(key.c_str());
        if (type == nullptr || type->tag == 0)
            return unknown_name(slots, count, key, owner);
        TarnInfoSlot foreign{};
        foreign.name = type->name;
        foreign.type = type;
        foreign.presence = TarnInfoOptional;
        write_slot(foreign, node);
    });
}

// ---- Messages ----------------------------------------------------------------------------------

const TarnInfoMessage *JsonEncoder::message_of(const JsonNode &root) {
    const JsonNode *name = tree_->find(root, "message");
    if (name == nullptr)
        throw JsonFault{"", "the member \"message\" with the message's name is missing"};
    const In in(this, "message");
    const std::string text(tree_->text(*name));
    if (name->kind != JsonKind::string)
        throw JsonFault{"message", "expected a message's name, found " + found_words(*name)};
    if (const TarnInfoMessage *message = tarnInfoMessageByName(text.c_str()))
        return message;
    std::uint32_t count = 0;
    const auto *messages = tarnInfoMessages(&count);
    std::vector<std::string_view> names;
    for (std::uint32_t i = 0; i < count; ++i)
        names.emplace_back(messages[i]->name);
    throw JsonFault{"message",
                    "no message has the name " + found_words(*name) + suggestion(text, names)};
}

// A message that decode refused stands as its bytes.
bool JsonEncoder::write_bytes_member(const JsonNode &root) {
    const JsonNode *bytes = tree_->find(root, "bytes");
    if (bytes == nullptr || bytes->kind != JsonKind::string)
        return false;
    if (!is_forced())
        throw JsonFault{"", "was refused when it was decoded; --force writes its bytes"};
    const std::string wrong = text::append_hex(tree_->text(*bytes), &bytes_);
    if (!wrong.empty())
        throw JsonFault{"bytes", wrong};
    starts_.push_back(0);
    return true;
}

void JsonEncoder::write_message(const TarnInfoMessage &message, const JsonNode &root) {
    const TarnInfoSlot &id = message.slots[0];
    if (tree_->find(root, id.name) != nullptr && !is_forced())
        throw JsonFault{id.name, "not allowed: it follows from the message's name"};
    starts_.push_back(0);
    append(id.type->tag, 2);
    append(id.type->width, 4);
    append(message.id, id.type->width);
    write_slots(message.slots + 1, message.slotCount - 1, root, message.name, nullptr);
}

// The codec has the last word. Of a child that may be repeated it decodes one alone, although any
// number of them is valid: each is judged as if it were the only one.
void JsonEncoder::judge() const {
    if (repeatedCount_ < 2)
        return judge(bytes_);
    for (std::size_t i = 0; i < repeatedCount_; ++i) {
        const auto start = [this](std::size_t number) {
            const std::size_t at = firstRepeated_ + number;
            return bytes_.begin() +
                   std::ptrdiff_t(at < starts_.size() ? starts_[at] : bytes_.size());
        };
        std::vector<std::uint8_t> single(bytes_.begin(), start(0));
        single.insert(single.end(), start(i), start(i + 1));
        single.insert(single.end(), start(repeatedCount_), bytes_.end());
        judge(single);
    }
}

void JsonEncoder::judge(const std::vector<std::uint8_t> &bytes) {
    const auto size = std::uint32_t(bytes.size());
    if (tarnInfoJudge(bytes.data(), size).isPlain != 0)
        return;
    const std::unique_ptr<const TarnInfoExplanation, void (*)(const TarnInfoExplanation *)> why(
        tarnInfoExplainBytes(bytes.data(), size), tarnInfoFreeExplanation);
    if (!why)
        throw std::bad_alloc();
    // Where an IE was left out that is not called for, the first note tells that bytes are ignored,
    // and the next one why.
    if (why->faultCount != 0)
        throw JsonFault{why->faults[0].path, why->faults[0].sentence};
    if (why->noteCount != 0) {
        const TarnInfoFinding &last = why->notes[why->noteCount - 1];
        const std::string_view sentence = last.sentence;
        throw JsonFault{last.path, std::string(sentence.substr(0, sentence.find(", so ")))};
    }
    throw JsonFault{"", "not valid"};
}

void JsonEncoder::encode(const JsonTree &tree) {
    tree_ = &tree;
    bytes_.clear();
    starts_.clear();
    path_.clear();
    repeatedCount_ = 0;
    const JsonNode &root = tree.root();
    if (root.kind != JsonKind::object)
        throw JsonFault{"", "expected an object, found " + found_words(root)};
    if (write_bytes_member(root))
        return;
    write_message(*message_of(root), root);
    if (!is_forced())
        judge();
}

} // namespace tool
