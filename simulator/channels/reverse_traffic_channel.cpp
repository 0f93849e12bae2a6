#include "simulator/channels/reverse_traffic_channel.hpp"

namespace vorlan::simulator {

namespace {

using R = ReverseTrafficChannel;

constexpr BoundMember kMembers[] = {
    property<&R::key>("Key", "Its key in the collection."),
    property<&R::propagation_delay, &R::set_propagation_delay>("PropagationDelay", "Chips."),
    property<&R::frame_offset, &R::set_frame_offset>("FrameOffset", "0 to 15 slots."),
    method<&R::acquire>("Acquire", "TimeOut",
                        "Waits for the terminal's signal, in units of 20 ms: whether it came in time."),
    property<&R::acquired>("Acquired", "Whether the terminal's signal is being received now."),
};

}  // namespace

std::span<const BoundMember> ReverseTrafficChannel::members() { return kMembers; }

void ReverseTrafficChannel::set_frame_offset(std::int16_t slots) {
  if (slots < 0 || slots > 15) throw Error(ErrorNumber::InvalidCall, {}, "FrameOffset is 0 to 15");
  frame_offset_ = slots;
}

bool ReverseTrafficChannel::acquire(std::int16_t time_out) {
  if (acquired()) return true;
  const auto longest = std::max<std::int16_t>(time_out, 0) * kTimeOutUnit;
  const bool came = simulation_->terminal.acquires_within(longest);
  simulation_->wait(came ? Terminal::kAcquisition : longest);
  return came;
}

}  // namespace vorlan::simulator
