// Values of a type that is known where the code is compiled: measured, and then written without a
// check, once there is room. Any other type goes the way of values.h.
#ifndef TARN_WRITING_H
#define TARN_WRITING_H

#include "tarn_if_internal_funcs/slots.h"
#include "tarn_if_internal_funcs/values.h"

namespace [[gnu::visibility("hidden")]] tarn {

TARN_INLINE uint32_t measure_ie(TypeId id, const void *value) {
    return measure_any(id, value);
}

// Returns the size of the whole IE, or 0 for an invalid value.
template <TypeId id>
TARN_INLINE uint32_t measure_ie(Constant<id> known, const void *value) {
    constexpr const Type &type = type_of(id);
    uint32_t size = headerSize;
    bool ok = true;
    const auto add = [&](auto part, const void *at) TARN_INLINE_LAMBDA {
        const uint32_t partSize = measure_ie(part, at);
        size += partSize;
        return partSize != 0;
    };
    if constexpr (is_number(type.kind)) {
        ok = type.acceptsAll != 0 || in_range(type, load_number(type.kind, value));
        size += type.fixedSize;
    } else if constexpr (type.kind == Kind::record) {
        ok = each_member(known, [&](const auto &member) TARN_INLINE_LAMBDA {
            return add(member.type, at_offset(value, member.offset));
        });
    } else {
        const uint32_t count = stored_count(value);
        ok = in_range(type, count);
        if constexpr (type.kind == Kind::bytes)
            size += count;
        else
            for (uint32_t i = 0; ok && i < count; ++i)
                ok = add(element_of(known), item_of(type, value, i));
    }
    return ok ? size : 0;
}

TARN_INLINE uint8_t *put_ie(TypeId id, const void *value, uint8_t *at) {
    return put_any(id, value, at);
}

// Writes the whole IE, whose value is valid, and returns where it ends.
template <TypeId id>
TARN_INLINE uint8_t *put_ie(Constant<id> known, const void *value, uint8_t *at) {
    constexpr const Type &type = type_of(id);
    uint8_t *const header = at;
    at += headerSize;
    uint32_t length = type.fixedSize;
    if constexpr (is_number(type.kind)) {
        store_header(header, id, length);
        store_wire(at, length, load_number(type.kind, value));
        return at + length;
    } else if constexpr (type.kind == Kind::bytes) {
        length = type.least == type.greatest ? type.greatest : stored_count(value);
        memcpy(at, at_offset(value, sizeof(uint32_t)), length);
        at += length;
    } else if constexpr (type.kind == Kind::record) {
        each_member(known, [&](const auto &member) TARN_INLINE_LAMBDA {
            at = put_ie(member.type, at_offset(value, member.offset), at);
            return true;
        });
    } else {
        for (uint32_t i = 0; i < stored_count(value); ++i)
            at = put_ie(element_of(known), item_of(type, value, i), at);
    }
    store_header(header, id, length != 0 ? length : uint32_t(at - header) - headerSize);
    return at;
}

} // namespace tarn

#endif
