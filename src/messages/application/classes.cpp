#include "messages/classes.hpp"
#include "messages/application/nak.hpp"

namespace vorlan {

namespace {

constexpr ClassEntry kClasses[] = {
    message_entry<kNak>(),
};

}  // namespace

std::span<const ClassEntry> application_message_classes() noexcept { return kClasses; }

}  // namespace vorlan
