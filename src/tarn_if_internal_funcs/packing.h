// From IE objects to bytes.
#ifndef TARN_PACKING_H
#define TARN_PACKING_H

#include "catalogue/descriptors.h"
#include "platform_calls.h"
#include "wire.h"

namespace [[gnu::visibility("hidden")]] tarn {

struct Writing {
    uint32_t size; // up to the point of failure if there was one
    bool ok;
};

// Writes a message's IEs in list order; fails at the first that has no slot in the message or
// cannot be written.
template <class Id>
Writing write_msg(Id id, const VelDllHead *list, Output out);

// The operations of the public interface. *written is set on success and on failure, but not when a
// pointer is missing.
uint32_t pack_primitive_ie(const TarnIe *ie, uint8_t *buffer, uint32_t available, uint32_t *written,
                           TypeId id);
uint32_t pack_composite_ie(const TarnIe *ie, uint8_t *buffer, uint32_t available, uint32_t *written,
                           TypeId id);

} // namespace tarn

#endif
