// Complex attributes of the packet applications (C.S0024-A 4, C.S0063-A).
#pragma once

#include "attributes/complex/complex_attribute_of.hpp"
#include "attributes/values/app_values.hpp"
#include "attributes/values/qos_values.hpp"

namespace vorlan {

inline constexpr ComplexAttributeSpec kAttrSupportedHigherLayerPro{
    .name = "SB_App_AttrSupportedHigherLayerPro",
    .summary = "SupportedHigherLayerProtocols",
    .clause = "4",
    .id = 0x0000,
    .id_bits = 16,
    .values = &ValueOf<kValSupportedHigherLayerPro>::shared_class,
    .wrong_record = kWrongRecord,
    .source = "SB_App_AttrSupportedHigherLayerProtocols"};
using SB_App_AttrSupportedHigherLayerPro = ComplexAttributeOf<kAttrSupportedHigherLayerPro>;

inline constexpr ComplexAttributeSpec kAttrATSupportedQoSProfiles{
    .name = "SB_App_AttrATSupportedQoSProfiles",
    .summary = "ATSupportedQoSProfiles",
    .clause = "4",
    .id = 0x0002,
    .id_bits = 16,
    .values = &ValueOf<kValATSupportedQoSProfiles>::shared_class,
    .wrong_record = kWrongRecord};
using SB_App_AttrATSupportedQoSProfiles = ComplexAttributeOf<kAttrATSupportedQoSProfiles>;

inline constexpr ComplexAttributeSpec kAttrANSupportedQoSProfiles{
    .name = "SB_App_AttrANSupportedQoSProfiles",
    .summary = "ANSupportedQoSProfiles",
    .clause = "4",
    .id = 0x0003,
    .id_bits = 16,
    .values = &ValueOf<kValANSupportedQoSProfiles>::shared_class,
    .wrong_record = kWrongRecord};
using SB_App_AttrANSupportedQoSProfiles = ComplexAttributeOf<kAttrANSupportedQoSProfiles>;

inline constexpr ComplexAttributeSpec kAttrMaxRLPFlows{.name = "SB_App_AttrMaxRLPFlows",
                                                       .summary = "MaxRLPFlows",
                                                       .clause = "4",
                                                       .id = 0x0004,
                                                       .id_bits = 16,
                                                       .values = &ValueOf<kValMaxRLPFlows>::shared_class,
                                                       .wrong_record = kWrongRecord};
using SB_App_AttrMaxRLPFlows = ComplexAttributeOf<kAttrMaxRLPFlows>;

inline constexpr ComplexAttributeSpec kAttrMaxLinkFlows{.name = "SB_App_AttrMaxLinkFlows",
                                                        .summary = "MaxLinkFlows",
                                                        .clause = "4",
                                                        .id = 0x0004,
                                                        .id_bits = 16,
                                                        .values = &ValueOf<kValMaxLinkFlows>::shared_class,
                                                        .wrong_record = kWrongRecord};
using SB_App_AttrMaxLinkFlows = ComplexAttributeOf<kAttrMaxLinkFlows>;

inline constexpr ComplexAttributeSpec kAttrMaxReservations{.name = "SB_App_AttrMaxReservations",
                                                           .summary = "MaxReservations",
                                                           .clause = "4",
                                                           .id = 0x0005,
                                                           .id_bits = 16,
                                                           .values = &ValueOf<kValMaxReservations>::shared_class,
                                                           .wrong_record = kWrongRecord};
using SB_App_AttrMaxReservations = ComplexAttributeOf<kAttrMaxReservations>;

inline constexpr ComplexAttributeSpec kAttrFlowNNIdentificationFwd{
    .name = "SB_App_AttrFlowNNIdentificationFwd",
    .summary = "FlowNNIdentificationFwd",
    .clause = "4",
    .id = 0x0100,
    .id_bits = 16,
    .id_settable = true,
    .values = &ValueOf<kValFlowNNIdentificationFwd>::shared_class,
    .wrong_record = kWrongRecord};
using SB_App_AttrFlowNNIdentificationFwd = ComplexAttributeOf<kAttrFlowNNIdentificationFwd>;

inline constexpr ComplexAttributeSpec kAttrFlowNNIdentificationRev{
    .name = "SB_App_AttrFlowNNIdentificationRev",
    .summary = "FlowNNIdentificationRev",
    .clause = "4",
    .id = 0x0200,
    .id_bits = 16,
    .id_settable = true,
    .values = &ValueOf<kValFlowNNIdentificationRev>::shared_class,
    .wrong_record = kWrongRecord};
using SB_App_AttrFlowNNIdentificationRev = ComplexAttributeOf<kAttrFlowNNIdentificationRev>;

inline constexpr ComplexAttributeSpec kAttrFlowNNTimersFwd{.name = "SB_App_AttrFlowNNTimersFwd",
                                                           .summary = "FlowNNTimersFwd",
                                                           .clause = "4",
                                                           .id = 0x0300,
                                                           .id_bits = 16,
                                                           .id_settable = true,
                                                           .values = &ValueOf<kValFlowNNTimersFwd>::shared_class,
                                                           .wrong_record = kWrongRecord};
using SB_App_AttrFlowNNTimersFwd = ComplexAttributeOf<kAttrFlowNNTimersFwd>;

inline constexpr ComplexAttributeSpec kAttrFlowNNTimersRev{.name = "SB_App_AttrFlowNNTimersRev",
                                                           .summary = "FlowNNTimersRev",
                                                           .clause = "4",
                                                           .id = 0x0400,
                                                           .id_bits = 16,
                                                           .id_settable = true,
                                                           .values = &ValueOf<kValFlowNNTimersRev>::shared_class,
                                                           .wrong_record = kWrongRecord};
using SB_App_AttrFlowNNTimersRev = ComplexAttributeOf<kAttrFlowNNTimersRev>;

inline constexpr ComplexAttributeSpec kAttrFlowNNReservationFwd{
    .name = "SB_App_AttrFlowNNReservationFwd",
    .summary = "FlowNNReservationFwd",
    .clause = "4",
    .id = 0x0500,
    .id_bits = 16,
    .id_settable = true,
    .values = &ValueOf<kValFlowNNReservationFwd>::shared_class,
    .wrong_record = kWrongRecord};
using SB_App_AttrFlowNNReservationFwd = ComplexAttributeOf<kAttrFlowNNReservationFwd>;

inline constexpr ComplexAttributeSpec kAttrFlowNNReservationRev{
    .name = "SB_App_AttrFlowNNReservationRev",
    .summary = "FlowNNReservationRev",
    .clause = "4",
    .id = 0x0600,
    .id_bits = 16,
    .id_settable = true,
    .values = &ValueOf<kValFlowNNReservationRev>::shared_class,
    .wrong_record = kWrongRecord};
using SB_App_AttrFlowNNReservationRev = ComplexAttributeOf<kAttrFlowNNReservationRev>;

inline constexpr ComplexAttributeSpec kAttrReservationKKQoSReqFwd{
    .name = "SB_App_AttrReservationKKQoSReqFwd",
    .summary = "ReservationKKQoSRequestFwd",
    .clause = "4",
    .id = 0x07AA,
    .id_bits = 16,
    .id_settable = true,
    .values = &ValueOf<kValReservationKKQoSReqFwd>::shared_class,
    .wrong_record = kWrongRecord,
    .source = "SB_App_AttrReservationKKQoSRequestFwd"};
using SB_App_AttrReservationKKQoSReqFwd = ComplexAttributeOf<kAttrReservationKKQoSReqFwd>;

inline constexpr ComplexAttributeSpec kAttrReservationKKQoSReqRev{
    .name = "SB_App_AttrReservationKKQoSReqRev",
    .summary = "ReservationKKQoSRequestRev",
    .clause = "4",
    .id = 0x08AA,
    .id_bits = 16,
    .id_settable = true,
    .values = &ValueOf<kValReservationKKQoSReqRev>::shared_class,
    .wrong_record = kWrongRecord,
    .source = "SB_App_AttrReservationKKQoSRequestRev"};
using SB_App_AttrReservationKKQoSReqRev = ComplexAttributeOf<kAttrReservationKKQoSReqRev>;

inline constexpr ComplexAttributeSpec kAttrReservationKKQoSRespFwd{
    .name = "SB_App_AttrReservationKKQoSRespFwd",
    .summary = "ReservationKKQoSResponseFwd",
    .clause = "4",
    .id = 0x09AA,
    .id_bits = 16,
    .id_settable = true,
    .values = &ValueOf<kValReservationKKQoSRespFwd>::shared_class,
    .wrong_record = kWrongRecord,
    .source = "SB_App_AttrReservationKKQoSResponseFwd"};
using SB_App_AttrReservationKKQoSRespFwd = ComplexAttributeOf<kAttrReservationKKQoSRespFwd>;

inline constexpr ComplexAttributeSpec kAttrReservationKKQoSRespRev{
    .name = "SB_App_AttrReservationKKQoSRespRev",
    .summary = "ReservationKKQoSResponseRev",
    .clause = "4",
    .id = 0x0AAA,
    .id_bits = 16,
    .id_settable = true,
    .values = &ValueOf<kValReservationKKQoSRespRev>::shared_class,
    .wrong_record = kWrongRecord,
    .source = "SB_App_AttrReservationKKQoSResponseRev"};
using SB_App_AttrReservationKKQoSRespRev = ComplexAttributeOf<kAttrReservationKKQoSRespRev>;

inline constexpr ComplexAttributeSpec kAttrFlowNNFlwPrtclParmFwd{
    .name = "SB_App_AttrFlowNNFlwPrtclParmFwd",
    .summary = "FlowNNFlowProtocolParametersFwd",
    .clause = "4",
    .id = 0x0B00,
    .id_bits = 16,
    .id_settable = true,
    .values = &ValueOf<kValFlowNNFlwPrtclParmFwd>::shared_class,
    .wrong_record = kWrongRecord,
    .source = "SB_App_AttrFlowNNFlowProtocolParametersFwd"};
using SB_App_AttrFlowNNFlwPrtclParmFwd = ComplexAttributeOf<kAttrFlowNNFlwPrtclParmFwd>;

inline constexpr ComplexAttributeSpec kAttrFlowNNFlwPrtclParmRev{
    .name = "SB_App_AttrFlowNNFlwPrtclParmRev",
    .summary = "FlowNNFlowProtocolParametersRev",
    .clause = "4",
    .id = 0x0C00,
    .id_bits = 16,
    .id_settable = true,
    .values = &ValueOf<kValFlowNNFlwPrtclParmRev>::shared_class,
    .wrong_record = kWrongRecord,
    .source = "SB_App_AttrFlowNNFlowProtocolParametersRev"};
using SB_App_AttrFlowNNFlwPrtclParmRev = ComplexAttributeOf<kAttrFlowNNFlwPrtclParmRev>;

inline constexpr ComplexAttributeSpec kAttrFlowNNRutPrtclParmFwd{
    .name = "SB_App_AttrFlowNNRutPrtclParmFwd",
    .summary = "FlowNNRouteProtocolParametersFwd",
    .clause = "4",
    .id = 0x0D00,
    .id_bits = 16,
    .id_settable = true,
    .values = &ValueOf<kValFlowNNRutPrtclParmFwd>::shared_class,
    .wrong_record = kWrongRecord,
    .source = "SB_App_AttrRouteNNRouteProtocolParametersFwd"};
using SB_App_AttrFlowNNRutPrtclParmFwd = ComplexAttributeOf<kAttrFlowNNRutPrtclParmFwd>;

inline constexpr ComplexAttributeSpec kAttrFlowNNRutPrtclParmRev{
    .name = "SB_App_AttrFlowNNRutPrtclParmRev",
    .summary = "FlowNNRouteProtocolParametersRev",
    .clause = "4",
    .id = 0x0E00,
    .id_bits = 16,
    .id_settable = true,
    .values = &ValueOf<kValFlowNNRutPrtclParmRev>::shared_class,
    .wrong_record = kWrongRecord,
    .source = "SB_App_AttrRouteNNRouteProtocolParametersRev"};
using SB_App_AttrFlowNNRutPrtclParmRev = ComplexAttributeOf<kAttrFlowNNRutPrtclParmRev>;

inline constexpr ComplexAttributeSpec kAttrATSuppFlwProtlPrmPP{
    .name = "SB_App_AttrATSuppFlwProtlPrmPP",
    .summary = "ATSupportedFlowProtocolParametersPP",
    .clause = "4",
    .id = 0x0F00,
    .id_bits = 16,
    .id_settable = true,
    .values = &ValueOf<kValATSuppFlwProtlPrmPP>::shared_class,
    .wrong_record = kWrongRecord,
    .source = "SB_App_AttrATSupportedFlowProtocolParametersPP"};
using SB_App_AttrATSuppFlwProtlPrmPP = ComplexAttributeOf<kAttrATSuppFlwProtlPrmPP>;

inline constexpr ComplexAttributeSpec kAttrATSuppRutProtlPrmPP{
    .name = "SB_App_AttrATSuppRutProtlPrmPP",
    .summary = "ATSupportedRouteProtocolParametersPP",
    .clause = "4",
    .id = 0x1000,
    .id_bits = 16,
    .id_settable = true,
    .values = &ValueOf<kValATSuppRutProtlPrmPP>::shared_class,
    .wrong_record = kWrongRecord,
    .source = "SB_App_AttrATSupportedRouteProtocolParametersPP"};
using SB_App_AttrATSuppRutProtlPrmPP = ComplexAttributeOf<kAttrATSuppRutProtlPrmPP>;

}  // namespace vorlan
