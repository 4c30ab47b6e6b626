// The floor of RabAssignmentRequest: three RABs to set up, each with the RAB parameters of a
// real-time traffic class and three subflows of three formats.
#include "floor/floor.h"
#include "floor/platform.h"

using namespace tarn_floor;

namespace {

constexpr unsigned rabCount = 3;
constexpr unsigned subflowCount = 3;
constexpr unsigned formatCount = 3;

// Bytes of the values on the wire: a header is 6 bytes.
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

// ---- Values to objects -------------------------------------------------------------------------

void append_subflow(VelDllHead *subflows, const TarnSduParamValueRecord &record) {
    VelDllHead *subflow = &add_composite<TarnSduParamValueIe>(subflows, 34)->children;
    append<TarnDeliveryOfErrSduIe>(subflow, 35, record.DeliveryOfErrSdu);
    append<TarnBitErrRatioIe>(subflow, 36, record.BitErrRatio);
    VelDllHead *formats = &add_composite<TarnSduFormatInfoParamListIe>(subflow, 40)->children;
    for (unsigned i = 0; i < formatCount; ++i) {
        const TarnSduFormatInfoParamsRecord &from = record.SduFormatInfoParamList.items[i];
        VelDllHead *format = &add_composite<TarnSduFormatInfoParamsIe>(formats, 41)->children;
        append<TarnSduSizeIe>(format, 42, from.SduSize);
        append<TarnRabSubflowCombBitRateIe>(format, 43, from.RabSubflowCombBitRate);
    }
}

void append_params(VelDllHead *rab, const TarnRabParamsRecord &record) {
    VelDllHead *params = &add_composite<TarnRabParamsIe>(rab, 26)->children;
    append<TarnTrafficClassIe>(params, 27, record.TrafficClass);
    append<TarnRabAssymetryIndIe>(params, 28, record.RabAssymetryInd);
    append<TarnDeliveryOrderIe>(params, 55, record.DeliveryOrder);
    append<TarnMaxSduSizeIe>(params, 29, record.MaxSduSize);
    append<TarnBitRatesIe>(params, 30, record.BitRates);
    VelDllHead *subflows = &add_composite<TarnSduParamsIe>(params, 33)->children;
    for (unsigned i = 0; i < subflowCount; ++i)
        append_subflow(subflows, record.SduParams.items[i]);
    append<TarnAllocRetPriorityIe>(params, 50, record.AllocRetPriority);
    append<TarnBitRatesIe>(params, 30, record.SecondBitRates);
    append<TarnSourceStatsDescriptorIe>(params, 47, record.SourceStatsDescriptor);
    append<TarnTransDelayIe>(params, 48, record.TransDelay);
}

void append_rab(VelDllHead *rabs, const TarnRabToSetUpInfoRecord &record) {
    VelDllHead *rab = &add_composite<TarnRabToSetUpInfoIe>(rabs, 22)->children;
    append<TarnRabIdIe>(rab, 23, record.RabId);
    append<TarnAcUserPlaneAssociationIe>(rab, 24, record.AcUserPlaneAssociation);
    append_params(rab, record.RabParams);
    append<TarnNasSyncIndIe>(rab, 25, record.NasSyncInd);
    append<TarnUserPlaneInfoIe>(rab, 32, record.UserPlaneInfo);
}

// ---- Objects to bytes --------------------------------------------------------------------------

void write_bit_rates(Writer *out, const TarnBitRates &value) {
    out->header(30, bitRatesSize);
    out->ie32(31, value.items[0]);
    out->ie32(31, value.items[1]);
}

void write_subflow(Writer *out, const TarnSduParamValueIe *subflow) {
    out->header(34, subflowSize);
    Walk walk(&subflow->children);
    out->ie16(35, walk.take<TarnDeliveryOfErrSduIe>()->value);
    const TarnBitErrRatio &ratio = walk.take<TarnBitErrRatioIe>()->value;
    out->header(36, ratioSize);
    out->ie8(37, ratio.Mantissa);
    out->ie8(38, ratio.Exponent);
    out->header(40, formatsSize);
    Walk formats(&walk.take<TarnSduFormatInfoParamListIe>()->children);
    for (unsigned i = 0; i < formatCount; ++i) {
        out->header(41, formatSize);
        Walk format(&formats.take<TarnSduFormatInfoParamsIe>()->children);
        out->ie16(42, format.take<TarnSduSizeIe>()->value);
        out->ie32(43, format.take<TarnRabSubflowCombBitRateIe>()->value);
    }
}

void write_params(Writer *out, const TarnRabParamsIe *params) {
    out->header(26, paramsSize);
    Walk walk(&params->children);
    out->ie16(27, walk.take<TarnTrafficClassIe>()->value);
    out->ie16(28, walk.take<TarnRabAssymetryIndIe>()->value);
    out->ie16(55, walk.take<TarnDeliveryOrderIe>()->value);
    out->ie16(29, walk.take<TarnMaxSduSizeIe>()->value);
    write_bit_rates(out, walk.take<TarnBitRatesIe>()->value);
    out->header(33, subflowsSize);
    Walk subflows(&walk.take<TarnSduParamsIe>()->children);
    for (unsigned i = 0; i < subflowCount; ++i)
        write_subflow(out, subflows.take<TarnSduParamValueIe>());
    const TarnAllocRetPriority &priority = walk.take<TarnAllocRetPriorityIe>()->value;
    out->header(50, priorityLevelsSize);
    out->ie8(51, priority.PriorityLevel);
    out->ie16(52, priority.PreemptionCapability);
    out->ie16(53, priority.PreemptionVulnerability);
    out->ie16(54, priority.QueuingAllowed);
    write_bit_rates(out, walk.take<TarnBitRatesIe>()->value);
    out->ie16(47, walk.take<TarnSourceStatsDescriptorIe>()->value);
    out->ie16(48, walk.take<TarnTransDelayIe>()->value);
}

void write_rab(Writer *out, const TarnRabToSetUpInfoIe *rab) {
    out->header(22, rabSize);
    Walk walk(&rab->children);
    out->ie8(23, walk.take<TarnRabIdIe>()->value);
    out->ie32(24, walk.take<TarnAcUserPlaneAssociationIe>()->value);
    write_params(out, walk.take<TarnRabParamsIe>());
    out->ie8(25, walk.take<TarnNasSyncIndIe>()->value);
    const TarnUserPlaneInfo &plane = walk.take<TarnUserPlaneInfoIe>()->value;
    out->header(32, planeSize);
    out->ie16(20, plane.UserPlaneMode);
    out->ie16(39, plane.UserPlaneModeVersions);
}

// ---- Bytes to objects --------------------------------------------------------------------------

void read_bit_rates(Reader *in, TarnBitRates *value) {
    in->header();
    value->count = 2;
    value->items[0] = in->ie32();
    value->items[1] = in->ie32();
}

void read_subflow(Reader *in, VelDllHead *subflows) {
    in->header();
    VelDllHead *subflow = &add_composite<TarnSduParamValueIe>(subflows, 34)->children;
    add<TarnDeliveryOfErrSduIe>(subflow, 35)->value = in->ie16();
    TarnBitErrRatio &ratio = add<TarnBitErrRatioIe>(subflow, 36)->value;
    in->header();
    ratio.Mantissa = in->ie8();
    ratio.Exponent = in->ie8();
    in->header();
    VelDllHead *formats = &add_composite<TarnSduFormatInfoParamListIe>(subflow, 40)->children;
    for (unsigned i = 0; i < formatCount; ++i) {
        in->header();
        VelDllHead *format = &add_composite<TarnSduFormatInfoParamsIe>(formats, 41)->children;
        add<TarnSduSizeIe>(format, 42)->value = in->ie16();
        add<TarnRabSubflowCombBitRateIe>(format, 43)->value = in->ie32();
    }
}

uint32_t has_tag(const VelDllNode *member, const void *key) {
    return reinterpret_cast<const TarnIe *>(member)->tag == *static_cast<const uint16_t *>(key);
}

uint32_t traffic_class(const VelDllHead *params) {
    const uint16_t tag = 27;
    const VelDllNode *found = xVelDllFindNode(params, has_tag, &tag, module, __LINE__);
    return reinterpret_cast<const TarnTrafficClassIe *>(found)->value;
}

// Two predicates decide about the conditional children; each has to find the traffic class.
bool conditions_are_met(const VelDllHead *params) {
    const uint32_t forRealTime = traffic_class(params);
    return (forRealTime == 0 || forRealTime == 2) && traffic_class(params) != 3;
}

bool read_params(Reader *in, VelDllHead *rab) {
    in->header();
    VelDllHead *params = &add_composite<TarnRabParamsIe>(rab, 26)->children;
    add<TarnTrafficClassIe>(params, 27)->value = in->ie16();
    add<TarnRabAssymetryIndIe>(params, 28)->value = in->ie16();
    add<TarnDeliveryOrderIe>(params, 55)->value = in->ie16();
    add<TarnMaxSduSizeIe>(params, 29)->value = in->ie16();
    read_bit_rates(in, &add<TarnBitRatesIe>(params, 30)->value);
    in->header();
    VelDllHead *subflows = &add_composite<TarnSduParamsIe>(params, 33)->children;
    for (unsigned i = 0; i < subflowCount; ++i)
        read_subflow(in, subflows);
    TarnAllocRetPriority &priority = add<TarnAllocRetPriorityIe>(params, 50)->value;
    in->header();
    priority.PriorityLevel = in->ie8();
    priority.PreemptionCapability = in->ie16();
    priority.PreemptionVulnerability = in->ie16();
    priority.QueuingAllowed = in->ie16();
    read_bit_rates(in, &add<TarnBitRatesIe>(params, 30)->value);
    add<TarnSourceStatsDescriptorIe>(params, 47)->value = in->ie16();
    add<TarnTransDelayIe>(params, 48)->value = in->ie16();
    return conditions_are_met(params);
}

bool read_rab(Reader *in, VelDllHead *rabs) {
    in->header();
    VelDllHead *rab = &add_composite<TarnRabToSetUpInfoIe>(rabs, 22)->children;
    add<TarnRabIdIe>(rab, 23)->value = in->ie8();
    add<TarnAcUserPlaneAssociationIe>(rab, 24)->value = in->ie32();
    const bool met = read_params(in, rab);
    add<TarnNasSyncIndIe>(rab, 25)->value = in->ie8();
    TarnUserPlaneInfo &plane = add<TarnUserPlaneInfoIe>(rab, 32)->value;
    in->header();
    plane.UserPlaneMode = in->ie16();
    plane.UserPlaneModeVersions = in->ie16();
    return met;
}

// ---- Objects to values -------------------------------------------------------------------------

void extract_subflow(const VelDllHead *subflow, TarnSduParamValueRecord *record) {
    record->presence = 0x80;
    extract_value<TarnDeliveryOfErrSduIe>(subflow, 0, &record->DeliveryOfErrSdu);
    extract_value<TarnBitErrRatioIe>(subflow, 1, &record->BitErrRatio);
    const VelDllHead *formats = &extract<TarnSduFormatInfoParamListIe>(subflow, 2)->children;
    record->SduFormatInfoParamList.count = formatCount;
    for (unsigned i = 0; i < formatCount; ++i) {
        TarnSduFormatInfoParamsRecord *to = &record->SduFormatInfoParamList.items[i];
        const VelDllHead *format = &extract<TarnSduFormatInfoParamsIe>(formats, i)->children;
        to->presence = 0x80 | 0x40;
        extract_value<TarnSduSizeIe>(format, 0, &to->SduSize);
        extract_value<TarnRabSubflowCombBitRateIe>(format, 1, &to->RabSubflowCombBitRate);
    }
}

void extract_params(const VelDllHead *params, TarnRabParamsRecord *record) {
    record->presence = 0x40 | 0x10 | 0x08 | 0x04;
    extract_value<TarnTrafficClassIe>(params, 0, &record->TrafficClass);
    extract_value<TarnRabAssymetryIndIe>(params, 1, &record->RabAssymetryInd);
    extract_value<TarnDeliveryOrderIe>(params, 2, &record->DeliveryOrder);
    extract_value<TarnMaxSduSizeIe>(params, 3, &record->MaxSduSize);
    extract_value<TarnBitRatesIe>(params, 4, &record->BitRates);
    const VelDllHead *subflows = &extract<TarnSduParamsIe>(params, 5)->children;
    record->SduParams.count = subflowCount;
    for (unsigned i = 0; i < subflowCount; ++i)
        extract_subflow(&extract<TarnSduParamValueIe>(subflows, i)->children,
                        &record->SduParams.items[i]);
    extract_value<TarnAllocRetPriorityIe>(params, 6, &record->AllocRetPriority);
    extract_value<TarnBitRatesIe>(params, 7, &record->SecondBitRates);
    extract_value<TarnSourceStatsDescriptorIe>(params, 8, &record->SourceStatsDescriptor);
    extract_value<TarnTransDelayIe>(params, 9, &record->TransDelay);
}

void extract_rab(const VelDllHead *rab, TarnRabToSetUpInfoRecord *record) {
    record->presence = 0x80 | 0x40;
    extract_value<TarnRabIdIe>(rab, 0, &record->RabId);
    extract_value<TarnAcUserPlaneAssociationIe>(rab, 1, &record->AcUserPlaneAssociation);
    extract_params(&extract<TarnRabParamsIe>(rab, 2)->children, &record->RabParams);
    extract_value<TarnNasSyncIndIe>(rab, 3, &record->NasSyncInd);
    extract_value<TarnUserPlaneInfoIe>(rab, 4, &record->UserPlaneInfo);
}

// ---- Deletion ----------------------------------------------------------------------------------

template <class Ie>
Ie *unlink_composite(VelDllHead *list) {
    return reinterpret_cast<Ie *>(unlink_head(list));
}

template <class Ie>
void finish_composite(Ie *ie) {
    expect_empty(&ie->children);
    release(ie);
}

void delete_formats(TarnSduFormatInfoParamListIe *formats) {
    for (unsigned i = 0; i < formatCount; ++i) {
        auto *format = unlink_composite<TarnSduFormatInfoParamsIe>(&formats->children);
        delete_primitives(&format->children, 2);
        finish_composite(format);
    }
    finish_composite(formats);
}

void delete_subflows(TarnSduParamsIe *subflows) {
    for (unsigned i = 0; i < subflowCount; ++i) {
        auto *subflow = unlink_composite<TarnSduParamValueIe>(&subflows->children);
        delete_primitives(&subflow->children, 2);
        delete_formats(unlink_composite<TarnSduFormatInfoParamListIe>(&subflow->children));
        finish_composite(subflow);
    }
    finish_composite(subflows);
}

void delete_params(TarnRabParamsIe *params) {
    delete_primitives(&params->children, 5);
    delete_subflows(unlink_composite<TarnSduParamsIe>(&params->children));
    delete_primitives(&params->children, 4);
    finish_composite(params);
}

void delete_msg(TarnMsg *msg) {
    delete_primitives(&msg->ies, 4);
    auto *rabs = unlink_composite<TarnRabListIe>(&msg->ies);
    for (unsigned i = 0; i < rabCount; ++i) {
        auto *rab = unlink_composite<TarnRabToSetUpInfoIe>(&rabs->children);
        delete_primitives(&rab->children, 2);
        delete_params(unlink_composite<TarnRabParamsIe>(&rab->children));
        delete_primitives(&rab->children, 2);
        finish_composite(rab);
    }
    finish_composite(rabs);
    expect_empty(&msg->ies);
    release(msg);
}

} // namespace

uint32_t FloorEncodeRabAssignmentRequest(uint8_t *buffer, uint32_t,
                                         const TarnRabAssignmentRequestRecord *record) {
    TarnMsg *msg = create_msg(13);
    append<TarnMessageIdIe>(&msg->ies, 72, TarnMessageId(13));
    append<TarnSrntiIe>(&msg->ies, 1, record->Srnti);
    append<TarnAcUeIdIe>(&msg->ies, 3, record->AcUeId);
    append<TarnCnDomainIdIe>(&msg->ies, 6, record->CnDomainId);
    VelDllHead *rabs = &add_composite<TarnRabListIe>(&msg->ies, 21)->children;
    for (unsigned i = 0; i < rabCount; ++i)
        append_rab(rabs, record->RabList.items[i]);

    Walk walk(&msg->ies);
    Writer out(buffer);
    out.ie8(72, walk.take<TarnMessageIdIe>()->value);
    out.ie32(1, walk.take<TarnSrntiIe>()->value);
    out.ie32(3, walk.take<TarnAcUeIdIe>()->value);
    out.ie16(6, walk.take<TarnCnDomainIdIe>()->value);
    out.header(21, rabsSize);
    Walk rabWalk(&walk.take<TarnRabListIe>()->children);
    for (unsigned i = 0; i < rabCount; ++i)
        write_rab(&out, rabWalk.take<TarnRabToSetUpInfoIe>());
    delete_msg(msg);
    return 1;
}

uint32_t FloorDecodeRabAssignmentRequest(const uint8_t *buffer, uint32_t,
                                         TarnRabAssignmentRequestRecord *record) {
    TarnMsg *msg = create_msg(13);
    Reader in(buffer);
    add<TarnMessageIdIe>(&msg->ies, 72)->value = in.ie8();
    add<TarnSrntiIe>(&msg->ies, 1)->value = in.ie32();
    add<TarnAcUeIdIe>(&msg->ies, 3)->value = in.ie32();
    add<TarnCnDomainIdIe>(&msg->ies, 6)->value = in.ie16();
    in.header();
    VelDllHead *list = &add_composite<TarnRabListIe>(&msg->ies, 21)->children;
    bool met = true;
    for (unsigned i = 0; i < rabCount; ++i)
        met &= read_rab(&in, list);

    extract_value<TarnMessageIdIe>(&msg->ies, 0, &record->MessageId);
    extract_value<TarnSrntiIe>(&msg->ies, 1, &record->Srnti);
    extract_value<TarnAcUeIdIe>(&msg->ies, 2, &record->AcUeId);
    extract_value<TarnCnDomainIdIe>(&msg->ies, 3, &record->CnDomainId);
    const VelDllHead *rabs = &extract<TarnRabListIe>(&msg->ies, 4)->children;
    record->RabList.count = rabCount;
    for (unsigned i = 0; i < rabCount; ++i)
        extract_rab(&extract<TarnRabToSetUpInfoIe>(rabs, i)->children, &record->RabList.items[i]);
    delete_msg(msg);
    return met;
}
