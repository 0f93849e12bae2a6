#include "messages/classes.hpp"
#include "messages/session/address_management.hpp"
#include "messages/session/session_configuration.hpp"
#include "messages/session/session_management.hpp"

namespace vorlan {

namespace {

constexpr ClassEntry kClasses[] = {
    message_entry<kConfigurationComplete>(), message_entry<kConfigurationStart>(),
    message_entry<kHardwareIDRequest>(),     message_entry<kHardwareIDResponse>(),
    message_entry<kKeepAliveRequest>(),      message_entry<kKeepAliveResponse>(),
    message_entry<kSessionClose>(),          message_entry<kSoftConfigurationComplete>(),
    message_entry<kUATIAssignment>(),        message_entry<kUATIComplete>(),
    message_entry<kUATIRequest>(),
};

}  // namespace

std::span<const ClassEntry> session_message_classes() noexcept { return kClasses; }

}  // namespace vorlan
