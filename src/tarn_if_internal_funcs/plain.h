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

// What is left of the bytes. The count is signed so that the compiler may compare an earlier count
// instead of subtracting first. Bytes too many for it look like none, and take the long way.
struct Rest {
    const uint8_t *at = nullptr;
    ptrdiff_t left = 0;

    TARN_INLINE Rest behind(uint32_t count) const { return {at + count, left - ptrdiff_t(count)}; }
};

// Each returns what is left behind the IE, or nothing, at null, if it is not plainly good.

template <class Id>
Rest plain_composite(Id id, Rest in);

template <TypeId id>
TARN_INLINE Rest plain_ie(Constant<id>, Rest in);

// Whether the parts of a value use it up.
template <TypeId id>
TARN_INLINE bool are_plain_parts(Constant<id> known, Rest value) {
    constexpr const Type &type = type_of(id);
    if constexpr (type.kind == Kind::record) {
        const bool isPlain = each_member(known, [&](const auto &member) TARN_INLINE_LAMBDA {
            value = plain_ie(member.type, value);
            return value.at != nullptr;
        });
        return isPlain && value.left == 0;
    } else {
        uint32_t count = 0;
        for (; value.at != nullptr && value.left != 0; ++count)
            value = count < type.greatest ? plain_ie(element_of(known), value) : Rest{};
        return value.at != nullptr && count >= type.least;
    }
}

template <TypeId id>
TARN_INLINE Rest plain_ie(Constant<id> known, Rest in) {
    constexpr const Type &type = type_of(id);
    if constexpr (is_composite(type.kind)) {
        return plain_composite(known, in);
    } else if constexpr (constant_ie_size(Constant<id>()) != 0) {
        constexpr uint32_t size = constant_ie_size(Constant<id>());
        return in.left >= ptrdiff_t(size) && is_plain(known, in.at) ? in.behind(size) : Rest{};
    } else {
        if (in.left < ptrdiff_t(headerSize) || load16(in.at) != id)
            return Rest{};
        const uint32_t length = load32(in.at + tagSize);
        in = in.behind(headerSize);
        if (length > size_t(in.left))
            return Rest{};
        if constexpr (type.kind == Kind::bytes)
            return in_range(type, length) ? in.behind(length) : Rest{};
        else
            return are_plain_parts(known, {in.at, ptrdiff_t(length)}) ? in.behind(length) : Rest{};
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

// `in` begins with the first IE. An absent optional child is skipped. One that is cut off counts as
// absent, since nothing can follow it.
template <class Owner>
TARN_INLINE Rest plain_slots(Owner owner, Rest in) {
    constexpr const SlotTable &table = slots_of(Owner::value);
    constexpr Run run = leading_run(table);
    const NumbersInBytes numbers{table, in.at};
    const uint8_t *at = in.at;
    const auto stands_next = [&](const auto &slot) TARN_INLINE_LAMBDA {
        const uint8_t *const ie = at;
        at += constant_ie_size(slot.type);
        return is_plain(slot.type, ie);
    };
    if (in.left < ptrdiff_t(run.size) ||
        !visit_fixed<&Catalogue::slots, table.first>(IndicesBelow<run.slots>(), stands_next))
        return Rest{};
    in = in.behind(run.size);
    each_slot_behind<run.slots>(owner, [&](const auto &slot) TARN_INLINE_LAMBDA {
        const bool isNeeded = slot.presence == Presence::mandatory ||
                              (is_conditional(slot) && condition_holds(slot.condition, numbers));
        const bool isTried = isNeeded || !is_conditional(slot);
        const Rest next = isTried ? plain_ie(slot.type, in) : Rest{};
        if (next.at != nullptr) [[likely]] {
            in = next;
            return true;
        }
        if (isNeeded || (in.left >= ptrdiff_t(headerSize) && load16(in.at) == slot.type))
            in = Rest{};
        return in.at != nullptr;
    });
    return in;
}

// Elements are bounded by the buffer and must end where their list does.
template <class Id>
TARN_INLINE Rest plain_elements(Id id, Rest in, uint32_t length) {
    const Type &type = type_of(id);
    if (length > size_t(in.left))
        return Rest{};
    const ptrdiff_t behind = in.left - ptrdiff_t(length);
    uint32_t count = 0;
    for (; in.left > behind; ++count) {
        in = count < type.greatest ? plain_composite(element_of(id), in) : Rest{};
        if (in.at == nullptr)
            return in;
    }
    return in.left == behind && count >= type.least ? in : Rest{};
}

template <class Id>
Rest plain_composite(Id id, Rest in) {
    if (in.left < ptrdiff_t(headerSize) || load16(in.at) != id)
        return Rest{};
    const uint32_t length = load32(in.at + tagSize);
    in = in.behind(headerSize);
    return by_kind<is_sequence>(
        id, [&](auto sequence) TARN_INLINE_LAMBDA { return plain_slots(sequence, in); },
        [&](auto list) TARN_INLINE_LAMBDA { return plain_elements(list, in, length); });
}

#endif

// Returns where the message's last IE ends, or null if the message is refused.
template <class Owner>
TARN_INLINE const uint8_t *end_of_msg(const Owner &owner, const uint8_t *buffer, uint32_t length) {
#ifdef TARN_BUILT_FOR_SPEED
    const uint8_t *const end = plain_slots(owner, {buffer, ptrdiff_t(length)}).at;
    if (end != nullptr) [[likely]]
        return end;
#endif
    return judge_msg(slots_of(owner), buffer, length);
}

} // namespace tarn

#endif
