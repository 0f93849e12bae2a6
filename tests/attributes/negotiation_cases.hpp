// The attribute getters of negotiation messages as scripts know them: kept apart from the rows that make them, so that
// each checks the other.
#pragma once

#include <cstdint>
#include <string_view>

namespace vorlan::test {

inline constexpr std::string_view kWithAttr = "*";

struct GetterCase {
  std::string_view name;  // without PRobj_
  std::uint16_t id;       // searched
  std::uint8_t id_bits;
  std::string_view returned;   // the class without SB_
  std::uint8_t value_bits;     // that its records take behind the AttributeID; 0: value records, as many as there are
  std::string_view text = {};  // what errors call it; none: the name without Attr; kWithAttr: with it
  std::string_view source = {};
};

inline constexpr GetterCase kRequestCases[] = {
    {"AttrSuppCDMAChannels", 0x04, 8, "Con_AttrSuppCDMAChannels", 0, "",
     "SB_Con_AttrSuppCDMAChannels.PRobj_AttrSuppCDMAChannels"},
    {"AttrSearchParams", 0x00, 8, "Con_AttrSearchParameters", 0, "",
     "SB_MsgConfigurationRequest.PRobj_AttrStreamConfig"},
    {"AttrPrefCtrlChannelCycle", 0x00, 8, "Con_AttrPrefCtrlChannelCycle", 0},
    {"AttrPriorSession", 0x1000, 16, "Ses_AttrPriorSession", 0},
    {"AttrStreamConfig", 0x00, 8, "Str_AttrStreamConfig", 0},
    {"AttrMaxMACFlows", 0x0014, 16, "Mac_AttrMaxMACFlows", 0},
    {"AttrRANHandoff", 0xFF, 8, "App_AttrRANHandoff", 8},
    {"AttrMaxRLPFlows", 0x0004, 16, "App_AttrMaxRLPFlows", 0},
    {"AttrMaxAbortTimer", 0xFFFC, 16, "App_AttrMaxAbortTimer", 8},
    {"AttrFlowNNNakEnableFwd", 0xFE00, 16, "App_AttrFlowNNNakEnableFwd", 8},
    {"AttrFlowNNNakEnableRev", 0xFD00, 16, "App_AttrFlowNNNakEnableRev", 8},
    {"AttrFlowNNHigherLayerProtocolFwd", 0xFC00, 16, "App_AttrFlowNNHigherLayerProFwd", 8},
    {"AttrFlowNNHigherLayerProtocolRev", 0xFB00, 16, "App_AttrFlowNNHigherLayerProRev", 8},
    {"AttrFlowNNPhysicalLayerNakEnableRev", 0xFA00, 16, "App_AttrFlowNNPhyLayerNakEnRev", 8},
    {"AttrFlowNNTranstAbrtTimerRv", 0xF700, 16, "App_AttrFlowNNTranstAbrtTimerRv", 8},
    {"AttrFlowNNDataOvrSigAllwRev", 0xF600, 16, "App_AttrFlowNNDataOvrSigAllwRev", 8},
    {"AttrFlowNNIdentificationRev", 0x0200, 16, "App_AttrFlowNNIdentificationRev", 0},
    {"AttrFlowNNTimersRev", 0x0400, 16, "App_AttrFlowNNTimersRev", 0},
    {"AttrFlowNNReservationFwd", 0x0500, 16, "App_AttrFlowNNReservationFwd", 0},
    {"AttrFlowNNReservationRev", 0x0600, 16, "App_AttrFlowNNReservationRev", 0},
    {"AttrSupportedHigherLayerProtocols", 0x0000, 16, "App_AttrSupportedHigherLayerPro", 0},
    {"AttrATSupportedQoSProfiles", 0x0002, 16, "App_AttrATSupportedQoSProfiles", 0},
    {"AttrANSupportedQoSProfiles", 0x0003, 16, "App_AttrANSupportedQoSProfiles", 0},
    {"AttrProtocolTypeSubtype1RTCMAC", 0x0004, 16, "Ses_AttrProtocolType", 16},
    {"AttrProtocolTypeDHKeyExchange", 0x0005, 16, "Ses_AttrProtocolType", 16},
    {"AttrProtocolTypeSHA1Authentication", 0x0006, 16, "Ses_AttrProtocolType", 16},
    {"AttrProtocolTypeGenericSecurity", 0x0008, 16, "Ses_AttrProtocolType", 16},
    {"AttrProtocolTypeEnhancedIdleStateProtocol", 0x000C, 16, "Ses_AttrProtocolType", 16},
    {"AttrMACLayAccessChannelSubtype", 0x0002, 16, "Ses_AttrProtocolType", 16,
     "ProtocolTypeEnhancedAccessChannelMACProtocol"},
    {"AttrMACLayControlChannelSubtype", 0x0001, 16, "Ses_AttrProtocolType", 16,
     "ProtocolTypeEnhancedControlChannelMACProtocol"},
    {"AttrProtocolTypeGenericBroadcastProtocolSuite", 0x0018, 16, "Ses_AttrProtocolType", 16},
    {"AttrSlottedMode", 0x01, 8, "Con_AttrSlottedMode", 0},
    {"AttrPagingMask", 0x02, 8, "Con_AttrPagingMask", 0},
    {"AttrFlowNNIdentificationFwd", 0x0100, 16, "App_AttrFlowNNIdentificationFwd", 0},
    {"AttrFlowNNTimersFwd", 0x0300, 16, "App_AttrFlowNNTimersFwd", 0},
    {"AttrProtocolTypeSubtype3RTCMAC", 0x0004, 16, "Ses_AttrProtocolType", 16},
    {"AttrPhyLaySubType", 0x0000, 16, "Ses_AttrProtocolType", 16},
    {"AttrIdleStateSubType", 0x000C, 16, "Ses_AttrProtocolType", 16},
    {"AttrProtocolTypeSubtypeFTCMAC", 0x0003, 16, "Ses_AttrProtocolType", 16},
    {"AttrProtocolTypePersonalityCount", 0x0110, 16, "Ses_AttrProtocolType", 16},
    {"AttrProtocolTypeStream", 0x0013, 16, "Ses_AttrProtocolType", 16},
    {"AttrProtocolTypeATSupportedApplicationSubTypes", 0x1001, 16, "Ses_AttrProtocolType", 16},
    {"AttrMaxReservations", 0x0005, 16, "App_AttrMaxReservations", 0},
    {"SmallSlotCyleAllowed", 0xFF, 8, "Con_AttrSmallSlotCycleAllowed", 8, "SlottedMode"},
    {"AttrFlowNNActivatedFwd", 0xF300, 16, "App_AttrFlowNNActivatedFwd", 8, kWithAttr},
    {"AttrFlowNNActivatedRev", 0xF200, 16, "App_AttrFlowNNActivatedRev", 8, kWithAttr},
    {"AttrFlowNNFlowProtocolPDUFwd", 0xEF00, 16, "App_AttrFlowNNFlowProtocolPDUFwd", 8, kWithAttr},
    {"AttrFlowNNFlowProtocolPDURev", 0xEE00, 16, "App_AttrFlowNNFlowProtocolPDURev", 8, kWithAttr},
    {"AttrFlowNNRouteProtocolPDUFwd", 0xEB00, 16, "App_AttrFlwNNRoutePrtclPDUFwd", 8, kWithAttr},
    {"AttrFlowNNRouteProtocolPDURev", 0xEA00, 16, "App_AttrFlwNNRoutePrtclPDURev", 8, kWithAttr},
    {"AttrATSupportedFlowProtocolParametersPP", 0x0F00, 16, "App_AttrATSuppFlwProtlPrmPP", 0, kWithAttr},
    {"AttrATSupportedRouteProtocolParametersPP", 0x1000, 16, "App_AttrATSuppRutProtlPrmPP", 0, kWithAttr},
    {"AttrFlowNNFlowProtocolParametersFwd", 0x0B00, 16, "App_AttrFlowNNFlwPrtclParmFwd", 0, kWithAttr},
    {"AttrFlowNNFlowProtocolParametersRev", 0x0C00, 16, "App_AttrFlowNNFlwPrtclParmRev", 0, kWithAttr},
    {"AttrFlowNNRouteProtocolParametersFwd", 0x0D00, 16, "App_AttrFlowNNRutPrtclParmFwd", 0, kWithAttr},
    {"AttrFlowNNRouteProtocolParametersRev", 0x0E00, 16, "App_AttrFlowNNRutPrtclParmRev", 0, kWithAttr},
    {"AttrFlowNNSimultaneousDeliveryOnBothRoutesFwd", 0xE900, 16, "App_AttrFlwNNSmlDlvyOBthRtsFwd", 8, kWithAttr},
    {"AttrFlowNNOutOfOrderDeliveryToRouteProtocolFwd", 0xE800, 16, "App_AttrFlwNNOOOrdDlryTRtPtlFwd", 8, kWithAttr},
    {"AttrFlowNNNakDelayTimeFwd", 0xE700, 16, "App_AttrFlowNNNakDelayTimeFwd", 8, kWithAttr},
    {"AttrMaxLinkFlows", 0x0004, 16, "App_AttrMaxLinkFlows", 0, kWithAttr},
};

inline constexpr GetterCase kUpdateCases[] = {
    {"AttrReservationKKQoSRequestFwd", 0x07AA, 16, "App_AttrReservationKKQoSReqFwd", 0, "",
     "SB_App_AttrReservationKKQoSRequestFwd.PRobj_AttrReservationKKQoSRequestFwd"},
    {"AttrReservationKKQoSRequestRev", 0x0800, 16, "App_AttrReservationKKQoSReqRev", 0, "",
     "SB_App_AttrReservationKKQoSRequestRev.PRobj_AttrReservationKKQoSRequestRev"},
    {"AttrReservationKKQoSResponseFwd", 0x09AA, 16, "App_AttrReservationKKQoSRespFwd", 0, "",
     "SB_App_AttrReservationKKQoSResponseFwd.PRobj_AttrReservationKKQoSResponseFwd"},
    {"AttrReservationKKQoSResponseRev", 0x0AAA, 16, "App_AttrReservationKKQoSRespRev", 0, "",
     "SB_App_AttrReservationKKQoSResponseRev.PRobj_AttrReservationKKQoSResponseRev"},
    {"AttrMaxMACFlows", 0x0014, 16, "Mac_AttrMaxMACFlows", 0},
    {"AttrAssociatedFlowsNN", 0x0101, 16, "MAC_AttrAssociatedFlowsNN", 0},
    {"AttrBucketLevelMaxNN", 0xFE02, 16, "MAC_AttrBucketLevelMaxNN", 8},
    {"AttrFlowNNReservationFwd", 0x0500, 16, "App_AttrFlowNNReservationFwd", 0},
    {"AttrFlowNNReservationRev", 0x0600, 16, "App_AttrFlowNNReservationRev", 0},
    {"AttrFlowNNIdentificationFwd", 0x0100, 16, "App_AttrFlowNNIdentificationFwd", 0},
    {"AttrFlowNNIdentificationRev", 0x0200, 16, "App_AttrFlowNNIdentificationRev", 0},
};

}  // namespace vorlan::test
