// Values of primitive IEs: one function per verb, which switches on the kind of the type.
//
// Nothing here checks for null pointers; the operations that callers reach do. A value's stored
// length or count is never followed beyond its array.
#ifndef TARN_VALUES_H
#define TARN_VALUES_H

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

} // namespace gnu::visibility("hidden")]]tarn

#endif
