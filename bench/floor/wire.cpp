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

// Remembers whether each header was the one expected.
class WireReader {
public:
    explicit WireReader(const uint8_t *at) : at_(at) {}

    bool ok() const { return wrong_ == 0; }
    template <class Word>
    INLINE Word raw() {
        Word word;
        memcpy(&word, at_, sizeof word);
        at_ += sizeof word;
        return word;
    }
    INLINE void header(uint32_t tag, uint32_t length) {
        wrong_ |= raw<uint32_t>() ^ swapped(tag << 16 | length >> 16);
        wrong_ |= uint32_t(raw<uint16_t>() ^ swapped(uint16_t(length)));
    }
    INLINE uint8_t ie8(uint32_t tag) {
        header(tag, 1);
        return raw<uint8_t>();
    }
    INLINE uint16_t ie16(uint32_t tag) {
        header(tag, 2);
        return swapped(raw<uint16_t>());
    }
    INLINE uint32_t ie32(uint32_t tag) {
        header(tag, 4);
        return swapped(raw<uint32_t>());
    }
    INLINE void bytes(uint8_t *to, uint32_t count) {
        memcpy(to, at_, count);
        at_ += count;
    }

private:
    const uint8_t *at_;
    uint32_t wrong_ = 0;
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
INLINE WireReader read_ids(const uint8_t *buffer, Record *record) {
    WireReader in(buffer);
    record->MessageId = in.ie8(72);
    record->Srnti = in.ie32(1);
    record->AcUeId = in.ie32(3);
    return in;
}

template <class Bytes>
INLINE void read_bytes(WireReader *in, uint32_t tag, Bytes *value, uint32_t length) {
    in->header(tag, length);
    value->length = length;
    in->bytes(value->bytes, length);
}

INLINE void read_bit_rates(WireReader *in, TarnBitRates *value) {
    in->header(30, bitRatesSize);
    value->count = 2;
    value->items[0] = in->ie32(31);
    value->items[1] = in->ie32(31);
}

INLINE void read_subflow(WireReader *in, TarnSduParamValueRecord *record) {
    in->header(34, subflowSize);
    record->presence = 0x80;
    record->DeliveryOfErrSdu = in->ie16(35);
    in->header(36, ratioSize);
    record->BitErrRatio.Mantissa = in->ie8(37);
    record->BitErrRatio.Exponent = in->ie8(38);
    in->header(40, formatsSize);
    record->SduFormatInfoParamList.count = formatCount;
    for (unsigned i = 0; i < formatCount; ++i) {
        TarnSduFormatInfoParamsRecord *format = &record->SduFormatInfoParamList.items[i];
        in->header(41, formatSize);
        format->presence = 0x80 | 0x40;
        format->SduSize = in->ie16(42);
        format->RabSubflowCombBitRate = in->ie32(43);
    }
}

INLINE void read_params(WireReader *in, TarnRabParamsRecord *record) {
    in->header(26, paramsSize);
    record->presence = 0x40 | 0x10 | 0x08 | 0x04;
    record->TrafficClass = in->ie16(27);
    record->RabAssymetryInd = in->ie16(28);
    record->DeliveryOrder = in->ie16(55);
    record->MaxSduSize = in->ie16(29);
    read_bit_rates(in, &record->BitRates);
    in->header(33, subflowsSize);
    record->SduParams.count = subflowCount;
    for (unsigned i = 0; i < subflowCount; ++i)
        read_subflow(in, &record->SduParams.items[i]);
    in->header(50, priorityLevelsSize);
    record->AllocRetPriority.PriorityLevel = in->ie8(51);
    record->AllocRetPriority.PreemptionCapability = in->ie16(52);
    record->AllocRetPriority.PreemptionVulnerability = in->ie16(53);
    record->AllocRetPriority.QueuingAllowed = in->ie16(54);
    read_bit_rates(in, &record->SecondBitRates);
    record->SourceStatsDescriptor = in->ie16(47);
    record->TransDelay = in->ie16(48);
}

INLINE void read_rab(WireReader *in, TarnRabToSetUpInfoRecord *record) {
    in->header(22, rabSize);
    record->presence = 0x80 | 0x40;
    record->RabId = in->ie8(23);
    record->AcUserPlaneAssociation = in->ie32(24);
    read_params(in, &record->RabParams);
    record->NasSyncInd = in->ie8(25);
    in->header(32, planeSize);
    record->UserPlaneInfo.UserPlaneMode = in->ie16(20);
    record->UserPlaneInfo.UserPlaneModeVersions = in->ie16(39);
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
    WireReader in = read_ids(buffer, record);
    record->CnDomainId = in.ie16(6);
    record->SecRejCause = in.ie16(18);
    return in.ok();
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
    WireReader in = read_ids(buffer, record);
    read_bytes(&in, 109, &record->LAC, 2);
    read_bytes(&in, 169, &record->Imsi, 16);
    return in.ok();
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
    WireReader in = read_ids(buffer, record);
    record->CnDomainId = in.ie16(6);
    read_bytes(&in, 7, &record->NasMsg, length - transferSize);
    return in.ok();
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
    WireReader in = read_ids(buffer, record);
    record->CnDomainId = in.ie16(6);
    in.header(21, rabsSize);
    record->RabList.count = rabCount;
    for (unsigned i = 0; i < rabCount; ++i)
        read_rab(&in, &record->RabList.items[i]);
    return in.ok();
}
