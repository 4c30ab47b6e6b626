// Finding the slot of an IE in its owner's table.
#ifndef TARN_SLOTS_H
#define TARN_SLOTS_H

#include "catalogue/descriptors.h"

namespace [[gnu::visibility("hidden")]] tarn {

// Returns the slot of this tag, or null when the owner has none. IEs mostly stand in the order of
// their slots, so the search goes on from *position and comes round to the start once; *position
// then lies behind the slot found, and a child type named twice fills its slots in order.
inline const Slot *next_slot(const SlotTable &table, uint32_t tag, unsigned *position) {
    for (unsigned tries = table.count; tries != 0; --tries) {
        if (*position >= table.count)
            *position = 0;
        const Slot &slot = slot_at(table, (*position)++);
        if (slot.type == tag)
            return &slot;
    }
    return nullptr;
}

} // namespace gnu::visibility("hidden")]]tarn

#endif
