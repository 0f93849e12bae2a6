// Security objects between a sector and a test set that records, with a terminal that accepts everything.
#pragma once

#include "sector/sector_fixture.hpp"
#include "support/octets.hpp"

namespace vorlan::test {

inline Value integer(int value) { return static_cast<std::int16_t>(value); }

/// "00 01 02 ..."
inline std::string counted_octets(std::size_t count) {
  static constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string hex;
  for (std::size_t i = 0; i < count; ++i) {
    hex.append(i == 0 ? "" : " ").append({kDigits[i / 16 % 16], kDigits[i % 16]});
  }
  return hex;
}

struct SecurityFixture : SectorFixture {
  SecurityFixture() {
    test_set->answer("Security", Ref<Object>(security_object));
    security_object->answers["GetANPublicKey"] = [](std::span<Value> a) {
      return Value(Ref<Object>(received(counted_octets(static_cast<std::size_t>(a[0].to_integer()) / 8))));
    };
    security_object->answer("Nonce", bits_of("12 34"));
    security_object->answer("TimeStampShort", bits_of("56 78"));
    security_object->answer("GetKeySignature", bits_of(counted_octets(20)));
    signalling->answers["SendAndWait"] = [this](std::span<Value> a) { return Value(answered(a)); };
    select(0, 0, 0, 0);
    parameters->let("PRint_SKeyLength", integer(768));
    parameters->let("PRlng_AuthKeyLength", 160);
    for (const char* part : {"PRstr_SectorID127_96", "PRstr_SectorID95_64", "PRstr_SectorID63_32"}) {
      parameters->let(part, std::string(31, '0') + "1");
    }
    parameters->let("PRstr_SubnetMask", bits_of("68"));
    parameters->let("PRstr_SectorSignature", bits_of("12 34"));
  }

  void select(int security, int key_exchange, int authentication, int encryption) {
    parameters->let("PRint_SecurityType", integer(security));
    parameters->let("PRint_KeyXChangeType", integer(key_exchange));
    parameters->let("PRint_AuthenticationType", integer(authentication));
    parameters->let("PRint_EncryptionType", integer(encryption));
  }
  [[nodiscard]] std::string setting(const std::string& section, const std::string& key) const {
    return system.settings->read("1x-EVDOKetra", section, key).value_or("none");
  }
  [[nodiscard]] Value signalling_value() const { return Ref<Object>(signalling); }
  [[nodiscard]] Value messages_value() const { return Ref<Object>(messages); }

  Ref<Guest> security_object = guest(TestSetObject::Security, "Security");
  /// In hexadecimal by the label of the answer; "##" is the request's TransactionID. Others are accepted.
  std::map<std::string, std::string> replies;
  std::chrono::milliseconds answer_delay{0};

 private:
  bool answered(std::span<const Value> arguments) {
    if (silent_to == arguments[0].to_text()) return false;
    system.clock->passed += answer_delay;
    const std::string request = dynamic_cast<simulator::MessageObject&>(*arguments[3].to_object()).hex();
    const std::string label = arguments[9].to_text();
    std::string reply = label == "KeyResponseMsg"  ? "01 ## 04 " + request.substr(9)
                        : label == "ATKeyComplete" ? "03 ## 80"
                                                   : "51" + request.substr(2);
    if (const auto other = replies.find(label); other != replies.end()) reply = other->second;
    if (const auto at = reply.find("##"); at != std::string::npos) reply.replace(at, 2, request.substr(3, 2));
    answers[label] = received(reply);
    return true;
  }
};

}  // namespace vorlan::test
