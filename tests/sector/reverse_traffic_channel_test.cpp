// The proposals of SB_PROT_RevTrafficChannel.
#include "sector/reverse_traffic_channel.hpp"

#include "sector/simulated_sector.hpp"

namespace vorlan::test {
namespace {

struct ReverseFixture : SimulatedSector {
  ReverseFixture() {
    const auto integers = [this](const std::string& front, int value, std::initializer_list<const char*> names) {
      for (const char* name : names) parameters->let(front + name, i16(value++));
    };
    integers("PRint_Transition", 1,
             {"009k6_019k2", "019k2_038k4", "038k4_076k8", "076k8_153k6", "019k2_009k6", "038k4_019k2", "076k8_038k4"});
    integers("PRint_Transition", 255, {"153k6_076k8"});
    integers("PRint_DataOffset", -8, {"Nom", "9k6", "19k2", "38k4", "76k8"});
    integers("PRint_DataOffset", 7, {"153k6"});
    protocol->invoke("Initialize", Access::Call, arguments);
  }
  Ref<Object> wired_signalling = tapped(signalling);
  std::array<Value, 3> arguments{parameters, wired_signalling, wired_signalling->get("Messages")};
  Ref<Object> protocol = make<SB_PROT_RevTrafficChannel>(fake.platform);
};

struct Proposed {
  std::string attribute;  ///< "Rate" or "Power"
  std::string request;
  std::string attribute_id;
  std::string other_source_end;  ///< of the error about another TransactionID
  [[nodiscard]] std::string operation() const { return "Negotiate" + attribute + "ParametersAttribute"; }
  [[nodiscard]] std::string label() const { return attribute.substr(0, 1) + "PConfigRe"; }
};
const Proposed kProposed[] = {
    {"Rate", "0A 01 01 01 02 03 04 05 06 07 FF", "01", " "},
    {"Power", "06 00 01 89 AB C7 40", "00", ""},
};

TEST(ReverseTrafficChannel, ProposesAnAttribute) {
  for (const Proposed& p : kProposed) {
    ReverseFixture f;
    const std::string source = "SB_PROT_RevTrafficChannel." + p.operation();
    const auto negotiate = [&] { return listed(*f.protocol, raised_by([&] { f.protocol->call(p.operation()); })); };
    const std::string request = p.label() + "questMessage";
    const std::string response = p.label() + "sponseMessage";
    f.wire.take_calls();
    negotiate();
    EXPECT_EQ(f.wire.take_calls(),
              (Calls{"CreateMessageObject()",
                     "SendAndWait(" + request + "|3|1|[50 00 " + p.request + "]|4|0|2|40|-1|" + response + "|1|250)",
                     "Remove(" + request + ")", "Item(" + response + ")", "Remove(" + response + ")"}));
    const Raised other{1, source + p.other_source_end,
                       "TransactionID field of ConfigurationResponse message is not same as that of "
                       "ConfigurationRequest message , sent with Rate Parameters Attribute"};
    const Raised rejected{1, source, "AT rejected the use of new " + p.attribute + "Parameter Attribute sentfrom AN"};
    // The answer to another request, two without the attribute, one cut short, one behind another attribute.
    const std::pair<std::string, Raised> answers[] = {{"51 00", other},
                                                      {"51 02 02 7F " + p.attribute_id, rejected},
                                                      {"51 03", rejected},
                                                      {"51 04 01", rejected},
                                                      {"51 05 02 7F 01 02 " + p.attribute_id + " 01", Raised{}}};
    for (const auto& [answer, raised] : answers) {
      f.wire.answers["Item(" + response + ")"] = Ref<Object>(received(answer));
      EXPECT_EQ(negotiate(), raised) << answer;
    }
    f.terminal->call("StaySilent", i16(4));
    EXPECT_EQ(negotiate(),
              (Raised{1, source,
                      "ConfigurationResponse not received from the AT for ConfigurationRequest on Default Reverse "
                      "Traffic Channel MAC Protoco1 proposing Rate Parameters Attribute"}));
    EXPECT_EQ(f.wire.calls.back(), "Remove(" + request + ")");
  }
}

TEST(ReverseTrafficChannel, NumbersThatDoNotFitAreNotSent) {
  for (const auto& [property, number] : {std::pair{"PRint_Transition009k6_019k2", 256},
                                         {"PRint_Transition009k6_019k2", -1},
                                         {"PRint_RPCStep", 4},
                                         {"PRint_DataOffsetNom", 16},
                                         {"PRint_DataOffsetNom", -9}}) {
    ReverseFixture f;
    f.parameters->let(property, i16(number));
    int failed = 0;
    for (const Proposed& p : kProposed) failed += error_number([&] { f.protocol->call(p.operation()); });
    EXPECT_EQ(failed, 1) << property << " " << number;
    EXPECT_EQ(f.wire.take_calls("Send").size(), 1U) << "the other attribute's";
  }
}

TEST(ReverseTrafficChannel, NeedsItsObjects) {
  ReverseFixture f;
  const auto fresh = make<SB_PROT_RevTrafficChannel>(f.fake.platform);
  for (const Value& bad : {Value(), Value(Ref<Object>()), Value("text")}) {
    for (std::size_t i = 0; i < f.arguments.size(); ++i) {
      std::array<Value, 3> arguments = f.arguments;
      arguments[i] = bad;
      EXPECT_EQ(
          listed(*fresh, raised_by([&] { fresh->invoke("Initialize", Access::Call, arguments); })),
          (Raised{1, "SB_PROT_RevTrafficChannel.Initialize", "Invalid argument type or value not of expected type."}));
    }
  }
  for (const Proposed& p : kProposed) {
    EXPECT_EQ(listed(*fresh, raised_by([&] { fresh->call(p.operation()); })),
              (Raised{1, "SB_PROT_RevTrafficChannel." + p.operation(),
                      "SB_PROT_RevTrafficChannel object not initialized. Please call <Initialize> method first."}));
  }
}

}  // namespace
}  // namespace vorlan::test
