// Judging bytes: whether they hold what a type asks for, how many of them it takes, and otherwise
// where and why it does not. All rules of decoding stand here and nowhere else. Judging makes
// nothing and, but for the values that are unpacked one at a time, stores nothing.
//
// A listener is told of every IE that is tried, for explanations. The codec's own is told nothing.
#ifndef TARN_JUDGING_H
#define TARN_JUDGING_H

#include <string.h>


#include "catalogue/catalogue.h"
#include "tarn_if_internal_funcs/values.h"
#include "tarn_if_internal_funcs/wire.h"
namespace tarn {
struct NumbersInBytes { const uint8_t *at; };
inline bool condition_holds(ConditionId id, NumbersInBytes n) {
    const Condition &c = catalogue.conditions[id];
    const uint8_t *at = n.at;
    for (int i = 0; i < 8; ++i) { if (load16(at) == c.type) { uint32_t v = load16(at + 6); bool in = v < 8 && (c.values >> v & 1); return in == c.counts; } at += 6 + load32(at + 2); }
    return false;
}
inline bool is_conditional(const Slot &s) { return s.condition != always; }
inline const Slot *slots_begin(const SlotTable &t) { return catalogue.slots + t.first; }
inline const Slot *slots_end(const SlotTable &t) { return slots_begin(t) + t.count; }
inline void *at_offset(void *p, size_t o) { return static_cast<uint8_t *>(p) + o; }
inline void store_count(void *p, uint32_t c) { *static_cast<uint32_t *>(p) = c; }
inline void *item_of(const Type &t, void *v, uint32_t i) { return at_offset(v, t.array.offset + i * t.array.stride); }
}

#include "tarn_if_internal_funcs/values.h"
#include "tarn_if_internal_funcs/wire.h"

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
//       What is wrong with the one entered last. The position is that of the tag, length or value in
//       question, and the number the tag found, the length, the number or count out of range, the
//       bytes left, or the condition.
//   void reads(uint32_t declared, uint32_t used);
//       The one entered last decodes, and has parts: its length field, and the bytes of its parts.
//   void leaves(Outcome outcome, Fate fate);
template <class Listener>
class Judge {
public:
    explicit Judge(Listener *listener) : listener_(listener) {}

    // The IEs of a message or the children of a sequence, from the first one on. What succeeds is
    // taken up to the last IE that a slot took.
    Outcome slots(const SlotTable &table, Input in);

    // One slot, whose IE is passed over if it is taken; `start` is where the first slot's IE stands.
    Fate slot(const Slot &slot, const uint8_t *start, Input *in);

    // What follows the header of a composite of this type.
    Outcome children(const Type &type, uint32_t length, Input in);

    // A whole IE, and what follows the header of a primitive one. A value is stored if `to` is not
    // null, and then as far as it decodes.
    Outcome ie(TypeId id, void *to, Input in);
    Outcome value(const Type &type, void *to, uint32_t length, Input in);

private:
    Outcome number(const Type &type, void *to, uint32_t length, Input in);
    Outcome bytes(const Type &type, void *to, uint32_t length, Input in);
    Outcome record(const Type &type, void *to, uint32_t length, Input in);
    Outcome list(const Type &type, void *to, uint32_t length, Input in);
    Outcome elements(const Type &list, uint32_t length, Input in);
    Reason end_before(const Slot *slot, const Slot *end, const uint8_t *start, const uint8_t *at);

    Outcome find(uint32_t size, Reason reason, const uint8_t *at, uint32_t number) {
        listener_->finds(reason, at, number);
        return {size, reason};
    }

    Listener *listener_;
};

// ---- Values ------------------------------------------------------------------------------------

template <class Listener>
Outcome Judge<Listener>::number(const Type &type, void *to, uint32_t length, Input in) {
    const uint32_t width = type.fixedSize;
    if (length != width)
        return find(0, Reason::otherWidth, in.at - lengthSize, length);
    if (width > in.left)
        return find(0, Reason::beyondBytes, in.at - lengthSize, length);
    const uint32_t number = load_wire(in.at, width);
    if (to != nullptr)
        store_number(type.kind, to, number);
    return in_range(type, number) ? Outcome{width, Reason::none}
                                  : find(width, Reason::outOfRange, in.at, number);
}

// Any length that the array holds decodes, so that a caller of the value's own unpacker can look at
// what a peer sent.
template <class Listener>
Outcome Judge<Listener>::bytes(const Type &type, void *to, uint32_t length, Input in) {
    if (length > in.left)
        return find(0, Reason::beyondBytes, in.at - lengthSize, length);
    if (length > type.capacity)
        return find(0, Reason::beyondArray, in.at - lengthSize, length);
    if (to != nullptr) {
        store_count(to, length);
        memcpy(at_offset(to, sizeof(uint32_t)), in.at, length);
    }
    return in_range(type, length) ? Outcome{length, Reason::none}
                                  : find(length, Reason::outOfRange, in.at, length);
}

// A member is bounded by the buffer and not by the record's length, and a record counts as used up
// once the bytes read reach or pass that length. Bytes after the last member are not looked at.
template <class Listener>
Outcome Judge<Listener>::record(const Type &type, void *to, uint32_t length, Input in) {
    const uint32_t available = in.left;
    Reason verdict = Reason::none;
    for (uint32_t i = type.slots.first; i < type.slots.first + type.slots.count; ++i) {
        const Member &member = catalogue.members[i];
        listener_->enters({Place::member, i}, member.type, in.at);
        const Outcome part =
            available - in.left >= length
                ? find(0, Reason::usedUp, in.at, available - in.left)
                : ie(member.type, to != nullptr ? at_offset(to, member.offset) : nullptr, in);
        listener_->leaves(part, decodes(part.reason) ? Fate::taken : Fate::refuses);
        in.skip(part.size);
        if (!decodes(part.reason))
            return {available - in.left, Reason::child};
        if (part.reason != Reason::none)
            verdict = part.reason;
    }
    listener_->reads(length, available - in.left);
    return {available - in.left, verdict};
}

// Items are bounded by the buffer; the list ends when its length is used up, that is reached or
// passed. More items than the array holds leave the value as it was.
template <class Listener>
Outcome Judge<Listener>::list(const Type &type, void *to, uint32_t length, Input in) {
    if (to != nullptr && list(type, nullptr, length, in).reason == Reason::tooManyItems)
        to = nullptr;
    const Input start = in;
    Reason verdict = Reason::none;
    uint32_t count = 0;
    while (start.left - in.left < length) {
        const bool isFull = count == type.capacity;
        void *item = to != nullptr && !isFull ? item_of(type, to, count) : nullptr;
        listener_->enters({Place::item, count}, type.array.item, in.at);
        const Outcome part = isFull ? find(0, Reason::tooManyItems, in.at, count)
                                    : ie(type.array.item, item, in);
        listener_->leaves(part, decodes(part.reason) ? Fate::taken : Fate::refuses);
        in.skip(part.size);
        if (!decodes(part.reason)) {
            verdict = isFull ? part.reason : Reason::child;
            break;
        }
        if (part.reason != Reason::none)
            verdict = part.reason;
        ++count;
    }
    if (to != nullptr)
        store_count(to, count);
    if (!decodes(verdict))
        return {start.left - in.left, verdict};
    listener_->reads(length, start.left - in.left);
    return in_range(type, count) ? Outcome{start.left - in.left, verdict}
                                 : find(start.left - in.left, Reason::outOfRange, start.at, count);
}

template <class Listener>
Outcome Judge<Listener>::value(const Type &type, void *to, uint32_t length, Input in) {
    if (is_number(type.kind))
        return number(type, to, length, in);
    if (type.kind == Kind::bytes)
        return bytes(type, to, length, in);
    if (length > in.left)
        return find(0, Reason::beyondBytes, in.at - lengthSize, length);
    return type.kind == Kind::record ? record(type, to, length, in) : list(type, to, length, in);
}

// ---- Whole IEs ---------------------------------------------------------------------------------

template <class Listener>
Outcome Judge<Listener>::ie(TypeId id, void *to, Input in) {
    if (in.left == 0)
        return find(0, Reason::noBytes, in.at, 0);
    if (in.left < tagSize)
        return find(0, Reason::shortHeader, in.at, in.left);
    if (load16(in.at) != id)
        return find(0, Reason::otherTag, in.at, load16(in.at));
    if (in.left < headerSize)
        return find(tagSize, Reason::shortHeader, in.at, in.left);
    const Type &type = type_of(id);
    const uint32_t length = load32(in.at + tagSize);
    in.skip(headerSize);
    if (is_composite(type.kind)) {
        Outcome outcome = children(type, length, in);
        outcome.size += headerSize;
        return outcome;
    }
    Outcome outcome = value(type, to, length, in);
    // What a value's parts took before one failed is not counted.
    outcome.size = headerSize + (decodes(outcome.reason) ? outcome.size : 0);
    return outcome;
}

// ---- Composites and messages -------------------------------------------------------------------

// An element is bounded by the buffer, not by the list's length. One that takes more than is left
// of it makes the rest wrap: the walk then goes on until the buffer is used up, and fails.
template <class Listener>
Outcome Judge<Listener>::elements(const Type &list, uint32_t length, Input in) {
    const uint32_t available = in.left;
    uint32_t rest = length;
    uint32_t count = 0;
    while (in.left != 0 && rest != 0) {
        listener_->enters({Place::element, count}, list.array.item, in.at);
        const Outcome element = ie(list.array.item, nullptr, in);
        const bool isTaken = element.reason == Reason::none;
        listener_->leaves(element, isTaken ? Fate::taken : Fate::refuses);
        if (!isTaken)
            return {available - in.left, Reason::child};
        in.skip(element.size);
        if (element.size > rest)
            listener_->finds(Reason::pastEnd, in.at, length);
        rest -= element.size;
        ++count;
    }
    const uint32_t used = available - in.left;
    if (rest != 0)
        return find(used, Reason::bytesEnd, in.at, length);
    listener_->reads(length, used);
    return in_range(list, count) ? Outcome{used, Reason::none}
                                 : find(used, Reason::outOfRange, in.at - used, count);
}

// A sequence's length is read and not used: its children are those that its slots find in the rest
// of the buffer.
template <class Listener>
Outcome Judge<Listener>::children(const Type &type, uint32_t length, Input in) {
    if (!is_sequence(type.kind))
        return elements(type, length, in);
    const Outcome outcome = slots(type.slots, in);
    if (decodes(outcome.reason))
        listener_->reads(length, outcome.size);
    return outcome;
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
Fate Judge<Listener>::slot(const Slot &slot, const uint8_t *start, Input *in) {
    const NumbersInBytes numbers{start};
    listener_->enters({Place::slot, uint32_t(&slot - catalogue.slots)}, slot.type, in->at);
    Outcome child = ie(slot.type, nullptr, *in);
    if (child.reason == Reason::none && is_conditional(slot) &&
        !condition_holds(slot.condition, numbers))
        child = find(child.size, Reason::uncalled, in->at, slot.condition);
    Fate fate = Fate::taken;
    if (child.reason == Reason::none)
        in->skip(child.size);
    else
        fate = refuses(slot, child.reason, numbers) ? Fate::refuses : Fate::leftOut;
    listener_->leaves(child, fate);
    return fate;
}

// The bytes have ended before this slot. RelocationRequired refuses to end before a child that is
// called for; any other owner decodes, and is not valid.
template <class Listener>
Reason Judge<Listener>::end_before(const Slot *slot, const Slot *end, const uint8_t *start,
                                   const uint8_t *at) {
    Reason reason = Reason::none;
    for (; slot != end; ++slot) {
        const bool isMandatory = slot->presence == Presence::mandatory;
        if (!isMandatory && (!is_conditional(*slot) ||
                             !condition_holds(slot->condition, NumbersInBytes{start})))
            continue;
        const bool isRefused = isMandatory || slot->rule == UnpackRule::dropUncalledRequireAtEnd;
        listener_->enters({Place::slot, uint32_t(slot - catalogue.slots)}, slot->type, at);
        const Outcome missing =
            isMandatory ? find(0, Reason::noBytes, at, 0)
                        : find(0, Reason::conditionUnmet, at, slot->condition);
        listener_->leaves(missing, isRefused ? Fate::refuses : Fate::leftOut);
        if (isRefused)
            return Reason::child;
        reason = Reason::conditionUnmet;
    }
    return reason;
}

template <class Listener>
Outcome Judge<Listener>::slots(const SlotTable &table, Input in) {
    const Input start = in;
    const Slot *const end = slots_end(table);
    for (const Slot *each = slots_begin(table); each != end; ++each) {
        if (in.left == 0)
            return {start.left, end_before(each, end, start.at, in.at)};
        if (slot(*each, start.at, &in) == Fate::refuses)
            return {start.left - in.left, Reason::child};
    }
    return {start.left - in.left, Reason::none};
}

} // namespace tarn

#endif
