// Filling: values from bytes that were judged good. Nothing is checked here and nothing can fail.
//
// Whether a type accepts the bytes at a place does not depend on which slot asks. So within what
// the judge accepted, an IE whose tag matches the slot being tried belongs to that slot, and
// whatever was left out lies behind. A value's length may still declare more than its parts use.
#ifndef TARN_FILLING_H
#define TARN_FILLING_H

#include "tarn_if_internal_funcs/slots.h"
#include "tarn_if_internal_funcs/values.h"
#include "wire.h"

namespace [[gnu::visibility("hidden")]] tarn {

// Stores the value of the primitive IE that stands here and returns where the next IE begins.
const uint8_t *fill_any(TypeId id, void *to, const uint8_t *at);

template <class Id>
TARN_INLINE const uint8_t *fill_known(Id id, void *to, const uint8_t *at);

template <class Id>
TARN_INLINE const uint8_t *fill_value(Id id, void *to, const uint8_t *at) {
    if constexpr (isConstant<Id>)
        return fill_known(id, to, at);
    else
        return fill_any(id, to, at);
}

template <class Id>
TARN_INLINE const uint8_t *fill_list(Id id, void *to, const uint8_t *at, uint32_t length) {
    const Type &type = type_of(id);
    const uint8_t *const start = at;
    uint32_t count = 0;
    for (; uint32_t(at - start) < length; ++count)
        at = fill_value(element_of(id), item_of(type, to, count), at);
    store_count(to, count);
    return at;
}

template <class Id>
TARN_INLINE const uint8_t *fill_record(Id id, void *to, const uint8_t *at) {
    each_member(id, [&](const auto &member) TARN_INLINE_LAMBDA {
        at = fill_value(member.type, at_offset(to, member.offset), at);
        return true;
    });
    return at;
}

template <class Id>
TARN_INLINE const uint8_t *fill_known(Id id, void *to, const uint8_t *at) {
    const Type &type = type_of(id);
    const uint32_t length = load32(at + tagSize);
    at += headerSize;
    if (is_number(type.kind)) {
        store_number(type.kind, to, load_wire(at, type.fixedSize));
        return at + type.fixedSize;
    }
    if (type.kind == Kind::bytes) {
        const uint32_t count = type.least == type.greatest ? type.greatest : length;
        store_count(to, count);
        memcpy(at_offset(to, sizeof(uint32_t)), at, count);
        return at + count;
    }
    return by_kind<is_list>(
        id, [&](auto list) TARN_INLINE_LAMBDA { return fill_list(list, to, at, length); },
        [&](auto record) TARN_INLINE_LAMBDA { return fill_record(record, to, at); });
}

} // namespace tarn

#endif
