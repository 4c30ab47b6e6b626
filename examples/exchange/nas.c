/* Direct transfers and security mode control. */
#include "messages.h"

/* NAS messages, one per domain; the network's and the UE's are not looked into. */
static const TarnNasMsg firstNas[domainCount] = {
    {.length = 9, .bytes = {0x06, 0x27, 0x07, 0x03, 0x50, 0x58, 0x92, 0x05, 0xF4}},
    {.length = 7, .bytes = {0x08, 0x0C, 0x11, 0x05, 0xF4, 0xC0, 0xFF}},
};
static const TarnNasMsg setup = {
    .length = 12,
    .bytes = {0x03, 0x05, 0x04, 0x06, 0x60, 0x04, 0x02, 0x00, 0x05, 0x81, 0x5C, 0x05}};
static const TarnNasMsg connected = {.length = 2, .bytes = {0x83, 0x47}};

static const TarnIntProtKey integrityKey = {.length = 16, .bytes = "integrity key 01"};
static const TarnEncryptKey cipheringKey = {.length = 16, .bytes = "ciphering key 01"};

/* ---- InitDirectTransfer ---------------------------------------------------------------------- */

/* On the object road, since the optional IEs depend on the domain: append what is wanted. */
static uint32_t compose_init_direct_transfer(const Knowledge *known, uint8_t *buffer,
                                             uint32_t size) {
    const TarnIdnns idnns = {.RoutingBasis = 0, .RoutingParameter = 417};
    TarnMsg *msg = TarnNewInitDirectTransferMsg();
    uint32_t ok = TarnAppendSrntiToInitDirectTransferMsg(msg, &known->ue.srnti);
    ok &= TarnAppendAcUeIdToInitDirectTransferMsg(msg, &known->ue.acUeId);
    ok &= TarnAppendCnDomainIdToInitDirectTransferMsg(msg, &known->domain);
    ok &= TarnAppendNasMsgToInitDirectTransferMsg(msg, &firstNas[known->domain]);
    if (known->domain == csDomain)
        ok &= TarnAppendImsiToInitDirectTransferMsg(msg, &known->imsi);
    ok &= TarnAppendIdnnsToInitDirectTransferMsg(msg, &idnns);
    return finish_msg(msg, ok, TarnIsInitDirectTransferMsgValid, TarnPackInitDirectTransferMsg,
                      buffer, size);
}

static bool learn_init_direct_transfer(Knowledge *known, const Seen *seen, Notes *notes) {
    UeIds ue = {0};
    TarnCnDomainId domain = domainCount;
    TarnNasMsg nas;
    TarnImsi imsi;
    TarnIdnns idnns;
    if (!TarnExtractSrntiFromInitDirectTransferMsg(seen->msg, &ue.srnti) ||
        !TarnExtractAcUeIdFromInitDirectTransferMsg(seen->msg, &ue.acUeId) ||
        !TarnExtractCnDomainIdFromInitDirectTransferMsg(seen->msg, &domain) ||
        !TarnExtractNasMsgFromInitDirectTransferMsg(seen->msg, &nas) ||
        !is_ue(&known->ue, ue.srnti, ue.acUeId) || domain != known->domain)
        return false;
    note(notes, "UE %u, %s, NAS message of %u bytes", (unsigned)ue.acUeId, domain_name(domain),
         (unsigned)nas.length);
    if (TarnExtractImsiFromInitDirectTransferMsg(seen->msg, &imsi))
        note(notes, "IMSI %s", imsi_text(&imsi).digits);
    if (TarnExtractIdnnsFromInitDirectTransferMsg(seen->msg, &idnns))
        note(notes, "routing parameter %u", (unsigned)idnns.RoutingParameter);
    return true;
}

const MessageKind initDirectTransfer = {
    .name = "InitDirectTransfer",
    .id = TarnInitDirectTransferMsgId,
    .sender = sideAp,
    .isValid = TarnIsInitDirectTransferMsgValid,
    .compose = compose_init_direct_transfer,
    .learn = learn_init_direct_transfer,
};

/* ---- DlDirectTransfer ------------------------------------------------------------------------ */

static uint32_t compose_dl_direct_transfer(const Knowledge *known, uint8_t *buffer, uint32_t size) {
    const TarnDlDirectTransferRecord record = {
        .Srnti = known->ue.srnti,
        .AcUeId = known->ue.acUeId,
        .CnDomainId = known->domain,
        .NasMsg = setup,
        .SapiId = 0,
    };
    return TarnBuildDlDirectTransferMsg(buffer, size, &record);
}

static bool learn_dl_direct_transfer(Knowledge *known, const Seen *seen, Notes *notes) {
    TarnDlDirectTransferRecord record = {0};
    if (!TarnGetDlDirectTransferMsg(seen->bytes, seen->length, &record) ||
        !is_ue(&known->ue, record.Srnti, record.AcUeId) || record.CnDomainId != known->domain)
        return false;
    note(notes, "UE %u, %s, NAS message of %u bytes, SAPI %u", (unsigned)record.AcUeId,
         domain_name(record.CnDomainId), (unsigned)record.NasMsg.length, (unsigned)record.SapiId);
    return true;
}

const MessageKind dlDirectTransfer = {
    .name = "DlDirectTransfer",
    .id = TarnDlDirectTransferMsgId,
    .sender = sideAc,
    .isValid = TarnIsDlDirectTransferMsgValid,
    .compose = compose_dl_direct_transfer,
    .learn = learn_dl_direct_transfer,
};

/* ---- UlDirectTransfer ------------------------------------------------------------------------ */

static uint32_t compose_ul_direct_transfer(const Knowledge *known, uint8_t *buffer, uint32_t size) {
    const TarnUlDirectTransferRecord record = {
        .Srnti = known->ue.srnti,
        .AcUeId = known->ue.acUeId,
        .CnDomainId = known->domain,
        .NasMsg = connected,
    };
    return TarnBuildUlDirectTransferMsg(buffer, size, &record);
}

static bool learn_ul_direct_transfer(Knowledge *known, const Seen *seen, Notes *notes) {
    TarnUlDirectTransferRecord record = {0};
    if (!TarnGetUlDirectTransferMsg(seen->bytes, seen->length, &record) ||
        !is_ue(&known->ue, record.Srnti, record.AcUeId) || record.CnDomainId != known->domain)
        return false;
    note(notes, "UE %u, %s, NAS message of %u bytes", (unsigned)record.AcUeId,
         domain_name(record.CnDomainId), (unsigned)record.NasMsg.length);
    return true;
}

const MessageKind ulDirectTransfer = {
    .name = "UlDirectTransfer",
    .id = TarnUlDirectTransferMsgId,
    .sender = sideAp,
    .isValid = TarnIsUlDirectTransferMsgValid,
    .compose = compose_ul_direct_transfer,
    .learn = learn_ul_direct_transfer,
};

/* ---- SecurityModeCommand --------------------------------------------------------------------- */

static uint32_t compose_security_mode_command(const Knowledge *known, uint8_t *buffer,
                                              uint32_t size) {
    const TarnSecurityModeCommandRecord record = {
        .presence = TarnSecurityModeCommandHasEncryptInfo,
        .Srnti = known->ue.srnti,
        .AcUeId = known->ue.acUeId,
        .CnDomainId = known->domain,
        .IntProtInfo = {.IntProtAlgo = integrityUia1, .IntProtKey = integrityKey},
        .KeyStatus = 1,
        .EncryptInfo = {.EncryptAlgos = {.count = 2, .items = {cipheringUea1, 0}},
                        .EncryptKey = cipheringKey},
    };
    return TarnBuildSecurityModeCommandMsg(buffer, size, &record);
}

static bool learn_security_mode_command(Knowledge *known, const Seen *seen, Notes *notes) {
    TarnSecurityModeCommandRecord record = {0};
    if (!TarnGetSecurityModeCommandMsg(seen->bytes, seen->length, &record) ||
        !is_ue(&known->ue, record.Srnti, record.AcUeId) || record.CnDomainId != known->domain)
        return false;
    known->intProtAlgo = record.IntProtInfo.IntProtAlgo;
    known->intProtKey = record.IntProtInfo.IntProtKey;
    note(notes, "UE %u, %s, integrity algorithm %u, keys %s", (unsigned)record.AcUeId,
         domain_name(record.CnDomainId), (unsigned)record.IntProtInfo.IntProtAlgo,
         record.KeyStatus == 1 ? "new" : "old");
    if (record.presence & TarnSecurityModeCommandHasEncryptInfo) {
        /* What was unpacked is valid, so the list holds at least one algorithm. */
        known->encryptAlgo = record.EncryptInfo.EncryptAlgos.items[0];
        note(notes, "%u ciphering algorithms, %u preferred",
             (unsigned)record.EncryptInfo.EncryptAlgos.count, (unsigned)known->encryptAlgo);
    }
    return true;
}

const MessageKind securityModeCommand = {
    .name = "SecurityModeCommand",
    .id = TarnSecurityModeCommandMsgId,
    .sender = sideAc,
    .isValid = TarnIsSecurityModeCommandMsgValid,
    .compose = compose_security_mode_command,
    .learn = learn_security_mode_command,
};

/* ---- SecurityModeComplete -------------------------------------------------------------------- */

static uint32_t compose_security_mode_complete(const Knowledge *known, uint8_t *buffer,
                                               uint32_t size) {
    const TarnSecurityModeCompleteRecord record = {
        .presence = TarnSecurityModeCompleteHasEncryptAlgo,
        .Srnti = known->ue.srnti,
        .AcUeId = known->ue.acUeId,
        .CnDomainId = known->domain,
        .IntProtAlgo = known->intProtAlgo,
        .EncryptAlgo = known->encryptAlgo,
    };
    return TarnBuildSecurityModeCompleteMsg(buffer, size, &record);
}

static bool learn_security_mode_complete(Knowledge *known, const Seen *seen, Notes *notes) {
    TarnSecurityModeCompleteRecord record = {0};
    if (!TarnGetSecurityModeCompleteMsg(seen->bytes, seen->length, &record) ||
        !is_ue(&known->ue, record.Srnti, record.AcUeId) || record.CnDomainId != known->domain ||
        record.IntProtAlgo != known->intProtAlgo)
        return false;
    note(notes, "UE %u, %s, integrity algorithm %u", (unsigned)record.AcUeId,
         domain_name(record.CnDomainId), (unsigned)record.IntProtAlgo);
    if (record.presence & TarnSecurityModeCompleteHasEncryptAlgo)
        note(notes, "ciphering algorithm %u", (unsigned)record.EncryptAlgo);
    return true;
}

const MessageKind securityModeComplete = {
    .name = "SecurityModeComplete",
    .id = TarnSecurityModeCompleteMsgId,
    .sender = sideAp,
    .isValid = TarnIsSecurityModeCompleteMsgValid,
    .compose = compose_security_mode_complete,
    .learn = learn_security_mode_complete,
};
