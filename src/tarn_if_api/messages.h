// Messages: creating, judging and packing them, and decoding a buffer of unknown type.
#ifndef TARN_MESSAGES_H
#define TARN_MESSAGES_H

#include "catalogue/descriptors.h"
#include "platform_calls.h"
#include "tarn_if_internal_funcs/constants.h"
#include "tarn_if_internal_funcs/packing.h"

namespace [[gnu::visibility("hidden")]] tarn {

// Returns a new message that holds its MessageId IE.
TarnMsg *new_msg(MessageNumber id);

// Whether the message keeps the rules of the type; 0 for a null message, without a report.
uint32_t msg_is_valid(const TarnMsg *msg, MessageNumber id);

// What packing comes to when it failed: 0, and a report if it was for want of room.
[[gnu::cold]] uint32_t fail_pack(const TarnMsg *msg, uint32_t size);

// Writes the message. A buffer that is too small is the caller's error and is reported as fatal.
//
// Room is checked IE by IE, so a message that fits, as it nearly always does, is walked once. Only
// when it could not be written is its size asked for, to tell a buffer that is too small from an IE
// that does not belong or cannot be packed. What the buffer holds after a fatal error means
// nothing.
template <class Id>
uint32_t pack_msg(const TarnMsg *msg, uint8_t *buffer, uint32_t size, Id id) {
    if (any_null(TARN_CALLER(moduleApi), msg, buffer))
        return 0;
    if (write_msg(id, &msg->ies, Output{buffer, size}).ok) [[likely]]
        return 1;
    return fail_pack(msg, size);
}

// Stores in *msg the message that the bytes hold, or null.
uint32_t unpack_new_msg(const uint8_t *buffer, uint32_t length, TarnMsg **msg);

} // namespace tarn

#endif
