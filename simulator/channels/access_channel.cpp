#include "simulator/channels/access_channel.hpp"

namespace vorlan::simulator {

namespace {

constexpr BoundMember kMembers[] = {
    property<&AccessChannel::key>("Key", "Its key in the collection."),
    property<&AccessChannel::sector_id24>("SectorID24", "The low 24 bits of SectorID."),
    property<&AccessChannel::color_code>("ColorCode", "0 to 255."),
    property<&AccessChannel::forward_channel>("ForwardChannel", "The one it answers for; Nothing if there is none."),
    method<&AccessChannel::attach>("AttachToForwardChannel", "ForwardChannel",
                                   "The access channel answers for this forward channel; error 91 for Nothing."),
};

}  // namespace

std::span<const BoundMember> AccessChannel::members() { return kMembers; }

void AccessChannel::attach(Ref<Object> forward_channel) {
  deref(forward_channel, "AccessChannel.AttachToForwardChannel");
  forward_channel_ = std::move(forward_channel);
}

}  // namespace vorlan::simulator
