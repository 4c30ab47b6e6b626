// Values of primitive IEs: one function per verb, which switches on the kind of the type.
//
// Nothing here checks for null pointers; the operations that callers reach do. A value's stored
// length or count is never followed beyond its array. Scalars are most of the protocol, so their
// few instructions stand here, for the walks to take in without a call.
#ifndef TARN_VALUES_H
#define TARN_VALUES_H

#include <string.h>

#include "catalogue/descriptors.h"
#include "tarn_if_internal_funcs/wire.h"

namespace [[gnu::visibility("hidden")]] tarn {

// Returns the number of value bytes on the wire. A byte string answers its stored length, whatever
// it is; a list counts the items that its array can hold at most.
uint32_t value_size(TypeId id, const void *value);

// Writes the value and sets *written, returning true; or returns false when it does not fit or
// cannot be written. Then *written is untouched for a scalar or byte string, and holds the bytes
// before the point of failure for a record or list.
bool write_value(TypeId id, const void *value, Output out, uint32_t *written);

// Reads a value of `length` bytes and sets *consumed, returning true; or returns false. Then
// *consumed is untouched for a scalar or byte string, and holds the bytes before the point of
// failure for a record or list.
bool read_value(TypeId id, void *value, uint32_t length, Input in, uint32_t *consumed);

// Whether the value lies in its type's range; for a record and a list, with all that it holds.
bool value_is_valid(TypeId id, const void *value);

// Writes tag, length and value, setting *written, and returns true; or false with the bytes before
// the point of failure: 0, or the header's 6 when the value cannot be written.
bool write_tlv(TypeId id, const void *value, Output out, uint32_t *written);

// Reads tag, length and value, setting *consumed, and returns true; or false with the bytes before
// the point of failure: 0 at the tag, 2 at the length, 6 at the value.
bool read_tlv(TypeId id, void *value, Input in, uint32_t *consumed);

// ---- Numbers -----------------------------------------------------------------------------------

inline uint32_t load_number(Kind kind, const void *value) {
    if (kind >= Kind::code)
        return *static_cast<const uint32_t *>(value);
    if (kind == Kind::number16)
        return *static_cast<const uint16_t *>(value);
    return *static_cast<const uint8_t *>(value);
}

inline void store_number(Kind kind, void *value, uint32_t number) {
    if (kind >= Kind::code)
        *static_cast<uint32_t *>(value) = number;
    else if (kind == Kind::number16)
        *static_cast<uint16_t *>(value) = uint16_t(number);
    else
        *static_cast<uint8_t *>(value) = uint8_t(number);
}

inline uint32_t wire_width(Kind kind) {
    if (kind == Kind::number32)
        return 4;
    return kind == Kind::number8 ? 1 : 2;
}

// The bytes of a number on the wire. Of a code word only the low 16 bits travel, and callers may
// leave flags of their own above them.
inline void store_wire(uint8_t *at, uint32_t width, uint32_t number) {
    if (width == 4)
        store32(at, number);
    else if (width == 2)
        store16(at, number);
    else
        *at = uint8_t(number);
}

inline uint32_t load_wire(const uint8_t *at, uint32_t width) {
    if (width == 4)
        return load32(at);
    return width == 2 ? load16(at) : *at;
}

inline bool in_range(const Type &type, uint32_t number) {
    return number >= type.least && number <= type.greatest;
}

// ---- Whole IEs ---------------------------------------------------------------------------------

// Writes a whole number IE and returns its size, or returns 0 when it does not fit.
inline uint32_t write_number_ie(Kind kind, uint32_t tag, uint32_t number, Output out) {
    const uint32_t width = wire_width(kind);
    if (out.left < headerSize + width)
        return 0;
    store16(out.at, tag);
    store32(out.at + tagSize, width);
    store_wire(out.at + headerSize, width, number);
    return headerSize + width;
}

// Reads the number of an IE whose tag has been seen, and returns the IE's size, or returns 0 when
// its length is not the number's width or the bytes end.
inline uint32_t read_number_ie(Kind kind, Input in, uint32_t *number) {
    const uint32_t width = wire_width(kind);
    if (in.left < headerSize + width || load32(in.at + tagSize) != width)
        return 0;
    *number = load_wire(in.at + headerSize, width);
    return headerSize + width;
}

// ---- Byte strings ------------------------------------------------------------------------------

// A byte string and a list begin with their count; the bytes or items follow.
inline uint32_t stored_count(const void *value) {
    return *static_cast<const uint32_t *>(value);
}

// Writes a whole byte string IE and returns its size, or returns 0 when it does not fit or its
// length is beyond its array.
inline uint32_t write_bytes_ie(TypeId id, const void *value, Output out) {
    const uint32_t length = stored_count(value);
    if (length > type_of(id).capacity || out.left < headerSize || length > out.left - headerSize)
        return 0;
    store16(out.at, id);
    store32(out.at + tagSize, length);
    memcpy(out.at + headerSize, static_cast<const uint32_t *>(value) + 1, length);
    return headerSize + length;
}

// Copies a whole value record, for a byte string with all of its array.
inline void copy_value(const Type &type, void *to, const void *from) {
    if (is_number(type.kind))
        store_number(type.kind, to, load_number(type.kind, from));
    else
        memcpy(to, from, type.valueSize);
}

} // namespace tarn

#endif
