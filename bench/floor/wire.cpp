// The least that a record and its bytes cost: straight-line loads and stores of exactly the
// sample's content. The room is compared once, and nothing else is looked at.
#include "floor/floor.h"

#include <string.h>

namespace {

constexpr unsigned rabCount = 3;
constexpr unsigned subflowCount = 3;
constexpr unsigned formatCount = 3;

// Bytes of the messages and of the nested values: a header is 6 bytes.
constexpr uint32_t rejectSize = 7 + 10 + 10 + 8 + 8;
constexpr uint32_t accessSize = 7 + 10 + 10 + 8 + 22;
constexpr uint32_t transferSize = 7 + 10 + 10 + 8 + 6; // but for the NAS message
constexpr uint32_t bitRatesSize = 2 * 10;
constexpr uint32_t priorityLevelsSize = 7 + 3 * 8;
constexpr uint32_t formatSize = 8 + 10;
constexpr uint32_t formatsSize = formatCount * (6 + formatSize);
constexpr uint32_t ratioSize = 7 + 7;
constexpr uint32_t subflowSize = 8 + 6 + ratioSize + 6 + formatsSize;
constexpr uint32_t subflowsSize = subflowCount * (6 + subflowSize);
constexpr uint32_t paramsSize =
    4 * 8 + 2 * (6 + bitRatesSize) + 6 + subflowsSize + 6 + priorityLevelsSize + 2 * 8;
constexpr uint32_t planeSize = 8 + 8;
constexpr uint32_t rabSize = 7 + 10 + 6 + paramsSize + 7 + 6 + planeSize;
constexpr uint32_t rabsSize = rabCount * (6 + rabSize);
constexpr uint32_t assignmentSize = 7 + 10 + 10 + 8 + 6 + rabsSize;

#define INLINE [[gnu::always_inline]] inline

// Whole words in wire order, loaded and stored at once: only little-endian processors swap them.
template <class Word>
INLINE Word swapped(Word word) {
    if constexpr (__BYTE_ORDER__ == __ORDER_BIG_ENDIAN__ || sizeof word == 1)
        return word;
    else
        return sizeof word == 2 ? Word(__builtin_bswap16(uint16_t(word)))
                                : Word(__builtin_bswap32(word));
}

class WireWriter {
public:
    explicit WireWriter(uint8_t *at) : at_(at) {}

    template <class Word>
    INLINE void put(Word word) {
        word = swapped(word);
        memcpy(at_, &word, sizeof word);
        at_ += sizeof word;
    }
    INLINE void header(uint32_t tag, uint32_t length) {
        put(tag << 16 | length >> 16);
        put(uint16_t(length));
    }
    INLINE void ie8(uint32_t tag, uint32_t value) {
        header(tag, 1);
        put(uint8_t(value));
    }
    INLINE void ie16(uint32_t tag, uint32_t value) {
        header(tag, 2);
        put(uint16_t(value));
    }
    INLINE void ie32(uint32_t tag, uint32_t value) {
        header(tag, 4);
        put(value);
    }
    INLINE void bytes(const uint8_t *from, uint32_t count) {
        memcpy(at_, from, count);
        at_ += count;
    }

private:
    uint8_t *at_;
};

// Each returns whether the header was the one expected.
class WireReader {
public:
    explicit WireReader(const uint8_t *at) : at_(at) {}

    template <class Word>
    INLINE Word raw() {
        Word word;
        memcpy(&word, at_, sizeof word);
        at_ += sizeof word;
        return word;
    }
    INLINE bool header(uint32_t tag, uint32_t length) {
        return raw<uint32_t>() == swapped(tag << 16 | length >> 16) &&
               raw<uint16_t>() == swapped(uint16_t(length));
    }
    template <class Word, class To>
    INLINE bool ie(uint32_t tag, To *to) {
        if (!header(tag, sizeof(Word)))
            return false;
        *to = swapped(raw<Word>());
        return true;
    }
    template <class Bytes>
    INLINE bool bytes(uint32_t tag, Bytes *value, uint32_t length) {
        if (!header(tag, length))
            return false;
        value->length = length;
        memcpy(value->bytes, at_, length);
        at_ += length;
        return true;
    }

private:
    const uint8_t *at_;
};

// ---- Records to bytes --------------------------------------------------------------------------

template <class Record>
INLINE WireWriter write_ids(uint8_t *buffer, uint32_t id, const Record &record) {
    WireWriter out(buffer);
    out.ie8(72, id);
    out.ie32(1, record.Srnti);
    out.ie32(3, record.AcUeId);
    return out;
}

template <class Bytes>
INLINE void write_bytes(WireWriter *out, uint32_t tag, const Bytes &value, uint32_t length) {
    out->header(tag, length);
    out->bytes(value.bytes, length);
}

INLINE void write_bit_rates(WireWriter *out, const TarnBitRates &value) {
    out->header(30, bitRatesSize);
    out->ie32(31, value.items[0]);
    out->ie32(31, value.items[1]);
}

INLINE void write_subflow(WireWriter *out, const TarnSduParamValueRecord &record) {
    out->header(34, subflowSize);
    out->ie16(35, record.DeliveryOfErrSdu);
    out->header(36, ratioSize);
    out->ie8(37, record.BitErrRatio.Mantissa);
    out->ie8(38, record.BitErrRatio.Exponent);
    out->header(40, formatsSize);
    for (unsigned i = 0; i < formatCount; ++i) {
        const TarnSduFormatInfoParamsRecord &format = record.SduFormatInfoParamList.items[i];
        out->header(41, formatSize);
        out->ie16(42, format.SduSize);
        out->ie32(43, format.RabSubflowCombBitRate);
    }
}

INLINE void write_params(WireWriter *out, const TarnRabParamsRecord &record) {
    out->header(26, paramsSize);
    out->ie16(27, record.TrafficClass);
    out->ie16(28, record.RabAssymetryInd);
    out->ie16(55, record.DeliveryOrder);
    out->ie16(29, record.MaxSduSize);
    write_bit_rates(out, record.BitRates);
    out->header(33, subflowsSize);
    for (unsigned i = 0; i < subflowCount; ++i)
        write_subflow(out, record.SduParams.items[i]);
    out->header(50, priorityLevelsSize);
    out->ie8(51, record.AllocRetPriority.PriorityLevel);
    out->ie16(52, record.AllocRetPriority.PreemptionCapability);
    out->ie16(53, record.AllocRetPriority.PreemptionVulnerability);
    out->ie16(54, record.AllocRetPriority.QueuingAllowed);
    write_bit_rates(out, record.SecondBitRates);
    out->ie16(47, record.SourceStatsDescriptor);
    out->ie16(48, record.TransDelay);
}

INLINE void write_rab(WireWriter *out, const TarnRabToSetUpInfoRecord &record) {
    out->header(22, rabSize);
    out->ie8(23, record.RabId);
    out->ie32(24, record.AcUserPlaneAssociation);
    write_params(out, record.RabParams);
    out->ie8(25, record.NasSyncInd);
    out->header(32, planeSize);
    out->ie16(20, record.UserPlaneInfo.UserPlaneMode);
    out->ie16(39, record.UserPlaneInfo.UserPlaneModeVersions);
}

// ---- Bytes to records --------------------------------------------------------------------------

template <class Record>
INLINE bool read_ids(WireReader *in, Record *record) {
    return in->ie<uint8_t>(72, &record->MessageId) && in->ie<uint32_t>(1, &record->Srnti) &&
           in->ie<uint32_t>(3, &record->AcUeId);
}

INLINE bool read_bit_rates(WireReader *in, TarnBitRates *value) {
    value->count = 2;
    return in->header(30, bitRatesSize) && in->ie<uint32_t>(31, &value->items[0]) &&
           in->ie<uint32_t>(31, &value->items[1]);
}

INLINE bool read_format(WireReader *in, TarnSduFormatInfoParamsRecord *record) {
    record->presence = 0x80 | 0x40;
    return in->header(41, formatSize) && in->ie<uint16_t>(42, &record->SduSize) &&
           in->ie<uint32_t>(43, &record->RabSubflowCombBitRate);
}

INLINE bool read_subflow(WireReader *in, TarnSduParamValueRecord *record) {
    record->presence = 0x80;
    record->SduFormatInfoParamList.count = formatCount;
    bool ok = in->header(34, subflowSize) && in->ie<uint16_t>(35, &record->DeliveryOfErrSdu) &&
              in->header(36, ratioSize) && in->ie<uint8_t>(37, &record->BitErrRatio.Mantissa) &&
              in->ie<uint8_t>(38, &record->BitErrRatio.Exponent) && in->header(40, formatsSize);
    for (unsigned i = 0; ok && i < formatCount; ++i)
        ok = read_format(in, &record->SduFormatInfoParamList.items[i]);
    return ok;
}

INLINE bool read_priority(WireReader *in, TarnAllocRetPriority *value) {
    return in->header(50, priorityLevelsSize) && in->ie<uint8_t>(51, &value->PriorityLevel) &&
           in->ie<uint16_t>(52, &value->PreemptionCapability) &&
           in->ie<uint16_t>(53, &value->PreemptionVulnerability) &&
           in->ie<uint16_t>(54, &value->QueuingAllowed);
}

INLINE bool read_params(WireReader *in, TarnRabParamsRecord *record) {
    record->presence = 0x40 | 0x10 | 0x08 | 0x04;
    record->SduParams.count = subflowCount;
    bool ok = in->header(26, paramsSize) && in->ie<uint16_t>(27, &record->TrafficClass) &&
              in->ie<uint16_t>(28, &record->RabAssymetryInd) &&
              in->ie<uint16_t>(55, &record->DeliveryOrder) &&
              in->ie<uint16_t>(29, &record->MaxSduSize) && read_bit_rates(in, &record->BitRates) &&
              in->header(33, subflowsSize);
    for (unsigned i = 0; ok && i < subflowCount; ++i)
        ok = read_subflow(in, &record->SduParams.items[i]);
    return ok && read_priority(in, &record->AllocRetPriority) &&
           read_bit_rates(in, &record->SecondBitRates) &&
           in->ie<uint16_t>(47, &record->SourceStatsDescriptor) &&
           in->ie<uint16_t>(48, &record->TransDelay);
}

INLINE bool read_rab(WireReader *in, TarnRabToSetUpInfoRecord *record) {
    record->presence = 0x80 | 0x40;
    return in->header(22, rabSize) && in->ie<uint8_t>(23, &record->RabId) &&
           in->ie<uint32_t>(24, &record->AcUserPlaneAssociation) &&
           read_params(in, &record->RabParams) && in->ie<uint8_t>(25, &record->NasSyncInd) &&
           in->header(32, planeSize) &&
           in->ie<uint16_t>(20, &record->UserPlaneInfo.UserPlaneMode) &&
           in->ie<uint16_t>(39, &record->UserPlaneInfo.UserPlaneModeVersions);
}

} // namespace

// ---- SecurityModeReject ------------------------------------------------------------------------

uint32_t WireEncodeSecurityModeReject(uint8_t *buffer, uint32_t size,
                                      const TarnSecurityModeRejectRecord *record) {
    if (size < rejectSize)
        return 0;
    WireWriter out = write_ids(buffer, 12, *record);
    out.ie16(6, record->CnDomainId);
    out.ie16(18, record->SecRejCause);
    return rejectSize;
}

uint32_t WireDecodeSecurityModeReject(const uint8_t *buffer, uint32_t length,
                                      TarnSecurityModeRejectRecord *record) {
    if (length < rejectSize)
        return 0;
    WireReader in(buffer);
    return read_ids(&in, record) && in.ie<uint16_t>(6, &record->CnDomainId) &&
           in.ie<uint16_t>(18, &record->SecRejCause);
}

// ---- AccessControlRequest ----------------------------------------------------------------------

uint32_t WireEncodeAccessControlRequest(uint8_t *buffer, uint32_t size,
                                        const TarnAccessControlRequestRecord *record) {
    if (size < accessSize)
        return 0;
    WireWriter out = write_ids(buffer, 38, *record);
    write_bytes(&out, 109, record->LAC, 2);
    write_bytes(&out, 169, record->Imsi, 16);
    return accessSize;
}

uint32_t WireDecodeAccessControlRequest(const uint8_t *buffer, uint32_t length,
                                        TarnAccessControlRequestRecord *record) {
    if (length < accessSize)
        return 0;
    WireReader in(buffer);
    return read_ids(&in, record) && in.bytes(109, &record->LAC, 2) &&
           in.bytes(169, &record->Imsi, 16);
}

// ---- UlDirectTransfer --------------------------------------------------------------------------

uint32_t WireEncodeUlDirectTransfer(uint8_t *buffer, uint32_t size,
                                    const TarnUlDirectTransferRecord *record) {
    const uint32_t length = record->NasMsg.length;
    if (size < transferSize || length > size - transferSize)
        return 0;
    WireWriter out = write_ids(buffer, 6, *record);
    out.ie16(6, record->CnDomainId);
    write_bytes(&out, 7, record->NasMsg, length);
    return transferSize + length;
}

uint32_t WireDecodeUlDirectTransfer(const uint8_t *buffer, uint32_t length,
                                    TarnUlDirectTransferRecord *record) {
    if (length < transferSize || length - transferSize > sizeof record->NasMsg.bytes)
        return 0;
    WireReader in(buffer);
    return read_ids(&in, record) && in.ie<uint16_t>(6, &record->CnDomainId) &&
           in.bytes(7, &record->NasMsg, length - transferSize);
}

// ---- RabAssignmentRequest ----------------------------------------------------------------------

uint32_t WireEncodeRabAssignmentRequest(uint8_t *buffer, uint32_t size,
                                        const TarnRabAssignmentRequestRecord *record) {
    if (size < assignmentSize)
        return 0;
    WireWriter out = write_ids(buffer, 13, *record);
    out.ie16(6, record->CnDomainId);
    out.header(21, rabsSize);
    for (unsigned i = 0; i < rabCount; ++i)
        write_rab(&out, record->RabList.items[i]);
    return assignmentSize;
}

uint32_t WireDecodeRabAssignmentRequest(const uint8_t *buffer, uint32_t length,
                                        TarnRabAssignmentRequestRecord *record) {
    if (length < assignmentSize)
        return 0;
    WireReader in(buffer);
    record->RabList.count = rabCount;
    bool ok =
        read_ids(&in, record) && in.ie<uint16_t>(6, &record->CnDomainId) && in.header(21, rabsSize);
    for (unsigned i = 0; ok && i < rabCount; ++i)
        ok = read_rab(&in, &record->RabList.items[i]);
    return ok;
}
