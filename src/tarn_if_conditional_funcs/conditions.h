// The predicates that decide conditional presence, asked of bytes, of a record or of IE objects.
//
// What they are asked of finds the number of the IE that a condition looks at:
//   bool find(TypeId id, uint32_t *number) const;
// These IEs are mandatory code words, and only numbers stand before them.
#ifndef TARN_CONDITIONS_H
#define TARN_CONDITIONS_H

#include "catalogue/catalogue.h"
#include "platform_calls.h"
#include "wire.h"

namespace [[gnu::visibility("hidden")]] tarn {

// Whether the condition holds; not if the IE that it looks at is not there: the validators ask
// before they have seen whether a list is complete. Numbers beyond the set's bits are outside.
template <class Numbers>
TARN_INLINE bool condition_holds(ConditionId id, const Numbers &numbers) {
    const Condition &condition = catalogue.conditions[id];
    uint32_t number = 0;
    if (!numbers.find(condition.type, &number))
        return false;
    const bool isInside = number < 8 && (condition.values >> number & 1) != 0;
    return isInside == condition.counts;
}

// The owner's IEs on the wire, from the first one on. Where a number stands follows from the rows,
// so that it is a constant for a constant owner.
struct NumbersInBytes {
    const SlotTable &table;
    const uint8_t *start;

    TARN_INLINE bool find(TypeId id, uint32_t *number) const {
        const uint8_t *at = start + headerSize;
        for (const Slot *slot = slots_begin(table); slot->type != id; ++slot)
            at += headerSize + type_of(slot->type).fixedSize;
        *number = load16(at);
        return true;
    }
};

// The members of the owner's record, which hold all 32 bits of a code word.
struct NumbersInRecord {
    const SlotTable &table;
    const void *record;

    TARN_INLINE bool find(TypeId id, uint32_t *number) const {
        const Slot *slot = slots_begin(table);
        while (slot->type != id)
            ++slot;
        *number = *static_cast<const uint32_t *>(at_offset(record, slot->recordOffset));
        return true;
    }
};

// The owner's IE objects, as the platform finds them.
struct NumbersInList {
    const VelDllHead *list;

    bool find(TypeId id, uint32_t *number) const;
};

// The answers for one owner's IE objects, each asked of the platform once at the most and only when
// needed.
class Conditions {
public:
    explicit Conditions(const VelDllHead *list) : numbers_{list} {}

    bool hold(ConditionId id);

private:
    NumbersInList numbers_;
    uint8_t known_ = 0;
    uint8_t true_ = 0;
};

// The operations of the public interface.
uint32_t condition_for_msg(const TarnMsg *msg, ConditionId id);
uint32_t condition_for_ie(const TarnIe *ie, ConditionId id);

} // namespace tarn

#endif
