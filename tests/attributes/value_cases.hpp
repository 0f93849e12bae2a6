// The value classes as scripts know them: kept apart from the rows that make them, so that each checks the other.
#pragma once

#include <string_view>

namespace vorlan::test {

/// `fields` are the properties in their order, "PRstr_" left out, each with its width when every count, length and flag
/// before it is 1. Behind the width: # a count, length or flag; - kept, but not sent; r only read; v another name for
/// what others hold; x beyond an axis count of 1. A name with ~ stands for those with 0 to 3 in its place, of which all
/// but the 0 are beyond the count; one with ^ for those with 1 to 3; $ is the number at the end of the class's name.
struct ValueCase {
  std::string_view name;
  std::string_view fields;
  std::string_view operations;
  std::string_view initial;     // the record that a new object builds, hexadecimal
  std::string_view controls;    // properties that are no fields
  std::string_view source;      // class part of sources; none: the name
  std::string_view own_source;  // of the fields with - or v, where theirs is another
};

inline constexpr std::string_view kBuild = "BuildValueRecord";
inline constexpr std::string_view kBuildAndLength = "BuildValueRecord GetValLengthAt";
inline constexpr std::string_view kSetManagement =
    "ValueId 8, PilotAdd 6, PilotCompare 6, PilotDrop 6, PilotDropTimer 4, DynamicThresholds 1#, SoftSlope 6, "
    "AddIntercept 6, DropIntercept 6, NeighborMaxAge 4";
inline constexpr std::string_view kSetManagementReserved =
    "ValueId 8, PilotAdd 6, PilotCompare 6, PilotDrop 6, PilotDropTimer 4, DynamicThresholds 1#, SoftSlope 6, "
    "AddIntercept 6, DropIntercept 6, NeighborMaxAge 4, Reserved 3r";
inline constexpr std::string_view kCycle =
    "ValueId 8, PrefCtrlChannelCycleEnabled 1#, PrefCtrlChannelCycle 15, Reserved 0r";
inline constexpr std::string_view kProfiles =
    "ValueId 8, QoSProfileCount 8#, ProfileType 8, ProfileLength 8#, ProfileValue 8";
inline constexpr std::string_view kIdentification = "ValueId 8, Active 8#, SequenceLength 8, RLPIDLength 8#, RLPID 1";
inline constexpr std::string_view kReservation = "ValueId 8, ReservationCount 8#, ReservationLabel 8";
inline constexpr std::string_view kTimers = "ValueId 8, AbortTimer 16, FlushTimer 16";
inline constexpr std::string_view kParameters =
    "ValueId 8, ProtocolID 8, ProtocolParametersLength 8#, ProtocolParameters 8, SProtocolParameters 8v";
inline constexpr std::string_view kSupportedParameters =
    "ValueId 8, ProtocolSupported 8, SupportedProtocolParametersValuesLength 8#, SupportedProtocolParametersValues 8";
inline constexpr std::string_view kRequest =
    "ValueId 8, ProfileType 8#, ProfileLength 8#, ProfileValue 8, FlowPriority 4-, QoSAttribSetCount 3#-, ReserveBits "
    "0r-, QoSAttribSetLength 4-, QoSAttribSetID 7-, QoSAttribSetVerbose 1-, QoSAttribSetProfileID 16-";
inline constexpr std::string_view kResponse =
    "ValueId 8, ProfileType 8#, ProfileLength 8#, ProfileValue 8, QoSAttribSetID 7v";
inline constexpr std::string_view kRequestOperations = "BuildValueRecord Decode_ProfileType1 GetValLengthAt ProfileSet";
inline constexpr std::string_view kPower =
    "ValueId 8, LoLatT2PTransition$ 2, LoLatTerminationTarget$ 2, HiCapT2PTransition$ 2, HiCapTerminationTarget$ 2, "
    "T2PLoLatPreTransition$ 8, T2PLoLatPostTransition$ 8, T2PHiCapPreTransition$ 8, T2PHiCapPostTransition$ 8";
inline constexpr std::string_view kPowerOperations = "BuildValueRecord SetPowerParameters$";

inline constexpr ValueCase kValueCases[] = {
    {"SB_Con_ValPrefCtrlChannelCycle", kCycle, kBuildAndLength, "0000"},
    {"SB_Con_ValSearchParameters",
     "ValueId 8, PilotIncrement 4, SearchWindowActive 4, SearchWindowNeighbor 4, SearchWindowRemaining 4", kBuild,
     "0048AA"},
    {"SB_Con_ValSetMgmDiffChnlParameters", kSetManagementReserved, kBuildAndLength, "0038548C00"},
    {"SB_Con_ValSetMgmSameChnlParameter", kSetManagement, kBuildAndLength, "0038548C00", "PRbln_ValFlag"},
    {"SB_Mac_ValDRCLock", "ValueId 8, DRCLockPeriod 1, DRCLockLength 2, Reserved 5r", kBuild, "00A0"},
    {"SB_Mac_ValHandoffDelays", "ValueId 8, SofterHandoffDelay 8, SoftHandoffDelay 8", kBuild, "000108"},
    {"SB_Mac_ValInitialConfiguration",
     "ValueId 8, ProbeSequenceMax 4, ProbeBackoff 4, ProbeSequenceBackoff 4, Reserved 4r", kBuild, "003480"},
    {"SB_Mac_ValPowerParameters",
     "ValueId 8, DataOffsetNom 4, DataOffset9k6 4, DataOffset19k2 4, DataOffset38k4 4, DataOffset76k8 4, "
     "DataOffset153k6 4, RPCStep 2",
     "BuildValueRecord Initialize", "0000000040", "PRbln_ValFlag"},
    {"SB_Mac_ValRateParameters",
     "ValueId 8, Transition009k6_019k2 8, Transition019k2_038k4 8, Transition038k4_076k8 8, Transition076k8_153k6 8, "
     "Transition019k2_009k6 8, Transition038k4_019k2 8, Transition076k8_038k4 8, Transition153k6_076k8 8",
     kBuild, "0030100808101020FF", "PRbln_ValFlag"},
    {"SB_Mac_ValRTCPowerParameters",
     "ValueId 8, DataOffsetNom 4, DataOffset9k6 4, DataOffset19k2 4, DataOffset38k4 4, DataOffset76k8 4, "
     "DataOffset153k6 4, RPCStep 2, Reserved 6",
     kBuild, "0000000040"},
    {"SB_Ses_ValPriorSession",
     "ValueId 8, Restore 1#, Reserved 7r, UATI 128, SecurityPacketLength 8#, SecurityPacket 8", kBuildAndLength,
     "0000"},
    {"SB_Str_ValStreamConfig",
     "ValueId 8, Stream0Application 16, Stream1Application 16, Stream2Application 16, Stream3Application 16", kBuild,
     "000000FFFFFFFFFFFF"},
    {"SB_App_ValANSupportedQoSProfiles", kProfiles, kBuildAndLength, "0000"},
    {"SB_App_ValATSupportedQoSProfiles", kProfiles, kBuildAndLength, "0000", "", "SB_App_ValANSupportedQoSProfiles"},
    {"SB_App_ValFlowNNIdentificationFwd", kIdentification, kBuildAndLength, "00011600", "PRbln_ValFlag",
     "SB_Con_ValFlowNNIdentificationFwd"},
    {"SB_App_ValFlowNNIdentificationRev", kIdentification, kBuildAndLength, "00011600", "PRbln_ValFlag",
     "SB_Con_ValFlowNNIdentificationRev"},
    {"SB_App_ValFlowNNReservationFwd", kReservation, kBuildAndLength, "0001FF"},
    {"SB_App_ValFlowNNReservationRev", kReservation, kBuildAndLength, "0001FF"},
    {"SB_App_ValFlowNNTimersFwd", kTimers, kBuild, "0001F4012C"},
    {"SB_App_ValFlowNNTimersRev", kTimers, kBuild, "0001F4012C"},
    {"SB_App_ValSupportedHigherLayerPro", "ValueId 8, ProtocolCount 8#, ProtocolIdentifier 8", kBuildAndLength, "0000",
     "", "SB_App_ValSupportedHigherLayerProtocols"},
    {"SB_Con_ValPagingMask",
     "ValueId 8, MaskCount 8#, MaskPurpose 8, PreMaskDuration 16, MaskDuration 16, PostMaskDuration 16",
     kBuildAndLength, "0000"},
    {"SB_Con_ValSlottedMode",
     "ValueId 8, SlotCycle1 5, SlotCycle2 5, SlotCycle3 5, WakeCount1 4, WakeCount2 4, Reserved 1r", kBuild,
     "004A5200"},
    {"SB_App_ValMaxRLPFlows",
     "ValueId 8, MaxNumRLPFlowsFwd 8, MaxNumRLPFlowsRev 8, MaxActivatedRLPFlowsFwd 8, MaxActivatedRLPFlowsRev 8",
     kBuildAndLength, "0000000000"},
    {"SB_App_ValMaxReservations",
     "ValueId 8, MaxNumReservationsFwd 8, MaxNumReservationsRev 8, MaxNumOpenReservationsFwd 8, "
     "MaxNumOpenReservationsRev 8",
     kBuildAndLength, "0000000000"},
    {"SB_Con_ValSuppCDMAChannels", "ValueId 8, BandClassCount 8#, BandClass 5, BandSubClassCount 8#, BandSubClass 8",
     kBuildAndLength, "0000"},
    {"SB_Mac_ValMaxMACFlows", "ValueId 8, MaxNumMACFlows 8, MaxNumActiveMACFlows 8", kBuildAndLength, "000000"},
    {"SB_Ses_ValProtocolType", kCycle, kBuildAndLength, "0000", "", "SB_Con_ValPrefCtrlChannelCycle"},
    {"SB_MAC_ValAssociatedFlowsNN",
     "ValueId 8, FlowCnt 8#, Stream 9, SubStream 8, Active 8-, SequenceLength 8-, RLPIDLength 8#-, RLPID 1-",
     kBuildAndLength, "0000", "PRbln_ValFlag"},
    {"SB_App_ValReservationKKQoSRespRev", kResponse, kBuildAndLength, "0000", "",
     "SB_App_ValReservationKKQoSResponseFwd", "SB_App_ValReservationKKQoSResponseRev"},
    {"SB_App_ValReservationKKQoSReqFwd", kRequest, kRequestOperations, "0000", "",
     "SB_App_ValReservationKKQoSRequestFwd", "SB_App_ValReservationKKQoSRequestRev"},
    {"SB_App_ValReservationKKQoSReqRev", kRequest, kRequestOperations, "0000", "",
     "SB_App_ValReservationKKQoSRequestRev"},
    {"SB_App_ValReservationKKQoSRespFwd", kResponse, kBuildAndLength, "0000", "",
     "SB_App_ValReservationKKQoSResponseFwd"},
    {"SB_Mac_ValPowerParameters128", kPower, kPowerOperations, "01AF0D030303"},
    {"SB_Mac_ValPowerParameters256", kPower, kPowerOperations, "02AF00000F0F"},
    {"SB_Mac_ValPowerParameters512", kPower, kPowerOperations, "03AF00001B1B"},
    {"SB_Mac_ValPowerParameters768", kPower, kPowerOperations, "04AF00002222"},
    {"SB_Mac_ValPowerParameters1024", kPower, kPowerOperations, "05AF00002727"},
    {"SB_Mac_ValPowerParameters1536", kPower, kPowerOperations, "06AF00002E2E"},
    {"SB_Mac_ValPowerParameters2048", kPower, kPowerOperations, "07AF00003434"},
    {"SB_Mac_ValPowerParameters3072", kPower, kPowerOperations, "08AF00003939"},
    {"SB_Mac_ValPowerParameters4096", kPower, kPowerOperations, "09AF00003E3E"},
    {"SB_Mac_ValPowerParameters6144", kPower, kPowerOperations, "0AAF00004444"},
    {"SB_Mac_ValPowerParameters8192", kPower, kPowerOperations, "0BAF00004A4A"},
    {"SB_Mac_ValPowerParameters12288", kPower, kPowerOperations, "0CAF00005555"},
    {"SB_Mac_ValT2PTransitionFunctionNN",
     "FlowNN 8-, ValueId 8, NumT2PAxisValues 4#, NumFRABAxisValues 3#, T2PAxis0~ 8, FRABAxis~ 4, "
     "T2PUpT2PAxis00FRABAxis~ 8, T2PUpT2PAxis01FRABAxis~ 8x, T2PUpT2PAxis02FRABAxis~ 8x, T2PUpT2PAxis03FRABAxis~ 8x, "
     "T2PDnT2PAxis00FRABAxis~ 8, T2PDnT2PAxis01FRABAxis~ 8x, T2PDnT2PAxis02FRABAxis~ 8x, T2PDnT2PAxis03FRABAxis~ 8x",
     "BuildValueRecord Get_FRABAxis Get_T2PAxis Get_T2PDnT2PAxisFRABAxis Get_T2PUpT2PAxisFRABAxis "
     "SetT2PTransitionFunctionNN Set_FRABAxis Set_T2PAxis Set_T2PDnT2PAxisFRABAxis Set_T2PUpT2PAxisFRABAxis",
     "001200000000", "PRint_FlowNN"},
    {"SB_Mac_ValTxT2Pmax",
     "ValueId 8, NumPilotStrengthAxisValues 3#, PilotStrengthAxis0 6, PilotStrengthAxis1 6x, PilotStrengthAxis2 6x, "
     "TxT2PmaxPilotStrengthAxis0 8, TxT2PmaxPilotStrengthAxis1 8x, TxT2PmaxPilotStrengthAxis2 8x",
     "BuildValueRecord TxT2Pmax", "00200000"},
    {"SB_Mac_ValCommonPowerParameters", "ValueId 8, AllocationStagger 4, TxT2Pmin 8, RPCStep 2",
     "BuildValueRecord SetCommonPowerParameters", "000004", "", "SB_Mac_VallCommonPowerParameters"},
    {"SB_Mac_ValAuxiliaryPilotChnlParams", "ValueId 8, AuxiliaryPilotChannelGain 4, AuxiliaryPilotChannelMinPayload 4",
     "BuildValueRecord SetAuxiliaryPilotChnlParams", "0000"},
    {"SB_Mac_ValPilotStrength",
     "ValueId 8, NumPilotStrengthAxisValues 4#, PilotStrengthAxis0 6, PilotStrengthAxis1 6x, "
     "PilotStrengthPilotStrengthAxis0 4, PilotStrengthPilotStrengthAxis1 4x",
     "BuildValueRecord SetPilotStrength", "001000", "", "SB_Mac_VallCommonPilotStrength"},
    {"SB_Mac_ValPermittedPayload",
     "ValueId 8, PermittedPayload0_^ 4, PermittedPayload128_^ 4, PermittedPayload256_^ 4, PermittedPayload512_^ 4, "
     "PermittedPayload768_^ 4, PermittedPayload1024_^ 4, PermittedPayload1536_^ 4, PermittedPayload2048_^ 4, "
     "PermittedPayload3072_^ 4, PermittedPayload4096_^ 4, PermittedPayload6144_^ 4, PermittedPayload8192_^ 4, "
     "PermittedPayload12288_^ 4",
     "BuildValueRecord SetPermittedPayload", "000000000000000000000000000000000000000000", "",
     "SB_Mac_ValPowerParameters4096"},
    {"SB_Mac_ValBucketFactorNN", "ValueId 8, FlowNN 8-, NumT2PAxisValues 4#, NumFRABAxisValues 3#",
     "BuildValueRecord Get_BucketFactorT2PAxisFRABAxis Get_FRABAxis Get_T2PAxis Set_BucketFactorT2PAxisFRABAxis "
     "Set_FRABAxis Set_T2PAxis",
     "0012000000", "PRint_FlowNN"},
    {"SB_Mac_ValT2PInflowRangeNN", "FlowNN 8-, ValueId 8, T2PInflowmin 8, T2PInflowmax 8",
     "BuildValueRecord SetT2PInflowRangeNN", "000000", "PRint_FlowNN"},
    {"SB_Mac_ValRequestParameters", "ValueId 8, ReqRatio 4, MaxReqInterval 4", "BuildValueRecord SetRequestParameters",
     "0000"},
    {"SB_Mac_ValRRIChannelPwrParam",
     "ValueId 8, RRIChannelGainPreTransition0 4, RRIChannelGainPostTransition0 4, RRIChannelGainPreTransition1 4, "
     "RRIChannelGainPostTransition1 4, RRIChannelGainPreTransition2 4, RRIChannelGainPostTransition2 4, "
     "RRIChannelGainPreTransition3 4",
     "BuildValueRecord SetRRIChannelPwrParam", "0000000000"},
    {"SB_Mac_ValDRCTranslationOffset",
     "ValueId 8, DRCOffset1 4, DRCOffset2 4, DRCOffset3 4, DRCOffset4 4, DRCOffset5 4, DRCOffset6 4, DRCOffset7 4, "
     "DRCOffset8 4, DRCOffset9 4, DRCOffsetA 4, DRCOffsetB 4, DRCOffsetC 4, DRCOffsetD 4, DRCOffsetE 4",
     "BuildValueRecord Initialize SetDRCTranslationOffset", "0000000000000000", "PRbln_ValFlag"},
    {"SB_App_ValATSuppFlwProtlPrmPP", kSupportedParameters, kBuildAndLength, "000000", "",
     "SB_App_ValATSupportedFlowProtocolParametersPP"},
    {"SB_App_ValATSuppRutProtlPrmPP", kSupportedParameters, kBuildAndLength, "000000", "",
     "SB_App_ValATSupportedRouteProtocolParametersPP"},
    {"SB_App_ValFlowNNFlwPrtclParmFwd", kParameters, kBuildAndLength, "000000", "",
     "SB_App_ValFlowNNFlowProtocolParametersFwd"},
    {"SB_App_ValFlowNNFlwPrtclParmRev", kParameters, kBuildAndLength, "000000", "",
     "SB_App_ValFlowNNFlowProtocolParametersRev"},
    {"SB_App_ValFlowNNRutPrtclParmFwd", kParameters, kBuildAndLength, "000000", "",
     "SB_App_ValRouteNNRouteProtocolParametersFwd"},
    {"SB_App_ValFlowNNRutPrtclParmRev", kParameters, kBuildAndLength, "000000", "",
     "SB_App_ValRouteNNRouteProtocolParametersRev"},
    {"SB_App_ValMaxLinkFlows",
     "ValueId 8, MaxNumLinkFlowsFwd 8, MaxNumLinkFlowsRev 8, MaxActivatedLinkFlowsFwd 8, MaxActivatedLinkFlowsRev 8",
     kBuildAndLength, "0000000000"},
};

}  // namespace vorlan::test
