#include "peers/peers.h"

#include <google/protobuf/arena.h>
#include <string.h>

#include "protobuf/tarn_bench.pb.h"

namespace bench {

namespace {

// Each type has one message, on an arena. Cleared and not destroyed, it keeps the memory of all
// that it ever held.
template <class Message>
Message *kept() {
    static google::protobuf::Arena arena;
    static auto *message = google::protobuf::Arena::CreateMessage<Message>(&arena);
    return message;
}

template <class Message, class Fill>
uint32_t write(uint8_t *buffer, uint32_t size, Fill fill_message) {
    auto *message = kept<Message>();
    message->Clear();
    fill_message(message);
    const size_t length = message->ByteSizeLong();
    if (length > size)
        return 0;
    message->SerializeWithCachedSizesToArray(buffer);
    return uint32_t(length);
}

template <class Message, class Take>
uint32_t read(const uint8_t *buffer, uint32_t length, Take take_message) {
    auto *message = kept<Message>();
    return message->ParseFromArray(buffer, int(length)) && take_message(std::as_const(*message));
}

template <class To>
bool take_bytes(To *to, const std::string &from) {
    if (from.size() > sizeof to->bytes)
        return false;
    to->length = uint32_t(from.size());
    memcpy(to->bytes, from.data(), from.size());
    return true;
}

// ---- RabAssignmentRequest: record to message ---------------------------------------------------

void fill(SduParamValue *to, const TarnSduParamValueRecord &from) {
    to->set_deliveryoferrsdu(from.DeliveryOfErrSdu);
    to->mutable_ratio()->set_mantissa(from.BitErrRatio.Mantissa);
    to->mutable_ratio()->set_exponent(from.BitErrRatio.Exponent);
    for (unsigned i = 0; i < from.SduFormatInfoParamList.count; ++i) {
        SduFormatInfoParams *format = to->add_formats();
        format->set_sdusize(from.SduFormatInfoParamList.items[i].SduSize);
        format->set_rabsubflowcombbitrate(
            from.SduFormatInfoParamList.items[i].RabSubflowCombBitRate);
    }
}

void fill(RabParams *to, const TarnRabParamsRecord &from) {
    to->set_trafficclass(from.TrafficClass);
    to->set_rabassymetryind(from.RabAssymetryInd);
    to->set_deliveryorder(from.DeliveryOrder);
    to->set_maxsdusize(from.MaxSduSize);
    for (unsigned i = 0; i < from.BitRates.count; ++i)
        to->add_bitrates(from.BitRates.items[i]);
    for (unsigned i = 0; i < from.SduParams.count; ++i)
        fill(to->add_sduparams(), from.SduParams.items[i]);
    AllocRetPriority *priority = to->mutable_priority();
    priority->set_prioritylevel(from.AllocRetPriority.PriorityLevel);
    priority->set_preemptioncapability(from.AllocRetPriority.PreemptionCapability);
    priority->set_preemptionvulnerability(from.AllocRetPriority.PreemptionVulnerability);
    priority->set_queuingallowed(from.AllocRetPriority.QueuingAllowed);
    for (unsigned i = 0; i < from.SecondBitRates.count; ++i)
        to->add_secondbitrates(from.SecondBitRates.items[i]);
    to->set_sourcestatsdescriptor(from.SourceStatsDescriptor);
    to->set_transdelay(from.TransDelay);
}

void fill(RabToSetUpInfo *to, const TarnRabToSetUpInfoRecord &from) {
    to->set_rabid(from.RabId);
    to->set_acuserplaneassociation(from.AcUserPlaneAssociation);
    fill(to->mutable_params(), from.RabParams);
    to->set_nassyncind(from.NasSyncInd);
    to->mutable_plane()->set_userplanemode(from.UserPlaneInfo.UserPlaneMode);
    to->mutable_plane()->set_userplanemodeversions(from.UserPlaneInfo.UserPlaneModeVersions);
}

// ---- RabAssignmentRequest: message to record ---------------------------------------------------

bool take(TarnBitRates *to, const google::protobuf::RepeatedField<uint32_t> &from) {
    if (from.size() > 2)
        return false;
    to->count = uint32_t(from.size());
    memcpy(to->items, from.data(), 4 * size_t(from.size()));
    return true;
}

bool take(TarnSduParamValueRecord *to, const SduParamValue &from) {
    if (from.formats_size() > 64)
        return false;
    to->presence = 0x80;
    to->DeliveryOfErrSdu = from.deliveryoferrsdu();
    to->BitErrRatio = {uint8_t(from.ratio().mantissa()), uint8_t(from.ratio().exponent())};
    TarnSduFormatInfoParamsRecord *next = to->SduFormatInfoParamList.items;
    for (const SduFormatInfoParams &format : from.formats())
        *next++ = {0x80 | 0x40, uint16_t(format.sdusize()), format.rabsubflowcombbitrate()};
    to->SduFormatInfoParamList.count = uint16_t(from.formats_size());
    return true;
}

bool take(TarnRabParamsRecord *to, const RabParams &from) {
    if (from.sduparams_size() > 7)
        return false;
    to->presence = 0x40 | 0x10 | 0x08 | 0x04;
    to->TrafficClass = from.trafficclass();
    to->RabAssymetryInd = from.rabassymetryind();
    to->DeliveryOrder = from.deliveryorder();
    to->MaxSduSize = uint16_t(from.maxsdusize());
    bool ok = take(&to->BitRates, from.bitrates());
    TarnSduParamValueRecord *next = to->SduParams.items;
    for (const SduParamValue &subflow : from.sduparams())
        ok &= take(next++, subflow);
    to->SduParams.count = uint16_t(from.sduparams_size());
    const AllocRetPriority &priority = from.priority();
    to->AllocRetPriority = {uint8_t(priority.prioritylevel()), priority.preemptioncapability(),
                            priority.preemptionvulnerability(), priority.queuingallowed()};
    ok &= take(&to->SecondBitRates, from.secondbitrates());
    to->SourceStatsDescriptor = from.sourcestatsdescriptor();
    to->TransDelay = uint16_t(from.transdelay());
    return ok;
}

bool take(TarnRabToSetUpInfoRecord *to, const RabToSetUpInfo &from) {
    to->presence = 0x80 | 0x40;
    to->RabId = uint8_t(from.rabid());
    to->AcUserPlaneAssociation = from.acuserplaneassociation();
    to->NasSyncInd = uint8_t(from.nassyncind());
    to->UserPlaneInfo = {from.plane().userplanemode(),
                         uint16_t(from.plane().userplanemodeversions())};
    return take(&to->RabParams, from.params());
}

} // namespace

// ---- SecurityModeReject ------------------------------------------------------------------------

uint32_t protobuf_encode_SecurityModeReject(uint8_t *buffer, uint32_t size,
                                            const TarnSecurityModeRejectRecord *record) {
    return write<SecurityModeReject>(buffer, size, [record](SecurityModeReject *message) {
        message->set_messageid(12);
        message->set_srnti(record->Srnti);
        message->set_acueid(record->AcUeId);
        message->set_cndomainid(record->CnDomainId);
        message->set_secrejcause(record->SecRejCause);
    });
}

uint32_t protobuf_decode_SecurityModeReject(const uint8_t *buffer, uint32_t length,
                                            TarnSecurityModeRejectRecord *record) {
    return read<SecurityModeReject>(buffer, length, [record](const SecurityModeReject &message) {
        record->MessageId = uint8_t(message.messageid());
        record->Srnti = message.srnti();
        record->AcUeId = message.acueid();
        record->CnDomainId = message.cndomainid();
        record->SecRejCause = message.secrejcause();
        return true;
    });
}

// ---- AccessControlRequest ----------------------------------------------------------------------

uint32_t protobuf_encode_AccessControlRequest(uint8_t *buffer, uint32_t size,
                                              const TarnAccessControlRequestRecord *record) {
    return write<AccessControlRequest>(buffer, size, [record](AccessControlRequest *message) {
        message->set_messageid(38);
        message->set_srnti(record->Srnti);
        message->set_acueid(record->AcUeId);
        message->set_lac(record->LAC.bytes, record->LAC.length);
        message->set_imsi(record->Imsi.bytes, record->Imsi.length);
    });
}

uint32_t protobuf_decode_AccessControlRequest(const uint8_t *buffer, uint32_t length,
                                              TarnAccessControlRequestRecord *record) {
    return read<AccessControlRequest>(buffer, length,
                                      [record](const AccessControlRequest &message) {
                                          record->MessageId = uint8_t(message.messageid());
                                          record->Srnti = message.srnti();
                                          record->AcUeId = message.acueid();
                                          return take_bytes(&record->LAC, message.lac()) &&
                                                 take_bytes(&record->Imsi, message.imsi());
                                      });
}

// ---- UlDirectTransfer --------------------------------------------------------------------------

uint32_t protobuf_encode_UlDirectTransfer(uint8_t *buffer, uint32_t size,
                                          const TarnUlDirectTransferRecord *record) {
    return write<UlDirectTransfer>(buffer, size, [record](UlDirectTransfer *message) {
        message->set_messageid(6);
        message->set_srnti(record->Srnti);
        message->set_acueid(record->AcUeId);
        message->set_cndomainid(record->CnDomainId);
        message->set_nasmsg(record->NasMsg.bytes, record->NasMsg.length);
    });
}

uint32_t protobuf_decode_UlDirectTransfer(const uint8_t *buffer, uint32_t length,
                                          TarnUlDirectTransferRecord *record) {
    return read<UlDirectTransfer>(buffer, length, [record](const UlDirectTransfer &message) {
        record->MessageId = uint8_t(message.messageid());
        record->Srnti = message.srnti();
        record->AcUeId = message.acueid();
        record->CnDomainId = message.cndomainid();
        return take_bytes(&record->NasMsg, message.nasmsg());
    });
}

// ---- RabAssignmentRequest ----------------------------------------------------------------------

uint32_t protobuf_encode_RabAssignmentRequest(uint8_t *buffer, uint32_t size,
                                              const TarnRabAssignmentRequestRecord *record) {
    return write<RabAssignmentRequest>(buffer, size, [record](RabAssignmentRequest *message) {
        message->set_messageid(13);
        message->set_srnti(record->Srnti);
        message->set_acueid(record->AcUeId);
        message->set_cndomainid(record->CnDomainId);
        for (unsigned i = 0; i < record->RabList.count; ++i)
            fill(message->add_rablist(), record->RabList.items[i]);
    });
}

uint32_t protobuf_decode_RabAssignmentRequest(const uint8_t *buffer, uint32_t length,
                                              TarnRabAssignmentRequestRecord *record) {
    return read<RabAssignmentRequest>(buffer, length,
                                      [record](const RabAssignmentRequest &message) {
                                          if (message.rablist_size() > 3)
                                              return false;
                                          record->MessageId = uint8_t(message.messageid());
                                          record->Srnti = message.srnti();
                                          record->AcUeId = message.acueid();
                                          record->CnDomainId = message.cndomainid();
                                          bool ok = true;
                                          TarnRabToSetUpInfoRecord *next = record->RabList.items;
                                          for (const RabToSetUpInfo &rab : message.rablist())
                                              ok &= take(next++, rab);
                                          record->RabList.count = uint16_t(message.rablist_size());
                                          return ok;
                                      });
}

} // namespace bench
