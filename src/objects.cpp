#include "objects.h"

namespace tarn {

namespace {

// Releases the IEs of the list, always the current head, so that a released one is never needed to
// find the next. A composite comes after its children: until then the list that it stood in is kept
// in the place of its mark, so that nesting takes no stack however deep it is.
TARN_INLINE void delete_all(VelDllHead *const all) {
    VelDllHead *list = all;
    for (;;) {
        TarnIe *ie = first_ie(list, TARN_CALLER(moduleApi));
        if (ie != nullptr) {
            xVelDllRemoveNode(list, &ie->node, moduleApi, __LINE__);
            if (is_composite_tag(ie->tag)) {
                memcpy(at_offset(ie, markOffset), &list, sizeof(void *));
                list = children_of(ie);
                continue;
            }
        } else {
            if (list == all)
                return;
            ie = reinterpret_cast<TarnIe *>(list) - 1;
            memcpy(&list, at_offset(ie, markOffset), sizeof(void *));
        }
        release(ie, TARN_CALLER(moduleApi));
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
