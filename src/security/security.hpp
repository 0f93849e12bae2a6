// Chooses, negotiates and remembers the protocols of the security layer (C.S0024-400-C 2).
#pragma once

#include <array>

#include "automation/bind.hpp"
#include "platform/platform.hpp"
#include "security/dh_key_exchange.hpp"

namespace vorlan {

/// A script initialises it with a sector, configures each family of protocols, and negotiates with the protocol objects
/// that it is given. What is logged goes to the sector's test report, or to the debugger's output where there is none.
/// Errors are number 1 with the texts of the operation; what the sector's and the test set's objects raise passes
/// through. A Configure operation that fails its checks changes nothing.
class SB_Security final : public BoundObject<SB_Security> {
 public:
  explicit SB_Security(Platform& platform) noexcept : platform_(&platform) {}

  static ClassInfo::Texts texts() noexcept;
  static std::span<const BoundMember> members() noexcept;
  static std::vector<ErrorInfo> errors();

  /// Takes the sector's configuration, test report and signalling object, the latter's message collection and the test
  /// set's security object. With another signalling object than before, what was configured has to be configured anew.
  bool Initialise(const Value& sector);

  template <SecurityFamilyId Family>
  void configure_family() {
    configure(security_family(Family));
  }
  void ClearSessionStateInfo();

  /// The object that was configured last in its family; error 1 if that is another, or none.
  template <const SecurityProtocol& Protocol>
  [[nodiscard]] Ref<Object> protocol() const {
    return protocol(Protocol);
  }
  template <Remembered Which>
  [[nodiscard]] std::int16_t remembered() const {
    return Value(recall(*platform_->settings, Which)).to_integer();
  }
  [[nodiscard]] std::int32_t remembered_auth_key_length() const {
    return recall(*platform_->settings, Remembered::AuthKeyLength);
  }

  // Retired: each logs that it is, and works.
  bool Initialize(const Value& sector);
  /// All four families.
  bool Configure();
  /// Subtypes of the configured protocols but encryption, then the key lengths, then the key exchange.
  bool SecurityNegotiations();
  /// The label names the protocol in texts; without one, that of the protocol which has this type and subtype.
  bool NegotiateProtocolSubtype(std::int16_t protocol_type, std::int32_t subtype,
                                const std::optional<std::string>& label);
  /// With the configured key exchange object, else with the configuration's key length.
  bool RunDiffie_HellManKeyXChange();

 private:
  struct Chosen {
    const SecurityProtocol* protocol = nullptr;
    Ref<Object> object;
  };
  struct Choice;
  static std::span<const Choice> choices() noexcept;
  static const Choice* find_choice(SecurityFamilyId family, std::int32_t subtype) noexcept;
  template <const SecurityProtocol& Protocol>
  static Ref<Object> make_plain(const SB_Security& security, std::int32_t key_length);
  static Ref<Object> make_sha1(const SB_Security& security, std::int32_t key_length);
  static Ref<Object> make_dh(const SB_Security& security, std::int32_t key_length);

  void configure(const SecurityFamily& family);
  /// The configuration's, 768 or 1024; error 1 otherwise.
  [[nodiscard]] std::int32_t session_key_length(std::string_view source) const;
  [[nodiscard]] Ref<Object> protocol(const SecurityProtocol& protocol) const;
  [[nodiscard]] const Chosen& chosen(SecurityFamilyId family) const noexcept {
    return chosen_[static_cast<std::size_t>(family)];
  }
  /// Null where another protocol of its family was configured.
  template <class T>
  [[nodiscard]] Ref<T> chosen(const SecurityProtocol& protocol) const noexcept;
  void propose_subtype(std::int16_t protocol_type, std::int32_t subtype, std::string_view label);
  bool run_key_exchange();

  [[nodiscard]] Value setting(std::string_view property) const;
  void check_initialized(std::string_view source) const;
  void log(std::string_view line) const;
  void warn_retired(std::string_view operation) const;

  Platform* platform_;
  std::shared_ptr<SecurityLink> link_;
  Ref<Object> configuration_;
  Ref<Object> report_;
  Ref<Object> security_object_;
  std::array<Chosen, std::size(kSecurityFamilies)> chosen_;
  bool configured_ = false;
};

}  // namespace vorlan
