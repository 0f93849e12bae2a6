#include "simulator/test_set.hpp"

#include "simulator/channels/radio_channel_emulator.hpp"
#include "simulator/protocol_controller.hpp"
#include "simulator/security/security_object.hpp"
#include "simulator/signalling.hpp"
#include "simulator/terminal/access_terminal.hpp"
#include "simulator/test_report.hpp"
#include "simulator/trace/trace_object.hpp"

namespace vorlan::simulator {

namespace {

using T = TestSet;

constexpr BoundMember kMembers[] = {
    property<&T::forward_channels>("ForwardChannels",
                                   "Keys \"FC_SECTOR 0\", \"ST1_FC_SECTOR 0\", \"ST2_FC_SECTOR 0\"."),
    property<&T::reverse_traffic_channels>("ReverseTrafficChannels",
                                           "Keys \"RTC_SECTOR 0\", \"ST1_RTC_SECTOR 0\", \"ST2_RTC_SECTOR 0\"."),
    property<&T::access_channels>("AccessChannels", "Those added under \"ACH_SECTOR 0\"."),
    property<&T::subtype1_access_channels>("SubType1AccessChannels", "Those added under \"ST1_ACH_SECTOR 0\"."),
    property<&T::subtype2_access_channels>("SubType2AccessChannels", "Those added under \"ST2_ACH_SECTOR 0\"."),
    property<&T::signalling>("Signalling", "Sends, filters and waits for messages."),
    property<&T::protocol_controller>("ProtocolController", "Switches forward test packets."),
    property<&T::test_report>("TestReport", "Lines of text."),
    property<&T::radio_channel_emulator>("RadioChannelEmulator", "Fading: a velocity and eight paths."),
    property<&T::security>("Security", "Computes keys and signatures."),
    property<&T::access_terminal>("AccessTerminal", "Simulator only: the terminal on the other side."),
    property<&T::trace>("Trace", "Simulator only: the messages of both sides."),
    method<&T::apply_changes>("ApplyChanges", "When, Event, Parts", "What was changed takes effect."),
    property<&T::changes_applied>("ChangesApplied", "Simulator only: how often ApplyChanges was called."),
    property<&T::real_time, &T::set_real_time>(
        "RealTime",
        "Simulator only: True lets waits take as long as they would; False, the usual, lets them pass at once."),
    property<&T::time>("Time", "Simulator only: seconds since the test set was made."),
    method<&T::sleep>("Sleep", "Seconds", "Simulator only: lets time pass."),
};

}  // namespace

std::span<const BoundMember> TestSet::members() { return kMembers; }

TestSet::TestSet(const Platform& platform)
    : simulation_(std::make_shared<Simulation>(platform)),
      forward_channels_(make<ChannelCollection>(simulation_, ChannelKind::Forward)),
      reverse_traffic_channels_(make<ChannelCollection>(simulation_, ChannelKind::Reverse)),
      access_channels_(make<ChannelCollection>(simulation_, ChannelKind::Access)),
      subtype1_access_channels_(make<ChannelCollection>(simulation_, ChannelKind::Access)),
      subtype2_access_channels_(make<ChannelCollection>(simulation_, ChannelKind::Access)),
      signalling_(make<Signalling>(simulation_)),
      protocol_controller_(make<ProtocolController>()),
      test_report_(make<TestReport>()),
      radio_channel_emulator_(make<RadioChannelEmulator>()),
      security_(make<SecurityObject>(simulation_)),
      access_terminal_(make<AccessTerminal>(simulation_)),
      trace_(make<TraceObject>(simulation_)) {}

void TestSet::apply_changes(std::int16_t, const Value&, std::int16_t) { ++changes_applied_; }

double TestSet::time() const { return std::chrono::duration<double>(simulation_->now()).count(); }

void TestSet::sleep(double seconds) {
  constexpr double kLongest = 1e6;
  if (!(seconds >= 0 && seconds <= kLongest)) throw Error(ErrorNumber::InvalidCall, {}, "0 to 1000000 seconds");
  simulation_->wait(std::chrono::milliseconds(static_cast<std::int64_t>(seconds * 1000)));
}

}  // namespace vorlan::simulator
