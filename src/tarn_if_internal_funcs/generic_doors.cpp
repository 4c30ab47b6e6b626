// The exported sizes, the message id of a buffer, and which tags are composite.
#include "catalogue/catalogue.h"
#include "tarn_if.h"
#include "tarn_if_internal_funcs/sizes.h"
#include "tarn_if_internal_funcs/unpacking.h"

using namespace tarn;

uint32_t TarnSizeOfIe(const TarnIe *ie) {
    return ie_size_checked(ie);
}

int32_t TarnSizeOfMsg(const TarnMsg *msg) {
    return msg_size_checked(msg);
}

uint32_t TarnIsComplexType(uint32_t tag) {
    return is_composite_tag(tag);
}

uint32_t TarnGetMessageId(const uint8_t *buffer, uint32_t length) {
    return peek_message_id_checked(buffer, length);
}
