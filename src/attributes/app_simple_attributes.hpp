// Simple attributes of the packet applications: the default one (C.S0024-A 3), the multi-flow one (C.S0024-A 4) and
// the enhanced multi-flow one (C.S0063-A). NN in a name is the flow, the low octet of the AttributeID.
#pragma once

#include "attributes/attribute_of.hpp"

namespace vorlan {

inline constexpr SimpleAttributeSpec kAttrRANHandoff{
    .name = "SB_App_AttrRANHandoff",
    .summary = "Whether the terminal tells its location when it meets another network. 16-bit AttributeID: multi-flow.",
    .clause = "3.5",
    .id = 0xFF,
    .id_bits = 8,
    .wide_id = 0xFFFF,
    .length = 2,
    .record_bits = 24,
};
using SB_App_AttrRANHandoff = AttributeOf<kAttrRANHandoff>;

// The record length checked by the forward class has the one text of this family that does not end in " bits.".
inline constexpr SimpleAttributeSpec kAttrFlowNNHigherLayerProFwd{
    .name = "SB_App_AttrFlowNNHigherLayerProFwd",
    .summary = "Protocol above the forward flow (FlowNNHigherLayerProtocolFwd).",
    .clause = "4",
    .id = 0xFC00,
    .id_settable = true,
    .initial = "00000001",
    .texts = AttributeTexts::UsualInBits,
    .wrong_record = "Error: Length of Attribute String should be 32.",
    .source = "SB_App_AttrFlowNNHigherLayerProtocolFwd",
    .id_member = "PRstr_AttribId",
};
using SB_App_AttrFlowNNHigherLayerProFwd = AttributeOf<kAttrFlowNNHigherLayerProFwd>;

inline constexpr SimpleAttributeSpec kAttrFlowNNHigherLayerProRev{
    .name = "SB_App_AttrFlowNNHigherLayerProRev",
    .summary = "Protocol above the reverse flow (FlowNNHigherLayerProtocolRev).",
    .clause = "4",
    .id = 0xFB00,
    .id_settable = true,
    .initial = "00000001",
    .texts = AttributeTexts::UsualInBits,
    .source = "SB_App_AttrFlowNNHigherLayerProtocolRev",
    .id_member = "PRstr_AttribId",
};
using SB_App_AttrFlowNNHigherLayerProRev = AttributeOf<kAttrFlowNNHigherLayerProRev>;

inline constexpr SimpleAttributeSpec kAttrFlowNNNakEnableFwd{
    .name = "SB_App_AttrFlowNNNakEnableFwd",
    .summary = "Whether the terminal sends Nak messages for the forward flow.",
    .clause = "4",
    .id = 0xFE00,
    .id_settable = true,
    .initial = "00000001",
};
using SB_App_AttrFlowNNNakEnableFwd = AttributeOf<kAttrFlowNNNakEnableFwd>;

inline constexpr SimpleAttributeSpec kAttrFlowNNNakEnableRev{
    .name = "SB_App_AttrFlowNNNakEnableRev",
    .summary = "Whether the access network sends Nak messages for the reverse flow.",
    .clause = "4",
    .id = 0xFD00,
    .id_settable = true,
    .initial = "00000001",
};
using SB_App_AttrFlowNNNakEnableRev = AttributeOf<kAttrFlowNNNakEnableRev>;

inline constexpr SimpleAttributeSpec kAttrFlowNNPhyLayerNakEnRev{
    .name = "SB_App_AttrFlowNNPhyLayerNakEnRev",
    .summary = "Whether a loss told by the physical layer is repeated (FlowNNPhysicalLayerNakEnableRev).",
    .clause = "4",
    .id = 0xFA00,
    .id_settable = true,
    .initial = "00000001",
    .texts = AttributeTexts::UsualInBits,
    .source = "SB_App_AttrFlowNNPhysicalLayerNakEnableRev",
    .id_member = "PRstr_AttribId",
};
using SB_App_AttrFlowNNPhyLayerNakEnRev = AttributeOf<kAttrFlowNNPhyLayerNakEnRev>;

// Takes records of 32 bits although its own have 40: the getter gives the first half of a received value.
inline constexpr SimpleAttributeSpec kAttrFlowNNTranstAbrtTimerRv{
    .name = "SB_App_AttrFlowNNTranstAbrtTimerRv",
    .summary = "How long an octet of the reverse flow may wait to be sent (FlowNNTransmitAbortTimerRev).",
    .clause = "4",
    .unit = "ms",
    .id = 0xF700,
    .id_settable = true,
    .value_bits = 16,
    .initial = "0000000000000000",
    .disagrees_on_purpose = true,
    .texts = AttributeTexts::UsualInBits,
    .source = "SB_App_AttrFlowNNTransmitAbortTimerRev",
    .id_member = "PRstr_AttribId",
};
using SB_App_AttrFlowNNTranstAbrtTimerRv = AttributeOf<kAttrFlowNNTranstAbrtTimerRv>;

inline constexpr SimpleAttributeSpec kAttrMaxAbortTimer{
    .name = "SB_App_AttrMaxAbortTimer",
    .summary = "The greatest value of an abort timer.",
    .clause = "4",
    .unit = "0.1 s (to be confirmed)",
    .id = 0xFFFC,
    .initial = "00000101",
};
using SB_App_AttrMaxAbortTimer = AttributeOf<kAttrMaxAbortTimer>;

inline constexpr SimpleAttributeSpec kAttrFlowNNDataOvrSigAllwRev{
    .name = "SB_App_AttrFlowNNDataOvrSigAllwRev",
    .summary = "Whether the reverse flow may use DataOverSignaling messages (FlowNNDataOverSignalingAllowedRev).",
    .clause = "4",
    .id = 0xF600,
    .id_settable = true,
    .texts = AttributeTexts::UsualInBits,
    .id_member = "PRstr_AttribId",
};
using SB_App_AttrFlowNNDataOvrSigAllwRev = AttributeOf<kAttrFlowNNDataOvrSigAllwRev>;

inline constexpr SimpleAttributeSpec kAttrPPPFreeAuthSupp{
    .name = "SB_App_AttrPPPFreeAuthSupp",
    .summary = "Whether authentication without PPP is supported (PPPFreeAuthenticationSupport).",
    .clause = "C.S0063-A",
    .id = 0xFFFB,
    .source = "SB_App_AttrPPPFreeAuthenticationSupport",
};
using SB_App_AttrPPPFreeAuthSupp = AttributeOf<kAttrPPPFreeAuthSupp>;

inline constexpr SimpleAttributeSpec kAttrTwoRoutesSupported{
    .name = "SB_App_AttrTwoRoutesSupported",
    .summary = "Whether a link flow may have two routes.",
    .clause = "C.S0063-A",
    .id = 0xFFFA,
};
using SB_App_AttrTwoRoutesSupported = AttributeOf<kAttrTwoRoutesSupported>;

inline constexpr SimpleAttributeSpec kAttrATNAKDelaySupported{
    .name = "SB_App_AttrATNAKDelaySupported",
    .summary = "Whether the terminal can delay Nak messages.",
    .clause = "C.S0063-A",
    .id = 0xFFF9,
};
using SB_App_AttrATNAKDelaySupported = AttributeOf<kAttrATNAKDelaySupported>;

inline constexpr SimpleAttributeSpec kAttrFlowNNActivatedFwd{
    .name = "SB_App_AttrFlowNNActivatedFwd",
    .summary = "Whether the forward link flow is activated.",
    .clause = "C.S0063-A",
    .id = 0xF300,
    .id_settable = true,
};
using SB_App_AttrFlowNNActivatedFwd = AttributeOf<kAttrFlowNNActivatedFwd>;

// Starts with two octets of value, and builds them.
inline constexpr SimpleAttributeSpec kAttrFlowNNActivatedRev{
    .name = "SB_App_AttrFlowNNActivatedRev",
    .summary = "Whether the reverse link flow is activated.",
    .clause = "C.S0063-A",
    .id = 0xF200,
    .id_settable = true,
    .initial = "0000000000000000",
    .disagrees_on_purpose = true,
};
using SB_App_AttrFlowNNActivatedRev = AttributeOf<kAttrFlowNNActivatedRev>;

inline constexpr SimpleAttributeSpec kAttrFlowNNDataUnitFwd{
    .name = "SB_App_AttrFlowNNDataUnitFwd",
    .summary = "What the sequence numbers of the forward link flow count.",
    .clause = "C.S0063-A",
    .id = 0xED00,
    .id_settable = true,
};
using SB_App_AttrFlowNNDataUnitFwd = AttributeOf<kAttrFlowNNDataUnitFwd>;

inline constexpr SimpleAttributeSpec kAttrFlowNNDataUnitRev{
    .name = "SB_App_AttrFlowNNDataUnitRev",
    .summary = "What the sequence numbers of the reverse link flow count.",
    .clause = "C.S0063-A",
    .id = 0xEC00,
    .id_settable = true,
};
using SB_App_AttrFlowNNDataUnitRev = AttributeOf<kAttrFlowNNDataUnitRev>;

inline constexpr SimpleAttributeSpec kAttrFlowNNFlowProtocolPDUFwd{
    .name = "SB_App_AttrFlowNNFlowProtocolPDUFwd",
    .summary = "Whether the forward link flow carries packets of the flow protocol.",
    .clause = "C.S0063-A",
    .id = 0xEF00,
    .id_settable = true,
};
using SB_App_AttrFlowNNFlowProtocolPDUFwd = AttributeOf<kAttrFlowNNFlowProtocolPDUFwd>;

inline constexpr SimpleAttributeSpec kAttrFlowNNFlowProtocolPDURev{
    .name = "SB_App_AttrFlowNNFlowProtocolPDURev",
    .summary = "Whether the reverse link flow carries packets of the flow protocol.",
    .clause = "C.S0063-A",
    .id = 0xEE00,
    .id_settable = true,
};
using SB_App_AttrFlowNNFlowProtocolPDURev = AttributeOf<kAttrFlowNNFlowProtocolPDURev>;

inline constexpr SimpleAttributeSpec kAttrFlowNNNakDelayTimeFwd{
    .name = "SB_App_AttrFlowNNNakDelayTimeFwd",
    .summary = "How long the terminal delays a Nak of the forward link flow.",
    .clause = "C.S0063-A",
    .id = 0xE700,
    .id_settable = true,
};
using SB_App_AttrFlowNNNakDelayTimeFwd = AttributeOf<kAttrFlowNNNakDelayTimeFwd>;

inline constexpr SimpleAttributeSpec kAttrFlwNNOOOrdDlryTRtPtlFwd{
    .name = "SB_App_AttrFlwNNOOOrdDlryTRtPtlFwd",
    .summary = "Whether the route protocol gets the forward link flow out of order.",
    .clause = "C.S0063-A",
    .id = 0xE800,
    .id_settable = true,
};
using SB_App_AttrFlwNNOOOrdDlryTRtPtlFwd = AttributeOf<kAttrFlwNNOOOrdDlryTRtPtlFwd>;

inline constexpr SimpleAttributeSpec kAttrFlwNNRoutePrtclPDUFwd{
    .name = "SB_App_AttrFlwNNRoutePrtclPDUFwd",
    .summary = "Whether the forward link flow carries packets of the route protocol.",
    .clause = "C.S0063-A",
    .id = 0xEB00,
    .id_settable = true,
};
using SB_App_AttrFlwNNRoutePrtclPDUFwd = AttributeOf<kAttrFlwNNRoutePrtclPDUFwd>;

inline constexpr SimpleAttributeSpec kAttrFlwNNRoutePrtclPDURev{
    .name = "SB_App_AttrFlwNNRoutePrtclPDURev",
    .summary = "Whether the reverse link flow carries packets of the route protocol.",
    .clause = "C.S0063-A",
    .id = 0xEA00,
    .id_settable = true,
};
using SB_App_AttrFlwNNRoutePrtclPDURev = AttributeOf<kAttrFlwNNRoutePrtclPDURev>;

inline constexpr SimpleAttributeSpec kAttrFlowNNSequenceLengthFwd{
    .name = "SB_App_AttrFlowNNSequenceLengthFwd",
    .summary = "Length of the sequence numbers of the forward link flow.",
    .clause = "C.S0063-A",
    .id = 0xF100,
    .id_settable = true,
    .initial = "00000010",
};
using SB_App_AttrFlowNNSequenceLengthFwd = AttributeOf<kAttrFlowNNSequenceLengthFwd>;

inline constexpr SimpleAttributeSpec kAttrFlowNNSequenceLengthRev{
    .name = "SB_App_AttrFlowNNSequenceLengthRev",
    .summary = "Length of the sequence numbers of the reverse link flow.",
    .clause = "C.S0063-A",
    .id = 0xF000,
    .id_settable = true,
    .initial = "00000010",
};
using SB_App_AttrFlowNNSequenceLengthRev = AttributeOf<kAttrFlowNNSequenceLengthRev>;

inline constexpr SimpleAttributeSpec kAttrFlwNNSmlDlvyOBthRtsFwd{
    .name = "SB_App_AttrFlwNNSmlDlvyOBthRtsFwd",
    .summary = "Whether the forward link flow is delivered on both routes at the same time.",
    .clause = "C.S0063-A",
    .id = 0xE900,
    .id_settable = true,
};
using SB_App_AttrFlwNNSmlDlvyOBthRtsFwd = AttributeOf<kAttrFlwNNSmlDlvyOBthRtsFwd>;

}  // namespace vorlan
