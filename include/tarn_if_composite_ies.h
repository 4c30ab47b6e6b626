/* Written by header_writer from the rows in src/catalogue; do not edit: change the rows or
 * tools/header_writer, then run `cmake --build --preset release --target tarn_headers`. */

/* The composite IEs: IEs whose value is other IEs, their children. For each composite IE C stand
 * here its tag TarnCTag, its IE object type TarnCIe, its record type TarnCRecord, and its
 * operations.
 *
 * A sequence has a fixed table of children, given in its comment in wire order with the mandatory
 * ones first. A list repeats one composite element.
 *
 * TarnNewCIe returns a new IE object without children. The caller owns it until it appends it to
 * its parent, or releases it with TarnDeleteIe(&c->ie).
 *
 * TarnAppendPToCIe appends a primitive child: a new IE object of the library's with a copy of
 * *value. It fails if the value is invalid, and then changes nothing. TarnAppendSIeToCIe appends a
 * composite child: the very object that the caller created, which the parent owns from then on.
 * Neither looks at order or number, so append the children in the order of the table: packing keeps
 * the order of appending, and unpacking accepts the children only in the order of the table. Where
 * the table has one child twice, the first append fills its first place and the second append its
 * second one.
 *
 * TarnExtractPFromCIe copies the value of the next P that was not extracted yet to *value, and
 * leaves *value as it was if there is none. TarnExtractSIeFromCIe lends the address of the next S
 * that was not extracted yet, which remains the parent's, and sets the pointer to null if there is
 * none. See tarn_if_objects.h for the extract history.
 *
 * TarnPackCIe writes the IE with all IEs below it to buffer and sets *written. It applies none of
 * the rules of presence and order. It fails, with *written 0 and nothing written, if the IE does
 * not fit, and with *written telling the bytes before the failing point if a child is none of C's
 * or does not pack.
 *
 * TarnUnpackCIe reads the IE from buffer into ie, an object without children, and sets *consumed.
 * Each child is unpacked and must be valid. With 0 bytes available it succeeds with *consumed 0:
 * whether an IE may be missing is for its parent to say. It fails with *consumed 0 if the tag is
 * missing or wrong, and with 2 if the length is missing.
 *
 *   Sequence. The length field is not used: children are taken from all the bytes available, in
 *   the order of the table, and *consumed counts the header and the children taken. An optional
 *   child that is absent, malformed or invalid is left out, and the next one is tried at the
 *   same place. A mandatory child that is so fails the IE.
 *
 *   List. Elements are taken until the bytes that the length field declares are used up. It fails
 *   if an element is malformed, invalid or goes beyond those bytes, or if the buffer ends first.
 *
 *   When it fails, *consumed tells the bytes before the failing child, and ie keeps the children
 *   that were taken before; the failed child is released with all below it.
 *
 * TarnIsCIeValid returns 1 if the IE object has the tag of C and its children obey its rules, and 0
 * otherwise, also for a null ie, which is not fatal here.
 *
 *   Sequence. Each mandatory child must stand valid at its place. Behind them, the optional
 *   children may stand in any order and number, and their own validity does not count. Another
 *   IE is refused there up to the number of places in the table; behind that anything is
 *   ignored. A conditional child must stand valid exactly if its condition holds.
 *
 *   List. The number of elements must be in range, each must be valid, and nothing else may stand
 *   between them.
 *
 * TarnCRecord is the form that C has in the records of the messages, for the one-call Build and Get
 * (tarn_if_messages.h). A sequence begins with a presence mask in which each optional or
 * conditional child has the bit that stands beside its member; then follows one member per child in
 * the order of the table. A list is a count and an array for as many elements as are valid at most.
 *
 * Fatal. Every pointer but msg is required, but for TarnIsCIeValid; a null one is reported, and the
 * operation fails. The msg argument is not used and may be null.
 *
 * How they nest, from those that are in no other one; messages hold composites of any level:
 *
 *   ModifiedSrncContainer
 *   PsIuhGatewayInfo
 *   RtpServerInfo
 *   TargetRNCId
 *   UeContextRef
 *     RabDataInfoList
 *       RabDataInfo
 *   ResourceInfoPerCnDomainListAck
 *     ResourceInfoPerCnDomainAck
 *       RabSetupSuccessList
 *         RabSetupSuccessInfo
 *   RabToSetupPerCnDomainList
 *     RabToSetupPerCnDomain
 *       RabList
 *         RabToSetUpInfo
 *           RabParams
 *             SduParams
 *               SduParamValue
 *                 SduFormatInfoParamList
 *                   SduFormatInfoParams
 */
#ifndef TARN_IF_COMPOSITE_IES_H
#define TARN_IF_COMPOSITE_IES_H

#include <stdint.h>

#include "tarn_if_primitive_ies.h"

#ifdef __cplusplus
extern "C" {
#endif

#pragma GCC visibility push(default)

/* ---- RabDataInfo, tag 103 -----------------------------------------------------------------------
 * Data volumes transferred over one RAB.
 *
 * Sequence of:
 *
 *   RabId                tag 23   mandatory
 *   SuccTransferAtPsiw   tag 98   mandatory
 *   UnSuccTransferAtRlc  tag 97   optional
 */

enum { TarnRabDataInfoTag = 103 };

typedef struct TarnRabDataInfoIe {
    TarnIe ie;
    VelDllHead children;
} TarnRabDataInfoIe;

typedef struct TarnRabDataInfoRecord {
    uint8_t presence;
    TarnRabId RabId;
    TarnSuccTransferAtPsiw SuccTransferAtPsiw;
    TarnUnSuccTransferAtRlc UnSuccTransferAtRlc; /* 0x80 */
} TarnRabDataInfoRecord;

enum { TarnRabDataInfoHasUnSuccTransferAtRlc = 0x80 };

/* TarnNewRabDataInfoIe returns a new RabDataInfo without children, owned by the caller. */
TarnRabDataInfoIe *TarnNewRabDataInfoIe(void);

/* TarnAppendRabIdToRabDataInfoIe appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendRabIdToRabDataInfoIe(TarnRabDataInfoIe *ie, const TarnRabId *value);

/* TarnExtractRabIdFromRabDataInfoIe copies the next RabId to *value, returning 1 on success and 0
 * if there is none. */
uint32_t TarnExtractRabIdFromRabDataInfoIe(TarnRabDataInfoIe *ie, TarnRabId *value);

/* TarnAppendSuccTransferAtPsiwToRabDataInfoIe appends a copy of *value, returning 1 on success and
 * 0 if invalid. */
uint32_t TarnAppendSuccTransferAtPsiwToRabDataInfoIe(TarnRabDataInfoIe *ie,
                                                     const TarnSuccTransferAtPsiw *value);

/* TarnExtractSuccTransferAtPsiwFromRabDataInfoIe copies the next SuccTransferAtPsiw to *value,
 * returning 1 on success and 0 if there is none. */
uint32_t TarnExtractSuccTransferAtPsiwFromRabDataInfoIe(TarnRabDataInfoIe *ie,
                                                        TarnSuccTransferAtPsiw *value);

/* TarnAppendUnSuccTransferAtRlcToRabDataInfoIe appends a copy of *value, returning 1 on success and
 * 0 if invalid. */
uint32_t TarnAppendUnSuccTransferAtRlcToRabDataInfoIe(TarnRabDataInfoIe *ie,
                                                      const TarnUnSuccTransferAtRlc *value);

/* TarnExtractUnSuccTransferAtRlcFromRabDataInfoIe copies the next UnSuccTransferAtRlc to *value,
 * returning 1 on success and 0 if there is none. */
uint32_t TarnExtractUnSuccTransferAtRlcFromRabDataInfoIe(TarnRabDataInfoIe *ie,
                                                         TarnUnSuccTransferAtRlc *value);

/* TarnPackRabDataInfoIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackRabDataInfoIe(const TarnRabDataInfoIe *ie, uint8_t *buffer, uint32_t available,
                               uint32_t *written);

/* TarnUnpackRabDataInfoIe fills ie and sets *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackRabDataInfoIe(const TarnMsg *msg, TarnRabDataInfoIe *ie, const uint8_t *buffer,
                                 uint32_t available, uint32_t *consumed);

/* TarnIsRabDataInfoIeValid returns 1 if ie is a valid RabDataInfo, and 0 otherwise. */
uint32_t TarnIsRabDataInfoIeValid(const TarnMsg *msg, const TarnRabDataInfoIe *ie);

/* ---- SduFormatInfoParams, tag 41 ----------------------------------------------------------------
 * SDU format information of one RAB subflow combination.
 *
 * Sequence of:
 *
 *   SduSize                tag 42   optional
 *   RabSubflowCombBitRate  tag 43   optional
 */

enum { TarnSduFormatInfoParamsTag = 41 };

typedef struct TarnSduFormatInfoParamsIe {
    TarnIe ie;
    VelDllHead children;
} TarnSduFormatInfoParamsIe;

typedef struct TarnSduFormatInfoParamsRecord {
    uint8_t presence;
    TarnSduSize SduSize;                             /* 0x80 */
    TarnRabSubflowCombBitRate RabSubflowCombBitRate; /* 0x40 */
} TarnSduFormatInfoParamsRecord;

enum {
    TarnSduFormatInfoParamsHasSduSize = 0x80,
    TarnSduFormatInfoParamsHasRabSubflowCombBitRate = 0x40,
};

/* TarnNewSduFormatInfoParamsIe returns a new SduFormatInfoParams without children, owned by the
 * caller. */
TarnSduFormatInfoParamsIe *TarnNewSduFormatInfoParamsIe(void);

/* TarnAppendSduSizeToSduFormatInfoParamsIe appends a copy of *value, returning 1 on success and 0
 * if invalid. */
uint32_t TarnAppendSduSizeToSduFormatInfoParamsIe(TarnSduFormatInfoParamsIe *ie,
                                                  const TarnSduSize *value);

/* TarnExtractSduSizeFromSduFormatInfoParamsIe copies the next SduSize to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractSduSizeFromSduFormatInfoParamsIe(TarnSduFormatInfoParamsIe *ie,
                                                     TarnSduSize *value);

/* TarnAppendRabSubflowCombBitRateToSduFormatInfoParamsIe appends a copy of *value, returning 1 on
 * success and 0 if invalid. */
uint32_t
TarnAppendRabSubflowCombBitRateToSduFormatInfoParamsIe(TarnSduFormatInfoParamsIe *ie,
                                                       const TarnRabSubflowCombBitRate *value);

/* TarnExtractRabSubflowCombBitRateFromSduFormatInfoParamsIe copies the next RabSubflowCombBitRate
 * to *value, returning 1 on success and 0 if there is none. */
uint32_t
TarnExtractRabSubflowCombBitRateFromSduFormatInfoParamsIe(TarnSduFormatInfoParamsIe *ie,
                                                          TarnRabSubflowCombBitRate *value);

/* TarnPackSduFormatInfoParamsIe packs ie and sets *written, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackSduFormatInfoParamsIe(const TarnSduFormatInfoParamsIe *ie, uint8_t *buffer,
                                       uint32_t available, uint32_t *written);

/* TarnUnpackSduFormatInfoParamsIe fills ie and sets *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackSduFormatInfoParamsIe(const TarnMsg *msg, TarnSduFormatInfoParamsIe *ie,
                                         const uint8_t *buffer, uint32_t available,
                                         uint32_t *consumed);

/* TarnIsSduFormatInfoParamsIeValid returns 1 if ie is a valid SduFormatInfoParams, and 0
 * otherwise. */
uint32_t TarnIsSduFormatInfoParamsIeValid(const TarnMsg *msg, const TarnSduFormatInfoParamsIe *ie);

/* ---- RabSetupSuccessInfo, tag 58 ----------------------------------------------------------------
 * One RAB that was set up.
 *
 * Sequence of:
 *
 *   RabId    tag 23   mandatory
 *   UdpPort  tag 62   optional
 *   GtpTeid  tag 171  optional
 */

enum { TarnRabSetupSuccessInfoTag = 58 };

typedef struct TarnRabSetupSuccessInfoIe {
    TarnIe ie;
    VelDllHead children;
} TarnRabSetupSuccessInfoIe;

typedef struct TarnRabSetupSuccessInfoRecord {
    uint8_t presence;
    TarnRabId RabId;
    TarnUdpPort UdpPort; /* 0x80 */
    TarnGtpTeid GtpTeid; /* 0x40 */
} TarnRabSetupSuccessInfoRecord;

enum {
    TarnRabSetupSuccessInfoHasUdpPort = 0x80,
    TarnRabSetupSuccessInfoHasGtpTeid = 0x40,
};

/* TarnNewRabSetupSuccessInfoIe returns a new RabSetupSuccessInfo without children, owned by the
 * caller. */
TarnRabSetupSuccessInfoIe *TarnNewRabSetupSuccessInfoIe(void);

/* TarnAppendRabIdToRabSetupSuccessInfoIe appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendRabIdToRabSetupSuccessInfoIe(TarnRabSetupSuccessInfoIe *ie,
                                                const TarnRabId *value);

/* TarnExtractRabIdFromRabSetupSuccessInfoIe copies the next RabId to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractRabIdFromRabSetupSuccessInfoIe(TarnRabSetupSuccessInfoIe *ie, TarnRabId *value);

/* TarnAppendUdpPortToRabSetupSuccessInfoIe appends a copy of *value, returning 1 on success and 0
 * if invalid. */
uint32_t TarnAppendUdpPortToRabSetupSuccessInfoIe(TarnRabSetupSuccessInfoIe *ie,
                                                  const TarnUdpPort *value);

/* TarnExtractUdpPortFromRabSetupSuccessInfoIe copies the next UdpPort to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractUdpPortFromRabSetupSuccessInfoIe(TarnRabSetupSuccessInfoIe *ie,
                                                     TarnUdpPort *value);

/* TarnAppendGtpTeidToRabSetupSuccessInfoIe appends a copy of *value, returning 1 on success and 0
 * if invalid. */
uint32_t TarnAppendGtpTeidToRabSetupSuccessInfoIe(TarnRabSetupSuccessInfoIe *ie,
                                                  const TarnGtpTeid *value);

/* TarnExtractGtpTeidFromRabSetupSuccessInfoIe copies the next GtpTeid to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractGtpTeidFromRabSetupSuccessInfoIe(TarnRabSetupSuccessInfoIe *ie,
                                                     TarnGtpTeid *value);

/* TarnPackRabSetupSuccessInfoIe packs ie and sets *written, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackRabSetupSuccessInfoIe(const TarnRabSetupSuccessInfoIe *ie, uint8_t *buffer,
                                       uint32_t available, uint32_t *written);

/* TarnUnpackRabSetupSuccessInfoIe fills ie and sets *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackRabSetupSuccessInfoIe(const TarnMsg *msg, TarnRabSetupSuccessInfoIe *ie,
                                         const uint8_t *buffer, uint32_t available,
                                         uint32_t *consumed);

/* TarnIsRabSetupSuccessInfoIeValid returns 1 if ie is a valid RabSetupSuccessInfo, and 0
 * otherwise. */
uint32_t TarnIsRabSetupSuccessInfoIeValid(const TarnMsg *msg, const TarnRabSetupSuccessInfoIe *ie);

/* ---- ModifiedSrncContainer, tag 116 -------------------------------------------------------------
 * Source RNC to target RNC transparent container, as modified for the access point.
 *
 * Sequence of:
 *
 *   RrcContainer       tag 117  mandatory
 *   TargetCellId       tag 118  mandatory
 *   NumIuInstances     tag 154  mandatory
 *   IntProtAlgo        tag 12   optional
 *   IntProtKey         tag 13   optional
 *   EncryptAlgo        tag 17   optional
 *   EncryptKey         tag 16   optional
 *   CsUserEncryptAlgo  tag 157  optional
 *   PsUserEncryptAlgo  tag 158  optional
 */

enum { TarnModifiedSrncContainerTag = 116 };

typedef struct TarnModifiedSrncContainerIe {
    TarnIe ie;
    VelDllHead children;
} TarnModifiedSrncContainerIe;

typedef struct TarnModifiedSrncContainerRecord {
    uint8_t presence;
    TarnRrcContainer RrcContainer;
    TarnTargetCellId TargetCellId;
    TarnNumIuInstances NumIuInstances;
    TarnIntProtAlgo IntProtAlgo;             /* 0x80 */
    TarnIntProtKey IntProtKey;               /* 0x40 */
    TarnEncryptAlgo EncryptAlgo;             /* 0x20 */
    TarnEncryptKey EncryptKey;               /* 0x10 */
    TarnCsUserEncryptAlgo CsUserEncryptAlgo; /* 0x08 */
    TarnPsUserEncryptAlgo PsUserEncryptAlgo; /* 0x04 */
} TarnModifiedSrncContainerRecord;

enum {
    TarnModifiedSrncContainerHasIntProtAlgo = 0x80,
    TarnModifiedSrncContainerHasIntProtKey = 0x40,
    TarnModifiedSrncContainerHasEncryptAlgo = 0x20,
    TarnModifiedSrncContainerHasEncryptKey = 0x10,
    TarnModifiedSrncContainerHasCsUserEncryptAlgo = 0x08,
    TarnModifiedSrncContainerHasPsUserEncryptAlgo = 0x04,
};

/* TarnNewModifiedSrncContainerIe returns a new ModifiedSrncContainer without children, owned by the
 * caller. */
TarnModifiedSrncContainerIe *TarnNewModifiedSrncContainerIe(void);

/* TarnAppendRrcContainerToModifiedSrncContainerIe appends a copy of *value, returning 1 on success
 * and 0 if invalid. */
uint32_t TarnAppendRrcContainerToModifiedSrncContainerIe(TarnModifiedSrncContainerIe *ie,
                                                         const TarnRrcContainer *value);

/* TarnExtractRrcContainerFromModifiedSrncContainerIe copies the next RrcContainer to *value,
 * returning 1 on success and 0 if there is none. */
uint32_t TarnExtractRrcContainerFromModifiedSrncContainerIe(TarnModifiedSrncContainerIe *ie,
                                                            TarnRrcContainer *value);

/* TarnAppendTargetCellIdToModifiedSrncContainerIe appends a copy of *value, returning 1 on success
 * and 0 if invalid. */
uint32_t TarnAppendTargetCellIdToModifiedSrncContainerIe(TarnModifiedSrncContainerIe *ie,
                                                         const TarnTargetCellId *value);

/* TarnExtractTargetCellIdFromModifiedSrncContainerIe copies the next TargetCellId to *value,
 * returning 1 on success and 0 if there is none. */
uint32_t TarnExtractTargetCellIdFromModifiedSrncContainerIe(TarnModifiedSrncContainerIe *ie,
                                                            TarnTargetCellId *value);

/* TarnAppendNumIuInstancesToModifiedSrncContainerIe appends a copy of *value, returning 1 on
 * success and 0 if invalid. */
uint32_t TarnAppendNumIuInstancesToModifiedSrncContainerIe(TarnModifiedSrncContainerIe *ie,
                                                           const TarnNumIuInstances *value);

/* TarnExtractNumIuInstancesFromModifiedSrncContainerIe copies the next NumIuInstances to *value,
 * returning 1 on success and 0 if there is none. */
uint32_t TarnExtractNumIuInstancesFromModifiedSrncContainerIe(TarnModifiedSrncContainerIe *ie,
                                                              TarnNumIuInstances *value);

/* TarnAppendIntProtAlgoToModifiedSrncContainerIe appends a copy of *value, returning 1 on success
 * and 0 if invalid. */
uint32_t TarnAppendIntProtAlgoToModifiedSrncContainerIe(TarnModifiedSrncContainerIe *ie,
                                                        const TarnIntProtAlgo *value);

/* TarnExtractIntProtAlgoFromModifiedSrncContainerIe copies the next IntProtAlgo to *value,
 * returning 1 on success and 0 if there is none. */
uint32_t TarnExtractIntProtAlgoFromModifiedSrncContainerIe(TarnModifiedSrncContainerIe *ie,
                                                           TarnIntProtAlgo *value);

/* TarnAppendIntProtKeyToModifiedSrncContainerIe appends a copy of *value, returning 1 on success
 * and 0 if invalid. */
uint32_t TarnAppendIntProtKeyToModifiedSrncContainerIe(TarnModifiedSrncContainerIe *ie,
                                                       const TarnIntProtKey *value);

/* TarnExtractIntProtKeyFromModifiedSrncContainerIe copies the next IntProtKey to *value, returning
 * 1 on success and 0 if there is none. */
uint32_t TarnExtractIntProtKeyFromModifiedSrncContainerIe(TarnModifiedSrncContainerIe *ie,
                                                          TarnIntProtKey *value);

/* TarnAppendEncryptAlgoToModifiedSrncContainerIe appends a copy of *value, returning 1 on success
 * and 0 if invalid. */
uint32_t TarnAppendEncryptAlgoToModifiedSrncContainerIe(TarnModifiedSrncContainerIe *ie,
                                                        const TarnEncryptAlgo *value);

/* TarnExtractEncryptAlgoFromModifiedSrncContainerIe copies the next EncryptAlgo to *value,
 * returning 1 on success and 0 if there is none. */
uint32_t TarnExtractEncryptAlgoFromModifiedSrncContainerIe(TarnModifiedSrncContainerIe *ie,
                                                           TarnEncryptAlgo *value);

/* TarnAppendEncryptKeyToModifiedSrncContainerIe appends a copy of *value, returning 1 on success
 * and 0 if invalid. */
uint32_t TarnAppendEncryptKeyToModifiedSrncContainerIe(TarnModifiedSrncContainerIe *ie,
                                                       const TarnEncryptKey *value);

/* TarnExtractEncryptKeyFromModifiedSrncContainerIe copies the next EncryptKey to *value, returning
 * 1 on success and 0 if there is none. */
uint32_t TarnExtractEncryptKeyFromModifiedSrncContainerIe(TarnModifiedSrncContainerIe *ie,
                                                          TarnEncryptKey *value);

/* TarnAppendCsUserEncryptAlgoToModifiedSrncContainerIe appends a copy of *value, returning 1 on
 * success and 0 if invalid. */
uint32_t TarnAppendCsUserEncryptAlgoToModifiedSrncContainerIe(TarnModifiedSrncContainerIe *ie,
                                                              const TarnCsUserEncryptAlgo *value);

/* TarnExtractCsUserEncryptAlgoFromModifiedSrncContainerIe copies the next CsUserEncryptAlgo to
 * *value, returning 1 on success and 0 if there is none. */
uint32_t TarnExtractCsUserEncryptAlgoFromModifiedSrncContainerIe(TarnModifiedSrncContainerIe *ie,
                                                                 TarnCsUserEncryptAlgo *value);

/* TarnAppendPsUserEncryptAlgoToModifiedSrncContainerIe appends a copy of *value, returning 1 on
 * success and 0 if invalid. */
uint32_t TarnAppendPsUserEncryptAlgoToModifiedSrncContainerIe(TarnModifiedSrncContainerIe *ie,
                                                              const TarnPsUserEncryptAlgo *value);

/* TarnExtractPsUserEncryptAlgoFromModifiedSrncContainerIe copies the next PsUserEncryptAlgo to
 * *value, returning 1 on success and 0 if there is none. */
uint32_t TarnExtractPsUserEncryptAlgoFromModifiedSrncContainerIe(TarnModifiedSrncContainerIe *ie,
                                                                 TarnPsUserEncryptAlgo *value);

/* TarnPackModifiedSrncContainerIe packs ie and sets *written, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackModifiedSrncContainerIe(const TarnModifiedSrncContainerIe *ie, uint8_t *buffer,
                                         uint32_t available, uint32_t *written);

/* TarnUnpackModifiedSrncContainerIe fills ie and sets *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackModifiedSrncContainerIe(const TarnMsg *msg, TarnModifiedSrncContainerIe *ie,
                                           const uint8_t *buffer, uint32_t available,
                                           uint32_t *consumed);

/* TarnIsModifiedSrncContainerIeValid returns 1 if ie is a valid ModifiedSrncContainer, and 0
 * otherwise. */
uint32_t TarnIsModifiedSrncContainerIeValid(const TarnMsg *msg,
                                            const TarnModifiedSrncContainerIe *ie);

/* ---- PsIuhGatewayInfo, tag 173 ------------------------------------------------------------------
 * Packet switched gateway: GTP-U endpoint of the user plane.
 *
 * Sequence of:
 *
 *   IpAddress      tag 60   mandatory
 *   GtpTeid        tag 171  mandatory
 *   UdpPort        tag 62   optional
 *   Tos            tag 88   optional
 *   GtpEchoPeriod  tag 172  optional
 */

enum { TarnPsIuhGatewayInfoTag = 173 };

typedef struct TarnPsIuhGatewayInfoIe {
    TarnIe ie;
    VelDllHead children;
} TarnPsIuhGatewayInfoIe;

typedef struct TarnPsIuhGatewayInfoRecord {
    uint8_t presence;
    TarnIpAddress IpAddress;
    TarnGtpTeid GtpTeid;
    TarnUdpPort UdpPort;             /* 0x80 */
    TarnTos Tos;                     /* 0x40 */
    TarnGtpEchoPeriod GtpEchoPeriod; /* 0x20 */
} TarnPsIuhGatewayInfoRecord;

enum {
    TarnPsIuhGatewayInfoHasUdpPort = 0x80,
    TarnPsIuhGatewayInfoHasTos = 0x40,
    TarnPsIuhGatewayInfoHasGtpEchoPeriod = 0x20,
};

/* TarnNewPsIuhGatewayInfoIe returns a new PsIuhGatewayInfo without children, owned by the
 * caller. */
TarnPsIuhGatewayInfoIe *TarnNewPsIuhGatewayInfoIe(void);

/* TarnAppendIpAddressToPsIuhGatewayInfoIe appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendIpAddressToPsIuhGatewayInfoIe(TarnPsIuhGatewayInfoIe *ie,
                                                 const TarnIpAddress *value);

/* TarnExtractIpAddressFromPsIuhGatewayInfoIe copies the next IpAddress to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractIpAddressFromPsIuhGatewayInfoIe(TarnPsIuhGatewayInfoIe *ie,
                                                    TarnIpAddress *value);

/* TarnAppendGtpTeidToPsIuhGatewayInfoIe appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendGtpTeidToPsIuhGatewayInfoIe(TarnPsIuhGatewayInfoIe *ie,
                                               const TarnGtpTeid *value);

/* TarnExtractGtpTeidFromPsIuhGatewayInfoIe copies the next GtpTeid to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractGtpTeidFromPsIuhGatewayInfoIe(TarnPsIuhGatewayInfoIe *ie, TarnGtpTeid *value);

/* TarnAppendUdpPortToPsIuhGatewayInfoIe appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendUdpPortToPsIuhGatewayInfoIe(TarnPsIuhGatewayInfoIe *ie,
                                               const TarnUdpPort *value);

/* TarnExtractUdpPortFromPsIuhGatewayInfoIe copies the next UdpPort to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractUdpPortFromPsIuhGatewayInfoIe(TarnPsIuhGatewayInfoIe *ie, TarnUdpPort *value);

/* TarnAppendTosToPsIuhGatewayInfoIe appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendTosToPsIuhGatewayInfoIe(TarnPsIuhGatewayInfoIe *ie, const TarnTos *value);

/* TarnExtractTosFromPsIuhGatewayInfoIe copies the next Tos to *value, returning 1 on success and 0
 * if there is none. */
uint32_t TarnExtractTosFromPsIuhGatewayInfoIe(TarnPsIuhGatewayInfoIe *ie, TarnTos *value);

/* TarnAppendGtpEchoPeriodToPsIuhGatewayInfoIe appends a copy of *value, returning 1 on success and
 * 0 if invalid. */
uint32_t TarnAppendGtpEchoPeriodToPsIuhGatewayInfoIe(TarnPsIuhGatewayInfoIe *ie,
                                                     const TarnGtpEchoPeriod *value);

/* TarnExtractGtpEchoPeriodFromPsIuhGatewayInfoIe copies the next GtpEchoPeriod to *value, returning
 * 1 on success and 0 if there is none. */
uint32_t TarnExtractGtpEchoPeriodFromPsIuhGatewayInfoIe(TarnPsIuhGatewayInfoIe *ie,
                                                        TarnGtpEchoPeriod *value);

/* TarnPackPsIuhGatewayInfoIe packs ie and sets *written, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackPsIuhGatewayInfoIe(const TarnPsIuhGatewayInfoIe *ie, uint8_t *buffer,
                                    uint32_t available, uint32_t *written);

/* TarnUnpackPsIuhGatewayInfoIe fills ie and sets *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackPsIuhGatewayInfoIe(const TarnMsg *msg, TarnPsIuhGatewayInfoIe *ie,
                                      const uint8_t *buffer, uint32_t available,
                                      uint32_t *consumed);

/* TarnIsPsIuhGatewayInfoIeValid returns 1 if ie is a valid PsIuhGatewayInfo, and 0 otherwise. */
uint32_t TarnIsPsIuhGatewayInfoIeValid(const TarnMsg *msg, const TarnPsIuhGatewayInfoIe *ie);

/* ---- RtpServerInfo, tag 87 ----------------------------------------------------------------------
 * RTP server: endpoint of the circuit switched user plane.
 *
 * Sequence of:
 *
 *   IpAddress          tag 60   mandatory
 *   UdpPort            tag 62   mandatory
 *   Tos                tag 88   optional
 *   RtcpTransInterval  tag 89   optional
 *   JitterBufferSize   tag 90   optional
 *   MuxUdpPort         tag 174  optional
 */

enum { TarnRtpServerInfoTag = 87 };

typedef struct TarnRtpServerInfoIe {
    TarnIe ie;
    VelDllHead children;
} TarnRtpServerInfoIe;

typedef struct TarnRtpServerInfoRecord {
    uint8_t presence;
    TarnIpAddress IpAddress;
    TarnUdpPort UdpPort;
    TarnTos Tos;                             /* 0x80 */
    TarnRtcpTransInterval RtcpTransInterval; /* 0x40 */
    TarnJitterBufferSize JitterBufferSize;   /* 0x20 */
    TarnMuxUdpPort MuxUdpPort;               /* 0x10 */
} TarnRtpServerInfoRecord;

enum {
    TarnRtpServerInfoHasTos = 0x80,
    TarnRtpServerInfoHasRtcpTransInterval = 0x40,
    TarnRtpServerInfoHasJitterBufferSize = 0x20,
    TarnRtpServerInfoHasMuxUdpPort = 0x10,
};

/* TarnNewRtpServerInfoIe returns a new RtpServerInfo without children, owned by the caller. */
TarnRtpServerInfoIe *TarnNewRtpServerInfoIe(void);

/* TarnAppendIpAddressToRtpServerInfoIe appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendIpAddressToRtpServerInfoIe(TarnRtpServerInfoIe *ie, const TarnIpAddress *value);

/* TarnExtractIpAddressFromRtpServerInfoIe copies the next IpAddress to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractIpAddressFromRtpServerInfoIe(TarnRtpServerInfoIe *ie, TarnIpAddress *value);

/* TarnAppendUdpPortToRtpServerInfoIe appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendUdpPortToRtpServerInfoIe(TarnRtpServerInfoIe *ie, const TarnUdpPort *value);

/* TarnExtractUdpPortFromRtpServerInfoIe copies the next UdpPort to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractUdpPortFromRtpServerInfoIe(TarnRtpServerInfoIe *ie, TarnUdpPort *value);

/* TarnAppendTosToRtpServerInfoIe appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendTosToRtpServerInfoIe(TarnRtpServerInfoIe *ie, const TarnTos *value);

/* TarnExtractTosFromRtpServerInfoIe copies the next Tos to *value, returning 1 on success and 0 if
 * there is none. */
uint32_t TarnExtractTosFromRtpServerInfoIe(TarnRtpServerInfoIe *ie, TarnTos *value);

/* TarnAppendRtcpTransIntervalToRtpServerInfoIe appends a copy of *value, returning 1 on success and
 * 0 if invalid. */
uint32_t TarnAppendRtcpTransIntervalToRtpServerInfoIe(TarnRtpServerInfoIe *ie,
                                                      const TarnRtcpTransInterval *value);

/* TarnExtractRtcpTransIntervalFromRtpServerInfoIe copies the next RtcpTransInterval to *value,
 * returning 1 on success and 0 if there is none. */
uint32_t TarnExtractRtcpTransIntervalFromRtpServerInfoIe(TarnRtpServerInfoIe *ie,
                                                         TarnRtcpTransInterval *value);

/* TarnAppendJitterBufferSizeToRtpServerInfoIe appends a copy of *value, returning 1 on success and
 * 0 if invalid. */
uint32_t TarnAppendJitterBufferSizeToRtpServerInfoIe(TarnRtpServerInfoIe *ie,
                                                     const TarnJitterBufferSize *value);

/* TarnExtractJitterBufferSizeFromRtpServerInfoIe copies the next JitterBufferSize to *value,
 * returning 1 on success and 0 if there is none. */
uint32_t TarnExtractJitterBufferSizeFromRtpServerInfoIe(TarnRtpServerInfoIe *ie,
                                                        TarnJitterBufferSize *value);

/* TarnAppendMuxUdpPortToRtpServerInfoIe appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendMuxUdpPortToRtpServerInfoIe(TarnRtpServerInfoIe *ie,
                                               const TarnMuxUdpPort *value);

/* TarnExtractMuxUdpPortFromRtpServerInfoIe copies the next MuxUdpPort to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractMuxUdpPortFromRtpServerInfoIe(TarnRtpServerInfoIe *ie, TarnMuxUdpPort *value);

/* TarnPackRtpServerInfoIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackRtpServerInfoIe(const TarnRtpServerInfoIe *ie, uint8_t *buffer, uint32_t available,
                                 uint32_t *written);

/* TarnUnpackRtpServerInfoIe fills ie and sets *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackRtpServerInfoIe(const TarnMsg *msg, TarnRtpServerInfoIe *ie,
                                   const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsRtpServerInfoIeValid returns 1 if ie is a valid RtpServerInfo, and 0 otherwise. */
uint32_t TarnIsRtpServerInfoIeValid(const TarnMsg *msg, const TarnRtpServerInfoIe *ie);

/* ---- TargetRNCId, tag 106 -----------------------------------------------------------------------
 * Target RNC identity.
 *
 * Sequence of:
 *
 *   LAI    tag 107  mandatory
 *   RNCId  tag 111  mandatory
 *   RAC    tag 110  optional
 */

enum { TarnTargetRNCIdTag = 106 };

typedef struct TarnTargetRNCIdIe {
    TarnIe ie;
    VelDllHead children;
} TarnTargetRNCIdIe;

typedef struct TarnTargetRNCIdRecord {
    uint8_t presence;
    TarnLAI LAI;
    TarnRNCId RNCId;
    TarnRAC RAC; /* 0x80 */
} TarnTargetRNCIdRecord;

enum { TarnTargetRNCIdHasRAC = 0x80 };

/* TarnNewTargetRNCIdIe returns a new TargetRNCId without children, owned by the caller. */
TarnTargetRNCIdIe *TarnNewTargetRNCIdIe(void);

/* TarnAppendLAIToTargetRNCIdIe appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendLAIToTargetRNCIdIe(TarnTargetRNCIdIe *ie, const TarnLAI *value);

/* TarnExtractLAIFromTargetRNCIdIe copies the next LAI to *value, returning 1 on success and 0 if
 * there is none. */
uint32_t TarnExtractLAIFromTargetRNCIdIe(TarnTargetRNCIdIe *ie, TarnLAI *value);

/* TarnAppendRNCIdToTargetRNCIdIe appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendRNCIdToTargetRNCIdIe(TarnTargetRNCIdIe *ie, const TarnRNCId *value);

/* TarnExtractRNCIdFromTargetRNCIdIe copies the next RNCId to *value, returning 1 on success and 0
 * if there is none. */
uint32_t TarnExtractRNCIdFromTargetRNCIdIe(TarnTargetRNCIdIe *ie, TarnRNCId *value);

/* TarnAppendRACToTargetRNCIdIe appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendRACToTargetRNCIdIe(TarnTargetRNCIdIe *ie, const TarnRAC *value);

/* TarnExtractRACFromTargetRNCIdIe copies the next RAC to *value, returning 1 on success and 0 if
 * there is none. */
uint32_t TarnExtractRACFromTargetRNCIdIe(TarnTargetRNCIdIe *ie, TarnRAC *value);

/* TarnPackTargetRNCIdIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackTargetRNCIdIe(const TarnTargetRNCIdIe *ie, uint8_t *buffer, uint32_t available,
                               uint32_t *written);

/* TarnUnpackTargetRNCIdIe fills ie and sets *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackTargetRNCIdIe(const TarnMsg *msg, TarnTargetRNCIdIe *ie, const uint8_t *buffer,
                                 uint32_t available, uint32_t *consumed);

/* TarnIsTargetRNCIdIeValid returns 1 if ie is a valid TargetRNCId, and 0 otherwise. */
uint32_t TarnIsTargetRNCIdIeValid(const TarnMsg *msg, const TarnTargetRNCIdIe *ie);

/* ---- RabDataInfoList, tag 102 -------------------------------------------------------------------
 * Data volumes of the UE's RABs.
 *
 * List of 1 to 3 RabDataInfo (tag 103). */

enum { TarnRabDataInfoListTag = 102 };

typedef struct TarnRabDataInfoListIe {
    TarnIe ie;
    VelDllHead children;
} TarnRabDataInfoListIe;

typedef struct TarnRabDataInfoListRecord {
    uint16_t count;
    TarnRabDataInfoRecord items[3];
} TarnRabDataInfoListRecord;

/* TarnNewRabDataInfoListIe returns a new RabDataInfoList without children, owned by the caller. */
TarnRabDataInfoListIe *TarnNewRabDataInfoListIe(void);

/* TarnAppendRabDataInfoIeToRabDataInfoListIe appends child itself, unchecked, and takes it over,
 * returning 1. */
uint32_t TarnAppendRabDataInfoIeToRabDataInfoListIe(TarnRabDataInfoListIe *ie,
                                                    TarnRabDataInfoIe *child);

/* TarnExtractRabDataInfoIeFromRabDataInfoListIe lends the next RabDataInfo in *child, returning 1
 * on success and 0, with *child null, if there is none. */
uint32_t TarnExtractRabDataInfoIeFromRabDataInfoListIe(TarnRabDataInfoListIe *ie,
                                                       TarnRabDataInfoIe **child);

/* TarnPackRabDataInfoListIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackRabDataInfoListIe(const TarnRabDataInfoListIe *ie, uint8_t *buffer,
                                   uint32_t available, uint32_t *written);

/* TarnUnpackRabDataInfoListIe fills ie and sets *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackRabDataInfoListIe(const TarnMsg *msg, TarnRabDataInfoListIe *ie,
                                     const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsRabDataInfoListIeValid returns 1 if ie is a valid RabDataInfoList, and 0 otherwise. */
uint32_t TarnIsRabDataInfoListIeValid(const TarnMsg *msg, const TarnRabDataInfoListIe *ie);

/* ---- UeContextRef, tag 95 -----------------------------------------------------------------------
 * Reference to one UE context.
 *
 * Sequence of:
 *
 *   AcUeId           tag 3    mandatory
 *   Srnti            tag 1    optional
 *   RabDataInfoList  tag 102  composite, optional
 */

enum { TarnUeContextRefTag = 95 };

typedef struct TarnUeContextRefIe {
    TarnIe ie;
    VelDllHead children;
} TarnUeContextRefIe;

typedef struct TarnUeContextRefRecord {
    uint8_t presence;
    TarnAcUeId AcUeId;
    TarnSrnti Srnti;                           /* 0x80 */
    TarnRabDataInfoListRecord RabDataInfoList; /* 0x40 */
} TarnUeContextRefRecord;

enum {
    TarnUeContextRefHasSrnti = 0x80,
    TarnUeContextRefHasRabDataInfoList = 0x40,
};

/* TarnNewUeContextRefIe returns a new UeContextRef without children, owned by the caller. */
TarnUeContextRefIe *TarnNewUeContextRefIe(void);

/* TarnAppendAcUeIdToUeContextRefIe appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendAcUeIdToUeContextRefIe(TarnUeContextRefIe *ie, const TarnAcUeId *value);

/* TarnExtractAcUeIdFromUeContextRefIe copies the next AcUeId to *value, returning 1 on success and
 * 0 if there is none. */
uint32_t TarnExtractAcUeIdFromUeContextRefIe(TarnUeContextRefIe *ie, TarnAcUeId *value);

/* TarnAppendSrntiToUeContextRefIe appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendSrntiToUeContextRefIe(TarnUeContextRefIe *ie, const TarnSrnti *value);

/* TarnExtractSrntiFromUeContextRefIe copies the next Srnti to *value, returning 1 on success and 0
 * if there is none. */
uint32_t TarnExtractSrntiFromUeContextRefIe(TarnUeContextRefIe *ie, TarnSrnti *value);

/* TarnAppendRabDataInfoListIeToUeContextRefIe appends child itself, unchecked, and takes it over,
 * returning 1. */
uint32_t TarnAppendRabDataInfoListIeToUeContextRefIe(TarnUeContextRefIe *ie,
                                                     TarnRabDataInfoListIe *child);

/* TarnExtractRabDataInfoListIeFromUeContextRefIe lends the next RabDataInfoList in *child,
 * returning 1 on success and 0, with *child null, if there is none. */
uint32_t TarnExtractRabDataInfoListIeFromUeContextRefIe(TarnUeContextRefIe *ie,
                                                        TarnRabDataInfoListIe **child);

/* TarnPackUeContextRefIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackUeContextRefIe(const TarnUeContextRefIe *ie, uint8_t *buffer, uint32_t available,
                                uint32_t *written);

/* TarnUnpackUeContextRefIe fills ie and sets *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackUeContextRefIe(const TarnMsg *msg, TarnUeContextRefIe *ie, const uint8_t *buffer,
                                  uint32_t available, uint32_t *consumed);

/* TarnIsUeContextRefIeValid returns 1 if ie is a valid UeContextRef, and 0 otherwise. */
uint32_t TarnIsUeContextRefIeValid(const TarnMsg *msg, const TarnUeContextRefIe *ie);

/* ---- RabSetupSuccessList, tag 57 ----------------------------------------------------------------
 * RABs that were set up.
 *
 * List of 0 to 3 RabSetupSuccessInfo (tag 58). */

enum { TarnRabSetupSuccessListTag = 57 };

typedef struct TarnRabSetupSuccessListIe {
    TarnIe ie;
    VelDllHead children;
} TarnRabSetupSuccessListIe;

typedef struct TarnRabSetupSuccessListRecord {
    uint16_t count;
    TarnRabSetupSuccessInfoRecord items[3];
} TarnRabSetupSuccessListRecord;

/* TarnNewRabSetupSuccessListIe returns a new RabSetupSuccessList without children, owned by the
 * caller. */
TarnRabSetupSuccessListIe *TarnNewRabSetupSuccessListIe(void);

/* TarnAppendRabSetupSuccessInfoIeToRabSetupSuccessListIe appends child itself, unchecked, and takes
 * it over, returning 1. */
uint32_t TarnAppendRabSetupSuccessInfoIeToRabSetupSuccessListIe(TarnRabSetupSuccessListIe *ie,
                                                                TarnRabSetupSuccessInfoIe *child);

/* TarnExtractRabSetupSuccessInfoIeFromRabSetupSuccessListIe lends the next RabSetupSuccessInfo in
 * *child, returning 1 on success and 0, with *child null, if there is none. */
uint32_t
TarnExtractRabSetupSuccessInfoIeFromRabSetupSuccessListIe(TarnRabSetupSuccessListIe *ie,
                                                          TarnRabSetupSuccessInfoIe **child);

/* TarnPackRabSetupSuccessListIe packs ie and sets *written, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackRabSetupSuccessListIe(const TarnRabSetupSuccessListIe *ie, uint8_t *buffer,
                                       uint32_t available, uint32_t *written);

/* TarnUnpackRabSetupSuccessListIe fills ie and sets *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackRabSetupSuccessListIe(const TarnMsg *msg, TarnRabSetupSuccessListIe *ie,
                                         const uint8_t *buffer, uint32_t available,
                                         uint32_t *consumed);

/* TarnIsRabSetupSuccessListIeValid returns 1 if ie is a valid RabSetupSuccessList, and 0
 * otherwise. */
uint32_t TarnIsRabSetupSuccessListIeValid(const TarnMsg *msg, const TarnRabSetupSuccessListIe *ie);

/* ---- ResourceInfoPerCnDomainAck, tag 152 --------------------------------------------------------
 * Resources allocated for one core network domain at a handover.
 *
 * Sequence of:
 *
 *   CnDomainId           tag 6    mandatory
 *   RabSetupSuccessList  tag 57   composite, optional
 *   RabSetupFailedList   tag 63   optional
 *   EncryptAlgo          tag 17   optional
 */

enum { TarnResourceInfoPerCnDomainAckTag = 152 };

typedef struct TarnResourceInfoPerCnDomainAckIe {
    TarnIe ie;
    VelDllHead children;
} TarnResourceInfoPerCnDomainAckIe;

typedef struct TarnResourceInfoPerCnDomainAckRecord {
    uint8_t presence;
    TarnCnDomainId CnDomainId;
    TarnRabSetupSuccessListRecord RabSetupSuccessList; /* 0x80 */
    TarnRabSetupFailedList RabSetupFailedList;         /* 0x40 */
    TarnEncryptAlgo EncryptAlgo;                       /* 0x20 */
} TarnResourceInfoPerCnDomainAckRecord;

enum {
    TarnResourceInfoPerCnDomainAckHasRabSetupSuccessList = 0x80,
    TarnResourceInfoPerCnDomainAckHasRabSetupFailedList = 0x40,
    TarnResourceInfoPerCnDomainAckHasEncryptAlgo = 0x20,
};

/* TarnNewResourceInfoPerCnDomainAckIe returns a new ResourceInfoPerCnDomainAck without children,
 * owned by the caller. */
TarnResourceInfoPerCnDomainAckIe *TarnNewResourceInfoPerCnDomainAckIe(void);

/* TarnAppendCnDomainIdToResourceInfoPerCnDomainAckIe appends a copy of *value, returning 1 on
 * success and 0 if invalid. */
uint32_t TarnAppendCnDomainIdToResourceInfoPerCnDomainAckIe(TarnResourceInfoPerCnDomainAckIe *ie,
                                                            const TarnCnDomainId *value);

/* TarnExtractCnDomainIdFromResourceInfoPerCnDomainAckIe copies the next CnDomainId to *value,
 * returning 1 on success and 0 if there is none. */
uint32_t TarnExtractCnDomainIdFromResourceInfoPerCnDomainAckIe(TarnResourceInfoPerCnDomainAckIe *ie,
                                                               TarnCnDomainId *value);

/* TarnAppendRabSetupSuccessListIeToResourceInfoPerCnDomainAckIe appends child itself, unchecked,
 * and takes it over, returning 1. */
uint32_t
TarnAppendRabSetupSuccessListIeToResourceInfoPerCnDomainAckIe(TarnResourceInfoPerCnDomainAckIe *ie,
                                                              TarnRabSetupSuccessListIe *child);

/* TarnExtractRabSetupSuccessListIeFromResourceInfoPerCnDomainAckIe lends the next
 * RabSetupSuccessList in *child, returning 1 on success and 0, with *child null, if there is
 * none. */
uint32_t TarnExtractRabSetupSuccessListIeFromResourceInfoPerCnDomainAckIe(
    TarnResourceInfoPerCnDomainAckIe *ie, TarnRabSetupSuccessListIe **child);

/* TarnAppendRabSetupFailedListToResourceInfoPerCnDomainAckIe appends a copy of *value, returning 1
 * on success and 0 if invalid. */
uint32_t
TarnAppendRabSetupFailedListToResourceInfoPerCnDomainAckIe(TarnResourceInfoPerCnDomainAckIe *ie,
                                                           const TarnRabSetupFailedList *value);

/* TarnExtractRabSetupFailedListFromResourceInfoPerCnDomainAckIe copies the next RabSetupFailedList
 * to *value, returning 1 on success and 0 if there is none. */
uint32_t
TarnExtractRabSetupFailedListFromResourceInfoPerCnDomainAckIe(TarnResourceInfoPerCnDomainAckIe *ie,
                                                              TarnRabSetupFailedList *value);

/* TarnAppendEncryptAlgoToResourceInfoPerCnDomainAckIe appends a copy of *value, returning 1 on
 * success and 0 if invalid. */
uint32_t TarnAppendEncryptAlgoToResourceInfoPerCnDomainAckIe(TarnResourceInfoPerCnDomainAckIe *ie,
                                                             const TarnEncryptAlgo *value);

/* TarnExtractEncryptAlgoFromResourceInfoPerCnDomainAckIe copies the next EncryptAlgo to *value,
 * returning 1 on success and 0 if there is none. */
uint32_t
TarnExtractEncryptAlgoFromResourceInfoPerCnDomainAckIe(TarnResourceInfoPerCnDomainAckIe *ie,
                                                       TarnEncryptAlgo *value);

/* TarnPackResourceInfoPerCnDomainAckIe packs ie and sets *written, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackResourceInfoPerCnDomainAckIe(const TarnResourceInfoPerCnDomainAckIe *ie,
                                              uint8_t *buffer, uint32_t available,
                                              uint32_t *written);

/* TarnUnpackResourceInfoPerCnDomainAckIe fills ie and sets *consumed, returning 1 on success and 0
 * on failure. */
uint32_t TarnUnpackResourceInfoPerCnDomainAckIe(const TarnMsg *msg,
                                                TarnResourceInfoPerCnDomainAckIe *ie,
                                                const uint8_t *buffer, uint32_t available,
                                                uint32_t *consumed);

/* TarnIsResourceInfoPerCnDomainAckIeValid returns 1 if ie is a valid ResourceInfoPerCnDomainAck,
 * and 0 otherwise. */
uint32_t TarnIsResourceInfoPerCnDomainAckIeValid(const TarnMsg *msg,
                                                 const TarnResourceInfoPerCnDomainAckIe *ie);

/* ---- ResourceInfoPerCnDomainListAck, tag 153 ----------------------------------------------------
 * Resources allocated at a handover, by core network domain.
 *
 * List of 1 to 2 ResourceInfoPerCnDomainAck (tag 152). */

enum { TarnResourceInfoPerCnDomainListAckTag = 153 };

typedef struct TarnResourceInfoPerCnDomainListAckIe {
    TarnIe ie;
    VelDllHead children;
} TarnResourceInfoPerCnDomainListAckIe;

typedef struct TarnResourceInfoPerCnDomainListAckRecord {
    uint16_t count;
    TarnResourceInfoPerCnDomainAckRecord items[2];
} TarnResourceInfoPerCnDomainListAckRecord;

/* TarnNewResourceInfoPerCnDomainListAckIe returns a new ResourceInfoPerCnDomainListAck without
 * children, owned by the caller. */
TarnResourceInfoPerCnDomainListAckIe *TarnNewResourceInfoPerCnDomainListAckIe(void);

/* TarnAppendResourceInfoPerCnDomainAckIeToResourceInfoPerCnDomainListAckIe appends child itself,
 * unchecked, and takes it over, returning 1. */
uint32_t TarnAppendResourceInfoPerCnDomainAckIeToResourceInfoPerCnDomainListAckIe(
    TarnResourceInfoPerCnDomainListAckIe *ie, TarnResourceInfoPerCnDomainAckIe *child);

/* TarnExtractResourceInfoPerCnDomainAckIeFromResourceInfoPerCnDomainListAckIe lends the next
 * ResourceInfoPerCnDomainAck in *child, returning 1 on success and 0, with *child null, if there is
 * none. */
uint32_t TarnExtractResourceInfoPerCnDomainAckIeFromResourceInfoPerCnDomainListAckIe(
    TarnResourceInfoPerCnDomainListAckIe *ie, TarnResourceInfoPerCnDomainAckIe **child);

/* TarnPackResourceInfoPerCnDomainListAckIe packs ie and sets *written, returning 1 on success and 0
 * on failure. */
uint32_t TarnPackResourceInfoPerCnDomainListAckIe(const TarnResourceInfoPerCnDomainListAckIe *ie,
                                                  uint8_t *buffer, uint32_t available,
                                                  uint32_t *written);

/* TarnUnpackResourceInfoPerCnDomainListAckIe fills ie and sets *consumed, returning 1 on success
 * and 0 on failure. */
uint32_t TarnUnpackResourceInfoPerCnDomainListAckIe(const TarnMsg *msg,
                                                    TarnResourceInfoPerCnDomainListAckIe *ie,
                                                    const uint8_t *buffer, uint32_t available,
                                                    uint32_t *consumed);

/* TarnIsResourceInfoPerCnDomainListAckIeValid returns 1 if ie is a valid
 * ResourceInfoPerCnDomainListAck, and 0 otherwise. */
uint32_t
TarnIsResourceInfoPerCnDomainListAckIeValid(const TarnMsg *msg,
                                            const TarnResourceInfoPerCnDomainListAckIe *ie);

/* ---- SduFormatInfoParamList, tag 40 -------------------------------------------------------------
 * SDU format information parameters.
 *
 * List of 0 to 64 SduFormatInfoParams (tag 41). */

enum { TarnSduFormatInfoParamListTag = 40 };

typedef struct TarnSduFormatInfoParamListIe {
    TarnIe ie;
    VelDllHead children;
} TarnSduFormatInfoParamListIe;

typedef struct TarnSduFormatInfoParamListRecord {
    uint16_t count;
    TarnSduFormatInfoParamsRecord items[64];
} TarnSduFormatInfoParamListRecord;

/* TarnNewSduFormatInfoParamListIe returns a new SduFormatInfoParamList without children, owned by
 * the caller. */
TarnSduFormatInfoParamListIe *TarnNewSduFormatInfoParamListIe(void);

/* TarnAppendSduFormatInfoParamsIeToSduFormatInfoParamListIe appends child itself, unchecked, and
 * takes it over, returning 1. */
uint32_t
TarnAppendSduFormatInfoParamsIeToSduFormatInfoParamListIe(TarnSduFormatInfoParamListIe *ie,
                                                          TarnSduFormatInfoParamsIe *child);

/* TarnExtractSduFormatInfoParamsIeFromSduFormatInfoParamListIe lends the next SduFormatInfoParams
 * in *child, returning 1 on success and 0, with *child null, if there is none. */
uint32_t
TarnExtractSduFormatInfoParamsIeFromSduFormatInfoParamListIe(TarnSduFormatInfoParamListIe *ie,
                                                             TarnSduFormatInfoParamsIe **child);

/* TarnPackSduFormatInfoParamListIe packs ie and sets *written, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackSduFormatInfoParamListIe(const TarnSduFormatInfoParamListIe *ie, uint8_t *buffer,
                                          uint32_t available, uint32_t *written);

/* TarnUnpackSduFormatInfoParamListIe fills ie and sets *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackSduFormatInfoParamListIe(const TarnMsg *msg, TarnSduFormatInfoParamListIe *ie,
                                            const uint8_t *buffer, uint32_t available,
                                            uint32_t *consumed);

/* TarnIsSduFormatInfoParamListIeValid returns 1 if ie is a valid SduFormatInfoParamList, and 0
 * otherwise. */
uint32_t TarnIsSduFormatInfoParamListIeValid(const TarnMsg *msg,
                                             const TarnSduFormatInfoParamListIe *ie);

/* ---- SduParamValue, tag 34 ----------------------------------------------------------------------
 * SDU parameters of one RAB subflow.
 *
 * Sequence of:
 *
 *   DeliveryOfErrSdu        tag 35   mandatory
 *   BitErrRatio             tag 36   mandatory
 *   SduFormatInfoParamList  tag 40   composite, optional
 *   SecondBitErrRatio       tag 36   BitErrRatio again, optional
 */

enum { TarnSduParamValueTag = 34 };

typedef struct TarnSduParamValueIe {
    TarnIe ie;
    VelDllHead children;
} TarnSduParamValueIe;

typedef struct TarnSduParamValueRecord {
    uint8_t presence;
    TarnDeliveryOfErrSdu DeliveryOfErrSdu;
    TarnBitErrRatio BitErrRatio;
    TarnSduFormatInfoParamListRecord SduFormatInfoParamList; /* 0x80 */
    TarnBitErrRatio SecondBitErrRatio;                       /* 0x40 */
} TarnSduParamValueRecord;

enum {
    TarnSduParamValueHasSduFormatInfoParamList = 0x80,
    TarnSduParamValueHasSecondBitErrRatio = 0x40,
};

/* TarnNewSduParamValueIe returns a new SduParamValue without children, owned by the caller. */
TarnSduParamValueIe *TarnNewSduParamValueIe(void);

/* TarnAppendDeliveryOfErrSduToSduParamValueIe appends a copy of *value, returning 1 on success and
 * 0 if invalid. */
uint32_t TarnAppendDeliveryOfErrSduToSduParamValueIe(TarnSduParamValueIe *ie,
                                                     const TarnDeliveryOfErrSdu *value);

/* TarnExtractDeliveryOfErrSduFromSduParamValueIe copies the next DeliveryOfErrSdu to *value,
 * returning 1 on success and 0 if there is none. */
uint32_t TarnExtractDeliveryOfErrSduFromSduParamValueIe(TarnSduParamValueIe *ie,
                                                        TarnDeliveryOfErrSdu *value);

/* TarnAppendBitErrRatioToSduParamValueIe appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendBitErrRatioToSduParamValueIe(TarnSduParamValueIe *ie,
                                                const TarnBitErrRatio *value);

/* TarnExtractBitErrRatioFromSduParamValueIe copies the next BitErrRatio to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractBitErrRatioFromSduParamValueIe(TarnSduParamValueIe *ie, TarnBitErrRatio *value);

/* TarnAppendSduFormatInfoParamListIeToSduParamValueIe appends child itself, unchecked, and takes it
 * over, returning 1. */
uint32_t TarnAppendSduFormatInfoParamListIeToSduParamValueIe(TarnSduParamValueIe *ie,
                                                             TarnSduFormatInfoParamListIe *child);

/* TarnExtractSduFormatInfoParamListIeFromSduParamValueIe lends the next SduFormatInfoParamList in
 * *child, returning 1 on success and 0, with *child null, if there is none. */
uint32_t
TarnExtractSduFormatInfoParamListIeFromSduParamValueIe(TarnSduParamValueIe *ie,
                                                       TarnSduFormatInfoParamListIe **child);

/* TarnPackSduParamValueIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackSduParamValueIe(const TarnSduParamValueIe *ie, uint8_t *buffer, uint32_t available,
                                 uint32_t *written);

/* TarnUnpackSduParamValueIe fills ie and sets *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackSduParamValueIe(const TarnMsg *msg, TarnSduParamValueIe *ie,
                                   const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsSduParamValueIeValid returns 1 if ie is a valid SduParamValue, and 0 otherwise. */
uint32_t TarnIsSduParamValueIeValid(const TarnMsg *msg, const TarnSduParamValueIe *ie);

/* ---- SduParams, tag 33 --------------------------------------------------------------------------
 * SDU parameters, one element for each RAB subflow.
 *
 * List of 0 to 7 SduParamValue (tag 34). */

enum { TarnSduParamsTag = 33 };

typedef struct TarnSduParamsIe {
    TarnIe ie;
    VelDllHead children;
} TarnSduParamsIe;

typedef struct TarnSduParamsRecord {
    uint16_t count;
    TarnSduParamValueRecord items[7];
} TarnSduParamsRecord;

/* TarnNewSduParamsIe returns a new SduParams without children, owned by the caller. */
TarnSduParamsIe *TarnNewSduParamsIe(void);

/* TarnAppendSduParamValueIeToSduParamsIe appends child itself, unchecked, and takes it over,
 * returning 1. */
uint32_t TarnAppendSduParamValueIeToSduParamsIe(TarnSduParamsIe *ie, TarnSduParamValueIe *child);

/* TarnExtractSduParamValueIeFromSduParamsIe lends the next SduParamValue in *child, returning 1 on
 * success and 0, with *child null, if there is none. */
uint32_t TarnExtractSduParamValueIeFromSduParamsIe(TarnSduParamsIe *ie,
                                                   TarnSduParamValueIe **child);

/* TarnPackSduParamsIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackSduParamsIe(const TarnSduParamsIe *ie, uint8_t *buffer, uint32_t available,
                             uint32_t *written);

/* TarnUnpackSduParamsIe fills ie and sets *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackSduParamsIe(const TarnMsg *msg, TarnSduParamsIe *ie, const uint8_t *buffer,
                               uint32_t available, uint32_t *consumed);

/* TarnIsSduParamsIeValid returns 1 if ie is a valid SduParams, and 0 otherwise. */
uint32_t TarnIsSduParamsIeValid(const TarnMsg *msg, const TarnSduParamsIe *ie);

/* ---- RabParams, tag 26 --------------------------------------------------------------------------
 * RAB parameters (quality of service).
 *
 * Sequence of:
 *
 *   TrafficClass             tag 27   mandatory
 *   RabAssymetryInd          tag 28   mandatory
 *   DeliveryOrder            tag 55   mandatory
 *   MaxSduSize               tag 29   mandatory
 *   BitRates                 tag 30   mandatory
 *   SduParams                tag 33   composite, mandatory
 *   PdpTypeInfoList          tag 45   optional
 *   AllocRetPriority         tag 50   optional
 *   DataVolReportingFlag     tag 99   optional
 *   SecondBitRates           tag 30   BitRates again, exactly if TrafficClass is 0 or 2 (real-time)
 *   SourceStatsDescriptor    tag 47   exactly if TrafficClass is 0 or 2 (real-time)
 *   TransDelay               tag 48   exactly if TrafficClass is 0 or 2 (real-time)
 *   TrafficHandlingPriority  tag 49   exactly if TrafficClass is 3 (interactive)
 *
 * Unpacking fails if a conditional child is missing although its condition holds, and also if one
 * stands there that is invalid or whose condition does not hold. */

enum { TarnRabParamsTag = 26 };

typedef struct TarnRabParamsIe {
    TarnIe ie;
    VelDllHead children;
} TarnRabParamsIe;

typedef struct TarnRabParamsRecord {
    uint8_t presence;
    TarnTrafficClass TrafficClass;
    TarnRabAssymetryInd RabAssymetryInd;
    TarnDeliveryOrder DeliveryOrder;
    TarnMaxSduSize MaxSduSize;
    TarnBitRates BitRates;
    TarnSduParamsRecord SduParams;
    TarnPdpTypeInfoList PdpTypeInfoList;                 /* 0x80 */
    TarnAllocRetPriority AllocRetPriority;               /* 0x40 */
    TarnDataVolReportingFlag DataVolReportingFlag;       /* 0x20 */
    TarnBitRates SecondBitRates;                         /* 0x10 */
    TarnSourceStatsDescriptor SourceStatsDescriptor;     /* 0x08 */
    TarnTransDelay TransDelay;                           /* 0x04 */
    TarnTrafficHandlingPriority TrafficHandlingPriority; /* 0x02 */
} TarnRabParamsRecord;

enum {
    TarnRabParamsHasPdpTypeInfoList = 0x80,
    TarnRabParamsHasAllocRetPriority = 0x40,
    TarnRabParamsHasDataVolReportingFlag = 0x20,
    TarnRabParamsHasSecondBitRates = 0x10,
    TarnRabParamsHasSourceStatsDescriptor = 0x08,
    TarnRabParamsHasTransDelay = 0x04,
    TarnRabParamsHasTrafficHandlingPriority = 0x02,
};

/* TarnNewRabParamsIe returns a new RabParams without children, owned by the caller. */
TarnRabParamsIe *TarnNewRabParamsIe(void);

/* TarnAppendTrafficClassToRabParamsIe appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendTrafficClassToRabParamsIe(TarnRabParamsIe *ie, const TarnTrafficClass *value);

/* TarnExtractTrafficClassFromRabParamsIe copies the next TrafficClass to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractTrafficClassFromRabParamsIe(TarnRabParamsIe *ie, TarnTrafficClass *value);

/* TarnAppendRabAssymetryIndToRabParamsIe appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendRabAssymetryIndToRabParamsIe(TarnRabParamsIe *ie,
                                                const TarnRabAssymetryInd *value);

/* TarnExtractRabAssymetryIndFromRabParamsIe copies the next RabAssymetryInd to *value, returning 1
 * on success and 0 if there is none. */
uint32_t TarnExtractRabAssymetryIndFromRabParamsIe(TarnRabParamsIe *ie, TarnRabAssymetryInd *value);

/* TarnAppendDeliveryOrderToRabParamsIe appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendDeliveryOrderToRabParamsIe(TarnRabParamsIe *ie, const TarnDeliveryOrder *value);

/* TarnExtractDeliveryOrderFromRabParamsIe copies the next DeliveryOrder to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractDeliveryOrderFromRabParamsIe(TarnRabParamsIe *ie, TarnDeliveryOrder *value);

/* TarnAppendMaxSduSizeToRabParamsIe appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendMaxSduSizeToRabParamsIe(TarnRabParamsIe *ie, const TarnMaxSduSize *value);

/* TarnExtractMaxSduSizeFromRabParamsIe copies the next MaxSduSize to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractMaxSduSizeFromRabParamsIe(TarnRabParamsIe *ie, TarnMaxSduSize *value);

/* TarnAppendBitRatesToRabParamsIe appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendBitRatesToRabParamsIe(TarnRabParamsIe *ie, const TarnBitRates *value);

/* TarnExtractBitRatesFromRabParamsIe copies the next BitRates to *value, returning 1 on success and
 * 0 if there is none. */
uint32_t TarnExtractBitRatesFromRabParamsIe(TarnRabParamsIe *ie, TarnBitRates *value);

/* TarnAppendSduParamsIeToRabParamsIe appends child itself, unchecked, and takes it over, returning
 * 1. */
uint32_t TarnAppendSduParamsIeToRabParamsIe(TarnRabParamsIe *ie, TarnSduParamsIe *child);

/* TarnExtractSduParamsIeFromRabParamsIe lends the next SduParams in *child, returning 1 on success
 * and 0, with *child null, if there is none. */
uint32_t TarnExtractSduParamsIeFromRabParamsIe(TarnRabParamsIe *ie, TarnSduParamsIe **child);

/* TarnAppendPdpTypeInfoListToRabParamsIe appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendPdpTypeInfoListToRabParamsIe(TarnRabParamsIe *ie,
                                                const TarnPdpTypeInfoList *value);

/* TarnExtractPdpTypeInfoListFromRabParamsIe copies the next PdpTypeInfoList to *value, returning 1
 * on success and 0 if there is none. */
uint32_t TarnExtractPdpTypeInfoListFromRabParamsIe(TarnRabParamsIe *ie, TarnPdpTypeInfoList *value);

/* TarnAppendAllocRetPriorityToRabParamsIe appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendAllocRetPriorityToRabParamsIe(TarnRabParamsIe *ie,
                                                 const TarnAllocRetPriority *value);

/* TarnExtractAllocRetPriorityFromRabParamsIe copies the next AllocRetPriority to *value, returning
 * 1 on success and 0 if there is none. */
uint32_t TarnExtractAllocRetPriorityFromRabParamsIe(TarnRabParamsIe *ie,
                                                    TarnAllocRetPriority *value);

/* TarnAppendDataVolReportingFlagToRabParamsIe appends a copy of *value, returning 1 on success and
 * 0 if invalid. */
uint32_t TarnAppendDataVolReportingFlagToRabParamsIe(TarnRabParamsIe *ie,
                                                     const TarnDataVolReportingFlag *value);

/* TarnExtractDataVolReportingFlagFromRabParamsIe copies the next DataVolReportingFlag to *value,
 * returning 1 on success and 0 if there is none. */
uint32_t TarnExtractDataVolReportingFlagFromRabParamsIe(TarnRabParamsIe *ie,
                                                        TarnDataVolReportingFlag *value);

/* TarnAppendSourceStatsDescriptorToRabParamsIe appends a copy of *value, returning 1 on success and
 * 0 if invalid. */
uint32_t TarnAppendSourceStatsDescriptorToRabParamsIe(TarnRabParamsIe *ie,
                                                      const TarnSourceStatsDescriptor *value);

/* TarnExtractSourceStatsDescriptorFromRabParamsIe copies the next SourceStatsDescriptor to *value,
 * returning 1 on success and 0 if there is none. */
uint32_t TarnExtractSourceStatsDescriptorFromRabParamsIe(TarnRabParamsIe *ie,
                                                         TarnSourceStatsDescriptor *value);

/* TarnAppendTransDelayToRabParamsIe appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendTransDelayToRabParamsIe(TarnRabParamsIe *ie, const TarnTransDelay *value);

/* TarnExtractTransDelayFromRabParamsIe copies the next TransDelay to *value, returning 1 on success
 * and 0 if there is none. */
uint32_t TarnExtractTransDelayFromRabParamsIe(TarnRabParamsIe *ie, TarnTransDelay *value);

/* TarnAppendTrafficHandlingPriorityToRabParamsIe appends a copy of *value, returning 1 on success
 * and 0 if invalid. */
uint32_t TarnAppendTrafficHandlingPriorityToRabParamsIe(TarnRabParamsIe *ie,
                                                        const TarnTrafficHandlingPriority *value);

/* TarnExtractTrafficHandlingPriorityFromRabParamsIe copies the next TrafficHandlingPriority to
 * *value, returning 1 on success and 0 if there is none. */
uint32_t TarnExtractTrafficHandlingPriorityFromRabParamsIe(TarnRabParamsIe *ie,
                                                           TarnTrafficHandlingPriority *value);

/* TarnPackRabParamsIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackRabParamsIe(const TarnRabParamsIe *ie, uint8_t *buffer, uint32_t available,
                             uint32_t *written);

/* TarnUnpackRabParamsIe fills ie and sets *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackRabParamsIe(const TarnMsg *msg, TarnRabParamsIe *ie, const uint8_t *buffer,
                               uint32_t available, uint32_t *consumed);

/* TarnIsRabParamsIeValid returns 1 if ie is a valid RabParams, and 0 otherwise. */
uint32_t TarnIsRabParamsIeValid(const TarnMsg *msg, const TarnRabParamsIe *ie);

/* ---- RabToSetUpInfo, tag 22 ---------------------------------------------------------------------
 * One RAB to set up.
 *
 * Sequence of:
 *
 *   RabId                   tag 23   mandatory
 *   AcUserPlaneAssociation  tag 24   mandatory
 *   RabParams               tag 26   composite, mandatory
 *   NasSyncInd              tag 25   optional
 *   UserPlaneInfo           tag 32   optional
 *   ServiceHandover         tag 127  optional
 */

enum { TarnRabToSetUpInfoTag = 22 };

typedef struct TarnRabToSetUpInfoIe {
    TarnIe ie;
    VelDllHead children;
} TarnRabToSetUpInfoIe;

typedef struct TarnRabToSetUpInfoRecord {
    uint8_t presence;
    TarnRabId RabId;
    TarnAcUserPlaneAssociation AcUserPlaneAssociation;
    TarnRabParamsRecord RabParams;
    TarnNasSyncInd NasSyncInd;           /* 0x80 */
    TarnUserPlaneInfo UserPlaneInfo;     /* 0x40 */
    TarnServiceHandover ServiceHandover; /* 0x20 */
} TarnRabToSetUpInfoRecord;

enum {
    TarnRabToSetUpInfoHasNasSyncInd = 0x80,
    TarnRabToSetUpInfoHasUserPlaneInfo = 0x40,
    TarnRabToSetUpInfoHasServiceHandover = 0x20,
};

/* TarnNewRabToSetUpInfoIe returns a new RabToSetUpInfo without children, owned by the caller. */
TarnRabToSetUpInfoIe *TarnNewRabToSetUpInfoIe(void);

/* TarnAppendRabIdToRabToSetUpInfoIe appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendRabIdToRabToSetUpInfoIe(TarnRabToSetUpInfoIe *ie, const TarnRabId *value);

/* TarnExtractRabIdFromRabToSetUpInfoIe copies the next RabId to *value, returning 1 on success and
 * 0 if there is none. */
uint32_t TarnExtractRabIdFromRabToSetUpInfoIe(TarnRabToSetUpInfoIe *ie, TarnRabId *value);

/* TarnAppendAcUserPlaneAssociationToRabToSetUpInfoIe appends a copy of *value, returning 1 on
 * success and 0 if invalid. */
uint32_t
TarnAppendAcUserPlaneAssociationToRabToSetUpInfoIe(TarnRabToSetUpInfoIe *ie,
                                                   const TarnAcUserPlaneAssociation *value);

/* TarnExtractAcUserPlaneAssociationFromRabToSetUpInfoIe copies the next AcUserPlaneAssociation to
 * *value, returning 1 on success and 0 if there is none. */
uint32_t TarnExtractAcUserPlaneAssociationFromRabToSetUpInfoIe(TarnRabToSetUpInfoIe *ie,
                                                               TarnAcUserPlaneAssociation *value);

/* TarnAppendRabParamsIeToRabToSetUpInfoIe appends child itself, unchecked, and takes it over,
 * returning 1. */
uint32_t TarnAppendRabParamsIeToRabToSetUpInfoIe(TarnRabToSetUpInfoIe *ie, TarnRabParamsIe *child);

/* TarnExtractRabParamsIeFromRabToSetUpInfoIe lends the next RabParams in *child, returning 1 on
 * success and 0, with *child null, if there is none. */
uint32_t TarnExtractRabParamsIeFromRabToSetUpInfoIe(TarnRabToSetUpInfoIe *ie,
                                                    TarnRabParamsIe **child);

/* TarnAppendNasSyncIndToRabToSetUpInfoIe appends a copy of *value, returning 1 on success and 0 if
 * invalid. */
uint32_t TarnAppendNasSyncIndToRabToSetUpInfoIe(TarnRabToSetUpInfoIe *ie,
                                                const TarnNasSyncInd *value);

/* TarnExtractNasSyncIndFromRabToSetUpInfoIe copies the next NasSyncInd to *value, returning 1 on
 * success and 0 if there is none. */
uint32_t TarnExtractNasSyncIndFromRabToSetUpInfoIe(TarnRabToSetUpInfoIe *ie, TarnNasSyncInd *value);

/* TarnAppendUserPlaneInfoToRabToSetUpInfoIe appends a copy of *value, returning 1 on success and 0
 * if invalid. */
uint32_t TarnAppendUserPlaneInfoToRabToSetUpInfoIe(TarnRabToSetUpInfoIe *ie,
                                                   const TarnUserPlaneInfo *value);

/* TarnExtractUserPlaneInfoFromRabToSetUpInfoIe copies the next UserPlaneInfo to *value, returning 1
 * on success and 0 if there is none. */
uint32_t TarnExtractUserPlaneInfoFromRabToSetUpInfoIe(TarnRabToSetUpInfoIe *ie,
                                                      TarnUserPlaneInfo *value);

/* TarnAppendServiceHandoverToRabToSetUpInfoIe appends a copy of *value, returning 1 on success and
 * 0 if invalid. */
uint32_t TarnAppendServiceHandoverToRabToSetUpInfoIe(TarnRabToSetUpInfoIe *ie,
                                                     const TarnServiceHandover *value);

/* TarnExtractServiceHandoverFromRabToSetUpInfoIe copies the next ServiceHandover to *value,
 * returning 1 on success and 0 if there is none. */
uint32_t TarnExtractServiceHandoverFromRabToSetUpInfoIe(TarnRabToSetUpInfoIe *ie,
                                                        TarnServiceHandover *value);

/* TarnPackRabToSetUpInfoIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackRabToSetUpInfoIe(const TarnRabToSetUpInfoIe *ie, uint8_t *buffer,
                                  uint32_t available, uint32_t *written);

/* TarnUnpackRabToSetUpInfoIe fills ie and sets *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackRabToSetUpInfoIe(const TarnMsg *msg, TarnRabToSetUpInfoIe *ie,
                                    const uint8_t *buffer, uint32_t available, uint32_t *consumed);

/* TarnIsRabToSetUpInfoIeValid returns 1 if ie is a valid RabToSetUpInfo, and 0 otherwise. */
uint32_t TarnIsRabToSetUpInfoIeValid(const TarnMsg *msg, const TarnRabToSetUpInfoIe *ie);

/* ---- RabList, tag 21 ----------------------------------------------------------------------------
 * RABs to set up.
 *
 * List of 0 to 3 RabToSetUpInfo (tag 22). */

enum { TarnRabListTag = 21 };

typedef struct TarnRabListIe {
    TarnIe ie;
    VelDllHead children;
} TarnRabListIe;

typedef struct TarnRabListRecord {
    uint16_t count;
    TarnRabToSetUpInfoRecord items[3];
} TarnRabListRecord;

/* TarnNewRabListIe returns a new RabList without children, owned by the caller. */
TarnRabListIe *TarnNewRabListIe(void);

/* TarnAppendRabToSetUpInfoIeToRabListIe appends child itself, unchecked, and takes it over,
 * returning 1. */
uint32_t TarnAppendRabToSetUpInfoIeToRabListIe(TarnRabListIe *ie, TarnRabToSetUpInfoIe *child);

/* TarnExtractRabToSetUpInfoIeFromRabListIe lends the next RabToSetUpInfo in *child, returning 1 on
 * success and 0, with *child null, if there is none. */
uint32_t TarnExtractRabToSetUpInfoIeFromRabListIe(TarnRabListIe *ie, TarnRabToSetUpInfoIe **child);

/* TarnPackRabListIe packs ie and sets *written, returning 1 on success and 0 on failure. */
uint32_t TarnPackRabListIe(const TarnRabListIe *ie, uint8_t *buffer, uint32_t available,
                           uint32_t *written);

/* TarnUnpackRabListIe fills ie and sets *consumed, returning 1 on success and 0 on failure. */
uint32_t TarnUnpackRabListIe(const TarnMsg *msg, TarnRabListIe *ie, const uint8_t *buffer,
                             uint32_t available, uint32_t *consumed);

/* TarnIsRabListIeValid returns 1 if ie is a valid RabList, and 0 otherwise. */
uint32_t TarnIsRabListIeValid(const TarnMsg *msg, const TarnRabListIe *ie);

/* ---- RabToSetupPerCnDomain, tag 125 -------------------------------------------------------------
 * RABs to set up for one core network domain at a handover.
 *
 * Sequence of:
 *
 *   CnDomainId   tag 6    mandatory
 *   RabList      tag 21   composite, optional
 *   EncryptInfo  tag 14   optional
 */

enum { TarnRabToSetupPerCnDomainTag = 125 };

typedef struct TarnRabToSetupPerCnDomainIe {
    TarnIe ie;
    VelDllHead children;
} TarnRabToSetupPerCnDomainIe;

typedef struct TarnRabToSetupPerCnDomainRecord {
    uint8_t presence;
    TarnCnDomainId CnDomainId;
    TarnRabListRecord RabList;   /* 0x80 */
    TarnEncryptInfo EncryptInfo; /* 0x40 */
} TarnRabToSetupPerCnDomainRecord;

enum {
    TarnRabToSetupPerCnDomainHasRabList = 0x80,
    TarnRabToSetupPerCnDomainHasEncryptInfo = 0x40,
};

/* TarnNewRabToSetupPerCnDomainIe returns a new RabToSetupPerCnDomain without children, owned by the
 * caller. */
TarnRabToSetupPerCnDomainIe *TarnNewRabToSetupPerCnDomainIe(void);

/* TarnAppendCnDomainIdToRabToSetupPerCnDomainIe appends a copy of *value, returning 1 on success
 * and 0 if invalid. */
uint32_t TarnAppendCnDomainIdToRabToSetupPerCnDomainIe(TarnRabToSetupPerCnDomainIe *ie,
                                                       const TarnCnDomainId *value);

/* TarnExtractCnDomainIdFromRabToSetupPerCnDomainIe copies the next CnDomainId to *value, returning
 * 1 on success and 0 if there is none. */
uint32_t TarnExtractCnDomainIdFromRabToSetupPerCnDomainIe(TarnRabToSetupPerCnDomainIe *ie,
                                                          TarnCnDomainId *value);

/* TarnAppendRabListIeToRabToSetupPerCnDomainIe appends child itself, unchecked, and takes it over,
 * returning 1. */
uint32_t TarnAppendRabListIeToRabToSetupPerCnDomainIe(TarnRabToSetupPerCnDomainIe *ie,
                                                      TarnRabListIe *child);

/* TarnExtractRabListIeFromRabToSetupPerCnDomainIe lends the next RabList in *child, returning 1 on
 * success and 0, with *child null, if there is none. */
uint32_t TarnExtractRabListIeFromRabToSetupPerCnDomainIe(TarnRabToSetupPerCnDomainIe *ie,
                                                         TarnRabListIe **child);

/* TarnAppendEncryptInfoToRabToSetupPerCnDomainIe appends a copy of *value, returning 1 on success
 * and 0 if invalid. */
uint32_t TarnAppendEncryptInfoToRabToSetupPerCnDomainIe(TarnRabToSetupPerCnDomainIe *ie,
                                                        const TarnEncryptInfo *value);

/* TarnExtractEncryptInfoFromRabToSetupPerCnDomainIe copies the next EncryptInfo to *value,
 * returning 1 on success and 0 if there is none. */
uint32_t TarnExtractEncryptInfoFromRabToSetupPerCnDomainIe(TarnRabToSetupPerCnDomainIe *ie,
                                                           TarnEncryptInfo *value);

/* TarnPackRabToSetupPerCnDomainIe packs ie and sets *written, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackRabToSetupPerCnDomainIe(const TarnRabToSetupPerCnDomainIe *ie, uint8_t *buffer,
                                         uint32_t available, uint32_t *written);

/* TarnUnpackRabToSetupPerCnDomainIe fills ie and sets *consumed, returning 1 on success and 0 on
 * failure. */
uint32_t TarnUnpackRabToSetupPerCnDomainIe(const TarnMsg *msg, TarnRabToSetupPerCnDomainIe *ie,
                                           const uint8_t *buffer, uint32_t available,
                                           uint32_t *consumed);

/* TarnIsRabToSetupPerCnDomainIeValid returns 1 if ie is a valid RabToSetupPerCnDomain, and 0
 * otherwise. */
uint32_t TarnIsRabToSetupPerCnDomainIeValid(const TarnMsg *msg,
                                            const TarnRabToSetupPerCnDomainIe *ie);

/* ---- RabToSetupPerCnDomainList, tag 150 ---------------------------------------------------------
 * RABs to set up at a handover, by core network domain.
 *
 * List of 1 to 2 RabToSetupPerCnDomain (tag 125). */

enum { TarnRabToSetupPerCnDomainListTag = 150 };

typedef struct TarnRabToSetupPerCnDomainListIe {
    TarnIe ie;
    VelDllHead children;
} TarnRabToSetupPerCnDomainListIe;

typedef struct TarnRabToSetupPerCnDomainListRecord {
    uint16_t count;
    TarnRabToSetupPerCnDomainRecord items[2];
} TarnRabToSetupPerCnDomainListRecord;

/* TarnNewRabToSetupPerCnDomainListIe returns a new RabToSetupPerCnDomainList without children,
 * owned by the caller. */
TarnRabToSetupPerCnDomainListIe *TarnNewRabToSetupPerCnDomainListIe(void);

/* TarnAppendRabToSetupPerCnDomainIeToRabToSetupPerCnDomainListIe appends child itself, unchecked,
 * and takes it over, returning 1. */
uint32_t
TarnAppendRabToSetupPerCnDomainIeToRabToSetupPerCnDomainListIe(TarnRabToSetupPerCnDomainListIe *ie,
                                                               TarnRabToSetupPerCnDomainIe *child);

/* TarnExtractRabToSetupPerCnDomainIeFromRabToSetupPerCnDomainListIe lends the next
 * RabToSetupPerCnDomain in *child, returning 1 on success and 0, with *child null, if there is
 * none. */
uint32_t TarnExtractRabToSetupPerCnDomainIeFromRabToSetupPerCnDomainListIe(
    TarnRabToSetupPerCnDomainListIe *ie, TarnRabToSetupPerCnDomainIe **child);

/* TarnPackRabToSetupPerCnDomainListIe packs ie and sets *written, returning 1 on success and 0 on
 * failure. */
uint32_t TarnPackRabToSetupPerCnDomainListIe(const TarnRabToSetupPerCnDomainListIe *ie,
                                             uint8_t *buffer, uint32_t available,
                                             uint32_t *written);

/* TarnUnpackRabToSetupPerCnDomainListIe fills ie and sets *consumed, returning 1 on success and 0
 * on failure. */
uint32_t TarnUnpackRabToSetupPerCnDomainListIe(const TarnMsg *msg,
                                               TarnRabToSetupPerCnDomainListIe *ie,
                                               const uint8_t *buffer, uint32_t available,
                                               uint32_t *consumed);

/* TarnIsRabToSetupPerCnDomainListIeValid returns 1 if ie is a valid RabToSetupPerCnDomainList, and
 * 0 otherwise. */
uint32_t TarnIsRabToSetupPerCnDomainListIeValid(const TarnMsg *msg,
                                                const TarnRabToSetupPerCnDomainListIe *ie);

/* ---- Conditions among children ------------------------------------------------------------------
 * What decides whether a conditional child must be there or must not be there. The msg argument is
 * not used and may be null; a null ie is fatal. */

/* TarnIfTrafficClassInteractiveForIe returns 1 if TrafficClass is 3 (interactive), and 0 if not or
 * if there is no TrafficClass. It decides whether RabParams has TrafficHandlingPriority. */
uint32_t TarnIfTrafficClassInteractiveForIe(const TarnMsg *msg, const TarnRabParamsIe *ie);

/* TarnIfTrafficClassIsRealTimeForIe returns 1 if TrafficClass is 0 or 2 (real-time), and 0 if not
 * or if there is no TrafficClass. It decides whether RabParams has SecondBitRates,
 * SourceStatsDescriptor and TransDelay. */
uint32_t TarnIfTrafficClassIsRealTimeForIe(const TarnMsg *msg, const TarnRabParamsIe *ie);

#pragma GCC visibility pop

#ifdef __cplusplus
}
#endif

#endif
