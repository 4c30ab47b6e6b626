// The catalogue: the descriptors that the rows make, at compile time.
//
// Whoever includes this sees the values and not just the shapes, so the compiler can work out at
// once whatever hangs on a slot or a type that is named where the code is written.
#ifndef TARN_CATALOGUE_H
#define TARN_CATALOGUE_H

#include <stddef.h>

#include "catalogue/descriptors.h"
#include "tarn_if.h"

namespace tarn::making {

// Each owner's rule, for its slots.
#define SEQUENCE(name_, tag_, rule_, term_) constexpr auto rule##name_ = UnpackRule::rule_;
#include "catalogue/composite_ies.def"
#define MESSAGE(name_, id_, rule_, ...) constexpr auto rule##name_ = UnpackRule::rule_;
#include "catalogue/messages.def"

// ---- Filling the tables ------------------------------------------------------------------------

constexpr void add_slot(Catalogue &c, int number, int ownerBegin, TypeId type, Presence presence,
                        ConditionId condition, UnpackRule rule, size_t offset) {
    unsigned before = 0;
    for (int i = ownerBegin; i < number; ++i)
        before += c.slots[i].presence != Presence::mandatory;
    c.slots[number] = {
        type, presence, condition, rule, presence_bit(presence, before), uint16_t(offset)};
}

constexpr void add_slots(Catalogue &c) {
#define SLOT_(owner_, type_, member_, presence_, condition_)                                       \
    add_slot(c, slot##owner_##member_, begin##owner_, type##type_, Presence::presence_,            \
             condition_, rule##owner_, offsetof(Tarn##owner_##Record, member_));
#define PRIMITIVE_SLOT(owner_, child_, presence_, condition_)                                      \
    SLOT_(owner_, child_, child_, presence_, condition_)
#define COMPOSITE_SLOT(owner_, child_, presence_, condition_)                                      \
    SLOT_(owner_, child_, child_, presence_, condition_)
#define SECOND_SLOT(owner_, child_, member_, presence_, condition_)                                \
    SLOT_(owner_, child_, member_, presence_, condition_)
#include "catalogue/composite_ies.def"
#define MESSAGE(name_, ...) SLOT_(name_, MessageId, MessageId, mandatory, always)
#define PRIMITIVE_SLOT(owner_, child_, presence_, condition_)                                      \
    SLOT_(owner_, child_, child_, presence_, condition_)
#define COMPOSITE_SLOT(owner_, child_, presence_, condition_)                                      \
    SLOT_(owner_, child_, child_, presence_, condition_)
#include "catalogue/messages.def"
#undef SLOT_
}

constexpr void add_members(Catalogue &c) {
#define MEMBER(name_, member_)                                                                     \
    c.members[member##name_##member_] = Member{type##member_, offsetof(Tarn##name_, member_)};
#include "catalogue/primitive_ies.def"
}

constexpr SlotTable slot_table(const Catalogue &c, int begin, int end) {
    SlotTable table{uint16_t(begin), uint8_t(end - begin), 0};
    for (int i = begin; i < end; ++i)
        table.mandatory = uint8_t(table.mandatory + (c.slots[i].presence == Presence::mandatory));
    return table;
}

constexpr void set_range(Type &type, uint32_t least, uint32_t greatest) {
    if (least > 63) // the field's six bits; a row beyond them does not compile
        __builtin_unreachable();
    type.least = least & 63;
    type.greatest = greatest;
}

constexpr Kind number_kind(size_t size, unsigned width) {
    if (size == 4)
        return width == 4 ? Kind::number32 : Kind::code;
    return size == 2 ? Kind::number16 : Kind::number8;
}

constexpr Type scalar(size_t size, unsigned width, uint32_t least, uint32_t greatest, bool hasIe) {
    Type type{};
    type.kind = number_kind(size, width);
    type.valueSize = uint16_t(size);
    type.fixedSize = uint16_t(width);
    set_range(type, least, greatest);
    type.hasIe = hasIe ? 1 : 0;
    return type;
}

constexpr Type bytes(size_t size, unsigned capacity, uint32_t least, uint32_t greatest) {
    Type type{};
    type.kind = Kind::bytes;
    type.valueSize = uint16_t(size);
    type.capacity = uint16_t(capacity);
    set_range(type, least, greatest);
    type.hasIe = 1;
    return type;
}

constexpr Type record(size_t size, int firstMember, bool hasIe) {
    Type type{};
    type.kind = Kind::record;
    type.valueSize = uint16_t(size);
    type.slots.first = uint16_t(firstMember);
    type.hasIe = hasIe ? 1 : 0;
    return type;
}

constexpr Type list(Kind kind, size_t size, TypeId item, size_t stride, size_t itemsOffset,
                    unsigned capacity, uint32_t least, uint32_t greatest) {
    Type type{};
    type.kind = kind;
    type.valueSize = uint16_t(size);
    type.array = Array{item, uint8_t(itemsOffset), uint16_t(stride)};
    type.capacity = uint16_t(capacity);
    set_range(type, least, greatest);
    type.hasIe = 1;
    return type;
}

constexpr Type sequence(const SlotTable &slots) {
    Type type{};
    type.kind = Kind::sequence;
    type.valueSize = sizeof(VelDllHead);
    type.slots = slots;
    type.hasIe = 1;
    return type;
}

constexpr void add_types(Catalogue &c) {
#define SCALAR(name_, tag_, type_, width_, least_, greatest_, term_)                               \
    c.types[type##name_] = scalar(sizeof(Tarn##name_), width_, least_, greatest_, true);
#define ITEM_SCALAR(name_, tag_, type_, width_, least_, greatest_, term_)                          \
    c.types[type##name_] = scalar(sizeof(Tarn##name_), width_, least_, greatest_, false);
#define FREE_SCALAR(name_, type_, width_, least_, greatest_, term_)                                \
    c.types[type##name_] = scalar(sizeof(Tarn##name_), width_, least_, greatest_, false);
#define BYTES(name_, tag_, capacity_, least_, greatest_, term_)                                    \
    c.types[type##name_] = bytes(sizeof(Tarn##name_), capacity_, least_, greatest_);
#define RECORD(name_, ...) c.types[type##name_] = record(sizeof(Tarn##name_), begin##name_, true);
#define ITEM_RECORD(name_, ...)                                                                    \
    c.types[type##name_] = record(sizeof(Tarn##name_), begin##name_, false);
#define FREE_RECORD(name_, ...)                                                                    \
    c.types[type##name_] = record(sizeof(Tarn##name_), begin##name_, false);
#define MEMBER(name_, member_) ++c.types[type##name_].slots.count;
#define LIST(name_, tag_, item_, capacity_, least_, greatest_, term_)                              \
    c.types[type##name_] = list(Kind::list, sizeof(Tarn##name_), type##item_, sizeof(Tarn##item_), \
                                offsetof(Tarn##name_, items), capacity_, least_, greatest_);
#include "catalogue/primitive_ies.def"
#define SEQUENCE(name_, tag_, rule_, term_)                                                        \
    c.types[type##name_] = sequence(slot_table(c, begin##name_, end##name_));
#define COMPOSITE_LIST(name_, tag_, element_, least_, greatest_, term_)                            \
    c.types[type##name_] = list(                                                                   \
        Kind::compositeList, sizeof(VelDllHead), type##element_, sizeof(Tarn##element_##Record),   \
        offsetof(Tarn##name_##Record, items), greatest_, least_, greatest_);
#include "catalogue/composite_ies.def"
}

// A record whose members all have a fixed size has one too: 6 bytes of header for each.
constexpr void add_fixed_sizes(Catalogue &c) {
    for (Type &type : c.types) {
        if (type.kind != Kind::record)
            continue;
        unsigned sum = 0;
        bool fixed = true;
        for (unsigned i = 0; i < type.slots.count; ++i) {
            const unsigned size = c.types[c.members[type.slots.first + i].type].fixedSize;
            fixed = fixed && size != 0;
            sum += 6 + size;
        }
        type.fixedSize = uint16_t(fixed ? sum : 0);
    }
}

constexpr bool accepts_all(const Catalogue &c, const Type &type) {
    if (is_number(type.kind)) {
        const unsigned bits = 8U * type.valueSize;
        return type.least == 0 && type.greatest == UINT32_MAX >> (32 - bits);
    }
    if (type.kind != Kind::record)
        return false;
    for (unsigned i = 0; i < type.slots.count; ++i)
        if (!accepts_all(c, c.types[c.members[type.slots.first + i].type]))
            return false;
    return true;
}

constexpr void add_acceptance(Catalogue &c) {
    for (Type &type : c.types)
        if (type.kind == Kind::record || (is_number(type.kind) && type.kind != Kind::none))
            type.acceptsAll = accepts_all(c, type) ? 1 : 0;
}

constexpr void add_messages(Catalogue &c) {
#define MESSAGE(name_, id_, rule_, append_token_, validity_token_, pack_token_, term_)             \
    c.messages[id_] = Message{slot_table(c, begin##name_, end##name_), append_token_,              \
                              validity_token_, pack_token_};
#include "catalogue/messages.def"
}

enum Counts : bool { outside = false, inside = true };

constexpr void add_conditions(Catalogue &c) {
#define CONDITION_FOR_MSG(name_, predicate_, ie_, values_, counts_, meaning_)                      \
    c.conditions[name_] = Condition{type##ie_, values_, counts_};
#define CONDITION_FOR_IE(name_, predicate_, ie_, values_, counts_, meaning_)                       \
    c.conditions[name_] = Condition{type##ie_, values_, counts_};
#include "catalogue/conditions.def"
}

constexpr Catalogue make_catalogue() {
    Catalogue c{};
    add_members(c);
    add_slots(c);
    add_types(c);
    add_fixed_sizes(c);
    add_acceptance(c);
    add_messages(c);
    add_conditions(c);
    return c;
}

} // namespace tarn::making

namespace [[gnu::visibility("hidden")]] tarn {

#ifdef TARN_BUILT_FOR_SPEED
inline constexpr Catalogue catalogue = making::make_catalogue();
#else
// Nothing is worked out from it at compile time, and one strong definition is reached without an
// entry in the loader's table, which an inline one would take on ARM.
extern const Catalogue catalogue;
#endif

inline constexpr const Type &type_of(TypeId id) {
    return catalogue.types[id];
}

// A tag from the wire or from an object as a type; a tag that the protocol lacks has kind none.
inline constexpr TypeId type_of_tag(uint32_t tag) {
    return tag <= lastTag ? TypeId(tag) : TypeId(0);
}

// ---- Rows in use -------------------------------------------------------------------------------

inline constexpr const SlotTable &slots_of(MessageNumber id) {
    return catalogue.messages[id].slots;
}
inline constexpr const SlotTable &slots_of(TypeId sequence) {
    return type_of(sequence).slots;
}

inline constexpr const SlotTable &slots_of(const SlotTable &table) {
    return table;
}

inline const Slot *slots_begin(const SlotTable &table) {
    return catalogue.slots + table.first;
}
inline const Slot *slots_end(const SlotTable &table) {
    return slots_begin(table) + table.count;
}

inline constexpr bool is_conditional(const Slot &slot) {
    return slot.presence >= Presence::conditional;
}

// Whether a record has the slot's member, by the record's presence mask.
inline constexpr bool is_present(const Slot &slot, unsigned mask) {
    return slot.presence == Presence::mandatory || (mask & slot.presenceBit) != 0;
}

struct Members {
    const Member *first;
    const Member *last;
    const Member *begin() const { return first; }
    const Member *end() const { return last; }
};
inline Members members_of(const Type &record) {
    const Member *first = catalogue.members + record.slots.first;
    return {first, first + record.slots.count};
}

// What stands at a row's offset in a value or record.
inline const void *at_offset(const void *owner, uint32_t offset) {
    return static_cast<const uint8_t *>(owner) + offset;
}
inline void *at_offset(void *owner, uint32_t offset) {
    return static_cast<uint8_t *>(owner) + offset;
}

// An element of a list's array, in its value or record.
inline const void *item_of(const Type &list, const void *owner, uint32_t index) {
    return at_offset(owner, list.array.offset + index * list.array.stride);
}
inline void *item_of(const Type &list, void *owner, uint32_t index) {
    return at_offset(owner, list.array.offset + index * list.array.stride);
}

#ifdef TARN_BUILT_FOR_SPEED
// By a tag's low byte: the composite tag that has it, or else a number that has not.
struct CompositeTags {
    uint16_t with[256];
};
inline constexpr CompositeTags compositeTags = [] {
    CompositeTags tags{};
    for (unsigned byte = 0; byte < 256; ++byte)
        tags.with[byte] =
            uint16_t(byte <= lastTag && is_composite(type_of(TypeId(byte)).kind) ? byte : ~byte);
    return tags;
}();
static_assert(lastTag < 256);
#endif

// Whether an IE of this tag has children. A tag that the protocol lacks has none.
inline constexpr bool is_composite_tag(uint32_t tag) {
#ifdef TARN_BUILT_FOR_SPEED
    return compositeTags.with[tag & 0xFF] == tag;
#else
    return tag <= lastTag && is_composite(type_of(TypeId(tag)).kind);
#endif
}

} // namespace tarn

#endif
