#include "peers/peers.h"

#include <string.h>

#include "protobuf_c/tarn_bench.pb-c.h"
#include "samples.h"

namespace bench {

namespace {

// protobuf-c has no encoder that stops at the buffer's end: the size is asked for first.
template <class Message>
uint32_t write(uint8_t *buffer, uint32_t size, const Message &message) {
    const size_t needed = protobuf_c_message_get_packed_size(&message.base);
    return needed <= size ? uint32_t(protobuf_c_message_pack(&message.base, buffer)) : 0;
}

template <class From>
ProtobufCBinaryData bytes_of(const From &from) {
    return {from.length, const_cast<uint8_t *>(from.bytes)};
}

template <class To>
void take_bytes(To *to, const ProtobufCBinaryData &from) {
    to->length = uint32_t(from.len);
    memcpy(to->bytes, from.data, from.len);
}

// ---- RabAssignmentRequest: record to messages --------------------------------------------------

// The structures that a RabToSetUpInfo refers to.
struct Subflow {
    SduParamValue value;
    BitErrRatio ratio;
    SduFormatInfoParams formats[formatCount];
    SduFormatInfoParams *formatPointers[formatCount];
};

struct Rab {
    RabToSetUpInfo rab;
    RabParams params;
    AllocRetPriority priority;
    UserPlaneInfo plane;
    Subflow subflows[subflowCount];
    SduParamValue *subflowPointers[subflowCount];
};

void fill(Subflow *to, const TarnSduParamValueRecord &from) {
    sdu_param_value__init(&to->value);
    bit_err_ratio__init(&to->ratio);
    to->ratio.mantissa = from.BitErrRatio.Mantissa;
    to->ratio.exponent = from.BitErrRatio.Exponent;
    to->value.deliveryoferrsdu = from.DeliveryOfErrSdu;
    to->value.ratio = &to->ratio;
    to->value.n_formats = from.SduFormatInfoParamList.count;
    to->value.formats = to->formatPointers;
    for (unsigned i = 0; i < from.SduFormatInfoParamList.count; ++i) {
        SduFormatInfoParams *format = &to->formats[i];
        sdu_format_info_params__init(format);
        format->has_sdusize = 1;
        format->sdusize = from.SduFormatInfoParamList.items[i].SduSize;
        format->has_rabsubflowcombbitrate = 1;
        format->rabsubflowcombbitrate = from.SduFormatInfoParamList.items[i].RabSubflowCombBitRate;
        to->formatPointers[i] = format;
    }
}

void fill(AllocRetPriority *to, const TarnAllocRetPriority &from) {
    alloc_ret_priority__init(to);
    to->prioritylevel = from.PriorityLevel;
    to->preemptioncapability = from.PreemptionCapability;
    to->preemptionvulnerability = from.PreemptionVulnerability;
    to->queuingallowed = from.QueuingAllowed;
}

void fill_params(Rab *to, const TarnRabParamsRecord &from) {
    RabParams *params = &to->params;
    rab_params__init(params);
    params->trafficclass = from.TrafficClass;
    params->rabassymetryind = from.RabAssymetryInd;
    params->deliveryorder = from.DeliveryOrder;
    params->maxsdusize = from.MaxSduSize;
    params->n_bitrates = from.BitRates.count;
    params->bitrates = const_cast<uint32_t *>(from.BitRates.items);
    params->n_sduparams = from.SduParams.count;
    params->sduparams = to->subflowPointers;
    for (unsigned i = 0; i < from.SduParams.count; ++i) {
        fill(&to->subflows[i], from.SduParams.items[i]);
        to->subflowPointers[i] = &to->subflows[i].value;
    }
    fill(&to->priority, from.AllocRetPriority);
    params->priority = &to->priority;
    params->n_secondbitrates = from.SecondBitRates.count;
    params->secondbitrates = const_cast<uint32_t *>(from.SecondBitRates.items);
    params->has_sourcestatsdescriptor = 1;
    params->sourcestatsdescriptor = from.SourceStatsDescriptor;
    params->has_transdelay = 1;
    params->transdelay = from.TransDelay;
}

void fill(Rab *to, const TarnRabToSetUpInfoRecord &from) {
    rab_to_set_up_info__init(&to->rab);
    to->rab.rabid = from.RabId;
    to->rab.acuserplaneassociation = from.AcUserPlaneAssociation;
    fill_params(to, from.RabParams);
    to->rab.params = &to->params;
    to->rab.has_nassyncind = 1;
    to->rab.nassyncind = from.NasSyncInd;
    user_plane_info__init(&to->plane);
    to->plane.userplanemode = from.UserPlaneInfo.UserPlaneMode;
    to->plane.userplanemodeversions = from.UserPlaneInfo.UserPlaneModeVersions;
    to->rab.plane = &to->plane;
}

// ---- RabAssignmentRequest: messages to record --------------------------------------------------

void take(TarnSduParamValueRecord *to, const SduParamValue &from) {
    to->presence = 0x80;
    to->DeliveryOfErrSdu = from.deliveryoferrsdu;
    to->BitErrRatio = {uint8_t(from.ratio->mantissa), uint8_t(from.ratio->exponent)};
    to->SduFormatInfoParamList.count = uint16_t(from.n_formats);
    for (unsigned i = 0; i < from.n_formats; ++i)
        to->SduFormatInfoParamList.items[i] = {0x80 | 0x40, uint16_t(from.formats[i]->sdusize),
                                               from.formats[i]->rabsubflowcombbitrate};
}

void take(TarnBitRates *to, const uint32_t *items, size_t count) {
    to->count = uint32_t(count);
    memcpy(to->items, items, count * sizeof *items);
}

void take(TarnRabParamsRecord *to, const RabParams &from) {
    to->presence = 0x40 | 0x10 | 0x08 | 0x04;
    to->TrafficClass = from.trafficclass;
    to->RabAssymetryInd = from.rabassymetryind;
    to->DeliveryOrder = from.deliveryorder;
    to->MaxSduSize = uint16_t(from.maxsdusize);
    take(&to->BitRates, from.bitrates, from.n_bitrates);
    to->SduParams.count = uint16_t(from.n_sduparams);
    for (unsigned i = 0; i < from.n_sduparams; ++i)
        take(&to->SduParams.items[i], *from.sduparams[i]);
    const AllocRetPriority &priority = *from.priority;
    to->AllocRetPriority = {uint8_t(priority.prioritylevel), priority.preemptioncapability,
                            priority.preemptionvulnerability, priority.queuingallowed};
    take(&to->SecondBitRates, from.secondbitrates, from.n_secondbitrates);
    to->SourceStatsDescriptor = from.sourcestatsdescriptor;
    to->TransDelay = uint16_t(from.transdelay);
}

void take(TarnRabToSetUpInfoRecord *to, const RabToSetUpInfo &from) {
    to->presence = 0x80 | 0x40;
    to->RabId = uint8_t(from.rabid);
    to->AcUserPlaneAssociation = from.acuserplaneassociation;
    take(&to->RabParams, *from.params);
    to->NasSyncInd = uint8_t(from.nassyncind);
    to->UserPlaneInfo = {from.plane->userplanemode, uint16_t(from.plane->userplanemodeversions)};
}

} // namespace

// ---- SecurityModeReject ------------------------------------------------------------------------

uint32_t protobuf_c_encode_SecurityModeReject(uint8_t *buffer, uint32_t size,
                                              const TarnSecurityModeRejectRecord *record) {
    SecurityModeReject message;
    security_mode_reject__init(&message);
    message.messageid = 12;
    message.srnti = record->Srnti;
    message.acueid = record->AcUeId;
    message.cndomainid = record->CnDomainId;
    message.secrejcause = record->SecRejCause;
    return write(buffer, size, message);
}

uint32_t protobuf_c_decode_SecurityModeReject(const uint8_t *buffer, uint32_t length,
                                              TarnSecurityModeRejectRecord *record) {
    SecurityModeReject *message = security_mode_reject__unpack(nullptr, length, buffer);
    if (message == nullptr)
        return 0;
    record->MessageId = uint8_t(message->messageid);
    record->Srnti = message->srnti;
    record->AcUeId = message->acueid;
    record->CnDomainId = message->cndomainid;
    record->SecRejCause = message->secrejcause;
    security_mode_reject__free_unpacked(message, nullptr);
    return 1;
}

// ---- AccessControlRequest ----------------------------------------------------------------------

uint32_t protobuf_c_encode_AccessControlRequest(uint8_t *buffer, uint32_t size,
                                                const TarnAccessControlRequestRecord *record) {
    AccessControlRequest message;
    access_control_request__init(&message);
    message.messageid = 38;
    message.srnti = record->Srnti;
    message.acueid = record->AcUeId;
    message.lac = bytes_of(record->LAC);
    message.imsi = bytes_of(record->Imsi);
    return write(buffer, size, message);
}

uint32_t protobuf_c_decode_AccessControlRequest(const uint8_t *buffer, uint32_t length,
                                                TarnAccessControlRequestRecord *record) {
    AccessControlRequest *message = access_control_request__unpack(nullptr, length, buffer);
    if (message == nullptr)
        return 0;
    record->MessageId = uint8_t(message->messageid);
    record->Srnti = message->srnti;
    record->AcUeId = message->acueid;
    take_bytes(&record->LAC, message->lac);
    take_bytes(&record->Imsi, message->imsi);
    access_control_request__free_unpacked(message, nullptr);
    return 1;
}

// ---- UlDirectTransfer --------------------------------------------------------------------------

uint32_t protobuf_c_encode_UlDirectTransfer(uint8_t *buffer, uint32_t size,
                                            const TarnUlDirectTransferRecord *record) {
    UlDirectTransfer message;
    ul_direct_transfer__init(&message);
    message.messageid = 6;
    message.srnti = record->Srnti;
    message.acueid = record->AcUeId;
    message.cndomainid = record->CnDomainId;
    message.nasmsg = bytes_of(record->NasMsg);
    return write(buffer, size, message);
}

uint32_t protobuf_c_decode_UlDirectTransfer(const uint8_t *buffer, uint32_t length,
                                            TarnUlDirectTransferRecord *record) {
    UlDirectTransfer *message = ul_direct_transfer__unpack(nullptr, length, buffer);
    if (message == nullptr)
        return 0;
    record->MessageId = uint8_t(message->messageid);
    record->Srnti = message->srnti;
    record->AcUeId = message->acueid;
    record->CnDomainId = message->cndomainid;
    take_bytes(&record->NasMsg, message->nasmsg);
    ul_direct_transfer__free_unpacked(message, nullptr);
    return 1;
}

// ---- RabAssignmentRequest ----------------------------------------------------------------------

uint32_t protobuf_c_encode_RabAssignmentRequest(uint8_t *buffer, uint32_t size,
                                                const TarnRabAssignmentRequestRecord *record) {
    RabAssignmentRequest message;
    rab_assignment_request__init(&message);
    message.messageid = 13;
    message.srnti = record->Srnti;
    message.acueid = record->AcUeId;
    message.cndomainid = record->CnDomainId;
    Rab rabs[rabCount];
    RabToSetUpInfo *pointers[rabCount];
    message.n_rablist = record->RabList.count;
    message.rablist = pointers;
    for (unsigned i = 0; i < record->RabList.count; ++i) {
        fill(&rabs[i], record->RabList.items[i]);
        pointers[i] = &rabs[i].rab;
    }
    return write(buffer, size, message);
}

uint32_t protobuf_c_decode_RabAssignmentRequest(const uint8_t *buffer, uint32_t length,
                                                TarnRabAssignmentRequestRecord *record) {
    RabAssignmentRequest *message = rab_assignment_request__unpack(nullptr, length, buffer);
    if (message == nullptr)
        return 0;
    record->MessageId = uint8_t(message->messageid);
    record->Srnti = message->srnti;
    record->AcUeId = message->acueid;
    record->CnDomainId = message->cndomainid;
    record->RabList.count = uint16_t(message->n_rablist);
    for (unsigned i = 0; i < message->n_rablist; ++i)
        take(&record->RabList.items[i], *message->rablist[i]);
    rab_assignment_request__free_unpacked(message, nullptr);
    return 1;
}

} // namespace bench
