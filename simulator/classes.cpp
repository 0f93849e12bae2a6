#include "simulator/classes.hpp"

#include "simulator/channels/access_channel.hpp"
#include "simulator/channels/forward_channel.hpp"
#include "simulator/channels/radio_channel_emulator.hpp"
#include "simulator/channels/reverse_traffic_channel.hpp"
#include "simulator/message_object.hpp"
#include "simulator/protocol_controller.hpp"
#include "simulator/security/security_object.hpp"
#include "simulator/signalling.hpp"
#include "simulator/terminal/access_terminal.hpp"
#include "simulator/test_report.hpp"
#include "simulator/test_set.hpp"
#include "simulator/trace/trace_object.hpp"

namespace vorlan::simulator {

namespace {

template <class T>
constexpr ClassEntry entry() {
  return {T::texts().name, &T::info, [](Platform&) -> Ref<Object> { return make<T>(); }};
}

/// An object with a simulation of its own.
template <class T>
constexpr ClassEntry simulated() {
  return {T::texts().name, &T::info,
          [](Platform& platform) -> Ref<Object> { return make<T>(std::make_shared<Simulation>(platform)); }};
}

}  // namespace

std::span<const ClassEntry> classes() noexcept {
  static constexpr ClassEntry kClasses[] = {
      {"TestSet", &TestSet::info, [](Platform& platform) -> Ref<Object> { return make<TestSet>(platform); }},
      entry<MessageObject>(),
      entry<TestReport>(),
      entry<ProtocolController>(),
      entry<RadioChannelEmulator>(),
      entry<FadingVelocity>(),
      entry<FadingPath>(),
      entry<KeyedCollection>(),
      {"ForwardChannel", &ForwardChannel::info,
       [](Platform&) -> Ref<Object> { return make<ForwardChannel>("FC_SECTOR 0"); }},
      {"AccessChannel", &AccessChannel::info,
       [](Platform&) -> Ref<Object> { return make<AccessChannel>("ACH_SECTOR 0", 0, std::int16_t{0}); }},
      {"ReverseTrafficChannel", &ReverseTrafficChannel::info,
       [](Platform& platform) -> Ref<Object> {
         return make<ReverseTrafficChannel>(std::make_shared<Simulation>(platform), "RTC_SECTOR 0");
       }},
      {"ChannelCollection", &ChannelCollection::info,
       [](Platform& platform) -> Ref<Object> {
         return make<ChannelCollection>(std::make_shared<Simulation>(platform), ChannelKind::Forward);
       }},
      simulated<Signalling>(),
      simulated<SecurityObject>(),
      simulated<AccessTerminal>(),
      simulated<TraceObject>(),
  };
  return kClasses;
}

std::vector<ClassTable> with_simulator(std::span<const ClassTable> tables) {
  std::vector<ClassTable> all(tables.begin(), tables.end());
  all.push_back({"VorlanSim", classes()});
  return all;
}

}  // namespace vorlan::simulator
