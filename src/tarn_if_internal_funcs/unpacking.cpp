#include "tarn_if_internal_funcs/unpacking.h"

#include <string.h>

#include "tarn_if_api/objects.h"
#include "tarn_if_conditional_funcs/conditions.h"
#include "tarn_if_internal_funcs/slots.h"
#include "tarn_if_internal_funcs/values.h"

namespace tarn {

namespace {

// What came of reading, down to the bytes used up: to the point of failure if there was one.
enum class Verdict : uint32_t {
    failed,
    invalid, // read, but its validator would refuse it
    valid,
};
struct Reading {
    uint32_t size;
    Verdict verdict;
};

// What a slot or list took from the bytes: an IE's size, or why there is none. An IE has at least
// its header, so the reasons are no sizes.
using Taken = uint32_t;
constexpr Taken absent = 0;   // another tag, or bytes that do not decode
constexpr Taken invalid = 1;  // decoded, out of its range or rules
constexpr Taken uncalled = 2; // valid, but its condition does not call for it

constexpr bool is_taken(Taken taken) {
    return taken > uncalled;
}

template <class Id>
TARN_INLINE Reading read_children(Id id, VelDllHead *children, Input in, uint32_t length);

// Each fills an IE object from bytes that carry its tag.
template <class Id>
TARN_INLINE Reading read_primitive(TarnIe *ie, Id id, Input in) {
    uint32_t size = 0;
    if (!read_tlv(id, value_of(ie), in, &size))
        return {0, Verdict::failed};
    return {size, value_is_valid(id, value_of(ie)) ? Verdict::valid : Verdict::invalid};
}

template <class Id>
TARN_INLINE Reading read_composite(TarnIe *ie, Id id, Input in) {
    if (in.left < headerSize)
        return {0, Verdict::failed};
    const uint32_t length = load32(in.at + tagSize);
    in.skip(headerSize);
    Reading reading = read_children(id, children_of(ie), in, length);
    reading.size += headerSize;
    return reading;
}

// Links a child that is valid and called for, and releases any other.
TARN_INLINE Taken link_or_release(TarnIe *ie, VelDllHead *list, Reading reading, bool calledFor) {
    if (reading.verdict == Verdict::valid && calledFor) [[likely]] {
        link_ie(list, ie, TARN_CALLER(moduleInternal));
        return reading.size;
    }
    delete_ie(ie);
    if (reading.verdict == Verdict::failed)
        return absent;
    return reading.verdict == Verdict::invalid ? invalid : uncalled;
}

template <class Id>
[[gnu::noinline]] Taken take_primitive(Id id, VelDllHead *list, Input in, bool calledFor) {
    TarnIe *ie = create_head(id, TARN_CALLER(moduleInternal));
    return link_or_release(ie, list, read_primitive(ie, id, in), calledFor);
}

template <class Id>
[[gnu::noinline]] Taken take_composite(Id id, VelDllHead *list, Input in, bool calledFor) {
    TarnIe *ie = create_composite(id, TARN_CALLER(moduleInternal));
    return link_or_release(ie, list, read_composite(ie, id, in), calledFor);
}

// Makes a child from bytes that carry its tag.
template <class Id>
TARN_INLINE Taken take_child(Id id, VelDllHead *list, Input in, bool calledFor) {
    return by_kind<is_primitive>(
        id,
        [&](auto primitive)
            TARN_INLINE_LAMBDA { return take_primitive(as_coded(primitive), list, in, calledFor); },
        [&](auto composite) TARN_INLINE_LAMBDA {
            return with_composite(composite, [&](auto known) TARN_INLINE_LAMBDA {
                return take_composite(known, list, in, calledFor);
            });
        });
}

// An element is bounded by the buffer, not by the budget. One that takes more than the budget makes
// it wrap: the walk then goes on until the buffer is used up, and fails.
template <class Id>
TARN_INLINE Reading read_elements(Id list, VelDllHead *children, Input in, uint32_t budget) {
    const auto element = element_of(list);
    const uint32_t available = in.left;
    uint32_t count = 0;
    while (in.left != 0 && budget != 0) {
        const Taken taken = in.has_tag(element) ? take_child(element, children, in, true) : absent;
        if (!is_taken(taken))
            return {available - in.left, Verdict::failed};
        in.skip(taken);
        budget -= taken;
        ++count;
    }
    Verdict verdict = in_range(type_of(list), count) ? Verdict::valid : Verdict::invalid;
    if (budget != 0)
        verdict = Verdict::failed;
    return {available - in.left, verdict};
}

// ---- Slots of a sequence composite or a message ------------------------------------------------

// Most slots hold a number that is mandatory. It is decoded before its object is made, so that a
// failure leaves nothing to be released.
template <class AnySlot>
TARN_INLINE Taken take_number(const AnySlot &slot, VelDllHead *list, Input in) {
    uint32_t number = 0;
    const uint32_t size = read_number_ie(slot.kind, slot.type, in, &number);
    if (size == 0 || !in_range(type_of(slot.type), number))
        return absent;
    TarnIe *ie = create_head(slot.type, TARN_CALLER(moduleInternal));
    store_number(slot.kind, value_of(ie), number);
    link_ie(list, ie, TARN_CALLER(moduleInternal));
    return size;
}

// Likewise, since only a valid length is taken here.
template <class AnySlot>
TARN_INLINE Taken take_bytes(const AnySlot &slot, VelDllHead *list, Input in) {
    if (in.left < headerSize || load16(in.at) != slot.type)
        return absent;
    const uint32_t length = load32(in.at + tagSize);
    if (length > in.left - headerSize || !in_range(type_of(slot.type), length))
        return absent;
    TarnIe *ie = create_head(slot.type, TARN_CALLER(moduleInternal));
    auto *value = static_cast<uint32_t *>(value_of(ie));
    *value = length;
    memcpy(value + 1, in.at + headerSize, length);
    link_ie(list, ie, TARN_CALLER(moduleInternal));
    return headerSize + length;
}

// Fills a slot. No object is made for a child whose tag is not there.
template <class AnySlot>
TARN_INLINE Taken take(const AnySlot &slot, VelDllHead *list, Input in, Conditions *conditions) {
    if (builtForSpeed && !is_conditional(slot)) {
        if (is_number(slot.kind))
            return take_number(slot, list, in);
        if (slot.kind == Kind::bytes)
            return take_bytes(slot, list, in);
    }
    if (!in.has_tag(slot.type))
        return absent;
    const bool calledFor = !is_conditional(slot) || conditions->hold(slot.condition);
    return take_child(slot.type, list, in, calledFor);
}

// Whether the owner is refused because of a slot that was not filled.
template <class AnySlot>
inline bool refuses(const AnySlot &slot, Taken reason, Conditions *conditions) {
    if (!is_conditional(slot))
        return slot.presence == Presence::mandatory;
    if (reason == absent)
        return conditions->hold(slot.condition);
    return slot.rule == UnpackRule::refuseUncalled;
}

// The bytes have ended before this slot. RelocationRequired refuses to end before a child that is
// called for; RabParams ends, and its validator then finds it incomplete; IapReset just ends.
Verdict end_before(const Slot *slot, const Slot *end, Conditions *conditions) {
    if (slot->presence == Presence::mandatory)
        return Verdict::failed;
    Verdict verdict = Verdict::valid;
    for (; slot != end; ++slot) {
        if (!is_conditional(*slot) || slot->rule == UnpackRule::dropUncalled ||
            !conditions->hold(slot->condition))
            continue;
        if (slot->rule == UnpackRule::dropUncalledRequireAtEnd)
            return Verdict::failed;
        verdict = Verdict::invalid;
    }
    return verdict;
}

// Fills `list` from the bytes, slot by slot in table order, up to the last IE that was taken; fails
// when the owner's rules refuse what the bytes hold. A walk that succeeds leaves nothing else to be
// checked by a validator than the verdict that comes with it.
template <class Owner>
TARN_INLINE Reading read_slots(Owner owner, VelDllHead *list, Input in) {
    Conditions conditions(list);
    const uint32_t available = in.left;
    Verdict verdict = Verdict::valid;
    each_slot(owner, [&](const auto &slot) TARN_INLINE_LAMBDA {
        const Taken taken = take(slot, list, in, &conditions);
        if (is_taken(taken)) [[likely]] {
            in.skip(taken);
            return true;
        }
        if (in.left == 0) {
            verdict = end_before(row_of(slot), slots_end(slots_of(owner)), &conditions);
            return false;
        }
        if (!refuses(slot, taken, &conditions))
            return true;
        verdict = Verdict::failed;
        return false;
    });
    return {available - in.left, verdict};
}

// A sequence's length is read and not used: its children are those that its slots find in the rest
// of the buffer. A list's length is the budget of its elements.
template <class Id>
TARN_INLINE Reading read_children(Id id, VelDllHead *children, Input in, uint32_t length) {
    return by_kind<is_sequence>(
        id, [&](auto sequence) TARN_INLINE_LAMBDA { return read_slots(sequence, children, in); },
        [&](auto list) TARN_INLINE_LAMBDA { return read_elements(list, children, in, length); });
}

} // namespace

uint32_t unpack_primitive_ie(TarnIe *ie, const uint8_t *buffer, uint32_t available,
                             uint32_t *consumed, TypeId id) {
    if (any_null(TARN_CALLER(moduleInternal), ie, buffer, consumed))
        return 0;
    return read_tlv(id, value_of(ie), Input{buffer, available}, consumed);
}

// No bytes at all is a success that consumes nothing: a composite may be missing at the end of a
// buffer, and whether it had to be there is for its owner to say.
uint32_t unpack_composite_ie(TarnIe *ie, const uint8_t *buffer, uint32_t available,
                             uint32_t *consumed, TypeId id) {
    if (any_null(TARN_CALLER(moduleInternal), ie, buffer, consumed))
        return 0;
    Input in{buffer, available};
    *consumed = 0;
    if (available == 0)
        return 1;
    if (!in.has_tag(id))
        return 0;
    *consumed = tagSize;
    if (available < headerSize)
        return 0;
    in.skip(headerSize);
    const Reading reading = read_children(id, children_of(ie), in, load32(buffer + tagSize));
    *consumed = headerSize + reading.size;
    return reading.verdict != Verdict::failed;
}

namespace {

template <class Id>
[[gnu::noinline]] TarnMsg *unpack_ies(Id id, Input in) {
    TarnMsg *msg = create_msg(id, TARN_CALLER(moduleInternal));
    if (read_slots(id, &msg->ies, in).verdict != Verdict::failed) [[likely]]
        return msg;
    delete_msg(msg);
    return nullptr;
}

} // namespace

TarnMsg *unpack_msg_of_any_type(const uint8_t *buffer, uint32_t length) {
    const uint32_t id = peek_message_id(buffer, length);
    if (id >= messageCount)
        return nullptr;
    return with_message(MessageNumber(id), [&](auto known) TARN_INLINE_LAMBDA {
        return unpack_ies(known, Input{buffer, length});
    });
}

TarnMsg *unpack_msg_checked(const uint8_t *buffer, uint32_t length, MessageNumber id) {
    if (any_null(TARN_CALLER(moduleInternal), buffer))
        return nullptr;
    if (length == 0)
        return nullptr;
    return with_message(id, [&](auto known) TARN_INLINE_LAMBDA {
        return unpack_ies(known, Input{buffer, length});
    });
}

uint32_t peek_message_id(const uint8_t *buffer, uint32_t length) {
    const Input in{buffer, length};
    uint32_t id = 0;
    read_number_ie(Kind::number8, typeMessageId, in, &id);
    return id;
}

uint32_t peek_message_id_checked(const uint8_t *buffer, uint32_t length) {
    if (any_null(TARN_CALLER(moduleInternal), buffer))
        return 0;
    return peek_message_id(buffer, length);
}

} // namespace tarn
