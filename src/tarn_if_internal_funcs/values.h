// Values of primitive IEs: sizes, validity and writing, for any type.
//
// Nothing here checks for null pointers; the operations that callers reach do. A value's stored
// length or count is never followed beyond its array.
#ifndef TARN_VALUES_H
#define TARN_VALUES_H

#include <string.h>

#include "catalogue/catalogue.h"
#include "wire.h"

namespace [[gnu::visibility("hidden")]] tarn {

// Returns the number of value bytes on the wire. A byte string answers its stored length, whatever
// it is; a list counts the items that its array can hold at most.
uint32_t value_size(TypeId id, const void *value);

// Whether the value lies in its type's range; for a record and a list, with all that it holds.
bool is_valid(TypeId id, const void *value);

// Writes the value, or the whole IE. What does not fit or goes beyond an array fails, and `out`
// then stands behind what came before: a record's or list's last whole part, or the header.
bool write_value(TypeId id, const void *value, Output *out);
bool write_ie(TypeId id, const void *value, Output *out);

// Returns the size of the whole IE, or 0 for an invalid value.
uint32_t measure_any(TypeId id, const void *value);

// Writes a whole IE that was measured to where there is room, and returns where it ends.
uint8_t *put_any(TypeId id, const void *value, uint8_t *at);

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

// ---- Byte strings and lists --------------------------------------------------------------------

// Both begin with their count; the bytes or items follow.
TARN_INLINE uint32_t stored_count(const void *value) {
    return *static_cast<const uint32_t *>(value);
}
TARN_INLINE void store_count(void *value, uint32_t count) {
    *static_cast<uint32_t *>(value) = count;
}

// Copies a whole value record, for a byte string with all of its array.
TARN_INLINE void copy_value(const Type &type, void *to, const void *from) {
    if (is_number(type.kind))
        store_number(type.kind, to, load_number(type.kind, from));
    else
        memcpy(to, from, type.valueSize);
}

} // namespace tarn

#endif
