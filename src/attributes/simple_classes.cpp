#include "attributes/app_simple_attributes.hpp"
#include "attributes/classes.hpp"
#include "attributes/con_ses_simple_attributes.hpp"
#include "attributes/mac_simple_attributes.hpp"
#include "attributes/security_simple_attributes.hpp"

namespace vorlan {

namespace {

constexpr ClassEntry kClasses[] = {
    attribute_entry<kAttrRANHandoff>(),
    attribute_entry<kAttrFlowNNHigherLayerProFwd>(),
    attribute_entry<kAttrFlowNNHigherLayerProRev>(),
    attribute_entry<kAttrFlowNNNakEnableFwd>(),
    attribute_entry<kAttrFlowNNNakEnableRev>(),
    attribute_entry<kAttrFlowNNPhyLayerNakEnRev>(),
    attribute_entry<kAttrFlowNNTranstAbrtTimerRv>(),
    attribute_entry<kAttrMaxAbortTimer>(),
    attribute_entry<kAttrFlowNNDataOvrSigAllwRev>(),
    attribute_entry<kAttrPPPFreeAuthSupp>(),
    attribute_entry<kAttrTwoRoutesSupported>(),
    attribute_entry<kAttrATNAKDelaySupported>(),
    attribute_entry<kAttrFlowNNActivatedFwd>(),
    attribute_entry<kAttrFlowNNActivatedRev>(),
    attribute_entry<kAttrFlowNNDataUnitFwd>(),
    attribute_entry<kAttrFlowNNDataUnitRev>(),
    attribute_entry<kAttrFlowNNFlowProtocolPDUFwd>(),
    attribute_entry<kAttrFlowNNFlowProtocolPDURev>(),
    attribute_entry<kAttrFlowNNNakDelayTimeFwd>(),
    attribute_entry<kAttrFlwNNOOOrdDlryTRtPtlFwd>(),
    attribute_entry<kAttrFlwNNRoutePrtclPDUFwd>(),
    attribute_entry<kAttrFlwNNRoutePrtclPDURev>(),
    attribute_entry<kAttrFlowNNSequenceLengthFwd>(),
    attribute_entry<kAttrFlowNNSequenceLengthRev>(),
    attribute_entry<kAttrFlwNNSmlDlvyOBthRtsFwd>(),
    attribute_entry<kAttrSmallSlotCycleAllowed>(),
    attribute_entry<kAttrRouteUpdateRadiusAdd>(),
    attribute_entry<kAttrRUpdateRadiusMultiply>(),
    attribute_entry<kAttrSupportRUpdateEnhance>(),
    attribute_entry<kAttrAccessHashingClassMask>(),
    attribute_entry<kAttrProtocolType>(),
    attribute_entry<kAttrTSMPClose>(),
    attribute_entry<kAttrSupGAUPSesConfigToken>(),
    attribute_entry<kAttrSessionConfigToken>(),
    attribute_entry<kAttrCCShortPacketsMACIndex>(),
    attribute_entry<kAttrDRCGating>(),
    attribute_entry<kAttrMultiUserPacketsEnabled>(),
    attribute_entry<kAttrSingUsrMultplxPcktsEnbd>(),
    attribute_entry<kAttrDRCSupervisionTimer>(),
    attribute_entry<kAttrShrtPcktsEnbldThresh>(),
    attribute_entry<kAttrDSCLength>(),
    attribute_entry<kAttrARQMode>(),
    attribute_entry<kAttrFRABFilterTC>(),
    attribute_entry<kAttrFRABlow>(),
    attribute_entry<kAttrMergeThreshold>(),
    attribute_entry<kAttrPayloadThresh>(),
    attribute_entry<kAttrPilotStrengthFilterTC>(),
    attribute_entry<kAttrQRABFilterTC>(),
    attribute_entry<kAttrT2PNoTxFilterTC>(),
    attribute_entry<kAttrPilotQRABThreshDRCLock>(),
    attribute_entry<kAttrPilotQRABThreshDRCUnlock>(),
    attribute_entry<kAttrRate1M8Supported>(),
    attribute_entry<kAttrBucketLevelMaxNN>(),
    attribute_entry<kAttrMergeThresholdNN>(),
    attribute_entry<kAttrTransmissionModeNN>(),
    attribute_entry<kAttrQRABSelectNN>(),
    attribute_entry<kAttrBurstDurationFactorNN>(),
    attribute_entry<kAttrT2PFilterTCNN>(),
    attribute_entry<kAttrSessionKeyLength>(),
    attribute_entry<kAttrACAuthKeyLength>(),
};

}  // namespace

std::span<const ClassEntry> simple_attribute_classes() noexcept { return kClasses; }

}  // namespace vorlan
