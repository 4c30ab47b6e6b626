// The exported operations on IE and message objects of any type.
#include "objects.h"
#include "tarn_if.h"
#include "tarn_if_api/messages.h"

using namespace tarn;

void TarnDeleteIe(TarnIe *ie) {
    delete_ie_checked(ie);
}

void TarnDeleteMsg(TarnMsg *msg) {
    delete_msg_checked(msg);
}

uint32_t TarnGetIeTag(const TarnIe *ie) {
    return ie_tag_checked(ie);
}

const char *TarnGetInterfaceVersion(void) {
    return "39";
}

void TarnResetIeExtractHistory(TarnIe *ie) {
    reset_ie_history(ie);
}

void TarnResetMsgExtractHistory(TarnMsg *msg) {
    reset_msg_history(msg);
}

uint32_t TarnUnpackNewMsg(const uint8_t *buffer, uint32_t length, TarnMsg **msg) {
    return unpack_new_msg(buffer, length, msg);
}
