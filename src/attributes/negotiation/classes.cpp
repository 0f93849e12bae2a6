#include "attributes/negotiation/classes.hpp"

#include "attributes/negotiation/configuration_messages.hpp"

namespace vorlan {

namespace {

constexpr ClassEntry kClasses[] = {
    negotiation_entry<kConfigurationRequest>(),
    negotiation_entry<kConfigurationResponse>(),
    negotiation_entry<kAttributeUpdateRequest>(),
};

}  // namespace

std::span<const ClassEntry> negotiation_classes() noexcept { return kClasses; }

}  // namespace vorlan
