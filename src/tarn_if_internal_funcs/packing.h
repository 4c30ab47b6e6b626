// From IE objects to bytes.
#ifndef TARN_PACKING_H
#define TARN_PACKING_H

#include "catalogue/descriptors.h"
#include "platform_calls.h"
#include "wire.h"

namespace [[gnu::visibility("hidden")]] tarn {

// Writes the message's IEs in list order; fails at the first that has no slot in the message or
// cannot be written. A buffer that is too small is the caller's error: it is reported as fatal and
// stays as it was. To know the size takes a walk of its own, so an engine built for speed writes a
// message aside first, which does for all but long ones.
template <class Id>
uint32_t pack_msg(const TarnMsg *msg, uint8_t *buffer, uint32_t size, Id id);

// The operations of the public interface. *written is set on success and on failure, but not when a
// pointer is missing.
uint32_t pack_primitive_ie(const TarnIe *ie, uint8_t *buffer, uint32_t available, uint32_t *written,
                           TypeId id);
uint32_t pack_composite_ie(const TarnIe *ie, uint8_t *buffer, uint32_t available, uint32_t *written,
                           TypeId id);

} // namespace tarn

#endif
