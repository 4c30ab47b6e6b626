// From IE objects to bytes.
#ifndef TARN_PACKING_H
#define TARN_PACKING_H

#include "catalogue/descriptors.h"
#include "platform_calls.h"
#include "tarn_if_internal_funcs/wire.h"

namespace [[gnu::visibility("hidden")]] tarn {

// Writes the IEs of a list in list order, each of which must have a slot in the table, and advances
// `out` by what was written; false at the first that has none or cannot be written.
bool write_slots(const SlotTable &table, const VelDllHead *list, Output *out);

// The operations of the public interface. *written is set on success and on failure, but not when a
// pointer is missing.
uint32_t pack_primitive_ie(const TarnIe *ie, uint8_t *buffer, uint32_t available, uint32_t *written,
                           TypeId id);
uint32_t pack_composite_ie(const TarnIe *ie, uint8_t *buffer, uint32_t available, uint32_t *written,
                           TypeId id);

} // namespace tarn

#endif
