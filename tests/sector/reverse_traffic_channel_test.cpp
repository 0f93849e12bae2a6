// The proposals of SB_PROT_RevTrafficChannel.
#include "sector/reverse_traffic_channel.hpp"

#include "sector/sector_fixture.hpp"
#include "support/octets.hpp"

namespace vorlan::test {
namespace {

struct ReverseFixture : SectorFixture {
  ReverseFixture() {
    const auto integers = [this](const char* front, std::int16_t value, std::initializer_list<const char*> names) {
      for (const char* name : names) parameters->let(front + std::string(name), value++);
    };
    integers("PRint_Transition", 1,
             {"009k6_019k2", "019k2_038k4", "038k4_076k8", "076k8_153k6", "019k2_009k6", "038k4_019k2", "076k8_038k4"});
    integers("PRint_Transition", 255, {"153k6_076k8"});
    integers("PRint_DataOffset", -8, {"Nom", "9k6", "19k2", "38k4", "76k8"});
    integers("PRint_DataOffset", 7, {"153k6"});
    integers("PRint_RPCStep", 1, {""});
    protocol->call("Initialize", Ref<Object>(parameters), Ref<Object>(signalling), Ref<Object>(messages));
  }
  Ref<SB_PROT_RevTrafficChannel> protocol = make<SB_PROT_RevTrafficChannel>(system.platform);
};

struct Proposed {
  const char* attribute;  ///< "Rate" or "Power"
  const char* label;
  const char* request;
  const char* other_source_end;  ///< of the error about another TransactionID
};
constexpr Proposed kProposed[] = {
    {"Rate", "RP", "0A 01 01 01 02 03 04 05 06 07 FF", " "},
    {"Power", "PP", "06 00 01 89 AB C7 40", ""},
};

TEST(ReverseTrafficChannel, ProposesAnAttribute) {
  for (const Proposed& p : kProposed) {
    ReverseFixture f;
    const std::string operation = "Negotiate" + std::string(p.attribute) + "ParametersAttribute";
    const std::string source = "SB_PROT_RevTrafficChannel." + operation;
    const std::string request = std::string(p.label) + "ConfigRequestMessage";
    const std::string response = std::string(p.label) + "ConfigResponseMessage";
    const auto negotiate = [&] { f.protocol->call(operation); };
    const std::string id = std::string(p.request).substr(3, 2);
    const auto sent = [&](const std::string& transaction) {
      return "Sig.SendAndWait(" + request + "|3|1|[50 " + transaction + " " + p.request + "]|4|0|2|40|-1|" + response +
             "|1|250)";
    };
    f.answers[response] = received("51 00 02 7F 01 02 " + id + " 01");
    EXPECT_TRUE(f.protocol->call(operation).to_boolean());
    EXPECT_EQ(f.take_calls(), (Calls{"Sig.CreateMessageObject()", sent("00"), "Messages.Remove(" + request + ")",
                                     "Messages.Item(" + response + ")", "Messages.Remove(" + response + ")"}));
    // The answer of the first exchange comes again, then one without the attribute, one cut short, none at all.
    EXPECT_EQ(
        raised_by(negotiate),
        (Raised{1, source + p.other_source_end,
                "TransactionID field of ConfigurationResponse message is not same as that of ConfigurationRequest "
                "message , sent with Rate Parameters Attribute"}));
    EXPECT_EQ(f.take_calls()[1], sent("01"));
    for (const std::string& rejection : {"51 02 02 7F " + id, std::string("51 03"), std::string("51 04 01")}) {
      f.answers[response] = received(rejection);
      EXPECT_EQ(raised_by(negotiate),
                (Raised{1, source,
                        "AT rejected the use of new " + std::string(p.attribute) + "Parameter Attribute sentfrom AN"}));
    }
    f.take_calls();
    f.silent_to = request;
    EXPECT_EQ(raised_by(negotiate),
              (Raised{1, source,
                      "ConfigurationResponse not received from the AT for ConfigurationRequest on Default Reverse "
                      "Traffic Channel MAC Protoco1 proposing Rate Parameters Attribute"}));
    EXPECT_EQ(f.take_calls().back(), "Messages.Remove(" + request + ")");
  }
}

TEST(ReverseTrafficChannel, NumbersThatDoNotFitAreNotSent) {
  for (const auto& [property, number] :
       {std::pair{"PRint_Transition009k6_019k2", 256}, std::pair{"PRint_Transition009k6_019k2", -1},
        std::pair{"PRint_RPCStep", 4}, std::pair{"PRint_DataOffsetNom", 16}, std::pair{"PRint_DataOffsetNom", -9}}) {
    ReverseFixture f;
    f.parameters->let(property, static_cast<std::int16_t>(number));
    const bool rate = std::string_view(property).find("Transition") != std::string_view::npos;
    EXPECT_EQ(error_number([&] {
                f.protocol->call(rate ? "NegotiateRateParametersAttribute" : "NegotiatePowerParametersAttribute");
              }),
              1)
        << property << " " << number;
    EXPECT_EQ(f.take_calls(), Calls{});
  }
}

TEST(ReverseTrafficChannel, NeedsItsObjects) {
  ReverseFixture f;
  const Ref<SB_PROT_RevTrafficChannel> fresh = make<SB_PROT_RevTrafficChannel>(f.system.platform);
  const Raised wrong{1, "SB_PROT_RevTrafficChannel.Initialize", "Invalid argument type or value not of expected type."};
  for (const Value& bad : {Value(), Value(Ref<Object>()), Value("text")}) {
    for (std::size_t i = 0; i < 3; ++i) {
      std::array<Value, 3> arguments{Ref<Object>(f.parameters), Ref<Object>(f.signalling), Ref<Object>(f.messages)};
      arguments[i] = bad;
      EXPECT_EQ(raised_by([&] { fresh->invoke("Initialize", Access::Call, arguments); }), wrong);
    }
  }
  for (const Proposed& p : kProposed) {
    const std::string operation = "Negotiate" + std::string(p.attribute) + "ParametersAttribute";
    EXPECT_EQ(raised_by([&] { fresh->call(operation); }),
              (Raised{1, "SB_PROT_RevTrafficChannel." + operation,
                      "SB_PROT_RevTrafficChannel object not initialized. Please call <Initialize> method first."}));
  }
}

}  // namespace
}  // namespace vorlan::test
