// The files that the header writer writes, one function each, and what they share.
#ifndef HEADER_WRITER_PAGES_H
#define HEADER_WRITER_PAGES_H

#include "model.h"
#include "page.h"

namespace header_writer {

Page coreHeader();
Page objectsHeader();
Page primitiveHeader(const Catalogue &catalogue);
Page compositeHeader(const Catalogue &catalogue);
Page messageHeader(const Catalogue &catalogue);
std::string cppHeader(const Catalogue &catalogue);
std::string pythonRows(const Catalogue &catalogue);
std::string pythonTypes(const Catalogue &catalogue);
std::string referenceTables(const Catalogue &catalogue);
// The rows as a table in Lua.
std::string luaRows(const Catalogue &catalogue);

// ---- Slots of sequence composites and of messages (slots.cpp) -----------------------------------

// "mandatory", "optional", or the condition in words.
std::string presenceText(const Catalogue &catalogue, const Slot &slot);
// What else there is to say of a slot, with a comma behind it; may be empty.
std::string kindText(const Slot &slot);

// The slots as lines for a comment that keeps them as they are.
std::string slotTable(const Catalogue &catalogue, const std::vector<Slot> &slots);

// Adds the presence mask and one member per slot to those of the owner's record.
void addSlotMembers(std::vector<Member> &members, const std::vector<Slot> &slots);

// Names for the bits of the presence mask of the record that belongs to `owner`.
std::vector<Constant> presenceConstants(const std::string &owner, const std::vector<Slot> &slots);

// What children are appended to and extracted from, as its operations name it.
struct Parent {
    std::string name;           // "RabParamsIe", "ResetMsg"
    std::string parameter;      // "TarnRabParamsIe *ie", "TarnMsg *msg"
    std::string childParameter; // the name of a composite child's parameter
};

// The append and extract operations of each distinct child.
void writeSlotOperations(Page &page, const std::vector<Slot> &slots, const Parent &parent);

// ---- Conditions (conditions.cpp) ----------------------------------------------------------------

// The predicates that look among a composite's children, or those that look in a message.
void writePredicates(Page &page, const Catalogue &catalogue, bool amongChildren);

} // namespace header_writer

#endif
