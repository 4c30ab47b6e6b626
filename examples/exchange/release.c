/* The end of Iu connections and of UE contexts. */
#include "messages.h"

enum { releasedByRelocation = 15, normalRelease = 83 };

/* ---- IuReleaseRequest ------------------------------------------------------------------------ */

static uint32_t compose_iu_release_request(const Knowledge *known, uint8_t *buffer, uint32_t size) {
    const TarnIuReleaseRequestRecord record = {
        .Srnti = known->ue.srnti,
        .AcUeId = known->ue.acUeId,
        .CnDomainId = known->domain,
        .IuRelReqCause = normalRelease,
    };
    return TarnBuildIuReleaseRequestMsg(buffer, size, &record);
}

static bool learn_iu_release_request(Knowledge *known, const Seen *seen, Notes *notes) {
    TarnIuReleaseRequestRecord record = {0};
    if (!TarnGetIuReleaseRequestMsg(seen->bytes, seen->length, &record) ||
        !is_ue(&known->ue, record.Srnti, record.AcUeId) || record.CnDomainId != known->domain)
        return false;
    note(notes, "UE %u, %s, cause %u", (unsigned)record.AcUeId, domain_name(record.CnDomainId),
         (unsigned)record.IuRelReqCause);
    return true;
}

const MessageKind iuReleaseRequest = {
    .name = "IuReleaseRequest",
    .id = TarnIuReleaseRequestMsgId,
    .sender = sideAp,
    .isValid = TarnIsIuReleaseRequestMsgValid,
    .compose = compose_iu_release_request,
    .learn = learn_iu_release_request,
};

/* ---- IuReleaseCommand ------------------------------------------------------------------------ */

static bool is_relocating(const Knowledge *known) {
    return known->target.acUeId != 0;
}

static uint32_t compose_iu_release_command(const Knowledge *known, uint8_t *buffer, uint32_t size) {
    const TarnIuReleaseCommandRecord record = {
        .Srnti = known->ue.srnti,
        .AcUeId = known->ue.acUeId,
        .CnDomainId = known->domain,
        .IuRelCause = is_relocating(known) ? releasedByRelocation : normalRelease,
        .RespExpected = 1,
    };
    return TarnBuildIuReleaseCommandMsg(buffer, size, &record);
}

static bool learn_iu_release_command(Knowledge *known, const Seen *seen, Notes *notes) {
    TarnIuReleaseCommandRecord record = {0};
    if (!TarnGetIuReleaseCommandMsg(seen->bytes, seen->length, &record) ||
        !is_ue(&known->ue, record.Srnti, record.AcUeId) || record.CnDomainId != known->domain)
        return false;
    note(notes, "UE %u, %s, cause %u", (unsigned)record.AcUeId, domain_name(record.CnDomainId),
         (unsigned)record.IuRelCause);
    return true;
}

const MessageKind iuReleaseCommand = {
    .name = "IuReleaseCommand",
    .id = TarnIuReleaseCommandMsgId,
    .sender = sideAc,
    .isValid = TarnIsIuReleaseCommandMsgValid,
    .compose = compose_iu_release_command,
    .learn = learn_iu_release_command,
};

/* ---- IuReleaseComplete ----------------------------------------------------------------------- */

static uint32_t compose_iu_release_complete(const Knowledge *known, uint8_t *buffer,
                                            uint32_t size) {
    const TarnRabDataInfoRecord volume = {
        .presence = TarnRabDataInfoHasUnSuccTransferAtRlc,
        .RabId = known->bearers[psDomain].rabId,
        .SuccTransferAtPsiw = 1234567,
        .UnSuccTransferAtRlc = 89,
    };
    const TarnIuReleaseCompleteRecord record = {
        /* Data are counted, speech is not. */
        .presence = known->domain == psDomain ? TarnIuReleaseCompleteHasRabDataInfoList : 0,
        .Srnti = known->ue.srnti,
        .AcUeId = known->ue.acUeId,
        .RabDataInfoList = {.count = 1, .items = {volume}},
    };
    return TarnBuildIuReleaseCompleteMsg(buffer, size, &record);
}

static bool learn_iu_release_complete(Knowledge *known, const Seen *seen, Notes *notes) {
    TarnIuReleaseCompleteRecord record = {0};
    if (!TarnGetIuReleaseCompleteMsg(seen->bytes, seen->length, &record) ||
        !is_ue(&known->ue, record.Srnti, record.AcUeId))
        return false;
    note(notes, "UE %u", (unsigned)record.AcUeId);
    for (unsigned i = 0; i < record.RabDataInfoList.count; ++i) {
        const TarnRabDataInfoRecord *volume = &record.RabDataInfoList.items[i];
        note(notes, "RAB %u, transferred %u, lost %u", (unsigned)volume->RabId,
             (unsigned)volume->SuccTransferAtPsiw, (unsigned)volume->UnSuccTransferAtRlc);
    }
    return true;
}

const MessageKind iuReleaseComplete = {
    .name = "IuReleaseComplete",
    .id = TarnIuReleaseCompleteMsgId,
    .sender = sideAp,
    .isValid = TarnIsIuReleaseCompleteMsgValid,
    .compose = compose_iu_release_complete,
    .learn = learn_iu_release_complete,
};

/* ---- UeContextRelease ------------------------------------------------------------------------ */

static uint32_t compose_ue_context_release(const Knowledge *known, uint8_t *buffer, uint32_t size) {
    const TarnUeContextReleaseRecord record = {
        .Srnti = known->ue.srnti,
        .AcUeId = known->ue.acUeId,
        .ReleaseCause = is_relocating(known) ? releasedByRelocation : normalRelease,
    };
    return TarnBuildUeContextReleaseMsg(buffer, size, &record);
}

static bool learn_ue_context_release(Knowledge *known, const Seen *seen, Notes *notes) {
    TarnUeContextReleaseRecord record = {0};
    if (!TarnGetUeContextReleaseMsg(seen->bytes, seen->length, &record) ||
        !is_ue(&known->ue, record.Srnti, record.AcUeId))
        return false;
    note(notes, "UE %u, cause %u", (unsigned)record.AcUeId, (unsigned)record.ReleaseCause);
    /* After a relocation the UE lives on at the target, and otherwise not at all. */
    known->ue = known->target;
    known->target = (UeIds){0};
    return true;
}

const MessageKind ueContextRelease = {
    .name = "UeContextRelease",
    .id = TarnUeContextReleaseMsgId,
    .sender = sideAc,
    .isValid = TarnIsUeContextReleaseMsgValid,
    .compose = compose_ue_context_release,
    .learn = learn_ue_context_release,
};
