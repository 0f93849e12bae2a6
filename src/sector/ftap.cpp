// SB_Sector: the Forward Test Application Protocol (C.S0029) and its test packets.
#include "attributes/complex/tas_attributes.hpp"
#include "common/conversions.hpp"
#include "messages/testapp/forward_test_application.hpp"
#include "sector/sector.hpp"
#include "sector/sector_errors.hpp"

namespace vorlan {

namespace {

template <class Attribute, MemberName Field>
std::string record(std::string_view value) {
  Attribute attribute;
  attribute.template let<Field>(value);
  return attribute.build();
}

/// An attribute of FTAPParameterAssignment: its value is a bit string of the configuration.
struct FtapAttribute {
  std::string_view property;
  std::int16_t highest;
  ErrorRow out_of_range;
  std::string (*record)(std::string_view value);
};
constexpr std::array kAttributes{
    FtapAttribute{"PRstr_TAS_DRCValue", 12, sector_errors::kDRCValueRange,
                  record<SB_TAS_AttrDRCValueFixedMode, "PRstr_DRCValue">},
    FtapAttribute{"PRstr_TAS_DRCCover", 7, sector_errors::kDRCCoverRange,
                  record<SB_TAS_AttrDRCCoverFixedMode, "PRstr_DRCCover">},
    FtapAttribute{"PRstr_TAS_ACKChannelBit", 1, sector_errors::kACKChannelBitRange,
                  record<SB_TAS_AttrACKChannelBitFixedMode, "PRstr_ACKChannelBit">},
    FtapAttribute{"PRstr_TAS_LoopBackPersistence", 1, sector_errors::kLoopBackPersistenceRange,
                  record<SB_TAS_AttrLoopBackMode, "PRstr_LoopBackPersistence">},
};

/// AttributeIDs of IdleASPStats, ConnectedSSStats and FirstSyncCCPktStats.
constexpr std::string_view kStatistics = "040506";
constexpr int kStatisticsBits = 24;

constexpr std::int16_t kCompleteCode = 1;
constexpr std::int16_t kCompleteTimeOut = 150;
constexpr std::int16_t kClearedCode = 3;
constexpr std::int16_t kClearedTimeOut = 250;

constexpr std::string_view kAssign = "FTAPAssign";
constexpr std::string_view kComplete = "FTAPComplete";
constexpr std::string_view kClear = "FTAPClearReq";
constexpr std::string_view kCleared = "FTAPClearRes";

}  // namespace

std::string SB_Sector::next_ftap_transaction_id() { return long_to_bin(ftap_transaction_id_++, 8); }

Ref<Object> SB_Sector::stats_clear_request(Signalling& signalling) {
  SB_TAS_MsgFTAPStatsClearRequest request;
  request.initialize(held(Held::TestSet));
  request.let<"PRstr_TransactionID">(next_ftap_transaction_id());
  const std::array<Value, 1> statistics{hex_to_bin(kStatistics, kStatisticsBits)};
  Ref<Object> message = signalling.new_message_object();
  request.create_message(message, statistics);
  return message;
}

std::string SB_Sector::ftap_attributes(const std::array<bool, 4>& wanted) const {
  std::string records;
  for (std::size_t i = 0; i < kAttributes.size(); ++i) {
    if (!wanted[i]) continue;
    const FtapAttribute& attribute = kAttributes[i];
    const std::int16_t value = bin_to_dec(setting(attribute.property).to_text());
    if (value < 0 || value > attribute.highest) raise(attribute.out_of_range);
    records += attribute.record(long_to_bin(value, 8));
  }
  return records;
}

void SB_Sector::clear_ftap_stats(Signalling& signalling, const Ref<Object>& request, std::int16_t stream,
                                 std::string_view source) {
  const bool cleared = signalling.exchange({.label = kClear,
                                            .message = request,
                                            .protocol_type = stream,
                                            .when_sent = test_set::kWhenQueued,
                                            .answer_label = kCleared,
                                            .answer_code = kClearedCode,
                                            .time_out = kClearedTimeOut});
  if (!cleared) raise(sector_errors::kNotCleared.from(source));
}

bool SB_Sector::NegotiateFTAP(bool drc_value, bool drc_cover, bool ack_channel_bit, bool loop_back_persistence) {
  const std::int16_t stream = setting("PRint_StreamConfigured").to_integer();
  Signalling signalling = this->signalling();
  const Ref<Object> clear_request = stats_clear_request(signalling);

  SB_TAS_MsgFTAPParameterAssignment assignment;
  assignment.initialize(held(Held::TestSet));
  assignment.let<"PRstr_TransactionID">(next_ftap_transaction_id());
  const std::string records = ftap_attributes({drc_value, drc_cover, ack_channel_bit, loop_back_persistence});
  trace("SB_Sector::Negotiate_FTAP --- AttributeRecords : " + records);
  const std::array<Value, 1> arguments{records};
  const Ref<Object> message = signalling.new_message_object();
  assignment.create_message(message, arguments);

  if (automatic_test_packets_) test_set().let(Role::AutomaticTestPackets, held(Held::EvProtocolController), true);
  const bool complete = signalling.exchange({.label = kAssign,
                                             .message = message,
                                             .protocol_type = stream,
                                             .when_sent = test_set::kWhenQueued,
                                             .answer_label = kComplete,
                                             .answer_code = kCompleteCode,
                                             .time_out = kCompleteTimeOut});
  if (!complete) raise(sector_errors::kNotAssigned);
  clear_ftap_stats(signalling, clear_request, stream, "SB_Sector.NegotiateFTAP");
  for (const std::string_view label : {kCleared, kAssign, kComplete, kClear}) signalling.remove_message(label);
  return true;
}

bool SB_Sector::SendFTAPClearStats() {
  const std::int16_t stream = setting("PRint_StreamConfigured").to_integer();
  Signalling signalling = this->signalling();
  clear_ftap_stats(signalling, stats_clear_request(signalling), stream, "SB_Sector.SendFTAPClearStats");
  for (const std::string_view label : {kCleared, kClear}) signalling.remove_message(label);
  return true;
}

void SB_Sector::switch_test_packets(bool on, int first_point) {
  const TestSetAccess access = test_set();
  const Ref<Object>& controller = held(Held::EvProtocolController);
  const auto point = [&](int number) { trace("FTAPTestPktTxAutoOn point " + std::to_string(number)); };
  point(first_point);
  if (!access.call(Role::AutomaticTestPackets, controller).to_boolean()) return;
  point(first_point + 1);
  access.let(Role::StartTestPackets, controller, on);
  point(first_point + 2);
}

void SB_Sector::EnableFTAPTestPktFlow() { switch_test_packets(true, 0); }
void SB_Sector::DisableFTAPTestPktFlow() { switch_test_packets(false, 3); }

}  // namespace vorlan
