#include "attributes/classes.hpp"
#include "attributes/values/app_values.hpp"
#include "attributes/values/con_values.hpp"
#include "attributes/values/mac_values.hpp"
#include "attributes/values/power_parameters.hpp"
#include "attributes/values/qos_values.hpp"
#include "attributes/values/ses_str_values.hpp"
#include "attributes/values/value_of.hpp"

namespace vorlan {

namespace {

constexpr ClassEntry kClasses[] = {
    value_entry<kValPrefCtrlChannelCycle>(),
    value_entry<kValSearchParameters>(),
    value_entry<kValSetMgmDiffChnlParameters>(),
    value_entry<kValSetMgmSameChnlParameter>(),
    value_entry<kValSlottedMode>(),
    value_entry<kValPagingMask>(),
    value_entry<kValSuppCDMAChannels>(),
    value_entry<kValPriorSession>(),
    value_entry<kValProtocolType>(),
    value_entry<kValStreamConfig>(),
    value_entry<kValInitialConfiguration>(),
    value_entry<kValPowerParameters>(),
    value_entry<kValRTCPowerParameters>(),
    value_entry<kValRateParameters>(),
    value_entry<kValHandoffDelays>(),
    value_entry<kValDRCLock>(),
    value_entry<kValDRCTranslationOffset>(),
    value_entry<kValMaxMACFlows>(),
    value_entry<kValAssociatedFlowsNN>(),
    value_entry<kValAuxiliaryPilotChnlParams>(),
    value_entry<kValCommonPowerParameters>(),
    value_entry<kValPermittedPayload>(),
    value_entry<kValPilotStrength>(),
    value_entry<kValPowerParametersOf<kPowerParameters128>>(),
    value_entry<kValPowerParametersOf<kPowerParameters256>>(),
    value_entry<kValPowerParametersOf<kPowerParameters512>>(),
    value_entry<kValPowerParametersOf<kPowerParameters768>>(),
    value_entry<kValPowerParametersOf<kPowerParameters1024>>(),
    value_entry<kValPowerParametersOf<kPowerParameters1536>>(),
    value_entry<kValPowerParametersOf<kPowerParameters2048>>(),
    value_entry<kValPowerParametersOf<kPowerParameters3072>>(),
    value_entry<kValPowerParametersOf<kPowerParameters4096>>(),
    value_entry<kValPowerParametersOf<kPowerParameters6144>>(),
    value_entry<kValPowerParametersOf<kPowerParameters8192>>(),
    value_entry<kValPowerParametersOf<kPowerParameters12288>>(),
    value_entry<kValRequestParameters>(),
    value_entry<kValRRIChannelPwrParam>(),
    value_entry<kValTxT2Pmax>(),
    value_entry<kValBucketFactorNN>(),
    value_entry<kValT2PInflowRangeNN>(),
    value_entry<kValT2PTransitionFunctionNN>(),
    value_entry<kValMaxRLPFlows>(),
    value_entry<kValMaxLinkFlows>(),
    value_entry<kValMaxReservations>(),
    value_entry<kValSupportedHigherLayerPro>(),
    value_entry<kValANSupportedQoSProfiles>(),
    value_entry<kValATSupportedQoSProfiles>(),
    value_entry<kValFlowNNIdentificationFwd>(),
    value_entry<kValFlowNNIdentificationRev>(),
    value_entry<kValFlowNNTimersFwd>(),
    value_entry<kValFlowNNTimersRev>(),
    value_entry<kValFlowNNReservationFwd>(),
    value_entry<kValFlowNNReservationRev>(),
    value_entry<kValFlowNNFlwPrtclParmFwd>(),
    value_entry<kValFlowNNFlwPrtclParmRev>(),
    value_entry<kValFlowNNRutPrtclParmFwd>(),
    value_entry<kValFlowNNRutPrtclParmRev>(),
    value_entry<kValATSuppFlwProtlPrmPP>(),
    value_entry<kValATSuppRutProtlPrmPP>(),
    value_entry<kValReservationKKQoSReqFwd>(),
    value_entry<kValReservationKKQoSReqRev>(),
    value_entry<kValReservationKKQoSRespFwd>(),
    value_entry<kValReservationKKQoSRespRev>(),
};

}  // namespace

std::span<const ClassEntry> value_classes() noexcept { return kClasses; }

}  // namespace vorlan
