#include "tarn_if_api/members.h"

#include <string.h>

#include "tarn_if_internal_funcs/values.h"

namespace tarn {

bool append_copy(VelDllHead *list, TypeId id, const void *value, Caller caller) {
    if (!value_is_valid(id, value))
        return false;
    TarnIe *ie = create_ie(id, caller);
    memcpy(value_of(ie), value, type_of(id).valueSize);
    link_ie(list, ie, caller);
    return true;
}

namespace {

TarnIe *take_next(VelDllHead *list, TypeId id) {
    for (TarnIe *ie = first_ie(list, TARN_CALLER(moduleApi)); ie != nullptr;
         ie = next_ie(list, ie, TARN_CALLER(moduleApi))) {
        if (ie->tag == id && ie->extractHistory == 0) {
            ie->extractHistory = 1;
            return ie;
        }
    }
    return nullptr;
}

uint32_t extract_copy(VelDllHead *list, void *value, TypeId id) {
    const TarnIe *ie = take_next(list, id);
    if (ie == nullptr)
        return 0;
    memcpy(value, value_of(ie), type_of(id).valueSize);
    return 1;
}

uint32_t borrow(VelDllHead *list, TarnIe **ie, TypeId id) {
    *ie = take_next(list, id);
    return *ie != nullptr;
}

} // namespace

uint32_t append_to_msg(TarnMsg *msg, const void *value, TypeId id) {
    if (any_null(TARN_CALLER(moduleApi), msg, value))
        return 0;
    return append_copy(&msg->ies, id, value, TARN_CALLER(moduleApi));
}

uint32_t append_message_id(TarnMsg *msg, const TarnMessageId *value) {
    if (any_null(TARN_CALLER(moduleInternal), msg, value))
        return 0;
    return append_copy(&msg->ies, typeMessageId, value, TARN_CALLER(moduleInternal));
}

uint32_t append_to_composite(TarnIe *owner, const void *value, TypeId id) {
    if (any_null(TARN_CALLER(moduleApi), owner, value))
        return 0;
    return append_copy(children_of(owner), id, value, TARN_CALLER(moduleApi));
}

// A composite is linked unseen: neither its tag nor its validity matters until the owner is
// validated or packed.
uint32_t link_to_msg(TarnMsg *msg, TarnIe *ie) {
    if (any_null(TARN_CALLER(moduleApi), msg, ie))
        return 0;
    link_ie(&msg->ies, ie, TARN_CALLER(moduleApi));
    return 1;
}

uint32_t link_to_composite(TarnIe *owner, TarnIe *ie) {
    if (any_null(TARN_CALLER(moduleApi), owner, ie))
        return 0;
    link_ie(children_of(owner), ie, TARN_CALLER(moduleApi));
    return 1;
}

uint32_t extract_from_msg(TarnMsg *msg, void *value, TypeId id) {
    if (any_null(TARN_CALLER(moduleApi), msg, value))
        return 0;
    return extract_copy(&msg->ies, value, id);
}

uint32_t extract_from_composite(TarnIe *owner, void *value, TypeId id) {
    if (any_null(TARN_CALLER(moduleApi), owner, value))
        return 0;
    return extract_copy(children_of(owner), value, id);
}

uint32_t borrow_from_msg(TarnMsg *msg, TarnIe **ie, TypeId id) {
    if (any_null(TARN_CALLER(moduleApi), msg, ie))
        return 0;
    return borrow(&msg->ies, ie, id);
}

uint32_t borrow_from_composite(TarnIe *owner, TarnIe **ie, TypeId id) {
    if (any_null(TARN_CALLER(moduleApi), owner, ie))
        return 0;
    return borrow(children_of(owner), ie, id);
}

} // namespace tarn
