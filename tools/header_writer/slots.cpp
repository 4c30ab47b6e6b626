#include "pages.h"
#include "words.h"

#include <algorithm>

namespace header_writer {
std::string presence_text(const Catalogue &catalogue, const Slot &slot) {
    if (slot.presence == Presence::mandatory)
        return "mandatory";
    if (slot.presence == Presence::optional)
        return "optional";
    const std::string meaning = catalogue.condition(slot.condition).meaning;
    return (slot.presence == Presence::repeated ? "one or more exactly if " : "exactly if ") +
           meaning;
}

std::string kind_text(const Slot &slot) {
    if (slot.second)
        return slot.child + " again, ";
    return slot.composite ? "composite, " : "";
}

std::string slot_table(const Catalogue &catalogue, const std::vector<Slot> &slots) {
    size_t widest = 0;
    for (const Slot &slot : slots)
        widest = std::max(widest, slot.member.size());
    std::string table;
    for (const Slot &slot : slots)
        table += "  " + padded(slot.member, widest) + "  " +
                 padded("tag " + std::to_string(catalogue.tag_of(slot)), 7) + "  " +
                 kind_text(slot) + presence_text(catalogue, slot) + "\n";
    return table;
}

void add_slot_members(std::vector<Member> &members, const std::vector<Slot> &slots) {
    const std::vector<uint32_t> bits = presence_bits(slots);
    const bool used = std::any_of(bits.begin(), bits.end(), [](uint32_t bit) { return bit != 0; });
    members.push_back({"uint8_t presence", used ? "" : "no bit in use"});
    for (size_t i = 0; i < slots.size(); ++i)
        members.push_back(
            {"Tarn" + slots[i].child + (slots[i].composite ? "Record " : " ") + slots[i].member,
             bits[i] == 0 ? "" : bit_text(bits[i])});
}

std::vector<Constant> presence_constants(const std::string &owner, const std::vector<Slot> &slots) {
    const std::vector<uint32_t> bits = presence_bits(slots);
    std::vector<Constant> constants;
    for (size_t i = 0; i < slots.size(); ++i)
        if (bits[i] != 0)
            constants.push_back({"Tarn" + owner + "Has" + slots[i].member, bit_text(bits[i])});
    return constants;
}

namespace {

void write_value_append(Page &page, const std::string &child, const Parent &parent) {
    const std::string name = "TarnAppend" + child + "To" + parent.name;
    // A message gets its MessageId when it is created; any value of it is valid.
    if (child == "MessageId")
        page.function("uint32_t", name, {parent.parameter, "TarnMessageId value"},
                      "appends a further MessageId, returning 1.");
    else
        page.function("uint32_t", name, {parent.parameter, "const Tarn" + child + " *value"},
                      "appends a copy of *value, returning 1 on success and 0 if invalid.");
}

void write_value_operations(Page &page, const std::string &child, const Parent &parent) {
    write_value_append(page, child, parent);
    page.function("uint32_t", "TarnExtract" + child + "From" + parent.name,
                  {parent.parameter, "Tarn" + child + " *value"},
                  "copies the next " + child +
                      " to *value, returning 1 on success and 0 if there is none.");
}

void write_object_operations(Page &page, const std::string &child, const Parent &parent) {
    const std::string &name = parent.childParameter;
    page.function("uint32_t", "TarnAppend" + child + "IeTo" + parent.name,
                  {parent.parameter, "Tarn" + child + "Ie *" + name},
                  "appends " + name + " itself, unchecked, and takes it over, returning 1.");
    page.function("uint32_t", "TarnExtract" + child + "IeFrom" + parent.name,
                  {parent.parameter, "Tarn" + child + "Ie **" + name},
                  "lends the next " + child + " in *" + name +
                      ", returning 1 on success and 0, with *" + name + " null, if there is none.");
}

} // namespace

void write_slot_operations(Page &page, const std::vector<Slot> &slots, const Parent &parent) {
    for (const Slot &slot : slots) {
        if (slot.second)
            continue;
        if (slot.composite)
            write_object_operations(page, slot.child, parent);
        else
            write_value_operations(page, slot.child, parent);
    }
}

} // namespace header_writer
