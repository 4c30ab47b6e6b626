// The exported unpackers of the messages, and the append of their MessageId IE, which reports
// itself as one of the codecs and not, like all other appends, as an object operation.
#include "objects.h"
#include "tarn_if.h"
#include "tarn_if_internal_funcs/unpacking.h"

using namespace tarn;

static uint32_t append_message_id(TarnMsg *msg, TarnMessageId value) {
    return any_null(TARN_CALLER(moduleInternal), msg) ? 0 : link_message_id(msg, value);
}

#define MESSAGE(name_, ...)                                                                        \
    TarnMsg *TarnUnpack##name_##Msg(const uint8_t *buffer, uint32_t length) {                      \
        return unpack_msg(buffer, length, message##name_);                                         \
    }                                                                                              \
    uint32_t TarnAppendMessageIdTo##name_##Msg(TarnMsg *msg, TarnMessageId value) {                \
        return append_message_id(msg, value);                                                      \
    }
#include "catalogue/messages.def"
