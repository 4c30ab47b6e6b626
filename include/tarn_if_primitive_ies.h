/* Written by header_writer from the rows in src/catalogue; do not edit: change the rows or
 * tools/header_writer, then run `cmake --build --preset release --target tarn_headers`. */

/* The primitive IEs: IEs that hold a value. For each IE X stand here its value type TarnX, its IE
 * object type TarnXIe, its tag TarnXTag, and seven operations. Some types travel only inside others
 * or have no tag at all; these have no IE object and only the first four operations.
 *
 * Values come in four shapes:
 *
 *   scalar       An unsigned integer, 1, 2 or 4 bytes on the wire. A code word (a cause, type, mode
 *                or flag) is a uint32_t of which only the low 16 bits travel.
 *   byte string  A length and an array of opaque bytes. Only the bytes travel.
 *   record       Members in a fixed order, each with its own tag and length. None may be missing.
 *   list         A count and an array of items, each with the item's tag and length. The count does
 *                not travel.
 *
 * TarnSizeOfX returns the bytes that the value takes on the wire, the IE's own header not counted:
 * the width of a scalar, the stored length of a byte string, and for records and lists the sum over
 * members or items of their sizes and 6 bytes of header each.
 *
 * TarnPackX writes the bare value to buffer and its size to *written. It fails if fewer bytes are
 * available than the value takes, or if a stored length or count is beyond its array; ranges it
 * does not check.
 *
 * TarnUnpackX reads a bare value, whose IE declared `length` bytes, into *value and sets *consumed.
 * A scalar needs exactly its width. A byte string takes any length up to its array's. A record
 * takes its members in order and looks at nothing behind the last one. A list takes items until
 * length is used up, and no more than its array holds. All fail if fewer than length bytes are
 * available, or if a member or an item has another tag than the one expected or fails itself.
 * Ranges are not checked: see TarnIsXValid.
 *
 *   When these two fail, *written and *consumed stay as they were for scalars and byte strings,
 *   and tell the bytes handled before the failing point for records and lists; of a member or
 *   item whose value fails, these are its 6 bytes of header. A scalar and a byte string that fail
 *   to unpack stay as they were, and so does a list of more items than its array holds; else
 *   members or items of a record or list that were read before the failing point are set.
 *
 * TarnIsXValid returns 1 if the value is in range: a scalar's number, a byte string's length, every
 * member of a record, the count and every item of a list. Appending to a message or a composite IE
 * checks this, and so does unpacking one.
 *
 * TarnPackXIe writes the whole IE, header and value, to buffer and its size to *written. When it
 * fails, *written is 0 if the IE does not fit and 6 if its value does not pack.
 *
 * TarnUnpackXIe reads the whole IE from buffer into ie->value and sets *consumed. Neither the tag
 * in ie nor anything else of its head is read or written, and ranges are not checked. When it
 * fails, *consumed is 0 if the tag is missing or wrong, 2 if the length is missing, and 6 if the
 * value does not unpack. The container is not used and may be null.
 *
 * TarnIsXIeValid returns 1 if ie has the tag of X and a valid value. The container is not used and
 * may be null.
 *
 * Ownership. All values, IE objects, buffers and counts are the caller's, and are not kept. An IE
 * object for these operations may stand anywhere, also on the stack: set ie.tag, which packing and
 * validity read.
 *
 * Fatal. Every pointer but the container is required; a null one is reported, and the operation
 * fails. */
#ifndef TARN_IF_PRIMITIVE_IES_H
#define TARN_IF_PRIMITIVE_IES_H

#include <stdint.h>

#include "tarn_if_objects.h"

#ifdef __cplusplus
extern "C" {
#endif

#pragma GCC visibility push(default)

/* ==== Scalars ================================================================================= */

/* ---- Srnti, tag 1 -------------------------------------------------------------------------------
 * Serving RNC temporary identity (S-RNTI) of the UE.
 *
 * A uint32_t, any value; 4 bytes on the wire, 10 bytes with its header. */

enum { TarnSrntiTag = 1 };

typedef uint32_t TarnSrnti;

typedef struct TarnSrntiIe {
    TarnIe ie;
    TarnSrnti value;
} TarnSrntiIe;

/* TarnSizeOfSrnti returns 4. */
uint32_t TarnSizeOfSrnti(const TarnSrnti *value);

/* TarnPackSrnti packs *value and sets *written, returning 1 on success and 0 if fewer than 4 bytes
 * are available. */
uint32_t TarnPackSrnti(const TarnSrnti *value, uint8_t *buffer, uint32_t available,
                       uint32_t *written);

/* TarnUnpackSrnti sets *value and *consumed, returning 1 on success and 0 if length is not 4 or
 * fewer bytes are available. */
uint32_t TarnUnpackSrnti(TarnSrnti *value, uint32_t length, const uint8_t *buffer,
                         uint32_t available, uint32_t *consumed);

/* TarnIsSrntiValid returns 1: every value is valid. */
uint32_t TarnIsSrntiValid(const TarnSrnti *value);

/* TarnPackSrntiIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackSrntiIe(const TarnSrntiIe *ie, uint8_t *buffer, uint32_t available,
                         uint32_t *written);

/* TarnUnpackSrntiIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackSrntiIe(const void *container, TarnSrntiIe *ie, const uint8_t *buffer,
                           uint32_t available, uint32_t *consumed);

/* TarnIsSrntiIeValid returns 1 if ie has tag 1 and a valid value, and 0 otherwise. */
uint32_t TarnIsSrntiIeValid(const void *container, const TarnSrntiIe *ie);

/* ---- EstablishCause, tag 2 ----------------------------------------------------------------------
 * RRC establishment cause.
 *
 * A code word, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnEstablishCauseTag = 2 };

typedef uint32_t TarnEstablishCause;

typedef struct TarnEstablishCauseIe {
    TarnIe ie;
    TarnEstablishCause value;
} TarnEstablishCauseIe;

/* TarnSizeOfEstablishCause returns 2. */
uint32_t TarnSizeOfEstablishCause(const TarnEstablishCause *value);

/* TarnPackEstablishCause packs *value and sets *written, returning 1 on success and 0 if fewer than
 * 2 bytes are available. */
uint32_t TarnPackEstablishCause(const TarnEstablishCause *value, uint8_t *buffer,
                                uint32_t available, uint32_t *written);

/* TarnUnpackEstablishCause sets *value and *consumed, returning 1 on success and 0 if length is not
 * 2 or fewer bytes are available. */
uint32_t TarnUnpackEstablishCause(TarnEstablishCause *value, uint32_t length, const uint8_t *buffer,
                                  uint32_t available, uint32_t *consumed);

/* TarnIsEstablishCauseValid returns 1: every value is valid. */
uint32_t TarnIsEstablishCauseValid(const TarnEstablishCause *value);

/* TarnPackEstablishCauseIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackEstablishCauseIe(const TarnEstablishCauseIe *ie, uint8_t *buffer,
                                  uint32_t available, uint32_t *written);

/* TarnUnpackEstablishCauseIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackEstablishCauseIe(const void *container, TarnEstablishCauseIe *ie,
                                    const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsEstablishCauseIeValid returns 1 if ie has tag 2 and a valid value, and 0 otherwise. */
uint32_t TarnIsEstablishCauseIeValid(const void *container, const TarnEstablishCauseIe *ie);

/* ---- AcUeId, tag 3 ------------------------------------------------------------------------------
 * UE identifier on the access controller's side.
 *
 * A uint32_t, any value; 4 bytes on the wire, 10 bytes with its header. */

enum { TarnAcUeIdTag = 3 };

typedef uint32_t TarnAcUeId;

typedef struct TarnAcUeIdIe {
    TarnIe ie;
    TarnAcUeId value;
} TarnAcUeIdIe;

/* TarnSizeOfAcUeId returns 4. */
uint32_t TarnSizeOfAcUeId(const TarnAcUeId *value);

/* TarnPackAcUeId packs *value and sets *written, returning 1 on success and 0 if fewer than 4 bytes
 * are available. */
uint32_t TarnPackAcUeId(const TarnAcUeId *value, uint8_t *buffer, uint32_t available,
                        uint32_t *written);

/* TarnUnpackAcUeId sets *value and *consumed, returning 1 on success and 0 if length is not 4 or
 * fewer bytes are available. */
uint32_t TarnUnpackAcUeId(TarnAcUeId *value, uint32_t length, const uint8_t *buffer,
                          uint32_t available, uint32_t *consumed);

/* TarnIsAcUeIdValid returns 1: every value is valid. */
uint32_t TarnIsAcUeIdValid(const TarnAcUeId *value);

/* TarnPackAcUeIdIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackAcUeIdIe(const TarnAcUeIdIe *ie, uint8_t *buffer, uint32_t available,
                          uint32_t *written);

/* TarnUnpackAcUeIdIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackAcUeIdIe(const void *container, TarnAcUeIdIe *ie, const uint8_t *buffer,
                            uint32_t available, uint32_t *consumed);

/* TarnIsAcUeIdIeValid returns 1 if ie has tag 3 and a valid value, and 0 otherwise. */
uint32_t TarnIsAcUeIdIeValid(const void *container, const TarnAcUeIdIe *ie);

/* ---- RejectCause, tag 4 -------------------------------------------------------------------------
 * Cause of a rejected UE context request.
 *
 * A code word, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnRejectCauseTag = 4 };

typedef uint32_t TarnRejectCause;

typedef struct TarnRejectCauseIe {
    TarnIe ie;
    TarnRejectCause value;
} TarnRejectCauseIe;

/* TarnSizeOfRejectCause returns 2. */
uint32_t TarnSizeOfRejectCause(const TarnRejectCause *value);

/* TarnPackRejectCause packs *value and sets *written, returning 1 on success and 0 if fewer than 2
 * bytes are available. */
uint32_t TarnPackRejectCause(const TarnRejectCause *value, uint8_t *buffer, uint32_t available,
                             uint32_t *written);

/* TarnUnpackRejectCause sets *value and *consumed, returning 1 on success and 0 if length is not 2
 * or fewer bytes are available. */
uint32_t TarnUnpackRejectCause(TarnRejectCause *value, uint32_t length, const uint8_t *buffer,
                               uint32_t available, uint32_t *consumed);

/* TarnIsRejectCauseValid returns 1: every value is valid. */
uint32_t TarnIsRejectCauseValid(const TarnRejectCause *value);

/* TarnPackRejectCauseIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackRejectCauseIe(const TarnRejectCauseIe *ie, uint8_t *buffer, uint32_t available,
                               uint32_t *written);

/* TarnUnpackRejectCauseIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackRejectCauseIe(const void *container, TarnRejectCauseIe *ie,
                                 const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsRejectCauseIeValid returns 1 if ie has tag 4 and a valid value, and 0 otherwise. */
uint32_t TarnIsRejectCauseIeValid(const void *container, const TarnRejectCauseIe *ie);

/* ---- ReleaseCause, tag 5 ------------------------------------------------------------------------
 * Cause of a UE context release.
 *
 * A code word, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnReleaseCauseTag = 5 };

typedef uint32_t TarnReleaseCause;

typedef struct TarnReleaseCauseIe {
    TarnIe ie;
    TarnReleaseCause value;
} TarnReleaseCauseIe;

/* TarnSizeOfReleaseCause returns 2. */
uint32_t TarnSizeOfReleaseCause(const TarnReleaseCause *value);

/* TarnPackReleaseCause packs *value and sets *written, returning 1 on success and 0 if fewer than 2
 * bytes are available. */
uint32_t TarnPackReleaseCause(const TarnReleaseCause *value, uint8_t *buffer, uint32_t available,
                              uint32_t *written);

/* TarnUnpackReleaseCause sets *value and *consumed, returning 1 on success and 0 if length is not 2
 * or fewer bytes are available. */
uint32_t TarnUnpackReleaseCause(TarnReleaseCause *value, uint32_t length, const uint8_t *buffer,
                                uint32_t available, uint32_t *consumed);

/* TarnIsReleaseCauseValid returns 1: every value is valid. */
uint32_t TarnIsReleaseCauseValid(const TarnReleaseCause *value);

/* TarnPackReleaseCauseIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackReleaseCauseIe(const TarnReleaseCauseIe *ie, uint8_t *buffer, uint32_t available,
                                uint32_t *written);

/* TarnUnpackReleaseCauseIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackReleaseCauseIe(const void *container, TarnReleaseCauseIe *ie,
                                  const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsReleaseCauseIeValid returns 1 if ie has tag 5 and a valid value, and 0 otherwise. */
uint32_t TarnIsReleaseCauseIeValid(const void *container, const TarnReleaseCauseIe *ie);

/* ---- CnDomainId, tag 6 --------------------------------------------------------------------------
 * Core network domain indicator (circuit or packet switched).
 *
 * A code word, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnCnDomainIdTag = 6 };

typedef uint32_t TarnCnDomainId;

typedef struct TarnCnDomainIdIe {
    TarnIe ie;
    TarnCnDomainId value;
} TarnCnDomainIdIe;

/* TarnSizeOfCnDomainId returns 2. */
uint32_t TarnSizeOfCnDomainId(const TarnCnDomainId *value);

/* TarnPackCnDomainId packs *value and sets *written, returning 1 on success and 0 if fewer than 2
 * bytes are available. */
uint32_t TarnPackCnDomainId(const TarnCnDomainId *value, uint8_t *buffer, uint32_t available,
                            uint32_t *written);

/* TarnUnpackCnDomainId sets *value and *consumed, returning 1 on success and 0 if length is not 2
 * or fewer bytes are available. */
uint32_t TarnUnpackCnDomainId(TarnCnDomainId *value, uint32_t length, const uint8_t *buffer,
                              uint32_t available, uint32_t *consumed);

/* TarnIsCnDomainIdValid returns 1: every value is valid. */
uint32_t TarnIsCnDomainIdValid(const TarnCnDomainId *value);

/* TarnPackCnDomainIdIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackCnDomainIdIe(const TarnCnDomainIdIe *ie, uint8_t *buffer, uint32_t available,
                              uint32_t *written);

/* TarnUnpackCnDomainIdIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackCnDomainIdIe(const void *container, TarnCnDomainIdIe *ie, const uint8_t *buffer,
                                uint32_t available, uint32_t *consumed);

/* TarnIsCnDomainIdIeValid returns 1 if ie has tag 6 and a valid value, and 0 otherwise. */
uint32_t TarnIsCnDomainIdIeValid(const void *container, const TarnCnDomainIdIe *ie);

/* ---- SapiId, tag 8 ------------------------------------------------------------------------------
 * Service access point identifier (SAPI) of a NAS message.
 *
 * A code word, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnSapiIdTag = 8 };

typedef uint32_t TarnSapiId;

typedef struct TarnSapiIdIe {
    TarnIe ie;
    TarnSapiId value;
} TarnSapiIdIe;

/* TarnSizeOfSapiId returns 2. */
uint32_t TarnSizeOfSapiId(const TarnSapiId *value);

/* TarnPackSapiId packs *value and sets *written, returning 1 on success and 0 if fewer than 2 bytes
 * are available. */
uint32_t TarnPackSapiId(const TarnSapiId *value, uint8_t *buffer, uint32_t available,
                        uint32_t *written);

/* TarnUnpackSapiId sets *value and *consumed, returning 1 on success and 0 if length is not 2 or
 * fewer bytes are available. */
uint32_t TarnUnpackSapiId(TarnSapiId *value, uint32_t length, const uint8_t *buffer,
                          uint32_t available, uint32_t *consumed);

/* TarnIsSapiIdValid returns 1: every value is valid. */
uint32_t TarnIsSapiIdValid(const TarnSapiId *value);

/* TarnPackSapiIdIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackSapiIdIe(const TarnSapiIdIe *ie, uint8_t *buffer, uint32_t available,
                          uint32_t *written);

/* TarnUnpackSapiIdIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackSapiIdIe(const void *container, TarnSapiIdIe *ie, const uint8_t *buffer,
                            uint32_t available, uint32_t *consumed);

/* TarnIsSapiIdIeValid returns 1 if ie has tag 8 and a valid value, and 0 otherwise. */
uint32_t TarnIsSapiIdIeValid(const void *container, const TarnSapiIdIe *ie);

/* ---- IuRelReqCause, tag 9 -----------------------------------------------------------------------
 * Cause of an Iu release request.
 *
 * A code word, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnIuRelReqCauseTag = 9 };

typedef uint32_t TarnIuRelReqCause;

typedef struct TarnIuRelReqCauseIe {
    TarnIe ie;
    TarnIuRelReqCause value;
} TarnIuRelReqCauseIe;

/* TarnSizeOfIuRelReqCause returns 2. */
uint32_t TarnSizeOfIuRelReqCause(const TarnIuRelReqCause *value);

/* TarnPackIuRelReqCause packs *value and sets *written, returning 1 on success and 0 if fewer than
 * 2 bytes are available. */
uint32_t TarnPackIuRelReqCause(const TarnIuRelReqCause *value, uint8_t *buffer, uint32_t available,
                               uint32_t *written);

/* TarnUnpackIuRelReqCause sets *value and *consumed, returning 1 on success and 0 if length is not
 * 2 or fewer bytes are available. */
uint32_t TarnUnpackIuRelReqCause(TarnIuRelReqCause *value, uint32_t length, const uint8_t *buffer,
                                 uint32_t available, uint32_t *consumed);

/* TarnIsIuRelReqCauseValid returns 1: every value is valid. */
uint32_t TarnIsIuRelReqCauseValid(const TarnIuRelReqCause *value);

/* TarnPackIuRelReqCauseIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackIuRelReqCauseIe(const TarnIuRelReqCauseIe *ie, uint8_t *buffer, uint32_t available,
                                 uint32_t *written);

/* TarnUnpackIuRelReqCauseIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackIuRelReqCauseIe(const void *container, TarnIuRelReqCauseIe *ie,
                                   const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsIuRelReqCauseIeValid returns 1 if ie has tag 9 and a valid value, and 0 otherwise. */
uint32_t TarnIsIuRelReqCauseIeValid(const void *container, const TarnIuRelReqCauseIe *ie);

/* ---- KeyStatus, tag 10 --------------------------------------------------------------------------
 * Key status: whether the security keys are new or old.
 *
 * A code word, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnKeyStatusTag = 10 };

typedef uint32_t TarnKeyStatus;

typedef struct TarnKeyStatusIe {
    TarnIe ie;
    TarnKeyStatus value;
} TarnKeyStatusIe;

/* TarnSizeOfKeyStatus returns 2. */
uint32_t TarnSizeOfKeyStatus(const TarnKeyStatus *value);

/* TarnPackKeyStatus packs *value and sets *written, returning 1 on success and 0 if fewer than 2
 * bytes are available. */
uint32_t TarnPackKeyStatus(const TarnKeyStatus *value, uint8_t *buffer, uint32_t available,
                           uint32_t *written);

/* TarnUnpackKeyStatus sets *value and *consumed, returning 1 on success and 0 if length is not 2 or
 * fewer bytes are available. */
uint32_t TarnUnpackKeyStatus(TarnKeyStatus *value, uint32_t length, const uint8_t *buffer,
                             uint32_t available, uint32_t *consumed);

/* TarnIsKeyStatusValid returns 1: every value is valid. */
uint32_t TarnIsKeyStatusValid(const TarnKeyStatus *value);

/* TarnPackKeyStatusIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackKeyStatusIe(const TarnKeyStatusIe *ie, uint8_t *buffer, uint32_t available,
                             uint32_t *written);

/* TarnUnpackKeyStatusIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackKeyStatusIe(const void *container, TarnKeyStatusIe *ie, const uint8_t *buffer,
                               uint32_t available, uint32_t *consumed);

/* TarnIsKeyStatusIeValid returns 1 if ie has tag 10 and a valid value, and 0 otherwise. */
uint32_t TarnIsKeyStatusIeValid(const void *container, const TarnKeyStatusIe *ie);

/* ---- IntProtAlgo, tag 12 ------------------------------------------------------------------------
 * Integrity protection algorithm (UIA).
 *
 * A code word, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnIntProtAlgoTag = 12 };

typedef uint32_t TarnIntProtAlgo;

typedef struct TarnIntProtAlgoIe {
    TarnIe ie;
    TarnIntProtAlgo value;
} TarnIntProtAlgoIe;

/* TarnSizeOfIntProtAlgo returns 2. */
uint32_t TarnSizeOfIntProtAlgo(const TarnIntProtAlgo *value);

/* TarnPackIntProtAlgo packs *value and sets *written, returning 1 on success and 0 if fewer than 2
 * bytes are available. */
uint32_t TarnPackIntProtAlgo(const TarnIntProtAlgo *value, uint8_t *buffer, uint32_t available,
                             uint32_t *written);

/* TarnUnpackIntProtAlgo sets *value and *consumed, returning 1 on success and 0 if length is not 2
 * or fewer bytes are available. */
uint32_t TarnUnpackIntProtAlgo(TarnIntProtAlgo *value, uint32_t length, const uint8_t *buffer,
                               uint32_t available, uint32_t *consumed);

/* TarnIsIntProtAlgoValid returns 1: every value is valid. */
uint32_t TarnIsIntProtAlgoValid(const TarnIntProtAlgo *value);

/* TarnPackIntProtAlgoIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackIntProtAlgoIe(const TarnIntProtAlgoIe *ie, uint8_t *buffer, uint32_t available,
                               uint32_t *written);

/* TarnUnpackIntProtAlgoIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackIntProtAlgoIe(const void *container, TarnIntProtAlgoIe *ie,
                                 const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsIntProtAlgoIeValid returns 1 if ie has tag 12 and a valid value, and 0 otherwise. */
uint32_t TarnIsIntProtAlgoIeValid(const void *container, const TarnIntProtAlgoIe *ie);

/* ---- EncryptAlgo, tag 17 ------------------------------------------------------------------------
 * Encryption algorithm (UEA).
 *
 * A code word, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnEncryptAlgoTag = 17 };

typedef uint32_t TarnEncryptAlgo;

typedef struct TarnEncryptAlgoIe {
    TarnIe ie;
    TarnEncryptAlgo value;
} TarnEncryptAlgoIe;

/* TarnSizeOfEncryptAlgo returns 2. */
uint32_t TarnSizeOfEncryptAlgo(const TarnEncryptAlgo *value);

/* TarnPackEncryptAlgo packs *value and sets *written, returning 1 on success and 0 if fewer than 2
 * bytes are available. */
uint32_t TarnPackEncryptAlgo(const TarnEncryptAlgo *value, uint8_t *buffer, uint32_t available,
                             uint32_t *written);

/* TarnUnpackEncryptAlgo sets *value and *consumed, returning 1 on success and 0 if length is not 2
 * or fewer bytes are available. */
uint32_t TarnUnpackEncryptAlgo(TarnEncryptAlgo *value, uint32_t length, const uint8_t *buffer,
                               uint32_t available, uint32_t *consumed);

/* TarnIsEncryptAlgoValid returns 1: every value is valid. */
uint32_t TarnIsEncryptAlgoValid(const TarnEncryptAlgo *value);

/* TarnPackEncryptAlgoIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackEncryptAlgoIe(const TarnEncryptAlgoIe *ie, uint8_t *buffer, uint32_t available,
                               uint32_t *written);

/* TarnUnpackEncryptAlgoIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackEncryptAlgoIe(const void *container, TarnEncryptAlgoIe *ie,
                                 const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsEncryptAlgoIeValid returns 1 if ie has tag 17 and a valid value, and 0 otherwise. */
uint32_t TarnIsEncryptAlgoIeValid(const void *container, const TarnEncryptAlgoIe *ie);

/* ---- SecRejCause, tag 18 ------------------------------------------------------------------------
 * Cause of a rejected security mode command.
 *
 * A code word, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnSecRejCauseTag = 18 };

typedef uint32_t TarnSecRejCause;

typedef struct TarnSecRejCauseIe {
    TarnIe ie;
    TarnSecRejCause value;
} TarnSecRejCauseIe;

/* TarnSizeOfSecRejCause returns 2. */
uint32_t TarnSizeOfSecRejCause(const TarnSecRejCause *value);

/* TarnPackSecRejCause packs *value and sets *written, returning 1 on success and 0 if fewer than 2
 * bytes are available. */
uint32_t TarnPackSecRejCause(const TarnSecRejCause *value, uint8_t *buffer, uint32_t available,
                             uint32_t *written);

/* TarnUnpackSecRejCause sets *value and *consumed, returning 1 on success and 0 if length is not 2
 * or fewer bytes are available. */
uint32_t TarnUnpackSecRejCause(TarnSecRejCause *value, uint32_t length, const uint8_t *buffer,
                               uint32_t available, uint32_t *consumed);

/* TarnIsSecRejCauseValid returns 1: every value is valid. */
uint32_t TarnIsSecRejCauseValid(const TarnSecRejCause *value);

/* TarnPackSecRejCauseIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackSecRejCauseIe(const TarnSecRejCauseIe *ie, uint8_t *buffer, uint32_t available,
                               uint32_t *written);

/* TarnUnpackSecRejCauseIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackSecRejCauseIe(const void *container, TarnSecRejCauseIe *ie,
                                 const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsSecRejCauseIeValid returns 1 if ie has tag 18 and a valid value, and 0 otherwise. */
uint32_t TarnIsSecRejCauseIeValid(const void *container, const TarnSecRejCauseIe *ie);

/* ---- UserPlaneMode, tag 20 ----------------------------------------------------------------------
 * Iu user plane mode (transparent or support mode).
 *
 * A code word, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnUserPlaneModeTag = 20 };

typedef uint32_t TarnUserPlaneMode;

typedef struct TarnUserPlaneModeIe {
    TarnIe ie;
    TarnUserPlaneMode value;
} TarnUserPlaneModeIe;

/* TarnSizeOfUserPlaneMode returns 2. */
uint32_t TarnSizeOfUserPlaneMode(const TarnUserPlaneMode *value);

/* TarnPackUserPlaneMode packs *value and sets *written, returning 1 on success and 0 if fewer than
 * 2 bytes are available. */
uint32_t TarnPackUserPlaneMode(const TarnUserPlaneMode *value, uint8_t *buffer, uint32_t available,
                               uint32_t *written);

/* TarnUnpackUserPlaneMode sets *value and *consumed, returning 1 on success and 0 if length is not
 * 2 or fewer bytes are available. */
uint32_t TarnUnpackUserPlaneMode(TarnUserPlaneMode *value, uint32_t length, const uint8_t *buffer,
                                 uint32_t available, uint32_t *consumed);

/* TarnIsUserPlaneModeValid returns 1: every value is valid. */
uint32_t TarnIsUserPlaneModeValid(const TarnUserPlaneMode *value);

/* TarnPackUserPlaneModeIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackUserPlaneModeIe(const TarnUserPlaneModeIe *ie, uint8_t *buffer, uint32_t available,
                                 uint32_t *written);

/* TarnUnpackUserPlaneModeIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackUserPlaneModeIe(const void *container, TarnUserPlaneModeIe *ie,
                                   const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsUserPlaneModeIeValid returns 1 if ie has tag 20 and a valid value, and 0 otherwise. */
uint32_t TarnIsUserPlaneModeIeValid(const void *container, const TarnUserPlaneModeIe *ie);

/* ---- RabId, tag 23 ------------------------------------------------------------------------------
 * Radio access bearer (RAB) identifier.
 *
 * A uint8_t, any value; 1 byte on the wire, 7 bytes with its header. */

enum { TarnRabIdTag = 23 };

typedef uint8_t TarnRabId;

typedef struct TarnRabIdIe {
    TarnIe ie;
    TarnRabId value;
} TarnRabIdIe;

/* TarnSizeOfRabId returns 1. */
uint32_t TarnSizeOfRabId(const TarnRabId *value);

/* TarnPackRabId packs *value and sets *written, returning 1 on success and 0 if fewer than 1 byte
 * are available. */
uint32_t TarnPackRabId(const TarnRabId *value, uint8_t *buffer, uint32_t available,
                       uint32_t *written);

/* TarnUnpackRabId sets *value and *consumed, returning 1 on success and 0 if length is not 1 or
 * fewer bytes are available. */
uint32_t TarnUnpackRabId(TarnRabId *value, uint32_t length, const uint8_t *buffer,
                         uint32_t available, uint32_t *consumed);

/* TarnIsRabIdValid returns 1: every value is valid. */
uint32_t TarnIsRabIdValid(const TarnRabId *value);

/* TarnPackRabIdIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackRabIdIe(const TarnRabIdIe *ie, uint8_t *buffer, uint32_t available,
                         uint32_t *written);

/* TarnUnpackRabIdIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackRabIdIe(const void *container, TarnRabIdIe *ie, const uint8_t *buffer,
                           uint32_t available, uint32_t *consumed);

/* TarnIsRabIdIeValid returns 1 if ie has tag 23 and a valid value, and 0 otherwise. */
uint32_t TarnIsRabIdIeValid(const void *container, const TarnRabIdIe *ie);

/* ---- AcUserPlaneAssociation, tag 24 -------------------------------------------------------------
 * User plane association identifier on the access controller's side.
 *
 * A uint32_t, any value; 4 bytes on the wire, 10 bytes with its header. */

enum { TarnAcUserPlaneAssociationTag = 24 };

typedef uint32_t TarnAcUserPlaneAssociation;

typedef struct TarnAcUserPlaneAssociationIe {
    TarnIe ie;
    TarnAcUserPlaneAssociation value;
} TarnAcUserPlaneAssociationIe;

/* TarnSizeOfAcUserPlaneAssociation returns 4. */
uint32_t TarnSizeOfAcUserPlaneAssociation(const TarnAcUserPlaneAssociation *value);

/* TarnPackAcUserPlaneAssociation packs *value and sets *written, returning 1 on success and 0 if
 * fewer than 4 bytes are available. */
uint32_t TarnPackAcUserPlaneAssociation(const TarnAcUserPlaneAssociation *value, uint8_t *buffer,
                                        uint32_t available, uint32_t *written);

/* TarnUnpackAcUserPlaneAssociation sets *value and *consumed, returning 1 on success and 0 if
 * length is not 4 or fewer bytes are available. */
uint32_t TarnUnpackAcUserPlaneAssociation(TarnAcUserPlaneAssociation *value, uint32_t length,
                                          const uint8_t *buffer, uint32_t available,
                                          uint32_t *consumed);

/* TarnIsAcUserPlaneAssociationValid returns 1: every value is valid. */
uint32_t TarnIsAcUserPlaneAssociationValid(const TarnAcUserPlaneAssociation *value);

/* TarnPackAcUserPlaneAssociationIe packs ie and sets *written, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackAcUserPlaneAssociationIe(const TarnAcUserPlaneAssociationIe *ie, uint8_t *buffer,
                                          uint32_t available, uint32_t *written);

/* TarnUnpackAcUserPlaneAssociationIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackAcUserPlaneAssociationIe(const void *container, TarnAcUserPlaneAssociationIe *ie,
                                            const uint8_t *buffer, uint32_t available,
                                            uint32_t *consumed);

/* TarnIsAcUserPlaneAssociationIeValid returns 1 if ie has tag 24 and a valid value, and 0
 * otherwise. */
uint32_t TarnIsAcUserPlaneAssociationIeValid(const void *container,
                                             const TarnAcUserPlaneAssociationIe *ie);

/* ---- NasSyncInd, tag 25 -------------------------------------------------------------------------
 * NAS synchronisation indicator.
 *
 * A uint8_t, any value; 1 byte on the wire, 7 bytes with its header. */

enum { TarnNasSyncIndTag = 25 };

typedef uint8_t TarnNasSyncInd;

typedef struct TarnNasSyncIndIe {
    TarnIe ie;
    TarnNasSyncInd value;
} TarnNasSyncIndIe;

/* TarnSizeOfNasSyncInd returns 1. */
uint32_t TarnSizeOfNasSyncInd(const TarnNasSyncInd *value);

/* TarnPackNasSyncInd packs *value and sets *written, returning 1 on success and 0 if fewer than 1
 * byte are available. */
uint32_t TarnPackNasSyncInd(const TarnNasSyncInd *value, uint8_t *buffer, uint32_t available,
                            uint32_t *written);

/* TarnUnpackNasSyncInd sets *value and *consumed, returning 1 on success and 0 if length is not 1
 * or fewer bytes are available. */
uint32_t TarnUnpackNasSyncInd(TarnNasSyncInd *value, uint32_t length, const uint8_t *buffer,
                              uint32_t available, uint32_t *consumed);

/* TarnIsNasSyncIndValid returns 1: every value is valid. */
uint32_t TarnIsNasSyncIndValid(const TarnNasSyncInd *value);

/* TarnPackNasSyncIndIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackNasSyncIndIe(const TarnNasSyncIndIe *ie, uint8_t *buffer, uint32_t available,
                              uint32_t *written);

/* TarnUnpackNasSyncIndIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackNasSyncIndIe(const void *container, TarnNasSyncIndIe *ie, const uint8_t *buffer,
                                uint32_t available, uint32_t *consumed);

/* TarnIsNasSyncIndIeValid returns 1 if ie has tag 25 and a valid value, and 0 otherwise. */
uint32_t TarnIsNasSyncIndIeValid(const void *container, const TarnNasSyncIndIe *ie);

/* ---- TrafficClass, tag 27 -----------------------------------------------------------------------
 * Traffic class; 3 is interactive, 0 and 2 count as real-time.
 *
 * A code word, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnTrafficClassTag = 27 };

typedef uint32_t TarnTrafficClass;

typedef struct TarnTrafficClassIe {
    TarnIe ie;
    TarnTrafficClass value;
} TarnTrafficClassIe;

/* TarnSizeOfTrafficClass returns 2. */
uint32_t TarnSizeOfTrafficClass(const TarnTrafficClass *value);

/* TarnPackTrafficClass packs *value and sets *written, returning 1 on success and 0 if fewer than 2
 * bytes are available. */
uint32_t TarnPackTrafficClass(const TarnTrafficClass *value, uint8_t *buffer, uint32_t available,
                              uint32_t *written);

/* TarnUnpackTrafficClass sets *value and *consumed, returning 1 on success and 0 if length is not 2
 * or fewer bytes are available. */
uint32_t TarnUnpackTrafficClass(TarnTrafficClass *value, uint32_t length, const uint8_t *buffer,
                                uint32_t available, uint32_t *consumed);

/* TarnIsTrafficClassValid returns 1: every value is valid. */
uint32_t TarnIsTrafficClassValid(const TarnTrafficClass *value);

/* TarnPackTrafficClassIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackTrafficClassIe(const TarnTrafficClassIe *ie, uint8_t *buffer, uint32_t available,
                                uint32_t *written);

/* TarnUnpackTrafficClassIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackTrafficClassIe(const void *container, TarnTrafficClassIe *ie,
                                  const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsTrafficClassIeValid returns 1 if ie has tag 27 and a valid value, and 0 otherwise. */
uint32_t TarnIsTrafficClassIeValid(const void *container, const TarnTrafficClassIe *ie);

/* ---- RabAssymetryInd, tag 28 --------------------------------------------------------------------
 * RAB asymmetry indicator.
 *
 * A code word, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnRabAssymetryIndTag = 28 };

typedef uint32_t TarnRabAssymetryInd;

typedef struct TarnRabAssymetryIndIe {
    TarnIe ie;
    TarnRabAssymetryInd value;
} TarnRabAssymetryIndIe;

/* TarnSizeOfRabAssymetryInd returns 2. */
uint32_t TarnSizeOfRabAssymetryInd(const TarnRabAssymetryInd *value);

/* TarnPackRabAssymetryInd packs *value and sets *written, returning 1 on success and 0 if fewer
 * than 2 bytes are available. */
uint32_t TarnPackRabAssymetryInd(const TarnRabAssymetryInd *value, uint8_t *buffer,
                                 uint32_t available, uint32_t *written);

/* TarnUnpackRabAssymetryInd sets *value and *consumed, returning 1 on success and 0 if length is
 * not 2 or fewer bytes are available. */
uint32_t TarnUnpackRabAssymetryInd(TarnRabAssymetryInd *value, uint32_t length,
                                   const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsRabAssymetryIndValid returns 1: every value is valid. */
uint32_t TarnIsRabAssymetryIndValid(const TarnRabAssymetryInd *value);

/* TarnPackRabAssymetryIndIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackRabAssymetryIndIe(const TarnRabAssymetryIndIe *ie, uint8_t *buffer,
                                   uint32_t available, uint32_t *written);

/* TarnUnpackRabAssymetryIndIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackRabAssymetryIndIe(const void *container, TarnRabAssymetryIndIe *ie,
                                     const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsRabAssymetryIndIeValid returns 1 if ie has tag 28 and a valid value, and 0 otherwise. */
uint32_t TarnIsRabAssymetryIndIeValid(const void *container, const TarnRabAssymetryIndIe *ie);

/* ---- MaxSduSize, tag 29 -------------------------------------------------------------------------
 * Maximum SDU size.
 *
 * A uint16_t, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnMaxSduSizeTag = 29 };

typedef uint16_t TarnMaxSduSize;

typedef struct TarnMaxSduSizeIe {
    TarnIe ie;
    TarnMaxSduSize value;
} TarnMaxSduSizeIe;

/* TarnSizeOfMaxSduSize returns 2. */
uint32_t TarnSizeOfMaxSduSize(const TarnMaxSduSize *value);

/* TarnPackMaxSduSize packs *value and sets *written, returning 1 on success and 0 if fewer than 2
 * bytes are available. */
uint32_t TarnPackMaxSduSize(const TarnMaxSduSize *value, uint8_t *buffer, uint32_t available,
                            uint32_t *written);

/* TarnUnpackMaxSduSize sets *value and *consumed, returning 1 on success and 0 if length is not 2
 * or fewer bytes are available. */
uint32_t TarnUnpackMaxSduSize(TarnMaxSduSize *value, uint32_t length, const uint8_t *buffer,
                              uint32_t available, uint32_t *consumed);

/* TarnIsMaxSduSizeValid returns 1: every value is valid. */
uint32_t TarnIsMaxSduSizeValid(const TarnMaxSduSize *value);

/* TarnPackMaxSduSizeIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackMaxSduSizeIe(const TarnMaxSduSizeIe *ie, uint8_t *buffer, uint32_t available,
                              uint32_t *written);

/* TarnUnpackMaxSduSizeIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackMaxSduSizeIe(const void *container, TarnMaxSduSizeIe *ie, const uint8_t *buffer,
                                uint32_t available, uint32_t *consumed);

/* TarnIsMaxSduSizeIeValid returns 1 if ie has tag 29 and a valid value, and 0 otherwise. */
uint32_t TarnIsMaxSduSizeIeValid(const void *container, const TarnMaxSduSizeIe *ie);

/* ---- DeliveryOfErrSdu, tag 35 -------------------------------------------------------------------
 * Delivery of erroneous SDUs.
 *
 * A code word, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnDeliveryOfErrSduTag = 35 };

typedef uint32_t TarnDeliveryOfErrSdu;

typedef struct TarnDeliveryOfErrSduIe {
    TarnIe ie;
    TarnDeliveryOfErrSdu value;
} TarnDeliveryOfErrSduIe;

/* TarnSizeOfDeliveryOfErrSdu returns 2. */
uint32_t TarnSizeOfDeliveryOfErrSdu(const TarnDeliveryOfErrSdu *value);

/* TarnPackDeliveryOfErrSdu packs *value and sets *written, returning 1 on success and 0 if fewer
 * than 2 bytes are available. */
uint32_t TarnPackDeliveryOfErrSdu(const TarnDeliveryOfErrSdu *value, uint8_t *buffer,
                                  uint32_t available, uint32_t *written);

/* TarnUnpackDeliveryOfErrSdu sets *value and *consumed, returning 1 on success and 0 if length is
 * not 2 or fewer bytes are available. */
uint32_t TarnUnpackDeliveryOfErrSdu(TarnDeliveryOfErrSdu *value, uint32_t length,
                                    const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsDeliveryOfErrSduValid returns 1: every value is valid. */
uint32_t TarnIsDeliveryOfErrSduValid(const TarnDeliveryOfErrSdu *value);

/* TarnPackDeliveryOfErrSduIe packs ie and sets *written, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackDeliveryOfErrSduIe(const TarnDeliveryOfErrSduIe *ie, uint8_t *buffer,
                                    uint32_t available, uint32_t *written);

/* TarnUnpackDeliveryOfErrSduIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackDeliveryOfErrSduIe(const void *container, TarnDeliveryOfErrSduIe *ie,
                                      const uint8_t *buffer, uint32_t available,
                                      uint32_t *consumed);

/* TarnIsDeliveryOfErrSduIeValid returns 1 if ie has tag 35 and a valid value, and 0 otherwise. */
uint32_t TarnIsDeliveryOfErrSduIeValid(const void *container, const TarnDeliveryOfErrSduIe *ie);

/* ---- Mantissa, tag 37 ---------------------------------------------------------------------------
 * Mantissa of a bit error ratio.
 *
 * A uint8_t, any value; 1 byte on the wire, 7 bytes with its header. */

enum { TarnMantissaTag = 37 };

typedef uint8_t TarnMantissa;

typedef struct TarnMantissaIe {
    TarnIe ie;
    TarnMantissa value;
} TarnMantissaIe;

/* TarnSizeOfMantissa returns 1. */
uint32_t TarnSizeOfMantissa(const TarnMantissa *value);

/* TarnPackMantissa packs *value and sets *written, returning 1 on success and 0 if fewer than 1
 * byte are available. */
uint32_t TarnPackMantissa(const TarnMantissa *value, uint8_t *buffer, uint32_t available,
                          uint32_t *written);

/* TarnUnpackMantissa sets *value and *consumed, returning 1 on success and 0 if length is not 1 or
 * fewer bytes are available. */
uint32_t TarnUnpackMantissa(TarnMantissa *value, uint32_t length, const uint8_t *buffer,
                            uint32_t available, uint32_t *consumed);

/* TarnIsMantissaValid returns 1: every value is valid. */
uint32_t TarnIsMantissaValid(const TarnMantissa *value);

/* TarnPackMantissaIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackMantissaIe(const TarnMantissaIe *ie, uint8_t *buffer, uint32_t available,
                            uint32_t *written);

/* TarnUnpackMantissaIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackMantissaIe(const void *container, TarnMantissaIe *ie, const uint8_t *buffer,
                              uint32_t available, uint32_t *consumed);

/* TarnIsMantissaIeValid returns 1 if ie has tag 37 and a valid value, and 0 otherwise. */
uint32_t TarnIsMantissaIeValid(const void *container, const TarnMantissaIe *ie);

/* ---- Exponent, tag 38 ---------------------------------------------------------------------------
 * Exponent of a bit error ratio.
 *
 * A uint8_t, any value; 1 byte on the wire, 7 bytes with its header. */

enum { TarnExponentTag = 38 };

typedef uint8_t TarnExponent;

typedef struct TarnExponentIe {
    TarnIe ie;
    TarnExponent value;
} TarnExponentIe;

/* TarnSizeOfExponent returns 1. */
uint32_t TarnSizeOfExponent(const TarnExponent *value);

/* TarnPackExponent packs *value and sets *written, returning 1 on success and 0 if fewer than 1
 * byte are available. */
uint32_t TarnPackExponent(const TarnExponent *value, uint8_t *buffer, uint32_t available,
                          uint32_t *written);

/* TarnUnpackExponent sets *value and *consumed, returning 1 on success and 0 if length is not 1 or
 * fewer bytes are available. */
uint32_t TarnUnpackExponent(TarnExponent *value, uint32_t length, const uint8_t *buffer,
                            uint32_t available, uint32_t *consumed);

/* TarnIsExponentValid returns 1: every value is valid. */
uint32_t TarnIsExponentValid(const TarnExponent *value);

/* TarnPackExponentIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackExponentIe(const TarnExponentIe *ie, uint8_t *buffer, uint32_t available,
                            uint32_t *written);

/* TarnUnpackExponentIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackExponentIe(const void *container, TarnExponentIe *ie, const uint8_t *buffer,
                              uint32_t available, uint32_t *consumed);

/* TarnIsExponentIeValid returns 1 if ie has tag 38 and a valid value, and 0 otherwise. */
uint32_t TarnIsExponentIeValid(const void *container, const TarnExponentIe *ie);

/* ---- UserPlaneModeVersions, tag 39 --------------------------------------------------------------
 * Iu user plane mode versions, one bit each.
 *
 * A uint16_t, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnUserPlaneModeVersionsTag = 39 };

typedef uint16_t TarnUserPlaneModeVersions;

typedef struct TarnUserPlaneModeVersionsIe {
    TarnIe ie;
    TarnUserPlaneModeVersions value;
} TarnUserPlaneModeVersionsIe;

/* TarnSizeOfUserPlaneModeVersions returns 2. */
uint32_t TarnSizeOfUserPlaneModeVersions(const TarnUserPlaneModeVersions *value);

/* TarnPackUserPlaneModeVersions packs *value and sets *written, returning 1 on success and 0 if
 * fewer than 2 bytes are available. */
uint32_t TarnPackUserPlaneModeVersions(const TarnUserPlaneModeVersions *value, uint8_t *buffer,
                                       uint32_t available, uint32_t *written);

/* TarnUnpackUserPlaneModeVersions sets *value and *consumed, returning 1 on success and 0 if length
 * is not 2 or fewer bytes are available. */
uint32_t TarnUnpackUserPlaneModeVersions(TarnUserPlaneModeVersions *value, uint32_t length,
                                         const uint8_t *buffer, uint32_t available,
                                         uint32_t *consumed);

/* TarnIsUserPlaneModeVersionsValid returns 1: every value is valid. */
uint32_t TarnIsUserPlaneModeVersionsValid(const TarnUserPlaneModeVersions *value);

/* TarnPackUserPlaneModeVersionsIe packs ie and sets *written, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackUserPlaneModeVersionsIe(const TarnUserPlaneModeVersionsIe *ie, uint8_t *buffer,
                                         uint32_t available, uint32_t *written);

/* TarnUnpackUserPlaneModeVersionsIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackUserPlaneModeVersionsIe(const void *container, TarnUserPlaneModeVersionsIe *ie,
                                           const uint8_t *buffer, uint32_t available,
                                           uint32_t *consumed);

/* TarnIsUserPlaneModeVersionsIeValid returns 1 if ie has tag 39 and a valid value, and 0
 * otherwise. */
uint32_t TarnIsUserPlaneModeVersionsIeValid(const void *container,
                                            const TarnUserPlaneModeVersionsIe *ie);

/* ---- SduSize, tag 42 ----------------------------------------------------------------------------
 * Subflow SDU size.
 *
 * A uint16_t, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnSduSizeTag = 42 };

typedef uint16_t TarnSduSize;

typedef struct TarnSduSizeIe {
    TarnIe ie;
    TarnSduSize value;
} TarnSduSizeIe;

/* TarnSizeOfSduSize returns 2. */
uint32_t TarnSizeOfSduSize(const TarnSduSize *value);

/* TarnPackSduSize packs *value and sets *written, returning 1 on success and 0 if fewer than 2
 * bytes are available. */
uint32_t TarnPackSduSize(const TarnSduSize *value, uint8_t *buffer, uint32_t available,
                         uint32_t *written);

/* TarnUnpackSduSize sets *value and *consumed, returning 1 on success and 0 if length is not 2 or
 * fewer bytes are available. */
uint32_t TarnUnpackSduSize(TarnSduSize *value, uint32_t length, const uint8_t *buffer,
                           uint32_t available, uint32_t *consumed);

/* TarnIsSduSizeValid returns 1: every value is valid. */
uint32_t TarnIsSduSizeValid(const TarnSduSize *value);

/* TarnPackSduSizeIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackSduSizeIe(const TarnSduSizeIe *ie, uint8_t *buffer, uint32_t available,
                           uint32_t *written);

/* TarnUnpackSduSizeIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackSduSizeIe(const void *container, TarnSduSizeIe *ie, const uint8_t *buffer,
                             uint32_t available, uint32_t *consumed);

/* TarnIsSduSizeIeValid returns 1 if ie has tag 42 and a valid value, and 0 otherwise. */
uint32_t TarnIsSduSizeIeValid(const void *container, const TarnSduSizeIe *ie);

/* ---- RabSubflowCombBitRate, tag 43 --------------------------------------------------------------
 * RAB subflow combination bit rate.
 *
 * A uint32_t, any value; 4 bytes on the wire, 10 bytes with its header. */

enum { TarnRabSubflowCombBitRateTag = 43 };

typedef uint32_t TarnRabSubflowCombBitRate;

typedef struct TarnRabSubflowCombBitRateIe {
    TarnIe ie;
    TarnRabSubflowCombBitRate value;
} TarnRabSubflowCombBitRateIe;

/* TarnSizeOfRabSubflowCombBitRate returns 4. */
uint32_t TarnSizeOfRabSubflowCombBitRate(const TarnRabSubflowCombBitRate *value);

/* TarnPackRabSubflowCombBitRate packs *value and sets *written, returning 1 on success and 0 if
 * fewer than 4 bytes are available. */
uint32_t TarnPackRabSubflowCombBitRate(const TarnRabSubflowCombBitRate *value, uint8_t *buffer,
                                       uint32_t available, uint32_t *written);

/* TarnUnpackRabSubflowCombBitRate sets *value and *consumed, returning 1 on success and 0 if length
 * is not 4 or fewer bytes are available. */
uint32_t TarnUnpackRabSubflowCombBitRate(TarnRabSubflowCombBitRate *value, uint32_t length,
                                         const uint8_t *buffer, uint32_t available,
                                         uint32_t *consumed);

/* TarnIsRabSubflowCombBitRateValid returns 1: every value is valid. */
uint32_t TarnIsRabSubflowCombBitRateValid(const TarnRabSubflowCombBitRate *value);

/* TarnPackRabSubflowCombBitRateIe packs ie and sets *written, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackRabSubflowCombBitRateIe(const TarnRabSubflowCombBitRateIe *ie, uint8_t *buffer,
                                         uint32_t available, uint32_t *written);

/* TarnUnpackRabSubflowCombBitRateIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackRabSubflowCombBitRateIe(const void *container, TarnRabSubflowCombBitRateIe *ie,
                                           const uint8_t *buffer, uint32_t available,
                                           uint32_t *consumed);

/* TarnIsRabSubflowCombBitRateIeValid returns 1 if ie has tag 43 and a valid value, and 0
 * otherwise. */
uint32_t TarnIsRabSubflowCombBitRateIeValid(const void *container,
                                            const TarnRabSubflowCombBitRateIe *ie);

/* ---- ApUserPlaneAssociation, tag 44 -------------------------------------------------------------
 * User plane association identifier on the access point's side (2 bytes, against 4 on the other
 * side).
 *
 * A uint16_t, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnApUserPlaneAssociationTag = 44 };

typedef uint16_t TarnApUserPlaneAssociation;

typedef struct TarnApUserPlaneAssociationIe {
    TarnIe ie;
    TarnApUserPlaneAssociation value;
} TarnApUserPlaneAssociationIe;

/* TarnSizeOfApUserPlaneAssociation returns 2. */
uint32_t TarnSizeOfApUserPlaneAssociation(const TarnApUserPlaneAssociation *value);

/* TarnPackApUserPlaneAssociation packs *value and sets *written, returning 1 on success and 0 if
 * fewer than 2 bytes are available. */
uint32_t TarnPackApUserPlaneAssociation(const TarnApUserPlaneAssociation *value, uint8_t *buffer,
                                        uint32_t available, uint32_t *written);

/* TarnUnpackApUserPlaneAssociation sets *value and *consumed, returning 1 on success and 0 if
 * length is not 2 or fewer bytes are available. */
uint32_t TarnUnpackApUserPlaneAssociation(TarnApUserPlaneAssociation *value, uint32_t length,
                                          const uint8_t *buffer, uint32_t available,
                                          uint32_t *consumed);

/* TarnIsApUserPlaneAssociationValid returns 1: every value is valid. */
uint32_t TarnIsApUserPlaneAssociationValid(const TarnApUserPlaneAssociation *value);

/* TarnPackApUserPlaneAssociationIe packs ie and sets *written, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackApUserPlaneAssociationIe(const TarnApUserPlaneAssociationIe *ie, uint8_t *buffer,
                                          uint32_t available, uint32_t *written);

/* TarnUnpackApUserPlaneAssociationIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackApUserPlaneAssociationIe(const void *container, TarnApUserPlaneAssociationIe *ie,
                                            const uint8_t *buffer, uint32_t available,
                                            uint32_t *consumed);

/* TarnIsApUserPlaneAssociationIeValid returns 1 if ie has tag 44 and a valid value, and 0
 * otherwise. */
uint32_t TarnIsApUserPlaneAssociationIeValid(const void *container,
                                             const TarnApUserPlaneAssociationIe *ie);

/* ---- SourceStatsDescriptor, tag 47 --------------------------------------------------------------
 * Source statistics descriptor.
 *
 * A code word, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnSourceStatsDescriptorTag = 47 };

typedef uint32_t TarnSourceStatsDescriptor;

typedef struct TarnSourceStatsDescriptorIe {
    TarnIe ie;
    TarnSourceStatsDescriptor value;
} TarnSourceStatsDescriptorIe;

/* TarnSizeOfSourceStatsDescriptor returns 2. */
uint32_t TarnSizeOfSourceStatsDescriptor(const TarnSourceStatsDescriptor *value);

/* TarnPackSourceStatsDescriptor packs *value and sets *written, returning 1 on success and 0 if
 * fewer than 2 bytes are available. */
uint32_t TarnPackSourceStatsDescriptor(const TarnSourceStatsDescriptor *value, uint8_t *buffer,
                                       uint32_t available, uint32_t *written);

/* TarnUnpackSourceStatsDescriptor sets *value and *consumed, returning 1 on success and 0 if length
 * is not 2 or fewer bytes are available. */
uint32_t TarnUnpackSourceStatsDescriptor(TarnSourceStatsDescriptor *value, uint32_t length,
                                         const uint8_t *buffer, uint32_t available,
                                         uint32_t *consumed);

/* TarnIsSourceStatsDescriptorValid returns 1: every value is valid. */
uint32_t TarnIsSourceStatsDescriptorValid(const TarnSourceStatsDescriptor *value);

/* TarnPackSourceStatsDescriptorIe packs ie and sets *written, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackSourceStatsDescriptorIe(const TarnSourceStatsDescriptorIe *ie, uint8_t *buffer,
                                         uint32_t available, uint32_t *written);

/* TarnUnpackSourceStatsDescriptorIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackSourceStatsDescriptorIe(const void *container, TarnSourceStatsDescriptorIe *ie,
                                           const uint8_t *buffer, uint32_t available,
                                           uint32_t *consumed);

/* TarnIsSourceStatsDescriptorIeValid returns 1 if ie has tag 47 and a valid value, and 0
 * otherwise. */
uint32_t TarnIsSourceStatsDescriptorIeValid(const void *container,
                                            const TarnSourceStatsDescriptorIe *ie);

/* ---- TransDelay, tag 48 -------------------------------------------------------------------------
 * Transfer delay.
 *
 * A uint16_t, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnTransDelayTag = 48 };

typedef uint16_t TarnTransDelay;

typedef struct TarnTransDelayIe {
    TarnIe ie;
    TarnTransDelay value;
} TarnTransDelayIe;

/* TarnSizeOfTransDelay returns 2. */
uint32_t TarnSizeOfTransDelay(const TarnTransDelay *value);

/* TarnPackTransDelay packs *value and sets *written, returning 1 on success and 0 if fewer than 2
 * bytes are available. */
uint32_t TarnPackTransDelay(const TarnTransDelay *value, uint8_t *buffer, uint32_t available,
                            uint32_t *written);

/* TarnUnpackTransDelay sets *value and *consumed, returning 1 on success and 0 if length is not 2
 * or fewer bytes are available. */
uint32_t TarnUnpackTransDelay(TarnTransDelay *value, uint32_t length, const uint8_t *buffer,
                              uint32_t available, uint32_t *consumed);

/* TarnIsTransDelayValid returns 1: every value is valid. */
uint32_t TarnIsTransDelayValid(const TarnTransDelay *value);

/* TarnPackTransDelayIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackTransDelayIe(const TarnTransDelayIe *ie, uint8_t *buffer, uint32_t available,
                              uint32_t *written);

/* TarnUnpackTransDelayIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackTransDelayIe(const void *container, TarnTransDelayIe *ie, const uint8_t *buffer,
                                uint32_t available, uint32_t *consumed);

/* TarnIsTransDelayIeValid returns 1 if ie has tag 48 and a valid value, and 0 otherwise. */
uint32_t TarnIsTransDelayIeValid(const void *container, const TarnTransDelayIe *ie);

/* ---- TrafficHandlingPriority, tag 49 ------------------------------------------------------------
 * Traffic handling priority.
 *
 * A uint8_t, any value; 1 byte on the wire, 7 bytes with its header. */

enum { TarnTrafficHandlingPriorityTag = 49 };

typedef uint8_t TarnTrafficHandlingPriority;

typedef struct TarnTrafficHandlingPriorityIe {
    TarnIe ie;
    TarnTrafficHandlingPriority value;
} TarnTrafficHandlingPriorityIe;

/* TarnSizeOfTrafficHandlingPriority returns 1. */
uint32_t TarnSizeOfTrafficHandlingPriority(const TarnTrafficHandlingPriority *value);

/* TarnPackTrafficHandlingPriority packs *value and sets *written, returning 1 on success and 0 if
 * fewer than 1 byte are available. */
uint32_t TarnPackTrafficHandlingPriority(const TarnTrafficHandlingPriority *value, uint8_t *buffer,
                                         uint32_t available, uint32_t *written);

/* TarnUnpackTrafficHandlingPriority sets *value and *consumed, returning 1 on success and 0 if
 * length is not 1 or fewer bytes are available. */
uint32_t TarnUnpackTrafficHandlingPriority(TarnTrafficHandlingPriority *value, uint32_t length,
                                           const uint8_t *buffer, uint32_t available,
                                           uint32_t *consumed);

/* TarnIsTrafficHandlingPriorityValid returns 1: every value is valid. */
uint32_t TarnIsTrafficHandlingPriorityValid(const TarnTrafficHandlingPriority *value);

/* TarnPackTrafficHandlingPriorityIe packs ie and sets *written, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackTrafficHandlingPriorityIe(const TarnTrafficHandlingPriorityIe *ie, uint8_t *buffer,
                                           uint32_t available, uint32_t *written);

/* TarnUnpackTrafficHandlingPriorityIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackTrafficHandlingPriorityIe(const void *container,
                                             TarnTrafficHandlingPriorityIe *ie,
                                             const uint8_t *buffer, uint32_t available,
                                             uint32_t *consumed);

/* TarnIsTrafficHandlingPriorityIeValid returns 1 if ie has tag 49 and a valid value, and 0
 * otherwise. */
uint32_t TarnIsTrafficHandlingPriorityIeValid(const void *container,
                                              const TarnTrafficHandlingPriorityIe *ie);

/* ---- PriorityLevel, tag 51 ----------------------------------------------------------------------
 * Priority level of an allocation.
 *
 * A uint8_t, any value; 1 byte on the wire, 7 bytes with its header. */

enum { TarnPriorityLevelTag = 51 };

typedef uint8_t TarnPriorityLevel;

typedef struct TarnPriorityLevelIe {
    TarnIe ie;
    TarnPriorityLevel value;
} TarnPriorityLevelIe;

/* TarnSizeOfPriorityLevel returns 1. */
uint32_t TarnSizeOfPriorityLevel(const TarnPriorityLevel *value);

/* TarnPackPriorityLevel packs *value and sets *written, returning 1 on success and 0 if fewer than
 * 1 byte are available. */
uint32_t TarnPackPriorityLevel(const TarnPriorityLevel *value, uint8_t *buffer, uint32_t available,
                               uint32_t *written);

/* TarnUnpackPriorityLevel sets *value and *consumed, returning 1 on success and 0 if length is not
 * 1 or fewer bytes are available. */
uint32_t TarnUnpackPriorityLevel(TarnPriorityLevel *value, uint32_t length, const uint8_t *buffer,
                                 uint32_t available, uint32_t *consumed);

/* TarnIsPriorityLevelValid returns 1: every value is valid. */
uint32_t TarnIsPriorityLevelValid(const TarnPriorityLevel *value);

/* TarnPackPriorityLevelIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackPriorityLevelIe(const TarnPriorityLevelIe *ie, uint8_t *buffer, uint32_t available,
                                 uint32_t *written);

/* TarnUnpackPriorityLevelIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackPriorityLevelIe(const void *container, TarnPriorityLevelIe *ie,
                                   const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsPriorityLevelIeValid returns 1 if ie has tag 51 and a valid value, and 0 otherwise. */
uint32_t TarnIsPriorityLevelIeValid(const void *container, const TarnPriorityLevelIe *ie);

/* ---- PreemptionCapability, tag 52 ---------------------------------------------------------------
 * Pre-emption capability.
 *
 * A code word, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnPreemptionCapabilityTag = 52 };

typedef uint32_t TarnPreemptionCapability;

typedef struct TarnPreemptionCapabilityIe {
    TarnIe ie;
    TarnPreemptionCapability value;
} TarnPreemptionCapabilityIe;

/* TarnSizeOfPreemptionCapability returns 2. */
uint32_t TarnSizeOfPreemptionCapability(const TarnPreemptionCapability *value);

/* TarnPackPreemptionCapability packs *value and sets *written, returning 1 on success and 0 if
 * fewer than 2 bytes are available. */
uint32_t TarnPackPreemptionCapability(const TarnPreemptionCapability *value, uint8_t *buffer,
                                      uint32_t available, uint32_t *written);

/* TarnUnpackPreemptionCapability sets *value and *consumed, returning 1 on success and 0 if length
 * is not 2 or fewer bytes are available. */
uint32_t TarnUnpackPreemptionCapability(TarnPreemptionCapability *value, uint32_t length,
                                        const uint8_t *buffer, uint32_t available,
                                        uint32_t *consumed);

/* TarnIsPreemptionCapabilityValid returns 1: every value is valid. */
uint32_t TarnIsPreemptionCapabilityValid(const TarnPreemptionCapability *value);

/* TarnPackPreemptionCapabilityIe packs ie and sets *written, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackPreemptionCapabilityIe(const TarnPreemptionCapabilityIe *ie, uint8_t *buffer,
                                        uint32_t available, uint32_t *written);

/* TarnUnpackPreemptionCapabilityIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackPreemptionCapabilityIe(const void *container, TarnPreemptionCapabilityIe *ie,
                                          const uint8_t *buffer, uint32_t available,
                                          uint32_t *consumed);

/* TarnIsPreemptionCapabilityIeValid returns 1 if ie has tag 52 and a valid value, and 0
 * otherwise. */
uint32_t TarnIsPreemptionCapabilityIeValid(const void *container,
                                           const TarnPreemptionCapabilityIe *ie);

/* ---- PreemptionVulnerability, tag 53 ------------------------------------------------------------
 * Pre-emption vulnerability.
 *
 * A code word, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnPreemptionVulnerabilityTag = 53 };

typedef uint32_t TarnPreemptionVulnerability;

typedef struct TarnPreemptionVulnerabilityIe {
    TarnIe ie;
    TarnPreemptionVulnerability value;
} TarnPreemptionVulnerabilityIe;

/* TarnSizeOfPreemptionVulnerability returns 2. */
uint32_t TarnSizeOfPreemptionVulnerability(const TarnPreemptionVulnerability *value);

/* TarnPackPreemptionVulnerability packs *value and sets *written, returning 1 on success and 0 if
 * fewer than 2 bytes are available. */
uint32_t TarnPackPreemptionVulnerability(const TarnPreemptionVulnerability *value, uint8_t *buffer,
                                         uint32_t available, uint32_t *written);

/* TarnUnpackPreemptionVulnerability sets *value and *consumed, returning 1 on success and 0 if
 * length is not 2 or fewer bytes are available. */
uint32_t TarnUnpackPreemptionVulnerability(TarnPreemptionVulnerability *value, uint32_t length,
                                           const uint8_t *buffer, uint32_t available,
                                           uint32_t *consumed);

/* TarnIsPreemptionVulnerabilityValid returns 1: every value is valid. */
uint32_t TarnIsPreemptionVulnerabilityValid(const TarnPreemptionVulnerability *value);

/* TarnPackPreemptionVulnerabilityIe packs ie and sets *written, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackPreemptionVulnerabilityIe(const TarnPreemptionVulnerabilityIe *ie, uint8_t *buffer,
                                           uint32_t available, uint32_t *written);

/* TarnUnpackPreemptionVulnerabilityIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackPreemptionVulnerabilityIe(const void *container,
                                             TarnPreemptionVulnerabilityIe *ie,
                                             const uint8_t *buffer, uint32_t available,
                                             uint32_t *consumed);

/* TarnIsPreemptionVulnerabilityIeValid returns 1 if ie has tag 53 and a valid value, and 0
 * otherwise. */
uint32_t TarnIsPreemptionVulnerabilityIeValid(const void *container,
                                              const TarnPreemptionVulnerabilityIe *ie);

/* ---- QueuingAllowed, tag 54 ---------------------------------------------------------------------
 * Whether queuing of the request is allowed.
 *
 * A code word, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnQueuingAllowedTag = 54 };

typedef uint32_t TarnQueuingAllowed;

typedef struct TarnQueuingAllowedIe {
    TarnIe ie;
    TarnQueuingAllowed value;
} TarnQueuingAllowedIe;

/* TarnSizeOfQueuingAllowed returns 2. */
uint32_t TarnSizeOfQueuingAllowed(const TarnQueuingAllowed *value);

/* TarnPackQueuingAllowed packs *value and sets *written, returning 1 on success and 0 if fewer than
 * 2 bytes are available. */
uint32_t TarnPackQueuingAllowed(const TarnQueuingAllowed *value, uint8_t *buffer,
                                uint32_t available, uint32_t *written);

/* TarnUnpackQueuingAllowed sets *value and *consumed, returning 1 on success and 0 if length is not
 * 2 or fewer bytes are available. */
uint32_t TarnUnpackQueuingAllowed(TarnQueuingAllowed *value, uint32_t length, const uint8_t *buffer,
                                  uint32_t available, uint32_t *consumed);

/* TarnIsQueuingAllowedValid returns 1: every value is valid. */
uint32_t TarnIsQueuingAllowedValid(const TarnQueuingAllowed *value);

/* TarnPackQueuingAllowedIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackQueuingAllowedIe(const TarnQueuingAllowedIe *ie, uint8_t *buffer,
                                  uint32_t available, uint32_t *written);

/* TarnUnpackQueuingAllowedIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackQueuingAllowedIe(const void *container, TarnQueuingAllowedIe *ie,
                                    const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsQueuingAllowedIeValid returns 1 if ie has tag 54 and a valid value, and 0 otherwise. */
uint32_t TarnIsQueuingAllowedIeValid(const void *container, const TarnQueuingAllowedIe *ie);

/* ---- DeliveryOrder, tag 55 ----------------------------------------------------------------------
 * Whether SDUs are delivered in order.
 *
 * A code word, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnDeliveryOrderTag = 55 };

typedef uint32_t TarnDeliveryOrder;

typedef struct TarnDeliveryOrderIe {
    TarnIe ie;
    TarnDeliveryOrder value;
} TarnDeliveryOrderIe;

/* TarnSizeOfDeliveryOrder returns 2. */
uint32_t TarnSizeOfDeliveryOrder(const TarnDeliveryOrder *value);

/* TarnPackDeliveryOrder packs *value and sets *written, returning 1 on success and 0 if fewer than
 * 2 bytes are available. */
uint32_t TarnPackDeliveryOrder(const TarnDeliveryOrder *value, uint8_t *buffer, uint32_t available,
                               uint32_t *written);

/* TarnUnpackDeliveryOrder sets *value and *consumed, returning 1 on success and 0 if length is not
 * 2 or fewer bytes are available. */
uint32_t TarnUnpackDeliveryOrder(TarnDeliveryOrder *value, uint32_t length, const uint8_t *buffer,
                                 uint32_t available, uint32_t *consumed);

/* TarnIsDeliveryOrderValid returns 1: every value is valid. */
uint32_t TarnIsDeliveryOrderValid(const TarnDeliveryOrder *value);

/* TarnPackDeliveryOrderIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackDeliveryOrderIe(const TarnDeliveryOrderIe *ie, uint8_t *buffer, uint32_t available,
                                 uint32_t *written);

/* TarnUnpackDeliveryOrderIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackDeliveryOrderIe(const void *container, TarnDeliveryOrderIe *ie,
                                   const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsDeliveryOrderIeValid returns 1 if ie has tag 55 and a valid value, and 0 otherwise. */
uint32_t TarnIsDeliveryOrderIeValid(const void *container, const TarnDeliveryOrderIe *ie);

/* ---- IuRelCause, tag 56 -------------------------------------------------------------------------
 * Cause of an Iu release.
 *
 * A code word, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnIuRelCauseTag = 56 };

typedef uint32_t TarnIuRelCause;

typedef struct TarnIuRelCauseIe {
    TarnIe ie;
    TarnIuRelCause value;
} TarnIuRelCauseIe;

/* TarnSizeOfIuRelCause returns 2. */
uint32_t TarnSizeOfIuRelCause(const TarnIuRelCause *value);

/* TarnPackIuRelCause packs *value and sets *written, returning 1 on success and 0 if fewer than 2
 * bytes are available. */
uint32_t TarnPackIuRelCause(const TarnIuRelCause *value, uint8_t *buffer, uint32_t available,
                            uint32_t *written);

/* TarnUnpackIuRelCause sets *value and *consumed, returning 1 on success and 0 if length is not 2
 * or fewer bytes are available. */
uint32_t TarnUnpackIuRelCause(TarnIuRelCause *value, uint32_t length, const uint8_t *buffer,
                              uint32_t available, uint32_t *consumed);

/* TarnIsIuRelCauseValid returns 1: every value is valid. */
uint32_t TarnIsIuRelCauseValid(const TarnIuRelCause *value);

/* TarnPackIuRelCauseIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackIuRelCauseIe(const TarnIuRelCauseIe *ie, uint8_t *buffer, uint32_t available,
                              uint32_t *written);

/* TarnUnpackIuRelCauseIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackIuRelCauseIe(const void *container, TarnIuRelCauseIe *ie, const uint8_t *buffer,
                                uint32_t available, uint32_t *consumed);

/* TarnIsIuRelCauseIeValid returns 1 if ie has tag 56 and a valid value, and 0 otherwise. */
uint32_t TarnIsIuRelCauseIeValid(const void *container, const TarnIuRelCauseIe *ie);

/* ---- UdpPort, tag 62 ----------------------------------------------------------------------------
 * UDP port.
 *
 * A uint16_t, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnUdpPortTag = 62 };

typedef uint16_t TarnUdpPort;

typedef struct TarnUdpPortIe {
    TarnIe ie;
    TarnUdpPort value;
} TarnUdpPortIe;

/* TarnSizeOfUdpPort returns 2. */
uint32_t TarnSizeOfUdpPort(const TarnUdpPort *value);

/* TarnPackUdpPort packs *value and sets *written, returning 1 on success and 0 if fewer than 2
 * bytes are available. */
uint32_t TarnPackUdpPort(const TarnUdpPort *value, uint8_t *buffer, uint32_t available,
                         uint32_t *written);

/* TarnUnpackUdpPort sets *value and *consumed, returning 1 on success and 0 if length is not 2 or
 * fewer bytes are available. */
uint32_t TarnUnpackUdpPort(TarnUdpPort *value, uint32_t length, const uint8_t *buffer,
                           uint32_t available, uint32_t *consumed);

/* TarnIsUdpPortValid returns 1: every value is valid. */
uint32_t TarnIsUdpPortValid(const TarnUdpPort *value);

/* TarnPackUdpPortIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackUdpPortIe(const TarnUdpPortIe *ie, uint8_t *buffer, uint32_t available,
                           uint32_t *written);

/* TarnUnpackUdpPortIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackUdpPortIe(const void *container, TarnUdpPortIe *ie, const uint8_t *buffer,
                             uint32_t available, uint32_t *consumed);

/* TarnIsUdpPortIeValid returns 1 if ie has tag 62 and a valid value, and 0 otherwise. */
uint32_t TarnIsUdpPortIeValid(const void *container, const TarnUdpPortIe *ie);

/* ---- RabSetupFailCause, tag 65 ------------------------------------------------------------------
 * Cause of a failed RAB set-up.
 *
 * A code word, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnRabSetupFailCauseTag = 65 };

typedef uint32_t TarnRabSetupFailCause;

typedef struct TarnRabSetupFailCauseIe {
    TarnIe ie;
    TarnRabSetupFailCause value;
} TarnRabSetupFailCauseIe;

/* TarnSizeOfRabSetupFailCause returns 2. */
uint32_t TarnSizeOfRabSetupFailCause(const TarnRabSetupFailCause *value);

/* TarnPackRabSetupFailCause packs *value and sets *written, returning 1 on success and 0 if fewer
 * than 2 bytes are available. */
uint32_t TarnPackRabSetupFailCause(const TarnRabSetupFailCause *value, uint8_t *buffer,
                                   uint32_t available, uint32_t *written);

/* TarnUnpackRabSetupFailCause sets *value and *consumed, returning 1 on success and 0 if length is
 * not 2 or fewer bytes are available. */
uint32_t TarnUnpackRabSetupFailCause(TarnRabSetupFailCause *value, uint32_t length,
                                     const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsRabSetupFailCauseValid returns 1: every value is valid. */
uint32_t TarnIsRabSetupFailCauseValid(const TarnRabSetupFailCause *value);

/* TarnPackRabSetupFailCauseIe packs ie and sets *written, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackRabSetupFailCauseIe(const TarnRabSetupFailCauseIe *ie, uint8_t *buffer,
                                     uint32_t available, uint32_t *written);

/* TarnUnpackRabSetupFailCauseIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackRabSetupFailCauseIe(const void *container, TarnRabSetupFailCauseIe *ie,
                                       const uint8_t *buffer, uint32_t available,
                                       uint32_t *consumed);

/* TarnIsRabSetupFailCauseIeValid returns 1 if ie has tag 65 and a valid value, and 0 otherwise. */
uint32_t TarnIsRabSetupFailCauseIeValid(const void *container, const TarnRabSetupFailCauseIe *ie);

/* ---- RabReleaseCause, tag 68 --------------------------------------------------------------------
 * Cause of a RAB release.
 *
 * A code word, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnRabReleaseCauseTag = 68 };

typedef uint32_t TarnRabReleaseCause;

typedef struct TarnRabReleaseCauseIe {
    TarnIe ie;
    TarnRabReleaseCause value;
} TarnRabReleaseCauseIe;

/* TarnSizeOfRabReleaseCause returns 2. */
uint32_t TarnSizeOfRabReleaseCause(const TarnRabReleaseCause *value);

/* TarnPackRabReleaseCause packs *value and sets *written, returning 1 on success and 0 if fewer
 * than 2 bytes are available. */
uint32_t TarnPackRabReleaseCause(const TarnRabReleaseCause *value, uint8_t *buffer,
                                 uint32_t available, uint32_t *written);

/* TarnUnpackRabReleaseCause sets *value and *consumed, returning 1 on success and 0 if length is
 * not 2 or fewer bytes are available. */
uint32_t TarnUnpackRabReleaseCause(TarnRabReleaseCause *value, uint32_t length,
                                   const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsRabReleaseCauseValid returns 1: every value is valid. */
uint32_t TarnIsRabReleaseCauseValid(const TarnRabReleaseCause *value);

/* TarnPackRabReleaseCauseIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackRabReleaseCauseIe(const TarnRabReleaseCauseIe *ie, uint8_t *buffer,
                                   uint32_t available, uint32_t *written);

/* TarnUnpackRabReleaseCauseIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackRabReleaseCauseIe(const void *container, TarnRabReleaseCauseIe *ie,
                                     const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsRabReleaseCauseIeValid returns 1 if ie has tag 68 and a valid value, and 0 otherwise. */
uint32_t TarnIsRabReleaseCauseIeValid(const void *container, const TarnRabReleaseCauseIe *ie);

/* ---- MessageId, tag 72 --------------------------------------------------------------------------
 * Message identifier; the first IE of every message.
 *
 * A uint8_t, any value; 1 byte on the wire, 7 bytes with its header. */

enum { TarnMessageIdTag = 72 };

typedef uint8_t TarnMessageId;

typedef struct TarnMessageIdIe {
    TarnIe ie;
    TarnMessageId value;
} TarnMessageIdIe;

/* TarnSizeOfMessageId returns 1. */
uint32_t TarnSizeOfMessageId(const TarnMessageId *value);

/* TarnPackMessageId packs *value and sets *written, returning 1 on success and 0 if fewer than 1
 * byte are available. */
uint32_t TarnPackMessageId(const TarnMessageId *value, uint8_t *buffer, uint32_t available,
                           uint32_t *written);

/* TarnUnpackMessageId sets *value and *consumed, returning 1 on success and 0 if length is not 1 or
 * fewer bytes are available. */
uint32_t TarnUnpackMessageId(TarnMessageId *value, uint32_t length, const uint8_t *buffer,
                             uint32_t available, uint32_t *consumed);

/* TarnIsMessageIdValid returns 1: every value is valid. */
uint32_t TarnIsMessageIdValid(const TarnMessageId *value);

/* TarnPackMessageIdIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackMessageIdIe(const TarnMessageIdIe *ie, uint8_t *buffer, uint32_t available,
                             uint32_t *written);

/* TarnUnpackMessageIdIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackMessageIdIe(const void *container, TarnMessageIdIe *ie, const uint8_t *buffer,
                               uint32_t available, uint32_t *consumed);

/* TarnIsMessageIdIeValid returns 1 if ie has tag 72 and a valid value, and 0 otherwise. */
uint32_t TarnIsMessageIdIeValid(const void *container, const TarnMessageIdIe *ie);

/* ---- ErrorCause, tag 73 -------------------------------------------------------------------------
 * Cause of a reset after an error.
 *
 * A code word, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnErrorCauseTag = 73 };

typedef uint32_t TarnErrorCause;

typedef struct TarnErrorCauseIe {
    TarnIe ie;
    TarnErrorCause value;
} TarnErrorCauseIe;

/* TarnSizeOfErrorCause returns 2. */
uint32_t TarnSizeOfErrorCause(const TarnErrorCause *value);

/* TarnPackErrorCause packs *value and sets *written, returning 1 on success and 0 if fewer than 2
 * bytes are available. */
uint32_t TarnPackErrorCause(const TarnErrorCause *value, uint8_t *buffer, uint32_t available,
                            uint32_t *written);

/* TarnUnpackErrorCause sets *value and *consumed, returning 1 on success and 0 if length is not 2
 * or fewer bytes are available. */
uint32_t TarnUnpackErrorCause(TarnErrorCause *value, uint32_t length, const uint8_t *buffer,
                              uint32_t available, uint32_t *consumed);

/* TarnIsErrorCauseValid returns 1: every value is valid. */
uint32_t TarnIsErrorCauseValid(const TarnErrorCause *value);

/* TarnPackErrorCauseIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackErrorCauseIe(const TarnErrorCauseIe *ie, uint8_t *buffer, uint32_t available,
                              uint32_t *written);

/* TarnUnpackErrorCauseIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackErrorCauseIe(const void *container, TarnErrorCauseIe *ie, const uint8_t *buffer,
                                uint32_t available, uint32_t *consumed);

/* TarnIsErrorCauseIeValid returns 1 if ie has tag 73 and a valid value, and 0 otherwise. */
uint32_t TarnIsErrorCauseIeValid(const void *container, const TarnErrorCauseIe *ie);

/* ---- PagingCause, tag 74 ------------------------------------------------------------------------
 * Paging cause.
 *
 * A code word, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnPagingCauseTag = 74 };

typedef uint32_t TarnPagingCause;

typedef struct TarnPagingCauseIe {
    TarnIe ie;
    TarnPagingCause value;
} TarnPagingCauseIe;

/* TarnSizeOfPagingCause returns 2. */
uint32_t TarnSizeOfPagingCause(const TarnPagingCause *value);

/* TarnPackPagingCause packs *value and sets *written, returning 1 on success and 0 if fewer than 2
 * bytes are available. */
uint32_t TarnPackPagingCause(const TarnPagingCause *value, uint8_t *buffer, uint32_t available,
                             uint32_t *written);

/* TarnUnpackPagingCause sets *value and *consumed, returning 1 on success and 0 if length is not 2
 * or fewer bytes are available. */
uint32_t TarnUnpackPagingCause(TarnPagingCause *value, uint32_t length, const uint8_t *buffer,
                               uint32_t available, uint32_t *consumed);

/* TarnIsPagingCauseValid returns 1: every value is valid. */
uint32_t TarnIsPagingCauseValid(const TarnPagingCause *value);

/* TarnPackPagingCauseIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackPagingCauseIe(const TarnPagingCauseIe *ie, uint8_t *buffer, uint32_t available,
                               uint32_t *written);

/* TarnUnpackPagingCauseIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackPagingCauseIe(const void *container, TarnPagingCauseIe *ie,
                                 const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsPagingCauseIeValid returns 1 if ie has tag 74 and a valid value, and 0 otherwise. */
uint32_t TarnIsPagingCauseIeValid(const void *container, const TarnPagingCauseIe *ie);

/* ---- PagingRecordTypeInd, tag 75 ----------------------------------------------------------------
 * Paging record type identifier.
 *
 * A code word, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnPagingRecordTypeIndTag = 75 };

typedef uint32_t TarnPagingRecordTypeInd;

typedef struct TarnPagingRecordTypeIndIe {
    TarnIe ie;
    TarnPagingRecordTypeInd value;
} TarnPagingRecordTypeIndIe;

/* TarnSizeOfPagingRecordTypeInd returns 2. */
uint32_t TarnSizeOfPagingRecordTypeInd(const TarnPagingRecordTypeInd *value);

/* TarnPackPagingRecordTypeInd packs *value and sets *written, returning 1 on success and 0 if fewer
 * than 2 bytes are available. */
uint32_t TarnPackPagingRecordTypeInd(const TarnPagingRecordTypeInd *value, uint8_t *buffer,
                                     uint32_t available, uint32_t *written);

/* TarnUnpackPagingRecordTypeInd sets *value and *consumed, returning 1 on success and 0 if length
 * is not 2 or fewer bytes are available. */
uint32_t TarnUnpackPagingRecordTypeInd(TarnPagingRecordTypeInd *value, uint32_t length,
                                       const uint8_t *buffer, uint32_t available,
                                       uint32_t *consumed);

/* TarnIsPagingRecordTypeIndValid returns 1: every value is valid. */
uint32_t TarnIsPagingRecordTypeIndValid(const TarnPagingRecordTypeInd *value);

/* TarnPackPagingRecordTypeIndIe packs ie and sets *written, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackPagingRecordTypeIndIe(const TarnPagingRecordTypeIndIe *ie, uint8_t *buffer,
                                       uint32_t available, uint32_t *written);

/* TarnUnpackPagingRecordTypeIndIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackPagingRecordTypeIndIe(const void *container, TarnPagingRecordTypeIndIe *ie,
                                         const uint8_t *buffer, uint32_t available,
                                         uint32_t *consumed);

/* TarnIsPagingRecordTypeIndIeValid returns 1 if ie has tag 75 and a valid value, and 0
 * otherwise. */
uint32_t TarnIsPagingRecordTypeIndIeValid(const void *container,
                                          const TarnPagingRecordTypeIndIe *ie);

/* ---- DrxCycleLenCoeff, tag 76 -------------------------------------------------------------------
 * DRX cycle length coefficient.
 *
 * A uint16_t, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnDrxCycleLenCoeffTag = 76 };

typedef uint16_t TarnDrxCycleLenCoeff;

typedef struct TarnDrxCycleLenCoeffIe {
    TarnIe ie;
    TarnDrxCycleLenCoeff value;
} TarnDrxCycleLenCoeffIe;

/* TarnSizeOfDrxCycleLenCoeff returns 2. */
uint32_t TarnSizeOfDrxCycleLenCoeff(const TarnDrxCycleLenCoeff *value);

/* TarnPackDrxCycleLenCoeff packs *value and sets *written, returning 1 on success and 0 if fewer
 * than 2 bytes are available. */
uint32_t TarnPackDrxCycleLenCoeff(const TarnDrxCycleLenCoeff *value, uint8_t *buffer,
                                  uint32_t available, uint32_t *written);

/* TarnUnpackDrxCycleLenCoeff sets *value and *consumed, returning 1 on success and 0 if length is
 * not 2 or fewer bytes are available. */
uint32_t TarnUnpackDrxCycleLenCoeff(TarnDrxCycleLenCoeff *value, uint32_t length,
                                    const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsDrxCycleLenCoeffValid returns 1: every value is valid. */
uint32_t TarnIsDrxCycleLenCoeffValid(const TarnDrxCycleLenCoeff *value);

/* TarnPackDrxCycleLenCoeffIe packs ie and sets *written, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackDrxCycleLenCoeffIe(const TarnDrxCycleLenCoeffIe *ie, uint8_t *buffer,
                                    uint32_t available, uint32_t *written);

/* TarnUnpackDrxCycleLenCoeffIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackDrxCycleLenCoeffIe(const void *container, TarnDrxCycleLenCoeffIe *ie,
                                      const uint8_t *buffer, uint32_t available,
                                      uint32_t *consumed);

/* TarnIsDrxCycleLenCoeffIeValid returns 1 if ie has tag 76 and a valid value, and 0 otherwise. */
uint32_t TarnIsDrxCycleLenCoeffIeValid(const void *container, const TarnDrxCycleLenCoeffIe *ie);

/* ---- TempUeIdType, tag 78 -----------------------------------------------------------------------
 * Type of a temporary UE identity (TMSI or P-TMSI).
 *
 * A code word, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnTempUeIdTypeTag = 78 };

typedef uint32_t TarnTempUeIdType;

typedef struct TarnTempUeIdTypeIe {
    TarnIe ie;
    TarnTempUeIdType value;
} TarnTempUeIdTypeIe;

/* TarnSizeOfTempUeIdType returns 2. */
uint32_t TarnSizeOfTempUeIdType(const TarnTempUeIdType *value);

/* TarnPackTempUeIdType packs *value and sets *written, returning 1 on success and 0 if fewer than 2
 * bytes are available. */
uint32_t TarnPackTempUeIdType(const TarnTempUeIdType *value, uint8_t *buffer, uint32_t available,
                              uint32_t *written);

/* TarnUnpackTempUeIdType sets *value and *consumed, returning 1 on success and 0 if length is not 2
 * or fewer bytes are available. */
uint32_t TarnUnpackTempUeIdType(TarnTempUeIdType *value, uint32_t length, const uint8_t *buffer,
                                uint32_t available, uint32_t *consumed);

/* TarnIsTempUeIdTypeValid returns 1: every value is valid. */
uint32_t TarnIsTempUeIdTypeValid(const TarnTempUeIdType *value);

/* TarnPackTempUeIdTypeIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackTempUeIdTypeIe(const TarnTempUeIdTypeIe *ie, uint8_t *buffer, uint32_t available,
                                uint32_t *written);

/* TarnUnpackTempUeIdTypeIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackTempUeIdTypeIe(const void *container, TarnTempUeIdTypeIe *ie,
                                  const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsTempUeIdTypeIeValid returns 1 if ie has tag 78 and a valid value, and 0 otherwise. */
uint32_t TarnIsTempUeIdTypeIeValid(const void *container, const TarnTempUeIdTypeIe *ie);

/* ---- Tos, tag 88 --------------------------------------------------------------------------------
 * IP type-of-service byte.
 *
 * A uint8_t, any value; 1 byte on the wire, 7 bytes with its header. */

enum { TarnTosTag = 88 };

typedef uint8_t TarnTos;

typedef struct TarnTosIe {
    TarnIe ie;
    TarnTos value;
} TarnTosIe;

/* TarnSizeOfTos returns 1. */
uint32_t TarnSizeOfTos(const TarnTos *value);

/* TarnPackTos packs *value and sets *written, returning 1 on success and 0 if fewer than 1 byte are
 * available. */
uint32_t TarnPackTos(const TarnTos *value, uint8_t *buffer, uint32_t available, uint32_t *written);

/* TarnUnpackTos sets *value and *consumed, returning 1 on success and 0 if length is not 1 or fewer
 * bytes are available. */
uint32_t TarnUnpackTos(TarnTos *value, uint32_t length, const uint8_t *buffer, uint32_t available,
                       uint32_t *consumed);

/* TarnIsTosValid returns 1: every value is valid. */
uint32_t TarnIsTosValid(const TarnTos *value);

/* TarnPackTosIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackTosIe(const TarnTosIe *ie, uint8_t *buffer, uint32_t available, uint32_t *written);

/* TarnUnpackTosIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackTosIe(const void *container, TarnTosIe *ie, const uint8_t *buffer,
                         uint32_t available, uint32_t *consumed);

/* TarnIsTosIeValid returns 1 if ie has tag 88 and a valid value, and 0 otherwise. */
uint32_t TarnIsTosIeValid(const void *container, const TarnTosIe *ie);

/* ---- RtcpTransInterval, tag 89 ------------------------------------------------------------------
 * RTCP transmission interval.
 *
 * A uint16_t, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnRtcpTransIntervalTag = 89 };

typedef uint16_t TarnRtcpTransInterval;

typedef struct TarnRtcpTransIntervalIe {
    TarnIe ie;
    TarnRtcpTransInterval value;
} TarnRtcpTransIntervalIe;

/* TarnSizeOfRtcpTransInterval returns 2. */
uint32_t TarnSizeOfRtcpTransInterval(const TarnRtcpTransInterval *value);

/* TarnPackRtcpTransInterval packs *value and sets *written, returning 1 on success and 0 if fewer
 * than 2 bytes are available. */
uint32_t TarnPackRtcpTransInterval(const TarnRtcpTransInterval *value, uint8_t *buffer,
                                   uint32_t available, uint32_t *written);

/* TarnUnpackRtcpTransInterval sets *value and *consumed, returning 1 on success and 0 if length is
 * not 2 or fewer bytes are available. */
uint32_t TarnUnpackRtcpTransInterval(TarnRtcpTransInterval *value, uint32_t length,
                                     const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsRtcpTransIntervalValid returns 1: every value is valid. */
uint32_t TarnIsRtcpTransIntervalValid(const TarnRtcpTransInterval *value);

/* TarnPackRtcpTransIntervalIe packs ie and sets *written, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackRtcpTransIntervalIe(const TarnRtcpTransIntervalIe *ie, uint8_t *buffer,
                                     uint32_t available, uint32_t *written);

/* TarnUnpackRtcpTransIntervalIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackRtcpTransIntervalIe(const void *container, TarnRtcpTransIntervalIe *ie,
                                       const uint8_t *buffer, uint32_t available,
                                       uint32_t *consumed);

/* TarnIsRtcpTransIntervalIeValid returns 1 if ie has tag 89 and a valid value, and 0 otherwise. */
uint32_t TarnIsRtcpTransIntervalIeValid(const void *container, const TarnRtcpTransIntervalIe *ie);

/* ---- JitterBufferSize, tag 90 -------------------------------------------------------------------
 * Jitter buffer size.
 *
 * A uint16_t, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnJitterBufferSizeTag = 90 };

typedef uint16_t TarnJitterBufferSize;

typedef struct TarnJitterBufferSizeIe {
    TarnIe ie;
    TarnJitterBufferSize value;
} TarnJitterBufferSizeIe;

/* TarnSizeOfJitterBufferSize returns 2. */
uint32_t TarnSizeOfJitterBufferSize(const TarnJitterBufferSize *value);

/* TarnPackJitterBufferSize packs *value and sets *written, returning 1 on success and 0 if fewer
 * than 2 bytes are available. */
uint32_t TarnPackJitterBufferSize(const TarnJitterBufferSize *value, uint8_t *buffer,
                                  uint32_t available, uint32_t *written);

/* TarnUnpackJitterBufferSize sets *value and *consumed, returning 1 on success and 0 if length is
 * not 2 or fewer bytes are available. */
uint32_t TarnUnpackJitterBufferSize(TarnJitterBufferSize *value, uint32_t length,
                                    const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsJitterBufferSizeValid returns 1: every value is valid. */
uint32_t TarnIsJitterBufferSizeValid(const TarnJitterBufferSize *value);

/* TarnPackJitterBufferSizeIe packs ie and sets *written, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackJitterBufferSizeIe(const TarnJitterBufferSizeIe *ie, uint8_t *buffer,
                                    uint32_t available, uint32_t *written);

/* TarnUnpackJitterBufferSizeIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackJitterBufferSizeIe(const void *container, TarnJitterBufferSizeIe *ie,
                                      const uint8_t *buffer, uint32_t available,
                                      uint32_t *consumed);

/* TarnIsJitterBufferSizeIeValid returns 1 if ie has tag 90 and a valid value, and 0 otherwise. */
uint32_t TarnIsJitterBufferSizeIeValid(const void *container, const TarnJitterBufferSizeIe *ie);

/* ---- RtpStreamId, tag 91 ------------------------------------------------------------------------
 * RTP stream identifier.
 *
 * A uint8_t, any value; 1 byte on the wire, 7 bytes with its header. */

enum { TarnRtpStreamIdTag = 91 };

typedef uint8_t TarnRtpStreamId;

typedef struct TarnRtpStreamIdIe {
    TarnIe ie;
    TarnRtpStreamId value;
} TarnRtpStreamIdIe;

/* TarnSizeOfRtpStreamId returns 1. */
uint32_t TarnSizeOfRtpStreamId(const TarnRtpStreamId *value);

/* TarnPackRtpStreamId packs *value and sets *written, returning 1 on success and 0 if fewer than 1
 * byte are available. */
uint32_t TarnPackRtpStreamId(const TarnRtpStreamId *value, uint8_t *buffer, uint32_t available,
                             uint32_t *written);

/* TarnUnpackRtpStreamId sets *value and *consumed, returning 1 on success and 0 if length is not 1
 * or fewer bytes are available. */
uint32_t TarnUnpackRtpStreamId(TarnRtpStreamId *value, uint32_t length, const uint8_t *buffer,
                               uint32_t available, uint32_t *consumed);

/* TarnIsRtpStreamIdValid returns 1: every value is valid. */
uint32_t TarnIsRtpStreamIdValid(const TarnRtpStreamId *value);

/* TarnPackRtpStreamIdIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackRtpStreamIdIe(const TarnRtpStreamIdIe *ie, uint8_t *buffer, uint32_t available,
                               uint32_t *written);

/* TarnUnpackRtpStreamIdIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackRtpStreamIdIe(const void *container, TarnRtpStreamIdIe *ie,
                                 const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsRtpStreamIdIeValid returns 1 if ie has tag 91 and a valid value, and 0 otherwise. */
uint32_t TarnIsRtpStreamIdIeValid(const void *container, const TarnRtpStreamIdIe *ie);

/* ---- UserPlaneResult, tag 93 --------------------------------------------------------------------
 * Result of a user plane configuration; 0 is success.
 *
 * A code word, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnUserPlaneResultTag = 93 };

typedef uint32_t TarnUserPlaneResult;

typedef struct TarnUserPlaneResultIe {
    TarnIe ie;
    TarnUserPlaneResult value;
} TarnUserPlaneResultIe;

/* TarnSizeOfUserPlaneResult returns 2. */
uint32_t TarnSizeOfUserPlaneResult(const TarnUserPlaneResult *value);

/* TarnPackUserPlaneResult packs *value and sets *written, returning 1 on success and 0 if fewer
 * than 2 bytes are available. */
uint32_t TarnPackUserPlaneResult(const TarnUserPlaneResult *value, uint8_t *buffer,
                                 uint32_t available, uint32_t *written);

/* TarnUnpackUserPlaneResult sets *value and *consumed, returning 1 on success and 0 if length is
 * not 2 or fewer bytes are available. */
uint32_t TarnUnpackUserPlaneResult(TarnUserPlaneResult *value, uint32_t length,
                                   const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsUserPlaneResultValid returns 1: every value is valid. */
uint32_t TarnIsUserPlaneResultValid(const TarnUserPlaneResult *value);

/* TarnPackUserPlaneResultIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackUserPlaneResultIe(const TarnUserPlaneResultIe *ie, uint8_t *buffer,
                                   uint32_t available, uint32_t *written);

/* TarnUnpackUserPlaneResultIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackUserPlaneResultIe(const void *container, TarnUserPlaneResultIe *ie,
                                     const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsUserPlaneResultIeValid returns 1 if ie has tag 93 and a valid value, and 0 otherwise. */
uint32_t TarnIsUserPlaneResultIeValid(const void *container, const TarnUserPlaneResultIe *ie);

/* ---- UnSuccTransferAtRlc, tag 97 ----------------------------------------------------------------
 * Data volume unsuccessfully transferred, counted at RLC.
 *
 * A uint32_t, any value; 4 bytes on the wire, 10 bytes with its header. */

enum { TarnUnSuccTransferAtRlcTag = 97 };

typedef uint32_t TarnUnSuccTransferAtRlc;

typedef struct TarnUnSuccTransferAtRlcIe {
    TarnIe ie;
    TarnUnSuccTransferAtRlc value;
} TarnUnSuccTransferAtRlcIe;

/* TarnSizeOfUnSuccTransferAtRlc returns 4. */
uint32_t TarnSizeOfUnSuccTransferAtRlc(const TarnUnSuccTransferAtRlc *value);

/* TarnPackUnSuccTransferAtRlc packs *value and sets *written, returning 1 on success and 0 if fewer
 * than 4 bytes are available. */
uint32_t TarnPackUnSuccTransferAtRlc(const TarnUnSuccTransferAtRlc *value, uint8_t *buffer,
                                     uint32_t available, uint32_t *written);

/* TarnUnpackUnSuccTransferAtRlc sets *value and *consumed, returning 1 on success and 0 if length
 * is not 4 or fewer bytes are available. */
uint32_t TarnUnpackUnSuccTransferAtRlc(TarnUnSuccTransferAtRlc *value, uint32_t length,
                                       const uint8_t *buffer, uint32_t available,
                                       uint32_t *consumed);

/* TarnIsUnSuccTransferAtRlcValid returns 1: every value is valid. */
uint32_t TarnIsUnSuccTransferAtRlcValid(const TarnUnSuccTransferAtRlc *value);

/* TarnPackUnSuccTransferAtRlcIe packs ie and sets *written, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackUnSuccTransferAtRlcIe(const TarnUnSuccTransferAtRlcIe *ie, uint8_t *buffer,
                                       uint32_t available, uint32_t *written);

/* TarnUnpackUnSuccTransferAtRlcIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackUnSuccTransferAtRlcIe(const void *container, TarnUnSuccTransferAtRlcIe *ie,
                                         const uint8_t *buffer, uint32_t available,
                                         uint32_t *consumed);

/* TarnIsUnSuccTransferAtRlcIeValid returns 1 if ie has tag 97 and a valid value, and 0
 * otherwise. */
uint32_t TarnIsUnSuccTransferAtRlcIeValid(const void *container,
                                          const TarnUnSuccTransferAtRlcIe *ie);

/* ---- SuccTransferAtPsiw, tag 98 -----------------------------------------------------------------
 * Data volume successfully transferred, counted at the packet switched interworking.
 *
 * A uint32_t, any value; 4 bytes on the wire, 10 bytes with its header. */

enum { TarnSuccTransferAtPsiwTag = 98 };

typedef uint32_t TarnSuccTransferAtPsiw;

typedef struct TarnSuccTransferAtPsiwIe {
    TarnIe ie;
    TarnSuccTransferAtPsiw value;
} TarnSuccTransferAtPsiwIe;

/* TarnSizeOfSuccTransferAtPsiw returns 4. */
uint32_t TarnSizeOfSuccTransferAtPsiw(const TarnSuccTransferAtPsiw *value);

/* TarnPackSuccTransferAtPsiw packs *value and sets *written, returning 1 on success and 0 if fewer
 * than 4 bytes are available. */
uint32_t TarnPackSuccTransferAtPsiw(const TarnSuccTransferAtPsiw *value, uint8_t *buffer,
                                    uint32_t available, uint32_t *written);

/* TarnUnpackSuccTransferAtPsiw sets *value and *consumed, returning 1 on success and 0 if length is
 * not 4 or fewer bytes are available. */
uint32_t TarnUnpackSuccTransferAtPsiw(TarnSuccTransferAtPsiw *value, uint32_t length,
                                      const uint8_t *buffer, uint32_t available,
                                      uint32_t *consumed);

/* TarnIsSuccTransferAtPsiwValid returns 1: every value is valid. */
uint32_t TarnIsSuccTransferAtPsiwValid(const TarnSuccTransferAtPsiw *value);

/* TarnPackSuccTransferAtPsiwIe packs ie and sets *written, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackSuccTransferAtPsiwIe(const TarnSuccTransferAtPsiwIe *ie, uint8_t *buffer,
                                      uint32_t available, uint32_t *written);

/* TarnUnpackSuccTransferAtPsiwIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackSuccTransferAtPsiwIe(const void *container, TarnSuccTransferAtPsiwIe *ie,
                                        const uint8_t *buffer, uint32_t available,
                                        uint32_t *consumed);

/* TarnIsSuccTransferAtPsiwIeValid returns 1 if ie has tag 98 and a valid value, and 0 otherwise. */
uint32_t TarnIsSuccTransferAtPsiwIeValid(const void *container, const TarnSuccTransferAtPsiwIe *ie);

/* ---- DataVolReportingFlag, tag 99 ---------------------------------------------------------------
 * Whether unsuccessfully transferred data volume is reported.
 *
 * A code word, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnDataVolReportingFlagTag = 99 };

typedef uint32_t TarnDataVolReportingFlag;

typedef struct TarnDataVolReportingFlagIe {
    TarnIe ie;
    TarnDataVolReportingFlag value;
} TarnDataVolReportingFlagIe;

/* TarnSizeOfDataVolReportingFlag returns 2. */
uint32_t TarnSizeOfDataVolReportingFlag(const TarnDataVolReportingFlag *value);

/* TarnPackDataVolReportingFlag packs *value and sets *written, returning 1 on success and 0 if
 * fewer than 2 bytes are available. */
uint32_t TarnPackDataVolReportingFlag(const TarnDataVolReportingFlag *value, uint8_t *buffer,
                                      uint32_t available, uint32_t *written);

/* TarnUnpackDataVolReportingFlag sets *value and *consumed, returning 1 on success and 0 if length
 * is not 2 or fewer bytes are available. */
uint32_t TarnUnpackDataVolReportingFlag(TarnDataVolReportingFlag *value, uint32_t length,
                                        const uint8_t *buffer, uint32_t available,
                                        uint32_t *consumed);

/* TarnIsDataVolReportingFlagValid returns 1: every value is valid. */
uint32_t TarnIsDataVolReportingFlagValid(const TarnDataVolReportingFlag *value);

/* TarnPackDataVolReportingFlagIe packs ie and sets *written, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackDataVolReportingFlagIe(const TarnDataVolReportingFlagIe *ie, uint8_t *buffer,
                                        uint32_t available, uint32_t *written);

/* TarnUnpackDataVolReportingFlagIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackDataVolReportingFlagIe(const void *container, TarnDataVolReportingFlagIe *ie,
                                          const uint8_t *buffer, uint32_t available,
                                          uint32_t *consumed);

/* TarnIsDataVolReportingFlagIeValid returns 1 if ie has tag 99 and a valid value, and 0
 * otherwise. */
uint32_t TarnIsDataVolReportingFlagIeValid(const void *container,
                                           const TarnDataVolReportingFlagIe *ie);

/* ---- Reset3GAP, tag 100 -------------------------------------------------------------------------
 * Whether the whole access point is reset; 1 means all of it, without UE contexts listed.
 *
 * A code word, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnReset3GAPTag = 100 };

typedef uint32_t TarnReset3GAP;

typedef struct TarnReset3GAPIe {
    TarnIe ie;
    TarnReset3GAP value;
} TarnReset3GAPIe;

/* TarnSizeOfReset3GAP returns 2. */
uint32_t TarnSizeOfReset3GAP(const TarnReset3GAP *value);

/* TarnPackReset3GAP packs *value and sets *written, returning 1 on success and 0 if fewer than 2
 * bytes are available. */
uint32_t TarnPackReset3GAP(const TarnReset3GAP *value, uint8_t *buffer, uint32_t available,
                           uint32_t *written);

/* TarnUnpackReset3GAP sets *value and *consumed, returning 1 on success and 0 if length is not 2 or
 * fewer bytes are available. */
uint32_t TarnUnpackReset3GAP(TarnReset3GAP *value, uint32_t length, const uint8_t *buffer,
                             uint32_t available, uint32_t *consumed);

/* TarnIsReset3GAPValid returns 1: every value is valid. */
uint32_t TarnIsReset3GAPValid(const TarnReset3GAP *value);

/* TarnPackReset3GAPIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackReset3GAPIe(const TarnReset3GAPIe *ie, uint8_t *buffer, uint32_t available,
                             uint32_t *written);

/* TarnUnpackReset3GAPIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackReset3GAPIe(const void *container, TarnReset3GAPIe *ie, const uint8_t *buffer,
                               uint32_t available, uint32_t *consumed);

/* TarnIsReset3GAPIeValid returns 1 if ie has tag 100 and a valid value, and 0 otherwise. */
uint32_t TarnIsReset3GAPIeValid(const void *container, const TarnReset3GAPIe *ie);

/* ---- RespExpected, tag 101 ----------------------------------------------------------------------
 * Whether a response is expected.
 *
 * A code word, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnRespExpectedTag = 101 };

typedef uint32_t TarnRespExpected;

typedef struct TarnRespExpectedIe {
    TarnIe ie;
    TarnRespExpected value;
} TarnRespExpectedIe;

/* TarnSizeOfRespExpected returns 2. */
uint32_t TarnSizeOfRespExpected(const TarnRespExpected *value);

/* TarnPackRespExpected packs *value and sets *written, returning 1 on success and 0 if fewer than 2
 * bytes are available. */
uint32_t TarnPackRespExpected(const TarnRespExpected *value, uint8_t *buffer, uint32_t available,
                              uint32_t *written);

/* TarnUnpackRespExpected sets *value and *consumed, returning 1 on success and 0 if length is not 2
 * or fewer bytes are available. */
uint32_t TarnUnpackRespExpected(TarnRespExpected *value, uint32_t length, const uint8_t *buffer,
                                uint32_t available, uint32_t *consumed);

/* TarnIsRespExpectedValid returns 1: every value is valid. */
uint32_t TarnIsRespExpectedValid(const TarnRespExpected *value);

/* TarnPackRespExpectedIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackRespExpectedIe(const TarnRespExpectedIe *ie, uint8_t *buffer, uint32_t available,
                                uint32_t *written);

/* TarnUnpackRespExpectedIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackRespExpectedIe(const void *container, TarnRespExpectedIe *ie,
                                  const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsRespExpectedIeValid returns 1 if ie has tag 101 and a valid value, and 0 otherwise. */
uint32_t TarnIsRespExpectedIeValid(const void *container, const TarnRespExpectedIe *ie);

/* ---- RelocationRequiredCause, tag 104 -----------------------------------------------------------
 * Cause of a required relocation.
 *
 * A code word, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnRelocationRequiredCauseTag = 104 };

typedef uint32_t TarnRelocationRequiredCause;

typedef struct TarnRelocationRequiredCauseIe {
    TarnIe ie;
    TarnRelocationRequiredCause value;
} TarnRelocationRequiredCauseIe;

/* TarnSizeOfRelocationRequiredCause returns 2. */
uint32_t TarnSizeOfRelocationRequiredCause(const TarnRelocationRequiredCause *value);

/* TarnPackRelocationRequiredCause packs *value and sets *written, returning 1 on success and 0 if
 * fewer than 2 bytes are available. */
uint32_t TarnPackRelocationRequiredCause(const TarnRelocationRequiredCause *value, uint8_t *buffer,
                                         uint32_t available, uint32_t *written);

/* TarnUnpackRelocationRequiredCause sets *value and *consumed, returning 1 on success and 0 if
 * length is not 2 or fewer bytes are available. */
uint32_t TarnUnpackRelocationRequiredCause(TarnRelocationRequiredCause *value, uint32_t length,
                                           const uint8_t *buffer, uint32_t available,
                                           uint32_t *consumed);

/* TarnIsRelocationRequiredCauseValid returns 1: every value is valid. */
uint32_t TarnIsRelocationRequiredCauseValid(const TarnRelocationRequiredCause *value);

/* TarnPackRelocationRequiredCauseIe packs ie and sets *written, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackRelocationRequiredCauseIe(const TarnRelocationRequiredCauseIe *ie, uint8_t *buffer,
                                           uint32_t available, uint32_t *written);

/* TarnUnpackRelocationRequiredCauseIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackRelocationRequiredCauseIe(const void *container,
                                             TarnRelocationRequiredCauseIe *ie,
                                             const uint8_t *buffer, uint32_t available,
                                             uint32_t *consumed);

/* TarnIsRelocationRequiredCauseIeValid returns 1 if ie has tag 104 and a valid value, and 0
 * otherwise. */
uint32_t TarnIsRelocationRequiredCauseIeValid(const void *container,
                                              const TarnRelocationRequiredCauseIe *ie);

/* ---- RAC, tag 110 -------------------------------------------------------------------------------
 * Routing area code (RAC).
 *
 * A uint8_t, any value; 1 byte on the wire, 7 bytes with its header. */

enum { TarnRACTag = 110 };

typedef uint8_t TarnRAC;

typedef struct TarnRACIe {
    TarnIe ie;
    TarnRAC value;
} TarnRACIe;

/* TarnSizeOfRAC returns 1. */
uint32_t TarnSizeOfRAC(const TarnRAC *value);

/* TarnPackRAC packs *value and sets *written, returning 1 on success and 0 if fewer than 1 byte are
 * available. */
uint32_t TarnPackRAC(const TarnRAC *value, uint8_t *buffer, uint32_t available, uint32_t *written);

/* TarnUnpackRAC sets *value and *consumed, returning 1 on success and 0 if length is not 1 or fewer
 * bytes are available. */
uint32_t TarnUnpackRAC(TarnRAC *value, uint32_t length, const uint8_t *buffer, uint32_t available,
                       uint32_t *consumed);

/* TarnIsRACValid returns 1: every value is valid. */
uint32_t TarnIsRACValid(const TarnRAC *value);

/* TarnPackRACIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackRACIe(const TarnRACIe *ie, uint8_t *buffer, uint32_t available, uint32_t *written);

/* TarnUnpackRACIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackRACIe(const void *container, TarnRACIe *ie, const uint8_t *buffer,
                         uint32_t available, uint32_t *consumed);

/* TarnIsRACIeValid returns 1 if ie has tag 110 and a valid value, and 0 otherwise. */
uint32_t TarnIsRACIeValid(const void *container, const TarnRACIe *ie);

/* ---- RNCId, tag 111 -----------------------------------------------------------------------------
 * RNC identifier; the bound takes in 4096, one more than 12 bits can carry.
 *
 * A uint16_t, 0 to 4096; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnRNCIdTag = 111 };

typedef uint16_t TarnRNCId;

typedef struct TarnRNCIdIe {
    TarnIe ie;
    TarnRNCId value;
} TarnRNCIdIe;

/* TarnSizeOfRNCId returns 2. */
uint32_t TarnSizeOfRNCId(const TarnRNCId *value);

/* TarnPackRNCId packs *value and sets *written, returning 1 on success and 0 if fewer than 2 bytes
 * are available. */
uint32_t TarnPackRNCId(const TarnRNCId *value, uint8_t *buffer, uint32_t available,
                       uint32_t *written);

/* TarnUnpackRNCId sets *value and *consumed, returning 1 on success and 0 if length is not 2 or
 * fewer bytes are available. */
uint32_t TarnUnpackRNCId(TarnRNCId *value, uint32_t length, const uint8_t *buffer,
                         uint32_t available, uint32_t *consumed);

/* TarnIsRNCIdValid returns 1 if *value is at most 4096, and 0 otherwise. */
uint32_t TarnIsRNCIdValid(const TarnRNCId *value);

/* TarnPackRNCIdIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackRNCIdIe(const TarnRNCIdIe *ie, uint8_t *buffer, uint32_t available,
                         uint32_t *written);

/* TarnUnpackRNCIdIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackRNCIdIe(const void *container, TarnRNCIdIe *ie, const uint8_t *buffer,
                           uint32_t available, uint32_t *consumed);

/* TarnIsRNCIdIeValid returns 1 if ie has tag 111 and a valid value, and 0 otherwise. */
uint32_t TarnIsRNCIdIeValid(const void *container, const TarnRNCIdIe *ie);

/* ---- TargetCellId, tag 118 ----------------------------------------------------------------------
 * Target cell identity, 28 bits.
 *
 * A uint32_t, 0 to 0x0FFFFFFF; 4 bytes on the wire, 10 bytes with its header. */

enum { TarnTargetCellIdTag = 118 };

typedef uint32_t TarnTargetCellId;

typedef struct TarnTargetCellIdIe {
    TarnIe ie;
    TarnTargetCellId value;
} TarnTargetCellIdIe;

/* TarnSizeOfTargetCellId returns 4. */
uint32_t TarnSizeOfTargetCellId(const TarnTargetCellId *value);

/* TarnPackTargetCellId packs *value and sets *written, returning 1 on success and 0 if fewer than 4
 * bytes are available. */
uint32_t TarnPackTargetCellId(const TarnTargetCellId *value, uint8_t *buffer, uint32_t available,
                              uint32_t *written);

/* TarnUnpackTargetCellId sets *value and *consumed, returning 1 on success and 0 if length is not 4
 * or fewer bytes are available. */
uint32_t TarnUnpackTargetCellId(TarnTargetCellId *value, uint32_t length, const uint8_t *buffer,
                                uint32_t available, uint32_t *consumed);

/* TarnIsTargetCellIdValid returns 1 if *value is at most 0x0FFFFFFF, and 0 otherwise. */
uint32_t TarnIsTargetCellIdValid(const TarnTargetCellId *value);

/* TarnPackTargetCellIdIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackTargetCellIdIe(const TarnTargetCellIdIe *ie, uint8_t *buffer, uint32_t available,
                                uint32_t *written);

/* TarnUnpackTargetCellIdIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackTargetCellIdIe(const void *container, TarnTargetCellIdIe *ie,
                                  const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsTargetCellIdIeValid returns 1 if ie has tag 118 and a valid value, and 0 otherwise. */
uint32_t TarnIsTargetCellIdIeValid(const void *container, const TarnTargetCellIdIe *ie);

/* ---- RelocationFailureCause, tag 119 ------------------------------------------------------------
 * Cause of a failed relocation.
 *
 * A code word, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnRelocationFailureCauseTag = 119 };

typedef uint32_t TarnRelocationFailureCause;

typedef struct TarnRelocationFailureCauseIe {
    TarnIe ie;
    TarnRelocationFailureCause value;
} TarnRelocationFailureCauseIe;

/* TarnSizeOfRelocationFailureCause returns 2. */
uint32_t TarnSizeOfRelocationFailureCause(const TarnRelocationFailureCause *value);

/* TarnPackRelocationFailureCause packs *value and sets *written, returning 1 on success and 0 if
 * fewer than 2 bytes are available. */
uint32_t TarnPackRelocationFailureCause(const TarnRelocationFailureCause *value, uint8_t *buffer,
                                        uint32_t available, uint32_t *written);

/* TarnUnpackRelocationFailureCause sets *value and *consumed, returning 1 on success and 0 if
 * length is not 2 or fewer bytes are available. */
uint32_t TarnUnpackRelocationFailureCause(TarnRelocationFailureCause *value, uint32_t length,
                                          const uint8_t *buffer, uint32_t available,
                                          uint32_t *consumed);

/* TarnIsRelocationFailureCauseValid returns 1: every value is valid. */
uint32_t TarnIsRelocationFailureCauseValid(const TarnRelocationFailureCause *value);

/* TarnPackRelocationFailureCauseIe packs ie and sets *written, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackRelocationFailureCauseIe(const TarnRelocationFailureCauseIe *ie, uint8_t *buffer,
                                          uint32_t available, uint32_t *written);

/* TarnUnpackRelocationFailureCauseIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackRelocationFailureCauseIe(const void *container, TarnRelocationFailureCauseIe *ie,
                                            const uint8_t *buffer, uint32_t available,
                                            uint32_t *consumed);

/* TarnIsRelocationFailureCauseIeValid returns 1 if ie has tag 119 and a valid value, and 0
 * otherwise. */
uint32_t TarnIsRelocationFailureCauseIeValid(const void *container,
                                             const TarnRelocationFailureCauseIe *ie);

/* ---- HandoverFailureCause, tag 126 --------------------------------------------------------------
 * Cause of a failed handover.
 *
 * A code word, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnHandoverFailureCauseTag = 126 };

typedef uint32_t TarnHandoverFailureCause;

typedef struct TarnHandoverFailureCauseIe {
    TarnIe ie;
    TarnHandoverFailureCause value;
} TarnHandoverFailureCauseIe;

/* TarnSizeOfHandoverFailureCause returns 2. */
uint32_t TarnSizeOfHandoverFailureCause(const TarnHandoverFailureCause *value);

/* TarnPackHandoverFailureCause packs *value and sets *written, returning 1 on success and 0 if
 * fewer than 2 bytes are available. */
uint32_t TarnPackHandoverFailureCause(const TarnHandoverFailureCause *value, uint8_t *buffer,
                                      uint32_t available, uint32_t *written);

/* TarnUnpackHandoverFailureCause sets *value and *consumed, returning 1 on success and 0 if length
 * is not 2 or fewer bytes are available. */
uint32_t TarnUnpackHandoverFailureCause(TarnHandoverFailureCause *value, uint32_t length,
                                        const uint8_t *buffer, uint32_t available,
                                        uint32_t *consumed);

/* TarnIsHandoverFailureCauseValid returns 1: every value is valid. */
uint32_t TarnIsHandoverFailureCauseValid(const TarnHandoverFailureCause *value);

/* TarnPackHandoverFailureCauseIe packs ie and sets *written, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackHandoverFailureCauseIe(const TarnHandoverFailureCauseIe *ie, uint8_t *buffer,
                                        uint32_t available, uint32_t *written);

/* TarnUnpackHandoverFailureCauseIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackHandoverFailureCauseIe(const void *container, TarnHandoverFailureCauseIe *ie,
                                          const uint8_t *buffer, uint32_t available,
                                          uint32_t *consumed);

/* TarnIsHandoverFailureCauseIeValid returns 1 if ie has tag 126 and a valid value, and 0
 * otherwise. */
uint32_t TarnIsHandoverFailureCauseIeValid(const void *container,
                                           const TarnHandoverFailureCauseIe *ie);

/* ---- ServiceHandover, tag 127 -------------------------------------------------------------------
 * Service handover: whether the RAB should be handed over to GSM.
 *
 * A code word, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnServiceHandoverTag = 127 };

typedef uint32_t TarnServiceHandover;

typedef struct TarnServiceHandoverIe {
    TarnIe ie;
    TarnServiceHandover value;
} TarnServiceHandoverIe;

/* TarnSizeOfServiceHandover returns 2. */
uint32_t TarnSizeOfServiceHandover(const TarnServiceHandover *value);

/* TarnPackServiceHandover packs *value and sets *written, returning 1 on success and 0 if fewer
 * than 2 bytes are available. */
uint32_t TarnPackServiceHandover(const TarnServiceHandover *value, uint8_t *buffer,
                                 uint32_t available, uint32_t *written);

/* TarnUnpackServiceHandover sets *value and *consumed, returning 1 on success and 0 if length is
 * not 2 or fewer bytes are available. */
uint32_t TarnUnpackServiceHandover(TarnServiceHandover *value, uint32_t length,
                                   const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsServiceHandoverValid returns 1: every value is valid. */
uint32_t TarnIsServiceHandoverValid(const TarnServiceHandover *value);

/* TarnPackServiceHandoverIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackServiceHandoverIe(const TarnServiceHandoverIe *ie, uint8_t *buffer,
                                   uint32_t available, uint32_t *written);

/* TarnUnpackServiceHandoverIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackServiceHandoverIe(const void *container, TarnServiceHandoverIe *ie,
                                     const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsServiceHandoverIeValid returns 1 if ie has tag 127 and a valid value, and 0 otherwise. */
uint32_t TarnIsServiceHandoverIeValid(const void *container, const TarnServiceHandoverIe *ie);

/* ---- HandoverRequestCause, tag 128 --------------------------------------------------------------
 * Cause of a handover request.
 *
 * A code word, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnHandoverRequestCauseTag = 128 };

typedef uint32_t TarnHandoverRequestCause;

typedef struct TarnHandoverRequestCauseIe {
    TarnIe ie;
    TarnHandoverRequestCause value;
} TarnHandoverRequestCauseIe;

/* TarnSizeOfHandoverRequestCause returns 2. */
uint32_t TarnSizeOfHandoverRequestCause(const TarnHandoverRequestCause *value);

/* TarnPackHandoverRequestCause packs *value and sets *written, returning 1 on success and 0 if
 * fewer than 2 bytes are available. */
uint32_t TarnPackHandoverRequestCause(const TarnHandoverRequestCause *value, uint8_t *buffer,
                                      uint32_t available, uint32_t *written);

/* TarnUnpackHandoverRequestCause sets *value and *consumed, returning 1 on success and 0 if length
 * is not 2 or fewer bytes are available. */
uint32_t TarnUnpackHandoverRequestCause(TarnHandoverRequestCause *value, uint32_t length,
                                        const uint8_t *buffer, uint32_t available,
                                        uint32_t *consumed);

/* TarnIsHandoverRequestCauseValid returns 1: every value is valid. */
uint32_t TarnIsHandoverRequestCauseValid(const TarnHandoverRequestCause *value);

/* TarnPackHandoverRequestCauseIe packs ie and sets *written, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackHandoverRequestCauseIe(const TarnHandoverRequestCauseIe *ie, uint8_t *buffer,
                                        uint32_t available, uint32_t *written);

/* TarnUnpackHandoverRequestCauseIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackHandoverRequestCauseIe(const void *container, TarnHandoverRequestCauseIe *ie,
                                          const uint8_t *buffer, uint32_t available,
                                          uint32_t *consumed);

/* TarnIsHandoverRequestCauseIeValid returns 1 if ie has tag 128 and a valid value, and 0
 * otherwise. */
uint32_t TarnIsHandoverRequestCauseIeValid(const void *container,
                                           const TarnHandoverRequestCauseIe *ie);

/* ---- RelocationCancelCause, tag 130 -------------------------------------------------------------
 * Cause of a cancelled relocation.
 *
 * A code word, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnRelocationCancelCauseTag = 130 };

typedef uint32_t TarnRelocationCancelCause;

typedef struct TarnRelocationCancelCauseIe {
    TarnIe ie;
    TarnRelocationCancelCause value;
} TarnRelocationCancelCauseIe;

/* TarnSizeOfRelocationCancelCause returns 2. */
uint32_t TarnSizeOfRelocationCancelCause(const TarnRelocationCancelCause *value);

/* TarnPackRelocationCancelCause packs *value and sets *written, returning 1 on success and 0 if
 * fewer than 2 bytes are available. */
uint32_t TarnPackRelocationCancelCause(const TarnRelocationCancelCause *value, uint8_t *buffer,
                                       uint32_t available, uint32_t *written);

/* TarnUnpackRelocationCancelCause sets *value and *consumed, returning 1 on success and 0 if length
 * is not 2 or fewer bytes are available. */
uint32_t TarnUnpackRelocationCancelCause(TarnRelocationCancelCause *value, uint32_t length,
                                         const uint8_t *buffer, uint32_t available,
                                         uint32_t *consumed);

/* TarnIsRelocationCancelCauseValid returns 1: every value is valid. */
uint32_t TarnIsRelocationCancelCauseValid(const TarnRelocationCancelCause *value);

/* TarnPackRelocationCancelCauseIe packs ie and sets *written, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackRelocationCancelCauseIe(const TarnRelocationCancelCauseIe *ie, uint8_t *buffer,
                                         uint32_t available, uint32_t *written);

/* TarnUnpackRelocationCancelCauseIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackRelocationCancelCauseIe(const void *container, TarnRelocationCancelCauseIe *ie,
                                           const uint8_t *buffer, uint32_t available,
                                           uint32_t *consumed);

/* TarnIsRelocationCancelCauseIeValid returns 1 if ie has tag 130 and a valid value, and 0
 * otherwise. */
uint32_t TarnIsRelocationCancelCauseIeValid(const void *container,
                                            const TarnRelocationCancelCauseIe *ie);

/* ---- NumIuInstances, tag 154 --------------------------------------------------------------------
 * Number of Iu instances.
 *
 * A uint8_t, 1 to 2; 1 byte on the wire, 7 bytes with its header. */

enum { TarnNumIuInstancesTag = 154 };

typedef uint8_t TarnNumIuInstances;

typedef struct TarnNumIuInstancesIe {
    TarnIe ie;
    TarnNumIuInstances value;
} TarnNumIuInstancesIe;

/* TarnSizeOfNumIuInstances returns 1. */
uint32_t TarnSizeOfNumIuInstances(const TarnNumIuInstances *value);

/* TarnPackNumIuInstances packs *value and sets *written, returning 1 on success and 0 if fewer than
 * 1 byte are available. */
uint32_t TarnPackNumIuInstances(const TarnNumIuInstances *value, uint8_t *buffer,
                                uint32_t available, uint32_t *written);

/* TarnUnpackNumIuInstances sets *value and *consumed, returning 1 on success and 0 if length is not
 * 1 or fewer bytes are available. */
uint32_t TarnUnpackNumIuInstances(TarnNumIuInstances *value, uint32_t length, const uint8_t *buffer,
                                  uint32_t available, uint32_t *consumed);

/* TarnIsNumIuInstancesValid returns 1 if *value is 1 to 2, and 0 otherwise. */
uint32_t TarnIsNumIuInstancesValid(const TarnNumIuInstances *value);

/* TarnPackNumIuInstancesIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackNumIuInstancesIe(const TarnNumIuInstancesIe *ie, uint8_t *buffer,
                                  uint32_t available, uint32_t *written);

/* TarnUnpackNumIuInstancesIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackNumIuInstancesIe(const void *container, TarnNumIuInstancesIe *ie,
                                    const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsNumIuInstancesIeValid returns 1 if ie has tag 154 and a valid value, and 0 otherwise. */
uint32_t TarnIsNumIuInstancesIeValid(const void *container, const TarnNumIuInstancesIe *ie);

/* ---- RelocationType, tag 155 --------------------------------------------------------------------
 * Relocation type; 0 is inter-RAT, 1 is intra-RAT.
 *
 * A code word, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnRelocationTypeTag = 155 };

typedef uint32_t TarnRelocationType;

typedef struct TarnRelocationTypeIe {
    TarnIe ie;
    TarnRelocationType value;
} TarnRelocationTypeIe;

/* TarnSizeOfRelocationType returns 2. */
uint32_t TarnSizeOfRelocationType(const TarnRelocationType *value);

/* TarnPackRelocationType packs *value and sets *written, returning 1 on success and 0 if fewer than
 * 2 bytes are available. */
uint32_t TarnPackRelocationType(const TarnRelocationType *value, uint8_t *buffer,
                                uint32_t available, uint32_t *written);

/* TarnUnpackRelocationType sets *value and *consumed, returning 1 on success and 0 if length is not
 * 2 or fewer bytes are available. */
uint32_t TarnUnpackRelocationType(TarnRelocationType *value, uint32_t length, const uint8_t *buffer,
                                  uint32_t available, uint32_t *consumed);

/* TarnIsRelocationTypeValid returns 1: every value is valid. */
uint32_t TarnIsRelocationTypeValid(const TarnRelocationType *value);

/* TarnPackRelocationTypeIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackRelocationTypeIe(const TarnRelocationTypeIe *ie, uint8_t *buffer,
                                  uint32_t available, uint32_t *written);

/* TarnUnpackRelocationTypeIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackRelocationTypeIe(const void *container, TarnRelocationTypeIe *ie,
                                    const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsRelocationTypeIeValid returns 1 if ie has tag 155 and a valid value, and 0 otherwise. */
uint32_t TarnIsRelocationTypeIeValid(const void *container, const TarnRelocationTypeIe *ie);

/* ---- CsUserEncryptAlgo, tag 157 -----------------------------------------------------------------
 * Encryption algorithm of the circuit switched user plane.
 *
 * A code word, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnCsUserEncryptAlgoTag = 157 };

typedef uint32_t TarnCsUserEncryptAlgo;

typedef struct TarnCsUserEncryptAlgoIe {
    TarnIe ie;
    TarnCsUserEncryptAlgo value;
} TarnCsUserEncryptAlgoIe;

/* TarnSizeOfCsUserEncryptAlgo returns 2. */
uint32_t TarnSizeOfCsUserEncryptAlgo(const TarnCsUserEncryptAlgo *value);

/* TarnPackCsUserEncryptAlgo packs *value and sets *written, returning 1 on success and 0 if fewer
 * than 2 bytes are available. */
uint32_t TarnPackCsUserEncryptAlgo(const TarnCsUserEncryptAlgo *value, uint8_t *buffer,
                                   uint32_t available, uint32_t *written);

/* TarnUnpackCsUserEncryptAlgo sets *value and *consumed, returning 1 on success and 0 if length is
 * not 2 or fewer bytes are available. */
uint32_t TarnUnpackCsUserEncryptAlgo(TarnCsUserEncryptAlgo *value, uint32_t length,
                                     const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsCsUserEncryptAlgoValid returns 1: every value is valid. */
uint32_t TarnIsCsUserEncryptAlgoValid(const TarnCsUserEncryptAlgo *value);

/* TarnPackCsUserEncryptAlgoIe packs ie and sets *written, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackCsUserEncryptAlgoIe(const TarnCsUserEncryptAlgoIe *ie, uint8_t *buffer,
                                     uint32_t available, uint32_t *written);

/* TarnUnpackCsUserEncryptAlgoIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackCsUserEncryptAlgoIe(const void *container, TarnCsUserEncryptAlgoIe *ie,
                                       const uint8_t *buffer, uint32_t available,
                                       uint32_t *consumed);

/* TarnIsCsUserEncryptAlgoIeValid returns 1 if ie has tag 157 and a valid value, and 0 otherwise. */
uint32_t TarnIsCsUserEncryptAlgoIeValid(const void *container, const TarnCsUserEncryptAlgoIe *ie);

/* ---- PsUserEncryptAlgo, tag 158 -----------------------------------------------------------------
 * Encryption algorithm of the packet switched user plane.
 *
 * A code word, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnPsUserEncryptAlgoTag = 158 };

typedef uint32_t TarnPsUserEncryptAlgo;

typedef struct TarnPsUserEncryptAlgoIe {
    TarnIe ie;
    TarnPsUserEncryptAlgo value;
} TarnPsUserEncryptAlgoIe;

/* TarnSizeOfPsUserEncryptAlgo returns 2. */
uint32_t TarnSizeOfPsUserEncryptAlgo(const TarnPsUserEncryptAlgo *value);

/* TarnPackPsUserEncryptAlgo packs *value and sets *written, returning 1 on success and 0 if fewer
 * than 2 bytes are available. */
uint32_t TarnPackPsUserEncryptAlgo(const TarnPsUserEncryptAlgo *value, uint8_t *buffer,
                                   uint32_t available, uint32_t *written);

/* TarnUnpackPsUserEncryptAlgo sets *value and *consumed, returning 1 on success and 0 if length is
 * not 2 or fewer bytes are available. */
uint32_t TarnUnpackPsUserEncryptAlgo(TarnPsUserEncryptAlgo *value, uint32_t length,
                                     const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsPsUserEncryptAlgoValid returns 1: every value is valid. */
uint32_t TarnIsPsUserEncryptAlgoValid(const TarnPsUserEncryptAlgo *value);

/* TarnPackPsUserEncryptAlgoIe packs ie and sets *written, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackPsUserEncryptAlgoIe(const TarnPsUserEncryptAlgoIe *ie, uint8_t *buffer,
                                     uint32_t available, uint32_t *written);

/* TarnUnpackPsUserEncryptAlgoIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackPsUserEncryptAlgoIe(const void *container, TarnPsUserEncryptAlgoIe *ie,
                                       const uint8_t *buffer, uint32_t available,
                                       uint32_t *consumed);

/* TarnIsPsUserEncryptAlgoIeValid returns 1 if ie has tag 158 and a valid value, and 0 otherwise. */
uint32_t TarnIsPsUserEncryptAlgoIeValid(const void *container, const TarnPsUserEncryptAlgoIe *ie);

/* ---- MaxBitRateUplink, tag 160 ------------------------------------------------------------------
 * Maximum uplink bit rate, bit/s.
 *
 * A uint32_t, 0 to 8000000; 4 bytes on the wire, 10 bytes with its header. */

enum { TarnMaxBitRateUplinkTag = 160 };

typedef uint32_t TarnMaxBitRateUplink;

typedef struct TarnMaxBitRateUplinkIe {
    TarnIe ie;
    TarnMaxBitRateUplink value;
} TarnMaxBitRateUplinkIe;

/* TarnSizeOfMaxBitRateUplink returns 4. */
uint32_t TarnSizeOfMaxBitRateUplink(const TarnMaxBitRateUplink *value);

/* TarnPackMaxBitRateUplink packs *value and sets *written, returning 1 on success and 0 if fewer
 * than 4 bytes are available. */
uint32_t TarnPackMaxBitRateUplink(const TarnMaxBitRateUplink *value, uint8_t *buffer,
                                  uint32_t available, uint32_t *written);

/* TarnUnpackMaxBitRateUplink sets *value and *consumed, returning 1 on success and 0 if length is
 * not 4 or fewer bytes are available. */
uint32_t TarnUnpackMaxBitRateUplink(TarnMaxBitRateUplink *value, uint32_t length,
                                    const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsMaxBitRateUplinkValid returns 1 if *value is at most 8000000, and 0 otherwise. */
uint32_t TarnIsMaxBitRateUplinkValid(const TarnMaxBitRateUplink *value);

/* TarnPackMaxBitRateUplinkIe packs ie and sets *written, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackMaxBitRateUplinkIe(const TarnMaxBitRateUplinkIe *ie, uint8_t *buffer,
                                    uint32_t available, uint32_t *written);

/* TarnUnpackMaxBitRateUplinkIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackMaxBitRateUplinkIe(const void *container, TarnMaxBitRateUplinkIe *ie,
                                      const uint8_t *buffer, uint32_t available,
                                      uint32_t *consumed);

/* TarnIsMaxBitRateUplinkIeValid returns 1 if ie has tag 160 and a valid value, and 0 otherwise. */
uint32_t TarnIsMaxBitRateUplinkIeValid(const void *container, const TarnMaxBitRateUplinkIe *ie);

/* ---- MaxBitRateDownlink, tag 161 ----------------------------------------------------------------
 * Maximum downlink bit rate, bit/s; twice the uplink's bound.
 *
 * A uint32_t, 0 to 16000000; 4 bytes on the wire, 10 bytes with its header. */

enum { TarnMaxBitRateDownlinkTag = 161 };

typedef uint32_t TarnMaxBitRateDownlink;

typedef struct TarnMaxBitRateDownlinkIe {
    TarnIe ie;
    TarnMaxBitRateDownlink value;
} TarnMaxBitRateDownlinkIe;

/* TarnSizeOfMaxBitRateDownlink returns 4. */
uint32_t TarnSizeOfMaxBitRateDownlink(const TarnMaxBitRateDownlink *value);

/* TarnPackMaxBitRateDownlink packs *value and sets *written, returning 1 on success and 0 if fewer
 * than 4 bytes are available. */
uint32_t TarnPackMaxBitRateDownlink(const TarnMaxBitRateDownlink *value, uint8_t *buffer,
                                    uint32_t available, uint32_t *written);

/* TarnUnpackMaxBitRateDownlink sets *value and *consumed, returning 1 on success and 0 if length is
 * not 4 or fewer bytes are available. */
uint32_t TarnUnpackMaxBitRateDownlink(TarnMaxBitRateDownlink *value, uint32_t length,
                                      const uint8_t *buffer, uint32_t available,
                                      uint32_t *consumed);

/* TarnIsMaxBitRateDownlinkValid returns 1 if *value is at most 16000000, and 0 otherwise. */
uint32_t TarnIsMaxBitRateDownlinkValid(const TarnMaxBitRateDownlink *value);

/* TarnPackMaxBitRateDownlinkIe packs ie and sets *written, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackMaxBitRateDownlinkIe(const TarnMaxBitRateDownlinkIe *ie, uint8_t *buffer,
                                      uint32_t available, uint32_t *written);

/* TarnUnpackMaxBitRateDownlinkIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackMaxBitRateDownlinkIe(const void *container, TarnMaxBitRateDownlinkIe *ie,
                                        const uint8_t *buffer, uint32_t available,
                                        uint32_t *consumed);

/* TarnIsMaxBitRateDownlinkIeValid returns 1 if ie has tag 161 and a valid value, and 0
 * otherwise. */
uint32_t TarnIsMaxBitRateDownlinkIeValid(const void *container, const TarnMaxBitRateDownlinkIe *ie);

/* ---- CpsSduMaxBitRate, tag 163 ------------------------------------------------------------------
 * Maximum CPS-SDU bit rate of an AAL2 link.
 *
 * A uint32_t, 0 to 2097152; 4 bytes on the wire, 10 bytes with its header. */

enum { TarnCpsSduMaxBitRateTag = 163 };

typedef uint32_t TarnCpsSduMaxBitRate;

typedef struct TarnCpsSduMaxBitRateIe {
    TarnIe ie;
    TarnCpsSduMaxBitRate value;
} TarnCpsSduMaxBitRateIe;

/* TarnSizeOfCpsSduMaxBitRate returns 4. */
uint32_t TarnSizeOfCpsSduMaxBitRate(const TarnCpsSduMaxBitRate *value);

/* TarnPackCpsSduMaxBitRate packs *value and sets *written, returning 1 on success and 0 if fewer
 * than 4 bytes are available. */
uint32_t TarnPackCpsSduMaxBitRate(const TarnCpsSduMaxBitRate *value, uint8_t *buffer,
                                  uint32_t available, uint32_t *written);

/* TarnUnpackCpsSduMaxBitRate sets *value and *consumed, returning 1 on success and 0 if length is
 * not 4 or fewer bytes are available. */
uint32_t TarnUnpackCpsSduMaxBitRate(TarnCpsSduMaxBitRate *value, uint32_t length,
                                    const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsCpsSduMaxBitRateValid returns 1 if *value is at most 2097152, and 0 otherwise. */
uint32_t TarnIsCpsSduMaxBitRateValid(const TarnCpsSduMaxBitRate *value);

/* TarnPackCpsSduMaxBitRateIe packs ie and sets *written, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackCpsSduMaxBitRateIe(const TarnCpsSduMaxBitRateIe *ie, uint8_t *buffer,
                                    uint32_t available, uint32_t *written);

/* TarnUnpackCpsSduMaxBitRateIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackCpsSduMaxBitRateIe(const void *container, TarnCpsSduMaxBitRateIe *ie,
                                      const uint8_t *buffer, uint32_t available,
                                      uint32_t *consumed);

/* TarnIsCpsSduMaxBitRateIeValid returns 1 if ie has tag 163 and a valid value, and 0 otherwise. */
uint32_t TarnIsCpsSduMaxBitRateIeValid(const void *container, const TarnCpsSduMaxBitRateIe *ie);

/* ---- CpsSduMaxSize, tag 164 ---------------------------------------------------------------------
 * Maximum CPS-SDU size of an AAL2 link, bytes; 4 bytes on the wire although 1 would do.
 *
 * A uint32_t, 1 to 45; 4 bytes on the wire, 10 bytes with its header. */

enum { TarnCpsSduMaxSizeTag = 164 };

typedef uint32_t TarnCpsSduMaxSize;

typedef struct TarnCpsSduMaxSizeIe {
    TarnIe ie;
    TarnCpsSduMaxSize value;
} TarnCpsSduMaxSizeIe;

/* TarnSizeOfCpsSduMaxSize returns 4. */
uint32_t TarnSizeOfCpsSduMaxSize(const TarnCpsSduMaxSize *value);

/* TarnPackCpsSduMaxSize packs *value and sets *written, returning 1 on success and 0 if fewer than
 * 4 bytes are available. */
uint32_t TarnPackCpsSduMaxSize(const TarnCpsSduMaxSize *value, uint8_t *buffer, uint32_t available,
                               uint32_t *written);

/* TarnUnpackCpsSduMaxSize sets *value and *consumed, returning 1 on success and 0 if length is not
 * 4 or fewer bytes are available. */
uint32_t TarnUnpackCpsSduMaxSize(TarnCpsSduMaxSize *value, uint32_t length, const uint8_t *buffer,
                                 uint32_t available, uint32_t *consumed);

/* TarnIsCpsSduMaxSizeValid returns 1 if *value is 1 to 45, and 0 otherwise. */
uint32_t TarnIsCpsSduMaxSizeValid(const TarnCpsSduMaxSize *value);

/* TarnPackCpsSduMaxSizeIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackCpsSduMaxSizeIe(const TarnCpsSduMaxSizeIe *ie, uint8_t *buffer, uint32_t available,
                                 uint32_t *written);

/* TarnUnpackCpsSduMaxSizeIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackCpsSduMaxSizeIe(const void *container, TarnCpsSduMaxSizeIe *ie,
                                   const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsCpsSduMaxSizeIeValid returns 1 if ie has tag 164 and a valid value, and 0 otherwise. */
uint32_t TarnIsCpsSduMaxSizeIeValid(const void *container, const TarnCpsSduMaxSizeIe *ie);

/* ---- CpsSduAvgBitRate, tag 165 ------------------------------------------------------------------
 * Average CPS-SDU bit rate of an AAL2 link.
 *
 * A uint32_t, 0 to 2097152; 4 bytes on the wire, 10 bytes with its header. */

enum { TarnCpsSduAvgBitRateTag = 165 };

typedef uint32_t TarnCpsSduAvgBitRate;

typedef struct TarnCpsSduAvgBitRateIe {
    TarnIe ie;
    TarnCpsSduAvgBitRate value;
} TarnCpsSduAvgBitRateIe;

/* TarnSizeOfCpsSduAvgBitRate returns 4. */
uint32_t TarnSizeOfCpsSduAvgBitRate(const TarnCpsSduAvgBitRate *value);

/* TarnPackCpsSduAvgBitRate packs *value and sets *written, returning 1 on success and 0 if fewer
 * than 4 bytes are available. */
uint32_t TarnPackCpsSduAvgBitRate(const TarnCpsSduAvgBitRate *value, uint8_t *buffer,
                                  uint32_t available, uint32_t *written);

/* TarnUnpackCpsSduAvgBitRate sets *value and *consumed, returning 1 on success and 0 if length is
 * not 4 or fewer bytes are available. */
uint32_t TarnUnpackCpsSduAvgBitRate(TarnCpsSduAvgBitRate *value, uint32_t length,
                                    const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsCpsSduAvgBitRateValid returns 1 if *value is at most 2097152, and 0 otherwise. */
uint32_t TarnIsCpsSduAvgBitRateValid(const TarnCpsSduAvgBitRate *value);

/* TarnPackCpsSduAvgBitRateIe packs ie and sets *written, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackCpsSduAvgBitRateIe(const TarnCpsSduAvgBitRateIe *ie, uint8_t *buffer,
                                    uint32_t available, uint32_t *written);

/* TarnUnpackCpsSduAvgBitRateIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackCpsSduAvgBitRateIe(const void *container, TarnCpsSduAvgBitRateIe *ie,
                                      const uint8_t *buffer, uint32_t available,
                                      uint32_t *consumed);

/* TarnIsCpsSduAvgBitRateIeValid returns 1 if ie has tag 165 and a valid value, and 0 otherwise. */
uint32_t TarnIsCpsSduAvgBitRateIeValid(const void *container, const TarnCpsSduAvgBitRateIe *ie);

/* ---- CpsSduAvgSize, tag 166 ---------------------------------------------------------------------
 * Average CPS-SDU size of an AAL2 link, bytes; 4 bytes on the wire although 1 would do.
 *
 * A uint32_t, 1 to 45; 4 bytes on the wire, 10 bytes with its header. */

enum { TarnCpsSduAvgSizeTag = 166 };

typedef uint32_t TarnCpsSduAvgSize;

typedef struct TarnCpsSduAvgSizeIe {
    TarnIe ie;
    TarnCpsSduAvgSize value;
} TarnCpsSduAvgSizeIe;

/* TarnSizeOfCpsSduAvgSize returns 4. */
uint32_t TarnSizeOfCpsSduAvgSize(const TarnCpsSduAvgSize *value);

/* TarnPackCpsSduAvgSize packs *value and sets *written, returning 1 on success and 0 if fewer than
 * 4 bytes are available. */
uint32_t TarnPackCpsSduAvgSize(const TarnCpsSduAvgSize *value, uint8_t *buffer, uint32_t available,
                               uint32_t *written);

/* TarnUnpackCpsSduAvgSize sets *value and *consumed, returning 1 on success and 0 if length is not
 * 4 or fewer bytes are available. */
uint32_t TarnUnpackCpsSduAvgSize(TarnCpsSduAvgSize *value, uint32_t length, const uint8_t *buffer,
                                 uint32_t available, uint32_t *consumed);

/* TarnIsCpsSduAvgSizeValid returns 1 if *value is 1 to 45, and 0 otherwise. */
uint32_t TarnIsCpsSduAvgSizeValid(const TarnCpsSduAvgSize *value);

/* TarnPackCpsSduAvgSizeIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackCpsSduAvgSizeIe(const TarnCpsSduAvgSizeIe *ie, uint8_t *buffer, uint32_t available,
                                 uint32_t *written);

/* TarnUnpackCpsSduAvgSizeIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackCpsSduAvgSizeIe(const void *container, TarnCpsSduAvgSizeIe *ie,
                                   const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsCpsSduAvgSizeIeValid returns 1 if ie has tag 166 and a valid value, and 0 otherwise. */
uint32_t TarnIsCpsSduAvgSizeIeValid(const void *container, const TarnCpsSduAvgSizeIe *ie);

/* ---- LacMatch, tag 168 --------------------------------------------------------------------------
 * Whether the location area code matches.
 *
 * A code word, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnLacMatchTag = 168 };

typedef uint32_t TarnLacMatch;

typedef struct TarnLacMatchIe {
    TarnIe ie;
    TarnLacMatch value;
} TarnLacMatchIe;

/* TarnSizeOfLacMatch returns 2. */
uint32_t TarnSizeOfLacMatch(const TarnLacMatch *value);

/* TarnPackLacMatch packs *value and sets *written, returning 1 on success and 0 if fewer than 2
 * bytes are available. */
uint32_t TarnPackLacMatch(const TarnLacMatch *value, uint8_t *buffer, uint32_t available,
                          uint32_t *written);

/* TarnUnpackLacMatch sets *value and *consumed, returning 1 on success and 0 if length is not 2 or
 * fewer bytes are available. */
uint32_t TarnUnpackLacMatch(TarnLacMatch *value, uint32_t length, const uint8_t *buffer,
                            uint32_t available, uint32_t *consumed);

/* TarnIsLacMatchValid returns 1: every value is valid. */
uint32_t TarnIsLacMatchValid(const TarnLacMatch *value);

/* TarnPackLacMatchIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackLacMatchIe(const TarnLacMatchIe *ie, uint8_t *buffer, uint32_t available,
                            uint32_t *written);

/* TarnUnpackLacMatchIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackLacMatchIe(const void *container, TarnLacMatchIe *ie, const uint8_t *buffer,
                              uint32_t available, uint32_t *consumed);

/* TarnIsLacMatchIeValid returns 1 if ie has tag 168 and a valid value, and 0 otherwise. */
uint32_t TarnIsLacMatchIeValid(const void *container, const TarnLacMatchIe *ie);

/* ---- IuRelCauseNew, tag 170 ---------------------------------------------------------------------
 * A second Iu release cause beside IuRelCause.
 *
 * A code word, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnIuRelCauseNewTag = 170 };

typedef uint32_t TarnIuRelCauseNew;

typedef struct TarnIuRelCauseNewIe {
    TarnIe ie;
    TarnIuRelCauseNew value;
} TarnIuRelCauseNewIe;

/* TarnSizeOfIuRelCauseNew returns 2. */
uint32_t TarnSizeOfIuRelCauseNew(const TarnIuRelCauseNew *value);

/* TarnPackIuRelCauseNew packs *value and sets *written, returning 1 on success and 0 if fewer than
 * 2 bytes are available. */
uint32_t TarnPackIuRelCauseNew(const TarnIuRelCauseNew *value, uint8_t *buffer, uint32_t available,
                               uint32_t *written);

/* TarnUnpackIuRelCauseNew sets *value and *consumed, returning 1 on success and 0 if length is not
 * 2 or fewer bytes are available. */
uint32_t TarnUnpackIuRelCauseNew(TarnIuRelCauseNew *value, uint32_t length, const uint8_t *buffer,
                                 uint32_t available, uint32_t *consumed);

/* TarnIsIuRelCauseNewValid returns 1: every value is valid. */
uint32_t TarnIsIuRelCauseNewValid(const TarnIuRelCauseNew *value);

/* TarnPackIuRelCauseNewIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackIuRelCauseNewIe(const TarnIuRelCauseNewIe *ie, uint8_t *buffer, uint32_t available,
                                 uint32_t *written);

/* TarnUnpackIuRelCauseNewIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackIuRelCauseNewIe(const void *container, TarnIuRelCauseNewIe *ie,
                                   const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsIuRelCauseNewIeValid returns 1 if ie has tag 170 and a valid value, and 0 otherwise. */
uint32_t TarnIsIuRelCauseNewIeValid(const void *container, const TarnIuRelCauseNewIe *ie);

/* ---- GtpTeid, tag 171 ---------------------------------------------------------------------------
 * GTP tunnel endpoint identifier (TEID).
 *
 * A uint32_t, any value; 4 bytes on the wire, 10 bytes with its header. */

enum { TarnGtpTeidTag = 171 };

typedef uint32_t TarnGtpTeid;

typedef struct TarnGtpTeidIe {
    TarnIe ie;
    TarnGtpTeid value;
} TarnGtpTeidIe;

/* TarnSizeOfGtpTeid returns 4. */
uint32_t TarnSizeOfGtpTeid(const TarnGtpTeid *value);

/* TarnPackGtpTeid packs *value and sets *written, returning 1 on success and 0 if fewer than 4
 * bytes are available. */
uint32_t TarnPackGtpTeid(const TarnGtpTeid *value, uint8_t *buffer, uint32_t available,
                         uint32_t *written);

/* TarnUnpackGtpTeid sets *value and *consumed, returning 1 on success and 0 if length is not 4 or
 * fewer bytes are available. */
uint32_t TarnUnpackGtpTeid(TarnGtpTeid *value, uint32_t length, const uint8_t *buffer,
                           uint32_t available, uint32_t *consumed);

/* TarnIsGtpTeidValid returns 1: every value is valid. */
uint32_t TarnIsGtpTeidValid(const TarnGtpTeid *value);

/* TarnPackGtpTeidIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackGtpTeidIe(const TarnGtpTeidIe *ie, uint8_t *buffer, uint32_t available,
                           uint32_t *written);

/* TarnUnpackGtpTeidIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackGtpTeidIe(const void *container, TarnGtpTeidIe *ie, const uint8_t *buffer,
                             uint32_t available, uint32_t *consumed);

/* TarnIsGtpTeidIeValid returns 1 if ie has tag 171 and a valid value, and 0 otherwise. */
uint32_t TarnIsGtpTeidIeValid(const void *container, const TarnGtpTeidIe *ie);

/* ---- GtpEchoPeriod, tag 172 ---------------------------------------------------------------------
 * Period of GTP echo requests, seconds.
 *
 * A uint16_t, 60 to 600; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnGtpEchoPeriodTag = 172 };

typedef uint16_t TarnGtpEchoPeriod;

typedef struct TarnGtpEchoPeriodIe {
    TarnIe ie;
    TarnGtpEchoPeriod value;
} TarnGtpEchoPeriodIe;

/* TarnSizeOfGtpEchoPeriod returns 2. */
uint32_t TarnSizeOfGtpEchoPeriod(const TarnGtpEchoPeriod *value);

/* TarnPackGtpEchoPeriod packs *value and sets *written, returning 1 on success and 0 if fewer than
 * 2 bytes are available. */
uint32_t TarnPackGtpEchoPeriod(const TarnGtpEchoPeriod *value, uint8_t *buffer, uint32_t available,
                               uint32_t *written);

/* TarnUnpackGtpEchoPeriod sets *value and *consumed, returning 1 on success and 0 if length is not
 * 2 or fewer bytes are available. */
uint32_t TarnUnpackGtpEchoPeriod(TarnGtpEchoPeriod *value, uint32_t length, const uint8_t *buffer,
                                 uint32_t available, uint32_t *consumed);

/* TarnIsGtpEchoPeriodValid returns 1 if *value is 60 to 600, and 0 otherwise. */
uint32_t TarnIsGtpEchoPeriodValid(const TarnGtpEchoPeriod *value);

/* TarnPackGtpEchoPeriodIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackGtpEchoPeriodIe(const TarnGtpEchoPeriodIe *ie, uint8_t *buffer, uint32_t available,
                                 uint32_t *written);

/* TarnUnpackGtpEchoPeriodIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackGtpEchoPeriodIe(const void *container, TarnGtpEchoPeriodIe *ie,
                                   const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsGtpEchoPeriodIeValid returns 1 if ie has tag 172 and a valid value, and 0 otherwise. */
uint32_t TarnIsGtpEchoPeriodIeValid(const void *container, const TarnGtpEchoPeriodIe *ie);

/* ---- MuxUdpPort, tag 174 ------------------------------------------------------------------------
 * UDP port of a multiplexed user plane.
 *
 * A uint16_t, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnMuxUdpPortTag = 174 };

typedef uint16_t TarnMuxUdpPort;

typedef struct TarnMuxUdpPortIe {
    TarnIe ie;
    TarnMuxUdpPort value;
} TarnMuxUdpPortIe;

/* TarnSizeOfMuxUdpPort returns 2. */
uint32_t TarnSizeOfMuxUdpPort(const TarnMuxUdpPort *value);

/* TarnPackMuxUdpPort packs *value and sets *written, returning 1 on success and 0 if fewer than 2
 * bytes are available. */
uint32_t TarnPackMuxUdpPort(const TarnMuxUdpPort *value, uint8_t *buffer, uint32_t available,
                            uint32_t *written);

/* TarnUnpackMuxUdpPort sets *value and *consumed, returning 1 on success and 0 if length is not 2
 * or fewer bytes are available. */
uint32_t TarnUnpackMuxUdpPort(TarnMuxUdpPort *value, uint32_t length, const uint8_t *buffer,
                              uint32_t available, uint32_t *consumed);

/* TarnIsMuxUdpPortValid returns 1: every value is valid. */
uint32_t TarnIsMuxUdpPortValid(const TarnMuxUdpPort *value);

/* TarnPackMuxUdpPortIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackMuxUdpPortIe(const TarnMuxUdpPortIe *ie, uint8_t *buffer, uint32_t available,
                              uint32_t *written);

/* TarnUnpackMuxUdpPortIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackMuxUdpPortIe(const void *container, TarnMuxUdpPortIe *ie, const uint8_t *buffer,
                                uint32_t available, uint32_t *consumed);

/* TarnIsMuxUdpPortIeValid returns 1 if ie has tag 174 and a valid value, and 0 otherwise. */
uint32_t TarnIsMuxUdpPortIeValid(const void *container, const TarnMuxUdpPortIe *ie);

/* ---- RoutingBasis, tag 175 ----------------------------------------------------------------------
 * Identity on which the intra-domain NAS node selection is based.
 *
 * A code word, any value; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnRoutingBasisTag = 175 };

typedef uint32_t TarnRoutingBasis;

typedef struct TarnRoutingBasisIe {
    TarnIe ie;
    TarnRoutingBasis value;
} TarnRoutingBasisIe;

/* TarnSizeOfRoutingBasis returns 2. */
uint32_t TarnSizeOfRoutingBasis(const TarnRoutingBasis *value);

/* TarnPackRoutingBasis packs *value and sets *written, returning 1 on success and 0 if fewer than 2
 * bytes are available. */
uint32_t TarnPackRoutingBasis(const TarnRoutingBasis *value, uint8_t *buffer, uint32_t available,
                              uint32_t *written);

/* TarnUnpackRoutingBasis sets *value and *consumed, returning 1 on success and 0 if length is not 2
 * or fewer bytes are available. */
uint32_t TarnUnpackRoutingBasis(TarnRoutingBasis *value, uint32_t length, const uint8_t *buffer,
                                uint32_t available, uint32_t *consumed);

/* TarnIsRoutingBasisValid returns 1: every value is valid. */
uint32_t TarnIsRoutingBasisValid(const TarnRoutingBasis *value);

/* TarnPackRoutingBasisIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackRoutingBasisIe(const TarnRoutingBasisIe *ie, uint8_t *buffer, uint32_t available,
                                uint32_t *written);

/* TarnUnpackRoutingBasisIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackRoutingBasisIe(const void *container, TarnRoutingBasisIe *ie,
                                  const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsRoutingBasisIeValid returns 1 if ie has tag 175 and a valid value, and 0 otherwise. */
uint32_t TarnIsRoutingBasisIeValid(const void *container, const TarnRoutingBasisIe *ie);

/* ---- RoutingParameter, tag 176 ------------------------------------------------------------------
 * Routing parameter of the intra-domain NAS node selection, 10 bits.
 *
 * A uint16_t, 0 to 1023; 2 bytes on the wire, 8 bytes with its header. */

enum { TarnRoutingParameterTag = 176 };

typedef uint16_t TarnRoutingParameter;

typedef struct TarnRoutingParameterIe {
    TarnIe ie;
    TarnRoutingParameter value;
} TarnRoutingParameterIe;

/* TarnSizeOfRoutingParameter returns 2. */
uint32_t TarnSizeOfRoutingParameter(const TarnRoutingParameter *value);

/* TarnPackRoutingParameter packs *value and sets *written, returning 1 on success and 0 if fewer
 * than 2 bytes are available. */
uint32_t TarnPackRoutingParameter(const TarnRoutingParameter *value, uint8_t *buffer,
                                  uint32_t available, uint32_t *written);

/* TarnUnpackRoutingParameter sets *value and *consumed, returning 1 on success and 0 if length is
 * not 2 or fewer bytes are available. */
uint32_t TarnUnpackRoutingParameter(TarnRoutingParameter *value, uint32_t length,
                                    const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsRoutingParameterValid returns 1 if *value is at most 1023, and 0 otherwise. */
uint32_t TarnIsRoutingParameterValid(const TarnRoutingParameter *value);

/* TarnPackRoutingParameterIe packs ie and sets *written, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackRoutingParameterIe(const TarnRoutingParameterIe *ie, uint8_t *buffer,
                                    uint32_t available, uint32_t *written);

/* TarnUnpackRoutingParameterIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackRoutingParameterIe(const void *container, TarnRoutingParameterIe *ie,
                                      const uint8_t *buffer, uint32_t available,
                                      uint32_t *consumed);

/* TarnIsRoutingParameterIeValid returns 1 if ie has tag 176 and a valid value, and 0 otherwise. */
uint32_t TarnIsRoutingParameterIeValid(const void *container, const TarnRoutingParameterIe *ie);

/* ---- BitRate, item tag 31 -----------------------------------------------------------------------
 * One bit rate of BitRates, bit/s.
 *
 * A uint32_t, any value; 4 bytes on the wire, 10 bytes with its header. It travels only as an item
 * of BitRates. */

typedef uint32_t TarnBitRate;

/* TarnSizeOfBitRate returns 4. */
uint32_t TarnSizeOfBitRate(const TarnBitRate *value);

/* TarnPackBitRate packs *value and sets *written, returning 1 on success and 0 if fewer than 4
 * bytes are available. */
uint32_t TarnPackBitRate(const TarnBitRate *value, uint8_t *buffer, uint32_t available,
                         uint32_t *written);

/* TarnUnpackBitRate sets *value and *consumed, returning 1 on success and 0 if length is not 4 or
 * fewer bytes are available. */
uint32_t TarnUnpackBitRate(TarnBitRate *value, uint32_t length, const uint8_t *buffer,
                           uint32_t available, uint32_t *consumed);

/* TarnIsBitRateValid returns 1: every value is valid. */
uint32_t TarnIsBitRateValid(const TarnBitRate *value);

/* ---- PdpTypeInfo, item tag 46 -------------------------------------------------------------------
 * One PDP type of PdpTypeInfoList.
 *
 * A code word, any value; 2 bytes on the wire, 8 bytes with its header. It travels only as an item
 * of PdpTypeInfoList. */

typedef uint32_t TarnPdpTypeInfo;

/* TarnSizeOfPdpTypeInfo returns 2. */
uint32_t TarnSizeOfPdpTypeInfo(const TarnPdpTypeInfo *value);

/* TarnPackPdpTypeInfo packs *value and sets *written, returning 1 on success and 0 if fewer than 2
 * bytes are available. */
uint32_t TarnPackPdpTypeInfo(const TarnPdpTypeInfo *value, uint8_t *buffer, uint32_t available,
                             uint32_t *written);

/* TarnUnpackPdpTypeInfo sets *value and *consumed, returning 1 on success and 0 if length is not 2
 * or fewer bytes are available. */
uint32_t TarnUnpackPdpTypeInfo(TarnPdpTypeInfo *value, uint32_t length, const uint8_t *buffer,
                               uint32_t available, uint32_t *consumed);

/* TarnIsPdpTypeInfoValid returns 1: every value is valid. */
uint32_t TarnIsPdpTypeInfoValid(const TarnPdpTypeInfo *value);

/* ---- IpAddressByte, item tag 61 -----------------------------------------------------------------
 * One byte of an IpAddress.
 *
 * A uint8_t, any value; 1 byte on the wire, 7 bytes with its header. It travels only as an item of
 * IpAddress. */

typedef uint8_t TarnIpAddressByte;

/* TarnSizeOfIpAddressByte returns 1. */
uint32_t TarnSizeOfIpAddressByte(const TarnIpAddressByte *value);

/* TarnPackIpAddressByte packs *value and sets *written, returning 1 on success and 0 if fewer than
 * 1 byte are available. */
uint32_t TarnPackIpAddressByte(const TarnIpAddressByte *value, uint8_t *buffer, uint32_t available,
                               uint32_t *written);

/* TarnUnpackIpAddressByte sets *value and *consumed, returning 1 on success and 0 if length is not
 * 1 or fewer bytes are available. */
uint32_t TarnUnpackIpAddressByte(TarnIpAddressByte *value, uint32_t length, const uint8_t *buffer,
                                 uint32_t available, uint32_t *consumed);

/* TarnIsIpAddressByteValid returns 1: every value is valid. */
uint32_t TarnIsIpAddressByteValid(const TarnIpAddressByte *value);

/* ---- TransactionId, no tag ----------------------------------------------------------------------
 * Transaction identifier.
 *
 * A uint16_t, any value; 2 bytes on the wire. It has no tag: no IE, message or other type carries
 * it. */

typedef uint16_t TarnTransactionId;

/* TarnSizeOfTransactionId returns 2. */
uint32_t TarnSizeOfTransactionId(const TarnTransactionId *value);

/* TarnPackTransactionId packs *value and sets *written, returning 1 on success and 0 if fewer than
 * 2 bytes are available. */
uint32_t TarnPackTransactionId(const TarnTransactionId *value, uint8_t *buffer, uint32_t available,
                               uint32_t *written);

/* TarnUnpackTransactionId sets *value and *consumed, returning 1 on success and 0 if length is not
 * 2 or fewer bytes are available. */
uint32_t TarnUnpackTransactionId(TarnTransactionId *value, uint32_t length, const uint8_t *buffer,
                                 uint32_t available, uint32_t *consumed);

/* TarnIsTransactionIdValid returns 1: every value is valid. */
uint32_t TarnIsTransactionIdValid(const TarnTransactionId *value);

/* ---- DataVolReporting, no tag -------------------------------------------------------------------
 * Data volume report.
 *
 * A uint32_t, any value; 4 bytes on the wire. It has no tag: no IE, message or other type carries
 * it. */

typedef uint32_t TarnDataVolReporting;

/* TarnSizeOfDataVolReporting returns 4. */
uint32_t TarnSizeOfDataVolReporting(const TarnDataVolReporting *value);

/* TarnPackDataVolReporting packs *value and sets *written, returning 1 on success and 0 if fewer
 * than 4 bytes are available. */
uint32_t TarnPackDataVolReporting(const TarnDataVolReporting *value, uint8_t *buffer,
                                  uint32_t available, uint32_t *written);

/* TarnUnpackDataVolReporting sets *value and *consumed, returning 1 on success and 0 if length is
 * not 4 or fewer bytes are available. */
uint32_t TarnUnpackDataVolReporting(TarnDataVolReporting *value, uint32_t length,
                                    const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsDataVolReportingValid returns 1: every value is valid. */
uint32_t TarnIsDataVolReportingValid(const TarnDataVolReporting *value);

/* ==== Byte strings ============================================================================ */

/* ---- NasMsg, tag 7 ------------------------------------------------------------------------------
 * NAS message, passed through (NAS-PDU).
 *
 * A byte string of 1 to 4095 bytes; 7 to 4101 bytes on the wire with its header. */

enum { TarnNasMsgTag = 7 };

typedef struct TarnNasMsg {
    uint32_t length;
    uint8_t bytes[4096];
} TarnNasMsg;

typedef struct TarnNasMsgIe {
    TarnIe ie;
    TarnNasMsg value;
} TarnNasMsgIe;

/* TarnSizeOfNasMsg returns the stored length. */
uint32_t TarnSizeOfNasMsg(const TarnNasMsg *value);

/* TarnPackNasMsg packs *value and sets *written, returning 1 on success and 0 if it does not fit or
 * its length is above 4096. */
uint32_t TarnPackNasMsg(const TarnNasMsg *value, uint8_t *buffer, uint32_t available,
                        uint32_t *written);

/* TarnUnpackNasMsg sets *value and *consumed, returning 1 on success and 0 if length is above 4096
 * or fewer bytes are available. */
uint32_t TarnUnpackNasMsg(TarnNasMsg *value, uint32_t length, const uint8_t *buffer,
                          uint32_t available, uint32_t *consumed);

/* TarnIsNasMsgValid returns 1 if the length is 1 to 4095, and 0 otherwise. */
uint32_t TarnIsNasMsgValid(const TarnNasMsg *value);

/* TarnPackNasMsgIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackNasMsgIe(const TarnNasMsgIe *ie, uint8_t *buffer, uint32_t available,
                          uint32_t *written);

/* TarnUnpackNasMsgIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackNasMsgIe(const void *container, TarnNasMsgIe *ie, const uint8_t *buffer,
                            uint32_t available, uint32_t *consumed);

/* TarnIsNasMsgIeValid returns 1 if ie has tag 7 and a valid value, and 0 otherwise. */
uint32_t TarnIsNasMsgIeValid(const void *container, const TarnNasMsgIe *ie);

/* ---- IntProtKey, tag 13 -------------------------------------------------------------------------
 * Integrity protection key (IK).
 *
 * A byte string of 16 bytes; 22 bytes on the wire with its header. */

enum { TarnIntProtKeyTag = 13 };

typedef struct TarnIntProtKey {
    uint32_t length;
    uint8_t bytes[16];
} TarnIntProtKey;

typedef struct TarnIntProtKeyIe {
    TarnIe ie;
    TarnIntProtKey value;
} TarnIntProtKeyIe;

/* TarnSizeOfIntProtKey returns the stored length. */
uint32_t TarnSizeOfIntProtKey(const TarnIntProtKey *value);

/* TarnPackIntProtKey packs *value and sets *written, returning 1 on success and 0 if it does not
 * fit or its length is above 16. */
uint32_t TarnPackIntProtKey(const TarnIntProtKey *value, uint8_t *buffer, uint32_t available,
                            uint32_t *written);

/* TarnUnpackIntProtKey sets *value and *consumed, returning 1 on success and 0 if length is above
 * 16 or fewer bytes are available. */
uint32_t TarnUnpackIntProtKey(TarnIntProtKey *value, uint32_t length, const uint8_t *buffer,
                              uint32_t available, uint32_t *consumed);

/* TarnIsIntProtKeyValid returns 1 if the length is 16, and 0 otherwise. */
uint32_t TarnIsIntProtKeyValid(const TarnIntProtKey *value);

/* TarnPackIntProtKeyIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackIntProtKeyIe(const TarnIntProtKeyIe *ie, uint8_t *buffer, uint32_t available,
                              uint32_t *written);

/* TarnUnpackIntProtKeyIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackIntProtKeyIe(const void *container, TarnIntProtKeyIe *ie, const uint8_t *buffer,
                                uint32_t available, uint32_t *consumed);

/* TarnIsIntProtKeyIeValid returns 1 if ie has tag 13 and a valid value, and 0 otherwise. */
uint32_t TarnIsIntProtKeyIeValid(const void *container, const TarnIntProtKeyIe *ie);

/* ---- EncryptKey, tag 16 -------------------------------------------------------------------------
 * Encryption key (CK).
 *
 * A byte string of 16 bytes; 22 bytes on the wire with its header. */

enum { TarnEncryptKeyTag = 16 };

typedef struct TarnEncryptKey {
    uint32_t length;
    uint8_t bytes[16];
} TarnEncryptKey;

typedef struct TarnEncryptKeyIe {
    TarnIe ie;
    TarnEncryptKey value;
} TarnEncryptKeyIe;

/* TarnSizeOfEncryptKey returns the stored length. */
uint32_t TarnSizeOfEncryptKey(const TarnEncryptKey *value);

/* TarnPackEncryptKey packs *value and sets *written, returning 1 on success and 0 if it does not
 * fit or its length is above 16. */
uint32_t TarnPackEncryptKey(const TarnEncryptKey *value, uint8_t *buffer, uint32_t available,
                            uint32_t *written);

/* TarnUnpackEncryptKey sets *value and *consumed, returning 1 on success and 0 if length is above
 * 16 or fewer bytes are available. */
uint32_t TarnUnpackEncryptKey(TarnEncryptKey *value, uint32_t length, const uint8_t *buffer,
                              uint32_t available, uint32_t *consumed);

/* TarnIsEncryptKeyValid returns 1 if the length is 16, and 0 otherwise. */
uint32_t TarnIsEncryptKeyValid(const TarnEncryptKey *value);

/* TarnPackEncryptKeyIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackEncryptKeyIe(const TarnEncryptKeyIe *ie, uint8_t *buffer, uint32_t available,
                              uint32_t *written);

/* TarnUnpackEncryptKeyIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackEncryptKeyIe(const void *container, TarnEncryptKeyIe *ie, const uint8_t *buffer,
                                uint32_t available, uint32_t *consumed);

/* TarnIsEncryptKeyIeValid returns 1 if ie has tag 16 and a valid value, and 0 otherwise. */
uint32_t TarnIsEncryptKeyIeValid(const void *container, const TarnEncryptKeyIe *ie);

/* ---- TempUeIdValue, tag 79 ----------------------------------------------------------------------
 * Temporary UE identity (TMSI or P-TMSI).
 *
 * A byte string of 4 bytes; 10 bytes on the wire with its header. */

enum { TarnTempUeIdValueTag = 79 };

typedef struct TarnTempUeIdValue {
    uint32_t length;
    uint8_t bytes[4];
} TarnTempUeIdValue;

typedef struct TarnTempUeIdValueIe {
    TarnIe ie;
    TarnTempUeIdValue value;
} TarnTempUeIdValueIe;

/* TarnSizeOfTempUeIdValue returns the stored length. */
uint32_t TarnSizeOfTempUeIdValue(const TarnTempUeIdValue *value);

/* TarnPackTempUeIdValue packs *value and sets *written, returning 1 on success and 0 if it does not
 * fit or its length is above 4. */
uint32_t TarnPackTempUeIdValue(const TarnTempUeIdValue *value, uint8_t *buffer, uint32_t available,
                               uint32_t *written);

/* TarnUnpackTempUeIdValue sets *value and *consumed, returning 1 on success and 0 if length is
 * above 4 or fewer bytes are available. */
uint32_t TarnUnpackTempUeIdValue(TarnTempUeIdValue *value, uint32_t length, const uint8_t *buffer,
                                 uint32_t available, uint32_t *consumed);

/* TarnIsTempUeIdValueValid returns 1 if the length is 4, and 0 otherwise. */
uint32_t TarnIsTempUeIdValueValid(const TarnTempUeIdValue *value);

/* TarnPackTempUeIdValueIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackTempUeIdValueIe(const TarnTempUeIdValueIe *ie, uint8_t *buffer, uint32_t available,
                                 uint32_t *written);

/* TarnUnpackTempUeIdValueIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackTempUeIdValueIe(const void *container, TarnTempUeIdValueIe *ie,
                                   const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsTempUeIdValueIeValid returns 1 if ie has tag 79 and a valid value, and 0 otherwise. */
uint32_t TarnIsTempUeIdValueIeValid(const void *container, const TarnTempUeIdValueIe *ie);

/* ---- MasterKey, tag 85 --------------------------------------------------------------------------
 * SRTP master key.
 *
 * A byte string of 0 to 16 bytes; 6 to 22 bytes on the wire with its header. */

enum { TarnMasterKeyTag = 85 };

typedef struct TarnMasterKey {
    uint32_t length;
    uint8_t bytes[16];
} TarnMasterKey;

typedef struct TarnMasterKeyIe {
    TarnIe ie;
    TarnMasterKey value;
} TarnMasterKeyIe;

/* TarnSizeOfMasterKey returns the stored length. */
uint32_t TarnSizeOfMasterKey(const TarnMasterKey *value);

/* TarnPackMasterKey packs *value and sets *written, returning 1 on success and 0 if it does not fit
 * or its length is above 16. */
uint32_t TarnPackMasterKey(const TarnMasterKey *value, uint8_t *buffer, uint32_t available,
                           uint32_t *written);

/* TarnUnpackMasterKey sets *value and *consumed, returning 1 on success and 0 if length is above 16
 * or fewer bytes are available. */
uint32_t TarnUnpackMasterKey(TarnMasterKey *value, uint32_t length, const uint8_t *buffer,
                             uint32_t available, uint32_t *consumed);

/* TarnIsMasterKeyValid returns 1 if the length is at most 16, and 0 otherwise. */
uint32_t TarnIsMasterKeyValid(const TarnMasterKey *value);

/* TarnPackMasterKeyIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackMasterKeyIe(const TarnMasterKeyIe *ie, uint8_t *buffer, uint32_t available,
                             uint32_t *written);

/* TarnUnpackMasterKeyIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackMasterKeyIe(const void *container, TarnMasterKeyIe *ie, const uint8_t *buffer,
                               uint32_t available, uint32_t *consumed);

/* TarnIsMasterKeyIeValid returns 1 if ie has tag 85 and a valid value, and 0 otherwise. */
uint32_t TarnIsMasterKeyIeValid(const void *container, const TarnMasterKeyIe *ie);

/* ---- MasterSalt, tag 86 -------------------------------------------------------------------------
 * SRTP master salt.
 *
 * A byte string of 0 to 14 bytes; 6 to 20 bytes on the wire with its header. */

enum { TarnMasterSaltTag = 86 };

typedef struct TarnMasterSalt {
    uint32_t length;
    uint8_t bytes[14];
} TarnMasterSalt;

typedef struct TarnMasterSaltIe {
    TarnIe ie;
    TarnMasterSalt value;
} TarnMasterSaltIe;

/* TarnSizeOfMasterSalt returns the stored length. */
uint32_t TarnSizeOfMasterSalt(const TarnMasterSalt *value);

/* TarnPackMasterSalt packs *value and sets *written, returning 1 on success and 0 if it does not
 * fit or its length is above 14. */
uint32_t TarnPackMasterSalt(const TarnMasterSalt *value, uint8_t *buffer, uint32_t available,
                            uint32_t *written);

/* TarnUnpackMasterSalt sets *value and *consumed, returning 1 on success and 0 if length is above
 * 14 or fewer bytes are available. */
uint32_t TarnUnpackMasterSalt(TarnMasterSalt *value, uint32_t length, const uint8_t *buffer,
                              uint32_t available, uint32_t *consumed);

/* TarnIsMasterSaltValid returns 1 if the length is at most 14, and 0 otherwise. */
uint32_t TarnIsMasterSaltValid(const TarnMasterSalt *value);

/* TarnPackMasterSaltIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackMasterSaltIe(const TarnMasterSaltIe *ie, uint8_t *buffer, uint32_t available,
                              uint32_t *written);

/* TarnUnpackMasterSaltIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackMasterSaltIe(const void *container, TarnMasterSaltIe *ie, const uint8_t *buffer,
                                uint32_t available, uint32_t *consumed);

/* TarnIsMasterSaltIeValid returns 1 if ie has tag 86 and a valid value, and 0 otherwise. */
uint32_t TarnIsMasterSaltIeValid(const void *container, const TarnMasterSaltIe *ie);

/* ---- NasUeId, tag 92 ----------------------------------------------------------------------------
 * Permanent NAS UE identity.
 *
 * A byte string of 3 to 8 bytes; 9 to 14 bytes on the wire with its header. */

enum { TarnNasUeIdTag = 92 };

typedef struct TarnNasUeId {
    uint32_t length;
    uint8_t bytes[8];
} TarnNasUeId;

typedef struct TarnNasUeIdIe {
    TarnIe ie;
    TarnNasUeId value;
} TarnNasUeIdIe;

/* TarnSizeOfNasUeId returns the stored length. */
uint32_t TarnSizeOfNasUeId(const TarnNasUeId *value);

/* TarnPackNasUeId packs *value and sets *written, returning 1 on success and 0 if it does not fit
 * or its length is above 8. */
uint32_t TarnPackNasUeId(const TarnNasUeId *value, uint8_t *buffer, uint32_t available,
                         uint32_t *written);

/* TarnUnpackNasUeId sets *value and *consumed, returning 1 on success and 0 if length is above 8 or
 * fewer bytes are available. */
uint32_t TarnUnpackNasUeId(TarnNasUeId *value, uint32_t length, const uint8_t *buffer,
                           uint32_t available, uint32_t *consumed);

/* TarnIsNasUeIdValid returns 1 if the length is 3 to 8, and 0 otherwise. */
uint32_t TarnIsNasUeIdValid(const TarnNasUeId *value);

/* TarnPackNasUeIdIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackNasUeIdIe(const TarnNasUeIdIe *ie, uint8_t *buffer, uint32_t available,
                           uint32_t *written);

/* TarnUnpackNasUeIdIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackNasUeIdIe(const void *container, TarnNasUeIdIe *ie, const uint8_t *buffer,
                             uint32_t available, uint32_t *consumed);

/* TarnIsNasUeIdIeValid returns 1 if ie has tag 92 and a valid value, and 0 otherwise. */
uint32_t TarnIsNasUeIdIeValid(const void *container, const TarnNasUeIdIe *ie);

/* ---- PLMNId, tag 108 ----------------------------------------------------------------------------
 * PLMN identity.
 *
 * A byte string of 3 bytes; 9 bytes on the wire with its header. */

enum { TarnPLMNIdTag = 108 };

typedef struct TarnPLMNId {
    uint32_t length;
    uint8_t bytes[3];
} TarnPLMNId;

typedef struct TarnPLMNIdIe {
    TarnIe ie;
    TarnPLMNId value;
} TarnPLMNIdIe;

/* TarnSizeOfPLMNId returns the stored length. */
uint32_t TarnSizeOfPLMNId(const TarnPLMNId *value);

/* TarnPackPLMNId packs *value and sets *written, returning 1 on success and 0 if it does not fit or
 * its length is above 3. */
uint32_t TarnPackPLMNId(const TarnPLMNId *value, uint8_t *buffer, uint32_t available,
                        uint32_t *written);

/* TarnUnpackPLMNId sets *value and *consumed, returning 1 on success and 0 if length is above 3 or
 * fewer bytes are available. */
uint32_t TarnUnpackPLMNId(TarnPLMNId *value, uint32_t length, const uint8_t *buffer,
                          uint32_t available, uint32_t *consumed);

/* TarnIsPLMNIdValid returns 1 if the length is 3, and 0 otherwise. */
uint32_t TarnIsPLMNIdValid(const TarnPLMNId *value);

/* TarnPackPLMNIdIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackPLMNIdIe(const TarnPLMNIdIe *ie, uint8_t *buffer, uint32_t available,
                          uint32_t *written);

/* TarnUnpackPLMNIdIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackPLMNIdIe(const void *container, TarnPLMNIdIe *ie, const uint8_t *buffer,
                            uint32_t available, uint32_t *consumed);

/* TarnIsPLMNIdIeValid returns 1 if ie has tag 108 and a valid value, and 0 otherwise. */
uint32_t TarnIsPLMNIdIeValid(const void *container, const TarnPLMNIdIe *ie);

/* ---- LAC, tag 109 -------------------------------------------------------------------------------
 * Location area code (LAC), a 2-byte string and not a number.
 *
 * A byte string of 2 bytes; 8 bytes on the wire with its header. */

enum { TarnLACTag = 109 };

typedef struct TarnLAC {
    uint32_t length;
    uint8_t bytes[2];
} TarnLAC;

typedef struct TarnLACIe {
    TarnIe ie;
    TarnLAC value;
} TarnLACIe;

/* TarnSizeOfLAC returns the stored length. */
uint32_t TarnSizeOfLAC(const TarnLAC *value);

/* TarnPackLAC packs *value and sets *written, returning 1 on success and 0 if it does not fit or
 * its length is above 2. */
uint32_t TarnPackLAC(const TarnLAC *value, uint8_t *buffer, uint32_t available, uint32_t *written);

/* TarnUnpackLAC sets *value and *consumed, returning 1 on success and 0 if length is above 2 or
 * fewer bytes are available. */
uint32_t TarnUnpackLAC(TarnLAC *value, uint32_t length, const uint8_t *buffer, uint32_t available,
                       uint32_t *consumed);

/* TarnIsLACValid returns 1 if the length is 2, and 0 otherwise. */
uint32_t TarnIsLACValid(const TarnLAC *value);

/* TarnPackLACIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackLACIe(const TarnLACIe *ie, uint8_t *buffer, uint32_t available, uint32_t *written);

/* TarnUnpackLACIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackLACIe(const void *container, TarnLACIe *ie, const uint8_t *buffer,
                         uint32_t available, uint32_t *consumed);

/* TarnIsLACIeValid returns 1 if ie has tag 109 and a valid value, and 0 otherwise. */
uint32_t TarnIsLACIeValid(const void *container, const TarnLACIe *ie);

/* ---- CI, tag 113 --------------------------------------------------------------------------------
 * Cell identity (CI), a 2-byte string and not a number.
 *
 * A byte string of 2 bytes; 8 bytes on the wire with its header. */

enum { TarnCITag = 113 };

typedef struct TarnCI {
    uint32_t length;
    uint8_t bytes[2];
} TarnCI;

typedef struct TarnCIIe {
    TarnIe ie;
    TarnCI value;
} TarnCIIe;

/* TarnSizeOfCI returns the stored length. */
uint32_t TarnSizeOfCI(const TarnCI *value);

/* TarnPackCI packs *value and sets *written, returning 1 on success and 0 if it does not fit or its
 * length is above 2. */
uint32_t TarnPackCI(const TarnCI *value, uint8_t *buffer, uint32_t available, uint32_t *written);

/* TarnUnpackCI sets *value and *consumed, returning 1 on success and 0 if length is above 2 or
 * fewer bytes are available. */
uint32_t TarnUnpackCI(TarnCI *value, uint32_t length, const uint8_t *buffer, uint32_t available,
                      uint32_t *consumed);

/* TarnIsCIValid returns 1 if the length is 2, and 0 otherwise. */
uint32_t TarnIsCIValid(const TarnCI *value);

/* TarnPackCIIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackCIIe(const TarnCIIe *ie, uint8_t *buffer, uint32_t available, uint32_t *written);

/* TarnUnpackCIIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackCIIe(const void *container, TarnCIIe *ie, const uint8_t *buffer,
                        uint32_t available, uint32_t *consumed);

/* TarnIsCIIeValid returns 1 if ie has tag 113 and a valid value, and 0 otherwise. */
uint32_t TarnIsCIIeValid(const void *container, const TarnCIIe *ie);

/* ---- GsmClassmark2, tag 114 ---------------------------------------------------------------------
 * GSM mobile station classmark 2.
 *
 * A byte string of 0 to 5 bytes; 6 to 11 bytes on the wire with its header. */

enum { TarnGsmClassmark2Tag = 114 };

typedef struct TarnGsmClassmark2 {
    uint32_t length;
    uint8_t bytes[5];
} TarnGsmClassmark2;

typedef struct TarnGsmClassmark2Ie {
    TarnIe ie;
    TarnGsmClassmark2 value;
} TarnGsmClassmark2Ie;

/* TarnSizeOfGsmClassmark2 returns the stored length. */
uint32_t TarnSizeOfGsmClassmark2(const TarnGsmClassmark2 *value);

/* TarnPackGsmClassmark2 packs *value and sets *written, returning 1 on success and 0 if it does not
 * fit or its length is above 5. */
uint32_t TarnPackGsmClassmark2(const TarnGsmClassmark2 *value, uint8_t *buffer, uint32_t available,
                               uint32_t *written);

/* TarnUnpackGsmClassmark2 sets *value and *consumed, returning 1 on success and 0 if length is
 * above 5 or fewer bytes are available. */
uint32_t TarnUnpackGsmClassmark2(TarnGsmClassmark2 *value, uint32_t length, const uint8_t *buffer,
                                 uint32_t available, uint32_t *consumed);

/* TarnIsGsmClassmark2Valid returns 1 if the length is at most 5, and 0 otherwise. */
uint32_t TarnIsGsmClassmark2Valid(const TarnGsmClassmark2 *value);

/* TarnPackGsmClassmark2Ie packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackGsmClassmark2Ie(const TarnGsmClassmark2Ie *ie, uint8_t *buffer, uint32_t available,
                                 uint32_t *written);

/* TarnUnpackGsmClassmark2Ie sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackGsmClassmark2Ie(const void *container, TarnGsmClassmark2Ie *ie,
                                   const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsGsmClassmark2IeValid returns 1 if ie has tag 114 and a valid value, and 0 otherwise. */
uint32_t TarnIsGsmClassmark2IeValid(const void *container, const TarnGsmClassmark2Ie *ie);

/* ---- GsmClassmark3, tag 115 ---------------------------------------------------------------------
 * GSM mobile station classmark 3.
 *
 * A byte string of 1 to 32 bytes; 7 to 38 bytes on the wire with its header. */

enum { TarnGsmClassmark3Tag = 115 };

typedef struct TarnGsmClassmark3 {
    uint32_t length;
    uint8_t bytes[32];
} TarnGsmClassmark3;

typedef struct TarnGsmClassmark3Ie {
    TarnIe ie;
    TarnGsmClassmark3 value;
} TarnGsmClassmark3Ie;

/* TarnSizeOfGsmClassmark3 returns the stored length. */
uint32_t TarnSizeOfGsmClassmark3(const TarnGsmClassmark3 *value);

/* TarnPackGsmClassmark3 packs *value and sets *written, returning 1 on success and 0 if it does not
 * fit or its length is above 32. */
uint32_t TarnPackGsmClassmark3(const TarnGsmClassmark3 *value, uint8_t *buffer, uint32_t available,
                               uint32_t *written);

/* TarnUnpackGsmClassmark3 sets *value and *consumed, returning 1 on success and 0 if length is
 * above 32 or fewer bytes are available. */
uint32_t TarnUnpackGsmClassmark3(TarnGsmClassmark3 *value, uint32_t length, const uint8_t *buffer,
                                 uint32_t available, uint32_t *consumed);

/* TarnIsGsmClassmark3Valid returns 1 if the length is 1 to 32, and 0 otherwise. */
uint32_t TarnIsGsmClassmark3Valid(const TarnGsmClassmark3 *value);

/* TarnPackGsmClassmark3Ie packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackGsmClassmark3Ie(const TarnGsmClassmark3Ie *ie, uint8_t *buffer, uint32_t available,
                                 uint32_t *written);

/* TarnUnpackGsmClassmark3Ie sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackGsmClassmark3Ie(const void *container, TarnGsmClassmark3Ie *ie,
                                   const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsGsmClassmark3IeValid returns 1 if ie has tag 115 and a valid value, and 0 otherwise. */
uint32_t TarnIsGsmClassmark3IeValid(const void *container, const TarnGsmClassmark3Ie *ie);

/* ---- RrcContainer, tag 117 ----------------------------------------------------------------------
 * RRC container, passed through.
 *
 * A byte string of 0 to 2000 bytes; 6 to 2006 bytes on the wire with its header. */

enum { TarnRrcContainerTag = 117 };

typedef struct TarnRrcContainer {
    uint32_t length;
    uint8_t bytes[2000];
} TarnRrcContainer;

typedef struct TarnRrcContainerIe {
    TarnIe ie;
    TarnRrcContainer value;
} TarnRrcContainerIe;

/* TarnSizeOfRrcContainer returns the stored length. */
uint32_t TarnSizeOfRrcContainer(const TarnRrcContainer *value);

/* TarnPackRrcContainer packs *value and sets *written, returning 1 on success and 0 if it does not
 * fit or its length is above 2000. */
uint32_t TarnPackRrcContainer(const TarnRrcContainer *value, uint8_t *buffer, uint32_t available,
                              uint32_t *written);

/* TarnUnpackRrcContainer sets *value and *consumed, returning 1 on success and 0 if length is above
 * 2000 or fewer bytes are available. */
uint32_t TarnUnpackRrcContainer(TarnRrcContainer *value, uint32_t length, const uint8_t *buffer,
                                uint32_t available, uint32_t *consumed);

/* TarnIsRrcContainerValid returns 1 if the length is at most 2000, and 0 otherwise. */
uint32_t TarnIsRrcContainerValid(const TarnRrcContainer *value);

/* TarnPackRrcContainerIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackRrcContainerIe(const TarnRrcContainerIe *ie, uint8_t *buffer, uint32_t available,
                                uint32_t *written);

/* TarnUnpackRrcContainerIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackRrcContainerIe(const void *container, TarnRrcContainerIe *ie,
                                  const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsRrcContainerIeValid returns 1 if ie has tag 117 and a valid value, and 0 otherwise. */
uint32_t TarnIsRrcContainerIeValid(const void *container, const TarnRrcContainerIe *ie);

/* ---- L3Information, tag 120 ---------------------------------------------------------------------
 * Layer 3 information, passed through.
 *
 * A byte string of 0 to 255 bytes; 6 to 261 bytes on the wire with its header. */

enum { TarnL3InformationTag = 120 };

typedef struct TarnL3Information {
    uint32_t length;
    uint8_t bytes[255];
} TarnL3Information;

typedef struct TarnL3InformationIe {
    TarnIe ie;
    TarnL3Information value;
} TarnL3InformationIe;

/* TarnSizeOfL3Information returns the stored length. */
uint32_t TarnSizeOfL3Information(const TarnL3Information *value);

/* TarnPackL3Information packs *value and sets *written, returning 1 on success and 0 if it does not
 * fit or its length is above 255. */
uint32_t TarnPackL3Information(const TarnL3Information *value, uint8_t *buffer, uint32_t available,
                               uint32_t *written);

/* TarnUnpackL3Information sets *value and *consumed, returning 1 on success and 0 if length is
 * above 255 or fewer bytes are available. */
uint32_t TarnUnpackL3Information(TarnL3Information *value, uint32_t length, const uint8_t *buffer,
                                 uint32_t available, uint32_t *consumed);

/* TarnIsL3InformationValid returns 1 if the length is at most 255, and 0 otherwise. */
uint32_t TarnIsL3InformationValid(const TarnL3Information *value);

/* TarnPackL3InformationIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackL3InformationIe(const TarnL3InformationIe *ie, uint8_t *buffer, uint32_t available,
                                 uint32_t *written);

/* TarnUnpackL3InformationIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackL3InformationIe(const void *container, TarnL3InformationIe *ie,
                                   const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsL3InformationIeValid returns 1 if ie has tag 120 and a valid value, and 0 otherwise. */
uint32_t TarnIsL3InformationIeValid(const void *container, const TarnL3InformationIe *ie);

/* ---- OldBssToNewBssInfo, tag 159 ----------------------------------------------------------------
 * Old BSS to new BSS information, passed through.
 *
 * A byte string of 0 to 255 bytes; 6 to 261 bytes on the wire with its header. */

enum { TarnOldBssToNewBssInfoTag = 159 };

typedef struct TarnOldBssToNewBssInfo {
    uint32_t length;
    uint8_t bytes[255];
} TarnOldBssToNewBssInfo;

typedef struct TarnOldBssToNewBssInfoIe {
    TarnIe ie;
    TarnOldBssToNewBssInfo value;
} TarnOldBssToNewBssInfoIe;

/* TarnSizeOfOldBssToNewBssInfo returns the stored length. */
uint32_t TarnSizeOfOldBssToNewBssInfo(const TarnOldBssToNewBssInfo *value);

/* TarnPackOldBssToNewBssInfo packs *value and sets *written, returning 1 on success and 0 if it
 * does not fit or its length is above 255. */
uint32_t TarnPackOldBssToNewBssInfo(const TarnOldBssToNewBssInfo *value, uint8_t *buffer,
                                    uint32_t available, uint32_t *written);

/* TarnUnpackOldBssToNewBssInfo sets *value and *consumed, returning 1 on success and 0 if length is
 * above 255 or fewer bytes are available. */
uint32_t TarnUnpackOldBssToNewBssInfo(TarnOldBssToNewBssInfo *value, uint32_t length,
                                      const uint8_t *buffer, uint32_t available,
                                      uint32_t *consumed);

/* TarnIsOldBssToNewBssInfoValid returns 1 if the length is at most 255, and 0 otherwise. */
uint32_t TarnIsOldBssToNewBssInfoValid(const TarnOldBssToNewBssInfo *value);

/* TarnPackOldBssToNewBssInfoIe packs ie and sets *written, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackOldBssToNewBssInfoIe(const TarnOldBssToNewBssInfoIe *ie, uint8_t *buffer,
                                      uint32_t available, uint32_t *written);

/* TarnUnpackOldBssToNewBssInfoIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackOldBssToNewBssInfoIe(const void *container, TarnOldBssToNewBssInfoIe *ie,
                                        const uint8_t *buffer, uint32_t available,
                                        uint32_t *consumed);

/* TarnIsOldBssToNewBssInfoIeValid returns 1 if ie has tag 159 and a valid value, and 0
 * otherwise. */
uint32_t TarnIsOldBssToNewBssInfoIeValid(const void *container, const TarnOldBssToNewBssInfoIe *ie);

/* ---- Imsi, tag 169 ------------------------------------------------------------------------------
 * Subscriber identity (IMSI), 16 opaque bytes.
 *
 * A byte string of 16 bytes; 22 bytes on the wire with its header. */

enum { TarnImsiTag = 169 };

typedef struct TarnImsi {
    uint32_t length;
    uint8_t bytes[16];
} TarnImsi;

typedef struct TarnImsiIe {
    TarnIe ie;
    TarnImsi value;
} TarnImsiIe;

/* TarnSizeOfImsi returns the stored length. */
uint32_t TarnSizeOfImsi(const TarnImsi *value);

/* TarnPackImsi packs *value and sets *written, returning 1 on success and 0 if it does not fit or
 * its length is above 16. */
uint32_t TarnPackImsi(const TarnImsi *value, uint8_t *buffer, uint32_t available,
                      uint32_t *written);

/* TarnUnpackImsi sets *value and *consumed, returning 1 on success and 0 if length is above 16 or
 * fewer bytes are available. */
uint32_t TarnUnpackImsi(TarnImsi *value, uint32_t length, const uint8_t *buffer, uint32_t available,
                        uint32_t *consumed);

/* TarnIsImsiValid returns 1 if the length is 16, and 0 otherwise. */
uint32_t TarnIsImsiValid(const TarnImsi *value);

/* TarnPackImsiIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackImsiIe(const TarnImsiIe *ie, uint8_t *buffer, uint32_t available,
                        uint32_t *written);

/* TarnUnpackImsiIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackImsiIe(const void *container, TarnImsiIe *ie, const uint8_t *buffer,
                          uint32_t available, uint32_t *consumed);

/* TarnIsImsiIeValid returns 1 if ie has tag 169 and a valid value, and 0 otherwise. */
uint32_t TarnIsImsiIeValid(const void *container, const TarnImsiIe *ie);

/* ==== Records and lists ======================================================================= */

/* ---- IntProtInfo, tag 11 ------------------------------------------------------------------------
 * Integrity protection information: algorithm and key.
 *
 * A record of IntProtAlgo (tag 12), IntProtKey (tag 13); 36 bytes on the wire with its header. */

enum { TarnIntProtInfoTag = 11 };

typedef struct TarnIntProtInfo {
    TarnIntProtAlgo IntProtAlgo;
    TarnIntProtKey IntProtKey;
} TarnIntProtInfo;

typedef struct TarnIntProtInfoIe {
    TarnIe ie;
    TarnIntProtInfo value;
} TarnIntProtInfoIe;

/* TarnSizeOfIntProtInfo returns the value's bytes on the wire. */
uint32_t TarnSizeOfIntProtInfo(const TarnIntProtInfo *value);

/* TarnPackIntProtInfo packs *value and sets *written, returning 1 on success and 0 if it does not
 * fit or a member does not pack. */
uint32_t TarnPackIntProtInfo(const TarnIntProtInfo *value, uint8_t *buffer, uint32_t available,
                             uint32_t *written);

/* TarnUnpackIntProtInfo sets *value and *consumed, returning 1 on success and 0 if a member is
 * missing or malformed. */
uint32_t TarnUnpackIntProtInfo(TarnIntProtInfo *value, uint32_t length, const uint8_t *buffer,
                               uint32_t available, uint32_t *consumed);

/* TarnIsIntProtInfoValid returns 1 if every member is valid, and 0 otherwise. */
uint32_t TarnIsIntProtInfoValid(const TarnIntProtInfo *value);

/* TarnPackIntProtInfoIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackIntProtInfoIe(const TarnIntProtInfoIe *ie, uint8_t *buffer, uint32_t available,
                               uint32_t *written);

/* TarnUnpackIntProtInfoIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackIntProtInfoIe(const void *container, TarnIntProtInfoIe *ie,
                                 const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsIntProtInfoIeValid returns 1 if ie has tag 11 and a valid value, and 0 otherwise. */
uint32_t TarnIsIntProtInfoIeValid(const void *container, const TarnIntProtInfoIe *ie);

/* ---- EncryptAlgos, tag 15 -----------------------------------------------------------------------
 * Permitted encryption algorithms.
 *
 * A list of 1 to 2 EncryptAlgo, each under tag 17; 14 to 22 bytes on the wire with its header. */

enum { TarnEncryptAlgosTag = 15 };

typedef struct TarnEncryptAlgos {
    uint32_t count;
    TarnEncryptAlgo items[2];
} TarnEncryptAlgos;

typedef struct TarnEncryptAlgosIe {
    TarnIe ie;
    TarnEncryptAlgos value;
} TarnEncryptAlgosIe;

/* TarnSizeOfEncryptAlgos returns the value's bytes on the wire. */
uint32_t TarnSizeOfEncryptAlgos(const TarnEncryptAlgos *value);

/* TarnPackEncryptAlgos packs *value and sets *written, returning 1 on success and 0 if it does not
 * fit, its count is above 2 or an item does not pack. */
uint32_t TarnPackEncryptAlgos(const TarnEncryptAlgos *value, uint8_t *buffer, uint32_t available,
                              uint32_t *written);

/* TarnUnpackEncryptAlgos sets *value and *consumed, returning 1 on success and 0 if an item is
 * malformed or there are more than 2. */
uint32_t TarnUnpackEncryptAlgos(TarnEncryptAlgos *value, uint32_t length, const uint8_t *buffer,
                                uint32_t available, uint32_t *consumed);

/* TarnIsEncryptAlgosValid returns 1 if the count is 1 to 2 and every item is valid, and 0
 * otherwise. */
uint32_t TarnIsEncryptAlgosValid(const TarnEncryptAlgos *value);

/* TarnPackEncryptAlgosIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackEncryptAlgosIe(const TarnEncryptAlgosIe *ie, uint8_t *buffer, uint32_t available,
                                uint32_t *written);

/* TarnUnpackEncryptAlgosIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackEncryptAlgosIe(const void *container, TarnEncryptAlgosIe *ie,
                                  const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsEncryptAlgosIeValid returns 1 if ie has tag 15 and a valid value, and 0 otherwise. */
uint32_t TarnIsEncryptAlgosIeValid(const void *container, const TarnEncryptAlgosIe *ie);

/* ---- EncryptInfo, tag 14 ------------------------------------------------------------------------
 * Encryption information: permitted algorithms and key.
 *
 * A record of EncryptAlgos (tag 15), EncryptKey (tag 16); 42 to 50 bytes on the wire with its
 * header. */

enum { TarnEncryptInfoTag = 14 };

typedef struct TarnEncryptInfo {
    TarnEncryptAlgos EncryptAlgos;
    TarnEncryptKey EncryptKey;
} TarnEncryptInfo;

typedef struct TarnEncryptInfoIe {
    TarnIe ie;
    TarnEncryptInfo value;
} TarnEncryptInfoIe;

/* TarnSizeOfEncryptInfo returns the value's bytes on the wire. */
uint32_t TarnSizeOfEncryptInfo(const TarnEncryptInfo *value);

/* TarnPackEncryptInfo packs *value and sets *written, returning 1 on success and 0 if it does not
 * fit or a member does not pack. */
uint32_t TarnPackEncryptInfo(const TarnEncryptInfo *value, uint8_t *buffer, uint32_t available,
                             uint32_t *written);

/* TarnUnpackEncryptInfo sets *value and *consumed, returning 1 on success and 0 if a member is
 * missing or malformed. */
uint32_t TarnUnpackEncryptInfo(TarnEncryptInfo *value, uint32_t length, const uint8_t *buffer,
                               uint32_t available, uint32_t *consumed);

/* TarnIsEncryptInfoValid returns 1 if every member is valid, and 0 otherwise. */
uint32_t TarnIsEncryptInfoValid(const TarnEncryptInfo *value);

/* TarnPackEncryptInfoIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackEncryptInfoIe(const TarnEncryptInfoIe *ie, uint8_t *buffer, uint32_t available,
                               uint32_t *written);

/* TarnUnpackEncryptInfoIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackEncryptInfoIe(const void *container, TarnEncryptInfoIe *ie,
                                 const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsEncryptInfoIeValid returns 1 if ie has tag 14 and a valid value, and 0 otherwise. */
uint32_t TarnIsEncryptInfoIeValid(const void *container, const TarnEncryptInfoIe *ie);

/* ---- UserPlaneInfo, tag 32 ----------------------------------------------------------------------
 * User plane information: Iu user plane mode and its versions.
 *
 * A record of UserPlaneMode (tag 20), UserPlaneModeVersions (tag 39); 22 bytes on the wire with its
 * header. */

enum { TarnUserPlaneInfoTag = 32 };

typedef struct TarnUserPlaneInfo {
    TarnUserPlaneMode UserPlaneMode;
    TarnUserPlaneModeVersions UserPlaneModeVersions;
} TarnUserPlaneInfo;

typedef struct TarnUserPlaneInfoIe {
    TarnIe ie;
    TarnUserPlaneInfo value;
} TarnUserPlaneInfoIe;

/* TarnSizeOfUserPlaneInfo returns 16. */
uint32_t TarnSizeOfUserPlaneInfo(const TarnUserPlaneInfo *value);

/* TarnPackUserPlaneInfo packs *value and sets *written, returning 1 on success and 0 if it does not
 * fit or a member does not pack. */
uint32_t TarnPackUserPlaneInfo(const TarnUserPlaneInfo *value, uint8_t *buffer, uint32_t available,
                               uint32_t *written);

/* TarnUnpackUserPlaneInfo sets *value and *consumed, returning 1 on success and 0 if a member is
 * missing or malformed. */
uint32_t TarnUnpackUserPlaneInfo(TarnUserPlaneInfo *value, uint32_t length, const uint8_t *buffer,
                                 uint32_t available, uint32_t *consumed);

/* TarnIsUserPlaneInfoValid returns 1 if every member is valid, and 0 otherwise. */
uint32_t TarnIsUserPlaneInfoValid(const TarnUserPlaneInfo *value);

/* TarnPackUserPlaneInfoIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackUserPlaneInfoIe(const TarnUserPlaneInfoIe *ie, uint8_t *buffer, uint32_t available,
                                 uint32_t *written);

/* TarnUnpackUserPlaneInfoIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackUserPlaneInfoIe(const void *container, TarnUserPlaneInfoIe *ie,
                                   const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsUserPlaneInfoIeValid returns 1 if ie has tag 32 and a valid value, and 0 otherwise. */
uint32_t TarnIsUserPlaneInfoIeValid(const void *container, const TarnUserPlaneInfoIe *ie);

/* ---- BitErrRatio, tag 36 ------------------------------------------------------------------------
 * Bit error ratio: mantissa times ten to the minus exponent.
 *
 * A record of Mantissa (tag 37), Exponent (tag 38); 20 bytes on the wire with its header. */

enum { TarnBitErrRatioTag = 36 };

typedef struct TarnBitErrRatio {
    TarnMantissa Mantissa;
    TarnExponent Exponent;
} TarnBitErrRatio;

typedef struct TarnBitErrRatioIe {
    TarnIe ie;
    TarnBitErrRatio value;
} TarnBitErrRatioIe;

/* TarnSizeOfBitErrRatio returns 14. */
uint32_t TarnSizeOfBitErrRatio(const TarnBitErrRatio *value);

/* TarnPackBitErrRatio packs *value and sets *written, returning 1 on success and 0 if it does not
 * fit or a member does not pack. */
uint32_t TarnPackBitErrRatio(const TarnBitErrRatio *value, uint8_t *buffer, uint32_t available,
                             uint32_t *written);

/* TarnUnpackBitErrRatio sets *value and *consumed, returning 1 on success and 0 if a member is
 * missing or malformed. */
uint32_t TarnUnpackBitErrRatio(TarnBitErrRatio *value, uint32_t length, const uint8_t *buffer,
                               uint32_t available, uint32_t *consumed);

/* TarnIsBitErrRatioValid returns 1 if every member is valid, and 0 otherwise. */
uint32_t TarnIsBitErrRatioValid(const TarnBitErrRatio *value);

/* TarnPackBitErrRatioIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackBitErrRatioIe(const TarnBitErrRatioIe *ie, uint8_t *buffer, uint32_t available,
                               uint32_t *written);

/* TarnUnpackBitErrRatioIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackBitErrRatioIe(const void *container, TarnBitErrRatioIe *ie,
                                 const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsBitErrRatioIeValid returns 1 if ie has tag 36 and a valid value, and 0 otherwise. */
uint32_t TarnIsBitErrRatioIeValid(const void *container, const TarnBitErrRatioIe *ie);

/* ---- AllocRetPriority, tag 50 -------------------------------------------------------------------
 * Allocation/retention priority.
 *
 * A record of PriorityLevel (tag 51), PreemptionCapability (tag 52), PreemptionVulnerability (tag
 * 53), QueuingAllowed (tag 54); 37 bytes on the wire with its header. */

enum { TarnAllocRetPriorityTag = 50 };

typedef struct TarnAllocRetPriority {
    TarnPriorityLevel PriorityLevel;
    TarnPreemptionCapability PreemptionCapability;
    TarnPreemptionVulnerability PreemptionVulnerability;
    TarnQueuingAllowed QueuingAllowed;
} TarnAllocRetPriority;

typedef struct TarnAllocRetPriorityIe {
    TarnIe ie;
    TarnAllocRetPriority value;
} TarnAllocRetPriorityIe;

/* TarnSizeOfAllocRetPriority returns 31. */
uint32_t TarnSizeOfAllocRetPriority(const TarnAllocRetPriority *value);

/* TarnPackAllocRetPriority packs *value and sets *written, returning 1 on success and 0 if it does
 * not fit or a member does not pack. */
uint32_t TarnPackAllocRetPriority(const TarnAllocRetPriority *value, uint8_t *buffer,
                                  uint32_t available, uint32_t *written);

/* TarnUnpackAllocRetPriority sets *value and *consumed, returning 1 on success and 0 if a member is
 * missing or malformed. */
uint32_t TarnUnpackAllocRetPriority(TarnAllocRetPriority *value, uint32_t length,
                                    const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsAllocRetPriorityValid returns 1 if every member is valid, and 0 otherwise. */
uint32_t TarnIsAllocRetPriorityValid(const TarnAllocRetPriority *value);

/* TarnPackAllocRetPriorityIe packs ie and sets *written, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackAllocRetPriorityIe(const TarnAllocRetPriorityIe *ie, uint8_t *buffer,
                                    uint32_t available, uint32_t *written);

/* TarnUnpackAllocRetPriorityIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackAllocRetPriorityIe(const void *container, TarnAllocRetPriorityIe *ie,
                                      const uint8_t *buffer, uint32_t available,
                                      uint32_t *consumed);

/* TarnIsAllocRetPriorityIeValid returns 1 if ie has tag 50 and a valid value, and 0 otherwise. */
uint32_t TarnIsAllocRetPriorityIeValid(const void *container, const TarnAllocRetPriorityIe *ie);

/* ---- TempUeId, tag 77 ---------------------------------------------------------------------------
 * Temporary UE identity: type and value.
 *
 * A record of TempUeIdType (tag 78), TempUeIdValue (tag 79); 24 bytes on the wire with its
 * header. */

enum { TarnTempUeIdTag = 77 };

typedef struct TarnTempUeId {
    TarnTempUeIdType TempUeIdType;
    TarnTempUeIdValue TempUeIdValue;
} TarnTempUeId;

typedef struct TarnTempUeIdIe {
    TarnIe ie;
    TarnTempUeId value;
} TarnTempUeIdIe;

/* TarnSizeOfTempUeId returns the value's bytes on the wire. */
uint32_t TarnSizeOfTempUeId(const TarnTempUeId *value);

/* TarnPackTempUeId packs *value and sets *written, returning 1 on success and 0 if it does not fit
 * or a member does not pack. */
uint32_t TarnPackTempUeId(const TarnTempUeId *value, uint8_t *buffer, uint32_t available,
                          uint32_t *written);

/* TarnUnpackTempUeId sets *value and *consumed, returning 1 on success and 0 if a member is missing
 * or malformed. */
uint32_t TarnUnpackTempUeId(TarnTempUeId *value, uint32_t length, const uint8_t *buffer,
                            uint32_t available, uint32_t *consumed);

/* TarnIsTempUeIdValid returns 1 if every member is valid, and 0 otherwise. */
uint32_t TarnIsTempUeIdValid(const TarnTempUeId *value);

/* TarnPackTempUeIdIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackTempUeIdIe(const TarnTempUeIdIe *ie, uint8_t *buffer, uint32_t available,
                            uint32_t *written);

/* TarnUnpackTempUeIdIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackTempUeIdIe(const void *container, TarnTempUeIdIe *ie, const uint8_t *buffer,
                              uint32_t available, uint32_t *consumed);

/* TarnIsTempUeIdIeValid returns 1 if ie has tag 77 and a valid value, and 0 otherwise. */
uint32_t TarnIsTempUeIdIeValid(const void *container, const TarnTempUeIdIe *ie);

/* ---- RtpSecurityInfo, tag 84 --------------------------------------------------------------------
 * SRTP keying material: master key and master salt.
 *
 * A record of MasterKey (tag 85), MasterSalt (tag 86); 18 to 48 bytes on the wire with its
 * header. */

enum { TarnRtpSecurityInfoTag = 84 };

typedef struct TarnRtpSecurityInfo {
    TarnMasterKey MasterKey;
    TarnMasterSalt MasterSalt;
} TarnRtpSecurityInfo;

typedef struct TarnRtpSecurityInfoIe {
    TarnIe ie;
    TarnRtpSecurityInfo value;
} TarnRtpSecurityInfoIe;

/* TarnSizeOfRtpSecurityInfo returns the value's bytes on the wire. */
uint32_t TarnSizeOfRtpSecurityInfo(const TarnRtpSecurityInfo *value);

/* TarnPackRtpSecurityInfo packs *value and sets *written, returning 1 on success and 0 if it does
 * not fit or a member does not pack. */
uint32_t TarnPackRtpSecurityInfo(const TarnRtpSecurityInfo *value, uint8_t *buffer,
                                 uint32_t available, uint32_t *written);

/* TarnUnpackRtpSecurityInfo sets *value and *consumed, returning 1 on success and 0 if a member is
 * missing or malformed. */
uint32_t TarnUnpackRtpSecurityInfo(TarnRtpSecurityInfo *value, uint32_t length,
                                   const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsRtpSecurityInfoValid returns 1 if every member is valid, and 0 otherwise. */
uint32_t TarnIsRtpSecurityInfoValid(const TarnRtpSecurityInfo *value);

/* TarnPackRtpSecurityInfoIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackRtpSecurityInfoIe(const TarnRtpSecurityInfoIe *ie, uint8_t *buffer,
                                   uint32_t available, uint32_t *written);

/* TarnUnpackRtpSecurityInfoIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackRtpSecurityInfoIe(const void *container, TarnRtpSecurityInfoIe *ie,
                                     const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsRtpSecurityInfoIeValid returns 1 if ie has tag 84 and a valid value, and 0 otherwise. */
uint32_t TarnIsRtpSecurityInfoIeValid(const void *container, const TarnRtpSecurityInfoIe *ie);

/* ---- LAI, tag 107 -------------------------------------------------------------------------------
 * Location area identity (LAI): PLMN and location area code.
 *
 * A record of PLMNId (tag 108), LAC (tag 109); 23 bytes on the wire with its header. */

enum { TarnLAITag = 107 };

typedef struct TarnLAI {
    TarnPLMNId PLMNId;
    TarnLAC LAC;
} TarnLAI;

typedef struct TarnLAIIe {
    TarnIe ie;
    TarnLAI value;
} TarnLAIIe;

/* TarnSizeOfLAI returns the value's bytes on the wire. */
uint32_t TarnSizeOfLAI(const TarnLAI *value);

/* TarnPackLAI packs *value and sets *written, returning 1 on success and 0 if it does not fit or a
 * member does not pack. */
uint32_t TarnPackLAI(const TarnLAI *value, uint8_t *buffer, uint32_t available, uint32_t *written);

/* TarnUnpackLAI sets *value and *consumed, returning 1 on success and 0 if a member is missing or
 * malformed. */
uint32_t TarnUnpackLAI(TarnLAI *value, uint32_t length, const uint8_t *buffer, uint32_t available,
                       uint32_t *consumed);

/* TarnIsLAIValid returns 1 if every member is valid, and 0 otherwise. */
uint32_t TarnIsLAIValid(const TarnLAI *value);

/* TarnPackLAIIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackLAIIe(const TarnLAIIe *ie, uint8_t *buffer, uint32_t available, uint32_t *written);

/* TarnUnpackLAIIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackLAIIe(const void *container, TarnLAIIe *ie, const uint8_t *buffer,
                         uint32_t available, uint32_t *consumed);

/* TarnIsLAIIeValid returns 1 if ie has tag 107 and a valid value, and 0 otherwise. */
uint32_t TarnIsLAIIeValid(const void *container, const TarnLAIIe *ie);

/* ---- TargetCGI, tag 112 -------------------------------------------------------------------------
 * Cell global identity (CGI) of the target cell.
 *
 * A record of PLMNId (tag 108), LAC (tag 109), CI (tag 113); 31 bytes on the wire with its
 * header. */

enum { TarnTargetCGITag = 112 };

typedef struct TarnTargetCGI {
    TarnPLMNId PLMNId;
    TarnLAC LAC;
    TarnCI CI;
} TarnTargetCGI;

typedef struct TarnTargetCGIIe {
    TarnIe ie;
    TarnTargetCGI value;
} TarnTargetCGIIe;

/* TarnSizeOfTargetCGI returns the value's bytes on the wire. */
uint32_t TarnSizeOfTargetCGI(const TarnTargetCGI *value);

/* TarnPackTargetCGI packs *value and sets *written, returning 1 on success and 0 if it does not fit
 * or a member does not pack. */
uint32_t TarnPackTargetCGI(const TarnTargetCGI *value, uint8_t *buffer, uint32_t available,
                           uint32_t *written);

/* TarnUnpackTargetCGI sets *value and *consumed, returning 1 on success and 0 if a member is
 * missing or malformed. */
uint32_t TarnUnpackTargetCGI(TarnTargetCGI *value, uint32_t length, const uint8_t *buffer,
                             uint32_t available, uint32_t *consumed);

/* TarnIsTargetCGIValid returns 1 if every member is valid, and 0 otherwise. */
uint32_t TarnIsTargetCGIValid(const TarnTargetCGI *value);

/* TarnPackTargetCGIIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackTargetCGIIe(const TarnTargetCGIIe *ie, uint8_t *buffer, uint32_t available,
                             uint32_t *written);

/* TarnUnpackTargetCGIIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackTargetCGIIe(const void *container, TarnTargetCGIIe *ie, const uint8_t *buffer,
                               uint32_t available, uint32_t *consumed);

/* TarnIsTargetCGIIeValid returns 1 if ie has tag 112 and a valid value, and 0 otherwise. */
uint32_t TarnIsTargetCGIIeValid(const void *container, const TarnTargetCGIIe *ie);

/* ---- AlcapLinkCharacteristics, tag 162 ----------------------------------------------------------
 * ALCAP link characteristics of an AAL2 link.
 *
 * A record of CpsSduMaxBitRate (tag 163), CpsSduMaxSize (tag 164), CpsSduAvgBitRate (tag 165),
 * CpsSduAvgSize (tag 166); 46 bytes on the wire with its header. */

enum { TarnAlcapLinkCharacteristicsTag = 162 };

typedef struct TarnAlcapLinkCharacteristics {
    TarnCpsSduMaxBitRate CpsSduMaxBitRate;
    TarnCpsSduMaxSize CpsSduMaxSize;
    TarnCpsSduAvgBitRate CpsSduAvgBitRate;
    TarnCpsSduAvgSize CpsSduAvgSize;
} TarnAlcapLinkCharacteristics;

typedef struct TarnAlcapLinkCharacteristicsIe {
    TarnIe ie;
    TarnAlcapLinkCharacteristics value;
} TarnAlcapLinkCharacteristicsIe;

/* TarnSizeOfAlcapLinkCharacteristics returns 40. */
uint32_t TarnSizeOfAlcapLinkCharacteristics(const TarnAlcapLinkCharacteristics *value);

/* TarnPackAlcapLinkCharacteristics packs *value and sets *written, returning 1 on success and 0 if
 * it does not fit or a member does not pack. */
uint32_t TarnPackAlcapLinkCharacteristics(const TarnAlcapLinkCharacteristics *value,
                                          uint8_t *buffer, uint32_t available, uint32_t *written);

/* TarnUnpackAlcapLinkCharacteristics sets *value and *consumed, returning 1 on success and 0 if a
 * member is missing or malformed. */
uint32_t TarnUnpackAlcapLinkCharacteristics(TarnAlcapLinkCharacteristics *value, uint32_t length,
                                            const uint8_t *buffer, uint32_t available,
                                            uint32_t *consumed);

/* TarnIsAlcapLinkCharacteristicsValid returns 1 if every member is valid, and 0 otherwise. */
uint32_t TarnIsAlcapLinkCharacteristicsValid(const TarnAlcapLinkCharacteristics *value);

/* TarnPackAlcapLinkCharacteristicsIe packs ie and sets *written, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackAlcapLinkCharacteristicsIe(const TarnAlcapLinkCharacteristicsIe *ie,
                                            uint8_t *buffer, uint32_t available, uint32_t *written);

/* TarnUnpackAlcapLinkCharacteristicsIe sets ie->value and *consumed, returning 1 on success and 0
 * on failure. */
uint32_t TarnUnpackAlcapLinkCharacteristicsIe(const void *container,
                                              TarnAlcapLinkCharacteristicsIe *ie,
                                              const uint8_t *buffer, uint32_t available,
                                              uint32_t *consumed);

/* TarnIsAlcapLinkCharacteristicsIeValid returns 1 if ie has tag 162 and a valid value, and 0
 * otherwise. */
uint32_t TarnIsAlcapLinkCharacteristicsIeValid(const void *container,
                                               const TarnAlcapLinkCharacteristicsIe *ie);

/* ---- Idnns, tag 177 -----------------------------------------------------------------------------
 * Intra-domain NAS node selector (IDNNS).
 *
 * A record of RoutingBasis (tag 175), RoutingParameter (tag 176); 22 bytes on the wire with its
 * header. */

enum { TarnIdnnsTag = 177 };

typedef struct TarnIdnns {
    TarnRoutingBasis RoutingBasis;
    TarnRoutingParameter RoutingParameter;
} TarnIdnns;

typedef struct TarnIdnnsIe {
    TarnIe ie;
    TarnIdnns value;
} TarnIdnnsIe;

/* TarnSizeOfIdnns returns 16. */
uint32_t TarnSizeOfIdnns(const TarnIdnns *value);

/* TarnPackIdnns packs *value and sets *written, returning 1 on success and 0 if it does not fit or
 * a member does not pack. */
uint32_t TarnPackIdnns(const TarnIdnns *value, uint8_t *buffer, uint32_t available,
                       uint32_t *written);

/* TarnUnpackIdnns sets *value and *consumed, returning 1 on success and 0 if a member is missing or
 * malformed. */
uint32_t TarnUnpackIdnns(TarnIdnns *value, uint32_t length, const uint8_t *buffer,
                         uint32_t available, uint32_t *consumed);

/* TarnIsIdnnsValid returns 1 if every member is valid, and 0 otherwise. */
uint32_t TarnIsIdnnsValid(const TarnIdnns *value);

/* TarnPackIdnnsIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackIdnnsIe(const TarnIdnnsIe *ie, uint8_t *buffer, uint32_t available,
                         uint32_t *written);

/* TarnUnpackIdnnsIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackIdnnsIe(const void *container, TarnIdnnsIe *ie, const uint8_t *buffer,
                           uint32_t available, uint32_t *consumed);

/* TarnIsIdnnsIeValid returns 1 if ie has tag 177 and a valid value, and 0 otherwise. */
uint32_t TarnIsIdnnsIeValid(const void *container, const TarnIdnnsIe *ie);

/* ---- RabSetupFailedInfo, item tag 64 ------------------------------------------------------------
 * One RAB that could not be set up, and why.
 *
 * A record of RabId (tag 23), RabSetupFailCause (tag 65); 21 bytes on the wire with its header. It
 * travels only as an item of RabSetupFailedList. */

typedef struct TarnRabSetupFailedInfo {
    TarnRabId RabId;
    TarnRabSetupFailCause RabSetupFailCause;
} TarnRabSetupFailedInfo;

/* TarnSizeOfRabSetupFailedInfo returns 15. */
uint32_t TarnSizeOfRabSetupFailedInfo(const TarnRabSetupFailedInfo *value);

/* TarnPackRabSetupFailedInfo packs *value and sets *written, returning 1 on success and 0 if it
 * does not fit or a member does not pack. */
uint32_t TarnPackRabSetupFailedInfo(const TarnRabSetupFailedInfo *value, uint8_t *buffer,
                                    uint32_t available, uint32_t *written);

/* TarnUnpackRabSetupFailedInfo sets *value and *consumed, returning 1 on success and 0 if a member
 * is missing or malformed. */
uint32_t TarnUnpackRabSetupFailedInfo(TarnRabSetupFailedInfo *value, uint32_t length,
                                      const uint8_t *buffer, uint32_t available,
                                      uint32_t *consumed);

/* TarnIsRabSetupFailedInfoValid returns 1 if every member is valid, and 0 otherwise. */
uint32_t TarnIsRabSetupFailedInfoValid(const TarnRabSetupFailedInfo *value);

/* ---- RabReleaseInfo, item tag 67 ----------------------------------------------------------------
 * One RAB to release, and why.
 *
 * A record of RabId (tag 23), RabReleaseCause (tag 68); 21 bytes on the wire with its header. It
 * travels only as an item of RabReleaseList. */

typedef struct TarnRabReleaseInfo {
    TarnRabId RabId;
    TarnRabReleaseCause RabReleaseCause;
} TarnRabReleaseInfo;

/* TarnSizeOfRabReleaseInfo returns 15. */
uint32_t TarnSizeOfRabReleaseInfo(const TarnRabReleaseInfo *value);

/* TarnPackRabReleaseInfo packs *value and sets *written, returning 1 on success and 0 if it does
 * not fit or a member does not pack. */
uint32_t TarnPackRabReleaseInfo(const TarnRabReleaseInfo *value, uint8_t *buffer,
                                uint32_t available, uint32_t *written);

/* TarnUnpackRabReleaseInfo sets *value and *consumed, returning 1 on success and 0 if a member is
 * missing or malformed. */
uint32_t TarnUnpackRabReleaseInfo(TarnRabReleaseInfo *value, uint32_t length, const uint8_t *buffer,
                                  uint32_t available, uint32_t *consumed);

/* TarnIsRabReleaseInfoValid returns 1 if every member is valid, and 0 otherwise. */
uint32_t TarnIsRabReleaseInfoValid(const TarnRabReleaseInfo *value);

/* ---- RabIdList, tag 167 -------------------------------------------------------------------------
 * RAB identifiers; the items carry the tag of the RabId IE itself.
 *
 * A list of 1 to 3 RabId, each under tag 23; 13 to 27 bytes on the wire with its header. */

enum { TarnRabIdListTag = 167 };

typedef struct TarnRabIdList {
    uint32_t count;
    TarnRabId items[3];
} TarnRabIdList;

typedef struct TarnRabIdListIe {
    TarnIe ie;
    TarnRabIdList value;
} TarnRabIdListIe;

/* TarnSizeOfRabIdList returns the value's bytes on the wire. */
uint32_t TarnSizeOfRabIdList(const TarnRabIdList *value);

/* TarnPackRabIdList packs *value and sets *written, returning 1 on success and 0 if it does not
 * fit, its count is above 3 or an item does not pack. */
uint32_t TarnPackRabIdList(const TarnRabIdList *value, uint8_t *buffer, uint32_t available,
                           uint32_t *written);

/* TarnUnpackRabIdList sets *value and *consumed, returning 1 on success and 0 if an item is
 * malformed or there are more than 3. */
uint32_t TarnUnpackRabIdList(TarnRabIdList *value, uint32_t length, const uint8_t *buffer,
                             uint32_t available, uint32_t *consumed);

/* TarnIsRabIdListValid returns 1 if the count is 1 to 3 and every item is valid, and 0
 * otherwise. */
uint32_t TarnIsRabIdListValid(const TarnRabIdList *value);

/* TarnPackRabIdListIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackRabIdListIe(const TarnRabIdListIe *ie, uint8_t *buffer, uint32_t available,
                             uint32_t *written);

/* TarnUnpackRabIdListIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackRabIdListIe(const void *container, TarnRabIdListIe *ie, const uint8_t *buffer,
                               uint32_t available, uint32_t *consumed);

/* TarnIsRabIdListIeValid returns 1 if ie has tag 167 and a valid value, and 0 otherwise. */
uint32_t TarnIsRabIdListIeValid(const void *container, const TarnRabIdListIe *ie);

/* ---- HandoutRabReleaseInfo, item tag 122 --------------------------------------------------------
 * The RABs of one core network domain to release at a handout.
 *
 * A record of CnDomainId (tag 6), RabIdList (tag 167); 27 to 41 bytes on the wire with its header.
 * It travels only as an item of HandoutRabReleaseList. */

typedef struct TarnHandoutRabReleaseInfo {
    TarnCnDomainId CnDomainId;
    TarnRabIdList RabIdList;
} TarnHandoutRabReleaseInfo;

/* TarnSizeOfHandoutRabReleaseInfo returns the value's bytes on the wire. */
uint32_t TarnSizeOfHandoutRabReleaseInfo(const TarnHandoutRabReleaseInfo *value);

/* TarnPackHandoutRabReleaseInfo packs *value and sets *written, returning 1 on success and 0 if it
 * does not fit or a member does not pack. */
uint32_t TarnPackHandoutRabReleaseInfo(const TarnHandoutRabReleaseInfo *value, uint8_t *buffer,
                                       uint32_t available, uint32_t *written);

/* TarnUnpackHandoutRabReleaseInfo sets *value and *consumed, returning 1 on success and 0 if a
 * member is missing or malformed. */
uint32_t TarnUnpackHandoutRabReleaseInfo(TarnHandoutRabReleaseInfo *value, uint32_t length,
                                         const uint8_t *buffer, uint32_t available,
                                         uint32_t *consumed);

/* TarnIsHandoutRabReleaseInfoValid returns 1 if every member is valid, and 0 otherwise. */
uint32_t TarnIsHandoutRabReleaseInfoValid(const TarnHandoutRabReleaseInfo *value);

/* ---- IpAddress, tag 60 --------------------------------------------------------------------------
 * IPv4 address, four one-byte items, most significant first.
 *
 * A list of 4 IpAddressByte, each under tag 61; 34 bytes on the wire with its header. */

enum { TarnIpAddressTag = 60 };

typedef struct TarnIpAddress {
    uint32_t count;
    TarnIpAddressByte items[4];
} TarnIpAddress;

typedef struct TarnIpAddressIe {
    TarnIe ie;
    TarnIpAddress value;
} TarnIpAddressIe;

/* TarnSizeOfIpAddress returns the value's bytes on the wire. */
uint32_t TarnSizeOfIpAddress(const TarnIpAddress *value);

/* TarnPackIpAddress packs *value and sets *written, returning 1 on success and 0 if it does not
 * fit, its count is above 4 or an item does not pack. */
uint32_t TarnPackIpAddress(const TarnIpAddress *value, uint8_t *buffer, uint32_t available,
                           uint32_t *written);

/* TarnUnpackIpAddress sets *value and *consumed, returning 1 on success and 0 if an item is
 * malformed or there are more than 4. */
uint32_t TarnUnpackIpAddress(TarnIpAddress *value, uint32_t length, const uint8_t *buffer,
                             uint32_t available, uint32_t *consumed);

/* TarnIsIpAddressValid returns 1 if the count is 4 and every item is valid, and 0 otherwise. */
uint32_t TarnIsIpAddressValid(const TarnIpAddress *value);

/* TarnPackIpAddressIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackIpAddressIe(const TarnIpAddressIe *ie, uint8_t *buffer, uint32_t available,
                             uint32_t *written);

/* TarnUnpackIpAddressIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackIpAddressIe(const void *container, TarnIpAddressIe *ie, const uint8_t *buffer,
                               uint32_t available, uint32_t *consumed);

/* TarnIsIpAddressIeValid returns 1 if ie has tag 60 and a valid value, and 0 otherwise. */
uint32_t TarnIsIpAddressIeValid(const void *container, const TarnIpAddressIe *ie);

/* ---- IapTransLayerInfo, no tag ------------------------------------------------------------------
 * Transport layer address and port.
 *
 * A record of IpAddress (tag 60), UdpPort (tag 62); 42 bytes on the wire. It has no tag: no IE,
 * message or other type carries it. */

typedef struct TarnIapTransLayerInfo {
    TarnIpAddress IpAddress;
    TarnUdpPort UdpPort;
} TarnIapTransLayerInfo;

/* TarnSizeOfIapTransLayerInfo returns the value's bytes on the wire. */
uint32_t TarnSizeOfIapTransLayerInfo(const TarnIapTransLayerInfo *value);

/* TarnPackIapTransLayerInfo packs *value and sets *written, returning 1 on success and 0 if it does
 * not fit or a member does not pack. */
uint32_t TarnPackIapTransLayerInfo(const TarnIapTransLayerInfo *value, uint8_t *buffer,
                                   uint32_t available, uint32_t *written);

/* TarnUnpackIapTransLayerInfo sets *value and *consumed, returning 1 on success and 0 if a member
 * is missing or malformed. */
uint32_t TarnUnpackIapTransLayerInfo(TarnIapTransLayerInfo *value, uint32_t length,
                                     const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsIapTransLayerInfoValid returns 1 if every member is valid, and 0 otherwise. */
uint32_t TarnIsIapTransLayerInfoValid(const TarnIapTransLayerInfo *value);

/* ---- BitRates, tag 30 ---------------------------------------------------------------------------
 * Bit rates, bit/s, one for each direction.
 *
 * A list of 0 to 2 BitRate, each under tag 31; 6 to 26 bytes on the wire with its header. */

enum { TarnBitRatesTag = 30 };

typedef struct TarnBitRates {
    uint32_t count;
    TarnBitRate items[2];
} TarnBitRates;

typedef struct TarnBitRatesIe {
    TarnIe ie;
    TarnBitRates value;
} TarnBitRatesIe;

/* TarnSizeOfBitRates returns the value's bytes on the wire. */
uint32_t TarnSizeOfBitRates(const TarnBitRates *value);

/* TarnPackBitRates packs *value and sets *written, returning 1 on success and 0 if it does not fit,
 * its count is above 2 or an item does not pack. */
uint32_t TarnPackBitRates(const TarnBitRates *value, uint8_t *buffer, uint32_t available,
                          uint32_t *written);

/* TarnUnpackBitRates sets *value and *consumed, returning 1 on success and 0 if an item is
 * malformed or there are more than 2. */
uint32_t TarnUnpackBitRates(TarnBitRates *value, uint32_t length, const uint8_t *buffer,
                            uint32_t available, uint32_t *consumed);

/* TarnIsBitRatesValid returns 1 if the count is at most 2 and every item is valid, and 0
 * otherwise. */
uint32_t TarnIsBitRatesValid(const TarnBitRates *value);

/* TarnPackBitRatesIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackBitRatesIe(const TarnBitRatesIe *ie, uint8_t *buffer, uint32_t available,
                            uint32_t *written);

/* TarnUnpackBitRatesIe sets ie->value and *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackBitRatesIe(const void *container, TarnBitRatesIe *ie, const uint8_t *buffer,
                              uint32_t available, uint32_t *consumed);

/* TarnIsBitRatesIeValid returns 1 if ie has tag 30 and a valid value, and 0 otherwise. */
uint32_t TarnIsBitRatesIeValid(const void *container, const TarnBitRatesIe *ie);

/* ---- PdpTypeInfoList, tag 45 --------------------------------------------------------------------
 * PDP type information.
 *
 * A list of 0 to 2 PdpTypeInfo, each under tag 46; 6 to 22 bytes on the wire with its header. */

enum { TarnPdpTypeInfoListTag = 45 };

typedef struct TarnPdpTypeInfoList {
    uint32_t count;
    TarnPdpTypeInfo items[2];
} TarnPdpTypeInfoList;

typedef struct TarnPdpTypeInfoListIe {
    TarnIe ie;
    TarnPdpTypeInfoList value;
} TarnPdpTypeInfoListIe;

/* TarnSizeOfPdpTypeInfoList returns the value's bytes on the wire. */
uint32_t TarnSizeOfPdpTypeInfoList(const TarnPdpTypeInfoList *value);

/* TarnPackPdpTypeInfoList packs *value and sets *written, returning 1 on success and 0 if it does
 * not fit, its count is above 2 or an item does not pack. */
uint32_t TarnPackPdpTypeInfoList(const TarnPdpTypeInfoList *value, uint8_t *buffer,
                                 uint32_t available, uint32_t *written);

/* TarnUnpackPdpTypeInfoList sets *value and *consumed, returning 1 on success and 0 if an item is
 * malformed or there are more than 2. */
uint32_t TarnUnpackPdpTypeInfoList(TarnPdpTypeInfoList *value, uint32_t length,
                                   const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsPdpTypeInfoListValid returns 1 if the count is at most 2 and every item is valid, and 0
 * otherwise. */
uint32_t TarnIsPdpTypeInfoListValid(const TarnPdpTypeInfoList *value);

/* TarnPackPdpTypeInfoListIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackPdpTypeInfoListIe(const TarnPdpTypeInfoListIe *ie, uint8_t *buffer,
                                   uint32_t available, uint32_t *written);

/* TarnUnpackPdpTypeInfoListIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackPdpTypeInfoListIe(const void *container, TarnPdpTypeInfoListIe *ie,
                                     const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsPdpTypeInfoListIeValid returns 1 if ie has tag 45 and a valid value, and 0 otherwise. */
uint32_t TarnIsPdpTypeInfoListIeValid(const void *container, const TarnPdpTypeInfoListIe *ie);

/* ---- RabSetupFailedList, tag 63 -----------------------------------------------------------------
 * RABs that could not be set up.
 *
 * A list of 0 to 3 RabSetupFailedInfo, each under tag 64; 6 to 69 bytes on the wire with its
 * header. */

enum { TarnRabSetupFailedListTag = 63 };

typedef struct TarnRabSetupFailedList {
    uint32_t count;
    TarnRabSetupFailedInfo items[3];
} TarnRabSetupFailedList;

typedef struct TarnRabSetupFailedListIe {
    TarnIe ie;
    TarnRabSetupFailedList value;
} TarnRabSetupFailedListIe;

/* TarnSizeOfRabSetupFailedList returns the value's bytes on the wire. */
uint32_t TarnSizeOfRabSetupFailedList(const TarnRabSetupFailedList *value);

/* TarnPackRabSetupFailedList packs *value and sets *written, returning 1 on success and 0 if it
 * does not fit, its count is above 3 or an item does not pack. */
uint32_t TarnPackRabSetupFailedList(const TarnRabSetupFailedList *value, uint8_t *buffer,
                                    uint32_t available, uint32_t *written);

/* TarnUnpackRabSetupFailedList sets *value and *consumed, returning 1 on success and 0 if an item
 * is malformed or there are more than 3. */
uint32_t TarnUnpackRabSetupFailedList(TarnRabSetupFailedList *value, uint32_t length,
                                      const uint8_t *buffer, uint32_t available,
                                      uint32_t *consumed);

/* TarnIsRabSetupFailedListValid returns 1 if the count is at most 3 and every item is valid, and 0
 * otherwise. */
uint32_t TarnIsRabSetupFailedListValid(const TarnRabSetupFailedList *value);

/* TarnPackRabSetupFailedListIe packs ie and sets *written, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackRabSetupFailedListIe(const TarnRabSetupFailedListIe *ie, uint8_t *buffer,
                                      uint32_t available, uint32_t *written);

/* TarnUnpackRabSetupFailedListIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackRabSetupFailedListIe(const void *container, TarnRabSetupFailedListIe *ie,
                                        const uint8_t *buffer, uint32_t available,
                                        uint32_t *consumed);

/* TarnIsRabSetupFailedListIeValid returns 1 if ie has tag 63 and a valid value, and 0 otherwise. */
uint32_t TarnIsRabSetupFailedListIeValid(const void *container, const TarnRabSetupFailedListIe *ie);

/* ---- RabReleaseList, tag 66 ---------------------------------------------------------------------
 * RABs to release.
 *
 * A list of 0 to 3 RabReleaseInfo, each under tag 67; 6 to 69 bytes on the wire with its header. */

enum { TarnRabReleaseListTag = 66 };

typedef struct TarnRabReleaseList {
    uint32_t count;
    TarnRabReleaseInfo items[3];
} TarnRabReleaseList;

typedef struct TarnRabReleaseListIe {
    TarnIe ie;
    TarnRabReleaseList value;
} TarnRabReleaseListIe;

/* TarnSizeOfRabReleaseList returns the value's bytes on the wire. */
uint32_t TarnSizeOfRabReleaseList(const TarnRabReleaseList *value);

/* TarnPackRabReleaseList packs *value and sets *written, returning 1 on success and 0 if it does
 * not fit, its count is above 3 or an item does not pack. */
uint32_t TarnPackRabReleaseList(const TarnRabReleaseList *value, uint8_t *buffer,
                                uint32_t available, uint32_t *written);

/* TarnUnpackRabReleaseList sets *value and *consumed, returning 1 on success and 0 if an item is
 * malformed or there are more than 3. */
uint32_t TarnUnpackRabReleaseList(TarnRabReleaseList *value, uint32_t length, const uint8_t *buffer,
                                  uint32_t available, uint32_t *consumed);

/* TarnIsRabReleaseListValid returns 1 if the count is at most 3 and every item is valid, and 0
 * otherwise. */
uint32_t TarnIsRabReleaseListValid(const TarnRabReleaseList *value);

/* TarnPackRabReleaseListIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackRabReleaseListIe(const TarnRabReleaseListIe *ie, uint8_t *buffer,
                                  uint32_t available, uint32_t *written);

/* TarnUnpackRabReleaseListIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackRabReleaseListIe(const void *container, TarnRabReleaseListIe *ie,
                                    const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsRabReleaseListIeValid returns 1 if ie has tag 66 and a valid value, and 0 otherwise. */
uint32_t TarnIsRabReleaseListIeValid(const void *container, const TarnRabReleaseListIe *ie);

/* ---- HandoutRabReleaseList, tag 121 -------------------------------------------------------------
 * RABs to release at a handout, by core network domain.
 *
 * A list of 1 to 2 HandoutRabReleaseInfo, each under tag 122; 33 to 88 bytes on the wire with its
 * header. */

enum { TarnHandoutRabReleaseListTag = 121 };

typedef struct TarnHandoutRabReleaseList {
    uint32_t count;
    TarnHandoutRabReleaseInfo items[2];
} TarnHandoutRabReleaseList;

typedef struct TarnHandoutRabReleaseListIe {
    TarnIe ie;
    TarnHandoutRabReleaseList value;
} TarnHandoutRabReleaseListIe;

/* TarnSizeOfHandoutRabReleaseList returns the value's bytes on the wire. */
uint32_t TarnSizeOfHandoutRabReleaseList(const TarnHandoutRabReleaseList *value);

/* TarnPackHandoutRabReleaseList packs *value and sets *written, returning 1 on success and 0 if it
 * does not fit, its count is above 2 or an item does not pack. */
uint32_t TarnPackHandoutRabReleaseList(const TarnHandoutRabReleaseList *value, uint8_t *buffer,
                                       uint32_t available, uint32_t *written);

/* TarnUnpackHandoutRabReleaseList sets *value and *consumed, returning 1 on success and 0 if an
 * item is malformed or there are more than 2. */
uint32_t TarnUnpackHandoutRabReleaseList(TarnHandoutRabReleaseList *value, uint32_t length,
                                         const uint8_t *buffer, uint32_t available,
                                         uint32_t *consumed);

/* TarnIsHandoutRabReleaseListValid returns 1 if the count is 1 to 2 and every item is valid, and 0
 * otherwise. */
uint32_t TarnIsHandoutRabReleaseListValid(const TarnHandoutRabReleaseList *value);

/* TarnPackHandoutRabReleaseListIe packs ie and sets *written, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackHandoutRabReleaseListIe(const TarnHandoutRabReleaseListIe *ie, uint8_t *buffer,
                                         uint32_t available, uint32_t *written);

/* TarnUnpackHandoutRabReleaseListIe sets ie->value and *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackHandoutRabReleaseListIe(const void *container, TarnHandoutRabReleaseListIe *ie,
                                           const uint8_t *buffer, uint32_t available,
                                           uint32_t *consumed);

/* TarnIsHandoutRabReleaseListIeValid returns 1 if ie has tag 121 and a valid value, and 0
 * otherwise. */
uint32_t TarnIsHandoutRabReleaseListIeValid(const void *container,
                                            const TarnHandoutRabReleaseListIe *ie);

#pragma GCC visibility pop

#ifdef __cplusplus
}
#endif

#endif
