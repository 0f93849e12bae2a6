#include "messages/classes.hpp"
#include "messages/mac/access_channel.hpp"
#include "messages/mac/forward_traffic_channel.hpp"
#include "messages/mac/reverse_traffic_channel.hpp"

namespace vorlan {

namespace {

constexpr ClassEntry kClasses[] = {
    message_entry<kAcAck>(),
    message_entry<kAccessParameters>(),
    message_entry<kBroadcastRevRateLimit>(),
    message_entry<kFixedModeEnable>(),
    message_entry<kFixedModeXoff>(),
    message_entry<kRTCAck>(),
    message_entry<kUnicastRevRateLimit>(),
};

}  // namespace

std::span<const ClassEntry> mac_message_classes() noexcept { return kClasses; }

}  // namespace vorlan
