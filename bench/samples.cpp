#include "samples.h"

#include <stddef.h>
#include <stdint.h>

namespace bench {

namespace {

template <size_t capacity>
void fill_bytes(uint8_t (&bytes)[capacity], uint32_t length) {
    for (uint32_t i = 0; i < length; ++i)
        bytes[i] = uint8_t(17 * i + 3);
}

void fill(TarnSduParamValueRecord *record, unsigned number) {
    record->presence = 0x80;
    record->DeliveryOfErrSdu = 1;
    record->BitErrRatio = {uint8_t(1 + number), 5};
    record->SduFormatInfoParamList.count = formatCount;
    for (unsigned i = 0; i < formatCount; ++i)
        record->SduFormatInfoParamList.items[i] = {0x80 | 0x40, uint16_t(81 + 10 * number + i),
                                                   12200 + 100 * i};
}

void fill(TarnRabParamsRecord *record) {
    record->presence = 0x40 | 0x10 | 0x08 | 0x04;
    record->TrafficClass = 0;
    record->RabAssymetryInd = 1;
    record->DeliveryOrder = 1;
    record->MaxSduSize = 244;
    record->BitRates = {2, {12200, 12200}};
    record->SduParams.count = subflowCount;
    for (unsigned i = 0; i < subflowCount; ++i)
        fill(&record->SduParams.items[i], i);
    record->AllocRetPriority = {2, 1, 0, 1};
    record->SecondBitRates = {2, {4750, 4750}};
    record->SourceStatsDescriptor = 1;
    record->TransDelay = 80;
}

} // namespace

void fill(TarnSecurityModeRejectRecord *record) {
    *record = {12, 0, 0x00012345, 0x00006789, 1, 3};
}

void fill(TarnAccessControlRequestRecord *record) {
    record->MessageId = 38;
    record->Srnti = 0x00012345;
    record->AcUeId = 0x00006789;
    record->LAC = {2, {0x12, 0x34}};
    record->Imsi.length = 16;
    fill_bytes(record->Imsi.bytes, 16);
}

void fill(TarnUlDirectTransferRecord *record) {
    record->MessageId = 6;
    record->Srnti = 0x00012345;
    record->AcUeId = 0x00006789;
    record->CnDomainId = 1;
    record->NasMsg.length = 120;
    fill_bytes(record->NasMsg.bytes, 120);
}

void fill(TarnRabToSetUpInfoRecord *record, unsigned number) {
    record->presence = 0x80 | 0x40;
    record->RabId = uint8_t(5 + number);
    record->AcUserPlaneAssociation = 0xA0000000 + number;
    fill(&record->RabParams);
    record->NasSyncInd = 1;
    record->UserPlaneInfo = {1, 2};
}

void fill(TarnRabAssignmentRequestRecord *record) {
    record->MessageId = 13;
    record->Srnti = 0x00012345;
    record->AcUeId = 0x00006789;
    record->CnDomainId = 0;
    record->RabList.count = rabCount;
    for (unsigned i = 0; i < rabCount; ++i)
        fill(&record->RabList.items[i], i);
}

} // namespace bench
