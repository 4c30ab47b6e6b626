/* The AC and the target of the relocation. */
#include "rabs.h"
#include "relocation.h"

static const TarnAcUeId targetAcUeId = 7002;
static const TarnSrnti targetSrnti = 0x12002;
static const TarnRrcContainer handoverCommand = {.length = 16, .bytes = "handover command"};
static const TarnEncryptKey cipheringKey = {.length = 16, .bytes = "ciphering key 01"};

/* ---- HandoverRequest ------------------------------------------------------------------------- */

static TarnRabToSetupPerCnDomainIe *new_domain(TarnCnDomainId domain, const Knowledge *known,
                                               uint32_t *ok) {
    const TarnEncryptInfo ciphering = {.EncryptAlgos = {.count = 1, .items = {known->encryptAlgo}},
                                       .EncryptKey = cipheringKey};
    TarnRabToSetupPerCnDomainIe *ie = TarnNewRabToSetupPerCnDomainIe();
    *ok &= TarnAppendCnDomainIdToRabToSetupPerCnDomainIe(ie, &domain);
    TarnAppendRabListIeToRabToSetupPerCnDomainIe(ie, new_rab_list(domain, ok));
    *ok &= TarnAppendEncryptInfoToRabToSetupPerCnDomainIe(ie, &ciphering);
    return ie;
}

static TarnRabToSetupPerCnDomainListIe *new_domains(const Knowledge *known, uint32_t *ok) {
    TarnRabToSetupPerCnDomainListIe *list = TarnNewRabToSetupPerCnDomainListIe();
    for (TarnCnDomainId domain = 0; domain < domainCount; ++domain)
        TarnAppendRabToSetupPerCnDomainIeToRabToSetupPerCnDomainListIe(
            list, new_domain(domain, known, ok));
    return list;
}

static uint32_t compose_handover_request(const Knowledge *known, uint8_t *buffer, uint32_t size) {
    const TarnHandoverRequestCause cause = 2;
    const TarnIntProtInfo protection = {.IntProtAlgo = known->intProtAlgo,
                                        .IntProtKey = known->intProtKey};
    TarnMsg *msg = TarnNewHandoverRequestMsg();
    uint32_t ok = TarnAppendAcUeIdToHandoverRequestMsg(msg, &targetAcUeId);
    ok &= TarnAppendHandoverRequestCauseToHandoverRequestMsg(msg, &cause);
    TarnAppendModifiedSrncContainerIeToHandoverRequestMsg(
        msg, new_srnc_container(known, &known->sourceContainer, known->targetCell, &ok));
    TarnAppendRabToSetupPerCnDomainListIeToHandoverRequestMsg(msg, new_domains(known, &ok));
    ok &= TarnAppendIntProtInfoToHandoverRequestMsg(msg, &protection);
    return finish_msg(msg, ok, TarnIsHandoverRequestMsgValid, TarnPackHandoverRequestMsg, buffer,
                      size);
}

static bool learn_domain(TarnRabToSetupPerCnDomainIe *ie, Knowledge *known, Notes *notes) {
    TarnCnDomainId domain = domainCount;
    TarnRabListIe *rabs;
    if (!TarnExtractCnDomainIdFromRabToSetupPerCnDomainIe(ie, &domain) || domain >= domainCount)
        return false;
    note(notes, "%s:", domain_name(domain));
    return !TarnExtractRabListIeFromRabToSetupPerCnDomainIe(ie, &rabs) ||
           learn_rab_list(rabs, &known->bearers[domain], notes);
}

static bool learn_handover_request(Knowledge *known, const Seen *seen, Notes *notes) {
    TarnModifiedSrncContainerIe *container;
    TarnRabToSetupPerCnDomainListIe *list;
    TarnRabToSetupPerCnDomainIe *domain;
    if (!TarnExtractAcUeIdFromHandoverRequestMsg(seen->msg, &known->target.acUeId) ||
        !TarnExtractModifiedSrncContainerIeFromHandoverRequestMsg(seen->msg, &container))
        return false;
    note(notes, "UE %u", (unsigned)known->target.acUeId);
    if (!learn_srnc_container(container, known, notes))
        return false;
    if (!TarnExtractRabToSetupPerCnDomainListIeFromHandoverRequestMsg(seen->msg, &list))
        return true;
    while (TarnExtractRabToSetupPerCnDomainIeFromRabToSetupPerCnDomainListIe(list, &domain))
        if (!learn_domain(domain, known, notes))
            return false;
    return true;
}

const MessageKind handoverRequest = {
    .name = "HandoverRequest",
    .id = TarnHandoverRequestMsgId,
    .sender = sideAc,
    .isValid = TarnIsHandoverRequestMsgValid,
    .compose = compose_handover_request,
    .learn = learn_handover_request,
};

/* ---- HandoverReqAck -------------------------------------------------------------------------- */

/* Three composites deep, and still one record: the library makes the objects of it. */
static uint32_t compose_handover_req_ack(const Knowledge *known, uint8_t *buffer, uint32_t size) {
    TarnHandoverReqAckRecord record = {
        .presence =
            TarnHandoverReqAckHasIntProtAlgo | TarnHandoverReqAckHasResourceInfoPerCnDomainListAck,
        .Srnti = targetSrnti,
        .AcUeId = known->target.acUeId,
        .RrcContainer = handoverCommand,
        .IntProtAlgo = known->intProtAlgo,
        .ResourceInfoPerCnDomainListAck = {.count = domainCount},
    };
    for (TarnCnDomainId domain = 0; domain < domainCount; ++domain) {
        const TarnRabSetupSuccessInfoRecord rab = {.RabId = known->bearers[domain].rabId};
        record.ResourceInfoPerCnDomainListAck.items[domain] =
            (TarnResourceInfoPerCnDomainAckRecord){
                .presence = TarnResourceInfoPerCnDomainAckHasRabSetupSuccessList |
                            TarnResourceInfoPerCnDomainAckHasEncryptAlgo,
                .CnDomainId = domain,
                .RabSetupSuccessList = {.count = 1, .items = {rab}},
                .EncryptAlgo = known->encryptAlgo,
            };
    }
    return TarnBuildHandoverReqAckMsg(buffer, size, &record);
}

static bool learn_handover_req_ack(Knowledge *known, const Seen *seen, Notes *notes) {
    TarnHandoverReqAckRecord record = {0};
    if (!TarnGetHandoverReqAckMsg(seen->bytes, seen->length, &record) ||
        record.AcUeId != known->target.acUeId)
        return false;
    known->target.srnti = record.Srnti;
    known->handoverCommand = record.RrcContainer;
    note(notes, "S-RNTI 0x%05X is UE %u, RRC container of %u bytes", (unsigned)record.Srnti,
         (unsigned)record.AcUeId, (unsigned)record.RrcContainer.length);
    for (unsigned i = 0; i < record.ResourceInfoPerCnDomainListAck.count; ++i) {
        const TarnResourceInfoPerCnDomainAckRecord *domain =
            &record.ResourceInfoPerCnDomainListAck.items[i];
        note(notes, "%s, RABs set up %u, refused %u", domain_name(domain->CnDomainId),
             (unsigned)domain->RabSetupSuccessList.count,
             (unsigned)domain->RabSetupFailedList.count);
    }
    return true;
}

const MessageKind handoverReqAck = {
    .name = "HandoverReqAck",
    .id = TarnHandoverReqAckMsgId,
    .sender = sideAp,
    .isValid = TarnIsHandoverReqAckMsgValid,
    .compose = compose_handover_req_ack,
    .learn = learn_handover_req_ack,
};
