#include "messages/stream/application_data.hpp"

#include "automation/error.hpp"

namespace vorlan::stream {

void create_application_data(const BuildContext& context, BitBuffer& bits) {
  if (context.message.encodes_verbatim()) {
    bits += context.message.encoder_string();
    return;
  }
  bits += context.message.stored("PRstr_VirtualStream");
  bits += context.message.stored("PRstr_Reserved");
  bits.pad();
}

void check_virtual_stream(const Message&, std::size_t, std::string_view value) {
  if (value == "0000000") {
    raise("SB_App_MsgApplicationData.PRstr_VirtualStream", "Value of <VirtualStream> Field cannot be 0000000.");
  }
}

}  // namespace vorlan::stream
