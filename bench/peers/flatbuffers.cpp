#include "peers/peers.h"

#include <string.h>

#include "flatbuffers/tarn_bench_generated.h"

namespace bench {

namespace {

namespace flat = tarn_flatbuffers;
using flatbuffers::Offset;
using flatbuffers::Vector;

// The builder keeps its memory between messages. A message grows from the end of that memory, and
// is copied to where the caller wants it.
class Builder {
public:
    Builder() { used_.Clear(); }
    flatbuffers::FlatBufferBuilder *operator->() const { return &used_; }
    operator flatbuffers::FlatBufferBuilder &() const { return used_; }

    template <class Table>
    uint32_t finish(Offset<Table> root, uint8_t *buffer, uint32_t size) const {
        used_.Finish(root);
        if (used_.GetSize() > size)
            return 0;
        memcpy(buffer, used_.GetBufferPointer(), used_.GetSize());
        return used_.GetSize();
    }

private:
    static flatbuffers::FlatBufferBuilder used_;
};
flatbuffers::FlatBufferBuilder Builder::used_{8192};

// What a peer sent has to be verified before it can be read.
template <class Table>
const Table *verified(const uint8_t *buffer, uint32_t length) {
    flatbuffers::Verifier verifier(buffer, length);
    return verifier.VerifyBuffer<Table>(nullptr) ? flatbuffers::GetRoot<Table>(buffer) : nullptr;
}

template <class From>
Offset<Vector<uint8_t>> bytes_of(const Builder &builder, const From &from) {
    return builder->CreateVector(from.bytes, from.length);
}

template <class To>
bool take_bytes(To *to, const Vector<uint8_t> &from) {
    if (from.size() > sizeof to->bytes)
        return false;
    to->length = from.size();
    memcpy(to->bytes, from.data(), from.size());
    return true;
}

// ---- RabAssignmentRequest: record to tables ----------------------------------------------------

Offset<flat::SduParamValue> make(const Builder &builder, const TarnSduParamValueRecord &from) {
    Offset<flat::SduFormatInfoParams> formats[64];
    const unsigned count = from.SduFormatInfoParamList.count;
    for (unsigned i = 0; i < count; ++i) {
        const TarnSduFormatInfoParamsRecord &format = from.SduFormatInfoParamList.items[i];
        formats[i] =
            flat::CreateSduFormatInfoParams(builder, format.SduSize, format.RabSubflowCombBitRate);
    }
    const flat::BitErrRatio ratio(from.BitErrRatio.Mantissa, from.BitErrRatio.Exponent);
    return flat::CreateSduParamValue(builder, uint16_t(from.DeliveryOfErrSdu), &ratio,
                                     builder->CreateVector(formats, count));
}

Offset<flat::RabParams> make(const Builder &builder, const TarnRabParamsRecord &from) {
    Offset<flat::SduParamValue> subflows[7];
    for (unsigned i = 0; i < from.SduParams.count; ++i)
        subflows[i] = make(builder, from.SduParams.items[i]);
    const auto sduParams = builder->CreateVector(subflows, from.SduParams.count);
    const auto bitRates = builder->CreateVector(from.BitRates.items, from.BitRates.count);
    const auto second = builder->CreateVector(from.SecondBitRates.items, from.SecondBitRates.count);
    const TarnAllocRetPriority &priority = from.AllocRetPriority;
    const flat::AllocRetPriority levels(
        priority.PriorityLevel, uint16_t(priority.PreemptionCapability),
        uint16_t(priority.PreemptionVulnerability), uint16_t(priority.QueuingAllowed));
    return flat::CreateRabParams(builder, uint16_t(from.TrafficClass),
                                 uint16_t(from.RabAssymetryInd), uint16_t(from.DeliveryOrder),
                                 from.MaxSduSize, bitRates, sduParams, &levels, second,
                                 uint16_t(from.SourceStatsDescriptor), from.TransDelay);
}

Offset<flat::RabToSetUpInfo> make(const Builder &builder, const TarnRabToSetUpInfoRecord &from) {
    const auto params = make(builder, from.RabParams);
    const flat::UserPlaneInfo plane(uint16_t(from.UserPlaneInfo.UserPlaneMode),
                                    from.UserPlaneInfo.UserPlaneModeVersions);
    return flat::CreateRabToSetUpInfo(builder, from.RabId, from.AcUserPlaneAssociation, params,
                                      uint8_t(from.NasSyncInd), &plane);
}

// ---- RabAssignmentRequest: tables to record ----------------------------------------------------

bool take(TarnBitRates *to, const Vector<uint32_t> &from) {
    if (from.size() > 2)
        return false;
    to->count = from.size();
    memcpy(to->items, from.data(), 4 * from.size());
    return true;
}

bool take(TarnSduParamValueRecord *to, const flat::SduParamValue &from) {
    if (from.Formats()->size() > 64)
        return false;
    to->presence = 0x80;
    to->DeliveryOfErrSdu = from.DeliveryOfErrSdu();
    to->BitErrRatio = {from.Ratio()->Mantissa(), from.Ratio()->Exponent()};
    TarnSduFormatInfoParamsRecord *next = to->SduFormatInfoParamList.items;
    for (const flat::SduFormatInfoParams *format : *from.Formats())
        *next++ = {0x80 | 0x40, *format->SduSize(), *format->RabSubflowCombBitRate()};
    to->SduFormatInfoParamList.count = uint16_t(from.Formats()->size());
    return true;
}

bool take(TarnRabParamsRecord *to, const flat::RabParams &from) {
    if (from.SduParams()->size() > 7)
        return false;
    to->presence = 0x40 | 0x10 | 0x08 | 0x04;
    to->TrafficClass = from.TrafficClass();
    to->RabAssymetryInd = from.RabAssymetryInd();
    to->DeliveryOrder = from.DeliveryOrder();
    to->MaxSduSize = from.MaxSduSize();
    bool ok = take(&to->BitRates, *from.BitRates());
    TarnSduParamValueRecord *next = to->SduParams.items;
    for (const flat::SduParamValue *subflow : *from.SduParams())
        ok &= take(next++, *subflow);
    to->SduParams.count = uint16_t(from.SduParams()->size());
    const flat::AllocRetPriority &priority = *from.Priority();
    to->AllocRetPriority = {priority.PriorityLevel(), priority.PreemptionCapability(),
                            priority.PreemptionVulnerability(), priority.QueuingAllowed()};
    ok &= take(&to->SecondBitRates, *from.SecondBitRates());
    to->SourceStatsDescriptor = *from.SourceStatsDescriptor();
    to->TransDelay = *from.TransDelay();
    return ok;
}

bool take(TarnRabToSetUpInfoRecord *to, const flat::RabToSetUpInfo &from) {
    to->presence = 0x80 | 0x40;
    to->RabId = from.RabId();
    to->AcUserPlaneAssociation = from.AcUserPlaneAssociation();
    to->NasSyncInd = *from.NasSyncInd();
    to->UserPlaneInfo = {from.Plane()->UserPlaneMode(), from.Plane()->UserPlaneModeVersions()};
    return take(&to->RabParams, *from.Params());
}

} // namespace

// ---- SecurityModeReject ------------------------------------------------------------------------

uint32_t flatbuffers_encode_SecurityModeReject(uint8_t *buffer, uint32_t size,
                                               const TarnSecurityModeRejectRecord *record) {
    const Builder builder;
    return builder.finish(flat::CreateSecurityModeReject(builder, 12, record->Srnti, record->AcUeId,
                                                         uint16_t(record->CnDomainId),
                                                         uint16_t(record->SecRejCause)),
                          buffer, size);
}

uint32_t flatbuffers_decode_SecurityModeReject(const uint8_t *buffer, uint32_t length,
                                               TarnSecurityModeRejectRecord *record) {
    const auto *message = verified<flat::SecurityModeReject>(buffer, length);
    if (message == nullptr)
        return 0;
    record->MessageId = message->MessageId();
    record->Srnti = message->Srnti();
    record->AcUeId = message->AcUeId();
    record->CnDomainId = message->CnDomainId();
    record->SecRejCause = message->SecRejCause();
    return 1;
}

// ---- AccessControlRequest ----------------------------------------------------------------------

uint32_t flatbuffers_encode_AccessControlRequest(uint8_t *buffer, uint32_t size,
                                                 const TarnAccessControlRequestRecord *record) {
    const Builder builder;
    const auto lac = bytes_of(builder, record->LAC);
    const auto imsi = bytes_of(builder, record->Imsi);
    return builder.finish(
        flat::CreateAccessControlRequest(builder, 38, record->Srnti, record->AcUeId, lac, imsi),
        buffer, size);
}

uint32_t flatbuffers_decode_AccessControlRequest(const uint8_t *buffer, uint32_t length,
                                                 TarnAccessControlRequestRecord *record) {
    const auto *message = verified<flat::AccessControlRequest>(buffer, length);
    if (message == nullptr)
        return 0;
    record->MessageId = message->MessageId();
    record->Srnti = message->Srnti();
    record->AcUeId = message->AcUeId();
    return take_bytes(&record->LAC, *message->LAC()) && take_bytes(&record->Imsi, *message->Imsi());
}

// ---- UlDirectTransfer --------------------------------------------------------------------------

uint32_t flatbuffers_encode_UlDirectTransfer(uint8_t *buffer, uint32_t size,
                                             const TarnUlDirectTransferRecord *record) {
    const Builder builder;
    const auto nas = bytes_of(builder, record->NasMsg);
    return builder.finish(flat::CreateUlDirectTransfer(builder, 6, record->Srnti, record->AcUeId,
                                                       uint16_t(record->CnDomainId), nas),
                          buffer, size);
}

uint32_t flatbuffers_decode_UlDirectTransfer(const uint8_t *buffer, uint32_t length,
                                             TarnUlDirectTransferRecord *record) {
    const auto *message = verified<flat::UlDirectTransfer>(buffer, length);
    if (message == nullptr)
        return 0;
    record->MessageId = message->MessageId();
    record->Srnti = message->Srnti();
    record->AcUeId = message->AcUeId();
    record->CnDomainId = message->CnDomainId();
    return take_bytes(&record->NasMsg, *message->NasMsg());
}

// ---- RabAssignmentRequest ----------------------------------------------------------------------

uint32_t flatbuffers_encode_RabAssignmentRequest(uint8_t *buffer, uint32_t size,
                                                 const TarnRabAssignmentRequestRecord *record) {
    const Builder builder;
    Offset<flat::RabToSetUpInfo> rabs[3];
    for (unsigned i = 0; i < record->RabList.count; ++i)
        rabs[i] = make(builder, record->RabList.items[i]);
    const auto list = builder->CreateVector(rabs, record->RabList.count);
    return builder.finish(flat::CreateRabAssignmentRequest(builder, 13, record->Srnti,
                                                           record->AcUeId,
                                                           uint16_t(record->CnDomainId), list),
                          buffer, size);
}

uint32_t flatbuffers_decode_RabAssignmentRequest(const uint8_t *buffer, uint32_t length,
                                                 TarnRabAssignmentRequestRecord *record) {
    const auto *message = verified<flat::RabAssignmentRequest>(buffer, length);
    if (message == nullptr || message->RabList()->size() > 3)
        return 0;
    record->MessageId = message->MessageId();
    record->Srnti = message->Srnti();
    record->AcUeId = message->AcUeId();
    record->CnDomainId = message->CnDomainId();
    bool ok = true;
    TarnRabToSetUpInfoRecord *next = record->RabList.items;
    for (const flat::RabToSetUpInfo *rab : *message->RabList())
        ok &= take(next++, *rab);
    record->RabList.count = uint16_t(message->RabList()->size());
    return ok;
}

} // namespace bench
