// Value records with counts and lengths, nested ones, and QoS profiles.
#include <gtest/gtest.h>

#include "attributes/bits.hpp"
#include "attributes/values/con_values.hpp"
#include "support/message_cases.hpp"
#include "support/octets.hpp"

namespace vorlan::test {
namespace {

TEST(Value, CountedListsKeepTheirElementsTogether) {
  constexpr struct {
    std::string_view name, count;
    std::string_view record;  // with two elements
    std::string_view member;
    std::string_view second;  // of its elements, hexadecimal
  } kCases[] = {
      {"SB_Con_ValPagingMask", "PRstr_MaskCount", "01 02 0A00010002 0003 0B00040005 0006", "PRstr_MaskDuration",
       "0005"},
      {"SB_App_ValANSupportedQoSProfiles", "PRstr_QoSProfileCount", "01 02 0202ABCD 0203123456", "PRstr_ProfileValue",
       "123456"},
      {"SB_App_ValFlowNNReservationFwd", "PRstr_ReservationCount", "01 02 FF 12", "PRstr_ReservationLabel", "12"},
      {"SB_App_ValSupportedHigherLayerPro", "PRstr_ProtocolCount", "01 02 FF 12", "PRstr_ProtocolIdentifier", "12"},
      // 9 and 8 bits: 000000011 00001111, 000000100 11110000
      {"SB_MAC_ValAssociatedFlowsNN", "PRstr_FlowCnt", "01 02 0187 813C 00", "PRstr_SubStream", "F0"},
  };
  for_every(kCases, [](const auto& row) {
    const std::string second = bits_of(row.second);
    const Ref<Object> value = create(row.name);
    const std::string record = bits_of(row.record);
    value->let("PRstr_ValString", record);
    EXPECT_EQ(value->get(row.member, 1).to_text(), second);
    for (const int beyond : {2, -1}) EXPECT_EQ(error_number([&] { value->get(row.member, beyond); }), 9);
    EXPECT_EQ(value->call("GetValLengthAt", record + record, 1).to_integer(), record.size());
    // A count that promises more than there is, up to the highest.
    for (const std::string_view promised : {"00000011", "11111111"}) {
      std::string wrong = record;
      wrong.replace(8, 8, promised);
      EXPECT_EQ(error_number([&] { value->let("PRstr_ValString", wrong); }), 1);
      EXPECT_EQ(error_number([&] { value->call("GetValLengthAt", wrong, 1); }), 1);
    }
    EXPECT_EQ(value->get("PRstr_ValString").to_text(), record);

    // Setting a count makes room; what was set stays.
    const Ref<Object> sender = create(row.name);
    sender->let(row.count, "00000010");
    if (row.name == "SB_App_ValANSupportedQoSProfiles") sender->let("PRstr_ProfileLength", 1, "00000011");
    sender->let(row.member, 1, second);
    EXPECT_EQ(error_number([&] { sender->let(row.member, 2, second); }),
              row.name == "SB_App_ValANSupportedQoSProfiles" ? 1 : 9);
    sender->let(row.count, "00000011");
    EXPECT_EQ(sender->get(row.member, 1).to_text(), second);
  });
}

TEST(Value, NestedLengthsMustEndWithinTheRecord) {
  const struct {
    std::string_view name;
    std::string_view record;
    std::size_t length;  // 0: refused
  } kCases[] = {
      {"SB_App_ValATSupportedQoSProfiles", "01 01 02 02 ABCD", 48},
      {"SB_App_ValATSupportedQoSProfiles", "01 01 02 03 ABCD", 0},
      {"SB_App_ValFlowNNFlwPrtclParmFwd", "01 02 02 ABCD", 40},
      {"SB_App_ValFlowNNFlwPrtclParmFwd", "01 02 FF ABCD", 0},
      {"SB_App_ValFlowNNIdentificationFwd", "01 00", 16},
      {"SB_App_ValFlowNNIdentificationFwd", "01 01 16 00", 32},
      {"SB_App_ValFlowNNIdentificationFwd", "01 01 16 09 0000", 48},
      {"SB_App_ValFlowNNIdentificationFwd", "01 01 16 11 0000", 0},
      {"SB_App_ValFlowNNIdentificationFwd", "01 02", 16},  // neither 0 nor 1
      {"SB_Ses_ValPriorSession", "01 00", 16},
      {"SB_Ses_ValPriorSession", "01 80 00112233445566778899AABBCCDDEEFF 02 ABCD", 168},
      {"SB_Ses_ValPriorSession", "01 80 00112233445566778899AABBCCDDEEFF 03 ABCD", 0},
      {"SB_Ses_ValPriorSession", "01 80 00112233445566778899AABBCCDDEE", 0},
      {"SB_App_ValReservationKKQoSReqFwd", "01 00", 16},
      {"SB_App_ValReservationKKQoSReqFwd", "01 01 02 ABCD", 40},
      {"SB_App_ValReservationKKQoSReqFwd", "01 01 03 ABCD", 0},
      {"SB_Con_ValSuppCDMAChannels", "01 01 08 0A", 0},  // a subclass that begins in the last octet
      {"SB_Con_ValSuppCDMAChannels", "01 FF 08 0A00", 0},
  };
  for (const auto& row : kCases) {
    const Ref<Object> value = create(row.name);
    const std::string record = bits_of(row.record);
    const auto length = [&] { return value->call("GetValLengthAt", record, 1).to_integer(); };
    if (row.length != 0) {
      EXPECT_EQ(length(), row.length) << row.name << " " << row.record;
      value->let("PRstr_ValString", record);
    } else {
      EXPECT_EQ(error_number(length), 1) << row.name << " " << row.record;
      EXPECT_EQ(error_number([&] { value->let("PRstr_ValString", record); }), 1) << row.name << " " << row.record;
    }
  }
  const Ref<Object> value = create("SB_App_ValMaxRLPFlows");
  EXPECT_EQ(error_number([&] { value->call("GetValLengthAt", bits_of("0000000000"), 0); }), 5);
  EXPECT_EQ(error_number([&] { value->call("GetValLengthAt", bits_of("0000000000"), 400); }), 1);
}

TEST(Value, SupportedChannelsAreNested) {
  SB_Con_ValSuppCDMAChannels value;
  value.let<"PRstr_ValueId">("00000001");
  value.let<"PRstr_BandClassCount">("00000010");
  for (const std::size_t band : {0U, 1U}) {
    value.let<"PRstr_BandClass">({band, 0}, bits_of(band + 5, 5));
    value.let<"PRstr_BandSubClassCount">({band, 0}, bits_of(2 - band, 8));
    for (std::size_t i = 0; i < 2 - band; ++i)
      value.let<"PRstr_BandSubClass">({band, i}, bits_of(16 * band + i + 1, 8));
  }
  EXPECT_EQ(value.build(), filled_up(bits_of("01 02") + "00101" + bits_of("02 01 02") + "00110" + bits_of("01 11")));
  EXPECT_EQ(error_number([&] { value.let<"PRstr_BandSubClass">({1, 1}, "00000000"); }), 9);

  const Ref<Object> attribute = create("SB_Con_AttrSuppCDMAChannels");
  const auto search = [&](const char* band, const char* subclass) {
    return attribute->call("ReturnValIDSupp", band, subclass).to_text();
  };
  EXPECT_EQ(error_number([&] { search("00101", ""); }), 1) << "nothing received yet";
  const std::string first = bits_of("09 01 28 00");  // band class 5 without subclasses
  attribute->let("PRstr_Attribute", attribute->call("BuildAttribute", first + value.build()).to_text());
  EXPECT_EQ(attribute->get("PRint_AttrSuppCDMAChannelsCount").to_integer(), 2);
  EXPECT_EQ(search("00101", ""), "00001001");
  EXPECT_EQ(search("00101", "00000010"), "00000001");
  EXPECT_EQ(search("00110", "00010001"), "00000001");
  EXPECT_EQ(search("00110", "00010010"), "");
  EXPECT_EQ(attribute->call("ReturnValIDSupp", "00111").to_text(), "");
}

TEST(Value, QoSProfileOfAttributeSets) {
  const Ref<Object> request = create("SB_App_ValReservationKKQoSReqFwd");
  request->let("PRstr_FlowPriority", "1001");
  request->let("PRstr_QoSAttribSetCount", "010");
  for (std::int32_t i = 0; i < 2; ++i) {
    request->let("PRstr_QoSAttribSetLength", i, "0100");
    request->let("PRstr_QoSAttribSetID", i, bits_of(static_cast<std::size_t>(i) + 1, 7));
    request->let("PRstr_QoSAttribSetProfileID", i, bits_of(0x0500U + static_cast<std::size_t>(i), 16));
  }
  request->call("ProfileSet");
  // 1001 010, 0100 0000001 0 0000010100000000 and 5 to the octet; 0100 0000010 0 0000010100000001 and 4
  const std::string first = "0100" + bits_of(1, 7) + "0" + bits_of("0500") + "00000";
  const std::string second = "0100" + bits_of(2, 7) + "0" + bits_of("0501") + "0000";
  const std::string profile = "1001010" + first + second;
  EXPECT_EQ(request->get("PRstr_ProfileValue").to_text(), profile);
  EXPECT_EQ(request->call("BuildValueRecord").to_text(), bits_of("00 01") + bits_of(profile.size() / 8, 8) + profile);

  const Ref<Object> received = create("SB_App_ValReservationKKQoSReqRev");
  received->let("PRstr_ValString", request->call("BuildValueRecord"));
  received->call("Decode_ProfileType1");
  EXPECT_EQ(received->get("PRstr_FlowPriority").to_text(), "1001");
  EXPECT_EQ(received->get("PRstr_QoSAttribSetCount").to_text(), "010");
  EXPECT_EQ(received->get("PRstr_QoSAttribSetID", 1).to_text(), "0000010");
  EXPECT_EQ(received->get("PRstr_QoSAttribSetLength", 1).to_text(), "0100");
  EXPECT_EQ(received->get("PRstr_QoSAttribSetProfileID", 1).to_text(), "0000010100000001");
  EXPECT_EQ(received->get("PRstr_ReserveBits", 0).to_text(), "00000");
  EXPECT_EQ(received->get("PRstr_ReserveBits", 1).to_text(), "0000");
  EXPECT_EQ(error_number([&] { received->get("PRstr_QoSAttribSetID", 2); }), 9);

  // Cut off in the second set, and of another type: what was decoded stays.
  for (const std::string& wrong :
       {bits_of("00 01 05") + profile.substr(0, 40), bits_of("00 02 02 0500"), bits_of("00 00")}) {
    received->let("PRstr_ValString", wrong);
    EXPECT_EQ(error_number([&] { received->call("Decode_ProfileType1"); }), 1);
    EXPECT_EQ(received->get("PRstr_QoSAttribSetID", 1).to_text(), "0000010");
  }
}

TEST(Value, VerboseAttributeSetsAreOnlyDecoded) {
  // One set of 12 octets, verbose: 1001 001 1100 0000101 1, class 3, rates 16 each, 8, 8 and 1 bit, 6 to the octet
  const std::string set = "1001001" + bits_of(0xC, 4) + bits_of(5, 7) + "1" + "011" + bits_of(1, 16) + bits_of(2, 16) +
                          bits_of(3, 16) + bits_of(4, 8) + bits_of(5, 8) + "1";
  const std::string profile = filled_up(set);
  const Ref<Object> request = create("SB_App_ValReservationKKQoSReqRev");
  request->let("PRstr_ValString", bits_of("07 01") + bits_of(profile.size() / 8, 8) + profile);
  request->call("Decode_ProfileType1");
  EXPECT_EQ(request->get("PRstr_QoSAttribSetID").to_text(), "0000101");
  EXPECT_EQ(request->get("PRstr_QoSAttribSetVerbose").to_text(), "1");
  EXPECT_EQ(request->get("PRstr_QoSAttribSetProfileID").to_text(), "");
  EXPECT_EQ(raised_by([&] { request->call("ProfileSet"); }).source, "SB_App_ValReservationKKQoSRequestRev.ProfileSet");
}

TEST(Value, QoSResponseNamesTheGrantedSet) {
  for (const std::string_view name : {"SB_App_ValReservationKKQoSRespFwd", "SB_App_ValReservationKKQoSRespRev"}) {
    const Ref<Object> response = create(name);
    EXPECT_EQ(response->get("PRstr_QoSAttribSetID").to_text(), "") << "no profile";
    response->let("PRstr_QoSAttribSetID", "0000101");
    EXPECT_EQ(response->call("BuildValueRecord").to_text(), bits_of("00 01 01 0A"));
    response->let("PRstr_ValString", bits_of("03 01 01 FE"));
    EXPECT_EQ(response->get("PRstr_QoSAttribSetID").to_text(), "1111111");
    response->let("PRstr_ValString", bits_of("03 00"));
    EXPECT_EQ(response->get("PRstr_QoSAttribSetID").to_text(), "");
  }
}

}  // namespace
}  // namespace vorlan::test
