/* RAB assignment and the user plane that belongs to it. */
#include "rabs.h"

static const TarnApUserPlaneAssociation apAssociations[domainCount] = {0x0A05, 0x0A06};
static const TarnUdpPort apRtpPort = 40002;
static const TarnGtpTeid apTeid = 0x0A0B0C06;

/* ---- RabAssignmentRequest -------------------------------------------------------------------- */

static uint32_t compose_rab_assignment_request(const Knowledge *known, uint8_t *buffer,
                                               uint32_t size) {
    TarnMsg *msg = TarnNewRabAssignmentRequestMsg();
    uint32_t ok = TarnAppendSrntiToRabAssignmentRequestMsg(msg, &known->ue.srnti);
    ok &= TarnAppendAcUeIdToRabAssignmentRequestMsg(msg, &known->ue.acUeId);
    ok &= TarnAppendCnDomainIdToRabAssignmentRequestMsg(msg, &known->domain);
    TarnAppendRabListIeToRabAssignmentRequestMsg(msg, new_rab_list(known->domain, &ok));
    return finish_msg(msg, ok, TarnIsRabAssignmentRequestMsgValid, TarnPackRabAssignmentRequestMsg,
                      buffer, size);
}

static bool learn_rab_assignment_request(Knowledge *known, const Seen *seen, Notes *notes) {
    UeIds ue = {0};
    TarnCnDomainId domain = domainCount;
    TarnRabListIe *list;
    if (!TarnExtractSrntiFromRabAssignmentRequestMsg(seen->msg, &ue.srnti) ||
        !TarnExtractAcUeIdFromRabAssignmentRequestMsg(seen->msg, &ue.acUeId) ||
        !TarnExtractCnDomainIdFromRabAssignmentRequestMsg(seen->msg, &domain) ||
        !TarnExtractRabListIeFromRabAssignmentRequestMsg(seen->msg, &list) ||
        !is_ue(&known->ue, ue.srnti, ue.acUeId) || domain != known->domain)
        return false;
    note(notes, "UE %u, %s", (unsigned)ue.acUeId, domain_name(domain));
    return learn_rab_list(list, &known->bearers[domain], notes);
}

const MessageKind rabAssignmentRequest = {
    .name = "RabAssignmentRequest",
    .id = TarnRabAssignmentRequestMsgId,
    .sender = sideAc,
    .isValid = TarnIsRabAssignmentRequestMsgValid,
    .compose = compose_rab_assignment_request,
    .learn = learn_rab_assignment_request,
};

/* ---- RabAssignmentResponse ------------------------------------------------------------------- */

static uint32_t compose_rab_assignment_response(const Knowledge *known, uint8_t *buffer,
                                                uint32_t size) {
    const TarnRabSetupSuccessInfoRecord rab = {
        .presence = known->domain == csDomain ? TarnRabSetupSuccessInfoHasUdpPort
                                              : TarnRabSetupSuccessInfoHasGtpTeid,
        .RabId = known->bearers[known->domain].rabId,
        .UdpPort = apRtpPort,
        .GtpTeid = apTeid,
    };
    const TarnRabAssignmentResponseRecord record = {
        .presence = TarnRabAssignmentResponseHasRabSetupSuccessList,
        .Srnti = known->ue.srnti,
        .AcUeId = known->ue.acUeId,
        .CnDomainId = known->domain,
        .RabSetupSuccessList = {.count = 1, .items = {rab}},
    };
    return TarnBuildRabAssignmentResponseMsg(buffer, size, &record);
}

static bool learn_rab_assignment_response(Knowledge *known, const Seen *seen, Notes *notes) {
    TarnRabAssignmentResponseRecord record = {0};
    if (!TarnGetRabAssignmentResponseMsg(seen->bytes, seen->length, &record) ||
        !is_ue(&known->ue, record.Srnti, record.AcUeId) || record.CnDomainId != known->domain)
        return false;
    note(notes, "UE %u, %s", (unsigned)record.AcUeId, domain_name(record.CnDomainId));
    for (unsigned i = 0; i < record.RabSetupSuccessList.count; ++i) {
        const TarnRabSetupSuccessInfoRecord *rab = &record.RabSetupSuccessList.items[i];
        if (rab->presence & TarnRabSetupSuccessInfoHasUdpPort)
            note(notes, "RAB %u, UDP port %u", (unsigned)rab->RabId, (unsigned)rab->UdpPort);
        if (rab->presence & TarnRabSetupSuccessInfoHasGtpTeid)
            note(notes, "RAB %u, GTP TEID 0x%08X", (unsigned)rab->RabId, (unsigned)rab->GtpTeid);
    }
    return true;
}

const MessageKind rabAssignmentResponse = {
    .name = "RabAssignmentResponse",
    .id = TarnRabAssignmentResponseMsgId,
    .sender = sideAp,
    .isValid = TarnIsRabAssignmentResponseMsgValid,
    .compose = compose_rab_assignment_response,
    .learn = learn_rab_assignment_response,
};

/* ---- UserPlaneConfigRequest ------------------------------------------------------------------ */

static uint32_t compose_user_plane_config_request(const Knowledge *known, uint8_t *buffer,
                                                  uint32_t size) {
    const TarnUserPlaneConfigRequestRecord record = {
        .presence = known->domain == csDomain
                        ? TarnUserPlaneConfigRequestHasAlcapLinkCharacteristics
                        : TarnUserPlaneConfigRequestHasMaxBitRateUplink |
                              TarnUserPlaneConfigRequestHasMaxBitRateDownlink,
        .Srnti = known->ue.srnti,
        .AcUeId = known->ue.acUeId,
        .RtpStreamId = (TarnRtpStreamId)(known->domain + 1),
        .AcUserPlaneAssociation = known->bearers[known->domain].acAssociation,
        .ApUserPlaneAssociation = apAssociations[known->domain],
        .AlcapLinkCharacteristics = {.CpsSduMaxBitRate = 16000,
                                     .CpsSduMaxSize = 45,
                                     .CpsSduAvgBitRate = 8000,
                                     .CpsSduAvgSize = 40},
        .MaxBitRateUplink = 64000,
        .MaxBitRateDownlink = 384000,
    };
    return TarnBuildUserPlaneConfigRequestMsg(buffer, size, &record);
}

static bool learn_user_plane_config_request(Knowledge *known, const Seen *seen, Notes *notes) {
    TarnUserPlaneConfigRequestRecord record = {0};
    if (!TarnGetUserPlaneConfigRequestMsg(seen->bytes, seen->length, &record) ||
        !is_ue(&known->ue, record.Srnti, record.AcUeId) ||
        record.AcUserPlaneAssociation != known->bearers[known->domain].acAssociation)
        return false;
    known->bearers[known->domain].apAssociation = record.ApUserPlaneAssociation;
    note(notes, "UE %u, stream %u, association 0x%08X with 0x%04X", (unsigned)record.AcUeId,
         (unsigned)record.RtpStreamId, (unsigned)record.AcUserPlaneAssociation,
         (unsigned)record.ApUserPlaneAssociation);
    if (record.presence & TarnUserPlaneConfigRequestHasAlcapLinkCharacteristics)
        note(notes, "link of at most %u bit/s, packets of %u bytes",
             (unsigned)record.AlcapLinkCharacteristics.CpsSduMaxBitRate,
             (unsigned)record.AlcapLinkCharacteristics.CpsSduMaxSize);
    if (record.presence & TarnUserPlaneConfigRequestHasMaxBitRateDownlink)
        note(notes, "at most %u bit/s down", (unsigned)record.MaxBitRateDownlink);
    return true;
}

const MessageKind userPlaneConfigRequest = {
    .name = "UserPlaneConfigRequest",
    .id = TarnUserPlaneConfigRequestMsgId,
    .sender = sideAp,
    .isValid = TarnIsUserPlaneConfigRequestMsgValid,
    .compose = compose_user_plane_config_request,
    .learn = learn_user_plane_config_request,
};

/* ---- UserPlaneConfigResponse ----------------------------------------------------------------- */

static uint32_t compose_user_plane_config_response(const Knowledge *known, uint8_t *buffer,
                                                   uint32_t size) {
    const TarnUserPlaneConfigResponseRecord record = {
        .presence = known->domain == csDomain ? TarnUserPlaneConfigResponseHasRtpServerInfo |
                                                    TarnUserPlaneConfigResponseHasRtpSecurityInfo
                                              : TarnUserPlaneConfigResponseHasPsIuhGatewayInfo,
        .Srnti = known->ue.srnti,
        .AcUeId = known->ue.acUeId,
        .ApUserPlaneAssociation = known->bearers[known->domain].apAssociation,
        .UserPlaneResult = 0,
        .RtpServerInfo = {.presence =
                              TarnRtpServerInfoHasTos | TarnRtpServerInfoHasJitterBufferSize,
                          .IpAddress = {.count = 4, .items = {10, 0, 0, 1}},
                          .UdpPort = 16384,
                          .Tos = 0xB8,
                          .JitterBufferSize = 40},
        .RtpSecurityInfo = {.MasterKey = {.length = 16, .bytes = "rtp master key 1"},
                            .MasterSalt = {.length = 14, .bytes = "rtp mastersalt"}},
        .PsIuhGatewayInfo = {.presence = TarnPsIuhGatewayInfoHasUdpPort |
                                         TarnPsIuhGatewayInfoHasGtpEchoPeriod,
                             .IpAddress = {.count = 4, .items = {10, 0, 0, 2}},
                             .GtpTeid = 0x00C0FFEE,
                             .UdpPort = 2152,
                             .GtpEchoPeriod = 60},
    };
    return TarnBuildUserPlaneConfigResponseMsg(buffer, size, &record);
}

static bool note_rtp_server(TarnRtpServerInfoIe *server, Notes *notes) {
    TarnIpAddress address;
    TarnUdpPort port;
    if (!TarnExtractIpAddressFromRtpServerInfoIe(server, &address) ||
        !TarnExtractUdpPortFromRtpServerInfoIe(server, &port))
        return false;
    note(notes, "RTP server %u.%u.%u.%u:%u", address.items[0], address.items[1], address.items[2],
         address.items[3], port);
    return true;
}

static bool note_gateway(TarnPsIuhGatewayInfoIe *gateway, Notes *notes) {
    TarnIpAddress address;
    TarnGtpTeid teid;
    if (!TarnExtractIpAddressFromPsIuhGatewayInfoIe(gateway, &address) ||
        !TarnExtractGtpTeidFromPsIuhGatewayInfoIe(gateway, &teid))
        return false;
    note(notes, "gateway %u.%u.%u.%u, GTP TEID 0x%08X", address.items[0], address.items[1],
         address.items[2], address.items[3], (unsigned)teid);
    return true;
}

static bool learn_user_plane_config_response(Knowledge *known, const Seen *seen, Notes *notes) {
    UeIds ue = {0};
    TarnApUserPlaneAssociation association;
    TarnRtpServerInfoIe *server;
    TarnPsIuhGatewayInfoIe *gateway;
    if (!TarnExtractSrntiFromUserPlaneConfigResponseMsg(seen->msg, &ue.srnti) ||
        !TarnExtractAcUeIdFromUserPlaneConfigResponseMsg(seen->msg, &ue.acUeId) ||
        !TarnExtractApUserPlaneAssociationFromUserPlaneConfigResponseMsg(seen->msg, &association) ||
        !is_ue(&known->ue, ue.srnti, ue.acUeId) ||
        association != known->bearers[known->domain].apAssociation)
        return false;
    note(notes, "UE %u, association 0x%04X %s", (unsigned)ue.acUeId, association,
         TarnIsUserPlaneConfigResultSuccessfulForMsg(seen->msg) ? "configured" : "refused");
    if (TarnExtractRtpServerInfoIeFromUserPlaneConfigResponseMsg(seen->msg, &server))
        return note_rtp_server(server, notes);
    if (TarnExtractPsIuhGatewayInfoIeFromUserPlaneConfigResponseMsg(seen->msg, &gateway))
        return note_gateway(gateway, notes);
    return true;
}

const MessageKind userPlaneConfigResponse = {
    .name = "UserPlaneConfigResponse",
    .id = TarnUserPlaneConfigResponseMsgId,
    .sender = sideAc,
    .isValid = TarnIsUserPlaneConfigResponseMsgValid,
    .compose = compose_user_plane_config_response,
    .learn = learn_user_plane_config_response,
};
