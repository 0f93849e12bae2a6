#include "simulator/channels/radio_channel_emulator.hpp"

namespace vorlan::simulator {

namespace {

constexpr int kPaths = 8;

constexpr BoundMember kVelocityMembers[] = {
    property<&FadingVelocity::reference_velocity, &FadingVelocity::set_reference_velocity>("ReferenceVelocity",
                                                                                           "km/h, from 0 on."),
};

constexpr BoundMember kPathMembers[] = {
    method<&FadingPath::connect>("ConnectToForwardChannel", "ForwardChannel",
                                 "The path fades this forward channel; error 91 for Nothing."),
    property<&FadingPath::forward_channel>("ForwardChannel", "The one it fades; Nothing if there is none."),
    property<&FadingPath::gain, &FadingPath::set_gain>("Gain", "dB."),
    property<&FadingPath::delay, &FadingPath::set_delay>("Delay", "Microseconds, from 0 on."),
};

using E = RadioChannelEmulator;
constexpr BoundMember kMembers[] = {
    property<&E::velocity>("Velocity", "Its velocity object."),
    property<&E::paths>("Paths", "Its paths, \"Path1\" to \"Path8\"."),
    property<&E::enabled, &E::set_enabled>("Enabled", "Whether it is switched on."),
    method<&E::reset>("Reset", "", "Switches it off, disconnects its paths and puts their settings back to 0."),
};

}  // namespace

std::span<const BoundMember> FadingVelocity::members() { return kVelocityMembers; }
std::span<const BoundMember> FadingPath::members() { return kPathMembers; }
std::span<const BoundMember> RadioChannelEmulator::members() { return kMembers; }

void FadingVelocity::set_reference_velocity(std::int16_t km_per_hour) {
  if (km_per_hour < 0) throw Error(ErrorNumber::InvalidCall, {}, "a velocity is not negative");
  reference_velocity_ = km_per_hour;
}

void FadingPath::connect(Ref<Object> forward_channel) {
  deref(forward_channel, "FadingPath.ConnectToForwardChannel");
  forward_channel_ = std::move(forward_channel);
}

void FadingPath::set_delay(float microseconds) {
  if (!(microseconds >= 0)) throw Error(ErrorNumber::InvalidCall, {}, "a delay is not negative");
  delay_ = microseconds;
}

RadioChannelEmulator::RadioChannelEmulator() {
  for (int i = 1; i <= kPaths; ++i) {
    all_paths_.push_back(make<FadingPath>());
    paths_->objects.put("Path" + std::to_string(i), all_paths_.back());
  }
}

void RadioChannelEmulator::reset() {
  enabled_ = false;
  for (const Ref<FadingPath>& path : all_paths_) {
    path->disconnect();
    path->set_gain(0);
    path->set_delay(0);
  }
}

}  // namespace vorlan::simulator
