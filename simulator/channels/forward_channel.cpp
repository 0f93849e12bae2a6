#include "simulator/channels/forward_channel.hpp"

namespace vorlan::simulator {

namespace {

using F = ForwardChannel;
using S = ForwardChannel::Settings;

template <auto Field>
constexpr BoundMember setting(std::string_view name, std::string_view summary) {
  return property<&F::read<Field>>(name, summary);
}
template <auto Field>
constexpr BoundMember free_setting(std::string_view name, std::string_view summary) {
  return property<&F::read<Field>, &F::write<Field>>(name, summary);
}

constexpr BoundMember kMembers[] = {
    property<&F::key>("Key", "Its key in the collection."),
    property<&F::subtype>("SubType", "Physical layer subtype that the key tells: 0 (or 0/1), 1 or 2."),
    method<&F::configure>("Configure",
                          "PilotPN, PropagationDelay, MACIndex, DRCCover, HandoffDelay, CCDataRate, CCOffset, "
                          "RABLength, RABOffset, DRCLockPeriod, DRCLockLength, Argument",
                          "All settings at once; error 5 for one out of its range."),
    setting<&S::configured>("Configured", "Whether Configure has succeeded."),
    setting<&S::pilot_pn>("PilotPN", "0 to 511, in units of 64 chips."),
    setting<&S::propagation_delay>("PropagationDelay", "Chips."),
    setting<&S::mac_index>("MACIndex", "5 to 63; up to 127 for subtype 2."),
    setting<&S::drc_cover>("DRCCover", "1 to 7."),
    setting<&S::handoff_delay>("HandoffDelay", "Slots."),
    setting<&S::cc_data_rate>("CCDataRate", "Control channel data rate, 38.4 or 76.8 kbit/s."),
    setting<&S::cc_offset>("CCOffset", "0 to 3 slots."),
    setting<&S::rab_length>("RABLength", "0 to 3 = 8, 16, 32 or 64 slots."),
    setting<&S::rab_offset>("RABOffset", "0 to 7, in eighths of RABLength."),
    setting<&S::drc_lock_period>("DRCLockPeriod", "0 or 1 = every 8 or 16 slots."),
    setting<&S::drc_lock_length>("DRCLockLength", "0 to 3 = 4, 8, 16 or 32 repetitions."),
    setting<&S::argument>("Argument", "The last argument of Configure."),
    free_setting<&S::slot_contents_state>("SlotContentsState", "Whether the contents of slots are reported."),
    free_setting<&S::arq_mode>("ARQMode", "Whether the ARQ channel is used; subtype 2."),
    free_setting<&S::level>("Level", "Output level in dB."),
    free_setting<&S::rpc_drc_lock_ec_ior>("RPCDRCLockEc_Ior", "Share of the RPC and DRCLock channels in dB."),
    free_setting<&S::ec_ior>("Ec_Ior", "Share of the reverse activity channel in dB."),
    free_setting<&S::arq_ec_ior>("ARQEc_Ior", "Share of the ARQ channel in dB; subtype 2."),
    free_setting<&S::fails_configuration>("FailsConfiguration", "Simulator only: True lets Configure raise error 5."),
};

void check(std::string_view name, int value, int lowest, int highest) {
  if (value >= lowest && value <= highest) return;
  throw Error(ErrorNumber::InvalidCall, {}, std::string(name) + ' ' + std::to_string(value) + " is out of range");
}

}  // namespace

std::span<const BoundMember> ForwardChannel::members() { return kMembers; }

std::int16_t subtype_of_key(std::string_view key) noexcept {
  return static_cast<std::int16_t>(key.starts_with("ST1_") ? 1 : key.starts_with("ST2_") ? 2 : 0);
}

ForwardChannel::ForwardChannel(std::string key) : key_(std::move(key)), subtype_(subtype_of_key(key_)) {}

void ForwardChannel::configure(std::int16_t pilot_pn, std::int16_t propagation_delay, std::int16_t mac_index,
                               std::int16_t drc_cover, std::int16_t handoff_delay, float cc_data_rate,
                               std::int16_t cc_offset, std::int16_t rab_length, std::int16_t rab_offset,
                               std::int16_t drc_lock_period, std::int16_t drc_lock_length, const Value& argument) {
  if (settings_.fails_configuration) throw Error(ErrorNumber::InvalidCall, {}, key_ + " has been told to fail");
  check("PilotPN", pilot_pn, 0, 511);
  check("MACIndex", mac_index, 5, subtype_ == 1 ? 63 : 127);
  check("DRCCover", drc_cover, 1, 7);
  check("CCOffset", cc_offset, 0, 3);
  check("RABLength", rab_length, 0, 3);
  check("RABOffset", rab_offset, 0, 7);
  check("DRCLockPeriod", drc_lock_period, 0, 1);
  check("DRCLockLength", drc_lock_length, 0, 3);
  settings_.pilot_pn = pilot_pn;
  settings_.propagation_delay = propagation_delay;
  settings_.mac_index = mac_index;
  settings_.drc_cover = drc_cover;
  settings_.handoff_delay = handoff_delay;
  settings_.cc_data_rate = cc_data_rate;
  settings_.cc_offset = cc_offset;
  settings_.rab_length = rab_length;
  settings_.rab_offset = rab_offset;
  settings_.drc_lock_period = drc_lock_period;
  settings_.drc_lock_length = drc_lock_length;
  settings_.argument = argument;
  settings_.configured = true;
}

}  // namespace vorlan::simulator
