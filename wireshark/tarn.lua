-- Wireshark's view of the messages between a 3G access point and its access controller.
--
-- Written by header_writer from the rows in src/catalogue and from wireshark/engine.lua and
-- wireshark/plugin.lua; do not edit: change those, then run
-- `cmake --build --preset release --target tarn_headers`.

local rows = {
  largestMessage = 70820,
  types = {
    { name = "Srnti", tag = 1, shape = "scalar", width = 4, least = 0, greatest = 4294967295, term = "Serving RNC temporary identity (S-RNTI) of the UE" },
    { name = "EstablishCause", tag = 2, shape = "scalar", width = 2, least = 0, greatest = 4294967295, term = "RRC establishment cause" },
    { name = "AcUeId", tag = 3, shape = "scalar", width = 4, least = 0, greatest = 4294967295, term = "UE identifier on the access controller's side" },
    { name = "RejectCause", tag = 4, shape = "scalar", width = 2, least = 0, greatest = 4294967295, term = "Cause of a rejected UE context request" },
    { name = "ReleaseCause", tag = 5, shape = "scalar", width = 2, least = 0, greatest = 4294967295, term = "Cause of a UE context release" },
    { name = "CnDomainId", tag = 6, shape = "scalar", width = 2, least = 0, greatest = 4294967295, term = "Core network domain indicator (circuit or packet switched)" },
    { name = "SapiId", tag = 8, shape = "scalar", width = 2, least = 0, greatest = 4294967295, term = "Service access point identifier (SAPI) of a NAS message" },
    { name = "IuRelReqCause", tag = 9, shape = "scalar", width = 2, least = 0, greatest = 4294967295, term = "Cause of an Iu release request" },
    { name = "KeyStatus", tag = 10, shape = "scalar", width = 2, least = 0, greatest = 4294967295, term = "Key status: whether the security keys are new or old" },
    { name = "IntProtAlgo", tag = 12, shape = "scalar", width = 2, least = 0, greatest = 4294967295, term = "Integrity protection algorithm (UIA)" },
    { name = "EncryptAlgo", tag = 17, shape = "scalar", width = 2, least = 0, greatest = 4294967295, term = "Encryption algorithm (UEA)" },
    { name = "SecRejCause", tag = 18, shape = "scalar", width = 2, least = 0, greatest = 4294967295, term = "Cause of a rejected security mode command" },
    { name = "UserPlaneMode", tag = 20, shape = "scalar", width = 2, least = 0, greatest = 4294967295, term = "Iu user plane mode (transparent or support mode)" },
    { name = "RabId", tag = 23, shape = "scalar", width = 1, least = 0, greatest = 255, term = "Radio access bearer (RAB) identifier" },
    { name = "AcUserPlaneAssociation", tag = 24, shape = "scalar", width = 4, least = 0, greatest = 4294967295, term = "User plane association identifier on the access controller's side" },
    { name = "NasSyncInd", tag = 25, shape = "scalar", width = 1, least = 0, greatest = 255, term = "NAS synchronisation indicator" },
    { name = "TrafficClass", tag = 27, shape = "scalar", width = 2, least = 0, greatest = 4294967295, term = "Traffic class; 3 is interactive, 0 and 2 count as real-time" },
    { name = "RabAssymetryInd", tag = 28, shape = "scalar", width = 2, least = 0, greatest = 4294967295, term = "RAB asymmetry indicator" },
    { name = "MaxSduSize", tag = 29, shape = "scalar", width = 2, least = 0, greatest = 65535, term = "Maximum SDU size" },
    { name = "DeliveryOfErrSdu", tag = 35, shape = "scalar", width = 2, least = 0, greatest = 4294967295, term = "Delivery of erroneous SDUs" },
    { name = "Mantissa", tag = 37, shape = "scalar", width = 1, least = 0, greatest = 255, term = "Mantissa of a bit error ratio" },
    { name = "Exponent", tag = 38, shape = "scalar", width = 1, least = 0, greatest = 255, term = "Exponent of a bit error ratio" },
    { name = "UserPlaneModeVersions", tag = 39, shape = "scalar", width = 2, least = 0, greatest = 65535, term = "Iu user plane mode versions, one bit each" },
    { name = "SduSize", tag = 42, shape = "scalar", width = 2, least = 0, greatest = 65535, term = "Subflow SDU size" },
    { name = "RabSubflowCombBitRate", tag = 43, shape = "scalar", width = 4, least = 0, greatest = 4294967295, term = "RAB subflow combination bit rate" },
    { name = "ApUserPlaneAssociation", tag = 44, shape = "scalar", width = 2, least = 0, greatest = 65535, term = "User plane association identifier on the access point's side (2 bytes, against 4 on the other side)" },
    { name = "SourceStatsDescriptor", tag = 47, shape = "scalar", width = 2, least = 0, greatest = 4294967295, term = "Source statistics descriptor" },
    { name = "TransDelay", tag = 48, shape = "scalar", width = 2, least = 0, greatest = 65535, term = "Transfer delay" },
    { name = "TrafficHandlingPriority", tag = 49, shape = "scalar", width = 1, least = 0, greatest = 255, term = "Traffic handling priority" },
    { name = "PriorityLevel", tag = 51, shape = "scalar", width = 1, least = 0, greatest = 255, term = "Priority level of an allocation" },
    { name = "PreemptionCapability", tag = 52, shape = "scalar", width = 2, least = 0, greatest = 4294967295, term = "Pre-emption capability" },
    { name = "PreemptionVulnerability", tag = 53, shape = "scalar", width = 2, least = 0, greatest = 4294967295, term = "Pre-emption vulnerability" },
    { name = "QueuingAllowed", tag = 54, shape = "scalar", width = 2, least = 0, greatest = 4294967295, term = "Whether queuing of the request is allowed" },
    { name = "DeliveryOrder", tag = 55, shape = "scalar", width = 2, least = 0, greatest = 4294967295, term = "Whether SDUs are delivered in order" },
    { name = "IuRelCause", tag = 56, shape = "scalar", width = 2, least = 0, greatest = 4294967295, term = "Cause of an Iu release" },
    { name = "UdpPort", tag = 62, shape = "scalar", width = 2, least = 0, greatest = 65535, term = "UDP port" },
    { name = "RabSetupFailCause", tag = 65, shape = "scalar", width = 2, least = 0, greatest = 4294967295, term = "Cause of a failed RAB set-up" },
    { name = "RabReleaseCause", tag = 68, shape = "scalar", width = 2, least = 0, greatest = 4294967295, term = "Cause of a RAB release" },
    { name = "MessageId", tag = 72, shape = "scalar", width = 1, least = 0, greatest = 255, term = "Message identifier; the first IE of every message" },
    { name = "ErrorCause", tag = 73, shape = "scalar", width = 2, least = 0, greatest = 4294967295, term = "Cause of a reset after an error" },
    { name = "PagingCause", tag = 74, shape = "scalar", width = 2, least = 0, greatest = 4294967295, term = "Paging cause" },
    { name = "PagingRecordTypeInd", tag = 75, shape = "scalar", width = 2, least = 0, greatest = 4294967295, term = "Paging record type identifier" },
    { name = "DrxCycleLenCoeff", tag = 76, shape = "scalar", width = 2, least = 0, greatest = 65535, term = "DRX cycle length coefficient" },
    { name = "TempUeIdType", tag = 78, shape = "scalar", width = 2, least = 0, greatest = 4294967295, term = "Type of a temporary UE identity (TMSI or P-TMSI)" },
    { name = "Tos", tag = 88, shape = "scalar", width = 1, least = 0, greatest = 255, term = "IP type-of-service byte" },
    { name = "RtcpTransInterval", tag = 89, shape = "scalar", width = 2, least = 0, greatest = 65535, term = "RTCP transmission interval" },
    { name = "JitterBufferSize", tag = 90, shape = "scalar", width = 2, least = 0, greatest = 65535, term = "Jitter buffer size" },
    { name = "RtpStreamId", tag = 91, shape = "scalar", width = 1, least = 0, greatest = 255, term = "RTP stream identifier" },
    { name = "UserPlaneResult", tag = 93, shape = "scalar", width = 2, least = 0, greatest = 4294967295, term = "Result of a user plane configuration; 0 is success" },
    { name = "UnSuccTransferAtRlc", tag = 97, shape = "scalar", width = 4, least = 0, greatest = 4294967295, term = "Data volume unsuccessfully transferred, counted at RLC" },
    { name = "SuccTransferAtPsiw", tag = 98, shape = "scalar", width = 4, least = 0, greatest = 4294967295, term = "Data volume successfully transferred, counted at the packet switched interworking" },
    { name = "DataVolReportingFlag", tag = 99, shape = "scalar", width = 2, least = 0, greatest = 4294967295, term = "Whether unsuccessfully transferred data volume is reported" },
    { name = "Reset3GAP", tag = 100, shape = "scalar", width = 2, least = 0, greatest = 4294967295, term = "Whether the whole access point is reset; 1 means all of it, without UE contexts listed" },
    { name = "RespExpected", tag = 101, shape = "scalar", width = 2, least = 0, greatest = 4294967295, term = "Whether a response is expected" },
    { name = "RelocationRequiredCause", tag = 104, shape = "scalar", width = 2, least = 0, greatest = 4294967295, term = "Cause of a required relocation" },
    { name = "RAC", tag = 110, shape = "scalar", width = 1, least = 0, greatest = 255, term = "Routing area code (RAC)" },
    { name = "RNCId", tag = 111, shape = "scalar", width = 2, least = 0, greatest = 4096, term = "RNC identifier; the bound takes in 4096, one more than 12 bits can carry" },
    { name = "TargetCellId", tag = 118, shape = "scalar", width = 4, least = 0, greatest = 268435455, term = "Target cell identity, 28 bits" },
    { name = "RelocationFailureCause", tag = 119, shape = "scalar", width = 2, least = 0, greatest = 4294967295, term = "Cause of a failed relocation" },
    { name = "HandoverFailureCause", tag = 126, shape = "scalar", width = 2, least = 0, greatest = 4294967295, term = "Cause of a failed handover" },
    { name = "ServiceHandover", tag = 127, shape = "scalar", width = 2, least = 0, greatest = 4294967295, term = "Service handover: whether the RAB should be handed over to GSM" },
    { name = "HandoverRequestCause", tag = 128, shape = "scalar", width = 2, least = 0, greatest = 4294967295, term = "Cause of a handover request" },
    { name = "RelocationCancelCause", tag = 130, shape = "scalar", width = 2, least = 0, greatest = 4294967295, term = "Cause of a cancelled relocation" },
    { name = "NumIuInstances", tag = 154, shape = "scalar", width = 1, least = 1, greatest = 2, term = "Number of Iu instances" },
    { name = "RelocationType", tag = 155, shape = "scalar", width = 2, least = 0, greatest = 4294967295, term = "Relocation type; 0 is inter-RAT, 1 is intra-RAT" },
    { name = "CsUserEncryptAlgo", tag = 157, shape = "scalar", width = 2, least = 0, greatest = 4294967295, term = "Encryption algorithm of the circuit switched user plane" },
    { name = "PsUserEncryptAlgo", tag = 158, shape = "scalar", width = 2, least = 0, greatest = 4294967295, term = "Encryption algorithm of the packet switched user plane" },
    { name = "MaxBitRateUplink", tag = 160, shape = "scalar", width = 4, least = 0, greatest = 8000000, term = "Maximum uplink bit rate, bit/s" },
    { name = "MaxBitRateDownlink", tag = 161, shape = "scalar", width = 4, least = 0, greatest = 16000000, term = "Maximum downlink bit rate, bit/s; twice the uplink's bound" },
    { name = "CpsSduMaxBitRate", tag = 163, shape = "scalar", width = 4, least = 0, greatest = 2097152, term = "Maximum CPS-SDU bit rate of an AAL2 link" },
    { name = "CpsSduMaxSize", tag = 164, shape = "scalar", width = 4, least = 1, greatest = 45, term = "Maximum CPS-SDU size of an AAL2 link, bytes; 4 bytes on the wire although 1 would do" },
    { name = "CpsSduAvgBitRate", tag = 165, shape = "scalar", width = 4, least = 0, greatest = 2097152, term = "Average CPS-SDU bit rate of an AAL2 link" },
    { name = "CpsSduAvgSize", tag = 166, shape = "scalar", width = 4, least = 1, greatest = 45, term = "Average CPS-SDU size of an AAL2 link, bytes; 4 bytes on the wire although 1 would do" },
    { name = "LacMatch", tag = 168, shape = "scalar", width = 2, least = 0, greatest = 4294967295, term = "Whether the location area code matches" },
    { name = "IuRelCauseNew", tag = 170, shape = "scalar", width = 2, least = 0, greatest = 4294967295, term = "A second Iu release cause beside IuRelCause" },
    { name = "GtpTeid", tag = 171, shape = "scalar", width = 4, least = 0, greatest = 4294967295, term = "GTP tunnel endpoint identifier (TEID)" },
    { name = "GtpEchoPeriod", tag = 172, shape = "scalar", width = 2, least = 60, greatest = 600, term = "Period of GTP echo requests, seconds" },
    { name = "MuxUdpPort", tag = 174, shape = "scalar", width = 2, least = 0, greatest = 65535, term = "UDP port of a multiplexed user plane" },
    { name = "RoutingBasis", tag = 175, shape = "scalar", width = 2, least = 0, greatest = 4294967295, term = "Identity on which the intra-domain NAS node selection is based" },
    { name = "RoutingParameter", tag = 176, shape = "scalar", width = 2, least = 0, greatest = 1023, term = "Routing parameter of the intra-domain NAS node selection, 10 bits" },
    { name = "BitRate", tag = 31, shape = "scalar", width = 4, least = 0, greatest = 4294967295, term = "One bit rate of BitRates, bit/s" },
    { name = "PdpTypeInfo", tag = 46, shape = "scalar", width = 2, least = 0, greatest = 4294967295, term = "One PDP type of PdpTypeInfoList" },
    { name = "IpAddressByte", tag = 61, shape = "scalar", width = 1, least = 0, greatest = 255, term = "One byte of an IpAddress" },
    { name = "NasMsg", tag = 7, shape = "bytes", capacity = 4096, least = 1, greatest = 4095, term = "NAS message, passed through (NAS-PDU)" },
    { name = "IntProtKey", tag = 13, shape = "bytes", capacity = 16, least = 16, greatest = 16, term = "Integrity protection key (IK)" },
    { name = "EncryptKey", tag = 16, shape = "bytes", capacity = 16, least = 16, greatest = 16, term = "Encryption key (CK)" },
    { name = "TempUeIdValue", tag = 79, shape = "bytes", capacity = 4, least = 4, greatest = 4, form = "HexNumber", term = "Temporary UE identity (TMSI or P-TMSI)" },
    { name = "MasterKey", tag = 85, shape = "bytes", capacity = 16, least = 0, greatest = 16, term = "SRTP master key" },
    { name = "MasterSalt", tag = 86, shape = "bytes", capacity = 14, least = 0, greatest = 14, term = "SRTP master salt" },
    { name = "NasUeId", tag = 92, shape = "bytes", capacity = 8, least = 3, greatest = 8, form = "Digits", term = "Permanent NAS UE identity" },
    { name = "PLMNId", tag = 108, shape = "bytes", capacity = 3, least = 3, greatest = 3, form = "MccMnc", term = "PLMN identity" },
    { name = "LAC", tag = 109, shape = "bytes", capacity = 2, least = 2, greatest = 2, form = "HexNumber", term = "Location area code (LAC), a 2-byte string and not a number" },
    { name = "CI", tag = 113, shape = "bytes", capacity = 2, least = 2, greatest = 2, form = "HexNumber", term = "Cell identity (CI), a 2-byte string and not a number" },
    { name = "GsmClassmark2", tag = 114, shape = "bytes", capacity = 5, least = 0, greatest = 5, term = "GSM mobile station classmark 2" },
    { name = "GsmClassmark3", tag = 115, shape = "bytes", capacity = 32, least = 1, greatest = 32, term = "GSM mobile station classmark 3" },
    { name = "RrcContainer", tag = 117, shape = "bytes", capacity = 2000, least = 0, greatest = 2000, term = "RRC container, passed through" },
    { name = "L3Information", tag = 120, shape = "bytes", capacity = 255, least = 0, greatest = 255, term = "Layer 3 information, passed through" },
    { name = "OldBssToNewBssInfo", tag = 159, shape = "bytes", capacity = 255, least = 0, greatest = 255, term = "Old BSS to new BSS information, passed through" },
    { name = "Imsi", tag = 169, shape = "bytes", capacity = 16, least = 16, greatest = 16, form = "Digits", term = "Subscriber identity (IMSI), 16 opaque bytes" },
    { name = "IntProtInfo", tag = 11, shape = "record", members = { "IntProtAlgo", "IntProtKey" }, term = "Integrity protection information: algorithm and key" },
    { name = "EncryptAlgos", tag = 15, shape = "list", capacity = 2, least = 1, greatest = 2, item = "EncryptAlgo", term = "Permitted encryption algorithms" },
    { name = "EncryptInfo", tag = 14, shape = "record", members = { "EncryptAlgos", "EncryptKey" }, term = "Encryption information: permitted algorithms and key" },
    { name = "UserPlaneInfo", tag = 32, shape = "record", members = { "UserPlaneMode", "UserPlaneModeVersions" }, term = "User plane information: Iu user plane mode and its versions" },
    { name = "BitErrRatio", tag = 36, shape = "record", members = { "Mantissa", "Exponent" }, term = "Bit error ratio: mantissa times ten to the minus exponent" },
    { name = "AllocRetPriority", tag = 50, shape = "record", members = { "PriorityLevel", "PreemptionCapability", "PreemptionVulnerability", "QueuingAllowed" }, term = "Allocation/retention priority" },
    { name = "TempUeId", tag = 77, shape = "record", members = { "TempUeIdType", "TempUeIdValue" }, term = "Temporary UE identity: type and value" },
    { name = "RtpSecurityInfo", tag = 84, shape = "record", members = { "MasterKey", "MasterSalt" }, term = "SRTP keying material: master key and master salt" },
    { name = "LAI", tag = 107, shape = "record", members = { "PLMNId", "LAC" }, term = "Location area identity (LAI): PLMN and location area code" },
    { name = "TargetCGI", tag = 112, shape = "record", members = { "PLMNId", "LAC", "CI" }, term = "Cell global identity (CGI) of the target cell" },
    { name = "AlcapLinkCharacteristics", tag = 162, shape = "record", members = { "CpsSduMaxBitRate", "CpsSduMaxSize", "CpsSduAvgBitRate", "CpsSduAvgSize" }, term = "ALCAP link characteristics of an AAL2 link" },
    { name = "Idnns", tag = 177, shape = "record", members = { "RoutingBasis", "RoutingParameter" }, term = "Intra-domain NAS node selector (IDNNS)" },
    { name = "RabSetupFailedInfo", tag = 64, shape = "record", members = { "RabId", "RabSetupFailCause" }, term = "One RAB that could not be set up, and why" },
    { name = "RabReleaseInfo", tag = 67, shape = "record", members = { "RabId", "RabReleaseCause" }, term = "One RAB to release, and why" },
    { name = "RabIdList", tag = 167, shape = "list", capacity = 3, least = 1, greatest = 3, item = "RabId", term = "RAB identifiers; the items carry the tag of the RabId IE itself" },
    { name = "HandoutRabReleaseInfo", tag = 122, shape = "record", members = { "CnDomainId", "RabIdList" }, term = "The RABs of one core network domain to release at a handout" },
    { name = "IpAddress", tag = 60, shape = "list", capacity = 4, least = 4, greatest = 4, item = "IpAddressByte", form = "Dotted", term = "IPv4 address, four one-byte items, most significant first" },
    { name = "BitRates", tag = 30, shape = "list", capacity = 2, least = 0, greatest = 2, item = "BitRate", term = "Bit rates, bit/s, one for each direction" },
    { name = "PdpTypeInfoList", tag = 45, shape = "list", capacity = 2, least = 0, greatest = 2, item = "PdpTypeInfo", term = "PDP type information" },
    { name = "RabSetupFailedList", tag = 63, shape = "list", capacity = 3, least = 0, greatest = 3, item = "RabSetupFailedInfo", term = "RABs that could not be set up" },
    { name = "RabReleaseList", tag = 66, shape = "list", capacity = 3, least = 0, greatest = 3, item = "RabReleaseInfo", term = "RABs to release" },
    { name = "HandoutRabReleaseList", tag = 121, shape = "list", capacity = 2, least = 1, greatest = 2, item = "HandoutRabReleaseInfo", term = "RABs to release at a handout, by core network domain" },
    { name = "RabDataInfo", tag = 103, shape = "sequence", term = "Data volumes transferred over one RAB", rule = "none", slots = {
      { name = "RabId", type = "RabId", presence = "mandatory" },
      { name = "SuccTransferAtPsiw", type = "SuccTransferAtPsiw", presence = "mandatory" },
      { name = "UnSuccTransferAtRlc", type = "UnSuccTransferAtRlc", presence = "optional" },
    } },
    { name = "SduFormatInfoParams", tag = 41, shape = "sequence", term = "SDU format information of one RAB subflow combination", rule = "none", slots = {
      { name = "SduSize", type = "SduSize", presence = "optional" },
      { name = "RabSubflowCombBitRate", type = "RabSubflowCombBitRate", presence = "optional" },
    } },
    { name = "RabSetupSuccessInfo", tag = 58, shape = "sequence", term = "One RAB that was set up", rule = "none", slots = {
      { name = "RabId", type = "RabId", presence = "mandatory" },
      { name = "UdpPort", type = "UdpPort", presence = "optional" },
      { name = "GtpTeid", type = "GtpTeid", presence = "optional" },
    } },
    { name = "ModifiedSrncContainer", tag = 116, shape = "sequence", term = "Source RNC to target RNC transparent container, as modified for the access point", rule = "none", slots = {
      { name = "RrcContainer", type = "RrcContainer", presence = "mandatory" },
      { name = "TargetCellId", type = "TargetCellId", presence = "mandatory" },
      { name = "NumIuInstances", type = "NumIuInstances", presence = "mandatory" },
      { name = "IntProtAlgo", type = "IntProtAlgo", presence = "optional" },
      { name = "IntProtKey", type = "IntProtKey", presence = "optional" },
      { name = "EncryptAlgo", type = "EncryptAlgo", presence = "optional" },
      { name = "EncryptKey", type = "EncryptKey", presence = "optional" },
      { name = "CsUserEncryptAlgo", type = "CsUserEncryptAlgo", presence = "optional" },
      { name = "PsUserEncryptAlgo", type = "PsUserEncryptAlgo", presence = "optional" },
    } },
    { name = "PsIuhGatewayInfo", tag = 173, shape = "sequence", term = "Packet switched gateway: GTP-U endpoint of the user plane", rule = "none", slots = {
      { name = "IpAddress", type = "IpAddress", presence = "mandatory" },
      { name = "GtpTeid", type = "GtpTeid", presence = "mandatory" },
      { name = "UdpPort", type = "UdpPort", presence = "optional" },
      { name = "Tos", type = "Tos", presence = "optional" },
      { name = "GtpEchoPeriod", type = "GtpEchoPeriod", presence = "optional" },
    } },
    { name = "RtpServerInfo", tag = 87, shape = "sequence", term = "RTP server: endpoint of the circuit switched user plane", rule = "none", slots = {
      { name = "IpAddress", type = "IpAddress", presence = "mandatory" },
      { name = "UdpPort", type = "UdpPort", presence = "mandatory" },
      { name = "Tos", type = "Tos", presence = "optional" },
      { name = "RtcpTransInterval", type = "RtcpTransInterval", presence = "optional" },
      { name = "JitterBufferSize", type = "JitterBufferSize", presence = "optional" },
      { name = "MuxUdpPort", type = "MuxUdpPort", presence = "optional" },
    } },
    { name = "TargetRNCId", tag = 106, shape = "sequence", term = "Target RNC identity", rule = "none", slots = {
      { name = "LAI", type = "LAI", presence = "mandatory" },
      { name = "RNCId", type = "RNCId", presence = "mandatory" },
      { name = "RAC", type = "RAC", presence = "optional" },
    } },
    { name = "RabDataInfoList", tag = 102, shape = "compositeList", term = "Data volumes of the UE's RABs", item = "RabDataInfo", least = 1, greatest = 3 },
    { name = "UeContextRef", tag = 95, shape = "sequence", term = "Reference to one UE context", rule = "none", slots = {
      { name = "AcUeId", type = "AcUeId", presence = "mandatory" },
      { name = "Srnti", type = "Srnti", presence = "optional" },
      { name = "RabDataInfoList", type = "RabDataInfoList", presence = "optional" },
    } },
    { name = "RabSetupSuccessList", tag = 57, shape = "compositeList", term = "RABs that were set up", item = "RabSetupSuccessInfo", least = 0, greatest = 3 },
    { name = "ResourceInfoPerCnDomainAck", tag = 152, shape = "sequence", term = "Resources allocated for one core network domain at a handover", rule = "none", slots = {
      { name = "CnDomainId", type = "CnDomainId", presence = "mandatory" },
      { name = "RabSetupSuccessList", type = "RabSetupSuccessList", presence = "optional" },
      { name = "RabSetupFailedList", type = "RabSetupFailedList", presence = "optional" },
      { name = "EncryptAlgo", type = "EncryptAlgo", presence = "optional" },
    } },
    { name = "ResourceInfoPerCnDomainListAck", tag = 153, shape = "compositeList", term = "Resources allocated at a handover, by core network domain", item = "ResourceInfoPerCnDomainAck", least = 1, greatest = 2 },
    { name = "SduFormatInfoParamList", tag = 40, shape = "compositeList", term = "SDU format information parameters", item = "SduFormatInfoParams", least = 0, greatest = 64 },
    { name = "SduParamValue", tag = 34, shape = "sequence", term = "SDU parameters of one RAB subflow", rule = "none", slots = {
      { name = "DeliveryOfErrSdu", type = "DeliveryOfErrSdu", presence = "mandatory" },
      { name = "BitErrRatio", type = "BitErrRatio", presence = "mandatory" },
      { name = "SduFormatInfoParamList", type = "SduFormatInfoParamList", presence = "optional" },
      { name = "SecondBitErrRatio", type = "BitErrRatio", presence = "optional" },
    } },
    { name = "SduParams", tag = 33, shape = "compositeList", term = "SDU parameters, one element for each RAB subflow", item = "SduParamValue", least = 0, greatest = 7 },
    { name = "RabParams", tag = 26, shape = "sequence", term = "RAB parameters (quality of service)", rule = "refuseUncalled", slots = {
      { name = "TrafficClass", type = "TrafficClass", presence = "mandatory" },
      { name = "RabAssymetryInd", type = "RabAssymetryInd", presence = "mandatory" },
      { name = "DeliveryOrder", type = "DeliveryOrder", presence = "mandatory" },
      { name = "MaxSduSize", type = "MaxSduSize", presence = "mandatory" },
      { name = "BitRates", type = "BitRates", presence = "mandatory" },
      { name = "SduParams", type = "SduParams", presence = "mandatory" },
      { name = "PdpTypeInfoList", type = "PdpTypeInfoList", presence = "optional" },
      { name = "AllocRetPriority", type = "AllocRetPriority", presence = "optional" },
      { name = "DataVolReportingFlag", type = "DataVolReportingFlag", presence = "optional" },
      { name = "SecondBitRates", type = "BitRates", presence = "conditional", condition = "realTime" },
      { name = "SourceStatsDescriptor", type = "SourceStatsDescriptor", presence = "conditional", condition = "realTime" },
      { name = "TransDelay", type = "TransDelay", presence = "conditional", condition = "realTime" },
      { name = "TrafficHandlingPriority", type = "TrafficHandlingPriority", presence = "conditional", condition = "interactive" },
    } },
    { name = "RabToSetUpInfo", tag = 22, shape = "sequence", term = "One RAB to set up", rule = "none", slots = {
      { name = "RabId", type = "RabId", presence = "mandatory" },
      { name = "AcUserPlaneAssociation", type = "AcUserPlaneAssociation", presence = "mandatory" },
      { name = "RabParams", type = "RabParams", presence = "mandatory" },
      { name = "NasSyncInd", type = "NasSyncInd", presence = "optional" },
      { name = "UserPlaneInfo", type = "UserPlaneInfo", presence = "optional" },
      { name = "ServiceHandover", type = "ServiceHandover", presence = "optional" },
    } },
    { name = "RabList", tag = 21, shape = "compositeList", term = "RABs to set up", item = "RabToSetUpInfo", least = 0, greatest = 3 },
    { name = "RabToSetupPerCnDomain", tag = 125, shape = "sequence", term = "RABs to set up for one core network domain at a handover", rule = "none", slots = {
      { name = "CnDomainId", type = "CnDomainId", presence = "mandatory" },
      { name = "RabList", type = "RabList", presence = "optional" },
      { name = "EncryptInfo", type = "EncryptInfo", presence = "optional" },
    } },
    { name = "RabToSetupPerCnDomainList", tag = 150, shape = "compositeList", term = "RABs to set up at a handover, by core network domain", item = "RabToSetupPerCnDomain", least = 1, greatest = 2 },
  },
  messages = {
    { name = "UeContextRequest", id = 1, term = "AP to AC: asks for a UE context", rule = "none", slots = {
      { name = "Srnti", type = "Srnti", presence = "mandatory" },
      { name = "EstablishCause", type = "EstablishCause", presence = "mandatory" },
    } },
    { name = "UeContextAccept", id = 2, term = "AC to AP: accepts a UE context request", rule = "none", slots = {
      { name = "Srnti", type = "Srnti", presence = "mandatory" },
      { name = "AcUeId", type = "AcUeId", presence = "mandatory" },
    } },
    { name = "UeContextReject", id = 3, term = "AC to AP: rejects a UE context request", rule = "none", slots = {
      { name = "Srnti", type = "Srnti", presence = "mandatory" },
      { name = "RejectCause", type = "RejectCause", presence = "mandatory" },
    } },
    { name = "UeContextRelease", id = 4, term = "Releases a UE context", rule = "none", slots = {
      { name = "Srnti", type = "Srnti", presence = "mandatory" },
      { name = "AcUeId", type = "AcUeId", presence = "mandatory" },
      { name = "ReleaseCause", type = "ReleaseCause", presence = "mandatory" },
      { name = "RabDataInfoList", type = "RabDataInfoList", presence = "optional" },
    } },
    { name = "InitDirectTransfer", id = 5, term = "AP to AC: the UE's first NAS message towards a core network domain", rule = "none", slots = {
      { name = "Srnti", type = "Srnti", presence = "mandatory" },
      { name = "AcUeId", type = "AcUeId", presence = "mandatory" },
      { name = "CnDomainId", type = "CnDomainId", presence = "mandatory" },
      { name = "NasMsg", type = "NasMsg", presence = "mandatory" },
      { name = "Imsi", type = "Imsi", presence = "optional" },
      { name = "Idnns", type = "Idnns", presence = "optional" },
    } },
    { name = "UlDirectTransfer", id = 6, term = "AP to AC: a NAS message from the UE", rule = "none", slots = {
      { name = "Srnti", type = "Srnti", presence = "mandatory" },
      { name = "AcUeId", type = "AcUeId", presence = "mandatory" },
      { name = "CnDomainId", type = "CnDomainId", presence = "mandatory" },
      { name = "NasMsg", type = "NasMsg", presence = "mandatory" },
    } },
    { name = "DlDirectTransfer", id = 7, term = "AC to AP: a NAS message to the UE", rule = "none", slots = {
      { name = "Srnti", type = "Srnti", presence = "mandatory" },
      { name = "AcUeId", type = "AcUeId", presence = "mandatory" },
      { name = "CnDomainId", type = "CnDomainId", presence = "mandatory" },
      { name = "NasMsg", type = "NasMsg", presence = "mandatory" },
      { name = "SapiId", type = "SapiId", presence = "mandatory" },
    } },
    { name = "IuReleaseRequest", id = 8, term = "AP to AC: asks for the release of an Iu connection", rule = "none", slots = {
      { name = "Srnti", type = "Srnti", presence = "mandatory" },
      { name = "AcUeId", type = "AcUeId", presence = "mandatory" },
      { name = "CnDomainId", type = "CnDomainId", presence = "mandatory" },
      { name = "IuRelReqCause", type = "IuRelReqCause", presence = "mandatory" },
    } },
    { name = "IuReleaseCommand", id = 9, term = "AC to AP: releases an Iu connection", rule = "none", slots = {
      { name = "Srnti", type = "Srnti", presence = "mandatory" },
      { name = "AcUeId", type = "AcUeId", presence = "mandatory" },
      { name = "CnDomainId", type = "CnDomainId", presence = "mandatory" },
      { name = "IuRelCause", type = "IuRelCause", presence = "mandatory" },
      { name = "RespExpected", type = "RespExpected", presence = "mandatory" },
      { name = "IuRelCauseNew", type = "IuRelCauseNew", presence = "optional" },
    } },
    { name = "SecurityModeCommand", id = 10, term = "AC to AP: starts integrity protection and ciphering", rule = "none", slots = {
      { name = "Srnti", type = "Srnti", presence = "mandatory" },
      { name = "AcUeId", type = "AcUeId", presence = "mandatory" },
      { name = "CnDomainId", type = "CnDomainId", presence = "mandatory" },
      { name = "IntProtInfo", type = "IntProtInfo", presence = "mandatory" },
      { name = "KeyStatus", type = "KeyStatus", presence = "mandatory" },
      { name = "EncryptInfo", type = "EncryptInfo", presence = "optional" },
    } },
    { name = "SecurityModeComplete", id = 11, term = "AP to AC: security mode control has succeeded", rule = "none", slots = {
      { name = "Srnti", type = "Srnti", presence = "mandatory" },
      { name = "AcUeId", type = "AcUeId", presence = "mandatory" },
      { name = "CnDomainId", type = "CnDomainId", presence = "mandatory" },
      { name = "IntProtAlgo", type = "IntProtAlgo", presence = "mandatory" },
      { name = "EncryptAlgo", type = "EncryptAlgo", presence = "optional" },
    } },
    { name = "SecurityModeReject", id = 12, term = "AP to AC: security mode control has failed", rule = "none", slots = {
      { name = "Srnti", type = "Srnti", presence = "mandatory" },
      { name = "AcUeId", type = "AcUeId", presence = "mandatory" },
      { name = "CnDomainId", type = "CnDomainId", presence = "mandatory" },
      { name = "SecRejCause", type = "SecRejCause", presence = "mandatory" },
    } },
    { name = "RabAssignmentRequest", id = 13, term = "AC to AP: sets up RABs", rule = "none", slots = {
      { name = "Srnti", type = "Srnti", presence = "mandatory" },
      { name = "AcUeId", type = "AcUeId", presence = "mandatory" },
      { name = "CnDomainId", type = "CnDomainId", presence = "mandatory" },
      { name = "RabList", type = "RabList", presence = "mandatory" },
    } },
    { name = "RabAssignmentResponse", id = 14, term = "AP to AC: tells which RABs were set up", rule = "none", slots = {
      { name = "Srnti", type = "Srnti", presence = "mandatory" },
      { name = "AcUeId", type = "AcUeId", presence = "mandatory" },
      { name = "CnDomainId", type = "CnDomainId", presence = "mandatory" },
      { name = "RabSetupSuccessList", type = "RabSetupSuccessList", presence = "optional" },
      { name = "RabSetupFailedList", type = "RabSetupFailedList", presence = "optional" },
    } },
    { name = "RabReleaseRequest", id = 15, term = "Releases RABs", rule = "none", slots = {
      { name = "Srnti", type = "Srnti", presence = "mandatory" },
      { name = "AcUeId", type = "AcUeId", presence = "mandatory" },
      { name = "CnDomainId", type = "CnDomainId", presence = "mandatory" },
      { name = "RabReleaseList", type = "RabReleaseList", presence = "mandatory" },
    } },
    { name = "RabReleaseResponse", id = 16, term = "Tells which RABs were released", rule = "none", slots = {
      { name = "Srnti", type = "Srnti", presence = "mandatory" },
      { name = "AcUeId", type = "AcUeId", presence = "mandatory" },
      { name = "CnDomainId", type = "CnDomainId", presence = "mandatory" },
      { name = "RabDataInfoList", type = "RabDataInfoList", presence = "optional" },
      { name = "RabIdList", type = "RabIdList", presence = "optional" },
    } },
    { name = "Reset", id = 17, term = "Resets one core network domain", rule = "none", slots = {
      { name = "CnDomainId", type = "CnDomainId", presence = "mandatory" },
    } },
    { name = "IapReset", id = 18, term = "Resets the access point or the UE contexts listed", rule = "dropUncalled", slots = {
      { name = "ErrorCause", type = "ErrorCause", presence = "mandatory" },
      { name = "Reset3GAP", type = "Reset3GAP", presence = "mandatory" },
      { name = "UeContextRef", type = "UeContextRef", presence = "repeated", condition = "reset3GapNotPresent" },
    } },
    { name = "ConnectedModePaging", id = 19, term = "AC to AP: pages a UE that has a UE context", rule = "none", slots = {
      { name = "Srnti", type = "Srnti", presence = "mandatory" },
      { name = "AcUeId", type = "AcUeId", presence = "mandatory" },
      { name = "NasUeId", type = "NasUeId", presence = "mandatory" },
      { name = "CnDomainId", type = "CnDomainId", presence = "mandatory" },
      { name = "PagingCause", type = "PagingCause", presence = "mandatory" },
      { name = "PagingRecordTypeInd", type = "PagingRecordTypeInd", presence = "mandatory" },
    } },
    { name = "IdleModePaging", id = 20, term = "AC to AP: pages a UE that has none", rule = "none", slots = {
      { name = "NasUeId", type = "NasUeId", presence = "mandatory" },
      { name = "CnDomainId", type = "CnDomainId", presence = "mandatory" },
      { name = "PagingCause", type = "PagingCause", presence = "mandatory" },
      { name = "DrxCycleLenCoeff", type = "DrxCycleLenCoeff", presence = "optional" },
      { name = "TempUeId", type = "TempUeId", presence = "optional" },
    } },
    { name = "UserPlaneConfigRequest", id = 21, term = "Asks for a user plane to be configured", rule = "none", slots = {
      { name = "Srnti", type = "Srnti", presence = "mandatory" },
      { name = "AcUeId", type = "AcUeId", presence = "mandatory" },
      { name = "RtpStreamId", type = "RtpStreamId", presence = "mandatory" },
      { name = "AcUserPlaneAssociation", type = "AcUserPlaneAssociation", presence = "mandatory" },
      { name = "ApUserPlaneAssociation", type = "ApUserPlaneAssociation", presence = "mandatory" },
      { name = "AlcapLinkCharacteristics", type = "AlcapLinkCharacteristics", presence = "optional" },
      { name = "MaxBitRateUplink", type = "MaxBitRateUplink", presence = "optional" },
      { name = "MaxBitRateDownlink", type = "MaxBitRateDownlink", presence = "optional" },
    } },
    { name = "UserPlaneConfigResponse", id = 22, term = "Tells how a user plane was configured", rule = "none", slots = {
      { name = "Srnti", type = "Srnti", presence = "mandatory" },
      { name = "AcUeId", type = "AcUeId", presence = "mandatory" },
      { name = "ApUserPlaneAssociation", type = "ApUserPlaneAssociation", presence = "mandatory" },
      { name = "UserPlaneResult", type = "UserPlaneResult", presence = "mandatory" },
      { name = "RtpServerInfo", type = "RtpServerInfo", presence = "optional" },
      { name = "RtpSecurityInfo", type = "RtpSecurityInfo", presence = "optional" },
      { name = "PsIuhGatewayInfo", type = "PsIuhGatewayInfo", presence = "optional" },
    } },
    { name = "IuReleaseComplete", id = 23, term = "AP to AC: an Iu connection was released", rule = "none", slots = {
      { name = "Srnti", type = "Srnti", presence = "mandatory" },
      { name = "AcUeId", type = "AcUeId", presence = "mandatory" },
      { name = "RabDataInfoList", type = "RabDataInfoList", presence = "optional" },
    } },
    { name = "RelocationRequired", id = 24, term = "AP to AC: asks for the relocation of a UE", rule = "dropUncalledRequireAtEnd", slots = {
      { name = "Srnti", type = "Srnti", presence = "mandatory" },
      { name = "AcUeId", type = "AcUeId", presence = "mandatory" },
      { name = "RelocationRequiredCause", type = "RelocationRequiredCause", presence = "mandatory" },
      { name = "RelocationType", type = "RelocationType", presence = "mandatory" },
      { name = "ModifiedSrncContainer", type = "ModifiedSrncContainer", presence = "conditional", condition = "intraRatRelocation" },
      { name = "TargetRNCId", type = "TargetRNCId", presence = "conditional", condition = "intraRatRelocation" },
      { name = "GsmClassmark2", type = "GsmClassmark2", presence = "conditional", condition = "interRatRelocation" },
      { name = "GsmClassmark3", type = "GsmClassmark3", presence = "conditional", condition = "interRatRelocation" },
      { name = "TargetCGI", type = "TargetCGI", presence = "conditional", condition = "interRatRelocation" },
      { name = "OldBssToNewBssInfo", type = "OldBssToNewBssInfo", presence = "optional" },
    } },
    { name = "RelocationFailure", id = 25, term = "AC to AP: the relocation cannot be done", rule = "none", slots = {
      { name = "Srnti", type = "Srnti", presence = "mandatory" },
      { name = "AcUeId", type = "AcUeId", presence = "mandatory" },
      { name = "RelocationFailureCause", type = "RelocationFailureCause", presence = "mandatory" },
    } },
    { name = "RelocationCancel", id = 26, term = "AP to AC: cancels a relocation", rule = "none", slots = {
      { name = "Srnti", type = "Srnti", presence = "mandatory" },
      { name = "AcUeId", type = "AcUeId", presence = "mandatory" },
      { name = "RelocationCancelCause", type = "RelocationCancelCause", presence = "mandatory" },
    } },
    { name = "RelocationCommand", id = 27, term = "AC to AP: hands the UE over to the target", rule = "none", slots = {
      { name = "Srnti", type = "Srnti", presence = "mandatory" },
      { name = "AcUeId", type = "AcUeId", presence = "mandatory" },
      { name = "RrcContainer", type = "RrcContainer", presence = "optional" },
      { name = "L3Information", type = "L3Information", presence = "optional" },
      { name = "HandoutRabReleaseList", type = "HandoutRabReleaseList", presence = "optional" },
    } },
    { name = "HandoverRequest", id = 28, term = "AC to AP: asks the target to take a UE over", rule = "none", slots = {
      { name = "AcUeId", type = "AcUeId", presence = "mandatory" },
      { name = "HandoverRequestCause", type = "HandoverRequestCause", presence = "mandatory" },
      { name = "ModifiedSrncContainer", type = "ModifiedSrncContainer", presence = "mandatory" },
      { name = "RabToSetupPerCnDomainList", type = "RabToSetupPerCnDomainList", presence = "optional" },
      { name = "IntProtInfo", type = "IntProtInfo", presence = "optional" },
    } },
    { name = "HandoverFailure", id = 29, term = "AP to AC: the target cannot take the UE over", rule = "none", slots = {
      { name = "Srnti", type = "Srnti", presence = "mandatory" },
      { name = "AcUeId", type = "AcUeId", presence = "mandatory" },
      { name = "HandoverFailureCause", type = "HandoverFailureCause", presence = "mandatory" },
    } },
    { name = "HandoverDetect", id = 30, term = "AP to AC: the target has detected the UE", rule = "none", slots = {
      { name = "Srnti", type = "Srnti", presence = "mandatory" },
      { name = "AcUeId", type = "AcUeId", presence = "mandatory" },
    } },
    { name = "HandoverComplete", id = 31, term = "AP to AC: the UE has arrived at the target", rule = "none", slots = {
      { name = "Srnti", type = "Srnti", presence = "mandatory" },
      { name = "AcUeId", type = "AcUeId", presence = "mandatory" },
    } },
    { name = "HandoverCancelInd", id = 32, term = "AC to AP: the handover is cancelled", rule = "none", slots = {
      { name = "Srnti", type = "Srnti", presence = "mandatory" },
      { name = "AcUeId", type = "AcUeId", presence = "mandatory" },
    } },
    { name = "HandoverReqAck", id = 33, term = "AP to AC: the target has allocated resources for the UE", rule = "none", slots = {
      { name = "Srnti", type = "Srnti", presence = "mandatory" },
      { name = "AcUeId", type = "AcUeId", presence = "mandatory" },
      { name = "RrcContainer", type = "RrcContainer", presence = "mandatory" },
      { name = "IntProtAlgo", type = "IntProtAlgo", presence = "optional" },
      { name = "ResourceInfoPerCnDomainListAck", type = "ResourceInfoPerCnDomainListAck", presence = "optional" },
    } },
    { name = "UserPlaneModifyRequest", id = 35, term = "Asks for a user plane to be modified", rule = "none", slots = {
      { name = "Srnti", type = "Srnti", presence = "mandatory" },
      { name = "AcUeId", type = "AcUeId", presence = "mandatory" },
      { name = "AcUserPlaneAssociation", type = "AcUserPlaneAssociation", presence = "mandatory" },
      { name = "ApUserPlaneAssociation", type = "ApUserPlaneAssociation", presence = "mandatory" },
      { name = "MaxBitRateUplink", type = "MaxBitRateUplink", presence = "optional" },
      { name = "MaxBitRateDownlink", type = "MaxBitRateDownlink", presence = "optional" },
    } },
    { name = "UserPlaneModifyResponse", id = 36, term = "Tells how a user plane was modified", rule = "none", slots = {
      { name = "Srnti", type = "Srnti", presence = "mandatory" },
      { name = "AcUeId", type = "AcUeId", presence = "mandatory" },
      { name = "ApUserPlaneAssociation", type = "ApUserPlaneAssociation", presence = "mandatory" },
      { name = "UserPlaneResult", type = "UserPlaneResult", presence = "mandatory" },
    } },
    { name = "RabReleaseRequired", id = 37, term = "Tells that RABs must be released", rule = "none", slots = {
      { name = "Srnti", type = "Srnti", presence = "mandatory" },
      { name = "AcUeId", type = "AcUeId", presence = "mandatory" },
      { name = "CnDomainId", type = "CnDomainId", presence = "mandatory" },
      { name = "RabReleaseList", type = "RabReleaseList", presence = "mandatory" },
    } },
    { name = "AccessControlRequest", id = 38, term = "AP to AC: asks whether a subscriber may use the access point", rule = "none", slots = {
      { name = "Srnti", type = "Srnti", presence = "mandatory" },
      { name = "AcUeId", type = "AcUeId", presence = "mandatory" },
      { name = "LAC", type = "LAC", presence = "mandatory" },
      { name = "Imsi", type = "Imsi", presence = "mandatory" },
    } },
    { name = "AccessControlResponse", id = 39, term = "AC to AP: answers an access control request", rule = "none", slots = {
      { name = "Srnti", type = "Srnti", presence = "mandatory" },
      { name = "AcUeId", type = "AcUeId", presence = "mandatory" },
      { name = "Imsi", type = "Imsi", presence = "mandatory" },
      { name = "LacMatch", type = "LacMatch", presence = "mandatory" },
    } },
  },
  conditions = {
    interRatRelocation = { type = "RelocationType", values = { [0] = true }, inside = true, meaning = "RelocationType is 0 (inter-RAT)" },
    intraRatRelocation = { type = "RelocationType", values = { [1] = true }, inside = true, meaning = "RelocationType is 1 (intra-RAT)" },
    reset3GapNotPresent = { type = "Reset3GAP", values = { [1] = true }, inside = false, meaning = "Reset3GAP is anything but 1" },
    userPlaneSuccessful = { type = "UserPlaneResult", values = { [0] = true }, inside = true, meaning = "UserPlaneResult is 0 (success)" },
    interactive = { type = "TrafficClass", values = { [3] = true }, inside = true, meaning = "TrafficClass is 3 (interactive)" },
    realTime = { type = "TrafficClass", values = { [0] = true, [2] = true }, inside = true, meaning = "TrafficClass is 0 or 2 (real-time)" },
  },
  reasons = {
    BytesEnd = "missing: the bytes end before {ie}",
    WrongTag = "expected {ie}, found {found}",
    HeaderCut = "truncated header: tag and length take 6 bytes, but only {number} {number:remains}",
    WrongWidth = "its length field says {number}, where {name} takes exactly {width}",
    LengthBeyondBytes = "its length field says {number}, but only {other:byte} {other:remains}",
    LengthBeyondArray = "its length field says {number}, more than the {capacity} bytes that {name} can hold",
    MemberMissing = "missing: the length of {ie} is used up after {number:byte}",
    TooManyItems = "one more than the {capacity} items that {name} can hold",
    ListEnds = "its length field says {number}, but the bytes end after {other}",
    ElementBeyondList = "passes the end of {owner}, whose length field says {number}",
    UnknownMessageId = "no message has the id {number}",
    NoMessage = "no message",
    BelowLeast = "{number} is below {least}",
    AboveGreatest = "{number} is above {greatest}",
    CountOutOfRange = "{number:unit}, where {range} are allowed",
    Missing = "missing: it is mandatory",
    Needed = "missing: it is required where {condition}",
    NeededButFound = "missing: it is required where {condition}; found {found}",
    NotCalledFor = "not allowed here: it stands only where {condition}",
    Foreign = "{found} does not belong here",
    BufferTooSmall = "the message takes {number:byte}, but the buffer holds {other}",
    LengthDiffers = "its length field says {number}, but the {parts} read take {other:byte}",
    Ignored = "{number:byte} ignored",
    IgnoredFrom = "{number:byte} ignored, from {found} on",
    IgnoredForeign = "{number:byte} ignored, from {found} on, which is no IE of {message}",
    IgnoredUnordered = "{number:byte} ignored, from {found} on, which stands twice or out of order",
    LeftOut = ", so {name} was left out",
  },
}

-- ---- The reading part --------------------------------------------------------------------------
--
-- Plain Lua, for 5.2 and later: it knows rows and no names, and nothing of Wireshark. It reads the
-- bytes of one message as the library does, IE by IE, and tells what they hold, where and why they
-- stop, and what was let pass.

local byte, find = string.byte, string.find

local tagSize, headerSize = 2, 6

-- ---- Rows, linked ------------------------------------------------------------------------------

local typesByName, typesByTag, messagesById = {}, {}, {}

-- `mustFill` are the slots that are not to stay empty when they are called for.
local function link_slots(owner)
  owner.mustFill = {}
  for _, slot in ipairs(owner.slots) do
    slot.type = typesByName[slot.type]
    slot.tag = slot.type.tag
    slot.condition = slot.condition and rows.conditions[slot.condition]
    slot.isMandatory = slot.presence == "mandatory"
    if slot.condition and owner.rule ~= "none" then
      table.insert(owner.mustFill, slot)
    end
  end
end

for _, type in ipairs(rows.types) do
  typesByName[type.name], typesByTag[type.tag] = type, type
  type.label = type.name .. " [" .. type.tag .. "]"
  type.isComposite = type.shape == "sequence" or type.shape == "compositeList"
  if type.shape == "scalar" then
    type.greatest = math.min(type.greatest, 256 ^ type.width - 1) -- what travels of a code word
    type.size = headerSize + type.width
  end
end
for _, condition in pairs(rows.conditions) do
  condition.type = typesByName[condition.type]
end
for _, type in ipairs(rows.types) do
  type.item = type.item and typesByName[type.item]
  for i, member in ipairs(type.members or {}) do
    type.members[i] = typesByName[member]
  end
  if type.slots then
    link_slots(type)
  end
end
local messageIdType = typesByName.MessageId
for _, message in ipairs(rows.messages) do
  link_slots(message)
  messagesById[message.id] = message
end

-- ---- Patterns ----------------------------------------------------------------------------------
--
-- What an IE may look like when nothing is to be said about it, by its size: one call of
-- `string.find` then takes all of it, where reading it IE by IE is most of the time that a long
-- capture takes. A pattern may miss bytes that are good; they are read.

local greatestSize, mostPatterns = 255, 64 -- what is longer or varies more matches seldom

-- These mean something in a set, which is made smaller until none of them is a bound.
local isSpecial = { [0x25] = true, [0x5D] = true, [0x5E] = true } -- % ] ^

local function byte_pattern(first, last)
  if first == 0 and last == 255 then
    return "."
  end
  while isSpecial[first] do
    first = first + 1
  end
  while isSpecial[last] do
    last = last - 1
  end
  return "[" .. string.char(first) .. "-" .. string.char(last) .. "]"
end

-- Numbers of which any byte will do behind the first that may differ from 0.
local function number_pattern(least, greatest, width)
  local unit = 256 ^ (width - 1)
  local last = math.floor((greatest + 1) / unit) - 1
  if last < 0 then
    return "\0" .. number_pattern(least, greatest, width - 1)
  end
  return byte_pattern(math.ceil(least / unit), last) .. ("."):rep(width - 1)
end

-- One IE behind the other. Of two patterns for one size either will do.
local function append(patterns, others)
  local result, count = {}, 0
  for size, pattern in pairs(patterns) do
    for otherSize, other in pairs(others) do
      local whole = size + otherSize
      if whole <= greatestSize and not result[whole] then
        result[whole], count = pattern .. other, count + 1
      end
    end
  end
  return count <= mostPatterns and result or {}
end

local function add_all(patterns, others)
  for size, pattern in pairs(others) do
    patterns[size] = pattern
  end
end

local contents = {}

function contents.scalar(type)
  return { [type.width] = number_pattern(type.least, type.greatest, type.width) }
end

function contents.bytes(type)
  return type.least == type.greatest and { [type.least] = ("."):rep(type.least) } or {}
end

function contents.list(type)
  local result, items = {}, { [0] = "" }
  for count = 0, type.greatest do
    add_all(result, count >= type.least and items or {})
    items = append(items, type.item.patterns)
  end
  return result
end

contents.compositeList = contents.list

function contents.record(type)
  local result = { [0] = "" }
  for _, member in ipairs(type.members) do
    result = append(result, member.patterns)
  end
  return result
end

-- `mayFollow` are the tags of optional IEs: one that is missing would be taken if it stood behind.
function contents.sequence(type)
  local result = { [0] = "" }
  for _, slot in ipairs(type.slots) do
    local isTaken = type.mayFollow[slot.tag]
    local longer = append(result, isTaken and {} or slot.type.patterns)
    if slot.presence ~= "optional" then
      result = {}
    end
    add_all(result, slot.condition and {} or longer)
    add_all(type.mayFollow, slot.type.mayFollow)
    if slot.presence == "optional" then
      type.mayFollow[slot.tag] = true
    end
  end
  return result
end

local function header_pattern(tag, length)
  local header = string.char(math.floor(tag / 256), tag % 256, 0, 0, 0, length)
  return (header:gsub("%p", "%%%0"))
end

-- Each type stands behind those that it is made of.
for _, type in ipairs(rows.types) do
  type.mayFollow, type.patterns, type.patternOf = {}, {}, {}
  if type.item then
    add_all(type.mayFollow, type.item.mayFollow)
  end
  for length, content in pairs(contents[type.shape](type)) do
    local whole = header_pattern(type.tag, length) .. content
    type.patterns[headerSize + length] = whole
    type.patternOf[length] = "^" .. whole
  end
end

-- A type's size and pattern, if there is one alone, whatever follows.
local function only_pattern(type)
  local size, pattern = next(type.patterns)
  local isOnly = size and not next(type.patterns, size) and not next(type.mayFollow)
  return isOnly and size, pattern
end

-- The IEs with which a message or sequence always begins, as long as each has one pattern alone:
-- `lead` holds them in order, and by type the byte at which each begins.
local function link_lead(owner, slots)
  owner.lead, owner.leadPattern = {}, "^"
  local lead, at = owner.lead, 0
  for _, slot in ipairs(slots) do
    local size, pattern = only_pattern(slot.type)
    if not slot.isMandatory or not size or lead[slot.type] then
      return
    end
    lead[#lead + 1], lead[slot.type] = { type = slot.type, name = slot.name, at = at }, at
    owner.leadPattern = owner.leadPattern .. pattern
    at = at + size
  end
end

for _, type in ipairs(rows.types) do
  if type.slots then
    link_lead(type, type.slots)
  end
end
for _, message in ipairs(rows.messages) do
  local id = { type = messageIdType, name = messageIdType.name, isMandatory = true }
  link_lead(message, { id, table.unpack(message.slots) })
end

-- ---- Words -------------------------------------------------------------------------------------

local function number_text(number)
  return string.format("%d", number)
end

local function counted(count, thing)
  return number_text(count) .. " " .. thing .. (count == 1 and "" or "s")
end

local function label_of_tag(tag)
  local type = typesByTag[tag]
  return type and type.label or "unknown tag " .. tag
end

local units = { bytes = "byte", list = "item", compositeList = "element" }

local function range_text(type)
  if type.least == type.greatest then
    return "exactly " .. number_text(type.least)
  end
  return number_text(type.least) .. " to " .. number_text(type.greatest)
end

-- What the place holders of a sentence stand for; `type` is that of the IE told of.
local placeHolders = {
  ie = function(type) return type.label end,
  name = function(type) return type.name end,
  width = function(type) return counted(type.width, "byte") end,
  least = function(type) return number_text(type.least) end,
  greatest = function(type) return number_text(type.greatest) end,
  capacity = function(type) return number_text(type.capacity) end,
  range = range_text,
  parts = function(type) return type.item and "items" or "parts" end,
  found = function(_, values) return label_of_tag(values.found) end,
  owner = function(_, values) return values.owner end,
  condition = function(_, values) return values.condition.meaning end,
  message = function(_, values) return values.message.name end,
}

-- How a number may stand in a sentence: {number}, {other:byte}.
local numberForms = {
  [""] = number_text,
  byte = function(number) return counted(number, "byte") end,
  unit = function(number, type) return counted(number, units[type.shape]) end,
  remains = function(number) return number == 1 and "remains" or "remain" end,
}

-- A sentence in pieces: each second one is called for what stands there. Taking the text apart
-- whenever something is found would take a tenth of the time of a long capture.
local function pieces_of(text)
  local pieces, at = {}, 1
  for literal, name, form, behind in text:gmatch("([^{]*){(%w+):?(%w*)}()") do
    pieces[#pieces + 1], at = literal, behind
    pieces[#pieces + 1] = placeHolders[name] or function(type, values)
      return numberForms[form](values[name], type)
    end
  end
  pieces[#pieces + 1] = text:sub(at)
  return pieces
end

local sentences = {}
for reason, text in pairs(rows.reasons) do
  sentences[reason] = pieces_of(text)
end

local function sentence(reason, type, values)
  local pieces = sentences[reason]
  local text = pieces[1]
  for i = 2, #pieces, 2 do
    text = text .. pieces[i](type, values) .. pieces[i + 1]
  end
  return text
end

local function path_of(node)
  if not node.parent then
    return "" -- the message itself
  end
  local path = path_of(node.parent)
  if node.index then
    return path .. "[" .. node.index .. "]"
  end
  return path == "" and node.name or path .. "." .. node.name
end

-- Something found: at a byte, in an IE, for a reason. `values` holds what its sentence needs beyond
-- the IE's own row; its `type` stands in for that row.
local function finding(node, at, reason, values)
  values = values or {}
  local what = sentence(reason, values.type or node.type, values)
  return { at = at, path = path_of(node), reason = reason, what = what }
end

local places = {} -- "byte 27 (0x1b)", by the byte: most findings are about few places

local function place_text(at)
  local form = at <= 0xFF and "byte %d (0x%02x)" or at <= 0xFFFF and "byte %d (0x%04x)" or
    "byte %d (0x%08x)"
  places[at] = places[at] or string.format(form, at, at)
  return places[at]
end

local function words(found)
  local path = found.path == "" and "" or ", " .. found.path
  return place_text(found.at) .. path .. ": " .. found.what
end

-- ---- Values ------------------------------------------------------------------------------------
--
-- A node is an IE or nested TLV: its row, its name and place in its parent, the byte at which its
-- header begins, its size, and its parts as an array. One that a pattern took is unread until
-- somebody looks. Long captures spend most of their time here: loops use indices, as `ipairs` makes
-- a call each time, and what changes at each step is no field.

local none = {}

local function add(list, item)
  list = list == none and {} or list
  list[#list + 1] = item
  return list
end

-- The message that is being read: its bytes and the position in them, what was noted, and what was
-- left out.
local input, position, notes, leftOut

local function begin_reading(bytes, at)
  input, position, notes, leftOut = bytes, at, none, none
end

-- With what most have at once, and room for two members more: a table that grows is slow.
-- `declared` is the length in the header once that was read.
local function new_node(parent, type, name, index)
  local node = { parent = parent, type = type, name = name, at = 0, declared = false, size = 0 }
  if index then
    node.index = index
  end
  return node
end

-- The tag at the position, 0 if there is not enough for one.
local function tag_here()
  local high, low = byte(input, position + 1, position + tagSize)
  return low and high * 256 + low or 0
end

local function number_at(bytes, at, width)
  local a, b, c, d = byte(bytes, at + 1, at + width)
  if width == 1 then
    return a
  end
  return width == 2 and a * 256 + b or ((a * 256 + b) * 256 + c) * 256 + d
end

-- Takes the IEs with which `owner` begins, if their pattern is there. They become nodes only when
-- somebody looks: most messages of a long capture are not looked at. Tells how many were taken; if
-- none, they are read one at a time.
local function take_lead(owner, row)
  local _, behind = find(input, row.leadPattern, position + 1)
  if not behind then
    return 0
  end
  owner.lead, owner.leadAt = row.lead, position
  position = behind
  return #row.lead
end

-- Takes one IE or nested TLV in the same way; what is in it is read when somebody looks.
local function take_whole(owner, type, name, index)
  local start, pattern = position, type.patternOf[byte(input, position + headerSize)]
  if not pattern then
    return false
  end
  local _, behind = find(input, pattern, start + 1)
  if not behind then
    return false
  end
  position = behind
  if type.isComposite and type.mayFollow[tag_here()] then
    position = start
    return false
  end
  owner[#owner + 1] = { type = type, name = name, at = start, index = index, isUnread = true }
  return true
end

-- Where the first part of a type begins among an owner's parts.
local function place_in(owner, type)
  local at = owner.lead and owner.lead[type]
  if at then
    return owner.leadAt + at
  end
  for i = 1, #owner do
    if owner[i].type == type then
      return owner[i].at
    end
  end
end

local function header_fault(node)
  local at, left, tag = position, #input - position, tag_here()
  if left == 0 then
    return finding(node, at, "BytesEnd")
  end
  if left >= tagSize and tag ~= node.type.tag then
    return finding(node, at, "WrongTag", { found = tag })
  end
  return finding(node, at, "HeaderCut", { number = left })
end

-- Reads the header of an IE or nested TLV and moves behind it.
local function read_header(node)
  local at = position
  local a, b, c, d, e, f = byte(input, at + 1, at + headerSize)
  node.at = at
  if not f or a * 256 + b ~= node.type.tag then
    return header_fault(node)
  end
  node.declared = ((c * 256 + d) * 256 + e) * 256 + f
  position = at + headerSize
end

local function too_few_left(node)
  local values = { number = node.declared, other = #input - node.at - headerSize }
  return finding(node, node.at + tagSize, "LengthBeyondBytes", values)
end

-- Notes a length field that disagrees with what was read.
local function note_length(node)
  local taken = position - node.at - headerSize
  if node.declared ~= taken then
    local values = { number = node.declared, other = taken }
    notes = add(notes, finding(node, node.at + tagSize, "LengthDiffers", values))
  end
end

local readers = {}

-- Reads a whole primitive IE or nested TLV, moving behind it on success.
local function read_value(node)
  local fault = read_header(node) or readers[node.type.shape](node)
  node.size = position - node.at
  return fault
end

function readers.scalar(node)
  local type, at = node.type, position
  if node.declared ~= type.width then
    return finding(node, node.at + tagSize, "WrongWidth", { number = node.declared })
  end
  if node.declared > #input - at then
    return too_few_left(node)
  end
  node.number = number_at(input, at, type.width)
  position = at + type.width
end

function readers.bytes(node)
  local type = node.type
  if node.declared > #input - position then
    return too_few_left(node)
  end
  if node.declared > type.capacity then
    return finding(node, node.at + tagSize, "LengthBeyondArray", { number = node.declared })
  end
  node.count = node.declared
  position = position + node.declared
end

-- Reads or takes a part of a record or list.
local function read_part(owner, type, index)
  if take_whole(owner, type, type.name, index) then
    return nil
  end
  local part = new_node(owner, type, type.name, index)
  local fault = read_value(part)
  if not fault then
    owner[#owner + 1] = part
  end
  return fault
end

-- Members are bounded by the bytes that remain and not by the record, but each must begin before
-- the record's length is used up.
function readers.record(node)
  local start, members = position, node.type.members
  if node.declared > #input - start then
    return too_few_left(node)
  end
  for i = 1, #members do
    if position - start >= node.declared then
      local member = new_node(node, members[i], members[i].name)
      local values = { type = node.type, number = position - start }
      return finding(member, position, "MemberMissing", values)
    end
    local fault = read_part(node, members[i])
    if fault then
      return fault
    end
  end
  note_length(node)
end

function readers.list(node)
  local start, type, item = position, node.type, node.type.item
  if node.declared > #input - start then
    return too_few_left(node)
  end
  node.count = 0
  while position - start < node.declared do
    if node.count == type.capacity then
      local extra = new_node(node, item, item.name, node.count)
      return finding(extra, position, "TooManyItems", { type = type })
    end
    local fault = read_part(node, item, node.count)
    if fault then
      return fault
    end
    node.count = node.count + 1
  end
  note_length(node)
end

-- ---- Ranges ------------------------------------------------------------------------------------

local function count_fault(node, at)
  local type = node.type
  if node.count < type.least or node.count > type.greatest then
    return finding(node, at, "CountOutOfRange", { number = node.count })
  end
end

local function number_fault(node)
  local type, number, at = node.type, node.number, node.at + headerSize
  if number < type.least then
    return finding(node, at, "BelowLeast", { number = number })
  end
  if number > type.greatest then
    return finding(node, at, "AboveGreatest", { number = number })
  end
end

-- What makes a value invalid that was read, if anything does. What a pattern took is valid.
local function find_invalid(node)
  local shape, fault = node.type.shape, nil
  if node.isUnread then
    return nil
  elseif shape == "scalar" then
    return number_fault(node)
  elseif shape == "bytes" then
    return count_fault(node, node.at + headerSize)
  elseif shape == "list" then
    fault = count_fault(node, node.at + headerSize)
  end
  for i = 1, fault and 0 or #node do
    fault = fault or find_invalid(node[i])
  end
  return fault
end

-- ---- Slots of a sequence composite or a message ------------------------------------------------

local function is_called_for(owner, slot)
  local condition = slot.condition
  local at = place_in(owner, condition.type)
  local number = at and number_at(input, at + headerSize, condition.type.width)
  return number ~= nil and (condition.values[number] or false) == condition.inside
end

-- The first conditional slot that is not filled although it is called for. None is filled that is
-- not.
local function unmet_condition(owner, row)
  for i = 1, #row.mustFill do
    local slot = row.mustFill[i]
    if not owner[slot] and is_called_for(owner, slot) then
      return slot
    end
  end
end

local function needed(owner, slot, at)
  return finding(new_node(owner, slot.type, slot.name), at, "Needed", slot)
end

local read_rest, read_elements

-- Each reader of a child tells what became of it: `absent` (another tag, or bytes that do not
-- decode), `invalid` (decoded, out of its range or rules) or `valid`; and why it is not valid.
local function read_composite(node)
  local type = node.type
  local fault = read_header(node)
  if fault then
    return "absent", fault
  end
  if type.slots then
    fault = read_rest(node, type, take_lead(node, type) + 1)
  else
    fault = read_elements(node, type)
  end
  node.size = position - node.at
  if fault then
    return "absent", fault
  end
  note_length(node)
  local unmet = type.slots and unmet_condition(node, type)
  if unmet then
    return "invalid", needed(node, unmet, position)
  end
  fault = type.item and count_fault(node, node.at)
  return fault and "invalid" or "valid", fault
end

local function read_child(node)
  if node.type.isComposite then
    return read_composite(node)
  end
  local fault = read_value(node)
  if fault then
    return "absent", fault
  end
  fault = find_invalid(node)
  return fault and "invalid" or "valid", fault
end

-- Why a child that is not taken refuses its owner, if it does.
local function refusal(row, slot, node, outcome, fault, isCalledFor)
  if slot.isMandatory then
    return fault
  end
  local stoodThere = tag_here() == slot.tag
  if outcome == "valid" then
    fault = finding(node, position, "NotCalledFor", slot)
  end
  if slot.condition then
    if outcome == "absent" and isCalledFor and not stoodThere and fault.reason ~= "HeaderCut" then
      local values = { condition = slot.condition, found = tag_here() }
      fault = finding(node, fault.at, "NeededButFound", values)
    end
    local refuses = isCalledFor
    if outcome ~= "absent" then
      refuses = row.rule == "refuseUncalled"
    end
    if refuses then
      return fault
    end
  end
  if stoodThere then
    leftOut = add(leftOut, { at = position, slot = slot, why = fault })
  end
end

-- Goes back to where a child began that is not taken; what was noted in it does not count.
local function go_back(at, noteCount)
  position = at
  for i = #notes, noteCount + 1, -1 do
    notes[i] = nil
  end
end

local function note_filled(owner, slot)
  if slot.condition then
    owner[slot] = true
  end
end

-- Tries the child of one slot at the current position and moves behind it if it is taken. Returns
-- why the owner is refused, if it is.
local function read_slot(owner, row, slot, isCalledFor)
  if isCalledFor and take_whole(owner, slot.type, slot.name) then
    note_filled(owner, slot)
    return nil
  end
  local start, noteCount = position, #notes
  local node = new_node(owner, slot.type, slot.name)
  local outcome, fault = read_child(node)
  if outcome == "valid" and isCalledFor then
    owner[#owner + 1] = node
    note_filled(owner, slot)
    return nil
  end
  go_back(start, noteCount)
  fault = refusal(row, slot, node, outcome, fault, isCalledFor)
  if fault and node.type.isComposite and node.declared then
    owner[#owner + 1] = node -- shows how far it went
  end
  return fault
end

-- The bytes have ended before slot `next`.
local function end_of_bytes(owner, row, next)
  for i = next, #row.slots do
    local slot = row.slots[i]
    if slot.isMandatory then
      return finding(new_node(owner, slot.type, slot.name), position, "BytesEnd")
    end
    local mayRefuse = slot.condition and row.rule == "dropUncalledRequireAtEnd"
    if mayRefuse and is_called_for(owner, slot) then
      return needed(owner, slot, position)
    end
  end
end

-- The slots from `first` on. One that nothing calls for is passed over unless its IE stands there.
function read_rest(owner, row, first)
  local slots, tag = row.slots, nil
  for i = first, #slots do
    if position == #input then
      return end_of_bytes(owner, row, i)
    end
    local slot = slots[i]
    local isCalledFor = not slot.condition or is_called_for(owner, slot)
    local isAwaited = slot.isMandatory or (slot.condition and isCalledFor)
    tag = isAwaited and slot.tag or tag or tag_here()
    if slot.tag == tag then
      local fault = read_slot(owner, row, slot, isCalledFor)
      if fault then
        return fault
      end
      tag = nil
    end
  end
end

-- Reads or takes an element of a list.
local function read_element(list, type)
  if take_whole(list, type, type.name, list.count) then
    return nil
  end
  local start, noteCount = position, #notes
  local element = new_node(list, type, type.name, list.count)
  local outcome, fault = read_composite(element)
  if element.declared then
    list[#list + 1] = element
  end
  if outcome ~= "valid" then
    go_back(start, noteCount)
  end
  return fault
end

-- A list's length is what its elements may take together; each is bounded by the bytes that remain.
function read_elements(list, type)
  local start = position
  list.count = 0
  while position - start < list.declared do
    if position == #input then
      local values = { number = list.declared, other = position - start }
      return finding(list, start - headerSize + tagSize, "ListEnds", values)
    end
    local fault = read_element(list, type.item)
    if fault then
      return fault
    end
    list.count = list.count + 1
    if position - start > list.declared then
      local element = new_node(list, type.item, type.item.name, list.count - 1)
      local values = { owner = path_of(list), number = list.declared }
      return finding(element, position, "ElementBeyondList", values)
    end
  end
end

-- An owner's parts, all of them nodes: reads what was taken.
local function parts_of(bytes, owner)
  local lead = owner.lead or none
  for i = #owner, 1, -1 do
    owner[i + #lead] = owner[i]
  end
  for i, part in ipairs(lead) do
    local at = owner.leadAt + part.at
    owner[i] = { type = part.type, name = part.name, at = at, isUnread = true }
  end
  owner.lead = nil
  for i, part in ipairs(owner) do
    if part.isUnread then
      owner[i] = new_node(owner, part.type, part.name, part.index)
      begin_reading(bytes, part.at)
      read_child(owner[i])
    end
  end
  return owner
end

-- ---- The message -------------------------------------------------------------------------------

-- Adds what was left out at the position where reading stopped, and what, inside that, was left out
-- where it stopped in its turn.
local function add_left_out(stop, findings)
  for i = #leftOut, 1, -1 do
    local left = leftOut[i]
    if left.at == stop then
      left.why.what = left.why.what .. sentence("LeftOut", left.slot, {})
      findings[#findings + 1] = left.why
      stop = left.why.at
    end
  end
end

local function belongs(message, tag)
  for _, slot in ipairs(message.slots) do
    if slot.tag == tag then
      return true
    end
  end
  return tag == messageIdType.tag
end

-- Bytes behind the last IE that the message takes are ignored. Tells what they are.
local function explain_rest(root, message)
  local left = #input - position
  if left == 0 then
    return
  end
  local reason, tag = "Ignored", tag_here()
  local last = leftOut[#leftOut]
  if left >= headerSize then
    reason = "IgnoredFrom"
    if not belongs(message, tag) then
      reason = "IgnoredForeign"
    elseif not last or last.at ~= position then
      reason = "IgnoredUnordered"
    end
  end
  local values = { number = left, found = tag, message = message }
  notes = add(notes, finding(root, position, reason, values))
  add_left_out(position, notes)
end

local function read_message_id(root)
  local node = new_node(root, messageIdType, messageIdType.name)
  local fault = read_value(node)
  if fault then
    return nil, fault
  end
  root[1] = node
  local message = messagesById[node.number]
  return message, not message and finding(node, headerSize, "UnknownMessageId", node)
end

-- The parts of a message, in the most frequent case without a look at its MessageId alone.
local function read_parts(root)
  local likely = messagesById[byte(input, messageIdType.size)]
  local taken = likely and take_lead(root, likely) or 0
  if taken > 0 then
    return likely, read_rest(root, likely, taken) -- the first one taken is no slot
  end
  local message, fault = read_message_id(root)
  return message, fault or read_rest(root, message, 1)
end

-- Reads the bytes of one message, a string. The result: the message's row if it is known, the IEs
-- read as nodes below `root`, the verdict (`valid`, `invalid` or `refused`), the faults that it
-- rests on, notes on what was let pass, and how many bytes were taken.
local function read_message(bytes)
  begin_reading(bytes, 0)
  local root = { lead = false, leadAt = 0 }
  local message, fault = read_parts(root)
  local faults, verdict = none, "valid"
  if fault then
    faults, verdict = { fault }, "refused"
    add_left_out(fault.at, faults)
  else
    local unmet = unmet_condition(root, message)
    if unmet then
      faults, verdict = { needed(root, unmet, position) }, "invalid"
    end
    explain_rest(root, message)
  end
  return {
    message = message,
    root = root,
    verdict = verdict,
    faults = faults,
    notes = notes,
    taken = fault and 0 or position,
  }
end

-- ---- Readable forms ----------------------------------------------------------------------------

local function hex(bytes)
  return (bytes:gsub(".", function(c)
    return string.format("%02x", byte(c))
  end))
end

-- The half bytes as hex digits, the low half first.
local function half_bytes(bytes)
  return (hex(bytes):gsub("(.)(.)", "%2%1"))
end

local forms = {}

-- One digit in each half byte, up to a last one of 15, or a byte of two; behind it stand only bytes
-- of 255, or of 0.
local function packed_digits(bytes)
  local digits, rest = half_bytes(bytes):match("^(%d*)(.*)$")
  local filler = #digits % 2 == 1 and "^f" or "^ff"
  if rest == "" or rest:find(filler .. "f*$") or rest:find(filler .. "0*$") then
    return digits
  end
end

-- Up to 15 digits, as ASCII with zeros behind them or as half bytes.
function forms.Digits(bytes)
  local digits = bytes:match("^(%d+)%z*$") or packed_digits(bytes)
  return digits and #digits > 0 and #digits <= 15 and digits or nil
end

-- Half bytes: three digits of the MCC, the third of the MNC or 15, the first and second of the MNC.
function forms.MccMnc(bytes)
  local mcc, third, mnc = half_bytes(bytes):match("^(%d%d%d)([%df])(%d%d)$")
  return mcc and mcc .. "-" .. mnc .. third:gsub("f", "")
end

function forms.HexNumber(bytes)
  return tonumber(hex(bytes), 16)
end

-- A byte string as people read it, where its row names a form and the bytes have it; else in hex.
local function readable(type, bytes)
  return forms[type.form](bytes) or hex(bytes)
end

local engine = {
  rows = rows,
  read_message = read_message,
  parts_of = parts_of,
  words = words,
  readable = readable,
  messagesById = messagesById,
  headerSize = headerSize,
}

if not Proto then
  return engine -- Wireshark is not here
end

-- ---- Wireshark's part --------------------------------------------------------------------------

local tarn = Proto("tarn", "Tarn Signalling")

tarn.prefs.ports = Pref.range("Ports", "",
  "Ports of UDP, SCTP and TCP that carry messages. Elsewhere they are found by their first bytes.",
  65535)
tarn.prefs.link_types = Pref.range("User link types", "147",
  "Link types, 147 to 162, of captures that hold one message a packet and nothing around it.", 162)
tarn.prefs.nas = Pref.bool("Dissect NAS messages", true,
  "Hand the content of NasMsg to the dissector of GSM and UMTS NAS.")

-- ---- Fields ------------------------------------------------------------------------------------

local fields = {
  message = ProtoField.string("tarn.message", "Message"),
  verdict = ProtoField.string("tarn.verdict", "Verdict", base.NONE,
    "valid; invalid: decodes and breaks a rule; refused: does not decode"),
  finding = ProtoField.string("tarn.finding", "Finding"),
  findingAt = ProtoField.uint32("tarn.finding.offset", "Byte of the message", base.DEC_HEX),
  findingPath = ProtoField.string("tarn.finding.path", "IE"),
  findingReason = ProtoField.string("tarn.finding.reason", "Reason"),
  findingKind = ProtoField.string("tarn.finding.kind", "Kind of reason"),
  length = ProtoField.uint32("tarn.length", "Length in front", base.DEC),
  skipped = ProtoField.bytes("tarn.skipped", "Bytes that are no message"),
  requestIn = ProtoField.framenum("tarn.request_in", "Request in", base.NONE, frametype.REQUEST),
  responseIn = ProtoField.framenum("tarn.response_in", "Response in", base.NONE,
    frametype.RESPONSE),
  responseTime = ProtoField.relative_time("tarn.response_time", "Response time"),
}

local experts = {
  refused = ProtoExpert.new("tarn.refused", "Does not decode", expert.group.MALFORMED,
    expert.severity.ERROR),
  invalid = ProtoExpert.new("tarn.invalid", "Decodes and is not valid", expert.group.PROTOCOL,
    expert.severity.WARN),
  letPass = ProtoExpert.new("tarn.let_pass", "Let pass", expert.group.PROTOCOL,
    expert.severity.NOTE),
  skipped = ProtoExpert.new("tarn.no_message", "Bytes that are no message",
    expert.group.UNDECODED, expert.severity.WARN),
}

local uintFields = { ProtoField.uint8, ProtoField.uint16, [4] = ProtoField.uint32 }

-- Valid byte strings that are shown as a number are of one length.
local function make_field(type)
  local filter, name, term = "tarn." .. type.name:lower(), type.name, type.term
  if type == messageIdType then
    local names = {}
    for id, message in pairs(messagesById) do
      names[id] = message.name
    end
    return ProtoField.uint8(filter, name, base.DEC, names, nil, term)
  elseif type.shape == "scalar" then
    return uintFields[type.width](filter, name, base.DEC_HEX, nil, nil, term)
  elseif type.form == "HexNumber" then
    return uintFields[type.greatest](filter, name, base.HEX, nil, nil, term)
  elseif type.form == "Dotted" then
    return ProtoField.ipv4(filter, name, term)
  elseif type.form then
    return ProtoField.string(filter, name, base.NONE, term)
  elseif type.shape == "bytes" then
    return ProtoField.bytes(filter, name, base.SPACE, term)
  end
  return ProtoField.none(filter, name, term)
end

local allFields, fieldOf = {}, {}
for _, field in pairs(fields) do
  allFields[#allFields + 1] = field
end
for _, type in ipairs(rows.types) do
  fieldOf[type] = make_field(type)
  allFields[#allFields + 1] = fieldOf[type]
end
tarn.fields = allFields

local allExperts = {}
for _, field in pairs(experts) do
  allExperts[#allExperts + 1] = field
end
tarn.experts = allExperts

-- ---- Trees -------------------------------------------------------------------------------------
--
-- A view is one message in a packet: the packet's buffer, the message's first byte there, and its
-- bytes as a string.

local lengthSize = 4 -- of what stands in front of a message in a stream

local dissectsNas = true -- as the preference says, which takes a search to ask
local nasType = typesByName.NasMsg
local nasDissector = Dissector.get("gsm_a_dtap")

-- A NAS message that is malformed throws through the call, and leaves behind that nothing more may
-- be desegmented: the rest of a TCP stream would be lost.
local function dissect_nas(range, pinfo, item)
  local canDesegment = pinfo.can_desegment
  pcall(nasDissector.call, nasDissector, range:tvb(), pinfo, item) -- it has told what is wrong
  pinfo.can_desegment = canDesegment
end

local function range_of(view, at, size)
  return view.tvb(view.start + at, size)
end

local function dotted(node, bytes)
  local parts = {}
  for i, part in ipairs(parts_of(bytes, node)) do
    parts[i] = part.number
  end
  return table.concat(parts, ".")
end

local function add_bytes(tree, node, view, pinfo)
  local type, at = node.type, node.at + headerSize
  if type.form then
    local bytes = view.bytes:sub(at + 1, at + node.count)
    return tree:add(fieldOf[type], range_of(view, node.at, node.size), readable(type, bytes))
  end
  local value = range_of(view, at, node.count)
  local item = tree:add(fieldOf[type], value)
  if node.count == 0 then
    item:set_text(type.name .. ": 0 bytes")
  elseif type == nasType and dissectsNas then
    dissect_nas(value, pinfo, item)
  end
end

local add_node

local function add_parent(tree, node, view, pinfo)
  local type = node.type
  local item = tree:add(fieldOf[type], range_of(view, node.at, node.size))
  local title = node.index and type.name .. "[" .. node.index .. "]" or node.name
  if type.item then
    title = title .. ": " .. counted(node.count, units[type.shape])
  end
  item:set_text(title)
  for _, child in ipairs(parts_of(view.bytes, node)) do
    add_node(item, child, view, pinfo)
  end
end

function add_node(tree, node, view, pinfo)
  local type = node.type
  if type.shape == "scalar" then
    tree:add(fieldOf[type], range_of(view, node.at, node.size), node.number)
  elseif type.shape == "bytes" then
    add_bytes(tree, node, view, pinfo)
  elseif type.form == "Dotted" then
    local address = Address.ip(dotted(node, view.bytes))
    tree:add(fieldOf[type], range_of(view, node.at, node.size), address)
  else
    add_parent(tree, node, view, pinfo)
  end
end

-- A finding is shown with the byte that it is about, or with the last one if the bytes have ended.
local function add_finding(tree, found, kind, view)
  local at, text = math.min(found.at, #view.bytes - 1), words(found)
  local range = range_of(view, at, 1)
  local item = tree:add(fields.finding, range, text)
  item:add_proto_expert_info(kind, text)
  item:add(fields.findingAt, range, found.at)
  item:add(fields.findingPath, range, found.path)
  item:add(fields.findingReason, range, found.what)
  item:add(fields.findingKind, range, found.reason)
end

-- ---- Requests and responses --------------------------------------------------------------------

local responsesTo = {
  UeContextRequest = { "UeContextAccept", "UeContextReject" },
  IuReleaseRequest = { "IuReleaseCommand" },
  IuReleaseCommand = { "IuReleaseComplete" },
  SecurityModeCommand = { "SecurityModeComplete", "SecurityModeReject" },
  RabAssignmentRequest = { "RabAssignmentResponse" },
  RabReleaseRequest = { "RabReleaseResponse" },
  UserPlaneConfigRequest = { "UserPlaneConfigResponse" },
  UserPlaneModifyRequest = { "UserPlaneModifyResponse" },
  RelocationRequired = { "RelocationCommand", "RelocationFailure" },
  HandoverRequest = { "HandoverReqAck", "HandoverFailure" },
  AccessControlRequest = { "AccessControlResponse" },
}

-- A request and its responses belong together if they agree in each number that all of them must
-- carry: the UE, and what else tells one procedure from another.
local function count_mandatory_numbers(message, counts)
  for _, slot in ipairs(message.slots) do
    if slot.isMandatory and slot.type.shape == "scalar" then
      counts[slot.type] = (counts[slot.type] or 0) + 1
    end
  end
end

local messagesByName = {}
for _, message in ipairs(rows.messages) do
  messagesByName[message.name] = message
end

local function make_procedure(request, responses)
  local procedure, counts = { types = {}, waiting = {} }, {}
  count_mandatory_numbers(request, counts)
  for _, response in ipairs(responses) do
    count_mandatory_numbers(messagesByName[response], counts)
  end
  for _, slot in ipairs(request.slots) do
    if counts[slot.type] == 1 + #responses then
      table.insert(procedure.types, slot.type)
    end
  end
  return procedure
end

-- By the message's row: the procedure of which it is the request, or a response.
local asRequest, asResponse = {}, {}
for name, responses in pairs(responsesTo) do
  local request = messagesByName[name]
  asRequest[request] = make_procedure(request, responses)
  for _, response in ipairs(responses) do
    asResponse[messagesByName[response]] = asRequest[request]
  end
end

local function is_paired(message)
  return asRequest[message] or asResponse[message]
end

-- Links of a request and its response, counted from 1, in columns of numbers: long captures have
-- many, and a table for each would be much to look through when memory is collected.
local links

local function forget_links()
  links = {
    count = 0,
    request = {}, -- its packet
    response = {},
    seconds = {}, -- when the request came; then until the response
    next = {}, -- the next request that waits under the same key
    youngest = {}, -- the last one in the chain that begins here
    asked = {}, -- the link of a request, by its place in the capture
    answered = {}, -- that of a response
  }
end

forget_links()

-- Two messages of one packet begin at different bytes.
local mostBytes = 2 ^ 20

local function place_of(view, pinfo)
  return pinfo.number * mostBytes + view.tvb:offset() + view.start
end

-- Both ends, the same whichever of them sends: their ports as one number, and the address at the
-- greater port, which is that of who connected; both addresses where the ports are equal.
local function ends_of(pinfo)
  local port, otherPort = pinfo.src_port, pinfo.dst_port
  if port > otherPort then
    return port * 65536 + otherPort, tostring(pinfo.src)
  elseif port < otherPort then
    return otherPort * 65536 + port, tostring(pinfo.dst)
  end
  local from, to = tostring(pinfo.src), tostring(pinfo.dst)
  return port, from < to and from .. " " .. to or to .. " " .. from
end

-- The addresses, and the numbers that the procedure goes by, as they stand in the message.
local function key_of(procedure, result, view, addresses)
  local key = addresses
  for _, type in ipairs(procedure.types) do
    local at = place_in(result.root, type)
    key = key .. view.bytes:sub(at + 1, at + type.size)
  end
  return key
end

local function waiting_at(procedure, ports)
  local waiting = procedure.waiting[ports] or {}
  procedure.waiting[ports] = waiting
  return waiting
end

-- Requests of one key wait in a chain, the oldest one first: a capture may lack many responses.
local function add_request(waiting, key, link)
  local oldest = waiting[key] or link
  if oldest ~= link then
    links.next[links.youngest[oldest]] = link
  end
  waiting[key], links.youngest[oldest] = oldest, link
end

local function take_request(waiting, key)
  local oldest = waiting[key]
  local following = oldest and links.next[oldest]
  waiting[key] = following
  if following then
    links.youngest[following] = links.youngest[oldest]
  end
  return oldest
end

local function link_message(result, view, pinfo)
  local place, seconds, ports, addresses = place_of(view, pinfo), pinfo.rel_ts, ends_of(pinfo)
  local packet = math.floor(place / mostBytes)
  local asked, answered = asRequest[result.message], asResponse[result.message]
  if answered then
    local key = key_of(answered, result, view, addresses)
    local link = take_request(waiting_at(answered, ports), key)
    if link then
      links.response[link], links.answered[place] = packet, link
      links.seconds[link] = seconds - links.seconds[link]
    end
  end
  if asked then
    local link = links.count + 1
    links.count, links.asked[place] = link, link
    links.request[link], links.seconds[link] = packet, seconds
    add_request(waiting_at(asked, ports), key_of(asked, result, view, addresses), link)
  end
end

local function add_links(tree, place)
  local link = links.asked[place]
  if link and links.response[link] then
    tree:add(fields.responseIn, links.response[link]):set_generated()
  end
  link = links.answered[place]
  if link then
    local seconds = links.seconds[link]
    local whole = math.floor(seconds)
    local nanoseconds = math.floor((seconds - whole) * 1e9 + 0.5)
    tree:add(fields.requestIn, links.request[link]):set_generated()
    tree:add(fields.responseTime, NSTime.new(whole, nanoseconds)):set_generated()
  end
end

function tarn.init()
  forget_links()
  for _, procedure in pairs(asRequest) do
    procedure.waiting = {}
  end
end

-- ---- A message ---------------------------------------------------------------------------------

local ownDissector -- once it is registered
local srntiType, ueType = typesByName.Srnti, typesByName.AcUeId

-- "UeContextAccept, S-RNTI 0x12001, UE 7001, valid"
local function summary(result, bytes)
  local root, message, verdict = result.root, result.message, result.verdict
  local name = message and message.name or "No known message"
  local srnti, ue = place_in(root, srntiType), place_in(root, ueType)
  srnti = srnti and number_at(bytes, srnti + headerSize, srntiType.width)
  ue = ue and number_at(bytes, ue + headerSize, ueType.width)
  if srnti and ue then
    return string.format("%s, S-RNTI 0x%x, UE %d, %s", name, srnti, ue, verdict)
  elseif srnti then
    return string.format("%s, S-RNTI 0x%x, %s", name, srnti, verdict)
  elseif ue then
    return string.format("%s, UE %d, %s", name, ue, verdict)
  end
  return name .. ", " .. verdict
end

local function add_contents(item, result, view, pinfo)
  local whole = range_of(view, 0, #view.bytes)
  if view.isFramed then
    item:add(fields.length, range_of(view, -lengthSize, lengthSize))
  end
  item:add(fields.message, whole, result.message and result.message.name or ""):set_generated()
  item:add(fields.verdict, whole, result.verdict):set_generated()
  if is_paired(result.message) then
    add_links(item, place_of(view, pinfo))
  end
  for _, child in ipairs(parts_of(view.bytes, result.root)) do
    add_node(item, child, view, pinfo)
  end
end

-- For the list of expert information alone, without an item of their own.
local function list_finding(tree, found, kind)
  tree:add_proto_expert_info(kind, words(found))
end

local function add_findings(add, item, result, view)
  local kind = result.verdict == "invalid" and experts.invalid or experts.refused
  for _, fault in ipairs(result.faults) do
    add(item, fault, kind, view)
  end
  for _, note in ipairs(result.notes) do
    add(item, note, experts.letPass, view)
  end
end

-- A NAS message alone: its dissector has fields and findings of its own.
local function add_nas(item, at, view, pinfo)
  local size = number_at(view.bytes, at + tagSize, headerSize - tagSize)
  if size > 0 then
    dissect_nas(range_of(view, at + headerSize, size), pinfo, item)
  end
end

-- Most packets of a long capture are neither shown nor filtered by an IE, and making their trees
-- would take most of the time. Findings are always wanted, by the list of expert information; and
-- so are NAS messages.
local function add_message(tree, result, view, pinfo, text)
  if tree.visible or tree:referenced(ownDissector) then
    local item = tree:add(tarn, range_of(view, 0, #view.bytes), "Tarn Signalling: " .. text)
    add_contents(item, result, view, pinfo)
    add_findings(add_finding, item, result, view)
    return
  end
  local nasAt = dissectsNas and place_in(result.root, nasType)
  if nasAt then
    add_nas(tree, nasAt, view, pinfo)
  end
  add_findings(list_finding, tree, result, view)
end

local function show_in_columns(text, pinfo)
  local columns = pinfo.cols
  columns.protocol, columns.info = "TARN", text .. "  "
end

-- Keeps what the info column says of a message where more may follow in the packet.
local function keep_info(pinfo)
  pinfo.cols.info:fence()
end

-- `isFramed` tells that the message's length stands in front of it.
local function dissect_message(tvb, start, bytes, pinfo, tree, isFramed)
  local view = { tvb = tvb, start = start, bytes = bytes, isFramed = isFramed }
  local result = read_message(view.bytes)
  local text = summary(result, bytes)
  show_in_columns(text, pinfo)
  if is_paired(result.message) and not pinfo.visited and result.verdict ~= "refused" then
    link_message(result, view, pinfo)
  end
  add_message(tree, result, view, pinfo, text)
end

-- ---- Streams -----------------------------------------------------------------------------------
--
-- A message in a stream has its length in front, most significant byte first.

local magic = "\0\72\0\0\0\1" -- what every message begins with: tag and length of its MessageId

local function begins_with_message(bytes, at)
  return bytes:sub(at + 1, at + #magic) == magic
end

-- Whether a length and a message may begin here, as far as there are bytes; and that length.
local function frame_at(bytes, at)
  local left = #bytes - at
  local size = left >= lengthSize and number_at(bytes, at, lengthSize) or 1
  local start = bytes:sub(at + lengthSize + 1, at + lengthSize + #magic)
  return size > 0 and size <= rows.largestMessage and magic:sub(1, #start) == start, size
end

-- Where the next frame begins behind `at`, or the end.
local function next_frame(bytes, at)
  repeat
    at = at + 1
  until at >= #bytes or frame_at(bytes, at)
  return at
end

local function skip(tvb, at, size, pinfo, tree)
  local item = tree:add(tarn, tvb(at, size), "Tarn Signalling: no message")
  local text = counted(size, "byte") .. " that " .. (size == 1 and "is" or "are") .. " no message"
  item:add(fields.skipped, tvb(at, size)):add_proto_expert_info(experts.skipped, text)
  show_in_columns("[" .. text .. "]", pinfo)
  keep_info(pinfo)
end

-- Asks for more of the stream. Returns false if there is no more to be had.
local function wait_for(count, at, pinfo)
  if pinfo.can_desegment == 0 then
    return false
  end
  pinfo.desegment_offset, pinfo.desegment_len = at, count
  return true
end

-- Each of these takes what stands at a place of a stream and returns the place behind it, or nil to
-- wait for more.
local function dissect_frame(tvb, bytes, at, pinfo, tree)
  local left = #bytes - at
  local _, size = frame_at(bytes, at)
  local missing = lengthSize + size - left
  if left < lengthSize + math.min(size, #magic) then
    missing = DESEGMENT_ONE_MORE_SEGMENT -- any bytes look like a length: do not wait for so many
  end
  if missing > 0 and wait_for(missing, at, pinfo) then
    return nil
  elseif left <= lengthSize then
    skip(tvb, at, left, pinfo, tree)
    return #bytes
  end
  size = math.min(size, left - lengthSize)
  local start = at + lengthSize
  dissect_message(tvb, start, bytes:sub(start + 1, start + size), pinfo, tree, true)
  keep_info(pinfo)
  return start + size
end

-- A sender may write length and message one after the other, so that a segment begins with the
-- message. It ends with the segment, or where a next length follows.
local function dissect_unframed(tvb, bytes, pinfo, tree)
  local size = read_message(bytes).taken
  if size == 0 or not frame_at(bytes, size) then
    size = #bytes
  end
  dissect_message(tvb, 0, bytes:sub(1, size), pinfo, tree)
  keep_info(pinfo)
  return size
end

local function dissect_stream(tvb, bytes, pinfo, tree)
  local at = 0
  if begins_with_message(bytes, 0) then
    at = dissect_unframed(tvb, bytes, pinfo, tree)
  end
  while at and at < #bytes do
    if frame_at(bytes, at) then
      at = dissect_frame(tvb, bytes, at, pinfo, tree)
    else
      local behind = next_frame(bytes, at)
      skip(tvb, at, behind - at, pinfo, tree)
      at = behind
    end
  end
  return #bytes
end

-- ---- Where messages are found ------------------------------------------------------------------

-- Only TCP offers to desegment. A frame elsewhere is read as well.
function tarn.dissector(tvb, pinfo, tree)
  local bytes = tvb:raw()
  if #bytes == 0 then
    return 0
  elseif pinfo.can_desegment > 0 or (#bytes > lengthSize and frame_at(bytes, 0)) then
    return dissect_stream(tvb, bytes, pinfo, tree)
  end
  dissect_message(tvb, 0, bytes, pinfo, tree)
  keep_info(pinfo)
  return #bytes
end

ownDissector = Dissector.get("tarn")

local function find_datagram(tvb, pinfo, tree)
  local bytes = tvb:raw()
  local isFound = begins_with_message(bytes, 0)
  if isFound then
    dissect_message(tvb, 0, bytes, pinfo, tree)
  end
  return isFound
end

-- Calls the function and not the dissector: Wireshark would let that one no longer desegment.
local function find_stream(tvb, pinfo, tree)
  local bytes = tvb:raw()
  local isFrame = #bytes >= lengthSize + #magic and frame_at(bytes, 0)
  local isFound = isFrame or begins_with_message(bytes, 0)
  if isFound then
    pinfo.conversation = tarn
    dissect_stream(tvb, bytes, pinfo, tree)
  end
  return isFound
end

-- Other chunks may follow in the packet.
local function find_chunk(tvb, pinfo, tree)
  local isFound = find_datagram(tvb, pinfo, tree)
  if isFound then
    keep_info(pinfo)
  end
  return isFound
end

tarn:register_heuristic("udp", find_datagram)
tarn:register_heuristic("sctp", find_chunk)
tarn:register_heuristic("tcp", find_stream)

local portTables = {}
for _, name in ipairs({ "udp.port", "sctp.port", "tcp.port" }) do
  portTables[name] = DissectorTable.get(name)
  portTables[name]:add_for_decode_as(tarn)
end
local linkTypes = DissectorTable.get("wtap_encap")
local firstUserLinkType = 147

-- Calls the function with each range of "147,150-152".
local function each_range(text, call)
  for least, greatest in text:gmatch("(%d+)%-?(%d*)") do
    call(tonumber(least), tonumber(greatest) or tonumber(least))
  end
end

local registered = { ports = "", linkTypes = "" }

local function register(ports, types, verb)
  for _, portTable in pairs(portTables) do
    if ports ~= "" then
      portTable[verb](portTable, ports, tarn)
    end
  end
  each_range(types, function(least, greatest)
    for type = math.max(least, firstUserLinkType), greatest do
      linkTypes[verb](linkTypes, wtap_encaps.USER0 + type - firstUserLinkType, tarn)
    end
  end)
end

local function apply_preferences()
  dissectsNas = tarn.prefs.nas
  register(registered.ports, registered.linkTypes, "remove")
  registered = { ports = tarn.prefs.ports, linkTypes = tarn.prefs.link_types }
  register(registered.ports, registered.linkTypes, "add")
end

function tarn.prefs_changed()
  apply_preferences()
end

apply_preferences()
