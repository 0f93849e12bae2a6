// The message classes, a table per layer.
#pragma once

#include <span>

#include "automation/registry.hpp"

namespace vorlan {

std::span<const ClassEntry> security_message_classes() noexcept;
std::span<const ClassEntry> session_message_classes() noexcept;
std::span<const ClassEntry> connection_message_classes() noexcept;
std::span<const ClassEntry> mac_message_classes() noexcept;
std::span<const ClassEntry> application_message_classes() noexcept;
std::span<const ClassEntry> stream_message_classes() noexcept;
std::span<const ClassEntry> testapp_message_classes() noexcept;

}  // namespace vorlan
