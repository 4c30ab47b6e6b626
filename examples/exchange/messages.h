/* The messages of the exchange, each with what its sender and both ends do with it. */
#ifndef EXCHANGE_MESSAGES_H
#define EXCHANGE_MESSAGES_H

#include <stdbool.h>
#include <stdint.h>

#include "ladder.h"
#include "tarn_if.h"

typedef enum Side { sideAp, sideAc } Side;

/* Code values are the application's: the library carries any number. */
enum { csDomain = 0, psDomain = 1, domainCount = 2 };
enum { integrityUia1 = 1, cipheringUea1 = 1 };

typedef struct UeIds {
    TarnSrnti srnti;   /* given by the AP */
    TarnAcUeId acUeId; /* given by the AC */
} UeIds;

typedef struct Bearer {
    TarnRabId rabId;
    TarnAcUserPlaneAssociation acAssociation;
    TarnApUserPlaneAssociation apAssociation;
} Bearer;

/* What one end knows from what it has sent and received so far. */
typedef struct Knowledge {
    TarnCnDomainId domain; /* the one that the current procedure is about */
    UeIds ue;
    UeIds target; /* the UE's ids at the target of the relocation, zero before and after */
    TarnImsi imsi;
    TarnIntProtAlgo intProtAlgo;
    TarnIntProtKey intProtKey;
    TarnEncryptAlgo encryptAlgo;
    Bearer bearers[domainCount];
    TarnRrcContainer sourceContainer; /* from the source of the relocation to its target */
    TarnTargetCellId targetCell;
    TarnRrcContainer handoverCommand; /* from the target of the relocation to the UE */
} Knowledge;

/* A message that was sent or received: its bytes, and the object unpacked from them. */
typedef struct Seen {
    const uint8_t *bytes;
    uint32_t length;
    TarnMsg *msg;
} Seen;

typedef struct MessageKind {
    const char *name;
    TarnMessageId id;
    Side sender;
    uint32_t (*isValid)(const TarnMsg *msg);
    /* Writes the message that `known` calls for, returning its bytes and 0 on failure. */
    uint32_t (*compose)(const Knowledge *known, uint8_t *buffer, uint32_t size);
    /* Takes over what the message tells and notes it for the ladder. False if the message lacks
     * something or contradicts what is known. */
    bool (*learn)(Knowledge *known, const Seen *seen, Notes *notes);
} MessageKind;

/* A message on the object road: what is done with every one of them once it is filled. Packs it if
 * all appends went well (ok) and it is valid, and deletes it. Returns its bytes and 0 on failure.
 */
typedef uint32_t (*PackMsg)(const TarnMsg *msg, uint8_t *buffer, uint32_t size);
uint32_t finish_msg(TarnMsg *msg, uint32_t ok, uint32_t (*isValid)(const TarnMsg *msg),
                    PackMsg pack, uint8_t *buffer, uint32_t size);

bool is_ue(const UeIds *ue, TarnSrnti srnti, TarnAcUeId acUeId);
const char *domain_name(TarnCnDomainId domain);

/* The identity as text: its fifteen digits, and a question mark for whatever else a peer sends. */
typedef struct ImsiText {
    char digits[16];
} ImsiText;
ImsiText imsi_text(const TarnImsi *imsi);

/* connection.c */
extern const MessageKind idleModePaging;
extern const MessageKind ueContextRequest;
extern const MessageKind ueContextAccept;
extern const MessageKind accessControlRequest;
extern const MessageKind accessControlResponse;
extern const MessageKind connectedModePaging;

/* nas.c */
extern const MessageKind initDirectTransfer;
extern const MessageKind dlDirectTransfer;
extern const MessageKind ulDirectTransfer;
extern const MessageKind securityModeCommand;
extern const MessageKind securityModeComplete;

/* bearers.c */
extern const MessageKind rabAssignmentRequest;
extern const MessageKind rabAssignmentResponse;
extern const MessageKind userPlaneConfigRequest;
extern const MessageKind userPlaneConfigResponse;

/* relocation.c and handover.c */
extern const MessageKind relocationRequired;
extern const MessageKind handoverRequest;
extern const MessageKind handoverReqAck;
extern const MessageKind relocationCommand;
extern const MessageKind handoverDetect;
extern const MessageKind handoverComplete;

/* release.c */
extern const MessageKind iuReleaseRequest;
extern const MessageKind iuReleaseCommand;
extern const MessageKind iuReleaseComplete;
extern const MessageKind ueContextRelease;

#endif
