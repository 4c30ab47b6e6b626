// The exported operations on IE and message objects of any type.
#include "objects.h"
#include "tarn_if.h"

using namespace tarn;

namespace {

// Releases the primitive IEs that the list begins with, always the current head, so that a released
// one is never needed to find the next. Returns whether *block is the composite behind them, which
// is unlinked then; else the list is empty. Unlinking stands on both branches: to ask for the tag
// behind it takes one instruction more for each IE.
TARN_INLINE bool delete_primitives(VelDllHead *list, void **block) {
    *block = first_ie(list, TARN_CALLER(moduleApi));
    while (*block != nullptr) {
        if (is_composite_tag(static_cast<TarnIe *>(*block)->tag)) {
            xVelDllRemoveNode(list, static_cast<VelDllNode *>(*block), moduleApi, __LINE__);
            return true;
        }
        xVelDllRemoveNode(list, static_cast<VelDllNode *>(*block), moduleApi, __LINE__);
        velFreeMemoryWithIds(block, moduleApi, __LINE__);
        *block = first_ie(list, TARN_CALLER(moduleApi));
    }
    return false;
}

// A composite comes after its children: until then the list that it stood in is kept in the place
// of its mark, so that nesting takes no stack however deep it is.
[[gnu::noinline]] void delete_composite(void *const top) {
    VelDllHead *list = children_of(static_cast<TarnIe *>(top));
    for (;;) {
        void *block;
        if (delete_primitives(list, &block)) {
            memcpy(at_offset(block, markOffset), &list, sizeof(void *));
            list = children_of(static_cast<TarnIe *>(block));
            continue;
        }
        TarnIe *const emptied = reinterpret_cast<TarnIe *>(list) - 1;
        block = emptied;
        memcpy(&list, at_offset(block, markOffset), sizeof(void *)); // in `top`, still a mark
        velFreeMemoryWithIds(&block, moduleApi, __LINE__);
        if (emptied == top)
            return;
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
    void *block = ie;
    if (is_composite_tag(ie->tag))
        delete_composite(block);
    else
        velFreeMemoryWithIds(&block, moduleApi, __LINE__);
}

void TarnDeleteMsg(TarnMsg *msg) {
    if (any_null(TARN_CALLER(moduleApi), msg))
        return;
    void *block;
    while (delete_primitives(&msg->ies, &block))
        delete_composite(block);
    block = msg;
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
