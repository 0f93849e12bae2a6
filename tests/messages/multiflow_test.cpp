// The messages of the multi-flow and enhanced multi-flow packet applications.
#include "support/message_vectors.hpp"

namespace vorlan::test {
namespace {

constexpr std::string_view kPrefix = "SB_App_Msg";

TEST(MultiFlowMessages, TravelInTheseOctets) {
  const MessageVector vectors[] = {
      // 10110 flow, 101 reserved
      {"ResetTxIndication", {{"PRstr_RLPFlow", "10110"}, {"PRstr_Reserved", "101"}}, "00 B5"},
      {"ResetRxIndication", {{"PRstr_RLPFlow", "10110"}, {"PRstr_Reserved", "101"}}, "01 B5"},
      {"ResetTxIndicationAck", {{"PRstr_RLPFlow", "10110"}, {"PRstr_Reserved", "101"}}, "0D B5"},
      {"ResetTxComplete", {{"PRstr_RLPFlow", "10110"}}, "0E B0"},
      {"ResetRxComplete", {{"PRstr_RLPFlow", "10110"}, {"PRstr_Reserved", "101"}}, "0F B5"},
      {"DataOverSignaling", {}, "14 80"},  // asks to be acknowledged unless told otherwise
      // 0 acknowledgement, 1 reset, 100001 sequence, then the packet
      {"DataOverSignaling",
       {{"PRstr_AckRequired", "0"},
        {"PRstr_Reset", "1"},
        {"PRstr_MessageSequence", "100001"},
        {"PRstr_HigherLayerPacket", "1010101111001101"}},
       "14 61 AB CD"},
      {"DataOverSignalingAck", {{"PRstr_Reserved", "10"}, {"PRstr_AckSequence", "100001"}}, "15 A1"},
      // 24 bits and records of 9: reverse AA, forward 55, 6 bits of padding
      {"ReservationOnRequest",
       {{"PRstr_TransactionId", "00000011"},
        {"PRstr_ReservationCount", "00000010"},
        {"PRstr_Link(0)", "0"},
        {"PRstr_ReservationLabel(0)", "10101010"},
        {"PRstr_Link(1)", "1"},
        {"PRstr_ReservationLabel(1)", "01010101"}},
       "16 03 02 55 55 40"},
      {"ReservationOffRequest",
       {{"PRstr_ReservationCount", "00000001"}, {"PRstr_Link(0)", "1"}, {"PRstr_ReservationLabel(0)", "11111111"}},
       "17 00 01 FF 80"},
      {"ReservationAccept", {{"PRstr_TransactionId", "00000011"}}, "18 03"},
      {"ReservationReject",
       {{"PRstr_TransactionId", "00000011"},
        {"PRstr_ReservationCount", "00000010"},
        {"PRstr_Link(0)", "0"},
        {"PRstr_AllowableReservationLabel(0)", "10101010"},
        {"PRstr_Link(1)", "1"},
        {"PRstr_AllowableReservationLabel(1)", "01010101"}},
       "19 03 02 55 55 40"},
      {"RevReservationOn",
       {{"PRstr_ReservationCount", "00000010"},
        {"PRstr_ReservationLabel(0)", "10101010"},
        {"PRstr_ReservationLabel(1)", "01010101"}},
       "1A 00 02 AA 55"},
      // The only label needs no index and may come before the count.
      {"RevReservationOff",
       {{"PRstr_ReservationLabel", "10101010"}, {"PRstr_ReservationCount", "00000001"}},
       "1B 00 01 AA"},
      {"RevReservationOff", {{"PRstr_ReservationLabel", "10101010"}}, "1B 00 00 AA"},
      {"StorageBLOBRequest", {}, "10"},
      {"StorageBLOBNotification",
       {{"PRstr_StorageBLOBType", "0001001000110100"},
        {"PRstr_StorageBLOBLength", "00000011"},
        {"PRstr_StorageBLOB", "101010111100110111101111"}},
       "11 12 34 03 AB CD EF"},
      {"StorageBLOBAsgnmnt",
       {{"PRstr_TransactionId", "00000101"},
        {"PRstr_StorageBLOBType", "0001001000110100"},
        {"PRstr_StorageBLOBLength", "00000010"},
        {"PRstr_StorageBLOB(1)", "11001101"},
        {"PRstr_StorageBLOB", "10101011"}},
       "12 05 12 34 02 AB CD"},
      {"StorageBLOBComplete", {{"PRstr_TransactionId", "00000101"}}, "13 05"},
      {"AttributeUpdateAccept", {{"PRstr_TransactionId", "00000101"}}, "53 05"},
      {"AttributeUpdateReject", {{"PRstr_TransactionId", "00000101"}}, "54 05"},
  };
  for (const MessageVector& vector : vectors) expect_vector(kPrefix, vector);
}

TEST(EnhancedMultiFlowMessages, TravelInTheseOctets) {
  const std::vector<FieldBits> flow = {
      {"PRstr_LinkFlowNumber", "10110"}, {"PRstr_Route", "1"}, {"PRstr_Reserved", "01"}};
  const MessageVector vectors[] = {
      {"EmfpaResetTxIndication", flow, "00 B5"},
      {"EmfpaResetRxIndication", flow, "01 B5"},
      {"EmfpaResetTxIndicationAck", flow, "0D B5"},
      {"EmfpaResetTxComplete", flow, "0E B5"},
      {"EmfpaResetRxComplete", flow, "0F B5"},
      // 10110 flow, 0 route, 1 acknowledgement, 0 reset; 01 reserved, 100001 sequence; the packet
      {"EmfpaDataOverSignaling",
       {{"PRstr_LinkFlowNumber", "10110"},
        {"PRstr_Route", "0"},
        {"PRstr_AckRequired", "1"},
        {"PRstr_Reset", "0"},
        {"PRstr_Reserved", "01"},
        {"PRstr_MessageSequence", "100001"},
        {"PRstr_HigherLayerPacket", "10101011"}},
       "14 B2 61 AB"},
      // 1 route, 000011 sequence, 01 reserved: 17 bits, and 7 of padding
      {"EmfpaDataOverSignalingAck",
       {{"PRstr_Route", "1"}, {"PRstr_AckSequence", "000011"}, {"PRstr_Reserved", "01"}},
       "15 86 80"},
      {"RouteSelect", {{"PRstr_TransactionId", "00000101"}, {"PRstr_Route", "1001"}}, "1E 05 90"},
      {"RouteSelectAck", {{"PRstr_MessageID", "00011111"}, {"PRstr_TransactionId", "00000101"}}, "1F 05"},
      {"ActivateRoute", {{"PRstr_TransactionId", "00000101"}, {"PRstr_Route", "0001"}}, "20 05 10"},
      {"ActivateRouteAck", {{"PRstr_TransactionId", "00000101"}}, "21 05"},
      {"RestartNetworkInterface", {{"PRstr_TransactionId", "00000101"}}, "1C 05"},
      {"RestartNetworkIntAck", {{"PRstr_TransactionId", "00000101"}}, "1D 05"},
  };
  for (const MessageVector& vector : vectors) expect_vector(kPrefix, vector);
}

TEST(MultiFlowMessages, ReadWhatACutOffMessageHas) {
  const auto read = [](std::string_view name, const char* hex, std::string_view member) {
    const Ref<Object> message = create(name, kPrefix);
    message->set("PRobj_MessageObject", Ref<Object>(received(hex)));
    return got_field(*message, member);
  };
  // A terminal's acknowledgement has two octets, with a single reserved bit.
  EXPECT_EQ(read("EmfpaDataOverSignalingAck", "15 87", "PRstr_Reserved"), "1");
  // Two reservations promised, one there.
  EXPECT_EQ(read("ReservationOnRequest", "16 03 02 FF 80", "PRstr_ReservationLabel(0)"), "11111111");
  EXPECT_EQ(read("ReservationOnRequest", "16 03 02 FF 80", "PRstr_Link(1)"), "0");
  EXPECT_EQ(read("ReservationOnRequest", "16 03 02", "PRstr_Link(1)"), "");
  EXPECT_EQ(error_number([&] { read("ReservationOnRequest", "16 03 02 FF 80", "PRstr_Link(2)"); }), 9);
  EXPECT_EQ(read("StorageBLOBNotification", "11 12 34 03 AB", "PRstr_StorageBLOB"), "10101011");
  EXPECT_EQ(create("StorageBLOBComplete", kPrefix)->get("PRstr_MessageID").to_text(), "00010011") << "before any";
}

}  // namespace
}  // namespace vorlan::test
