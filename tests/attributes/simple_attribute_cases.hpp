// The classes of simple attributes as scripts know them: kept apart from the rows that make them, so that each checks
// the other.
#pragma once

#include <cstdint>
#include <string_view>

namespace vorlan::test {

enum AttributeFamily { kUsual, kBits, kEarly, kEarlySession, kVariable, kSessionKey, kAuthKey };

struct AttributeCase {
  std::string_view name;
  std::uint16_t id;
  std::uint8_t id_bits;
  bool id_settable;
  std::uint8_t value_bits;
  bool up_to;
  std::string_view initial;
  std::uint8_t length;
  std::uint8_t record_bits;  // 0: not checked
  AttributeFamily family = kUsual;
  std::string_view source = "name";  // class part of sources
};

inline constexpr AttributeCase kAttributeCases[] = {
    {"SB_App_AttrRANHandoff", 0xFF, 8, false, 8, false, "00000000", 2, 24},
    {"SB_Mac_AttrDRCGating", 0xFF, 8, false, 16, false, "0000000000000000", 3, 0, kEarly},
    {"SB_Ses_AttrProtocolType", 0x0000, 16, true, 16, true, "", 4, 40, kVariable},
    {"SB_Ses_AttrTSMPClose", 0xFF, 8, false, 16, false, "0000110010101000", 3, 0, kEarlySession},
    {"SB_App_AttrFlowNNHigherLayerProFwd", 0xFC00, 16, true, 8, false, "00000001", 3, 32, kBits,
     "SB_App_AttrFlowNNHigherLayerProtocolFwd"},
    {"SB_App_AttrFlowNNHigherLayerProRev", 0xFB00, 16, true, 8, false, "00000001", 3, 32, kBits,
     "SB_App_AttrFlowNNHigherLayerProtocolRev"},
    {"SB_App_AttrFlowNNNakEnableFwd", 0xFE00, 16, true, 8, false, "00000001", 3, 32},
    {"SB_App_AttrFlowNNNakEnableRev", 0xFD00, 16, true, 8, false, "00000001", 3, 32},
    {"SB_App_AttrFlowNNPhyLayerNakEnRev", 0xFA00, 16, true, 8, false, "00000001", 3, 32, kBits,
     "SB_App_AttrFlowNNPhysicalLayerNakEnableRev"},
    {"SB_App_AttrFlowNNTranstAbrtTimerRv", 0xF700, 16, true, 16, false, "0000000000000000", 3, 32, kBits,
     "SB_App_AttrFlowNNTransmitAbortTimerRev"},
    {"SB_App_AttrMaxAbortTimer", 0xFFFC, 16, false, 8, false, "00000101", 3, 32},
    {"SB_MAC_AttrMultiUserPacketsEnabled", 0xFD, 8, false, 8, false, "00000000", 3, 0, kEarly,
     "SB_Mac_AttrMultiUserPacketsEnabled"},
    {"SB_Mac_AttrSingUsrMultplxPcktsEnbd", 0xF9, 8, false, 8, false, "0000000000000000", 3, 0, kEarly},
    {"SB_Con_AttrSmallSlotCycleAllowed", 0xFF, 8, true, 8, true, "00000000", 2, 24, kVariable, ""},
    {"SB_Con_AttrRouteUpdateRadiusAdd", 0xFE, 8, true, 8, true, "0000000000000000", 2, 24, kVariable, ""},
    {"SB_Con_AttrRUpdateRadiusMultiply", 0xFF, 8, true, 8, true, "00001010", 2, 24, kVariable, ""},
    {"SB_Con_AttrSupportRUpdateEnhance", 0xFD, 8, true, 8, true, "00000000", 2, 24, kVariable, ""},
    {"SB_MAC_AttrBucketLevelMaxNN", 0xFE00, 16, true, 8, false, "01010000", 3, 32, kUsual, "SB_MAC_AttrBucketLevelMax"},
    {"SB_MAC_AttrBurstDurationFactorNN", 0xFA00, 16, true, 8, false, "00000000", 3, 32, kUsual,
     "SB_Mac_AttrBurstDurationFactorNN"},
    {"SB_App_AttrFlowNNDataOvrSigAllwRev", 0xF600, 16, true, 8, false, "00000000", 3, 32, kBits},
    {"SB_Mac_AttrCCShortPacketsMACIndex", 0x00, 8, false, 8, false, "00000000", 2, 24},
    {"SB_Mac_AttrFRABFilterTC", 0xFFFE, 16, false, 8, false, "00000010", 3, 32},
    {"SB_Mac_AttrFRABlow", 0xFFFD, 16, false, 8, false, "00000011", 3, 32},
    {"SB_Mac_AttrMergeThreshold", 0xFFFC, 16, false, 8, false, "00000010", 3, 32},
    {"SB_Mac_AttrPayloadThresh", 0xFFFB, 16, false, 8, false, "00000001", 3, 32},
    {"SB_Mac_AttrPilotStrengthFilterTC", 0xFFFA, 16, false, 8, false, "00000010", 3, 32},
    {"SB_Mac_AttrQRABFilterTC", 0xFFF9, 16, false, 8, false, "00000000", 3, 32},
    {"SB_Mac_AttrT2PNoTxFilterTC", 0xFFF7, 16, false, 8, false, "00000001", 3, 32},
    {"SB_Mac_AttrRate1M8Supported", 0xFFF3, 16, false, 8, false, "00000000", 3, 32},
    {"SB_Mac_AttrPilotQRABThreshDRCLock", 0xFFF6, 16, false, 8, false, "00000001", 3, 32},
    {"SB_Mac_AttrPilotQRABThreshDRCUnlock", 0xFFF5, 16, false, 8, false, "00001100", 3, 32},
    {"SB_Con_AttrAccessHashingClassMask", 0xFE, 8, true, 16, false, "0000000000000000", 2, 32, kVariable, ""},
    {"SB_Mac_AttrARQMode", 0xFFFF, 16, false, 8, false, "00000000", 3, 32},
    {"SB_MAC_AttrMergeThresholdNN", 0xFD00, 16, true, 8, false, "00000000", 3, 32},
    {"SB_MAC_AttrTransmissionModeNN", 0xFC00, 16, true, 8, false, "00000000", 3, 32},
    {"SB_MAC_AttrQRABSelectNN", 0xFB00, 16, true, 8, false, "00000000", 3, 32},
    {"SB_MAC_AttrT2PFilterTCNN", 0xF900, 16, true, 8, false, "00000001", 3, 32},
    {"SB_MAC_AttrDRCSupervisionTimer", 0xF8, 8, false, 8, false, "00000000", 3, 0, kEarly},
    {"SB_Mac_AttrShrtPcktsEnbldThresh", 0xFA, 8, false, 8, false, "00000001", 3, 0, kEarly,
     "SB_Mac_AttrMultiUserPacketsEnabled"},
    {"SB_Mac_AttrDSCLength", 0xFC, 8, false, 8, false, "00001000", 2, 0, kEarly, "SB_Mac_AttrDRCGating"},
    {"SB_Ses_AttrSupGAUPSesConfigToken", 0x0101, 16, false, 16, false, "0000000000000000", 4, 40, kUsual,
     "SB_Ses_AttrSupportGAUPSessionConfigToken"},
    {"SB_Ses_AttrSessionConfigToken", 0x0100, 16, false, 16, false, "0000000000000000", 4, 40},
    {"SB_App_AttrPPPFreeAuthSupp", 0xFFFB, 16, false, 8, false, "00000000", 3, 32, kUsual,
     "SB_App_AttrPPPFreeAuthenticationSupport"},
    {"SB_App_AttrTwoRoutesSupported", 0xFFFA, 16, false, 8, false, "00000000", 3, 32},
    {"SB_App_AttrATNAKDelaySupported", 0xFFF9, 16, false, 8, false, "00000000", 3, 32},
    {"SB_App_AttrFlowNNActivatedFwd", 0xF300, 16, true, 8, false, "00000000", 3, 32},
    {"SB_App_AttrFlowNNActivatedRev", 0xF200, 16, true, 8, false, "0000000000000000", 3, 32},
    {"SB_App_AttrFlowNNDataUnitFwd", 0xED00, 16, true, 8, false, "00000000", 3, 32},
    {"SB_App_AttrFlowNNDataUnitRev", 0xEC00, 16, true, 8, false, "00000000", 3, 32},
    {"SB_App_AttrFlowNNFlowProtocolPDUFwd", 0xEF00, 16, true, 8, false, "00000000", 3, 32},
    {"SB_App_AttrFlowNNFlowProtocolPDURev", 0xEE00, 16, true, 8, false, "00000000", 3, 32},
    {"SB_App_AttrFlowNNNakDelayTimeFwd", 0xE700, 16, true, 8, false, "00000000", 3, 32},
    {"SB_App_AttrFlwNNOOOrdDlryTRtPtlFwd", 0xE800, 16, true, 8, false, "00000000", 3, 32},
    {"SB_App_AttrFlwNNRoutePrtclPDUFwd", 0xEB00, 16, true, 8, false, "00000000", 3, 32},
    {"SB_App_AttrFlwNNRoutePrtclPDURev", 0xEA00, 16, true, 8, false, "00000000", 3, 32},
    {"SB_App_AttrFlowNNSequenceLengthFwd", 0xF100, 16, true, 8, false, "00000010", 3, 32},
    {"SB_App_AttrFlowNNSequenceLengthRev", 0xF000, 16, true, 8, false, "00000010", 3, 32},
    {"SB_App_AttrFlwNNSmlDlvyOBthRtsFwd", 0xE900, 16, true, 8, false, "00000000", 3, 32},
    {"SB_Sec_AttrSessionKeyLength", 0x00, 8, false, 8, false, "00000000", 2, 24, kSessionKey},
    {"SB_Sec_AttrACAuthKeyLength", 0x00, 8, false, 16, false, "0000000010100000", 3, 32, kAuthKey},
};

}  // namespace vorlan::test
