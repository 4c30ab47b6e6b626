// The exported operations on IE and message objects of any type.
#include "objects.h"
#include "tarn_if.h"

using namespace tarn;

namespace {

// Releases all IEs in the list and below, always the current head, so that a released one is never
// needed to find the next. A composite comes after its children: until then the list that it stood
// in is kept in the place of its mark, so that nesting takes no stack however deep it is. Unlinking
// stands on both branches, and the head is fetched behind each step and not in front of it: either
// takes one instruction less for each IE.
TARN_SHARED void delete_all(VelDllHead *const top) {
    VelDllHead *list = top;
    void *block = first_ie(list, TARN_CALLER(moduleApi));
    for (;;) {
        while (block != nullptr) {
            VelDllNode *const node = static_cast<VelDllNode *>(block);
            if (is_composite_tag(static_cast<TarnIe *>(block)->tag)) [[unlikely]] {
                xVelDllRemoveNode(list, node, moduleApi, __LINE__);
                memcpy(at_offset(block, markOffset), &list, sizeof(void *));
                list = children_of(static_cast<TarnIe *>(block));
            } else {
                xVelDllRemoveNode(list, node, moduleApi, __LINE__);
                velFreeMemoryWithIds(&block, moduleApi, __LINE__);
            }
            block = first_ie(list, TARN_CALLER(moduleApi));
        }
        if (list == top)
            return;
        block = reinterpret_cast<TarnIe *>(list) - 1;
        memcpy(&list, at_offset(block, markOffset), sizeof(void *));
        velFreeMemoryWithIds(&block, moduleApi, __LINE__);
        block = first_ie(list, TARN_CALLER(moduleApi));
    }
}

void reset_all(VelDllHead *list);

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

} // namespace

void TarnDeleteIe(TarnIe *ie) {
    if (any_null(TARN_CALLER(moduleApi), ie))
        return;
    if (is_composite_tag(ie->tag))
        delete_all(children_of(ie));
    void *block = ie;
    velFreeMemoryWithIds(&block, moduleApi, __LINE__);
}

void TarnDeleteMsg(TarnMsg *msg) {
    if (any_null(TARN_CALLER(moduleApi), msg))
        return;
    delete_all(&msg->ies);
    void *block = msg;
    velFreeMemoryWithIds(&block, moduleApi, __LINE__);
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
