// From bytes to IE objects.
#ifndef TARN_UNPACKING_H
#define TARN_UNPACKING_H

#include "catalogue/descriptors.h"
#include "platform_calls.h"
#include "tarn_if_internal_funcs/wire.h"

namespace [[gnu::visibility("hidden")]] tarn {

// Fills `list` from the bytes, slot by slot in table order, and advances `in` behind the last IE
// that was taken; false when the table's rules refuse what the bytes hold. *valid tells whether the
// list would pass its validator: a walk that succeeds leaves nothing else to be checked.
bool read_slots(const SlotTable &table, VelDllHead *list, Input *in, bool *valid);

// The operations of the public interface. *consumed is set on success and on failure, but not when
// a pointer is missing.
uint32_t unpack_primitive_ie(TarnIe *ie, const uint8_t *buffer, uint32_t available,
                             uint32_t *consumed, TypeId id);
uint32_t unpack_composite_ie(TarnIe *ie, const uint8_t *buffer, uint32_t available,
                             uint32_t *consumed, TypeId id);

// Returns the message that the bytes hold, or null with everything released. The id comes from the
// type asked for: the value of the MessageId IE is not compared with it. Bytes behind the last IE
// that the type knows are ignored.
TarnMsg *unpack_msg(const uint8_t *buffer, uint32_t length, MessageNumber id);
TarnMsg *unpack_msg_checked(const uint8_t *buffer, uint32_t length, MessageNumber id);

// Returns the id in the MessageId IE that the bytes begin with, or 0.
uint32_t peek_message_id(const uint8_t *buffer, uint32_t length);
uint32_t peek_message_id_checked(const uint8_t *buffer, uint32_t length);

} // namespace tarn

#endif
