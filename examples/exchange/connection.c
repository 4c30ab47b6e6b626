/* Paging, the UE context and access control: plain messages, on the record road. */
#include <string.h>

#include "messages.h"

static const TarnSrnti firstSrnti = 0x12001;
static const TarnAcUeId firstAcUeId = 7001;
/* Fifteen digits and a byte that fills the sixteen. */
static const TarnImsi subscriber = {.length = 16, .bytes = "001010123456789"};
static const TarnNasUeId subscriberForNas = {
    .length = 8, .bytes = {0x09, 0x10, 0x10, 0x10, 0x32, 0x54, 0x76, 0x98}};

/* ---- IdleModePaging -------------------------------------------------------------------------- */

static uint32_t compose_idle_mode_paging(const Knowledge *known, uint8_t *buffer, uint32_t size) {
    const TarnIdleModePagingRecord record = {
        .presence = TarnIdleModePagingHasDrxCycleLenCoeff | TarnIdleModePagingHasTempUeId,
        .NasUeId = subscriberForNas,
        .CnDomainId = known->domain,
        .PagingCause = 0,
        .DrxCycleLenCoeff = 6,
        .TempUeId = {.TempUeIdType = 1,
                     .TempUeIdValue = {.length = 4, .bytes = {0xC0, 0xFF, 0xEE, 0x01}}},
    };
    return TarnBuildIdleModePagingMsg(buffer, size, &record);
}

static bool learn_idle_mode_paging(Knowledge *known, const Seen *seen, Notes *notes) {
    TarnIdleModePagingRecord record = {0};
    if (!TarnGetIdleModePagingMsg(seen->bytes, seen->length, &record) ||
        record.CnDomainId != known->domain)
        return false;
    note(notes, "%s, cause %u, NasUeId of %u bytes", domain_name(record.CnDomainId),
         (unsigned)record.PagingCause, (unsigned)record.NasUeId.length);
    if (record.presence & TarnIdleModePagingHasDrxCycleLenCoeff)
        note(notes, "DRX cycle length coefficient %u", (unsigned)record.DrxCycleLenCoeff);
    return true;
}

const MessageKind idleModePaging = {
    .name = "IdleModePaging",
    .id = TarnIdleModePagingMsgId,
    .sender = sideAc,
    .isValid = TarnIsIdleModePagingMsgValid,
    .compose = compose_idle_mode_paging,
    .learn = learn_idle_mode_paging,
};

/* ---- UeContextRequest ------------------------------------------------------------------------ */

static uint32_t compose_ue_context_request(const Knowledge *known, uint8_t *buffer, uint32_t size) {
    (void)known;
    const TarnUeContextRequestRecord record = {.Srnti = firstSrnti, .EstablishCause = 5};
    return TarnBuildUeContextRequestMsg(buffer, size, &record);
}

static bool learn_ue_context_request(Knowledge *known, const Seen *seen, Notes *notes) {
    TarnUeContextRequestRecord record = {0};
    if (!TarnGetUeContextRequestMsg(seen->bytes, seen->length, &record))
        return false;
    known->ue.srnti = record.Srnti;
    note(notes, "S-RNTI 0x%05X, cause %u", (unsigned)record.Srnti, (unsigned)record.EstablishCause);
    return true;
}

const MessageKind ueContextRequest = {
    .name = "UeContextRequest",
    .id = TarnUeContextRequestMsgId,
    .sender = sideAp,
    .isValid = TarnIsUeContextRequestMsgValid,
    .compose = compose_ue_context_request,
    .learn = learn_ue_context_request,
};

/* ---- UeContextAccept ------------------------------------------------------------------------- */

static uint32_t compose_ue_context_accept(const Knowledge *known, uint8_t *buffer, uint32_t size) {
    const TarnUeContextAcceptRecord record = {.Srnti = known->ue.srnti, .AcUeId = firstAcUeId};
    return TarnBuildUeContextAcceptMsg(buffer, size, &record);
}

static bool learn_ue_context_accept(Knowledge *known, const Seen *seen, Notes *notes) {
    TarnUeContextAcceptRecord record = {0};
    if (!TarnGetUeContextAcceptMsg(seen->bytes, seen->length, &record) ||
        record.Srnti != known->ue.srnti)
        return false;
    known->ue.acUeId = record.AcUeId;
    note(notes, "S-RNTI 0x%05X is UE %u", (unsigned)record.Srnti, (unsigned)record.AcUeId);
    return true;
}

const MessageKind ueContextAccept = {
    .name = "UeContextAccept",
    .id = TarnUeContextAcceptMsgId,
    .sender = sideAc,
    .isValid = TarnIsUeContextAcceptMsgValid,
    .compose = compose_ue_context_accept,
    .learn = learn_ue_context_accept,
};

/* ---- AccessControlRequest -------------------------------------------------------------------- */

static uint32_t compose_access_control_request(const Knowledge *known, uint8_t *buffer,
                                               uint32_t size) {
    const TarnAccessControlRequestRecord record = {
        .Srnti = known->ue.srnti,
        .AcUeId = known->ue.acUeId,
        .LAC = {.length = 2, .bytes = {0x10, 0x01}},
        .Imsi = subscriber,
    };
    return TarnBuildAccessControlRequestMsg(buffer, size, &record);
}

static bool learn_access_control_request(Knowledge *known, const Seen *seen, Notes *notes) {
    TarnAccessControlRequestRecord record = {0};
    if (!TarnGetAccessControlRequestMsg(seen->bytes, seen->length, &record) ||
        !is_ue(&known->ue, record.Srnti, record.AcUeId))
        return false;
    known->imsi = record.Imsi;
    note(notes, "UE %u, IMSI %s, LAC %02X%02X", (unsigned)record.AcUeId,
         imsi_text(&record.Imsi).digits, record.LAC.bytes[0], record.LAC.bytes[1]);
    return true;
}

const MessageKind accessControlRequest = {
    .name = "AccessControlRequest",
    .id = TarnAccessControlRequestMsgId,
    .sender = sideAp,
    .isValid = TarnIsAccessControlRequestMsgValid,
    .compose = compose_access_control_request,
    .learn = learn_access_control_request,
};

/* ---- AccessControlResponse ------------------------------------------------------------------- */

static uint32_t compose_access_control_response(const Knowledge *known, uint8_t *buffer,
                                                uint32_t size) {
    const TarnAccessControlResponseRecord record = {
        .Srnti = known->ue.srnti,
        .AcUeId = known->ue.acUeId,
        .Imsi = known->imsi,
        .LacMatch = 1,
    };
    return TarnBuildAccessControlResponseMsg(buffer, size, &record);
}

static bool learn_access_control_response(Knowledge *known, const Seen *seen, Notes *notes) {
    TarnAccessControlResponseRecord record = {0};
    if (!TarnGetAccessControlResponseMsg(seen->bytes, seen->length, &record) ||
        !is_ue(&known->ue, record.Srnti, record.AcUeId) ||
        memcmp(record.Imsi.bytes, known->imsi.bytes, sizeof record.Imsi.bytes) != 0)
        return false;
    note(notes, "UE %u, LAC %s", (unsigned)record.AcUeId,
         record.LacMatch == 1 ? "matches" : "does not match");
    return true;
}

const MessageKind accessControlResponse = {
    .name = "AccessControlResponse",
    .id = TarnAccessControlResponseMsgId,
    .sender = sideAc,
    .isValid = TarnIsAccessControlResponseMsgValid,
    .compose = compose_access_control_response,
    .learn = learn_access_control_response,
};

/* ---- ConnectedModePaging --------------------------------------------------------------------- */

static uint32_t compose_connected_mode_paging(const Knowledge *known, uint8_t *buffer,
                                              uint32_t size) {
    const TarnConnectedModePagingRecord record = {
        .Srnti = known->ue.srnti,
        .AcUeId = known->ue.acUeId,
        .NasUeId = subscriberForNas,
        .CnDomainId = known->domain,
        .PagingCause = 3,
        .PagingRecordTypeInd = 1,
    };
    return TarnBuildConnectedModePagingMsg(buffer, size, &record);
}

static bool learn_connected_mode_paging(Knowledge *known, const Seen *seen, Notes *notes) {
    TarnConnectedModePagingRecord record = {0};
    if (!TarnGetConnectedModePagingMsg(seen->bytes, seen->length, &record) ||
        !is_ue(&known->ue, record.Srnti, record.AcUeId) || record.CnDomainId != known->domain)
        return false;
    note(notes, "UE %u, %s, cause %u", (unsigned)record.AcUeId, domain_name(record.CnDomainId),
         (unsigned)record.PagingCause);
    return true;
}

const MessageKind connectedModePaging = {
    .name = "ConnectedModePaging",
    .id = TarnConnectedModePagingMsgId,
    .sender = sideAc,
    .isValid = TarnIsConnectedModePagingMsgValid,
    .compose = compose_connected_mode_paging,
    .learn = learn_connected_mode_paging,
};
