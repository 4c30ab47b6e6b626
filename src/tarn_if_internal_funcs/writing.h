// Writing values without a check, once they are known to be good and the room for them is there.
#ifndef TARN_WRITING_H
#define TARN_WRITING_H

#include "tarn_if_internal_funcs/slots.h"
#include "tarn_if_internal_funcs/values.h"
#include "wire.h"

namespace [[gnu::visibility("hidden")]] tarn {

// Returns the size of the whole primitive IE that holds this value, or 0 if the value is invalid.
template <class Id>
TARN_INLINE uint32_t measure_ie(Id id, const void *value);

template <class Id>
TARN_INLINE uint32_t measure_parts(Id id, const void *value) {
    const Type &type = type_of(id);
    uint32_t size = headerSize;
    bool ok = true;
    if constexpr (is_list(type_of(Id::value).kind)) {
        const uint32_t count = stored_count(value);
        ok = in_range(type, count);
        for (uint32_t i = 0; ok && i < count; ++i) {
            const uint32_t part = measure_ie(element_of(id), item_of(type, value, i));
            size += part;
            ok = part != 0;
        }
    } else {
        ok = each_member(id, [&](const auto &member) TARN_INLINE_LAMBDA {
            const uint32_t part = measure_ie(member.type, at_offset(value, member.offset));
            size += part;
            return part != 0;
        });
    }
    return ok ? size : 0;
}

template <class Id>
TARN_INLINE uint32_t measure_ie(Id id, const void *value) {
    const Type &type = type_of(id);
    if (is_number(type.kind))
        return in_range(type, load_number(type.kind, value)) ? headerSize + type.fixedSize : 0;
    if (type.kind == Kind::bytes)
        return in_range(type, stored_count(value)) ? headerSize + stored_count(value) : 0;
    if constexpr (isConstant<Id>)
        return measure_parts(id, value);
    else
        return value_is_valid(id, value) ? headerSize + value_size(id, value) : 0;
}

// Writes the whole primitive IE and returns where the next one begins.
template <class Id>
TARN_INLINE uint8_t *put_ie(Id id, const void *value, uint8_t *at);

template <class Id>
TARN_INLINE uint8_t *put_parts(Id id, const void *value, uint8_t *at) {
    const Type &type = type_of(id);
    if constexpr (is_list(type_of(Id::value).kind)) {
        const uint32_t count = stored_count(value);
        for (uint32_t i = 0; i < count; ++i)
            at = put_ie(element_of(id), item_of(type, value, i), at);
    } else {
        each_member(id, [&](const auto &member) TARN_INLINE_LAMBDA {
            at = put_ie(member.type, at_offset(value, member.offset), at);
            return true;
        });
    }
    return at;
}

template <class Id>
TARN_INLINE uint8_t *put_ie(Id id, const void *value, uint8_t *at) {
    const Type &type = type_of(id);
    if (is_number(type.kind)) {
        store_header(at, id, type.fixedSize);
        store_wire(at + headerSize, type.fixedSize, load_number(type.kind, value));
        return at + headerSize + type.fixedSize;
    }
    if (type.kind == Kind::bytes) {
        const uint32_t length = type.least == type.greatest ? type.greatest : stored_count(value);
        store_header(at, id, length);
        memcpy(at + headerSize, at_offset(value, sizeof(uint32_t)), length);
        return at + headerSize + length;
    }
    if constexpr (isConstant<Id>) {
        uint8_t *const end = put_parts(id, value, at + headerSize);
        const uint32_t length =
            type.fixedSize != 0 ? type.fixedSize : uint32_t(end - at) - headerSize;
        store_header(at, id, length);
        return end;
    } else {
        uint32_t written = 0;
        write_tlv(id, value, Output{at, UINT32_MAX}, &written);
        return at + written;
    }
}

} // namespace tarn

#endif
