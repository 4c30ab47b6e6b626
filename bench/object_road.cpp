#include "object_road.h"

#include "samples.h"

namespace bench {

// ---- SecurityModeReject ------------------------------------------------------------------------

uint32_t encode_SecurityModeReject(uint8_t *buffer, uint32_t size,
                                   const TarnSecurityModeRejectRecord *record) {
    TarnMsg *msg = TarnNewSecurityModeRejectMsg();
    TarnAppendSrntiToSecurityModeRejectMsg(msg, &record->Srnti);
    TarnAppendAcUeIdToSecurityModeRejectMsg(msg, &record->AcUeId);
    TarnAppendCnDomainIdToSecurityModeRejectMsg(msg, &record->CnDomainId);
    TarnAppendSecRejCauseToSecurityModeRejectMsg(msg, &record->SecRejCause);
    const uint32_t ok = TarnPackSecurityModeRejectMsg(msg, buffer, size);
    TarnDeleteMsg(msg);
    return ok;
}

uint32_t decode_SecurityModeReject(const uint8_t *buffer, uint32_t length,
                                   TarnSecurityModeRejectRecord *record) {
    TarnMsg *msg;
    if (TarnUnpackNewMsg(buffer, length, &msg) == 0)
        return 0;
    TarnExtractMessageIdFromSecurityModeRejectMsg(msg, &record->MessageId);
    TarnExtractSrntiFromSecurityModeRejectMsg(msg, &record->Srnti);
    TarnExtractAcUeIdFromSecurityModeRejectMsg(msg, &record->AcUeId);
    TarnExtractCnDomainIdFromSecurityModeRejectMsg(msg, &record->CnDomainId);
    TarnExtractSecRejCauseFromSecurityModeRejectMsg(msg, &record->SecRejCause);
    TarnDeleteMsg(msg);
    return 1;
}

// ---- AccessControlRequest ----------------------------------------------------------------------

uint32_t encode_AccessControlRequest(uint8_t *buffer, uint32_t size,
                                     const TarnAccessControlRequestRecord *record) {
    TarnMsg *msg = TarnNewAccessControlRequestMsg();
    TarnAppendSrntiToAccessControlRequestMsg(msg, &record->Srnti);
    TarnAppendAcUeIdToAccessControlRequestMsg(msg, &record->AcUeId);
    TarnAppendLACToAccessControlRequestMsg(msg, &record->LAC);
    TarnAppendImsiToAccessControlRequestMsg(msg, &record->Imsi);
    const uint32_t ok = TarnPackAccessControlRequestMsg(msg, buffer, size);
    TarnDeleteMsg(msg);
    return ok;
}

uint32_t decode_AccessControlRequest(const uint8_t *buffer, uint32_t length,
                                     TarnAccessControlRequestRecord *record) {
    TarnMsg *msg;
    if (TarnUnpackNewMsg(buffer, length, &msg) == 0)
        return 0;
    TarnExtractMessageIdFromAccessControlRequestMsg(msg, &record->MessageId);
    TarnExtractSrntiFromAccessControlRequestMsg(msg, &record->Srnti);
    TarnExtractAcUeIdFromAccessControlRequestMsg(msg, &record->AcUeId);
    TarnExtractLACFromAccessControlRequestMsg(msg, &record->LAC);
    TarnExtractImsiFromAccessControlRequestMsg(msg, &record->Imsi);
    TarnDeleteMsg(msg);
    return 1;
}

// ---- UlDirectTransfer --------------------------------------------------------------------------

uint32_t encode_UlDirectTransfer(uint8_t *buffer, uint32_t size,
                                 const TarnUlDirectTransferRecord *record) {
    TarnMsg *msg = TarnNewUlDirectTransferMsg();
    TarnAppendSrntiToUlDirectTransferMsg(msg, &record->Srnti);
    TarnAppendAcUeIdToUlDirectTransferMsg(msg, &record->AcUeId);
    TarnAppendCnDomainIdToUlDirectTransferMsg(msg, &record->CnDomainId);
    TarnAppendNasMsgToUlDirectTransferMsg(msg, &record->NasMsg);
    const uint32_t ok = TarnPackUlDirectTransferMsg(msg, buffer, size);
    TarnDeleteMsg(msg);
    return ok;
}

uint32_t decode_UlDirectTransfer(const uint8_t *buffer, uint32_t length,
                                 TarnUlDirectTransferRecord *record) {
    TarnMsg *msg;
    if (TarnUnpackNewMsg(buffer, length, &msg) == 0)
        return 0;
    TarnExtractMessageIdFromUlDirectTransferMsg(msg, &record->MessageId);
    TarnExtractSrntiFromUlDirectTransferMsg(msg, &record->Srnti);
    TarnExtractAcUeIdFromUlDirectTransferMsg(msg, &record->AcUeId);
    TarnExtractCnDomainIdFromUlDirectTransferMsg(msg, &record->CnDomainId);
    TarnExtractNasMsgFromUlDirectTransferMsg(msg, &record->NasMsg);
    TarnDeleteMsg(msg);
    return 1;
}

// ---- RabAssignmentRequest, values to objects ---------------------------------------------------

namespace {

void append_subflow(TarnSduParamsIe *subflows, const TarnSduParamValueRecord &record) {
    TarnSduParamValueIe *subflow = TarnNewSduParamValueIe();
    TarnAppendDeliveryOfErrSduToSduParamValueIe(subflow, &record.DeliveryOfErrSdu);
    TarnAppendBitErrRatioToSduParamValueIe(subflow, &record.BitErrRatio);
    TarnSduFormatInfoParamListIe *formats = TarnNewSduFormatInfoParamListIe();
    for (unsigned i = 0; i < record.SduFormatInfoParamList.count; ++i) {
        const TarnSduFormatInfoParamsRecord &from = record.SduFormatInfoParamList.items[i];
        TarnSduFormatInfoParamsIe *format = TarnNewSduFormatInfoParamsIe();
        TarnAppendSduSizeToSduFormatInfoParamsIe(format, &from.SduSize);
        TarnAppendRabSubflowCombBitRateToSduFormatInfoParamsIe(format, &from.RabSubflowCombBitRate);
        TarnAppendSduFormatInfoParamsIeToSduFormatInfoParamListIe(formats, format);
    }
    TarnAppendSduFormatInfoParamListIeToSduParamValueIe(subflow, formats);
    TarnAppendSduParamValueIeToSduParamsIe(subflows, subflow);
}

TarnRabParamsIe *make_params(const TarnRabParamsRecord &record) {
    TarnRabParamsIe *params = TarnNewRabParamsIe();
    TarnAppendTrafficClassToRabParamsIe(params, &record.TrafficClass);
    TarnAppendRabAssymetryIndToRabParamsIe(params, &record.RabAssymetryInd);
    TarnAppendDeliveryOrderToRabParamsIe(params, &record.DeliveryOrder);
    TarnAppendMaxSduSizeToRabParamsIe(params, &record.MaxSduSize);
    TarnAppendBitRatesToRabParamsIe(params, &record.BitRates);
    TarnSduParamsIe *subflows = TarnNewSduParamsIe();
    for (unsigned i = 0; i < record.SduParams.count; ++i)
        append_subflow(subflows, record.SduParams.items[i]);
    TarnAppendSduParamsIeToRabParamsIe(params, subflows);
    TarnAppendAllocRetPriorityToRabParamsIe(params, &record.AllocRetPriority);
    TarnAppendBitRatesToRabParamsIe(params, &record.SecondBitRates);
    TarnAppendSourceStatsDescriptorToRabParamsIe(params, &record.SourceStatsDescriptor);
    TarnAppendTransDelayToRabParamsIe(params, &record.TransDelay);
    return params;
}

TarnRabToSetUpInfoIe *make_rab(const TarnRabToSetUpInfoRecord &record) {
    TarnRabToSetUpInfoIe *rab = TarnNewRabToSetUpInfoIe();
    TarnAppendRabIdToRabToSetUpInfoIe(rab, &record.RabId);
    TarnAppendAcUserPlaneAssociationToRabToSetUpInfoIe(rab, &record.AcUserPlaneAssociation);
    TarnAppendRabParamsIeToRabToSetUpInfoIe(rab, make_params(record.RabParams));
    TarnAppendNasSyncIndToRabToSetUpInfoIe(rab, &record.NasSyncInd);
    TarnAppendUserPlaneInfoToRabToSetUpInfoIe(rab, &record.UserPlaneInfo);
    return rab;
}

// ---- RabAssignmentRequest, objects to values ---------------------------------------------------

void extract_formats(TarnSduFormatInfoParamListIe *formats,
                     TarnSduFormatInfoParamListRecord *record) {
    record->count = formatCount;
    for (unsigned i = 0; i < formatCount; ++i) {
        TarnSduFormatInfoParamsIe *format;
        TarnExtractSduFormatInfoParamsIeFromSduFormatInfoParamListIe(formats, &format);
        TarnSduFormatInfoParamsRecord *to = &record->items[i];
        to->presence = 0x80 | 0x40;
        TarnExtractSduSizeFromSduFormatInfoParamsIe(format, &to->SduSize);
        TarnExtractRabSubflowCombBitRateFromSduFormatInfoParamsIe(format,
                                                                  &to->RabSubflowCombBitRate);
    }
}

void extract_subflow(TarnSduParamsIe *subflows, TarnSduParamValueRecord *record) {
    TarnSduParamValueIe *subflow;
    TarnExtractSduParamValueIeFromSduParamsIe(subflows, &subflow);
    record->presence = 0x80;
    TarnExtractDeliveryOfErrSduFromSduParamValueIe(subflow, &record->DeliveryOfErrSdu);
    TarnExtractBitErrRatioFromSduParamValueIe(subflow, &record->BitErrRatio);
    TarnSduFormatInfoParamListIe *formats;
    TarnExtractSduFormatInfoParamListIeFromSduParamValueIe(subflow, &formats);
    extract_formats(formats, &record->SduFormatInfoParamList);
}

void extract_params(TarnRabParamsIe *params, TarnRabParamsRecord *record) {
    record->presence = 0x40 | 0x10 | 0x08 | 0x04;
    TarnExtractTrafficClassFromRabParamsIe(params, &record->TrafficClass);
    TarnExtractRabAssymetryIndFromRabParamsIe(params, &record->RabAssymetryInd);
    TarnExtractDeliveryOrderFromRabParamsIe(params, &record->DeliveryOrder);
    TarnExtractMaxSduSizeFromRabParamsIe(params, &record->MaxSduSize);
    TarnExtractBitRatesFromRabParamsIe(params, &record->BitRates);
    TarnSduParamsIe *subflows;
    TarnExtractSduParamsIeFromRabParamsIe(params, &subflows);
    record->SduParams.count = subflowCount;
    for (unsigned i = 0; i < subflowCount; ++i)
        extract_subflow(subflows, &record->SduParams.items[i]);
    TarnExtractAllocRetPriorityFromRabParamsIe(params, &record->AllocRetPriority);
    TarnExtractBitRatesFromRabParamsIe(params, &record->SecondBitRates);
    TarnExtractSourceStatsDescriptorFromRabParamsIe(params, &record->SourceStatsDescriptor);
    TarnExtractTransDelayFromRabParamsIe(params, &record->TransDelay);
}

void extract_rab(TarnRabListIe *rabs, TarnRabToSetUpInfoRecord *record) {
    TarnRabToSetUpInfoIe *rab;
    TarnExtractRabToSetUpInfoIeFromRabListIe(rabs, &rab);
    record->presence = 0x80 | 0x40;
    TarnExtractRabIdFromRabToSetUpInfoIe(rab, &record->RabId);
    TarnExtractAcUserPlaneAssociationFromRabToSetUpInfoIe(rab, &record->AcUserPlaneAssociation);
    TarnRabParamsIe *params;
    TarnExtractRabParamsIeFromRabToSetUpInfoIe(rab, &params);
    extract_params(params, &record->RabParams);
    TarnExtractNasSyncIndFromRabToSetUpInfoIe(rab, &record->NasSyncInd);
    TarnExtractUserPlaneInfoFromRabToSetUpInfoIe(rab, &record->UserPlaneInfo);
}

} // namespace

// ---- RabAssignmentRequest ----------------------------------------------------------------------

uint32_t encode_RabAssignmentRequest(uint8_t *buffer, uint32_t size,
                                     const TarnRabAssignmentRequestRecord *record) {
    TarnMsg *msg = TarnNewRabAssignmentRequestMsg();
    TarnAppendSrntiToRabAssignmentRequestMsg(msg, &record->Srnti);
    TarnAppendAcUeIdToRabAssignmentRequestMsg(msg, &record->AcUeId);
    TarnAppendCnDomainIdToRabAssignmentRequestMsg(msg, &record->CnDomainId);
    TarnRabListIe *rabs = TarnNewRabListIe();
    for (unsigned i = 0; i < record->RabList.count; ++i)
        TarnAppendRabToSetUpInfoIeToRabListIe(rabs, make_rab(record->RabList.items[i]));
    TarnAppendRabListIeToRabAssignmentRequestMsg(msg, rabs);
    const uint32_t ok = TarnPackRabAssignmentRequestMsg(msg, buffer, size);
    TarnDeleteMsg(msg);
    return ok;
}

uint32_t decode_RabAssignmentRequest(const uint8_t *buffer, uint32_t length,
                                     TarnRabAssignmentRequestRecord *record) {
    TarnMsg *msg;
    if (TarnUnpackNewMsg(buffer, length, &msg) == 0)
        return 0;
    TarnExtractMessageIdFromRabAssignmentRequestMsg(msg, &record->MessageId);
    TarnExtractSrntiFromRabAssignmentRequestMsg(msg, &record->Srnti);
    TarnExtractAcUeIdFromRabAssignmentRequestMsg(msg, &record->AcUeId);
    TarnExtractCnDomainIdFromRabAssignmentRequestMsg(msg, &record->CnDomainId);
    TarnRabListIe *rabs;
    TarnExtractRabListIeFromRabAssignmentRequestMsg(msg, &rabs);
    record->RabList.count = rabCount;
    for (unsigned i = 0; i < rabCount; ++i)
        extract_rab(rabs, &record->RabList.items[i]);
    TarnDeleteMsg(msg);
    return 1;
}

} // namespace bench
