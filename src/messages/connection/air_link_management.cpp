#include "messages/connection/air_link_management.hpp"

#include "automation/error.hpp"

namespace vorlan::air_link_management {

void create_redirect(const BuildContext& context, BitBuffer& bits) {
  constexpr std::size_t kRecordBits = 24;
  Message& message = context.message;
  if (message.encodes_verbatim()) {
    bits += message.encoder_string();
    return;
  }
  // Setters check widths, but what the configuration holds may be of any.
  const std::size_t system = message.row("PRstr_SystemType");
  const std::size_t band = message.row("PRstr_BandClass");
  const std::size_t number = message.row("PRstr_ChannelNumber");
  for (std::size_t i = 0; i < message.stored_count(system); ++i) {
    if (message.stored(system, i).size() + message.stored(band, i).size() + message.stored(number, i).size() !=
        kRecordBits) {
      raise(kWrongRecord);
    }
  }
  message.compose(context, bits);
}

}  // namespace vorlan::air_link_management
