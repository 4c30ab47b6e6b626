// Walking the slots of an owner, which is a message or a sequence composite.
//
// Built for speed, the engine has a walk of its own for each message and composite: the same code
// as for any other, compiled once more with the owner as a constant, so that all that its rows say
// is worked out by the compiler. Built for size, one walk reads the rows as it goes.
#ifndef TARN_SLOTS_H
#define TARN_SLOTS_H

#include <stddef.h>

#include <utility>

#include "platform_calls.h"
#include "tarn_if_internal_funcs/constants.h"

namespace [[gnu::visibility("hidden")]] tarn {

// Calls `use` with the composite's id, built for speed as a constant.
template <class Use>
TARN_INLINE auto with_composite(TypeId id, Use use) {
    if constexpr (builtForSpeed) {
        switch (unsigned(id)) {
#define SEQUENCE       TARN_TYPE_CASE
#define COMPOSITE_LIST TARN_TYPE_CASE
#include "catalogue/composite_ies.def"
        }
        __builtin_unreachable(); // GCOVR_EXCL_LINE, a slot's or list's type is one of these
    } else {
        return use(id);
    }
}

template <TypeId id, class Use>
TARN_INLINE auto with_composite(Constant<id> known, Use use) {
    return use(known);
}

// Likewise with a message's id. For an id that is not in use the result is a null pointer.
template <class Use>
TARN_INLINE auto with_message(MessageNumber id, Use use) {
    if constexpr (builtForSpeed) {
        switch (id) {
#define MESSAGE TARN_MESSAGE_CASE
#include "catalogue/messages.def"
        default:
            return decltype(use(id))();
        }
    } else {
        return catalogue.messages[id].slots.count != 0 ? use(id) : nullptr;
    }
}

inline constexpr const SlotTable &slots_of(MessageNumber id) {
    return catalogue.messages[id].slots;
}
inline constexpr const SlotTable &slots_of(TypeId sequence) {
    return type_of(sequence).slots;
}

// Calls the one that fits the type's kind, of which only that one is compiled for a constant.
template <bool (*holds)(Kind), class Id, class UseThat, class UseOther>
TARN_INLINE auto by_kind(Id id, UseThat that, UseOther other) {
    if constexpr (isConstant<Id>) {
        if constexpr (holds(type_of(Id::value).kind))
            return that(id);
        else
            return other(id);
    } else {
        return holds(type_of(id).kind) ? that(id) : other(id);
    }
}

inline const Slot *slots_begin(const SlotTable &table) {
    return catalogue.slots + table.first;
}
inline const Slot *slots_end(const SlotTable &table) {
    return slots_begin(table) + table.count;
}

// A slot whose fields are constants.
template <unsigned index>
struct FixedSlot {
    static constexpr const Slot &row = catalogue.slots[index];
    static constexpr Constant<row.type> type{};
    static constexpr Kind kind = row.kind;
    static constexpr Presence presence = row.presence;
    static constexpr ConditionId condition = row.condition;
    static constexpr UnpackRule rule = row.rule;
    static constexpr uint8_t presenceBit = row.presenceBit;
    static constexpr uint16_t recordOffset = row.recordOffset;
};

inline const Slot *row_of(const Slot &slot) {
    return &slot;
}
template <unsigned index>
const Slot *row_of(FixedSlot<index>) {
    return catalogue.slots + index;
}

template <class AnySlot>
inline constexpr bool is_conditional(const AnySlot &slot) {
    return slot.presence >= Presence::conditional;
}

template <unsigned first, size_t... index, class Visit>
TARN_INLINE bool visit_fixed(std::index_sequence<index...>, Visit &visit) {
    return (visit(FixedSlot<first + index>()) && ...);
}

// Calls `visit` with each slot of the owner but the first `skipped`, as long as it returns true.
template <unsigned skipped, class Owner, class Visit>
TARN_INLINE bool each_slot_behind(Owner owner, Visit visit) {
    if constexpr (isConstant<Owner>) {
        constexpr const SlotTable &table = slots_of(Owner::value);
        return visit_fixed<table.first + skipped>(std::make_index_sequence<table.count - skipped>(),
                                                  visit);
    } else {
        const SlotTable &table = slots_of(owner);
        const Slot *const end = slots_end(table);
        for (const Slot *slot = slots_begin(table) + skipped; slot != end; ++slot)
            if (!visit(*slot))
                return false;
        return true;
    }
}

template <class Owner, class Visit>
TARN_INLINE bool each_slot(Owner owner, Visit visit) {
    return each_slot_behind<0>(owner, visit);
}

// Finds the slots of IEs one after the other. IEs mostly stand in the order of their slots, so each
// search goes on behind the slot found last and comes round to the start once; a child type named
// twice fills its slots in order.
class SlotFinder {
public:
    // `next` stands behind the slot found last, if one was found already.
    explicit SlotFinder(const SlotTable &table, const Slot *next)
        : begin_(slots_begin(table)), end_(slots_end(table)), next_(next) {}

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

// Whether a walk of IEs stops at one without a slot or passes over it. One that stops asks for no
// more than the type, which a child named twice has in both its slots.
enum class Stray : bool { stops, isPassedOver };

template <Stray stray, class Visitor>
const TarnIe *visit_ies_from(const TarnIe *ie, const VelDllHead *list, const SlotTable &table,
                             const Slot *next, Caller caller, Visitor *visitor) {
    SlotFinder slots(table, next);
    for (; ie != nullptr; ie = next_ie(list, ie, caller)) {
        const Slot *slot = slots.find(ie->tag);
        if (slot == nullptr && stray == Stray::isPassedOver)
            continue;
        if (slot == nullptr || !visitor->visit(*slot, ie))
            break;
    }
    return ie;
}

// Calls the visitor with each IE of the list, in list order, and the slot that it stands in, as
// long as it returns true. Returns the IE where the walk stopped, or null behind the last one.
//
// IEs that stand in the order of the owner's slots, each at most once, need no search; from the
// first that does not, the rest of the list is searched for.
template <Stray stray, class Owner, class Visitor>
TARN_INLINE const TarnIe *visit_ies(Owner owner, const VelDllHead *list, Caller caller,
                                    Visitor *visitor) {
    const TarnIe *ie = first_ie(list, caller);
    const Slot *next = slots_begin(slots_of(owner));
    if constexpr (isConstant<Owner>) {
        const bool goesOn = each_slot(owner, [&](const auto &slot) TARN_INLINE_LAMBDA {
            if (ie == nullptr)
                return false;
            if (ie->tag != slot.type)
                return true;
            if (!visitor->visit(slot, ie))
                return false;
            ie = next_ie(list, ie, caller);
            if constexpr (stray == Stray::isPassedOver)
                next = row_of(slot) + 1;
            return true;
        });
        if (!goesOn || ie == nullptr)
            return ie;
    }
    Visitor rest = *visitor; // so that only the copy's address is known elsewhere
    ie = visit_ies_from<stray>(ie, list, slots_of(owner), next, caller, &rest);
    *visitor = rest;
    return ie;
}

} // namespace tarn

#endif
