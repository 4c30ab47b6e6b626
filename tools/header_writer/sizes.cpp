#include "sizes.h"

#include <algorithm>
#include <stdexcept>

namespace header_writer {
namespace {

WireSize operator+(WireSize left, WireSize right) {
    return {left.least + right.least, left.greatest + right.greatest};
}

WireSize nested_size(const Catalogue &catalogue, const std::string &name) {
    return value_size(catalogue, catalogue.primitive(name)) + WireSize{ieHeaderSize, ieHeaderSize};
}

uint32_t greatest_ie_size(const Catalogue &catalogue, const Composite &row);

uint32_t greatest_slots_size(const Catalogue &catalogue, const std::vector<Slot> &slots) {
    uint32_t size = 0;
    for (const Slot &slot : slots)
        size += slot.composite ? greatest_ie_size(catalogue, catalogue.composite(slot.child))
                               : nested_size(catalogue, slot.child).greatest;
    return size;
}

uint32_t greatest_ie_size(const Catalogue &catalogue, const Composite &row) {
    if (row.is_list())
        return ieHeaderSize +
               row.greatest * greatest_ie_size(catalogue, catalogue.composite(row.element));
    return ieHeaderSize + greatest_slots_size(catalogue, row.slots);
}

struct Memory {
    uint32_t size;
    uint32_t alignment;
};

// Adds a member behind those that the struct has already.
void add(Memory &structure, Memory member, uint32_t elements = 1) {
    structure.alignment = std::max(structure.alignment, member.alignment);
    const uint32_t misplaced = structure.size % member.alignment;
    if (misplaced != 0)
        structure.size += member.alignment - misplaced;
    structure.size += member.size * elements;
}

Memory padded(Memory structure) {
    add(structure, {0, structure.alignment});
    return structure;
}

Memory integer(const std::string &type) {
    if (type == "uint8_t")
        return {1, 1};
    if (type == "uint16_t")
        return {2, 2};
    if (type == "uint32_t")
        return {4, 4};
    throw std::runtime_error("no integer type is named " + type);
}

Memory value_memory(const Catalogue &catalogue, const Primitive &row) {
    if (row.shape == Shape::scalar)
        return integer(row.type);
    Memory structure = {0, 1};
    if (row.shape != Shape::record)
        add(structure, integer("uint32_t"));
    if (row.shape == Shape::bytes)
        add(structure, integer("uint8_t"), row.capacity);
    for (const std::string &member : row.members)
        add(structure, value_memory(catalogue, catalogue.primitive(member)),
            row.shape == Shape::list ? row.capacity : 1);
    return padded(structure);
}

Memory composite_memory(const Catalogue &catalogue, const Composite &row);

void add_slots(Memory &structure, const Catalogue &catalogue, const std::vector<Slot> &slots) {
    for (const Slot &slot : slots)
        add(structure, slot.composite ? composite_memory(catalogue, catalogue.composite(slot.child))
                                      : value_memory(catalogue, catalogue.primitive(slot.child)));
}

Memory composite_memory(const Catalogue &catalogue, const Composite &row) {
    Memory structure = integer(row.is_list() ? "uint16_t" : "uint8_t");
    if (row.is_list())
        add(structure, composite_memory(catalogue, catalogue.composite(row.element)), row.greatest);
    add_slots(structure, catalogue, row.slots);
    return padded(structure);
}

} // namespace

WireSize value_size(const Catalogue &catalogue, const Primitive &row) {
    if (row.shape == Shape::scalar)
        return {row.width, row.width};
    if (row.shape == Shape::bytes)
        return {row.least, row.greatest};
    if (row.shape == Shape::list) {
        const WireSize item = nested_size(catalogue, row.members.front());
        return {row.least * item.least, row.greatest * item.greatest};
    }
    WireSize size = {0, 0};
    for (const std::string &member : row.members)
        size = size + nested_size(catalogue, member);
    return size;
}

uint32_t greatest_built_size(const Catalogue &catalogue, const Message &row) {
    return nested_size(catalogue, "MessageId").greatest + greatest_slots_size(catalogue, row.slots);
}

uint32_t record_memory(const Catalogue &catalogue, const Composite &row) {
    return composite_memory(catalogue, row).size;
}

uint32_t record_memory(const Catalogue &catalogue, const Message &row) {
    Memory structure = integer("uint8_t"); // MessageId
    add(structure, integer("uint8_t"));    // presence
    add_slots(structure, catalogue, row.slots);
    return padded(structure).size;
}

} // namespace header_writer
