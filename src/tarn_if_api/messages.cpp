#include "tarn_if_api/messages.h"

#include "tarn_if_api/members.h"
#include "tarn_if_internal_funcs/packing.h"
#include "tarn_if_internal_funcs/sizes.h"
#include "tarn_if_internal_funcs/unpacking.h"
#include "tarn_if_internal_funcs/validity.h"

namespace tarn {

TarnMsg *new_msg(MessageNumber id) {
    TarnMsg *msg = create_msg(id, TARN_CALLER(moduleApi));
    const TarnMessageId value = id;
    append_message_id(msg, &value);
    return msg;
}

uint32_t msg_is_valid(const TarnMsg *msg, MessageNumber id) {
    return msg != nullptr && msg->messageId == id &&
           slots_are_valid(catalogue.messages[id].slots, &msg->ies);
}

// Room is checked IE by IE, so a message that fits, as it nearly always does, is walked once. Only
// when it could not be written is its size asked for, to tell a buffer that is too small from an IE
// that does not belong or cannot be packed. What the buffer holds after a fatal error means
// nothing.
uint32_t pack_msg(const TarnMsg *msg, uint8_t *buffer, uint32_t size, MessageNumber id) {
    if (any_null(TARN_CALLER(moduleApi), msg, buffer))
        return 0;
    Output out{buffer, size};
    if (write_slots(catalogue.messages[id].slots, &msg->ies, &out))
        return 1;
    if (ies_size(&msg->ies) > size)
        velSwFatalError("", moduleApi, __LINE__);
    return 0;
}

uint32_t unpack_new_msg(const uint8_t *buffer, uint32_t length, TarnMsg **msg) {
    const bool missing = any_null(TARN_CALLER(moduleApi), msg, buffer);
    if (msg != nullptr)
        *msg = nullptr;
    if (missing)
        return 0;
    const uint32_t id = peek_message_id(buffer, length);
    if (id < messageCount && catalogue.messages[id].slots.count != 0)
        *msg = unpack_msg(buffer, length, MessageNumber(id));
    return *msg != nullptr;
}

} // namespace tarn
