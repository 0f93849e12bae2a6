// What the seven protocol objects propose to the access terminal, and every way in which that fails.
#include "security/security_fixture.hpp"
#include "support/message_cases.hpp"

namespace vorlan::test {
namespace {

/// One negotiation of one class, with its texts as scripts know them.
struct NegotiationCase {
  std::string_view name;
  std::string_view operation;
  std::string_view number;  ///< subtype or key length, at the end of every text
  const char* protocol;     ///< on which it is proposed
  const char* record;
  const char* refused;                        ///< a record that names another value
  std::string_view proposed, sent, rejected;  ///< the ends of the texts
  std::string_view uninitialized_class = {};  ///< in that text and, of a subtype, its source; none: the name
};
constexpr std::string_view kSubtype = "NegotiateProtocolSubtype";
constexpr NegotiationCase kCases[] = {
    {"SB_PROT_DefaultSecurity", kSubtype, "0", "18", "04 00 08 00 00", "04 00 08 00 01",
     "Default Security protocol, subtype ", "Default Security protocol, subtype ",
     "Default Security protocol , subtype "},
    {"SB_PROT_GenericSecurity", kSubtype, "1", "18", "04 00 08 00 01", "04 00 08 00 00",
     "Generic Security protocol, subtype ", "use of Generic Security protocol, subtype ",
     "Generic Security protocol , subtype "},
    {"SB_PROT_DefaultKeyXChange", kSubtype, "0", "18", "04 00 05 00 00", "04 00 05 01 00",
     "Default KeyXChange protocol, subtype ", "Default KeyXChange protocol, subtype ",
     "Default KeyXChange protocol , subtype "},
    {"SB_PROT_DHKeyXChange", kSubtype, "1", "18", "04 00 05 00 01", "04 00 06 00 01", "DHKeyXChange protocol, subtype ",
     "DHKeyXChange protocol, subtype ", "DHKeyXChange protocol , subtype ", "SB_PROT_DHXChange"},
    {"SB_PROT_DefaultAuthentication", kSubtype, "0", "18", "04 00 06 00 00", "04 00 06 00 01",
     "Default Authentication protocol, subtype ", "Default Authentication Protocol, subtype ",
     "Default Authentication protocol , Subtype "},
    {"SB_PROT_SHA1Authentication", kSubtype, "1", "18", "04 00 06 00 01", "03 06 00 01",
     "SHA-1 Authentication protocol, subtype ", "SHA-1 Authentication Protocol, subtype ",
     "SHA-1 Authentication Protocol , Subtype "},
    {"SB_PROT_DefaultEncryption", kSubtype, "0", "18", "04 00 07 00 00", "04 00 07 00",
     "Default Encryption protocol, subtype ", "Default Encryption protocol, subtype ",
     "Default Encryption protocol , subtype "},
    {"SB_PROT_DHKeyXChange", "NegotiateSKeyLength", "768", "5", "02 00 00", "02 00 01", "SKeyLength ", "SKeyLength ",
     "SKey Length ", "SB_PROT_DHXChange"},
    {"SB_PROT_SHA1Authentication", "NegotiateAuthKeyLength", "160", "6", "03 00 00 A0", "03 00 00 A1", "AuthKeyLength ",
     "AuthKeyLength ", "Auth Key Length "},
};

/// The arguments of a class's Initialize, as they should be.
std::vector<Value> arguments_of(const SecurityFixture& f, std::string_view name) {
  if (name == "SB_PROT_SHA1Authentication") return {f.wired_signalling, 160, f.wired_messages};
  if (name == "SB_PROT_DHKeyXChange") return {f.wired_signalling, f.wired_security, i16(768), f.wired_messages};
  return {f.wired_signalling, f.wired_messages};
}

Ref<Object> initialized(SecurityFixture& f, std::string_view name) {
  static const Registry kRegistry(class_tables());
  const Ref<Object> object = kRegistry.create(name, f.fake.platform);
  std::vector<Value> arguments = arguments_of(f, name);
  EXPECT_TRUE(object->invoke("Initialize", Access::Call, arguments).to_boolean());
  f.wire.take_calls();
  return object;
}

template <class F>
void for_every_negotiation(F&& test) {
  for (const NegotiationCase& c : kCases) {
    SCOPED_TRACE(std::string(c.name).append(".").append(c.operation));
    SecurityFixture f;
    test(f, c, initialized(f, c.name));
  }
}

TEST(SecurityNegotiation, ProposesOneValue) {
  for_every_negotiation([](SecurityFixture& f, const NegotiationCase& c, const Ref<Object>& object) {
    for (const char* transaction : {"00", "01"}) {
      EXPECT_TRUE(object->call(c.operation).to_boolean());
      EXPECT_EQ(f.wire.take_calls(),
                (Calls{"CreateMessageObject()",
                       std::string("SendAndWait(ConfigRequestMessage|3|1|[50 ") + transaction + " " + c.record + "]|" +
                           c.protocol + "|0|2|40|-1|ConfigResponseMessage|1|250)",
                       "Item(ConfigResponseMessage)", "Remove(ConfigResponseMessage)"}));
    }
    EXPECT_EQ(f.complaint(), "");
  });
}

TEST(SecurityNegotiation, FailsWithItsOwnTexts) {
  for_every_negotiation([](SecurityFixture& f, const NegotiationCase& c, const Ref<Object>& object) {
    const std::string source = std::string(c.name).append(".").append(c.operation);
    const bool subtype = c.operation == kSubtype;
    const auto expect = [&](const std::string& front, std::string_view text) {
      EXPECT_EQ(listed(*object, raised_by([&] { object->call(c.operation); })),
                (Raised{1, source, std::string(front).append(text).append(c.number)}));
      return f.wire.take_calls().back();
    };
    const std::string other_transaction =
        "TransactionID field of ConfigurationResponse message is not same as that of ConfigurationRequest message" +
        std::string(subtype ? " , sent to propose " : ", proposing ");
    const std::string not_received =
        "ConfigurationResponse not received from the AT for ConfigurationRequest on " +
        std::string(subtype ? "Session configuration Protocol proposing use of " : "Key Exchange Protocol proposing ");
    const char* const label = "ConfigResponseMessage";
    for (const char* other : {"51 FF", "51", ""}) {
      f.answer(label, other);
      EXPECT_EQ(expect(other_transaction, c.sent), "Remove(ConfigResponseMessage)");
    }
    for (const std::string& refusal : {std::string("51 03"), std::string("51 04 ") + c.refused}) {
      f.answer(label, refusal);
      EXPECT_EQ(expect(subtype ? "AT rejected the use of " : "AT rejected ", c.rejected),
                "Remove(ConfigResponseMessage)");
    }
    f.terminal->call("StaySilent");
    EXPECT_TRUE(expect(not_received, c.proposed).starts_with("SendAndWait"));
    EXPECT_TRUE(f.fake.settings->values.empty()) << "only what is accepted is remembered";
    const std::string owner(c.uninitialized_class.empty() ? c.name : c.uninitialized_class);
    EXPECT_EQ(listed(*object, raised_by([&] { create(c.name)->call(c.operation); })),
              (Raised{1, (subtype ? owner : std::string(c.name)) + "." + std::string(c.operation),
                      owner + " object not initialized. Please call <Initialize> method first."}));
  });
}

TEST(SecurityNegotiation, InitializeWantsObjectsAndLengths) {
  for (const NegotiationCase& c : kCases) {
    if (c.operation != kSubtype) continue;
    SecurityFixture f;
    const Raised wrong{1, std::string(c.name) + ".Initialize", "Invalid argument type or value not of expected type."};
    const std::size_t count = arguments_of(f, c.name).size();
    for (std::size_t i = 0; i < count; ++i) {
      for (const Value& bad : {Value(Ref<Object>()), Value("text"), Value(Null{})}) {
        std::vector<Value> arguments = arguments_of(f, c.name);
        arguments[i] = bad;
        const Ref<Object> object = create(c.name);
        const auto initialize = [&] { object->invoke("Initialize", Access::Call, arguments); };
        EXPECT_EQ(listed(*object, raised_by(initialize)), wrong) << c.name << i;
        EXPECT_EQ(error_number([&] { object->call(c.operation); }), 1) << "still not initialised";
      }
    }
  }
  SecurityFixture f;
  for (const double bits : {-1.0, 65536.0, 1e12}) {
    EXPECT_EQ(raised_by([&] {
                create("SB_PROT_SHA1Authentication")->call("Initialize", f.wired_signalling, bits, f.wired_messages);
              }),
              (Raised{1, "SB_PROT_SHA1Authentication.Initialize", "Invalid value of Auth Key Length specified."}));
  }
  EXPECT_EQ(
      error_number([&] {
        create("SB_PROT_DHKeyXChange")->call("Initialize", f.wired_signalling, f.wired_security, 512, f.wired_messages);
      }),
      1);
}

TEST(SecurityNegotiation, TakesAnotherNumberAndRemembersIt) {
  SecurityFixture f;
  const Ref<Object> key_exchange = initialized(f, "SB_PROT_DHKeyXChange");
  EXPECT_TRUE(key_exchange->call("NegotiateSKeyLength", 1024).to_boolean());
  EXPECT_NE(f.wire.take_calls().at(1).find("[50 00 02 00 01]|5|"), std::string::npos);
  EXPECT_EQ(f.setting("KeyExchangeFields", "MRUSKeyLength"), "1024");
  EXPECT_EQ(error_number([&] { key_exchange->call("NegotiateSKeyLength", 96); }), 1);
  raised_by([&] { key_exchange->call("ExecuteDHKeyXChange"); });
  EXPECT_EQ(f.wire.calls.at(0), "GetANPublicKey(1024)");
  key_exchange->call("ClearSessionStateInfo");
  EXPECT_EQ(f.setting("KeyExchangeFields", "MRUSKeyLength"), "0");

  const Ref<Object> authentication = initialized(f, "SB_PROT_SHA1Authentication");
  EXPECT_TRUE(authentication->call("NegotiateAuthKeyLength", 65535).to_boolean());
  EXPECT_EQ(f.setting("AuthenticationFields", "MRUAuthKeyLength"), "65535");
  EXPECT_EQ(f.setting("AuthFields", "MRUAuthKeyLength"), "none") << "the two are kept apart";
  for (const std::int32_t bits : {-1, 65536}) {
    EXPECT_EQ(error_number([&] { authentication->call("NegotiateAuthKeyLength", bits); }), 1);
    EXPECT_EQ(error_number([&] { authentication->call("NegotiateProtocolSubtype", bits); }), 5);
  }
  f.terminal->call("Refuse", i16(18));
  EXPECT_EQ(raised_by([&] { authentication->call("NegotiateProtocolSubtype", 7); }).description,
            "AT rejected the use of SHA-1 Authentication Protocol , Subtype 7");
}

}  // namespace
}  // namespace vorlan::test
