// From bytes to IE objects.
#ifndef TARN_UNPACKING_H
#define TARN_UNPACKING_H

#include "catalogue/descriptors.h"
#include "platform_calls.h"
#include "wire.h"

namespace [[gnu::visibility("hidden")]] tarn {

// The operations of the public interface. *consumed is set on success and on failure, but not when
// a pointer is missing.
uint32_t unpack_primitive_ie(TarnIe *ie, const uint8_t *buffer, uint32_t available,
                             uint32_t *consumed, TypeId id);
uint32_t unpack_composite_ie(TarnIe *ie, const uint8_t *buffer, uint32_t available,
                             uint32_t *consumed, TypeId id);

// The message that the bytes hold is returned or stored, or else the result is 0 or null. Bytes
// behind the last IE that the type knows are ignored. The id of the type asked for is taken from
// the call: the value of the MessageId IE is not compared with it.
TarnMsg *unpack_msg(const uint8_t *buffer, uint32_t length, MessageNumber id);

// Returns the id in the MessageId IE that the bytes begin with, or 0.
uint32_t peek_message_id(const uint8_t *buffer, uint32_t length);

} // namespace tarn

#endif
