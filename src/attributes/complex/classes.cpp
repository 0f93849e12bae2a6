#include "attributes/classes.hpp"
#include "attributes/complex/app_attributes.hpp"
#include "attributes/complex/con_ses_attributes.hpp"
#include "attributes/complex/mac_attributes.hpp"
#include "attributes/complex/tas_attributes.hpp"

namespace vorlan {

namespace {

constexpr ClassEntry kClasses[] = {
    complex_attribute_entry<kAttrPrefCtrlChannelCycle>(),
    complex_attribute_entry<kAttrSlottedMode>(),
    complex_attribute_entry<kAttrPagingMask>(),
    complex_attribute_entry<kAttrSearchParameters>(),
    complex_attribute_entry<kAttrSetMgmSameChnlParameter>(),
    complex_attribute_entry<kAttrSetMgmDiffChnlParameter>(),
    complex_attribute_entry<kAttrSuppCDMAChannels>(),
    complex_attribute_entry<kAttrPriorSession>(),
    complex_attribute_entry<kAttrStreamConfig>(),
    complex_attribute_entry<kAttrInitialConfiguration>(),
    complex_attribute_entry<kAttrPowerParameters>(),
    complex_attribute_entry<kAttrHandoffDelays>(),
    complex_attribute_entry<kAttrDRCLock>(),
    complex_attribute_entry<kAttrRTCPowerParameters>(),
    complex_attribute_entry<kAttrRateParameters>(),
    complex_attribute_entry<kAttrMaxMACFlows>(),
    complex_attribute_entry<kAttrAssociatedFlowsNN>(),
    complex_attribute_entry<kAttrAuxiliaryPilotChnlParams>(),
    complex_attribute_entry<kAttrCommonPowerParameters>(),
    complex_attribute_entry<kAttrPermittedPayload>(),
    complex_attribute_entry<kAttrPilotStrength>(),
    complex_attribute_entry<kAttrRequestParameters>(),
    complex_attribute_entry<kAttrRRIChannelPwrParam>(),
    complex_attribute_entry<kAttrTxT2Pmax>(),
    complex_attribute_entry<kAttrBucketFactorNN>(),
    complex_attribute_entry<kAttrT2PInflowRangeNN>(),
    complex_attribute_entry<kAttrT2PTransitionFunctionNN>(),
    complex_attribute_entry<kAttrDRCTranslationOffset>(),
    complex_attribute_entry<kAttrPowerParametersOf<kPowerParameters128>>(),
    complex_attribute_entry<kAttrPowerParametersOf<kPowerParameters256>>(),
    complex_attribute_entry<kAttrPowerParametersOf<kPowerParameters512>>(),
    complex_attribute_entry<kAttrPowerParametersOf<kPowerParameters768>>(),
    complex_attribute_entry<kAttrPowerParametersOf<kPowerParameters1024>>(),
    complex_attribute_entry<kAttrPowerParametersOf<kPowerParameters1536>>(),
    complex_attribute_entry<kAttrPowerParametersOf<kPowerParameters2048>>(),
    complex_attribute_entry<kAttrPowerParametersOf<kPowerParameters3072>>(),
    complex_attribute_entry<kAttrPowerParametersOf<kPowerParameters4096>>(),
    complex_attribute_entry<kAttrPowerParametersOf<kPowerParameters6144>>(),
    complex_attribute_entry<kAttrPowerParametersOf<kPowerParameters8192>>(),
    complex_attribute_entry<kAttrPowerParametersOf<kPowerParameters12288>>(),
    complex_attribute_entry<kAttrSupportedHigherLayerPro>(),
    complex_attribute_entry<kAttrATSupportedQoSProfiles>(),
    complex_attribute_entry<kAttrANSupportedQoSProfiles>(),
    complex_attribute_entry<kAttrMaxRLPFlows>(),
    complex_attribute_entry<kAttrMaxLinkFlows>(),
    complex_attribute_entry<kAttrMaxReservations>(),
    complex_attribute_entry<kAttrFlowNNIdentificationFwd>(),
    complex_attribute_entry<kAttrFlowNNIdentificationRev>(),
    complex_attribute_entry<kAttrFlowNNTimersFwd>(),
    complex_attribute_entry<kAttrFlowNNTimersRev>(),
    complex_attribute_entry<kAttrFlowNNReservationFwd>(),
    complex_attribute_entry<kAttrFlowNNReservationRev>(),
    complex_attribute_entry<kAttrReservationKKQoSReqFwd>(),
    complex_attribute_entry<kAttrReservationKKQoSReqRev>(),
    complex_attribute_entry<kAttrReservationKKQoSRespFwd>(),
    complex_attribute_entry<kAttrReservationKKQoSRespRev>(),
    complex_attribute_entry<kAttrFlowNNFlwPrtclParmFwd>(),
    complex_attribute_entry<kAttrFlowNNFlwPrtclParmRev>(),
    complex_attribute_entry<kAttrFlowNNRutPrtclParmFwd>(),
    complex_attribute_entry<kAttrFlowNNRutPrtclParmRev>(),
    complex_attribute_entry<kAttrATSuppFlwProtlPrmPP>(),
    complex_attribute_entry<kAttrATSuppRutProtlPrmPP>(),
    complex_attribute_entry<kAttrDRCValueFixedMode>(),
    complex_attribute_entry<kAttrDRCCoverFixedMode>(),
    complex_attribute_entry<kAttrACKChannelBitFixedMode>(),
    complex_attribute_entry<kAttrLoopBackMode>(),
    complex_attribute_entry<kAttrIdleASPStats>(),
    complex_attribute_entry<kAttrConnectedSSStats>(),
    complex_attribute_entry<kAttrFirstSyncCCPktStats>(),
    complex_attribute_entry<kAttrPacketRateMode>(),
    complex_attribute_entry<kAttrRTAPTestPktEnable>(),
};

}  // namespace

std::span<const ClassEntry> complex_attribute_classes() noexcept { return kClasses; }

std::string supported_channels_value_id(ComplexAttribute& attribute, std::span<const Value> arguments) {
  const std::string band_class = arguments[0].to_text();
  const std::string subclass = arguments.size() > 1 ? arguments[1].to_text() : std::string();
  for (std::size_t i = 0; i < attribute.count(); ++i) {
    const Record& offered = attribute.value(i).record();
    const std::size_t bands = small_value(offered.get("PRstr_BandClassCount"));
    for (std::size_t band = 0; band < bands; ++band) {
      if (offered.get("PRstr_BandClass", {band}) != band_class) continue;
      const std::size_t subclasses = small_value(offered.get("PRstr_BandSubClassCount", {band}));
      bool offers = subclass.empty();
      for (std::size_t j = 0; j < subclasses && !offers; ++j) {
        offers = offered.get("PRstr_BandSubClass", {band, j}) == subclass;
      }
      if (offers) return std::string(offered.get("PRstr_ValueId"));
    }
  }
  return {};
}

}  // namespace vorlan
