// Messages of any type, their children, and copies.
#include "objects.h"

#include <algorithm>
#include <cstring>

namespace info {

TarnIe *new_ie(const TarnInfoType &type) {
    void *block = nullptr;
    velAllocMemoryWithIds(type.ieSize, &block, moduleName, __LINE__);
    auto *ie = static_cast<TarnIe *>(block);
    xVelDllInitNode(&ie->node, moduleName, __LINE__);
    ie->tag = std::uint16_t(type.tag);
    ie->extractHistory = 0;
    if (is_composite(type))
        xVelDllInitHead(children_of(ie), 0, moduleName, __LINE__);
    return ie;
}

namespace {

void link_ie(VelDllHead *list, TarnIe *ie) {
    xVelDllAddToTail(list, &ie->node, moduleName, __LINE__);
}

// The type of an IE object, or null for a tag that no IE has.
const TarnInfoType *type_of_ie(const TarnIe *ie) {
    const TarnInfoType *type = type_of_tag(ie->tag);
    return type != nullptr && type->hasIe != 0 ? type : nullptr;
}

const TarnInfoType *composite_of(const TarnIe *ie) {
    const TarnInfoType *type = ie != nullptr ? type_of_ie(ie) : nullptr;
    return type != nullptr && is_composite(*type) ? type : nullptr;
}

// ---- Appending ---------------------------------------------------------------------------------

std::uint32_t append(VelDllHead *list, const Slots &slots, std::uint32_t tag, void *child) {
    const auto slot = std::find_if(slots.begin(), slots.end(),
                                   [tag](const TarnInfoSlot &s) { return s.type->tag == tag; });
    if (slot == slots.end() || child == nullptr)
        return 0;
    const TarnInfoType &type = *slot->type;
    if (is_composite(type)) {
        link_ie(list, static_cast<TarnIe *>(child));
        return 1;
    }
    if (value_validator(type)(child) == 0)
        return 0;
    TarnIe *ie = new_ie(type);
    std::memcpy(value_of(ie), child, type.valueSize);
    link_ie(list, ie);
    return 1;
}

// ---- Copying -----------------------------------------------------------------------------------

void copy_list(const VelDllHead *from, VelDllHead *to) {
    for (const TarnIe *ie = first_ie(from); ie != nullptr; ie = next_ie(from, ie))
        if (TarnIe *copy = tarnInfoCopyIe(ie))
            link_ie(to, copy);
}

} // namespace

} // namespace info

using namespace info;

TarnMsg *tarnInfoNewMsg(uint32_t id) {
    const auto create = operations_of(id).create;
    return create != nullptr ? create() : nullptr;
}

uint32_t tarnInfoIsMsgValid(const TarnMsg *msg) {
    const auto isValid = msg != nullptr ? operations_of(msg->messageId).isValid : nullptr;
    return isValid != nullptr ? isValid(msg) : 0;
}

uint32_t tarnInfoPackMsg(const TarnMsg *msg, uint8_t *buffer, uint32_t size) {
    const auto pack = msg != nullptr ? operations_of(msg->messageId).pack : nullptr;
    if (pack == nullptr || buffer == nullptr)
        return 0;
    const auto needed = uint32_t(TarnSizeOfMsg(msg));
    return needed <= size && pack(msg, buffer, size) != 0 ? needed : 0;
}

TarnMsg *tarnInfoUnpackMsg(uint32_t id, const uint8_t *buffer, uint32_t length) {
    const auto unpack = operations_of(id).unpack;
    return unpack != nullptr && buffer != nullptr ? unpack(buffer, length) : nullptr;
}

uint32_t tarnInfoBuildMsg(uint32_t id, uint8_t *buffer, uint32_t size, const void *record) {
    const auto build = operations_of(id).build;
    const bool isThere = build != nullptr && buffer != nullptr && record != nullptr;
    return isThere ? build(buffer, size, record) : 0;
}

uint32_t tarnInfoGetMsg(uint32_t id, const uint8_t *buffer, uint32_t length, void *record) {
    const auto get = operations_of(id).get;
    const bool isThere = get != nullptr && buffer != nullptr && record != nullptr;
    return isThere ? get(buffer, length, record) : 0;
}

TarnIe *tarnInfoNewIe(uint32_t tag) {
    const TarnInfoType *type = type_of_tag(tag);
    return type != nullptr && is_composite(*type) ? new_ie(*type) : nullptr;
}

uint32_t tarnInfoAppendToMsg(TarnMsg *msg, uint32_t tag, void *child) {
    const TarnInfoMessage *message = msg != nullptr ? message_of_id(msg->messageId) : nullptr;
    return message != nullptr ? append(&msg->ies, slots_of(*message), tag, child) : 0;
}

uint32_t tarnInfoAppendToIe(TarnIe *owner, uint32_t tag, void *child) {
    const TarnInfoType *type = composite_of(owner);
    return type != nullptr ? append(children_of(owner), slots_of(*type), tag, child) : 0;
}

uint32_t tarnInfoIsValueValid(const TarnInfoType *type, const void *value) {
    const bool isThere = type != nullptr && value != nullptr && !is_composite(*type);
    return isThere ? value_validator(*type)(value) : 0;
}

// ---- Conditions --------------------------------------------------------------------------------

bool info::is_called_for(const TarnInfoSlot &slot, const VelDllHead *list) {
    if (slot.condition == nullptr)
        return true;
    for (const TarnIe *ie = first_ie(list); ie != nullptr; ie = next_ie(list, ie))
        if (ie->tag == slot.condition->tag)
            return condition_holds(*slot.condition, *static_cast<const uint32_t *>(value_of(ie)));
    return false;
}

uint32_t tarnInfoIsCalledForInMsg(const TarnInfoSlot *slot, const TarnMsg *owner) {
    return slot != nullptr && owner != nullptr && is_called_for(*slot, &owner->ies);
}

uint32_t tarnInfoIsCalledForInIe(const TarnInfoSlot *slot, const TarnIe *owner) {
    return slot != nullptr && composite_of(owner) != nullptr &&
           is_called_for(*slot, children_of(owner));
}

// ---- Children ----------------------------------------------------------------------------------

namespace {

TarnInfoWalk walk_of(const VelDllHead *list, const Slots &slots) {
    return {list, first_ie(list), slots.first, slots.count, {}};
}

// A type's second slot takes the second IE of its tag, and any behind that.
void find_slot(TarnInfoWalk *walk, TarnInfoChild *child) {
    uint32_t before = 0; // IEs that the slots of this tag so far have taken
    for (const TarnInfoSlot &slot : Slots{walk->slots, walk->slotCount}) {
        if (slot.type->tag != child->tag)
            continue;
        if (child->slot == nullptr)
            child->index = walk->seen[&slot - walk->slots]++;
        child->slot = &slot;
        if (child->index == before++)
            break;
    }
}

} // namespace

TarnInfoWalk tarnInfoWalkMsg(const TarnMsg *msg) {
    const TarnInfoMessage *message = msg != nullptr ? message_of_id(msg->messageId) : nullptr;
    return message != nullptr ? walk_of(&msg->ies, slots_of(*message)) : TarnInfoWalk{};
}

TarnInfoWalk tarnInfoWalkIe(const TarnIe *composite) {
    const TarnInfoType *type = composite_of(composite);
    return type != nullptr ? walk_of(children_of(composite), slots_of(*type)) : TarnInfoWalk{};
}

uint32_t tarnInfoNextChild(TarnInfoWalk *walk, TarnInfoChild *child) {
    if (walk == nullptr || child == nullptr || walk->next == nullptr)
        return 0;
    const TarnIe *ie = walk->next;
    *child = {ie->tag, type_of_ie(ie), nullptr, 0, ie, nullptr};
    find_slot(walk, child);
    if (child->type != nullptr && !is_composite(*child->type))
        child->value = value_of(ie);
    walk->next = next_ie(walk->list, ie);
    return 1;
}

// ---- Copies ------------------------------------------------------------------------------------

TarnIe *tarnInfoCopyIe(const TarnIe *ie) {
    const TarnInfoType *type = ie != nullptr ? type_of_ie(ie) : nullptr;
    if (type == nullptr)
        return nullptr;
    TarnIe *copy = new_ie(*type);
    if (is_composite(*type))
        copy_list(children_of(ie), children_of(copy));
    else
        std::memcpy(value_of(copy), value_of(ie), type->valueSize);
    return copy;
}

TarnMsg *tarnInfoCopyMsg(const TarnMsg *msg) {
    if (msg == nullptr)
        return nullptr;
    void *block = nullptr;
    velAllocMemoryWithIds(sizeof(TarnMsg), &block, moduleName, __LINE__);
    auto *copy = static_cast<TarnMsg *>(block);
    copy->messageId = msg->messageId;
    xVelDllInitHead(&copy->ies, 0, moduleName, __LINE__);
    copy_list(&msg->ies, &copy->ies);
    return copy;
}
