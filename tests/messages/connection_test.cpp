// Connection-layer messages; those that proved the engine have their own tests.
#include "messages/connection/air_link_management.hpp"
#include "messages/connection/connected_state.hpp"
#include "messages/connection/idle_state.hpp"
#include "messages/connection/initialization_state.hpp"
#include "messages/connection/quick_config.hpp"
#include "messages/connection/route_update_control.hpp"
#include "messages/dissection.hpp"
#include "support/fake_sector.hpp"
#include "support/message_vectors.hpp"

namespace vorlan::test {
namespace {

using Reads = std::vector<std::string>;

template <class M>
void prepare(M& message) {
  message.initialize(fake_sector(fake_configuration()), {}, "");
}

TEST(ConnectionMessages, TravelInTheseOctets) {
  SB_Con_MsgSync sync;
  prepare(sync);
  EXPECT_EQ(sent_by(sync), "00 40 41 80 00 00 00 0F");  // id of 2 bits, revisions 1 and 1, PN 12, time 15; no padding
  EXPECT_EQ(sync.message_id(), "00");
  const MessageVector vectors[] = {
      {"Page", {}, "00"},
      {"ResetReport", {}, "03"},
      // id, transaction, reason and padding
      {"ConnectionDeny", {{"PRstr_TransactionId", "00100001"}, {"PRstr_DenyReason", "0010"}}, "02 21 20"},
      {"ConnectionRequest", {{"PRstr_TransactionId", "00101010"}, {"PRstr_RequestReason", "0001"}}, "01 2A 10"},
      {"TrafficChannelComplete", {{"PRstr_MessageSequence", "00000111"}}, "02 07"},
      // reason, no time, padding; then with a time
      {"ConnectionClose", {{"PRstr_CloseReason", "010"}}, "00 40"},
      {"ConnectionClose",
       {{"PRstr_CloseReason", "010"},
        {"PRstr_SuspendEnable", "1"},
        {"PRstr_SuspendTime", "000000010010001101000101011001111000"}},
       "00 50 12 34 56 78"},
      // no channel, no sectors, neither window
      {"RouteUpdateRequest", {}, "07 00"},
      // 1, the channel, 2 sectors: PN 0 and 511, sizes 7 and 0, offsets 0 and 4
      {"RouteUpdateRequest",
       {{"PRstr_ChannelIncluded", "1"},
        {"PRstr_Channel", "000000000000100000011001"},
        {"PRstr_SectorCount", "00010"},
        {"PRstr_SectorPilotPN(1)", "111111111"},
        {"PRstr_SectorSearchWindowSizeIncluded", "1"},
        {"PRstr_SectorSearchWindowSize(0)", "0111"},
        {"PRstr_SectorSearchWindowOffsetIncluded", "1"},
        {"PRstr_SectorSearchWindowOffset(1)", "100"}},
       "07 80 04 0C 88 01 FF B8 44"},
  };
  for (const MessageVector& vector : vectors) expect_vector("SB_Con_Msg", vector);
}

TEST(Redirect, FillsNewRecordsFromTheConfiguration) {
  const auto configuration = fake_configuration();
  SB_Con_MsgRedirect message;
  message.initialize(fake_sector(configuration), {}, "");
  EXPECT_EQ(sent_by(message), "00 00");
  configuration->reads.clear();
  message.let<"PRstr_NumChannel">("00000010");
  EXPECT_EQ(configuration->reads, (Reads{"PRstr_SystemType", "PRint_BandClass", "PRint_ChannelNumber"}));
  message.let<"PRstr_SystemType">(1, "00000001");
  message.let<"PRstr_ChannelNumber">(1, "11111111111");
  EXPECT_EQ(sent_by(message), "00 02 00 08 19 01 0F FF");
  // A configuration may hold a system type of any width.
  configuration->values["PRstr_SystemType"] = "0000000";
  message.let<"PRstr_NumChannel">("00000001");
  EXPECT_EQ(listed(message, raised_by([&] { sent_by(message); })),
            (Raised{1, "SB_Con_MsgRedirect.CreateMessage", "Error: Channel record value should be 24 bits long."}));
  // A count that cannot be followed is not taken over.
  configuration->values.erase("PRint_ChannelNumber");
  EXPECT_EQ(error_number([&] { message.let<"PRstr_NumChannel">("11111111"); }), 438);
  EXPECT_EQ(message.get<"PRstr_NumChannel">(), "00000001");
  // Without a sector, records are zeros.
  SB_Con_MsgRedirect uninitialized;
  uninitialized.let<"PRstr_NumChannel">("11111111");
  EXPECT_EQ(uninitialized.get<"PRstr_ChannelNumber">(254), "00000000000");
}

TEST(NeighborList, SendsAllPilotsFirstThenTheirChannels) {
  const auto configuration = fake_configuration();
  SB_Con_MsgNeighborList message;
  message.initialize(fake_sector(configuration), {}, "");
  configuration->reads.clear();
  message.let<"PRstr_Count">("00010");
  EXPECT_EQ(configuration->reads,
            (Reads{"PRstr_PilotPN", "PRstr_SystemType", "PRint_BandClass", "PRint_ChannelNumber"}));
  message.let<"PRstr_PilotPN">(1, "111111111");
  message.let<"PRstr_ChannelIncluded">(1, "1");
  message.let<"PRstr_SystemType">(1, "00000001");
  message.let<"PRstr_BandClass">(1, "00000");
  message.let<"PRstr_ChannelNumber">(1, "11111111111");
  message.let<"PRstr_SearchWindowSizeIncluded">("1");
  message.let<"PRstr_SearchWindowSize">(1, "1010");
  message.let<"PRstr_FPDCHSupported">(1, "1");
  // 04, 2 neighbours, PN 12 and 511, 0, 1 with 01 07 FF, sizes 0 and 10, no offsets; nothing of Rev A
  EXPECT_EQ(sent_by(message), "04 10 33 FE 80 83 FF C2 80");
  message.let<"PRstr_FPDCHSupportIncluded">("1");
  EXPECT_EQ(sent_by(message), "04 10 33 FE 80 83 FF C2 94");
}

TEST(QuickConfig, SendsOneCountUnderTwoNames) {
  const std::string header = "00 11 00 00 0F 12 34 56 78 ";  // id, colour, low SectorID, both signatures
  SB_Con_MsgQuickConfig message;
  prepare(message);
  EXPECT_EQ(sent_by(message), header + "00");  // 79 bits and one of padding
  message.let<"PRstr_RPCCount">("000011");
  EXPECT_EQ(message.get<"PRstr_RPCCount63To0">(), "000011");
  message.let<"PRstr_ForwardTrafficValid63To0">(2, "1");
  message.let<"PRstr_ForwardTrafficValid63To0">(1, "0");
  message.let("PRstr_ForTrafficValid", "1");  // the first element
  EXPECT_EQ(sent_by(message), header + "07 40");
  message.let<"PRstr_RPCCount127To64Included">("1");
  message.let<"PRstr_ForwardTrafficValid127To64">(0, "1");  // before its count
  message.let<"PRstr_RPCCount127To64">("000001");
  EXPECT_EQ(sent_by(message), header + "07 60 C0");  // 0, 3: 101, 1, 1: 1
  message.let<"PRstr_RPCCount63To0">("000001");      // the others go
  message.let<"PRstr_Redirect">("1");
  EXPECT_EQ(sent_by(message), header + "83 83");
}

TEST(QuickConfig, WantsAsManyBitsAsTheCountSays) {
  const auto refusal = [](auto&& prepare_bits) {
    SB_Con_MsgQuickConfig message;
    prepare(message);
    prepare_bits(message);
    const Raised raised = listed(message, raised_by([&] { sent_by(message); }));
    EXPECT_EQ(raised.source, "SB_Con_QuickConfig.CreateMessage");
    return raised.description;
  };
  using Quick = SB_Con_MsgQuickConfig;
  EXPECT_EQ(refusal([](Quick& m) { m.let<"PRstr_RPCCount63To0">("000010"); }),
            "mstr_ForwardTrafficValid63To0() array chould have 2 valid elements.");
  EXPECT_EQ(refusal([](Quick& m) {
              m.let<"PRstr_RPCCount63To0">("000010");
              m.let<"PRstr_ForwardTrafficValid63To0">(1, "1");  // the first is missing
            }),
            "mstr_ForwardTrafficValid63To0() array chould have 2 valid elements.");
  EXPECT_EQ(refusal([](Quick& m) { m.let<"PRstr_ForwardTrafficValid63To0">(0, "1"); }),
            "mstr_ForwardTrafficValid63To0() array chould have 0 valid elements.");
  EXPECT_EQ(refusal([](Quick& m) { m.let<"PRstr_RPCCount">("111111"); }),
            "ForTrafficValid() array chould have 63 valid elements.");
  EXPECT_EQ(refusal([](Quick& m) { m.let<"PRstr_RPCCount127To64">("000001"); }),
            "mstr_ForwardTrafficValid127To64() array chould have 1 valid elements.");
  Quick message;
  EXPECT_EQ(error_number([&] { message.let<"PRstr_ForwardTrafficValid63To0">(63, "1"); }), 9);
}

TEST(ConnectionClose, HasATimeOnlyWhereItSaysSo) {
  SB_Con_MsgConnectionClose close;
  EXPECT_EQ(close.get<"PRstr_SuspendTime">(), std::string(36, '0'));
  close.receive(received("00 40"));
  EXPECT_EQ(
      raised_by([&] { static_cast<void>(close.get<"PRstr_SuspendTime">()); }),
      (Raised{1, "SB_Con_MsgConnectionClose.PRstr_SuspendTime", "Suspend Time not included in the message string."}));
  close.receive(received("00 50"));  // cut off
  EXPECT_EQ(close.get<"PRstr_SuspendTime">(), "0000");
}

TEST(ConnectionMessages, TellTheTime) {
  // Frames of 26 2/3 ms: 160 ms is 6 of them; units of 80 ms.
  EXPECT_EQ(frames_text("0000000000000000000000000000000000110"), "1980-01-06 00:00:00.160");
  EXPECT_EQ(units_of_80_ms_text("000000000000000100000111101011000000"), "1980-01-07 00:00:00.000");
  // 11688 days: 366 x 8 + 365 x 24 of 1980 to 2011
  EXPECT_EQ(units_of_80_ms_text("001011110000011001000100111000000000"), "2012-01-06 00:00:00.000");
  EXPECT_EQ(dissect(SB_Con_MsgSync::shared_class(), bits_of("00 40 41 80 00 00 00 06")).back().value,
            "1980-01-06 00:00:00.160");
}

TEST(ConnectionMessages, RaiseTheirOwnTextsForLists) {
  struct Case {
    const char* name;
    const char* count;
    const char* member;
    const char* beyond;
    const char* wrong_length;
  };
  const Case cases[] = {
      {"NeighborList", "PRstr_Count", "PRstr_PilotPN", "The index for PilotPN exceeds Count.",
       "Length of <PilotPN> field should be 9 bits."},
      {"NeighborList", "PRstr_Count", "PRstr_SystemType", "The index for <SystemType> exceeds Count.",
       "Length of <SystemType> subfield should be 8 bits."},
      {"NeighborList", "PRstr_Count", "PRstr_BandClass", "The index for <BandClass> exceeds Count.",
       "Length of <BandClass> subfield should be 5 bits."},
      {"Redirect", "PRstr_NumChannel", "PRstr_SystemType", "Index for <SystemType> exceeds NumChannel.",
       "Length of <SystemType> field should be 8 bits."},
      {"Redirect", "PRstr_NumChannel", "PRstr_ChannelNumber", "Index for <ChannelNumber> exceeds NumChannel.",
       "Length of <ChannelNumber> field should be 11 bits."},
      {"RouteUpdateRequest", "PRstr_SectorCount", "PRstr_SectorPilotPN",
       "Index for <SectorPilotPN> exceeds SectorCount.", "Length of <SectorPilotPN> field should be 9 bits."},
  };
  for (const Case& c : cases) {
    const Ref<Object> object = create(c.name, "SB_Con_Msg");
    auto& message = dynamic_cast<Message&>(*object);
    const std::string source = std::string("SB_Con_Msg") + c.name + "." + c.member;
    const auto let = [&](std::int16_t index) {
      return listed(message, raised_by([&] { object->let(c.member, index, ""); }));
    };
    object->let(c.count, std::string(message.accepted_width(message.row(c.count)) - 1, '0') + "1");
    EXPECT_EQ(let(1), (Raised{1, source, c.beyond}));
    EXPECT_EQ(let(-1), (Raised{1, source, c.beyond}));
    EXPECT_EQ(let(0), (Raised{1, source, c.wrong_length}));
  }
}

}  // namespace
}  // namespace vorlan::test
