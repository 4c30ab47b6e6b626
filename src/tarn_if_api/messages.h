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

// Whether a buffer of this size holds the message. One that does not is the caller's error and is
// reported as fatal.
bool fits(const TarnMsg *msg, uint32_t size);

// Writes the message, leaving a buffer that is too small as it was.
template <class Id>
uint32_t pack_msg(const TarnMsg *msg, uint8_t *buffer, uint32_t size, Id id) {
    if (any_null(TARN_CALLER(moduleApi), msg, buffer) || !fits(msg, size))
        return 0;
    return write_msg(id, &msg->ies, Output{buffer, size}).ok;
}

// Stores in *msg the message that the bytes hold, or null.
uint32_t unpack_new_msg(const uint8_t *buffer, uint32_t length, TarnMsg **msg);

} // namespace tarn

#endif
