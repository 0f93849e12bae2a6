// The value classes as scripts know them: kept apart from the rows that make them, so that each checks the other.
#pragma once

#include <cstdint>
#include <string_view>

namespace vorlan::test {

/// `fields` are the properties in their order, "PRstr_" left out, each with its width when every count, length and flag
/// before it is 1. Behind the width: # a count, length or flag; - kept, but not sent; r only read; v another name for
/// what others hold; x beyond an axis count of 1. A name with ~ stands for those with 0 to 3 in its place, of which all
/// but the 0 are beyond the count; one with ^ for those with 1 to 3; $ is the number at the end of the class's name.
/// The attribute class of the same name, and how it takes records.
enum AttributeForm { kNone, kList, kBuilder };
struct OfAttribute {
  AttributeForm form = kNone;
  std::uint16_t id = 0;
  std::uint8_t id_bits = 0;
  std::string_view malformed = {};
};
constexpr OfAttribute list8(std::uint16_t id, std::string_view malformed = "Length of Attribute is not correct.") {
  return {kList, id, 8, malformed};
}
constexpr OfAttribute list16(std::uint16_t id) { return {kList, id, 16, "Length of Attribute is not correct."}; }
constexpr OfAttribute builder8(std::uint16_t id) { return {kBuilder, id, 8, {}}; }
constexpr OfAttribute builder16(std::uint16_t id) { return {kBuilder, id, 16, {}}; }

struct ValueCase {
  std::string_view name;     // without SB_
  std::string_view fields;   // ValueId 8 comes first where it is not named
  std::string_view initial;  // the record that a new object builds, hexadecimal
  OfAttribute attribute = {};
  std::string_view operations = "GetValLengthAt";  // besides BuildValueRecord
  std::string_view source = {};                    // class part of sources, * for Val or Attr; none: the name
  std::string_view own_source = {};                // of the fields with - or v, where theirs is another
  std::string_view controls = {};                  // properties that are no fields
};

inline constexpr std::string_view kConnection = "Length of attribute string incorrect .";
inline constexpr std::string_view kTellsLength = "GetValLengthAt";
inline constexpr std::string_view kOffsets =
    "DataOffsetNom 4, DataOffset9k6 4, DataOffset19k2 4, DataOffset38k4 4, DataOffset76k8 4, DataOffset153k6 4, "
    "RPCStep 2";
inline constexpr std::string_view kOffsetsReserved =
    "DataOffsetNom 4, DataOffset9k6 4, DataOffset19k2 4, DataOffset38k4 4, DataOffset76k8 4, DataOffset153k6 4, "
    "RPCStep 2, Reserved 6";
inline constexpr std::string_view kSetManagement =
    "PilotAdd 6, PilotCompare 6, PilotDrop 6, PilotDropTimer 4, DynamicThresholds 1#, SoftSlope 6, "
    "AddIntercept 6, DropIntercept 6, NeighborMaxAge 4";
inline constexpr std::string_view kSetManagementReserved =
    "PilotAdd 6, PilotCompare 6, PilotDrop 6, PilotDropTimer 4, DynamicThresholds 1#, SoftSlope 6, "
    "AddIntercept 6, DropIntercept 6, NeighborMaxAge 4, Reserved 3r";
inline constexpr std::string_view kCycle = "PrefCtrlChannelCycleEnabled 1#, PrefCtrlChannelCycle 15, Reserved 0r";
inline constexpr std::string_view kProfiles = "QoSProfileCount 8#, ProfileType 8, ProfileLength 8#, ProfileValue 8";
inline constexpr std::string_view kIdentification = "Active 8#, SequenceLength 8, RLPIDLength 8#, RLPID 1";
inline constexpr std::string_view kReservation = "ReservationCount 8#, ReservationLabel 8";
inline constexpr std::string_view kTimers = "AbortTimer 16, FlushTimer 16";
inline constexpr std::string_view kParameters =
    "ProtocolID 8, ProtocolParametersLength 8#, ProtocolParameters 8, SProtocolParameters 8v";
inline constexpr std::string_view kSupportedParameters =
    "ProtocolSupported 8, SupportedProtocolParametersValuesLength 8#, SupportedProtocolParametersValues 8";
inline constexpr std::string_view kRequest =
    "ProfileType 8#, ProfileLength 8#, ProfileValue 8, FlowPriority 4-, QoSAttribSetCount 3#-, ReserveBits "
    "0r-, QoSAttribSetLength 4-, QoSAttribSetID 7-, QoSAttribSetVerbose 1-, QoSAttribSetProfileID 16-";
inline constexpr std::string_view kResponse = "ProfileType 8#, ProfileLength 8#, ProfileValue 8, QoSAttribSetID 7v";
inline constexpr std::string_view kRequestOperations = "Decode_ProfileType1 GetValLengthAt ProfileSet";
inline constexpr std::string_view kPower =
    "LoLatT2PTransition$ 2, LoLatTerminationTarget$ 2, HiCapT2PTransition$ 2, HiCapTerminationTarget$ 2, "
    "T2PLoLatPreTransition$ 8, T2PLoLatPostTransition$ 8, T2PHiCapPreTransition$ 8, T2PHiCapPostTransition$ 8";
inline constexpr std::string_view kPowerOperations = "SetPowerParameters$";

inline constexpr ValueCase kValueCases[] = {
    {"Con_ValPrefCtrlChannelCycle", kCycle, "0000", list8(0x00, kConnection)},
    {"Con_ValSearchParameters",
     "PilotIncrement 4, SearchWindowActive 4, SearchWindowNeighbor 4, SearchWindowRemaining 4", "0048AA",
     list8(0x00, kConnection), ""},
    {"Con_ValSetMgmDiffChnlParameters", kSetManagementReserved, "0038548C00", list8(0x02, kConnection), kTellsLength,
     "", "SB_Con_*SetMgmtDiffChnlParameters"},
    {"Con_ValSetMgmSameChnlParameter", kSetManagement, "0038548C00", list8(0x01, kConnection), kTellsLength, "", "",
     "PRbln_ValFlag"},
    {"Mac_ValDRCLock", "DRCLockPeriod 1, DRCLockLength 2, Reserved 5r", "00A0",
     list8(0x01, "Error:Attribute string length is incorrect. "), ""},
    {"Mac_ValHandoffDelays", "SofterHandoffDelay 8, SoftHandoffDelay 8", "000108",
     list8(0x00, "Handoffdelays Attribute string length is incorrect. "), ""},
    {"Mac_ValInitialConfiguration", "ProbeSequenceMax 4, ProbeBackoff 4, ProbeSequenceBackoff 4, Reserved 4r", "003480",
     list8(0x00), ""},
    {"Mac_ValPowerParameters", kOffsets, "0000000040",
     list8(0x01, "PowerParameter Attribute string length is incorrect."), "Initialize", "", "", "PRbln_ValFlag"},
    {"Mac_ValRateParameters",
     "Transition009k6_019k2 8, Transition019k2_038k4 8, Transition038k4_076k8 8, Transition076k8_153k6 8, "
     "Transition019k2_009k6 8, Transition038k4_019k2 8, Transition076k8_038k4 8, Transition153k6_076k8 8",
     "0030100808101020FF", list8(0x01, "RateParameter Attribute string length incorrect."), "", "", "",
     "PRbln_ValFlag"},
    {"Mac_ValRTCPowerParameters", kOffsetsReserved, "0000000040",
     list8(0x00, "PowerParameter Attribute string length is incorrect."), ""},
    {"Ses_ValPriorSession", "Restore 1#, Reserved 7r, UATI 128, SecurityPacketLength 8#, SecurityPacket 8", "0000",
     list16(0x1000)},
    {"Str_ValStreamConfig",
     "Stream0Application 16, Stream1Application 16, Stream2Application 16, Stream3Application 16", "000000FFFFFFFFFFFF",
     list8(0x00), ""},
    {"App_ValANSupportedQoSProfiles", kProfiles, "0000", list16(0x0003)},
    {"App_ValATSupportedQoSProfiles", kProfiles, "0000", list16(0x0002), kTellsLength,
     "SB_App_ValANSupportedQoSProfiles"},
    {"App_ValFlowNNIdentificationFwd", kIdentification, "00011600", list16(0x0100), kTellsLength,
     "SB_Con_ValFlowNNIdentificationFwd", "", "PRbln_ValFlag"},
    {"App_ValFlowNNIdentificationRev", kIdentification, "00011600", list16(0x0200), kTellsLength,
     "SB_Con_ValFlowNNIdentificationRev", "", "PRbln_ValFlag"},
    {"App_ValFlowNNReservationFwd", kReservation, "0001FF", list16(0x0500)},
    {"App_ValFlowNNReservationRev", kReservation, "0001FF", list16(0x0600)},
    {"App_ValFlowNNTimersFwd", kTimers, "0001F4012C", list16(0x0300), ""},
    {"App_ValFlowNNTimersRev", kTimers, "0001F4012C", list16(0x0400), ""},
    {"App_ValSupportedHigherLayerPro", "ProtocolCount 8#, ProtocolIdentifier 8", "0000", list16(0x0000), kTellsLength,
     "SB_App_*SupportedHigherLayerProtocols"},
    {"Con_ValPagingMask", "MaskCount 8#, MaskPurpose 8, PreMaskDuration 16, MaskDuration 16, PostMaskDuration 16",
     "0000", list8(0x02, kConnection)},
    {"Con_ValSlottedMode", "SlotCycle1 5, SlotCycle2 5, SlotCycle3 5, WakeCount1 4, WakeCount2 4, Reserved 1r",
     "004A5200", list8(0x01, kConnection), ""},
    {"App_ValMaxRLPFlows",
     "MaxNumRLPFlowsFwd 8, MaxNumRLPFlowsRev 8, MaxActivatedRLPFlowsFwd 8, MaxActivatedRLPFlowsRev 8", "0000000000",
     list16(0x0004)},
    {"App_ValMaxReservations",
     "MaxNumReservationsFwd 8, MaxNumReservationsRev 8, MaxNumOpenReservationsFwd 8, MaxNumOpenReservationsRev 8",
     "0000000000", list16(0x0005)},
    {"Con_ValSuppCDMAChannels", "BandClassCount 8#, BandClass 5, BandSubClassCount 8#, BandSubClass 8", "0000",
     list8(0x04, kConnection)},
    {"Mac_ValMaxMACFlows", "MaxNumMACFlows 8, MaxNumActiveMACFlows 8", "000000", list16(0x0014)},
    {"Ses_ValProtocolType", kCycle, "0000", {}, kTellsLength, "SB_Con_ValPrefCtrlChannelCycle"},
    {"MAC_ValAssociatedFlowsNN",
     "FlowCnt 8#, Stream 9, SubStream 8, Active 8-, SequenceLength 8-, RLPIDLength 8#-, RLPID 1-", "0000",
     list16(0x0101), kTellsLength, "", "", "PRbln_ValFlag"},
    {"App_ValReservationKKQoSRespRev", kResponse, "0000", list16(0x0AAA), kTellsLength,
     "SB_App_ValReservationKKQoSResponseFwd", "SB_App_*ReservationKKQoSResponseRev"},
    {"App_ValReservationKKQoSReqFwd", kRequest, "0000", list16(0x07AA), kRequestOperations,
     "SB_App_*ReservationKKQoSRequestFwd", "SB_App_ValReservationKKQoSRequestRev"},
    {"App_ValReservationKKQoSReqRev", kRequest, "0000", list16(0x08AA), kRequestOperations,
     "SB_App_*ReservationKKQoSRequestRev"},
    {"App_ValReservationKKQoSRespFwd", kResponse, "0000", list16(0x09AA), kTellsLength,
     "SB_App_*ReservationKKQoSResponseFwd"},
    {"Mac_ValPowerParameters128", kPower, "01AF0D030303", builder16(0x0005), kPowerOperations},
    {"Mac_ValPowerParameters256", kPower, "02AF00000F0F", builder16(0x0006), kPowerOperations},
    {"Mac_ValPowerParameters512", kPower, "03AF00001B1B", builder16(0x0007), kPowerOperations},
    {"Mac_ValPowerParameters768", kPower, "04AF00002222", builder16(0x0008), kPowerOperations},
    {"Mac_ValPowerParameters1024", kPower, "05AF00002727", builder16(0x0009), kPowerOperations},
    {"Mac_ValPowerParameters1536", kPower, "06AF00002E2E", builder16(0x000A), kPowerOperations},
    {"Mac_ValPowerParameters2048", kPower, "07AF00003434", builder16(0x000B), kPowerOperations},
    {"Mac_ValPowerParameters3072", kPower, "08AF00003939", builder16(0x000C), kPowerOperations},
    {"Mac_ValPowerParameters4096", kPower, "09AF00003E3E", builder16(0x000D), kPowerOperations},
    {"Mac_ValPowerParameters6144", kPower, "0AAF00004444", builder16(0x000E), kPowerOperations},
    {"Mac_ValPowerParameters8192", kPower, "0BAF00004A4A", builder16(0x000F), kPowerOperations},
    {"Mac_ValPowerParameters12288", kPower, "0CAF00005555", builder16(0x0010), kPowerOperations},
    {"Mac_ValT2PTransitionFunctionNN",
     "FlowNN 8-, ValueId 8, NumT2PAxisValues 4#, NumFRABAxisValues 3#, T2PAxis0~ 8, FRABAxis~ 4, "
     "T2PUpT2PAxis00FRABAxis~ 8, T2PUpT2PAxis01FRABAxis~ 8x, T2PUpT2PAxis02FRABAxis~ 8x, T2PUpT2PAxis03FRABAxis~ 8x, "
     "T2PDnT2PAxis00FRABAxis~ 8, T2PDnT2PAxis01FRABAxis~ 8x, T2PDnT2PAxis02FRABAxis~ 8x, T2PDnT2PAxis03FRABAxis~ 8x",
     "001200000000", builder16(0x1600),
     "Get_FRABAxis Get_T2PAxis Get_T2PDnT2PAxisFRABAxis Get_T2PUpT2PAxisFRABAxis SetT2PTransitionFunctionNN "
     "Set_FRABAxis Set_T2PAxis Set_T2PDnT2PAxisFRABAxis Set_T2PUpT2PAxisFRABAxis",
     "", "", "PRint_FlowNN"},
    {"Mac_ValTxT2Pmax",
     "NumPilotStrengthAxisValues 3#, PilotStrengthAxis0 6, PilotStrengthAxis1 6x, PilotStrengthAxis2 6x, "
     "TxT2PmaxPilotStrengthAxis0 8, TxT2PmaxPilotStrengthAxis1 8x, TxT2PmaxPilotStrengthAxis2 8x",
     "00200000", builder16(0x0013), "TxT2Pmax"},
    {"Mac_ValCommonPowerParameters", "AllocationStagger 4, TxT2Pmin 8, RPCStep 2", "000004", builder16(0x0001),
     "SetCommonPowerParameters", "SB_Mac_VallCommonPowerParameters"},
    {"Mac_ValAuxiliaryPilotChnlParams", "AuxiliaryPilotChannelGain 4, AuxiliaryPilotChannelMinPayload 4", "0000",
     builder16(0x0000), "SetAuxiliaryPilotChnlParams"},
    {"Mac_ValPilotStrength",
     "NumPilotStrengthAxisValues 4#, PilotStrengthAxis0 6, PilotStrengthAxis1 6x, PilotStrengthPilotStrengthAxis0 4, "
     "PilotStrengthPilotStrengthAxis1 4x",
     "001000", builder16(0x0004), "SetPilotStrength", "SB_Mac_VallCommonPilotStrength"},
    {"Mac_ValPermittedPayload",
     "PermittedPayload0_^ 4, PermittedPayload128_^ 4, PermittedPayload256_^ 4, PermittedPayload512_^ 4, "
     "PermittedPayload768_^ 4, PermittedPayload1024_^ 4, PermittedPayload1536_^ 4, PermittedPayload2048_^ 4, "
     "PermittedPayload3072_^ 4, PermittedPayload4096_^ 4, PermittedPayload6144_^ 4, PermittedPayload8192_^ 4, "
     "PermittedPayload12288_^ 4",
     "000000000000000000000000000000000000000000", builder16(0x0003), "SetPermittedPayload",
     "SB_Mac_ValPowerParameters4096"},
    {"Mac_ValBucketFactorNN", "FlowNN 8-, NumT2PAxisValues 4#, NumFRABAxisValues 3#", "0012000000", builder16(0x0300),
     "Get_BucketFactorT2PAxisFRABAxis Get_FRABAxis Get_T2PAxis Set_BucketFactorT2PAxisFRABAxis Set_FRABAxis "
     "Set_T2PAxis",
     "", "", "PRint_FlowNN"},
    {"Mac_ValT2PInflowRangeNN", "FlowNN 8-, ValueId 8, T2PInflowmin 8, T2PInflowmax 8", "000000", builder16(0x1500),
     "SetT2PInflowRangeNN", "", "", "PRint_FlowNN"},
    {"Mac_ValRequestParameters", "ReqRatio 4, MaxReqInterval 4", "0000", builder16(0x0011), "SetRequestParameters"},
    {"Mac_ValRRIChannelPwrParam",
     "RRIChannelGainPreTransition0 4, RRIChannelGainPostTransition0 4, RRIChannelGainPreTransition1 4, "
     "RRIChannelGainPostTransition1 4, RRIChannelGainPreTransition2 4, RRIChannelGainPostTransition2 4, "
     "RRIChannelGainPreTransition3 4",
     "0000000000", builder16(0x0012), "SetRRIChannelPwrParam"},
    {"Mac_ValDRCTranslationOffset",
     "DRCOffset1 4, DRCOffset2 4, DRCOffset3 4, DRCOffset4 4, DRCOffset5 4, DRCOffset6 4, DRCOffset7 4, DRCOffset8 4, "
     "DRCOffset9 4, DRCOffsetA 4, DRCOffsetB 4, DRCOffsetC 4, DRCOffsetD 4, DRCOffsetE 4",
     "0000000000000000", builder8(0x01), "Initialize SetDRCTranslationOffset", "", "", "PRbln_ValFlag"},
    {"App_ValATSuppFlwProtlPrmPP", kSupportedParameters, "000000", list16(0x0F00), kTellsLength,
     "SB_App_*ATSupportedFlowProtocolParametersPP"},
    {"App_ValATSuppRutProtlPrmPP", kSupportedParameters, "000000", list16(0x1000), kTellsLength,
     "SB_App_*ATSupportedRouteProtocolParametersPP"},
    {"App_ValFlowNNFlwPrtclParmFwd", kParameters, "000000", list16(0x0B00), kTellsLength,
     "SB_App_*FlowNNFlowProtocolParametersFwd"},
    {"App_ValFlowNNFlwPrtclParmRev", kParameters, "000000", list16(0x0C00), kTellsLength,
     "SB_App_*FlowNNFlowProtocolParametersRev"},
    {"App_ValFlowNNRutPrtclParmFwd", kParameters, "000000", list16(0x0D00), kTellsLength,
     "SB_App_*RouteNNRouteProtocolParametersFwd"},
    {"App_ValFlowNNRutPrtclParmRev", kParameters, "000000", list16(0x0E00), kTellsLength,
     "SB_App_*RouteNNRouteProtocolParametersRev"},
    {"App_ValMaxLinkFlows",
     "MaxNumLinkFlowsFwd 8, MaxNumLinkFlowsRev 8, MaxActivatedLinkFlowsFwd 8, MaxActivatedLinkFlowsRev 8", "0000000000",
     list16(0x0004)},
};

}  // namespace vorlan::test
