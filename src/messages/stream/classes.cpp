#include "messages/classes.hpp"
#include "messages/stream/application_data.hpp"

namespace vorlan {

namespace {

constexpr ClassEntry kClasses[] = {
    message_entry<kApplicationData>(),
};

}  // namespace

std::span<const ClassEntry> stream_message_classes() noexcept { return kClasses; }

}  // namespace vorlan
