// Attribute records taken apart for people: which attribute a record is of, and what is wrong with it.
#include <gtest/gtest.h>

#include <algorithm>

#include "attributes/complex/complex_attribute.hpp"
#include "attributes/negotiation/configuration_messages.hpp"
#include "attributes/negotiation/dissection.hpp"
#include "attributes/simple_attribute.hpp"
#include "support/message_cases.hpp"
#include "support/octets.hpp"

namespace vorlan::test {
namespace {

const Registry& registry() {
  static const Registry kRegistry(class_tables());
  return kRegistry;
}

const AttributeCatalogue& catalogue() {
  static const AttributeCatalogue kCatalogue(registry());
  return kCatalogue;
}

/// A record as wide as the class wants it.
std::string record_of(Attribute& attribute) {
  if (auto* simple = dynamic_cast<SimpleAttribute*>(&attribute)) {
    simple->let_value(std::string(simple->attribute_class().spec().value_bits, '0'));
    return simple->build();
  }
  auto& complex = dynamic_cast<ComplexAttribute&>(attribute);
  return complex.build(complex.has_value_records() ? complex.value(0).build() : std::string());
}

TEST(AttributeDissection, EveryAttributeBelongsToAProtocol) {
  std::size_t attributes = 0;
  for (const Registry::Class& cls : registry().classes()) {
    if (cls.info().find("BuildAttribute") < 0) continue;
    const Ref<Object> object = create(cls.info().name());
    const std::string record = record_of(dynamic_cast<Attribute&>(*object));
    bool found = false;
    for (int type = 0; type <= 0x1B; ++type) {
      const auto candidates = catalogue().candidates(record, type, false);
      found = found || std::any_of(candidates.begin(), candidates.end(), [&](const auto& candidate) {
                return candidate.attribute->class_info()->name() == cls.info().name();
              });
    }
    EXPECT_TRUE(found) << cls.info().name();
    ++attributes;
  }
  EXPECT_GT(attributes, 120U);
}

TEST(AttributeDissection, OneAttributeWithTwoAttributeIDsIsNotAmbiguous) {
  constexpr int kStream0Application = 0x14;
  for (const std::string_view hex : {"02 FF 01", "03 FF FF 01"}) {
    const std::string bits = bits_of(std::string("50 01 ").append(hex));
    const auto tree = dissect(SB_MsgConfigurationRequest::shared_class(), bits, catalogue(), kStream0Application);
    ASSERT_EQ(tree.size(), 3U);
    EXPECT_EQ(tree[2].value, "SB_App_AttrRANHandoff");
    EXPECT_EQ(tree[2].note, "");
    ASSERT_EQ(tree[2].below.size(), 3U);
    EXPECT_EQ(tree[2].below[1].bits.size(), hex.size() > 8 ? 16U : 8U);
    EXPECT_EQ(tree[2].below[2].value, "1") << hex;
  }
}

TEST(AttributeDissection, SaysWhatIsWrongWithARecord) {
  struct Case {
    std::string_view name, hex, of_length, of_id;
  };
  constexpr Case kCases[] = {
      {"SB_Mac_AttrDRCLock", "03 01 01 A0", "", ""},
      {"SB_Mac_AttrDRCLock", "09 01 01 A0", "not the octets that follow", ""},
      {"SB_Mac_AttrDRCLock", "03 02 01 A0", "", "not the AttributeID of SB_Mac_AttrDRCLock"},
      {"SB_MAC_AttrBucketLevelMaxNN", "03 FE 07 50", "", ""},
      {"SB_MAC_AttrBucketLevelMaxNN", "03 FD 07 50", "", "not the AttributeID of SB_MAC_AttrBucketLevelMaxNN"},
  };
  for (const Case& row : kCases) {
    SCOPED_TRACE(row.hex);
    const Ref<Object> object = create(row.name);
    const std::string bits = bits_of(row.hex);
    const auto tree = dynamic_cast<Attribute&>(*object).dissect(bits, {0, static_cast<std::uint32_t>(bits.size())});
    EXPECT_EQ(tree[0].note, row.of_length);
    EXPECT_EQ(tree[1].note, row.of_id);
  }
}

TEST(AttributeListing, HoldsWhatIsRaised) {
  struct Case {
    std::string_view name, member, argument;
  };
  const std::string kTooLong(254 * 8, '0');  // with the AttributeID 256 octets
  const Case kCases[] = {
      {"SB_MsgConfigurationRequest", "PRint_AttributeCount", "<AttributeID>"},
      {"SB_MsgConfigurationRequest", "GetFlowNumber", "0"},
      {"SB_MsgConfigurationRequest", "ReturnAttributeRecord", "0"},
      {"SB_MsgConfigurationRequest", "PRstr_EnhancedIdleStateAttrValue", {}},
      {"SB_MsgConfigurationResponse", "PRstr_ValId", "1"},
      {"SB_MsgConfigurationResponse", "PRstr_AttrVal", "1"},
      {"SB_App_ValReservationKKQoSReqFwd", "Decode_ProfileType1", {}},
      {"SB_App_ValReservationKKQoSReqFwd", "PRstr_QoSAttribSetID", "7"},
      {"SB_App_AttrReservationKKQoSReqFwd", "BuildAttribute", kTooLong},
  };
  for (const Case& row : kCases) {
    const Ref<Object> object = create(row.name);
    std::vector<Value> arguments;
    if (!row.argument.empty()) arguments.emplace_back(row.argument);
    const bool is_method = row.member.substr(0, 2) != "PR";
    const Raised raised =
        raised_by([&] { object->invoke(row.member, is_method ? Access::Call : Access::Get, arguments); });
    const auto errors = object->class_info()->errors();
    EXPECT_TRUE(std::any_of(errors.begin(), errors.end(),
                            [&](const ErrorInfo& error) {
                              return error.number == raised.number && error.source == raised.source &&
                                     error.description == raised.description;
                            }))
        << row.member << ": " << raised.description;
  }
}

}  // namespace
}  // namespace vorlan::test
