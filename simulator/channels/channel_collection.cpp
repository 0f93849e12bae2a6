#include "simulator/channels/channel_collection.hpp"

#include "simulator/channels/access_channel.hpp"
#include "simulator/channels/forward_channel.hpp"
#include "simulator/channels/reverse_traffic_channel.hpp"

namespace vorlan::simulator {

namespace {

using C = ChannelCollection;

constexpr BoundMember kMembers[] = {
    method<&C::item>("Item", "Key", "A channel by its key, or by number from 1 on; error 9 if there is none."),
    method<&C::remove>("Remove", "Key", "Drops a channel; error 9 if there is none."),
    method<&C::add>("Add", "Key, SectorID24, ColorCode", "Makes an access channel, in place of one of that key."),
    method<&C::apply>("Apply", "", "The settings of the channels take effect."),
    property<&C::applied>("Applied", "Simulator only: how often Apply was called."),
    property<&C::count>("Count", "How many channels there are."),
    property<&C::keys>("Keys", "All keys as an array of texts."),
};

}  // namespace

std::span<const BoundMember> ChannelCollection::members() { return kMembers; }

Ref<Object> ChannelCollection::item(const Value& key) {
  const std::string* const text = key.as<std::string>();
  if (text != nullptr && !channels_.find(*text)) {
    const std::string_view name = std::string_view(*text).substr(subtype_of_key(*text) == 0 ? 0 : 4);
    if (kind_ == ChannelKind::Forward && name.starts_with("FC_")) channels_.put(*text, make<ForwardChannel>(*text));
    if (kind_ == ChannelKind::Reverse && name.starts_with("RTC_")) {
      channels_.put(*text, make<ReverseTrafficChannel>(simulation_, *text));
    }
  }
  return channels_.item(key);
}

Ref<Object> ChannelCollection::add(const std::string& key, std::int32_t sector_id24, std::int16_t color_code) {
  if (kind_ != ChannelKind::Access) throw Error(ErrorNumber::InvalidCall, {}, "only access channels can be added");
  auto channel = make<AccessChannel>(key, sector_id24, color_code);
  channels_.put(key, channel);
  return channel;
}

}  // namespace vorlan::simulator
