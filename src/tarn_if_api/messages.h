// Messages: creating and validating them.
#ifndef TARN_MESSAGES_H
#define TARN_MESSAGES_H

#include "objects.h"

namespace [[gnu::visibility("hidden")]] tarn {

// Returns a new message that holds its MessageId IE.
template <class Id>
TARN_SHARED TarnMsg *new_msg(Id id) {
    TarnMsg *msg = create_msg(id, TARN_CALLER(moduleApi));
    link_message_id(msg, id);
    return msg;
}

// Whether the message keeps the rules of the type; 0 for a null message, without a report.
uint32_t msg_is_valid(const TarnMsg *msg, MessageNumber id);

} // namespace tarn

#endif
