// The floor of the three messages that hold primitive IEs alone.
#include "floor/floor.h"
#include "floor/platform.h"

using namespace tarn_floor;

namespace {

constexpr unsigned ieCount = 5; // of each of the three

} // namespace

// ---- SecurityModeReject ------------------------------------------------------------------------

uint32_t FloorEncodeSecurityModeReject(uint8_t *buffer, uint32_t,
                                       const TarnSecurityModeRejectRecord *record) {
    TarnMsg *msg = create_msg(12);
    VelDllHead *ies = &msg->ies;
    append<TarnMessageIdIe>(ies, 72, TarnMessageId(12));
    append<TarnSrntiIe>(ies, 1, record->Srnti);
    append<TarnAcUeIdIe>(ies, 3, record->AcUeId);
    append<TarnCnDomainIdIe>(ies, 6, record->CnDomainId);
    append<TarnSecRejCauseIe>(ies, 18, record->SecRejCause);

    Walk walk(ies);
    Writer out(buffer);
    out.ie8(72, walk.take<TarnMessageIdIe>()->value);
    out.ie32(1, walk.take<TarnSrntiIe>()->value);
    out.ie32(3, walk.take<TarnAcUeIdIe>()->value);
    out.ie16(6, walk.take<TarnCnDomainIdIe>()->value);
    out.ie16(18, walk.take<TarnSecRejCauseIe>()->value);
    delete_msg_of_primitives(msg, ieCount);
    return 1;
}

uint32_t FloorDecodeSecurityModeReject(const uint8_t *buffer, uint32_t,
                                       TarnSecurityModeRejectRecord *record) {
    TarnMsg *msg = create_msg(12);
    VelDllHead *ies = &msg->ies;
    Reader in(buffer);
    add<TarnMessageIdIe>(ies, 72)->value = in.ie8();
    add<TarnSrntiIe>(ies, 1)->value = in.ie32();
    add<TarnAcUeIdIe>(ies, 3)->value = in.ie32();
    add<TarnCnDomainIdIe>(ies, 6)->value = in.ie16();
    add<TarnSecRejCauseIe>(ies, 18)->value = in.ie16();

    extract_value<TarnMessageIdIe>(ies, 0, &record->MessageId);
    extract_value<TarnSrntiIe>(ies, 1, &record->Srnti);
    extract_value<TarnAcUeIdIe>(ies, 2, &record->AcUeId);
    extract_value<TarnCnDomainIdIe>(ies, 3, &record->CnDomainId);
    extract_value<TarnSecRejCauseIe>(ies, 4, &record->SecRejCause);
    delete_msg_of_primitives(msg, ieCount);
    return 1;
}

// ---- AccessControlRequest ----------------------------------------------------------------------

uint32_t FloorEncodeAccessControlRequest(uint8_t *buffer, uint32_t,
                                         const TarnAccessControlRequestRecord *record) {
    TarnMsg *msg = create_msg(38);
    VelDllHead *ies = &msg->ies;
    append<TarnMessageIdIe>(ies, 72, TarnMessageId(38));
    append<TarnSrntiIe>(ies, 1, record->Srnti);
    append<TarnAcUeIdIe>(ies, 3, record->AcUeId);
    append<TarnLACIe>(ies, 109, record->LAC);
    append<TarnImsiIe>(ies, 169, record->Imsi);

    Walk walk(ies);
    Writer out(buffer);
    out.ie8(72, walk.take<TarnMessageIdIe>()->value);
    out.ie32(1, walk.take<TarnSrntiIe>()->value);
    out.ie32(3, walk.take<TarnAcUeIdIe>()->value);
    out.header(109, 2);
    out.bytes(walk.take<TarnLACIe>()->value.bytes, 2);
    out.header(169, 16);
    out.bytes(walk.take<TarnImsiIe>()->value.bytes, 16);
    delete_msg_of_primitives(msg, ieCount);
    return 1;
}

uint32_t FloorDecodeAccessControlRequest(const uint8_t *buffer, uint32_t,
                                         TarnAccessControlRequestRecord *record) {
    TarnMsg *msg = create_msg(38);
    VelDllHead *ies = &msg->ies;
    Reader in(buffer);
    add<TarnMessageIdIe>(ies, 72)->value = in.ie8();
    add<TarnSrntiIe>(ies, 1)->value = in.ie32();
    add<TarnAcUeIdIe>(ies, 3)->value = in.ie32();
    auto *lac = add<TarnLACIe>(ies, 109);
    lac->value.length = in.length();
    in.bytes(lac->value.bytes, 2);
    auto *imsi = add<TarnImsiIe>(ies, 169);
    imsi->value.length = in.length();
    in.bytes(imsi->value.bytes, 16);

    extract_value<TarnMessageIdIe>(ies, 0, &record->MessageId);
    extract_value<TarnSrntiIe>(ies, 1, &record->Srnti);
    extract_value<TarnAcUeIdIe>(ies, 2, &record->AcUeId);
    extract_value<TarnLACIe>(ies, 3, &record->LAC);
    extract_value<TarnImsiIe>(ies, 4, &record->Imsi);
    delete_msg_of_primitives(msg, ieCount);
    return 1;
}

// ---- UlDirectTransfer --------------------------------------------------------------------------

uint32_t FloorEncodeUlDirectTransfer(uint8_t *buffer, uint32_t,
                                     const TarnUlDirectTransferRecord *record) {
    TarnMsg *msg = create_msg(6);
    VelDllHead *ies = &msg->ies;
    append<TarnMessageIdIe>(ies, 72, TarnMessageId(6));
    append<TarnSrntiIe>(ies, 1, record->Srnti);
    append<TarnAcUeIdIe>(ies, 3, record->AcUeId);
    append<TarnCnDomainIdIe>(ies, 6, record->CnDomainId);
    append<TarnNasMsgIe>(ies, 7, record->NasMsg);

    Walk walk(ies);
    Writer out(buffer);
    out.ie8(72, walk.take<TarnMessageIdIe>()->value);
    out.ie32(1, walk.take<TarnSrntiIe>()->value);
    out.ie32(3, walk.take<TarnAcUeIdIe>()->value);
    out.ie16(6, walk.take<TarnCnDomainIdIe>()->value);
    const TarnNasMsg &nas = walk.take<TarnNasMsgIe>()->value;
    out.header(7, nas.length);
    out.bytes(nas.bytes, nas.length);
    delete_msg_of_primitives(msg, ieCount);
    return 1;
}

uint32_t FloorDecodeUlDirectTransfer(const uint8_t *buffer, uint32_t,
                                     TarnUlDirectTransferRecord *record) {
    TarnMsg *msg = create_msg(6);
    VelDllHead *ies = &msg->ies;
    Reader in(buffer);
    add<TarnMessageIdIe>(ies, 72)->value = in.ie8();
    add<TarnSrntiIe>(ies, 1)->value = in.ie32();
    add<TarnAcUeIdIe>(ies, 3)->value = in.ie32();
    add<TarnCnDomainIdIe>(ies, 6)->value = in.ie16();
    TarnNasMsg &nas = add<TarnNasMsgIe>(ies, 7)->value;
    nas.length = in.length();
    in.bytes(nas.bytes, nas.length);

    extract_value<TarnMessageIdIe>(ies, 0, &record->MessageId);
    extract_value<TarnSrntiIe>(ies, 1, &record->Srnti);
    extract_value<TarnAcUeIdIe>(ies, 2, &record->AcUeId);
    extract_value<TarnCnDomainIdIe>(ies, 3, &record->CnDomainId);
    extract_value<TarnNasMsgIe>(ies, 4, &record->NasMsg);
    delete_msg_of_primitives(msg, ieCount);
    return 1;
}
