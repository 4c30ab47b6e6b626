/* Written by header_writer from the rows in src/catalogue; do not edit: change the rows or
 * tools/header_writer, then run `cmake --build --preset release --target tarn_headers`. */

/* libtarn: the messages of the signalling protocol between a 3G access point (AP) and the access
 * controller (AC) that serves it. The library builds, checks, packs and unpacks them for both
 * directions of the link. It does no input or output and keeps no state between calls; memory,
 * lists and reports come from the host (vel_platform.h).
 *
 * This header includes the whole interface:
 *
 *   tarn_if_objects.h         IE objects and message objects: ownership, deletion, sizes
 *   tarn_if_primitive_ies.h   the IEs that hold a value
 *   tarn_if_composite_ies.h   the IEs that hold other IEs
 *   tarn_if_messages.h        the messages, as objects and as plain records
 *
 * To send, create a message object, append its IEs in order, pack it, delete it:
 *
 *   TarnMsg *msg = TarnNewHandoverDetectMsg();
 *   TarnAppendSrntiToHandoverDetectMsg(msg, &srnti);
 *   TarnAppendAcUeIdToHandoverDetectMsg(msg, &acUeId);
 *   if (TarnIsHandoverDetectMsgValid(msg) && TarnSizeOfMsg(msg) <= (int32_t)sizeof buffer)
 *       TarnPackHandoverDetectMsg(msg, buffer, sizeof buffer);
 *   TarnDeleteMsg(msg);
 *
 * To receive, unpack the bytes, extract what is needed, delete the message object:
 *
 *   TarnMsg *msg;
 *   if (TarnUnpackNewMsg(buffer, length, &msg)) {
 *       if (msg->messageId == TarnHandoverDetectMsgId)
 *           TarnExtractSrntiFromHandoverDetectMsg(msg, &srnti);
 *       TarnDeleteMsg(msg);
 *   }
 *
 * Or leave the objects to the library, which turns a plain record into bytes and back in one call:
 *
 *   TarnHandoverDetectRecord record = {.Srnti = 0x1234, .AcUeId = 7};
 *   uint32_t written = TarnBuildHandoverDetectMsg(buffer, sizeof buffer, &record);
 *
 * The wire. A message is a run of IEs. Each IE is a 2-byte tag, a 4-byte length and as many bytes
 * of value as the length says, with integers most significant byte first and no padding anywhere.
 *
 * Results. Unless a comment says otherwise, 1 stands for success or valid and 0 for failure or
 * invalid. Bad values and bad bytes are never more than a result of 0.
 *
 * Buffers belong to the caller, may start at any address, and are not kept beyond the call.
 * `available`, `size` and `length` count the bytes from the given position to the buffer's end; no
 * operation reads or writes beyond it.
 *
 * What is fatal. A null pointer is a programming error wherever a comment does not allow it: the
 * operation reports it to velSwFatalError, pointers in argument order, and should the report
 * return, it fails (0 or null) without touching memory. The only other fatal error is packing a
 * message into a buffer that is too small for it.
 *
 * Threads. There are no locks. Use an object in one thread at a time, also for extracting, which
 * marks what it took. Different objects may be used at once if the host's memory service allows
 * it. */
#ifndef TARN_IF_H
#define TARN_IF_H

#include <stdint.h>

#include "tarn_if_composite_ies.h"
#include "tarn_if_messages.h"
#include "tarn_if_objects.h"
#include "tarn_if_primitive_ies.h"

#ifdef __cplusplus
extern "C" {
#endif

#pragma GCC visibility push(default)

/* ---- Decoding a message of any type ---------------------------------------------------------- */

/* TarnGetMessageId returns the id of the message at buffer, or 0 if it does not begin with a
 * well-formed MessageId IE. It looks at nothing behind that IE. A null buffer is fatal. */
uint32_t TarnGetMessageId(const uint8_t *buffer, uint32_t length);

/* TarnUnpackNewMsg unpacks the message at buffer by its id and sets *msg to a new message object
 * that the caller owns, returning 1 on success and 0, with *msg null, if the id is unknown or the
 * message is malformed. Bytes behind the last IE that the message knows are ignored. A null msg or
 * buffer is fatal. */
uint32_t TarnUnpackNewMsg(const uint8_t *buffer, uint32_t length, TarnMsg **msg);

/* ---- Tags and lengths in a buffer ------------------------------------------------------------ */

/* TarnExtractTagFromBuffer sets *tag from the 2 bytes at buffer, returning 2 on success and 0, with
 * *tag as it was, if fewer are available. A null tag or buffer is fatal. */
uint32_t TarnExtractTagFromBuffer(uint16_t *tag, const uint8_t *buffer, uint32_t available);

/* TarnExtractLengthFromBuffer sets *length from the 4 bytes at buffer, returning 4 on success and
 * 0, with *length as it was, if fewer are available. A null length or buffer is fatal. */
uint32_t TarnExtractLengthFromBuffer(uint32_t *length, const uint8_t *buffer, uint32_t available);

/* TarnPackTagIntoBuffer writes the low 16 bits of tag to buffer, returning 2 on success and 0, with
 * nothing written, if fewer bytes are available. A null buffer is fatal. */
uint32_t TarnPackTagIntoBuffer(uint32_t tag, uint8_t *buffer, uint32_t available);

/* TarnPackLengthIntoBuffer writes length to buffer, returning 4 on success and 0, with nothing
 * written, if fewer bytes are available. A null buffer is fatal. */
uint32_t TarnPackLengthIntoBuffer(uint32_t length, uint8_t *buffer, uint32_t available);

/* ---- Version --------------------------------------------------------------------------------- */

/* TarnGetInterfaceVersion returns the version of this interface, "39", always at the same address:
 * a constant, not to be modified or freed. */
const char *TarnGetInterfaceVersion(void);

#pragma GCC visibility pop

#ifdef __cplusplus
}
#endif

#endif
