#include "objects.h"

namespace tarn {

namespace {

// Always takes the current head, so that a released IE is never needed to find the next one.
void delete_all(VelDllHead *list) {
    while (TarnIe *ie = first_ie(list, TARN_CALLER(moduleApi))) {
        xVelDllRemoveNode(list, &ie->node, moduleApi, __LINE__);
        delete_ie(ie);
    }
}

void reset_ie(TarnIe *ie);

void reset_all(VelDllHead *list) {
    for (TarnIe *ie = first_ie(list, TARN_CALLER(moduleApi)); ie != nullptr;
         ie = next_ie(list, ie, TARN_CALLER(moduleApi)))
        reset_ie(ie);
}

void reset_ie(TarnIe *ie) {
    ie->extractHistory = 0;
    if (is_composite_tag(ie->tag))
        reset_all(children_of(ie));
}

} // namespace

uint32_t append_message_id(TarnMsg *msg, TarnMessageId value) {
    if (any_null(TARN_CALLER(moduleInternal), msg))
        return 0;
    return link_message_id(msg, value);
}

void delete_ie(TarnIe *ie) {
    if (is_composite_tag(ie->tag))
        delete_all(children_of(ie));
    release(ie, TARN_CALLER(moduleApi));
}

void delete_msg(TarnMsg *msg) {
    delete_all(&msg->ies);
    release(msg, TARN_CALLER(moduleApi));
}

void delete_ie_checked(TarnIe *ie) {
    if (!any_null(TARN_CALLER(moduleApi), ie))
        delete_ie(ie);
}

void delete_msg_checked(TarnMsg *msg) {
    if (!any_null(TARN_CALLER(moduleApi), msg))
        delete_msg(msg);
}

uint32_t ie_tag_checked(const TarnIe *ie) {
    return any_null(TARN_CALLER(moduleApi), ie) ? 0 : ie->tag;
}

void reset_ie_history(TarnIe *ie) {
    if (!any_null(TARN_CALLER(moduleApi), ie))
        reset_ie(ie);
}

void reset_msg_history(TarnMsg *msg) {
    if (!any_null(TARN_CALLER(moduleApi), msg))
        reset_all(&msg->ies);
}

} // namespace tarn
