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

void reset_ie(TarnIe *ie) {
    ie->extractHistory = 0;
    if (is_composite_tag(ie->tag))
        reset_all(children_of(ie));
}

void reset_all(VelDllHead *list) {
    for (TarnIe *ie = first_ie(list, TARN_CALLER(moduleApi)); ie != nullptr;
         ie = next_ie(list, ie, TARN_CALLER(moduleApi)))
        reset_ie(ie);
}

} // namespace tarn
