// The classes of simple attributes as scripts know them: kept apart from the rows that make them, so that each checks
// the other.
#pragma once

#include <cstdint>
#include <string_view>

namespace vorlan::test {

enum AttributeFamily { kUsual, kBits, kEarly, kEarlySession, kVariable, kSessionKey, kAuthKey };

struct AttributeCase {
  std::string_view name;  // without SB_
  std::uint16_t id;
  std::uint8_t id_bits;
  bool id_settable;
  std::uint8_t value_bits;
  std::string_view initial;  // hexadecimal
  std::uint8_t length;
  std::uint8_t record_bits;  // 0: not checked
  AttributeFamily family = kUsual;
  std::string_view source = "name";  // class part of sources
};

inline constexpr AttributeCase kAttributeCases[] = {
    {"App_AttrRANHandoff", 0xFF, 8, false, 8, "00", 2, 24},
    {"Mac_AttrDRCGating", 0xFF, 8, false, 16, "0000", 3, 0, kEarly},
    {"Ses_AttrProtocolType", 0x0000, 16, true, 16, "", 4, 40, kVariable},
    {"Ses_AttrTSMPClose", 0xFF, 8, false, 16, "0CA8", 3, 0, kEarlySession},
    {"App_AttrFlowNNHigherLayerProFwd", 0xFC00, 16, true, 8, "01", 3, 32, kBits,
     "SB_App_AttrFlowNNHigherLayerProtocolFwd"},
    {"App_AttrFlowNNHigherLayerProRev", 0xFB00, 16, true, 8, "01", 3, 32, kBits,
     "SB_App_AttrFlowNNHigherLayerProtocolRev"},
    {"App_AttrFlowNNNakEnableFwd", 0xFE00, 16, true, 8, "01", 3, 32},
    {"App_AttrFlowNNNakEnableRev", 0xFD00, 16, true, 8, "01", 3, 32},
    {"App_AttrFlowNNPhyLayerNakEnRev", 0xFA00, 16, true, 8, "01", 3, 32, kBits,
     "SB_App_AttrFlowNNPhysicalLayerNakEnableRev"},
    {"App_AttrFlowNNTranstAbrtTimerRv", 0xF700, 16, true, 16, "0000", 3, 32, kBits,
     "SB_App_AttrFlowNNTransmitAbortTimerRev"},
    {"App_AttrMaxAbortTimer", 0xFFFC, 16, false, 8, "05", 3, 32},
    {"MAC_AttrMultiUserPacketsEnabled", 0xFD, 8, false, 8, "00", 3, 0, kEarly, "SB_Mac_AttrMultiUserPacketsEnabled"},
    {"Mac_AttrSingUsrMultplxPcktsEnbd", 0xF9, 8, false, 8, "0000", 3, 0, kEarly},
    {"Con_AttrSmallSlotCycleAllowed", 0xFF, 8, true, 8, "00", 2, 24, kVariable, ""},
    {"Con_AttrRouteUpdateRadiusAdd", 0xFE, 8, true, 8, "0000", 2, 24, kVariable, ""},
    {"Con_AttrRUpdateRadiusMultiply", 0xFF, 8, true, 8, "0A", 2, 24, kVariable, ""},
    {"Con_AttrSupportRUpdateEnhance", 0xFD, 8, true, 8, "00", 2, 24, kVariable, ""},
    {"MAC_AttrBucketLevelMaxNN", 0xFE00, 16, true, 8, "50", 3, 32, kUsual, "SB_MAC_AttrBucketLevelMax"},
    {"MAC_AttrBurstDurationFactorNN", 0xFA00, 16, true, 8, "00", 3, 32, kUsual, "SB_Mac_AttrBurstDurationFactorNN"},
    {"App_AttrFlowNNDataOvrSigAllwRev", 0xF600, 16, true, 8, "00", 3, 32, kBits},
    {"Mac_AttrCCShortPacketsMACIndex", 0x00, 8, false, 8, "00", 2, 24},
    {"Mac_AttrFRABFilterTC", 0xFFFE, 16, false, 8, "02", 3, 32},
    {"Mac_AttrFRABlow", 0xFFFD, 16, false, 8, "03", 3, 32},
    {"Mac_AttrMergeThreshold", 0xFFFC, 16, false, 8, "02", 3, 32},
    {"Mac_AttrPayloadThresh", 0xFFFB, 16, false, 8, "01", 3, 32},
    {"Mac_AttrPilotStrengthFilterTC", 0xFFFA, 16, false, 8, "02", 3, 32},
    {"Mac_AttrQRABFilterTC", 0xFFF9, 16, false, 8, "00", 3, 32},
    {"Mac_AttrT2PNoTxFilterTC", 0xFFF7, 16, false, 8, "01", 3, 32},
    {"Mac_AttrRate1M8Supported", 0xFFF3, 16, false, 8, "00", 3, 32},
    {"Mac_AttrPilotQRABThreshDRCLock", 0xFFF6, 16, false, 8, "01", 3, 32},
    {"Mac_AttrPilotQRABThreshDRCUnlock", 0xFFF5, 16, false, 8, "0C", 3, 32},
    {"Con_AttrAccessHashingClassMask", 0xFE, 8, true, 16, "0000", 2, 32, kVariable, ""},
    {"Mac_AttrARQMode", 0xFFFF, 16, false, 8, "00", 3, 32},
    {"MAC_AttrMergeThresholdNN", 0xFD00, 16, true, 8, "00", 3, 32},
    {"MAC_AttrTransmissionModeNN", 0xFC00, 16, true, 8, "00", 3, 32},
    {"MAC_AttrQRABSelectNN", 0xFB00, 16, true, 8, "00", 3, 32},
    {"MAC_AttrT2PFilterTCNN", 0xF900, 16, true, 8, "01", 3, 32},
    {"MAC_AttrDRCSupervisionTimer", 0xF8, 8, false, 8, "00", 3, 0, kEarly},
    {"Mac_AttrShrtPcktsEnbldThresh", 0xFA, 8, false, 8, "01", 3, 0, kEarly, "SB_Mac_AttrMultiUserPacketsEnabled"},
    {"Mac_AttrDSCLength", 0xFC, 8, false, 8, "08", 2, 0, kEarly, "SB_Mac_AttrDRCGating"},
    {"Ses_AttrSupGAUPSesConfigToken", 0x0101, 16, false, 16, "0000", 4, 40, kUsual,
     "SB_Ses_AttrSupportGAUPSessionConfigToken"},
    {"Ses_AttrSessionConfigToken", 0x0100, 16, false, 16, "0000", 4, 40},
    {"App_AttrPPPFreeAuthSupp", 0xFFFB, 16, false, 8, "00", 3, 32, kUsual, "SB_App_AttrPPPFreeAuthenticationSupport"},
    {"App_AttrTwoRoutesSupported", 0xFFFA, 16, false, 8, "00", 3, 32},
    {"App_AttrATNAKDelaySupported", 0xFFF9, 16, false, 8, "00", 3, 32},
    {"App_AttrFlowNNActivatedFwd", 0xF300, 16, true, 8, "00", 3, 32},
    {"App_AttrFlowNNActivatedRev", 0xF200, 16, true, 8, "0000", 3, 32},
    {"App_AttrFlowNNDataUnitFwd", 0xED00, 16, true, 8, "00", 3, 32},
    {"App_AttrFlowNNDataUnitRev", 0xEC00, 16, true, 8, "00", 3, 32},
    {"App_AttrFlowNNFlowProtocolPDUFwd", 0xEF00, 16, true, 8, "00", 3, 32},
    {"App_AttrFlowNNFlowProtocolPDURev", 0xEE00, 16, true, 8, "00", 3, 32},
    {"App_AttrFlowNNNakDelayTimeFwd", 0xE700, 16, true, 8, "00", 3, 32},
    {"App_AttrFlwNNOOOrdDlryTRtPtlFwd", 0xE800, 16, true, 8, "00", 3, 32},
    {"App_AttrFlwNNRoutePrtclPDUFwd", 0xEB00, 16, true, 8, "00", 3, 32},
    {"App_AttrFlwNNRoutePrtclPDURev", 0xEA00, 16, true, 8, "00", 3, 32},
    {"App_AttrFlowNNSequenceLengthFwd", 0xF100, 16, true, 8, "02", 3, 32},
    {"App_AttrFlowNNSequenceLengthRev", 0xF000, 16, true, 8, "02", 3, 32},
    {"App_AttrFlwNNSmlDlvyOBthRtsFwd", 0xE900, 16, true, 8, "00", 3, 32},
    {"Sec_AttrSessionKeyLength", 0x00, 8, false, 8, "00", 2, 24, kSessionKey},
    {"Sec_AttrACAuthKeyLength", 0x00, 8, false, 16, "00A0", 3, 32, kAuthKey},
};

}  // namespace vorlan::test
