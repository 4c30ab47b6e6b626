# The content of the four benchmarked messages for Cap'n Proto. What is optional has a flag of its
# own, since a number of this format is always there.
@0xb5d1a3f09c2e4671;

using Cxx = import "/capnp/c++.capnp";
$Cxx.namespace("tarn_capnp");

struct SecurityModeReject {
  messageId @0 :UInt8;
  srnti @1 :UInt32;
  acUeId @2 :UInt32;
  cnDomainId @3 :UInt16;
  secRejCause @4 :UInt16;
}

struct AccessControlRequest {
  messageId @0 :UInt8;
  srnti @1 :UInt32;
  acUeId @2 :UInt32;
  lac @3 :Data;
  imsi @4 :Data;
}

struct UlDirectTransfer {
  messageId @0 :UInt8;
  srnti @1 :UInt32;
  acUeId @2 :UInt32;
  cnDomainId @3 :UInt16;
  nasMsg @4 :Data;
}

struct SduFormatInfoParams {
  presence @0 :UInt8;
  sduSize @1 :UInt16;
  rabSubflowCombBitRate @2 :UInt32;
}

struct SduParamValue {
  deliveryOfErrSdu @0 :UInt16;
  mantissa @1 :UInt8;
  exponent @2 :UInt8;
  formats @3 :List(SduFormatInfoParams);
}

struct RabParams {
  presence @0 :UInt8;
  trafficClass @1 :UInt16;
  rabAssymetryInd @2 :UInt16;
  deliveryOrder @3 :UInt16;
  maxSduSize @4 :UInt16;
  bitRates @5 :List(UInt32);
  sduParams @6 :List(SduParamValue);
  priorityLevel @7 :UInt8;
  preemptionCapability @8 :UInt16;
  preemptionVulnerability @9 :UInt16;
  queuingAllowed @10 :UInt16;
  secondBitRates @11 :List(UInt32);
  sourceStatsDescriptor @12 :UInt16;
  transDelay @13 :UInt16;
}

struct RabToSetUpInfo {
  presence @0 :UInt8;
  rabId @1 :UInt8;
  acUserPlaneAssociation @2 :UInt32;
  params @3 :RabParams;
  nasSyncInd @4 :UInt8;
  userPlaneMode @5 :UInt16;
  userPlaneModeVersions @6 :UInt16;
}

struct RabAssignmentRequest {
  messageId @0 :UInt8;
  srnti @1 :UInt32;
  acUeId @2 :UInt32;
  cnDomainId @3 :UInt16;
  rabList @4 :List(RabToSetUpInfo);
}
