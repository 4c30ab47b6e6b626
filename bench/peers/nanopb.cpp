#include "peers/peers.h"

#include <pb_decode.h>
#include <pb_encode.h>
#include <string.h>

#include "nanopb/tarn_bench.pb.h"

namespace bench {

namespace {

template <class Message>
uint32_t write(uint8_t *buffer, uint32_t size, const pb_msgdesc_t *fields, const Message &message) {
    pb_ostream_t stream = pb_ostream_from_buffer(buffer, size);
    return pb_encode(&stream, fields, &message) ? uint32_t(stream.bytes_written) : 0;
}

template <class Message>
bool read(const uint8_t *buffer, uint32_t length, const pb_msgdesc_t *fields, Message *message) {
    pb_istream_t stream = pb_istream_from_buffer(buffer, length);
    return pb_decode(&stream, fields, message);
}

// The messages are kept between calls, as nanopb's are in practice: the larger ones are too much
// for many a stack, and clearing them would cost more than filling them.
template <class Message>
Message kept;

template <class To, class From>
void copy_bytes(To *to, const From &from) {
    to->size = pb_size_t(from.length);
    memcpy(to->bytes, from.bytes, from.length);
}

template <class To, class From>
void copy_string(To *to, const From &from) {
    to->length = from.size;
    memcpy(to->bytes, from.bytes, from.size);
}

// ---- RabAssignmentRequest: record to message ---------------------------------------------------

void fill(SduParamValue *to, const TarnSduParamValueRecord &from) {
    to->DeliveryOfErrSdu = from.DeliveryOfErrSdu;
    to->Ratio = {from.BitErrRatio.Mantissa, from.BitErrRatio.Exponent};
    to->Formats_count = from.SduFormatInfoParamList.count;
    for (unsigned i = 0; i < from.SduFormatInfoParamList.count; ++i) {
        const TarnSduFormatInfoParamsRecord &format = from.SduFormatInfoParamList.items[i];
        to->Formats[i] = {true, format.SduSize, true, format.RabSubflowCombBitRate};
    }
}

void fill(RabParams *to, const TarnRabParamsRecord &from) {
    to->TrafficClass = from.TrafficClass;
    to->RabAssymetryInd = from.RabAssymetryInd;
    to->DeliveryOrder = from.DeliveryOrder;
    to->MaxSduSize = from.MaxSduSize;
    to->BitRates_count = pb_size_t(from.BitRates.count);
    memcpy(to->BitRates, from.BitRates.items, sizeof to->BitRates);
    to->SduParams_count = from.SduParams.count;
    for (unsigned i = 0; i < from.SduParams.count; ++i)
        fill(&to->SduParams[i], from.SduParams.items[i]);
    const TarnAllocRetPriority &priority = from.AllocRetPriority;
    to->has_Priority = true;
    to->Priority = {priority.PriorityLevel, priority.PreemptionCapability,
                    priority.PreemptionVulnerability, priority.QueuingAllowed};
    to->SecondBitRates_count = pb_size_t(from.SecondBitRates.count);
    memcpy(to->SecondBitRates, from.SecondBitRates.items, sizeof to->SecondBitRates);
    to->has_SourceStatsDescriptor = true;
    to->SourceStatsDescriptor = from.SourceStatsDescriptor;
    to->has_TransDelay = true;
    to->TransDelay = from.TransDelay;
}

void fill(RabToSetUpInfo *to, const TarnRabToSetUpInfoRecord &from) {
    to->RabId = from.RabId;
    to->AcUserPlaneAssociation = from.AcUserPlaneAssociation;
    fill(&to->Params, from.RabParams);
    to->has_NasSyncInd = true;
    to->NasSyncInd = from.NasSyncInd;
    to->has_Plane = true;
    to->Plane = {from.UserPlaneInfo.UserPlaneMode, from.UserPlaneInfo.UserPlaneModeVersions};
}

// ---- RabAssignmentRequest: message to record ---------------------------------------------------

void take(TarnSduParamValueRecord *to, const SduParamValue &from) {
    to->presence = 0x80;
    to->DeliveryOfErrSdu = from.DeliveryOfErrSdu;
    to->BitErrRatio = {uint8_t(from.Ratio.Mantissa), uint8_t(from.Ratio.Exponent)};
    to->SduFormatInfoParamList.count = from.Formats_count;
    for (unsigned i = 0; i < from.Formats_count; ++i)
        to->SduFormatInfoParamList.items[i] = {0x80 | 0x40, uint16_t(from.Formats[i].SduSize),
                                               from.Formats[i].RabSubflowCombBitRate};
}

void take(TarnRabParamsRecord *to, const RabParams &from) {
    to->presence = 0x40 | 0x10 | 0x08 | 0x04;
    to->TrafficClass = from.TrafficClass;
    to->RabAssymetryInd = from.RabAssymetryInd;
    to->DeliveryOrder = from.DeliveryOrder;
    to->MaxSduSize = uint16_t(from.MaxSduSize);
    to->BitRates.count = from.BitRates_count;
    memcpy(to->BitRates.items, from.BitRates, sizeof from.BitRates);
    to->SduParams.count = from.SduParams_count;
    for (unsigned i = 0; i < from.SduParams_count; ++i)
        take(&to->SduParams.items[i], from.SduParams[i]);
    const AllocRetPriority &priority = from.Priority;
    to->AllocRetPriority = {uint8_t(priority.PriorityLevel), priority.PreemptionCapability,
                            priority.PreemptionVulnerability, priority.QueuingAllowed};
    to->SecondBitRates.count = from.SecondBitRates_count;
    memcpy(to->SecondBitRates.items, from.SecondBitRates, sizeof from.SecondBitRates);
    to->SourceStatsDescriptor = from.SourceStatsDescriptor;
    to->TransDelay = uint16_t(from.TransDelay);
}

void take(TarnRabToSetUpInfoRecord *to, const RabToSetUpInfo &from) {
    to->presence = 0x80 | 0x40;
    to->RabId = uint8_t(from.RabId);
    to->AcUserPlaneAssociation = from.AcUserPlaneAssociation;
    take(&to->RabParams, from.Params);
    to->NasSyncInd = uint8_t(from.NasSyncInd);
    to->UserPlaneInfo = {from.Plane.UserPlaneMode, uint16_t(from.Plane.UserPlaneModeVersions)};
}

} // namespace

// ---- SecurityModeReject ------------------------------------------------------------------------

uint32_t nanopb_encode_SecurityModeReject(uint8_t *buffer, uint32_t size,
                                          const TarnSecurityModeRejectRecord *record) {
    const SecurityModeReject message = {12, record->Srnti, record->AcUeId, record->CnDomainId,
                                        record->SecRejCause};
    return write(buffer, size, SecurityModeReject_fields, message);
}

uint32_t nanopb_decode_SecurityModeReject(const uint8_t *buffer, uint32_t length,
                                          TarnSecurityModeRejectRecord *record) {
    SecurityModeReject message;
    if (!read(buffer, length, SecurityModeReject_fields, &message))
        return 0;
    record->MessageId = uint8_t(message.MessageId);
    record->Srnti = message.Srnti;
    record->AcUeId = message.AcUeId;
    record->CnDomainId = message.CnDomainId;
    record->SecRejCause = message.SecRejCause;
    return 1;
}

// ---- AccessControlRequest ----------------------------------------------------------------------

uint32_t nanopb_encode_AccessControlRequest(uint8_t *buffer, uint32_t size,
                                            const TarnAccessControlRequestRecord *record) {
    AccessControlRequest message;
    message.MessageId = 38;
    message.Srnti = record->Srnti;
    message.AcUeId = record->AcUeId;
    copy_bytes(&message.LAC, record->LAC);
    copy_bytes(&message.Imsi, record->Imsi);
    return write(buffer, size, AccessControlRequest_fields, message);
}

uint32_t nanopb_decode_AccessControlRequest(const uint8_t *buffer, uint32_t length,
                                            TarnAccessControlRequestRecord *record) {
    AccessControlRequest message;
    if (!read(buffer, length, AccessControlRequest_fields, &message))
        return 0;
    record->MessageId = uint8_t(message.MessageId);
    record->Srnti = message.Srnti;
    record->AcUeId = message.AcUeId;
    copy_string(&record->LAC, message.LAC);
    copy_string(&record->Imsi, message.Imsi);
    return 1;
}

// ---- UlDirectTransfer --------------------------------------------------------------------------

uint32_t nanopb_encode_UlDirectTransfer(uint8_t *buffer, uint32_t size,
                                        const TarnUlDirectTransferRecord *record) {
    UlDirectTransfer &message = kept<UlDirectTransfer>;
    message.MessageId = 6;
    message.Srnti = record->Srnti;
    message.AcUeId = record->AcUeId;
    message.CnDomainId = record->CnDomainId;
    copy_bytes(&message.NasMsg, record->NasMsg);
    return write(buffer, size, UlDirectTransfer_fields, message);
}

uint32_t nanopb_decode_UlDirectTransfer(const uint8_t *buffer, uint32_t length,
                                        TarnUlDirectTransferRecord *record) {
    UlDirectTransfer &message = kept<UlDirectTransfer>;
    if (!read(buffer, length, UlDirectTransfer_fields, &message))
        return 0;
    record->MessageId = uint8_t(message.MessageId);
    record->Srnti = message.Srnti;
    record->AcUeId = message.AcUeId;
    record->CnDomainId = message.CnDomainId;
    copy_string(&record->NasMsg, message.NasMsg);
    return 1;
}

// ---- RabAssignmentRequest ----------------------------------------------------------------------

uint32_t nanopb_encode_RabAssignmentRequest(uint8_t *buffer, uint32_t size,
                                            const TarnRabAssignmentRequestRecord *record) {
    RabAssignmentRequest &message = kept<RabAssignmentRequest>;
    message.MessageId = 13;
    message.Srnti = record->Srnti;
    message.AcUeId = record->AcUeId;
    message.CnDomainId = record->CnDomainId;
    message.RabList_count = record->RabList.count;
    for (unsigned i = 0; i < record->RabList.count; ++i)
        fill(&message.RabList[i], record->RabList.items[i]);
    return write(buffer, size, RabAssignmentRequest_fields, message);
}

uint32_t nanopb_decode_RabAssignmentRequest(const uint8_t *buffer, uint32_t length,
                                            TarnRabAssignmentRequestRecord *record) {
    RabAssignmentRequest &message = kept<RabAssignmentRequest>;
    if (!read(buffer, length, RabAssignmentRequest_fields, &message))
        return 0;
    record->MessageId = uint8_t(message.MessageId);
    record->Srnti = message.Srnti;
    record->AcUeId = message.AcUeId;
    record->CnDomainId = message.CnDomainId;
    record->RabList.count = message.RabList_count;
    for (unsigned i = 0; i < message.RabList_count; ++i)
        take(&record->RabList.items[i], message.RabList[i]);
    return 1;
}

} // namespace bench
