// What single value classes and complex attributes do, or the engine in its corners.
#include <gtest/gtest.h>

#include "attributes/complex/app_attributes.hpp"
#include "attributes/complex/con_ses_attributes.hpp"
#include "attributes/complex/mac_attributes.hpp"
#include "support/message_cases.hpp"
#include "support/octets.hpp"

namespace vorlan::test {
namespace {

TEST(Value, DRCLockComesInAList) {
  const Ref<Object> attribute = create("SB_Mac_AttrDRCLock");
  attribute->let("PRstr_Attribute", bits_of("05 01 00A0 0140"));
  EXPECT_EQ(attribute->get("PRint_AttrDRCLockCount").to_integer(), 2);
  const Ref<Object> value = attribute->get("PRobj_DRCLockVal", 1).to_object();
  EXPECT_EQ(value->get("PRstr_ValString").to_text(), bits_of("0140"));
  EXPECT_EQ(value->get("PRstr_DRCLockPeriod").to_text(), "0");
  EXPECT_EQ(value->get("PRstr_DRCLockLength").to_text(), "10");
  EXPECT_EQ(value->get("PRstr_Reserved").to_text(), "00000");
  // A malformed record leaves the received ones where they are.
  EXPECT_EQ(raised_by([&] { attribute->let("PRstr_Attribute", bits_of("04 01 00A0 01")); }),
            (Raised{1, "SB_Mac_AttrDRCLock.PRstr_Attribute", "Error:Attribute string length is incorrect. "}));
  EXPECT_EQ(attribute->get("PRobj_DRCLockVal", 0).to_object()->get("PRstr_DRCLockPeriod").to_text(), "1");
}

TEST(Value, CycleIsThereOnlyIfEnabled) {
  for (const std::string_view name : {"SB_Con_ValPrefCtrlChannelCycle", "SB_Ses_ValProtocolType"}) {
    const Ref<Object> value = create(name);
    value->let("PRstr_ValString", bits_of("02 0000 "));
    EXPECT_EQ(value->call("GetValLengthAt", bits_of("FF 02 00 FF"), 9).to_integer(), 16);
    EXPECT_EQ(raised_by([&] { value->get("PRstr_PrefCtrlChannelCycle"); }),
              (Raised{1, "SB_Con_ValPrefCtrlChannelCycle.PRstr_PrefCtrlChannelCycle",
                      "<PrefCtrlChannelCycle> field is not available in this ValStr."}));
    value->let("PRstr_ValString", bits_of("02 8005"));
    EXPECT_EQ(value->get("PRstr_PrefCtrlChannelCycle").to_text(), "000000000000101");
    value->let("PRstr_PrefCtrlChannelCycleEnabled", "1");
    value->let("PRstr_PrefCtrlChannelCycle", "000000000000111");
    EXPECT_EQ(value->call("BuildValueRecord").to_text(), bits_of("00 8007"));
  }
}

TEST(Value, SlopeAndInterceptsNeedDynamicThresholds) {
  for (const bool same : {true, false}) {
    const std::string name = same ? "SB_Con_ValSetMgmSameChnlParameter" : "SB_Con_ValSetMgmDiffChnlParameters";
    const Ref<Object> value = create(name);
    const std::string plain = value->call("BuildValueRecord").to_text();
    for (const std::string field : {"SoftSlope", "AddIntercept", "DropIntercept"}) {
      const Raised refused{
          1, name + ".PRstr_" + field,
          std::string(same ? "SetMessageSameChannelParameter" : "SetMessageDifferentChannelParameter") +
              " attribute <DynamicThresholds> field set to 0. <" + field +
              "> field exists for <DynamicThresholds> value 1."};
      EXPECT_EQ(raised_by([&] { value->let("PRstr_" + field, "000001"); }), refused);
      const Ref<Object> received = create(name);
      received->let("PRstr_ValString", plain);
      EXPECT_EQ(raised_by([&] { received->get("PRstr_" + field); }), refused);
    }
    EXPECT_EQ(value->call("BuildValueRecord").to_text(), plain);
    value->let("PRstr_DynamicThresholds", "1");
    value->let("PRstr_SoftSlope", "000001");
    value->let("PRstr_DropIntercept", "111111");
    value->let("PRstr_NeighborMaxAge", "1010");
    // 001110 000101 010010 0011 1 000001 000000 111111 1010, filled up with 3
    EXPECT_EQ(value->call("BuildValueRecord").to_text(), bits_of("00 38548E081FD0"));
    EXPECT_EQ(value->call("GetValLengthAt", bits_of("0038548C00 0038548E081FD0"), 1).to_integer(), 40);
    EXPECT_EQ(value->call("GetValLengthAt", bits_of("0038548C00 0038548E081FD0"), 41).to_integer(), 56);
  }
}

TEST(Value, FlagSaysWhatGettersRead) {
  SB_Con_ValSetMgmSameChnlParameter value;
  EXPECT_FALSE(value.Object::get("PRbln_ValFlag").to_boolean());
  EXPECT_EQ(error_number([&] { value.Object::let("PRbln_ValFlag", true); }), 1) << "nothing received yet";
  value.receive(bits_of("09 04 000000 00"));
  EXPECT_TRUE(value.Object::get("PRbln_ValFlag").to_boolean());
  EXPECT_EQ(value.get<"PRstr_PilotAdd">(), "000001");
  value.Object::let("PRbln_ValFlag", false);
  EXPECT_EQ(value.get<"PRstr_PilotAdd">(), "001110");
  value.Object::let("PRbln_ValFlag", true);
  EXPECT_EQ(value.get<"PRstr_ValueId">(), "00001001");
}

TEST(Value, InitializeMakesItNew) {
  for (const std::string_view name : {"SB_Mac_ValPowerParameters", "SB_Mac_ValDRCTranslationOffset"}) {
    const Ref<Object> value = create(name);
    const std::string fresh = value->call("BuildValueRecord").to_text();
    value->let("PRstr_ValueId", "11111111");
    value->let("PRstr_ValString", std::string(64, '1'));
    value->call("Initialize");
    EXPECT_EQ(value->get("PRstr_ValueId").to_text(), "00000000");
    EXPECT_EQ(value->get("PRstr_ValString").to_text(), "");
    EXPECT_EQ(value->call("BuildValueRecord").to_text(), fresh);
  }
}

TEST(Value, OlderTerminalsSendShorterPowerParameters) {
  SB_Mac_AttrPowerParameters attribute;
  for (const std::string_view record : {"03 01 05F3", "05 01 05F3 06F3", "04 01 05F312", "06 01 05F3120040"}) {
    attribute.receive(bits_of(record));
    EXPECT_EQ(attribute.count(), record.size() == 15 ? 2U : 1U) << record;
    const Record& value = attribute.value(0).record();
    EXPECT_EQ(value.get("PRstr_DataOffset9k6"), "0011");
    EXPECT_EQ(value.get("PRstr_DataOffset19k2"), record.size() > 10 && record.size() != 15 ? "0001" : "") << record;
  }
  EXPECT_EQ(error_number([&] { attribute.receive(bits_of("02 01 05")); }), 1);
}

TEST(Value, SetOperationLeavesWhatIsEmpty) {
  const Ref<Object> value = create("SB_Mac_ValPowerParameters128");
  value->call("SetPowerParameters128", "", "01", "", "", "00", "11110000", "", "", "");
  EXPECT_EQ(error_number([&] { value->call("SetPowerParameters128", "11111111", "111"); }), 1);
  EXPECT_EQ(value->call("BuildValueRecord").to_text(), bits_of("01 6C F0 03 03 03"));
  const Ref<Object> attribute = create("SB_Mac_AttrPowerParameters256");
  EXPECT_EQ(attribute->call("BuildAttribute", value->call("BuildValueRecord")).to_text(),
            bits_of("08 0006 016CF0030303"));
}

TEST(Value, BuildRefusesValuesThatNoLongerFitTheirLength) {
  SB_App_ValFlowNNFlwPrtclParmFwd value;
  value.let<"PRstr_ProtocolParametersLength">("00000010");
  EXPECT_EQ(raised_by([&] { (void)value.build(); }),
            (Raised{1, "SB_App_ValFlowNNFlowProtocolParametersFwd.PRstr_ProtocolParameters",
                    "Length of <ProtocolParameters> field should be 16 bits."}));
  value.Object::let("PRstr_SProtocolParameters", bits_of("ABCD"));
  EXPECT_EQ(value.build(), bits_of("00 00 02 ABCD"));
}

TEST(Value, ControlAndForeignCharactersAreNoBits) {
  SB_Mac_ValDRCLock value;
  for (const std::string_view wrong : {std::string_view("0\n", 2), std::string_view("\xC3\xA4", 2)}) {
    EXPECT_EQ(error_number([&] { value.let<"PRstr_DRCLockLength">(wrong); }), 13);
  }
  EXPECT_EQ(value.build(), bits_of("00A0"));
}

}  // namespace
}  // namespace vorlan::test
