#include "tarn_if_internal_funcs/validity.h"

#include "objects.h"
#include "tarn_if_conditional_funcs/conditions.h"
#include "tarn_if_internal_funcs/slots.h"
#include "tarn_if_internal_funcs/values.h"

namespace tarn {

namespace {

// Whether the object has this type's tag and a valid value or valid children.
bool is_valid(const TarnIe *ie, TypeId id);

bool is_valid(const Type &list, const VelDllHead *children) {
    uint32_t count = 0;
    for (const TarnIe *ie = first_ie(children, TARN_CALLER(moduleInternal)); ie != nullptr;
         ie = next_ie(children, ie, TARN_CALLER(moduleInternal))) {
        if (!is_valid(ie, list.array.item))
            return false;
        ++count;
    }
    return in_range(list, count);
}

// Returns the slot behind the mandatory ones that takes this tag, or null. A child type named twice
// has its later slot there.
const Slot *optional_slot(const SlotTable &table, uint32_t tag) {
    const Slot *const end = slots_end(table);
    for (const Slot *slot = slots_begin(table) + table.mandatory; slot != end; ++slot)
        if (slot->type == tag)
            return slot;
    return nullptr;
}

// Notes the presence bits of conditional slots: one counts as present when at least one occurrence
// is valid. The verdict on a plain optional child is not asked for, since it never counts: callers
// may rely on an owner being valid whatever its optional children hold.
bool note_optional(const SlotTable &table, const TarnIe *ie, uint32_t position, unsigned *present) {
    const Slot *slot = optional_slot(table, ie->tag);
    if (slot == nullptr)
        return position >= table.count;
    if (is_conditional(*slot) && (*present & slot->presenceBit) == 0 && is_valid(ie, slot->type))
        *present |= slot->presenceBit;
    return true;
}

// Only a last slot can be a repeated one.
bool repeats(const SlotTable &table) {
    return slots_end(table)[-1].presence == Presence::repeated;
}

// A conditional child must be there when its condition holds, and must not when it does not.
bool conditions_are_met(const SlotTable &table, const VelDllHead *list, unsigned present) {
    Conditions conditions(list);
    const Slot *const end = slots_end(table);
    for (const Slot *slot = slots_begin(table) + table.mandatory; slot != end; ++slot)
        if (is_conditional(*slot) &&
            conditions.hold(slot->condition) != ((present & slot->presenceBit) != 0))
            return false;
    return true;
}

// The check is by position. Mandatory slots lead and must each hold their IE; behind them optional
// ones may stand in any order and any number of times. What stands behind the last position is
// ignored, whatever its tag: peers of a later version may add to a message. A repeated slot alone
// is looked for to the end.
bool is_valid(const SlotTable &table, const VelDllHead *list, Caller caller) {
    uint32_t position = 0;
    unsigned present = 0;
    for (const TarnIe *ie = first_ie(list, caller); ie != nullptr;
         ie = next_ie(list, ie, caller), ++position) {
        if (position >= table.count && !repeats(table))
            break;
        const bool ok = position < table.mandatory ? is_valid(ie, slots_begin(table)[position].type)
                                                   : note_optional(table, ie, position, &present);
        if (!ok)
            return false;
    }
    return position >= table.mandatory && conditions_are_met(table, list, present);
}

bool is_valid(const TarnIe *ie, TypeId id) {
    if (ie->tag != id)
        return false;
    const Type &type = type_of(id);
    if (type.kind == Kind::sequence)
        return is_valid(type.slots, children_of(ie), TARN_CALLER(moduleInternal));
    if (type.kind == Kind::compositeList)
        return is_valid(type, children_of(ie));
    return is_valid(id, value_of(ie));
}

} // namespace

uint32_t is_valid_checked(const void *value, TypeId id) {
    return any_null(TARN_CALLER(moduleInternal), value) ? 0 : is_valid(id, value);
}

uint32_t is_valid_checked(const TarnIe *ie, TypeId id) {
    if (is_primitive(type_of(id).kind) && any_null(TARN_CALLER(moduleInternal), ie))
        return 0;
    return ie != nullptr && is_valid(ie, id);
}

uint32_t is_valid_checked(const TarnMsg *msg, MessageNumber id) {
    return msg != nullptr && msg->messageId == id &&
           is_valid(slots_of(id), &msg->ies, TARN_CALLER(moduleApi));
}

} // namespace tarn
