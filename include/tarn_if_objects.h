/* Written by header_writer from the rows in src/catalogue; do not edit: change the rows or
 * tools/header_writer, then run `cmake --build --preset release --target tarn_headers`. */

/* IE objects and message objects: what they hold, who owns them, and the operations that take any
 * of them.
 *
 * An IE object is one information element (IE) in memory. It begins with a TarnIe, so that
 * &object->ie of any IE object is what the operations here take. Behind this head stands the value
 * of a primitive IE (tarn_if_primitive_ies.h) or the list of a composite IE's children, which are
 * IE objects again (tarn_if_composite_ies.h). A message object is the list of a message's IE
 * objects, the first of which is always the MessageId IE (tarn_if_messages.h).
 *
 * Ownership. A message object owns its IE objects and a composite IE object owns its children, to
 * any depth. The caller owns each message object that it created or unpacked, until it hands it to
 * TarnDeleteMsg, and each composite IE object that it created, until it appends it to a parent or
 * hands it to TarnDeleteIe. Appending a value copies it. Appending a composite IE object makes the
 * parent the owner of that very object: do not delete it or append it again. Extracting a value
 * copies it whole: behind the length of a byte string or the count of a list stands whatever the
 * block held before, which is not to be sent anywhere. Extracting a composite IE object lends its
 * address: it stays with its parent and dies with it. All objects live in the memory that the
 * host's velAllocMemoryWithIds gives.
 *
 * Extract history. An extract operation takes the first direct member of the list that has the
 * wanted tag and was not extracted before, and marks it as extracted. So repeated calls return
 * repeated IEs in list order, and after the last one 0; the mark belongs to the IE object, whoever
 * extracts it. Nothing is unlinked, and the message can still be packed. The two reset operations
 * take the marks away. */
#ifndef TARN_IF_OBJECTS_H
#define TARN_IF_OBJECTS_H

#include <stdint.h>

#include "vel_platform.h"

#ifdef __cplusplus
extern "C" {
#endif

#pragma GCC visibility push(default)

/* The head of every IE object. Written by the library; a caller that makes an IE object of its own
 * sets the tag. */
typedef struct TarnIe {
    VelDllNode node;         /* linkage in the parent's list */
    uint16_t tag;            /* set when the object is created */
    uint32_t extractHistory; /* 0 not yet extracted, 1 extracted */
} TarnIe;

/* A message object. Read messageId to learn what was unpacked; write neither. */
typedef struct TarnMsg {
    VelDllHead ies;     /* the IE objects, in wire order */
    uint16_t messageId; /* equal to the value of the MessageId IE */
} TarnMsg;

/* ---- Deletion and tags ----------------------------------------------------------------------- */

/* TarnDeleteIe releases ie and, if it is composite, all IE objects below it. It does not unlink ie:
 * only an object that was never appended may be deleted. A null ie is fatal. */
void TarnDeleteIe(TarnIe *ie);

/* TarnDeleteMsg releases msg and all its IE objects. A null msg is fatal. */
void TarnDeleteMsg(TarnMsg *msg);

/* TarnGetIeTag returns the tag of ie. A null ie is fatal. */
uint32_t TarnGetIeTag(const TarnIe *ie);

/* ---- Extract history ------------------------------------------------------------------------- */

/* TarnResetIeExtractHistory marks ie and, if it is composite, all IE objects below it as not yet
 * extracted. A null ie is fatal. */
void TarnResetIeExtractHistory(TarnIe *ie);

/* TarnResetMsgExtractHistory marks all IE objects of msg, to any depth, as not yet extracted. A
 * null msg is fatal. */
void TarnResetMsgExtractHistory(TarnMsg *msg);

/* ---- Sizes and kinds ------------------------------------------------------------------------- */

/* TarnSizeOfIe returns the bytes that ie takes on the wire, its 6-byte header included; 6 for a tag
 * that no IE has. A null ie is fatal. */
uint32_t TarnSizeOfIe(const TarnIe *ie);

/* TarnSizeOfMsg returns the bytes that msg takes on the wire, 0 if it has no IE at all. A null msg
 * is fatal. */
int32_t TarnSizeOfMsg(const TarnMsg *msg);

/* TarnIsComplexType returns 1 if tag is that of a composite IE, and 0 otherwise. */
uint32_t TarnIsComplexType(uint32_t tag);

#pragma GCC visibility pop

#ifdef __cplusplus
}
#endif

#endif
