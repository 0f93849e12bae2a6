// Simple attributes of the packet applications: the default one (C.S0024-A 3), the multi-flow one (C.S0024-A 4) and
// the enhanced multi-flow one (C.S0063-A). NN in a name is the flow, the low octet of the AttributeID.
#pragma once

#include "attributes/attribute_of.hpp"
#include "codec/meanings.hpp"

namespace vorlan {

inline constexpr Meaning kTenthSeconds{.unit = "x 0.1 s (to be confirmed)", .summary = "0.1 s (to be confirmed)"};

/// An attribute with a 16-bit AttributeID and an octet of value.
constexpr SimpleAttributeSpec app_simple(std::string_view clause, std::string_view name, std::uint16_t id,
                                         std::string_view summary, std::string_view initial = "00000000") {
  return {.name = name, .summary = summary, .clause = clause, .id = id, .initial = initial};
}
/// The same of a flow.
constexpr SimpleAttributeSpec app_flow_simple(std::string_view clause, std::string_view name, std::uint16_t id,
                                              std::string_view summary, std::string_view initial = "00000000") {
  SimpleAttributeSpec row = app_simple(clause, name, id, summary, initial);
  row.id_settable = true;
  return row;
}

inline constexpr SimpleAttributeSpec kAppSimpleAttributes[] = {
    {.name = "SB_App_AttrRANHandoff",
     .summary =
         "Whether the terminal tells its location when it meets another network. 16-bit AttributeID: multi-flow.",
     .clause = "3.5",
     .id = 0xFF,
     .id_bits = 8,
     .wide_id = 0xFFFF,
     .length = 2,
     .record_bits = 24},
    // The record length checked by the forward class has the one text of this family that does not end in " bits.".
    {.name = "SB_App_AttrFlowNNHigherLayerProFwd",
     .summary = "Protocol above the forward flow (FlowNNHigherLayerProtocolFwd).",
     .clause = "4",
     .id = 0xFC00,
     .id_settable = true,
     .initial = "00000001",
     .texts = AttributeTexts::UsualInBits,
     .wrong_record = "Error: Length of Attribute String should be 32.",
     .source = "SB_App_AttrFlowNNHigherLayerProtocolFwd",
     .id_member = "PRstr_AttribId"},
    {.name = "SB_App_AttrFlowNNHigherLayerProRev",
     .summary = "Protocol above the reverse flow (FlowNNHigherLayerProtocolRev).",
     .clause = "4",
     .id = 0xFB00,
     .id_settable = true,
     .initial = "00000001",
     .texts = AttributeTexts::UsualInBits,
     .source = "SB_App_AttrFlowNNHigherLayerProtocolRev",
     .id_member = "PRstr_AttribId"},
    app_flow_simple("4", "SB_App_AttrFlowNNNakEnableFwd", 0xFE00,
                    "Whether the terminal sends Nak messages for the forward flow.", "00000001"),
    app_flow_simple("4", "SB_App_AttrFlowNNNakEnableRev", 0xFD00,
                    "Whether the access network sends Nak messages for the reverse flow.", "00000001"),
    {.name = "SB_App_AttrFlowNNPhyLayerNakEnRev",
     .summary = "Whether a loss told by the physical layer is repeated (FlowNNPhysicalLayerNakEnableRev).",
     .clause = "4",
     .id = 0xFA00,
     .id_settable = true,
     .initial = "00000001",
     .texts = AttributeTexts::UsualInBits,
     .source = "SB_App_AttrFlowNNPhysicalLayerNakEnableRev",
     .id_member = "PRstr_AttribId"},
    // Takes records of 32 bits although its own have 40: the getter gives the first half of a received value.
    {.name = "SB_App_AttrFlowNNTranstAbrtTimerRv",
     .summary = "How long an octet of the reverse flow may wait to be sent (FlowNNTransmitAbortTimerRev).",
     .clause = "4",
     .meaning = &kMilliseconds,
     .id = 0xF700,
     .id_settable = true,
     .value_bits = 16,
     .initial = "0000000000000000",
     .disagrees_on_purpose = true,
     .texts = AttributeTexts::UsualInBits,
     .source = "SB_App_AttrFlowNNTransmitAbortTimerRev",
     .id_member = "PRstr_AttribId"},
    {.name = "SB_App_AttrMaxAbortTimer",
     .summary = "The greatest value of an abort timer.",
     .clause = "4",
     .meaning = &kTenthSeconds,
     .id = 0xFFFC,
     .initial = "00000101"},
    {.name = "SB_App_AttrFlowNNDataOvrSigAllwRev",
     .summary = "Whether the reverse flow may use DataOverSignaling messages (FlowNNDataOverSignalingAllowedRev).",
     .clause = "4",
     .id = 0xF600,
     .id_settable = true,
     .texts = AttributeTexts::UsualInBits,
     .id_member = "PRstr_AttribId"},
    {.name = "SB_App_AttrPPPFreeAuthSupp",
     .summary = "Whether authentication without PPP is supported (PPPFreeAuthenticationSupport).",
     .clause = "C.S0063-A",
     .id = 0xFFFB,
     .source = "SB_App_AttrPPPFreeAuthenticationSupport"},
    app_simple("C.S0063-A", "SB_App_AttrTwoRoutesSupported", 0xFFFA, "Whether a link flow may have two routes."),
    app_simple("C.S0063-A", "SB_App_AttrATNAKDelaySupported", 0xFFF9, "Whether the terminal can delay Nak messages."),
    app_flow_simple("C.S0063-A", "SB_App_AttrFlowNNActivatedFwd", 0xF300,
                    "Whether the forward link flow is activated."),
    // Starts with two octets of value, and builds them.
    {.name = "SB_App_AttrFlowNNActivatedRev",
     .summary = "Whether the reverse link flow is activated.",
     .clause = "C.S0063-A",
     .id = 0xF200,
     .id_settable = true,
     .initial = "0000000000000000",
     .disagrees_on_purpose = true},
    app_flow_simple("C.S0063-A", "SB_App_AttrFlowNNDataUnitFwd", 0xED00,
                    "What the sequence numbers of the forward link flow count."),
    app_flow_simple("C.S0063-A", "SB_App_AttrFlowNNDataUnitRev", 0xEC00,
                    "What the sequence numbers of the reverse link flow count."),
    app_flow_simple("C.S0063-A", "SB_App_AttrFlowNNFlowProtocolPDUFwd", 0xEF00,
                    "Whether the forward link flow carries packets of the flow protocol."),
    app_flow_simple("C.S0063-A", "SB_App_AttrFlowNNFlowProtocolPDURev", 0xEE00,
                    "Whether the reverse link flow carries packets of the flow protocol."),
    app_flow_simple("C.S0063-A", "SB_App_AttrFlowNNNakDelayTimeFwd", 0xE700,
                    "How long the terminal delays a Nak of the forward link flow."),
    app_flow_simple("C.S0063-A", "SB_App_AttrFlwNNOOOrdDlryTRtPtlFwd", 0xE800,
                    "Whether the route protocol gets the forward link flow out of order."),
    app_flow_simple("C.S0063-A", "SB_App_AttrFlwNNRoutePrtclPDUFwd", 0xEB00,
                    "Whether the forward link flow carries packets of the route protocol."),
    app_flow_simple("C.S0063-A", "SB_App_AttrFlwNNRoutePrtclPDURev", 0xEA00,
                    "Whether the reverse link flow carries packets of the route protocol."),
    app_flow_simple("C.S0063-A", "SB_App_AttrFlowNNSequenceLengthFwd", 0xF100,
                    "Length of the sequence numbers of the forward link flow.", "00000010"),
    app_flow_simple("C.S0063-A", "SB_App_AttrFlowNNSequenceLengthRev", 0xF000,
                    "Length of the sequence numbers of the reverse link flow.", "00000010"),
    app_flow_simple("C.S0063-A", "SB_App_AttrFlwNNSmlDlvyOBthRtsFwd", 0xE900,
                    "Whether the forward link flow is delivered on both routes at the same time."),
};

template <MemberName Name>
using AppSimpleAttribute = AttributeOf<kAppSimpleAttributes, row_of<kAppSimpleAttributes>(Name.view())>;

using SB_App_AttrRANHandoff = AppSimpleAttribute<"SB_App_AttrRANHandoff">;
using SB_App_AttrFlowNNHigherLayerProFwd = AppSimpleAttribute<"SB_App_AttrFlowNNHigherLayerProFwd">;
using SB_App_AttrFlowNNHigherLayerProRev = AppSimpleAttribute<"SB_App_AttrFlowNNHigherLayerProRev">;
using SB_App_AttrFlowNNNakEnableFwd = AppSimpleAttribute<"SB_App_AttrFlowNNNakEnableFwd">;
using SB_App_AttrFlowNNNakEnableRev = AppSimpleAttribute<"SB_App_AttrFlowNNNakEnableRev">;
using SB_App_AttrFlowNNPhyLayerNakEnRev = AppSimpleAttribute<"SB_App_AttrFlowNNPhyLayerNakEnRev">;
using SB_App_AttrFlowNNTranstAbrtTimerRv = AppSimpleAttribute<"SB_App_AttrFlowNNTranstAbrtTimerRv">;
using SB_App_AttrMaxAbortTimer = AppSimpleAttribute<"SB_App_AttrMaxAbortTimer">;
using SB_App_AttrFlowNNDataOvrSigAllwRev = AppSimpleAttribute<"SB_App_AttrFlowNNDataOvrSigAllwRev">;
using SB_App_AttrPPPFreeAuthSupp = AppSimpleAttribute<"SB_App_AttrPPPFreeAuthSupp">;
using SB_App_AttrTwoRoutesSupported = AppSimpleAttribute<"SB_App_AttrTwoRoutesSupported">;
using SB_App_AttrATNAKDelaySupported = AppSimpleAttribute<"SB_App_AttrATNAKDelaySupported">;
using SB_App_AttrFlowNNActivatedFwd = AppSimpleAttribute<"SB_App_AttrFlowNNActivatedFwd">;
using SB_App_AttrFlowNNActivatedRev = AppSimpleAttribute<"SB_App_AttrFlowNNActivatedRev">;
using SB_App_AttrFlowNNDataUnitFwd = AppSimpleAttribute<"SB_App_AttrFlowNNDataUnitFwd">;
using SB_App_AttrFlowNNDataUnitRev = AppSimpleAttribute<"SB_App_AttrFlowNNDataUnitRev">;
using SB_App_AttrFlowNNFlowProtocolPDUFwd = AppSimpleAttribute<"SB_App_AttrFlowNNFlowProtocolPDUFwd">;
using SB_App_AttrFlowNNFlowProtocolPDURev = AppSimpleAttribute<"SB_App_AttrFlowNNFlowProtocolPDURev">;
using SB_App_AttrFlowNNNakDelayTimeFwd = AppSimpleAttribute<"SB_App_AttrFlowNNNakDelayTimeFwd">;
using SB_App_AttrFlwNNOOOrdDlryTRtPtlFwd = AppSimpleAttribute<"SB_App_AttrFlwNNOOOrdDlryTRtPtlFwd">;
using SB_App_AttrFlwNNRoutePrtclPDUFwd = AppSimpleAttribute<"SB_App_AttrFlwNNRoutePrtclPDUFwd">;
using SB_App_AttrFlwNNRoutePrtclPDURev = AppSimpleAttribute<"SB_App_AttrFlwNNRoutePrtclPDURev">;
using SB_App_AttrFlowNNSequenceLengthFwd = AppSimpleAttribute<"SB_App_AttrFlowNNSequenceLengthFwd">;
using SB_App_AttrFlowNNSequenceLengthRev = AppSimpleAttribute<"SB_App_AttrFlowNNSequenceLengthRev">;
using SB_App_AttrFlwNNSmlDlvyOBthRtsFwd = AppSimpleAttribute<"SB_App_AttrFlwNNSmlDlvyOBthRtsFwd">;

}  // namespace vorlan
