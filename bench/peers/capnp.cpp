#include "peers/peers.h"

#include <capnp/message.h>
#include <capnp/serialize.h>
#include <string.h>

#include "capnp/tarn_bench.capnp.h"

namespace bench {

namespace {

namespace cap = tarn_capnp;

// More than any of the messages takes. Kept between messages; the message zeroes what it used.
capnp::word kept[1024];

// A message of one segment, copied to where the caller wants it.
template <class Root, class Fill>
uint32_t write(uint8_t *buffer, uint32_t size, Fill fill_root) {
    capnp::MallocMessageBuilder message(kj::arrayPtr(kept, sizeof kept / sizeof *kept),
                                        capnp::AllocationStrategy::FIXED_SIZE);
    fill_root(message.template initRoot<Root>());
    const auto segments = message.getSegmentsForOutput();
    const size_t length = segments[0].size() * sizeof(capnp::word);
    if (segments.size() != 1 || length > size)
        return 0;
    memcpy(buffer, segments[0].begin(), length);
    return uint32_t(length);
}

// The reader checks each pointer as it follows it. What it throws is caught by nobody: the
// benchmark gives it nothing malformed.
template <class Root, class Take>
uint32_t read(const uint8_t *buffer, uint32_t length, Take take_root) {
    const kj::ArrayPtr<const capnp::word> segment(reinterpret_cast<const capnp::word *>(buffer),
                                                  length / sizeof(capnp::word));
    capnp::SegmentArrayMessageReader reader(kj::arrayPtr(&segment, 1));
    return take_root(reader.template getRoot<Root>());
}

template <class From>
capnp::Data::Reader bytes_of(const From &from) {
    return {from.bytes, from.length};
}

template <class To>
bool take_bytes(To *to, capnp::Data::Reader from) {
    if (from.size() > sizeof to->bytes)
        return false;
    to->length = uint32_t(from.size());
    memcpy(to->bytes, from.begin(), from.size());
    return true;
}

// ---- RabAssignmentRequest: record to message ---------------------------------------------------

void fill(cap::SduParamValue::Builder to, const TarnSduParamValueRecord &from) {
    to.setDeliveryOfErrSdu(uint16_t(from.DeliveryOfErrSdu));
    to.setMantissa(from.BitErrRatio.Mantissa);
    to.setExponent(from.BitErrRatio.Exponent);
    const unsigned count = from.SduFormatInfoParamList.count;
    auto formats = to.initFormats(count);
    for (unsigned i = 0; i < count; ++i) {
        const TarnSduFormatInfoParamsRecord &format = from.SduFormatInfoParamList.items[i];
        formats[i].setPresence(format.presence);
        formats[i].setSduSize(format.SduSize);
        formats[i].setRabSubflowCombBitRate(format.RabSubflowCombBitRate);
    }
}

void fill(cap::RabParams::Builder to, const TarnRabParamsRecord &from) {
    to.setPresence(from.presence);
    to.setTrafficClass(uint16_t(from.TrafficClass));
    to.setRabAssymetryInd(uint16_t(from.RabAssymetryInd));
    to.setDeliveryOrder(uint16_t(from.DeliveryOrder));
    to.setMaxSduSize(from.MaxSduSize);
    to.setBitRates(kj::arrayPtr(from.BitRates.items, from.BitRates.count));
    auto subflows = to.initSduParams(from.SduParams.count);
    for (unsigned i = 0; i < from.SduParams.count; ++i)
        fill(subflows[i], from.SduParams.items[i]);
    to.setPriorityLevel(from.AllocRetPriority.PriorityLevel);
    to.setPreemptionCapability(uint16_t(from.AllocRetPriority.PreemptionCapability));
    to.setPreemptionVulnerability(uint16_t(from.AllocRetPriority.PreemptionVulnerability));
    to.setQueuingAllowed(uint16_t(from.AllocRetPriority.QueuingAllowed));
    to.setSecondBitRates(kj::arrayPtr(from.SecondBitRates.items, from.SecondBitRates.count));
    to.setSourceStatsDescriptor(uint16_t(from.SourceStatsDescriptor));
    to.setTransDelay(from.TransDelay);
}

void fill(cap::RabToSetUpInfo::Builder to, const TarnRabToSetUpInfoRecord &from) {
    to.setPresence(from.presence);
    to.setRabId(from.RabId);
    to.setAcUserPlaneAssociation(from.AcUserPlaneAssociation);
    fill(to.initParams(), from.RabParams);
    to.setNasSyncInd(from.NasSyncInd);
    to.setUserPlaneMode(uint16_t(from.UserPlaneInfo.UserPlaneMode));
    to.setUserPlaneModeVersions(from.UserPlaneInfo.UserPlaneModeVersions);
}

// ---- RabAssignmentRequest: message to record ---------------------------------------------------

bool take(TarnBitRates *to, capnp::List<uint32_t>::Reader from) {
    if (from.size() > 2)
        return false;
    to->count = from.size();
    for (unsigned i = 0; i < from.size(); ++i)
        to->items[i] = from[i];
    return true;
}

bool take(TarnSduParamValueRecord *to, cap::SduParamValue::Reader from) {
    const auto formats = from.getFormats();
    if (formats.size() > 64)
        return false;
    to->presence = 0x80;
    to->DeliveryOfErrSdu = from.getDeliveryOfErrSdu();
    to->BitErrRatio = {from.getMantissa(), from.getExponent()};
    to->SduFormatInfoParamList.count = uint16_t(formats.size());
    for (unsigned i = 0; i < formats.size(); ++i)
        to->SduFormatInfoParamList.items[i] = {formats[i].getPresence(), formats[i].getSduSize(),
                                               formats[i].getRabSubflowCombBitRate()};
    return true;
}

bool take(TarnRabParamsRecord *to, cap::RabParams::Reader from) {
    const auto subflows = from.getSduParams();
    if (subflows.size() > 7)
        return false;
    to->presence = from.getPresence();
    to->TrafficClass = from.getTrafficClass();
    to->RabAssymetryInd = from.getRabAssymetryInd();
    to->DeliveryOrder = from.getDeliveryOrder();
    to->MaxSduSize = from.getMaxSduSize();
    bool ok = take(&to->BitRates, from.getBitRates());
    to->SduParams.count = uint16_t(subflows.size());
    for (unsigned i = 0; i < subflows.size(); ++i)
        ok &= take(&to->SduParams.items[i], subflows[i]);
    to->AllocRetPriority = {from.getPriorityLevel(), from.getPreemptionCapability(),
                            from.getPreemptionVulnerability(), from.getQueuingAllowed()};
    ok &= take(&to->SecondBitRates, from.getSecondBitRates());
    to->SourceStatsDescriptor = from.getSourceStatsDescriptor();
    to->TransDelay = from.getTransDelay();
    return ok;
}

bool take(TarnRabToSetUpInfoRecord *to, cap::RabToSetUpInfo::Reader from) {
    to->presence = from.getPresence();
    to->RabId = from.getRabId();
    to->AcUserPlaneAssociation = from.getAcUserPlaneAssociation();
    to->NasSyncInd = from.getNasSyncInd();
    to->UserPlaneInfo = {from.getUserPlaneMode(), from.getUserPlaneModeVersions()};
    return take(&to->RabParams, from.getParams());
}

} // namespace

// ---- SecurityModeReject ------------------------------------------------------------------------

uint32_t capnp_encode_SecurityModeReject(uint8_t *buffer, uint32_t size,
                                         const TarnSecurityModeRejectRecord *record) {
    return write<cap::SecurityModeReject>(buffer, size, [record](auto message) {
        message.setMessageId(12);
        message.setSrnti(record->Srnti);
        message.setAcUeId(record->AcUeId);
        message.setCnDomainId(uint16_t(record->CnDomainId));
        message.setSecRejCause(uint16_t(record->SecRejCause));
    });
}

uint32_t capnp_decode_SecurityModeReject(const uint8_t *buffer, uint32_t length,
                                         TarnSecurityModeRejectRecord *record) {
    return read<cap::SecurityModeReject>(buffer, length, [record](auto message) {
        record->MessageId = message.getMessageId();
        record->Srnti = message.getSrnti();
        record->AcUeId = message.getAcUeId();
        record->CnDomainId = message.getCnDomainId();
        record->SecRejCause = message.getSecRejCause();
        return true;
    });
}

// ---- AccessControlRequest ----------------------------------------------------------------------

uint32_t capnp_encode_AccessControlRequest(uint8_t *buffer, uint32_t size,
                                           const TarnAccessControlRequestRecord *record) {
    return write<cap::AccessControlRequest>(buffer, size, [record](auto message) {
        message.setMessageId(38);
        message.setSrnti(record->Srnti);
        message.setAcUeId(record->AcUeId);
        message.setLac(bytes_of(record->LAC));
        message.setImsi(bytes_of(record->Imsi));
    });
}

uint32_t capnp_decode_AccessControlRequest(const uint8_t *buffer, uint32_t length,
                                           TarnAccessControlRequestRecord *record) {
    return read<cap::AccessControlRequest>(buffer, length, [record](auto message) {
        record->MessageId = message.getMessageId();
        record->Srnti = message.getSrnti();
        record->AcUeId = message.getAcUeId();
        return take_bytes(&record->LAC, message.getLac()) &&
               take_bytes(&record->Imsi, message.getImsi());
    });
}

// ---- UlDirectTransfer --------------------------------------------------------------------------

uint32_t capnp_encode_UlDirectTransfer(uint8_t *buffer, uint32_t size,
                                       const TarnUlDirectTransferRecord *record) {
    return write<cap::UlDirectTransfer>(buffer, size, [record](auto message) {
        message.setMessageId(6);
        message.setSrnti(record->Srnti);
        message.setAcUeId(record->AcUeId);
        message.setCnDomainId(uint16_t(record->CnDomainId));
        message.setNasMsg(bytes_of(record->NasMsg));
    });
}

uint32_t capnp_decode_UlDirectTransfer(const uint8_t *buffer, uint32_t length,
                                       TarnUlDirectTransferRecord *record) {
    return read<cap::UlDirectTransfer>(buffer, length, [record](auto message) {
        record->MessageId = message.getMessageId();
        record->Srnti = message.getSrnti();
        record->AcUeId = message.getAcUeId();
        record->CnDomainId = message.getCnDomainId();
        return take_bytes(&record->NasMsg, message.getNasMsg());
    });
}

// ---- RabAssignmentRequest ----------------------------------------------------------------------

uint32_t capnp_encode_RabAssignmentRequest(uint8_t *buffer, uint32_t size,
                                           const TarnRabAssignmentRequestRecord *record) {
    return write<cap::RabAssignmentRequest>(buffer, size, [record](auto message) {
        message.setMessageId(13);
        message.setSrnti(record->Srnti);
        message.setAcUeId(record->AcUeId);
        message.setCnDomainId(uint16_t(record->CnDomainId));
        auto rabs = message.initRabList(record->RabList.count);
        for (unsigned i = 0; i < record->RabList.count; ++i)
            fill(rabs[i], record->RabList.items[i]);
    });
}

uint32_t capnp_decode_RabAssignmentRequest(const uint8_t *buffer, uint32_t length,
                                           TarnRabAssignmentRequestRecord *record) {
    return read<cap::RabAssignmentRequest>(buffer, length, [record](auto message) {
        record->MessageId = message.getMessageId();
        record->Srnti = message.getSrnti();
        record->AcUeId = message.getAcUeId();
        record->CnDomainId = message.getCnDomainId();
        const auto rabs = message.getRabList();
        if (rabs.size() > 3)
            return false;
        record->RabList.count = uint16_t(rabs.size());
        bool ok = true;
        for (unsigned i = 0; i < rabs.size(); ++i)
            ok &= take(&record->RabList.items[i], rabs[i]);
        return ok;
    });
}

} // namespace bench
