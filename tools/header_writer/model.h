// The catalogue as the header writer sees it: every row of src/catalogue with its texts, in an
// order in which each type stands behind the types that it is made of.
#ifndef HEADER_WRITER_MODEL_H
#define HEADER_WRITER_MODEL_H

#include <cstdint>
#include <string>
#include <vector>

#include "catalogue/descriptors.h"

namespace header_writer {

using tarn::Presence;
using tarn::UnpackRule;

enum class Shape { scalar, bytes, record, list };

// Whether a primitive type is an IE of its own, only an item of lists, or a bare value codec.
enum class Form { ie, item, free };

struct Primitive {
    std::string name;
    Shape shape;
    Form form;
    uint32_t tag;                     // 0 for a free type
    std::string type;                 // scalar: its C type
    uint32_t width;                   // scalar: bytes on the wire
    uint32_t capacity;                // byte string, list: elements of its array
    uint32_t least;                   // scalar: value; byte string: length; list: count
    uint32_t greatest;                // likewise
    std::string term;                 // what it carries
    std::vector<std::string> members; // record: its members; list: its one item type
};

struct Slot {
    std::string child;  // the IE's name
    std::string member; // its name in the owner's record
    Presence presence;
    std::string condition; // a condition's name, or "always"
    bool composite;
    bool second; // another slot of the same child stands before it
};

struct Composite {
    std::string name;
    uint32_t tag;
    std::string term;
    UnpackRule rule;
    std::vector<Slot> slots; // empty for a list
    std::string element;     // empty for a sequence
    uint32_t least;          // list: elements that validate
    uint32_t greatest;

    bool is_list() const { return !element.empty(); }
    // The names of the composites among its children.
    std::vector<std::string> composites() const;
};

struct Message {
    std::string name;
    uint32_t id;
    std::string term;
    uint32_t appendToken; // what Build reports when a step fails
    uint32_t validityToken;
    uint32_t packToken;
    UnpackRule rule;
    std::vector<Slot> slots; // without the MessageId that begins every message
};

struct Condition {
    std::string name;
    std::string predicate;
    std::string ie;
    uint32_t values; // a set of numbers, one bit each
    bool inside;     // true for the numbers of the set, else for all others
    std::string meaning;
    bool amongChildren; // looked up among a composite's children, else in a message
};

struct Catalogue {
    std::vector<Primitive> primitives;
    std::vector<Composite> composites;
    std::vector<Message> messages;
    std::vector<Condition> conditions;
    uint32_t getToken; // what every Get reports

    const Primitive &primitive(const std::string &name) const;
    const Composite &composite(const std::string &name) const;
    const Condition &condition(const std::string &name) const;
    uint32_t tag_of(const Slot &slot) const;
    // The list whose items are of this type.
    const Primitive &list_of(const Primitive &item) const;
    // The one composite that has a slot under this condition.
    const Composite &owner_of(const Condition &condition) const;
};

Catalogue read_catalogue();

// The bit of each slot in its owner's presence mask, 0 for a mandatory slot.
std::vector<uint32_t> presence_bits(const std::vector<Slot> &slots);

} // namespace header_writer

#endif
