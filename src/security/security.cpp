#include "security/security.hpp"

#include <algorithm>

#include "common/sector_identity.hpp"
#include "messages/security/key_exchange.hpp"
#include "security/plain_protocol.hpp"
#include "security/sha1_authentication.hpp"

namespace vorlan {

namespace {

constexpr std::string_view kSKeyLength = "PRint_SKeyLength";
constexpr std::string_view kAuthKeyLength = "PRlng_AuthKeyLength";

std::string member_of_security(std::string_view member) { return std::string("SB_Security.").append(member); }

// The word is doubled on purpose.
constexpr ErrorRow kNotInitialized{
    {}, "SB_Security Object not not initialized. Please call <Initialize> method first.", "call before Initialise"};
constexpr ErrorRow kWrongSessionKeyLength{
    {},
    "Invalid SessionKeyLength specified in Script parameters. Valid values are 768 or 1024.",
    "another PRint_SKeyLength of the configuration"};
constexpr ErrorRow kWrongAuthKeyLength{"SB_Security.ConfigureAuthentication",
                                       "Invalid AuthenticationKeyLength specified",
                                       "SHA-1, and a PRlng_AuthKeyLength that is not 0 to 65535"};
constexpr ErrorRow kNoProtocol{"SB_Security.NegotiateProtocolSubtype", "no protocol has this type and subtype",
                               "call without a label, of such a type and subtype", ErrorNumber::InvalidCall};
constexpr ErrorRow kNotConfigured{"SB_Security.SecurityNegotiations",
                                  "Please configure the security negotiations to be carried out by calling <configure>",
                                  "call before any Configure operation"};

constexpr SB_PROT_DHKeyXChange::Sources kExchangeSources{"SB_Security.RunDiffie_HellManKeyXChange",
                                                         "SB_Security.SendANKeyComplReceiveATKeyCompl"};

SubtypeNames names_by(std::string_view protocol) { return {protocol, protocol, protocol, ", subtype "}; }

std::string property_of(const SecurityProtocol& protocol) {
  constexpr std::string_view kPrefix = "SB_";
  return member_of_security(std::string("PRobj_").append(protocol.name.substr(kPrefix.size())));
}
std::string unavailable_text(const SecurityProtocol& protocol) {
  return "Object not available yet. Please call " + member_of_security(security_family(protocol.family).operation) +
         " prior to calling this property";
}

}  // namespace

/// A protocol that can be chosen, how its object is made, and whether the length of its key is logged.
struct SB_Security::Choice {
  const SecurityProtocol* protocol;
  Ref<Object> (*make)(const SB_Security& security, std::int32_t key_length);
  bool has_key = false;
};

template <const SecurityProtocol& Protocol>
Ref<Object> SB_Security::make_plain(const SB_Security& security, std::int32_t /*key_length*/) {
  auto object = vorlan::make<PlainProtocol<Protocol>>(*security.platform_);
  object->initialize(security.link_);
  return object;
}

Ref<Object> SB_Security::make_sha1(const SB_Security& security, std::int32_t key_length) {
  auto object = make<SB_PROT_SHA1Authentication>(*security.platform_);
  object->initialize(security.link_, key_length);
  return object;
}

Ref<Object> SB_Security::make_dh(const SB_Security& security, std::int32_t key_length) {
  auto object = make<SB_PROT_DHKeyXChange>(*security.platform_);
  object->initialize(security.link_, security.security_object_, static_cast<std::int16_t>(key_length));
  return object;
}

std::span<const SB_Security::Choice> SB_Security::choices() noexcept {
  static constexpr std::array kChoices{
      Choice{&kDefaultSecurity, &make_plain<kDefaultSecurity>},
      Choice{&kGenericSecurity, &make_plain<kGenericSecurity>},
      Choice{&kDefaultKeyXChange, &make_plain<kDefaultKeyXChange>},
      Choice{&kDHKeyXChange, &make_dh, true},
      Choice{&kDefaultAuthentication, &make_plain<kDefaultAuthentication>},
      Choice{&kSHA1Authentication, &make_sha1, true},
      Choice{&kDefaultEncryption, &make_plain<kDefaultEncryption>},
  };
  return kChoices;
}

const SB_Security::Choice* SB_Security::find_choice(SecurityFamilyId family, std::int32_t subtype) noexcept {
  for (const Choice& choice : choices()) {
    if (choice.protocol->family == family && choice.protocol->subtype == subtype) return &choice;
  }
  return nullptr;
}

std::vector<ErrorInfo> SB_Security::errors() {
  constexpr std::string_view kClass = "SB_Security";
  const std::string initialise = member_of_security("Initialise");
  const std::string negotiate = member_of_security("NegotiateProtocolSubtype");
  std::vector<ErrorInfo> list;
  const auto add = [&](const ErrorRow& row) { list_errors(list, kClass, {&row, 1}); };
  add(kWrongArgument.from(initialise));
  add({initialise, {}, "a sector without a configuration", ErrorNumber::ObjectNotSet});
  for (const SecurityFamily& family : kSecurityFamilies)
    add(kNotInitialized.from(member_of_security(family.operation)));
  for (const std::string_view retired :
       {"Configure", "NegotiateProtocolSubtype", "SecurityNegotiations", "RunDiffie_HellManKeyXChange"}) {
    add(kNotInitialized.from(member_of_security(retired)));
  }
  add(kWrongSessionKeyLength.from(member_of_security(security_family(SecurityFamilyId::KeyXChange).operation)));
  add(kWrongSessionKeyLength.from(kExchangeSources.request));
  add(kWrongAuthKeyLength);
  for (const Choice& choice : choices()) {
    add({property_of(*choice.protocol), unavailable_text(*choice.protocol), "get before it is configured"});
  }
  add(kNoProtocol);
  add(kWrongSubtype.from(negotiate));
  list_errors(list, negotiate, subtype_texts(names_by("<label> protocol"), "<subtype>"));
  add(kNotConfigured);
  SB_PROT_DHKeyXChange::list_exchange_errors(list, kExchangeSources);
  TestSetAccess::list_errors(list, kClass);
  return list;
}

bool SB_Security::Initialise(const Value& sector) {
  const Ref<Object> given = object_argument(sector, "SB_Security.Initialise");
  const auto object_of = [&](std::string_view property) { return given->get(property).to_object(); };
  Ref<Object> configuration = object_of("PRobj_GlobalParameters");
  auto link = std::make_shared<SecurityLink>();
  link->access = TestSetAccess::named_by(deref(configuration, "SB_Security.Initialise"));
  link->signalling = object_of("PRobj_EvSignalling");
  link->messages = link->access.object(Role::MessageCollection, link->signalling);
  Ref<Object> test_set = object_of("PRobj_TestSet");
  if (!test_set) test_set = object_of("PRobj_ParentTestSet");
  Ref<Object> security_object = link->access.object(Role::SecurityObject, test_set);
  report_ = object_of("PRobj_TestReport");
  if (link_ && link_->signalling != link->signalling) {
    chosen_ = {};
    configured_ = false;
  }
  security_object_ = std::move(security_object);
  configuration_ = std::move(configuration);
  link_ = std::move(link);
  return true;
}

Value SB_Security::setting(std::string_view property) const { return configuration_->get(property, ""); }

void SB_Security::check_initialized(std::string_view source) const {
  if (!link_) raise(kNotInitialized.from(source));
}

void SB_Security::log(std::string_view line) const {
  if (report_) {
    link_->access.call(Role::ReportLine, report_, line);
  } else {
    platform_->debug->write_line(line);
  }
}

std::int32_t SB_Security::session_key_length(std::string_view source) const {
  const std::int16_t bits = setting(kSKeyLength).to_integer();
  if (!key_exchange::is_key_length(bits)) raise(kWrongSessionKeyLength.from(source));
  return bits;
}

void SB_Security::configure(const SecurityFamily& family) {
  const std::string source = member_of_security(family.operation);
  check_initialized(source);
  // The session key's length comes first, whatever key exchange is chosen.
  std::int32_t key_length = family.id == SecurityFamilyId::KeyXChange ? session_key_length(source) : 0;
  const std::int16_t subtype = setting(family.selector).to_integer();
  if (family.id == SecurityFamilyId::Authentication) {
    key_length = setting(kAuthKeyLength).to_long();
    if (subtype == kSHA1Authentication.subtype && !SB_PROT_SHA1Authentication::is_key_length(key_length)) {
      raise(kWrongAuthKeyLength);
    }
  }
  const auto text = [this](std::string_view property) { return setting(property).to_text(); };
  const SectorIdentity sector{.sector_id = text("PRstr_SectorID127_96") + text("PRstr_SectorID95_64") +
                                           text("PRstr_SectorID63_32") + text("PRstr_SectorID"),
                              .subnet_mask = text("PRstr_SubnetMask"),
                              .sector_signature = text("PRstr_SectorSignature")};

  Chosen& chosen = chosen_[static_cast<std::size_t>(family.id)];
  if (const Choice* choice = find_choice(family.id, subtype)) {
    chosen = {choice->protocol, choice->make(*this, key_length)};
    log(std::string(choice->protocol->initialized).append(choice->has_key ? std::to_string(key_length) : ""));
  } else {
    chosen = {};
    log(family.not_chosen);
  }
  configured_ = true;

  SettingsStore& settings = *platform_->settings;
  remember_sector(settings, sector);
  remember(settings, family.remembered, subtype);
  if (family.id == SecurityFamilyId::Authentication) {
    remember(settings, Remembered::AuthKeyLength, key_length);
  }
}

void SB_Security::ClearSessionStateInfo() { reset_remembered_values(*platform_->settings); }

Ref<Object> SB_Security::protocol(const SecurityProtocol& protocol) const {
  const Chosen& last = chosen(protocol.family);
  if (last.protocol != &protocol) raise(property_of(protocol), unavailable_text(protocol));
  return last.object;
}

template <class T>
Ref<T> SB_Security::chosen(const SecurityProtocol& protocol) const noexcept {
  const Chosen& last = chosen(protocol.family);
  return Ref<T>(last.protocol == &protocol ? static_cast<T*>(last.object.get()) : nullptr);
}

// --- retired entry points

void SB_Security::warn_retired(std::string_view operation) const {
  // Misspelt on purpose.
  log("WARNING: The function " + member_of_security(operation) + " is now obsolete. The Script may nork correctly.");
  log("Please refer to the latest Class specifications document.");
}

bool SB_Security::Initialize(const Value& sector) {
  // The sector brings the test report, so the warning comes first only where no sector does.
  try {
    Initialise(sector);
  } catch (...) {
    warn_retired("Initialize");
    throw;
  }
  warn_retired("Initialize");
  return true;
}

bool SB_Security::Configure() {
  warn_retired("Configure");
  check_initialized("SB_Security.Configure");
  for (const SecurityFamily& family : kSecurityFamilies) configure(family);
  return true;
}

void SB_Security::propose_subtype(std::int16_t protocol_type, std::int32_t subtype, std::string_view label) {
  const std::string name = std::string(label).append(" protocol");
  const auto link = link_;  // which stays, even if a script's own test set initialises anew meanwhile
  negotiate_subtype(*link, "SB_Security.NegotiateProtocolSubtype", protocol_type, subtype, names_by(name));
}

bool SB_Security::NegotiateProtocolSubtype(std::int16_t protocol_type, std::int32_t subtype,
                                           const std::optional<std::string>& label) {
  constexpr std::string_view kSource = "SB_Security.NegotiateProtocolSubtype";
  warn_retired("NegotiateProtocolSubtype");
  check_initialized(kSource);
  if (label) {
    propose_subtype(protocol_type, subtype, *label);
    return true;
  }
  const auto* const family =
      std::find_if(std::begin(kSecurityFamilies), std::end(kSecurityFamilies),
                   [&](const SecurityFamily& row) { return row.protocol_type == protocol_type; });
  const Choice* const choice = family == std::end(kSecurityFamilies) ? nullptr : find_choice(family->id, subtype);
  if (choice == nullptr) raise(kNoProtocol);
  propose_subtype(protocol_type, subtype, choice->protocol->label);
  return true;
}

bool SB_Security::SecurityNegotiations() {
  constexpr std::string_view kSource = "SB_Security.SecurityNegotiations";
  warn_retired("SecurityNegotiations");
  check_initialized(kSource);
  if (!configured_) raise(kNotConfigured);
  const auto all = chosen_;  // a script's own test set may configure again meanwhile
  for (const Chosen& one : all) {
    if (one.protocol == nullptr || one.protocol->family == SecurityFamilyId::Encryption) continue;
    propose_subtype(security_family(one.protocol->family).protocol_type, one.protocol->subtype, one.protocol->label);
  }
  const auto key_exchange = chosen<SB_PROT_DHKeyXChange>(kDHKeyXChange);
  if (key_exchange) key_exchange->NegotiateSKeyLength({});
  if (const auto sha1 = chosen<SB_PROT_SHA1Authentication>(kSHA1Authentication)) sha1->NegotiateAuthKeyLength({});
  if (key_exchange) {
    run_key_exchange();
    log("DHKeyExchange procedure complete. SKey computed and verified successfully.");
  }
  return true;
}

bool SB_Security::run_key_exchange() {
  if (const auto configured = chosen<SB_PROT_DHKeyXChange>(kDHKeyXChange))
    return configured->run_exchange(kExchangeSources);
  const Ref<Object> once = make_dh(*this, session_key_length(kExchangeSources.request));
  return static_cast<SB_PROT_DHKeyXChange&>(*once).run_exchange(kExchangeSources);
}

bool SB_Security::RunDiffie_HellManKeyXChange() {
  warn_retired("RunDiffie_HellManKeyXChange");
  check_initialized("SB_Security.RunDiffie_HellManKeyXChange");
  return run_key_exchange();
}

}  // namespace vorlan
