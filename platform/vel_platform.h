/* What libtarn needs from its host: eleven services, resolved when the library is loaded.
 *
 * The host program (or a library that it links, such as the one in host/) defines every function
 * declared here. Each call names its caller: `module` is the library's source module as a constant
 * text ("tarn_if_api", "tarn_if_internal_funcs" or "tarn_if_conditional_funcs") and `line` a source
 * line. Both are for the host's own book-keeping; neither is ever null or needs freeing.
 *
 * The library calls these functions only from its caller's thread and holds no locks around them.
 * Lists live inside one object each; memory is shared, so a host with several threads gives the
 * library a thread-safe memory service. */
#ifndef VEL_PLATFORM_H
#define VEL_PLATFORM_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* A list member's linkage. It is the first field of each IE object, so a node's address is the
 * address of its IE object. The library passes addresses on and never reads the fields. */
typedef struct VelDllNode {
    struct VelDllNode *next;
    struct VelDllNode *previous;
} VelDllNode;

/* A doubly linked list. Embedded in message objects and composite IE objects; never read by the
 * library. */
typedef struct VelDllHead {
    VelDllNode *first;
    VelDllNode *last;
} VelDllHead;

/* Decides whether `member` is the one that `key` describes: non-zero for yes. */
typedef uint32_t (*VelDllComparison)(const VelDllNode *member, const void *key);

/* ---- Memory ---------------------------------------------------------------------------------- */

/* Stores in *block the address of a block of at least `size` bytes, aligned for any pointer. *block
 * is null on entry. The library uses the block at once: a host that has no memory left must not
 * return. The result is ignored. */
uint32_t velAllocMemoryWithIds(uint32_t size, void **block, const char *module, uint32_t line);

/* Releases the block that *block points to; the host may clear *block. The result is ignored. */
uint32_t velFreeMemoryWithIds(void **block, const char *module, uint32_t line);

/* ---- Doubly linked lists --------------------------------------------------------------------- */

/* Makes the list empty. `reserved` is always 0. */
void xVelDllInitHead(VelDllHead *head, uint32_t reserved, const char *module, uint32_t line);

/* Makes the node unlinked. */
void xVelDllInitNode(VelDllNode *node, const char *module, uint32_t line);

/* Links the node as the last member of the list. */
void xVelDllAddToTail(VelDllHead *head, VelDllNode *node, const char *module, uint32_t line);

/* Returns the first member, or null for an empty list. */
VelDllNode *xVelDllGetHead(const VelDllHead *head, const char *module, uint32_t line);

/* Returns the member after `current`, or null after the last one. Changes nothing. */
VelDllNode *xVelDllGetNext(const VelDllHead *head, const VelDllNode *current, const char *module,
                           uint32_t line);

/* Unlinks the member from the list. */
void xVelDllRemoveNode(VelDllHead *head, VelDllNode *node, const char *module, uint32_t line);

/* Returns the first member, from the head, for which compare(member, key) is non-zero, or null. */
VelDllNode *xVelDllFindNode(const VelDllHead *head, VelDllComparison compare, const void *key,
                            const char *module, uint32_t line);

/* ---- Reports --------------------------------------------------------------------------------- */

/* Reports a programming error of the library's caller: a null pointer where one is required, or a
 * message packed into a buffer that is too small for it. `text` is always empty. It is not expected
 * to return, and may throw or jump through the library; should it return, the call that reported
 * fails without touching the missing object. */
void velSwFatalError(const char *text, const char *module, uint32_t line);

/* Records a failure of a one-call Build or Get operation. `token` tells the point of failure. */
void velSwTokenDebug(uint32_t token, uint32_t value);

#ifdef __cplusplus
}
#endif

#endif
