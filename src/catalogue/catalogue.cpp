// Checks at compile time what a row can get wrong, and defines the catalogue where that is one
// object.
#include <stddef.h>

#include <initializer_list>

#include "catalogue/catalogue.h"

namespace tarn {

#ifndef TARN_BUILT_FOR_SPEED
constexpr Catalogue catalogue = making::make_catalogue();
#endif

namespace {

constexpr int idRows[] = {
#define MESSAGE(name_, id_, ...) id_,
#include "catalogue/messages.def"
};

// A tag or an id given twice would overwrite a row without a word.
template <size_t count>
constexpr bool are_distinct(const int (&numbers)[count]) {
    bool seen[UINT8_MAX + 1] = {};
    for (const int number : numbers) {
        if (number < 1 || number > UINT8_MAX || seen[number])
            return false;
        seen[number] = true;
    }
    return true;
}
static_assert(are_distinct(making::tagRows) && are_distinct(idRows));

constexpr bool range_holds(const Type &type) {
    switch (type.kind) {
    case Kind::number8:
        return type.greatest <= UINT8_MAX;
    case Kind::number16:
        return type.greatest <= UINT16_MAX;
    case Kind::code: // whatever stands above the 16 bits that travel
        return type.least == 0 && type.greatest == UINT32_MAX;
    case Kind::bytes:
    case Kind::list:
    case Kind::compositeList:
        return type.greatest <= type.capacity;
    default:
        return true;
    }
}

constexpr bool ranges_hold() {
    for (const Type &type : catalogue.types)
        if (type.least > type.greatest || !range_holds(type))
            return false;
    return true;
}
static_assert(ranges_hold());

// Tables are walked by position, so mandatory slots must lead; eight bits are all a mask has.
constexpr bool slots_hold(const SlotTable &table) {
    for (unsigned i = 0; i < table.count; ++i) {
        const Slot &slot = catalogue.slots[table.first + i];
        if ((slot.presence == Presence::mandatory) != (i < table.mandatory) ||
            !catalogue.types[slot.type].hasIe)
            return false;
    }
    return table.count - table.mandatory <= 8;
}

constexpr bool all_slots_hold() {
    for (const Type &type : catalogue.types)
        if (type.kind == Kind::sequence && !slots_hold(type.slots))
            return false;
    for (const Message &message : catalogue.messages)
        if (!slots_hold(message.slots))
            return false;
    return true;
}
static_assert(all_slots_hold());

// Filling asks tags alone where an owner's children stand, once they are judged: what was left out
// must lie behind all that was taken. So no slot may try again what an earlier one left out.
constexpr bool none_is_tried_again(const SlotTable &table) {
    for (unsigned i = 0; i < table.count; ++i)
        for (unsigned k = i + 1; k < table.count; ++k)
            if (catalogue.slots[table.first + i].presence != Presence::mandatory &&
                catalogue.slots[table.first + i].type == catalogue.slots[table.first + k].type)
                return false;
    return true;
}

// The IE that a condition looks at is mandatory, with numbers alone before it: so it is there when
// the condition is asked, and found by the lengths of what stands before it.
constexpr bool finds(const SlotTable &table, const Condition &condition) {
    for (const Slot *slot = catalogue.slots + table.first;
         slot->presence == Presence::mandatory && is_number(catalogue.types[slot->type].kind);
         ++slot)
        if (slot->type == condition.type)
            return true;
    return false;
}

constexpr bool conditions_hold(const SlotTable &table) {
    for (unsigned i = table.first; i < unsigned(table.first + table.count); ++i) {
        const Slot &slot = catalogue.slots[i];
        if (is_conditional(slot) && (slot.condition == always || slot.rule == UnpackRule::none ||
                                     !finds(table, catalogue.conditions[slot.condition])))
            return false;
    }
    return true;
}

// A composite is judged valid while it is read. One that left out a child called for would not be.
constexpr bool refuses_uncalled(const SlotTable &table) {
    for (unsigned i = table.first; i < unsigned(table.first + table.count); ++i)
        if (is_conditional(catalogue.slots[i]) &&
            catalogue.slots[i].rule != UnpackRule::refuseUncalled)
            return false;
    return true;
}

constexpr bool all_tables_hold() {
    for (const Type &type : catalogue.types)
        if (type.kind == Kind::sequence &&
            !(none_is_tried_again(type.slots) && conditions_hold(type.slots) &&
              refuses_uncalled(type.slots)))
            return false;
    for (const Message &message : catalogue.messages)
        if (!none_is_tried_again(message.slots) || !conditions_hold(message.slots))
            return false;
    return true;
}
static_assert(all_tables_hold());
static_assert(always <= 8, "Conditions keeps a bit for each");

constexpr bool conditions_ask_code_words() {
    for (const Condition &condition : catalogue.conditions)
        if (catalogue.types[condition.type].kind != Kind::code)
            return false;
    return true;
}
static_assert(conditions_ask_code_words());

#define CONDITION_FOR_MSG(name_, predicate_, ie_, values_, ...)                                    \
    static_assert((values_) <= UINT8_MAX, "numbers beyond the set's bits are outside");
#define CONDITION_FOR_IE CONDITION_FOR_MSG
#include "catalogue/conditions.def"

constexpr bool tokens_are_distinct() {
    uint32_t tokens[3 * messageCount] = {getToken};
    unsigned count = 1;
    for (const Message &message : catalogue.messages) {
        if (message.slots.count == 0)
            continue;
        for (uint32_t token : {message.appendToken, message.validityToken, message.packToken}) {
            for (unsigned i = 0; i < count; ++i)
                if (tokens[i] == token)
                    return false;
            tokens[count++] = token;
        }
    }
    return true;
}
static_assert(tokens_are_distinct());

// The engine finds the value, or the children, right behind the head.
#define SCALAR(name_, ...) static_assert(offsetof(Tarn##name_##Ie, value) == sizeof(TarnIe));
#define BYTES(name_, ...)  static_assert(offsetof(Tarn##name_##Ie, value) == sizeof(TarnIe));
#define RECORD(name_, ...) static_assert(offsetof(Tarn##name_##Ie, value) == sizeof(TarnIe));
#define LIST(name_, ...)   static_assert(offsetof(Tarn##name_##Ie, value) == sizeof(TarnIe));
#include "catalogue/primitive_ies.def"
#define SEQUENCE(name_, ...) static_assert(offsetof(Tarn##name_##Ie, children) == sizeof(TarnIe));
#define COMPOSITE_LIST(name_, ...)                                                                 \
    static_assert(offsetof(Tarn##name_##Ie, children) == sizeof(TarnIe));
#include "catalogue/composite_ies.def"

// Offsets are kept in 16 bits; HandoverRequest's record is the largest.
static_assert(sizeof(TarnHandoverRequestRecord) < 65536);
#define BYTES(name_, tag_, capacity_, ...)                                                         \
    static_assert(sizeof(Tarn##name_::bytes) == capacity_ && offsetof(Tarn##name_, bytes) == 4);
#include "catalogue/primitive_ies.def"

} // namespace

} // namespace tarn
