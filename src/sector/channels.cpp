// SB_Sector: forward, access and reverse traffic channels.
#include "automation/error.hpp"
#include "common/conversions.hpp"
#include "sector/sector_channels.hpp"
#include "sector/sector_errors.hpp"

namespace vorlan {

namespace {

constexpr std::size_t kSectorIdBits = 24;
constexpr std::int16_t kAcquisitionTimeOut = 750;
constexpr int kMasterSectors = 3;

}  // namespace

std::string SB_Sector::role_label() const {
  const int number = Value(sector_name_.substr(sector_name_.empty() ? 0 : sector_name_.size() - 1)).to_integer();
  return number < kMasterSectors ? "Master Sector" + std::to_string(number)
                                 : "Slave Sector" + std::to_string(number - kMasterSectors);
}

void SB_Sector::configure_forward_channel(std::int16_t subtype, const Value& argument) {
  const SectorChannels& names = channels_of(subtype);
  const TestSetAccess access = test_set();
  const Ref<Object>& collection = held(Held::FChCollection);
  const Ref<Object> channel =
      access.object(Role::ChannelItem, collection, std::string(names.forward_prefix) + sector_name_);
  held(names.forward) = channel;

  const auto integer = [this](std::string_view property) { return setting(property).to_integer(); };
  access.call(Role::ConfigureForwardChannel, channel, bin_to_dec(setting("PRstr_PilotPN").to_text()),
              integer("PRint_PropagationDelay"), integer(subtype == 2 ? "PRint_MACIndex_SubType2" : "PRint_MACIndex"),
              integer("PRint_DRCCover"), integer("PRint_HandoffDelay"), setting("PRdbl_CCDataRate").to_single(),
              integer("PRint_CCOffset"), integer("PRint_RABLength"), integer("PRint_RABOffset"),
              integer("PRint_DRCLockPeriod"), integer("PRint_DRCLockLength"), argument);

  const float level = setting("PRsin_Ior").to_single();
  if (subtype == 2) {
    access.let(Role::ARQMode, channel, setting("PRbln_ARQMode"));
  } else {
    access.let(Role::SlotContentsState, channel, setting("PRbln_SlotContentsState"));
  }
  access.let(Role::OutputLevel, channel, level);
  access.let(Role::RPCDRCLockLevel, channel, setting("PRdbl_MAC_RPC_DRCLock_Channel_Ec_Ior"));
  access.let(Role::RALevel, channel, setting("PRdbl_MacRACEc_Ior"));
  if (subtype == 2) {
    access.let(Role::ARQLevel, channel, setting("PRdbl_MacARQEc_Ior"));
    subtype2_configured_ = true;
  }
  log("Forward Channel for " + role_label() + " configured with Ior = " + Value(level).to_text());
  access.call(Role::ApplyChannels, collection);
}

void SB_Sector::configure_access_channel(std::int16_t subtype, const Ref<Object>& forward_channel) {
  const SectorChannels& names = channels_of(subtype);
  const TestSetAccess access = test_set();
  const std::string sector_id = setting("PRstr_SectorID").to_text();
  if (sector_id.size() < kSectorIdBits) raise(sector_errors::kShortSectorId);
  const std::int32_t low_bits = bin_to_long(std::string_view(sector_id).substr(sector_id.size() - kSectorIdBits));
  const std::int16_t color_code = bin_to_dec(setting("PRstr_ColorCode").to_text());

  const Ref<Object>& collection = held(names.access_collection);
  const Ref<Object> channel = access.object(Role::AddAccessChannel, collection,
                                            std::string(names.access_prefix) + sector_name_, low_bits, color_code);
  held(names.access) = channel;
  if (forward_channel) held(names.forward) = forward_channel;
  access.call(Role::AttachAccessChannel, channel, existing(names.forward));

  const Ref<Object> reverse = reverse_channel(subtype);
  access.let(Role::ReversePropagationDelay, reverse, setting("PRint_RevTCHPropagationDelay"));
  access.let(Role::FrameOffset, reverse, setting("PRint_FrameOffset"));
  access.call(Role::ApplyChannels, collection);
  log("Access Channel configured.");
}

Ref<Object> SB_Sector::configure_channels(std::int16_t subtype, bool configure_access, const Value& argument,
                                          const ErrorRow& forward_failed, const ErrorRow& access_failed) {
  or_raise(forward_failed, [&] { configure_forward_channel(subtype, argument); });
  const Ref<Object> forward = held(channels_of(subtype).forward);
  if (configure_access) or_raise(access_failed, [&] { configure_access_channel(subtype, forward); });
  return forward;
}

Ref<Object> SB_Sector::ConfigureFwdAndAccChannel(bool configure_access, const Value& argument) {
  global_parameters();
  test_set();
  return configure_channels(0, configure_access, argument, sector_errors::kForwardFailed, sector_errors::kAccessFailed);
}

Ref<Object> SB_Sector::ReConfigureFwdAndAccChannel(bool configure_access, const Value& argument) {
  global_parameters();
  test_set();
  const std::int16_t subtype = current_subtype();
  if (!is_later_subtype(subtype)) raise(sector_errors::kLaterForwardFailed);
  return configure_channels(subtype, configure_access, argument, sector_errors::kLaterForwardFailed,
                            sector_errors::kLaterAccessFailed);
}

bool SB_Sector::ConfigureAccessChannel(const std::optional<Ref<Object>>& forward_channel) {
  configure_access_channel(0, forward_channel.value_or(nullptr));
  return true;
}

bool SB_Sector::ReConfigureAccessChannel(const std::optional<Ref<Object>>& forward_channel) {
  const std::int16_t subtype = current_subtype();
  if (!is_later_subtype(subtype)) return false;
  configure_access_channel(subtype, forward_channel.value_or(nullptr));
  return true;
}

Ref<Object> SB_Sector::reverse_channel(std::int16_t subtype) const {
  const Ref<Object>& own = held(channels_of(subtype).reverse);
  return own ? own : held(Held::RevTrafficChannel);
}

bool SB_Sector::AcquireReverseTrafficChannel() {
  const TestSetAccess access = test_set();
  const Ref<Object> channel = reverse_channel(current_subtype());
  const bool acquired = or_raise(sector_errors::kNotAcquired, [&] {
    return access.call(Role::AcquireReverse, channel, kAcquisitionTimeOut).to_boolean();
  });
  if (!acquired) raise(sector_errors::kNotAcquired);
  if (!access.call(Role::ReverseAcquired, channel).to_boolean()) return false;
  log("Reverse Traffic Channel acquired");
  return true;
}

void SB_Sector::CleanUp() {
  const TestSetAccess access = test_set();
  std::optional<Error> failure;
  const auto remove = [&](Held collection, std::string_view prefix, Held channel) {
    held(channel) = nullptr;
    if (!held(collection)) return;
    try {
      access.call(Role::RemoveChannel, held(collection), std::string(prefix) + sector_name_);
    } catch (const Error& error) {
      const bool not_there = error.is(ErrorNumber::InvalidCall) || error.is(ErrorNumber::SubscriptOutOfRange);
      if (!not_there && !failure) failure = error;
    }
  };
  for (const SectorChannels& names : kSectorChannels) remove(Held::FChCollection, names.forward_prefix, names.forward);
  for (const SectorChannels& names : kSectorChannels)
    remove(names.access_collection, names.access_prefix, names.access);
  subtype2_configured_ = false;
  if (failure) throw Error(*failure);
}

}  // namespace vorlan
