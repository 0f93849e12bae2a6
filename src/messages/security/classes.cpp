#include "messages/classes.hpp"
#include "automation/error.hpp"
#include "messages/security/key_exchange.hpp"

namespace vorlan {

namespace key_exchange {

void check_public_key(const Message& message, std::size_t, std::string_view value) {
  if (is_key_length(value.size())) return;
  const FieldSpec& field = message.message_class().spec().fields[message.row("PRstr_ANPubKey")];
  raise("SB_Sec_MsgKeyRequest.PRstr_ANPubKey", field.wrong_length);
}

}  // namespace key_exchange

namespace {

constexpr ClassEntry kClasses[] = {
    message_entry<kANKeyComplete>(),
    message_entry<kATKeyComplete>(),
    message_entry<kKeyRequest>(),
    message_entry<kKeyResponse>(),
};

}  // namespace

std::span<const ClassEntry> security_message_classes() noexcept { return kClasses; }

}  // namespace vorlan
