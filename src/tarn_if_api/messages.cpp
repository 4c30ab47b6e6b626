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

uint32_t pack_msg(const TarnMsg *msg, uint8_t *buffer, uint32_t size, MessageNumber id) {
    if (any_null(TARN_CALLER(moduleApi), msg, buffer))
        return 0;
    if (ies_size(&msg->ies) > size) {
        velSwFatalError("", moduleApi, __LINE__);
        return 0;
    }
    Output out{buffer, size};
    return write_slots(catalogue.messages[id].slots, &msg->ies, &out);
}

uint32_t unpack_new_msg(const uint8_t *buffer, uint32_t length, TarnMsg **msg) {
    if (any_null(TARN_CALLER(moduleApi), msg, buffer))
        return 0;
    *msg = nullptr;
    const uint32_t id = peek_message_id(buffer, length);
    if (id < messageCount && catalogue.messages[id].slots.count != 0)
        *msg = unpack_msg(buffer, length, MessageNumber(id));
    return *msg != nullptr;
}

} // namespace tarn
