// Value records of the packet applications (C.S0024-A 4, C.S0063-A).
#pragma once

#include "attributes/values/common_fields.hpp"

namespace vorlan {

constexpr ValueSpec app_value(std::string_view name, std::string_view summary, std::span<const RecordField> fields,
                              std::string_view source = {}) {
  return {.name = name, .summary = summary, .clause = "4", .fields = fields, .source = source, .tells_length = true};
}

// --- What a terminal supports

inline constexpr RecordField kValMaxRLPFlowsFields[] = {
    kValueIdField,
    fixed("PRstr_MaxNumRLPFlowsFwd", 8, {}, nullptr, "Forward flows."),
    fixed("PRstr_MaxNumRLPFlowsRev", 8, {}, nullptr, "Reverse flows."),
    fixed("PRstr_MaxActivatedRLPFlowsFwd", 8, {}, nullptr, "Forward flows activated at a time."),
    fixed("PRstr_MaxActivatedRLPFlowsRev", 8, {}, nullptr, "Reverse flows activated at a time."),
};
inline constexpr ValueSpec kValMaxRLPFlows =
    app_value("SB_App_ValMaxRLPFlows", "A value of MaxRLPFlows", kValMaxRLPFlowsFields);
using SB_App_ValMaxRLPFlows = ValueOf<kValMaxRLPFlows>;

inline constexpr RecordField kValMaxLinkFlowsFields[] = {
    kValueIdField,
    fixed("PRstr_MaxNumLinkFlowsFwd", 8, {}, nullptr, "Forward flows."),
    fixed("PRstr_MaxNumLinkFlowsRev", 8, {}, nullptr, "Reverse flows."),
    fixed("PRstr_MaxActivatedLinkFlowsFwd", 8, {}, nullptr, "Forward flows activated at a time."),
    fixed("PRstr_MaxActivatedLinkFlowsRev", 8, {}, nullptr, "Reverse flows activated at a time."),
};
inline constexpr ValueSpec kValMaxLinkFlows =
    app_value("SB_App_ValMaxLinkFlows", "A value of MaxLinkFlows", kValMaxLinkFlowsFields);
using SB_App_ValMaxLinkFlows = ValueOf<kValMaxLinkFlows>;

inline constexpr RecordField kValMaxReservationsFields[] = {
    kValueIdField,
    fixed("PRstr_MaxNumReservationsFwd", 8, {}, nullptr, "Forward reservations."),
    fixed("PRstr_MaxNumReservationsRev", 8, {}, nullptr, "Reverse reservations."),
    fixed("PRstr_MaxNumOpenReservationsFwd", 8, {}, nullptr, "Forward reservations open at a time."),
    fixed("PRstr_MaxNumOpenReservationsRev", 8, {}, nullptr, "Reverse reservations open at a time."),
};
inline constexpr ValueSpec kValMaxReservations =
    app_value("SB_App_ValMaxReservations", "A value of MaxReservations", kValMaxReservationsFields);
using SB_App_ValMaxReservations = ValueOf<kValMaxReservations>;

inline constexpr RecordField kValSupportedHigherLayerProFields[] = {
    kValueIdField,
    fixed("PRstr_ProtocolCount", 8, {}, nullptr, "The number of protocols."),
    {.name = "PRstr_ProtocolIdentifier",
     .bits = 8,
     .repeat = list_by("PRstr_ProtocolCount"),
     .summary = "A higher layer protocol."},
};
inline constexpr ValueSpec kValSupportedHigherLayerPro =
    app_value("SB_App_ValSupportedHigherLayerPro", "A value of SupportedHigherLayerProtocols",
              kValSupportedHigherLayerProFields, "SB_App_ValSupportedHigherLayerProtocols");
using SB_App_ValSupportedHigherLayerPro = ValueOf<kValSupportedHigherLayerPro>;

/// FlowProfileIDs, for people.
std::vector<DissectedField> dissect_supported_profile(std::size_t type, std::string_view whole, Extent profile);

inline constexpr RecordField kSupportedQoSProfilesFields[] = {
    kValueIdField,
    fixed("PRstr_QoSProfileCount", 8, {}, nullptr, "The number of profiles."),
    {.name = "PRstr_ProfileType",
     .bits = 8,
     .repeat = list_by("PRstr_QoSProfileCount", 1),
     .summary = "1: attribute sets, 2: FlowProfileIDs."},
    {.name = "PRstr_ProfileLength",
     .bits = 8,
     .repeat = list_by("PRstr_QoSProfileCount", 1),
     .meaning = &kOctets,
     .summary = "Length of the profile."},
    {.name = "PRstr_ProfileValue",
     .width = octets_of("PRstr_ProfileLength"),
     .repeat = list_by("PRstr_QoSProfileCount", 1),
     .meaning = &kHex,
     .summary = "The profile.",
     .inside = dissect_supported_profile,
     .kind = "PRstr_ProfileType"},
};
inline constexpr ValueSpec kValANSupportedQoSProfiles =
    app_value("SB_App_ValANSupportedQoSProfiles", "A value of ANSupportedQoSProfiles", kSupportedQoSProfilesFields);
using SB_App_ValANSupportedQoSProfiles = ValueOf<kValANSupportedQoSProfiles>;
inline constexpr ValueSpec kValATSupportedQoSProfiles =
    app_value("SB_App_ValATSupportedQoSProfiles", "A value of ATSupportedQoSProfiles", kSupportedQoSProfilesFields,
              "SB_App_ValANSupportedQoSProfiles");
using SB_App_ValATSupportedQoSProfiles = ValueOf<kValATSupportedQoSProfiles>;

// --- Flows

template <const std::string_view& Active>
inline constexpr RecordField kFlowNNIdentificationFields[] = {
    kValueIdField,
    fixed("PRstr_Active", 8, Active, nullptr, "1 if the flow is active."),
    {.name = "PRstr_SequenceLength",
     .bits = 8,
     .initial = "00010110",
     .only = if_one("PRstr_Active"),
     .summary = "Width of RLP sequence numbers, bits."},
    {.name = "PRstr_RLPIDLength",
     .bits = 8,
     .only = if_one("PRstr_Active"),
     .summary = "Width of the RLP identifier, bits."},
    {.name = "PRstr_RLPID",
     .width = as_many_bits_as("PRstr_RLPIDLength"),
     .only = if_one("PRstr_Active"),
     .summary = "The RLP identifier."},
};
/// Flow 00, the one of a new attribute, is active.
inline constexpr std::string_view kActive = "00000001";
inline constexpr ValueSpec kValFlowNNIdentificationFwd{.name = "SB_App_ValFlowNNIdentificationFwd",
                                                       .summary = "A value of FlowNNIdentificationFwd",
                                                       .clause = "4",
                                                       .fields = kFlowNNIdentificationFields<kActive>,
                                                       .source = "SB_Con_ValFlowNNIdentificationFwd",
                                                       .tells_length = true,
                                                       .has_flag = true};
using SB_App_ValFlowNNIdentificationFwd = ValueOf<kValFlowNNIdentificationFwd>;
inline constexpr ValueSpec kValFlowNNIdentificationRev{.name = "SB_App_ValFlowNNIdentificationRev",
                                                       .summary = "A value of FlowNNIdentificationRev",
                                                       .clause = "4",
                                                       .fields = kFlowNNIdentificationFields<kActive>,
                                                       .source = "SB_Con_ValFlowNNIdentificationRev",
                                                       .tells_length = true,
                                                       .has_flag = true};
using SB_App_ValFlowNNIdentificationRev = ValueOf<kValFlowNNIdentificationRev>;

inline constexpr RecordField kFlowNNTimersFields[] = {
    kValueIdField,
    fixed("PRstr_AbortTimer", 16, "0000000111110100", &kMilliseconds, "Time after which a gap is given up."),
    fixed("PRstr_FlushTimer", 16, "0000000100101100", &kMilliseconds, "Time after which the last octets are repeated."),
};
inline constexpr ValueSpec kValFlowNNTimersFwd{.name = "SB_App_ValFlowNNTimersFwd",
                                               .summary = "A value of FlowNNTimersFwd",
                                               .clause = "4",
                                               .fields = kFlowNNTimersFields};
using SB_App_ValFlowNNTimersFwd = ValueOf<kValFlowNNTimersFwd>;
inline constexpr ValueSpec kValFlowNNTimersRev{.name = "SB_App_ValFlowNNTimersRev",
                                               .summary = "A value of FlowNNTimersRev",
                                               .clause = "4",
                                               .fields = kFlowNNTimersFields};
using SB_App_ValFlowNNTimersRev = ValueOf<kValFlowNNTimersRev>;

inline constexpr RecordField kFlowNNReservationFields[] = {
    kValueIdField,
    // Flow 00, the one of a new attribute, carries the default reservation.
    fixed("PRstr_ReservationCount", 8, "00000001", nullptr, "The number of reservations."),
    {.name = "PRstr_ReservationLabel",
     .bits = 8,
     .initial = "11111111",
     .repeat = list_by("PRstr_ReservationCount"),
     .summary = "The label of a reservation that the flow carries."},
};
inline constexpr ValueSpec kValFlowNNReservationFwd =
    app_value("SB_App_ValFlowNNReservationFwd", "A value of FlowNNReservationFwd", kFlowNNReservationFields);
using SB_App_ValFlowNNReservationFwd = ValueOf<kValFlowNNReservationFwd>;
inline constexpr ValueSpec kValFlowNNReservationRev =
    app_value("SB_App_ValFlowNNReservationRev", "A value of FlowNNReservationRev", kFlowNNReservationFields);
using SB_App_ValFlowNNReservationRev = ValueOf<kValFlowNNReservationRev>;

// --- Parameters of flow and route protocols

std::string_view protocol_parameters(const Record& record, std::size_t index);
void let_protocol_parameters(Record& record, std::size_t index, std::string_view bits);

inline constexpr RecordField kProtocolParametersFields[] = {
    kValueIdField,
    fixed("PRstr_ProtocolID", 8, {}, nullptr, "The protocol."),
    fixed("PRstr_ProtocolParametersLength", 8, {}, &kOctets, "Length of its parameters."),
    {.name = "PRstr_ProtocolParameters",
     .width = octets_of("PRstr_ProtocolParametersLength"),
     .meaning = &kHex,
     .summary = "Its parameters."},
    // Older scripts know the parameters by this name.
    {.name = "PRstr_SProtocolParameters",
     .width = octets_of("PRstr_ProtocolParametersLength"),
     .view = protocol_parameters,
     .let = let_protocol_parameters,
     .summary = "Another name for the parameters."},
};
inline constexpr ValueSpec kValFlowNNFlwPrtclParmFwd =
    app_value("SB_App_ValFlowNNFlwPrtclParmFwd", "A value of FlowNNFlowProtocolParametersFwd",
              kProtocolParametersFields, "SB_App_ValFlowNNFlowProtocolParametersFwd");
using SB_App_ValFlowNNFlwPrtclParmFwd = ValueOf<kValFlowNNFlwPrtclParmFwd>;
inline constexpr ValueSpec kValFlowNNFlwPrtclParmRev =
    app_value("SB_App_ValFlowNNFlwPrtclParmRev", "A value of FlowNNFlowProtocolParametersRev",
              kProtocolParametersFields, "SB_App_ValFlowNNFlowProtocolParametersRev");
using SB_App_ValFlowNNFlwPrtclParmRev = ValueOf<kValFlowNNFlwPrtclParmRev>;
inline constexpr ValueSpec kValFlowNNRutPrtclParmFwd =
    app_value("SB_App_ValFlowNNRutPrtclParmFwd", "A value of FlowNNRouteProtocolParametersFwd",
              kProtocolParametersFields, "SB_App_ValRouteNNRouteProtocolParametersFwd");
using SB_App_ValFlowNNRutPrtclParmFwd = ValueOf<kValFlowNNRutPrtclParmFwd>;
inline constexpr ValueSpec kValFlowNNRutPrtclParmRev =
    app_value("SB_App_ValFlowNNRutPrtclParmRev", "A value of FlowNNRouteProtocolParametersRev",
              kProtocolParametersFields, "SB_App_ValRouteNNRouteProtocolParametersRev");
using SB_App_ValFlowNNRutPrtclParmRev = ValueOf<kValFlowNNRutPrtclParmRev>;

inline constexpr RecordField kSupportedProtocolParametersFields[] = {
    kValueIdField,
    fixed("PRstr_ProtocolSupported", 8, {}, nullptr, "1 if the protocol is supported."),
    fixed("PRstr_SupportedProtocolParametersValuesLength", 8, {}, &kOctets, "Length of the parameters."),
    {.name = "PRstr_SupportedProtocolParametersValues",
     .width = octets_of("PRstr_SupportedProtocolParametersValuesLength"),
     .meaning = &kHex,
     .summary = "The parameters that are supported."},
};
inline constexpr ValueSpec kValATSuppFlwProtlPrmPP =
    app_value("SB_App_ValATSuppFlwProtlPrmPP", "A value of ATSupportedFlowProtocolParametersPP",
              kSupportedProtocolParametersFields, "SB_App_ValATSupportedFlowProtocolParametersPP");
using SB_App_ValATSuppFlwProtlPrmPP = ValueOf<kValATSuppFlwProtlPrmPP>;
inline constexpr ValueSpec kValATSuppRutProtlPrmPP =
    app_value("SB_App_ValATSuppRutProtlPrmPP", "A value of ATSupportedRouteProtocolParametersPP",
              kSupportedProtocolParametersFields, "SB_App_ValATSupportedRouteProtocolParametersPP");
using SB_App_ValATSuppRutProtlPrmPP = ValueOf<kValATSuppRutProtlPrmPP>;

}  // namespace vorlan
