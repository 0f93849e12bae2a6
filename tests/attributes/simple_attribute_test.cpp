// What single attributes, or the engine in its corners, do.
#include <gtest/gtest.h>

#include "attributes/app_simple_attributes.hpp"
#include "attributes/con_ses_simple_attributes.hpp"
#include "attributes/mac_simple_attributes.hpp"
#include "support/message_cases.hpp"

namespace vorlan::test {
namespace {

TEST(SimpleAttribute, ReadsFromTheReceivedRecordForLife) {
  SB_Mac_AttrFRABlow attribute;
  attribute.let<"PRstr_Attribute">("00000011111111111111110111110000");
  attribute.let<"PRstr_AttrValue">("00001111");
  attribute.let<"PRstr_Length">("00000000");
  EXPECT_EQ(raised_by([&] { attribute.let<"PRstr_Attribute">(std::string(31, '0')); }),
            (Raised{1, "SB_Mac_AttrFRABlow.PRstr_Attribute", "Error: Length of Attribute String should be 32."}));
  EXPECT_EQ(attribute.get<"PRstr_Attribute">(), "00000011111111111111110111110000");
  EXPECT_EQ(attribute.get<"PRstr_Length">(), "00000011");
  EXPECT_EQ(attribute.get<"PRstr_AttribId">(), "1111111111111101");
  EXPECT_EQ(attribute.get<"PRstr_AttrValue">(), "11110000");
  EXPECT_EQ(attribute.build(),
            "00000011"
            "1111111111111101"
            "00001111")
      << "what was set, not what was received";
}

TEST(SimpleAttribute, CutsOffWhatAReceivedRecordLacks) {
  const std::string whole =
      "00000011"
      "11111111"
      "0000000000000001"
      "1111";
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

struct FlowCase {
  std::string_view name;
  std::uint16_t id;
  std::uint8_t value;
};

TEST(SimpleAttribute, TakesTheValueOfItsFlow) {
  constexpr FlowCase kCases[] = {
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
  for (const FlowCase& row : kCases) {
    const Ref<Object> object = create(row.name);
    object->let("PRstr_AttrValue", "11111111");
    object->let("PRstr_AttribId", ShortBits(row.id, 16).view());
    EXPECT_EQ(object->get("PRstr_AttrValue").to_text(), ShortBits(row.value, 8).view()) << row.name << " " << row.id;
  }
}

TEST(SimpleAttribute, RefusesTheIdOfAnotherAttribute) {
  const struct {
    std::string_view name;
    Raised raised;
  } kCases[] = {
      {"SB_MAC_AttrMergeThresholdNN",
       {1, "SB_MAC_AttrMergeThresholdNN.PRstr_AttribID", "Invalid attribute Id for Attribute MergeThresholdNN."}},
      {"SB_MAC_AttrBurstDurationFactorNN",
       {1, "SB_Mac_AttrBurstDurationFactorNN.PRstr_AttribID",
        "Invalid Attribute Id for Attribute BurstDurationFactorNN."}},
      {"SB_MAC_AttrTransmissionModeNN",
       {1, "SB_MAC_AttrTransmissionModeNN.PRstr_AttribID", "Invalid Attribute Id for Attribute TransmissionModeNN."}},
      {"SB_MAC_AttrQRABSelectNN", {1, "SB_MAC_AttrQRABSelectNN.PRstr_AttribID", "Invalid Attribute Id."}},
      {"SB_MAC_AttrT2PFilterTCNN",
       {1, "SB_MAC_AttrT2PFilterTCNN.PRstr_AttribID", "Invalid Attribute Id for Attribute T2PFilterTCNN."}},
      {"SB_MAC_AttrBucketLevelMaxNN", {1, "SB_MAC_AttrBucketLevelMax.PRstr_AttribID", "Invalid Attribute ID."}},
  };
  for (const auto& row : kCases) {
    const Ref<Object> object = create(row.name);
    object->let("PRstr_AttrValue", "11111111");
    const std::string before = object->call("BuildAttribute").to_text();
    EXPECT_EQ(raised_by([&] { object->let("PRstr_AttribId", "0111111100000001"); }), row.raised);
    EXPECT_EQ(object->call("BuildAttribute").to_text(), before);
  }
}

TEST(SimpleAttribute, RANHandoffHasTwoAttributeIDs) {
  const Ref<Object> object = create("SB_App_AttrRANHandoff");
  EXPECT_EQ(object->get("PRstr_AttribId", true).to_text(), "1111111111111111");
  EXPECT_EQ(object->call("BuildAttribute", true).to_text(),
            "00000011"
            "1111111111111111"
            "00000000");
  EXPECT_EQ(object->call("BuildAttribute", false).to_text(),
            "00000010"
            "11111111"
            "00000000");
  EXPECT_EQ(error_number([&] { object->get("PRstr_AttribId"); }), 450);
  object->let("PRstr_Attribute",
              "00000010"
              "11111110"
              "00000001");
  EXPECT_EQ(object->get("PRstr_AttribId", false).to_text(), "11111110");
  EXPECT_EQ(object->get("PRstr_AttribId", true).to_text(), "1111111000000001");
  EXPECT_EQ(object->get("PRstr_AttrValue").to_text(), "00000001");
}

TEST(SimpleAttribute, BuildsValuesOfVariableWidth) {
  SB_Con_AttrSmallSlotCycleAllowed slot_cycle;
  slot_cycle.let<"PRstr_AttrValue">("");
  EXPECT_EQ(slot_cycle.build(), "");
  slot_cycle.let<"PRstr_AttrValue">("1");
  EXPECT_EQ(slot_cycle.build(),
            "00000001"
            "11111111"
            "1")
      << "9 bits are an octet";
  slot_cycle.let<"PRstr_AttrValue">("1010");
  EXPECT_EQ(slot_cycle.build(),
            "00000010"
            "11111111"
            "1010")
      << "half an octet goes to the even number";
  SB_Ses_AttrProtocolType protocol;
  protocol.let<"PRstr_AttribId">("0000000000001110");
  protocol.let<"PRstr_AttrValue">("0001");
  EXPECT_EQ(protocol.build(),
            "00000010"
            "0000000000001110"
            "0001");
  protocol.let<"PRstr_AttrValue">("0000000000000001");
  EXPECT_EQ(protocol.build(),
            "00000100"
            "0000000000001110"
            "0000000000000001");
}

TEST(SimpleAttribute, FindsFaultsInRows) {
  const auto with = [](auto change) {
    SimpleAttributeSpec row = kAttrBucketLevelMaxNN;
    change(row);
    return fault(row);
  };
  EXPECT_EQ(fault(kAttrBucketLevelMaxNN), "");
  EXPECT_NE(with([](auto& row) { row.initial = "0101000"; }), "");
  EXPECT_NE(with([](auto& row) { row.length = 2; }), "");
  EXPECT_NE(with([](auto& row) { row.record_bits = 24; }), "");
  EXPECT_NE(with([](auto& row) { row.disagrees_on_purpose = true; }), "");
  EXPECT_NE(with([](auto& row) { row.id = 0xFE01; }), "");
  EXPECT_NE(with([](auto& row) { row.id_settable = false; }), "");
  EXPECT_NE(with([](auto& row) { row.up_to = true; }), "");
  EXPECT_NE(with([](auto& row) { row.texts = AttributeTexts::Early; }), "");
}

}  // namespace
}  // namespace vorlan::test
