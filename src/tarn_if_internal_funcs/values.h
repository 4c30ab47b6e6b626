// Values of primitive IEs: one function per verb, which switches on the kind of the type.
//
// Nothing here checks for null pointers; the operations that callers reach do. A value's stored
// length or count is never followed beyond its array. Scalars are most of the protocol, so their
// few instructions stand here, for the walks to take in without a call.
#ifndef TARN_VALUES_H
#define TARN_VALUES_H

#include <string.h>

#include "tarn_if_internal_funcs/constants.h"
#include "wire.h"

namespace [[gnu::visibility("hidden")]] tarn {

// Returns the number of value bytes on the wire. A byte string answers its stored length, whatever
// it is; a list counts the items that its array can hold at most.
uint32_t value_size(TypeId id, const void *value);

// Writes the value and sets *written, returning true; or returns false when it does not fit or
// cannot be written. Then *written is untouched for a scalar or byte string, and holds the bytes
// before the point of failure for a record or list.
bool write_value(TypeId id, const void *value, Output out, uint32_t *written);

// What the three below come to: for any type, and built for speed for each record and list.
bool any_is_valid(TypeId id, const void *value);
bool write_any_tlv(TypeId id, const void *value, Output out, uint32_t *written);
template <class Id>
bool known_is_valid(Id id, const void *value);
template <class Id>
bool write_known_tlv(Id id, const void *value, Output out, uint32_t *written);

template <class Id>
constexpr bool has_own_codec() {
    if constexpr (isConstant<Id>)
        return type_of(Id::value).kind == Kind::record || type_of(Id::value).kind == Kind::list;
    else
        return false;
}

// The constant for a type that has functions of its own, else the plain type: many types then share
// what is compiled for it.
template <class Id>
constexpr auto as_coded(Id id) {
    if constexpr (has_own_codec<Id>())
        return id;
    else
        return TypeId(id);
}

// Whether the value lies in its type's range; for a record and a list, with all that it holds.
template <class Id>
TARN_INLINE bool value_is_valid(Id id, const void *value) {
    if constexpr (has_own_codec<Id>())
        return type_of(id).acceptsAll != 0 || known_is_valid(id, value);
    else
        return any_is_valid(id, value);
}

// Writes tag, length and value, setting *written, and returns true; or false with the bytes before
// the point of failure: 0, or the header's 6 when the value cannot be written.
template <class Id>
TARN_INLINE bool write_tlv(Id id, const void *value, Output out, uint32_t *written) {
    if constexpr (has_own_codec<Id>())
        return write_known_tlv(id, value, out, written);
    else
        return write_any_tlv(id, value, out, written);
}

// ---- Numbers -----------------------------------------------------------------------------------

TARN_INLINE uint32_t load_number(Kind kind, const void *value) {
    if (kind >= Kind::code)
        return *static_cast<const uint32_t *>(value);
    if (kind == Kind::number16)
        return *static_cast<const uint16_t *>(value);
    return *static_cast<const uint8_t *>(value);
}

TARN_INLINE void store_number(Kind kind, void *value, uint32_t number) {
    if (kind >= Kind::code)
        *static_cast<uint32_t *>(value) = number;
    else if (kind == Kind::number16)
        *static_cast<uint16_t *>(value) = uint16_t(number);
    else
        *static_cast<uint8_t *>(value) = uint8_t(number);
}

TARN_INLINE uint32_t wire_width(Kind kind) {
    if (kind == Kind::number32)
        return 4;
    return kind == Kind::number8 ? 1 : 2;
}

// The bytes of a number on the wire. Of a code word only the low 16 bits travel, and callers may
// leave flags of their own above them.
TARN_INLINE void store_wire(uint8_t *at, uint32_t width, uint32_t number) {
    if (width == 4)
        store32(at, number);
    else if (width == 2)
        store16(at, number);
    else
        *at = uint8_t(number);
}

TARN_INLINE uint32_t load_wire(const uint8_t *at, uint32_t width) {
    if (width == 4)
        return load32(at);
    return width == 2 ? load16(at) : *at;
}

TARN_INLINE bool in_range(const Type &type, uint32_t number) {
    return number >= type.least && number <= type.greatest;
}

// ---- Whole IEs ---------------------------------------------------------------------------------

// Writes a whole number IE and returns its size, or returns 0 when it does not fit.
TARN_INLINE uint32_t write_number_ie(Kind kind, uint32_t tag, uint32_t number, Output out) {
    const uint32_t width = wire_width(kind);
    if (out.left < headerSize + width)
        return 0;
    store_header(out.at, tag, width);
    store_wire(out.at + headerSize, width, number);
    return headerSize + width;
}

// ---- Byte strings ------------------------------------------------------------------------------

// A byte string and a list begin with their count; the bytes or items follow.
inline uint32_t stored_count(const void *value) {
    return *static_cast<const uint32_t *>(value);
}
inline void store_count(void *value, uint32_t count) {
    *static_cast<uint32_t *>(value) = count;
}

// Writes a whole byte string IE and returns its size, or returns 0 when it does not fit or its
// length is beyond its array.
TARN_INLINE uint32_t write_bytes_ie(TypeId id, const void *value, Output out) {
    const Type &type = type_of(id);
    const uint32_t length = stored_count(value);
    const uint32_t *bytes = static_cast<const uint32_t *>(value) + 1;
    // A string of one length only is copied by a move or two.
    if (type.least == type.greatest && length == type.greatest &&
        out.left >= headerSize + type.greatest) {
        store_header(out.at, id, type.greatest);
        memcpy(out.at + headerSize, bytes, type.greatest);
        return headerSize + type.greatest;
    }
    if (length > type.capacity || out.left < headerSize || length > out.left - headerSize)
        return 0;
    store_header(out.at, id, length);
    memcpy(out.at + headerSize, bytes, length);
    return headerSize + length;
}

// Copies a whole value record, for a byte string with all of its array. Large values are copied by
// the C library, which knows the processor, and not by what the compiler would put here for any.
TARN_INLINE void copy_value(const Type &type, void *to, const void *from) {
    constexpr size_t smallSize = 64; // copied by a few moves
    size_t size = type.valueSize;
    if (is_number(type.kind)) {
        store_number(type.kind, to, load_number(type.kind, from));
        return;
    }
    if (builtForSpeed && size > smallSize)
        asm("" : "+r"(size)); // no constant any more
    memcpy(to, from, size);
}

} // namespace tarn

#endif
