// Security objects between a sector and the simulated test set, whose terminal accepts everything.
#pragma once

#include "sector/simulated_sector.hpp"

namespace vorlan::test {

struct SecurityFixture : SimulatedSector {
  SecurityFixture() {
    select(0, 0, 0, 0);
    parameters->let("PRint_SKeyLength", i16(768));
    parameters->let("PRlng_AuthKeyLength", 160);
  }

  void select(int security, int key_exchange, int authentication, int encryption) {
    parameters->let("PRint_SecurityType", i16(security));
    parameters->let("PRint_KeyXChangeType", i16(key_exchange));
    parameters->let("PRint_AuthenticationType", i16(authentication));
    parameters->let("PRint_EncryptionType", i16(encryption));
  }
  [[nodiscard]] std::string setting(const std::string& section, const std::string& key) const {
    return fake.settings->read("1x-EVDOKetra", section, key).value_or("none");
  }
  /// The terminal's message of this label comes with these octets, whatever it sends.
  void answer(const std::string& label, const std::string& hex) {
    wire.answers["Item(" + label + ")"] = Ref<Object>(received(hex));
  }

  Value wired_signalling = tapped(signalling);
  Value wired_messages = wired_signalling.to_object()->get("Messages");
  Value wired_security = tapped(part("Security"));
};

}  // namespace vorlan::test
