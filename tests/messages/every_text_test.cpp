// Every text that a message class raises, as scripts compare it, with the places that raise it.
#include <sstream>

#include "messages/message.hpp"
#include "support/fake_sector.hpp"
#include "support/message_cases.hpp"

namespace vorlan::test {
namespace {

/// A text, and the places that raise it with blanks in between: "Ses_MsgSessionClose.MoreInfo" is PRstr_MoreInfo of
/// SB_Ses_MsgSessionClose. What follows a ">" is named as the source instead of the place.
struct Text {
  std::string text;  ///< '#' is the name of the message, or that of the field that is let
  std::string places;
};

enum class Star { Message, Field };

/// Calls `use` with an object and a member for each place, and compares what that raises.
void expect_texts(void (*use)(Object& object, const std::string& member), Star star, const std::vector<Text>& texts) {
  for (const Text& row : texts) {
    std::istringstream places(row.places);
    for (std::string place; places >> place;) {
      const std::size_t end = std::min(place.find('>'), place.size());
      const std::size_t dot = std::min(place.find('.'), end);
      const std::string cls = place.substr(0, dot);
      const std::string field = dot < end ? place.substr(dot + 1, end - dot - 1) : "";
      const std::string member = field.empty() ? "CreateMessage" : "PRstr_" + field;
      std::string source = "SB_" + (end < place.size() ? place.substr(end + 1) : cls);
      if (source.find('.') == std::string::npos) source += "." + member;
      std::string text = row.text;
      if (const auto at = text.find('#'); at != std::string::npos) {
        text.replace(at, 1, star == Star::Field ? field : cls.substr(cls.find("Msg") + 3));
      }
      const Ref<Object> object = create(cls, "SB_");
      EXPECT_EQ(listed(*object, raised_by([&] { use(*object, member); })), (Raised{1, source, text})) << place;
    }
  }
}

TEST(EveryText, OfAMessageThatIsNotInitialized) {
  expect_texts([](Object& object, const std::string& member) { object.call(member, Ref<Object>()); }, Star::Message,
               {{"Class not initialized. Please call <Initialize> of # Message first.",
                 "App_MsgPktReset App_MsgPktResetAck App_MsgLocationRequest App_MsgXonResponse Ses_MsgUATIAssignment "
                 "Ses_MsgSessionClose Ses_MsgHardwareIDRequest Ses_MsgConfigurationStart Ses_MsgConfigurationComplete "
                 "Ses_MsgSoftConfigurationComplete MAC_MsgAccessParameters>Mac_MsgAccessParameters "
                 "Con_MsgConnectionDeny>Ses_MsgKeepAliveRequest Con_MsgNeighborList TAS_MsgFTAPParameterAssignment "
                 "Sec_MsgKeyRequest Sec_MsgANKeyComplete"},
                {"Class not initialized. Please Call <Initialize> of # Message first.",
                 "App_MsgLocationAssignment App_MsgXoffResponse Con_MsgRedirect App_MsgDataOverSignaling "
                 "Str_MsgApplicationData>App_MsgApplicationData"},
                {"Class not initialized. Please call <Initialize> of # message first.", "Mac_MsgAcAck Mac_MsgRTCAck"},
                {"Class not initialized. Please call <Initialize> of BroadcastReverseRateLimit Message first.",
                 "Mac_MsgBroadcastRevRateLimit>Mac_BroadcastReverseRateLimit"},
                {"Class not initialized. Please Call <Initialize> of SB_TAS_Msg# Message first.",
                 "TAS_MsgFTAPStatsClearRequest TAS_MsgFTAPStatsGetRequest TAS_MsgRTAPParameterAssignment"},
                {"Class not initialized. Please call <Initialize> of UnicastReverseRateLimit Message first.",
                 "Mac_MsgUnicastRevRateLimit"},
                {"Please Call <Initialize> of # Message first.", "App_MsgDataReady"},
                {"Please call <Initialize> of # Message first.", "Con_MsgResetReport"},
                {"Please call initialize of # Message first.", "Ses_MsgKeepAliveRequest"},
                {"Please Call Initialize of # Message first.", "Ses_MsgKeepAliveResponse"},
                {"Please call initialize of Reset Message first.", "App_MsgSigReset"}});
}

TEST(EveryText, OfAFieldOfAnotherWidth) {
  // As wide as none of these fields.
  expect_texts(
      [](Object& object, const std::string& member) { object.let(member, "0000000"); }, Star::Field,
      {{"Length of # field should be 8 bits .", "App_MsgSigReset.MessageSequence"},
       {"Length of # field should be 8 bits.",
        "Ses_MsgKeepAliveRequest.TransactionID Ses_MsgKeepAliveResponse.TransactionID>Ses_MsgKeepAliveRequest"},
       {"Length of # string should be 1 bit.", "App_MsgReservationReject.Link"},
       {"Length of # string should be 1 bits.", "Ses_MsgUATIAssignment.SubnetIncluded"},
       {"Length of # string should be 4 bits.", "Ses_MsgUATIAssignment.UpperOldUATILength"},
       {"Length of # string should be 8 bits.",
        "Ses_MsgUATIAssignment.MessageSequence App_MsgAttributeUpdateReject.TransactionId "
        "App_MsgReservationReject.TransactionId App_MsgRevReservationOn.TransactionId "
        "App_MsgRevReservationOff.ReservationCount"},
       {"Length of <#> Field should be 1 bit.", "App_MsgDataOverSignaling.AckRequired App_MsgDataOverSignaling.Reset"},
       {"Length of <#> Field should be 1 bit. ", "Con_MsgConnectionClose.SuspendEnable"},
       {"Length of <#> Field should be 1 bits.", "App_MsgEmfpaDataOverSignalingAck.Route"},
       {"Length of <#> Field should be 16 bits.", "App_MsgStorageBLOBAsgnmnt.StorageBLOBType"},
       {"Length of <#> field should be 16 bits.", "Sec_MsgANKeyComplete.Nonce Sec_MsgANKeyComplete.TimeStampShort"},
       {"Length of <#> field should be 160 bits.", "Sec_MsgANKeyComplete.KeySignature"},
       {"Length of <#> Field should be 2 bit.", "App_MsgDataOverSignalingAck.Reserved"},
       {"Length of <#> Field should be 3 bits.", "Con_MsgConnectionClose.CloseReason"},
       {"Length of <#> Field should be 36 bits.", "Con_MsgConnectionClose.SuspendTime"},
       {"Length of <#> field should be 4 bits .", "Con_MsgConnectionDeny.DenyReason App_MsgRouteSelect.Route"},
       {"Length of <#> field should be 4 bits.", "Mac_MsgUnicastRevRateLimit.RateLimit"},
       {"Length of <#> Field should be 5 bit.", "App_MsgEmfpaDataOverSignaling.LinkFlowNumber"},
       {"Length of <#> field should be 5 bits.", "Con_MsgNeighborList.Count"},
       {"Length of <#> Field should be 5 bits.",
        "App_MsgResetTxIndication.RLPFlow App_MsgResetTxComplete.RLPFlow App_MsgEmfpaResetRxComplete.LinkFlowNumber"},
       {"Length of <#> field should be 6 bits.",
        "Mac_MsgBroadcastRevRateLimit.RPCCount>Mac_BroadcastReverseRateLimit "
        "Con_MsgQuickConfig.RPCCount>Con_MsgQuickConfig.PRstr_Redirect"},
       {"Length of <#> Field should be 6 bits.", "App_MsgDataOverSignaling.MessageSequence"},
       {"Length of <#> field should be 768 or 1024 bits.", "Sec_MsgKeyRequest.ANPubKey"},
       {"Length of <#> field should be 8 bits .",
        "Con_MsgConnectionDeny.TransactionId App_MsgActivateRoute.TransactionId"},
       {"Length of <#> field should be 8 bits.",
        "App_MsgLocationAssignment.PACKET_ZONE_ID Ses_MsgSessionClose.CloseReason Ses_MsgSessionClose.MoreInfoLen "
        "Ses_MsgHardwareIDRequest.TransactionId Con_MsgRedirect.NumChannel "
        "TAS_MsgFTAPParameterAssignment.TransactionID Sec_MsgKeyRequest.TransactionId Sec_MsgKeyRequest.Timeout "
        "Sec_MsgANKeyComplete.TransactionId"},
       {"Length of <#> Field should be 8 bits.",
        "App_MsgReservationReject.AllowableReservationLabel App_MsgRevReservationOn.ReservationLabel "
        "App_MsgStorageBLOBAsgnmnt.StorageBLOBLength App_MsgStorageBLOBAsgnmnt.StorageBLOB "
        "TAS_MsgFTAPStatsClearRequest.TransactionID TAS_MsgFTAPStatsGetRequest.TransactionID "
        "TAS_MsgRTAPParameterAssignment.TransactionID Str_MsgApplicationData.VirtualStream>App_MsgApplicationData"},
       {"Length of <#> Field should be a mutiple of 8.",
        "App_MsgDataOverSignaling.HigherLayerPacket App_MsgEmfpaDataOverSignaling.HigherLayerPacket"},
       {"Length of <TransactionID> field should be 8 bits.",
        "App_MsgLocationAssignment.TransactionId>App_MsgLocationAssignment.PRstr_TransactionID"},
       {"Length of <TransactionID> should be 8 bits.",
        "App_MsgDataReady.TransactionId>App_MsgDataReady.PRstr_TransactionID "
        "App_MsgRestartNetworkInterface.TransactionId"},
       {"Length of MoreInfo field should be MoreInfo * 8 bits.", "Ses_MsgSessionClose.MoreInfo"},
       {"The length of <#> field should be 1 bit.",
        "Ses_MsgSoftConfigurationComplete.Continue Ses_MsgSoftConfigurationComplete.Commit"},
       {"The length of <#> field should be 16 bits.", "Ses_MsgConfigurationComplete.SessionConfigurationToken"},
       {"The length of <#> field should be 4 bits.",
        "Ses_MsgSoftConfigurationComplete.PersonalityIndexStore "
        "Ses_MsgSoftConfigurationComplete.CommitPersonalityIndexStore"},
       {"The length of <TransactionId> field should be 8 bits.",
        "Ses_MsgConfigurationComplete.TransactionID Ses_MsgSoftConfigurationComplete.TransactionID"}});
}

TEST(EveryText, OfAFieldInEncoderMode) {
  const auto let = [](Object& object, const std::string& member) {
    auto& message = dynamic_cast<Message&>(object);
    message.initialize(fake_sector(fake_configuration()), {}, "1");
    const bool repeated = is_repeated(message.message_class().spec().fields[message.row(member)]);
    repeated ? object.let(member, 0, "0") : object.let(member, "0");
  };
  expect_texts(let, Star::Field,
               {{"Encoder and this property cannot be used simultaneously",
                 "Con_MsgNeighborList.PilotPN Con_MsgRedirect.SystemType Con_MsgRouteUpdateRequest.SectorPilotPN "
                 "Mac_MsgUnicastRevRateLimit.RateLimit>Mac_MsgFixedModeXoff.PRobj_MessageObject "
                 "Mac_MsgBroadcastRevRateLimit.RateLimit>Mac_BroadcastReverseRateLimit"},
                {"Encoder and this property cannot be used simultaneously.",
                 "Ses_MsgKeepAliveResponse.TransactionID Ses_MsgSessionClose.MoreInfo "
                 "Ses_MsgConfigurationComplete.SessionConfigurationToken"},
                {"Encoder and this PRstr_# cannot be used simultaneously",
                 "Ses_MsgConfigurationComplete.TransactionID Ses_MsgSoftConfigurationComplete.TransactionID"}});
}

TEST(EveryText, OfAMessageThatWasNotReceived) {
  expect_texts(
      [](Object& object, const std::string& member) { object.get(member); }, Star::Message,
      {{"# Message Object not set. Please set <PRobj_MessageObject> property first.",
        "Con_MsgTrafficChannelComplete.MessageID"},
       {"# message object not set. Please set property <PRobj_MessageObject> first.",
        "Ses_MsgSessionClose.MessageString Ses_MsgConfigurationComplete.MessageString "
        "Ses_MsgSoftConfigurationComplete.MessageString"},
       {"# message Object set To Nothing. Please set <PRobj_MessageObject> property first",
        "Ses_MsgHardwareIDResponse.TransactionId>Ses_HardwareIDResponse"},
       {"# message Object Set To Nothing. Please set <PRobj_MessageObject> property first",
        "Ses_MsgHardwareIDResponse.HardwareIdType>Ses_HardwareIDResponse"},
       {"# message object set to nothing. Please set <PRobj_MessageObject> property first",
        "Ses_MsgHardwareIDResponse.HardwareIdLength>Ses_HardwareIDResponse "
        "Ses_MsgHardwareIDResponse.HardwareIdValue>Ses_HardwareIDResponse"},
       {"# message object set to nothing. Please set <PRobj_MessageObject> property first.",
        "App_MsgPktReset.MessageString"},
       {"# message object set to Nothing. Please set <PRobj_MessageObject> property first.",
        "App_MsgXonRequest.MessageString"},
       {"# Message object set to nothing. Please set <PRobj_MessageObject> property first.",
        "Ses_MsgUATIRequest.TransactionId Con_MsgConnectionRequest.RequestReason "
        "App_MsgReservationOffRequest.TransactionId"},
       {"# Message Object Set To Nothing. Please set <PRobj_MessageObject> property first.",
        "TAS_MsgFTAPParameterComplete.TransactionId TAS_MsgFTAPStatsGetResponse.MessageString"},
       {"# Message object set to Nothing. Please set <PRobj_MessageObject> property first.",
        "Str_MsgApplicationData.MessageString>App_MsgApplicationData"},
       {"# message object set to Nothing. Please set <PRobj_MessageObject> property first. ",
        "App_MsgXoffRequest.MessageString App_MsgXoffRequest.MessageID>App_MsgXoffRequest.PRstr_MessageId "
        "App_MsgXonRequest.MessageID>App_MsgXonRequest.PRstr_MessageId"},
       {"# message object set to nothing. Please set PRobj_MessageObject property first.",
        "App_MsgLocationComplete.TransactionId Mac_MsgFixedModeXoff.MessageID>Mac_MsgFixedModeXoff.PRstr_MessageId "
        "Sec_MsgKeyResponse.MessageID Sec_MsgKeyResponse.TransactionId Sec_MsgKeyResponse.Timeout "
        "Sec_MsgKeyResponse.ATPubKey"},
       {"# message Object Set To Nothing. Please set PRobj_MessageObject property first.",
        "App_MsgDataReadyAck.TransactionId TAS_MsgFTAPStatsClearResponse.MessageID "
        "TAS_MsgFTAPStatsClearResponse.MessageString TAS_MsgFTAPStatsGetResponse.MessageID "
        "TAS_MsgFTAPStatsGetResponse.IdleASPStatsAttr TAS_MsgRTAPParameterComplete.TransactionID"},
       {"# message Object Set To Nothing. Please set PRobj_MessageObject property first. ",
        "Mac_MsgFixedModeEnable.MessageID>Mac_MsgFixedModeEnable.PRstr_MessageId "
        "Mac_MsgFixedModeEnable.TCAMessageSequence"},
       {"# message object set to nothing. Please set PRobj_MessageObject property first. ",
        "Mac_MsgFixedModeEnable.EndTime"},
       {"# message Object Set To Nothing.Please set <PRobj_MessageObject> property first",
        "Ses_MsgHardwareIDResponse.MessageID>Ses_HardwareIDResponse.PRstr_MessageId"},
       {"# message object set to nothing.Please set <PRobj_MessageObject> Property first",
        "App_MsgDataOverSignalingAck.MessageString"},
       {"ATKey message Object Set To Nothing.Please set PRobj_MessageObject property first.",
        "Sec_MsgATKeyComplete.MessageID Sec_MsgATKeyComplete.TransactionId Sec_MsgATKeyComplete.Result "
        "Sec_MsgATKeyComplete.Reserved"},
       {"KeepAlive message object set to nothing.Please set PRobj_MessageObject property first",
        "Ses_MsgKeepAliveRequest.MessageString"},
       {"LocationComplete message object set to nothing. Please set <PRobj_MessageObject> property first.",
        "App_MsgLocationNotification.MessageID App_MsgLocationNotification.LocationLength"},
       {"MsgResetAck message Object Set To Nothing. Please set PRobj_MessageObject property first.",
        "App_MsgSigResetAck.MessageID>App_MsgSigReset.PRstr_MessageId "
        "App_MsgSigResetAck.MessageSequence>App_MsgSigReset TAS_MsgRTAPParameterComplete.MessageID"},
       {"UATI Complete Message Object Set To Nothing. Please set <PRobj_MessageObject> property first.",
        "Ses_MsgUATIComplete.UpperOldUATI Ses_MsgUATIComplete.MessageID"}});
}

}  // namespace
}  // namespace vorlan::test
