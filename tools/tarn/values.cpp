#include "tarn/values.h"

#include <algorithm>
#include <string_view>

namespace tool {

namespace {

constexpr const char *moduleName = "tarn_tool";

// The slot that holds the given occurrence of a tag: a type's second slot takes the second one.
const Slot *slot_of_occurrence(const std::vector<Slot> &slots, std::uint32_t tag,
                               unsigned occurrence) {
    const Slot *last = nullptr;
    for (const Slot &slot : slots) {
        if (slot.type->tag != tag)
            continue;
        last = &slot;
        if (occurrence-- == 0)
            break;
    }
    return last;
}

const Slot &first_slot_of_type(const std::vector<Slot> &slots, const Type *type) {
    return *std::find_if(slots.begin(), slots.end(),
                         [type](const Slot &slot) { return slot.type == type; });
}

} // namespace

std::uint32_t scalar_of(const Type &type, const void *value) {
    if (type.valueSize == 4)
        return *static_cast<const std::uint32_t *>(value);
    if (type.valueSize == 2)
        return *static_cast<const std::uint16_t *>(value);
    return *static_cast<const std::uint8_t *>(value);
}

void store_scalar(const Type &type, void *value, std::uint32_t number) {
    if (type.valueSize == 4)
        *static_cast<std::uint32_t *>(value) = number;
    else if (type.valueSize == 2)
        *static_cast<std::uint16_t *>(value) = std::uint16_t(number);
    else
        *static_cast<std::uint8_t *>(value) = std::uint8_t(number);
}

std::uint32_t greatest_number(const Type &type) {
    return std::min(type.greatest, 0xFFFFFFFFU >> (8 * (4 - type.width)));
}

std::uint32_t count_of(const void *value) {
    return *static_cast<const std::uint32_t *>(value);
}

void store_count(void *value, std::uint32_t count) {
    *static_cast<std::uint32_t *>(value) = count;
}

const std::uint8_t *bytes_of(const void *value) {
    return static_cast<const std::uint8_t *>(value) + sizeof(std::uint32_t);
}

std::uint8_t *bytes_of(void *value) {
    return static_cast<std::uint8_t *>(value) + sizeof(std::uint32_t);
}

const void *item_at(const Type &list, const void *value, std::uint32_t index) {
    return at_offset(value, list.itemsOffset + index * list.stride);
}

void *item_at(const Type &list, void *value, std::uint32_t index) {
    return at_offset(value, list.itemsOffset + index * list.stride);
}

bool is_ip_address(const Type &type) {
    return std::string_view(type.name) == "IpAddress";
}

std::string dotted(const Type &ipAddress, const void *value) {
    std::string text;
    for (std::uint32_t i = 0; i < count_of(value); ++i) {
        if (i != 0)
            text += '.';
        text += std::to_string(scalar_of(*ipAddress.item, item_at(ipAddress, value, i)));
    }
    return text;
}

IePtr create_ie(const Type &composite) {
    return IePtr(static_cast<TarnIe *>(composite.create()));
}

const VelDllHead *Owner::list() const {
    return msg != nullptr ? &msg->ies : protocol::children_of(ie);
}

// Walks the list itself rather than extracting: extracting starts at the head each time, which
// would make long lists slow.
std::vector<Child> children(const Owner &owner) {
    std::vector<Child> found;
    std::vector<unsigned> occurrences(owner.slots.size());
    const VelDllHead *list = owner.list();
    for (VelDllNode *node = xVelDllGetHead(list, moduleName, __LINE__); node != nullptr;
         node = xVelDllGetNext(list, node, moduleName, __LINE__)) {
        const auto *ie = reinterpret_cast<const TarnIe *>(node);
        const Slot &first = *slot_of_occurrence(owner.slots, ie->tag, 0);
        unsigned &occurrence = occurrences[std::size_t(&first - owner.slots.data())];
        const Slot *slot = slot_of_occurrence(owner.slots, ie->tag, occurrence);
        found.push_back({slot, ie, occurrence++});
    }
    return found;
}

bool append_value(const Owner &owner, const Slot &slot, const void *value) {
    return first_slot_of_type(owner.slots, slot.type).append(owner.object(), value) != 0;
}

void append_ie(const Owner &owner, const Slot &slot, IePtr ie) {
    first_slot_of_type(owner.slots, slot.type).append(owner.object(), ie.release());
}

bool is_conditional(const Slot &slot) {
    return slot.condition != nullptr;
}

bool is_called_for(const Owner &owner, const Slot &slot) {
    if (slot.condition == nullptr)
        return true;
    const auto &all = protocol::conditions();
    const auto condition = std::find_if(all.begin(), all.end(), [&slot](const auto &candidate) {
        return std::string_view(candidate.meaning) == slot.condition;
    });
    return condition->holds(owner.msg, owner.ie) != 0;
}

const Slot *unmet_condition(const Owner &owner) {
    const std::vector<Child> present = children(owner);
    for (const Slot &slot : owner.slots) {
        const bool isThere = std::any_of(present.begin(), present.end(),
                                         [&slot](const Child &c) { return c.slot == &slot; });
        if (is_conditional(slot) && isThere != is_called_for(owner, slot))
            return &slot;
    }
    return nullptr;
}

} // namespace tool
