// The simulated test set has every member that the library calls by its default name.
#include <gtest/gtest.h>

#include "script.hpp"
#include "sector/test_set_members.hpp"

namespace vorlan::test {

namespace {

Ref<Object> object_of_kind(Script& script, TestSetObject kind) {
  const auto emulator = script.part("RadioChannelEmulator");
  switch (kind) {
    case TestSetObject::TestSet: return script.test_set;
    case TestSetObject::TestReport: return script.part("TestReport");
    case TestSetObject::ChannelCollection: return script.part("ForwardChannels");
    case TestSetObject::ForwardChannel: return script.part("ForwardChannels")->call("Item", "FC_SECTOR 0").to_object();
    case TestSetObject::AccessChannel:
      return script.part("AccessChannels")->call("Add", "ACH_SECTOR 0", 0xABCDEF, i16(3)).to_object();
    case TestSetObject::ReverseTrafficChannel:
      return script.part("ReverseTrafficChannels")->call("Item", "RTC_SECTOR 0").to_object();
    case TestSetObject::Signalling: return script.signalling;
    case TestSetObject::MessageCollection: return script.signalling->get("Messages").to_object();
    case TestSetObject::ProtocolController: return script.part("ProtocolController");
    case TestSetObject::RadioChannelEmulator: return emulator;
    case TestSetObject::FadingVelocity: return emulator->get("Velocity").to_object();
    case TestSetObject::FadingPaths: return emulator->get("Paths").to_object();
    case TestSetObject::FadingPath: return emulator->get("Paths").to_object()->call("Item", "Path8").to_object();
    case TestSetObject::Security: return script.part("Security");
  }
  return nullptr;
}

TEST(MemberNames, EveryDefaultNameIsThereWithItsArguments) {
  Script script;
  for (const TestSetMember& row : kTestSetMembers) {
    SCOPED_TRACE(row.role_name);
    const ClassInfo& info = *object_of_kind(script, row.object)->class_info();
    const int index = info.find(row.name);
    ASSERT_GE(index, 0) << info.name() << " has no " << row.name;
    const MemberInfo& member = info.members()[static_cast<std::size_t>(index)];
    EXPECT_EQ(member.name, row.name);
    EXPECT_EQ(member.is_method(), row.use == Use::Call);
    EXPECT_EQ(member.gets, row.use != Use::Call) << "what can be let can be read back";
    EXPECT_TRUE(member.lets || (row.use != Use::Let && row.use != Use::GetAndLet));
    ASSERT_EQ(member.parameters.size(), row.arguments.size());
    for (std::size_t i = 0; i < row.arguments.size(); ++i) {
      const ValueType taken = member.parameters[i].type;
      const ValueType given = row.arguments[i].type;
      EXPECT_TRUE(taken == given || taken == ValueType::Any || given == ValueType::Any) << row.arguments[i].name;
    }
  }
}

}  // namespace

}  // namespace vorlan::test
