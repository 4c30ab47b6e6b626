// Whether IE objects keep the rules of their types: positions, mandatory children, counts,
// conditions. What travels on the wire is the unpackers' affair.
#ifndef TARN_VALIDITY_H
#define TARN_VALIDITY_H

#include "catalogue/descriptors.h"
#include "platform_calls.h"

namespace [[gnu::visibility("hidden")]] tarn {

// Whether the list keeps the rules of the table. The caller tells whose list it is.
bool slots_are_valid(const SlotTable &table, const VelDllHead *list, Caller caller);

// Whether each conditional slot's condition holds exactly if its bit is among those present.
bool conditions_are_met(const SlotTable &table, const VelDllHead *list, unsigned present);

// Whether the object has this type's tag and a valid value or valid children.
bool ie_is_valid(const TarnIe *ie, TypeId id);

// The same as operations of the public interface. A missing composite answers 0 without a report,
// so that the result of a failed Extract can be passed on as it is.
uint32_t primitive_ie_is_valid(const TarnIe *ie, TypeId id);
uint32_t composite_ie_is_valid(const TarnIe *ie, TypeId id);

} // namespace tarn

#endif
