// SB_Security: what it chooses, logs, remembers, and its retired entry points.
#include "security/security.hpp"

#include <functional>

#include "security/security_fixture.hpp"
#include "support/temporary_folder.hpp"

namespace vorlan::test {
namespace {

struct ControllerFixture : SecurityFixture {
  ControllerFixture() {
    EXPECT_TRUE(security->call("Initialise", sector).to_boolean());
    wire.take_calls();
  }
  Raised raised(const char* operation) {
    return listed(*security, raised_by([&] { security->call(operation); }));
  }
  /// The lines of the report since the last time.
  std::string take_report() {
    const std::string text = report();
    part("TestReport")->call("Clear");
    return text;
  }
  Ref<SB_Security> security = make<SB_Security>(fake.platform);
};

struct Family {
  const char* operation;
  const char* selector;
  const char* section;
  const char* key;
};
constexpr Family kSecurity{"ConfigureSecurity", "PRint_SecurityType", "SecurityFields", "MRUSecurity"};
constexpr Family kKeys{"ConfigureKeyXChange", "PRint_KeyXChangeType", "KeyExchangeFields", "MRUKeyExchange"};
constexpr Family kAuthentication{"ConfigureAuthentication", "PRint_AuthenticationType", "AuthFields", "MRUAuthType"};
constexpr Family kEncryption{"ConfigureEncryption", "PRint_EncryptionType", "EncryptionFields", "MRUEncryption"};

struct ConfigureCase {
  Family family;
  int type;
  const char* line;
  const char* property = "";  ///< none: no object
};
constexpr ConfigureCase kConfigure[] = {
    {kSecurity, 0, "Default Security Protocol Initialized.", "PRobj_PROT_DefaultSecurity"},
    {kSecurity, 1, "Generic Security Protocol Initialized.", "PRobj_PROT_GenericSecurity"},
    {kSecurity, 2, "Warning: Security Protocol not initialized. Invalid SECURITY_TYPE selected."},
    {kKeys, 0, "Default Key Exchange Protocol Initialized.", "PRobj_PROT_DefaultKeyXChange"},
    {kKeys, 1, "DH-Key Exchange Protocol initialized with Session Key Length 768", "PRobj_PROT_DHKeyXChange"},
    {kKeys, -1, "Warning: Key Exchange Protocol not initialized. Invalid KEY_XCHANGE_TYPE selected."},
    {kAuthentication, 0, "Default Authentication Exchange Protocol Initialized.", "PRobj_PROT_DefaultAuthentication"},
    {kAuthentication, 1, "SHA-1 Authentication Protocol initialized with Authentication Key Length 160",
     "PRobj_PROT_SHA1Authentication"},
    {kAuthentication, 9, "Warning: Authentication Protocol not initialized. Invalid AUTH_TYPE selected."},
    {kEncryption, 0, "Default Encryption Protocol Initialized.", "PRobj_PROT_DefaultEncryption"},
    {kEncryption, 1, "Warning: Encryption Protocol not initialized. Invalid ENCRYPTION_TYPE selected."},
};

TEST(Security, ConfiguresOneProtocolOfAFamily) {
  for (const ConfigureCase& c : kConfigure) {
    const auto& [operation, selector, section, key] = c.family;
    SCOPED_TRACE(std::string(operation) + " " + std::to_string(c.type));
    ControllerFixture f;
    f.security->call(operation);  // type 0 goes again
    f.take_report();
    f.parameters->let(selector, i16(c.type));
    f.parameters->let("PRstr_SubnetMask", "01101000");
    f.security->call(operation);
    EXPECT_EQ(f.take_report(), std::string(c.line) + "\n");
    EXPECT_EQ(f.setting(section, key), std::to_string(c.type));
    EXPECT_EQ(f.setting("SectorFields", "MRUSectorID").size(), 128U);
    EXPECT_EQ(f.setting("SectorFields", "MRUSectorID").substr(96), f.parameters->get("PRstr_SectorID").to_text());
    EXPECT_EQ(f.setting("SectorFields", "MRUSubnetMask"), "01101000");
    EXPECT_EQ(f.setting("SectorFields", "MRUSectorSignature"), "0001001000110100");
    EXPECT_EQ(f.setting("AuthFields", "MRUAuthKeyLength"), section == kAuthentication.section ? "160" : "none");
    for (const ConfigureCase& other : kConfigure) {
      const std::string property = other.property;
      if (property.empty()) continue;
      const Raised unavailable{1, "SB_Security." + property,
                               "Object not available yet. Please call SB_Security." +
                                   std::string(other.family.operation) + " prior to calling this property"};
      const auto get = [&] { EXPECT_TRUE(f.security->get(property).to_object()); };
      EXPECT_EQ(listed(*f.security, raised_by(get)), property == c.property ? Raised{} : unavailable);
    }
  }
}

TEST(Security, ChecksKeyLengthsBeforeAnythingChanges) {
  ControllerFixture f;
  for (const int bits : {512, 0, -768}) {
    f.parameters->let("PRint_SKeyLength", i16(bits));
    EXPECT_EQ(f.raised("ConfigureKeyXChange"),
              (Raised{1, "SB_Security.ConfigureKeyXChange",
                      "Invalid SessionKeyLength specified in Script parameters. Valid values are 768 or 1024."}));
  }
  f.select(0, 0, 1, 0);
  for (const std::int32_t bits : {-1, 65536}) {
    f.parameters->let("PRlng_AuthKeyLength", bits);
    EXPECT_EQ(f.raised("ConfigureAuthentication"),
              (Raised{1, "SB_Security.ConfigureAuthentication", "Invalid AuthenticationKeyLength specified"}));
  }
  EXPECT_TRUE(f.fake.settings->values.empty());
  EXPECT_EQ(f.wire.calls, Calls{});
}

TEST(Security, NeedsASector) {
  ControllerFixture f;
  const Ref<Object> fresh = make<SB_Security>(f.fake.platform);
  for (const Value& bad : {Value(), Value("sector"), Value(Ref<Object>())}) {
    EXPECT_EQ(listed(*fresh, raised_by([&] { fresh->call("Initialise", bad); })),
              (Raised{1, "SB_Security.Initialise", "Invalid argument type or value not of expected type."}));
  }
  for (const char* operation :
       {"ConfigureSecurity", "ConfigureKeyXChange", "ConfigureAuthentication", "ConfigureEncryption", "Configure",
        "SecurityNegotiations", "RunDiffie_HellManKeyXChange"}) {
    EXPECT_EQ(listed(*fresh, raised_by([&] { fresh->call(operation); })),
              (Raised{1, "SB_Security." + std::string(operation),
                      "SB_Security Object not not initialized. Please call <Initialize> method first."}));
  }
  f.sector->set("PRobj_TestSet", Ref<Object>());
  EXPECT_EQ(error_number([&] { f.security->call("Initialise", f.sector); }), 91);
}

TEST(Security, RemembersInTheUsersFile) {
  struct Case {
    const char* property;
    int initial;
    int set;
  };
  const Case cases[] = {{"PRint_MRUSecurityType", 0, 1},       {"PRint_MRUKeyXChangeType", 0, 1},
                        {"PRint_MRUSKeyLength", 0, 768},       {"PRint_MRUAuthenticationType", 0, 1},
                        {"PRlng_MRUAuthKeyLength", 160, 1234}, {"PRint_MRUEncryptionType", 0, 3}};
  const TemporaryFolder folder;
  const auto file = folder.path() / "settings.ini";
  ControllerFixture f;
  const auto remembered = [&](const char* property) {
    f.fake.platform.settings = make_file_settings(file);  // as in another process
    return make<SB_Security>(f.fake.platform)->get(property).to_long();
  };
  for (const Case& c : cases) EXPECT_EQ(remembered(c.property), c.initial);
  f.select(1, 1, 1, 3);
  f.parameters->let("PRlng_AuthKeyLength", 1234);
  f.security->call("Configure");
  f.security->get("PRobj_PROT_DHKeyXChange").to_object()->call("NegotiateSKeyLength");
  for (const Case& c : cases) EXPECT_EQ(remembered(c.property), c.set) << c.property;
  f.security->get("PRobj_PROT_SHA1Authentication").to_object()->call("NegotiateAuthKeyLength", 80);
  EXPECT_EQ(remembered("PRlng_MRUAuthKeyLength"), 1234);
  make<SB_Security>(f.fake.platform)->call("ClearSessionStateInfo");
  for (const Case& c : cases) EXPECT_EQ(remembered(c.property), c.initial) << c.property;
  f.fake.platform.settings->write("1x-EVDOKetra", "SecurityFields", "MRUSecurity", "junk");
  EXPECT_EQ(error_number([&] { remembered("PRint_MRUSecurityType"); }), 13);
  EXPECT_EQ(folder.write("settings.ini", "junk"), file);
  EXPECT_EQ(error_number([&] { remembered("PRint_MRUSecurityType"); }), 75);
  EXPECT_EQ(f.raised("ConfigureSecurity").number, 75);
  EXPECT_EQ(text_of(file), "junk");
}

TEST(Security, CallsTheTestSetByTheNamesOfTheLaboratory) {
  ControllerFixture f;
  const TemporaryFolder folder;
  const auto file = folder.write("lab.ini", "[TestSetMembers]\nSecurityObject = Cipher\n");
  f.parameters->let("PRstr_FileName", file.string());
  // No test set knows this name, and the error says by which one it was called.
  const Raised raised = raised_by([&] { f.security->call("Initialise", f.sector); });
  EXPECT_EQ(raised.number, 438);
  EXPECT_NE(raised.description.find("Cipher"), std::string::npos);
}

std::string retired(const std::string& name) {
  return "WARNING: The function SB_Security." + name +
         " is now obsolete. The Script may nork correctly.\n"
         "Please refer to the latest Class specifications document.\n";
}

TEST(Security, RetiredEntryPointsWarnAndWork) {
  ControllerFixture f;
  f.select(1, 1, 1, 0);
  f.security->call("Initialize", f.sector);
  EXPECT_EQ(f.take_report(), retired("Initialize"));
  EXPECT_EQ(f.raised("SecurityNegotiations"),
            (Raised{1, "SB_Security.SecurityNegotiations",
                    "Please configure the security negotiations to be carried out by calling <configure>"}));
  EXPECT_EQ(f.take_report(), retired("SecurityNegotiations"));
  EXPECT_TRUE(f.security->call("Configure").to_boolean());
  EXPECT_EQ(f.take_report(), retired("Configure") +
                                 "Generic Security Protocol Initialized.\n"
                                 "DH-Key Exchange Protocol initialized with Session Key Length 768\n"
                                 "SHA-1 Authentication Protocol initialized with Authentication Key Length 160\n"
                                 "Default Encryption Protocol Initialized.\n");
  EXPECT_TRUE(f.security->call("NegotiateProtocolSubtype", i16(6), i16(1)).to_boolean());
  EXPECT_EQ(f.take_report(), retired("NegotiateProtocolSubtype"));
  EXPECT_TRUE(f.security->call("NegotiateProtocolSubtype", i16(7), i16(0)).to_boolean());
  EXPECT_EQ(error_number([&] { f.security->call("NegotiateProtocolSubtype", i16(6), i16(2)); }), 5);
  f.take_report();
  EXPECT_EQ(error_number([&] { f.security->call("Initialize", Value()); }), 1);
  EXPECT_EQ(f.take_report(), retired("Initialize"));
}

TEST(Security, AnotherTestSetTakesBackWhatWasConfigured) {
  ControllerFixture f;
  f.security->call("Configure");
  f.security->call("Initialise", f.sector);  // the same one again
  EXPECT_TRUE(f.security->get("PRobj_PROT_DefaultSecurity").to_object());
  f.sector->set("PRobj_EvSignalling", f.tapped(f.signalling));
  f.security->call("Initialise", f.sector);
  EXPECT_EQ(error_number([&] { f.security->get("PRobj_PROT_DefaultSecurity"); }), 1);
  EXPECT_EQ(error_number([&] { f.security->call("SecurityNegotiations"); }), 1);
}

#ifdef VORLAN_KEY_EXCHANGE
/// A script's own signalling object, which does something of its own before each exchange.
struct Meddler : Object {
  Meddler(Ref<Object> signalling, std::function<void()> act) : real(std::move(signalling)), meddle(std::move(act)) {}
  Value invoke(std::string_view member, Access access, std::span<Value> arguments) override {
    if (member == "SendAndWait") meddle();
    return real->invoke(member, access, arguments);
  }
  Ref<Object> real;
  std::function<void()> meddle;
};

TEST(Security, MayBeConfiguredAnewWhileItNegotiates) {
  ControllerFixture f;
  f.select(1, 1, 1, 0);
  const Ref<Object> meddler = make<Meddler>(f.signalling, [&f] {
    f.security->call("Initialise", f.sector);
    f.security->call("ConfigureKeyXChange");
    f.security->call("ConfigureAuthentication");
  });
  f.sector->set("PRobj_EvSignalling", meddler);
  f.security->call("Initialise", f.sector);
  f.security->call("Configure");
  EXPECT_TRUE(f.security->call("SecurityNegotiations").to_boolean());
  EXPECT_TRUE(f.security->call("RunDiffie_HellManKeyXChange").to_boolean());
  EXPECT_TRUE(f.part("Security")->get("KeysAgree").to_boolean());
}

TEST(Security, RetiredEntryPointsExchangeKeys) {
  ControllerFixture f;
  f.select(1, 1, 1, 0);
  f.security->call("Configure");
  f.take_report();
  EXPECT_TRUE(f.security->call("SecurityNegotiations").to_boolean());
  EXPECT_EQ(f.take_report(), retired("SecurityNegotiations") +
                                 "DHKeyExchange procedure complete. SKey computed and verified successfully.\n");
  const Calls sent = f.wire.take_calls("Send");
  ASSERT_EQ(sent.size(), 7U);
  const char* const fronts[] = {"ConfigRequestMessage|3|1|[50 00 04 00 08",
                                "ConfigRequestMessage|3|1|[50 01 04 00 05",
                                "ConfigRequestMessage|3|1|[50 02 04 00 06",
                                "ConfigRequestMessage|3|1|[50 03 02 00 00",
                                "ConfigRequestMessage|3|1|[50 04 03 00 00",
                                "KeyRequestMsg|3|1|[00 05 07",
                                "ANKeyComplete|3|1|[02 05"};  // one count of TransactionIDs
  for (std::size_t i = 0; i < sent.size(); ++i)
    EXPECT_TRUE(sent[i].starts_with("SendAndWait(" + std::string(fronts[i]))) << sent[i];
  EXPECT_TRUE(f.security->call("RunDiffie_HellManKeyXChange").to_boolean());
  EXPECT_EQ(f.take_report(), retired("RunDiffie_HellManKeyXChange"));

  ControllerFixture unconfigured;  // the configuration's key length counts
  EXPECT_TRUE(unconfigured.security->call("RunDiffie_HellManKeyXChange").to_boolean());
  unconfigured.terminal->call("CheatInKeyExchange", "WrongKey");
  EXPECT_EQ(unconfigured.raised("RunDiffie_HellManKeyXChange"),
            (Raised{1, "SB_Security.SendANKeyComplReceiveATKeyCompl",
                    "The Result field of ATKeyComplete message is not 1."}));
  unconfigured.terminal->call("StaySilent");
  EXPECT_EQ(unconfigured.raised("RunDiffie_HellManKeyXChange"),
            (Raised{1, "SB_Security.RunDiffie_HellManKeyXChange", "KeyResponse message could not be received."}));
}
#endif

TEST(Security, RetiredEntryPointsFailUnderTheirOwnNames) {
  struct Case {
    int security, key_exchange, authentication;
    const char* refused;
  };
  const Case cases[] = {
      {0, 0, 0, "Default Security protocol , subtype 0"},       {1, 0, 0, "Generic Security protocol , subtype 1"},
      {7, 0, 0, "Default KeyExchange protocol , subtype 0"},    {7, 1, 0, "DHKeyExchange protocol , subtype 1"},
      {7, 7, 0, "Default Authentication protocol , subtype 0"}, {7, 7, 1, "SHA-1 Authentication protocol , subtype 1"},
  };
  for (const Case& c : cases) {
    ControllerFixture f;
    f.select(c.security, c.key_exchange, c.authentication, 0);
    f.security->call("Configure");
    f.terminal->call("Refuse", i16(18));
    EXPECT_EQ(f.raised("SecurityNegotiations"),
              (Raised{1, "SB_Security.NegotiateProtocolSubtype", "AT rejected the use of " + std::string(c.refused)}));
  }
}

}  // namespace
}  // namespace vorlan::test
