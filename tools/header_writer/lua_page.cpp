#include "pages.h"
#include "sizes.h"

#include <algorithm>

namespace header_writer {
namespace {

constexpr const char *introduction =
    R"(-- Wireshark's view of the messages between a 3G access point and its access controller.
--
-- Written by header_writer from the rows in src/catalogue and from wireshark/engine.lua and
-- wireshark/plugin.lua; do not edit: change those, then run
-- `cmake --build --preset release --target tarn_headers`.

)";

// A table in Lua that is being written in one line: { name = "Srnti", tag = 1 }
class Row {
public:
    Row &text(const char *key, const std::string &value) { return raw(key, quoted(value)); }
    Row &number(const char *key, uint32_t value) { return raw(key, std::to_string(value)); }
    Row &raw(const char *key, const std::string &value) {
        fields_ += (fields_.empty() ? "" : ", ") + std::string(key) + " = " + value;
        return *this;
    }
    std::string str() const { return "{ " + fields_ + " }"; }

    static std::string quoted(const std::string &text) {
        std::string result = "\"";
        for (char c : text)
            result += c == '"' || c == '\\' ? std::string("\\") + c : std::string(1, c);
        return result + "\"";
    }

private:
    std::string fields_;
};

// The name of the form in which people read a type's bytes; empty for plain numbers and hex.
std::string form_name(const std::string &type) {
#define FORM(type_, form_)                                                                         \
    if (type == #type_)                                                                            \
        return #form_;
#include "forms.def"
    return "";
}

std::string shape_name(Shape shape) {
    switch (shape) {
    case Shape::scalar:
        return "scalar";
    case Shape::bytes:
        return "bytes";
    case Shape::record:
        return "record";
    case Shape::list:
        return "list";
    }
    return "";
}

std::string presence_name(Presence presence) {
    switch (presence) {
    case Presence::mandatory:
        return "mandatory";
    case Presence::optional:
        return "optional";
    case Presence::conditional:
        return "conditional";
    case Presence::repeated:
        return "repeated";
    }
    return "";
}

std::string rule_name(UnpackRule rule) {
    switch (rule) {
    case UnpackRule::none:
        return "none";
    case UnpackRule::refuseUncalled:
        return "refuseUncalled";
    case UnpackRule::dropUncalled:
        return "dropUncalled";
    case UnpackRule::dropUncalledRequireAtEnd:
        return "dropUncalledRequireAtEnd";
    }
    return "";
}

std::string names_text(const std::vector<std::string> &names) {
    std::string text;
    for (const std::string &name : names)
        text += (text.empty() ? "" : ", ") + Row::quoted(name);
    return "{ " + text + " }";
}

std::string slots_text(const std::vector<Slot> &slots) {
    std::string text = "{";
    for (const Slot &slot : slots) {
        Row row;
        row.text("name", slot.member).text("type", slot.child);
        row.text("presence", presence_name(slot.presence));
        if (slot.condition != "always")
            row.text("condition", slot.condition);
        text += "\n      " + row.str() + ",";
    }
    return text + "\n    }";
}

std::string primitive_row(const Primitive &row) {
    Row text;
    text.text("name", row.name).number("tag", row.tag).text("shape", shape_name(row.shape));
    if (row.shape == Shape::scalar)
        text.number("width", row.width);
    if (row.shape == Shape::bytes || row.shape == Shape::list)
        text.number("capacity", row.capacity);
    if (row.shape == Shape::record)
        text.raw("members", names_text(row.members));
    else
        text.number("least", row.least).number("greatest", row.greatest);
    if (row.shape == Shape::list)
        text.text("item", row.members.front());
    if (const std::string form = form_name(row.name); !form.empty())
        text.text("form", form);
    return text.text("term", row.term).str();
}

std::string composite_row(const Composite &row) {
    Row text;
    text.text("name", row.name).number("tag", row.tag);
    text.text("shape", row.is_list() ? "compositeList" : "sequence").text("term", row.term);
    if (row.is_list())
        text.text("item", row.element).number("least", row.least).number("greatest", row.greatest);
    else
        text.text("rule", rule_name(row.rule)).raw("slots", slots_text(row.slots));
    return text.str();
}

std::string message_row(const Message &row) {
    Row text;
    text.text("name", row.name).number("id", row.id).text("term", row.term);
    return text.text("rule", rule_name(row.rule)).raw("slots", slots_text(row.slots)).str();
}

std::string condition_row(const Condition &row) {
    std::string values;
    for (uint32_t value = 0; value < 32; ++value)
        if ((row.values >> value & 1) != 0)
            values += (values.empty() ? "[" : ", [") + std::to_string(value) + "] = true";
    Row text;
    text.text("type", row.ie).raw("values", "{ " + values + " }");
    return text.raw("inside", row.inside ? "true" : "false").text("meaning", row.meaning).str();
}

// The sentences of findings.
std::string reason_rows() {
    std::string text;
#define REASON(name_, sentence_) text += "    " #name_ " = " + Row::quoted(sentence_) + ",\n";
#include "tarn_info_reasons.def"
    return text;
}

// The most bytes that any message can take.
uint32_t greatest_message_size(const Catalogue &catalogue) {
    uint32_t greatest = 0;
    for (const Message &row : catalogue.messages)
        greatest = std::max(greatest, greatest_built_size(catalogue, row));
    return greatest;
}

} // namespace

std::string lua_rows(const Catalogue &catalogue) {
    std::string text = std::string(introduction) + "local rows = {\n";
    text += "  largestMessage = " + std::to_string(greatest_message_size(catalogue)) + ",\n";
    text += "  types = {\n";
    for (const Primitive &row : catalogue.primitives)
        if (row.form != Form::free)
            text += "    " + primitive_row(row) + ",\n";
    for (const Composite &row : catalogue.composites)
        text += "    " + composite_row(row) + ",\n";
    text += "  },\n  messages = {\n";
    for (const Message &row : catalogue.messages)
        text += "    " + message_row(row) + ",\n";
    text += "  },\n  conditions = {\n";
    for (const Condition &row : catalogue.conditions)
        text += "    " + row.name + " = " + condition_row(row) + ",\n";
    return text + "  },\n  reasons = {\n" + reason_rows() + "  },\n}\n\n";
}

} // namespace header_writer
