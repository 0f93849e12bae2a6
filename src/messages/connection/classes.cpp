#include "messages/classes.hpp"
#include "messages/connection/route_update.hpp"
#include "messages/connection/sector_parameters.hpp"
#include "messages/connection/traffic_channel_assignment.hpp"

namespace vorlan {

namespace {

constexpr ClassEntry kClasses[] = {
    message_entry<kRouteUpdate>(),
    message_entry<kSectorParameters>(),
    message_entry<kTrafficChannelAssignment>(),
};

}  // namespace

std::span<const ClassEntry> connection_message_classes() noexcept { return kClasses; }

}  // namespace vorlan
