// The files that the header writer writes, one function each, and what they share.
#ifndef HEADER_WRITER_PAGES_H
#define HEADER_WRITER_PAGES_H

#include "model.h"
#include "page.h"

namespace header_writer {

Page core_header();
Page objects_header();
Page primitive_header(const Catalogue &catalogue);
Page composite_header(const Catalogue &catalogue);
Page message_header(const Catalogue &catalogue);
std::string cpp_header(const Catalogue &catalogue);
std::string python_rows(const Catalogue &catalogue);
std::string python_types(const Catalogue &catalogue);
std::string reference_tables(const Catalogue &catalogue);
// The rows as a table in Lua.
std::string lua_rows(const Catalogue &catalogue);

// ---- Slots of sequence composites and of messages (slots.cpp) -----------------------------------

// "mandatory", "optional", or the condition in words.
std::string presence_text(const Catalogue &catalogue, const Slot &slot);
// What else there is to say of a slot, with a comma behind it; may be empty.
std::string kind_text(const Slot &slot);

// The slots as lines for a comment that keeps them as they are.
std::string slot_table(const Catalogue &catalogue, const std::vector<Slot> &slots);

// Adds the presence mask and one member per slot to those of the owner's record.
void add_slot_members(std::vector<Member> &members, const std::vector<Slot> &slots);

// Names for the bits of the presence mask of the record that belongs to `owner`.
std::vector<Constant> presence_constants(const std::string &owner, const std::vector<Slot> &slots);

// What children are appended to and extracted from, as its operations name it.
struct Parent {
    std::string name;           // "RabParamsIe", "ResetMsg"
    std::string parameter;      // "TarnRabParamsIe *ie", "TarnMsg *msg"
    std::string childParameter; // the name of a composite child's parameter
};

// The append and extract operations of each distinct child.
void write_slot_operations(Page &page, const std::vector<Slot> &slots, const Parent &parent);

// ---- Conditions (conditions.cpp) ----------------------------------------------------------------

// The predicates that look among a composite's children, or those that look in a message.
void write_predicates(Page &page, const Catalogue &catalogue, bool amongChildren);

} // namespace header_writer

#endif
