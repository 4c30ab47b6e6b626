/* The least that a host must provide, over malloc: linked instead of libtarn_host, as firmware that
 * brings its own services would do. */
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>

#include "vel_platform.h"

/* ---- Memory ---------------------------------------------------------------------------------- */

/* The library uses the block at once: without memory there is no way back from here. */
uint32_t velAllocMemoryWithIds(uint32_t size, void **block, const char *module, uint32_t line) {
    *block = malloc(size);
    if (*block == NULL)
        velSwFatalError("out of memory", module, line);
    return 1;
}

uint32_t velFreeMemoryWithIds(void **block, const char *module, uint32_t line) {
    (void)module, (void)line;
    free(*block);
    *block = NULL;
    return 1;
}

/* ---- Doubly linked lists --------------------------------------------------------------------- */

void xVelDllInitHead(VelDllHead *head, uint32_t reserved, const char *module, uint32_t line) {
    (void)reserved, (void)module, (void)line;
    head->first = head->last = NULL;
}

void xVelDllInitNode(VelDllNode *node, const char *module, uint32_t line) {
    (void)module, (void)line;
    node->next = node->previous = NULL;
}

void xVelDllAddToTail(VelDllHead *head, VelDllNode *node, const char *module, uint32_t line) {
    (void)module, (void)line;
    node->next = NULL;
    node->previous = head->last;
    *(head->last == NULL ? &head->first : &head->last->next) = node;
    head->last = node;
}

VelDllNode *xVelDllGetHead(const VelDllHead *head, const char *module, uint32_t line) {
    (void)module, (void)line;
    return head->first;
}

VelDllNode *xVelDllGetNext(const VelDllHead *head, const VelDllNode *current, const char *module,
                           uint32_t line) {
    (void)head, (void)module, (void)line;
    return current->next;
}

void xVelDllRemoveNode(VelDllHead *head, VelDllNode *node, const char *module, uint32_t line) {
    (void)module, (void)line;
    *(node->previous == NULL ? &head->first : &node->previous->next) = node->next;
    *(node->next == NULL ? &head->last : &node->next->previous) = node->previous;
    node->next = node->previous = NULL;
}

VelDllNode *xVelDllFindNode(const VelDllHead *head, VelDllComparison compare, const void *key,
                            const char *module, uint32_t line) {
    (void)module, (void)line;
    VelDllNode *node = head->first;
    while (node != NULL && !compare(node, key))
        node = node->next;
    return node;
}

/* ---- Reports --------------------------------------------------------------------------------- */

void velSwFatalError(const char *text, const char *module, uint32_t line) {
    fprintf(stderr, "fatal error in %s:%u %s\n", module, (unsigned)line, text);
    abort();
}

void velSwTokenDebug(uint32_t token, uint32_t value) {
    fprintf(stderr, "debug token %08X %u\n", (unsigned)token, (unsigned)value);
}
