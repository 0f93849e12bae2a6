// SB_Security: what it chooses, logs, remembers, and its retired entry points.
#include "security/security.hpp"

#include "security/security_fixture.hpp"
#include "support/temporary_folder.hpp"

namespace vorlan::test {
namespace {

struct ControllerFixture : SecurityFixture {
  ControllerFixture() {
    EXPECT_TRUE(security->call("Initialise", Ref<Object>(sector)).to_boolean());
    take_calls();
  }
  Raised raised(const char* operation) {
    return raised_by([&] { security->call(operation); });
  }
  /// The lines of the report since the last time.
  Calls report_lines() {
    Calls lines;
    constexpr std::string_view kAdd = "Report.AddText(";
    for (const std::string& call : take_calls()) {
      if (call.starts_with(kAdd)) lines.push_back(call.substr(kAdd.size(), call.size() - kAdd.size() - 1));
    }
    return lines;
  }
  Ref<SB_Security> security = make<SB_Security>(system.platform);
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
    f.take_calls();
    f.parameters->let(selector, integer(c.type));
    f.security->call(operation);
    EXPECT_EQ(f.take_calls(), Calls{"Report.AddText(" + std::string(c.line) + ")"});
    EXPECT_EQ(f.setting(section, key), std::to_string(c.type));
    EXPECT_EQ(f.setting("SectorFields", "MRUSectorID").size(), 128U);
    EXPECT_EQ(f.setting("SectorFields", "MRUSectorID").substr(96), "11111111000000000000000000000101");
    EXPECT_EQ(f.setting("SectorFields", "MRUSubnetMask"), "01101000");
    EXPECT_EQ(f.setting("SectorFields", "MRUSectorSignature"), "0001001000110100");
    EXPECT_EQ(f.setting("AuthFields", "MRUAuthKeyLength"), section == kAuthentication.section ? "160" : "none");
    for (const ConfigureCase& other : kConfigure) {
      const std::string property = other.property;
      if (property.empty()) continue;
      const Raised unavailable{1, "SB_Security." + property,
                               "Object not available yet. Please call SB_Security." +
                                   std::string(other.family.operation) + " prior to calling this property"};
      EXPECT_EQ(raised_by([&] { EXPECT_TRUE(f.security->get(property).to_object()); }),
                property == c.property ? Raised{} : unavailable);
    }
  }
}

TEST(Security, ChecksKeyLengthsBeforeAnythingChanges) {
  ControllerFixture f;
  for (const int bits : {512, 0, -768}) {
    f.parameters->let("PRint_SKeyLength", integer(bits));
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
  EXPECT_TRUE(f.system.settings->values.empty());
  EXPECT_EQ(f.take_calls(), Calls{});
}

TEST(Security, NeedsASector) {
  ControllerFixture f;
  const Ref<Object> fresh = make<SB_Security>(f.system.platform);
  for (const Value& bad : {Value(), Value("sector"), Value(Ref<Object>())}) {
    EXPECT_EQ(raised_by([&] { fresh->call("Initialise", bad); }),
              (Raised{1, "SB_Security.Initialise", "Invalid argument type or value not of expected type."}));
  }
  for (const char* operation :
       {"ConfigureSecurity", "ConfigureKeyXChange", "ConfigureAuthentication", "ConfigureEncryption", "Configure",
        "SecurityNegotiations", "RunDiffie_HellManKeyXChange"}) {
    EXPECT_EQ(raised_by([&] { fresh->call(operation); }),
              (Raised{1, "SB_Security." + std::string(operation),
                      "SB_Security Object not not initialized. Please call <Initialize> method first."}));
  }
  f.sector->set("PRobj_TestSet", Ref<Object>());
  EXPECT_EQ(error_number([&] { f.security->call("Initialise", Ref<Object>(f.sector)); }), 91);
}

TEST(Security, RemembersBetweenObjects) {
  struct Case {
    const char* property;
    int initial;
    int set;
  };
  const Case cases[] = {{"PRint_MRUSecurityType", 0, 1},       {"PRint_MRUKeyXChangeType", 0, 1},
                        {"PRint_MRUSKeyLength", 0, 768},       {"PRint_MRUAuthenticationType", 0, 1},
                        {"PRlng_MRUAuthKeyLength", 160, 1234}, {"PRint_MRUEncryptionType", 0, 3}};
  ControllerFixture f;
  const auto remembered = [&](const char* property) {
    return make<SB_Security>(f.system.platform)->get(property).to_long();
  };
  for (const Case& c : cases) EXPECT_EQ(remembered(c.property), c.initial);
  f.select(1, 1, 1, 3);
  f.parameters->let("PRlng_AuthKeyLength", 1234);
  f.security->call("Configure");
  f.security->get("PRobj_PROT_DHKeyXChange").to_object()->call("NegotiateSKeyLength");
  for (const Case& c : cases) EXPECT_EQ(remembered(c.property), c.set) << c.property;
  f.security->get("PRobj_PROT_SHA1Authentication").to_object()->call("NegotiateAuthKeyLength", 80);
  EXPECT_EQ(remembered("PRlng_MRUAuthKeyLength"), 1234);
  make<SB_Security>(f.system.platform)->call("ClearSessionStateInfo");
  for (const Case& c : cases) EXPECT_EQ(remembered(c.property), c.initial) << c.property;
  f.system.settings->write("1x-EVDOKetra", "SecurityFields", "MRUSecurity", "junk");
  EXPECT_EQ(error_number([&] { remembered("PRint_MRUSecurityType"); }), 13);
}

Calls retired(const char* name) {
  return {"WARNING: The function SB_Security." + std::string(name) + " is now obsolete. The Script may nork correctly.",
          "Please refer to the latest Class specifications document."};
}

TEST(Security, RetiredEntryPointsWarnAndWork) {
  ControllerFixture f;
  f.select(1, 1, 1, 0);
  f.security->call("Initialize", Ref<Object>(f.sector));
  EXPECT_EQ(f.report_lines(), retired("Initialize"));
  EXPECT_EQ(f.raised("SecurityNegotiations"),
            (Raised{1, "SB_Security.SecurityNegotiations",
                    "Please configure the security negotiations to be carried out by calling <configure>"}));
  EXPECT_EQ(f.report_lines(), retired("SecurityNegotiations"));
  EXPECT_TRUE(f.security->call("Configure").to_boolean());
  Calls lines = retired("Configure");
  lines.insert(lines.end(), {"Generic Security Protocol Initialized.",
                             "DH-Key Exchange Protocol initialized with Session Key Length 768",
                             "SHA-1 Authentication Protocol initialized with Authentication Key Length 160",
                             "Default Encryption Protocol Initialized."});
  EXPECT_EQ(f.report_lines(), lines);

  EXPECT_TRUE(f.security->call("SecurityNegotiations").to_boolean());
  Calls sent;
  lines = retired("SecurityNegotiations");
  lines.emplace_back("DHKeyExchange procedure complete. SKey computed and verified successfully.");
  for (const std::string& call : f.trace.calls) {
    constexpr std::string_view kSend = "Sig.SendAndWait(";
    if (!call.starts_with(kSend)) continue;
    const std::string label = call.substr(kSend.size(), call.find('|') - kSend.size());
    sent.push_back(label + call.substr(call.find('['), 15));
  }
  EXPECT_EQ(sent, (Calls{"ConfigRequestMessage[50 00 04 00 08", "ConfigRequestMessage[50 01 04 00 05",
                         "ConfigRequestMessage[50 02 04 00 06", "ConfigRequestMessage[50 03 02 00 00",
                         "ConfigRequestMessage[50 04 03 00 00", "KeyRequestMsg[00 05 07 00 01",
                         "ANKeyComplete[02 05 12 34 56"}))
      << "one count of TransactionIDs";
  EXPECT_EQ(f.report_lines(), lines);
  EXPECT_TRUE(f.security->call("RunDiffie_HellManKeyXChange").to_boolean());
  EXPECT_EQ(f.report_lines(), retired("RunDiffie_HellManKeyXChange"));
  EXPECT_TRUE(f.security->call("NegotiateProtocolSubtype", integer(6), integer(1)).to_boolean());
  EXPECT_EQ(f.report_lines(), retired("NegotiateProtocolSubtype"));
  EXPECT_EQ(error_number([&] { f.security->call("NegotiateProtocolSubtype", integer(6), integer(2)); }), 5);
}

TEST(Security, RetiredEntryPointsFailUnderTheirOwnNames) {
  const auto label = [](const char* name) {
    return "AT rejected the use of " + std::string(name) + " protocol , subtype ";
  };
  struct Case {
    int security, key_exchange, authentication;
    std::string text;
  };
  const Case cases[] = {
      {0, 0, 0, label("Default Security") + "0"},       {1, 0, 0, label("Generic Security") + "1"},
      {7, 0, 0, label("Default KeyExchange") + "0"},    {7, 1, 0, label("DHKeyExchange") + "1"},
      {7, 7, 0, label("Default Authentication") + "0"}, {7, 7, 1, label("SHA-1 Authentication") + "1"},
  };
  for (const Case& c : cases) {
    ControllerFixture f;
    f.select(c.security, c.key_exchange, c.authentication, 0);
    f.security->call("Configure");
    f.replies["ConfigResponseMessage"] = "51 ##";
    EXPECT_EQ(f.raised("SecurityNegotiations"), (Raised{1, "SB_Security.NegotiateProtocolSubtype", c.text}));
  }
  ControllerFixture f;  // nothing is configured: the configuration's key length counts
  f.replies["ATKeyComplete"] = "03 ## 00";
  EXPECT_EQ(f.raised("RunDiffie_HellManKeyXChange"), (Raised{1, "SB_Security.SendANKeyComplReceiveATKeyCompl",
                                                             "The Result field of ATKeyComplete message is not 1."}));
  f.silent_to = "KeyRequestMsg";
  EXPECT_EQ(f.raised("RunDiffie_HellManKeyXChange"),
            (Raised{1, "SB_Security.RunDiffie_HellManKeyXChange", "KeyResponse message could not be received."}));
}

TEST(Security, CallsTheTestSetByTheNamesOfTheLaboratory) {
  ControllerFixture f;
  const TemporaryFolder folder;
  const auto file = folder.write("lab.ini", "[TestSetMembers]\nSecurityObject = Cipher\n");
  f.parameters->let("PRstr_FileName", file.string());
  // The recording test set knows no other name, and says which it was called by.
  const Raised raised = raised_by([&] { f.security->call("Initialise", Ref<Object>(f.sector)); });
  EXPECT_EQ(raised.number, 438);
  EXPECT_NE(raised.description.find("Cipher"), std::string::npos);
}

}  // namespace
}  // namespace vorlan::test
