// Doubly linked lists whose ends are null.

#include "checking.h"
#include "support.h"

void xVelDllInitHead(VelDllHead *head, uint32_t, const char *, uint32_t) {
    *head = {nullptr, nullptr};
}

void xVelDllInitNode(VelDllNode *node, const char *, uint32_t) {
    *node = {nullptr, nullptr};
}

void xVelDllAddToTail(VelDllHead *head, VelDllNode *node, const char *module, uint32_t line) {
    if (tarn_host::is_checking && !tarn_host::may_link(head, node, {module, line})) [[unlikely]] {
        return;
    }
    VelDllNode *const last = head->last;
    *node = {nullptr, last};
    (last != nullptr ? last->next : head->first) = node;
    head->last = node;
}

VelDllNode *xVelDllGetHead(const VelDllHead *head, const char *, uint32_t) {
    return head->first;
}

VelDllNode *xVelDllGetNext(const VelDllHead *, const VelDllNode *current, const char *, uint32_t) {
    return current->next;
}

void xVelDllRemoveNode(VelDllHead *head, VelDllNode *node, const char *module, uint32_t line) {
    if (tarn_host::is_checking) [[unlikely]] {
        tarn_host::check_unlink(head, node, {module, line});
    }
    VelDllNode *const next = node->next;
    VelDllNode *const previous = node->previous;
    (previous != nullptr ? previous->next : head->first) = next;
    (next != nullptr ? next->previous : head->last) = previous;
    *node = {nullptr, nullptr};
}

VelDllNode *xVelDllFindNode(const VelDllHead *head, VelDllComparison compare, const void *key,
                            const char *, uint32_t) {
    VelDllNode *node = head->first;
    while (node != nullptr && compare(node, key) == 0) {
        node = node->next;
    }
    return node;
}
