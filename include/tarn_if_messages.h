/* Written by header_writer from the rows in src/catalogue; do not edit: change the rows or
 * tools/header_writer, then run `cmake --build --preset release --target tarn_headers`. */

/* The messages. For each message M stand here its id TarnMMsgId, its record type TarnMRecord and
 * its operations, on message objects and, in one call, on the record. Its comment gives its IEs in
 * wire order with the mandatory ones first; before them all stands the MessageId IE (tag 72, one
 * byte: the message's id).
 *
 * TarnNewMMsg returns a new message object that holds its MessageId, so that there is no need to
 * call TarnAppendMessageIdToMMsg, which takes the id by value. The caller owns it, until
 * TarnDeleteMsg.
 *
 * TarnAppendPToMMsg appends a primitive IE: a new IE object of the library's with a copy of *value.
 * It fails if the value is invalid, and then changes nothing. TarnAppendSIeToMMsg appends a
 * composite IE: the very object that the caller created, which the message owns from then on.
 * Neither looks at order or number: append the IEs in the order of the table.
 *
 * TarnExtractPFromMMsg copies the value of the next P that was not extracted yet to *value, and
 * leaves *value as it was if there is none. TarnExtractSIeFromMMsg lends the address of the next S
 * that was not extracted yet, which remains the message's, and sets the pointer to null if there is
 * none. See tarn_if_objects.h for the extract history.
 *
 * TarnIsMMsgValid returns 1 if the message object has the id of M and its IEs obey its rules, and 0
 * otherwise, also for a null msg, which is not fatal here. The MessageId and each mandatory IE must
 * stand valid at their places. Behind them, the optional IEs may stand in any order and number, and
 * their own validity does not count. Another IE is refused there up to the number of places in the
 * table; behind that anything is ignored. A conditional IE must stand valid exactly if its
 * condition holds.
 *
 * TarnPackMMsg writes all IEs of the message to buffer in list order; TarnSizeOfMsg tells how many
 * bytes that takes. It applies none of the rules of presence and order, but fails if an IE is none
 * of M's or does not pack; what the buffer holds then means nothing. A size that is too small is
 * fatal and leaves the buffer as it was.
 *
 * TarnUnpackMMsg returns a new message object, read from buffer, that the caller owns until
 * TarnDeleteMsg, or null. IEs are taken in the order of the table, and each must be valid. A
 * mandatory IE that is missing, malformed or invalid fails the message, and nothing remains of it.
 * An optional IE that is so is left out, and the next one is tried at the same place. Bytes behind
 * the last IE taken are ignored. Where the message is not known beforehand, use TarnUnpackNewMsg
 * (tarn_if.h).
 *
 * TarnMRecord is the message as a plain record: its id, a presence mask in which each optional or
 * conditional IE has the bit that stands beside its member (TarnMHasS for the member S), and one
 * member per IE in the order of the table. A composite IE's member is its own record, with a count
 * where elements repeat and a presence mask where children are optional. Records belong to the
 * caller and hold no pointers. Those with nested lists are large.
 *
 * TarnBuildMMsg packs the record into buffer, its mandatory members and those whose presence bit is
 * set, returning the number of bytes written and 0 on failure. MessageId is not read. It fails if a
 * value is invalid, a count or length is beyond its array, or the finished message is invalid; a
 * size that is too small is fatal. Each failure is told to velSwTokenDebug, with a token of its own
 * for the append, the validity and the packing of each message.
 *
 * TarnGetMMsg unpacks buffer into the record. It writes MessageId and the member of each IE that it
 * finds, sets the presence bits and counts, and leaves everything else as it was: clear the record,
 * or at least its presence masks, before the call. A buffer that holds another message succeeds too
 * and fills in the members that both share: compare MessageId. Failure to unpack is told to
 * velSwTokenDebug (token 0xB4D9287C).
 *
 * Build and Get ask nothing of the host but to hear their reports, and leave buffer and record as
 * they were when they return 0. They read what they are given twice: it must not change meanwhile,
 * and buffer and record must not overlap.
 *
 * Fatal. Every pointer is required, but for TarnIsMMsgValid; a null one is reported, and the
 * operation fails.
 *
 * The messages by id:
 *
 *   1  UeContextRequest         AP to AC: asks for a UE context
 *   2  UeContextAccept          AC to AP: accepts a UE context request
 *   3  UeContextReject          AC to AP: rejects a UE context request
 *   4  UeContextRelease         Releases a UE context
 *   5  InitDirectTransfer       AP to AC: the UE's first NAS message towards a core network domain
 *   6  UlDirectTransfer         AP to AC: a NAS message from the UE
 *   7  DlDirectTransfer         AC to AP: a NAS message to the UE
 *   8  IuReleaseRequest         AP to AC: asks for the release of an Iu connection
 *   9  IuReleaseCommand         AC to AP: releases an Iu connection
 *  10  SecurityModeCommand      AC to AP: starts integrity protection and ciphering
 *  11  SecurityModeComplete     AP to AC: security mode control has succeeded
 *  12  SecurityModeReject       AP to AC: security mode control has failed
 *  13  RabAssignmentRequest     AC to AP: sets up RABs
 *  14  RabAssignmentResponse    AP to AC: tells which RABs were set up
 *  15  RabReleaseRequest        Releases RABs
 *  16  RabReleaseResponse       Tells which RABs were released
 *  17  Reset                    Resets one core network domain
 *  18  IapReset                 Resets the access point or the UE contexts listed
 *  19  ConnectedModePaging      AC to AP: pages a UE that has a UE context
 *  20  IdleModePaging           AC to AP: pages a UE that has none
 *  21  UserPlaneConfigRequest   Asks for a user plane to be configured
 *  22  UserPlaneConfigResponse  Tells how a user plane was configured
 *  23  IuReleaseComplete        AP to AC: an Iu connection was released
 *  24  RelocationRequired       AP to AC: asks for the relocation of a UE
 *  25  RelocationFailure        AC to AP: the relocation cannot be done
 *  26  RelocationCancel         AP to AC: cancels a relocation
 *  27  RelocationCommand        AC to AP: hands the UE over to the target
 *  28  HandoverRequest          AC to AP: asks the target to take a UE over
 *  29  HandoverFailure          AP to AC: the target cannot take the UE over
 *  30  HandoverDetect           AP to AC: the target has detected the UE
 *  31  HandoverComplete         AP to AC: the UE has arrived at the target
 *  32  HandoverCancelInd        AC to AP: the handover is cancelled
 *  33  HandoverReqAck           AP to AC: the target has allocated resources for the UE
 *  35  UserPlaneModifyRequest   Asks for a user plane to be modified
 *  36  UserPlaneModifyResponse  Tells how a user plane was modified
 *  37  RabReleaseRequired       Tells that RABs must be released
 *  38  AccessControlRequest     AP to AC: asks whether a subscriber may use the access point
 *  39  AccessControlResponse    AC to AP: answers an access control request
 */
#ifndef TARN_IF_MESSAGES_H
#define TARN_IF_MESSAGES_H

#include <stdint.h>

#include "tarn_if_composite_ies.h"

#ifdef __cplusplus
extern "C" {
#endif

#pragma GCC visibility push(default)

/* ---- UeContextRequest, id 1 ---------------------------------------------------------------------
 * AP to AC: asks for a UE context.
 *
 *   Srnti           tag 1    mandatory
 *   EstablishCause  tag 2    mandatory
 *
 * Build writes 25 bytes at most. */

enum { TarnUeContextRequestMsgId = 1 };

typedef struct TarnUeContextRequestRecord {
    uint8_t MessageId;
    uint8_t presence; /* no bit in use */
    TarnSrnti Srnti;
    TarnEstablishCause EstablishCause;
} TarnUeContextRequestRecord;

/* TarnNewUeContextRequestMsg returns a new message that holds its MessageId, owned by the
 * caller. */
TarnMsg *TarnNewUeContextRequestMsg(void);

/* TarnAppendMessageIdToUeContextRequestMsg appends a further MessageId, returning 1. */
uint32_t TarnAppendMessageIdToUeContextRequestMsg(TarnMsg *msg, TarnMessageId value);

/* TarnExtractMessageIdFromUeContextRequestMsg copies the next MessageId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractMessageIdFromUeContextRequestMsg(TarnMsg *msg, TarnMessageId *value);

/* TarnAppendSrntiToUeContextRequestMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendSrntiToUeContextRequestMsg(TarnMsg *msg, const TarnSrnti *value);

/* TarnExtractSrntiFromUeContextRequestMsg copies the next Srnti to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractSrntiFromUeContextRequestMsg(TarnMsg *msg, TarnSrnti *value);

/* TarnAppendEstablishCauseToUeContextRequestMsg appends a copy of *value, returning 1 on success
 * and 0 if invalid. */
uint32_t TarnAppendEstablishCauseToUeContextRequestMsg(TarnMsg *msg,
                                                       const TarnEstablishCause *value);

/* TarnExtractEstablishCauseFromUeContextRequestMsg copies the next EstablishCause to *value,
 * returning 1 on success and 0 if there is none. */
uint32_t TarnExtractEstablishCauseFromUeContextRequestMsg(TarnMsg *msg, TarnEstablishCause *value);

/* TarnIsUeContextRequestMsgValid returns 1 if msg is a valid UeContextRequest, and 0 otherwise. */
uint32_t TarnIsUeContextRequestMsgValid(const TarnMsg *msg);

/* TarnPackUeContextRequestMsg writes msg to buffer, returning 1 on success and 0 on failure. */
uint32_t TarnPackUeContextRequestMsg(const TarnMsg *msg, uint8_t *buffer, uint32_t size);

/* TarnUnpackUeContextRequestMsg returns a new message read from buffer, owned by the caller, or
 * null. */
TarnMsg *TarnUnpackUeContextRequestMsg(const uint8_t *buffer, uint32_t length);

/* TarnBuildUeContextRequestMsg packs *record into buffer, returning the bytes written and 0 on
 * failure. */
uint32_t TarnBuildUeContextRequestMsg(uint8_t *buffer, uint32_t size,
                                      const TarnUeContextRequestRecord *record);

/* TarnGetUeContextRequestMsg unpacks buffer into *record, returning 1 on success and 0 on
 * failure. */
uint32_t TarnGetUeContextRequestMsg(const uint8_t *buffer, uint32_t length,
                                    TarnUeContextRequestRecord *record);

/* ---- UeContextAccept, id 2 ----------------------------------------------------------------------
 * AC to AP: accepts a UE context request.
 *
 *   Srnti   tag 1    mandatory
 *   AcUeId  tag 3    mandatory
 *
 * Build writes 27 bytes at most. */

enum { TarnUeContextAcceptMsgId = 2 };

typedef struct TarnUeContextAcceptRecord {
    uint8_t MessageId;
    uint8_t presence; /* no bit in use */
    TarnSrnti Srnti;
    TarnAcUeId AcUeId;
} TarnUeContextAcceptRecord;

/* TarnNewUeContextAcceptMsg returns a new message that holds its MessageId, owned by the caller. */
TarnMsg *TarnNewUeContextAcceptMsg(void);

/* TarnAppendMessageIdToUeContextAcceptMsg appends a further MessageId, returning 1. */
uint32_t TarnAppendMessageIdToUeContextAcceptMsg(TarnMsg *msg, TarnMessageId value);

/* TarnExtractMessageIdFromUeContextAcceptMsg copies the next MessageId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractMessageIdFromUeContextAcceptMsg(TarnMsg *msg, TarnMessageId *value);

/* TarnAppendSrntiToUeContextAcceptMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendSrntiToUeContextAcceptMsg(TarnMsg *msg, const TarnSrnti *value);

/* TarnExtractSrntiFromUeContextAcceptMsg copies the next Srnti to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractSrntiFromUeContextAcceptMsg(TarnMsg *msg, TarnSrnti *value);

/* TarnAppendAcUeIdToUeContextAcceptMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendAcUeIdToUeContextAcceptMsg(TarnMsg *msg, const TarnAcUeId *value);

/* TarnExtractAcUeIdFromUeContextAcceptMsg copies the next AcUeId to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractAcUeIdFromUeContextAcceptMsg(TarnMsg *msg, TarnAcUeId *value);

/* TarnIsUeContextAcceptMsgValid returns 1 if msg is a valid UeContextAccept, and 0 otherwise. */
uint32_t TarnIsUeContextAcceptMsgValid(const TarnMsg *msg);

/* TarnPackUeContextAcceptMsg writes msg to buffer, returning 1 on success and 0 on failure. */
uint32_t TarnPackUeContextAcceptMsg(const TarnMsg *msg, uint8_t *buffer, uint32_t size);

/* TarnUnpackUeContextAcceptMsg returns a new message read from buffer, owned by the caller, or
 * null. */
TarnMsg *TarnUnpackUeContextAcceptMsg(const uint8_t *buffer, uint32_t length);

/* TarnBuildUeContextAcceptMsg packs *record into buffer, returning the bytes written and 0 on
 * failure. */
uint32_t TarnBuildUeContextAcceptMsg(uint8_t *buffer, uint32_t size,
                                     const TarnUeContextAcceptRecord *record);

/* TarnGetUeContextAcceptMsg unpacks buffer into *record, returning 1 on success and 0 on
 * failure. */
uint32_t TarnGetUeContextAcceptMsg(const uint8_t *buffer, uint32_t length,
                                   TarnUeContextAcceptRecord *record);

/* ---- UeContextReject, id 3 ----------------------------------------------------------------------
 * AC to AP: rejects a UE context request.
 *
 *   Srnti        tag 1    mandatory
 *   RejectCause  tag 4    mandatory
 *
 * Build writes 25 bytes at most. */

enum { TarnUeContextRejectMsgId = 3 };

typedef struct TarnUeContextRejectRecord {
    uint8_t MessageId;
    uint8_t presence; /* no bit in use */
    TarnSrnti Srnti;
    TarnRejectCause RejectCause;
} TarnUeContextRejectRecord;

/* TarnNewUeContextRejectMsg returns a new message that holds its MessageId, owned by the caller. */
TarnMsg *TarnNewUeContextRejectMsg(void);

/* TarnAppendMessageIdToUeContextRejectMsg appends a further MessageId, returning 1. */
uint32_t TarnAppendMessageIdToUeContextRejectMsg(TarnMsg *msg, TarnMessageId value);

/* TarnExtractMessageIdFromUeContextRejectMsg copies the next MessageId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractMessageIdFromUeContextRejectMsg(TarnMsg *msg, TarnMessageId *value);

/* TarnAppendSrntiToUeContextRejectMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendSrntiToUeContextRejectMsg(TarnMsg *msg, const TarnSrnti *value);

/* TarnExtractSrntiFromUeContextRejectMsg copies the next Srnti to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractSrntiFromUeContextRejectMsg(TarnMsg *msg, TarnSrnti *value);

/* TarnAppendRejectCauseToUeContextRejectMsg appends a copy of *value, returning 1 on success and 0
 * if invalid. */
uint32_t TarnAppendRejectCauseToUeContextRejectMsg(TarnMsg *msg, const TarnRejectCause *value);

/* TarnExtractRejectCauseFromUeContextRejectMsg copies the next RejectCause to *value, returning 1
 * on success and 0 if there is none. */
uint32_t TarnExtractRejectCauseFromUeContextRejectMsg(TarnMsg *msg, TarnRejectCause *value);

/* TarnIsUeContextRejectMsgValid returns 1 if msg is a valid UeContextReject, and 0 otherwise. */
uint32_t TarnIsUeContextRejectMsgValid(const TarnMsg *msg);

/* TarnPackUeContextRejectMsg writes msg to buffer, returning 1 on success and 0 on failure. */
uint32_t TarnPackUeContextRejectMsg(const TarnMsg *msg, uint8_t *buffer, uint32_t size);

/* TarnUnpackUeContextRejectMsg returns a new message read from buffer, owned by the caller, or
 * null. */
TarnMsg *TarnUnpackUeContextRejectMsg(const uint8_t *buffer, uint32_t length);

/* TarnBuildUeContextRejectMsg packs *record into buffer, returning the bytes written and 0 on
 * failure. */
uint32_t TarnBuildUeContextRejectMsg(uint8_t *buffer, uint32_t size,
                                     const TarnUeContextRejectRecord *record);

/* TarnGetUeContextRejectMsg unpacks buffer into *record, returning 1 on success and 0 on
 * failure. */
uint32_t TarnGetUeContextRejectMsg(const uint8_t *buffer, uint32_t length,
                                   TarnUeContextRejectRecord *record);

/* ---- UeContextRelease, id 4 ---------------------------------------------------------------------
 * Releases a UE context.
 *
 *   Srnti            tag 1    mandatory
 *   AcUeId           tag 3    mandatory
 *   ReleaseCause     tag 5    mandatory
 *   RabDataInfoList  tag 102  composite, optional
 *
 * Build writes 140 bytes at most. */

enum { TarnUeContextReleaseMsgId = 4 };

typedef struct TarnUeContextReleaseRecord {
    uint8_t MessageId;
    uint8_t presence;
    TarnSrnti Srnti;
    TarnAcUeId AcUeId;
    TarnReleaseCause ReleaseCause;
    TarnRabDataInfoListRecord RabDataInfoList; /* 0x80 */
} TarnUeContextReleaseRecord;

enum { TarnUeContextReleaseHasRabDataInfoList = 0x80 };

/* TarnNewUeContextReleaseMsg returns a new message that holds its MessageId, owned by the
 * caller. */
TarnMsg *TarnNewUeContextReleaseMsg(void);

/* TarnAppendMessageIdToUeContextReleaseMsg appends a further MessageId, returning 1. */
uint32_t TarnAppendMessageIdToUeContextReleaseMsg(TarnMsg *msg, TarnMessageId value);

/* TarnExtractMessageIdFromUeContextReleaseMsg copies the next MessageId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractMessageIdFromUeContextReleaseMsg(TarnMsg *msg, TarnMessageId *value);

/* TarnAppendSrntiToUeContextReleaseMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendSrntiToUeContextReleaseMsg(TarnMsg *msg, const TarnSrnti *value);

/* TarnExtractSrntiFromUeContextReleaseMsg copies the next Srnti to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractSrntiFromUeContextReleaseMsg(TarnMsg *msg, TarnSrnti *value);

/* TarnAppendAcUeIdToUeContextReleaseMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendAcUeIdToUeContextReleaseMsg(TarnMsg *msg, const TarnAcUeId *value);

/* TarnExtractAcUeIdFromUeContextReleaseMsg copies the next AcUeId to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractAcUeIdFromUeContextReleaseMsg(TarnMsg *msg, TarnAcUeId *value);

/* TarnAppendReleaseCauseToUeContextReleaseMsg appends a copy of *value, returning 1 on success and
 * 0 if invalid. */
uint32_t TarnAppendReleaseCauseToUeContextReleaseMsg(TarnMsg *msg, const TarnReleaseCause *value);

/* TarnExtractReleaseCauseFromUeContextReleaseMsg copies the next ReleaseCause to *value, returning
 * 1 on success and 0 if there is none. */
uint32_t TarnExtractReleaseCauseFromUeContextReleaseMsg(TarnMsg *msg, TarnReleaseCause *value);

/* TarnAppendRabDataInfoListIeToUeContextReleaseMsg appends ie itself, unchecked, and takes it over,
 * returning 1. */
uint32_t TarnAppendRabDataInfoListIeToUeContextReleaseMsg(TarnMsg *msg, TarnRabDataInfoListIe *ie);

/* TarnExtractRabDataInfoListIeFromUeContextReleaseMsg lends the next RabDataInfoList in *ie,
 * returning 1 on success and 0, with *ie null, if there is none. */
uint32_t TarnExtractRabDataInfoListIeFromUeContextReleaseMsg(TarnMsg *msg,
                                                             TarnRabDataInfoListIe **ie);

/* TarnIsUeContextReleaseMsgValid returns 1 if msg is a valid UeContextRelease, and 0 otherwise. */
uint32_t TarnIsUeContextReleaseMsgValid(const TarnMsg *msg);

/* TarnPackUeContextReleaseMsg writes msg to buffer, returning 1 on success and 0 on failure. */
uint32_t TarnPackUeContextReleaseMsg(const TarnMsg *msg, uint8_t *buffer, uint32_t size);

/* TarnUnpackUeContextReleaseMsg returns a new message read from buffer, owned by the caller, or
 * null. */
TarnMsg *TarnUnpackUeContextReleaseMsg(const uint8_t *buffer, uint32_t length);

/* TarnBuildUeContextReleaseMsg packs *record into buffer, returning the bytes written and 0 on
 * failure. */
uint32_t TarnBuildUeContextReleaseMsg(uint8_t *buffer, uint32_t size,
                                      const TarnUeContextReleaseRecord *record);

/* TarnGetUeContextReleaseMsg unpacks buffer into *record, returning 1 on success and 0 on
 * failure. */
uint32_t TarnGetUeContextReleaseMsg(const uint8_t *buffer, uint32_t length,
                                    TarnUeContextReleaseRecord *record);

/* ---- InitDirectTransfer, id 5 -------------------------------------------------------------------
 * AP to AC: the UE's first NAS message towards a core network domain.
 *
 *   Srnti       tag 1    mandatory
 *   AcUeId      tag 3    mandatory
 *   CnDomainId  tag 6    mandatory
 *   NasMsg      tag 7    mandatory
 *   Imsi        tag 169  optional
 *   Idnns       tag 177  optional
 *
 * Build writes 4180 bytes at most. The record takes about 4 KiB of the caller's memory. */

enum { TarnInitDirectTransferMsgId = 5 };

typedef struct TarnInitDirectTransferRecord {
    uint8_t MessageId;
    uint8_t presence;
    TarnSrnti Srnti;
    TarnAcUeId AcUeId;
    TarnCnDomainId CnDomainId;
    TarnNasMsg NasMsg;
    TarnImsi Imsi;   /* 0x80 */
    TarnIdnns Idnns; /* 0x40 */
} TarnInitDirectTransferRecord;

enum {
    TarnInitDirectTransferHasImsi = 0x80,
    TarnInitDirectTransferHasIdnns = 0x40,
};

/* TarnNewInitDirectTransferMsg returns a new message that holds its MessageId, owned by the
 * caller. */
TarnMsg *TarnNewInitDirectTransferMsg(void);

/* TarnAppendMessageIdToInitDirectTransferMsg appends a further MessageId, returning 1. */
uint32_t TarnAppendMessageIdToInitDirectTransferMsg(TarnMsg *msg, TarnMessageId value);

/* TarnExtractMessageIdFromInitDirectTransferMsg copies the next MessageId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractMessageIdFromInitDirectTransferMsg(TarnMsg *msg, TarnMessageId *value);

/* TarnAppendSrntiToInitDirectTransferMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendSrntiToInitDirectTransferMsg(TarnMsg *msg, const TarnSrnti *value);

/* TarnExtractSrntiFromInitDirectTransferMsg copies the next Srnti to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractSrntiFromInitDirectTransferMsg(TarnMsg *msg, TarnSrnti *value);

/* TarnAppendAcUeIdToInitDirectTransferMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendAcUeIdToInitDirectTransferMsg(TarnMsg *msg, const TarnAcUeId *value);

/* TarnExtractAcUeIdFromInitDirectTransferMsg copies the next AcUeId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractAcUeIdFromInitDirectTransferMsg(TarnMsg *msg, TarnAcUeId *value);

/* TarnAppendCnDomainIdToInitDirectTransferMsg appends a copy of *value, returning 1 on success and
 * 0 if invalid. */
uint32_t TarnAppendCnDomainIdToInitDirectTransferMsg(TarnMsg *msg, const TarnCnDomainId *value);

/* TarnExtractCnDomainIdFromInitDirectTransferMsg copies the next CnDomainId to *value, returning 1
 * on success and 0 if there is none. */
uint32_t TarnExtractCnDomainIdFromInitDirectTransferMsg(TarnMsg *msg, TarnCnDomainId *value);

/* TarnAppendNasMsgToInitDirectTransferMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendNasMsgToInitDirectTransferMsg(TarnMsg *msg, const TarnNasMsg *value);

/* TarnExtractNasMsgFromInitDirectTransferMsg copies the next NasMsg to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractNasMsgFromInitDirectTransferMsg(TarnMsg *msg, TarnNasMsg *value);

/* TarnAppendImsiToInitDirectTransferMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendImsiToInitDirectTransferMsg(TarnMsg *msg, const TarnImsi *value);

/* TarnExtractImsiFromInitDirectTransferMsg copies the next Imsi to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractImsiFromInitDirectTransferMsg(TarnMsg *msg, TarnImsi *value);

/* TarnAppendIdnnsToInitDirectTransferMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendIdnnsToInitDirectTransferMsg(TarnMsg *msg, const TarnIdnns *value);

/* TarnExtractIdnnsFromInitDirectTransferMsg copies the next Idnns to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractIdnnsFromInitDirectTransferMsg(TarnMsg *msg, TarnIdnns *value);

/* TarnIsInitDirectTransferMsgValid returns 1 if msg is a valid InitDirectTransfer, and 0
 * otherwise. */
uint32_t TarnIsInitDirectTransferMsgValid(const TarnMsg *msg);

/* TarnPackInitDirectTransferMsg writes msg to buffer, returning 1 on success and 0 on failure. */
uint32_t TarnPackInitDirectTransferMsg(const TarnMsg *msg, uint8_t *buffer, uint32_t size);

/* TarnUnpackInitDirectTransferMsg returns a new message read from buffer, owned by the caller, or
 * null. */
TarnMsg *TarnUnpackInitDirectTransferMsg(const uint8_t *buffer, uint32_t length);

/* TarnBuildInitDirectTransferMsg packs *record into buffer, returning the bytes written and 0 on
 * failure. */
uint32_t TarnBuildInitDirectTransferMsg(uint8_t *buffer, uint32_t size,
                                        const TarnInitDirectTransferRecord *record);

/* TarnGetInitDirectTransferMsg unpacks buffer into *record, returning 1 on success and 0 on
 * failure. */
uint32_t TarnGetInitDirectTransferMsg(const uint8_t *buffer, uint32_t length,
                                      TarnInitDirectTransferRecord *record);

/* ---- UlDirectTransfer, id 6 ---------------------------------------------------------------------
 * AP to AC: a NAS message from the UE.
 *
 *   Srnti       tag 1    mandatory
 *   AcUeId      tag 3    mandatory
 *   CnDomainId  tag 6    mandatory
 *   NasMsg      tag 7    mandatory
 *
 * Build writes 4136 bytes at most. The record takes about 4 KiB of the caller's memory. */

enum { TarnUlDirectTransferMsgId = 6 };

typedef struct TarnUlDirectTransferRecord {
    uint8_t MessageId;
    uint8_t presence; /* no bit in use */
    TarnSrnti Srnti;
    TarnAcUeId AcUeId;
    TarnCnDomainId CnDomainId;
    TarnNasMsg NasMsg;
} TarnUlDirectTransferRecord;

/* TarnNewUlDirectTransferMsg returns a new message that holds its MessageId, owned by the
 * caller. */
TarnMsg *TarnNewUlDirectTransferMsg(void);

/* TarnAppendMessageIdToUlDirectTransferMsg appends a further MessageId, returning 1. */
uint32_t TarnAppendMessageIdToUlDirectTransferMsg(TarnMsg *msg, TarnMessageId value);

/* TarnExtractMessageIdFromUlDirectTransferMsg copies the next MessageId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractMessageIdFromUlDirectTransferMsg(TarnMsg *msg, TarnMessageId *value);

/* TarnAppendSrntiToUlDirectTransferMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendSrntiToUlDirectTransferMsg(TarnMsg *msg, const TarnSrnti *value);

/* TarnExtractSrntiFromUlDirectTransferMsg copies the next Srnti to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractSrntiFromUlDirectTransferMsg(TarnMsg *msg, TarnSrnti *value);

/* TarnAppendAcUeIdToUlDirectTransferMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendAcUeIdToUlDirectTransferMsg(TarnMsg *msg, const TarnAcUeId *value);

/* TarnExtractAcUeIdFromUlDirectTransferMsg copies the next AcUeId to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractAcUeIdFromUlDirectTransferMsg(TarnMsg *msg, TarnAcUeId *value);

/* TarnAppendCnDomainIdToUlDirectTransferMsg appends a copy of *value, returning 1 on success and 0
 * if invalid. */
uint32_t TarnAppendCnDomainIdToUlDirectTransferMsg(TarnMsg *msg, const TarnCnDomainId *value);

/* TarnExtractCnDomainIdFromUlDirectTransferMsg copies the next CnDomainId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractCnDomainIdFromUlDirectTransferMsg(TarnMsg *msg, TarnCnDomainId *value);

/* TarnAppendNasMsgToUlDirectTransferMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendNasMsgToUlDirectTransferMsg(TarnMsg *msg, const TarnNasMsg *value);

/* TarnExtractNasMsgFromUlDirectTransferMsg copies the next NasMsg to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractNasMsgFromUlDirectTransferMsg(TarnMsg *msg, TarnNasMsg *value);

/* TarnIsUlDirectTransferMsgValid returns 1 if msg is a valid UlDirectTransfer, and 0 otherwise. */
uint32_t TarnIsUlDirectTransferMsgValid(const TarnMsg *msg);

/* TarnPackUlDirectTransferMsg writes msg to buffer, returning 1 on success and 0 on failure. */
uint32_t TarnPackUlDirectTransferMsg(const TarnMsg *msg, uint8_t *buffer, uint32_t size);

/* TarnUnpackUlDirectTransferMsg returns a new message read from buffer, owned by the caller, or
 * null. */
TarnMsg *TarnUnpackUlDirectTransferMsg(const uint8_t *buffer, uint32_t length);

/* TarnBuildUlDirectTransferMsg packs *record into buffer, returning the bytes written and 0 on
 * failure. */
uint32_t TarnBuildUlDirectTransferMsg(uint8_t *buffer, uint32_t size,
                                      const TarnUlDirectTransferRecord *record);

/* TarnGetUlDirectTransferMsg unpacks buffer into *record, returning 1 on success and 0 on
 * failure. */
uint32_t TarnGetUlDirectTransferMsg(const uint8_t *buffer, uint32_t length,
                                    TarnUlDirectTransferRecord *record);

/* ---- DlDirectTransfer, id 7 ---------------------------------------------------------------------
 * AC to AP: a NAS message to the UE.
 *
 *   Srnti       tag 1    mandatory
 *   AcUeId      tag 3    mandatory
 *   CnDomainId  tag 6    mandatory
 *   NasMsg      tag 7    mandatory
 *   SapiId      tag 8    mandatory
 *
 * Build writes 4144 bytes at most. The record takes about 4 KiB of the caller's memory. */

enum { TarnDlDirectTransferMsgId = 7 };

typedef struct TarnDlDirectTransferRecord {
    uint8_t MessageId;
    uint8_t presence; /* no bit in use */
    TarnSrnti Srnti;
    TarnAcUeId AcUeId;
    TarnCnDomainId CnDomainId;
    TarnNasMsg NasMsg;
    TarnSapiId SapiId;
} TarnDlDirectTransferRecord;

/* TarnNewDlDirectTransferMsg returns a new message that holds its MessageId, owned by the
 * caller. */
TarnMsg *TarnNewDlDirectTransferMsg(void);

/* TarnAppendMessageIdToDlDirectTransferMsg appends a further MessageId, returning 1. */
uint32_t TarnAppendMessageIdToDlDirectTransferMsg(TarnMsg *msg, TarnMessageId value);

/* TarnExtractMessageIdFromDlDirectTransferMsg copies the next MessageId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractMessageIdFromDlDirectTransferMsg(TarnMsg *msg, TarnMessageId *value);

/* TarnAppendSrntiToDlDirectTransferMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendSrntiToDlDirectTransferMsg(TarnMsg *msg, const TarnSrnti *value);

/* TarnExtractSrntiFromDlDirectTransferMsg copies the next Srnti to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractSrntiFromDlDirectTransferMsg(TarnMsg *msg, TarnSrnti *value);

/* TarnAppendAcUeIdToDlDirectTransferMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendAcUeIdToDlDirectTransferMsg(TarnMsg *msg, const TarnAcUeId *value);

/* TarnExtractAcUeIdFromDlDirectTransferMsg copies the next AcUeId to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractAcUeIdFromDlDirectTransferMsg(TarnMsg *msg, TarnAcUeId *value);

/* TarnAppendCnDomainIdToDlDirectTransferMsg appends a copy of *value, returning 1 on success and 0
 * if invalid. */
uint32_t TarnAppendCnDomainIdToDlDirectTransferMsg(TarnMsg *msg, const TarnCnDomainId *value);

/* TarnExtractCnDomainIdFromDlDirectTransferMsg copies the next CnDomainId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractCnDomainIdFromDlDirectTransferMsg(TarnMsg *msg, TarnCnDomainId *value);

/* TarnAppendNasMsgToDlDirectTransferMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendNasMsgToDlDirectTransferMsg(TarnMsg *msg, const TarnNasMsg *value);

/* TarnExtractNasMsgFromDlDirectTransferMsg copies the next NasMsg to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractNasMsgFromDlDirectTransferMsg(TarnMsg *msg, TarnNasMsg *value);

/* TarnAppendSapiIdToDlDirectTransferMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendSapiIdToDlDirectTransferMsg(TarnMsg *msg, const TarnSapiId *value);

/* TarnExtractSapiIdFromDlDirectTransferMsg copies the next SapiId to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractSapiIdFromDlDirectTransferMsg(TarnMsg *msg, TarnSapiId *value);

/* TarnIsDlDirectTransferMsgValid returns 1 if msg is a valid DlDirectTransfer, and 0 otherwise. */
uint32_t TarnIsDlDirectTransferMsgValid(const TarnMsg *msg);

/* TarnPackDlDirectTransferMsg writes msg to buffer, returning 1 on success and 0 on failure. */
uint32_t TarnPackDlDirectTransferMsg(const TarnMsg *msg, uint8_t *buffer, uint32_t size);

/* TarnUnpackDlDirectTransferMsg returns a new message read from buffer, owned by the caller, or
 * null. */
TarnMsg *TarnUnpackDlDirectTransferMsg(const uint8_t *buffer, uint32_t length);

/* TarnBuildDlDirectTransferMsg packs *record into buffer, returning the bytes written and 0 on
 * failure. */
uint32_t TarnBuildDlDirectTransferMsg(uint8_t *buffer, uint32_t size,
                                      const TarnDlDirectTransferRecord *record);

/* TarnGetDlDirectTransferMsg unpacks buffer into *record, returning 1 on success and 0 on
 * failure. */
uint32_t TarnGetDlDirectTransferMsg(const uint8_t *buffer, uint32_t length,
                                    TarnDlDirectTransferRecord *record);

/* ---- IuReleaseRequest, id 8 ---------------------------------------------------------------------
 * AP to AC: asks for the release of an Iu connection.
 *
 *   Srnti          tag 1    mandatory
 *   AcUeId         tag 3    mandatory
 *   CnDomainId     tag 6    mandatory
 *   IuRelReqCause  tag 9    mandatory
 *
 * Build writes 43 bytes at most. */

enum { TarnIuReleaseRequestMsgId = 8 };

typedef struct TarnIuReleaseRequestRecord {
    uint8_t MessageId;
    uint8_t presence; /* no bit in use */
    TarnSrnti Srnti;
    TarnAcUeId AcUeId;
    TarnCnDomainId CnDomainId;
    TarnIuRelReqCause IuRelReqCause;
} TarnIuReleaseRequestRecord;

/* TarnNewIuReleaseRequestMsg returns a new message that holds its MessageId, owned by the
 * caller. */
TarnMsg *TarnNewIuReleaseRequestMsg(void);

/* TarnAppendMessageIdToIuReleaseRequestMsg appends a further MessageId, returning 1. */
uint32_t TarnAppendMessageIdToIuReleaseRequestMsg(TarnMsg *msg, TarnMessageId value);

/* TarnExtractMessageIdFromIuReleaseRequestMsg copies the next MessageId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractMessageIdFromIuReleaseRequestMsg(TarnMsg *msg, TarnMessageId *value);

/* TarnAppendSrntiToIuReleaseRequestMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendSrntiToIuReleaseRequestMsg(TarnMsg *msg, const TarnSrnti *value);

/* TarnExtractSrntiFromIuReleaseRequestMsg copies the next Srnti to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractSrntiFromIuReleaseRequestMsg(TarnMsg *msg, TarnSrnti *value);

/* TarnAppendAcUeIdToIuReleaseRequestMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendAcUeIdToIuReleaseRequestMsg(TarnMsg *msg, const TarnAcUeId *value);

/* TarnExtractAcUeIdFromIuReleaseRequestMsg copies the next AcUeId to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractAcUeIdFromIuReleaseRequestMsg(TarnMsg *msg, TarnAcUeId *value);

/* TarnAppendCnDomainIdToIuReleaseRequestMsg appends a copy of *value, returning 1 on success and 0
 * if invalid. */
uint32_t TarnAppendCnDomainIdToIuReleaseRequestMsg(TarnMsg *msg, const TarnCnDomainId *value);

/* TarnExtractCnDomainIdFromIuReleaseRequestMsg copies the next CnDomainId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractCnDomainIdFromIuReleaseRequestMsg(TarnMsg *msg, TarnCnDomainId *value);

/* TarnAppendIuRelReqCauseToIuReleaseRequestMsg appends a copy of *value, returning 1 on success and
 * 0 if invalid. */
uint32_t TarnAppendIuRelReqCauseToIuReleaseRequestMsg(TarnMsg *msg, const TarnIuRelReqCause *value);

/* TarnExtractIuRelReqCauseFromIuReleaseRequestMsg copies the next IuRelReqCause to *value,
 * returning 1 on success and 0 if there is none. */
uint32_t TarnExtractIuRelReqCauseFromIuReleaseRequestMsg(TarnMsg *msg, TarnIuRelReqCause *value);

/* TarnIsIuReleaseRequestMsgValid returns 1 if msg is a valid IuReleaseRequest, and 0 otherwise. */
uint32_t TarnIsIuReleaseRequestMsgValid(const TarnMsg *msg);

/* TarnPackIuReleaseRequestMsg writes msg to buffer, returning 1 on success and 0 on failure. */
uint32_t TarnPackIuReleaseRequestMsg(const TarnMsg *msg, uint8_t *buffer, uint32_t size);

/* TarnUnpackIuReleaseRequestMsg returns a new message read from buffer, owned by the caller, or
 * null. */
TarnMsg *TarnUnpackIuReleaseRequestMsg(const uint8_t *buffer, uint32_t length);

/* TarnBuildIuReleaseRequestMsg packs *record into buffer, returning the bytes written and 0 on
 * failure. */
uint32_t TarnBuildIuReleaseRequestMsg(uint8_t *buffer, uint32_t size,
                                      const TarnIuReleaseRequestRecord *record);

/* TarnGetIuReleaseRequestMsg unpacks buffer into *record, returning 1 on success and 0 on
 * failure. */
uint32_t TarnGetIuReleaseRequestMsg(const uint8_t *buffer, uint32_t length,
                                    TarnIuReleaseRequestRecord *record);

/* ---- IuReleaseCommand, id 9 ---------------------------------------------------------------------
 * AC to AP: releases an Iu connection.
 *
 *   Srnti          tag 1    mandatory
 *   AcUeId         tag 3    mandatory
 *   CnDomainId     tag 6    mandatory
 *   IuRelCause     tag 56   mandatory
 *   RespExpected   tag 101  mandatory
 *   IuRelCauseNew  tag 170  optional
 *
 * Build writes 59 bytes at most. */

enum { TarnIuReleaseCommandMsgId = 9 };

typedef struct TarnIuReleaseCommandRecord {
    uint8_t MessageId;
    uint8_t presence;
    TarnSrnti Srnti;
    TarnAcUeId AcUeId;
    TarnCnDomainId CnDomainId;
    TarnIuRelCause IuRelCause;
    TarnRespExpected RespExpected;
    TarnIuRelCauseNew IuRelCauseNew; /* 0x80 */
} TarnIuReleaseCommandRecord;

enum { TarnIuReleaseCommandHasIuRelCauseNew = 0x80 };

/* TarnNewIuReleaseCommandMsg returns a new message that holds its MessageId, owned by the
 * caller. */
TarnMsg *TarnNewIuReleaseCommandMsg(void);

/* TarnAppendMessageIdToIuReleaseCommandMsg appends a further MessageId, returning 1. */
uint32_t TarnAppendMessageIdToIuReleaseCommandMsg(TarnMsg *msg, TarnMessageId value);

/* TarnExtractMessageIdFromIuReleaseCommandMsg copies the next MessageId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractMessageIdFromIuReleaseCommandMsg(TarnMsg *msg, TarnMessageId *value);

/* TarnAppendSrntiToIuReleaseCommandMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendSrntiToIuReleaseCommandMsg(TarnMsg *msg, const TarnSrnti *value);

/* TarnExtractSrntiFromIuReleaseCommandMsg copies the next Srnti to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractSrntiFromIuReleaseCommandMsg(TarnMsg *msg, TarnSrnti *value);

/* TarnAppendAcUeIdToIuReleaseCommandMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendAcUeIdToIuReleaseCommandMsg(TarnMsg *msg, const TarnAcUeId *value);

/* TarnExtractAcUeIdFromIuReleaseCommandMsg copies the next AcUeId to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractAcUeIdFromIuReleaseCommandMsg(TarnMsg *msg, TarnAcUeId *value);

/* TarnAppendCnDomainIdToIuReleaseCommandMsg appends a copy of *value, returning 1 on success and 0
 * if invalid. */
uint32_t TarnAppendCnDomainIdToIuReleaseCommandMsg(TarnMsg *msg, const TarnCnDomainId *value);

/* TarnExtractCnDomainIdFromIuReleaseCommandMsg copies the next CnDomainId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractCnDomainIdFromIuReleaseCommandMsg(TarnMsg *msg, TarnCnDomainId *value);

/* TarnAppendIuRelCauseToIuReleaseCommandMsg appends a copy of *value, returning 1 on success and 0
 * if invalid. */
uint32_t TarnAppendIuRelCauseToIuReleaseCommandMsg(TarnMsg *msg, const TarnIuRelCause *value);

/* TarnExtractIuRelCauseFromIuReleaseCommandMsg copies the next IuRelCause to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractIuRelCauseFromIuReleaseCommandMsg(TarnMsg *msg, TarnIuRelCause *value);

/* TarnAppendRespExpectedToIuReleaseCommandMsg appends a copy of *value, returning 1 on success and
 * 0 if invalid. */
uint32_t TarnAppendRespExpectedToIuReleaseCommandMsg(TarnMsg *msg, const TarnRespExpected *value);

/* TarnExtractRespExpectedFromIuReleaseCommandMsg copies the next RespExpected to *value, returning
 * 1 on success and 0 if there is none. */
uint32_t TarnExtractRespExpectedFromIuReleaseCommandMsg(TarnMsg *msg, TarnRespExpected *value);

/* TarnAppendIuRelCauseNewToIuReleaseCommandMsg appends a copy of *value, returning 1 on success and
 * 0 if invalid. */
uint32_t TarnAppendIuRelCauseNewToIuReleaseCommandMsg(TarnMsg *msg, const TarnIuRelCauseNew *value);

/* TarnExtractIuRelCauseNewFromIuReleaseCommandMsg copies the next IuRelCauseNew to *value,
 * returning 1 on success and 0 if there is none. */
uint32_t TarnExtractIuRelCauseNewFromIuReleaseCommandMsg(TarnMsg *msg, TarnIuRelCauseNew *value);

/* TarnIsIuReleaseCommandMsgValid returns 1 if msg is a valid IuReleaseCommand, and 0 otherwise. */
uint32_t TarnIsIuReleaseCommandMsgValid(const TarnMsg *msg);

/* TarnPackIuReleaseCommandMsg writes msg to buffer, returning 1 on success and 0 on failure. */
uint32_t TarnPackIuReleaseCommandMsg(const TarnMsg *msg, uint8_t *buffer, uint32_t size);

/* TarnUnpackIuReleaseCommandMsg returns a new message read from buffer, owned by the caller, or
 * null. */
TarnMsg *TarnUnpackIuReleaseCommandMsg(const uint8_t *buffer, uint32_t length);

/* TarnBuildIuReleaseCommandMsg packs *record into buffer, returning the bytes written and 0 on
 * failure. */
uint32_t TarnBuildIuReleaseCommandMsg(uint8_t *buffer, uint32_t size,
                                      const TarnIuReleaseCommandRecord *record);

/* TarnGetIuReleaseCommandMsg unpacks buffer into *record, returning 1 on success and 0 on
 * failure. */
uint32_t TarnGetIuReleaseCommandMsg(const uint8_t *buffer, uint32_t length,
                                    TarnIuReleaseCommandRecord *record);

/* ---- SecurityModeCommand, id 10 -----------------------------------------------------------------
 * AC to AP: starts integrity protection and ciphering.
 *
 *   Srnti        tag 1    mandatory
 *   AcUeId       tag 3    mandatory
 *   CnDomainId   tag 6    mandatory
 *   IntProtInfo  tag 11   mandatory
 *   KeyStatus    tag 10   mandatory
 *   EncryptInfo  tag 14   optional
 *
 * Build writes 129 bytes at most. */

enum { TarnSecurityModeCommandMsgId = 10 };

typedef struct TarnSecurityModeCommandRecord {
    uint8_t MessageId;
    uint8_t presence;
    TarnSrnti Srnti;
    TarnAcUeId AcUeId;
    TarnCnDomainId CnDomainId;
    TarnIntProtInfo IntProtInfo;
    TarnKeyStatus KeyStatus;
    TarnEncryptInfo EncryptInfo; /* 0x80 */
} TarnSecurityModeCommandRecord;

enum { TarnSecurityModeCommandHasEncryptInfo = 0x80 };

/* TarnNewSecurityModeCommandMsg returns a new message that holds its MessageId, owned by the
 * caller. */
TarnMsg *TarnNewSecurityModeCommandMsg(void);

/* TarnAppendMessageIdToSecurityModeCommandMsg appends a further MessageId, returning 1. */
uint32_t TarnAppendMessageIdToSecurityModeCommandMsg(TarnMsg *msg, TarnMessageId value);

/* TarnExtractMessageIdFromSecurityModeCommandMsg copies the next MessageId to *value, returning 1
 * on success and 0 if there is none. */
uint32_t TarnExtractMessageIdFromSecurityModeCommandMsg(TarnMsg *msg, TarnMessageId *value);

/* TarnAppendSrntiToSecurityModeCommandMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendSrntiToSecurityModeCommandMsg(TarnMsg *msg, const TarnSrnti *value);

/* TarnExtractSrntiFromSecurityModeCommandMsg copies the next Srnti to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractSrntiFromSecurityModeCommandMsg(TarnMsg *msg, TarnSrnti *value);

/* TarnAppendAcUeIdToSecurityModeCommandMsg appends a copy of *value, returning 1 on success and 0
 * if invalid. */
uint32_t TarnAppendAcUeIdToSecurityModeCommandMsg(TarnMsg *msg, const TarnAcUeId *value);

/* TarnExtractAcUeIdFromSecurityModeCommandMsg copies the next AcUeId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractAcUeIdFromSecurityModeCommandMsg(TarnMsg *msg, TarnAcUeId *value);

/* TarnAppendCnDomainIdToSecurityModeCommandMsg appends a copy of *value, returning 1 on success and
 * 0 if invalid. */
uint32_t TarnAppendCnDomainIdToSecurityModeCommandMsg(TarnMsg *msg, const TarnCnDomainId *value);

/* TarnExtractCnDomainIdFromSecurityModeCommandMsg copies the next CnDomainId to *value, returning 1
 * on success and 0 if there is none. */
uint32_t TarnExtractCnDomainIdFromSecurityModeCommandMsg(TarnMsg *msg, TarnCnDomainId *value);

/* TarnAppendIntProtInfoToSecurityModeCommandMsg appends a copy of *value, returning 1 on success
 * and 0 if invalid. */
uint32_t TarnAppendIntProtInfoToSecurityModeCommandMsg(TarnMsg *msg, const TarnIntProtInfo *value);

/* TarnExtractIntProtInfoFromSecurityModeCommandMsg copies the next IntProtInfo to *value, returning
 * 1 on success and 0 if there is none. */
uint32_t TarnExtractIntProtInfoFromSecurityModeCommandMsg(TarnMsg *msg, TarnIntProtInfo *value);

/* TarnAppendKeyStatusToSecurityModeCommandMsg appends a copy of *value, returning 1 on success and
 * 0 if invalid. */
uint32_t TarnAppendKeyStatusToSecurityModeCommandMsg(TarnMsg *msg, const TarnKeyStatus *value);

/* TarnExtractKeyStatusFromSecurityModeCommandMsg copies the next KeyStatus to *value, returning 1
 * on success and 0 if there is none. */
uint32_t TarnExtractKeyStatusFromSecurityModeCommandMsg(TarnMsg *msg, TarnKeyStatus *value);

/* TarnAppendEncryptInfoToSecurityModeCommandMsg appends a copy of *value, returning 1 on success
 * and 0 if invalid. */
uint32_t TarnAppendEncryptInfoToSecurityModeCommandMsg(TarnMsg *msg, const TarnEncryptInfo *value);

/* TarnExtractEncryptInfoFromSecurityModeCommandMsg copies the next EncryptInfo to *value, returning
 * 1 on success and 0 if there is none. */
uint32_t TarnExtractEncryptInfoFromSecurityModeCommandMsg(TarnMsg *msg, TarnEncryptInfo *value);

/* TarnIsSecurityModeCommandMsgValid returns 1 if msg is a valid SecurityModeCommand, and 0
 * otherwise. */
uint32_t TarnIsSecurityModeCommandMsgValid(const TarnMsg *msg);

/* TarnPackSecurityModeCommandMsg writes msg to buffer, returning 1 on success and 0 on failure. */
uint32_t TarnPackSecurityModeCommandMsg(const TarnMsg *msg, uint8_t *buffer, uint32_t size);

/* TarnUnpackSecurityModeCommandMsg returns a new message read from buffer, owned by the caller, or
 * null. */
TarnMsg *TarnUnpackSecurityModeCommandMsg(const uint8_t *buffer, uint32_t length);

/* TarnBuildSecurityModeCommandMsg packs *record into buffer, returning the bytes written and 0 on
 * failure. */
uint32_t TarnBuildSecurityModeCommandMsg(uint8_t *buffer, uint32_t size,
                                         const TarnSecurityModeCommandRecord *record);

/* TarnGetSecurityModeCommandMsg unpacks buffer into *record, returning 1 on success and 0 on
 * failure. */
uint32_t TarnGetSecurityModeCommandMsg(const uint8_t *buffer, uint32_t length,
                                       TarnSecurityModeCommandRecord *record);

/* ---- SecurityModeComplete, id 11 ----------------------------------------------------------------
 * AP to AC: security mode control has succeeded.
 *
 *   Srnti        tag 1    mandatory
 *   AcUeId       tag 3    mandatory
 *   CnDomainId   tag 6    mandatory
 *   IntProtAlgo  tag 12   mandatory
 *   EncryptAlgo  tag 17   optional
 *
 * Build writes 51 bytes at most. */

enum { TarnSecurityModeCompleteMsgId = 11 };

typedef struct TarnSecurityModeCompleteRecord {
    uint8_t MessageId;
    uint8_t presence;
    TarnSrnti Srnti;
    TarnAcUeId AcUeId;
    TarnCnDomainId CnDomainId;
    TarnIntProtAlgo IntProtAlgo;
    TarnEncryptAlgo EncryptAlgo; /* 0x80 */
} TarnSecurityModeCompleteRecord;

enum { TarnSecurityModeCompleteHasEncryptAlgo = 0x80 };

/* TarnNewSecurityModeCompleteMsg returns a new message that holds its MessageId, owned by the
 * caller. */
TarnMsg *TarnNewSecurityModeCompleteMsg(void);

/* TarnAppendMessageIdToSecurityModeCompleteMsg appends a further MessageId, returning 1. */
uint32_t TarnAppendMessageIdToSecurityModeCompleteMsg(TarnMsg *msg, TarnMessageId value);

/* TarnExtractMessageIdFromSecurityModeCompleteMsg copies the next MessageId to *value, returning 1
 * on success and 0 if there is none. */
uint32_t TarnExtractMessageIdFromSecurityModeCompleteMsg(TarnMsg *msg, TarnMessageId *value);

/* TarnAppendSrntiToSecurityModeCompleteMsg appends a copy of *value, returning 1 on success and 0
 * if invalid. */
uint32_t TarnAppendSrntiToSecurityModeCompleteMsg(TarnMsg *msg, const TarnSrnti *value);

/* TarnExtractSrntiFromSecurityModeCompleteMsg copies the next Srnti to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractSrntiFromSecurityModeCompleteMsg(TarnMsg *msg, TarnSrnti *value);

/* TarnAppendAcUeIdToSecurityModeCompleteMsg appends a copy of *value, returning 1 on success and 0
 * if invalid. */
uint32_t TarnAppendAcUeIdToSecurityModeCompleteMsg(TarnMsg *msg, const TarnAcUeId *value);

/* TarnExtractAcUeIdFromSecurityModeCompleteMsg copies the next AcUeId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractAcUeIdFromSecurityModeCompleteMsg(TarnMsg *msg, TarnAcUeId *value);

/* TarnAppendCnDomainIdToSecurityModeCompleteMsg appends a copy of *value, returning 1 on success
 * and 0 if invalid. */
uint32_t TarnAppendCnDomainIdToSecurityModeCompleteMsg(TarnMsg *msg, const TarnCnDomainId *value);

/* TarnExtractCnDomainIdFromSecurityModeCompleteMsg copies the next CnDomainId to *value, returning
 * 1 on success and 0 if there is none. */
uint32_t TarnExtractCnDomainIdFromSecurityModeCompleteMsg(TarnMsg *msg, TarnCnDomainId *value);

/* TarnAppendIntProtAlgoToSecurityModeCompleteMsg appends a copy of *value, returning 1 on success
 * and 0 if invalid. */
uint32_t TarnAppendIntProtAlgoToSecurityModeCompleteMsg(TarnMsg *msg, const TarnIntProtAlgo *value);

/* TarnExtractIntProtAlgoFromSecurityModeCompleteMsg copies the next IntProtAlgo to *value,
 * returning 1 on success and 0 if there is none. */
uint32_t TarnExtractIntProtAlgoFromSecurityModeCompleteMsg(TarnMsg *msg, TarnIntProtAlgo *value);

/* TarnAppendEncryptAlgoToSecurityModeCompleteMsg appends a copy of *value, returning 1 on success
 * and 0 if invalid. */
uint32_t TarnAppendEncryptAlgoToSecurityModeCompleteMsg(TarnMsg *msg, const TarnEncryptAlgo *value);

/* TarnExtractEncryptAlgoFromSecurityModeCompleteMsg copies the next EncryptAlgo to *value,
 * returning 1 on success and 0 if there is none. */
uint32_t TarnExtractEncryptAlgoFromSecurityModeCompleteMsg(TarnMsg *msg, TarnEncryptAlgo *value);

/* TarnIsSecurityModeCompleteMsgValid returns 1 if msg is a valid SecurityModeComplete, and 0
 * otherwise. */
uint32_t TarnIsSecurityModeCompleteMsgValid(const TarnMsg *msg);

/* TarnPackSecurityModeCompleteMsg writes msg to buffer, returning 1 on success and 0 on failure. */
uint32_t TarnPackSecurityModeCompleteMsg(const TarnMsg *msg, uint8_t *buffer, uint32_t size);

/* TarnUnpackSecurityModeCompleteMsg returns a new message read from buffer, owned by the caller, or
 * null. */
TarnMsg *TarnUnpackSecurityModeCompleteMsg(const uint8_t *buffer, uint32_t length);

/* TarnBuildSecurityModeCompleteMsg packs *record into buffer, returning the bytes written and 0 on
 * failure. */
uint32_t TarnBuildSecurityModeCompleteMsg(uint8_t *buffer, uint32_t size,
                                          const TarnSecurityModeCompleteRecord *record);

/* TarnGetSecurityModeCompleteMsg unpacks buffer into *record, returning 1 on success and 0 on
 * failure. */
uint32_t TarnGetSecurityModeCompleteMsg(const uint8_t *buffer, uint32_t length,
                                        TarnSecurityModeCompleteRecord *record);

/* ---- SecurityModeReject, id 12 ------------------------------------------------------------------
 * AP to AC: security mode control has failed.
 *
 *   Srnti        tag 1    mandatory
 *   AcUeId       tag 3    mandatory
 *   CnDomainId   tag 6    mandatory
 *   SecRejCause  tag 18   mandatory
 *
 * Build writes 43 bytes at most. */

enum { TarnSecurityModeRejectMsgId = 12 };

typedef struct TarnSecurityModeRejectRecord {
    uint8_t MessageId;
    uint8_t presence; /* no bit in use */
    TarnSrnti Srnti;
    TarnAcUeId AcUeId;
    TarnCnDomainId CnDomainId;
    TarnSecRejCause SecRejCause;
} TarnSecurityModeRejectRecord;

/* TarnNewSecurityModeRejectMsg returns a new message that holds its MessageId, owned by the
 * caller. */
TarnMsg *TarnNewSecurityModeRejectMsg(void);

/* TarnAppendMessageIdToSecurityModeRejectMsg appends a further MessageId, returning 1. */
uint32_t TarnAppendMessageIdToSecurityModeRejectMsg(TarnMsg *msg, TarnMessageId value);

/* TarnExtractMessageIdFromSecurityModeRejectMsg copies the next MessageId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractMessageIdFromSecurityModeRejectMsg(TarnMsg *msg, TarnMessageId *value);

/* TarnAppendSrntiToSecurityModeRejectMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendSrntiToSecurityModeRejectMsg(TarnMsg *msg, const TarnSrnti *value);

/* TarnExtractSrntiFromSecurityModeRejectMsg copies the next Srnti to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractSrntiFromSecurityModeRejectMsg(TarnMsg *msg, TarnSrnti *value);

/* TarnAppendAcUeIdToSecurityModeRejectMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendAcUeIdToSecurityModeRejectMsg(TarnMsg *msg, const TarnAcUeId *value);

/* TarnExtractAcUeIdFromSecurityModeRejectMsg copies the next AcUeId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractAcUeIdFromSecurityModeRejectMsg(TarnMsg *msg, TarnAcUeId *value);

/* TarnAppendCnDomainIdToSecurityModeRejectMsg appends a copy of *value, returning 1 on success and
 * 0 if invalid. */
uint32_t TarnAppendCnDomainIdToSecurityModeRejectMsg(TarnMsg *msg, const TarnCnDomainId *value);

/* TarnExtractCnDomainIdFromSecurityModeRejectMsg copies the next CnDomainId to *value, returning 1
 * on success and 0 if there is none. */
uint32_t TarnExtractCnDomainIdFromSecurityModeRejectMsg(TarnMsg *msg, TarnCnDomainId *value);

/* TarnAppendSecRejCauseToSecurityModeRejectMsg appends a copy of *value, returning 1 on success and
 * 0 if invalid. */
uint32_t TarnAppendSecRejCauseToSecurityModeRejectMsg(TarnMsg *msg, const TarnSecRejCause *value);

/* TarnExtractSecRejCauseFromSecurityModeRejectMsg copies the next SecRejCause to *value, returning
 * 1 on success and 0 if there is none. */
uint32_t TarnExtractSecRejCauseFromSecurityModeRejectMsg(TarnMsg *msg, TarnSecRejCause *value);

/* TarnIsSecurityModeRejectMsgValid returns 1 if msg is a valid SecurityModeReject, and 0
 * otherwise. */
uint32_t TarnIsSecurityModeRejectMsgValid(const TarnMsg *msg);

/* TarnPackSecurityModeRejectMsg writes msg to buffer, returning 1 on success and 0 on failure. */
uint32_t TarnPackSecurityModeRejectMsg(const TarnMsg *msg, uint8_t *buffer, uint32_t size);

/* TarnUnpackSecurityModeRejectMsg returns a new message read from buffer, owned by the caller, or
 * null. */
TarnMsg *TarnUnpackSecurityModeRejectMsg(const uint8_t *buffer, uint32_t length);

/* TarnBuildSecurityModeRejectMsg packs *record into buffer, returning the bytes written and 0 on
 * failure. */
uint32_t TarnBuildSecurityModeRejectMsg(uint8_t *buffer, uint32_t size,
                                        const TarnSecurityModeRejectRecord *record);

/* TarnGetSecurityModeRejectMsg unpacks buffer into *record, returning 1 on success and 0 on
 * failure. */
uint32_t TarnGetSecurityModeRejectMsg(const uint8_t *buffer, uint32_t length,
                                      TarnSecurityModeRejectRecord *record);

/* ---- RabAssignmentRequest, id 13 ----------------------------------------------------------------
 * AC to AP: sets up RABs.
 *
 *   Srnti       tag 1    mandatory
 *   AcUeId      tag 3    mandatory
 *   CnDomainId  tag 6    mandatory
 *   RabList     tag 21   composite, mandatory
 *
 * Build writes 34295 bytes at most. The record takes about 11 KiB of the caller's memory. */

enum { TarnRabAssignmentRequestMsgId = 13 };

typedef struct TarnRabAssignmentRequestRecord {
    uint8_t MessageId;
    uint8_t presence; /* no bit in use */
    TarnSrnti Srnti;
    TarnAcUeId AcUeId;
    TarnCnDomainId CnDomainId;
    TarnRabListRecord RabList;
} TarnRabAssignmentRequestRecord;

/* TarnNewRabAssignmentRequestMsg returns a new message that holds its MessageId, owned by the
 * caller. */
TarnMsg *TarnNewRabAssignmentRequestMsg(void);

/* TarnAppendMessageIdToRabAssignmentRequestMsg appends a further MessageId, returning 1. */
uint32_t TarnAppendMessageIdToRabAssignmentRequestMsg(TarnMsg *msg, TarnMessageId value);

/* TarnExtractMessageIdFromRabAssignmentRequestMsg copies the next MessageId to *value, returning 1
 * on success and 0 if there is none. */
uint32_t TarnExtractMessageIdFromRabAssignmentRequestMsg(TarnMsg *msg, TarnMessageId *value);

/* TarnAppendSrntiToRabAssignmentRequestMsg appends a copy of *value, returning 1 on success and 0
 * if invalid. */
uint32_t TarnAppendSrntiToRabAssignmentRequestMsg(TarnMsg *msg, const TarnSrnti *value);

/* TarnExtractSrntiFromRabAssignmentRequestMsg copies the next Srnti to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractSrntiFromRabAssignmentRequestMsg(TarnMsg *msg, TarnSrnti *value);

/* TarnAppendAcUeIdToRabAssignmentRequestMsg appends a copy of *value, returning 1 on success and 0
 * if invalid. */
uint32_t TarnAppendAcUeIdToRabAssignmentRequestMsg(TarnMsg *msg, const TarnAcUeId *value);

/* TarnExtractAcUeIdFromRabAssignmentRequestMsg copies the next AcUeId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractAcUeIdFromRabAssignmentRequestMsg(TarnMsg *msg, TarnAcUeId *value);

/* TarnAppendCnDomainIdToRabAssignmentRequestMsg appends a copy of *value, returning 1 on success
 * and 0 if invalid. */
uint32_t TarnAppendCnDomainIdToRabAssignmentRequestMsg(TarnMsg *msg, const TarnCnDomainId *value);

/* TarnExtractCnDomainIdFromRabAssignmentRequestMsg copies the next CnDomainId to *value, returning
 * 1 on success and 0 if there is none. */
uint32_t TarnExtractCnDomainIdFromRabAssignmentRequestMsg(TarnMsg *msg, TarnCnDomainId *value);

/* TarnAppendRabListIeToRabAssignmentRequestMsg appends ie itself, unchecked, and takes it over,
 * returning 1. */
uint32_t TarnAppendRabListIeToRabAssignmentRequestMsg(TarnMsg *msg, TarnRabListIe *ie);

/* TarnExtractRabListIeFromRabAssignmentRequestMsg lends the next RabList in *ie, returning 1 on
 * success and 0, with *ie null, if there is none. */
uint32_t TarnExtractRabListIeFromRabAssignmentRequestMsg(TarnMsg *msg, TarnRabListIe **ie);

/* TarnIsRabAssignmentRequestMsgValid returns 1 if msg is a valid RabAssignmentRequest, and 0
 * otherwise. */
uint32_t TarnIsRabAssignmentRequestMsgValid(const TarnMsg *msg);

/* TarnPackRabAssignmentRequestMsg writes msg to buffer, returning 1 on success and 0 on failure. */
uint32_t TarnPackRabAssignmentRequestMsg(const TarnMsg *msg, uint8_t *buffer, uint32_t size);

/* TarnUnpackRabAssignmentRequestMsg returns a new message read from buffer, owned by the caller, or
 * null. */
TarnMsg *TarnUnpackRabAssignmentRequestMsg(const uint8_t *buffer, uint32_t length);

/* TarnBuildRabAssignmentRequestMsg packs *record into buffer, returning the bytes written and 0 on
 * failure. */
uint32_t TarnBuildRabAssignmentRequestMsg(uint8_t *buffer, uint32_t size,
                                          const TarnRabAssignmentRequestRecord *record);

/* TarnGetRabAssignmentRequestMsg unpacks buffer into *record, returning 1 on success and 0 on
 * failure. */
uint32_t TarnGetRabAssignmentRequestMsg(const uint8_t *buffer, uint32_t length,
                                        TarnRabAssignmentRequestRecord *record);

/* ---- RabAssignmentResponse, id 14 ---------------------------------------------------------------
 * AP to AC: tells which RABs were set up.
 *
 *   Srnti                tag 1    mandatory
 *   AcUeId               tag 3    mandatory
 *   CnDomainId           tag 6    mandatory
 *   RabSetupSuccessList  tag 57   composite, optional
 *   RabSetupFailedList   tag 63   optional
 *
 * Build writes 203 bytes at most. */

enum { TarnRabAssignmentResponseMsgId = 14 };

typedef struct TarnRabAssignmentResponseRecord {
    uint8_t MessageId;
    uint8_t presence;
    TarnSrnti Srnti;
    TarnAcUeId AcUeId;
    TarnCnDomainId CnDomainId;
    TarnRabSetupSuccessListRecord RabSetupSuccessList; /* 0x80 */
    TarnRabSetupFailedList RabSetupFailedList;         /* 0x40 */
} TarnRabAssignmentResponseRecord;

enum {
    TarnRabAssignmentResponseHasRabSetupSuccessList = 0x80,
    TarnRabAssignmentResponseHasRabSetupFailedList = 0x40,
};

/* TarnNewRabAssignmentResponseMsg returns a new message that holds its MessageId, owned by the
 * caller. */
TarnMsg *TarnNewRabAssignmentResponseMsg(void);

/* TarnAppendMessageIdToRabAssignmentResponseMsg appends a further MessageId, returning 1. */
uint32_t TarnAppendMessageIdToRabAssignmentResponseMsg(TarnMsg *msg, TarnMessageId value);

/* TarnExtractMessageIdFromRabAssignmentResponseMsg copies the next MessageId to *value, returning 1
 * on success and 0 if there is none. */
uint32_t TarnExtractMessageIdFromRabAssignmentResponseMsg(TarnMsg *msg, TarnMessageId *value);

/* TarnAppendSrntiToRabAssignmentResponseMsg appends a copy of *value, returning 1 on success and 0
 * if invalid. */
uint32_t TarnAppendSrntiToRabAssignmentResponseMsg(TarnMsg *msg, const TarnSrnti *value);

/* TarnExtractSrntiFromRabAssignmentResponseMsg copies the next Srnti to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractSrntiFromRabAssignmentResponseMsg(TarnMsg *msg, TarnSrnti *value);

/* TarnAppendAcUeIdToRabAssignmentResponseMsg appends a copy of *value, returning 1 on success and 0
 * if invalid. */
uint32_t TarnAppendAcUeIdToRabAssignmentResponseMsg(TarnMsg *msg, const TarnAcUeId *value);

/* TarnExtractAcUeIdFromRabAssignmentResponseMsg copies the next AcUeId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractAcUeIdFromRabAssignmentResponseMsg(TarnMsg *msg, TarnAcUeId *value);

/* TarnAppendCnDomainIdToRabAssignmentResponseMsg appends a copy of *value, returning 1 on success
 * and 0 if invalid. */
uint32_t TarnAppendCnDomainIdToRabAssignmentResponseMsg(TarnMsg *msg, const TarnCnDomainId *value);

/* TarnExtractCnDomainIdFromRabAssignmentResponseMsg copies the next CnDomainId to *value, returning
 * 1 on success and 0 if there is none. */
uint32_t TarnExtractCnDomainIdFromRabAssignmentResponseMsg(TarnMsg *msg, TarnCnDomainId *value);

/* TarnAppendRabSetupSuccessListIeToRabAssignmentResponseMsg appends ie itself, unchecked, and takes
 * it over, returning 1. */
uint32_t TarnAppendRabSetupSuccessListIeToRabAssignmentResponseMsg(TarnMsg *msg,
                                                                   TarnRabSetupSuccessListIe *ie);

/* TarnExtractRabSetupSuccessListIeFromRabAssignmentResponseMsg lends the next RabSetupSuccessList
 * in *ie, returning 1 on success and 0, with *ie null, if there is none. */
uint32_t
TarnExtractRabSetupSuccessListIeFromRabAssignmentResponseMsg(TarnMsg *msg,
                                                             TarnRabSetupSuccessListIe **ie);

/* TarnAppendRabSetupFailedListToRabAssignmentResponseMsg appends a copy of *value, returning 1 on
 * success and 0 if invalid. */
uint32_t
TarnAppendRabSetupFailedListToRabAssignmentResponseMsg(TarnMsg *msg,
                                                       const TarnRabSetupFailedList *value);

/* TarnExtractRabSetupFailedListFromRabAssignmentResponseMsg copies the next RabSetupFailedList to
 * *value, returning 1 on success and 0 if there is none. */
uint32_t TarnExtractRabSetupFailedListFromRabAssignmentResponseMsg(TarnMsg *msg,
                                                                   TarnRabSetupFailedList *value);

/* TarnIsRabAssignmentResponseMsgValid returns 1 if msg is a valid RabAssignmentResponse, and 0
 * otherwise. */
uint32_t TarnIsRabAssignmentResponseMsgValid(const TarnMsg *msg);

/* TarnPackRabAssignmentResponseMsg writes msg to buffer, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackRabAssignmentResponseMsg(const TarnMsg *msg, uint8_t *buffer, uint32_t size);

/* TarnUnpackRabAssignmentResponseMsg returns a new message read from buffer, owned by the caller,
 * or null. */
TarnMsg *TarnUnpackRabAssignmentResponseMsg(const uint8_t *buffer, uint32_t length);

/* TarnBuildRabAssignmentResponseMsg packs *record into buffer, returning the bytes written and 0 on
 * failure. */
uint32_t TarnBuildRabAssignmentResponseMsg(uint8_t *buffer, uint32_t size,
                                           const TarnRabAssignmentResponseRecord *record);

/* TarnGetRabAssignmentResponseMsg unpacks buffer into *record, returning 1 on success and 0 on
 * failure. */
uint32_t TarnGetRabAssignmentResponseMsg(const uint8_t *buffer, uint32_t length,
                                         TarnRabAssignmentResponseRecord *record);

/* ---- RabReleaseRequest, id 15 -------------------------------------------------------------------
 * Releases RABs.
 *
 *   Srnti           tag 1    mandatory
 *   AcUeId          tag 3    mandatory
 *   CnDomainId      tag 6    mandatory
 *   RabReleaseList  tag 66   mandatory
 *
 * Build writes 104 bytes at most. */

enum { TarnRabReleaseRequestMsgId = 15 };

typedef struct TarnRabReleaseRequestRecord {
    uint8_t MessageId;
    uint8_t presence; /* no bit in use */
    TarnSrnti Srnti;
    TarnAcUeId AcUeId;
    TarnCnDomainId CnDomainId;
    TarnRabReleaseList RabReleaseList;
} TarnRabReleaseRequestRecord;

/* TarnNewRabReleaseRequestMsg returns a new message that holds its MessageId, owned by the
 * caller. */
TarnMsg *TarnNewRabReleaseRequestMsg(void);

/* TarnAppendMessageIdToRabReleaseRequestMsg appends a further MessageId, returning 1. */
uint32_t TarnAppendMessageIdToRabReleaseRequestMsg(TarnMsg *msg, TarnMessageId value);

/* TarnExtractMessageIdFromRabReleaseRequestMsg copies the next MessageId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractMessageIdFromRabReleaseRequestMsg(TarnMsg *msg, TarnMessageId *value);

/* TarnAppendSrntiToRabReleaseRequestMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendSrntiToRabReleaseRequestMsg(TarnMsg *msg, const TarnSrnti *value);

/* TarnExtractSrntiFromRabReleaseRequestMsg copies the next Srnti to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractSrntiFromRabReleaseRequestMsg(TarnMsg *msg, TarnSrnti *value);

/* TarnAppendAcUeIdToRabReleaseRequestMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendAcUeIdToRabReleaseRequestMsg(TarnMsg *msg, const TarnAcUeId *value);

/* TarnExtractAcUeIdFromRabReleaseRequestMsg copies the next AcUeId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractAcUeIdFromRabReleaseRequestMsg(TarnMsg *msg, TarnAcUeId *value);

/* TarnAppendCnDomainIdToRabReleaseRequestMsg appends a copy of *value, returning 1 on success and 0
 * if invalid. */
uint32_t TarnAppendCnDomainIdToRabReleaseRequestMsg(TarnMsg *msg, const TarnCnDomainId *value);

/* TarnExtractCnDomainIdFromRabReleaseRequestMsg copies the next CnDomainId to *value, returning 1
 * on success and 0 if there is none. */
uint32_t TarnExtractCnDomainIdFromRabReleaseRequestMsg(TarnMsg *msg, TarnCnDomainId *value);

/* TarnAppendRabReleaseListToRabReleaseRequestMsg appends a copy of *value, returning 1 on success
 * and 0 if invalid. */
uint32_t TarnAppendRabReleaseListToRabReleaseRequestMsg(TarnMsg *msg,
                                                        const TarnRabReleaseList *value);

/* TarnExtractRabReleaseListFromRabReleaseRequestMsg copies the next RabReleaseList to *value,
 * returning 1 on success and 0 if there is none. */
uint32_t TarnExtractRabReleaseListFromRabReleaseRequestMsg(TarnMsg *msg, TarnRabReleaseList *value);

/* TarnIsRabReleaseRequestMsgValid returns 1 if msg is a valid RabReleaseRequest, and 0
 * otherwise. */
uint32_t TarnIsRabReleaseRequestMsgValid(const TarnMsg *msg);

/* TarnPackRabReleaseRequestMsg writes msg to buffer, returning 1 on success and 0 on failure. */
uint32_t TarnPackRabReleaseRequestMsg(const TarnMsg *msg, uint8_t *buffer, uint32_t size);

/* TarnUnpackRabReleaseRequestMsg returns a new message read from buffer, owned by the caller, or
 * null. */
TarnMsg *TarnUnpackRabReleaseRequestMsg(const uint8_t *buffer, uint32_t length);

/* TarnBuildRabReleaseRequestMsg packs *record into buffer, returning the bytes written and 0 on
 * failure. */
uint32_t TarnBuildRabReleaseRequestMsg(uint8_t *buffer, uint32_t size,
                                       const TarnRabReleaseRequestRecord *record);

/* TarnGetRabReleaseRequestMsg unpacks buffer into *record, returning 1 on success and 0 on
 * failure. */
uint32_t TarnGetRabReleaseRequestMsg(const uint8_t *buffer, uint32_t length,
                                     TarnRabReleaseRequestRecord *record);

/* ---- RabReleaseResponse, id 16 ------------------------------------------------------------------
 * Tells which RABs were released.
 *
 *   Srnti            tag 1    mandatory
 *   AcUeId           tag 3    mandatory
 *   CnDomainId       tag 6    mandatory
 *   RabDataInfoList  tag 102  composite, optional
 *   RabIdList        tag 167  optional
 *
 * Build writes 167 bytes at most. */

enum { TarnRabReleaseResponseMsgId = 16 };

typedef struct TarnRabReleaseResponseRecord {
    uint8_t MessageId;
    uint8_t presence;
    TarnSrnti Srnti;
    TarnAcUeId AcUeId;
    TarnCnDomainId CnDomainId;
    TarnRabDataInfoListRecord RabDataInfoList; /* 0x80 */
    TarnRabIdList RabIdList;                   /* 0x40 */
} TarnRabReleaseResponseRecord;

enum {
    TarnRabReleaseResponseHasRabDataInfoList = 0x80,
    TarnRabReleaseResponseHasRabIdList = 0x40,
};

/* TarnNewRabReleaseResponseMsg returns a new message that holds its MessageId, owned by the
 * caller. */
TarnMsg *TarnNewRabReleaseResponseMsg(void);

/* TarnAppendMessageIdToRabReleaseResponseMsg appends a further MessageId, returning 1. */
uint32_t TarnAppendMessageIdToRabReleaseResponseMsg(TarnMsg *msg, TarnMessageId value);

/* TarnExtractMessageIdFromRabReleaseResponseMsg copies the next MessageId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractMessageIdFromRabReleaseResponseMsg(TarnMsg *msg, TarnMessageId *value);

/* TarnAppendSrntiToRabReleaseResponseMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendSrntiToRabReleaseResponseMsg(TarnMsg *msg, const TarnSrnti *value);

/* TarnExtractSrntiFromRabReleaseResponseMsg copies the next Srnti to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractSrntiFromRabReleaseResponseMsg(TarnMsg *msg, TarnSrnti *value);

/* TarnAppendAcUeIdToRabReleaseResponseMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendAcUeIdToRabReleaseResponseMsg(TarnMsg *msg, const TarnAcUeId *value);

/* TarnExtractAcUeIdFromRabReleaseResponseMsg copies the next AcUeId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractAcUeIdFromRabReleaseResponseMsg(TarnMsg *msg, TarnAcUeId *value);

/* TarnAppendCnDomainIdToRabReleaseResponseMsg appends a copy of *value, returning 1 on success and
 * 0 if invalid. */
uint32_t TarnAppendCnDomainIdToRabReleaseResponseMsg(TarnMsg *msg, const TarnCnDomainId *value);

/* TarnExtractCnDomainIdFromRabReleaseResponseMsg copies the next CnDomainId to *value, returning 1
 * on success and 0 if there is none. */
uint32_t TarnExtractCnDomainIdFromRabReleaseResponseMsg(TarnMsg *msg, TarnCnDomainId *value);

/* TarnAppendRabDataInfoListIeToRabReleaseResponseMsg appends ie itself, unchecked, and takes it
 * over, returning 1. */
uint32_t TarnAppendRabDataInfoListIeToRabReleaseResponseMsg(TarnMsg *msg,
                                                            TarnRabDataInfoListIe *ie);

/* TarnExtractRabDataInfoListIeFromRabReleaseResponseMsg lends the next RabDataInfoList in *ie,
 * returning 1 on success and 0, with *ie null, if there is none. */
uint32_t TarnExtractRabDataInfoListIeFromRabReleaseResponseMsg(TarnMsg *msg,
                                                               TarnRabDataInfoListIe **ie);

/* TarnAppendRabIdListToRabReleaseResponseMsg appends a copy of *value, returning 1 on success and 0
 * if invalid. */
uint32_t TarnAppendRabIdListToRabReleaseResponseMsg(TarnMsg *msg, const TarnRabIdList *value);

/* TarnExtractRabIdListFromRabReleaseResponseMsg copies the next RabIdList to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractRabIdListFromRabReleaseResponseMsg(TarnMsg *msg, TarnRabIdList *value);

/* TarnIsRabReleaseResponseMsgValid returns 1 if msg is a valid RabReleaseResponse, and 0
 * otherwise. */
uint32_t TarnIsRabReleaseResponseMsgValid(const TarnMsg *msg);

/* TarnPackRabReleaseResponseMsg writes msg to buffer, returning 1 on success and 0 on failure. */
uint32_t TarnPackRabReleaseResponseMsg(const TarnMsg *msg, uint8_t *buffer, uint32_t size);

/* TarnUnpackRabReleaseResponseMsg returns a new message read from buffer, owned by the caller, or
 * null. */
TarnMsg *TarnUnpackRabReleaseResponseMsg(const uint8_t *buffer, uint32_t length);

/* TarnBuildRabReleaseResponseMsg packs *record into buffer, returning the bytes written and 0 on
 * failure. */
uint32_t TarnBuildRabReleaseResponseMsg(uint8_t *buffer, uint32_t size,
                                        const TarnRabReleaseResponseRecord *record);

/* TarnGetRabReleaseResponseMsg unpacks buffer into *record, returning 1 on success and 0 on
 * failure. */
uint32_t TarnGetRabReleaseResponseMsg(const uint8_t *buffer, uint32_t length,
                                      TarnRabReleaseResponseRecord *record);

/* ---- Reset, id 17 -------------------------------------------------------------------------------
 * Resets one core network domain.
 *
 *   CnDomainId  tag 6    mandatory
 *
 * Build writes 15 bytes at most. */

enum { TarnResetMsgId = 17 };

typedef struct TarnResetRecord {
    uint8_t MessageId;
    uint8_t presence; /* no bit in use */
    TarnCnDomainId CnDomainId;
} TarnResetRecord;

/* TarnNewResetMsg returns a new message that holds its MessageId, owned by the caller. */
TarnMsg *TarnNewResetMsg(void);

/* TarnAppendMessageIdToResetMsg appends a further MessageId, returning 1. */
uint32_t TarnAppendMessageIdToResetMsg(TarnMsg *msg, TarnMessageId value);

/* TarnExtractMessageIdFromResetMsg copies the next MessageId to *value, returning 1 on success and
 * 0 if there is none. */
uint32_t TarnExtractMessageIdFromResetMsg(TarnMsg *msg, TarnMessageId *value);

/* TarnAppendCnDomainIdToResetMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendCnDomainIdToResetMsg(TarnMsg *msg, const TarnCnDomainId *value);

/* TarnExtractCnDomainIdFromResetMsg copies the next CnDomainId to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractCnDomainIdFromResetMsg(TarnMsg *msg, TarnCnDomainId *value);

/* TarnIsResetMsgValid returns 1 if msg is a valid Reset, and 0 otherwise. */
uint32_t TarnIsResetMsgValid(const TarnMsg *msg);

/* TarnPackResetMsg writes msg to buffer, returning 1 on success and 0 on failure. */
uint32_t TarnPackResetMsg(const TarnMsg *msg, uint8_t *buffer, uint32_t size);

/* TarnUnpackResetMsg returns a new message read from buffer, owned by the caller, or null. */
TarnMsg *TarnUnpackResetMsg(const uint8_t *buffer, uint32_t length);

/* TarnBuildResetMsg packs *record into buffer, returning the bytes written and 0 on failure. */
uint32_t TarnBuildResetMsg(uint8_t *buffer, uint32_t size, const TarnResetRecord *record);

/* TarnGetResetMsg unpacks buffer into *record, returning 1 on success and 0 on failure. */
uint32_t TarnGetResetMsg(const uint8_t *buffer, uint32_t length, TarnResetRecord *record);

/* ---- IapReset, id 18 ----------------------------------------------------------------------------
 * Resets the access point or the UE contexts listed.
 *
 *   ErrorCause    tag 73   mandatory
 *   Reset3GAP     tag 100  mandatory
 *   UeContextRef  tag 95   composite, one or more exactly if Reset3GAP is anything but 1
 *
 * Any number of UeContextRef may be appended and validates, but unpacking, Build and Get carry the
 * first one alone.
 *
 * Unpacking leaves out a conditional IE that is invalid or whose condition does not hold, and fails
 * if something else stands in its place although its condition holds. A message that ends before it
 * unpacks.
 *
 * Build writes 154 bytes at most. */

enum { TarnIapResetMsgId = 18 };

typedef struct TarnIapResetRecord {
    uint8_t MessageId;
    uint8_t presence;
    TarnErrorCause ErrorCause;
    TarnReset3GAP Reset3GAP;
    TarnUeContextRefRecord UeContextRef; /* 0x80 */
} TarnIapResetRecord;

enum { TarnIapResetHasUeContextRef = 0x80 };

/* TarnNewIapResetMsg returns a new message that holds its MessageId, owned by the caller. */
TarnMsg *TarnNewIapResetMsg(void);

/* TarnAppendMessageIdToIapResetMsg appends a further MessageId, returning 1. */
uint32_t TarnAppendMessageIdToIapResetMsg(TarnMsg *msg, TarnMessageId value);

/* TarnExtractMessageIdFromIapResetMsg copies the next MessageId to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractMessageIdFromIapResetMsg(TarnMsg *msg, TarnMessageId *value);

/* TarnAppendErrorCauseToIapResetMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendErrorCauseToIapResetMsg(TarnMsg *msg, const TarnErrorCause *value);

/* TarnExtractErrorCauseFromIapResetMsg copies the next ErrorCause to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractErrorCauseFromIapResetMsg(TarnMsg *msg, TarnErrorCause *value);

/* TarnAppendReset3GAPToIapResetMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendReset3GAPToIapResetMsg(TarnMsg *msg, const TarnReset3GAP *value);

/* TarnExtractReset3GAPFromIapResetMsg copies the next Reset3GAP to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractReset3GAPFromIapResetMsg(TarnMsg *msg, TarnReset3GAP *value);

/* TarnAppendUeContextRefIeToIapResetMsg appends ie itself, unchecked, and takes it over, returning
 * 1. */
uint32_t TarnAppendUeContextRefIeToIapResetMsg(TarnMsg *msg, TarnUeContextRefIe *ie);

/* TarnExtractUeContextRefIeFromIapResetMsg lends the next UeContextRef in *ie, returning 1 on
 * success and 0, with *ie null, if there is none. */
uint32_t TarnExtractUeContextRefIeFromIapResetMsg(TarnMsg *msg, TarnUeContextRefIe **ie);

/* TarnIsIapResetMsgValid returns 1 if msg is a valid IapReset, and 0 otherwise. */
uint32_t TarnIsIapResetMsgValid(const TarnMsg *msg);

/* TarnPackIapResetMsg writes msg to buffer, returning 1 on success and 0 on failure. */
uint32_t TarnPackIapResetMsg(const TarnMsg *msg, uint8_t *buffer, uint32_t size);

/* TarnUnpackIapResetMsg returns a new message read from buffer, owned by the caller, or null. */
TarnMsg *TarnUnpackIapResetMsg(const uint8_t *buffer, uint32_t length);

/* TarnBuildIapResetMsg packs *record into buffer, returning the bytes written and 0 on failure. */
uint32_t TarnBuildIapResetMsg(uint8_t *buffer, uint32_t size, const TarnIapResetRecord *record);

/* TarnGetIapResetMsg unpacks buffer into *record, returning 1 on success and 0 on failure. */
uint32_t TarnGetIapResetMsg(const uint8_t *buffer, uint32_t length, TarnIapResetRecord *record);

/* ---- ConnectedModePaging, id 19 -----------------------------------------------------------------
 * AC to AP: pages a UE that has a UE context.
 *
 *   Srnti                tag 1    mandatory
 *   AcUeId               tag 3    mandatory
 *   NasUeId              tag 92   mandatory
 *   CnDomainId           tag 6    mandatory
 *   PagingCause          tag 74   mandatory
 *   PagingRecordTypeInd  tag 75   mandatory
 *
 * Build writes 65 bytes at most. */

enum { TarnConnectedModePagingMsgId = 19 };

typedef struct TarnConnectedModePagingRecord {
    uint8_t MessageId;
    uint8_t presence; /* no bit in use */
    TarnSrnti Srnti;
    TarnAcUeId AcUeId;
    TarnNasUeId NasUeId;
    TarnCnDomainId CnDomainId;
    TarnPagingCause PagingCause;
    TarnPagingRecordTypeInd PagingRecordTypeInd;
} TarnConnectedModePagingRecord;

/* TarnNewConnectedModePagingMsg returns a new message that holds its MessageId, owned by the
 * caller. */
TarnMsg *TarnNewConnectedModePagingMsg(void);

/* TarnAppendMessageIdToConnectedModePagingMsg appends a further MessageId, returning 1. */
uint32_t TarnAppendMessageIdToConnectedModePagingMsg(TarnMsg *msg, TarnMessageId value);

/* TarnExtractMessageIdFromConnectedModePagingMsg copies the next MessageId to *value, returning 1
 * on success and 0 if there is none. */
uint32_t TarnExtractMessageIdFromConnectedModePagingMsg(TarnMsg *msg, TarnMessageId *value);

/* TarnAppendSrntiToConnectedModePagingMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendSrntiToConnectedModePagingMsg(TarnMsg *msg, const TarnSrnti *value);

/* TarnExtractSrntiFromConnectedModePagingMsg copies the next Srnti to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractSrntiFromConnectedModePagingMsg(TarnMsg *msg, TarnSrnti *value);

/* TarnAppendAcUeIdToConnectedModePagingMsg appends a copy of *value, returning 1 on success and 0
 * if invalid. */
uint32_t TarnAppendAcUeIdToConnectedModePagingMsg(TarnMsg *msg, const TarnAcUeId *value);

/* TarnExtractAcUeIdFromConnectedModePagingMsg copies the next AcUeId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractAcUeIdFromConnectedModePagingMsg(TarnMsg *msg, TarnAcUeId *value);

/* TarnAppendNasUeIdToConnectedModePagingMsg appends a copy of *value, returning 1 on success and 0
 * if invalid. */
uint32_t TarnAppendNasUeIdToConnectedModePagingMsg(TarnMsg *msg, const TarnNasUeId *value);

/* TarnExtractNasUeIdFromConnectedModePagingMsg copies the next NasUeId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractNasUeIdFromConnectedModePagingMsg(TarnMsg *msg, TarnNasUeId *value);

/* TarnAppendCnDomainIdToConnectedModePagingMsg appends a copy of *value, returning 1 on success and
 * 0 if invalid. */
uint32_t TarnAppendCnDomainIdToConnectedModePagingMsg(TarnMsg *msg, const TarnCnDomainId *value);

/* TarnExtractCnDomainIdFromConnectedModePagingMsg copies the next CnDomainId to *value, returning 1
 * on success and 0 if there is none. */
uint32_t TarnExtractCnDomainIdFromConnectedModePagingMsg(TarnMsg *msg, TarnCnDomainId *value);

/* TarnAppendPagingCauseToConnectedModePagingMsg appends a copy of *value, returning 1 on success
 * and 0 if invalid. */
uint32_t TarnAppendPagingCauseToConnectedModePagingMsg(TarnMsg *msg, const TarnPagingCause *value);

/* TarnExtractPagingCauseFromConnectedModePagingMsg copies the next PagingCause to *value, returning
 * 1 on success and 0 if there is none. */
uint32_t TarnExtractPagingCauseFromConnectedModePagingMsg(TarnMsg *msg, TarnPagingCause *value);

/* TarnAppendPagingRecordTypeIndToConnectedModePagingMsg appends a copy of *value, returning 1 on
 * success and 0 if invalid. */
uint32_t
TarnAppendPagingRecordTypeIndToConnectedModePagingMsg(TarnMsg *msg,
                                                      const TarnPagingRecordTypeInd *value);

/* TarnExtractPagingRecordTypeIndFromConnectedModePagingMsg copies the next PagingRecordTypeInd to
 * *value, returning 1 on success and 0 if there is none. */
uint32_t TarnExtractPagingRecordTypeIndFromConnectedModePagingMsg(TarnMsg *msg,
                                                                  TarnPagingRecordTypeInd *value);

/* TarnIsConnectedModePagingMsgValid returns 1 if msg is a valid ConnectedModePaging, and 0
 * otherwise. */
uint32_t TarnIsConnectedModePagingMsgValid(const TarnMsg *msg);

/* TarnPackConnectedModePagingMsg writes msg to buffer, returning 1 on success and 0 on failure. */
uint32_t TarnPackConnectedModePagingMsg(const TarnMsg *msg, uint8_t *buffer, uint32_t size);

/* TarnUnpackConnectedModePagingMsg returns a new message read from buffer, owned by the caller, or
 * null. */
TarnMsg *TarnUnpackConnectedModePagingMsg(const uint8_t *buffer, uint32_t length);

/* TarnBuildConnectedModePagingMsg packs *record into buffer, returning the bytes written and 0 on
 * failure. */
uint32_t TarnBuildConnectedModePagingMsg(uint8_t *buffer, uint32_t size,
                                         const TarnConnectedModePagingRecord *record);

/* TarnGetConnectedModePagingMsg unpacks buffer into *record, returning 1 on success and 0 on
 * failure. */
uint32_t TarnGetConnectedModePagingMsg(const uint8_t *buffer, uint32_t length,
                                       TarnConnectedModePagingRecord *record);

/* ---- IdleModePaging, id 20 ----------------------------------------------------------------------
 * AC to AP: pages a UE that has none.
 *
 *   NasUeId           tag 92   mandatory
 *   CnDomainId        tag 6    mandatory
 *   PagingCause       tag 74   mandatory
 *   DrxCycleLenCoeff  tag 76   optional
 *   TempUeId          tag 77   optional
 *
 * Build writes 69 bytes at most. */

enum { TarnIdleModePagingMsgId = 20 };

typedef struct TarnIdleModePagingRecord {
    uint8_t MessageId;
    uint8_t presence;
    TarnNasUeId NasUeId;
    TarnCnDomainId CnDomainId;
    TarnPagingCause PagingCause;
    TarnDrxCycleLenCoeff DrxCycleLenCoeff; /* 0x80 */
    TarnTempUeId TempUeId;                 /* 0x40 */
} TarnIdleModePagingRecord;

enum {
    TarnIdleModePagingHasDrxCycleLenCoeff = 0x80,
    TarnIdleModePagingHasTempUeId = 0x40,
};

/* TarnNewIdleModePagingMsg returns a new message that holds its MessageId, owned by the caller. */
TarnMsg *TarnNewIdleModePagingMsg(void);

/* TarnAppendMessageIdToIdleModePagingMsg appends a further MessageId, returning 1. */
uint32_t TarnAppendMessageIdToIdleModePagingMsg(TarnMsg *msg, TarnMessageId value);

/* TarnExtractMessageIdFromIdleModePagingMsg copies the next MessageId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractMessageIdFromIdleModePagingMsg(TarnMsg *msg, TarnMessageId *value);

/* TarnAppendNasUeIdToIdleModePagingMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendNasUeIdToIdleModePagingMsg(TarnMsg *msg, const TarnNasUeId *value);

/* TarnExtractNasUeIdFromIdleModePagingMsg copies the next NasUeId to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractNasUeIdFromIdleModePagingMsg(TarnMsg *msg, TarnNasUeId *value);

/* TarnAppendCnDomainIdToIdleModePagingMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendCnDomainIdToIdleModePagingMsg(TarnMsg *msg, const TarnCnDomainId *value);

/* TarnExtractCnDomainIdFromIdleModePagingMsg copies the next CnDomainId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractCnDomainIdFromIdleModePagingMsg(TarnMsg *msg, TarnCnDomainId *value);

/* TarnAppendPagingCauseToIdleModePagingMsg appends a copy of *value, returning 1 on success and 0
 * if invalid. */
uint32_t TarnAppendPagingCauseToIdleModePagingMsg(TarnMsg *msg, const TarnPagingCause *value);

/* TarnExtractPagingCauseFromIdleModePagingMsg copies the next PagingCause to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractPagingCauseFromIdleModePagingMsg(TarnMsg *msg, TarnPagingCause *value);

/* TarnAppendDrxCycleLenCoeffToIdleModePagingMsg appends a copy of *value, returning 1 on success
 * and 0 if invalid. */
uint32_t TarnAppendDrxCycleLenCoeffToIdleModePagingMsg(TarnMsg *msg,
                                                       const TarnDrxCycleLenCoeff *value);

/* TarnExtractDrxCycleLenCoeffFromIdleModePagingMsg copies the next DrxCycleLenCoeff to *value,
 * returning 1 on success and 0 if there is none. */
uint32_t TarnExtractDrxCycleLenCoeffFromIdleModePagingMsg(TarnMsg *msg,
                                                          TarnDrxCycleLenCoeff *value);

/* TarnAppendTempUeIdToIdleModePagingMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendTempUeIdToIdleModePagingMsg(TarnMsg *msg, const TarnTempUeId *value);

/* TarnExtractTempUeIdFromIdleModePagingMsg copies the next TempUeId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractTempUeIdFromIdleModePagingMsg(TarnMsg *msg, TarnTempUeId *value);

/* TarnIsIdleModePagingMsgValid returns 1 if msg is a valid IdleModePaging, and 0 otherwise. */
uint32_t TarnIsIdleModePagingMsgValid(const TarnMsg *msg);

/* TarnPackIdleModePagingMsg writes msg to buffer, returning 1 on success and 0 on failure. */
uint32_t TarnPackIdleModePagingMsg(const TarnMsg *msg, uint8_t *buffer, uint32_t size);

/* TarnUnpackIdleModePagingMsg returns a new message read from buffer, owned by the caller, or
 * null. */
TarnMsg *TarnUnpackIdleModePagingMsg(const uint8_t *buffer, uint32_t length);

/* TarnBuildIdleModePagingMsg packs *record into buffer, returning the bytes written and 0 on
 * failure. */
uint32_t TarnBuildIdleModePagingMsg(uint8_t *buffer, uint32_t size,
                                    const TarnIdleModePagingRecord *record);

/* TarnGetIdleModePagingMsg unpacks buffer into *record, returning 1 on success and 0 on failure. */
uint32_t TarnGetIdleModePagingMsg(const uint8_t *buffer, uint32_t length,
                                  TarnIdleModePagingRecord *record);

/* ---- UserPlaneConfigRequest, id 21 --------------------------------------------------------------
 * Asks for a user plane to be configured.
 *
 *   Srnti                     tag 1    mandatory
 *   AcUeId                    tag 3    mandatory
 *   RtpStreamId               tag 91   mandatory
 *   AcUserPlaneAssociation    tag 24   mandatory
 *   ApUserPlaneAssociation    tag 44   mandatory
 *   AlcapLinkCharacteristics  tag 162  optional
 *   MaxBitRateUplink          tag 160  optional
 *   MaxBitRateDownlink        tag 161  optional
 *
 * Build writes 118 bytes at most. */

enum { TarnUserPlaneConfigRequestMsgId = 21 };

typedef struct TarnUserPlaneConfigRequestRecord {
    uint8_t MessageId;
    uint8_t presence;
    TarnSrnti Srnti;
    TarnAcUeId AcUeId;
    TarnRtpStreamId RtpStreamId;
    TarnAcUserPlaneAssociation AcUserPlaneAssociation;
    TarnApUserPlaneAssociation ApUserPlaneAssociation;
    TarnAlcapLinkCharacteristics AlcapLinkCharacteristics; /* 0x80 */
    TarnMaxBitRateUplink MaxBitRateUplink;                 /* 0x40 */
    TarnMaxBitRateDownlink MaxBitRateDownlink;             /* 0x20 */
} TarnUserPlaneConfigRequestRecord;

enum {
    TarnUserPlaneConfigRequestHasAlcapLinkCharacteristics = 0x80,
    TarnUserPlaneConfigRequestHasMaxBitRateUplink = 0x40,
    TarnUserPlaneConfigRequestHasMaxBitRateDownlink = 0x20,
};

/* TarnNewUserPlaneConfigRequestMsg returns a new message that holds its MessageId, owned by the
 * caller. */
TarnMsg *TarnNewUserPlaneConfigRequestMsg(void);

/* TarnAppendMessageIdToUserPlaneConfigRequestMsg appends a further MessageId, returning 1. */
uint32_t TarnAppendMessageIdToUserPlaneConfigRequestMsg(TarnMsg *msg, TarnMessageId value);

/* TarnExtractMessageIdFromUserPlaneConfigRequestMsg copies the next MessageId to *value, returning
 * 1 on success and 0 if there is none. */
uint32_t TarnExtractMessageIdFromUserPlaneConfigRequestMsg(TarnMsg *msg, TarnMessageId *value);

/* TarnAppendSrntiToUserPlaneConfigRequestMsg appends a copy of *value, returning 1 on success and 0
 * if invalid. */
uint32_t TarnAppendSrntiToUserPlaneConfigRequestMsg(TarnMsg *msg, const TarnSrnti *value);

/* TarnExtractSrntiFromUserPlaneConfigRequestMsg copies the next Srnti to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractSrntiFromUserPlaneConfigRequestMsg(TarnMsg *msg, TarnSrnti *value);

/* TarnAppendAcUeIdToUserPlaneConfigRequestMsg appends a copy of *value, returning 1 on success and
 * 0 if invalid. */
uint32_t TarnAppendAcUeIdToUserPlaneConfigRequestMsg(TarnMsg *msg, const TarnAcUeId *value);

/* TarnExtractAcUeIdFromUserPlaneConfigRequestMsg copies the next AcUeId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractAcUeIdFromUserPlaneConfigRequestMsg(TarnMsg *msg, TarnAcUeId *value);

/* TarnAppendRtpStreamIdToUserPlaneConfigRequestMsg appends a copy of *value, returning 1 on success
 * and 0 if invalid. */
uint32_t TarnAppendRtpStreamIdToUserPlaneConfigRequestMsg(TarnMsg *msg,
                                                          const TarnRtpStreamId *value);

/* TarnExtractRtpStreamIdFromUserPlaneConfigRequestMsg copies the next RtpStreamId to *value,
 * returning 1 on success and 0 if there is none. */
uint32_t TarnExtractRtpStreamIdFromUserPlaneConfigRequestMsg(TarnMsg *msg, TarnRtpStreamId *value);

/* TarnAppendAcUserPlaneAssociationToUserPlaneConfigRequestMsg appends a copy of *value, returning 1
 * on success and 0 if invalid. */
uint32_t TarnAppendAcUserPlaneAssociationToUserPlaneConfigRequestMsg(
    TarnMsg *msg, const TarnAcUserPlaneAssociation *value);

/* TarnExtractAcUserPlaneAssociationFromUserPlaneConfigRequestMsg copies the next
 * AcUserPlaneAssociation to *value, returning 1 on success and 0 if there is none. */
uint32_t
TarnExtractAcUserPlaneAssociationFromUserPlaneConfigRequestMsg(TarnMsg *msg,
                                                               TarnAcUserPlaneAssociation *value);

/* TarnAppendApUserPlaneAssociationToUserPlaneConfigRequestMsg appends a copy of *value, returning 1
 * on success and 0 if invalid. */
uint32_t TarnAppendApUserPlaneAssociationToUserPlaneConfigRequestMsg(
    TarnMsg *msg, const TarnApUserPlaneAssociation *value);

/* TarnExtractApUserPlaneAssociationFromUserPlaneConfigRequestMsg copies the next
 * ApUserPlaneAssociation to *value, returning 1 on success and 0 if there is none. */
uint32_t
TarnExtractApUserPlaneAssociationFromUserPlaneConfigRequestMsg(TarnMsg *msg,
                                                               TarnApUserPlaneAssociation *value);

/* TarnAppendAlcapLinkCharacteristicsToUserPlaneConfigRequestMsg appends a copy of *value, returning
 * 1 on success and 0 if invalid. */
uint32_t TarnAppendAlcapLinkCharacteristicsToUserPlaneConfigRequestMsg(
    TarnMsg *msg, const TarnAlcapLinkCharacteristics *value);

/* TarnExtractAlcapLinkCharacteristicsFromUserPlaneConfigRequestMsg copies the next
 * AlcapLinkCharacteristics to *value, returning 1 on success and 0 if there is none. */
uint32_t TarnExtractAlcapLinkCharacteristicsFromUserPlaneConfigRequestMsg(
    TarnMsg *msg, TarnAlcapLinkCharacteristics *value);

/* TarnAppendMaxBitRateUplinkToUserPlaneConfigRequestMsg appends a copy of *value, returning 1 on
 * success and 0 if invalid. */
uint32_t TarnAppendMaxBitRateUplinkToUserPlaneConfigRequestMsg(TarnMsg *msg,
                                                               const TarnMaxBitRateUplink *value);

/* TarnExtractMaxBitRateUplinkFromUserPlaneConfigRequestMsg copies the next MaxBitRateUplink to
 * *value, returning 1 on success and 0 if there is none. */
uint32_t TarnExtractMaxBitRateUplinkFromUserPlaneConfigRequestMsg(TarnMsg *msg,
                                                                  TarnMaxBitRateUplink *value);

/* TarnAppendMaxBitRateDownlinkToUserPlaneConfigRequestMsg appends a copy of *value, returning 1 on
 * success and 0 if invalid. */
uint32_t
TarnAppendMaxBitRateDownlinkToUserPlaneConfigRequestMsg(TarnMsg *msg,
                                                        const TarnMaxBitRateDownlink *value);

/* TarnExtractMaxBitRateDownlinkFromUserPlaneConfigRequestMsg copies the next MaxBitRateDownlink to
 * *value, returning 1 on success and 0 if there is none. */
uint32_t TarnExtractMaxBitRateDownlinkFromUserPlaneConfigRequestMsg(TarnMsg *msg,
                                                                    TarnMaxBitRateDownlink *value);

/* TarnIsUserPlaneConfigRequestMsgValid returns 1 if msg is a valid UserPlaneConfigRequest, and 0
 * otherwise. */
uint32_t TarnIsUserPlaneConfigRequestMsgValid(const TarnMsg *msg);

/* TarnPackUserPlaneConfigRequestMsg writes msg to buffer, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackUserPlaneConfigRequestMsg(const TarnMsg *msg, uint8_t *buffer, uint32_t size);

/* TarnUnpackUserPlaneConfigRequestMsg returns a new message read from buffer, owned by the caller,
 * or null. */
TarnMsg *TarnUnpackUserPlaneConfigRequestMsg(const uint8_t *buffer, uint32_t length);

/* TarnBuildUserPlaneConfigRequestMsg packs *record into buffer, returning the bytes written and 0
 * on failure. */
uint32_t TarnBuildUserPlaneConfigRequestMsg(uint8_t *buffer, uint32_t size,
                                            const TarnUserPlaneConfigRequestRecord *record);

/* TarnGetUserPlaneConfigRequestMsg unpacks buffer into *record, returning 1 on success and 0 on
 * failure. */
uint32_t TarnGetUserPlaneConfigRequestMsg(const uint8_t *buffer, uint32_t length,
                                          TarnUserPlaneConfigRequestRecord *record);

/* ---- UserPlaneConfigResponse, id 22 -------------------------------------------------------------
 * Tells how a user plane was configured.
 *
 *   Srnti                   tag 1    mandatory
 *   AcUeId                  tag 3    mandatory
 *   ApUserPlaneAssociation  tag 44   mandatory
 *   UserPlaneResult         tag 93   mandatory
 *   RtpServerInfo           tag 87   composite, optional
 *   RtpSecurityInfo         tag 84   optional
 *   PsIuhGatewayInfo        tag 173  composite, optional
 *
 * Build writes 243 bytes at most. */

enum { TarnUserPlaneConfigResponseMsgId = 22 };

typedef struct TarnUserPlaneConfigResponseRecord {
    uint8_t MessageId;
    uint8_t presence;
    TarnSrnti Srnti;
    TarnAcUeId AcUeId;
    TarnApUserPlaneAssociation ApUserPlaneAssociation;
    TarnUserPlaneResult UserPlaneResult;
    TarnRtpServerInfoRecord RtpServerInfo;       /* 0x80 */
    TarnRtpSecurityInfo RtpSecurityInfo;         /* 0x40 */
    TarnPsIuhGatewayInfoRecord PsIuhGatewayInfo; /* 0x20 */
} TarnUserPlaneConfigResponseRecord;

enum {
    TarnUserPlaneConfigResponseHasRtpServerInfo = 0x80,
    TarnUserPlaneConfigResponseHasRtpSecurityInfo = 0x40,
    TarnUserPlaneConfigResponseHasPsIuhGatewayInfo = 0x20,
};

/* TarnNewUserPlaneConfigResponseMsg returns a new message that holds its MessageId, owned by the
 * caller. */
TarnMsg *TarnNewUserPlaneConfigResponseMsg(void);

/* TarnAppendMessageIdToUserPlaneConfigResponseMsg appends a further MessageId, returning 1. */
uint32_t TarnAppendMessageIdToUserPlaneConfigResponseMsg(TarnMsg *msg, TarnMessageId value);

/* TarnExtractMessageIdFromUserPlaneConfigResponseMsg copies the next MessageId to *value, returning
 * 1 on success and 0 if there is none. */
uint32_t TarnExtractMessageIdFromUserPlaneConfigResponseMsg(TarnMsg *msg, TarnMessageId *value);

/* TarnAppendSrntiToUserPlaneConfigResponseMsg appends a copy of *value, returning 1 on success and
 * 0 if invalid. */
uint32_t TarnAppendSrntiToUserPlaneConfigResponseMsg(TarnMsg *msg, const TarnSrnti *value);

/* TarnExtractSrntiFromUserPlaneConfigResponseMsg copies the next Srnti to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractSrntiFromUserPlaneConfigResponseMsg(TarnMsg *msg, TarnSrnti *value);

/* TarnAppendAcUeIdToUserPlaneConfigResponseMsg appends a copy of *value, returning 1 on success and
 * 0 if invalid. */
uint32_t TarnAppendAcUeIdToUserPlaneConfigResponseMsg(TarnMsg *msg, const TarnAcUeId *value);

/* TarnExtractAcUeIdFromUserPlaneConfigResponseMsg copies the next AcUeId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractAcUeIdFromUserPlaneConfigResponseMsg(TarnMsg *msg, TarnAcUeId *value);

/* TarnAppendApUserPlaneAssociationToUserPlaneConfigResponseMsg appends a copy of *value, returning
 * 1 on success and 0 if invalid. */
uint32_t TarnAppendApUserPlaneAssociationToUserPlaneConfigResponseMsg(
    TarnMsg *msg, const TarnApUserPlaneAssociation *value);

/* TarnExtractApUserPlaneAssociationFromUserPlaneConfigResponseMsg copies the next
 * ApUserPlaneAssociation to *value, returning 1 on success and 0 if there is none. */
uint32_t
TarnExtractApUserPlaneAssociationFromUserPlaneConfigResponseMsg(TarnMsg *msg,
                                                                TarnApUserPlaneAssociation *value);

/* TarnAppendUserPlaneResultToUserPlaneConfigResponseMsg appends a copy of *value, returning 1 on
 * success and 0 if invalid. */
uint32_t TarnAppendUserPlaneResultToUserPlaneConfigResponseMsg(TarnMsg *msg,
                                                               const TarnUserPlaneResult *value);

/* TarnExtractUserPlaneResultFromUserPlaneConfigResponseMsg copies the next UserPlaneResult to
 * *value, returning 1 on success and 0 if there is none. */
uint32_t TarnExtractUserPlaneResultFromUserPlaneConfigResponseMsg(TarnMsg *msg,
                                                                  TarnUserPlaneResult *value);

/* TarnAppendRtpServerInfoIeToUserPlaneConfigResponseMsg appends ie itself, unchecked, and takes it
 * over, returning 1. */
uint32_t TarnAppendRtpServerInfoIeToUserPlaneConfigResponseMsg(TarnMsg *msg,
                                                               TarnRtpServerInfoIe *ie);

/* TarnExtractRtpServerInfoIeFromUserPlaneConfigResponseMsg lends the next RtpServerInfo in *ie,
 * returning 1 on success and 0, with *ie null, if there is none. */
uint32_t TarnExtractRtpServerInfoIeFromUserPlaneConfigResponseMsg(TarnMsg *msg,
                                                                  TarnRtpServerInfoIe **ie);

/* TarnAppendRtpSecurityInfoToUserPlaneConfigResponseMsg appends a copy of *value, returning 1 on
 * success and 0 if invalid. */
uint32_t TarnAppendRtpSecurityInfoToUserPlaneConfigResponseMsg(TarnMsg *msg,
                                                               const TarnRtpSecurityInfo *value);

/* TarnExtractRtpSecurityInfoFromUserPlaneConfigResponseMsg copies the next RtpSecurityInfo to
 * *value, returning 1 on success and 0 if there is none. */
uint32_t TarnExtractRtpSecurityInfoFromUserPlaneConfigResponseMsg(TarnMsg *msg,
                                                                  TarnRtpSecurityInfo *value);

/* TarnAppendPsIuhGatewayInfoIeToUserPlaneConfigResponseMsg appends ie itself, unchecked, and takes
 * it over, returning 1. */
uint32_t TarnAppendPsIuhGatewayInfoIeToUserPlaneConfigResponseMsg(TarnMsg *msg,
                                                                  TarnPsIuhGatewayInfoIe *ie);

/* TarnExtractPsIuhGatewayInfoIeFromUserPlaneConfigResponseMsg lends the next PsIuhGatewayInfo in
 * *ie, returning 1 on success and 0, with *ie null, if there is none. */
uint32_t TarnExtractPsIuhGatewayInfoIeFromUserPlaneConfigResponseMsg(TarnMsg *msg,
                                                                     TarnPsIuhGatewayInfoIe **ie);

/* TarnIsUserPlaneConfigResponseMsgValid returns 1 if msg is a valid UserPlaneConfigResponse, and 0
 * otherwise. */
uint32_t TarnIsUserPlaneConfigResponseMsgValid(const TarnMsg *msg);

/* TarnPackUserPlaneConfigResponseMsg writes msg to buffer, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackUserPlaneConfigResponseMsg(const TarnMsg *msg, uint8_t *buffer, uint32_t size);

/* TarnUnpackUserPlaneConfigResponseMsg returns a new message read from buffer, owned by the caller,
 * or null. */
TarnMsg *TarnUnpackUserPlaneConfigResponseMsg(const uint8_t *buffer, uint32_t length);

/* TarnBuildUserPlaneConfigResponseMsg packs *record into buffer, returning the bytes written and 0
 * on failure. */
uint32_t TarnBuildUserPlaneConfigResponseMsg(uint8_t *buffer, uint32_t size,
                                             const TarnUserPlaneConfigResponseRecord *record);

/* TarnGetUserPlaneConfigResponseMsg unpacks buffer into *record, returning 1 on success and 0 on
 * failure. */
uint32_t TarnGetUserPlaneConfigResponseMsg(const uint8_t *buffer, uint32_t length,
                                           TarnUserPlaneConfigResponseRecord *record);

/* ---- IuReleaseComplete, id 23 -------------------------------------------------------------------
 * AP to AC: an Iu connection was released.
 *
 *   Srnti            tag 1    mandatory
 *   AcUeId           tag 3    mandatory
 *   RabDataInfoList  tag 102  composite, optional
 *
 * Build writes 132 bytes at most. */

enum { TarnIuReleaseCompleteMsgId = 23 };

typedef struct TarnIuReleaseCompleteRecord {
    uint8_t MessageId;
    uint8_t presence;
    TarnSrnti Srnti;
    TarnAcUeId AcUeId;
    TarnRabDataInfoListRecord RabDataInfoList; /* 0x80 */
} TarnIuReleaseCompleteRecord;

enum { TarnIuReleaseCompleteHasRabDataInfoList = 0x80 };

/* TarnNewIuReleaseCompleteMsg returns a new message that holds its MessageId, owned by the
 * caller. */
TarnMsg *TarnNewIuReleaseCompleteMsg(void);

/* TarnAppendMessageIdToIuReleaseCompleteMsg appends a further MessageId, returning 1. */
uint32_t TarnAppendMessageIdToIuReleaseCompleteMsg(TarnMsg *msg, TarnMessageId value);

/* TarnExtractMessageIdFromIuReleaseCompleteMsg copies the next MessageId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractMessageIdFromIuReleaseCompleteMsg(TarnMsg *msg, TarnMessageId *value);

/* TarnAppendSrntiToIuReleaseCompleteMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendSrntiToIuReleaseCompleteMsg(TarnMsg *msg, const TarnSrnti *value);

/* TarnExtractSrntiFromIuReleaseCompleteMsg copies the next Srnti to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractSrntiFromIuReleaseCompleteMsg(TarnMsg *msg, TarnSrnti *value);

/* TarnAppendAcUeIdToIuReleaseCompleteMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendAcUeIdToIuReleaseCompleteMsg(TarnMsg *msg, const TarnAcUeId *value);

/* TarnExtractAcUeIdFromIuReleaseCompleteMsg copies the next AcUeId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractAcUeIdFromIuReleaseCompleteMsg(TarnMsg *msg, TarnAcUeId *value);

/* TarnAppendRabDataInfoListIeToIuReleaseCompleteMsg appends ie itself, unchecked, and takes it
 * over, returning 1. */
uint32_t TarnAppendRabDataInfoListIeToIuReleaseCompleteMsg(TarnMsg *msg, TarnRabDataInfoListIe *ie);

/* TarnExtractRabDataInfoListIeFromIuReleaseCompleteMsg lends the next RabDataInfoList in *ie,
 * returning 1 on success and 0, with *ie null, if there is none. */
uint32_t TarnExtractRabDataInfoListIeFromIuReleaseCompleteMsg(TarnMsg *msg,
                                                              TarnRabDataInfoListIe **ie);

/* TarnIsIuReleaseCompleteMsgValid returns 1 if msg is a valid IuReleaseComplete, and 0
 * otherwise. */
uint32_t TarnIsIuReleaseCompleteMsgValid(const TarnMsg *msg);

/* TarnPackIuReleaseCompleteMsg writes msg to buffer, returning 1 on success and 0 on failure. */
uint32_t TarnPackIuReleaseCompleteMsg(const TarnMsg *msg, uint8_t *buffer, uint32_t size);

/* TarnUnpackIuReleaseCompleteMsg returns a new message read from buffer, owned by the caller, or
 * null. */
TarnMsg *TarnUnpackIuReleaseCompleteMsg(const uint8_t *buffer, uint32_t length);

/* TarnBuildIuReleaseCompleteMsg packs *record into buffer, returning the bytes written and 0 on
 * failure. */
uint32_t TarnBuildIuReleaseCompleteMsg(uint8_t *buffer, uint32_t size,
                                       const TarnIuReleaseCompleteRecord *record);

/* TarnGetIuReleaseCompleteMsg unpacks buffer into *record, returning 1 on success and 0 on
 * failure. */
uint32_t TarnGetIuReleaseCompleteMsg(const uint8_t *buffer, uint32_t length,
                                     TarnIuReleaseCompleteRecord *record);

/* ---- RelocationRequired, id 24 ------------------------------------------------------------------
 * AP to AC: asks for the relocation of a UE.
 *
 *   Srnti                    tag 1    mandatory
 *   AcUeId                   tag 3    mandatory
 *   RelocationRequiredCause  tag 104  mandatory
 *   RelocationType           tag 155  mandatory
 *   ModifiedSrncContainer    tag 116  composite, exactly if RelocationType is 1 (intra-RAT)
 *   TargetRNCId              tag 106  composite, exactly if RelocationType is 1 (intra-RAT)
 *   GsmClassmark2            tag 114  exactly if RelocationType is 0 (inter-RAT)
 *   GsmClassmark3            tag 115  exactly if RelocationType is 0 (inter-RAT)
 *   TargetCGI                tag 112  exactly if RelocationType is 0 (inter-RAT)
 *   OldBssToNewBssInfo       tag 159  optional
 *
 * Unpacking leaves out a conditional IE that is invalid or whose condition does not hold, and fails
 * if one is missing or malformed although its condition holds, also at the message's end.
 *
 * Build writes 2533 bytes at most. The record takes about 2 KiB of the caller's memory. */

enum { TarnRelocationRequiredMsgId = 24 };

typedef struct TarnRelocationRequiredRecord {
    uint8_t MessageId;
    uint8_t presence;
    TarnSrnti Srnti;
    TarnAcUeId AcUeId;
    TarnRelocationRequiredCause RelocationRequiredCause;
    TarnRelocationType RelocationType;
    TarnModifiedSrncContainerRecord ModifiedSrncContainer; /* 0x80 */
    TarnTargetRNCIdRecord TargetRNCId;                     /* 0x40 */
    TarnGsmClassmark2 GsmClassmark2;                       /* 0x20 */
    TarnGsmClassmark3 GsmClassmark3;                       /* 0x10 */
    TarnTargetCGI TargetCGI;                               /* 0x08 */
    TarnOldBssToNewBssInfo OldBssToNewBssInfo;             /* 0x04 */
} TarnRelocationRequiredRecord;

enum {
    TarnRelocationRequiredHasModifiedSrncContainer = 0x80,
    TarnRelocationRequiredHasTargetRNCId = 0x40,
    TarnRelocationRequiredHasGsmClassmark2 = 0x20,
    TarnRelocationRequiredHasGsmClassmark3 = 0x10,
    TarnRelocationRequiredHasTargetCGI = 0x08,
    TarnRelocationRequiredHasOldBssToNewBssInfo = 0x04,
};

/* TarnNewRelocationRequiredMsg returns a new message that holds its MessageId, owned by the
 * caller. */
TarnMsg *TarnNewRelocationRequiredMsg(void);

/* TarnAppendMessageIdToRelocationRequiredMsg appends a further MessageId, returning 1. */
uint32_t TarnAppendMessageIdToRelocationRequiredMsg(TarnMsg *msg, TarnMessageId value);

/* TarnExtractMessageIdFromRelocationRequiredMsg copies the next MessageId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractMessageIdFromRelocationRequiredMsg(TarnMsg *msg, TarnMessageId *value);

/* TarnAppendSrntiToRelocationRequiredMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendSrntiToRelocationRequiredMsg(TarnMsg *msg, const TarnSrnti *value);

/* TarnExtractSrntiFromRelocationRequiredMsg copies the next Srnti to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractSrntiFromRelocationRequiredMsg(TarnMsg *msg, TarnSrnti *value);

/* TarnAppendAcUeIdToRelocationRequiredMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendAcUeIdToRelocationRequiredMsg(TarnMsg *msg, const TarnAcUeId *value);

/* TarnExtractAcUeIdFromRelocationRequiredMsg copies the next AcUeId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractAcUeIdFromRelocationRequiredMsg(TarnMsg *msg, TarnAcUeId *value);

/* TarnAppendRelocationRequiredCauseToRelocationRequiredMsg appends a copy of *value, returning 1 on
 * success and 0 if invalid. */
uint32_t
TarnAppendRelocationRequiredCauseToRelocationRequiredMsg(TarnMsg *msg,
                                                         const TarnRelocationRequiredCause *value);

/* TarnExtractRelocationRequiredCauseFromRelocationRequiredMsg copies the next
 * RelocationRequiredCause to *value, returning 1 on success and 0 if there is none. */
uint32_t
TarnExtractRelocationRequiredCauseFromRelocationRequiredMsg(TarnMsg *msg,
                                                            TarnRelocationRequiredCause *value);

/* TarnAppendRelocationTypeToRelocationRequiredMsg appends a copy of *value, returning 1 on success
 * and 0 if invalid. */
uint32_t TarnAppendRelocationTypeToRelocationRequiredMsg(TarnMsg *msg,
                                                         const TarnRelocationType *value);

/* TarnExtractRelocationTypeFromRelocationRequiredMsg copies the next RelocationType to *value,
 * returning 1 on success and 0 if there is none. */
uint32_t TarnExtractRelocationTypeFromRelocationRequiredMsg(TarnMsg *msg,
                                                            TarnRelocationType *value);

/* TarnAppendModifiedSrncContainerIeToRelocationRequiredMsg appends ie itself, unchecked, and takes
 * it over, returning 1. */
uint32_t TarnAppendModifiedSrncContainerIeToRelocationRequiredMsg(TarnMsg *msg,
                                                                  TarnModifiedSrncContainerIe *ie);

/* TarnExtractModifiedSrncContainerIeFromRelocationRequiredMsg lends the next ModifiedSrncContainer
 * in *ie, returning 1 on success and 0, with *ie null, if there is none. */
uint32_t
TarnExtractModifiedSrncContainerIeFromRelocationRequiredMsg(TarnMsg *msg,
                                                            TarnModifiedSrncContainerIe **ie);

/* TarnAppendTargetRNCIdIeToRelocationRequiredMsg appends ie itself, unchecked, and takes it over,
 * returning 1. */
uint32_t TarnAppendTargetRNCIdIeToRelocationRequiredMsg(TarnMsg *msg, TarnTargetRNCIdIe *ie);

/* TarnExtractTargetRNCIdIeFromRelocationRequiredMsg lends the next TargetRNCId in *ie, returning 1
 * on success and 0, with *ie null, if there is none. */
uint32_t TarnExtractTargetRNCIdIeFromRelocationRequiredMsg(TarnMsg *msg, TarnTargetRNCIdIe **ie);

/* TarnAppendGsmClassmark2ToRelocationRequiredMsg appends a copy of *value, returning 1 on success
 * and 0 if invalid. */
uint32_t TarnAppendGsmClassmark2ToRelocationRequiredMsg(TarnMsg *msg,
                                                        const TarnGsmClassmark2 *value);

/* TarnExtractGsmClassmark2FromRelocationRequiredMsg copies the next GsmClassmark2 to *value,
 * returning 1 on success and 0 if there is none. */
uint32_t TarnExtractGsmClassmark2FromRelocationRequiredMsg(TarnMsg *msg, TarnGsmClassmark2 *value);

/* TarnAppendGsmClassmark3ToRelocationRequiredMsg appends a copy of *value, returning 1 on success
 * and 0 if invalid. */
uint32_t TarnAppendGsmClassmark3ToRelocationRequiredMsg(TarnMsg *msg,
                                                        const TarnGsmClassmark3 *value);

/* TarnExtractGsmClassmark3FromRelocationRequiredMsg copies the next GsmClassmark3 to *value,
 * returning 1 on success and 0 if there is none. */
uint32_t TarnExtractGsmClassmark3FromRelocationRequiredMsg(TarnMsg *msg, TarnGsmClassmark3 *value);

/* TarnAppendTargetCGIToRelocationRequiredMsg appends a copy of *value, returning 1 on success and 0
 * if invalid. */
uint32_t TarnAppendTargetCGIToRelocationRequiredMsg(TarnMsg *msg, const TarnTargetCGI *value);

/* TarnExtractTargetCGIFromRelocationRequiredMsg copies the next TargetCGI to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractTargetCGIFromRelocationRequiredMsg(TarnMsg *msg, TarnTargetCGI *value);

/* TarnAppendOldBssToNewBssInfoToRelocationRequiredMsg appends a copy of *value, returning 1 on
 * success and 0 if invalid. */
uint32_t TarnAppendOldBssToNewBssInfoToRelocationRequiredMsg(TarnMsg *msg,
                                                             const TarnOldBssToNewBssInfo *value);

/* TarnExtractOldBssToNewBssInfoFromRelocationRequiredMsg copies the next OldBssToNewBssInfo to
 * *value, returning 1 on success and 0 if there is none. */
uint32_t TarnExtractOldBssToNewBssInfoFromRelocationRequiredMsg(TarnMsg *msg,
                                                                TarnOldBssToNewBssInfo *value);

/* TarnIsRelocationRequiredMsgValid returns 1 if msg is a valid RelocationRequired, and 0
 * otherwise. */
uint32_t TarnIsRelocationRequiredMsgValid(const TarnMsg *msg);

/* TarnPackRelocationRequiredMsg writes msg to buffer, returning 1 on success and 0 on failure. */
uint32_t TarnPackRelocationRequiredMsg(const TarnMsg *msg, uint8_t *buffer, uint32_t size);

/* TarnUnpackRelocationRequiredMsg returns a new message read from buffer, owned by the caller, or
 * null. */
TarnMsg *TarnUnpackRelocationRequiredMsg(const uint8_t *buffer, uint32_t length);

/* TarnBuildRelocationRequiredMsg packs *record into buffer, returning the bytes written and 0 on
 * failure. */
uint32_t TarnBuildRelocationRequiredMsg(uint8_t *buffer, uint32_t size,
                                        const TarnRelocationRequiredRecord *record);

/* TarnGetRelocationRequiredMsg unpacks buffer into *record, returning 1 on success and 0 on
 * failure. */
uint32_t TarnGetRelocationRequiredMsg(const uint8_t *buffer, uint32_t length,
                                      TarnRelocationRequiredRecord *record);

/* ---- RelocationFailure, id 25 -------------------------------------------------------------------
 * AC to AP: the relocation cannot be done.
 *
 *   Srnti                   tag 1    mandatory
 *   AcUeId                  tag 3    mandatory
 *   RelocationFailureCause  tag 119  mandatory
 *
 * Build writes 35 bytes at most. */

enum { TarnRelocationFailureMsgId = 25 };

typedef struct TarnRelocationFailureRecord {
    uint8_t MessageId;
    uint8_t presence; /* no bit in use */
    TarnSrnti Srnti;
    TarnAcUeId AcUeId;
    TarnRelocationFailureCause RelocationFailureCause;
} TarnRelocationFailureRecord;

/* TarnNewRelocationFailureMsg returns a new message that holds its MessageId, owned by the
 * caller. */
TarnMsg *TarnNewRelocationFailureMsg(void);

/* TarnAppendMessageIdToRelocationFailureMsg appends a further MessageId, returning 1. */
uint32_t TarnAppendMessageIdToRelocationFailureMsg(TarnMsg *msg, TarnMessageId value);

/* TarnExtractMessageIdFromRelocationFailureMsg copies the next MessageId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractMessageIdFromRelocationFailureMsg(TarnMsg *msg, TarnMessageId *value);

/* TarnAppendSrntiToRelocationFailureMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendSrntiToRelocationFailureMsg(TarnMsg *msg, const TarnSrnti *value);

/* TarnExtractSrntiFromRelocationFailureMsg copies the next Srnti to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractSrntiFromRelocationFailureMsg(TarnMsg *msg, TarnSrnti *value);

/* TarnAppendAcUeIdToRelocationFailureMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendAcUeIdToRelocationFailureMsg(TarnMsg *msg, const TarnAcUeId *value);

/* TarnExtractAcUeIdFromRelocationFailureMsg copies the next AcUeId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractAcUeIdFromRelocationFailureMsg(TarnMsg *msg, TarnAcUeId *value);

/* TarnAppendRelocationFailureCauseToRelocationFailureMsg appends a copy of *value, returning 1 on
 * success and 0 if invalid. */
uint32_t
TarnAppendRelocationFailureCauseToRelocationFailureMsg(TarnMsg *msg,
                                                       const TarnRelocationFailureCause *value);

/* TarnExtractRelocationFailureCauseFromRelocationFailureMsg copies the next RelocationFailureCause
 * to *value, returning 1 on success and 0 if there is none. */
uint32_t
TarnExtractRelocationFailureCauseFromRelocationFailureMsg(TarnMsg *msg,
                                                          TarnRelocationFailureCause *value);

/* TarnIsRelocationFailureMsgValid returns 1 if msg is a valid RelocationFailure, and 0
 * otherwise. */
uint32_t TarnIsRelocationFailureMsgValid(const TarnMsg *msg);

/* TarnPackRelocationFailureMsg writes msg to buffer, returning 1 on success and 0 on failure. */
uint32_t TarnPackRelocationFailureMsg(const TarnMsg *msg, uint8_t *buffer, uint32_t size);

/* TarnUnpackRelocationFailureMsg returns a new message read from buffer, owned by the caller, or
 * null. */
TarnMsg *TarnUnpackRelocationFailureMsg(const uint8_t *buffer, uint32_t length);

/* TarnBuildRelocationFailureMsg packs *record into buffer, returning the bytes written and 0 on
 * failure. */
uint32_t TarnBuildRelocationFailureMsg(uint8_t *buffer, uint32_t size,
                                       const TarnRelocationFailureRecord *record);

/* TarnGetRelocationFailureMsg unpacks buffer into *record, returning 1 on success and 0 on
 * failure. */
uint32_t TarnGetRelocationFailureMsg(const uint8_t *buffer, uint32_t length,
                                     TarnRelocationFailureRecord *record);

/* ---- RelocationCancel, id 26 --------------------------------------------------------------------
 * AP to AC: cancels a relocation.
 *
 *   Srnti                  tag 1    mandatory
 *   AcUeId                 tag 3    mandatory
 *   RelocationCancelCause  tag 130  mandatory
 *
 * Build writes 35 bytes at most. */

enum { TarnRelocationCancelMsgId = 26 };

typedef struct TarnRelocationCancelRecord {
    uint8_t MessageId;
    uint8_t presence; /* no bit in use */
    TarnSrnti Srnti;
    TarnAcUeId AcUeId;
    TarnRelocationCancelCause RelocationCancelCause;
} TarnRelocationCancelRecord;

/* TarnNewRelocationCancelMsg returns a new message that holds its MessageId, owned by the
 * caller. */
TarnMsg *TarnNewRelocationCancelMsg(void);

/* TarnAppendMessageIdToRelocationCancelMsg appends a further MessageId, returning 1. */
uint32_t TarnAppendMessageIdToRelocationCancelMsg(TarnMsg *msg, TarnMessageId value);

/* TarnExtractMessageIdFromRelocationCancelMsg copies the next MessageId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractMessageIdFromRelocationCancelMsg(TarnMsg *msg, TarnMessageId *value);

/* TarnAppendSrntiToRelocationCancelMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendSrntiToRelocationCancelMsg(TarnMsg *msg, const TarnSrnti *value);

/* TarnExtractSrntiFromRelocationCancelMsg copies the next Srnti to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractSrntiFromRelocationCancelMsg(TarnMsg *msg, TarnSrnti *value);

/* TarnAppendAcUeIdToRelocationCancelMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendAcUeIdToRelocationCancelMsg(TarnMsg *msg, const TarnAcUeId *value);

/* TarnExtractAcUeIdFromRelocationCancelMsg copies the next AcUeId to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractAcUeIdFromRelocationCancelMsg(TarnMsg *msg, TarnAcUeId *value);

/* TarnAppendRelocationCancelCauseToRelocationCancelMsg appends a copy of *value, returning 1 on
 * success and 0 if invalid. */
uint32_t
TarnAppendRelocationCancelCauseToRelocationCancelMsg(TarnMsg *msg,
                                                     const TarnRelocationCancelCause *value);

/* TarnExtractRelocationCancelCauseFromRelocationCancelMsg copies the next RelocationCancelCause to
 * *value, returning 1 on success and 0 if there is none. */
uint32_t TarnExtractRelocationCancelCauseFromRelocationCancelMsg(TarnMsg *msg,
                                                                 TarnRelocationCancelCause *value);

/* TarnIsRelocationCancelMsgValid returns 1 if msg is a valid RelocationCancel, and 0 otherwise. */
uint32_t TarnIsRelocationCancelMsgValid(const TarnMsg *msg);

/* TarnPackRelocationCancelMsg writes msg to buffer, returning 1 on success and 0 on failure. */
uint32_t TarnPackRelocationCancelMsg(const TarnMsg *msg, uint8_t *buffer, uint32_t size);

/* TarnUnpackRelocationCancelMsg returns a new message read from buffer, owned by the caller, or
 * null. */
TarnMsg *TarnUnpackRelocationCancelMsg(const uint8_t *buffer, uint32_t length);

/* TarnBuildRelocationCancelMsg packs *record into buffer, returning the bytes written and 0 on
 * failure. */
uint32_t TarnBuildRelocationCancelMsg(uint8_t *buffer, uint32_t size,
                                      const TarnRelocationCancelRecord *record);

/* TarnGetRelocationCancelMsg unpacks buffer into *record, returning 1 on success and 0 on
 * failure. */
uint32_t TarnGetRelocationCancelMsg(const uint8_t *buffer, uint32_t length,
                                    TarnRelocationCancelRecord *record);

/* ---- RelocationCommand, id 27 -------------------------------------------------------------------
 * AC to AP: hands the UE over to the target.
 *
 *   Srnti                  tag 1    mandatory
 *   AcUeId                 tag 3    mandatory
 *   RrcContainer           tag 117  optional
 *   L3Information          tag 120  optional
 *   HandoutRabReleaseList  tag 121  optional
 *
 * Build writes 2382 bytes at most. The record takes about 2 KiB of the caller's memory. */

enum { TarnRelocationCommandMsgId = 27 };

typedef struct TarnRelocationCommandRecord {
    uint8_t MessageId;
    uint8_t presence;
    TarnSrnti Srnti;
    TarnAcUeId AcUeId;
    TarnRrcContainer RrcContainer;                   /* 0x80 */
    TarnL3Information L3Information;                 /* 0x40 */
    TarnHandoutRabReleaseList HandoutRabReleaseList; /* 0x20 */
} TarnRelocationCommandRecord;

enum {
    TarnRelocationCommandHasRrcContainer = 0x80,
    TarnRelocationCommandHasL3Information = 0x40,
    TarnRelocationCommandHasHandoutRabReleaseList = 0x20,
};

/* TarnNewRelocationCommandMsg returns a new message that holds its MessageId, owned by the
 * caller. */
TarnMsg *TarnNewRelocationCommandMsg(void);

/* TarnAppendMessageIdToRelocationCommandMsg appends a further MessageId, returning 1. */
uint32_t TarnAppendMessageIdToRelocationCommandMsg(TarnMsg *msg, TarnMessageId value);

/* TarnExtractMessageIdFromRelocationCommandMsg copies the next MessageId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractMessageIdFromRelocationCommandMsg(TarnMsg *msg, TarnMessageId *value);

/* TarnAppendSrntiToRelocationCommandMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendSrntiToRelocationCommandMsg(TarnMsg *msg, const TarnSrnti *value);

/* TarnExtractSrntiFromRelocationCommandMsg copies the next Srnti to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractSrntiFromRelocationCommandMsg(TarnMsg *msg, TarnSrnti *value);

/* TarnAppendAcUeIdToRelocationCommandMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendAcUeIdToRelocationCommandMsg(TarnMsg *msg, const TarnAcUeId *value);

/* TarnExtractAcUeIdFromRelocationCommandMsg copies the next AcUeId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractAcUeIdFromRelocationCommandMsg(TarnMsg *msg, TarnAcUeId *value);

/* TarnAppendRrcContainerToRelocationCommandMsg appends a copy of *value, returning 1 on success and
 * 0 if invalid. */
uint32_t TarnAppendRrcContainerToRelocationCommandMsg(TarnMsg *msg, const TarnRrcContainer *value);

/* TarnExtractRrcContainerFromRelocationCommandMsg copies the next RrcContainer to *value, returning
 * 1 on success and 0 if there is none. */
uint32_t TarnExtractRrcContainerFromRelocationCommandMsg(TarnMsg *msg, TarnRrcContainer *value);

/* TarnAppendL3InformationToRelocationCommandMsg appends a copy of *value, returning 1 on success
 * and 0 if invalid. */
uint32_t TarnAppendL3InformationToRelocationCommandMsg(TarnMsg *msg,
                                                       const TarnL3Information *value);

/* TarnExtractL3InformationFromRelocationCommandMsg copies the next L3Information to *value,
 * returning 1 on success and 0 if there is none. */
uint32_t TarnExtractL3InformationFromRelocationCommandMsg(TarnMsg *msg, TarnL3Information *value);

/* TarnAppendHandoutRabReleaseListToRelocationCommandMsg appends a copy of *value, returning 1 on
 * success and 0 if invalid. */
uint32_t
TarnAppendHandoutRabReleaseListToRelocationCommandMsg(TarnMsg *msg,
                                                      const TarnHandoutRabReleaseList *value);

/* TarnExtractHandoutRabReleaseListFromRelocationCommandMsg copies the next HandoutRabReleaseList to
 * *value, returning 1 on success and 0 if there is none. */
uint32_t TarnExtractHandoutRabReleaseListFromRelocationCommandMsg(TarnMsg *msg,
                                                                  TarnHandoutRabReleaseList *value);

/* TarnIsRelocationCommandMsgValid returns 1 if msg is a valid RelocationCommand, and 0
 * otherwise. */
uint32_t TarnIsRelocationCommandMsgValid(const TarnMsg *msg);

/* TarnPackRelocationCommandMsg writes msg to buffer, returning 1 on success and 0 on failure. */
uint32_t TarnPackRelocationCommandMsg(const TarnMsg *msg, uint8_t *buffer, uint32_t size);

/* TarnUnpackRelocationCommandMsg returns a new message read from buffer, owned by the caller, or
 * null. */
TarnMsg *TarnUnpackRelocationCommandMsg(const uint8_t *buffer, uint32_t length);

/* TarnBuildRelocationCommandMsg packs *record into buffer, returning the bytes written and 0 on
 * failure. */
uint32_t TarnBuildRelocationCommandMsg(uint8_t *buffer, uint32_t size,
                                       const TarnRelocationCommandRecord *record);

/* TarnGetRelocationCommandMsg unpacks buffer into *record, returning 1 on success and 0 on
 * failure. */
uint32_t TarnGetRelocationCommandMsg(const uint8_t *buffer, uint32_t length,
                                     TarnRelocationCommandRecord *record);

/* ---- HandoverRequest, id 28 ---------------------------------------------------------------------
 * AC to AP: asks the target to take a UE over.
 *
 *   AcUeId                     tag 3    mandatory
 *   HandoverRequestCause       tag 128  mandatory
 *   ModifiedSrncContainer      tag 116  composite, mandatory
 *   RabToSetupPerCnDomainList  tag 150  composite, optional
 *   IntProtInfo                tag 11   optional
 *
 * Build writes 70820 bytes at most. The record takes about 25 KiB of the caller's memory. */

enum { TarnHandoverRequestMsgId = 28 };

typedef struct TarnHandoverRequestRecord {
    uint8_t MessageId;
    uint8_t presence;
    TarnAcUeId AcUeId;
    TarnHandoverRequestCause HandoverRequestCause;
    TarnModifiedSrncContainerRecord ModifiedSrncContainer;
    TarnRabToSetupPerCnDomainListRecord RabToSetupPerCnDomainList; /* 0x80 */
    TarnIntProtInfo IntProtInfo;                                   /* 0x40 */
} TarnHandoverRequestRecord;

enum {
    TarnHandoverRequestHasRabToSetupPerCnDomainList = 0x80,
    TarnHandoverRequestHasIntProtInfo = 0x40,
};

/* TarnNewHandoverRequestMsg returns a new message that holds its MessageId, owned by the caller. */
TarnMsg *TarnNewHandoverRequestMsg(void);

/* TarnAppendMessageIdToHandoverRequestMsg appends a further MessageId, returning 1. */
uint32_t TarnAppendMessageIdToHandoverRequestMsg(TarnMsg *msg, TarnMessageId value);

/* TarnExtractMessageIdFromHandoverRequestMsg copies the next MessageId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractMessageIdFromHandoverRequestMsg(TarnMsg *msg, TarnMessageId *value);

/* TarnAppendAcUeIdToHandoverRequestMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendAcUeIdToHandoverRequestMsg(TarnMsg *msg, const TarnAcUeId *value);

/* TarnExtractAcUeIdFromHandoverRequestMsg copies the next AcUeId to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractAcUeIdFromHandoverRequestMsg(TarnMsg *msg, TarnAcUeId *value);

/* TarnAppendHandoverRequestCauseToHandoverRequestMsg appends a copy of *value, returning 1 on
 * success and 0 if invalid. */
uint32_t TarnAppendHandoverRequestCauseToHandoverRequestMsg(TarnMsg *msg,
                                                            const TarnHandoverRequestCause *value);

/* TarnExtractHandoverRequestCauseFromHandoverRequestMsg copies the next HandoverRequestCause to
 * *value, returning 1 on success and 0 if there is none. */
uint32_t TarnExtractHandoverRequestCauseFromHandoverRequestMsg(TarnMsg *msg,
                                                               TarnHandoverRequestCause *value);

/* TarnAppendModifiedSrncContainerIeToHandoverRequestMsg appends ie itself, unchecked, and takes it
 * over, returning 1. */
uint32_t TarnAppendModifiedSrncContainerIeToHandoverRequestMsg(TarnMsg *msg,
                                                               TarnModifiedSrncContainerIe *ie);

/* TarnExtractModifiedSrncContainerIeFromHandoverRequestMsg lends the next ModifiedSrncContainer in
 * *ie, returning 1 on success and 0, with *ie null, if there is none. */
uint32_t TarnExtractModifiedSrncContainerIeFromHandoverRequestMsg(TarnMsg *msg,
                                                                  TarnModifiedSrncContainerIe **ie);

/* TarnAppendRabToSetupPerCnDomainListIeToHandoverRequestMsg appends ie itself, unchecked, and takes
 * it over, returning 1. */
uint32_t
TarnAppendRabToSetupPerCnDomainListIeToHandoverRequestMsg(TarnMsg *msg,
                                                          TarnRabToSetupPerCnDomainListIe *ie);

/* TarnExtractRabToSetupPerCnDomainListIeFromHandoverRequestMsg lends the next
 * RabToSetupPerCnDomainList in *ie, returning 1 on success and 0, with *ie null, if there is
 * none. */
uint32_t
TarnExtractRabToSetupPerCnDomainListIeFromHandoverRequestMsg(TarnMsg *msg,
                                                             TarnRabToSetupPerCnDomainListIe **ie);

/* TarnAppendIntProtInfoToHandoverRequestMsg appends a copy of *value, returning 1 on success and 0
 * if invalid. */
uint32_t TarnAppendIntProtInfoToHandoverRequestMsg(TarnMsg *msg, const TarnIntProtInfo *value);

/* TarnExtractIntProtInfoFromHandoverRequestMsg copies the next IntProtInfo to *value, returning 1
 * on success and 0 if there is none. */
uint32_t TarnExtractIntProtInfoFromHandoverRequestMsg(TarnMsg *msg, TarnIntProtInfo *value);

/* TarnIsHandoverRequestMsgValid returns 1 if msg is a valid HandoverRequest, and 0 otherwise. */
uint32_t TarnIsHandoverRequestMsgValid(const TarnMsg *msg);

/* TarnPackHandoverRequestMsg writes msg to buffer, returning 1 on success and 0 on failure. */
uint32_t TarnPackHandoverRequestMsg(const TarnMsg *msg, uint8_t *buffer, uint32_t size);

/* TarnUnpackHandoverRequestMsg returns a new message read from buffer, owned by the caller, or
 * null. */
TarnMsg *TarnUnpackHandoverRequestMsg(const uint8_t *buffer, uint32_t length);

/* TarnBuildHandoverRequestMsg packs *record into buffer, returning the bytes written and 0 on
 * failure. */
uint32_t TarnBuildHandoverRequestMsg(uint8_t *buffer, uint32_t size,
                                     const TarnHandoverRequestRecord *record);

/* TarnGetHandoverRequestMsg unpacks buffer into *record, returning 1 on success and 0 on
 * failure. */
uint32_t TarnGetHandoverRequestMsg(const uint8_t *buffer, uint32_t length,
                                   TarnHandoverRequestRecord *record);

/* ---- HandoverFailure, id 29 ---------------------------------------------------------------------
 * AP to AC: the target cannot take the UE over.
 *
 *   Srnti                 tag 1    mandatory
 *   AcUeId                tag 3    mandatory
 *   HandoverFailureCause  tag 126  mandatory
 *
 * Build writes 35 bytes at most. */

enum { TarnHandoverFailureMsgId = 29 };

typedef struct TarnHandoverFailureRecord {
    uint8_t MessageId;
    uint8_t presence; /* no bit in use */
    TarnSrnti Srnti;
    TarnAcUeId AcUeId;
    TarnHandoverFailureCause HandoverFailureCause;
} TarnHandoverFailureRecord;

/* TarnNewHandoverFailureMsg returns a new message that holds its MessageId, owned by the caller. */
TarnMsg *TarnNewHandoverFailureMsg(void);

/* TarnAppendMessageIdToHandoverFailureMsg appends a further MessageId, returning 1. */
uint32_t TarnAppendMessageIdToHandoverFailureMsg(TarnMsg *msg, TarnMessageId value);

/* TarnExtractMessageIdFromHandoverFailureMsg copies the next MessageId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractMessageIdFromHandoverFailureMsg(TarnMsg *msg, TarnMessageId *value);

/* TarnAppendSrntiToHandoverFailureMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendSrntiToHandoverFailureMsg(TarnMsg *msg, const TarnSrnti *value);

/* TarnExtractSrntiFromHandoverFailureMsg copies the next Srnti to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractSrntiFromHandoverFailureMsg(TarnMsg *msg, TarnSrnti *value);

/* TarnAppendAcUeIdToHandoverFailureMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendAcUeIdToHandoverFailureMsg(TarnMsg *msg, const TarnAcUeId *value);

/* TarnExtractAcUeIdFromHandoverFailureMsg copies the next AcUeId to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractAcUeIdFromHandoverFailureMsg(TarnMsg *msg, TarnAcUeId *value);

/* TarnAppendHandoverFailureCauseToHandoverFailureMsg appends a copy of *value, returning 1 on
 * success and 0 if invalid. */
uint32_t TarnAppendHandoverFailureCauseToHandoverFailureMsg(TarnMsg *msg,
                                                            const TarnHandoverFailureCause *value);

/* TarnExtractHandoverFailureCauseFromHandoverFailureMsg copies the next HandoverFailureCause to
 * *value, returning 1 on success and 0 if there is none. */
uint32_t TarnExtractHandoverFailureCauseFromHandoverFailureMsg(TarnMsg *msg,
                                                               TarnHandoverFailureCause *value);

/* TarnIsHandoverFailureMsgValid returns 1 if msg is a valid HandoverFailure, and 0 otherwise. */
uint32_t TarnIsHandoverFailureMsgValid(const TarnMsg *msg);

/* TarnPackHandoverFailureMsg writes msg to buffer, returning 1 on success and 0 on failure. */
uint32_t TarnPackHandoverFailureMsg(const TarnMsg *msg, uint8_t *buffer, uint32_t size);

/* TarnUnpackHandoverFailureMsg returns a new message read from buffer, owned by the caller, or
 * null. */
TarnMsg *TarnUnpackHandoverFailureMsg(const uint8_t *buffer, uint32_t length);

/* TarnBuildHandoverFailureMsg packs *record into buffer, returning the bytes written and 0 on
 * failure. */
uint32_t TarnBuildHandoverFailureMsg(uint8_t *buffer, uint32_t size,
                                     const TarnHandoverFailureRecord *record);

/* TarnGetHandoverFailureMsg unpacks buffer into *record, returning 1 on success and 0 on
 * failure. */
uint32_t TarnGetHandoverFailureMsg(const uint8_t *buffer, uint32_t length,
                                   TarnHandoverFailureRecord *record);

/* ---- HandoverDetect, id 30 ----------------------------------------------------------------------
 * AP to AC: the target has detected the UE.
 *
 *   Srnti   tag 1    mandatory
 *   AcUeId  tag 3    mandatory
 *
 * Build writes 27 bytes at most. */

enum { TarnHandoverDetectMsgId = 30 };

typedef struct TarnHandoverDetectRecord {
    uint8_t MessageId;
    uint8_t presence; /* no bit in use */
    TarnSrnti Srnti;
    TarnAcUeId AcUeId;
} TarnHandoverDetectRecord;

/* TarnNewHandoverDetectMsg returns a new message that holds its MessageId, owned by the caller. */
TarnMsg *TarnNewHandoverDetectMsg(void);

/* TarnAppendMessageIdToHandoverDetectMsg appends a further MessageId, returning 1. */
uint32_t TarnAppendMessageIdToHandoverDetectMsg(TarnMsg *msg, TarnMessageId value);

/* TarnExtractMessageIdFromHandoverDetectMsg copies the next MessageId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractMessageIdFromHandoverDetectMsg(TarnMsg *msg, TarnMessageId *value);

/* TarnAppendSrntiToHandoverDetectMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendSrntiToHandoverDetectMsg(TarnMsg *msg, const TarnSrnti *value);

/* TarnExtractSrntiFromHandoverDetectMsg copies the next Srnti to *value, returning 1 on success and
 * 0 if there is none. */
uint32_t TarnExtractSrntiFromHandoverDetectMsg(TarnMsg *msg, TarnSrnti *value);

/* TarnAppendAcUeIdToHandoverDetectMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendAcUeIdToHandoverDetectMsg(TarnMsg *msg, const TarnAcUeId *value);

/* TarnExtractAcUeIdFromHandoverDetectMsg copies the next AcUeId to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractAcUeIdFromHandoverDetectMsg(TarnMsg *msg, TarnAcUeId *value);

/* TarnIsHandoverDetectMsgValid returns 1 if msg is a valid HandoverDetect, and 0 otherwise. */
uint32_t TarnIsHandoverDetectMsgValid(const TarnMsg *msg);

/* TarnPackHandoverDetectMsg writes msg to buffer, returning 1 on success and 0 on failure. */
uint32_t TarnPackHandoverDetectMsg(const TarnMsg *msg, uint8_t *buffer, uint32_t size);

/* TarnUnpackHandoverDetectMsg returns a new message read from buffer, owned by the caller, or
 * null. */
TarnMsg *TarnUnpackHandoverDetectMsg(const uint8_t *buffer, uint32_t length);

/* TarnBuildHandoverDetectMsg packs *record into buffer, returning the bytes written and 0 on
 * failure. */
uint32_t TarnBuildHandoverDetectMsg(uint8_t *buffer, uint32_t size,
                                    const TarnHandoverDetectRecord *record);

/* TarnGetHandoverDetectMsg unpacks buffer into *record, returning 1 on success and 0 on failure. */
uint32_t TarnGetHandoverDetectMsg(const uint8_t *buffer, uint32_t length,
                                  TarnHandoverDetectRecord *record);

/* ---- HandoverComplete, id 31 --------------------------------------------------------------------
 * AP to AC: the UE has arrived at the target.
 *
 *   Srnti   tag 1    mandatory
 *   AcUeId  tag 3    mandatory
 *
 * Build writes 27 bytes at most. */

enum { TarnHandoverCompleteMsgId = 31 };

typedef struct TarnHandoverCompleteRecord {
    uint8_t MessageId;
    uint8_t presence; /* no bit in use */
    TarnSrnti Srnti;
    TarnAcUeId AcUeId;
} TarnHandoverCompleteRecord;

/* TarnNewHandoverCompleteMsg returns a new message that holds its MessageId, owned by the
 * caller. */
TarnMsg *TarnNewHandoverCompleteMsg(void);

/* TarnAppendMessageIdToHandoverCompleteMsg appends a further MessageId, returning 1. */
uint32_t TarnAppendMessageIdToHandoverCompleteMsg(TarnMsg *msg, TarnMessageId value);

/* TarnExtractMessageIdFromHandoverCompleteMsg copies the next MessageId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractMessageIdFromHandoverCompleteMsg(TarnMsg *msg, TarnMessageId *value);

/* TarnAppendSrntiToHandoverCompleteMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendSrntiToHandoverCompleteMsg(TarnMsg *msg, const TarnSrnti *value);

/* TarnExtractSrntiFromHandoverCompleteMsg copies the next Srnti to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractSrntiFromHandoverCompleteMsg(TarnMsg *msg, TarnSrnti *value);

/* TarnAppendAcUeIdToHandoverCompleteMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendAcUeIdToHandoverCompleteMsg(TarnMsg *msg, const TarnAcUeId *value);

/* TarnExtractAcUeIdFromHandoverCompleteMsg copies the next AcUeId to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractAcUeIdFromHandoverCompleteMsg(TarnMsg *msg, TarnAcUeId *value);

/* TarnIsHandoverCompleteMsgValid returns 1 if msg is a valid HandoverComplete, and 0 otherwise. */
uint32_t TarnIsHandoverCompleteMsgValid(const TarnMsg *msg);

/* TarnPackHandoverCompleteMsg writes msg to buffer, returning 1 on success and 0 on failure. */
uint32_t TarnPackHandoverCompleteMsg(const TarnMsg *msg, uint8_t *buffer, uint32_t size);

/* TarnUnpackHandoverCompleteMsg returns a new message read from buffer, owned by the caller, or
 * null. */
TarnMsg *TarnUnpackHandoverCompleteMsg(const uint8_t *buffer, uint32_t length);

/* TarnBuildHandoverCompleteMsg packs *record into buffer, returning the bytes written and 0 on
 * failure. */
uint32_t TarnBuildHandoverCompleteMsg(uint8_t *buffer, uint32_t size,
                                      const TarnHandoverCompleteRecord *record);

/* TarnGetHandoverCompleteMsg unpacks buffer into *record, returning 1 on success and 0 on
 * failure. */
uint32_t TarnGetHandoverCompleteMsg(const uint8_t *buffer, uint32_t length,
                                    TarnHandoverCompleteRecord *record);

/* ---- HandoverCancelInd, id 32 -------------------------------------------------------------------
 * AC to AP: the handover is cancelled.
 *
 *   Srnti   tag 1    mandatory
 *   AcUeId  tag 3    mandatory
 *
 * Build writes 27 bytes at most. */

enum { TarnHandoverCancelIndMsgId = 32 };

typedef struct TarnHandoverCancelIndRecord {
    uint8_t MessageId;
    uint8_t presence; /* no bit in use */
    TarnSrnti Srnti;
    TarnAcUeId AcUeId;
} TarnHandoverCancelIndRecord;

/* TarnNewHandoverCancelIndMsg returns a new message that holds its MessageId, owned by the
 * caller. */
TarnMsg *TarnNewHandoverCancelIndMsg(void);

/* TarnAppendMessageIdToHandoverCancelIndMsg appends a further MessageId, returning 1. */
uint32_t TarnAppendMessageIdToHandoverCancelIndMsg(TarnMsg *msg, TarnMessageId value);

/* TarnExtractMessageIdFromHandoverCancelIndMsg copies the next MessageId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractMessageIdFromHandoverCancelIndMsg(TarnMsg *msg, TarnMessageId *value);

/* TarnAppendSrntiToHandoverCancelIndMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendSrntiToHandoverCancelIndMsg(TarnMsg *msg, const TarnSrnti *value);

/* TarnExtractSrntiFromHandoverCancelIndMsg copies the next Srnti to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractSrntiFromHandoverCancelIndMsg(TarnMsg *msg, TarnSrnti *value);

/* TarnAppendAcUeIdToHandoverCancelIndMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendAcUeIdToHandoverCancelIndMsg(TarnMsg *msg, const TarnAcUeId *value);

/* TarnExtractAcUeIdFromHandoverCancelIndMsg copies the next AcUeId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractAcUeIdFromHandoverCancelIndMsg(TarnMsg *msg, TarnAcUeId *value);

/* TarnIsHandoverCancelIndMsgValid returns 1 if msg is a valid HandoverCancelInd, and 0
 * otherwise. */
uint32_t TarnIsHandoverCancelIndMsgValid(const TarnMsg *msg);

/* TarnPackHandoverCancelIndMsg writes msg to buffer, returning 1 on success and 0 on failure. */
uint32_t TarnPackHandoverCancelIndMsg(const TarnMsg *msg, uint8_t *buffer, uint32_t size);

/* TarnUnpackHandoverCancelIndMsg returns a new message read from buffer, owned by the caller, or
 * null. */
TarnMsg *TarnUnpackHandoverCancelIndMsg(const uint8_t *buffer, uint32_t length);

/* TarnBuildHandoverCancelIndMsg packs *record into buffer, returning the bytes written and 0 on
 * failure. */
uint32_t TarnBuildHandoverCancelIndMsg(uint8_t *buffer, uint32_t size,
                                       const TarnHandoverCancelIndRecord *record);

/* TarnGetHandoverCancelIndMsg unpacks buffer into *record, returning 1 on success and 0 on
 * failure. */
uint32_t TarnGetHandoverCancelIndMsg(const uint8_t *buffer, uint32_t length,
                                     TarnHandoverCancelIndRecord *record);

/* ---- HandoverReqAck, id 33 ----------------------------------------------------------------------
 * AP to AC: the target has allocated resources for the UE.
 *
 *   Srnti                           tag 1    mandatory
 *   AcUeId                          tag 3    mandatory
 *   RrcContainer                    tag 117  mandatory
 *   IntProtAlgo                     tag 12   optional
 *   ResourceInfoPerCnDomainListAck  tag 153  composite, optional
 *
 * Build writes 2427 bytes at most. The record takes about 2 KiB of the caller's memory. */

enum { TarnHandoverReqAckMsgId = 33 };

typedef struct TarnHandoverReqAckRecord {
    uint8_t MessageId;
    uint8_t presence;
    TarnSrnti Srnti;
    TarnAcUeId AcUeId;
    TarnRrcContainer RrcContainer;
    TarnIntProtAlgo IntProtAlgo;                                             /* 0x80 */
    TarnResourceInfoPerCnDomainListAckRecord ResourceInfoPerCnDomainListAck; /* 0x40 */
} TarnHandoverReqAckRecord;

enum {
    TarnHandoverReqAckHasIntProtAlgo = 0x80,
    TarnHandoverReqAckHasResourceInfoPerCnDomainListAck = 0x40,
};

/* TarnNewHandoverReqAckMsg returns a new message that holds its MessageId, owned by the caller. */
TarnMsg *TarnNewHandoverReqAckMsg(void);

/* TarnAppendMessageIdToHandoverReqAckMsg appends a further MessageId, returning 1. */
uint32_t TarnAppendMessageIdToHandoverReqAckMsg(TarnMsg *msg, TarnMessageId value);

/* TarnExtractMessageIdFromHandoverReqAckMsg copies the next MessageId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractMessageIdFromHandoverReqAckMsg(TarnMsg *msg, TarnMessageId *value);

/* TarnAppendSrntiToHandoverReqAckMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendSrntiToHandoverReqAckMsg(TarnMsg *msg, const TarnSrnti *value);

/* TarnExtractSrntiFromHandoverReqAckMsg copies the next Srnti to *value, returning 1 on success and
 * 0 if there is none. */
uint32_t TarnExtractSrntiFromHandoverReqAckMsg(TarnMsg *msg, TarnSrnti *value);

/* TarnAppendAcUeIdToHandoverReqAckMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendAcUeIdToHandoverReqAckMsg(TarnMsg *msg, const TarnAcUeId *value);

/* TarnExtractAcUeIdFromHandoverReqAckMsg copies the next AcUeId to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractAcUeIdFromHandoverReqAckMsg(TarnMsg *msg, TarnAcUeId *value);

/* TarnAppendRrcContainerToHandoverReqAckMsg appends a copy of *value, returning 1 on success and 0
 * if invalid. */
uint32_t TarnAppendRrcContainerToHandoverReqAckMsg(TarnMsg *msg, const TarnRrcContainer *value);

/* TarnExtractRrcContainerFromHandoverReqAckMsg copies the next RrcContainer to *value, returning 1
 * on success and 0 if there is none. */
uint32_t TarnExtractRrcContainerFromHandoverReqAckMsg(TarnMsg *msg, TarnRrcContainer *value);

/* TarnAppendIntProtAlgoToHandoverReqAckMsg appends a copy of *value, returning 1 on success and 0
 * if invalid. */
uint32_t TarnAppendIntProtAlgoToHandoverReqAckMsg(TarnMsg *msg, const TarnIntProtAlgo *value);

/* TarnExtractIntProtAlgoFromHandoverReqAckMsg copies the next IntProtAlgo to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractIntProtAlgoFromHandoverReqAckMsg(TarnMsg *msg, TarnIntProtAlgo *value);

/* TarnAppendResourceInfoPerCnDomainListAckIeToHandoverReqAckMsg appends ie itself, unchecked, and
 * takes it over, returning 1. */
uint32_t TarnAppendResourceInfoPerCnDomainListAckIeToHandoverReqAckMsg(
    TarnMsg *msg, TarnResourceInfoPerCnDomainListAckIe *ie);

/* TarnExtractResourceInfoPerCnDomainListAckIeFromHandoverReqAckMsg lends the next
 * ResourceInfoPerCnDomainListAck in *ie, returning 1 on success and 0, with *ie null, if there is
 * none. */
uint32_t TarnExtractResourceInfoPerCnDomainListAckIeFromHandoverReqAckMsg(
    TarnMsg *msg, TarnResourceInfoPerCnDomainListAckIe **ie);

/* TarnIsHandoverReqAckMsgValid returns 1 if msg is a valid HandoverReqAck, and 0 otherwise. */
uint32_t TarnIsHandoverReqAckMsgValid(const TarnMsg *msg);

/* TarnPackHandoverReqAckMsg writes msg to buffer, returning 1 on success and 0 on failure. */
uint32_t TarnPackHandoverReqAckMsg(const TarnMsg *msg, uint8_t *buffer, uint32_t size);

/* TarnUnpackHandoverReqAckMsg returns a new message read from buffer, owned by the caller, or
 * null. */
TarnMsg *TarnUnpackHandoverReqAckMsg(const uint8_t *buffer, uint32_t length);

/* TarnBuildHandoverReqAckMsg packs *record into buffer, returning the bytes written and 0 on
 * failure. */
uint32_t TarnBuildHandoverReqAckMsg(uint8_t *buffer, uint32_t size,
                                    const TarnHandoverReqAckRecord *record);

/* TarnGetHandoverReqAckMsg unpacks buffer into *record, returning 1 on success and 0 on failure. */
uint32_t TarnGetHandoverReqAckMsg(const uint8_t *buffer, uint32_t length,
                                  TarnHandoverReqAckRecord *record);

/* ---- UserPlaneModifyRequest, id 35 --------------------------------------------------------------
 * Asks for a user plane to be modified.
 *
 *   Srnti                   tag 1    mandatory
 *   AcUeId                  tag 3    mandatory
 *   AcUserPlaneAssociation  tag 24   mandatory
 *   ApUserPlaneAssociation  tag 44   mandatory
 *   MaxBitRateUplink        tag 160  optional
 *   MaxBitRateDownlink      tag 161  optional
 *
 * Build writes 65 bytes at most. */

enum { TarnUserPlaneModifyRequestMsgId = 35 };

typedef struct TarnUserPlaneModifyRequestRecord {
    uint8_t MessageId;
    uint8_t presence;
    TarnSrnti Srnti;
    TarnAcUeId AcUeId;
    TarnAcUserPlaneAssociation AcUserPlaneAssociation;
    TarnApUserPlaneAssociation ApUserPlaneAssociation;
    TarnMaxBitRateUplink MaxBitRateUplink;     /* 0x80 */
    TarnMaxBitRateDownlink MaxBitRateDownlink; /* 0x40 */
} TarnUserPlaneModifyRequestRecord;

enum {
    TarnUserPlaneModifyRequestHasMaxBitRateUplink = 0x80,
    TarnUserPlaneModifyRequestHasMaxBitRateDownlink = 0x40,
};

/* TarnNewUserPlaneModifyRequestMsg returns a new message that holds its MessageId, owned by the
 * caller. */
TarnMsg *TarnNewUserPlaneModifyRequestMsg(void);

/* TarnAppendMessageIdToUserPlaneModifyRequestMsg appends a further MessageId, returning 1. */
uint32_t TarnAppendMessageIdToUserPlaneModifyRequestMsg(TarnMsg *msg, TarnMessageId value);

/* TarnExtractMessageIdFromUserPlaneModifyRequestMsg copies the next MessageId to *value, returning
 * 1 on success and 0 if there is none. */
uint32_t TarnExtractMessageIdFromUserPlaneModifyRequestMsg(TarnMsg *msg, TarnMessageId *value);

/* TarnAppendSrntiToUserPlaneModifyRequestMsg appends a copy of *value, returning 1 on success and 0
 * if invalid. */
uint32_t TarnAppendSrntiToUserPlaneModifyRequestMsg(TarnMsg *msg, const TarnSrnti *value);

/* TarnExtractSrntiFromUserPlaneModifyRequestMsg copies the next Srnti to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractSrntiFromUserPlaneModifyRequestMsg(TarnMsg *msg, TarnSrnti *value);

/* TarnAppendAcUeIdToUserPlaneModifyRequestMsg appends a copy of *value, returning 1 on success and
 * 0 if invalid. */
uint32_t TarnAppendAcUeIdToUserPlaneModifyRequestMsg(TarnMsg *msg, const TarnAcUeId *value);

/* TarnExtractAcUeIdFromUserPlaneModifyRequestMsg copies the next AcUeId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractAcUeIdFromUserPlaneModifyRequestMsg(TarnMsg *msg, TarnAcUeId *value);

/* TarnAppendAcUserPlaneAssociationToUserPlaneModifyRequestMsg appends a copy of *value, returning 1
 * on success and 0 if invalid. */
uint32_t TarnAppendAcUserPlaneAssociationToUserPlaneModifyRequestMsg(
    TarnMsg *msg, const TarnAcUserPlaneAssociation *value);

/* TarnExtractAcUserPlaneAssociationFromUserPlaneModifyRequestMsg copies the next
 * AcUserPlaneAssociation to *value, returning 1 on success and 0 if there is none. */
uint32_t
TarnExtractAcUserPlaneAssociationFromUserPlaneModifyRequestMsg(TarnMsg *msg,
                                                               TarnAcUserPlaneAssociation *value);

/* TarnAppendApUserPlaneAssociationToUserPlaneModifyRequestMsg appends a copy of *value, returning 1
 * on success and 0 if invalid. */
uint32_t TarnAppendApUserPlaneAssociationToUserPlaneModifyRequestMsg(
    TarnMsg *msg, const TarnApUserPlaneAssociation *value);

/* TarnExtractApUserPlaneAssociationFromUserPlaneModifyRequestMsg copies the next
 * ApUserPlaneAssociation to *value, returning 1 on success and 0 if there is none. */
uint32_t
TarnExtractApUserPlaneAssociationFromUserPlaneModifyRequestMsg(TarnMsg *msg,
                                                               TarnApUserPlaneAssociation *value);

/* TarnAppendMaxBitRateUplinkToUserPlaneModifyRequestMsg appends a copy of *value, returning 1 on
 * success and 0 if invalid. */
uint32_t TarnAppendMaxBitRateUplinkToUserPlaneModifyRequestMsg(TarnMsg *msg,
                                                               const TarnMaxBitRateUplink *value);

/* TarnExtractMaxBitRateUplinkFromUserPlaneModifyRequestMsg copies the next MaxBitRateUplink to
 * *value, returning 1 on success and 0 if there is none. */
uint32_t TarnExtractMaxBitRateUplinkFromUserPlaneModifyRequestMsg(TarnMsg *msg,
                                                                  TarnMaxBitRateUplink *value);

/* TarnAppendMaxBitRateDownlinkToUserPlaneModifyRequestMsg appends a copy of *value, returning 1 on
 * success and 0 if invalid. */
uint32_t
TarnAppendMaxBitRateDownlinkToUserPlaneModifyRequestMsg(TarnMsg *msg,
                                                        const TarnMaxBitRateDownlink *value);

/* TarnExtractMaxBitRateDownlinkFromUserPlaneModifyRequestMsg copies the next MaxBitRateDownlink to
 * *value, returning 1 on success and 0 if there is none. */
uint32_t TarnExtractMaxBitRateDownlinkFromUserPlaneModifyRequestMsg(TarnMsg *msg,
                                                                    TarnMaxBitRateDownlink *value);

/* TarnIsUserPlaneModifyRequestMsgValid returns 1 if msg is a valid UserPlaneModifyRequest, and 0
 * otherwise. */
uint32_t TarnIsUserPlaneModifyRequestMsgValid(const TarnMsg *msg);

/* TarnPackUserPlaneModifyRequestMsg writes msg to buffer, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackUserPlaneModifyRequestMsg(const TarnMsg *msg, uint8_t *buffer, uint32_t size);

/* TarnUnpackUserPlaneModifyRequestMsg returns a new message read from buffer, owned by the caller,
 * or null. */
TarnMsg *TarnUnpackUserPlaneModifyRequestMsg(const uint8_t *buffer, uint32_t length);

/* TarnBuildUserPlaneModifyRequestMsg packs *record into buffer, returning the bytes written and 0
 * on failure. */
uint32_t TarnBuildUserPlaneModifyRequestMsg(uint8_t *buffer, uint32_t size,
                                            const TarnUserPlaneModifyRequestRecord *record);

/* TarnGetUserPlaneModifyRequestMsg unpacks buffer into *record, returning 1 on success and 0 on
 * failure. */
uint32_t TarnGetUserPlaneModifyRequestMsg(const uint8_t *buffer, uint32_t length,
                                          TarnUserPlaneModifyRequestRecord *record);

/* ---- UserPlaneModifyResponse, id 36 -------------------------------------------------------------
 * Tells how a user plane was modified.
 *
 *   Srnti                   tag 1    mandatory
 *   AcUeId                  tag 3    mandatory
 *   ApUserPlaneAssociation  tag 44   mandatory
 *   UserPlaneResult         tag 93   mandatory
 *
 * Build writes 43 bytes at most. */

enum { TarnUserPlaneModifyResponseMsgId = 36 };

typedef struct TarnUserPlaneModifyResponseRecord {
    uint8_t MessageId;
    uint8_t presence; /* no bit in use */
    TarnSrnti Srnti;
    TarnAcUeId AcUeId;
    TarnApUserPlaneAssociation ApUserPlaneAssociation;
    TarnUserPlaneResult UserPlaneResult;
} TarnUserPlaneModifyResponseRecord;

/* TarnNewUserPlaneModifyResponseMsg returns a new message that holds its MessageId, owned by the
 * caller. */
TarnMsg *TarnNewUserPlaneModifyResponseMsg(void);

/* TarnAppendMessageIdToUserPlaneModifyResponseMsg appends a further MessageId, returning 1. */
uint32_t TarnAppendMessageIdToUserPlaneModifyResponseMsg(TarnMsg *msg, TarnMessageId value);

/* TarnExtractMessageIdFromUserPlaneModifyResponseMsg copies the next MessageId to *value, returning
 * 1 on success and 0 if there is none. */
uint32_t TarnExtractMessageIdFromUserPlaneModifyResponseMsg(TarnMsg *msg, TarnMessageId *value);

/* TarnAppendSrntiToUserPlaneModifyResponseMsg appends a copy of *value, returning 1 on success and
 * 0 if invalid. */
uint32_t TarnAppendSrntiToUserPlaneModifyResponseMsg(TarnMsg *msg, const TarnSrnti *value);

/* TarnExtractSrntiFromUserPlaneModifyResponseMsg copies the next Srnti to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractSrntiFromUserPlaneModifyResponseMsg(TarnMsg *msg, TarnSrnti *value);

/* TarnAppendAcUeIdToUserPlaneModifyResponseMsg appends a copy of *value, returning 1 on success and
 * 0 if invalid. */
uint32_t TarnAppendAcUeIdToUserPlaneModifyResponseMsg(TarnMsg *msg, const TarnAcUeId *value);

/* TarnExtractAcUeIdFromUserPlaneModifyResponseMsg copies the next AcUeId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractAcUeIdFromUserPlaneModifyResponseMsg(TarnMsg *msg, TarnAcUeId *value);

/* TarnAppendApUserPlaneAssociationToUserPlaneModifyResponseMsg appends a copy of *value, returning
 * 1 on success and 0 if invalid. */
uint32_t TarnAppendApUserPlaneAssociationToUserPlaneModifyResponseMsg(
    TarnMsg *msg, const TarnApUserPlaneAssociation *value);

/* TarnExtractApUserPlaneAssociationFromUserPlaneModifyResponseMsg copies the next
 * ApUserPlaneAssociation to *value, returning 1 on success and 0 if there is none. */
uint32_t
TarnExtractApUserPlaneAssociationFromUserPlaneModifyResponseMsg(TarnMsg *msg,
                                                                TarnApUserPlaneAssociation *value);

/* TarnAppendUserPlaneResultToUserPlaneModifyResponseMsg appends a copy of *value, returning 1 on
 * success and 0 if invalid. */
uint32_t TarnAppendUserPlaneResultToUserPlaneModifyResponseMsg(TarnMsg *msg,
                                                               const TarnUserPlaneResult *value);

/* TarnExtractUserPlaneResultFromUserPlaneModifyResponseMsg copies the next UserPlaneResult to
 * *value, returning 1 on success and 0 if there is none. */
uint32_t TarnExtractUserPlaneResultFromUserPlaneModifyResponseMsg(TarnMsg *msg,
                                                                  TarnUserPlaneResult *value);

/* TarnIsUserPlaneModifyResponseMsgValid returns 1 if msg is a valid UserPlaneModifyResponse, and 0
 * otherwise. */
uint32_t TarnIsUserPlaneModifyResponseMsgValid(const TarnMsg *msg);

/* TarnPackUserPlaneModifyResponseMsg writes msg to buffer, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackUserPlaneModifyResponseMsg(const TarnMsg *msg, uint8_t *buffer, uint32_t size);

/* TarnUnpackUserPlaneModifyResponseMsg returns a new message read from buffer, owned by the caller,
 * or null. */
TarnMsg *TarnUnpackUserPlaneModifyResponseMsg(const uint8_t *buffer, uint32_t length);

/* TarnBuildUserPlaneModifyResponseMsg packs *record into buffer, returning the bytes written and 0
 * on failure. */
uint32_t TarnBuildUserPlaneModifyResponseMsg(uint8_t *buffer, uint32_t size,
                                             const TarnUserPlaneModifyResponseRecord *record);

/* TarnGetUserPlaneModifyResponseMsg unpacks buffer into *record, returning 1 on success and 0 on
 * failure. */
uint32_t TarnGetUserPlaneModifyResponseMsg(const uint8_t *buffer, uint32_t length,
                                           TarnUserPlaneModifyResponseRecord *record);

/* ---- RabReleaseRequired, id 37 ------------------------------------------------------------------
 * Tells that RABs must be released.
 *
 *   Srnti           tag 1    mandatory
 *   AcUeId          tag 3    mandatory
 *   CnDomainId      tag 6    mandatory
 *   RabReleaseList  tag 66   mandatory
 *
 * Build writes 104 bytes at most. */

enum { TarnRabReleaseRequiredMsgId = 37 };

typedef struct TarnRabReleaseRequiredRecord {
    uint8_t MessageId;
    uint8_t presence; /* no bit in use */
    TarnSrnti Srnti;
    TarnAcUeId AcUeId;
    TarnCnDomainId CnDomainId;
    TarnRabReleaseList RabReleaseList;
} TarnRabReleaseRequiredRecord;

/* TarnNewRabReleaseRequiredMsg returns a new message that holds its MessageId, owned by the
 * caller. */
TarnMsg *TarnNewRabReleaseRequiredMsg(void);

/* TarnAppendMessageIdToRabReleaseRequiredMsg appends a further MessageId, returning 1. */
uint32_t TarnAppendMessageIdToRabReleaseRequiredMsg(TarnMsg *msg, TarnMessageId value);

/* TarnExtractMessageIdFromRabReleaseRequiredMsg copies the next MessageId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractMessageIdFromRabReleaseRequiredMsg(TarnMsg *msg, TarnMessageId *value);

/* TarnAppendSrntiToRabReleaseRequiredMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendSrntiToRabReleaseRequiredMsg(TarnMsg *msg, const TarnSrnti *value);

/* TarnExtractSrntiFromRabReleaseRequiredMsg copies the next Srnti to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractSrntiFromRabReleaseRequiredMsg(TarnMsg *msg, TarnSrnti *value);

/* TarnAppendAcUeIdToRabReleaseRequiredMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendAcUeIdToRabReleaseRequiredMsg(TarnMsg *msg, const TarnAcUeId *value);

/* TarnExtractAcUeIdFromRabReleaseRequiredMsg copies the next AcUeId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractAcUeIdFromRabReleaseRequiredMsg(TarnMsg *msg, TarnAcUeId *value);

/* TarnAppendCnDomainIdToRabReleaseRequiredMsg appends a copy of *value, returning 1 on success and
 * 0 if invalid. */
uint32_t TarnAppendCnDomainIdToRabReleaseRequiredMsg(TarnMsg *msg, const TarnCnDomainId *value);

/* TarnExtractCnDomainIdFromRabReleaseRequiredMsg copies the next CnDomainId to *value, returning 1
 * on success and 0 if there is none. */
uint32_t TarnExtractCnDomainIdFromRabReleaseRequiredMsg(TarnMsg *msg, TarnCnDomainId *value);

/* TarnAppendRabReleaseListToRabReleaseRequiredMsg appends a copy of *value, returning 1 on success
 * and 0 if invalid. */
uint32_t TarnAppendRabReleaseListToRabReleaseRequiredMsg(TarnMsg *msg,
                                                         const TarnRabReleaseList *value);

/* TarnExtractRabReleaseListFromRabReleaseRequiredMsg copies the next RabReleaseList to *value,
 * returning 1 on success and 0 if there is none. */
uint32_t TarnExtractRabReleaseListFromRabReleaseRequiredMsg(TarnMsg *msg,
                                                            TarnRabReleaseList *value);

/* TarnIsRabReleaseRequiredMsgValid returns 1 if msg is a valid RabReleaseRequired, and 0
 * otherwise. */
uint32_t TarnIsRabReleaseRequiredMsgValid(const TarnMsg *msg);

/* TarnPackRabReleaseRequiredMsg writes msg to buffer, returning 1 on success and 0 on failure. */
uint32_t TarnPackRabReleaseRequiredMsg(const TarnMsg *msg, uint8_t *buffer, uint32_t size);

/* TarnUnpackRabReleaseRequiredMsg returns a new message read from buffer, owned by the caller, or
 * null. */
TarnMsg *TarnUnpackRabReleaseRequiredMsg(const uint8_t *buffer, uint32_t length);

/* TarnBuildRabReleaseRequiredMsg packs *record into buffer, returning the bytes written and 0 on
 * failure. */
uint32_t TarnBuildRabReleaseRequiredMsg(uint8_t *buffer, uint32_t size,
                                        const TarnRabReleaseRequiredRecord *record);

/* TarnGetRabReleaseRequiredMsg unpacks buffer into *record, returning 1 on success and 0 on
 * failure. */
uint32_t TarnGetRabReleaseRequiredMsg(const uint8_t *buffer, uint32_t length,
                                      TarnRabReleaseRequiredRecord *record);

/* ---- AccessControlRequest, id 38 ----------------------------------------------------------------
 * AP to AC: asks whether a subscriber may use the access point.
 *
 *   Srnti   tag 1    mandatory
 *   AcUeId  tag 3    mandatory
 *   LAC     tag 109  mandatory
 *   Imsi    tag 169  mandatory
 *
 * Build writes 57 bytes at most. */

enum { TarnAccessControlRequestMsgId = 38 };

typedef struct TarnAccessControlRequestRecord {
    uint8_t MessageId;
    uint8_t presence; /* no bit in use */
    TarnSrnti Srnti;
    TarnAcUeId AcUeId;
    TarnLAC LAC;
    TarnImsi Imsi;
} TarnAccessControlRequestRecord;

/* TarnNewAccessControlRequestMsg returns a new message that holds its MessageId, owned by the
 * caller. */
TarnMsg *TarnNewAccessControlRequestMsg(void);

/* TarnAppendMessageIdToAccessControlRequestMsg appends a further MessageId, returning 1. */
uint32_t TarnAppendMessageIdToAccessControlRequestMsg(TarnMsg *msg, TarnMessageId value);

/* TarnExtractMessageIdFromAccessControlRequestMsg copies the next MessageId to *value, returning 1
 * on success and 0 if there is none. */
uint32_t TarnExtractMessageIdFromAccessControlRequestMsg(TarnMsg *msg, TarnMessageId *value);

/* TarnAppendSrntiToAccessControlRequestMsg appends a copy of *value, returning 1 on success and 0
 * if invalid. */
uint32_t TarnAppendSrntiToAccessControlRequestMsg(TarnMsg *msg, const TarnSrnti *value);

/* TarnExtractSrntiFromAccessControlRequestMsg copies the next Srnti to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractSrntiFromAccessControlRequestMsg(TarnMsg *msg, TarnSrnti *value);

/* TarnAppendAcUeIdToAccessControlRequestMsg appends a copy of *value, returning 1 on success and 0
 * if invalid. */
uint32_t TarnAppendAcUeIdToAccessControlRequestMsg(TarnMsg *msg, const TarnAcUeId *value);

/* TarnExtractAcUeIdFromAccessControlRequestMsg copies the next AcUeId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractAcUeIdFromAccessControlRequestMsg(TarnMsg *msg, TarnAcUeId *value);

/* TarnAppendLACToAccessControlRequestMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendLACToAccessControlRequestMsg(TarnMsg *msg, const TarnLAC *value);

/* TarnExtractLACFromAccessControlRequestMsg copies the next LAC to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractLACFromAccessControlRequestMsg(TarnMsg *msg, TarnLAC *value);

/* TarnAppendImsiToAccessControlRequestMsg appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendImsiToAccessControlRequestMsg(TarnMsg *msg, const TarnImsi *value);

/* TarnExtractImsiFromAccessControlRequestMsg copies the next Imsi to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractImsiFromAccessControlRequestMsg(TarnMsg *msg, TarnImsi *value);

/* TarnIsAccessControlRequestMsgValid returns 1 if msg is a valid AccessControlRequest, and 0
 * otherwise. */
uint32_t TarnIsAccessControlRequestMsgValid(const TarnMsg *msg);

/* TarnPackAccessControlRequestMsg writes msg to buffer, returning 1 on success and 0 on failure. */
uint32_t TarnPackAccessControlRequestMsg(const TarnMsg *msg, uint8_t *buffer, uint32_t size);

/* TarnUnpackAccessControlRequestMsg returns a new message read from buffer, owned by the caller, or
 * null. */
TarnMsg *TarnUnpackAccessControlRequestMsg(const uint8_t *buffer, uint32_t length);

/* TarnBuildAccessControlRequestMsg packs *record into buffer, returning the bytes written and 0 on
 * failure. */
uint32_t TarnBuildAccessControlRequestMsg(uint8_t *buffer, uint32_t size,
                                          const TarnAccessControlRequestRecord *record);

/* TarnGetAccessControlRequestMsg unpacks buffer into *record, returning 1 on success and 0 on
 * failure. */
uint32_t TarnGetAccessControlRequestMsg(const uint8_t *buffer, uint32_t length,
                                        TarnAccessControlRequestRecord *record);

/* ---- AccessControlResponse, id 39 ---------------------------------------------------------------
 * AC to AP: answers an access control request.
 *
 *   Srnti     tag 1    mandatory
 *   AcUeId    tag 3    mandatory
 *   Imsi      tag 169  mandatory
 *   LacMatch  tag 168  mandatory
 *
 * Build writes 57 bytes at most. */

enum { TarnAccessControlResponseMsgId = 39 };

typedef struct TarnAccessControlResponseRecord {
    uint8_t MessageId;
    uint8_t presence; /* no bit in use */
    TarnSrnti Srnti;
    TarnAcUeId AcUeId;
    TarnImsi Imsi;
    TarnLacMatch LacMatch;
} TarnAccessControlResponseRecord;

/* TarnNewAccessControlResponseMsg returns a new message that holds its MessageId, owned by the
 * caller. */
TarnMsg *TarnNewAccessControlResponseMsg(void);

/* TarnAppendMessageIdToAccessControlResponseMsg appends a further MessageId, returning 1. */
uint32_t TarnAppendMessageIdToAccessControlResponseMsg(TarnMsg *msg, TarnMessageId value);

/* TarnExtractMessageIdFromAccessControlResponseMsg copies the next MessageId to *value, returning 1
 * on success and 0 if there is none. */
uint32_t TarnExtractMessageIdFromAccessControlResponseMsg(TarnMsg *msg, TarnMessageId *value);

/* TarnAppendSrntiToAccessControlResponseMsg appends a copy of *value, returning 1 on success and 0
 * if invalid. */
uint32_t TarnAppendSrntiToAccessControlResponseMsg(TarnMsg *msg, const TarnSrnti *value);

/* TarnExtractSrntiFromAccessControlResponseMsg copies the next Srnti to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractSrntiFromAccessControlResponseMsg(TarnMsg *msg, TarnSrnti *value);

/* TarnAppendAcUeIdToAccessControlResponseMsg appends a copy of *value, returning 1 on success and 0
 * if invalid. */
uint32_t TarnAppendAcUeIdToAccessControlResponseMsg(TarnMsg *msg, const TarnAcUeId *value);

/* TarnExtractAcUeIdFromAccessControlResponseMsg copies the next AcUeId to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractAcUeIdFromAccessControlResponseMsg(TarnMsg *msg, TarnAcUeId *value);

/* TarnAppendImsiToAccessControlResponseMsg appends a copy of *value, returning 1 on success and 0
 * if invalid. */
uint32_t TarnAppendImsiToAccessControlResponseMsg(TarnMsg *msg, const TarnImsi *value);

/* TarnExtractImsiFromAccessControlResponseMsg copies the next Imsi to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractImsiFromAccessControlResponseMsg(TarnMsg *msg, TarnImsi *value);

/* TarnAppendLacMatchToAccessControlResponseMsg appends a copy of *value, returning 1 on success and
 * 0 if invalid. */
uint32_t TarnAppendLacMatchToAccessControlResponseMsg(TarnMsg *msg, const TarnLacMatch *value);

/* TarnExtractLacMatchFromAccessControlResponseMsg copies the next LacMatch to *value, returning 1
 * on success and 0 if there is none. */
uint32_t TarnExtractLacMatchFromAccessControlResponseMsg(TarnMsg *msg, TarnLacMatch *value);

/* TarnIsAccessControlResponseMsgValid returns 1 if msg is a valid AccessControlResponse, and 0
 * otherwise. */
uint32_t TarnIsAccessControlResponseMsgValid(const TarnMsg *msg);

/* TarnPackAccessControlResponseMsg writes msg to buffer, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackAccessControlResponseMsg(const TarnMsg *msg, uint8_t *buffer, uint32_t size);

/* TarnUnpackAccessControlResponseMsg returns a new message read from buffer, owned by the caller,
 * or null. */
TarnMsg *TarnUnpackAccessControlResponseMsg(const uint8_t *buffer, uint32_t length);

/* TarnBuildAccessControlResponseMsg packs *record into buffer, returning the bytes written and 0 on
 * failure. */
uint32_t TarnBuildAccessControlResponseMsg(uint8_t *buffer, uint32_t size,
                                           const TarnAccessControlResponseRecord *record);

/* TarnGetAccessControlResponseMsg unpacks buffer into *record, returning 1 on success and 0 on
 * failure. */
uint32_t TarnGetAccessControlResponseMsg(const uint8_t *buffer, uint32_t length,
                                         TarnAccessControlResponseRecord *record);

/* ---- Conditions in messages ---------------------------------------------------------------------
 * What decides whether a conditional IE must be there or must not be there. A null msg is fatal. */

/* TarnIsInterRatRelocForMsg returns 1 if RelocationType is 0 (inter-RAT), and 0 if not or if there
 * is no RelocationType. It decides whether RelocationRequired has GsmClassmark2, GsmClassmark3 and
 * TargetCGI. */
uint32_t TarnIsInterRatRelocForMsg(const TarnMsg *msg);

/* TarnIsIntraRatRelocForMsg returns 1 if RelocationType is 1 (intra-RAT), and 0 if not or if there
 * is no RelocationType. It decides whether RelocationRequired has ModifiedSrncContainer and
 * TargetRNCId. */
uint32_t TarnIsIntraRatRelocForMsg(const TarnMsg *msg);

/* TarnIsReset3GapNotPresentForMsg returns 1 if Reset3GAP is anything but 1, and 0 if not or if
 * there is no Reset3GAP. It decides whether IapReset has UeContextRef. */
uint32_t TarnIsReset3GapNotPresentForMsg(const TarnMsg *msg);

/* TarnIsUserPlaneConfigResultSuccessfulForMsg returns 1 if UserPlaneResult is 0 (success), and 0 if
 * not or if there is no UserPlaneResult. No rule of the library asks it. */
uint32_t TarnIsUserPlaneConfigResultSuccessfulForMsg(const TarnMsg *msg);

#pragma GCC visibility pop

#ifdef __cplusplus
}
#endif

#endif
