// A short cut for judging: it recognises bytes of the usual form, where every IE is in order,
// whole, in range and exactly as long as its length field says. Anything else takes the long way
// through judging.h, which has the rules. Only an engine built for speed has this.
#ifndef TARN_PLAIN_H
#define TARN_PLAIN_H

#include "tarn_if_conditional_funcs/conditions.h"
#include "tarn_if_internal_funcs/judging.h"
#include "tarn_if_internal_funcs/slots.h"
#include "tarn_if_internal_funcs/values.h"
#include "wire.h"

namespace [[gnu::visibility("hidden")]] tarn {

#ifdef TARN_BUILT_FOR_SPEED

// ---- IEs that take the same bytes whenever they are valid --------------------------------------

// The size of such a value, or 0 for any other.
constexpr uint32_t constant_size(TypeId id) {
    const Type &type = type_of(id);
    if (is_number(type.kind))
        return type.fixedSize;
    const bool isOne = type.least == type.greatest;
    if (type.kind == Kind::bytes)
        return isOne ? type.greatest : 0;
    uint32_t size = 0;
    if (type.kind == Kind::list && isOne && constant_size(type.array.item) != 0)
        return type.greatest * (headerSize + constant_size(type.array.item));
    if (type.kind != Kind::record)
        return 0; // GCOVR_EXCL_LINE, asked by the compiler alone
    for (unsigned i = 0; i < type.slots.count; ++i) {
        const uint32_t part = constant_size(catalogue.members[type.slots.first + i].type);
        if (part == 0)
            return 0; // GCOVR_EXCL_LINE, asked by the compiler alone
        size += headerSize + part;
    }
    return size;
}

// The size of such a whole IE, or 0.
template <TypeId id>
constexpr uint32_t constant_ie_size(Constant<id>) {
    return constant_size(id) == 0 ? 0 : headerSize + constant_size(id);
}

TARN_INLINE bool has_header(const uint8_t *at, uint32_t tag, uint32_t length) {
    return load32(at) == (tag << 16 | length >> 16) && load16(at + 4) == (length & 0xFFFF);
}

// Whether such an IE stands here, where enough bytes are left for it.
template <TypeId id>
TARN_INLINE bool is_plain(Constant<id> known, const uint8_t *at) {
    constexpr const Type &type = type_of(id);
    if (!has_header(at, id, constant_size(id)))
        return false;
    at += headerSize;
    if constexpr (type.kind == Kind::record) {
        return each_member(known, [&](const auto &member) TARN_INLINE_LAMBDA {
            const uint8_t *const part = at;
            at += constant_ie_size(member.type);
            return is_plain(member.type, part);
        });
    } else if constexpr (type.kind == Kind::list) {
        for (uint32_t i = 0; i < type.greatest; ++i)
            if (!is_plain(element_of(known), at + i * constant_ie_size(element_of(known))))
                return false;
        return true;
    } else {
        return type.kind == Kind::bytes || type.acceptsAll != 0 ||
               in_range(type, load_wire(at, type.fixedSize));
    }
}

// ---- Any IE ------------------------------------------------------------------------------------

// Each returns where the IE ends, or null if it is not plainly good.

template <class Id>
const uint8_t *plain_composite(Id id, const uint8_t *at, const uint8_t *end);

template <TypeId id>
TARN_INLINE const uint8_t *plain_ie(Constant<id>, const uint8_t *at, const uint8_t *end);

template <TypeId id>
TARN_INLINE const uint8_t *plain_parts(Constant<id> known, const uint8_t *at, const uint8_t *stop) {
    constexpr const Type &type = type_of(id);
    if constexpr (type.kind == Kind::record) {
        each_member(known, [&](const auto &member) TARN_INLINE_LAMBDA {
            at = plain_ie(member.type, at, stop);
            return at != nullptr;
        });
        return at;
    } else {
        uint32_t count = 0;
        for (; at != nullptr && at != stop; ++count)
            at = count < type.greatest ? plain_ie(element_of(known), at, stop) : nullptr;
        return count >= type.least ? at : nullptr;
    }
}

template <TypeId id>
TARN_INLINE const uint8_t *plain_ie(Constant<id> known, const uint8_t *at, const uint8_t *end) {
    constexpr const Type &type = type_of(id);
    const size_t left = size_t(end - at);
    if constexpr (is_composite(type.kind)) {
        return plain_composite(known, at, end);
    } else if constexpr (constant_ie_size(Constant<id>()) != 0) {
        constexpr uint32_t size = constant_ie_size(Constant<id>());
        return left >= size && is_plain(known, at) ? at + size : nullptr;
    } else {
        if (left < headerSize || load16(at) != id)
            return nullptr;
        const uint32_t length = load32(at + tagSize);
        if (length > left - headerSize)
            return nullptr;
        at += headerSize;
        if constexpr (type.kind == Kind::bytes)
            return in_range(type, length) ? at + length : nullptr;
        else
            return plain_parts(known, at, at + length) == at + length ? at + length : nullptr;
    }
}

// ---- Messages and composites -------------------------------------------------------------------

struct Run {
    unsigned slots;
    uint32_t size;
};

// The mandatory slots that an owner begins with and whose IEs take the same bytes.
constexpr Run leading_run(const SlotTable &table) {
    Run run{0, 0};
    for (; run.slots < table.mandatory; ++run.slots) {
        const uint32_t size = constant_size(catalogue.slots[table.first + run.slots].type);
        if (size == 0)
            break;
        run.size += headerSize + size;
    }
    return run;
}

template <class Owner>
TARN_INLINE const uint8_t *plain_run(const uint8_t *at, const uint8_t *end) {
    constexpr Run run = leading_run(slots_of(Owner::value));
    if (size_t(end - at) < run.size)
        return nullptr;
    auto visit = [&](const auto &slot) TARN_INLINE_LAMBDA {
        const uint8_t *const ie = at;
        at += constant_ie_size(slot.type);
        return is_plain(slot.type, ie);
    };
    constexpr unsigned first = slots_of(Owner::value).first;
    return visit_fixed<&Catalogue::slots, first>(IndicesBelow<run.slots>(), visit) ? at : nullptr;
}

// `at` is the first IE. An absent optional child is skipped. One that is cut off counts as absent,
// since nothing can follow it.
template <class Owner>
TARN_INLINE const uint8_t *plain_slots(Owner owner, const uint8_t *at, const uint8_t *end) {
    constexpr Run run = leading_run(slots_of(Owner::value));
    const NumbersInBytes numbers{at};
    at = plain_run<Owner>(at, end);
    if (at == nullptr)
        return nullptr;
    each_slot_behind<run.slots>(owner, [&](const auto &slot) TARN_INLINE_LAMBDA {
        const bool isNeeded = slot.presence == Presence::mandatory ||
                              (is_conditional(slot) && condition_holds(slot.condition, numbers));
        const bool isTried = isNeeded || !is_conditional(slot);
        const uint8_t *const next = isTried ? plain_ie(slot.type, at, end) : nullptr;
        const bool isAbsent = next == nullptr && !isNeeded &&
                              (size_t(end - at) < headerSize || load16(at) != slot.type);
        at = isAbsent ? at : next;
        return at != nullptr;
    });
    return at;
}

// Elements are bounded by the buffer and must end where their list does.
template <class Id>
TARN_INLINE const uint8_t *plain_elements(Id id, const uint8_t *at, uint32_t length,
                                          const uint8_t *end) {
    const Type &type = type_of(id);
    if (length > size_t(end - at))
        return nullptr;
    const uint8_t *const stop = at + length;
    uint32_t count = 0;
    for (; at < stop; ++count) {
        at = count < type.greatest ? plain_composite(element_of(id), at, end) : nullptr;
        if (at == nullptr)
            return nullptr;
    }
    return at == stop && count >= type.least ? at : nullptr;
}

template <class Id>
const uint8_t *plain_composite(Id id, const uint8_t *at, const uint8_t *end) {
    if (size_t(end - at) < headerSize || load16(at) != id)
        return nullptr;
    const uint32_t length = load32(at + tagSize);
    at += headerSize;
    return by_kind<is_sequence>(
        id, [&](auto sequence) TARN_INLINE_LAMBDA { return plain_slots(sequence, at, end); },
        [&](auto list) TARN_INLINE_LAMBDA { return plain_elements(list, at, length, end); });
}

#endif

// Returns where the message's last IE ends, or null if the message is refused.
template <class Owner>
TARN_INLINE const uint8_t *end_of_msg(const Owner &owner, const uint8_t *buffer, uint32_t length) {
#ifdef TARN_BUILT_FOR_SPEED
    const uint8_t *const end = plain_slots(owner, buffer, buffer + length);
    if (end != nullptr) [[likely]]
        return end;
#endif
    return judge_msg(slots_of(owner), buffer, length);
}

} // namespace tarn

#endif
