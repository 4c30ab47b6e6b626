// The catalogue as the engine reads it: small read-only tables made from the rows at compile time.
//
// Everything is an index or a small integer, so the tables need no relocations and stay in pages
// that every process shares. An IE's tag is its index in the table of types: types that travel only
// as list items stand under their item tag, and the two or three value codecs without any tag stand
// behind the last tag.
#ifndef TARN_CATALOGUE_DESCRIPTORS_H
#define TARN_CATALOGUE_DESCRIPTORS_H

#include <stdint.h>

#include "build_goal.h"

namespace [[gnu::visibility("hidden")]] tarn {

// ---- The rows' numbers -------------------------------------------------------------------------

namespace making {

constexpr int tagRows[] = {
#define SCALAR(name_, tag_, ...)      tag_,
#define BYTES(name_, tag_, ...)       tag_,
#define RECORD(name_, tag_, ...)      tag_,
#define LIST(name_, tag_, ...)        tag_,
#define ITEM_SCALAR(name_, tag_, ...) tag_,
#define ITEM_RECORD(name_, tag_, ...) tag_,
#include "catalogue/primitive_ies.def"
#define SEQUENCE(name_, tag_, ...)       tag_,
#define COMPOSITE_LIST(name_, tag_, ...) tag_,
#include "catalogue/composite_ies.def"
};

constexpr int largest_tag() {
    int largest = 0;
    for (const int tag : tagRows)
        largest = tag > largest ? tag : largest;
    return largest;
}

// A `begin` takes the number of the slot that follows it, an `end` the number after the last one.
enum SlotNumber : int {
#define SEQUENCE(name_, ...)                      begin##name_, rewindBegin##name_ = begin##name_ - 1,
#define SEQUENCE_END(name_)                       end##name_, rewindEnd##name_ = end##name_ - 1,
#define PRIMITIVE_SLOT(owner_, child_, ...)       slot##owner_##child_,
#define COMPOSITE_SLOT(owner_, child_, ...)       slot##owner_##child_,
#define SECOND_SLOT(owner_, child_, member_, ...) slot##owner_##member_,
#include "catalogue/composite_ies.def"
#define MESSAGE(name_, ...)                                                                        \
    begin##name_, rewindBegin##name_ = begin##name_ - 1, slot##name_##MessageId,
#define MESSAGE_END(name_)                  end##name_, rewindEnd##name_ = end##name_ - 1,
#define PRIMITIVE_SLOT(owner_, child_, ...) slot##owner_##child_,
#define COMPOSITE_SLOT(owner_, child_, ...) slot##owner_##child_,
#include "catalogue/messages.def"
    slotCount
};

enum MemberNumber : int {
#define RECORD(name_, ...)      begin##name_, rewindBegin##name_ = begin##name_ - 1,
#define ITEM_RECORD(name_, ...) begin##name_, rewindBegin##name_ = begin##name_ - 1,
#define FREE_RECORD(name_, ...) begin##name_, rewindBegin##name_ = begin##name_ - 1,
#define MEMBER(name_, member_)  member##name_##member_,
#include "catalogue/primitive_ies.def"
    memberCount
};

} // namespace making

enum TypeId : uint8_t {
#define SCALAR(name_, tag_, ...)      type##name_ = tag_,
#define BYTES(name_, tag_, ...)       type##name_ = tag_,
#define RECORD(name_, tag_, ...)      type##name_ = tag_,
#define LIST(name_, tag_, ...)        type##name_ = tag_,
#define ITEM_SCALAR(name_, tag_, ...) type##name_ = tag_,
#define ITEM_RECORD(name_, tag_, ...) type##name_ = tag_,
#include "catalogue/primitive_ies.def"
#define SEQUENCE(name_, tag_, ...)       type##name_ = tag_,
#define COMPOSITE_LIST(name_, tag_, ...) type##name_ = tag_,
#include "catalogue/composite_ies.def"
    lastTag = making::largest_tag(),
#define SCALAR(...)
#define FREE_SCALAR(name_, ...) type##name_,
#define FREE_RECORD(name_, ...) type##name_,
#include "catalogue/primitive_ies.def"
    typeCount
};

enum MessageNumber : uint8_t {
#define MESSAGE(name_, id_, ...) message##name_ = id_,
#include "catalogue/messages.def"
    messageCount
};

enum ConditionId : uint8_t {
#define CONDITION_FOR_MSG(name_, ...) name_,
#define CONDITION_FOR_IE(name_, ...)  name_,
#include "catalogue/conditions.def"
    always, // no condition at all
};

// Numbers come first, so that one comparison tells them from the rest, and composites last.
enum class Kind : uint8_t {
    none,
    number8,
    number16,
    code, // 16 bits on the wire, 32 in memory
    number32,
    bytes,
    record,
    list,
    sequence,
    compositeList,
};

inline constexpr bool is_number(Kind kind) {
    return kind <= Kind::number32;
}

inline constexpr bool is_primitive(Kind kind) {
    return kind < Kind::sequence;
}

inline constexpr bool is_composite(Kind kind) {
    return !is_primitive(kind);
}

inline constexpr bool is_list(Kind kind) {
    return kind == Kind::list;
}

inline constexpr bool is_sequence(Kind kind) {
    return kind == Kind::sequence;
}

enum class Presence : uint8_t {
    mandatory,
    optional,
    conditional,
    repeated, // conditional, and any number of times from its position on
};

// The bit of a slot in its owner's presence mask: 0 for a mandatory one, else by how many that are
// not mandatory stand before it.
inline constexpr uint8_t presence_bit(Presence presence, unsigned before) {
    return uint8_t(presence == Presence::mandatory ? 0U : 0x80U >> before);
}

// What the unpacker does with a conditional child, beyond this: one that is called for and cannot
// be decoded always refuses its owner. The peers' implementations differ on purpose, and each side
// relies on the other's leniency, so the three rules stay apart.
enum class UnpackRule : uint8_t {
    none,
    // RabParams: a child that decodes but is not called for, or is invalid, refuses the owner.
    // Where the bytes end first, the walk ends as at an optional slot; the validator then refuses.
    refuseUncalled,
    // IapReset: such a child is left out, and the end of the bytes is no failure.
    dropUncalled,
    // RelocationRequired: such a child is left out, but the bytes may not end before one called
    // for.
    dropUncalledRequireAtEnd,
};

// A sequence of slots in `slots[first .. first + count)`, mandatory ones leading.
struct SlotTable {
    uint16_t first;
    uint8_t count;
    uint8_t mandatory;
};

// One place of a sequence composite or a message.
struct Slot {
    TypeId type;
    Presence presence;
    ConditionId condition;
    UnpackRule rule;       // of the owner, where the slot is conditional
    uint8_t presenceBit;   // in the record's presence mask; 0 for a mandatory slot
    uint16_t recordOffset; // of the member in the owner's record
};

// One member of a record value.
struct Member {
    TypeId type;
    uint16_t offset; // in the value
};

// The array in a list's value, or in the record of a list composite.
struct Array {
    TypeId item;
    uint8_t offset;  // of the array in the value or record
    uint16_t stride; // bytes from one element to the next
};

struct Type {
    uint32_t greatest;      // number: value; byte string: length; lists: count
    uint8_t least : 6;      // likewise; a GTP echo period's 60 is the greatest of them
    uint8_t hasIe : 1;      // 0 for types that are never IEs of their own
    uint8_t acceptsAll : 1; // number, record: every value is valid
    Kind kind;
    uint16_t valueSize; // bytes that follow the head in an IE object
    uint16_t capacity;  // byte string, lists: elements of the array
    uint16_t fixedSize; // value bytes on the wire where they are always the same, else 0
    union {
        SlotTable slots; // sequence: its slots; record: its members
        Array array;     // lists
    };
};
static_assert(sizeof(Type) == 16, "a type is found by a shift of its tag");

struct Message {
    SlotTable slots;
    uint32_t appendToken;
    uint32_t validityToken;
    uint32_t packToken;
};

// What every Get reports; the messages' tokens are Build's.
#define GET_TOKEN(token_) inline constexpr uint32_t getToken = token_;
#include "catalogue/messages.def"

struct Condition {
    TypeId type;    // of the IE looked for
    uint8_t values; // set of numbers, one bit each
    bool counts;    // the answer for a number inside the set
};

inline constexpr unsigned slotCapacity = making::slotCount;
inline constexpr unsigned memberCapacity = making::memberCount;

struct Catalogue {
    Type types[typeCount];
    Message messages[messageCount]; // by message id; unused ids have no slots
    Slot slots[slotCapacity];
    Member members[memberCapacity];
    Condition conditions[always];
};

} // namespace tarn

#endif
