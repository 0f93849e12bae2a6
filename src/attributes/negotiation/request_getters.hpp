// The attribute getters of ConfigurationRequest, in their order. Texts and sources that name something else are kept:
// scripts know them.
#pragma once

#include "attributes/app_simple_attributes.hpp"
#include "attributes/complex/app_attributes.hpp"
#include "attributes/complex/con_ses_attributes.hpp"
#include "attributes/complex/mac_attributes.hpp"
#include "attributes/con_ses_simple_attributes.hpp"
#include "attributes/negotiation/attribute_getter.hpp"

namespace vorlan {

/// An attribute of a flow: searched by the AttributeID that the script names, else by the one that the object builds
/// with.
template <class T>
constexpr AttributeGetter of_flow(std::string_view name) {
  return {.name = name, .make = make_attribute<T>, .takes_id = true};
}
/// The getters added last, whose texts say "AttrFlowNN..." where the others say "FlowNN...".
constexpr AttributeGetter with_attr(AttributeGetter getter) {
  constexpr std::string_view kPrefix = "PRobj_";
  getter.attribute = getter.name.substr(kPrefix.size());
  return getter;
}
/// An attribute with an AttributeID of its own.
template <class T>
constexpr AttributeGetter fixed_id(std::string_view name, std::string_view searched, std::string_view attribute = {}) {
  return {.name = name, .make = make_attribute<T>, .searched = searched, .attribute = attribute};
}
/// The subtypes that are proposed for a protocol: its type is the low octet of the AttributeID.
constexpr AttributeGetter protocol_type(std::string_view name, std::string_view searched,
                                        std::string_view attribute = {}) {
  return fixed_id<SB_Ses_AttrProtocolType>(name, searched, attribute);
}

inline constexpr AttributeGetter kRequestGetters[] = {
    {.name = "PRobj_AttrSuppCDMAChannels",
     .make = make_attribute<SB_Con_AttrSuppCDMAChannels>,
     .searched = "00000100",
     .source = "SB_Con_AttrSuppCDMAChannels.PRobj_AttrSuppCDMAChannels"},
    {.name = "PRobj_AttrSearchParams",
     .make = make_attribute<SB_Con_AttrSearchParameters>,
     .searched = "00000000",
     .source = "SB_MsgConfigurationRequest.PRobj_AttrStreamConfig"},
    fixed_id<SB_Con_AttrPrefCtrlChannelCycle>("PRobj_AttrPrefCtrlChannelCycle", "00000000"),
    fixed_id<SB_Ses_AttrPriorSession>("PRobj_AttrPriorSession", "0001000000000000"),
    fixed_id<SB_Str_AttrStreamConfig>("PRobj_AttrStreamConfig", "00000000"),
    fixed_id<SB_Mac_AttrMaxMACFlows>("PRobj_AttrMaxMACFlows", "0000000000010100"),
    fixed_id<SB_App_AttrRANHandoff>("PRobj_AttrRANHandoff", "11111111"),
    fixed_id<SB_App_AttrMaxRLPFlows>("PRobj_AttrMaxRLPFlows", "0000000000000100"),
    fixed_id<SB_App_AttrMaxAbortTimer>("PRobj_AttrMaxAbortTimer", "1111111111111100"),
    of_flow<SB_App_AttrFlowNNNakEnableFwd>("PRobj_AttrFlowNNNakEnableFwd"),
    of_flow<SB_App_AttrFlowNNNakEnableRev>("PRobj_AttrFlowNNNakEnableRev"),
    of_flow<SB_App_AttrFlowNNHigherLayerProFwd>("PRobj_AttrFlowNNHigherLayerProtocolFwd"),
    of_flow<SB_App_AttrFlowNNHigherLayerProRev>("PRobj_AttrFlowNNHigherLayerProtocolRev"),
    of_flow<SB_App_AttrFlowNNPhyLayerNakEnRev>("PRobj_AttrFlowNNPhysicalLayerNakEnableRev"),
    of_flow<SB_App_AttrFlowNNTranstAbrtTimerRv>("PRobj_AttrFlowNNTranstAbrtTimerRv"),
    of_flow<SB_App_AttrFlowNNDataOvrSigAllwRev>("PRobj_AttrFlowNNDataOvrSigAllwRev"),
    of_flow<SB_App_AttrFlowNNIdentificationRev>("PRobj_AttrFlowNNIdentificationRev"),
    of_flow<SB_App_AttrFlowNNTimersRev>("PRobj_AttrFlowNNTimersRev"),
    of_flow<SB_App_AttrFlowNNReservationFwd>("PRobj_AttrFlowNNReservationFwd"),
    of_flow<SB_App_AttrFlowNNReservationRev>("PRobj_AttrFlowNNReservationRev"),
    fixed_id<SB_App_AttrSupportedHigherLayerPro>("PRobj_AttrSupportedHigherLayerProtocols", "0000000000000000"),
    fixed_id<SB_App_AttrATSupportedQoSProfiles>("PRobj_AttrATSupportedQoSProfiles", "0000000000000010"),
    fixed_id<SB_App_AttrANSupportedQoSProfiles>("PRobj_AttrANSupportedQoSProfiles", "0000000000000011"),
    protocol_type("PRobj_AttrProtocolTypeSubtype1RTCMAC", "0000000000000100"),
    protocol_type("PRobj_AttrProtocolTypeDHKeyExchange", "0000000000000101"),
    protocol_type("PRobj_AttrProtocolTypeSHA1Authentication", "0000000000000110"),
    protocol_type("PRobj_AttrProtocolTypeGenericSecurity", "0000000000001000"),
    protocol_type("PRobj_AttrProtocolTypeEnhancedIdleStateProtocol", "0000000000001100"),
    protocol_type("PRobj_AttrMACLayAccessChannelSubtype", "0000000000000010",
                  "ProtocolTypeEnhancedAccessChannelMACProtocol"),
    protocol_type("PRobj_AttrMACLayControlChannelSubtype", "0000000000000001",
                  "ProtocolTypeEnhancedControlChannelMACProtocol"),
    protocol_type("PRobj_AttrProtocolTypeGenericBroadcastProtocolSuite", "0000000000011000"),
    fixed_id<SB_Con_AttrSlottedMode>("PRobj_AttrSlottedMode", "00000001"),
    fixed_id<SB_Con_AttrPagingMask>("PRobj_AttrPagingMask", "00000010"),
    of_flow<SB_App_AttrFlowNNIdentificationFwd>("PRobj_AttrFlowNNIdentificationFwd"),
    of_flow<SB_App_AttrFlowNNTimersFwd>("PRobj_AttrFlowNNTimersFwd"),
    protocol_type("PRobj_AttrProtocolTypeSubtype3RTCMAC", "0000000000000100"),
    protocol_type("PRobj_AttrPhyLaySubType", "0000000000000000"),
    protocol_type("PRobj_AttrIdleStateSubType", "0000000000001100"),
    protocol_type("PRobj_AttrProtocolTypeSubtypeFTCMAC", "0000000000000011"),
    protocol_type("PRobj_AttrProtocolTypePersonalityCount", "0000000100010000"),
    protocol_type("PRobj_AttrProtocolTypeStream", "0000000000010011"),
    protocol_type("PRobj_AttrProtocolTypeATSupportedApplicationSubTypes", "0001000000000001"),
    fixed_id<SB_App_AttrMaxReservations>("PRobj_AttrMaxReservations", "0000000000000101"),
    fixed_id<SB_Con_AttrSmallSlotCycleAllowed>("PRobj_SmallSlotCyleAllowed", "11111111", "SlottedMode"),
    with_attr(of_flow<SB_App_AttrFlowNNActivatedFwd>("PRobj_AttrFlowNNActivatedFwd")),
    with_attr(of_flow<SB_App_AttrFlowNNActivatedRev>("PRobj_AttrFlowNNActivatedRev")),
    with_attr(of_flow<SB_App_AttrFlowNNFlowProtocolPDUFwd>("PRobj_AttrFlowNNFlowProtocolPDUFwd")),
    with_attr(of_flow<SB_App_AttrFlowNNFlowProtocolPDURev>("PRobj_AttrFlowNNFlowProtocolPDURev")),
    with_attr(of_flow<SB_App_AttrFlwNNRoutePrtclPDUFwd>("PRobj_AttrFlowNNRouteProtocolPDUFwd")),
    with_attr(of_flow<SB_App_AttrFlwNNRoutePrtclPDURev>("PRobj_AttrFlowNNRouteProtocolPDURev")),
    with_attr(of_flow<SB_App_AttrATSuppFlwProtlPrmPP>("PRobj_AttrATSupportedFlowProtocolParametersPP")),
    with_attr(of_flow<SB_App_AttrATSuppRutProtlPrmPP>("PRobj_AttrATSupportedRouteProtocolParametersPP")),
    with_attr(of_flow<SB_App_AttrFlowNNFlwPrtclParmFwd>("PRobj_AttrFlowNNFlowProtocolParametersFwd")),
    with_attr(of_flow<SB_App_AttrFlowNNFlwPrtclParmRev>("PRobj_AttrFlowNNFlowProtocolParametersRev")),
    with_attr(of_flow<SB_App_AttrFlowNNRutPrtclParmFwd>("PRobj_AttrFlowNNRouteProtocolParametersFwd")),
    with_attr(of_flow<SB_App_AttrFlowNNRutPrtclParmRev>("PRobj_AttrFlowNNRouteProtocolParametersRev")),
    with_attr(of_flow<SB_App_AttrFlwNNSmlDlvyOBthRtsFwd>("PRobj_AttrFlowNNSimultaneousDeliveryOnBothRoutesFwd")),
    with_attr(of_flow<SB_App_AttrFlwNNOOOrdDlryTRtPtlFwd>("PRobj_AttrFlowNNOutOfOrderDeliveryToRouteProtocolFwd")),
    with_attr(of_flow<SB_App_AttrFlowNNNakDelayTimeFwd>("PRobj_AttrFlowNNNakDelayTimeFwd")),
    with_attr(fixed_id<SB_App_AttrMaxLinkFlows>("PRobj_AttrMaxLinkFlows", "0000000000000100")),
};

}  // namespace vorlan
