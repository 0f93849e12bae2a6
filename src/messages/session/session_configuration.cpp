#include "messages/session/session_configuration.hpp"

#include "automation/error.hpp"

namespace vorlan::session_configuration {

void create_soft_configuration_complete(const BuildContext& context, BitBuffer& bits) {
  Message& message = context.message;
  const std::string replacement = context.argument(0);
  if (message.encodes_verbatim()) {
    if (!replacement.empty()) raise(kReplacedInEncoderMode);
    bits += message.encoder_string();
    return;
  }
  if (!replacement.empty()) {
    bits += kSoftConfigurationComplete.id;
    bits += message.stored("PRstr_TransactionID");
    bits += replacement;
    return;
  }
  if (message.stored("PRstr_Continue") == "0") {
    const std::string_view committed = message.stored("PRstr_CommitPersonalityIndexStore");
    message.store(message.row("PRstr_SessionConfigurationToken"),
                  std::string("000000000000")
                      .append(committed.empty() ? message.stored("PRstr_PersonalityIndexStore") : committed));
  }
  message.compose(context, bits);
}

}  // namespace vorlan::session_configuration
