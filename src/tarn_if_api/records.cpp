#include "tarn_if_api/records.h"

#include "tarn_if_conditional_funcs/conditions.h"
#include "tarn_if_internal_funcs/filling.h"
#include "tarn_if_internal_funcs/judging.h"
#include "tarn_if_internal_funcs/plain.h"
#include "tarn_if_internal_funcs/slots.h"
#include "tarn_if_internal_funcs/unpacking.h"
#include "tarn_if_internal_funcs/writing.h"

namespace tarn {

namespace {

// A message record begins with the message id and the presence mask, a sequence composite's with
// the mask, a list composite's with the count.
constexpr unsigned msgMaskOffset = 1;
constexpr unsigned sequenceMaskOffset = 0;

uint8_t mask_of(const void *record, unsigned maskOffset) {
    return *static_cast<const uint8_t *>(at_offset(record, maskOffset));
}

// A message's slots behind its MessageId, which Build does not read from the record.
constexpr unsigned msgSkips = builtForSpeed ? 1 : 0;

template <auto id>
constexpr Constant<id> behind_message_id(Constant<id> known) {
    return known;
}
[[maybe_unused]] inline SlotTable behind_message_id(MessageNumber id) {
    SlotTable table = slots_of(id);
    ++table.first;
    --table.count;
    --table.mandatory;
    return table;
}

// ---- Judging and measuring a record ------------------------------------------------------------

// Of two things that are wrong with a record the graver one counts: a value out of range keeps it
// from being built at all; a list that counts fewer elements than its least refuses it, also below
// an optional child; and else the validators' rules decide.
constexpr Reason graver(Reason a, Reason b) {
    return a > b ? a : b;
}

template <class Id>
Outcome measure_composite(Id id, const void *record);

template <class Id>
TARN_INLINE Outcome measure_member(Id id, const void *member) {
    return by_kind<is_primitive>(
        id,
        [&](auto primitive) TARN_INLINE_LAMBDA {
            const uint32_t size = measure_ie(primitive, member);
            return Outcome{size, size != 0 ? Reason::none : Reason::outOfRange};
        },
        [&](auto composite) TARN_INLINE_LAMBDA {
            return with_composite(composite, [&](auto known) TARN_INLINE_LAMBDA {
                return measure_composite(known, member);
            });
        });
}

// As for the validators, the verdict on an optional child does not count, and a conditional child
// counts as present only when it is valid.
template <unsigned skipped, class Owner>
TARN_SHARED Outcome measure_slots(const Owner &owner, const void *record, unsigned maskOffset) {
    const unsigned mask = mask_of(record, maskOffset);
    Outcome outcome{0, Reason::none};
    bool conditionsAreMet = true;
    const bool all = each_slot_behind<skipped>(owner, [&](const auto &slot) TARN_INLINE_LAMBDA {
        bool isValid = false;
        if (is_present(slot, mask)) {
            const Outcome child = measure_member(slot.type, at_offset(record, slot.recordOffset));
            if (child.reason == Reason::outOfRange)
                return false;
            outcome.size += child.size;
            isValid = child.reason == Reason::none;
            if (slot.presence == Presence::mandatory || child.reason == Reason::tooFew)
                outcome.reason = graver(outcome.reason, child.reason);
        }
        if (is_conditional(slot) &&
            condition_holds(slot.condition, NumbersInRecord{slots_of(owner), record}) != isValid)
            conditionsAreMet = false;
        return true;
    });
    if (!all)
        return {0, Reason::outOfRange};
    if (!conditionsAreMet)
        outcome.reason = graver(outcome.reason, Reason::conditionUnmet);
    return outcome;
}

template <class Id>
TARN_INLINE Outcome measure_elements(Id id, const void *record) {
    const Type &type = type_of(id);
    const uint32_t count = *static_cast<const uint16_t *>(record);
    if (count > type.capacity)
        return {0, Reason::outOfRange};
    Outcome outcome{0, count < type.least ? Reason::tooFew : Reason::none};
    for (uint32_t i = 0; i < count; ++i) {
        const Outcome element = measure_composite(element_of(id), item_of(type, record, i));
        if (element.reason == Reason::outOfRange)
            return element;
        outcome.size += element.size;
        outcome.reason = graver(outcome.reason, element.reason);
    }
    return outcome;
}

template <class Id>
Outcome measure_composite(Id id, const void *record) {
    Outcome outcome = by_kind<is_sequence>(
        id,
        [&](auto sequence) TARN_INLINE_LAMBDA {
            return measure_slots<0>(owner_of(sequence), record, sequenceMaskOffset);
        },
        [&](auto list) TARN_INLINE_LAMBDA { return measure_elements(list, record); });
    outcome.size += headerSize;
    return outcome;
}

// ---- Writing a record that was judged good -----------------------------------------------------

template <class Id>
uint8_t *put_composite(Id id, const void *record, uint8_t *at);

template <class Id>
TARN_INLINE uint8_t *put_member(Id id, const void *member, uint8_t *at) {
    return by_kind<is_primitive>(
        id, [&](auto primitive) TARN_INLINE_LAMBDA { return put_ie(primitive, member, at); },
        [&](auto composite) TARN_INLINE_LAMBDA { return put_composite(composite, member, at); });
}

template <unsigned skipped, class Owner>
TARN_SHARED uint8_t *put_slots(const Owner &owner, const void *record, unsigned maskOffset,
                               uint8_t *at) {
    const unsigned mask = mask_of(record, maskOffset);
    each_slot_behind<skipped>(owner, [&](const auto &slot) TARN_INLINE_LAMBDA {
        if (is_present(slot, mask))
            at = put_member(slot.type, at_offset(record, slot.recordOffset), at);
        return true;
    });
    return at;
}

template <class Id>
TARN_INLINE uint8_t *put_elements(Id id, const void *record, uint8_t *at) {
    const Type &type = type_of(id);
    const uint32_t count = *static_cast<const uint16_t *>(record);
    for (uint32_t i = 0; i < count; ++i)
        at = put_composite(element_of(id), item_of(type, record, i), at);
    return at;
}

template <class Id>
uint8_t *put_composite(Id id, const void *record, uint8_t *at) {
    uint8_t *const first = at + headerSize;
    uint8_t *const end = by_kind<is_sequence>(
        id,
        [&](auto sequence) TARN_INLINE_LAMBDA {
            return put_slots<0>(owner_of(sequence), record, sequenceMaskOffset, first);
        },
        [&](auto list) TARN_INLINE_LAMBDA { return put_elements(list, record, first); });
    store_header(at, id, uint32_t(end - first));
    return end;
}

// ---- Filling a record from bytes that were judged good -----------------------------------------

template <class Id>
const uint8_t *fill_composite(Id id, void *record, const uint8_t *at, const uint8_t *end);

// Stores the IE that stands here in its owner's record. Presence bits are set and never cleared,
// and the members of absent IEs are left alone: a caller may gather several messages into one
// record.
template <class AnySlot>
TARN_INLINE const uint8_t *fill_member(const AnySlot &slot, void *record, unsigned maskOffset,
                                       const uint8_t *at, const uint8_t *end) {
    if (slot.presence != Presence::mandatory)
        *static_cast<uint8_t *>(at_offset(record, maskOffset)) |= slot.presenceBit;
    void *const member = at_offset(record, slot.recordOffset);
    return by_kind<is_primitive>(
        slot.type,
        [&](auto primitive) TARN_INLINE_LAMBDA { return fill_value(primitive, member, at); },
        [&](auto composite) TARN_INLINE_LAMBDA {
            return with_composite(composite, [&](auto known) TARN_INLINE_LAMBDA {
                return fill_composite(known, member, at, end);
            });
        });
}

template <class Owner>
TARN_SHARED const uint8_t *fill_slots(const Owner &owner, void *record, unsigned maskOffset,
                                      const uint8_t *at, const uint8_t *end) {
    each_slot(owner, [&](const auto &slot) TARN_INLINE_LAMBDA {
        if (slot.presence == Presence::mandatory || (at != end && load16(at) == slot.type))
            [[likely]]
            at = fill_member(slot, record, maskOffset, at, end);
        return true;
    });
    return at;
}

template <class Id>
TARN_INLINE const uint8_t *fill_elements(Id id, void *record, const uint8_t *at, uint32_t length,
                                         const uint8_t *end) {
    const Type &type = type_of(id);
    const uint8_t *const stop = at + length;
    uint16_t count = 0;
    while (at != stop)
        at = fill_composite(element_of(id), item_of(type, record, count++), at, end);
    *static_cast<uint16_t *>(record) = count;
    return at;
}

template <class Id>
const uint8_t *fill_composite(Id id, void *record, const uint8_t *at, const uint8_t *end) {
    const uint32_t length = load32(at + tagSize);
    at += headerSize;
    return by_kind<is_sequence>(
        id,
        [&](auto sequence) TARN_INLINE_LAMBDA {
            return fill_slots(owner_of(sequence), record, sequenceMaskOffset, at, end);
        },
        [&](auto list) TARN_INLINE_LAMBDA { return fill_elements(list, record, at, length, end); });
}

// Stores what the message that was judged good shares with the record's type.
void fill_shared(const SlotTable &table, const SlotTable &own, Input in, void *record) {
    const NumbersInBytes numbers{table, in.at};
    for (const Slot *slot = slots_begin(table); slot != slots_end(table); ++slot) {
        const uint8_t *const at = in.at;
        if (judge_slot(*slot, numbers, &in) != Fate::taken)
            continue;
        for (const Slot *shared = slots_begin(own); shared != slots_end(own); ++shared)
            if (shared->type == slot->type)
                fill_member(*shared, record, msgMaskOffset, at, in.at);
    }
}

[[gnu::cold]] uint32_t fail_get() {
    velSwTokenDebug(getToken, 0);
    return 0;
}

// The message may be any: it is decoded as what it says that it is.
[[gnu::noinline]] uint32_t get_any(const uint8_t *buffer, uint32_t length, void *record,
                                   MessageNumber own) {
    const uint32_t id = peek_message_id(buffer, length);
    if (id >= messageCount || slots_of(MessageNumber(id)).count == 0)
        return fail_get();
    const SlotTable &table = slots_of(MessageNumber(id));
    if (judge_msg(table, buffer, length) == nullptr)
        return fail_get();
    fill_shared(table, slots_of(own), Input{buffer, length}, record);
    return 1;
}

[[gnu::cold]] uint32_t fail_build(uint32_t token) {
    velSwTokenDebug(token, 0);
    return 0;
}

[[gnu::cold]] uint32_t refuse_record(const Message &message, Reason reason) {
    return fail_build(reason == Reason::outOfRange ? message.appendToken : message.validityToken);
}

[[gnu::cold]] uint32_t refuse_room(const Message &message) {
    velSwFatalError("", moduleApi, __LINE__);
    return fail_build(message.packToken);
}

} // namespace

// The first slot is the MessageId IE: the record's own id is not read.
template <class Id>
uint32_t build_msg(uint8_t *buffer, uint32_t size, const void *record, Id id) {
    if (any_null(TARN_CALLER(moduleApi), buffer, record))
        return 0;
    const Outcome outcome = measure_slots<msgSkips>(behind_message_id(id), record, msgMaskOffset);
    if (outcome.reason != Reason::none) [[unlikely]]
        return refuse_record(catalogue.messages[id], outcome.reason);
    const uint8_t number = id;
    const uint32_t needed = headerSize + sizeof number + outcome.size;
    if (needed > size) [[unlikely]]
        return refuse_room(catalogue.messages[id]);
    put_slots<msgSkips>(behind_message_id(id), record, msgMaskOffset,
                        put_ie(asBuilt<typeMessageId>, &number, buffer));
    return needed;
}

template <class Id>
uint32_t get_msg(const uint8_t *buffer, uint32_t length, void *record, Id id) {
    if (any_null(TARN_CALLER(moduleApi), buffer, record))
        return 0;
#ifdef TARN_BUILT_FOR_SPEED
    const uint8_t *const end = plain_slots(owner_of(id), {buffer, ptrdiff_t(length)}).at;
    if (end != nullptr && buffer[headerSize] == id) [[likely]] {
        fill_slots(id, record, msgMaskOffset, buffer, end);
        return 1;
    }
#endif
    return get_any(buffer, length, record, id);
}

#ifdef TARN_BUILT_FOR_SPEED
#define MESSAGE(name_, ...)                                                                        \
    template uint32_t build_msg(uint8_t *, uint32_t, const void *, Constant<message##name_>);      \
    template uint32_t get_msg(const uint8_t *, uint32_t, void *, Constant<message##name_>);
#include "catalogue/messages.def"
#else
template uint32_t build_msg(uint8_t *, uint32_t, const void *, MessageNumber);
template uint32_t get_msg(const uint8_t *, uint32_t, void *, MessageNumber);
#endif

} // namespace tarn
