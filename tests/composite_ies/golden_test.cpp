// Composite IEs against bytes that were worked out by hand.
#include "support/library_test.h"
#include "support/samples.h"
#include "tarn_if.h"

using samples::Bytes;
using samples::from_hex;

namespace {

class CompositeGolden : public LibraryTest {
protected:
    // Packs the object, unpacks the bytes into another one, and packs that again.
    static void expect_bytes(samples::IePtr ie, const Bytes &golden) {
        const protocol::Type &type = *protocol::type_by_tag(ie->tag);
        expect_packs(type, ie.get(), golden);
        const samples::IePtr read = samples::make_empty_ie(type);
        std::uint32_t consumed = 0;
        const samples::Exact bytes(golden);
        EXPECT_EQ(type.unpackIe(read.get(), bytes.data(), bytes.size(), &consumed), 1U);
        EXPECT_EQ(consumed, golden.size());
        EXPECT_EQ(type.isIeValid(read.get()), 1U);
        expect_packs(type, read.get(), golden);
    }

    template <class Object>
    static samples::IePtr own(Object *object) {
        return samples::IePtr(&object->ie);
    }

private:
    static void expect_packs(const protocol::Type &type, const TarnIe *ie, const Bytes &golden) {
        EXPECT_EQ(TarnSizeOfIe(ie), golden.size());
        Bytes packed(golden.size());
        std::uint32_t written = 0;
        EXPECT_EQ(type.packIe(ie, packed.data(), std::uint32_t(packed.size()), &written), 1U);
        EXPECT_EQ(written, golden.size());
        EXPECT_EQ(packed, golden);
    }
};

TarnRabDataInfoIe *new_rab_data_info(TarnRabId rabId, TarnSuccTransferAtPsiw transferred,
                                     TarnUnSuccTransferAtRlc lost) {
    TarnRabDataInfoIe *ie = TarnNewRabDataInfoIe();
    TarnAppendRabIdToRabDataInfoIe(ie, &rabId);
    TarnAppendSuccTransferAtPsiwToRabDataInfoIe(ie, &transferred);
    TarnAppendUnSuccTransferAtRlcToRabDataInfoIe(ie, &lost);
    return ie;
}

TEST_F(CompositeGolden, UeContextRefWithDataVolumes) {
    TarnRabDataInfoListIe *list = TarnNewRabDataInfoListIe();
    TarnAppendRabDataInfoIeToRabDataInfoListIe(list, new_rab_data_info(5, 0x00010203, 0xFF));
    TarnUeContextRefIe *ref = TarnNewUeContextRefIe();
    const TarnAcUeId acUeId = 0x2A;
    const TarnSrnti srnti = 0x00ABCDEF;
    TarnAppendAcUeIdToUeContextRefIe(ref, &acUeId);
    TarnAppendSrntiToUeContextRefIe(ref, &srnti);
    TarnAppendRabDataInfoListIeToUeContextRefIe(ref, list);

    expect_bytes(own(ref), from_hex("005F 0000003B"
                                    "  0003 00000004 0000002A"
                                    "  0001 00000004 00ABCDEF"
                                    "  0066 00000021"
                                    "    0067 0000001B"
                                    "      0017 00000001 05"
                                    "      0062 00000004 00010203"
                                    "      0061 00000004 000000FF"));
}

TEST_F(CompositeGolden, SduParamValueWithBothBitErrorRatios) {
    TarnSduFormatInfoParamsIe *params = TarnNewSduFormatInfoParamsIe();
    const TarnSduSize size = 40;
    const TarnRabSubflowCombBitRate bitRate = 12200;
    TarnAppendSduSizeToSduFormatInfoParamsIe(params, &size);
    TarnAppendRabSubflowCombBitRateToSduFormatInfoParamsIe(params, &bitRate);
    TarnSduFormatInfoParamListIe *list = TarnNewSduFormatInfoParamListIe();
    TarnAppendSduFormatInfoParamsIeToSduFormatInfoParamListIe(list, params);
    TarnSduParamValueIe *value = TarnNewSduParamValueIe();
    const TarnDeliveryOfErrSdu delivery = 1;
    const TarnBitErrRatio first = {5, 4};
    const TarnBitErrRatio second = {1, 6};
    TarnAppendDeliveryOfErrSduToSduParamValueIe(value, &delivery);
    TarnAppendBitErrRatioToSduParamValueIe(value, &first);
    TarnAppendSduFormatInfoParamListIeToSduParamValueIe(value, list);
    TarnAppendBitErrRatioToSduParamValueIe(value, &second);

    expect_bytes(own(value), from_hex("0022 0000004E"
                                      "  0023 00000002 0001"
                                      "  0024 0000000E 0025 00000001 05 0026 00000001 04"
                                      "  0028 00000018"
                                      "    0029 00000012"
                                      "      002A 00000002 0028"
                                      "      002B 00000004 00002FA8"
                                      "  0024 0000000E 0025 00000001 01 0026 00000001 06"));
}

TEST_F(CompositeGolden, RealTimeRabParams) {
    TarnRabParamsIe *params = TarnNewRabParamsIe();
    const TarnTrafficClass conversational = 0;
    const TarnRabAssymetryInd symmetric = 3;
    const TarnDeliveryOrder ordered = 1;
    const TarnMaxSduSize maxSduSize = 0x0102;
    const TarnBitRates bitRates = {2, {64000, 32000}};
    const TarnBitRates guaranteed = {1, {12200}};
    const TarnSourceStatsDescriptor speech = 7;
    const TarnTransDelay delay = 80;
    TarnAppendTrafficClassToRabParamsIe(params, &conversational);
    TarnAppendRabAssymetryIndToRabParamsIe(params, &symmetric);
    TarnAppendDeliveryOrderToRabParamsIe(params, &ordered);
    TarnAppendMaxSduSizeToRabParamsIe(params, &maxSduSize);
    TarnAppendBitRatesToRabParamsIe(params, &bitRates);
    TarnAppendSduParamsIeToRabParamsIe(params, TarnNewSduParamsIe());
    TarnAppendBitRatesToRabParamsIe(params, &guaranteed);
    TarnAppendSourceStatsDescriptorToRabParamsIe(params, &speech);
    TarnAppendTransDelayToRabParamsIe(params, &delay);

    expect_bytes(own(params), from_hex("001A 00000060"
                                       "  001B 00000002 0000"
                                       "  001C 00000002 0003"
                                       "  0037 00000002 0001"
                                       "  001D 00000002 0102"
                                       "  001E 00000014 001F 00000004 0000FA00"
                                       "                001F 00000004 00007D00"
                                       "  0021 00000000"
                                       "  001E 0000000A 001F 00000004 00002FA8"
                                       "  002F 00000002 0007"
                                       "  0030 00000002 0050"));
}

TEST_F(CompositeGolden, TargetRncWithRoutingArea) {
    TarnTargetRNCIdIe *target = TarnNewTargetRNCIdIe();
    const TarnLAI lai = {{3, {0x62, 0xF2, 0x10}}, {2, {0x12, 0x34}}};
    const TarnRNCId rncId = 4096;
    const TarnRAC rac = 9;
    TarnAppendLAIToTargetRNCIdIe(target, &lai);
    TarnAppendRNCIdToTargetRNCIdIe(target, &rncId);
    TarnAppendRACToTargetRNCIdIe(target, &rac);

    expect_bytes(own(target), from_hex("006A 00000026"
                                       "  006B 00000011 006C 00000003 62F210 006D 00000002 1234"
                                       "  006F 00000002 1000"
                                       "  006E 00000001 09"));
}

TEST_F(CompositeGolden, GatewayWithEchoPeriodOnly) {
    TarnPsIuhGatewayInfoIe *gateway = TarnNewPsIuhGatewayInfoIe();
    const TarnIpAddress address = {4, {10, 0, 0, 1}};
    const TarnGtpTeid teid = 0x12345678;
    const TarnGtpEchoPeriod period = 600;
    TarnAppendIpAddressToPsIuhGatewayInfoIe(gateway, &address);
    TarnAppendGtpTeidToPsIuhGatewayInfoIe(gateway, &teid);
    TarnAppendGtpEchoPeriodToPsIuhGatewayInfoIe(gateway, &period);

    expect_bytes(own(gateway), from_hex("00AD 00000034"
                                        "  003C 0000001C 003D 00000001 0A 003D 00000001 00"
                                        "                003D 00000001 00 003D 00000001 01"
                                        "  00AB 00000004 12345678"
                                        "  00AC 00000002 0258"));
}

} // namespace
