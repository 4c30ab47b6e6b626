// The exported operations on IE and message objects of any type.
#include "objects.h"
#include "tarn_if.h"
#include "tarn_if_internal_funcs/unpacking.h"

using namespace tarn;

void TarnDeleteIe(TarnIe *ie) {
    if (!any_null(TARN_CALLER(moduleApi), ie))
        delete_ie(ie);
}

void TarnDeleteMsg(TarnMsg *msg) {
    if (!any_null(TARN_CALLER(moduleApi), msg))
        delete_msg(msg);
}

uint32_t TarnGetIeTag(const TarnIe *ie) {
    return any_null(TARN_CALLER(moduleApi), ie) ? 0 : ie->tag;
}

const char *TarnGetInterfaceVersion(void) {
    return "39";
}

void TarnResetIeExtractHistory(TarnIe *ie) {
    if (!any_null(TARN_CALLER(moduleApi), ie))
        reset_ie(ie);
}

void TarnResetMsgExtractHistory(TarnMsg *msg) {
    if (!any_null(TARN_CALLER(moduleApi), msg))
        reset_all(&msg->ies);
}

// *msg is the message that the bytes hold, or null.
uint32_t TarnUnpackNewMsg(const uint8_t *buffer, uint32_t length, TarnMsg **msg) {
    const bool missing = any_null(TARN_CALLER(moduleApi), msg, buffer);
    if (msg != nullptr)
        *msg = nullptr;
    return missing ? 0 : unpack_msg_of_any_type(buffer, length, msg);
}
