#include "tarn/json_form.h"

#include <algorithm>
#include <cctype>
#include <charconv>

#include "tarn/input.h"
#include "tarn/near_names.h"
#include "tarn/wording.h"

namespace tool {

namespace {

std::string join(const std::string &path, const char *name) {
    return path.empty() ? name : path + "." + name;
}

std::string indexed(const std::string &path, std::size_t index) {
    return path + "[" + std::to_string(index) + "]";
}

// As JSON text, short enough for a line and without control characters.
std::string short_text(const Json &json) {
    constexpr std::size_t shown = 40;
    const std::string text = json.dump(-1, ' ', true);
    return text.size() <= shown ? text : text.substr(0, shown) + "...";
}

std::string shown_key(const std::string &key) {
    const bool isName =
        std::all_of(key.begin(), key.end(), [](unsigned char c) { return std::isalnum(c) != 0; });
    return isName ? key : short_text(key);
}

std::string found_words(const Json &json) {
    if (json.is_object())
        return "an object";
    if (json.is_array())
        return "an array";
    return short_text(json);
}

[[noreturn]] void refuse_kind(const std::string &path, const char *expected, const Json &json) {
    throw JsonFault{path, std::string("expected ") + expected + ", found " + found_words(json)};
}

void require(const std::string &path, const std::string &fault) {
    if (!fault.empty())
        throw JsonFault{path, fault};
}

// Refuses members that the object should not have.
void check_names(const Json &object, const std::string &path, const char *owner,
                 const std::vector<std::string_view> &names) {
    for (const auto &[key, value] : object.items())
        if (std::find(names.begin(), names.end(), key) == names.end())
            throw JsonFault{join(path, shown_key(key).c_str()),
                            std::string(owner) + " has no such IE" + suggestion(key, names)};
}

// ---- Values of primitive IEs -------------------------------------------------------------------

// A number, or a string of hex digits after 0x.
std::int64_t number_from(const Json &json, const std::string &path) {
    if (json.is_number_unsigned() && json.get<std::uint64_t>() > 0xFFFFFFFFU)
        throw JsonFault{path, found_words(json) + " is above 4294967295"};
    if (json.is_number_integer())
        return json.get<std::int64_t>();
    std::uint32_t number = 0;
    if (json.is_string()) {
        const auto &text = json.get_ref<const std::string &>();
        const char *end = text.data() + text.size();
        if (text.starts_with("0x") &&
            std::from_chars(text.data() + 2, end, number, 16).ptr == end && text.size() > 2 &&
            text.size() <= 10)
            return number;
    }
    refuse_kind(path, "a whole number, or a string like \"0x1f\"", json);
}

void read_value(const Type &type, const Json &json, const std::string &path, void *value);

void read_scalar(const Type &type, const Json &json, const std::string &path, void *value) {
    const std::int64_t number = number_from(json, path);
    require(path, number_fault(type, number));
    store_scalar(type, value, std::uint32_t(number));
}

void read_bytes(const Type &type, const Json &json, const std::string &path, void *value) {
    if (!json.is_string())
        refuse_kind(path, "a string of hex digits", json);
    Bytes bytes;
    try {
        append_hex(json.get_ref<const std::string &>(), &bytes);
    } catch (const InputError &error) {
        throw JsonFault{path, error.what()};
    }
    require(path, count_fault(type, bytes.size()));
    store_count(value, std::uint32_t(bytes.size()));
    std::copy(bytes.begin(), bytes.end(), bytes_of(value));
}

void read_record(const Type &type, const Json &json, const std::string &path, void *value) {
    if (!json.is_object())
        refuse_kind(path, "an object", json);
    std::vector<std::string_view> names;
    for (const protocol::Member &member : type.members)
        names.emplace_back(member.name);
    check_names(json, path, type.name, names);
    for (const protocol::Member &member : type.members) {
        const std::string memberPath = join(path, member.name);
        const auto found = json.find(member.name);
        if (found == json.end())
            throw JsonFault{memberPath, "missing: " + label(type) + " needs all its members"};
        read_value(*member.type, *found, memberPath, at_offset(value, member.offset));
    }
}

void read_list(const Type &type, const Json &json, const std::string &path, void *value) {
    if (!json.is_array())
        refuse_kind(path, "an array", json);
    require(path, count_fault(type, json.size()));
    for (std::uint32_t i = 0; i < json.size(); ++i)
        read_value(*type.item, json[i], indexed(path, i), item_at(type, value, i));
    store_count(value, std::uint32_t(json.size()));
}

// Four numbers with dots between them, without signs, blanks or leading zeros.
Json parts_of_address(const Json &json, const std::string &path) {
    const auto &text = json.get_ref<const std::string &>();
    Json parts = Json::array();
    const char *at = text.data();
    const char *end = at + text.size();
    while (parts.size() < 4) {
        std::uint8_t part = 0;
        const auto [next, error] = std::from_chars(at, end, part);
        const bool isOk = error == std::errc() && (*at != '0' || next - at == 1);
        const bool isLast = parts.size() == 3;
        if (!isOk || (isLast ? next != end : next == end || *next != '.'))
            refuse_kind(path, "an address like \"10.0.0.1\"", json);
        parts.push_back(part);
        at = isLast ? next : next + 1;
    }
    return parts;
}

void read_value(const Type &type, const Json &json, const std::string &path, void *value) {
    switch (type.shape) {
    case Shape::scalar:
        return read_scalar(type, json, path, value);
    case Shape::bytes:
        return read_bytes(type, json, path, value);
    case Shape::record:
        return read_record(type, json, path, value);
    default:
        if (is_ip_address(type) && json.is_string())
            return read_list(type, parts_of_address(json, path), path, value);
        return read_list(type, json, path, value);
    }
}

// ---- IE objects --------------------------------------------------------------------------------

void fill_slots(const Owner &owner, const Json &json, const std::string &path);

void fill_elements(const Type &type, const Owner &owner, const Json &json, const std::string &path);

void add_child(const Owner &owner, const Slot &slot, const Json &json, const std::string &path) {
    const Type &type = *slot.type;
    if (!type.is_composite()) {
        ValueMemory value(type);
        read_value(type, json, path, value.get());
        if (!append_value(owner, slot, value.get()))
            throw JsonFault{path, "not valid"};
        return;
    }
    IePtr ie = create_ie(type);
    const Owner child{nullptr, ie.get(), type.slots};
    if (type.shape == Shape::compositeList)
        fill_elements(type, child, json, path);
    else
        fill_slots(child, json, path);
    if (type.isIeValid(ie.get()) == 0)
        throw JsonFault{path, "not valid"};
    append_ie(owner, slot, std::move(ie));
}

void fill_elements(const Type &type, const Owner &owner, const Json &json,
                   const std::string &path) {
    if (!json.is_array())
        refuse_kind(path, "an array", json);
    require(path, count_fault(type, json.size()));
    for (std::size_t i = 0; i < json.size(); ++i)
        add_child(owner, owner.slots.front(), json[i], indexed(path, i));
}

// A conditional slot can be judged when its turn comes, since the mandatory slots lead and the
// conditions ask for one of these.
void fill_slot(const Owner &owner, const Slot &slot, const Json *json, const std::string &path) {
    const bool calledFor = is_called_for(owner, slot);
    if (json == nullptr) {
        if (slot.presence == protocol::Presence::mandatory)
            throw JsonFault{path, "missing: it is mandatory"};
        if (is_conditional(slot) && calledFor)
            throw JsonFault{path, needed_words(slot)};
        return;
    }
    if (!calledFor)
        throw JsonFault{path, uncalled_words(slot)};
    // A child that may be repeated stands as one object or as an array of them.
    if (slot.presence != protocol::Presence::repeated || !json->is_array())
        return add_child(owner, slot, *json, path);
    if (json->empty())
        throw JsonFault{path, "an empty array; " + needed_words(slot)};
    for (std::size_t i = 0; i < json->size(); ++i)
        add_child(owner, slot, (*json)[i], indexed(path, i));
}

std::vector<std::string_view> slot_names(const Owner &owner) {
    std::vector<std::string_view> names;
    for (const Slot &slot : owner.slots)
        names.emplace_back(slot.name);
    return names;
}

// Appends in the order of the slots, whatever the order of the JSON object.
void fill_slots(const Owner &owner, const Json &json, const std::string &path) {
    if (!json.is_object())
        refuse_kind(path, "an object", json);
    if (owner.ie != nullptr) {
        const Type &type = *protocol::type_by_tag(TarnGetIeTag(owner.ie));
        check_names(json, path, type.name, slot_names(owner));
    }
    for (const Slot &slot : owner.slots) {
        if (owner.msg != nullptr && &slot == &owner.slots.front())
            continue; // the MessageId, which the message was created with
        const auto found = json.find(slot.name);
        fill_slot(owner, slot, found == json.end() ? nullptr : &*found, join(path, slot.name));
    }
}

// ---- Messages ----------------------------------------------------------------------------------

const Message &message_of(const Json &json) {
    if (!json.is_object())
        refuse_kind("", "an object", json);
    const auto name = json.find("message");
    if (name == json.end())
        throw JsonFault{"", "the member \"message\" with the message's name is missing"};
    if (!name->is_string())
        refuse_kind("message", "a message's name", *name);
    const auto &text = name->get_ref<const std::string &>();
    if (const Message *message = protocol::message_by_name(text))
        return *message;
    std::vector<std::string_view> names;
    for (const Message *message : protocol::messages())
        names.emplace_back(message->name);
    throw JsonFault{"message",
                    "no message has the name " + found_words(*name) + suggestion(text, names)};
}

} // namespace

MsgPtr from_json(const Json &json) {
    const Message &message = message_of(json);
    MsgPtr msg(message.create());
    const Owner owner{msg.get(), nullptr, message.slots};
    std::vector<std::string_view> names = slot_names(owner);
    if (json.contains(names.front()))
        throw JsonFault{std::string(names.front()),
                        "not allowed: it follows from the message's name"};
    names.front() = "message"; // stands for the MessageId
    check_names(json, "", message.name, names);
    fill_slots(owner, json, "");
    if (message.isValid(msg.get()) == 0)
        throw JsonFault{"", "not valid"};
    return msg;
}

} // namespace tool
