// Walking the slots of a table, and finding the slot of an IE.
#ifndef TARN_SLOTS_H
#define TARN_SLOTS_H

#include "catalogue/descriptors.h"

namespace [[gnu::visibility("hidden")]] tarn {

inline const Slot *slots_begin(const SlotTable &table) {
    return catalogue.slots + table.first;
}
inline const Slot *slots_end(const SlotTable &table) {
    return slots_begin(table) + table.count;
}

inline bool is_conditional(const Slot &slot) {
    return slot.presence >= Presence::conditional;
}

// Finds the slots of IEs one after the other. IEs mostly stand in the order of their slots, so each
// search goes on behind the slot found last and comes round to the start once; a child type named
// twice fills its slots in order.
class SlotFinder {
public:
    explicit SlotFinder(const SlotTable &table)
        : begin_(slots_begin(table)), end_(slots_end(table)), next_(begin_) {}

    // Returns the slot of this tag, or null when the owner has none.
    const Slot *find(uint32_t tag) {
        const Slot *slot = search(next_, end_, tag);
        if (slot == nullptr)
            slot = search(begin_, next_, tag);
        if (slot != nullptr)
            next_ = slot + 1;
        return slot;
    }

private:
    static const Slot *search(const Slot *from, const Slot *to, uint32_t tag) {
        for (; from != to; ++from)
            if (from->type == tag)
                return from;
        return nullptr;
    }

    const Slot *begin_;
    const Slot *end_;
    const Slot *next_;
};

} // namespace tarn

#endif
