#include "tarn_if_api/messages.h"

#include "tarn_if_internal_funcs/validity.h"

namespace tarn {

uint32_t msg_is_valid(const TarnMsg *msg, MessageNumber id) {
    return msg != nullptr && msg->messageId == id &&
           slots_are_valid(catalogue.messages[id].slots, &msg->ies, TARN_CALLER(moduleApi));
}

} // namespace tarn
