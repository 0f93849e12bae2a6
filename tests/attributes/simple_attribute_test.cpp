// What single attributes, or the engine in its corners, do.
#include <gtest/gtest.h>

#include "attributes/app_simple_attributes.hpp"
#include "attributes/bits.hpp"
#include "attributes/con_ses_simple_attributes.hpp"
#include "attributes/mac_simple_attributes.hpp"
#include "support/message_cases.hpp"
#include "support/octets.hpp"

namespace vorlan::test {
namespace {

TEST(SimpleAttribute, IsAClassOfItsOwnInCpp) {
  SB_Mac_AttrFRABlow attribute;
  attribute.let<"PRstr_Attribute">(bits_of("03 FFFD F0"));
  attribute.let<"PRstr_Length">("00000000");
  EXPECT_EQ(attribute.get<"PRstr_Attribute">(), bits_of("03 FFFD F0"));
  EXPECT_EQ(attribute.get<"PRstr_Length">(), "00000011");
  EXPECT_EQ(attribute.get<"PRstr_AttribId">(), "1111111111111101");
  EXPECT_EQ(attribute.get<"PRstr_AttrValue">(), "11110000");
}

TEST(SimpleAttribute, CutsOffWhatAReceivedRecordLacks) {
  const std::string whole = bits_of("03 FF 0001 F");
  for (const std::size_t length : {0U, 5U, 8U, 11U, 16U, 25U, 32U, 36U}) {
    SB_Mac_AttrDRCGating attribute;
    attribute.receive(whole.substr(0, length));
    const auto part = [&](std::size_t from, std::size_t bits) {
      return from >= length ? "" : whole.substr(from, std::min(bits, length - from));
    };
    EXPECT_EQ(attribute.length(), part(0, 8)) << length;
    EXPECT_EQ(attribute.id(), part(8, 8)) << length;
    EXPECT_EQ(attribute.value(), part(16, 16)) << length;
  }
}

TEST(SimpleAttribute, TakesTheValueOfItsFlow) {
  constexpr struct {
    std::string_view name;
    std::uint16_t id;
    std::uint8_t value;
  } kCases[] = {
      {"SB_App_AttrFlowNNActivatedFwd", 0xF300, 1},    {"SB_App_AttrFlowNNActivatedFwd", 0xF301, 1},
      {"SB_App_AttrFlowNNActivatedFwd", 0xF302, 0},    {"SB_App_AttrFlowNNActivatedFwd", 0x0001, 0},
      {"SB_App_AttrFlowNNActivatedRev", 0xF200, 1},    {"SB_App_AttrFlowNNActivatedRev", 0xF201, 1},
      {"SB_App_AttrFlowNNActivatedRev", 0xF2FF, 0},    {"SB_MAC_AttrMergeThresholdNN", 0xFD00, 0},
      {"SB_MAC_AttrMergeThresholdNN", 0xFD01, 2},      {"SB_MAC_AttrMergeThresholdNN", 0xFDFF, 2},
      {"SB_MAC_AttrBucketLevelMaxNN", 0xFE00, 80},     {"SB_MAC_AttrBucketLevelMaxNN", 0xFE01, 108},
      {"SB_MAC_AttrBucketLevelMaxNN", 0xFE02, 80},     {"SB_MAC_AttrBucketLevelMaxNN", 0xFE03, 80},
      {"SB_MAC_AttrBurstDurationFactorNN", 0xFA04, 0}, {"SB_MAC_AttrTransmissionModeNN", 0xFC05, 0},
      {"SB_MAC_AttrQRABSelectNN", 0xFB06, 0},          {"SB_MAC_AttrT2PFilterTCNN", 0xF907, 1},
      {"SB_App_AttrFlowNNNakEnableFwd", 0xFE01, 0xFF},  // has no values of its flows: keeps what was set
  };
  for (const auto& row : kCases) {
    const Ref<Object> object = create(row.name);
    object->let("PRstr_AttrValue", "11111111");
    object->let("PRstr_AttribId", bits_of(row.id, 16));
    EXPECT_EQ(object->get("PRstr_AttrValue").to_text(), bits_of(row.value, 8)) << row.name << " " << row.id;
  }
}

TEST(SimpleAttribute, RefusesTheIdOfAnotherAttribute) {
  constexpr struct {
    std::string_view name, source, text;
  } kCases[] = {
      {"MAC_AttrMergeThresholdNN", "MAC_AttrMergeThresholdNN", "Invalid attribute Id for Attribute MergeThresholdNN."},
      {"MAC_AttrBurstDurationFactorNN", "Mac_AttrBurstDurationFactorNN",
       "Invalid Attribute Id for Attribute BurstDurationFactorNN."},
      {"MAC_AttrTransmissionModeNN", "MAC_AttrTransmissionModeNN",
       "Invalid Attribute Id for Attribute TransmissionModeNN."},
      {"MAC_AttrQRABSelectNN", "MAC_AttrQRABSelectNN", "Invalid Attribute Id."},
      {"MAC_AttrT2PFilterTCNN", "MAC_AttrT2PFilterTCNN", "Invalid Attribute Id for Attribute T2PFilterTCNN."},
      {"MAC_AttrBucketLevelMaxNN", "MAC_AttrBucketLevelMax", "Invalid Attribute ID."},
  };
  for_every(kCases, [](const auto& row) {
    const Ref<Object> object = create(row.name, "SB_");
    object->let("PRstr_AttrValue", "11111111");
    const std::string before = object->call("BuildAttribute").to_text();
    EXPECT_EQ(raised_by([&] { object->let("PRstr_AttribId", "0111111100000001"); }),
              (Raised{1, "SB_" + std::string(row.source) + ".PRstr_AttribID", std::string(row.text)}));
    EXPECT_EQ(object->call("BuildAttribute").to_text(), before);
  });
}

TEST(SimpleAttribute, RANHandoffHasTwoAttributeIDs) {
  const Ref<Object> object = create("SB_App_AttrRANHandoff");
  EXPECT_EQ(object->get("PRstr_AttribId", true).to_text(), "1111111111111111");
  EXPECT_EQ(object->call("BuildAttribute", true).to_text(), bits_of("03 FFFF 00"));
  EXPECT_EQ(object->call("BuildAttribute", false).to_text(), bits_of("02 FF 00"));
  EXPECT_EQ(error_number([&] { object->get("PRstr_AttribId"); }), 450);
  object->let("PRstr_Attribute", bits_of("02 FE 01"));
  EXPECT_EQ(object->get("PRstr_AttribId", false).to_text(), "11111110");
  EXPECT_EQ(object->get("PRstr_AttribId", true).to_text(), "1111111000000001");
  EXPECT_EQ(object->get("PRstr_AttrValue").to_text(), "00000001");
}

TEST(SimpleAttribute, BuildsValuesOfVariableWidth) {
  SB_Con_AttrSmallSlotCycleAllowed slot_cycle;
  SB_Ses_AttrProtocolType protocol;
  protocol.let<"PRstr_AttribId">(bits_of("000E"));
  const struct {
    SimpleAttribute& attribute;
    std::string value;
    std::string record;
  } kCases[] = {
      {slot_cycle, "", ""},
      {slot_cycle, "1", bits_of("01 FF") + "1"},        // 9 bits are an octet
      {slot_cycle, "1010", bits_of("02 FF") + "1010"},  // half an octet goes to the even number
      {slot_cycle, "10101", bits_of("02 FF") + "10101"},
      {protocol, "0001", bits_of("02 000E") + "0001"},
      {protocol, "0000000000000001", bits_of("04 000E 0001")},
  };
  for (const auto& row : kCases) {
    row.attribute.let_value(row.value);
    EXPECT_EQ(row.attribute.build(), row.record);
  }
}

TEST(SimpleAttribute, FindsFaultsInRows) {
  const SimpleAttributeSpec& sound = SB_MAC_AttrBucketLevelMaxNN::shared_class().spec();
  EXPECT_EQ(fault(sound), "");
  void (*const kFaults[])(SimpleAttributeSpec&) = {
      [](auto& row) { row.name = "SB_BucketLevelMaxNN"; },
      [](auto& row) { row.initial = "0101000"; },
      [](auto& row) { row.length = 2; },
      [](auto& row) { row.record_bits = 24; },
      [](auto& row) { row.disagrees_on_purpose = true; },
      [](auto& row) { row.id = 0xFE01; },
      [](auto& row) { row.id_settable = false; },
      [](auto& row) { row.up_to = true; },
      [](auto& row) { row.texts = AttributeTexts::Early; },
  };
  for (const auto& change : kFaults) {
    SimpleAttributeSpec row = sound;
    change(row);
    EXPECT_NE(fault(row), "") << &change - kFaults;
  }
}

}  // namespace
}  // namespace vorlan::test
