// Complex attributes of the packet applications (C.S0024-A 4, C.S0063-A).
#pragma once

#include "attributes/complex/complex_attribute_of.hpp"
#include "attributes/values/app_values.hpp"
#include "attributes/values/qos_values.hpp"

namespace vorlan {

/// Lists of value records, a 16-bit AttributeID. `summary` ends with the standard's name where the class
/// shortens it; `source` is the class part of error sources where it is not the class's name.
constexpr ComplexAttributeSpec app_attribute(std::string_view name, std::uint16_t id, ValueClassGetter values,
                                             std::string_view summary, std::string_view source = {}) {
  return {.name = name,
          .summary = summary,
          .clause = "4",
          .id = id,
          .id_bits = 16,
          .values = values,
          .wrong_record = kWrongRecord,
          .source = source};
}
/// The same with a flow, a reservation or a protocol in the low octet of the AttributeID.
constexpr ComplexAttributeSpec app_flow_attribute(std::string_view name, std::uint16_t id, ValueClassGetter values,
                                                  std::string_view summary, std::string_view source = {}) {
  ComplexAttributeSpec row = app_attribute(name, id, values, summary, source);
  row.id_settable = true;
  return row;
}

// Some sources say Route for Flow; scripts know them so.
inline constexpr ComplexAttributeSpec kAppAttributes[] = {
    app_attribute("SB_App_AttrSupportedHigherLayerPro", 0x0000, kRecordsOf<kValSupportedHigherLayerPro>,
                  "Higher layer protocols that are supported (SupportedHigherLayerProtocols)",
                  "SB_App_AttrSupportedHigherLayerProtocols"),
    app_attribute("SB_App_AttrATSupportedQoSProfiles", 0x0002, kRecordsOf<kValATSupportedQoSProfiles>,
                  "QoS profiles that the access terminal supports"),
    app_attribute("SB_App_AttrANSupportedQoSProfiles", 0x0003, kRecordsOf<kValANSupportedQoSProfiles>,
                  "QoS profiles that the access network supports"),
    app_attribute("SB_App_AttrMaxRLPFlows", 0x0004, kRecordsOf<kValMaxRLPFlows>,
                  "How many RLP flows are supported each way"),
    app_attribute("SB_App_AttrMaxLinkFlows", 0x0004, kRecordsOf<kValMaxLinkFlows>,
                  "How many link flows are supported each way"),
    app_attribute("SB_App_AttrMaxReservations", 0x0005, kRecordsOf<kValMaxReservations>,
                  "How many reservations are supported each way"),
    app_flow_attribute("SB_App_AttrFlowNNIdentificationFwd", 0x0100, kRecordsOf<kValFlowNNIdentificationFwd>,
                       "Whether the forward flow is active, and its RLP identifier"),
    app_flow_attribute("SB_App_AttrFlowNNIdentificationRev", 0x0200, kRecordsOf<kValFlowNNIdentificationRev>,
                       "Whether the reverse flow is active, and its RLP identifier"),
    app_flow_attribute("SB_App_AttrFlowNNTimersFwd", 0x0300, kRecordsOf<kValFlowNNTimersFwd>,
                       "Abort and flush timers of the forward flow"),
    app_flow_attribute("SB_App_AttrFlowNNTimersRev", 0x0400, kRecordsOf<kValFlowNNTimersRev>,
                       "Abort and flush timers of the reverse flow"),
    app_flow_attribute("SB_App_AttrFlowNNReservationFwd", 0x0500, kRecordsOf<kValFlowNNReservationFwd>,
                       "Reservations that the forward flow carries"),
    app_flow_attribute("SB_App_AttrFlowNNReservationRev", 0x0600, kRecordsOf<kValFlowNNReservationRev>,
                       "Reservations that the reverse flow carries"),
    app_flow_attribute("SB_App_AttrReservationKKQoSReqFwd", 0x07AA, kRecordsOf<kValReservationKKQoSReqFwd>,
                       "QoS that is asked for a forward reservation (ReservationKKQoSRequestFwd)",
                       "SB_App_AttrReservationKKQoSRequestFwd"),
    app_flow_attribute("SB_App_AttrReservationKKQoSReqRev", 0x08AA, kRecordsOf<kValReservationKKQoSReqRev>,
                       "QoS that is asked for a reverse reservation (ReservationKKQoSRequestRev)",
                       "SB_App_AttrReservationKKQoSRequestRev"),
    app_flow_attribute("SB_App_AttrReservationKKQoSRespFwd", 0x09AA, kRecordsOf<kValReservationKKQoSRespFwd>,
                       "QoS that is granted to a forward reservation (ReservationKKQoSResponseFwd)",
                       "SB_App_AttrReservationKKQoSResponseFwd"),
    app_flow_attribute("SB_App_AttrReservationKKQoSRespRev", 0x0AAA, kRecordsOf<kValReservationKKQoSRespRev>,
                       "QoS that is granted to a reverse reservation (ReservationKKQoSResponseRev)",
                       "SB_App_AttrReservationKKQoSResponseRev"),
    app_flow_attribute("SB_App_AttrFlowNNFlwPrtclParmFwd", 0x0B00, kRecordsOf<kValFlowNNFlwPrtclParmFwd>,
                       "Flow protocol of the forward flow, and its parameters (FlowNNFlowProtocolParametersFwd)",
                       "SB_App_AttrFlowNNFlowProtocolParametersFwd"),
    app_flow_attribute("SB_App_AttrFlowNNFlwPrtclParmRev", 0x0C00, kRecordsOf<kValFlowNNFlwPrtclParmRev>,
                       "Flow protocol of the reverse flow, and its parameters (FlowNNFlowProtocolParametersRev)",
                       "SB_App_AttrFlowNNFlowProtocolParametersRev"),
    app_flow_attribute("SB_App_AttrFlowNNRutPrtclParmFwd", 0x0D00, kRecordsOf<kValFlowNNRutPrtclParmFwd>,
                       "Route protocol of the forward flow, and its parameters (FlowNNRouteProtocolParametersFwd)",
                       "SB_App_AttrRouteNNRouteProtocolParametersFwd"),
    app_flow_attribute("SB_App_AttrFlowNNRutPrtclParmRev", 0x0E00, kRecordsOf<kValFlowNNRutPrtclParmRev>,
                       "Route protocol of the reverse flow, and its parameters (FlowNNRouteProtocolParametersRev)",
                       "SB_App_AttrRouteNNRouteProtocolParametersRev"),
    app_flow_attribute("SB_App_AttrATSuppFlwProtlPrmPP", 0x0F00, kRecordsOf<kValATSuppFlwProtlPrmPP>,
                       "What the terminal supports of a flow protocol (ATSupportedFlowProtocolParametersPP)",
                       "SB_App_AttrATSupportedFlowProtocolParametersPP"),
    app_flow_attribute("SB_App_AttrATSuppRutProtlPrmPP", 0x1000, kRecordsOf<kValATSuppRutProtlPrmPP>,
                       "What the terminal supports of a route protocol (ATSupportedRouteProtocolParametersPP)",
                       "SB_App_AttrATSupportedRouteProtocolParametersPP"),
};

template <MemberName Name>
using AppAttribute = ComplexAttributeOf<kAppAttributes, row_of<kAppAttributes>(Name.view())>;

using SB_App_AttrSupportedHigherLayerPro = AppAttribute<"SB_App_AttrSupportedHigherLayerPro">;
using SB_App_AttrATSupportedQoSProfiles = AppAttribute<"SB_App_AttrATSupportedQoSProfiles">;
using SB_App_AttrANSupportedQoSProfiles = AppAttribute<"SB_App_AttrANSupportedQoSProfiles">;
using SB_App_AttrMaxRLPFlows = AppAttribute<"SB_App_AttrMaxRLPFlows">;
using SB_App_AttrMaxLinkFlows = AppAttribute<"SB_App_AttrMaxLinkFlows">;
using SB_App_AttrMaxReservations = AppAttribute<"SB_App_AttrMaxReservations">;
using SB_App_AttrFlowNNIdentificationFwd = AppAttribute<"SB_App_AttrFlowNNIdentificationFwd">;
using SB_App_AttrFlowNNIdentificationRev = AppAttribute<"SB_App_AttrFlowNNIdentificationRev">;
using SB_App_AttrFlowNNTimersFwd = AppAttribute<"SB_App_AttrFlowNNTimersFwd">;
using SB_App_AttrFlowNNTimersRev = AppAttribute<"SB_App_AttrFlowNNTimersRev">;
using SB_App_AttrFlowNNReservationFwd = AppAttribute<"SB_App_AttrFlowNNReservationFwd">;
using SB_App_AttrFlowNNReservationRev = AppAttribute<"SB_App_AttrFlowNNReservationRev">;
using SB_App_AttrReservationKKQoSReqFwd = AppAttribute<"SB_App_AttrReservationKKQoSReqFwd">;
using SB_App_AttrReservationKKQoSReqRev = AppAttribute<"SB_App_AttrReservationKKQoSReqRev">;
using SB_App_AttrReservationKKQoSRespFwd = AppAttribute<"SB_App_AttrReservationKKQoSRespFwd">;
using SB_App_AttrReservationKKQoSRespRev = AppAttribute<"SB_App_AttrReservationKKQoSRespRev">;
using SB_App_AttrFlowNNFlwPrtclParmFwd = AppAttribute<"SB_App_AttrFlowNNFlwPrtclParmFwd">;
using SB_App_AttrFlowNNFlwPrtclParmRev = AppAttribute<"SB_App_AttrFlowNNFlwPrtclParmRev">;
using SB_App_AttrFlowNNRutPrtclParmFwd = AppAttribute<"SB_App_AttrFlowNNRutPrtclParmFwd">;
using SB_App_AttrFlowNNRutPrtclParmRev = AppAttribute<"SB_App_AttrFlowNNRutPrtclParmRev">;
using SB_App_AttrATSuppFlwProtlPrmPP = AppAttribute<"SB_App_AttrATSuppFlwProtlPrmPP">;
using SB_App_AttrATSuppRutProtlPrmPP = AppAttribute<"SB_App_AttrATSuppRutProtlPrmPP">;

}  // namespace vorlan
