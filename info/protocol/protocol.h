// The protocol as data, for programs that walk it generically: the tool, the tests, the fuzz
// targets.
//
// Made from the catalogue's rows and the public header alone: every entry carries its facts and its
// exported functions, with the types erased. Value, IE object and record pointers are `void *` to
// what the public header declares for the type of that name.
#ifndef TARN_PROTOCOL_H
#define TARN_PROTOCOL_H

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "catalogue/descriptors.h"
#include "tarn_if.h"

namespace protocol {

enum class Shape { scalar, bytes, record, list, sequence, compositeList };

using tarn::Presence, tarn::UnpackRule;

struct Type;
struct Condition;

// One member of a record value.
struct Member {
    const char *name;
    const Type *type;
    std::size_t offset; // in the value
};

// One place of a sequence composite or a message.
struct Slot {
    const char *name; // of the record's member: the type's name, but for a type's second slot
    const Type *type;
    Presence presence;
    const Condition *condition; // null where none decides
    std::uint8_t presenceBit;   // in the owner's record; 0 for a mandatory slot
    std::size_t recordOffset;
    // owner: the TarnMsg or composite IE object. A primitive is given or fetched as its value, a
    // composite as its IE object (extract then takes the address of a pointer). Null in a type's
    // second slot, which shares the functions of the first.
    std::uint32_t (*append)(void *owner, const void *valueOrIe);
    std::uint32_t (*extract)(void *owner, void *valueOrIe);
};

struct Type {
    const char *name;
    const char *term;
    std::uint32_t tag = 0; // 0 for value codecs without any tag
    Shape shape = Shape::scalar;
    bool hasIe = false;

    unsigned width = 0;         // scalar: bytes on the wire
    std::uint32_t least = 0;    // scalar: value; byte string: length; lists: count
    std::uint32_t greatest = 0; //
    unsigned capacity = 0;      // byte string, list: elements of the array
    std::size_t valueSize = 0;  // primitives: sizeof the value
    std::size_t ieSize = 0;     // sizeof the IE object
    std::size_t recordSize = 0; // composites: sizeof the record
    const Type *item = nullptr; // lists: the item or element
    std::size_t stride = 0;     // lists: in the value, or in a composite list's record
    std::size_t itemsOffset = 0;
    std::vector<Member> members; // record
    std::vector<Slot> slots;     // sequence; a composite list has one slot, its element
    UnpackRule rule = UnpackRule::none;

    // Primitives, by value. The arguments are those of the public header.
    std::uint32_t (*sizeOf)(const void *value) = nullptr;
    std::uint32_t (*pack)(const void *value, std::uint8_t *buffer, std::uint32_t available,
                          std::uint32_t *written) = nullptr;
    std::uint32_t (*unpack)(void *value, std::uint32_t length, const std::uint8_t *buffer,
                            std::uint32_t available, std::uint32_t *consumed) = nullptr;
    std::uint32_t (*isValid)(const void *value) = nullptr;
    // All IEs, by IE object.
    void *(*create)() = nullptr; // composites
    std::uint32_t (*packIe)(const void *ie, std::uint8_t *buffer, std::uint32_t available,
                            std::uint32_t *written) = nullptr;
    std::uint32_t (*unpackIe)(void *ie, const std::uint8_t *buffer, std::uint32_t available,
                              std::uint32_t *consumed) = nullptr;
    std::uint32_t (*isIeValid)(const void *ie) = nullptr;

    bool is_composite() const { return shape >= Shape::sequence; }
};

struct Message {
    const char *name;
    const char *term;
    std::uint32_t id = 0;
    std::uint32_t appendToken = 0;
    std::uint32_t validityToken = 0;
    std::uint32_t packToken = 0;
    std::size_t recordSize = 0;
    std::vector<Slot> slots; // MessageId first
    UnpackRule rule = UnpackRule::none;

    TarnMsg *(*create)() = nullptr;
    std::uint32_t (*isValid)(const TarnMsg *msg) = nullptr;
    std::uint32_t (*pack)(const TarnMsg *msg, std::uint8_t *buffer, std::uint32_t size) = nullptr;
    TarnMsg *(*unpack)(const std::uint8_t *buffer, std::uint32_t length) = nullptr;
    std::uint32_t (*build)(std::uint8_t *buffer, std::uint32_t size, const void *record) = nullptr;
    std::uint32_t (*get)(const std::uint8_t *buffer, std::uint32_t length, void *record) = nullptr;
};

// One predicate of conditional presence.
struct Condition {
    const char *name;
    const char *predicate;
    std::uint32_t tag;    // of the IE looked for
    std::uint32_t values; // a set of numbers, one bit each
    bool inside;          // whether the numbers of the set count, else all others
    std::uint32_t (*holds)(const TarnMsg *msg, const void *ie);

    bool counts(std::uint32_t number) const {
        return (number < 32 && (values >> number & 1) != 0) == inside;
    }
};

// All types in tag order, those without a tag last; all messages by id.
const std::vector<const Type *> &types();
const std::vector<const Message *> &messages();
const std::vector<Condition> &conditions();

// Null for a tag, id or name that the protocol lacks. A tag finds item types as well as IEs.
const Type *type_by_tag(std::uint32_t tag);
const Type *type_by_name(std::string_view name);
const Message *message_by_id(std::uint32_t id);
const Message *message_by_name(std::string_view name);

// The value inside a primitive IE object, the children of a composite one.
inline void *value_of(void *ie) {
    return static_cast<TarnIe *>(ie) + 1;
}
inline const void *value_of(const void *ie) {
    return static_cast<const TarnIe *>(ie) + 1;
}
inline const VelDllHead *children_of(const void *ie) {
    return static_cast<const VelDllHead *>(value_of(ie));
}

} // namespace protocol

#endif
