#include "tarn_if_api/messages.h"

#include "tarn_if_internal_funcs/unpacking.h"
#include "tarn_if_internal_funcs/validity.h"

namespace tarn {

uint32_t msg_is_valid(const TarnMsg *msg, MessageNumber id) {
    return msg != nullptr && msg->messageId == id &&
           slots_are_valid(catalogue.messages[id].slots, &msg->ies, TARN_CALLER(moduleApi));
}

uint32_t unpack_new_msg(const uint8_t *buffer, uint32_t length, TarnMsg **msg) {
    const bool missing = any_null(TARN_CALLER(moduleApi), msg, buffer);
    if (msg != nullptr)
        *msg = nullptr;
    if (missing)
        return 0;
    TarnMsg *unpacked = unpack_msg_of_any_type(buffer, length);
    *msg = unpacked;
    return unpacked != nullptr;
}

} // namespace tarn
