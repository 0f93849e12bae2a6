#include "messages/classes.hpp"
#include "messages/testapp/forward_test_application.hpp"
#include "messages/testapp/reverse_test_application.hpp"

namespace vorlan {

namespace {

constexpr ClassEntry kClasses[] = {
    message_entry<kFTAPParameterAssignment>(), message_entry<kFTAPParameterComplete>(),
    message_entry<kFTAPStatsClearRequest>(),   message_entry<kFTAPStatsClearResponse>(),
    message_entry<kFTAPStatsGetRequest>(),     message_entry<kFTAPStatsGetResponse>(),
    message_entry<kRTAPParameterAssignment>(), message_entry<kRTAPParameterComplete>(),
};

}  // namespace

std::span<const ClassEntry> testapp_message_classes() noexcept { return kClasses; }

}  // namespace vorlan
