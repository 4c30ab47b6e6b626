// Judging bytes: whether they hold what a type asks for, how many of them it takes, and otherwise
// where and why it does not. All rules of decoding stand here and nowhere else. Judging makes
// nothing and, but for the values that are unpacked one at a time, stores nothing.
//
// A listener is told of every IE that is tried, for explanations. The codec's own is told nothing.
#ifndef TARN_JUDGING_H
#define TARN_JUDGING_H

#include <string.h>

#include "catalogue/catalogue.h"
#include "tarn_if_conditional_funcs/conditions.h"
#include "tarn_if_internal_funcs/values.h"
#include "wire.h"

namespace [[gnu::visibility("hidden")]] tarn {

// What became of bytes or of a record.
enum class Reason : uint8_t {
    none, // they are taken
    // They decode, but something is not as it must be.
    conditionUnmet, // a child that is called for is missing
    uncalled,       // the child's condition does not call for it
    tooFew,         // a list in a record counts fewer elements than its least
    outOfRange,     // a number, a length or a count
    // They do not decode.
    noBytes,      // none are left
    otherTag,     // another IE stands there
    shortHeader,  // the bytes end inside tag or length
    otherWidth,   // a number's length is not its width
    beyondBytes,  // the length goes beyond the bytes
    beyondArray,  // a byte string's length goes beyond its array
    usedUp,       // a record's length ends before its last member
    tooManyItems, // a list value holds more items than its array
    pastEnd,      // an element passes the end of its list
    bytesEnd,     // the bytes end before a list's length does
    child,        // one below was refused
};

inline constexpr bool decodes(Reason reason) {
    return reason < Reason::noBytes;
}

// `size` is what was taken, or what came before the point of failure.
struct Outcome {
    uint32_t size;
    Reason reason;
};

// What a child that was tried means for its owner.
enum class Fate : uint8_t { taken, leftOut, refuses };

// Where a child stands: a row of catalogue.slots or catalogue.members, or its place in a list.
struct Place {
    enum Kind : uint8_t { slot, member, element, item } kind;
    uint32_t number;
};

// `Listener` has these members, or none of them does anything:
//   void enters(Place place, TypeId type, const uint8_t *at);
//       A child is tried at this position; `leaves` follows when that is over.
//   void finds(Reason reason, const uint8_t *at, uint32_t number);
//       What is wrong with the one entered last. The position is that of the tag, length or value
//       in question, and the number the tag found, the length, the number or count out of range,
//       the bytes left, or the condition.
//   void reads(uint32_t declared, uint32_t used);
//       The one entered last decodes, and has parts: its length field, and the bytes of its parts.
//   void leaves(Outcome outcome, Fate fate);
// All cursors are moved over what was taken, or up to the point of failure.
template <class Listener>
class Judge {
public:
    explicit Judge(Listener *listener) : listener_(listener) {}

    // The IEs of a message or the children of a sequence, from the first one on.
    Reason slots(const SlotTable &table, Input *in);

    // One slot, whose IE is passed over if it is taken.
    Fate slot(const Slot &slot, const NumbersInBytes &numbers, Input *in);

    // A whole IE, and what follows the header of a primitive one. A value is stored if `to` is not
    // null, and then as far as it decodes.
    Reason ie(TypeId id, void *to, Input *in);
    Reason value(const Type &type, void *to, uint32_t length, Input *in);

private:
    Reason number(const Type &type, void *to, uint32_t length, Input *in);
    Reason bytes(const Type &type, void *to, uint32_t length, Input *in);
    Reason record(const Type &type, void *to, uint32_t length, Input *in);
    Reason list(const Type &type, void *to, uint32_t length, Input *in);
    Reason part(Place place, TypeId id, void *to, Input *in);
    Reason primitive(TypeId id, void *to, Input *in);
    Reason header(TypeId id, Input *in);
    Reason elements(const Type &list, uint32_t length, Input *in);
    Reason end_before(const Slot *slot, const NumbersInBytes &numbers, const uint8_t *at);

    Reason find(Reason reason, const uint8_t *at, uint32_t number) {
        listener_->finds(reason, at, number);
        return reason;
    }

    // A child that does not even begin.
    void fail(Place place, TypeId id, Reason reason, const uint8_t *at, uint32_t number,
              Fate fate = Fate::refuses) {
        listener_->enters(place, id, at);
        listener_->finds(reason, at, number);
        listener_->leaves({0, reason}, fate);
    }

    Listener *listener_;
};

// ---- Values ------------------------------------------------------------------------------------

template <class Listener>
Reason Judge<Listener>::number(const Type &type, void *to, uint32_t length, Input *in) {
    const uint8_t *const at = in->at;
    const uint32_t width = type.fixedSize;
    if (length != width)
        return find(Reason::otherWidth, at - lengthSize, length);
    if (width > in->left)
        return find(Reason::beyondBytes, at - lengthSize, length);
    const uint32_t number = load_wire(at, width);
    if (to != nullptr)
        store_number(type.kind, to, number);
    in->skip(width);
    return in_range(type, number) ? Reason::none : find(Reason::outOfRange, at, number);
}

// Any length that the array holds decodes, so that a caller of the value's own unpacker can look at
// what a peer sent.
template <class Listener>
Reason Judge<Listener>::bytes(const Type &type, void *to, uint32_t length, Input *in) {
    const uint8_t *const at = in->at;
    if (length > in->left)
        return find(Reason::beyondBytes, at - lengthSize, length);
    if (length > type.capacity)
        return find(Reason::beyondArray, at - lengthSize, length);
    if (to != nullptr) {
        store_count(to, length);
        memcpy(at_offset(to, sizeof(uint32_t)), at, length);
    }
    in->skip(length);
    return in_range(type, length) ? Reason::none : find(Reason::outOfRange, at, length);
}

template <class Listener>
Reason Judge<Listener>::part(Place place, TypeId id, void *to, Input *in) {
    const uint8_t *const at = in->at;
    listener_->enters(place, id, at);
    const Reason reason = primitive(id, to, in);
    const Fate fate = decodes(reason) ? Fate::taken : Fate::refuses;
    listener_->leaves(Outcome{uint32_t(in->at - at), reason}, fate);
    return reason;
}

// A member is bounded by the buffer and not by the record's length, and a record counts as used up
// once the bytes read reach or pass that length. Bytes after the last member are not looked at.
template <class Listener>
Reason Judge<Listener>::record(const Type &type, void *to, uint32_t length, Input *in) {
    const uint32_t available = in->left;
    Reason verdict = Reason::none;
    for (const Member &member : members_of(type)) {
        const Place place{Place::member, uint32_t(&member - catalogue.members)};
        const uint32_t used = available - in->left;
        if (used >= length) {
            fail(place, member.type, Reason::usedUp, in->at, used);
            return Reason::child;
        }
        void *const field = to != nullptr ? at_offset(to, member.offset) : nullptr;
        const Reason reason = part(place, member.type, field, in);
        if (!decodes(reason))
            return Reason::child;
        if (reason != Reason::none)
            verdict = reason;
    }
    listener_->reads(length, available - in->left);
    return verdict;
}

// Items are bounded by the buffer; the list ends when its length is used up, that is reached or
// passed. More items than the array holds leave the value as it was.
template <class Listener>
Reason Judge<Listener>::list(const Type &type, void *to, uint32_t length, Input *in) {
    const Input start = *in;
    if (to != nullptr && list(type, nullptr, length, in) == Reason::tooManyItems)
        return Reason::tooManyItems;
    *in = start;
    Reason verdict = Reason::none;
    uint32_t count = 0;
    for (; start.left - in->left < length; ++count) {
        if (count == type.capacity) {
            fail({Place::item, count}, type.array.item, Reason::tooManyItems, in->at, count);
            return Reason::tooManyItems;
        }
        void *const item = to != nullptr ? item_of(type, to, count) : nullptr;
        const Reason reason = part({Place::item, count}, type.array.item, item, in);
        if (!decodes(reason)) {
            verdict = Reason::child;
            break;
        }
        if (reason != Reason::none)
            verdict = reason;
    }
    if (to != nullptr)
        store_count(to, count);
    if (!decodes(verdict))
        return verdict;
    listener_->reads(length, start.left - in->left);
    return in_range(type, count) ? verdict : find(Reason::outOfRange, start.at, count);
}

template <class Listener>
Reason Judge<Listener>::value(const Type &type, void *to, uint32_t length, Input *in) {
    if (is_number(type.kind))
        return number(type, to, length, in);
    if (type.kind == Kind::bytes)
        return bytes(type, to, length, in);
    if (length > in->left)
        return find(Reason::beyondBytes, in->at - lengthSize, length);
    return type.kind == Kind::record ? record(type, to, length, in) : list(type, to, length, in);
}

// ---- Whole IEs ---------------------------------------------------------------------------------

template <class Listener>
Reason Judge<Listener>::header(TypeId id, Input *in) {
    const Input start = *in;
    if (start.left == 0)
        return find(Reason::noBytes, start.at, 0);
    if (start.left < tagSize)
        return find(Reason::shortHeader, start.at, start.left);
    if (load16(start.at) != id)
        return find(Reason::otherTag, start.at, load16(start.at));
    if (start.left < headerSize) {
        in->skip(tagSize);
        return find(Reason::shortHeader, start.at, start.left);
    }
    in->skip(headerSize);
    return Reason::none;
}

// What the parts of a value took before one of them failed is not passed over.
template <class Listener>
Reason Judge<Listener>::primitive(TypeId id, void *to, Input *in) {
    Reason reason = header(id, in);
    if (reason != Reason::none)
        return reason;
    Input rest = *in;
    reason = value(type_of(id), to, load32(rest.at - lengthSize), &rest);
    if (decodes(reason))
        *in = rest;
    return reason;
}

// A sequence's length is read and not used: its children are those that its slots find in the rest
// of the buffer.
template <class Listener>
Reason Judge<Listener>::ie(TypeId id, void *to, Input *in) {
    const Type &type = type_of(id);
    if (is_primitive(type.kind))
        return primitive(id, to, in);
    const Reason reason = header(id, in);
    if (reason != Reason::none)
        return reason;
    const uint8_t *const at = in->at;
    const uint32_t length = load32(at - lengthSize);
    if (!is_sequence(type.kind))
        return elements(type, length, in);
    const Reason verdict = slots(type.slots, in);
    if (decodes(verdict))
        listener_->reads(length, uint32_t(in->at - at));
    return verdict;
}

// ---- Composites and messages -------------------------------------------------------------------

// An element is bounded by the buffer, not by the list's length. One that takes more than is left
// of it makes the rest wrap: the walk then goes on until the buffer is used up, and fails.
template <class Listener>
Reason Judge<Listener>::elements(const Type &list, uint32_t length, Input *in) {
    const uint8_t *const start = in->at;
    uint32_t rest = length;
    uint32_t count = 0;
    for (; in->left != 0 && rest != 0; ++count) {
        const Input before = *in;
        listener_->enters({Place::element, count}, list.array.item, before.at);
        const Reason reason = ie(list.array.item, nullptr, in);
        const uint32_t size = before.left - in->left;
        const Fate fate = reason == Reason::none ? Fate::taken : Fate::refuses;
        listener_->leaves({size, reason}, fate);
        if (fate == Fate::refuses) {
            *in = before;
            return Reason::child;
        }
        if (size > rest)
            listener_->finds(Reason::pastEnd, in->at, length);
        rest -= size;
    }
    if (rest != 0)
        return find(Reason::bytesEnd, in->at, length);
    listener_->reads(length, length);
    return in_range(list, count) ? Reason::none : find(Reason::outOfRange, start, count);
}

// Whether the owner is refused because of a child that it does not take.
template <class Numbers>
bool refuses(const Slot &slot, Reason reason, Numbers numbers) {
    if (!is_conditional(slot))
        return slot.presence == Presence::mandatory;
    if (decodes(reason))
        return slot.rule == UnpackRule::refuseUncalled;
    return condition_holds(slot.condition, numbers);
}

template <class Listener>
Fate Judge<Listener>::slot(const Slot &slot, const NumbersInBytes &numbers, Input *in) {
    const Input before = *in;
    listener_->enters({Place::slot, uint32_t(&slot - catalogue.slots)}, slot.type, before.at);
    Reason reason = ie(slot.type, nullptr, in);
    if (reason == Reason::none && is_conditional(slot) && !condition_holds(slot.condition, numbers))
        reason = find(Reason::uncalled, before.at, slot.condition);
    const Outcome outcome{before.left - in->left, reason};
    Fate fate = Fate::taken;
    if (reason != Reason::none) {
        *in = before;
        fate = refuses(slot, reason, numbers) ? Fate::refuses : Fate::leftOut;
    }
    listener_->leaves(outcome, fate);
    return fate;
}

// The bytes have ended before this slot. RelocationRequired refuses to end before a child that is
// called for; any other owner decodes, and is not valid.
template <class Listener>
Reason Judge<Listener>::end_before(const Slot *slot, const NumbersInBytes &numbers,
                                   const uint8_t *at) {
    Reason verdict = Reason::none;
    for (; slot != slots_end(numbers.table); ++slot) {
        const bool isMandatory = slot->presence == Presence::mandatory;
        if (!isMandatory && (!is_conditional(*slot) || !condition_holds(slot->condition, numbers)))
            continue;
        const bool isRefused = isMandatory || slot->rule == UnpackRule::dropUncalledRequireAtEnd;
        const Reason reason = isMandatory ? Reason::noBytes : Reason::conditionUnmet;
        fail({Place::slot, uint32_t(slot - catalogue.slots)}, slot->type, reason, at,
             isMandatory ? 0 : uint32_t(slot->condition),
             isRefused ? Fate::refuses : Fate::leftOut);
        if (isRefused)
            return Reason::child;
        verdict = reason;
    }
    return verdict;
}

template <class Listener>
Reason Judge<Listener>::slots(const SlotTable &table, Input *in) {
    const NumbersInBytes numbers{table, in->at};
    for (const Slot *each = slots_begin(table); each != slots_end(table); ++each) {
        if (in->left == 0)
            return end_before(each, numbers, in->at);
        if (slot(*each, numbers, in) == Fate::refuses)
            return Reason::child;
    }
    return Reason::none;
}

// ---- The codec's judgements --------------------------------------------------------------------

// Returns where a message's last IE ends, or null if it is refused. Messages seldom come here when
// the engine is built for speed (plain.h).
[[gnu::cold]] const uint8_t *judge_msg(const SlotTable &table, const uint8_t *at, uint32_t length);
Reason judge_ie(TypeId id, void *to, Input *in);
Reason judge_value(TypeId id, void *to, uint32_t length, Input *in);
Fate judge_slot(const Slot &slot, const NumbersInBytes &numbers, Input *in);

} // namespace tarn

#endif
