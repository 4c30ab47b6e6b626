/* Written by header_writer from the rows in src/catalogue; do not edit: change the rows or
 * tools/header_writer, then run `cmake --build --preset release --target tarn_headers`. */

/* libtarn for C++17: records and objects with types, over the C interface of tarn_if.h, which stays
 * at hand. Everything is inline and in namespace tarn; nothing throws, aborts or allocates but
 * where a std::vector is asked for. Where the C interface knows a fatal error (no bytes, no object,
 * too little room) a call here fails. docs/cpp.md is the guide.
 *
 * Records. For each message M and each composite IE there is a struct M with the layout of the C
 * record. Its mandatory members are plain: `record.Srnti = 5`. An optional one is reached through a
 * function of its name, which returns an OptionalMember: `record.Imsi() = imsi`, `if
 * (record.Imsi())`. A list is a List with push_back and begin and end, a byte string a ByteString
 * with assign and view. M::id, M::name and M::max_size are its id, its name and the most bytes that
 * it takes.
 *
 *     build(record)           the bytes in a std::vector, or an error
 *     build(record, room)     the number of bytes written, or an error
 *     get<M>(bytes)           the record, if the bytes are an M, or an error
 *     visit(bytes, visitor)   calls the visitor with the record of whatever message the bytes hold
 *
 * Objects. An MMsg owns a message object, an SIe a composite IE object until it is appended; an
 * MMsgRef and an SIeRef refer to one that something else owns. append_P and extract_P put in and
 * take out the IE P; each_P takes out all that are left of an IE that may repeat. Extracting marks
 * an IE as extracted, as tarn_if_objects.h tells. A Message owns a message of any type. */
#ifndef TARN_HPP
#define TARN_HPP

#include "tarn_support.hpp"

namespace tarn {

/* ==== Values ================================================================================== */

using Srnti = std::uint32_t;
using EstablishCause = std::uint32_t;
using AcUeId = std::uint32_t;
using RejectCause = std::uint32_t;
using ReleaseCause = std::uint32_t;
using CnDomainId = std::uint32_t;
using SapiId = std::uint32_t;
using IuRelReqCause = std::uint32_t;
using KeyStatus = std::uint32_t;
using IntProtAlgo = std::uint32_t;
using EncryptAlgo = std::uint32_t;
using SecRejCause = std::uint32_t;
using UserPlaneMode = std::uint32_t;
using RabId = std::uint8_t;
using AcUserPlaneAssociation = std::uint32_t;
using NasSyncInd = std::uint8_t;
using TrafficClass = std::uint32_t;
using RabAssymetryInd = std::uint32_t;
using MaxSduSize = std::uint16_t;
using DeliveryOfErrSdu = std::uint32_t;
using Mantissa = std::uint8_t;
using Exponent = std::uint8_t;
using UserPlaneModeVersions = std::uint16_t;
using SduSize = std::uint16_t;
using RabSubflowCombBitRate = std::uint32_t;
using ApUserPlaneAssociation = std::uint16_t;
using SourceStatsDescriptor = std::uint32_t;
using TransDelay = std::uint16_t;
using TrafficHandlingPriority = std::uint8_t;
using PriorityLevel = std::uint8_t;
using PreemptionCapability = std::uint32_t;
using PreemptionVulnerability = std::uint32_t;
using QueuingAllowed = std::uint32_t;
using DeliveryOrder = std::uint32_t;
using IuRelCause = std::uint32_t;
using UdpPort = std::uint16_t;
using RabSetupFailCause = std::uint32_t;
using RabReleaseCause = std::uint32_t;
using MessageId = std::uint8_t;
using ErrorCause = std::uint32_t;
using PagingCause = std::uint32_t;
using PagingRecordTypeInd = std::uint32_t;
using DrxCycleLenCoeff = std::uint16_t;
using TempUeIdType = std::uint32_t;
using Tos = std::uint8_t;
using RtcpTransInterval = std::uint16_t;
using JitterBufferSize = std::uint16_t;
using RtpStreamId = std::uint8_t;
using UserPlaneResult = std::uint32_t;
using UnSuccTransferAtRlc = std::uint32_t;
using SuccTransferAtPsiw = std::uint32_t;
using DataVolReportingFlag = std::uint32_t;
using Reset3GAP = std::uint32_t;
using RespExpected = std::uint32_t;
using RelocationRequiredCause = std::uint32_t;
using RAC = std::uint8_t;
using RNCId = std::uint16_t;
using TargetCellId = std::uint32_t;
using RelocationFailureCause = std::uint32_t;
using HandoverFailureCause = std::uint32_t;
using ServiceHandover = std::uint32_t;
using HandoverRequestCause = std::uint32_t;
using RelocationCancelCause = std::uint32_t;
using NumIuInstances = std::uint8_t;
using RelocationType = std::uint32_t;
using CsUserEncryptAlgo = std::uint32_t;
using PsUserEncryptAlgo = std::uint32_t;
using MaxBitRateUplink = std::uint32_t;
using MaxBitRateDownlink = std::uint32_t;
using CpsSduMaxBitRate = std::uint32_t;
using CpsSduMaxSize = std::uint32_t;
using CpsSduAvgBitRate = std::uint32_t;
using CpsSduAvgSize = std::uint32_t;
using LacMatch = std::uint32_t;
using IuRelCauseNew = std::uint32_t;
using GtpTeid = std::uint32_t;
using GtpEchoPeriod = std::uint16_t;
using MuxUdpPort = std::uint16_t;
using RoutingBasis = std::uint32_t;
using RoutingParameter = std::uint16_t;
using BitRate = std::uint32_t;
using PdpTypeInfo = std::uint32_t;
using IpAddressByte = std::uint8_t;
using TransactionId = std::uint16_t;
using DataVolReporting = std::uint32_t;
using NasMsg = ByteString<4096>;
using IntProtKey = ByteString<16>;
using EncryptKey = ByteString<16>;
using TempUeIdValue = ByteString<4>;
using MasterKey = ByteString<16>;
using MasterSalt = ByteString<14>;
using NasUeId = ByteString<8>;
using PLMNId = ByteString<3>;
using LAC = ByteString<2>;
using CI = ByteString<2>;
using GsmClassmark2 = ByteString<5>;
using GsmClassmark3 = ByteString<32>;
using RrcContainer = ByteString<2000>;
using L3Information = ByteString<255>;
using OldBssToNewBssInfo = ByteString<255>;
using Imsi = ByteString<16>;
struct IntProtInfo {
    tarn::IntProtAlgo IntProtAlgo = {};
    tarn::IntProtKey IntProtKey = {};
};
using EncryptAlgos = List<EncryptAlgo, std::uint32_t, 2>;
struct EncryptInfo {
    tarn::EncryptAlgos EncryptAlgos = {};
    tarn::EncryptKey EncryptKey = {};
};
struct UserPlaneInfo {
    tarn::UserPlaneMode UserPlaneMode = {};
    tarn::UserPlaneModeVersions UserPlaneModeVersions = {};
};
struct BitErrRatio {
    tarn::Mantissa Mantissa = {};
    tarn::Exponent Exponent = {};
};
struct AllocRetPriority {
    tarn::PriorityLevel PriorityLevel = {};
    tarn::PreemptionCapability PreemptionCapability = {};
    tarn::PreemptionVulnerability PreemptionVulnerability = {};
    tarn::QueuingAllowed QueuingAllowed = {};
};
struct TempUeId {
    tarn::TempUeIdType TempUeIdType = {};
    tarn::TempUeIdValue TempUeIdValue = {};
};
struct RtpSecurityInfo {
    tarn::MasterKey MasterKey = {};
    tarn::MasterSalt MasterSalt = {};
};
struct LAI {
    tarn::PLMNId PLMNId = {};
    tarn::LAC LAC = {};
};
struct TargetCGI {
    tarn::PLMNId PLMNId = {};
    tarn::LAC LAC = {};
    tarn::CI CI = {};
};
struct AlcapLinkCharacteristics {
    tarn::CpsSduMaxBitRate CpsSduMaxBitRate = {};
    tarn::CpsSduMaxSize CpsSduMaxSize = {};
    tarn::CpsSduAvgBitRate CpsSduAvgBitRate = {};
    tarn::CpsSduAvgSize CpsSduAvgSize = {};
};
struct Idnns {
    tarn::RoutingBasis RoutingBasis = {};
    tarn::RoutingParameter RoutingParameter = {};
};
struct RabSetupFailedInfo {
    tarn::RabId RabId = {};
    tarn::RabSetupFailCause RabSetupFailCause = {};
};
struct RabReleaseInfo {
    tarn::RabId RabId = {};
    tarn::RabReleaseCause RabReleaseCause = {};
};
using RabIdList = List<RabId, std::uint32_t, 3>;
struct HandoutRabReleaseInfo {
    tarn::CnDomainId CnDomainId = {};
    tarn::RabIdList RabIdList = {};
};
using IpAddress = List<IpAddressByte, std::uint32_t, 4>;
struct IapTransLayerInfo {
    tarn::IpAddress IpAddress = {};
    tarn::UdpPort UdpPort = {};
};
using BitRates = List<BitRate, std::uint32_t, 2>;
using PdpTypeInfoList = List<PdpTypeInfo, std::uint32_t, 2>;
using RabSetupFailedList = List<RabSetupFailedInfo, std::uint32_t, 3>;
using RabReleaseList = List<RabReleaseInfo, std::uint32_t, 3>;
using HandoutRabReleaseList = List<HandoutRabReleaseInfo, std::uint32_t, 2>;

/* ==== Records of composite IEs ================================================================ */

/* Data volumes transferred over one RAB. */
struct RabDataInfo {
    std::uint8_t presence = 0;
    tarn::RabId RabId = {};
    tarn::SuccTransferAtPsiw SuccTransferAtPsiw = {};
    tarn::UnSuccTransferAtRlc UnSuccTransferAtRlc_ = {};
    OptionalMember<tarn::UnSuccTransferAtRlc> UnSuccTransferAtRlc() {
        return {UnSuccTransferAtRlc_, presence, 0x80};
    }
    OptionalMember<const tarn::UnSuccTransferAtRlc> UnSuccTransferAtRlc() const {
        return {UnSuccTransferAtRlc_, presence, 0x80};
    }
};

/* SDU format information of one RAB subflow combination. */
struct SduFormatInfoParams {
    std::uint8_t presence = 0;
    tarn::SduSize SduSize_ = {};
    tarn::RabSubflowCombBitRate RabSubflowCombBitRate_ = {};
    OptionalMember<tarn::SduSize> SduSize() {
        return {SduSize_, presence, 0x80};
    }
    OptionalMember<const tarn::SduSize> SduSize() const {
        return {SduSize_, presence, 0x80};
    }
    OptionalMember<tarn::RabSubflowCombBitRate> RabSubflowCombBitRate() {
        return {RabSubflowCombBitRate_, presence, 0x40};
    }
    OptionalMember<const tarn::RabSubflowCombBitRate> RabSubflowCombBitRate() const {
        return {RabSubflowCombBitRate_, presence, 0x40};
    }
};

/* One RAB that was set up. */
struct RabSetupSuccessInfo {
    std::uint8_t presence = 0;
    tarn::RabId RabId = {};
    tarn::UdpPort UdpPort_ = {};
    tarn::GtpTeid GtpTeid_ = {};
    OptionalMember<tarn::UdpPort> UdpPort() {
        return {UdpPort_, presence, 0x80};
    }
    OptionalMember<const tarn::UdpPort> UdpPort() const {
        return {UdpPort_, presence, 0x80};
    }
    OptionalMember<tarn::GtpTeid> GtpTeid() {
        return {GtpTeid_, presence, 0x40};
    }
    OptionalMember<const tarn::GtpTeid> GtpTeid() const {
        return {GtpTeid_, presence, 0x40};
    }
};

/* Source RNC to target RNC transparent container, as modified for the access point. */
struct ModifiedSrncContainer {
    std::uint8_t presence = 0;
    tarn::RrcContainer RrcContainer = {};
    tarn::TargetCellId TargetCellId = {};
    tarn::NumIuInstances NumIuInstances = {};
    tarn::IntProtAlgo IntProtAlgo_ = {};
    tarn::IntProtKey IntProtKey_ = {};
    tarn::EncryptAlgo EncryptAlgo_ = {};
    tarn::EncryptKey EncryptKey_ = {};
    tarn::CsUserEncryptAlgo CsUserEncryptAlgo_ = {};
    tarn::PsUserEncryptAlgo PsUserEncryptAlgo_ = {};
    OptionalMember<tarn::IntProtAlgo> IntProtAlgo() {
        return {IntProtAlgo_, presence, 0x80};
    }
    OptionalMember<const tarn::IntProtAlgo> IntProtAlgo() const {
        return {IntProtAlgo_, presence, 0x80};
    }
    OptionalMember<tarn::IntProtKey> IntProtKey() {
        return {IntProtKey_, presence, 0x40};
    }
    OptionalMember<const tarn::IntProtKey> IntProtKey() const {
        return {IntProtKey_, presence, 0x40};
    }
    OptionalMember<tarn::EncryptAlgo> EncryptAlgo() {
        return {EncryptAlgo_, presence, 0x20};
    }
    OptionalMember<const tarn::EncryptAlgo> EncryptAlgo() const {
        return {EncryptAlgo_, presence, 0x20};
    }
    OptionalMember<tarn::EncryptKey> EncryptKey() {
        return {EncryptKey_, presence, 0x10};
    }
    OptionalMember<const tarn::EncryptKey> EncryptKey() const {
        return {EncryptKey_, presence, 0x10};
    }
    OptionalMember<tarn::CsUserEncryptAlgo> CsUserEncryptAlgo() {
        return {CsUserEncryptAlgo_, presence, 0x08};
    }
    OptionalMember<const tarn::CsUserEncryptAlgo> CsUserEncryptAlgo() const {
        return {CsUserEncryptAlgo_, presence, 0x08};
    }
    OptionalMember<tarn::PsUserEncryptAlgo> PsUserEncryptAlgo() {
        return {PsUserEncryptAlgo_, presence, 0x04};
    }
    OptionalMember<const tarn::PsUserEncryptAlgo> PsUserEncryptAlgo() const {
        return {PsUserEncryptAlgo_, presence, 0x04};
    }
};

/* Packet switched gateway: GTP-U endpoint of the user plane. */
struct PsIuhGatewayInfo {
    std::uint8_t presence = 0;
    tarn::IpAddress IpAddress = {};
    tarn::GtpTeid GtpTeid = {};
    tarn::UdpPort UdpPort_ = {};
    tarn::Tos Tos_ = {};
    tarn::GtpEchoPeriod GtpEchoPeriod_ = {};
    OptionalMember<tarn::UdpPort> UdpPort() {
        return {UdpPort_, presence, 0x80};
    }
    OptionalMember<const tarn::UdpPort> UdpPort() const {
        return {UdpPort_, presence, 0x80};
    }
    OptionalMember<tarn::Tos> Tos() {
        return {Tos_, presence, 0x40};
    }
    OptionalMember<const tarn::Tos> Tos() const {
        return {Tos_, presence, 0x40};
    }
    OptionalMember<tarn::GtpEchoPeriod> GtpEchoPeriod() {
        return {GtpEchoPeriod_, presence, 0x20};
    }
    OptionalMember<const tarn::GtpEchoPeriod> GtpEchoPeriod() const {
        return {GtpEchoPeriod_, presence, 0x20};
    }
};

/* RTP server: endpoint of the circuit switched user plane. */
struct RtpServerInfo {
    std::uint8_t presence = 0;
    tarn::IpAddress IpAddress = {};
    tarn::UdpPort UdpPort = {};
    tarn::Tos Tos_ = {};
    tarn::RtcpTransInterval RtcpTransInterval_ = {};
    tarn::JitterBufferSize JitterBufferSize_ = {};
    tarn::MuxUdpPort MuxUdpPort_ = {};
    OptionalMember<tarn::Tos> Tos() {
        return {Tos_, presence, 0x80};
    }
    OptionalMember<const tarn::Tos> Tos() const {
        return {Tos_, presence, 0x80};
    }
    OptionalMember<tarn::RtcpTransInterval> RtcpTransInterval() {
        return {RtcpTransInterval_, presence, 0x40};
    }
    OptionalMember<const tarn::RtcpTransInterval> RtcpTransInterval() const {
        return {RtcpTransInterval_, presence, 0x40};
    }
    OptionalMember<tarn::JitterBufferSize> JitterBufferSize() {
        return {JitterBufferSize_, presence, 0x20};
    }
    OptionalMember<const tarn::JitterBufferSize> JitterBufferSize() const {
        return {JitterBufferSize_, presence, 0x20};
    }
    OptionalMember<tarn::MuxUdpPort> MuxUdpPort() {
        return {MuxUdpPort_, presence, 0x10};
    }
    OptionalMember<const tarn::MuxUdpPort> MuxUdpPort() const {
        return {MuxUdpPort_, presence, 0x10};
    }
};

/* Target RNC identity. */
struct TargetRNCId {
    std::uint8_t presence = 0;
    tarn::LAI LAI = {};
    tarn::RNCId RNCId = {};
    tarn::RAC RAC_ = {};
    OptionalMember<tarn::RAC> RAC() {
        return {RAC_, presence, 0x80};
    }
    OptionalMember<const tarn::RAC> RAC() const {
        return {RAC_, presence, 0x80};
    }
};

/* Data volumes of the UE's RABs. */
using RabDataInfoList = List<RabDataInfo, std::uint16_t, 3>;

/* Reference to one UE context. */
struct UeContextRef {
    std::uint8_t presence = 0;
    tarn::AcUeId AcUeId = {};
    tarn::Srnti Srnti_ = {};
    tarn::RabDataInfoList RabDataInfoList_ = {};
    OptionalMember<tarn::Srnti> Srnti() {
        return {Srnti_, presence, 0x80};
    }
    OptionalMember<const tarn::Srnti> Srnti() const {
        return {Srnti_, presence, 0x80};
    }
    OptionalMember<tarn::RabDataInfoList> RabDataInfoList() {
        return {RabDataInfoList_, presence, 0x40};
    }
    OptionalMember<const tarn::RabDataInfoList> RabDataInfoList() const {
        return {RabDataInfoList_, presence, 0x40};
    }
};

/* RABs that were set up. */
using RabSetupSuccessList = List<RabSetupSuccessInfo, std::uint16_t, 3>;

/* Resources allocated for one core network domain at a handover. */
struct ResourceInfoPerCnDomainAck {
    std::uint8_t presence = 0;
    tarn::CnDomainId CnDomainId = {};
    tarn::RabSetupSuccessList RabSetupSuccessList_ = {};
    tarn::RabSetupFailedList RabSetupFailedList_ = {};
    tarn::EncryptAlgo EncryptAlgo_ = {};
    OptionalMember<tarn::RabSetupSuccessList> RabSetupSuccessList() {
        return {RabSetupSuccessList_, presence, 0x80};
    }
    OptionalMember<const tarn::RabSetupSuccessList> RabSetupSuccessList() const {
        return {RabSetupSuccessList_, presence, 0x80};
    }
    OptionalMember<tarn::RabSetupFailedList> RabSetupFailedList() {
        return {RabSetupFailedList_, presence, 0x40};
    }
    OptionalMember<const tarn::RabSetupFailedList> RabSetupFailedList() const {
        return {RabSetupFailedList_, presence, 0x40};
    }
    OptionalMember<tarn::EncryptAlgo> EncryptAlgo() {
        return {EncryptAlgo_, presence, 0x20};
    }
    OptionalMember<const tarn::EncryptAlgo> EncryptAlgo() const {
        return {EncryptAlgo_, presence, 0x20};
    }
};

/* Resources allocated at a handover, by core network domain. */
using ResourceInfoPerCnDomainListAck = List<ResourceInfoPerCnDomainAck, std::uint16_t, 2>;

/* SDU format information parameters. */
using SduFormatInfoParamList = List<SduFormatInfoParams, std::uint16_t, 64>;

/* SDU parameters of one RAB subflow. */
struct SduParamValue {
    std::uint8_t presence = 0;
    tarn::DeliveryOfErrSdu DeliveryOfErrSdu = {};
    tarn::BitErrRatio BitErrRatio = {};
    tarn::SduFormatInfoParamList SduFormatInfoParamList_ = {};
    tarn::BitErrRatio SecondBitErrRatio_ = {};
    OptionalMember<tarn::SduFormatInfoParamList> SduFormatInfoParamList() {
        return {SduFormatInfoParamList_, presence, 0x80};
    }
    OptionalMember<const tarn::SduFormatInfoParamList> SduFormatInfoParamList() const {
        return {SduFormatInfoParamList_, presence, 0x80};
    }
    OptionalMember<tarn::BitErrRatio> SecondBitErrRatio() {
        return {SecondBitErrRatio_, presence, 0x40};
    }
    OptionalMember<const tarn::BitErrRatio> SecondBitErrRatio() const {
        return {SecondBitErrRatio_, presence, 0x40};
    }
};

/* SDU parameters, one element for each RAB subflow. */
using SduParams = List<SduParamValue, std::uint16_t, 7>;

/* RAB parameters (quality of service). */
struct RabParams {
    std::uint8_t presence = 0;
    tarn::TrafficClass TrafficClass = {};
    tarn::RabAssymetryInd RabAssymetryInd = {};
    tarn::DeliveryOrder DeliveryOrder = {};
    tarn::MaxSduSize MaxSduSize = {};
    tarn::BitRates BitRates = {};
    tarn::SduParams SduParams = {};
    tarn::PdpTypeInfoList PdpTypeInfoList_ = {};
    tarn::AllocRetPriority AllocRetPriority_ = {};
    tarn::DataVolReportingFlag DataVolReportingFlag_ = {};
    tarn::BitRates SecondBitRates_ = {};
    tarn::SourceStatsDescriptor SourceStatsDescriptor_ = {};
    tarn::TransDelay TransDelay_ = {};
    tarn::TrafficHandlingPriority TrafficHandlingPriority_ = {};
    OptionalMember<tarn::PdpTypeInfoList> PdpTypeInfoList() {
        return {PdpTypeInfoList_, presence, 0x80};
    }
    OptionalMember<const tarn::PdpTypeInfoList> PdpTypeInfoList() const {
        return {PdpTypeInfoList_, presence, 0x80};
    }
    OptionalMember<tarn::AllocRetPriority> AllocRetPriority() {
        return {AllocRetPriority_, presence, 0x40};
    }
    OptionalMember<const tarn::AllocRetPriority> AllocRetPriority() const {
        return {AllocRetPriority_, presence, 0x40};
    }
    OptionalMember<tarn::DataVolReportingFlag> DataVolReportingFlag() {
        return {DataVolReportingFlag_, presence, 0x20};
    }
    OptionalMember<const tarn::DataVolReportingFlag> DataVolReportingFlag() const {
        return {DataVolReportingFlag_, presence, 0x20};
    }
    OptionalMember<tarn::BitRates> SecondBitRates() {
        return {SecondBitRates_, presence, 0x10};
    }
    OptionalMember<const tarn::BitRates> SecondBitRates() const {
        return {SecondBitRates_, presence, 0x10};
    }
    OptionalMember<tarn::SourceStatsDescriptor> SourceStatsDescriptor() {
        return {SourceStatsDescriptor_, presence, 0x08};
    }
    OptionalMember<const tarn::SourceStatsDescriptor> SourceStatsDescriptor() const {
        return {SourceStatsDescriptor_, presence, 0x08};
    }
    OptionalMember<tarn::TransDelay> TransDelay() {
        return {TransDelay_, presence, 0x04};
    }
    OptionalMember<const tarn::TransDelay> TransDelay() const {
        return {TransDelay_, presence, 0x04};
    }
    OptionalMember<tarn::TrafficHandlingPriority> TrafficHandlingPriority() {
        return {TrafficHandlingPriority_, presence, 0x02};
    }
    OptionalMember<const tarn::TrafficHandlingPriority> TrafficHandlingPriority() const {
        return {TrafficHandlingPriority_, presence, 0x02};
    }
};

/* One RAB to set up. */
struct RabToSetUpInfo {
    std::uint8_t presence = 0;
    tarn::RabId RabId = {};
    tarn::AcUserPlaneAssociation AcUserPlaneAssociation = {};
    tarn::RabParams RabParams = {};
    tarn::NasSyncInd NasSyncInd_ = {};
    tarn::UserPlaneInfo UserPlaneInfo_ = {};
    tarn::ServiceHandover ServiceHandover_ = {};
    OptionalMember<tarn::NasSyncInd> NasSyncInd() {
        return {NasSyncInd_, presence, 0x80};
    }
    OptionalMember<const tarn::NasSyncInd> NasSyncInd() const {
        return {NasSyncInd_, presence, 0x80};
    }
    OptionalMember<tarn::UserPlaneInfo> UserPlaneInfo() {
        return {UserPlaneInfo_, presence, 0x40};
    }
    OptionalMember<const tarn::UserPlaneInfo> UserPlaneInfo() const {
        return {UserPlaneInfo_, presence, 0x40};
    }
    OptionalMember<tarn::ServiceHandover> ServiceHandover() {
        return {ServiceHandover_, presence, 0x20};
    }
    OptionalMember<const tarn::ServiceHandover> ServiceHandover() const {
        return {ServiceHandover_, presence, 0x20};
    }
};

/* RABs to set up. */
using RabList = List<RabToSetUpInfo, std::uint16_t, 3>;

/* RABs to set up for one core network domain at a handover. */
struct RabToSetupPerCnDomain {
    std::uint8_t presence = 0;
    tarn::CnDomainId CnDomainId = {};
    tarn::RabList RabList_ = {};
    tarn::EncryptInfo EncryptInfo_ = {};
    OptionalMember<tarn::RabList> RabList() {
        return {RabList_, presence, 0x80};
    }
    OptionalMember<const tarn::RabList> RabList() const {
        return {RabList_, presence, 0x80};
    }
    OptionalMember<tarn::EncryptInfo> EncryptInfo() {
        return {EncryptInfo_, presence, 0x40};
    }
    OptionalMember<const tarn::EncryptInfo> EncryptInfo() const {
        return {EncryptInfo_, presence, 0x40};
    }
};

/* RABs to set up at a handover, by core network domain. */
using RabToSetupPerCnDomainList = List<RabToSetupPerCnDomain, std::uint16_t, 2>;

/* ==== Records of messages ===================================================================== */

/* AP to AC: asks for a UE context. */
struct UeContextRequest {
    static constexpr std::uint8_t id = TarnUeContextRequestMsgId;
    static constexpr const char *name = "UeContextRequest";
    static constexpr std::uint32_t max_size = 25;
    using CRecord = TarnUeContextRequestRecord;
    static constexpr auto c_build = TarnBuildUeContextRequestMsg;
    static constexpr auto c_get = TarnGetUeContextRequestMsg;

    std::uint8_t MessageId = id;
    std::uint8_t presence = 0;
    tarn::Srnti Srnti = {};
    tarn::EstablishCause EstablishCause = {};
};

/* AC to AP: accepts a UE context request. */
struct UeContextAccept {
    static constexpr std::uint8_t id = TarnUeContextAcceptMsgId;
    static constexpr const char *name = "UeContextAccept";
    static constexpr std::uint32_t max_size = 27;
    using CRecord = TarnUeContextAcceptRecord;
    static constexpr auto c_build = TarnBuildUeContextAcceptMsg;
    static constexpr auto c_get = TarnGetUeContextAcceptMsg;

    std::uint8_t MessageId = id;
    std::uint8_t presence = 0;
    tarn::Srnti Srnti = {};
    tarn::AcUeId AcUeId = {};
};

/* AC to AP: rejects a UE context request. */
struct UeContextReject {
    static constexpr std::uint8_t id = TarnUeContextRejectMsgId;
    static constexpr const char *name = "UeContextReject";
    static constexpr std::uint32_t max_size = 25;
    using CRecord = TarnUeContextRejectRecord;
    static constexpr auto c_build = TarnBuildUeContextRejectMsg;
    static constexpr auto c_get = TarnGetUeContextRejectMsg;

    std::uint8_t MessageId = id;
    std::uint8_t presence = 0;
    tarn::Srnti Srnti = {};
    tarn::RejectCause RejectCause = {};
};

/* Releases a UE context. */
struct UeContextRelease {
    static constexpr std::uint8_t id = TarnUeContextReleaseMsgId;
    static constexpr const char *name = "UeContextRelease";
    static constexpr std::uint32_t max_size = 140;
    using CRecord = TarnUeContextReleaseRecord;
    static constexpr auto c_build = TarnBuildUeContextReleaseMsg;
    static constexpr auto c_get = TarnGetUeContextReleaseMsg;

    std::uint8_t MessageId = id;
    std::uint8_t presence = 0;
    tarn::Srnti Srnti = {};
    tarn::AcUeId AcUeId = {};
    tarn::ReleaseCause ReleaseCause = {};
    tarn::RabDataInfoList RabDataInfoList_ = {};
    OptionalMember<tarn::RabDataInfoList> RabDataInfoList() {
        return {RabDataInfoList_, presence, 0x80};
    }
    OptionalMember<const tarn::RabDataInfoList> RabDataInfoList() const {
        return {RabDataInfoList_, presence, 0x80};
    }
};

/* AP to AC: the UE's first NAS message towards a core network domain. */
struct InitDirectTransfer {
    static constexpr std::uint8_t id = TarnInitDirectTransferMsgId;
    static constexpr const char *name = "InitDirectTransfer";
    static constexpr std::uint32_t max_size = 4180;
    using CRecord = TarnInitDirectTransferRecord;
    static constexpr auto c_build = TarnBuildInitDirectTransferMsg;
    static constexpr auto c_get = TarnGetInitDirectTransferMsg;

    std::uint8_t MessageId = id;
    std::uint8_t presence = 0;
    tarn::Srnti Srnti = {};
    tarn::AcUeId AcUeId = {};
    tarn::CnDomainId CnDomainId = {};
    tarn::NasMsg NasMsg = {};
    tarn::Imsi Imsi_ = {};
    tarn::Idnns Idnns_ = {};
    OptionalMember<tarn::Imsi> Imsi() {
        return {Imsi_, presence, 0x80};
    }
    OptionalMember<const tarn::Imsi> Imsi() const {
        return {Imsi_, presence, 0x80};
    }
    OptionalMember<tarn::Idnns> Idnns() {
        return {Idnns_, presence, 0x40};
    }
    OptionalMember<const tarn::Idnns> Idnns() const {
        return {Idnns_, presence, 0x40};
    }
};

/* AP to AC: a NAS message from the UE. */
struct UlDirectTransfer {
    static constexpr std::uint8_t id = TarnUlDirectTransferMsgId;
    static constexpr const char *name = "UlDirectTransfer";
    static constexpr std::uint32_t max_size = 4136;
    using CRecord = TarnUlDirectTransferRecord;
    static constexpr auto c_build = TarnBuildUlDirectTransferMsg;
    static constexpr auto c_get = TarnGetUlDirectTransferMsg;

    std::uint8_t MessageId = id;
    std::uint8_t presence = 0;
    tarn::Srnti Srnti = {};
    tarn::AcUeId AcUeId = {};
    tarn::CnDomainId CnDomainId = {};
    tarn::NasMsg NasMsg = {};
};

/* AC to AP: a NAS message to the UE. */
struct DlDirectTransfer {
    static constexpr std::uint8_t id = TarnDlDirectTransferMsgId;
    static constexpr const char *name = "DlDirectTransfer";
    static constexpr std::uint32_t max_size = 4144;
    using CRecord = TarnDlDirectTransferRecord;
    static constexpr auto c_build = TarnBuildDlDirectTransferMsg;
    static constexpr auto c_get = TarnGetDlDirectTransferMsg;

    std::uint8_t MessageId = id;
    std::uint8_t presence = 0;
    tarn::Srnti Srnti = {};
    tarn::AcUeId AcUeId = {};
    tarn::CnDomainId CnDomainId = {};
    tarn::NasMsg NasMsg = {};
    tarn::SapiId SapiId = {};
};

/* AP to AC: asks for the release of an Iu connection. */
struct IuReleaseRequest {
    static constexpr std::uint8_t id = TarnIuReleaseRequestMsgId;
    static constexpr const char *name = "IuReleaseRequest";
    static constexpr std::uint32_t max_size = 43;
    using CRecord = TarnIuReleaseRequestRecord;
    static constexpr auto c_build = TarnBuildIuReleaseRequestMsg;
    static constexpr auto c_get = TarnGetIuReleaseRequestMsg;

    std::uint8_t MessageId = id;
    std::uint8_t presence = 0;
    tarn::Srnti Srnti = {};
    tarn::AcUeId AcUeId = {};
    tarn::CnDomainId CnDomainId = {};
    tarn::IuRelReqCause IuRelReqCause = {};
};

/* AC to AP: releases an Iu connection. */
struct IuReleaseCommand {
    static constexpr std::uint8_t id = TarnIuReleaseCommandMsgId;
    static constexpr const char *name = "IuReleaseCommand";
    static constexpr std::uint32_t max_size = 59;
    using CRecord = TarnIuReleaseCommandRecord;
    static constexpr auto c_build = TarnBuildIuReleaseCommandMsg;
    static constexpr auto c_get = TarnGetIuReleaseCommandMsg;

    std::uint8_t MessageId = id;
    std::uint8_t presence = 0;
    tarn::Srnti Srnti = {};
    tarn::AcUeId AcUeId = {};
    tarn::CnDomainId CnDomainId = {};
    tarn::IuRelCause IuRelCause = {};
    tarn::RespExpected RespExpected = {};
    tarn::IuRelCauseNew IuRelCauseNew_ = {};
    OptionalMember<tarn::IuRelCauseNew> IuRelCauseNew() {
        return {IuRelCauseNew_, presence, 0x80};
    }
    OptionalMember<const tarn::IuRelCauseNew> IuRelCauseNew() const {
        return {IuRelCauseNew_, presence, 0x80};
    }
};

/* AC to AP: starts integrity protection and ciphering. */
struct SecurityModeCommand {
    static constexpr std::uint8_t id = TarnSecurityModeCommandMsgId;
    static constexpr const char *name = "SecurityModeCommand";
    static constexpr std::uint32_t max_size = 129;
    using CRecord = TarnSecurityModeCommandRecord;
    static constexpr auto c_build = TarnBuildSecurityModeCommandMsg;
    static constexpr auto c_get = TarnGetSecurityModeCommandMsg;

    std::uint8_t MessageId = id;
    std::uint8_t presence = 0;
    tarn::Srnti Srnti = {};
    tarn::AcUeId AcUeId = {};
    tarn::CnDomainId CnDomainId = {};
    tarn::IntProtInfo IntProtInfo = {};
    tarn::KeyStatus KeyStatus = {};
    tarn::EncryptInfo EncryptInfo_ = {};
    OptionalMember<tarn::EncryptInfo> EncryptInfo() {
        return {EncryptInfo_, presence, 0x80};
    }
    OptionalMember<const tarn::EncryptInfo> EncryptInfo() const {
        return {EncryptInfo_, presence, 0x80};
    }
};

/* AP to AC: security mode control has succeeded. */
struct SecurityModeComplete {
    static constexpr std::uint8_t id = TarnSecurityModeCompleteMsgId;
    static constexpr const char *name = "SecurityModeComplete";
    static constexpr std::uint32_t max_size = 51;
    using CRecord = TarnSecurityModeCompleteRecord;
    static constexpr auto c_build = TarnBuildSecurityModeCompleteMsg;
    static constexpr auto c_get = TarnGetSecurityModeCompleteMsg;

    std::uint8_t MessageId = id;
    std::uint8_t presence = 0;
    tarn::Srnti Srnti = {};
    tarn::AcUeId AcUeId = {};
    tarn::CnDomainId CnDomainId = {};
    tarn::IntProtAlgo IntProtAlgo = {};
    tarn::EncryptAlgo EncryptAlgo_ = {};
    OptionalMember<tarn::EncryptAlgo> EncryptAlgo() {
        return {EncryptAlgo_, presence, 0x80};
    }
    OptionalMember<const tarn::EncryptAlgo> EncryptAlgo() const {
        return {EncryptAlgo_, presence, 0x80};
    }
};

/* AP to AC: security mode control has failed. */
struct SecurityModeReject {
    static constexpr std::uint8_t id = TarnSecurityModeRejectMsgId;
    static constexpr const char *name = "SecurityModeReject";
    static constexpr std::uint32_t max_size = 43;
    using CRecord = TarnSecurityModeRejectRecord;
    static constexpr auto c_build = TarnBuildSecurityModeRejectMsg;
    static constexpr auto c_get = TarnGetSecurityModeRejectMsg;

    std::uint8_t MessageId = id;
    std::uint8_t presence = 0;
    tarn::Srnti Srnti = {};
    tarn::AcUeId AcUeId = {};
    tarn::CnDomainId CnDomainId = {};
    tarn::SecRejCause SecRejCause = {};
};

/* AC to AP: sets up RABs. */
struct RabAssignmentRequest {
    static constexpr std::uint8_t id = TarnRabAssignmentRequestMsgId;
    static constexpr const char *name = "RabAssignmentRequest";
    static constexpr std::uint32_t max_size = 34295;
    using CRecord = TarnRabAssignmentRequestRecord;
    static constexpr auto c_build = TarnBuildRabAssignmentRequestMsg;
    static constexpr auto c_get = TarnGetRabAssignmentRequestMsg;

    std::uint8_t MessageId = id;
    std::uint8_t presence = 0;
    tarn::Srnti Srnti = {};
    tarn::AcUeId AcUeId = {};
    tarn::CnDomainId CnDomainId = {};
    tarn::RabList RabList = {};
};

/* AP to AC: tells which RABs were set up. */
struct RabAssignmentResponse {
    static constexpr std::uint8_t id = TarnRabAssignmentResponseMsgId;
    static constexpr const char *name = "RabAssignmentResponse";
    static constexpr std::uint32_t max_size = 203;
    using CRecord = TarnRabAssignmentResponseRecord;
    static constexpr auto c_build = TarnBuildRabAssignmentResponseMsg;
    static constexpr auto c_get = TarnGetRabAssignmentResponseMsg;

    std::uint8_t MessageId = id;
    std::uint8_t presence = 0;
    tarn::Srnti Srnti = {};
    tarn::AcUeId AcUeId = {};
    tarn::CnDomainId CnDomainId = {};
    tarn::RabSetupSuccessList RabSetupSuccessList_ = {};
    tarn::RabSetupFailedList RabSetupFailedList_ = {};
    OptionalMember<tarn::RabSetupSuccessList> RabSetupSuccessList() {
        return {RabSetupSuccessList_, presence, 0x80};
    }
    OptionalMember<const tarn::RabSetupSuccessList> RabSetupSuccessList() const {
        return {RabSetupSuccessList_, presence, 0x80};
    }
    OptionalMember<tarn::RabSetupFailedList> RabSetupFailedList() {
        return {RabSetupFailedList_, presence, 0x40};
    }
    OptionalMember<const tarn::RabSetupFailedList> RabSetupFailedList() const {
        return {RabSetupFailedList_, presence, 0x40};
    }
};

/* Releases RABs. */
struct RabReleaseRequest {
    static constexpr std::uint8_t id = TarnRabReleaseRequestMsgId;
    static constexpr const char *name = "RabReleaseRequest";
    static constexpr std::uint32_t max_size = 104;
    using CRecord = TarnRabReleaseRequestRecord;
    static constexpr auto c_build = TarnBuildRabReleaseRequestMsg;
    static constexpr auto c_get = TarnGetRabReleaseRequestMsg;

    std::uint8_t MessageId = id;
    std::uint8_t presence = 0;
    tarn::Srnti Srnti = {};
    tarn::AcUeId AcUeId = {};
    tarn::CnDomainId CnDomainId = {};
    tarn::RabReleaseList RabReleaseList = {};
};

/* Tells which RABs were released. */
struct RabReleaseResponse {
    static constexpr std::uint8_t id = TarnRabReleaseResponseMsgId;
    static constexpr const char *name = "RabReleaseResponse";
    static constexpr std::uint32_t max_size = 167;
    using CRecord = TarnRabReleaseResponseRecord;
    static constexpr auto c_build = TarnBuildRabReleaseResponseMsg;
    static constexpr auto c_get = TarnGetRabReleaseResponseMsg;

    std::uint8_t MessageId = id;
    std::uint8_t presence = 0;
    tarn::Srnti Srnti = {};
    tarn::AcUeId AcUeId = {};
    tarn::CnDomainId CnDomainId = {};
    tarn::RabDataInfoList RabDataInfoList_ = {};
    tarn::RabIdList RabIdList_ = {};
    OptionalMember<tarn::RabDataInfoList> RabDataInfoList() {
        return {RabDataInfoList_, presence, 0x80};
    }
    OptionalMember<const tarn::RabDataInfoList> RabDataInfoList() const {
        return {RabDataInfoList_, presence, 0x80};
    }
    OptionalMember<tarn::RabIdList> RabIdList() {
        return {RabIdList_, presence, 0x40};
    }
    OptionalMember<const tarn::RabIdList> RabIdList() const {
        return {RabIdList_, presence, 0x40};
    }
};

/* Resets one core network domain. */
struct Reset {
    static constexpr std::uint8_t id = TarnResetMsgId;
    static constexpr const char *name = "Reset";
    static constexpr std::uint32_t max_size = 15;
    using CRecord = TarnResetRecord;
    static constexpr auto c_build = TarnBuildResetMsg;
    static constexpr auto c_get = TarnGetResetMsg;

    std::uint8_t MessageId = id;
    std::uint8_t presence = 0;
    tarn::CnDomainId CnDomainId = {};
};

/* Resets the access point or the UE contexts listed. */
struct IapReset {
    static constexpr std::uint8_t id = TarnIapResetMsgId;
    static constexpr const char *name = "IapReset";
    static constexpr std::uint32_t max_size = 154;
    using CRecord = TarnIapResetRecord;
    static constexpr auto c_build = TarnBuildIapResetMsg;
    static constexpr auto c_get = TarnGetIapResetMsg;

    std::uint8_t MessageId = id;
    std::uint8_t presence = 0;
    tarn::ErrorCause ErrorCause = {};
    tarn::Reset3GAP Reset3GAP = {};
    tarn::UeContextRef UeContextRef_ = {};
    OptionalMember<tarn::UeContextRef> UeContextRef() {
        return {UeContextRef_, presence, 0x80};
    }
    OptionalMember<const tarn::UeContextRef> UeContextRef() const {
        return {UeContextRef_, presence, 0x80};
    }
};

/* AC to AP: pages a UE that has a UE context. */
struct ConnectedModePaging {
    static constexpr std::uint8_t id = TarnConnectedModePagingMsgId;
    static constexpr const char *name = "ConnectedModePaging";
    static constexpr std::uint32_t max_size = 65;
    using CRecord = TarnConnectedModePagingRecord;
    static constexpr auto c_build = TarnBuildConnectedModePagingMsg;
    static constexpr auto c_get = TarnGetConnectedModePagingMsg;

    std::uint8_t MessageId = id;
    std::uint8_t presence = 0;
    tarn::Srnti Srnti = {};
    tarn::AcUeId AcUeId = {};
    tarn::NasUeId NasUeId = {};
    tarn::CnDomainId CnDomainId = {};
    tarn::PagingCause PagingCause = {};
    tarn::PagingRecordTypeInd PagingRecordTypeInd = {};
};

/* AC to AP: pages a UE that has none. */
struct IdleModePaging {
    static constexpr std::uint8_t id = TarnIdleModePagingMsgId;
    static constexpr const char *name = "IdleModePaging";
    static constexpr std::uint32_t max_size = 69;
    using CRecord = TarnIdleModePagingRecord;
    static constexpr auto c_build = TarnBuildIdleModePagingMsg;
    static constexpr auto c_get = TarnGetIdleModePagingMsg;

    std::uint8_t MessageId = id;
    std::uint8_t presence = 0;
    tarn::NasUeId NasUeId = {};
    tarn::CnDomainId CnDomainId = {};
    tarn::PagingCause PagingCause = {};
    tarn::DrxCycleLenCoeff DrxCycleLenCoeff_ = {};
    tarn::TempUeId TempUeId_ = {};
    OptionalMember<tarn::DrxCycleLenCoeff> DrxCycleLenCoeff() {
        return {DrxCycleLenCoeff_, presence, 0x80};
    }
    OptionalMember<const tarn::DrxCycleLenCoeff> DrxCycleLenCoeff() const {
        return {DrxCycleLenCoeff_, presence, 0x80};
    }
    OptionalMember<tarn::TempUeId> TempUeId() {
        return {TempUeId_, presence, 0x40};
    }
    OptionalMember<const tarn::TempUeId> TempUeId() const {
        return {TempUeId_, presence, 0x40};
    }
};

/* Asks for a user plane to be configured. */
struct UserPlaneConfigRequest {
    static constexpr std::uint8_t id = TarnUserPlaneConfigRequestMsgId;
    static constexpr const char *name = "UserPlaneConfigRequest";
    static constexpr std::uint32_t max_size = 118;
    using CRecord = TarnUserPlaneConfigRequestRecord;
    static constexpr auto c_build = TarnBuildUserPlaneConfigRequestMsg;
    static constexpr auto c_get = TarnGetUserPlaneConfigRequestMsg;

    std::uint8_t MessageId = id;
    std::uint8_t presence = 0;
    tarn::Srnti Srnti = {};
    tarn::AcUeId AcUeId = {};
    tarn::RtpStreamId RtpStreamId = {};
    tarn::AcUserPlaneAssociation AcUserPlaneAssociation = {};
    tarn::ApUserPlaneAssociation ApUserPlaneAssociation = {};
    tarn::AlcapLinkCharacteristics AlcapLinkCharacteristics_ = {};
    tarn::MaxBitRateUplink MaxBitRateUplink_ = {};
    tarn::MaxBitRateDownlink MaxBitRateDownlink_ = {};
    OptionalMember<tarn::AlcapLinkCharacteristics> AlcapLinkCharacteristics() {
        return {AlcapLinkCharacteristics_, presence, 0x80};
    }
    OptionalMember<const tarn::AlcapLinkCharacteristics> AlcapLinkCharacteristics() const {
        return {AlcapLinkCharacteristics_, presence, 0x80};
    }
    OptionalMember<tarn::MaxBitRateUplink> MaxBitRateUplink() {
        return {MaxBitRateUplink_, presence, 0x40};
    }
    OptionalMember<const tarn::MaxBitRateUplink> MaxBitRateUplink() const {
        return {MaxBitRateUplink_, presence, 0x40};
    }
    OptionalMember<tarn::MaxBitRateDownlink> MaxBitRateDownlink() {
        return {MaxBitRateDownlink_, presence, 0x20};
    }
    OptionalMember<const tarn::MaxBitRateDownlink> MaxBitRateDownlink() const {
        return {MaxBitRateDownlink_, presence, 0x20};
    }
};

/* Tells how a user plane was configured. */
struct UserPlaneConfigResponse {
    static constexpr std::uint8_t id = TarnUserPlaneConfigResponseMsgId;
    static constexpr const char *name = "UserPlaneConfigResponse";
    static constexpr std::uint32_t max_size = 243;
    using CRecord = TarnUserPlaneConfigResponseRecord;
    static constexpr auto c_build = TarnBuildUserPlaneConfigResponseMsg;
    static constexpr auto c_get = TarnGetUserPlaneConfigResponseMsg;

    std::uint8_t MessageId = id;
    std::uint8_t presence = 0;
    tarn::Srnti Srnti = {};
    tarn::AcUeId AcUeId = {};
    tarn::ApUserPlaneAssociation ApUserPlaneAssociation = {};
    tarn::UserPlaneResult UserPlaneResult = {};
    tarn::RtpServerInfo RtpServerInfo_ = {};
    tarn::RtpSecurityInfo RtpSecurityInfo_ = {};
    tarn::PsIuhGatewayInfo PsIuhGatewayInfo_ = {};
    OptionalMember<tarn::RtpServerInfo> RtpServerInfo() {
        return {RtpServerInfo_, presence, 0x80};
    }
    OptionalMember<const tarn::RtpServerInfo> RtpServerInfo() const {
        return {RtpServerInfo_, presence, 0x80};
    }
    OptionalMember<tarn::RtpSecurityInfo> RtpSecurityInfo() {
        return {RtpSecurityInfo_, presence, 0x40};
    }
    OptionalMember<const tarn::RtpSecurityInfo> RtpSecurityInfo() const {
        return {RtpSecurityInfo_, presence, 0x40};
    }
    OptionalMember<tarn::PsIuhGatewayInfo> PsIuhGatewayInfo() {
        return {PsIuhGatewayInfo_, presence, 0x20};
    }
    OptionalMember<const tarn::PsIuhGatewayInfo> PsIuhGatewayInfo() const {
        return {PsIuhGatewayInfo_, presence, 0x20};
    }
};

/* AP to AC: an Iu connection was released. */
struct IuReleaseComplete {
    static constexpr std::uint8_t id = TarnIuReleaseCompleteMsgId;
    static constexpr const char *name = "IuReleaseComplete";
    static constexpr std::uint32_t max_size = 132;
    using CRecord = TarnIuReleaseCompleteRecord;
    static constexpr auto c_build = TarnBuildIuReleaseCompleteMsg;
    static constexpr auto c_get = TarnGetIuReleaseCompleteMsg;

    std::uint8_t MessageId = id;
    std::uint8_t presence = 0;
    tarn::Srnti Srnti = {};
    tarn::AcUeId AcUeId = {};
    tarn::RabDataInfoList RabDataInfoList_ = {};
    OptionalMember<tarn::RabDataInfoList> RabDataInfoList() {
        return {RabDataInfoList_, presence, 0x80};
    }
    OptionalMember<const tarn::RabDataInfoList> RabDataInfoList() const {
        return {RabDataInfoList_, presence, 0x80};
    }
};

/* AP to AC: asks for the relocation of a UE. */
struct RelocationRequired {
    static constexpr std::uint8_t id = TarnRelocationRequiredMsgId;
    static constexpr const char *name = "RelocationRequired";
    static constexpr std::uint32_t max_size = 2533;
    using CRecord = TarnRelocationRequiredRecord;
    static constexpr auto c_build = TarnBuildRelocationRequiredMsg;
    static constexpr auto c_get = TarnGetRelocationRequiredMsg;

    std::uint8_t MessageId = id;
    std::uint8_t presence = 0;
    tarn::Srnti Srnti = {};
    tarn::AcUeId AcUeId = {};
    tarn::RelocationRequiredCause RelocationRequiredCause = {};
    tarn::RelocationType RelocationType = {};
    tarn::ModifiedSrncContainer ModifiedSrncContainer_ = {};
    tarn::TargetRNCId TargetRNCId_ = {};
    tarn::GsmClassmark2 GsmClassmark2_ = {};
    tarn::GsmClassmark3 GsmClassmark3_ = {};
    tarn::TargetCGI TargetCGI_ = {};
    tarn::OldBssToNewBssInfo OldBssToNewBssInfo_ = {};
    OptionalMember<tarn::ModifiedSrncContainer> ModifiedSrncContainer() {
        return {ModifiedSrncContainer_, presence, 0x80};
    }
    OptionalMember<const tarn::ModifiedSrncContainer> ModifiedSrncContainer() const {
        return {ModifiedSrncContainer_, presence, 0x80};
    }
    OptionalMember<tarn::TargetRNCId> TargetRNCId() {
        return {TargetRNCId_, presence, 0x40};
    }
    OptionalMember<const tarn::TargetRNCId> TargetRNCId() const {
        return {TargetRNCId_, presence, 0x40};
    }
    OptionalMember<tarn::GsmClassmark2> GsmClassmark2() {
        return {GsmClassmark2_, presence, 0x20};
    }
    OptionalMember<const tarn::GsmClassmark2> GsmClassmark2() const {
        return {GsmClassmark2_, presence, 0x20};
    }
    OptionalMember<tarn::GsmClassmark3> GsmClassmark3() {
        return {GsmClassmark3_, presence, 0x10};
    }
    OptionalMember<const tarn::GsmClassmark3> GsmClassmark3() const {
        return {GsmClassmark3_, presence, 0x10};
    }
    OptionalMember<tarn::TargetCGI> TargetCGI() {
        return {TargetCGI_, presence, 0x08};
    }
    OptionalMember<const tarn::TargetCGI> TargetCGI() const {
        return {TargetCGI_, presence, 0x08};
    }
    OptionalMember<tarn::OldBssToNewBssInfo> OldBssToNewBssInfo() {
        return {OldBssToNewBssInfo_, presence, 0x04};
    }
    OptionalMember<const tarn::OldBssToNewBssInfo> OldBssToNewBssInfo() const {
        return {OldBssToNewBssInfo_, presence, 0x04};
    }
};

/* AC to AP: the relocation cannot be done. */
struct RelocationFailure {
    static constexpr std::uint8_t id = TarnRelocationFailureMsgId;
    static constexpr const char *name = "RelocationFailure";
    static constexpr std::uint32_t max_size = 35;
    using CRecord = TarnRelocationFailureRecord;
    static constexpr auto c_build = TarnBuildRelocationFailureMsg;
    static constexpr auto c_get = TarnGetRelocationFailureMsg;

    std::uint8_t MessageId = id;
    std::uint8_t presence = 0;
    tarn::Srnti Srnti = {};
    tarn::AcUeId AcUeId = {};
    tarn::RelocationFailureCause RelocationFailureCause = {};
};

/* AP to AC: cancels a relocation. */
struct RelocationCancel {
    static constexpr std::uint8_t id = TarnRelocationCancelMsgId;
    static constexpr const char *name = "RelocationCancel";
    static constexpr std::uint32_t max_size = 35;
    using CRecord = TarnRelocationCancelRecord;
    static constexpr auto c_build = TarnBuildRelocationCancelMsg;
    static constexpr auto c_get = TarnGetRelocationCancelMsg;

    std::uint8_t MessageId = id;
    std::uint8_t presence = 0;
    tarn::Srnti Srnti = {};
    tarn::AcUeId AcUeId = {};
    tarn::RelocationCancelCause RelocationCancelCause = {};
};

/* AC to AP: hands the UE over to the target. */
struct RelocationCommand {
    static constexpr std::uint8_t id = TarnRelocationCommandMsgId;
    static constexpr const char *name = "RelocationCommand";
    static constexpr std::uint32_t max_size = 2382;
    using CRecord = TarnRelocationCommandRecord;
    static constexpr auto c_build = TarnBuildRelocationCommandMsg;
    static constexpr auto c_get = TarnGetRelocationCommandMsg;

    std::uint8_t MessageId = id;
    std::uint8_t presence = 0;
    tarn::Srnti Srnti = {};
    tarn::AcUeId AcUeId = {};
    tarn::RrcContainer RrcContainer_ = {};
    tarn::L3Information L3Information_ = {};
    tarn::HandoutRabReleaseList HandoutRabReleaseList_ = {};
    OptionalMember<tarn::RrcContainer> RrcContainer() {
        return {RrcContainer_, presence, 0x80};
    }
    OptionalMember<const tarn::RrcContainer> RrcContainer() const {
        return {RrcContainer_, presence, 0x80};
    }
    OptionalMember<tarn::L3Information> L3Information() {
        return {L3Information_, presence, 0x40};
    }
    OptionalMember<const tarn::L3Information> L3Information() const {
        return {L3Information_, presence, 0x40};
    }
    OptionalMember<tarn::HandoutRabReleaseList> HandoutRabReleaseList() {
        return {HandoutRabReleaseList_, presence, 0x20};
    }
    OptionalMember<const tarn::HandoutRabReleaseList> HandoutRabReleaseList() const {
        return {HandoutRabReleaseList_, presence, 0x20};
    }
};

/* AC to AP: asks the target to take a UE over. */
struct HandoverRequest {
    static constexpr std::uint8_t id = TarnHandoverRequestMsgId;
    static constexpr const char *name = "HandoverRequest";
    static constexpr std::uint32_t max_size = 70820;
    using CRecord = TarnHandoverRequestRecord;
    static constexpr auto c_build = TarnBuildHandoverRequestMsg;
    static constexpr auto c_get = TarnGetHandoverRequestMsg;

    std::uint8_t MessageId = id;
    std::uint8_t presence = 0;
    tarn::AcUeId AcUeId = {};
    tarn::HandoverRequestCause HandoverRequestCause = {};
    tarn::ModifiedSrncContainer ModifiedSrncContainer = {};
    tarn::RabToSetupPerCnDomainList RabToSetupPerCnDomainList_ = {};
    tarn::IntProtInfo IntProtInfo_ = {};
    OptionalMember<tarn::RabToSetupPerCnDomainList> RabToSetupPerCnDomainList() {
        return {RabToSetupPerCnDomainList_, presence, 0x80};
    }
    OptionalMember<const tarn::RabToSetupPerCnDomainList> RabToSetupPerCnDomainList() const {
        return {RabToSetupPerCnDomainList_, presence, 0x80};
    }
    OptionalMember<tarn::IntProtInfo> IntProtInfo() {
        return {IntProtInfo_, presence, 0x40};
    }
    OptionalMember<const tarn::IntProtInfo> IntProtInfo() const {
        return {IntProtInfo_, presence, 0x40};
    }
};

/* AP to AC: the target cannot take the UE over. */
struct HandoverFailure {
    static constexpr std::uint8_t id = TarnHandoverFailureMsgId;
    static constexpr const char *name = "HandoverFailure";
    static constexpr std::uint32_t max_size = 35;
    using CRecord = TarnHandoverFailureRecord;
    static constexpr auto c_build = TarnBuildHandoverFailureMsg;
    static constexpr auto c_get = TarnGetHandoverFailureMsg;

    std::uint8_t MessageId = id;
    std::uint8_t presence = 0;
    tarn::Srnti Srnti = {};
    tarn::AcUeId AcUeId = {};
    tarn::HandoverFailureCause HandoverFailureCause = {};
};

/* AP to AC: the target has detected the UE. */
struct HandoverDetect {
    static constexpr std::uint8_t id = TarnHandoverDetectMsgId;
    static constexpr const char *name = "HandoverDetect";
    static constexpr std::uint32_t max_size = 27;
    using CRecord = TarnHandoverDetectRecord;
    static constexpr auto c_build = TarnBuildHandoverDetectMsg;
    static constexpr auto c_get = TarnGetHandoverDetectMsg;

    std::uint8_t MessageId = id;
    std::uint8_t presence = 0;
    tarn::Srnti Srnti = {};
    tarn::AcUeId AcUeId = {};
};

/* AP to AC: the UE has arrived at the target. */
struct HandoverComplete {
    static constexpr std::uint8_t id = TarnHandoverCompleteMsgId;
    static constexpr const char *name = "HandoverComplete";
    static constexpr std::uint32_t max_size = 27;
    using CRecord = TarnHandoverCompleteRecord;
    static constexpr auto c_build = TarnBuildHandoverCompleteMsg;
    static constexpr auto c_get = TarnGetHandoverCompleteMsg;

    std::uint8_t MessageId = id;
    std::uint8_t presence = 0;
    tarn::Srnti Srnti = {};
    tarn::AcUeId AcUeId = {};
};

/* AC to AP: the handover is cancelled. */
struct HandoverCancelInd {
    static constexpr std::uint8_t id = TarnHandoverCancelIndMsgId;
    static constexpr const char *name = "HandoverCancelInd";
    static constexpr std::uint32_t max_size = 27;
    using CRecord = TarnHandoverCancelIndRecord;
    static constexpr auto c_build = TarnBuildHandoverCancelIndMsg;
    static constexpr auto c_get = TarnGetHandoverCancelIndMsg;

    std::uint8_t MessageId = id;
    std::uint8_t presence = 0;
    tarn::Srnti Srnti = {};
    tarn::AcUeId AcUeId = {};
};

/* AP to AC: the target has allocated resources for the UE. */
struct HandoverReqAck {
    static constexpr std::uint8_t id = TarnHandoverReqAckMsgId;
    static constexpr const char *name = "HandoverReqAck";
    static constexpr std::uint32_t max_size = 2427;
    using CRecord = TarnHandoverReqAckRecord;
    static constexpr auto c_build = TarnBuildHandoverReqAckMsg;
    static constexpr auto c_get = TarnGetHandoverReqAckMsg;

    std::uint8_t MessageId = id;
    std::uint8_t presence = 0;
    tarn::Srnti Srnti = {};
    tarn::AcUeId AcUeId = {};
    tarn::RrcContainer RrcContainer = {};
    tarn::IntProtAlgo IntProtAlgo_ = {};
    tarn::ResourceInfoPerCnDomainListAck ResourceInfoPerCnDomainListAck_ = {};
    OptionalMember<tarn::IntProtAlgo> IntProtAlgo() {
        return {IntProtAlgo_, presence, 0x80};
    }
    OptionalMember<const tarn::IntProtAlgo> IntProtAlgo() const {
        return {IntProtAlgo_, presence, 0x80};
    }
    OptionalMember<tarn::ResourceInfoPerCnDomainListAck> ResourceInfoPerCnDomainListAck() {
        return {ResourceInfoPerCnDomainListAck_, presence, 0x40};
    }
    OptionalMember<const tarn::ResourceInfoPerCnDomainListAck>
    ResourceInfoPerCnDomainListAck() const {
        return {ResourceInfoPerCnDomainListAck_, presence, 0x40};
    }
};

/* Asks for a user plane to be modified. */
struct UserPlaneModifyRequest {
    static constexpr std::uint8_t id = TarnUserPlaneModifyRequestMsgId;
    static constexpr const char *name = "UserPlaneModifyRequest";
    static constexpr std::uint32_t max_size = 65;
    using CRecord = TarnUserPlaneModifyRequestRecord;
    static constexpr auto c_build = TarnBuildUserPlaneModifyRequestMsg;
    static constexpr auto c_get = TarnGetUserPlaneModifyRequestMsg;

    std::uint8_t MessageId = id;
    std::uint8_t presence = 0;
    tarn::Srnti Srnti = {};
    tarn::AcUeId AcUeId = {};
    tarn::AcUserPlaneAssociation AcUserPlaneAssociation = {};
    tarn::ApUserPlaneAssociation ApUserPlaneAssociation = {};
    tarn::MaxBitRateUplink MaxBitRateUplink_ = {};
    tarn::MaxBitRateDownlink MaxBitRateDownlink_ = {};
    OptionalMember<tarn::MaxBitRateUplink> MaxBitRateUplink() {
        return {MaxBitRateUplink_, presence, 0x80};
    }
    OptionalMember<const tarn::MaxBitRateUplink> MaxBitRateUplink() const {
        return {MaxBitRateUplink_, presence, 0x80};
    }
    OptionalMember<tarn::MaxBitRateDownlink> MaxBitRateDownlink() {
        return {MaxBitRateDownlink_, presence, 0x40};
    }
    OptionalMember<const tarn::MaxBitRateDownlink> MaxBitRateDownlink() const {
        return {MaxBitRateDownlink_, presence, 0x40};
    }
};

/* Tells how a user plane was modified. */
struct UserPlaneModifyResponse {
    static constexpr std::uint8_t id = TarnUserPlaneModifyResponseMsgId;
    static constexpr const char *name = "UserPlaneModifyResponse";
    static constexpr std::uint32_t max_size = 43;
    using CRecord = TarnUserPlaneModifyResponseRecord;
    static constexpr auto c_build = TarnBuildUserPlaneModifyResponseMsg;
    static constexpr auto c_get = TarnGetUserPlaneModifyResponseMsg;

    std::uint8_t MessageId = id;
    std::uint8_t presence = 0;
    tarn::Srnti Srnti = {};
    tarn::AcUeId AcUeId = {};
    tarn::ApUserPlaneAssociation ApUserPlaneAssociation = {};
    tarn::UserPlaneResult UserPlaneResult = {};
};

/* Tells that RABs must be released. */
struct RabReleaseRequired {
    static constexpr std::uint8_t id = TarnRabReleaseRequiredMsgId;
    static constexpr const char *name = "RabReleaseRequired";
    static constexpr std::uint32_t max_size = 104;
    using CRecord = TarnRabReleaseRequiredRecord;
    static constexpr auto c_build = TarnBuildRabReleaseRequiredMsg;
    static constexpr auto c_get = TarnGetRabReleaseRequiredMsg;

    std::uint8_t MessageId = id;
    std::uint8_t presence = 0;
    tarn::Srnti Srnti = {};
    tarn::AcUeId AcUeId = {};
    tarn::CnDomainId CnDomainId = {};
    tarn::RabReleaseList RabReleaseList = {};
};

/* AP to AC: asks whether a subscriber may use the access point. */
struct AccessControlRequest {
    static constexpr std::uint8_t id = TarnAccessControlRequestMsgId;
    static constexpr const char *name = "AccessControlRequest";
    static constexpr std::uint32_t max_size = 57;
    using CRecord = TarnAccessControlRequestRecord;
    static constexpr auto c_build = TarnBuildAccessControlRequestMsg;
    static constexpr auto c_get = TarnGetAccessControlRequestMsg;

    std::uint8_t MessageId = id;
    std::uint8_t presence = 0;
    tarn::Srnti Srnti = {};
    tarn::AcUeId AcUeId = {};
    tarn::LAC LAC = {};
    tarn::Imsi Imsi = {};
};

/* AC to AP: answers an access control request. */
struct AccessControlResponse {
    static constexpr std::uint8_t id = TarnAccessControlResponseMsgId;
    static constexpr const char *name = "AccessControlResponse";
    static constexpr std::uint32_t max_size = 57;
    using CRecord = TarnAccessControlResponseRecord;
    static constexpr auto c_build = TarnBuildAccessControlResponseMsg;
    static constexpr auto c_get = TarnGetAccessControlResponseMsg;

    std::uint8_t MessageId = id;
    std::uint8_t presence = 0;
    tarn::Srnti Srnti = {};
    tarn::AcUeId AcUeId = {};
    tarn::Imsi Imsi = {};
    tarn::LacMatch LacMatch = {};
};

/* ==== Messages by id ========================================================================== */

namespace detail {

/* The name of a message, or null for an id that is not in use. */
inline const char *name_of(std::uint32_t id) {
    switch (id) {
    case TarnUeContextRequestMsgId:
        return UeContextRequest::name;
    case TarnUeContextAcceptMsgId:
        return UeContextAccept::name;
    case TarnUeContextRejectMsgId:
        return UeContextReject::name;
    case TarnUeContextReleaseMsgId:
        return UeContextRelease::name;
    case TarnInitDirectTransferMsgId:
        return InitDirectTransfer::name;
    case TarnUlDirectTransferMsgId:
        return UlDirectTransfer::name;
    case TarnDlDirectTransferMsgId:
        return DlDirectTransfer::name;
    case TarnIuReleaseRequestMsgId:
        return IuReleaseRequest::name;
    case TarnIuReleaseCommandMsgId:
        return IuReleaseCommand::name;
    case TarnSecurityModeCommandMsgId:
        return SecurityModeCommand::name;
    case TarnSecurityModeCompleteMsgId:
        return SecurityModeComplete::name;
    case TarnSecurityModeRejectMsgId:
        return SecurityModeReject::name;
    case TarnRabAssignmentRequestMsgId:
        return RabAssignmentRequest::name;
    case TarnRabAssignmentResponseMsgId:
        return RabAssignmentResponse::name;
    case TarnRabReleaseRequestMsgId:
        return RabReleaseRequest::name;
    case TarnRabReleaseResponseMsgId:
        return RabReleaseResponse::name;
    case TarnResetMsgId:
        return Reset::name;
    case TarnIapResetMsgId:
        return IapReset::name;
    case TarnConnectedModePagingMsgId:
        return ConnectedModePaging::name;
    case TarnIdleModePagingMsgId:
        return IdleModePaging::name;
    case TarnUserPlaneConfigRequestMsgId:
        return UserPlaneConfigRequest::name;
    case TarnUserPlaneConfigResponseMsgId:
        return UserPlaneConfigResponse::name;
    case TarnIuReleaseCompleteMsgId:
        return IuReleaseComplete::name;
    case TarnRelocationRequiredMsgId:
        return RelocationRequired::name;
    case TarnRelocationFailureMsgId:
        return RelocationFailure::name;
    case TarnRelocationCancelMsgId:
        return RelocationCancel::name;
    case TarnRelocationCommandMsgId:
        return RelocationCommand::name;
    case TarnHandoverRequestMsgId:
        return HandoverRequest::name;
    case TarnHandoverFailureMsgId:
        return HandoverFailure::name;
    case TarnHandoverDetectMsgId:
        return HandoverDetect::name;
    case TarnHandoverCompleteMsgId:
        return HandoverComplete::name;
    case TarnHandoverCancelIndMsgId:
        return HandoverCancelInd::name;
    case TarnHandoverReqAckMsgId:
        return HandoverReqAck::name;
    case TarnUserPlaneModifyRequestMsgId:
        return UserPlaneModifyRequest::name;
    case TarnUserPlaneModifyResponseMsgId:
        return UserPlaneModifyResponse::name;
    case TarnRabReleaseRequiredMsgId:
        return RabReleaseRequired::name;
    case TarnAccessControlRequestMsgId:
        return AccessControlRequest::name;
    case TarnAccessControlResponseMsgId:
        return AccessControlResponse::name;
    default:
        return nullptr;
    }
}

inline bool is_valid(std::uint32_t id, const TarnMsg *msg) {
    switch (id) {
    case TarnUeContextRequestMsgId:
        return TarnIsUeContextRequestMsgValid(msg) != 0;
    case TarnUeContextAcceptMsgId:
        return TarnIsUeContextAcceptMsgValid(msg) != 0;
    case TarnUeContextRejectMsgId:
        return TarnIsUeContextRejectMsgValid(msg) != 0;
    case TarnUeContextReleaseMsgId:
        return TarnIsUeContextReleaseMsgValid(msg) != 0;
    case TarnInitDirectTransferMsgId:
        return TarnIsInitDirectTransferMsgValid(msg) != 0;
    case TarnUlDirectTransferMsgId:
        return TarnIsUlDirectTransferMsgValid(msg) != 0;
    case TarnDlDirectTransferMsgId:
        return TarnIsDlDirectTransferMsgValid(msg) != 0;
    case TarnIuReleaseRequestMsgId:
        return TarnIsIuReleaseRequestMsgValid(msg) != 0;
    case TarnIuReleaseCommandMsgId:
        return TarnIsIuReleaseCommandMsgValid(msg) != 0;
    case TarnSecurityModeCommandMsgId:
        return TarnIsSecurityModeCommandMsgValid(msg) != 0;
    case TarnSecurityModeCompleteMsgId:
        return TarnIsSecurityModeCompleteMsgValid(msg) != 0;
    case TarnSecurityModeRejectMsgId:
        return TarnIsSecurityModeRejectMsgValid(msg) != 0;
    case TarnRabAssignmentRequestMsgId:
        return TarnIsRabAssignmentRequestMsgValid(msg) != 0;
    case TarnRabAssignmentResponseMsgId:
        return TarnIsRabAssignmentResponseMsgValid(msg) != 0;
    case TarnRabReleaseRequestMsgId:
        return TarnIsRabReleaseRequestMsgValid(msg) != 0;
    case TarnRabReleaseResponseMsgId:
        return TarnIsRabReleaseResponseMsgValid(msg) != 0;
    case TarnResetMsgId:
        return TarnIsResetMsgValid(msg) != 0;
    case TarnIapResetMsgId:
        return TarnIsIapResetMsgValid(msg) != 0;
    case TarnConnectedModePagingMsgId:
        return TarnIsConnectedModePagingMsgValid(msg) != 0;
    case TarnIdleModePagingMsgId:
        return TarnIsIdleModePagingMsgValid(msg) != 0;
    case TarnUserPlaneConfigRequestMsgId:
        return TarnIsUserPlaneConfigRequestMsgValid(msg) != 0;
    case TarnUserPlaneConfigResponseMsgId:
        return TarnIsUserPlaneConfigResponseMsgValid(msg) != 0;
    case TarnIuReleaseCompleteMsgId:
        return TarnIsIuReleaseCompleteMsgValid(msg) != 0;
    case TarnRelocationRequiredMsgId:
        return TarnIsRelocationRequiredMsgValid(msg) != 0;
    case TarnRelocationFailureMsgId:
        return TarnIsRelocationFailureMsgValid(msg) != 0;
    case TarnRelocationCancelMsgId:
        return TarnIsRelocationCancelMsgValid(msg) != 0;
    case TarnRelocationCommandMsgId:
        return TarnIsRelocationCommandMsgValid(msg) != 0;
    case TarnHandoverRequestMsgId:
        return TarnIsHandoverRequestMsgValid(msg) != 0;
    case TarnHandoverFailureMsgId:
        return TarnIsHandoverFailureMsgValid(msg) != 0;
    case TarnHandoverDetectMsgId:
        return TarnIsHandoverDetectMsgValid(msg) != 0;
    case TarnHandoverCompleteMsgId:
        return TarnIsHandoverCompleteMsgValid(msg) != 0;
    case TarnHandoverCancelIndMsgId:
        return TarnIsHandoverCancelIndMsgValid(msg) != 0;
    case TarnHandoverReqAckMsgId:
        return TarnIsHandoverReqAckMsgValid(msg) != 0;
    case TarnUserPlaneModifyRequestMsgId:
        return TarnIsUserPlaneModifyRequestMsgValid(msg) != 0;
    case TarnUserPlaneModifyResponseMsgId:
        return TarnIsUserPlaneModifyResponseMsgValid(msg) != 0;
    case TarnRabReleaseRequiredMsgId:
        return TarnIsRabReleaseRequiredMsgValid(msg) != 0;
    case TarnAccessControlRequestMsgId:
        return TarnIsAccessControlRequestMsgValid(msg) != 0;
    case TarnAccessControlResponseMsgId:
        return TarnIsAccessControlResponseMsgValid(msg) != 0;
    default:
        return false;
    }
}

inline bool pack(std::uint32_t id, const TarnMsg *msg, Room room) {
    switch (id) {
    case TarnUeContextRequestMsgId:
        return TarnPackUeContextRequestMsg(msg, room.data(), size32(room.size())) != 0;
    case TarnUeContextAcceptMsgId:
        return TarnPackUeContextAcceptMsg(msg, room.data(), size32(room.size())) != 0;
    case TarnUeContextRejectMsgId:
        return TarnPackUeContextRejectMsg(msg, room.data(), size32(room.size())) != 0;
    case TarnUeContextReleaseMsgId:
        return TarnPackUeContextReleaseMsg(msg, room.data(), size32(room.size())) != 0;
    case TarnInitDirectTransferMsgId:
        return TarnPackInitDirectTransferMsg(msg, room.data(), size32(room.size())) != 0;
    case TarnUlDirectTransferMsgId:
        return TarnPackUlDirectTransferMsg(msg, room.data(), size32(room.size())) != 0;
    case TarnDlDirectTransferMsgId:
        return TarnPackDlDirectTransferMsg(msg, room.data(), size32(room.size())) != 0;
    case TarnIuReleaseRequestMsgId:
        return TarnPackIuReleaseRequestMsg(msg, room.data(), size32(room.size())) != 0;
    case TarnIuReleaseCommandMsgId:
        return TarnPackIuReleaseCommandMsg(msg, room.data(), size32(room.size())) != 0;
    case TarnSecurityModeCommandMsgId:
        return TarnPackSecurityModeCommandMsg(msg, room.data(), size32(room.size())) != 0;
    case TarnSecurityModeCompleteMsgId:
        return TarnPackSecurityModeCompleteMsg(msg, room.data(), size32(room.size())) != 0;
    case TarnSecurityModeRejectMsgId:
        return TarnPackSecurityModeRejectMsg(msg, room.data(), size32(room.size())) != 0;
    case TarnRabAssignmentRequestMsgId:
        return TarnPackRabAssignmentRequestMsg(msg, room.data(), size32(room.size())) != 0;
    case TarnRabAssignmentResponseMsgId:
        return TarnPackRabAssignmentResponseMsg(msg, room.data(), size32(room.size())) != 0;
    case TarnRabReleaseRequestMsgId:
        return TarnPackRabReleaseRequestMsg(msg, room.data(), size32(room.size())) != 0;
    case TarnRabReleaseResponseMsgId:
        return TarnPackRabReleaseResponseMsg(msg, room.data(), size32(room.size())) != 0;
    case TarnResetMsgId:
        return TarnPackResetMsg(msg, room.data(), size32(room.size())) != 0;
    case TarnIapResetMsgId:
        return TarnPackIapResetMsg(msg, room.data(), size32(room.size())) != 0;
    case TarnConnectedModePagingMsgId:
        return TarnPackConnectedModePagingMsg(msg, room.data(), size32(room.size())) != 0;
    case TarnIdleModePagingMsgId:
        return TarnPackIdleModePagingMsg(msg, room.data(), size32(room.size())) != 0;
    case TarnUserPlaneConfigRequestMsgId:
        return TarnPackUserPlaneConfigRequestMsg(msg, room.data(), size32(room.size())) != 0;
    case TarnUserPlaneConfigResponseMsgId:
        return TarnPackUserPlaneConfigResponseMsg(msg, room.data(), size32(room.size())) != 0;
    case TarnIuReleaseCompleteMsgId:
        return TarnPackIuReleaseCompleteMsg(msg, room.data(), size32(room.size())) != 0;
    case TarnRelocationRequiredMsgId:
        return TarnPackRelocationRequiredMsg(msg, room.data(), size32(room.size())) != 0;
    case TarnRelocationFailureMsgId:
        return TarnPackRelocationFailureMsg(msg, room.data(), size32(room.size())) != 0;
    case TarnRelocationCancelMsgId:
        return TarnPackRelocationCancelMsg(msg, room.data(), size32(room.size())) != 0;
    case TarnRelocationCommandMsgId:
        return TarnPackRelocationCommandMsg(msg, room.data(), size32(room.size())) != 0;
    case TarnHandoverRequestMsgId:
        return TarnPackHandoverRequestMsg(msg, room.data(), size32(room.size())) != 0;
    case TarnHandoverFailureMsgId:
        return TarnPackHandoverFailureMsg(msg, room.data(), size32(room.size())) != 0;
    case TarnHandoverDetectMsgId:
        return TarnPackHandoverDetectMsg(msg, room.data(), size32(room.size())) != 0;
    case TarnHandoverCompleteMsgId:
        return TarnPackHandoverCompleteMsg(msg, room.data(), size32(room.size())) != 0;
    case TarnHandoverCancelIndMsgId:
        return TarnPackHandoverCancelIndMsg(msg, room.data(), size32(room.size())) != 0;
    case TarnHandoverReqAckMsgId:
        return TarnPackHandoverReqAckMsg(msg, room.data(), size32(room.size())) != 0;
    case TarnUserPlaneModifyRequestMsgId:
        return TarnPackUserPlaneModifyRequestMsg(msg, room.data(), size32(room.size())) != 0;
    case TarnUserPlaneModifyResponseMsgId:
        return TarnPackUserPlaneModifyResponseMsg(msg, room.data(), size32(room.size())) != 0;
    case TarnRabReleaseRequiredMsgId:
        return TarnPackRabReleaseRequiredMsg(msg, room.data(), size32(room.size())) != 0;
    case TarnAccessControlRequestMsgId:
        return TarnPackAccessControlRequestMsg(msg, room.data(), size32(room.size())) != 0;
    case TarnAccessControlResponseMsgId:
        return TarnPackAccessControlResponseMsg(msg, room.data(), size32(room.size())) != 0;
    default:
        return false;
    }
}

/* Calls `use` with an empty record of the message, or with no argument for an id that is not in
 * use. */
template <class Use>
Error with_record(std::uint32_t id, Use &&use) {
    switch (id) {
    case TarnUeContextRequestMsgId:
        return use.template operator()<UeContextRequest>();
    case TarnUeContextAcceptMsgId:
        return use.template operator()<UeContextAccept>();
    case TarnUeContextRejectMsgId:
        return use.template operator()<UeContextReject>();
    case TarnUeContextReleaseMsgId:
        return use.template operator()<UeContextRelease>();
    case TarnInitDirectTransferMsgId:
        return use.template operator()<InitDirectTransfer>();
    case TarnUlDirectTransferMsgId:
        return use.template operator()<UlDirectTransfer>();
    case TarnDlDirectTransferMsgId:
        return use.template operator()<DlDirectTransfer>();
    case TarnIuReleaseRequestMsgId:
        return use.template operator()<IuReleaseRequest>();
    case TarnIuReleaseCommandMsgId:
        return use.template operator()<IuReleaseCommand>();
    case TarnSecurityModeCommandMsgId:
        return use.template operator()<SecurityModeCommand>();
    case TarnSecurityModeCompleteMsgId:
        return use.template operator()<SecurityModeComplete>();
    case TarnSecurityModeRejectMsgId:
        return use.template operator()<SecurityModeReject>();
    case TarnRabAssignmentRequestMsgId:
        return use.template operator()<RabAssignmentRequest>();
    case TarnRabAssignmentResponseMsgId:
        return use.template operator()<RabAssignmentResponse>();
    case TarnRabReleaseRequestMsgId:
        return use.template operator()<RabReleaseRequest>();
    case TarnRabReleaseResponseMsgId:
        return use.template operator()<RabReleaseResponse>();
    case TarnResetMsgId:
        return use.template operator()<Reset>();
    case TarnIapResetMsgId:
        return use.template operator()<IapReset>();
    case TarnConnectedModePagingMsgId:
        return use.template operator()<ConnectedModePaging>();
    case TarnIdleModePagingMsgId:
        return use.template operator()<IdleModePaging>();
    case TarnUserPlaneConfigRequestMsgId:
        return use.template operator()<UserPlaneConfigRequest>();
    case TarnUserPlaneConfigResponseMsgId:
        return use.template operator()<UserPlaneConfigResponse>();
    case TarnIuReleaseCompleteMsgId:
        return use.template operator()<IuReleaseComplete>();
    case TarnRelocationRequiredMsgId:
        return use.template operator()<RelocationRequired>();
    case TarnRelocationFailureMsgId:
        return use.template operator()<RelocationFailure>();
    case TarnRelocationCancelMsgId:
        return use.template operator()<RelocationCancel>();
    case TarnRelocationCommandMsgId:
        return use.template operator()<RelocationCommand>();
    case TarnHandoverRequestMsgId:
        return use.template operator()<HandoverRequest>();
    case TarnHandoverFailureMsgId:
        return use.template operator()<HandoverFailure>();
    case TarnHandoverDetectMsgId:
        return use.template operator()<HandoverDetect>();
    case TarnHandoverCompleteMsgId:
        return use.template operator()<HandoverComplete>();
    case TarnHandoverCancelIndMsgId:
        return use.template operator()<HandoverCancelInd>();
    case TarnHandoverReqAckMsgId:
        return use.template operator()<HandoverReqAck>();
    case TarnUserPlaneModifyRequestMsgId:
        return use.template operator()<UserPlaneModifyRequest>();
    case TarnUserPlaneModifyResponseMsgId:
        return use.template operator()<UserPlaneModifyResponse>();
    case TarnRabReleaseRequiredMsgId:
        return use.template operator()<RabReleaseRequired>();
    case TarnAccessControlRequestMsgId:
        return use.template operator()<AccessControlRequest>();
    case TarnAccessControlResponseMsgId:
        return use.template operator()<AccessControlResponse>();
    default:
        return use();
    }
}

} // namespace detail

/* ==== Objects of composite IEs ================================================================ */

class RabDataInfoIeRef : public ObjectRef<TarnRabDataInfoIe> {
public:
    using ObjectRef::ObjectRef;
    static Handle create() { return TarnNewRabDataInfoIe(); }
    static void destroy(Handle ie) { TarnDeleteIe(&ie->ie); }
    bool is_valid() const {
        return TarnIsRabDataInfoIeValid(nullptr, handle_) != 0;
    }
    bool append_RabId(const RabId &value) const {
        return append(TarnAppendRabIdToRabDataInfoIe, value);
    }
    std::optional<RabId> extract_RabId() const {
        return extract<RabId>(TarnExtractRabIdFromRabDataInfoIe);
    }
    bool append_SuccTransferAtPsiw(const SuccTransferAtPsiw &value) const {
        return append(TarnAppendSuccTransferAtPsiwToRabDataInfoIe, value);
    }
    std::optional<SuccTransferAtPsiw> extract_SuccTransferAtPsiw() const {
        return extract<SuccTransferAtPsiw>(TarnExtractSuccTransferAtPsiwFromRabDataInfoIe);
    }
    bool append_UnSuccTransferAtRlc(const UnSuccTransferAtRlc &value) const {
        return append(TarnAppendUnSuccTransferAtRlcToRabDataInfoIe, value);
    }
    std::optional<UnSuccTransferAtRlc> extract_UnSuccTransferAtRlc() const {
        return extract<UnSuccTransferAtRlc>(TarnExtractUnSuccTransferAtRlcFromRabDataInfoIe);
    }
};
using RabDataInfoIe = Owned<RabDataInfoIeRef>;

class SduFormatInfoParamsIeRef : public ObjectRef<TarnSduFormatInfoParamsIe> {
public:
    using ObjectRef::ObjectRef;
    static Handle create() { return TarnNewSduFormatInfoParamsIe(); }
    static void destroy(Handle ie) { TarnDeleteIe(&ie->ie); }
    bool is_valid() const {
        return TarnIsSduFormatInfoParamsIeValid(nullptr, handle_) != 0;
    }
    bool append_SduSize(const SduSize &value) const {
        return append(TarnAppendSduSizeToSduFormatInfoParamsIe, value);
    }
    std::optional<SduSize> extract_SduSize() const {
        return extract<SduSize>(TarnExtractSduSizeFromSduFormatInfoParamsIe);
    }
    bool append_RabSubflowCombBitRate(const RabSubflowCombBitRate &value) const {
        return append(TarnAppendRabSubflowCombBitRateToSduFormatInfoParamsIe, value);
    }
    std::optional<RabSubflowCombBitRate> extract_RabSubflowCombBitRate() const {
        return extract<RabSubflowCombBitRate>(
            TarnExtractRabSubflowCombBitRateFromSduFormatInfoParamsIe);
    }
};
using SduFormatInfoParamsIe = Owned<SduFormatInfoParamsIeRef>;

class RabSetupSuccessInfoIeRef : public ObjectRef<TarnRabSetupSuccessInfoIe> {
public:
    using ObjectRef::ObjectRef;
    static Handle create() { return TarnNewRabSetupSuccessInfoIe(); }
    static void destroy(Handle ie) { TarnDeleteIe(&ie->ie); }
    bool is_valid() const {
        return TarnIsRabSetupSuccessInfoIeValid(nullptr, handle_) != 0;
    }
    bool append_RabId(const RabId &value) const {
        return append(TarnAppendRabIdToRabSetupSuccessInfoIe, value);
    }
    std::optional<RabId> extract_RabId() const {
        return extract<RabId>(TarnExtractRabIdFromRabSetupSuccessInfoIe);
    }
    bool append_UdpPort(const UdpPort &value) const {
        return append(TarnAppendUdpPortToRabSetupSuccessInfoIe, value);
    }
    std::optional<UdpPort> extract_UdpPort() const {
        return extract<UdpPort>(TarnExtractUdpPortFromRabSetupSuccessInfoIe);
    }
    bool append_GtpTeid(const GtpTeid &value) const {
        return append(TarnAppendGtpTeidToRabSetupSuccessInfoIe, value);
    }
    std::optional<GtpTeid> extract_GtpTeid() const {
        return extract<GtpTeid>(TarnExtractGtpTeidFromRabSetupSuccessInfoIe);
    }
};
using RabSetupSuccessInfoIe = Owned<RabSetupSuccessInfoIeRef>;

class ModifiedSrncContainerIeRef : public ObjectRef<TarnModifiedSrncContainerIe> {
public:
    using ObjectRef::ObjectRef;
    static Handle create() { return TarnNewModifiedSrncContainerIe(); }
    static void destroy(Handle ie) { TarnDeleteIe(&ie->ie); }
    bool is_valid() const {
        return TarnIsModifiedSrncContainerIeValid(nullptr, handle_) != 0;
    }
    bool append_RrcContainer(const RrcContainer &value) const {
        return append(TarnAppendRrcContainerToModifiedSrncContainerIe, value);
    }
    std::optional<RrcContainer> extract_RrcContainer() const {
        return extract<RrcContainer>(TarnExtractRrcContainerFromModifiedSrncContainerIe);
    }
    bool append_TargetCellId(const TargetCellId &value) const {
        return append(TarnAppendTargetCellIdToModifiedSrncContainerIe, value);
    }
    std::optional<TargetCellId> extract_TargetCellId() const {
        return extract<TargetCellId>(TarnExtractTargetCellIdFromModifiedSrncContainerIe);
    }
    bool append_NumIuInstances(const NumIuInstances &value) const {
        return append(TarnAppendNumIuInstancesToModifiedSrncContainerIe, value);
    }
    std::optional<NumIuInstances> extract_NumIuInstances() const {
        return extract<NumIuInstances>(TarnExtractNumIuInstancesFromModifiedSrncContainerIe);
    }
    bool append_IntProtAlgo(const IntProtAlgo &value) const {
        return append(TarnAppendIntProtAlgoToModifiedSrncContainerIe, value);
    }
    std::optional<IntProtAlgo> extract_IntProtAlgo() const {
        return extract<IntProtAlgo>(TarnExtractIntProtAlgoFromModifiedSrncContainerIe);
    }
    bool append_IntProtKey(const IntProtKey &value) const {
        return append(TarnAppendIntProtKeyToModifiedSrncContainerIe, value);
    }
    std::optional<IntProtKey> extract_IntProtKey() const {
        return extract<IntProtKey>(TarnExtractIntProtKeyFromModifiedSrncContainerIe);
    }
    bool append_EncryptAlgo(const EncryptAlgo &value) const {
        return append(TarnAppendEncryptAlgoToModifiedSrncContainerIe, value);
    }
    std::optional<EncryptAlgo> extract_EncryptAlgo() const {
        return extract<EncryptAlgo>(TarnExtractEncryptAlgoFromModifiedSrncContainerIe);
    }
    bool append_EncryptKey(const EncryptKey &value) const {
        return append(TarnAppendEncryptKeyToModifiedSrncContainerIe, value);
    }
    std::optional<EncryptKey> extract_EncryptKey() const {
        return extract<EncryptKey>(TarnExtractEncryptKeyFromModifiedSrncContainerIe);
    }
    bool append_CsUserEncryptAlgo(const CsUserEncryptAlgo &value) const {
        return append(TarnAppendCsUserEncryptAlgoToModifiedSrncContainerIe, value);
    }
    std::optional<CsUserEncryptAlgo> extract_CsUserEncryptAlgo() const {
        return extract<CsUserEncryptAlgo>(TarnExtractCsUserEncryptAlgoFromModifiedSrncContainerIe);
    }
    bool append_PsUserEncryptAlgo(const PsUserEncryptAlgo &value) const {
        return append(TarnAppendPsUserEncryptAlgoToModifiedSrncContainerIe, value);
    }
    std::optional<PsUserEncryptAlgo> extract_PsUserEncryptAlgo() const {
        return extract<PsUserEncryptAlgo>(TarnExtractPsUserEncryptAlgoFromModifiedSrncContainerIe);
    }
};
using ModifiedSrncContainerIe = Owned<ModifiedSrncContainerIeRef>;

class PsIuhGatewayInfoIeRef : public ObjectRef<TarnPsIuhGatewayInfoIe> {
public:
    using ObjectRef::ObjectRef;
    static Handle create() { return TarnNewPsIuhGatewayInfoIe(); }
    static void destroy(Handle ie) { TarnDeleteIe(&ie->ie); }
    bool is_valid() const {
        return TarnIsPsIuhGatewayInfoIeValid(nullptr, handle_) != 0;
    }
    bool append_IpAddress(const IpAddress &value) const {
        return append(TarnAppendIpAddressToPsIuhGatewayInfoIe, value);
    }
    std::optional<IpAddress> extract_IpAddress() const {
        return extract<IpAddress>(TarnExtractIpAddressFromPsIuhGatewayInfoIe);
    }
    bool append_GtpTeid(const GtpTeid &value) const {
        return append(TarnAppendGtpTeidToPsIuhGatewayInfoIe, value);
    }
    std::optional<GtpTeid> extract_GtpTeid() const {
        return extract<GtpTeid>(TarnExtractGtpTeidFromPsIuhGatewayInfoIe);
    }
    bool append_UdpPort(const UdpPort &value) const {
        return append(TarnAppendUdpPortToPsIuhGatewayInfoIe, value);
    }
    std::optional<UdpPort> extract_UdpPort() const {
        return extract<UdpPort>(TarnExtractUdpPortFromPsIuhGatewayInfoIe);
    }
    bool append_Tos(const Tos &value) const {
        return append(TarnAppendTosToPsIuhGatewayInfoIe, value);
    }
    std::optional<Tos> extract_Tos() const {
        return extract<Tos>(TarnExtractTosFromPsIuhGatewayInfoIe);
    }
    bool append_GtpEchoPeriod(const GtpEchoPeriod &value) const {
        return append(TarnAppendGtpEchoPeriodToPsIuhGatewayInfoIe, value);
    }
    std::optional<GtpEchoPeriod> extract_GtpEchoPeriod() const {
        return extract<GtpEchoPeriod>(TarnExtractGtpEchoPeriodFromPsIuhGatewayInfoIe);
    }
};
using PsIuhGatewayInfoIe = Owned<PsIuhGatewayInfoIeRef>;

class RtpServerInfoIeRef : public ObjectRef<TarnRtpServerInfoIe> {
public:
    using ObjectRef::ObjectRef;
    static Handle create() { return TarnNewRtpServerInfoIe(); }
    static void destroy(Handle ie) { TarnDeleteIe(&ie->ie); }
    bool is_valid() const {
        return TarnIsRtpServerInfoIeValid(nullptr, handle_) != 0;
    }
    bool append_IpAddress(const IpAddress &value) const {
        return append(TarnAppendIpAddressToRtpServerInfoIe, value);
    }
    std::optional<IpAddress> extract_IpAddress() const {
        return extract<IpAddress>(TarnExtractIpAddressFromRtpServerInfoIe);
    }
    bool append_UdpPort(const UdpPort &value) const {
        return append(TarnAppendUdpPortToRtpServerInfoIe, value);
    }
    std::optional<UdpPort> extract_UdpPort() const {
        return extract<UdpPort>(TarnExtractUdpPortFromRtpServerInfoIe);
    }
    bool append_Tos(const Tos &value) const {
        return append(TarnAppendTosToRtpServerInfoIe, value);
    }
    std::optional<Tos> extract_Tos() const {
        return extract<Tos>(TarnExtractTosFromRtpServerInfoIe);
    }
    bool append_RtcpTransInterval(const RtcpTransInterval &value) const {
        return append(TarnAppendRtcpTransIntervalToRtpServerInfoIe, value);
    }
    std::optional<RtcpTransInterval> extract_RtcpTransInterval() const {
        return extract<RtcpTransInterval>(TarnExtractRtcpTransIntervalFromRtpServerInfoIe);
    }
    bool append_JitterBufferSize(const JitterBufferSize &value) const {
        return append(TarnAppendJitterBufferSizeToRtpServerInfoIe, value);
    }
    std::optional<JitterBufferSize> extract_JitterBufferSize() const {
        return extract<JitterBufferSize>(TarnExtractJitterBufferSizeFromRtpServerInfoIe);
    }
    bool append_MuxUdpPort(const MuxUdpPort &value) const {
        return append(TarnAppendMuxUdpPortToRtpServerInfoIe, value);
    }
    std::optional<MuxUdpPort> extract_MuxUdpPort() const {
        return extract<MuxUdpPort>(TarnExtractMuxUdpPortFromRtpServerInfoIe);
    }
};
using RtpServerInfoIe = Owned<RtpServerInfoIeRef>;

class TargetRNCIdIeRef : public ObjectRef<TarnTargetRNCIdIe> {
public:
    using ObjectRef::ObjectRef;
    static Handle create() { return TarnNewTargetRNCIdIe(); }
    static void destroy(Handle ie) { TarnDeleteIe(&ie->ie); }
    bool is_valid() const {
        return TarnIsTargetRNCIdIeValid(nullptr, handle_) != 0;
    }
    bool append_LAI(const LAI &value) const {
        return append(TarnAppendLAIToTargetRNCIdIe, value);
    }
    std::optional<LAI> extract_LAI() const {
        return extract<LAI>(TarnExtractLAIFromTargetRNCIdIe);
    }
    bool append_RNCId(const RNCId &value) const {
        return append(TarnAppendRNCIdToTargetRNCIdIe, value);
    }
    std::optional<RNCId> extract_RNCId() const {
        return extract<RNCId>(TarnExtractRNCIdFromTargetRNCIdIe);
    }
    bool append_RAC(const RAC &value) const {
        return append(TarnAppendRACToTargetRNCIdIe, value);
    }
    std::optional<RAC> extract_RAC() const {
        return extract<RAC>(TarnExtractRACFromTargetRNCIdIe);
    }
};
using TargetRNCIdIe = Owned<TargetRNCIdIeRef>;

class RabDataInfoListIeRef : public ObjectRef<TarnRabDataInfoListIe> {
public:
    using ObjectRef::ObjectRef;
    static Handle create() { return TarnNewRabDataInfoListIe(); }
    static void destroy(Handle ie) { TarnDeleteIe(&ie->ie); }
    bool is_valid() const {
        return TarnIsRabDataInfoListIeValid(nullptr, handle_) != 0;
    }
    bool append_RabDataInfo(RabDataInfoIe &&child) const {
        return append_ie(TarnAppendRabDataInfoIeToRabDataInfoListIe, child);
    }
    std::optional<RabDataInfoIeRef> extract_RabDataInfo() const {
        return extract_ie<RabDataInfoIeRef>(TarnExtractRabDataInfoIeFromRabDataInfoListIe);
    }
    auto each_RabDataInfo() const {
        return Extraction<RabDataInfoListIeRef, RabDataInfoIeRef, 
            &RabDataInfoListIeRef::extract_RabDataInfo>(*this);
    }
};
using RabDataInfoListIe = Owned<RabDataInfoListIeRef>;

class UeContextRefIeRef : public ObjectRef<TarnUeContextRefIe> {
public:
    using ObjectRef::ObjectRef;
    static Handle create() { return TarnNewUeContextRefIe(); }
    static void destroy(Handle ie) { TarnDeleteIe(&ie->ie); }
    bool is_valid() const {
        return TarnIsUeContextRefIeValid(nullptr, handle_) != 0;
    }
    bool append_AcUeId(const AcUeId &value) const {
        return append(TarnAppendAcUeIdToUeContextRefIe, value);
    }
    std::optional<AcUeId> extract_AcUeId() const {
        return extract<AcUeId>(TarnExtractAcUeIdFromUeContextRefIe);
    }
    bool append_Srnti(const Srnti &value) const {
        return append(TarnAppendSrntiToUeContextRefIe, value);
    }
    std::optional<Srnti> extract_Srnti() const {
        return extract<Srnti>(TarnExtractSrntiFromUeContextRefIe);
    }
    bool append_RabDataInfoList(RabDataInfoListIe &&child) const {
        return append_ie(TarnAppendRabDataInfoListIeToUeContextRefIe, child);
    }
    std::optional<RabDataInfoListIeRef> extract_RabDataInfoList() const {
        return extract_ie<RabDataInfoListIeRef>(TarnExtractRabDataInfoListIeFromUeContextRefIe);
    }
};
using UeContextRefIe = Owned<UeContextRefIeRef>;

class RabSetupSuccessListIeRef : public ObjectRef<TarnRabSetupSuccessListIe> {
public:
    using ObjectRef::ObjectRef;
    static Handle create() { return TarnNewRabSetupSuccessListIe(); }
    static void destroy(Handle ie) { TarnDeleteIe(&ie->ie); }
    bool is_valid() const {
        return TarnIsRabSetupSuccessListIeValid(nullptr, handle_) != 0;
    }
    bool append_RabSetupSuccessInfo(RabSetupSuccessInfoIe &&child) const {
        return append_ie(TarnAppendRabSetupSuccessInfoIeToRabSetupSuccessListIe, child);
    }
    std::optional<RabSetupSuccessInfoIeRef> extract_RabSetupSuccessInfo() const {
        return extract_ie<RabSetupSuccessInfoIeRef>(
            TarnExtractRabSetupSuccessInfoIeFromRabSetupSuccessListIe);
    }
    auto each_RabSetupSuccessInfo() const {
        return Extraction<RabSetupSuccessListIeRef, RabSetupSuccessInfoIeRef, 
            &RabSetupSuccessListIeRef::extract_RabSetupSuccessInfo>(*this);
    }
};
using RabSetupSuccessListIe = Owned<RabSetupSuccessListIeRef>;

class ResourceInfoPerCnDomainAckIeRef : public ObjectRef<TarnResourceInfoPerCnDomainAckIe> {
public:
    using ObjectRef::ObjectRef;
    static Handle create() { return TarnNewResourceInfoPerCnDomainAckIe(); }
    static void destroy(Handle ie) { TarnDeleteIe(&ie->ie); }
    bool is_valid() const {
        return TarnIsResourceInfoPerCnDomainAckIeValid(nullptr, handle_) != 0;
    }
    bool append_CnDomainId(const CnDomainId &value) const {
        return append(TarnAppendCnDomainIdToResourceInfoPerCnDomainAckIe, value);
    }
    std::optional<CnDomainId> extract_CnDomainId() const {
        return extract<CnDomainId>(TarnExtractCnDomainIdFromResourceInfoPerCnDomainAckIe);
    }
    bool append_RabSetupSuccessList(RabSetupSuccessListIe &&child) const {
        return append_ie(TarnAppendRabSetupSuccessListIeToResourceInfoPerCnDomainAckIe, child);
    }
    std::optional<RabSetupSuccessListIeRef> extract_RabSetupSuccessList() const {
        return extract_ie<RabSetupSuccessListIeRef>(
            TarnExtractRabSetupSuccessListIeFromResourceInfoPerCnDomainAckIe);
    }
    bool append_RabSetupFailedList(const RabSetupFailedList &value) const {
        return append(TarnAppendRabSetupFailedListToResourceInfoPerCnDomainAckIe, value);
    }
    std::optional<RabSetupFailedList> extract_RabSetupFailedList() const {
        return extract<RabSetupFailedList>(
            TarnExtractRabSetupFailedListFromResourceInfoPerCnDomainAckIe);
    }
    bool append_EncryptAlgo(const EncryptAlgo &value) const {
        return append(TarnAppendEncryptAlgoToResourceInfoPerCnDomainAckIe, value);
    }
    std::optional<EncryptAlgo> extract_EncryptAlgo() const {
        return extract<EncryptAlgo>(TarnExtractEncryptAlgoFromResourceInfoPerCnDomainAckIe);
    }
};
using ResourceInfoPerCnDomainAckIe = Owned<ResourceInfoPerCnDomainAckIeRef>;

class ResourceInfoPerCnDomainListAckIeRef : public ObjectRef<TarnResourceInfoPerCnDomainListAckIe> {
public:
    using ObjectRef::ObjectRef;
    static Handle create() { return TarnNewResourceInfoPerCnDomainListAckIe(); }
    static void destroy(Handle ie) { TarnDeleteIe(&ie->ie); }
    bool is_valid() const {
        return TarnIsResourceInfoPerCnDomainListAckIeValid(nullptr, handle_) != 0;
    }
    bool append_ResourceInfoPerCnDomainAck(ResourceInfoPerCnDomainAckIe &&child) const {
        return append_ie(
            TarnAppendResourceInfoPerCnDomainAckIeToResourceInfoPerCnDomainListAckIe, child);
    }
    std::optional<ResourceInfoPerCnDomainAckIeRef> extract_ResourceInfoPerCnDomainAck() const {
        return extract_ie<ResourceInfoPerCnDomainAckIeRef>(
            TarnExtractResourceInfoPerCnDomainAckIeFromResourceInfoPerCnDomainListAckIe);
    }
    auto each_ResourceInfoPerCnDomainAck() const {
        return Extraction<ResourceInfoPerCnDomainListAckIeRef, ResourceInfoPerCnDomainAckIeRef, 
            &ResourceInfoPerCnDomainListAckIeRef::extract_ResourceInfoPerCnDomainAck>(*this);
    }
};
using ResourceInfoPerCnDomainListAckIe = Owned<ResourceInfoPerCnDomainListAckIeRef>;

class SduFormatInfoParamListIeRef : public ObjectRef<TarnSduFormatInfoParamListIe> {
public:
    using ObjectRef::ObjectRef;
    static Handle create() { return TarnNewSduFormatInfoParamListIe(); }
    static void destroy(Handle ie) { TarnDeleteIe(&ie->ie); }
    bool is_valid() const {
        return TarnIsSduFormatInfoParamListIeValid(nullptr, handle_) != 0;
    }
    bool append_SduFormatInfoParams(SduFormatInfoParamsIe &&child) const {
        return append_ie(TarnAppendSduFormatInfoParamsIeToSduFormatInfoParamListIe, child);
    }
    std::optional<SduFormatInfoParamsIeRef> extract_SduFormatInfoParams() const {
        return extract_ie<SduFormatInfoParamsIeRef>(
            TarnExtractSduFormatInfoParamsIeFromSduFormatInfoParamListIe);
    }
    auto each_SduFormatInfoParams() const {
        return Extraction<SduFormatInfoParamListIeRef, SduFormatInfoParamsIeRef, 
            &SduFormatInfoParamListIeRef::extract_SduFormatInfoParams>(*this);
    }
};
using SduFormatInfoParamListIe = Owned<SduFormatInfoParamListIeRef>;

class SduParamValueIeRef : public ObjectRef<TarnSduParamValueIe> {
public:
    using ObjectRef::ObjectRef;
    static Handle create() { return TarnNewSduParamValueIe(); }
    static void destroy(Handle ie) { TarnDeleteIe(&ie->ie); }
    bool is_valid() const {
        return TarnIsSduParamValueIeValid(nullptr, handle_) != 0;
    }
    bool append_DeliveryOfErrSdu(const DeliveryOfErrSdu &value) const {
        return append(TarnAppendDeliveryOfErrSduToSduParamValueIe, value);
    }
    std::optional<DeliveryOfErrSdu> extract_DeliveryOfErrSdu() const {
        return extract<DeliveryOfErrSdu>(TarnExtractDeliveryOfErrSduFromSduParamValueIe);
    }
    bool append_BitErrRatio(const BitErrRatio &value) const {
        return append(TarnAppendBitErrRatioToSduParamValueIe, value);
    }
    std::optional<BitErrRatio> extract_BitErrRatio() const {
        return extract<BitErrRatio>(TarnExtractBitErrRatioFromSduParamValueIe);
    }
    bool append_SduFormatInfoParamList(SduFormatInfoParamListIe &&child) const {
        return append_ie(TarnAppendSduFormatInfoParamListIeToSduParamValueIe, child);
    }
    std::optional<SduFormatInfoParamListIeRef> extract_SduFormatInfoParamList() const {
        return extract_ie<SduFormatInfoParamListIeRef>(
            TarnExtractSduFormatInfoParamListIeFromSduParamValueIe);
    }
    auto each_BitErrRatio() const {
        return Extraction<SduParamValueIeRef, BitErrRatio, 
            &SduParamValueIeRef::extract_BitErrRatio>(*this);
    }
};
using SduParamValueIe = Owned<SduParamValueIeRef>;

class SduParamsIeRef : public ObjectRef<TarnSduParamsIe> {
public:
    using ObjectRef::ObjectRef;
    static Handle create() { return TarnNewSduParamsIe(); }
    static void destroy(Handle ie) { TarnDeleteIe(&ie->ie); }
    bool is_valid() const {
        return TarnIsSduParamsIeValid(nullptr, handle_) != 0;
    }
    bool append_SduParamValue(SduParamValueIe &&child) const {
        return append_ie(TarnAppendSduParamValueIeToSduParamsIe, child);
    }
    std::optional<SduParamValueIeRef> extract_SduParamValue() const {
        return extract_ie<SduParamValueIeRef>(TarnExtractSduParamValueIeFromSduParamsIe);
    }
    auto each_SduParamValue() const {
        return Extraction<SduParamsIeRef, SduParamValueIeRef, 
            &SduParamsIeRef::extract_SduParamValue>(*this);
    }
};
using SduParamsIe = Owned<SduParamsIeRef>;

class RabParamsIeRef : public ObjectRef<TarnRabParamsIe> {
public:
    using ObjectRef::ObjectRef;
    static Handle create() { return TarnNewRabParamsIe(); }
    static void destroy(Handle ie) { TarnDeleteIe(&ie->ie); }
    bool is_valid() const {
        return TarnIsRabParamsIeValid(nullptr, handle_) != 0;
    }
    bool append_TrafficClass(const TrafficClass &value) const {
        return append(TarnAppendTrafficClassToRabParamsIe, value);
    }
    std::optional<TrafficClass> extract_TrafficClass() const {
        return extract<TrafficClass>(TarnExtractTrafficClassFromRabParamsIe);
    }
    bool append_RabAssymetryInd(const RabAssymetryInd &value) const {
        return append(TarnAppendRabAssymetryIndToRabParamsIe, value);
    }
    std::optional<RabAssymetryInd> extract_RabAssymetryInd() const {
        return extract<RabAssymetryInd>(TarnExtractRabAssymetryIndFromRabParamsIe);
    }
    bool append_DeliveryOrder(const DeliveryOrder &value) const {
        return append(TarnAppendDeliveryOrderToRabParamsIe, value);
    }
    std::optional<DeliveryOrder> extract_DeliveryOrder() const {
        return extract<DeliveryOrder>(TarnExtractDeliveryOrderFromRabParamsIe);
    }
    bool append_MaxSduSize(const MaxSduSize &value) const {
        return append(TarnAppendMaxSduSizeToRabParamsIe, value);
    }
    std::optional<MaxSduSize> extract_MaxSduSize() const {
        return extract<MaxSduSize>(TarnExtractMaxSduSizeFromRabParamsIe);
    }
    bool append_BitRates(const BitRates &value) const {
        return append(TarnAppendBitRatesToRabParamsIe, value);
    }
    std::optional<BitRates> extract_BitRates() const {
        return extract<BitRates>(TarnExtractBitRatesFromRabParamsIe);
    }
    bool append_SduParams(SduParamsIe &&child) const {
        return append_ie(TarnAppendSduParamsIeToRabParamsIe, child);
    }
    std::optional<SduParamsIeRef> extract_SduParams() const {
        return extract_ie<SduParamsIeRef>(TarnExtractSduParamsIeFromRabParamsIe);
    }
    bool append_PdpTypeInfoList(const PdpTypeInfoList &value) const {
        return append(TarnAppendPdpTypeInfoListToRabParamsIe, value);
    }
    std::optional<PdpTypeInfoList> extract_PdpTypeInfoList() const {
        return extract<PdpTypeInfoList>(TarnExtractPdpTypeInfoListFromRabParamsIe);
    }
    bool append_AllocRetPriority(const AllocRetPriority &value) const {
        return append(TarnAppendAllocRetPriorityToRabParamsIe, value);
    }
    std::optional<AllocRetPriority> extract_AllocRetPriority() const {
        return extract<AllocRetPriority>(TarnExtractAllocRetPriorityFromRabParamsIe);
    }
    bool append_DataVolReportingFlag(const DataVolReportingFlag &value) const {
        return append(TarnAppendDataVolReportingFlagToRabParamsIe, value);
    }
    std::optional<DataVolReportingFlag> extract_DataVolReportingFlag() const {
        return extract<DataVolReportingFlag>(TarnExtractDataVolReportingFlagFromRabParamsIe);
    }
    auto each_BitRates() const {
        return Extraction<RabParamsIeRef, BitRates, &RabParamsIeRef::extract_BitRates>(*this);
    }
    bool append_SourceStatsDescriptor(const SourceStatsDescriptor &value) const {
        return append(TarnAppendSourceStatsDescriptorToRabParamsIe, value);
    }
    std::optional<SourceStatsDescriptor> extract_SourceStatsDescriptor() const {
        return extract<SourceStatsDescriptor>(TarnExtractSourceStatsDescriptorFromRabParamsIe);
    }
    bool append_TransDelay(const TransDelay &value) const {
        return append(TarnAppendTransDelayToRabParamsIe, value);
    }
    std::optional<TransDelay> extract_TransDelay() const {
        return extract<TransDelay>(TarnExtractTransDelayFromRabParamsIe);
    }
    bool append_TrafficHandlingPriority(const TrafficHandlingPriority &value) const {
        return append(TarnAppendTrafficHandlingPriorityToRabParamsIe, value);
    }
    std::optional<TrafficHandlingPriority> extract_TrafficHandlingPriority() const {
        return extract<TrafficHandlingPriority>(TarnExtractTrafficHandlingPriorityFromRabParamsIe);
    }
};
using RabParamsIe = Owned<RabParamsIeRef>;

class RabToSetUpInfoIeRef : public ObjectRef<TarnRabToSetUpInfoIe> {
public:
    using ObjectRef::ObjectRef;
    static Handle create() { return TarnNewRabToSetUpInfoIe(); }
    static void destroy(Handle ie) { TarnDeleteIe(&ie->ie); }
    bool is_valid() const {
        return TarnIsRabToSetUpInfoIeValid(nullptr, handle_) != 0;
    }
    bool append_RabId(const RabId &value) const {
        return append(TarnAppendRabIdToRabToSetUpInfoIe, value);
    }
    std::optional<RabId> extract_RabId() const {
        return extract<RabId>(TarnExtractRabIdFromRabToSetUpInfoIe);
    }
    bool append_AcUserPlaneAssociation(const AcUserPlaneAssociation &value) const {
        return append(TarnAppendAcUserPlaneAssociationToRabToSetUpInfoIe, value);
    }
    std::optional<AcUserPlaneAssociation> extract_AcUserPlaneAssociation() const {
        return extract<AcUserPlaneAssociation>(
            TarnExtractAcUserPlaneAssociationFromRabToSetUpInfoIe);
    }
    bool append_RabParams(RabParamsIe &&child) const {
        return append_ie(TarnAppendRabParamsIeToRabToSetUpInfoIe, child);
    }
    std::optional<RabParamsIeRef> extract_RabParams() const {
        return extract_ie<RabParamsIeRef>(TarnExtractRabParamsIeFromRabToSetUpInfoIe);
    }
    bool append_NasSyncInd(const NasSyncInd &value) const {
        return append(TarnAppendNasSyncIndToRabToSetUpInfoIe, value);
    }
    std::optional<NasSyncInd> extract_NasSyncInd() const {
        return extract<NasSyncInd>(TarnExtractNasSyncIndFromRabToSetUpInfoIe);
    }
    bool append_UserPlaneInfo(const UserPlaneInfo &value) const {
        return append(TarnAppendUserPlaneInfoToRabToSetUpInfoIe, value);
    }
    std::optional<UserPlaneInfo> extract_UserPlaneInfo() const {
        return extract<UserPlaneInfo>(TarnExtractUserPlaneInfoFromRabToSetUpInfoIe);
    }
    bool append_ServiceHandover(const ServiceHandover &value) const {
        return append(TarnAppendServiceHandoverToRabToSetUpInfoIe, value);
    }
    std::optional<ServiceHandover> extract_ServiceHandover() const {
        return extract<ServiceHandover>(TarnExtractServiceHandoverFromRabToSetUpInfoIe);
    }
};
using RabToSetUpInfoIe = Owned<RabToSetUpInfoIeRef>;

class RabListIeRef : public ObjectRef<TarnRabListIe> {
public:
    using ObjectRef::ObjectRef;
    static Handle create() { return TarnNewRabListIe(); }
    static void destroy(Handle ie) { TarnDeleteIe(&ie->ie); }
    bool is_valid() const {
        return TarnIsRabListIeValid(nullptr, handle_) != 0;
    }
    bool append_RabToSetUpInfo(RabToSetUpInfoIe &&child) const {
        return append_ie(TarnAppendRabToSetUpInfoIeToRabListIe, child);
    }
    std::optional<RabToSetUpInfoIeRef> extract_RabToSetUpInfo() const {
        return extract_ie<RabToSetUpInfoIeRef>(TarnExtractRabToSetUpInfoIeFromRabListIe);
    }
    auto each_RabToSetUpInfo() const {
        return Extraction<RabListIeRef, RabToSetUpInfoIeRef, 
            &RabListIeRef::extract_RabToSetUpInfo>(*this);
    }
};
using RabListIe = Owned<RabListIeRef>;

class RabToSetupPerCnDomainIeRef : public ObjectRef<TarnRabToSetupPerCnDomainIe> {
public:
    using ObjectRef::ObjectRef;
    static Handle create() { return TarnNewRabToSetupPerCnDomainIe(); }
    static void destroy(Handle ie) { TarnDeleteIe(&ie->ie); }
    bool is_valid() const {
        return TarnIsRabToSetupPerCnDomainIeValid(nullptr, handle_) != 0;
    }
    bool append_CnDomainId(const CnDomainId &value) const {
        return append(TarnAppendCnDomainIdToRabToSetupPerCnDomainIe, value);
    }
    std::optional<CnDomainId> extract_CnDomainId() const {
        return extract<CnDomainId>(TarnExtractCnDomainIdFromRabToSetupPerCnDomainIe);
    }
    bool append_RabList(RabListIe &&child) const {
        return append_ie(TarnAppendRabListIeToRabToSetupPerCnDomainIe, child);
    }
    std::optional<RabListIeRef> extract_RabList() const {
        return extract_ie<RabListIeRef>(TarnExtractRabListIeFromRabToSetupPerCnDomainIe);
    }
    bool append_EncryptInfo(const EncryptInfo &value) const {
        return append(TarnAppendEncryptInfoToRabToSetupPerCnDomainIe, value);
    }
    std::optional<EncryptInfo> extract_EncryptInfo() const {
        return extract<EncryptInfo>(TarnExtractEncryptInfoFromRabToSetupPerCnDomainIe);
    }
};
using RabToSetupPerCnDomainIe = Owned<RabToSetupPerCnDomainIeRef>;

class RabToSetupPerCnDomainListIeRef : public ObjectRef<TarnRabToSetupPerCnDomainListIe> {
public:
    using ObjectRef::ObjectRef;
    static Handle create() { return TarnNewRabToSetupPerCnDomainListIe(); }
    static void destroy(Handle ie) { TarnDeleteIe(&ie->ie); }
    bool is_valid() const {
        return TarnIsRabToSetupPerCnDomainListIeValid(nullptr, handle_) != 0;
    }
    bool append_RabToSetupPerCnDomain(RabToSetupPerCnDomainIe &&child) const {
        return append_ie(TarnAppendRabToSetupPerCnDomainIeToRabToSetupPerCnDomainListIe, child);
    }
    std::optional<RabToSetupPerCnDomainIeRef> extract_RabToSetupPerCnDomain() const {
        return extract_ie<RabToSetupPerCnDomainIeRef>(
            TarnExtractRabToSetupPerCnDomainIeFromRabToSetupPerCnDomainListIe);
    }
    auto each_RabToSetupPerCnDomain() const {
        return Extraction<RabToSetupPerCnDomainListIeRef, RabToSetupPerCnDomainIeRef, 
            &RabToSetupPerCnDomainListIeRef::extract_RabToSetupPerCnDomain>(*this);
    }
};
using RabToSetupPerCnDomainListIe = Owned<RabToSetupPerCnDomainListIeRef>;

/* ==== Objects of messages ===================================================================== */

class UeContextRequestMsgRef : public MessageRef {
public:
    using MessageRef::MessageRef;
    static constexpr std::uint8_t type_id = TarnUeContextRequestMsgId;
    static Handle create() { return TarnNewUeContextRequestMsg(); }
    bool append_Srnti(const Srnti &value) const {
        return append(TarnAppendSrntiToUeContextRequestMsg, value);
    }
    std::optional<Srnti> extract_Srnti() const {
        return extract<Srnti>(TarnExtractSrntiFromUeContextRequestMsg);
    }
    bool append_EstablishCause(const EstablishCause &value) const {
        return append(TarnAppendEstablishCauseToUeContextRequestMsg, value);
    }
    std::optional<EstablishCause> extract_EstablishCause() const {
        return extract<EstablishCause>(TarnExtractEstablishCauseFromUeContextRequestMsg);
    }
};
using UeContextRequestMsg = Owned<UeContextRequestMsgRef>;

class UeContextAcceptMsgRef : public MessageRef {
public:
    using MessageRef::MessageRef;
    static constexpr std::uint8_t type_id = TarnUeContextAcceptMsgId;
    static Handle create() { return TarnNewUeContextAcceptMsg(); }
    bool append_Srnti(const Srnti &value) const {
        return append(TarnAppendSrntiToUeContextAcceptMsg, value);
    }
    std::optional<Srnti> extract_Srnti() const {
        return extract<Srnti>(TarnExtractSrntiFromUeContextAcceptMsg);
    }
    bool append_AcUeId(const AcUeId &value) const {
        return append(TarnAppendAcUeIdToUeContextAcceptMsg, value);
    }
    std::optional<AcUeId> extract_AcUeId() const {
        return extract<AcUeId>(TarnExtractAcUeIdFromUeContextAcceptMsg);
    }
};
using UeContextAcceptMsg = Owned<UeContextAcceptMsgRef>;

class UeContextRejectMsgRef : public MessageRef {
public:
    using MessageRef::MessageRef;
    static constexpr std::uint8_t type_id = TarnUeContextRejectMsgId;
    static Handle create() { return TarnNewUeContextRejectMsg(); }
    bool append_Srnti(const Srnti &value) const {
        return append(TarnAppendSrntiToUeContextRejectMsg, value);
    }
    std::optional<Srnti> extract_Srnti() const {
        return extract<Srnti>(TarnExtractSrntiFromUeContextRejectMsg);
    }
    bool append_RejectCause(const RejectCause &value) const {
        return append(TarnAppendRejectCauseToUeContextRejectMsg, value);
    }
    std::optional<RejectCause> extract_RejectCause() const {
        return extract<RejectCause>(TarnExtractRejectCauseFromUeContextRejectMsg);
    }
};
using UeContextRejectMsg = Owned<UeContextRejectMsgRef>;

class UeContextReleaseMsgRef : public MessageRef {
public:
    using MessageRef::MessageRef;
    static constexpr std::uint8_t type_id = TarnUeContextReleaseMsgId;
    static Handle create() { return TarnNewUeContextReleaseMsg(); }
    bool append_Srnti(const Srnti &value) const {
        return append(TarnAppendSrntiToUeContextReleaseMsg, value);
    }
    std::optional<Srnti> extract_Srnti() const {
        return extract<Srnti>(TarnExtractSrntiFromUeContextReleaseMsg);
    }
    bool append_AcUeId(const AcUeId &value) const {
        return append(TarnAppendAcUeIdToUeContextReleaseMsg, value);
    }
    std::optional<AcUeId> extract_AcUeId() const {
        return extract<AcUeId>(TarnExtractAcUeIdFromUeContextReleaseMsg);
    }
    bool append_ReleaseCause(const ReleaseCause &value) const {
        return append(TarnAppendReleaseCauseToUeContextReleaseMsg, value);
    }
    std::optional<ReleaseCause> extract_ReleaseCause() const {
        return extract<ReleaseCause>(TarnExtractReleaseCauseFromUeContextReleaseMsg);
    }
    bool append_RabDataInfoList(RabDataInfoListIe &&child) const {
        return append_ie(TarnAppendRabDataInfoListIeToUeContextReleaseMsg, child);
    }
    std::optional<RabDataInfoListIeRef> extract_RabDataInfoList() const {
        return extract_ie<RabDataInfoListIeRef>(
            TarnExtractRabDataInfoListIeFromUeContextReleaseMsg);
    }
};
using UeContextReleaseMsg = Owned<UeContextReleaseMsgRef>;

class InitDirectTransferMsgRef : public MessageRef {
public:
    using MessageRef::MessageRef;
    static constexpr std::uint8_t type_id = TarnInitDirectTransferMsgId;
    static Handle create() { return TarnNewInitDirectTransferMsg(); }
    bool append_Srnti(const Srnti &value) const {
        return append(TarnAppendSrntiToInitDirectTransferMsg, value);
    }
    std::optional<Srnti> extract_Srnti() const {
        return extract<Srnti>(TarnExtractSrntiFromInitDirectTransferMsg);
    }
    bool append_AcUeId(const AcUeId &value) const {
        return append(TarnAppendAcUeIdToInitDirectTransferMsg, value);
    }
    std::optional<AcUeId> extract_AcUeId() const {
        return extract<AcUeId>(TarnExtractAcUeIdFromInitDirectTransferMsg);
    }
    bool append_CnDomainId(const CnDomainId &value) const {
        return append(TarnAppendCnDomainIdToInitDirectTransferMsg, value);
    }
    std::optional<CnDomainId> extract_CnDomainId() const {
        return extract<CnDomainId>(TarnExtractCnDomainIdFromInitDirectTransferMsg);
    }
    bool append_NasMsg(const NasMsg &value) const {
        return append(TarnAppendNasMsgToInitDirectTransferMsg, value);
    }
    std::optional<NasMsg> extract_NasMsg() const {
        return extract<NasMsg>(TarnExtractNasMsgFromInitDirectTransferMsg);
    }
    bool append_Imsi(const Imsi &value) const {
        return append(TarnAppendImsiToInitDirectTransferMsg, value);
    }
    std::optional<Imsi> extract_Imsi() const {
        return extract<Imsi>(TarnExtractImsiFromInitDirectTransferMsg);
    }
    bool append_Idnns(const Idnns &value) const {
        return append(TarnAppendIdnnsToInitDirectTransferMsg, value);
    }
    std::optional<Idnns> extract_Idnns() const {
        return extract<Idnns>(TarnExtractIdnnsFromInitDirectTransferMsg);
    }
};
using InitDirectTransferMsg = Owned<InitDirectTransferMsgRef>;

class UlDirectTransferMsgRef : public MessageRef {
public:
    using MessageRef::MessageRef;
    static constexpr std::uint8_t type_id = TarnUlDirectTransferMsgId;
    static Handle create() { return TarnNewUlDirectTransferMsg(); }
    bool append_Srnti(const Srnti &value) const {
        return append(TarnAppendSrntiToUlDirectTransferMsg, value);
    }
    std::optional<Srnti> extract_Srnti() const {
        return extract<Srnti>(TarnExtractSrntiFromUlDirectTransferMsg);
    }
    bool append_AcUeId(const AcUeId &value) const {
        return append(TarnAppendAcUeIdToUlDirectTransferMsg, value);
    }
    std::optional<AcUeId> extract_AcUeId() const {
        return extract<AcUeId>(TarnExtractAcUeIdFromUlDirectTransferMsg);
    }
    bool append_CnDomainId(const CnDomainId &value) const {
        return append(TarnAppendCnDomainIdToUlDirectTransferMsg, value);
    }
    std::optional<CnDomainId> extract_CnDomainId() const {
        return extract<CnDomainId>(TarnExtractCnDomainIdFromUlDirectTransferMsg);
    }
    bool append_NasMsg(const NasMsg &value) const {
        return append(TarnAppendNasMsgToUlDirectTransferMsg, value);
    }
    std::optional<NasMsg> extract_NasMsg() const {
        return extract<NasMsg>(TarnExtractNasMsgFromUlDirectTransferMsg);
    }
};
using UlDirectTransferMsg = Owned<UlDirectTransferMsgRef>;

class DlDirectTransferMsgRef : public MessageRef {
public:
    using MessageRef::MessageRef;
    static constexpr std::uint8_t type_id = TarnDlDirectTransferMsgId;
    static Handle create() { return TarnNewDlDirectTransferMsg(); }
    bool append_Srnti(const Srnti &value) const {
        return append(TarnAppendSrntiToDlDirectTransferMsg, value);
    }
    std::optional<Srnti> extract_Srnti() const {
        return extract<Srnti>(TarnExtractSrntiFromDlDirectTransferMsg);
    }
    bool append_AcUeId(const AcUeId &value) const {
        return append(TarnAppendAcUeIdToDlDirectTransferMsg, value);
    }
    std::optional<AcUeId> extract_AcUeId() const {
        return extract<AcUeId>(TarnExtractAcUeIdFromDlDirectTransferMsg);
    }
    bool append_CnDomainId(const CnDomainId &value) const {
        return append(TarnAppendCnDomainIdToDlDirectTransferMsg, value);
    }
    std::optional<CnDomainId> extract_CnDomainId() const {
        return extract<CnDomainId>(TarnExtractCnDomainIdFromDlDirectTransferMsg);
    }
    bool append_NasMsg(const NasMsg &value) const {
        return append(TarnAppendNasMsgToDlDirectTransferMsg, value);
    }
    std::optional<NasMsg> extract_NasMsg() const {
        return extract<NasMsg>(TarnExtractNasMsgFromDlDirectTransferMsg);
    }
    bool append_SapiId(const SapiId &value) const {
        return append(TarnAppendSapiIdToDlDirectTransferMsg, value);
    }
    std::optional<SapiId> extract_SapiId() const {
        return extract<SapiId>(TarnExtractSapiIdFromDlDirectTransferMsg);
    }
};
using DlDirectTransferMsg = Owned<DlDirectTransferMsgRef>;

class IuReleaseRequestMsgRef : public MessageRef {
public:
    using MessageRef::MessageRef;
    static constexpr std::uint8_t type_id = TarnIuReleaseRequestMsgId;
    static Handle create() { return TarnNewIuReleaseRequestMsg(); }
    bool append_Srnti(const Srnti &value) const {
        return append(TarnAppendSrntiToIuReleaseRequestMsg, value);
    }
    std::optional<Srnti> extract_Srnti() const {
        return extract<Srnti>(TarnExtractSrntiFromIuReleaseRequestMsg);
    }
    bool append_AcUeId(const AcUeId &value) const {
        return append(TarnAppendAcUeIdToIuReleaseRequestMsg, value);
    }
    std::optional<AcUeId> extract_AcUeId() const {
        return extract<AcUeId>(TarnExtractAcUeIdFromIuReleaseRequestMsg);
    }
    bool append_CnDomainId(const CnDomainId &value) const {
        return append(TarnAppendCnDomainIdToIuReleaseRequestMsg, value);
    }
    std::optional<CnDomainId> extract_CnDomainId() const {
        return extract<CnDomainId>(TarnExtractCnDomainIdFromIuReleaseRequestMsg);
    }
    bool append_IuRelReqCause(const IuRelReqCause &value) const {
        return append(TarnAppendIuRelReqCauseToIuReleaseRequestMsg, value);
    }
    std::optional<IuRelReqCause> extract_IuRelReqCause() const {
        return extract<IuRelReqCause>(TarnExtractIuRelReqCauseFromIuReleaseRequestMsg);
    }
};
using IuReleaseRequestMsg = Owned<IuReleaseRequestMsgRef>;

class IuReleaseCommandMsgRef : public MessageRef {
public:
    using MessageRef::MessageRef;
    static constexpr std::uint8_t type_id = TarnIuReleaseCommandMsgId;
    static Handle create() { return TarnNewIuReleaseCommandMsg(); }
    bool append_Srnti(const Srnti &value) const {
        return append(TarnAppendSrntiToIuReleaseCommandMsg, value);
    }
    std::optional<Srnti> extract_Srnti() const {
        return extract<Srnti>(TarnExtractSrntiFromIuReleaseCommandMsg);
    }
    bool append_AcUeId(const AcUeId &value) const {
        return append(TarnAppendAcUeIdToIuReleaseCommandMsg, value);
    }
    std::optional<AcUeId> extract_AcUeId() const {
        return extract<AcUeId>(TarnExtractAcUeIdFromIuReleaseCommandMsg);
    }
    bool append_CnDomainId(const CnDomainId &value) const {
        return append(TarnAppendCnDomainIdToIuReleaseCommandMsg, value);
    }
    std::optional<CnDomainId> extract_CnDomainId() const {
        return extract<CnDomainId>(TarnExtractCnDomainIdFromIuReleaseCommandMsg);
    }
    bool append_IuRelCause(const IuRelCause &value) const {
        return append(TarnAppendIuRelCauseToIuReleaseCommandMsg, value);
    }
    std::optional<IuRelCause> extract_IuRelCause() const {
        return extract<IuRelCause>(TarnExtractIuRelCauseFromIuReleaseCommandMsg);
    }
    bool append_RespExpected(const RespExpected &value) const {
        return append(TarnAppendRespExpectedToIuReleaseCommandMsg, value);
    }
    std::optional<RespExpected> extract_RespExpected() const {
        return extract<RespExpected>(TarnExtractRespExpectedFromIuReleaseCommandMsg);
    }
    bool append_IuRelCauseNew(const IuRelCauseNew &value) const {
        return append(TarnAppendIuRelCauseNewToIuReleaseCommandMsg, value);
    }
    std::optional<IuRelCauseNew> extract_IuRelCauseNew() const {
        return extract<IuRelCauseNew>(TarnExtractIuRelCauseNewFromIuReleaseCommandMsg);
    }
};
using IuReleaseCommandMsg = Owned<IuReleaseCommandMsgRef>;

class SecurityModeCommandMsgRef : public MessageRef {
public:
    using MessageRef::MessageRef;
    static constexpr std::uint8_t type_id = TarnSecurityModeCommandMsgId;
    static Handle create() { return TarnNewSecurityModeCommandMsg(); }
    bool append_Srnti(const Srnti &value) const {
        return append(TarnAppendSrntiToSecurityModeCommandMsg, value);
    }
    std::optional<Srnti> extract_Srnti() const {
        return extract<Srnti>(TarnExtractSrntiFromSecurityModeCommandMsg);
    }
    bool append_AcUeId(const AcUeId &value) const {
        return append(TarnAppendAcUeIdToSecurityModeCommandMsg, value);
    }
    std::optional<AcUeId> extract_AcUeId() const {
        return extract<AcUeId>(TarnExtractAcUeIdFromSecurityModeCommandMsg);
    }
    bool append_CnDomainId(const CnDomainId &value) const {
        return append(TarnAppendCnDomainIdToSecurityModeCommandMsg, value);
    }
    std::optional<CnDomainId> extract_CnDomainId() const {
        return extract<CnDomainId>(TarnExtractCnDomainIdFromSecurityModeCommandMsg);
    }
    bool append_IntProtInfo(const IntProtInfo &value) const {
        return append(TarnAppendIntProtInfoToSecurityModeCommandMsg, value);
    }
    std::optional<IntProtInfo> extract_IntProtInfo() const {
        return extract<IntProtInfo>(TarnExtractIntProtInfoFromSecurityModeCommandMsg);
    }
    bool append_KeyStatus(const KeyStatus &value) const {
        return append(TarnAppendKeyStatusToSecurityModeCommandMsg, value);
    }
    std::optional<KeyStatus> extract_KeyStatus() const {
        return extract<KeyStatus>(TarnExtractKeyStatusFromSecurityModeCommandMsg);
    }
    bool append_EncryptInfo(const EncryptInfo &value) const {
        return append(TarnAppendEncryptInfoToSecurityModeCommandMsg, value);
    }
    std::optional<EncryptInfo> extract_EncryptInfo() const {
        return extract<EncryptInfo>(TarnExtractEncryptInfoFromSecurityModeCommandMsg);
    }
};
using SecurityModeCommandMsg = Owned<SecurityModeCommandMsgRef>;

class SecurityModeCompleteMsgRef : public MessageRef {
public:
    using MessageRef::MessageRef;
    static constexpr std::uint8_t type_id = TarnSecurityModeCompleteMsgId;
    static Handle create() { return TarnNewSecurityModeCompleteMsg(); }
    bool append_Srnti(const Srnti &value) const {
        return append(TarnAppendSrntiToSecurityModeCompleteMsg, value);
    }
    std::optional<Srnti> extract_Srnti() const {
        return extract<Srnti>(TarnExtractSrntiFromSecurityModeCompleteMsg);
    }
    bool append_AcUeId(const AcUeId &value) const {
        return append(TarnAppendAcUeIdToSecurityModeCompleteMsg, value);
    }
    std::optional<AcUeId> extract_AcUeId() const {
        return extract<AcUeId>(TarnExtractAcUeIdFromSecurityModeCompleteMsg);
    }
    bool append_CnDomainId(const CnDomainId &value) const {
        return append(TarnAppendCnDomainIdToSecurityModeCompleteMsg, value);
    }
    std::optional<CnDomainId> extract_CnDomainId() const {
        return extract<CnDomainId>(TarnExtractCnDomainIdFromSecurityModeCompleteMsg);
    }
    bool append_IntProtAlgo(const IntProtAlgo &value) const {
        return append(TarnAppendIntProtAlgoToSecurityModeCompleteMsg, value);
    }
    std::optional<IntProtAlgo> extract_IntProtAlgo() const {
        return extract<IntProtAlgo>(TarnExtractIntProtAlgoFromSecurityModeCompleteMsg);
    }
    bool append_EncryptAlgo(const EncryptAlgo &value) const {
        return append(TarnAppendEncryptAlgoToSecurityModeCompleteMsg, value);
    }
    std::optional<EncryptAlgo> extract_EncryptAlgo() const {
        return extract<EncryptAlgo>(TarnExtractEncryptAlgoFromSecurityModeCompleteMsg);
    }
};
using SecurityModeCompleteMsg = Owned<SecurityModeCompleteMsgRef>;

class SecurityModeRejectMsgRef : public MessageRef {
public:
    using MessageRef::MessageRef;
    static constexpr std::uint8_t type_id = TarnSecurityModeRejectMsgId;
    static Handle create() { return TarnNewSecurityModeRejectMsg(); }
    bool append_Srnti(const Srnti &value) const {
        return append(TarnAppendSrntiToSecurityModeRejectMsg, value);
    }
    std::optional<Srnti> extract_Srnti() const {
        return extract<Srnti>(TarnExtractSrntiFromSecurityModeRejectMsg);
    }
    bool append_AcUeId(const AcUeId &value) const {
        return append(TarnAppendAcUeIdToSecurityModeRejectMsg, value);
    }
    std::optional<AcUeId> extract_AcUeId() const {
        return extract<AcUeId>(TarnExtractAcUeIdFromSecurityModeRejectMsg);
    }
    bool append_CnDomainId(const CnDomainId &value) const {
        return append(TarnAppendCnDomainIdToSecurityModeRejectMsg, value);
    }
    std::optional<CnDomainId> extract_CnDomainId() const {
        return extract<CnDomainId>(TarnExtractCnDomainIdFromSecurityModeRejectMsg);
    }
    bool append_SecRejCause(const SecRejCause &value) const {
        return append(TarnAppendSecRejCauseToSecurityModeRejectMsg, value);
    }
    std::optional<SecRejCause> extract_SecRejCause() const {
        return extract<SecRejCause>(TarnExtractSecRejCauseFromSecurityModeRejectMsg);
    }
};
using SecurityModeRejectMsg = Owned<SecurityModeRejectMsgRef>;

class RabAssignmentRequestMsgRef : public MessageRef {
public:
    using MessageRef::MessageRef;
    static constexpr std::uint8_t type_id = TarnRabAssignmentRequestMsgId;
    static Handle create() { return TarnNewRabAssignmentRequestMsg(); }
    bool append_Srnti(const Srnti &value) const {
        return append(TarnAppendSrntiToRabAssignmentRequestMsg, value);
    }
    std::optional<Srnti> extract_Srnti() const {
        return extract<Srnti>(TarnExtractSrntiFromRabAssignmentRequestMsg);
    }
    bool append_AcUeId(const AcUeId &value) const {
        return append(TarnAppendAcUeIdToRabAssignmentRequestMsg, value);
    }
    std::optional<AcUeId> extract_AcUeId() const {
        return extract<AcUeId>(TarnExtractAcUeIdFromRabAssignmentRequestMsg);
    }
    bool append_CnDomainId(const CnDomainId &value) const {
        return append(TarnAppendCnDomainIdToRabAssignmentRequestMsg, value);
    }
    std::optional<CnDomainId> extract_CnDomainId() const {
        return extract<CnDomainId>(TarnExtractCnDomainIdFromRabAssignmentRequestMsg);
    }
    bool append_RabList(RabListIe &&child) const {
        return append_ie(TarnAppendRabListIeToRabAssignmentRequestMsg, child);
    }
    std::optional<RabListIeRef> extract_RabList() const {
        return extract_ie<RabListIeRef>(TarnExtractRabListIeFromRabAssignmentRequestMsg);
    }
};
using RabAssignmentRequestMsg = Owned<RabAssignmentRequestMsgRef>;

class RabAssignmentResponseMsgRef : public MessageRef {
public:
    using MessageRef::MessageRef;
    static constexpr std::uint8_t type_id = TarnRabAssignmentResponseMsgId;
    static Handle create() { return TarnNewRabAssignmentResponseMsg(); }
    bool append_Srnti(const Srnti &value) const {
        return append(TarnAppendSrntiToRabAssignmentResponseMsg, value);
    }
    std::optional<Srnti> extract_Srnti() const {
        return extract<Srnti>(TarnExtractSrntiFromRabAssignmentResponseMsg);
    }
    bool append_AcUeId(const AcUeId &value) const {
        return append(TarnAppendAcUeIdToRabAssignmentResponseMsg, value);
    }
    std::optional<AcUeId> extract_AcUeId() const {
        return extract<AcUeId>(TarnExtractAcUeIdFromRabAssignmentResponseMsg);
    }
    bool append_CnDomainId(const CnDomainId &value) const {
        return append(TarnAppendCnDomainIdToRabAssignmentResponseMsg, value);
    }
    std::optional<CnDomainId> extract_CnDomainId() const {
        return extract<CnDomainId>(TarnExtractCnDomainIdFromRabAssignmentResponseMsg);
    }
    bool append_RabSetupSuccessList(RabSetupSuccessListIe &&child) const {
        return append_ie(TarnAppendRabSetupSuccessListIeToRabAssignmentResponseMsg, child);
    }
    std::optional<RabSetupSuccessListIeRef> extract_RabSetupSuccessList() const {
        return extract_ie<RabSetupSuccessListIeRef>(
            TarnExtractRabSetupSuccessListIeFromRabAssignmentResponseMsg);
    }
    bool append_RabSetupFailedList(const RabSetupFailedList &value) const {
        return append(TarnAppendRabSetupFailedListToRabAssignmentResponseMsg, value);
    }
    std::optional<RabSetupFailedList> extract_RabSetupFailedList() const {
        return extract<RabSetupFailedList>(
            TarnExtractRabSetupFailedListFromRabAssignmentResponseMsg);
    }
};
using RabAssignmentResponseMsg = Owned<RabAssignmentResponseMsgRef>;

class RabReleaseRequestMsgRef : public MessageRef {
public:
    using MessageRef::MessageRef;
    static constexpr std::uint8_t type_id = TarnRabReleaseRequestMsgId;
    static Handle create() { return TarnNewRabReleaseRequestMsg(); }
    bool append_Srnti(const Srnti &value) const {
        return append(TarnAppendSrntiToRabReleaseRequestMsg, value);
    }
    std::optional<Srnti> extract_Srnti() const {
        return extract<Srnti>(TarnExtractSrntiFromRabReleaseRequestMsg);
    }
    bool append_AcUeId(const AcUeId &value) const {
        return append(TarnAppendAcUeIdToRabReleaseRequestMsg, value);
    }
    std::optional<AcUeId> extract_AcUeId() const {
        return extract<AcUeId>(TarnExtractAcUeIdFromRabReleaseRequestMsg);
    }
    bool append_CnDomainId(const CnDomainId &value) const {
        return append(TarnAppendCnDomainIdToRabReleaseRequestMsg, value);
    }
    std::optional<CnDomainId> extract_CnDomainId() const {
        return extract<CnDomainId>(TarnExtractCnDomainIdFromRabReleaseRequestMsg);
    }
    bool append_RabReleaseList(const RabReleaseList &value) const {
        return append(TarnAppendRabReleaseListToRabReleaseRequestMsg, value);
    }
    std::optional<RabReleaseList> extract_RabReleaseList() const {
        return extract<RabReleaseList>(TarnExtractRabReleaseListFromRabReleaseRequestMsg);
    }
};
using RabReleaseRequestMsg = Owned<RabReleaseRequestMsgRef>;

class RabReleaseResponseMsgRef : public MessageRef {
public:
    using MessageRef::MessageRef;
    static constexpr std::uint8_t type_id = TarnRabReleaseResponseMsgId;
    static Handle create() { return TarnNewRabReleaseResponseMsg(); }
    bool append_Srnti(const Srnti &value) const {
        return append(TarnAppendSrntiToRabReleaseResponseMsg, value);
    }
    std::optional<Srnti> extract_Srnti() const {
        return extract<Srnti>(TarnExtractSrntiFromRabReleaseResponseMsg);
    }
    bool append_AcUeId(const AcUeId &value) const {
        return append(TarnAppendAcUeIdToRabReleaseResponseMsg, value);
    }
    std::optional<AcUeId> extract_AcUeId() const {
        return extract<AcUeId>(TarnExtractAcUeIdFromRabReleaseResponseMsg);
    }
    bool append_CnDomainId(const CnDomainId &value) const {
        return append(TarnAppendCnDomainIdToRabReleaseResponseMsg, value);
    }
    std::optional<CnDomainId> extract_CnDomainId() const {
        return extract<CnDomainId>(TarnExtractCnDomainIdFromRabReleaseResponseMsg);
    }
    bool append_RabDataInfoList(RabDataInfoListIe &&child) const {
        return append_ie(TarnAppendRabDataInfoListIeToRabReleaseResponseMsg, child);
    }
    std::optional<RabDataInfoListIeRef> extract_RabDataInfoList() const {
        return extract_ie<RabDataInfoListIeRef>(
            TarnExtractRabDataInfoListIeFromRabReleaseResponseMsg);
    }
    bool append_RabIdList(const RabIdList &value) const {
        return append(TarnAppendRabIdListToRabReleaseResponseMsg, value);
    }
    std::optional<RabIdList> extract_RabIdList() const {
        return extract<RabIdList>(TarnExtractRabIdListFromRabReleaseResponseMsg);
    }
};
using RabReleaseResponseMsg = Owned<RabReleaseResponseMsgRef>;

class ResetMsgRef : public MessageRef {
public:
    using MessageRef::MessageRef;
    static constexpr std::uint8_t type_id = TarnResetMsgId;
    static Handle create() { return TarnNewResetMsg(); }
    bool append_CnDomainId(const CnDomainId &value) const {
        return append(TarnAppendCnDomainIdToResetMsg, value);
    }
    std::optional<CnDomainId> extract_CnDomainId() const {
        return extract<CnDomainId>(TarnExtractCnDomainIdFromResetMsg);
    }
};
using ResetMsg = Owned<ResetMsgRef>;

class IapResetMsgRef : public MessageRef {
public:
    using MessageRef::MessageRef;
    static constexpr std::uint8_t type_id = TarnIapResetMsgId;
    static Handle create() { return TarnNewIapResetMsg(); }
    bool append_ErrorCause(const ErrorCause &value) const {
        return append(TarnAppendErrorCauseToIapResetMsg, value);
    }
    std::optional<ErrorCause> extract_ErrorCause() const {
        return extract<ErrorCause>(TarnExtractErrorCauseFromIapResetMsg);
    }
    bool append_Reset3GAP(const Reset3GAP &value) const {
        return append(TarnAppendReset3GAPToIapResetMsg, value);
    }
    std::optional<Reset3GAP> extract_Reset3GAP() const {
        return extract<Reset3GAP>(TarnExtractReset3GAPFromIapResetMsg);
    }
    bool append_UeContextRef(UeContextRefIe &&child) const {
        return append_ie(TarnAppendUeContextRefIeToIapResetMsg, child);
    }
    std::optional<UeContextRefIeRef> extract_UeContextRef() const {
        return extract_ie<UeContextRefIeRef>(TarnExtractUeContextRefIeFromIapResetMsg);
    }
    auto each_UeContextRef() const {
        return Extraction<IapResetMsgRef, UeContextRefIeRef, 
            &IapResetMsgRef::extract_UeContextRef>(*this);
    }
};
using IapResetMsg = Owned<IapResetMsgRef>;

class ConnectedModePagingMsgRef : public MessageRef {
public:
    using MessageRef::MessageRef;
    static constexpr std::uint8_t type_id = TarnConnectedModePagingMsgId;
    static Handle create() { return TarnNewConnectedModePagingMsg(); }
    bool append_Srnti(const Srnti &value) const {
        return append(TarnAppendSrntiToConnectedModePagingMsg, value);
    }
    std::optional<Srnti> extract_Srnti() const {
        return extract<Srnti>(TarnExtractSrntiFromConnectedModePagingMsg);
    }
    bool append_AcUeId(const AcUeId &value) const {
        return append(TarnAppendAcUeIdToConnectedModePagingMsg, value);
    }
    std::optional<AcUeId> extract_AcUeId() const {
        return extract<AcUeId>(TarnExtractAcUeIdFromConnectedModePagingMsg);
    }
    bool append_NasUeId(const NasUeId &value) const {
        return append(TarnAppendNasUeIdToConnectedModePagingMsg, value);
    }
    std::optional<NasUeId> extract_NasUeId() const {
        return extract<NasUeId>(TarnExtractNasUeIdFromConnectedModePagingMsg);
    }
    bool append_CnDomainId(const CnDomainId &value) const {
        return append(TarnAppendCnDomainIdToConnectedModePagingMsg, value);
    }
    std::optional<CnDomainId> extract_CnDomainId() const {
        return extract<CnDomainId>(TarnExtractCnDomainIdFromConnectedModePagingMsg);
    }
    bool append_PagingCause(const PagingCause &value) const {
        return append(TarnAppendPagingCauseToConnectedModePagingMsg, value);
    }
    std::optional<PagingCause> extract_PagingCause() const {
        return extract<PagingCause>(TarnExtractPagingCauseFromConnectedModePagingMsg);
    }
    bool append_PagingRecordTypeInd(const PagingRecordTypeInd &value) const {
        return append(TarnAppendPagingRecordTypeIndToConnectedModePagingMsg, value);
    }
    std::optional<PagingRecordTypeInd> extract_PagingRecordTypeInd() const {
        return extract<PagingRecordTypeInd>(
            TarnExtractPagingRecordTypeIndFromConnectedModePagingMsg);
    }
};
using ConnectedModePagingMsg = Owned<ConnectedModePagingMsgRef>;

class IdleModePagingMsgRef : public MessageRef {
public:
    using MessageRef::MessageRef;
    static constexpr std::uint8_t type_id = TarnIdleModePagingMsgId;
    static Handle create() { return TarnNewIdleModePagingMsg(); }
    bool append_NasUeId(const NasUeId &value) const {
        return append(TarnAppendNasUeIdToIdleModePagingMsg, value);
    }
    std::optional<NasUeId> extract_NasUeId() const {
        return extract<NasUeId>(TarnExtractNasUeIdFromIdleModePagingMsg);
    }
    bool append_CnDomainId(const CnDomainId &value) const {
        return append(TarnAppendCnDomainIdToIdleModePagingMsg, value);
    }
    std::optional<CnDomainId> extract_CnDomainId() const {
        return extract<CnDomainId>(TarnExtractCnDomainIdFromIdleModePagingMsg);
    }
    bool append_PagingCause(const PagingCause &value) const {
        return append(TarnAppendPagingCauseToIdleModePagingMsg, value);
    }
    std::optional<PagingCause> extract_PagingCause() const {
        return extract<PagingCause>(TarnExtractPagingCauseFromIdleModePagingMsg);
    }
    bool append_DrxCycleLenCoeff(const DrxCycleLenCoeff &value) const {
        return append(TarnAppendDrxCycleLenCoeffToIdleModePagingMsg, value);
    }
    std::optional<DrxCycleLenCoeff> extract_DrxCycleLenCoeff() const {
        return extract<DrxCycleLenCoeff>(TarnExtractDrxCycleLenCoeffFromIdleModePagingMsg);
    }
    bool append_TempUeId(const TempUeId &value) const {
        return append(TarnAppendTempUeIdToIdleModePagingMsg, value);
    }
    std::optional<TempUeId> extract_TempUeId() const {
        return extract<TempUeId>(TarnExtractTempUeIdFromIdleModePagingMsg);
    }
};
using IdleModePagingMsg = Owned<IdleModePagingMsgRef>;

class UserPlaneConfigRequestMsgRef : public MessageRef {
public:
    using MessageRef::MessageRef;
    static constexpr std::uint8_t type_id = TarnUserPlaneConfigRequestMsgId;
    static Handle create() { return TarnNewUserPlaneConfigRequestMsg(); }
    bool append_Srnti(const Srnti &value) const {
        return append(TarnAppendSrntiToUserPlaneConfigRequestMsg, value);
    }
    std::optional<Srnti> extract_Srnti() const {
        return extract<Srnti>(TarnExtractSrntiFromUserPlaneConfigRequestMsg);
    }
    bool append_AcUeId(const AcUeId &value) const {
        return append(TarnAppendAcUeIdToUserPlaneConfigRequestMsg, value);
    }
    std::optional<AcUeId> extract_AcUeId() const {
        return extract<AcUeId>(TarnExtractAcUeIdFromUserPlaneConfigRequestMsg);
    }
    bool append_RtpStreamId(const RtpStreamId &value) const {
        return append(TarnAppendRtpStreamIdToUserPlaneConfigRequestMsg, value);
    }
    std::optional<RtpStreamId> extract_RtpStreamId() const {
        return extract<RtpStreamId>(TarnExtractRtpStreamIdFromUserPlaneConfigRequestMsg);
    }
    bool append_AcUserPlaneAssociation(const AcUserPlaneAssociation &value) const {
        return append(TarnAppendAcUserPlaneAssociationToUserPlaneConfigRequestMsg, value);
    }
    std::optional<AcUserPlaneAssociation> extract_AcUserPlaneAssociation() const {
        return extract<AcUserPlaneAssociation>(
            TarnExtractAcUserPlaneAssociationFromUserPlaneConfigRequestMsg);
    }
    bool append_ApUserPlaneAssociation(const ApUserPlaneAssociation &value) const {
        return append(TarnAppendApUserPlaneAssociationToUserPlaneConfigRequestMsg, value);
    }
    std::optional<ApUserPlaneAssociation> extract_ApUserPlaneAssociation() const {
        return extract<ApUserPlaneAssociation>(
            TarnExtractApUserPlaneAssociationFromUserPlaneConfigRequestMsg);
    }
    bool append_AlcapLinkCharacteristics(const AlcapLinkCharacteristics &value) const {
        return append(TarnAppendAlcapLinkCharacteristicsToUserPlaneConfigRequestMsg, value);
    }
    std::optional<AlcapLinkCharacteristics> extract_AlcapLinkCharacteristics() const {
        return extract<AlcapLinkCharacteristics>(
            TarnExtractAlcapLinkCharacteristicsFromUserPlaneConfigRequestMsg);
    }
    bool append_MaxBitRateUplink(const MaxBitRateUplink &value) const {
        return append(TarnAppendMaxBitRateUplinkToUserPlaneConfigRequestMsg, value);
    }
    std::optional<MaxBitRateUplink> extract_MaxBitRateUplink() const {
        return extract<MaxBitRateUplink>(TarnExtractMaxBitRateUplinkFromUserPlaneConfigRequestMsg);
    }
    bool append_MaxBitRateDownlink(const MaxBitRateDownlink &value) const {
        return append(TarnAppendMaxBitRateDownlinkToUserPlaneConfigRequestMsg, value);
    }
    std::optional<MaxBitRateDownlink> extract_MaxBitRateDownlink() const {
        return extract<MaxBitRateDownlink>(
            TarnExtractMaxBitRateDownlinkFromUserPlaneConfigRequestMsg);
    }
};
using UserPlaneConfigRequestMsg = Owned<UserPlaneConfigRequestMsgRef>;

class UserPlaneConfigResponseMsgRef : public MessageRef {
public:
    using MessageRef::MessageRef;
    static constexpr std::uint8_t type_id = TarnUserPlaneConfigResponseMsgId;
    static Handle create() { return TarnNewUserPlaneConfigResponseMsg(); }
    bool append_Srnti(const Srnti &value) const {
        return append(TarnAppendSrntiToUserPlaneConfigResponseMsg, value);
    }
    std::optional<Srnti> extract_Srnti() const {
        return extract<Srnti>(TarnExtractSrntiFromUserPlaneConfigResponseMsg);
    }
    bool append_AcUeId(const AcUeId &value) const {
        return append(TarnAppendAcUeIdToUserPlaneConfigResponseMsg, value);
    }
    std::optional<AcUeId> extract_AcUeId() const {
        return extract<AcUeId>(TarnExtractAcUeIdFromUserPlaneConfigResponseMsg);
    }
    bool append_ApUserPlaneAssociation(const ApUserPlaneAssociation &value) const {
        return append(TarnAppendApUserPlaneAssociationToUserPlaneConfigResponseMsg, value);
    }
    std::optional<ApUserPlaneAssociation> extract_ApUserPlaneAssociation() const {
        return extract<ApUserPlaneAssociation>(
            TarnExtractApUserPlaneAssociationFromUserPlaneConfigResponseMsg);
    }
    bool append_UserPlaneResult(const UserPlaneResult &value) const {
        return append(TarnAppendUserPlaneResultToUserPlaneConfigResponseMsg, value);
    }
    std::optional<UserPlaneResult> extract_UserPlaneResult() const {
        return extract<UserPlaneResult>(TarnExtractUserPlaneResultFromUserPlaneConfigResponseMsg);
    }
    bool append_RtpServerInfo(RtpServerInfoIe &&child) const {
        return append_ie(TarnAppendRtpServerInfoIeToUserPlaneConfigResponseMsg, child);
    }
    std::optional<RtpServerInfoIeRef> extract_RtpServerInfo() const {
        return extract_ie<RtpServerInfoIeRef>(
            TarnExtractRtpServerInfoIeFromUserPlaneConfigResponseMsg);
    }
    bool append_RtpSecurityInfo(const RtpSecurityInfo &value) const {
        return append(TarnAppendRtpSecurityInfoToUserPlaneConfigResponseMsg, value);
    }
    std::optional<RtpSecurityInfo> extract_RtpSecurityInfo() const {
        return extract<RtpSecurityInfo>(TarnExtractRtpSecurityInfoFromUserPlaneConfigResponseMsg);
    }
    bool append_PsIuhGatewayInfo(PsIuhGatewayInfoIe &&child) const {
        return append_ie(TarnAppendPsIuhGatewayInfoIeToUserPlaneConfigResponseMsg, child);
    }
    std::optional<PsIuhGatewayInfoIeRef> extract_PsIuhGatewayInfo() const {
        return extract_ie<PsIuhGatewayInfoIeRef>(
            TarnExtractPsIuhGatewayInfoIeFromUserPlaneConfigResponseMsg);
    }
};
using UserPlaneConfigResponseMsg = Owned<UserPlaneConfigResponseMsgRef>;

class IuReleaseCompleteMsgRef : public MessageRef {
public:
    using MessageRef::MessageRef;
    static constexpr std::uint8_t type_id = TarnIuReleaseCompleteMsgId;
    static Handle create() { return TarnNewIuReleaseCompleteMsg(); }
    bool append_Srnti(const Srnti &value) const {
        return append(TarnAppendSrntiToIuReleaseCompleteMsg, value);
    }
    std::optional<Srnti> extract_Srnti() const {
        return extract<Srnti>(TarnExtractSrntiFromIuReleaseCompleteMsg);
    }
    bool append_AcUeId(const AcUeId &value) const {
        return append(TarnAppendAcUeIdToIuReleaseCompleteMsg, value);
    }
    std::optional<AcUeId> extract_AcUeId() const {
        return extract<AcUeId>(TarnExtractAcUeIdFromIuReleaseCompleteMsg);
    }
    bool append_RabDataInfoList(RabDataInfoListIe &&child) const {
        return append_ie(TarnAppendRabDataInfoListIeToIuReleaseCompleteMsg, child);
    }
    std::optional<RabDataInfoListIeRef> extract_RabDataInfoList() const {
        return extract_ie<RabDataInfoListIeRef>(
            TarnExtractRabDataInfoListIeFromIuReleaseCompleteMsg);
    }
};
using IuReleaseCompleteMsg = Owned<IuReleaseCompleteMsgRef>;

class RelocationRequiredMsgRef : public MessageRef {
public:
    using MessageRef::MessageRef;
    static constexpr std::uint8_t type_id = TarnRelocationRequiredMsgId;
    static Handle create() { return TarnNewRelocationRequiredMsg(); }
    bool append_Srnti(const Srnti &value) const {
        return append(TarnAppendSrntiToRelocationRequiredMsg, value);
    }
    std::optional<Srnti> extract_Srnti() const {
        return extract<Srnti>(TarnExtractSrntiFromRelocationRequiredMsg);
    }
    bool append_AcUeId(const AcUeId &value) const {
        return append(TarnAppendAcUeIdToRelocationRequiredMsg, value);
    }
    std::optional<AcUeId> extract_AcUeId() const {
        return extract<AcUeId>(TarnExtractAcUeIdFromRelocationRequiredMsg);
    }
    bool append_RelocationRequiredCause(const RelocationRequiredCause &value) const {
        return append(TarnAppendRelocationRequiredCauseToRelocationRequiredMsg, value);
    }
    std::optional<RelocationRequiredCause> extract_RelocationRequiredCause() const {
        return extract<RelocationRequiredCause>(
            TarnExtractRelocationRequiredCauseFromRelocationRequiredMsg);
    }
    bool append_RelocationType(const RelocationType &value) const {
        return append(TarnAppendRelocationTypeToRelocationRequiredMsg, value);
    }
    std::optional<RelocationType> extract_RelocationType() const {
        return extract<RelocationType>(TarnExtractRelocationTypeFromRelocationRequiredMsg);
    }
    bool append_ModifiedSrncContainer(ModifiedSrncContainerIe &&child) const {
        return append_ie(TarnAppendModifiedSrncContainerIeToRelocationRequiredMsg, child);
    }
    std::optional<ModifiedSrncContainerIeRef> extract_ModifiedSrncContainer() const {
        return extract_ie<ModifiedSrncContainerIeRef>(
            TarnExtractModifiedSrncContainerIeFromRelocationRequiredMsg);
    }
    bool append_TargetRNCId(TargetRNCIdIe &&child) const {
        return append_ie(TarnAppendTargetRNCIdIeToRelocationRequiredMsg, child);
    }
    std::optional<TargetRNCIdIeRef> extract_TargetRNCId() const {
        return extract_ie<TargetRNCIdIeRef>(TarnExtractTargetRNCIdIeFromRelocationRequiredMsg);
    }
    bool append_GsmClassmark2(const GsmClassmark2 &value) const {
        return append(TarnAppendGsmClassmark2ToRelocationRequiredMsg, value);
    }
    std::optional<GsmClassmark2> extract_GsmClassmark2() const {
        return extract<GsmClassmark2>(TarnExtractGsmClassmark2FromRelocationRequiredMsg);
    }
    bool append_GsmClassmark3(const GsmClassmark3 &value) const {
        return append(TarnAppendGsmClassmark3ToRelocationRequiredMsg, value);
    }
    std::optional<GsmClassmark3> extract_GsmClassmark3() const {
        return extract<GsmClassmark3>(TarnExtractGsmClassmark3FromRelocationRequiredMsg);
    }
    bool append_TargetCGI(const TargetCGI &value) const {
        return append(TarnAppendTargetCGIToRelocationRequiredMsg, value);
    }
    std::optional<TargetCGI> extract_TargetCGI() const {
        return extract<TargetCGI>(TarnExtractTargetCGIFromRelocationRequiredMsg);
    }
    bool append_OldBssToNewBssInfo(const OldBssToNewBssInfo &value) const {
        return append(TarnAppendOldBssToNewBssInfoToRelocationRequiredMsg, value);
    }
    std::optional<OldBssToNewBssInfo> extract_OldBssToNewBssInfo() const {
        return extract<OldBssToNewBssInfo>(TarnExtractOldBssToNewBssInfoFromRelocationRequiredMsg);
    }
};
using RelocationRequiredMsg = Owned<RelocationRequiredMsgRef>;

class RelocationFailureMsgRef : public MessageRef {
public:
    using MessageRef::MessageRef;
    static constexpr std::uint8_t type_id = TarnRelocationFailureMsgId;
    static Handle create() { return TarnNewRelocationFailureMsg(); }
    bool append_Srnti(const Srnti &value) const {
        return append(TarnAppendSrntiToRelocationFailureMsg, value);
    }
    std::optional<Srnti> extract_Srnti() const {
        return extract<Srnti>(TarnExtractSrntiFromRelocationFailureMsg);
    }
    bool append_AcUeId(const AcUeId &value) const {
        return append(TarnAppendAcUeIdToRelocationFailureMsg, value);
    }
    std::optional<AcUeId> extract_AcUeId() const {
        return extract<AcUeId>(TarnExtractAcUeIdFromRelocationFailureMsg);
    }
    bool append_RelocationFailureCause(const RelocationFailureCause &value) const {
        return append(TarnAppendRelocationFailureCauseToRelocationFailureMsg, value);
    }
    std::optional<RelocationFailureCause> extract_RelocationFailureCause() const {
        return extract<RelocationFailureCause>(
            TarnExtractRelocationFailureCauseFromRelocationFailureMsg);
    }
};
using RelocationFailureMsg = Owned<RelocationFailureMsgRef>;

class RelocationCancelMsgRef : public MessageRef {
public:
    using MessageRef::MessageRef;
    static constexpr std::uint8_t type_id = TarnRelocationCancelMsgId;
    static Handle create() { return TarnNewRelocationCancelMsg(); }
    bool append_Srnti(const Srnti &value) const {
        return append(TarnAppendSrntiToRelocationCancelMsg, value);
    }
    std::optional<Srnti> extract_Srnti() const {
        return extract<Srnti>(TarnExtractSrntiFromRelocationCancelMsg);
    }
    bool append_AcUeId(const AcUeId &value) const {
        return append(TarnAppendAcUeIdToRelocationCancelMsg, value);
    }
    std::optional<AcUeId> extract_AcUeId() const {
        return extract<AcUeId>(TarnExtractAcUeIdFromRelocationCancelMsg);
    }
    bool append_RelocationCancelCause(const RelocationCancelCause &value) const {
        return append(TarnAppendRelocationCancelCauseToRelocationCancelMsg, value);
    }
    std::optional<RelocationCancelCause> extract_RelocationCancelCause() const {
        return extract<RelocationCancelCause>(
            TarnExtractRelocationCancelCauseFromRelocationCancelMsg);
    }
};
using RelocationCancelMsg = Owned<RelocationCancelMsgRef>;

class RelocationCommandMsgRef : public MessageRef {
public:
    using MessageRef::MessageRef;
    static constexpr std::uint8_t type_id = TarnRelocationCommandMsgId;
    static Handle create() { return TarnNewRelocationCommandMsg(); }
    bool append_Srnti(const Srnti &value) const {
        return append(TarnAppendSrntiToRelocationCommandMsg, value);
    }
    std::optional<Srnti> extract_Srnti() const {
        return extract<Srnti>(TarnExtractSrntiFromRelocationCommandMsg);
    }
    bool append_AcUeId(const AcUeId &value) const {
        return append(TarnAppendAcUeIdToRelocationCommandMsg, value);
    }
    std::optional<AcUeId> extract_AcUeId() const {
        return extract<AcUeId>(TarnExtractAcUeIdFromRelocationCommandMsg);
    }
    bool append_RrcContainer(const RrcContainer &value) const {
        return append(TarnAppendRrcContainerToRelocationCommandMsg, value);
    }
    std::optional<RrcContainer> extract_RrcContainer() const {
        return extract<RrcContainer>(TarnExtractRrcContainerFromRelocationCommandMsg);
    }
    bool append_L3Information(const L3Information &value) const {
        return append(TarnAppendL3InformationToRelocationCommandMsg, value);
    }
    std::optional<L3Information> extract_L3Information() const {
        return extract<L3Information>(TarnExtractL3InformationFromRelocationCommandMsg);
    }
    bool append_HandoutRabReleaseList(const HandoutRabReleaseList &value) const {
        return append(TarnAppendHandoutRabReleaseListToRelocationCommandMsg, value);
    }
    std::optional<HandoutRabReleaseList> extract_HandoutRabReleaseList() const {
        return extract<HandoutRabReleaseList>(
            TarnExtractHandoutRabReleaseListFromRelocationCommandMsg);
    }
};
using RelocationCommandMsg = Owned<RelocationCommandMsgRef>;

class HandoverRequestMsgRef : public MessageRef {
public:
    using MessageRef::MessageRef;
    static constexpr std::uint8_t type_id = TarnHandoverRequestMsgId;
    static Handle create() { return TarnNewHandoverRequestMsg(); }
    bool append_AcUeId(const AcUeId &value) const {
        return append(TarnAppendAcUeIdToHandoverRequestMsg, value);
    }
    std::optional<AcUeId> extract_AcUeId() const {
        return extract<AcUeId>(TarnExtractAcUeIdFromHandoverRequestMsg);
    }
    bool append_HandoverRequestCause(const HandoverRequestCause &value) const {
        return append(TarnAppendHandoverRequestCauseToHandoverRequestMsg, value);
    }
    std::optional<HandoverRequestCause> extract_HandoverRequestCause() const {
        return extract<HandoverRequestCause>(TarnExtractHandoverRequestCauseFromHandoverRequestMsg);
    }
    bool append_ModifiedSrncContainer(ModifiedSrncContainerIe &&child) const {
        return append_ie(TarnAppendModifiedSrncContainerIeToHandoverRequestMsg, child);
    }
    std::optional<ModifiedSrncContainerIeRef> extract_ModifiedSrncContainer() const {
        return extract_ie<ModifiedSrncContainerIeRef>(
            TarnExtractModifiedSrncContainerIeFromHandoverRequestMsg);
    }
    bool append_RabToSetupPerCnDomainList(RabToSetupPerCnDomainListIe &&child) const {
        return append_ie(TarnAppendRabToSetupPerCnDomainListIeToHandoverRequestMsg, child);
    }
    std::optional<RabToSetupPerCnDomainListIeRef> extract_RabToSetupPerCnDomainList() const {
        return extract_ie<RabToSetupPerCnDomainListIeRef>(
            TarnExtractRabToSetupPerCnDomainListIeFromHandoverRequestMsg);
    }
    bool append_IntProtInfo(const IntProtInfo &value) const {
        return append(TarnAppendIntProtInfoToHandoverRequestMsg, value);
    }
    std::optional<IntProtInfo> extract_IntProtInfo() const {
        return extract<IntProtInfo>(TarnExtractIntProtInfoFromHandoverRequestMsg);
    }
};
using HandoverRequestMsg = Owned<HandoverRequestMsgRef>;

class HandoverFailureMsgRef : public MessageRef {
public:
    using MessageRef::MessageRef;
    static constexpr std::uint8_t type_id = TarnHandoverFailureMsgId;
    static Handle create() { return TarnNewHandoverFailureMsg(); }
    bool append_Srnti(const Srnti &value) const {
        return append(TarnAppendSrntiToHandoverFailureMsg, value);
    }
    std::optional<Srnti> extract_Srnti() const {
        return extract<Srnti>(TarnExtractSrntiFromHandoverFailureMsg);
    }
    bool append_AcUeId(const AcUeId &value) const {
        return append(TarnAppendAcUeIdToHandoverFailureMsg, value);
    }
    std::optional<AcUeId> extract_AcUeId() const {
        return extract<AcUeId>(TarnExtractAcUeIdFromHandoverFailureMsg);
    }
    bool append_HandoverFailureCause(const HandoverFailureCause &value) const {
        return append(TarnAppendHandoverFailureCauseToHandoverFailureMsg, value);
    }
    std::optional<HandoverFailureCause> extract_HandoverFailureCause() const {
        return extract<HandoverFailureCause>(TarnExtractHandoverFailureCauseFromHandoverFailureMsg);
    }
};
using HandoverFailureMsg = Owned<HandoverFailureMsgRef>;

class HandoverDetectMsgRef : public MessageRef {
public:
    using MessageRef::MessageRef;
    static constexpr std::uint8_t type_id = TarnHandoverDetectMsgId;
    static Handle create() { return TarnNewHandoverDetectMsg(); }
    bool append_Srnti(const Srnti &value) const {
        return append(TarnAppendSrntiToHandoverDetectMsg, value);
    }
    std::optional<Srnti> extract_Srnti() const {
        return extract<Srnti>(TarnExtractSrntiFromHandoverDetectMsg);
    }
    bool append_AcUeId(const AcUeId &value) const {
        return append(TarnAppendAcUeIdToHandoverDetectMsg, value);
    }
    std::optional<AcUeId> extract_AcUeId() const {
        return extract<AcUeId>(TarnExtractAcUeIdFromHandoverDetectMsg);
    }
};
using HandoverDetectMsg = Owned<HandoverDetectMsgRef>;

class HandoverCompleteMsgRef : public MessageRef {
public:
    using MessageRef::MessageRef;
    static constexpr std::uint8_t type_id = TarnHandoverCompleteMsgId;
    static Handle create() { return TarnNewHandoverCompleteMsg(); }
    bool append_Srnti(const Srnti &value) const {
        return append(TarnAppendSrntiToHandoverCompleteMsg, value);
    }
    std::optional<Srnti> extract_Srnti() const {
        return extract<Srnti>(TarnExtractSrntiFromHandoverCompleteMsg);
    }
    bool append_AcUeId(const AcUeId &value) const {
        return append(TarnAppendAcUeIdToHandoverCompleteMsg, value);
    }
    std::optional<AcUeId> extract_AcUeId() const {
        return extract<AcUeId>(TarnExtractAcUeIdFromHandoverCompleteMsg);
    }
};
using HandoverCompleteMsg = Owned<HandoverCompleteMsgRef>;

class HandoverCancelIndMsgRef : public MessageRef {
public:
    using MessageRef::MessageRef;
    static constexpr std::uint8_t type_id = TarnHandoverCancelIndMsgId;
    static Handle create() { return TarnNewHandoverCancelIndMsg(); }
    bool append_Srnti(const Srnti &value) const {
        return append(TarnAppendSrntiToHandoverCancelIndMsg, value);
    }
    std::optional<Srnti> extract_Srnti() const {
        return extract<Srnti>(TarnExtractSrntiFromHandoverCancelIndMsg);
    }
    bool append_AcUeId(const AcUeId &value) const {
        return append(TarnAppendAcUeIdToHandoverCancelIndMsg, value);
    }
    std::optional<AcUeId> extract_AcUeId() const {
        return extract<AcUeId>(TarnExtractAcUeIdFromHandoverCancelIndMsg);
    }
};
using HandoverCancelIndMsg = Owned<HandoverCancelIndMsgRef>;

class HandoverReqAckMsgRef : public MessageRef {
public:
    using MessageRef::MessageRef;
    static constexpr std::uint8_t type_id = TarnHandoverReqAckMsgId;
    static Handle create() { return TarnNewHandoverReqAckMsg(); }
    bool append_Srnti(const Srnti &value) const {
        return append(TarnAppendSrntiToHandoverReqAckMsg, value);
    }
    std::optional<Srnti> extract_Srnti() const {
        return extract<Srnti>(TarnExtractSrntiFromHandoverReqAckMsg);
    }
    bool append_AcUeId(const AcUeId &value) const {
        return append(TarnAppendAcUeIdToHandoverReqAckMsg, value);
    }
    std::optional<AcUeId> extract_AcUeId() const {
        return extract<AcUeId>(TarnExtractAcUeIdFromHandoverReqAckMsg);
    }
    bool append_RrcContainer(const RrcContainer &value) const {
        return append(TarnAppendRrcContainerToHandoverReqAckMsg, value);
    }
    std::optional<RrcContainer> extract_RrcContainer() const {
        return extract<RrcContainer>(TarnExtractRrcContainerFromHandoverReqAckMsg);
    }
    bool append_IntProtAlgo(const IntProtAlgo &value) const {
        return append(TarnAppendIntProtAlgoToHandoverReqAckMsg, value);
    }
    std::optional<IntProtAlgo> extract_IntProtAlgo() const {
        return extract<IntProtAlgo>(TarnExtractIntProtAlgoFromHandoverReqAckMsg);
    }
    bool append_ResourceInfoPerCnDomainListAck(ResourceInfoPerCnDomainListAckIe &&child) const {
        return append_ie(TarnAppendResourceInfoPerCnDomainListAckIeToHandoverReqAckMsg, child);
    }
    std::optional<ResourceInfoPerCnDomainListAckIeRef>
    extract_ResourceInfoPerCnDomainListAck() const {
        return extract_ie<ResourceInfoPerCnDomainListAckIeRef>(
            TarnExtractResourceInfoPerCnDomainListAckIeFromHandoverReqAckMsg);
    }
};
using HandoverReqAckMsg = Owned<HandoverReqAckMsgRef>;

class UserPlaneModifyRequestMsgRef : public MessageRef {
public:
    using MessageRef::MessageRef;
    static constexpr std::uint8_t type_id = TarnUserPlaneModifyRequestMsgId;
    static Handle create() { return TarnNewUserPlaneModifyRequestMsg(); }
    bool append_Srnti(const Srnti &value) const {
        return append(TarnAppendSrntiToUserPlaneModifyRequestMsg, value);
    }
    std::optional<Srnti> extract_Srnti() const {
        return extract<Srnti>(TarnExtractSrntiFromUserPlaneModifyRequestMsg);
    }
    bool append_AcUeId(const AcUeId &value) const {
        return append(TarnAppendAcUeIdToUserPlaneModifyRequestMsg, value);
    }
    std::optional<AcUeId> extract_AcUeId() const {
        return extract<AcUeId>(TarnExtractAcUeIdFromUserPlaneModifyRequestMsg);
    }
    bool append_AcUserPlaneAssociation(const AcUserPlaneAssociation &value) const {
        return append(TarnAppendAcUserPlaneAssociationToUserPlaneModifyRequestMsg, value);
    }
    std::optional<AcUserPlaneAssociation> extract_AcUserPlaneAssociation() const {
        return extract<AcUserPlaneAssociation>(
            TarnExtractAcUserPlaneAssociationFromUserPlaneModifyRequestMsg);
    }
    bool append_ApUserPlaneAssociation(const ApUserPlaneAssociation &value) const {
        return append(TarnAppendApUserPlaneAssociationToUserPlaneModifyRequestMsg, value);
    }
    std::optional<ApUserPlaneAssociation> extract_ApUserPlaneAssociation() const {
        return extract<ApUserPlaneAssociation>(
            TarnExtractApUserPlaneAssociationFromUserPlaneModifyRequestMsg);
    }
    bool append_MaxBitRateUplink(const MaxBitRateUplink &value) const {
        return append(TarnAppendMaxBitRateUplinkToUserPlaneModifyRequestMsg, value);
    }
    std::optional<MaxBitRateUplink> extract_MaxBitRateUplink() const {
        return extract<MaxBitRateUplink>(TarnExtractMaxBitRateUplinkFromUserPlaneModifyRequestMsg);
    }
    bool append_MaxBitRateDownlink(const MaxBitRateDownlink &value) const {
        return append(TarnAppendMaxBitRateDownlinkToUserPlaneModifyRequestMsg, value);
    }
    std::optional<MaxBitRateDownlink> extract_MaxBitRateDownlink() const {
        return extract<MaxBitRateDownlink>(
            TarnExtractMaxBitRateDownlinkFromUserPlaneModifyRequestMsg);
    }
};
using UserPlaneModifyRequestMsg = Owned<UserPlaneModifyRequestMsgRef>;

class UserPlaneModifyResponseMsgRef : public MessageRef {
public:
    using MessageRef::MessageRef;
    static constexpr std::uint8_t type_id = TarnUserPlaneModifyResponseMsgId;
    static Handle create() { return TarnNewUserPlaneModifyResponseMsg(); }
    bool append_Srnti(const Srnti &value) const {
        return append(TarnAppendSrntiToUserPlaneModifyResponseMsg, value);
    }
    std::optional<Srnti> extract_Srnti() const {
        return extract<Srnti>(TarnExtractSrntiFromUserPlaneModifyResponseMsg);
    }
    bool append_AcUeId(const AcUeId &value) const {
        return append(TarnAppendAcUeIdToUserPlaneModifyResponseMsg, value);
    }
    std::optional<AcUeId> extract_AcUeId() const {
        return extract<AcUeId>(TarnExtractAcUeIdFromUserPlaneModifyResponseMsg);
    }
    bool append_ApUserPlaneAssociation(const ApUserPlaneAssociation &value) const {
        return append(TarnAppendApUserPlaneAssociationToUserPlaneModifyResponseMsg, value);
    }
    std::optional<ApUserPlaneAssociation> extract_ApUserPlaneAssociation() const {
        return extract<ApUserPlaneAssociation>(
            TarnExtractApUserPlaneAssociationFromUserPlaneModifyResponseMsg);
    }
    bool append_UserPlaneResult(const UserPlaneResult &value) const {
        return append(TarnAppendUserPlaneResultToUserPlaneModifyResponseMsg, value);
    }
    std::optional<UserPlaneResult> extract_UserPlaneResult() const {
        return extract<UserPlaneResult>(TarnExtractUserPlaneResultFromUserPlaneModifyResponseMsg);
    }
};
using UserPlaneModifyResponseMsg = Owned<UserPlaneModifyResponseMsgRef>;

class RabReleaseRequiredMsgRef : public MessageRef {
public:
    using MessageRef::MessageRef;
    static constexpr std::uint8_t type_id = TarnRabReleaseRequiredMsgId;
    static Handle create() { return TarnNewRabReleaseRequiredMsg(); }
    bool append_Srnti(const Srnti &value) const {
        return append(TarnAppendSrntiToRabReleaseRequiredMsg, value);
    }
    std::optional<Srnti> extract_Srnti() const {
        return extract<Srnti>(TarnExtractSrntiFromRabReleaseRequiredMsg);
    }
    bool append_AcUeId(const AcUeId &value) const {
        return append(TarnAppendAcUeIdToRabReleaseRequiredMsg, value);
    }
    std::optional<AcUeId> extract_AcUeId() const {
        return extract<AcUeId>(TarnExtractAcUeIdFromRabReleaseRequiredMsg);
    }
    bool append_CnDomainId(const CnDomainId &value) const {
        return append(TarnAppendCnDomainIdToRabReleaseRequiredMsg, value);
    }
    std::optional<CnDomainId> extract_CnDomainId() const {
        return extract<CnDomainId>(TarnExtractCnDomainIdFromRabReleaseRequiredMsg);
    }
    bool append_RabReleaseList(const RabReleaseList &value) const {
        return append(TarnAppendRabReleaseListToRabReleaseRequiredMsg, value);
    }
    std::optional<RabReleaseList> extract_RabReleaseList() const {
        return extract<RabReleaseList>(TarnExtractRabReleaseListFromRabReleaseRequiredMsg);
    }
};
using RabReleaseRequiredMsg = Owned<RabReleaseRequiredMsgRef>;

class AccessControlRequestMsgRef : public MessageRef {
public:
    using MessageRef::MessageRef;
    static constexpr std::uint8_t type_id = TarnAccessControlRequestMsgId;
    static Handle create() { return TarnNewAccessControlRequestMsg(); }
    bool append_Srnti(const Srnti &value) const {
        return append(TarnAppendSrntiToAccessControlRequestMsg, value);
    }
    std::optional<Srnti> extract_Srnti() const {
        return extract<Srnti>(TarnExtractSrntiFromAccessControlRequestMsg);
    }
    bool append_AcUeId(const AcUeId &value) const {
        return append(TarnAppendAcUeIdToAccessControlRequestMsg, value);
    }
    std::optional<AcUeId> extract_AcUeId() const {
        return extract<AcUeId>(TarnExtractAcUeIdFromAccessControlRequestMsg);
    }
    bool append_LAC(const LAC &value) const {
        return append(TarnAppendLACToAccessControlRequestMsg, value);
    }
    std::optional<LAC> extract_LAC() const {
        return extract<LAC>(TarnExtractLACFromAccessControlRequestMsg);
    }
    bool append_Imsi(const Imsi &value) const {
        return append(TarnAppendImsiToAccessControlRequestMsg, value);
    }
    std::optional<Imsi> extract_Imsi() const {
        return extract<Imsi>(TarnExtractImsiFromAccessControlRequestMsg);
    }
};
using AccessControlRequestMsg = Owned<AccessControlRequestMsgRef>;

class AccessControlResponseMsgRef : public MessageRef {
public:
    using MessageRef::MessageRef;
    static constexpr std::uint8_t type_id = TarnAccessControlResponseMsgId;
    static Handle create() { return TarnNewAccessControlResponseMsg(); }
    bool append_Srnti(const Srnti &value) const {
        return append(TarnAppendSrntiToAccessControlResponseMsg, value);
    }
    std::optional<Srnti> extract_Srnti() const {
        return extract<Srnti>(TarnExtractSrntiFromAccessControlResponseMsg);
    }
    bool append_AcUeId(const AcUeId &value) const {
        return append(TarnAppendAcUeIdToAccessControlResponseMsg, value);
    }
    std::optional<AcUeId> extract_AcUeId() const {
        return extract<AcUeId>(TarnExtractAcUeIdFromAccessControlResponseMsg);
    }
    bool append_Imsi(const Imsi &value) const {
        return append(TarnAppendImsiToAccessControlResponseMsg, value);
    }
    std::optional<Imsi> extract_Imsi() const {
        return extract<Imsi>(TarnExtractImsiFromAccessControlResponseMsg);
    }
    bool append_LacMatch(const LacMatch &value) const {
        return append(TarnAppendLacMatchToAccessControlResponseMsg, value);
    }
    std::optional<LacMatch> extract_LacMatch() const {
        return extract<LacMatch>(TarnExtractLacMatchFromAccessControlResponseMsg);
    }
};
using AccessControlResponseMsg = Owned<AccessControlResponseMsgRef>;

} // namespace tarn

#endif
