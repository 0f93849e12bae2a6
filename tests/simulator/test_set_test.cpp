// The simulated test set's channels, filters, report, fading and time.
#include <gtest/gtest.h>

#include "automation/registry.hpp"
#include "script.hpp"

namespace vorlan::test {

namespace {

TEST(TestSet, ChannelsByKey) {
  Script script;
  const auto forward = script.part("ForwardChannels");
  const auto channel = forward->call("Item", "ST2_FC_SECTOR 4").to_object();
  EXPECT_EQ(channel->get("SubType").to_integer(), 2);
  EXPECT_EQ(forward->call("Item", "st2_fc_sector 4").to_object(), channel);
  EXPECT_EQ(error_number([&] { forward->call("Item", "ACH_SECTOR 0"); }), 9);
  EXPECT_EQ(error_number([&] { forward->call("Add", "FC_SECTOR 9", 1, i16(2)); }), 5);
  forward->call("Remove", "ST2_FC_SECTOR 4");
  EXPECT_EQ(error_number([&] { forward->call("Remove", "ST2_FC_SECTOR 4"); }), 9);
  EXPECT_NE(forward->call("Item", "ST2_FC_SECTOR 4").to_object(), channel);

  const auto access = script.part("AccessChannels");
  EXPECT_EQ(error_number([&] { access->call("Item", "ACH_SECTOR 0"); }), 9);
  const auto first = access->call("Add", "ACH_SECTOR 0", 0xABCDEF, i16(7)).to_object();
  first->call("AttachToForwardChannel", channel);
  EXPECT_EQ(first->get("ForwardChannel").to_object(), channel);
  EXPECT_EQ(error_number([&] { first->call("AttachToForwardChannel", Ref<Object>()); }), 91);
  access->call("Add", "ACH_SECTOR 0", 0x123456, i16(8));
  EXPECT_EQ(access->get("Count").to_integer(), 1);
  EXPECT_EQ(access->call("Item", i16(1)).to_object()->get("SectorID24").to_long(), 0x123456);
}

TEST(TestSet, ForwardChannelRefusesWhatIsOutOfRange) {
  Script script;
  const auto channel = script.part("ForwardChannels")->call("Item", "FC_SECTOR 0").to_object();
  const std::vector<Value> good{i16(511), i16(0), i16(127), i16(1), i16(16), 76.8F,
                                i16(3),   i16(3), i16(7),   i16(1), i16(3),  "untouched"};
  std::vector<Value> arguments = good;
  channel->invoke("Configure", Access::Call, arguments);
  const std::pair<std::size_t, int> bad[] = {{0, 512}, {2, 4}, {2, 128}, {3, 0}, {6, 4},
                                             {7, -1},  {8, 8}, {9, 2},   {10, 4}};
  for (const auto& [index, value] : bad) {
    arguments = good;
    arguments[index] = i16(value);
    EXPECT_EQ(error_number([&] { channel->invoke("Configure", Access::Call, arguments); }), 5) << index;
  }
  EXPECT_EQ(channel->get("PilotPN").to_integer(), 511) << "a refused configuration changes nothing";
  EXPECT_EQ(channel->get("Argument").to_text(), "untouched");
  channel->let("FailsConfiguration", true);
  arguments = good;
  EXPECT_EQ(error_number([&] { channel->invoke("Configure", Access::Call, arguments); }), 5);
}

TEST(TestSet, FiltersTakeWhatArrivesAfterThem) {
  Script script;
  const auto say = [&](std::string_view octets) { script.terminal->call("Send", i16(13), octets); };
  say("07 01");
  script.test_set->call("Sleep", 1.0);
  const Value filter = script.signalling->call("AddFilter", i16(7), i16(1), Ref<Object>(), i16(13), i16(2));
  EXPECT_EQ(script.wait(filter, 0), "") << "it came too early";
  for (const std::string_view octets : {"07 02", "08 00", "07 03", "07 04"}) say(octets);
  EXPECT_EQ(script.wait(filter, 0), "") << "still on its way";
  script.test_set->call("Sleep", 1.0);
  EXPECT_EQ(script.wait(filter, 0), "07 03") << "two are kept, the oldest is dropped";
  EXPECT_EQ(script.wait(filter), "07 04");
  EXPECT_EQ(script.trace->get("Note", i16(2)).to_text(), "no filter takes it") << "another MessageID";

  say("07 05");
  const auto before = script.now();
  EXPECT_EQ(script.wait(filter, 100, "Label"), "07 05");
  EXPECT_EQ(script.now() - before, 20) << "it waits no longer than it has to";
  script.signalling->get("Messages").to_object()->call("Remove", "Label");
  script.signalling->call("RemoveFilter", filter);
  EXPECT_EQ(error_number([&] { script.signalling->call("RemoveFilter", filter); }), 9);
  EXPECT_EQ(error_number([&] { script.wait(filter); }), 9);
}

TEST(TestSet, MessagesThatAreNone) {
  Script script;
  const auto send = [&](const Value& message) {
    return error_number([&] {
      script.signalling->call("SendMessage", "M", i16(3), message, i16(18), i16(0), i16(2), i16(40), i16(0));
    });
  };
  EXPECT_EQ(send("0102"), 13);
  EXPECT_EQ(send(std::string(32768, '0')), 6);
  EXPECT_EQ(send(""), 0);
  EXPECT_EQ(script.complaint(), "an empty message");
  EXPECT_EQ(error_number([&] {
              script.signalling->call("SendAndWait", "M", i16(3), i16(1), Ref<Object>(), i16(5), i16(0), i16(2),
                                      i16(40), i16(-1), "A", i16(1), i16(1));
            }),
            91);
}

TEST(TestSet, FadingEmulator) {
  Script script;
  const auto emulator = script.part("RadioChannelEmulator");
  const auto paths = emulator->get("Paths").to_object();
  EXPECT_EQ(paths->get("Count").to_integer(), 8);
  const auto path = paths->call("Item", "Path8").to_object();
  path->call("ConnectToForwardChannel", script.part("ForwardChannels")->call("Item", "FC_SECTOR 0"));
  path->let("Gain", -3.5F);
  EXPECT_EQ(error_number([&] { path->let("Delay", -1.0F); }), 5);
  emulator->let("Enabled", true);
  emulator->call("Reset");
  EXPECT_FALSE(emulator->get("Enabled").to_boolean());
  EXPECT_FALSE(path->get("ForwardChannel").to_object());
  EXPECT_EQ(path->get("Gain").to_single(), 0);
}

TEST(TestSet, ReportKeepsTheLatestLines) {
  Script script;
  const auto report = script.part("TestReport");
  for (int i = 0; i < 1001; ++i) report->call("AddText", std::to_string(i));
  EXPECT_EQ(report->get("Count").to_integer(), 1000);
  EXPECT_EQ(report->get("Line", i16(0)).to_text(), "1");
  EXPECT_EQ(error_number([&] { report->get("Line", i16(1000)); }), 9);
}

TEST(TestSet, RealTimeIsThatOfThePlatform) {
  Script script;
  Clock& clock = *script.fake.platform.clock;
  clock.sleep(std::chrono::hours(24));
  EXPECT_EQ(clock.local_time().day, 6) << "the fifth, and a day later";
  EXPECT_EQ(script.fake.clock->passed.count(), 0);
  script.test_set->let("RealTime", true);
  script.terminal->call("StaySilent");
  EXPECT_EQ(script.ask(5, "50 07 02 00 00", 1, 50), "");
  EXPECT_EQ(script.fake.clock->passed.count(), 1000) << "now somebody waited";
  EXPECT_EQ(clock.ticks(), std::chrono::hours(24) + std::chrono::seconds(1));
  EXPECT_EQ(clock.local_time().hour, 9);

  script.test_set->let("RealTime", false);
  clock.sleep(std::chrono::hours(1));
  EXPECT_EQ(script.fake.clock->passed.count(), 1000);
  for (Ref<Object>* part : {&script.test_set, &script.signalling, &script.terminal, &script.trace}) *part = nullptr;
  clock.sleep(std::chrono::seconds(1));
  EXPECT_EQ(script.fake.clock->passed.count(), 2000) << "no test set is left";
}

TEST(TestSet, PartsOutliveTheTestSet) {
  Script script;
  script.test_set = nullptr;
  EXPECT_EQ(script.ask(5, "50 07 02 00 00", 1), "51 07 02 00 00");
}

TEST(TestSet, EveryClassIsListedAndCanBeCreated) {
  const ClassTable tables[] = {{"VorlanSim", simulator::classes()}};
  const Registry registry(tables);
  FakePlatform fake;
  for (const Registry::Class& cls : registry.classes()) {
    const Ref<Object> object = registry.create(cls.prog_id(), fake.platform);
    EXPECT_EQ(object->class_info(), &cls.info());
    EXPECT_FALSE(cls.info().summary().empty()) << cls.name();
    for (const MemberInfo& member : cls.info().members()) EXPECT_TRUE(member.summary.ends_with('.')) << member.name;
  }
}

}  // namespace

}  // namespace vorlan::test
