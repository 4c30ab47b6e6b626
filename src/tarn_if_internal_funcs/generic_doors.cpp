// The exported sizes, the message id of a buffer, and which tags are composite.
#include "catalogue/catalogue.h"
#include "tarn_if.h"
#include "tarn_if_internal_funcs/sizes.h"
#include "tarn_if_internal_funcs/unpacking.h"

using namespace tarn;

uint32_t TarnSizeOfIe(const TarnIe *ie) {
    return any_null(TARN_CALLER(moduleInternal), ie) ? 0 : ie_size(ie);
}

int32_t TarnSizeOfMsg(const TarnMsg *msg) {
    if (any_null(TARN_CALLER(moduleApi), msg))
        return 0;
    const uint32_t size = ies_size(&msg->ies, TARN_CALLER(moduleApi));
    return size > INT32_MAX ? INT32_MAX : int32_t(size);
}

uint32_t TarnIsComplexType(uint32_t tag) {
    return is_composite_tag(tag);
}

uint32_t TarnGetMessageId(const uint8_t *buffer, uint32_t length) {
    return any_null(TARN_CALLER(moduleInternal), buffer) ? 0 : peek_message_id(buffer, length);
}
