# Written by header_writer from the rows in src/catalogue; do not edit: change the rows or
# tools/header_writer, then run `cmake --build --preset release --target tarn_headers`.

import ipaddress
import os
from collections.abc import Iterator, Mapping, Sequence
from typing import Any, ClassVar, TypedDict, Union

__version__: str

# Byte strings are hex digits in what was decoded; bytes may be given as well.
HexBytes = Union[str, bytes]
Address = Union[str, ipaddress.IPv4Address, Sequence[int]]

class Refused(ValueError):
    sentence: str
    path: str
    offset: int | None
    reason: str

class Message(Mapping[str, Any]):
    name: ClassVar[str]
    def __getitem__(self, ie: str) -> Any: ...
    def __iter__(self) -> Iterator[str]: ...
    def __len__(self) -> int: ...
    def __bytes__(self) -> bytes: ...
    def to_dict(self) -> dict[str, Any]: ...

class CaptureLine:
    packet: int
    time: str | None
    source: str | None
    destination: str | None
    verdict: str
    message: Message | None
    fault: dict[str, Any] | None
    bytes: bytes

def decode(data: bytes | bytearray | memoryview) -> Message: ...
def encode(values: Mapping[str, Any]) -> bytes: ...
def read_capture(path: str | os.PathLike[str], tool: str = ...) -> Iterator[CaptureLine]: ...

class IntProtInfoIes(TypedDict):
    IntProtAlgo: int
    IntProtKey: HexBytes

class EncryptInfoIes(TypedDict):
    EncryptAlgos: Sequence[int]
    EncryptKey: HexBytes

class UserPlaneInfoIes(TypedDict):
    UserPlaneMode: int
    UserPlaneModeVersions: int

class BitErrRatioIes(TypedDict):
    Mantissa: int
    Exponent: int

class AllocRetPriorityIes(TypedDict):
    PriorityLevel: int
    PreemptionCapability: int
    PreemptionVulnerability: int
    QueuingAllowed: int

class TempUeIdIes(TypedDict):
    TempUeIdType: int
    TempUeIdValue: HexBytes

class RtpSecurityInfoIes(TypedDict):
    MasterKey: HexBytes
    MasterSalt: HexBytes

class LAIIes(TypedDict):
    PLMNId: HexBytes
    LAC: HexBytes

class TargetCGIIes(TypedDict):
    PLMNId: HexBytes
    LAC: HexBytes
    CI: HexBytes

class AlcapLinkCharacteristicsIes(TypedDict):
    CpsSduMaxBitRate: int
    CpsSduMaxSize: int
    CpsSduAvgBitRate: int
    CpsSduAvgSize: int

class IdnnsIes(TypedDict):
    RoutingBasis: int
    RoutingParameter: int

class RabSetupFailedInfoIes(TypedDict):
    RabId: int
    RabSetupFailCause: int

class RabReleaseInfoIes(TypedDict):
    RabId: int
    RabReleaseCause: int

class HandoutRabReleaseInfoIes(TypedDict):
    CnDomainId: int
    RabIdList: Sequence[int]

class IapTransLayerInfoIes(TypedDict):
    IpAddress: Address
    UdpPort: int

class _RabDataInfoIes(TypedDict):
    RabId: int
    SuccTransferAtPsiw: int

class RabDataInfoIes(_RabDataInfoIes, total=False):
    UnSuccTransferAtRlc: int

class SduFormatInfoParamsIes(TypedDict, total=False):
    SduSize: int
    RabSubflowCombBitRate: int

class _RabSetupSuccessInfoIes(TypedDict):
    RabId: int

class RabSetupSuccessInfoIes(_RabSetupSuccessInfoIes, total=False):
    UdpPort: int
    GtpTeid: int

class _ModifiedSrncContainerIes(TypedDict):
    RrcContainer: HexBytes
    TargetCellId: int
    NumIuInstances: int

class ModifiedSrncContainerIes(_ModifiedSrncContainerIes, total=False):
    IntProtAlgo: int
    IntProtKey: HexBytes
    EncryptAlgo: int
    EncryptKey: HexBytes
    CsUserEncryptAlgo: int
    PsUserEncryptAlgo: int

class _PsIuhGatewayInfoIes(TypedDict):
    IpAddress: Address
    GtpTeid: int

class PsIuhGatewayInfoIes(_PsIuhGatewayInfoIes, total=False):
    UdpPort: int
    Tos: int
    GtpEchoPeriod: int

class _RtpServerInfoIes(TypedDict):
    IpAddress: Address
    UdpPort: int

class RtpServerInfoIes(_RtpServerInfoIes, total=False):
    Tos: int
    RtcpTransInterval: int
    JitterBufferSize: int
    MuxUdpPort: int

class _TargetRNCIdIes(TypedDict):
    LAI: LAIIes
    RNCId: int

class TargetRNCIdIes(_TargetRNCIdIes, total=False):
    RAC: int

class _UeContextRefIes(TypedDict):
    AcUeId: int

class UeContextRefIes(_UeContextRefIes, total=False):
    Srnti: int
    RabDataInfoList: Sequence[RabDataInfoIes]

class _ResourceInfoPerCnDomainAckIes(TypedDict):
    CnDomainId: int

class ResourceInfoPerCnDomainAckIes(_ResourceInfoPerCnDomainAckIes, total=False):
    RabSetupSuccessList: Sequence[RabSetupSuccessInfoIes]
    RabSetupFailedList: Sequence[RabSetupFailedInfoIes]
    EncryptAlgo: int

class _SduParamValueIes(TypedDict):
    DeliveryOfErrSdu: int
    BitErrRatio: BitErrRatioIes

class SduParamValueIes(_SduParamValueIes, total=False):
    SduFormatInfoParamList: Sequence[SduFormatInfoParamsIes]
    SecondBitErrRatio: BitErrRatioIes

class _RabParamsIes(TypedDict):
    TrafficClass: int
    RabAssymetryInd: int
    DeliveryOrder: int
    MaxSduSize: int
    BitRates: Sequence[int]
    SduParams: Sequence[SduParamValueIes]

class RabParamsIes(_RabParamsIes, total=False):
    PdpTypeInfoList: Sequence[int]
    AllocRetPriority: AllocRetPriorityIes
    DataVolReportingFlag: int
    SecondBitRates: Sequence[int]
    SourceStatsDescriptor: int
    TransDelay: int
    TrafficHandlingPriority: int

class _RabToSetUpInfoIes(TypedDict):
    RabId: int
    AcUserPlaneAssociation: int
    RabParams: RabParamsIes

class RabToSetUpInfoIes(_RabToSetUpInfoIes, total=False):
    NasSyncInd: int
    UserPlaneInfo: UserPlaneInfoIes
    ServiceHandover: int

class _RabToSetupPerCnDomainIes(TypedDict):
    CnDomainId: int

class RabToSetupPerCnDomainIes(_RabToSetupPerCnDomainIes, total=False):
    RabList: Sequence[RabToSetUpInfoIes]
    EncryptInfo: EncryptInfoIes

class UeContextRequest(Message):
    """AP to AC: asks for a UE context."""

    Srnti: int
    EstablishCause: int
    def __init__(
        self,
        *,
        Srnti: int,
        EstablishCause: int,
    ) -> None: ...

class UeContextAccept(Message):
    """AC to AP: accepts a UE context request."""

    Srnti: int
    AcUeId: int
    def __init__(
        self,
        *,
        Srnti: int,
        AcUeId: int,
    ) -> None: ...

class UeContextReject(Message):
    """AC to AP: rejects a UE context request."""

    Srnti: int
    RejectCause: int
    def __init__(
        self,
        *,
        Srnti: int,
        RejectCause: int,
    ) -> None: ...

class UeContextRelease(Message):
    """Releases a UE context."""

    Srnti: int
    AcUeId: int
    ReleaseCause: int
    RabDataInfoList: Sequence[RabDataInfoIes]
    def __init__(
        self,
        *,
        Srnti: int,
        AcUeId: int,
        ReleaseCause: int,
        RabDataInfoList: Sequence[RabDataInfoIes] = ...,
    ) -> None: ...

class InitDirectTransfer(Message):
    """AP to AC: the UE's first NAS message towards a core network domain."""

    Srnti: int
    AcUeId: int
    CnDomainId: int
    NasMsg: HexBytes
    Imsi: HexBytes
    Idnns: IdnnsIes
    def __init__(
        self,
        *,
        Srnti: int,
        AcUeId: int,
        CnDomainId: int,
        NasMsg: HexBytes,
        Imsi: HexBytes = ...,
        Idnns: IdnnsIes = ...,
    ) -> None: ...

class UlDirectTransfer(Message):
    """AP to AC: a NAS message from the UE."""

    Srnti: int
    AcUeId: int
    CnDomainId: int
    NasMsg: HexBytes
    def __init__(
        self,
        *,
        Srnti: int,
        AcUeId: int,
        CnDomainId: int,
        NasMsg: HexBytes,
    ) -> None: ...

class DlDirectTransfer(Message):
    """AC to AP: a NAS message to the UE."""

    Srnti: int
    AcUeId: int
    CnDomainId: int
    NasMsg: HexBytes
    SapiId: int
    def __init__(
        self,
        *,
        Srnti: int,
        AcUeId: int,
        CnDomainId: int,
        NasMsg: HexBytes,
        SapiId: int,
    ) -> None: ...

class IuReleaseRequest(Message):
    """AP to AC: asks for the release of an Iu connection."""

    Srnti: int
    AcUeId: int
    CnDomainId: int
    IuRelReqCause: int
    def __init__(
        self,
        *,
        Srnti: int,
        AcUeId: int,
        CnDomainId: int,
        IuRelReqCause: int,
    ) -> None: ...

class IuReleaseCommand(Message):
    """AC to AP: releases an Iu connection."""

    Srnti: int
    AcUeId: int
    CnDomainId: int
    IuRelCause: int
    RespExpected: int
    IuRelCauseNew: int
    def __init__(
        self,
        *,
        Srnti: int,
        AcUeId: int,
        CnDomainId: int,
        IuRelCause: int,
        RespExpected: int,
        IuRelCauseNew: int = ...,
    ) -> None: ...

class SecurityModeCommand(Message):
    """AC to AP: starts integrity protection and ciphering."""

    Srnti: int
    AcUeId: int
    CnDomainId: int
    IntProtInfo: IntProtInfoIes
    KeyStatus: int
    EncryptInfo: EncryptInfoIes
    def __init__(
        self,
        *,
        Srnti: int,
        AcUeId: int,
        CnDomainId: int,
        IntProtInfo: IntProtInfoIes,
        KeyStatus: int,
        EncryptInfo: EncryptInfoIes = ...,
    ) -> None: ...

class SecurityModeComplete(Message):
    """AP to AC: security mode control has succeeded."""

    Srnti: int
    AcUeId: int
    CnDomainId: int
    IntProtAlgo: int
    EncryptAlgo: int
    def __init__(
        self,
        *,
        Srnti: int,
        AcUeId: int,
        CnDomainId: int,
        IntProtAlgo: int,
        EncryptAlgo: int = ...,
    ) -> None: ...

class SecurityModeReject(Message):
    """AP to AC: security mode control has failed."""

    Srnti: int
    AcUeId: int
    CnDomainId: int
    SecRejCause: int
    def __init__(
        self,
        *,
        Srnti: int,
        AcUeId: int,
        CnDomainId: int,
        SecRejCause: int,
    ) -> None: ...

class RabAssignmentRequest(Message):
    """AC to AP: sets up RABs."""

    Srnti: int
    AcUeId: int
    CnDomainId: int
    RabList: Sequence[RabToSetUpInfoIes]
    def __init__(
        self,
        *,
        Srnti: int,
        AcUeId: int,
        CnDomainId: int,
        RabList: Sequence[RabToSetUpInfoIes],
    ) -> None: ...

class RabAssignmentResponse(Message):
    """AP to AC: tells which RABs were set up."""

    Srnti: int
    AcUeId: int
    CnDomainId: int
    RabSetupSuccessList: Sequence[RabSetupSuccessInfoIes]
    RabSetupFailedList: Sequence[RabSetupFailedInfoIes]
    def __init__(
        self,
        *,
        Srnti: int,
        AcUeId: int,
        CnDomainId: int,
        RabSetupSuccessList: Sequence[RabSetupSuccessInfoIes] = ...,
        RabSetupFailedList: Sequence[RabSetupFailedInfoIes] = ...,
    ) -> None: ...

class RabReleaseRequest(Message):
    """Releases RABs."""

    Srnti: int
    AcUeId: int
    CnDomainId: int
    RabReleaseList: Sequence[RabReleaseInfoIes]
    def __init__(
        self,
        *,
        Srnti: int,
        AcUeId: int,
        CnDomainId: int,
        RabReleaseList: Sequence[RabReleaseInfoIes],
    ) -> None: ...

class RabReleaseResponse(Message):
    """Tells which RABs were released."""

    Srnti: int
    AcUeId: int
    CnDomainId: int
    RabDataInfoList: Sequence[RabDataInfoIes]
    RabIdList: Sequence[int]
    def __init__(
        self,
        *,
        Srnti: int,
        AcUeId: int,
        CnDomainId: int,
        RabDataInfoList: Sequence[RabDataInfoIes] = ...,
        RabIdList: Sequence[int] = ...,
    ) -> None: ...

class Reset(Message):
    """Resets one core network domain."""

    CnDomainId: int
    def __init__(
        self,
        *,
        CnDomainId: int,
    ) -> None: ...

class IapReset(Message):
    """Resets the access point or the UE contexts listed."""

    ErrorCause: int
    Reset3GAP: int
    UeContextRef: Sequence[UeContextRefIes]
    def __init__(
        self,
        *,
        ErrorCause: int,
        Reset3GAP: int,
        UeContextRef: Sequence[UeContextRefIes] = ...,
    ) -> None: ...

class ConnectedModePaging(Message):
    """AC to AP: pages a UE that has a UE context."""

    Srnti: int
    AcUeId: int
    NasUeId: HexBytes
    CnDomainId: int
    PagingCause: int
    PagingRecordTypeInd: int
    def __init__(
        self,
        *,
        Srnti: int,
        AcUeId: int,
        NasUeId: HexBytes,
        CnDomainId: int,
        PagingCause: int,
        PagingRecordTypeInd: int,
    ) -> None: ...

class IdleModePaging(Message):
    """AC to AP: pages a UE that has none."""

    NasUeId: HexBytes
    CnDomainId: int
    PagingCause: int
    DrxCycleLenCoeff: int
    TempUeId: TempUeIdIes
    def __init__(
        self,
        *,
        NasUeId: HexBytes,
        CnDomainId: int,
        PagingCause: int,
        DrxCycleLenCoeff: int = ...,
        TempUeId: TempUeIdIes = ...,
    ) -> None: ...

class UserPlaneConfigRequest(Message):
    """Asks for a user plane to be configured."""

    Srnti: int
    AcUeId: int
    RtpStreamId: int
    AcUserPlaneAssociation: int
    ApUserPlaneAssociation: int
    AlcapLinkCharacteristics: AlcapLinkCharacteristicsIes
    MaxBitRateUplink: int
    MaxBitRateDownlink: int
    def __init__(
        self,
        *,
        Srnti: int,
        AcUeId: int,
        RtpStreamId: int,
        AcUserPlaneAssociation: int,
        ApUserPlaneAssociation: int,
        AlcapLinkCharacteristics: AlcapLinkCharacteristicsIes = ...,
        MaxBitRateUplink: int = ...,
        MaxBitRateDownlink: int = ...,
    ) -> None: ...

class UserPlaneConfigResponse(Message):
    """Tells how a user plane was configured."""

    Srnti: int
    AcUeId: int
    ApUserPlaneAssociation: int
    UserPlaneResult: int
    RtpServerInfo: RtpServerInfoIes
    RtpSecurityInfo: RtpSecurityInfoIes
    PsIuhGatewayInfo: PsIuhGatewayInfoIes
    def __init__(
        self,
        *,
        Srnti: int,
        AcUeId: int,
        ApUserPlaneAssociation: int,
        UserPlaneResult: int,
        RtpServerInfo: RtpServerInfoIes = ...,
        RtpSecurityInfo: RtpSecurityInfoIes = ...,
        PsIuhGatewayInfo: PsIuhGatewayInfoIes = ...,
    ) -> None: ...

class IuReleaseComplete(Message):
    """AP to AC: an Iu connection was released."""

    Srnti: int
    AcUeId: int
    RabDataInfoList: Sequence[RabDataInfoIes]
    def __init__(
        self,
        *,
        Srnti: int,
        AcUeId: int,
        RabDataInfoList: Sequence[RabDataInfoIes] = ...,
    ) -> None: ...

class RelocationRequired(Message):
    """AP to AC: asks for the relocation of a UE."""

    Srnti: int
    AcUeId: int
    RelocationRequiredCause: int
    RelocationType: int
    ModifiedSrncContainer: ModifiedSrncContainerIes
    TargetRNCId: TargetRNCIdIes
    GsmClassmark2: HexBytes
    GsmClassmark3: HexBytes
    TargetCGI: TargetCGIIes
    OldBssToNewBssInfo: HexBytes
    def __init__(
        self,
        *,
        Srnti: int,
        AcUeId: int,
        RelocationRequiredCause: int,
        RelocationType: int,
        ModifiedSrncContainer: ModifiedSrncContainerIes = ...,
        TargetRNCId: TargetRNCIdIes = ...,
        GsmClassmark2: HexBytes = ...,
        GsmClassmark3: HexBytes = ...,
        TargetCGI: TargetCGIIes = ...,
        OldBssToNewBssInfo: HexBytes = ...,
    ) -> None: ...

class RelocationFailure(Message):
    """AC to AP: the relocation cannot be done."""

    Srnti: int
    AcUeId: int
    RelocationFailureCause: int
    def __init__(
        self,
        *,
        Srnti: int,
        AcUeId: int,
        RelocationFailureCause: int,
    ) -> None: ...

class RelocationCancel(Message):
    """AP to AC: cancels a relocation."""

    Srnti: int
    AcUeId: int
    RelocationCancelCause: int
    def __init__(
        self,
        *,
        Srnti: int,
        AcUeId: int,
        RelocationCancelCause: int,
    ) -> None: ...

class RelocationCommand(Message):
    """AC to AP: hands the UE over to the target."""

    Srnti: int
    AcUeId: int
    RrcContainer: HexBytes
    L3Information: HexBytes
    HandoutRabReleaseList: Sequence[HandoutRabReleaseInfoIes]
    def __init__(
        self,
        *,
        Srnti: int,
        AcUeId: int,
        RrcContainer: HexBytes = ...,
        L3Information: HexBytes = ...,
        HandoutRabReleaseList: Sequence[HandoutRabReleaseInfoIes] = ...,
    ) -> None: ...

class HandoverRequest(Message):
    """AC to AP: asks the target to take a UE over."""

    AcUeId: int
    HandoverRequestCause: int
    ModifiedSrncContainer: ModifiedSrncContainerIes
    RabToSetupPerCnDomainList: Sequence[RabToSetupPerCnDomainIes]
    IntProtInfo: IntProtInfoIes
    def __init__(
        self,
        *,
        AcUeId: int,
        HandoverRequestCause: int,
        ModifiedSrncContainer: ModifiedSrncContainerIes,
        RabToSetupPerCnDomainList: Sequence[RabToSetupPerCnDomainIes] = ...,
        IntProtInfo: IntProtInfoIes = ...,
    ) -> None: ...

class HandoverFailure(Message):
    """AP to AC: the target cannot take the UE over."""

    Srnti: int
    AcUeId: int
    HandoverFailureCause: int
    def __init__(
        self,
        *,
        Srnti: int,
        AcUeId: int,
        HandoverFailureCause: int,
    ) -> None: ...

class HandoverDetect(Message):
    """AP to AC: the target has detected the UE."""

    Srnti: int
    AcUeId: int
    def __init__(
        self,
        *,
        Srnti: int,
        AcUeId: int,
    ) -> None: ...

class HandoverComplete(Message):
    """AP to AC: the UE has arrived at the target."""

    Srnti: int
    AcUeId: int
    def __init__(
        self,
        *,
        Srnti: int,
        AcUeId: int,
    ) -> None: ...

class HandoverCancelInd(Message):
    """AC to AP: the handover is cancelled."""

    Srnti: int
    AcUeId: int
    def __init__(
        self,
        *,
        Srnti: int,
        AcUeId: int,
    ) -> None: ...

class HandoverReqAck(Message):
    """AP to AC: the target has allocated resources for the UE."""

    Srnti: int
    AcUeId: int
    RrcContainer: HexBytes
    IntProtAlgo: int
    ResourceInfoPerCnDomainListAck: Sequence[ResourceInfoPerCnDomainAckIes]
    def __init__(
        self,
        *,
        Srnti: int,
        AcUeId: int,
        RrcContainer: HexBytes,
        IntProtAlgo: int = ...,
        ResourceInfoPerCnDomainListAck: Sequence[ResourceInfoPerCnDomainAckIes] = ...,
    ) -> None: ...

class UserPlaneModifyRequest(Message):
    """Asks for a user plane to be modified."""

    Srnti: int
    AcUeId: int
    AcUserPlaneAssociation: int
    ApUserPlaneAssociation: int
    MaxBitRateUplink: int
    MaxBitRateDownlink: int
    def __init__(
        self,
        *,
        Srnti: int,
        AcUeId: int,
        AcUserPlaneAssociation: int,
        ApUserPlaneAssociation: int,
        MaxBitRateUplink: int = ...,
        MaxBitRateDownlink: int = ...,
    ) -> None: ...

class UserPlaneModifyResponse(Message):
    """Tells how a user plane was modified."""

    Srnti: int
    AcUeId: int
    ApUserPlaneAssociation: int
    UserPlaneResult: int
    def __init__(
        self,
        *,
        Srnti: int,
        AcUeId: int,
        ApUserPlaneAssociation: int,
        UserPlaneResult: int,
    ) -> None: ...

class RabReleaseRequired(Message):
    """Tells that RABs must be released."""

    Srnti: int
    AcUeId: int
    CnDomainId: int
    RabReleaseList: Sequence[RabReleaseInfoIes]
    def __init__(
        self,
        *,
        Srnti: int,
        AcUeId: int,
        CnDomainId: int,
        RabReleaseList: Sequence[RabReleaseInfoIes],
    ) -> None: ...

class AccessControlRequest(Message):
    """AP to AC: asks whether a subscriber may use the access point."""

    Srnti: int
    AcUeId: int
    LAC: HexBytes
    Imsi: HexBytes
    def __init__(
        self,
        *,
        Srnti: int,
        AcUeId: int,
        LAC: HexBytes,
        Imsi: HexBytes,
    ) -> None: ...

class AccessControlResponse(Message):
    """AC to AP: answers an access control request."""

    Srnti: int
    AcUeId: int
    Imsi: HexBytes
    LacMatch: int
    def __init__(
        self,
        *,
        Srnti: int,
        AcUeId: int,
        Imsi: HexBytes,
        LacMatch: int,
    ) -> None: ...

