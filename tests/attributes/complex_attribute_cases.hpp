// The classes of complex attributes as scripts know them: kept apart from the rows that make them, so that each checks
// the other.
#pragma once

#include <cstdint>
#include <string_view>

namespace vorlan::test {

enum ComplexForm { kList, kBuilder, kFields };

struct ComplexCase {
  std::string_view name;
  ComplexForm form;
  std::uint16_t id;
  std::uint8_t id_bits;
  std::string_view value;  // the value class; the fields with their widths where there is none
  std::string_view malformed = "Length of Attribute is not correct.";
  std::string_view source = {};  // class part of sources; none: the name
};

inline constexpr std::string_view kConnection = "Length of attribute string incorrect .";
inline constexpr std::string_view kCorrect = "Length of Attribute is not correct.";
inline constexpr std::string_view kTas24 = "Error: Length of Attribute String should be 24.";
inline constexpr std::string_view kTas56 = "Error: Length of Attribute String should be 56.";

inline constexpr ComplexCase kComplexCases[] = {
    {"SB_Con_AttrPrefCtrlChannelCycle", kList, 0x00, 8, "SB_Con_ValPrefCtrlChannelCycle", kConnection},
    {"SB_Con_AttrSearchParameters", kList, 0x00, 8, "SB_Con_ValSearchParameters", kConnection},
    {"SB_Con_AttrSetMgmDiffChnlParameter", kList, 0x02, 8, "SB_Con_ValSetMgmDiffChnlParameters", kConnection,
     "SB_Con_AttrSetMgmtDiffChnlParameters"},
    {"SB_Con_AttrSetMgmSameChnlParameter", kList, 0x01, 8, "SB_Con_ValSetMgmSameChnlParameter", kConnection},
    {"SB_Con_AttrPagingMask", kList, 0x02, 8, "SB_Con_ValPagingMask", kConnection},
    {"SB_Con_AttrSlottedMode", kList, 0x01, 8, "SB_Con_ValSlottedMode", kConnection},
    {"SB_Con_AttrSuppCDMAChannels", kList, 0x04, 8, "SB_Con_ValSuppCDMAChannels", kConnection},
    {"SB_Mac_AttrDRCLock", kList, 0x01, 8, "SB_Mac_ValDRCLock", "Error:Attribute string length is incorrect. "},
    {"SB_Mac_AttrHandoffDelays", kList, 0x00, 8, "SB_Mac_ValHandoffDelays",
     "Handoffdelays Attribute string length is incorrect. "},
    {"SB_Mac_AttrInitialConfiguration", kList, 0x00, 8, "SB_Mac_ValInitialConfiguration"},
    {"SB_Mac_AttrPowerParameters", kList, 0x01, 8, "SB_Mac_ValPowerParameters",
     "PowerParameter Attribute string length is incorrect."},
    {"SB_Mac_AttrRateParameters", kList, 0x01, 8, "SB_Mac_ValRateParameters",
     "RateParameter Attribute string length incorrect."},
    {"SB_Mac_AttrRTCPowerParameters", kList, 0x00, 8, "SB_Mac_ValRTCPowerParameters",
     "PowerParameter Attribute string length is incorrect."},
    {"SB_Mac_AttrMaxMACFlows", kList, 0x0014, 16, "SB_Mac_ValMaxMACFlows"},
    {"SB_MAC_AttrAssociatedFlowsNN", kList, 0x0101, 16, "SB_MAC_ValAssociatedFlowsNN"},
    {"SB_Ses_AttrPriorSession", kList, 0x1000, 16, "SB_Ses_ValPriorSession"},
    {"SB_Str_AttrStreamConfig", kList, 0x00, 8, "SB_Str_ValStreamConfig"},
    {"SB_App_AttrMaxRLPFlows", kList, 0x0004, 16, "SB_App_ValMaxRLPFlows"},
    {"SB_App_AttrMaxLinkFlows", kList, 0x0004, 16, "SB_App_ValMaxLinkFlows"},
    {"SB_App_AttrMaxReservations", kList, 0x0005, 16, "SB_App_ValMaxReservations"},
    {"SB_App_AttrSupportedHigherLayerPro", kList, 0x0000, 16, "SB_App_ValSupportedHigherLayerPro", kCorrect,
     "SB_App_AttrSupportedHigherLayerProtocols"},
    {"SB_App_AttrATSupportedQoSProfiles", kList, 0x0002, 16, "SB_App_ValATSupportedQoSProfiles"},
    {"SB_App_AttrANSupportedQoSProfiles", kList, 0x0003, 16, "SB_App_ValANSupportedQoSProfiles"},
    {"SB_App_AttrFlowNNIdentificationFwd", kList, 0x0100, 16, "SB_App_ValFlowNNIdentificationFwd"},
    {"SB_App_AttrFlowNNIdentificationRev", kList, 0x0200, 16, "SB_App_ValFlowNNIdentificationRev"},
    {"SB_App_AttrFlowNNTimersFwd", kList, 0x0300, 16, "SB_App_ValFlowNNTimersFwd"},
    {"SB_App_AttrFlowNNTimersRev", kList, 0x0400, 16, "SB_App_ValFlowNNTimersRev"},
    {"SB_App_AttrFlowNNReservationFwd", kList, 0x0500, 16, "SB_App_ValFlowNNReservationFwd"},
    {"SB_App_AttrFlowNNReservationRev", kList, 0x0600, 16, "SB_App_ValFlowNNReservationRev"},
    {"SB_App_AttrReservationKKQoSReqFwd", kList, 0x07AA, 16, "SB_App_ValReservationKKQoSReqFwd", kCorrect,
     "SB_App_AttrReservationKKQoSRequestFwd"},
    {"SB_App_AttrReservationKKQoSReqRev", kList, 0x08AA, 16, "SB_App_ValReservationKKQoSReqRev", kCorrect,
     "SB_App_AttrReservationKKQoSRequestRev"},
    {"SB_App_AttrReservationKKQoSRespFwd", kList, 0x09AA, 16, "SB_App_ValReservationKKQoSRespFwd", kCorrect,
     "SB_App_AttrReservationKKQoSResponseFwd"},
    {"SB_App_AttrReservationKKQoSRespRev", kList, 0x0AAA, 16, "SB_App_ValReservationKKQoSRespRev", kCorrect,
     "SB_App_AttrReservationKKQoSResponseRev"},
    {"SB_App_AttrFlowNNFlwPrtclParmFwd", kList, 0x0B00, 16, "SB_App_ValFlowNNFlwPrtclParmFwd", kCorrect,
     "SB_App_AttrFlowNNFlowProtocolParametersFwd"},
    {"SB_App_AttrFlowNNFlwPrtclParmRev", kList, 0x0C00, 16, "SB_App_ValFlowNNFlwPrtclParmRev", kCorrect,
     "SB_App_AttrFlowNNFlowProtocolParametersRev"},
    {"SB_App_AttrFlowNNRutPrtclParmFwd", kList, 0x0D00, 16, "SB_App_ValFlowNNRutPrtclParmFwd", kCorrect,
     "SB_App_AttrRouteNNRouteProtocolParametersFwd"},
    {"SB_App_AttrFlowNNRutPrtclParmRev", kList, 0x0E00, 16, "SB_App_ValFlowNNRutPrtclParmRev", kCorrect,
     "SB_App_AttrRouteNNRouteProtocolParametersRev"},
    {"SB_App_AttrATSuppFlwProtlPrmPP", kList, 0x0F00, 16, "SB_App_ValATSuppFlwProtlPrmPP", kCorrect,
     "SB_App_AttrATSupportedFlowProtocolParametersPP"},
    {"SB_App_AttrATSuppRutProtlPrmPP", kList, 0x1000, 16, "SB_App_ValATSuppRutProtlPrmPP", kCorrect,
     "SB_App_AttrATSupportedRouteProtocolParametersPP"},
    {"SB_Mac_AttrPowerParameters128", kBuilder, 0x0005, 16, "SB_Mac_ValPowerParameters128"},
    {"SB_Mac_AttrPowerParameters256", kBuilder, 0x0006, 16, "SB_Mac_ValPowerParameters256"},
    {"SB_Mac_AttrPowerParameters512", kBuilder, 0x0007, 16, "SB_Mac_ValPowerParameters512"},
    {"SB_Mac_AttrPowerParameters768", kBuilder, 0x0008, 16, "SB_Mac_ValPowerParameters768"},
    {"SB_Mac_AttrPowerParameters1024", kBuilder, 0x0009, 16, "SB_Mac_ValPowerParameters1024"},
    {"SB_Mac_AttrPowerParameters1536", kBuilder, 0x000A, 16, "SB_Mac_ValPowerParameters1536"},
    {"SB_Mac_AttrPowerParameters2048", kBuilder, 0x000B, 16, "SB_Mac_ValPowerParameters2048"},
    {"SB_Mac_AttrPowerParameters3072", kBuilder, 0x000C, 16, "SB_Mac_ValPowerParameters3072"},
    {"SB_Mac_AttrPowerParameters4096", kBuilder, 0x000D, 16, "SB_Mac_ValPowerParameters4096"},
    {"SB_Mac_AttrPowerParameters6144", kBuilder, 0x000E, 16, "SB_Mac_ValPowerParameters6144"},
    {"SB_Mac_AttrPowerParameters8192", kBuilder, 0x000F, 16, "SB_Mac_ValPowerParameters8192"},
    {"SB_Mac_AttrPowerParameters12288", kBuilder, 0x0010, 16, "SB_Mac_ValPowerParameters12288"},
    {"SB_Mac_AttrCommonPowerParameters", kBuilder, 0x0001, 16, "SB_Mac_ValCommonPowerParameters"},
    {"SB_Mac_AttrPermittedPayload", kBuilder, 0x0003, 16, "SB_Mac_ValPermittedPayload"},
    {"SB_Mac_AttrPilotStrength", kBuilder, 0x0004, 16, "SB_Mac_ValPilotStrength"},
    {"SB_Mac_AttrRequestParameters", kBuilder, 0x0011, 16, "SB_Mac_ValRequestParameters"},
    {"SB_Mac_AttrRRIChannelPwrParam", kBuilder, 0x0012, 16, "SB_Mac_ValRRIChannelPwrParam"},
    {"SB_Mac_AttrTxT2Pmax", kBuilder, 0x0013, 16, "SB_Mac_ValTxT2Pmax"},
    {"SB_Mac_AttrBucketFactorNN", kBuilder, 0x0300, 16, "SB_Mac_ValBucketFactorNN"},
    {"SB_Mac_AttrT2PInflowRangeNN", kBuilder, 0x1500, 16, "SB_Mac_ValT2PInflowRangeNN"},
    {"SB_Mac_AttrT2PTransitionFunctionNN", kBuilder, 0x1600, 16, "SB_Mac_ValT2PTransitionFunctionNN"},
    {"SB_Mac_AttrAuxiliaryPilotChnlParams", kBuilder, 0x0000, 16, "SB_Mac_ValAuxiliaryPilotChnlParams"},
    {"SB_Mac_AttrDRCTranslationOffset", kBuilder, 0x01, 8, "SB_Mac_ValDRCTranslationOffset"},
    {"SB_TAS_AttrDRCValueFixedMode", kFields, 0x00, 8, "DRCValue 8", kTas24},
    {"SB_TAS_AttrDRCCoverFixedMode", kFields, 0x01, 8, "DRCCover 8", kTas24},
    {"SB_TAS_AttrACKChannelBitFixedMode", kFields, 0x02, 8, "ACKChannelBit 8", kTas24},
    {"SB_TAS_AttrLoopBackMode", kFields, 0x03, 8, "LoopBackPersistence 8", kTas24},
    {"SB_TAS_AttrIdleASPStats", kFields, 0x04, 8,
     "IdleASPChangeOverflow 1, IdleASPChange 15, IdleTimeOverflow 1, IdleTime 23", kTas56},
    {"SB_TAS_AttrConnectedSSStats", kFields, 0x05, 8,
     "ConnectedSSChangeOverflow 1, ConnectedSSChange 15, ConnectedTimeOverflow 1, ConnectedTime 23", kTas56},
    {"SB_TAS_AttrFirstSyncCCPktStats", kFields, 0x06, 8,
     "FirstSyncCCPktOverflow 1, FirstSyncCCPkt 15, CCTimeOverflow 1, CCTime 15",
     "Error: Length of Attribute String should be 48."},
    {"SB_TAS_AttrPacketRateMode", kFields, 0x01, 8, "MinRate 8, MaxRate 8",
     "Error: Length of Attribute String should be 32."},
    {"SB_TAS_AttrRTAPTestPktEnable", kFields, 0x00, 8, "RTAPTestPktPersistence 8", kTas24},
};

}  // namespace vorlan::test
