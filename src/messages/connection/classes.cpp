#include "messages/classes.hpp"
#include "messages/connection/air_link_management.hpp"
#include "messages/connection/connected_state.hpp"
#include "messages/connection/idle_state.hpp"
#include "messages/connection/initialization_state.hpp"
#include "messages/connection/quick_config.hpp"
#include "messages/connection/route_update.hpp"
#include "messages/connection/route_update_control.hpp"
#include "messages/connection/sector_parameters.hpp"
#include "messages/connection/traffic_channel_assignment.hpp"

namespace vorlan {

namespace {

constexpr ClassEntry kClasses[] = {
    message_entry<kConnectionClose>(),
    message_entry<kConnectionDeny>(),
    message_entry<kConnectionRequest>(),
    message_entry<kNeighborList>(),
    message_entry<kPage>(),
    message_entry<kQuickConfig>(),
    message_entry<kRedirect>(),
    message_entry<kResetReport>(),
    message_entry<kRouteUpdate>(),
    message_entry<kRouteUpdateRequest>(),
    message_entry<kSectorParameters>(),
    message_entry<kSync>(),
    message_entry<kTrafficChannelAssignment>(),
    message_entry<kTrafficChannelComplete>(),
};

}  // namespace

std::span<const ClassEntry> connection_message_classes() noexcept { return kClasses; }

}  // namespace vorlan
