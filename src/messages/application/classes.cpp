#include "messages/classes.hpp"
#include "messages/application/attribute_update.hpp"
#include "messages/application/data_over_signaling.hpp"
#include "messages/application/emfpa_data_over_signaling.hpp"
#include "messages/application/emfpa_flow_reset.hpp"
#include "messages/application/flow_control.hpp"
#include "messages/application/flow_reset.hpp"
#include "messages/application/location_update.hpp"
#include "messages/application/nak.hpp"
#include "messages/application/radio_link.hpp"
#include "messages/application/reservation.hpp"
#include "messages/application/route_selection.hpp"
#include "messages/application/signaling_link.hpp"
#include "messages/application/storage_blob.hpp"

namespace vorlan {

namespace {

constexpr ClassEntry kClasses[] = {
    message_entry<kActivateRoute>(),
    message_entry<kActivateRouteAck>(),
    message_entry<kAttributeUpdateAccept>(),
    message_entry<kAttributeUpdateReject>(),
    message_entry<kDataOverSignaling>(),
    message_entry<kDataOverSignalingAck>(),
    message_entry<kDataReady>(),
    message_entry<kDataReadyAck>(),
    message_entry<kEmfpaDataOverSignaling>(),
    message_entry<kEmfpaDataOverSignalingAck>(),
    message_entry<kEmfpaResetRxComplete>(),
    message_entry<kEmfpaResetRxIndication>(),
    message_entry<kEmfpaResetTxComplete>(),
    message_entry<kEmfpaResetTxIndication>(),
    message_entry<kEmfpaResetTxIndicationAck>(),
    message_entry<kLocationAssignment>(),
    message_entry<kLocationComplete>(),
    message_entry<kLocationNotification>(),
    message_entry<kLocationRequest>(),
    message_entry<kNak>(),
    message_entry<kPktReset>(),
    message_entry<kPktResetAck>(),
    message_entry<kReservationAccept>(),
    message_entry<kReservationOffRequest>(),
    message_entry<kReservationOnRequest>(),
    message_entry<kReservationReject>(),
    message_entry<kResetRxComplete>(),
    message_entry<kResetRxIndication>(),
    message_entry<kResetTxComplete>(),
    message_entry<kResetTxIndication>(),
    message_entry<kResetTxIndicationAck>(),
    message_entry<kRestartNetworkIntAck>(),
    message_entry<kRestartNetworkInterface>(),
    message_entry<kRevReservationOff>(),
    message_entry<kRevReservationOn>(),
    message_entry<kRouteSelect>(),
    message_entry<kRouteSelectAck>(),
    message_entry<kSigReset>(),
    message_entry<kSigResetAck>(),
    message_entry<kStorageBLOBAsgnmnt>(),
    message_entry<kStorageBLOBComplete>(),
    message_entry<kStorageBLOBNotification>(),
    message_entry<kStorageBLOBRequest>(),
    message_entry<kXoffRequest>(),
    message_entry<kXoffResponse>(),
    message_entry<kXonRequest>(),
    message_entry<kXonResponse>(),
};

}  // namespace

std::span<const ClassEntry> application_message_classes() noexcept { return kClasses; }

}  // namespace vorlan
