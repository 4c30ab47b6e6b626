// Walking the slots of a message or sequence composite, and the members of a record.
//
// Built for size, one walk serves them all and reads the catalogue's rows at run time. Built for
// speed, the same code is compiled again for each of them with its id as a constant, and the
// compiler evaluates everything that the rows say.
#ifndef TARN_SLOTS_H
#define TARN_SLOTS_H

#include <stddef.h>

#include <type_traits>

#include "catalogue/catalogue.h"

namespace [[gnu::visibility("hidden")]] tarn {

// The numbers below a count, as constants: std::index_sequence's header is missing on bare metal.
template <size_t... index>
struct Indices {};
template <size_t count, size_t... index>
struct IndicesBelow : IndicesBelow<count - 1, count - 1, index...> {};
template <size_t... index>
struct IndicesBelow<0, index...> : Indices<index...> {};

// A type or message known at compile time. It can be used wherever a plain one can.
template <auto value>
using Constant = std::integral_constant<decltype(value), value>;

template <class Id>
inline constexpr bool isConstant = !std::is_enum_v<Id> && !std::is_same_v<Id, SlotTable>;

// Row handlers: a case of a switch over types or messages that passes `use` the constant.
#define TARN_TYPE_CASE(name_, ...)                                                                 \
    case type##name_:                                                                              \
        return use(Constant<type##name_>());
#define TARN_MESSAGE_CASE(name_, ...)                                                              \
    case message##name_:                                                                           \
        return use(Constant<message##name_>());

// A type or message as the engine wants it: a constant when built for speed, else a plain one.
template <auto value>
inline constexpr std::conditional_t<builtForSpeed, Constant<value>, decltype(value)> asBuilt{
    Constant<value>()};

// The type of a list's items or elements.
inline constexpr TypeId element_of(TypeId list) {
    return type_of(list).array.item;
}
template <TypeId list>
inline constexpr auto element_of(Constant<list>) {
    return Constant<type_of(list).array.item>();
}

// Calls `use` with the composite's id, as a constant when built for speed.
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

// The same for a message's id, where `use` makes a message; 0 for an id that is not in use.
template <class Use>
TARN_INLINE uint32_t with_message(MessageNumber id, Use use) {
    if constexpr (builtForSpeed) {
        switch (id) {
#define MESSAGE TARN_MESSAGE_CASE
#include "catalogue/messages.def"
        default:
            return 0;
        }
    } else {
        return catalogue.messages[id].slots.count != 0 ? use(id) : 0;
    }
}

// What a walk takes as its owner: a constant id, or else the slot table, so that messages and
// composites share one compiled walk.
template <auto id>
constexpr Constant<id> owner_of(Constant<id> known) {
    return known;
}
template <class Id>
const SlotTable &owner_of(Id id) {
    return slots_of(id);
}

// Calls `that` if the type's kind passes the test, else `other`; for a constant id, only the one
// that is called is compiled.
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

// A row of the catalogue's slots or members whose type is a constant. Its other fields fold into
// constants where the walk is inlined.
template <auto rows, unsigned index>
using Row = std::remove_cvref_t<decltype((catalogue.*rows)[index])>;

template <auto rows, unsigned index>
struct Fixed : Row<rows, index> {
    static constexpr Constant<(catalogue.*rows)[index].type> type{};
    constexpr Fixed() : Row<rows, index>((catalogue.*rows)[index]) {}
};

template <auto rows, unsigned first, size_t... index, class Visit>
TARN_INLINE bool visit_fixed(Indices<index...>, [[maybe_unused]] Visit visit) {
    return (visit(Fixed<rows, first + index>()) && ...);
}

// Calls `visit` with each slot of the owner but the first `skipped`, as long as it returns true.
template <unsigned skipped, class Owner, class Visit>
TARN_INLINE bool each_slot_behind(const Owner &owner, Visit visit) {
    if constexpr (isConstant<Owner>) {
        constexpr const SlotTable &table = slots_of(Owner::value);
        return visit_fixed<&Catalogue::slots, table.first + skipped>(
            IndicesBelow<table.count - skipped>(), visit);
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
TARN_INLINE bool each_slot(const Owner &owner, Visit visit) {
    return each_slot_behind<0>(owner, visit);
}

// Calls `visit` with each member of the record as long as it returns true.
template <class Id, class Visit>
TARN_INLINE bool each_member(Id record, [[maybe_unused]] Visit visit) {
    if constexpr (isConstant<Id>) {
        constexpr SlotTable table = type_of(Id::value).slots;
        return visit_fixed<&Catalogue::members, table.first>(IndicesBelow<table.count>(), visit);
    } else {
        for (const Member &member : members_of(type_of(record)))
            visit(member); // only filling comes here, which nothing stops
        return true;
    }
}

} // namespace tarn

#endif
