/* The AC and the source of the relocation, and the UE's arrival. */
#include "relocation.h"

enum { intraRat = 1 };

static const TarnRrcContainer relocationInfo = {.length = 24, .bytes = "source RNC to target RNC"};
static const TarnTargetCellId targetCell = 0x0123456;

TarnModifiedSrncContainerIe *new_srnc_container(const Knowledge *known, const TarnRrcContainer *rrc,
                                                TarnTargetCellId cell, uint32_t *ok) {
    const TarnNumIuInstances iuInstances = domainCount;
    TarnModifiedSrncContainerIe *ie = TarnNewModifiedSrncContainerIe();
    *ok &= TarnAppendRrcContainerToModifiedSrncContainerIe(ie, rrc);
    *ok &= TarnAppendTargetCellIdToModifiedSrncContainerIe(ie, &cell);
    *ok &= TarnAppendNumIuInstancesToModifiedSrncContainerIe(ie, &iuInstances);
    *ok &= TarnAppendIntProtAlgoToModifiedSrncContainerIe(ie, &known->intProtAlgo);
    *ok &= TarnAppendIntProtKeyToModifiedSrncContainerIe(ie, &known->intProtKey);
    return ie;
}

bool learn_srnc_container(TarnModifiedSrncContainerIe *ie, Knowledge *known, Notes *notes) {
    TarnNumIuInstances iuInstances;
    if (!TarnExtractRrcContainerFromModifiedSrncContainerIe(ie, &known->sourceContainer) ||
        !TarnExtractTargetCellIdFromModifiedSrncContainerIe(ie, &known->targetCell) ||
        !TarnExtractNumIuInstancesFromModifiedSrncContainerIe(ie, &iuInstances))
        return false;
    note(notes, "cell 0x%07X, %u domains, RRC container of %u bytes", (unsigned)known->targetCell,
         iuInstances, (unsigned)known->sourceContainer.length);
    return true;
}

/* ---- RelocationRequired ---------------------------------------------------------------------- */

static TarnTargetRNCIdIe *new_target_rnc(uint32_t *ok) {
    const TarnLAI lai = {.PLMNId = {.length = 3, .bytes = {0x00, 0xF1, 0x10}},
                         .LAC = {.length = 2, .bytes = {0x10, 0x02}}};
    const TarnRNCId rnc = 291;
    const TarnRAC rac = 7;
    TarnTargetRNCIdIe *ie = TarnNewTargetRNCIdIe();
    *ok &= TarnAppendLAIToTargetRNCIdIe(ie, &lai);
    *ok &= TarnAppendRNCIdToTargetRNCIdIe(ie, &rnc);
    *ok &= TarnAppendRACToTargetRNCIdIe(ie, &rac);
    return ie;
}

static uint32_t compose_relocation_required(const Knowledge *known, uint8_t *buffer,
                                            uint32_t size) {
    const TarnRelocationRequiredCause cause = 2;
    const TarnRelocationType type = intraRat;
    TarnMsg *msg = TarnNewRelocationRequiredMsg();
    uint32_t ok = TarnAppendSrntiToRelocationRequiredMsg(msg, &known->ue.srnti);
    ok &= TarnAppendAcUeIdToRelocationRequiredMsg(msg, &known->ue.acUeId);
    ok &= TarnAppendRelocationRequiredCauseToRelocationRequiredMsg(msg, &cause);
    ok &= TarnAppendRelocationTypeToRelocationRequiredMsg(msg, &type);
    /* Intra-RAT calls for these two and forbids the GSM classmarks and the TargetCGI. */
    TarnAppendModifiedSrncContainerIeToRelocationRequiredMsg(
        msg, new_srnc_container(known, &relocationInfo, targetCell, &ok));
    TarnAppendTargetRNCIdIeToRelocationRequiredMsg(msg, new_target_rnc(&ok));
    return finish_msg(msg, ok, TarnIsRelocationRequiredMsgValid, TarnPackRelocationRequiredMsg,
                      buffer, size);
}

static bool note_target_rnc(TarnTargetRNCIdIe *ie, Notes *notes) {
    TarnLAI lai;
    TarnRNCId rnc;
    if (!TarnExtractLAIFromTargetRNCIdIe(ie, &lai) || !TarnExtractRNCIdFromTargetRNCIdIe(ie, &rnc))
        return false;
    note(notes, "to RNC %u, LAC %02X%02X", rnc, lai.LAC.bytes[0], lai.LAC.bytes[1]);
    return true;
}

static bool learn_relocation_required(Knowledge *known, const Seen *seen, Notes *notes) {
    UeIds ue = {0};
    TarnModifiedSrncContainerIe *container;
    TarnTargetRNCIdIe *target;
    if (!TarnExtractSrntiFromRelocationRequiredMsg(seen->msg, &ue.srnti) ||
        !TarnExtractAcUeIdFromRelocationRequiredMsg(seen->msg, &ue.acUeId) ||
        !is_ue(&known->ue, ue.srnti, ue.acUeId) || !TarnIsIntraRatRelocForMsg(seen->msg) ||
        !TarnExtractModifiedSrncContainerIeFromRelocationRequiredMsg(seen->msg, &container) ||
        !TarnExtractTargetRNCIdIeFromRelocationRequiredMsg(seen->msg, &target))
        return false;
    note(notes, "UE %u, intra-RAT", (unsigned)ue.acUeId);
    return note_target_rnc(target, notes) && learn_srnc_container(container, known, notes);
}

const MessageKind relocationRequired = {
    .name = "RelocationRequired",
    .id = TarnRelocationRequiredMsgId,
    .sender = sideAp,
    .isValid = TarnIsRelocationRequiredMsgValid,
    .compose = compose_relocation_required,
    .learn = learn_relocation_required,
};

/* ---- RelocationCommand ----------------------------------------------------------------------- */

static uint32_t compose_relocation_command(const Knowledge *known, uint8_t *buffer, uint32_t size) {
    const TarnRelocationCommandRecord record = {
        .presence = TarnRelocationCommandHasRrcContainer,
        .Srnti = known->ue.srnti,
        .AcUeId = known->ue.acUeId,
        .RrcContainer = known->handoverCommand,
    };
    return TarnBuildRelocationCommandMsg(buffer, size, &record);
}

static bool learn_relocation_command(Knowledge *known, const Seen *seen, Notes *notes) {
    TarnRelocationCommandRecord record = {0};
    if (!TarnGetRelocationCommandMsg(seen->bytes, seen->length, &record) ||
        !is_ue(&known->ue, record.Srnti, record.AcUeId) ||
        (record.presence & TarnRelocationCommandHasRrcContainer) == 0)
        return false;
    note(notes, "UE %u, RRC container of %u bytes for the UE", (unsigned)record.AcUeId,
         (unsigned)record.RrcContainer.length);
    return true;
}

const MessageKind relocationCommand = {
    .name = "RelocationCommand",
    .id = TarnRelocationCommandMsgId,
    .sender = sideAc,
    .isValid = TarnIsRelocationCommandMsgValid,
    .compose = compose_relocation_command,
    .learn = learn_relocation_command,
};

/* ---- HandoverDetect -------------------------------------------------------------------------- */

static uint32_t compose_handover_detect(const Knowledge *known, uint8_t *buffer, uint32_t size) {
    const TarnHandoverDetectRecord record = {.Srnti = known->target.srnti,
                                             .AcUeId = known->target.acUeId};
    return TarnBuildHandoverDetectMsg(buffer, size, &record);
}

static bool learn_handover_detect(Knowledge *known, const Seen *seen, Notes *notes) {
    TarnHandoverDetectRecord record = {0};
    if (!TarnGetHandoverDetectMsg(seen->bytes, seen->length, &record) ||
        !is_ue(&known->target, record.Srnti, record.AcUeId))
        return false;
    note(notes, "UE %u", (unsigned)record.AcUeId);
    return true;
}

const MessageKind handoverDetect = {
    .name = "HandoverDetect",
    .id = TarnHandoverDetectMsgId,
    .sender = sideAp,
    .isValid = TarnIsHandoverDetectMsgValid,
    .compose = compose_handover_detect,
    .learn = learn_handover_detect,
};

/* ---- HandoverComplete ------------------------------------------------------------------------ */

static uint32_t compose_handover_complete(const Knowledge *known, uint8_t *buffer, uint32_t size) {
    const TarnHandoverCompleteRecord record = {.Srnti = known->target.srnti,
                                               .AcUeId = known->target.acUeId};
    return TarnBuildHandoverCompleteMsg(buffer, size, &record);
}

static bool learn_handover_complete(Knowledge *known, const Seen *seen, Notes *notes) {
    TarnHandoverCompleteRecord record = {0};
    if (!TarnGetHandoverCompleteMsg(seen->bytes, seen->length, &record) ||
        !is_ue(&known->target, record.Srnti, record.AcUeId))
        return false;
    note(notes, "UE %u", (unsigned)record.AcUeId);
    return true;
}

const MessageKind handoverComplete = {
    .name = "HandoverComplete",
    .id = TarnHandoverCompleteMsgId,
    .sender = sideAp,
    .isValid = TarnIsHandoverCompleteMsgValid,
    .compose = compose_handover_complete,
    .learn = learn_handover_complete,
};
