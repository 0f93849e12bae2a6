// Every member of a test set's objects that the library uses: whose it is, its name, its arguments. A name that the
// test set does not fix can be changed in the parameter file: [TestSetMembers], a line "Role = Name".
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "common/script_log.hpp"
#include "sector/test_set_arguments.hpp"

namespace vorlan {

/// The kinds of a test set's objects, and where the library has them from.
enum class TestSetObject : std::uint8_t {
  TestSet,                ///< PRobj_TestSet of the sector
  TestReport,             ///< PRobj_TestReport of the sector
  ChannelCollection,      ///< PRobj_FChCollection and the three PRobj_...AccChCollection of the sector
  ForwardChannel,         ///< in PRobj_FChCollection, keys "FC_SECTOR 0", "ST1_FC_SECTOR 0", "ST2_FC_SECTOR 0"
  AccessChannel,          ///< made by Role::AddAccessChannel
  ReverseTrafficChannel,  ///< PRobj_RevTrafficChannel, or that of the subtype, of the sector
  Signalling,             ///< PRobj_EvSignalling of the sector
  MessageCollection,      ///< Role::MessageCollection of Signalling
  ProtocolController,     ///< PRobj_EvProtocolController of the sector
  RadioChannelEmulator,   ///< PRobj_RadioChannelEmulator of the sector
  FadingVelocity,         ///< Role::FadingVelocity of RadioChannelEmulator
  FadingPaths,            ///< Role::FadingPaths of RadioChannelEmulator
  FadingPath,             ///< in FadingPaths, keys "Path1" to "Path8"
  Security,               ///< Role::SecurityObject of TestSet
};

/// What the members of a test set are for, in the order of kTestSetMembers.
enum class Role : std::uint8_t {
  Apply,
  SecurityObject,
  ReportLine,
  ChannelItem,
  RemoveChannel,
  AddAccessChannel,
  ApplyChannels,
  ConfigureForwardChannel,
  SlotContentsState,
  ARQMode,
  OutputLevel,
  RPCDRCLockLevel,
  RALevel,
  ARQLevel,
  AttachAccessChannel,
  ReversePropagationDelay,
  FrameOffset,
  AcquireReverse,
  ReverseAcquired,
  AddFilter,
  RemoveFilter,
  WaitForMessage,
  FetchMessage,
  SendMessage,
  SendAndWait,
  CreateMessageObject,
  MessageCollection,
  MessageItem,
  RemoveMessage,
  AutomaticTestPackets,
  StartTestPackets,
  FadingVelocity,
  FadingPaths,
  FadingOn,
  ResetFading,
  ReferenceVelocity,
  FadingPathItem,
  ConnectPath,
  PathGain,
  PathDelay,
  ANPublicKey,
  ATPublicKey,
  Nonce,
  TimeStampShort,
  KeySignature,
};

enum class Use : std::uint8_t { Call, Get, Let, GetAndLet };

/// One member. An argument of Get or Let is an index; the value that Let takes is of the member's type.
struct TestSetMember {
  Role role;
  std::string_view role_name;  ///< in the parameter file
  TestSetObject object;
  std::string_view name;
  bool fixed;  ///< the test set's own name: it cannot be changed
  Use use;
  ValueType type;  ///< of the property, or of what the call returns; Empty: nothing is expected
  std::span<const TestSetArgument> arguments;
  std::string_view summary;
};

inline constexpr TestSetMember kTestSetMembers[] = {
    {Role::Apply, "Apply", TestSetObject::TestSet, "ApplyChanges", false, Use::Call, ValueType::Empty, test_set::kApply,
     "What was changed takes effect"},
    {Role::SecurityObject, "SecurityObject", TestSetObject::TestSet, "Security", false, Use::Get, ValueType::Object,
     test_set::kNone, "The object that computes keys and signatures"},
    {Role::ReportLine, "ReportLine", TestSetObject::TestReport, kAddReportLine, false, Use::Call, ValueType::Empty,
     test_set::kText, "Adds a line to the test report"},

    {Role::ChannelItem, "ChannelItem", TestSetObject::ChannelCollection, "Item", true, Use::Call, ValueType::Object,
     test_set::kChannelKey, "The channel; raises if there is none"},
    {Role::RemoveChannel, "RemoveChannel", TestSetObject::ChannelCollection, "Remove", true, Use::Call,
     ValueType::Empty, test_set::kChannelKey, "Drops the channel; error 5 or 9 if there is none"},
    {Role::AddAccessChannel, "AddAccessChannel", TestSetObject::ChannelCollection, "Add", false, Use::Call,
     ValueType::Object, test_set::kAccessChannel, "Makes an access channel and returns it; replaces one of that key"},
    {Role::ApplyChannels, "ApplyChannels", TestSetObject::ChannelCollection, "Apply", false, Use::Call,
     ValueType::Empty, test_set::kNone, "Its channels' settings take effect"},

    {Role::ConfigureForwardChannel, "ConfigureForwardChannel", TestSetObject::ForwardChannel, "Configure", false,
     Use::Call, ValueType::Empty, test_set::kForwardSettings, "All settings of the channel at once"},
    {Role::SlotContentsState, "SlotContentsState", TestSetObject::ForwardChannel, "SlotContentsState", true, Use::Let,
     ValueType::Boolean, test_set::kNone, "Whether the contents of slots are reported; subtypes 0 and 1"},
    {Role::ARQMode, "ARQMode", TestSetObject::ForwardChannel, "ARQMode", true, Use::Let, ValueType::Boolean,
     test_set::kNone, "Whether the ARQ channel is used; subtype 2"},
    {Role::OutputLevel, "OutputLevel", TestSetObject::ForwardChannel, "Level", false, Use::GetAndLet, ValueType::Single,
     test_set::kNone, "Output level in dB"},
    {Role::RPCDRCLockLevel, "RPCDRCLockLevel", TestSetObject::ForwardChannel, "RPCDRCLockEc_Ior", false, Use::Let,
     ValueType::Double, test_set::kNone, "Share of the RPC and DRCLock channels in dB"},
    {Role::RALevel, "RALevel", TestSetObject::ForwardChannel, "Ec_Ior", true, Use::Let, ValueType::Double,
     test_set::kNone, "Share of the reverse activity channel in dB"},
    {Role::ARQLevel, "ARQLevel", TestSetObject::ForwardChannel, "ARQEc_Ior", false, Use::Let, ValueType::Double,
     test_set::kNone, "Share of the ARQ channel in dB; subtype 2"},

    {Role::AttachAccessChannel, "AttachAccessChannel", TestSetObject::AccessChannel, "AttachToForwardChannel", false,
     Use::Call, ValueType::Empty, test_set::kForwardChannel, "The access channel answers for this forward channel"},
    {Role::ReversePropagationDelay, "ReversePropagationDelay", TestSetObject::ReverseTrafficChannel, "PropagationDelay",
     false, Use::Let, ValueType::Integer, test_set::kNone, "Propagation delay in chips"},
    {Role::FrameOffset, "FrameOffset", TestSetObject::ReverseTrafficChannel, "FrameOffset", false, Use::Let,
     ValueType::Integer, test_set::kNone, "Frame offset in slots, 0 to 15"},
    {Role::AcquireReverse, "AcquireReverse", TestSetObject::ReverseTrafficChannel, "Acquire", false, Use::Call,
     ValueType::Boolean, test_set::kAcquire, "Waits for the terminal's signal: whether it came"},
    {Role::ReverseAcquired, "ReverseAcquired", TestSetObject::ReverseTrafficChannel, "Acquired", false, Use::Get,
     ValueType::Boolean, test_set::kNone, "Whether the terminal's signal is being received now"},

    {Role::AddFilter, "AddFilter", TestSetObject::Signalling, "AddFilter", false, Use::Call, ValueType::Any,
     test_set::kAddFilter, "Collects messages received from now on; returns the filter's handle"},
    {Role::RemoveFilter, "RemoveFilter", TestSetObject::Signalling, "RemoveFilter", false, Use::Call, ValueType::Empty,
     test_set::kFilter, "Drops a filter and the messages that wait in it"},
    {Role::WaitForMessage, "WaitForMessage", TestSetObject::Signalling, "WaitForMessage", false, Use::Call,
     ValueType::Boolean, test_set::kWait, "Takes the oldest message out of a filter: whether there was one in time"},
    {Role::FetchMessage, "FetchMessage", TestSetObject::Signalling, "FetchMessage", false, Use::Call, ValueType::String,
     test_set::kNone, "The message that was waited for last, as a bit string"},
    {Role::SendMessage, "SendMessage", TestSetObject::Signalling, "SendMessage", false, Use::Call, ValueType::Empty,
     test_set::kSend, "Sends a message"},
    {Role::SendAndWait, "SendAndWait", TestSetObject::Signalling, "SendAndWait", false, Use::Call, ValueType::Boolean,
     test_set::kSendAndWait, "Sends a message and waits for its answer: whether it came in time"},
    {Role::CreateMessageObject, "CreateMessageObject", TestSetObject::Signalling, "CreateMessageObject", false,
     Use::Call, ValueType::Object, test_set::kNone, "A new message object: Length and Octet"},
    {Role::MessageCollection, "MessageCollection", TestSetObject::Signalling, "Messages", false, Use::Get,
     ValueType::Object, test_set::kNone, "Messages sent and received, by label"},
    {Role::MessageItem, "MessageItem", TestSetObject::MessageCollection, "Item", true, Use::Call, ValueType::Object,
     test_set::kLabel, "The message object; raises if there is none"},
    {Role::RemoveMessage, "RemoveMessage", TestSetObject::MessageCollection, "Remove", true, Use::Call,
     ValueType::Empty, test_set::kLabel, "Drops the message"},

    {Role::AutomaticTestPackets, "AutomaticTestPackets", TestSetObject::ProtocolController, "FTAPTestPktTxAutoOn", true,
     Use::GetAndLet, ValueType::Boolean, test_set::kNone,
     "Whether test packets are sent as soon as the terminal is ready"},
    {Role::StartTestPackets, "StartTestPackets", TestSetObject::ProtocolController, "StartFTAPTestPktTx", true,
     Use::Let, ValueType::Boolean, test_set::kNone, "Starts or stops the forward test packets"},

    {Role::FadingVelocity, "FadingVelocity", TestSetObject::RadioChannelEmulator, "Velocity", false, Use::Get,
     ValueType::Object, test_set::kNone, "The emulator's velocity object"},
    {Role::FadingPaths, "FadingPaths", TestSetObject::RadioChannelEmulator, "Paths", false, Use::Get, ValueType::Object,
     test_set::kNone, "The emulator's collection of fading paths"},
    {Role::FadingOn, "FadingOn", TestSetObject::RadioChannelEmulator, "Enabled", false, Use::Let, ValueType::Boolean,
     test_set::kNone, "True switches the emulator on"},
    {Role::ResetFading, "ResetFading", TestSetObject::RadioChannelEmulator, "Reset", true, Use::Call, ValueType::Empty,
     test_set::kNone, "Switches the emulator off and disconnects its paths"},
    {Role::ReferenceVelocity, "ReferenceVelocity", TestSetObject::FadingVelocity, "ReferenceVelocity", true, Use::Let,
     ValueType::Integer, test_set::kNone, "km/h"},
    {Role::FadingPathItem, "FadingPathItem", TestSetObject::FadingPaths, "Item", true, Use::Call, ValueType::Object,
     test_set::kPathKey, "The path"},
    {Role::ConnectPath, "ConnectPath", TestSetObject::FadingPath, "ConnectToForwardChannel", true, Use::Call,
     ValueType::Empty, test_set::kForwardChannel, "The path fades this forward channel"},
    {Role::PathGain, "PathGain", TestSetObject::FadingPath, "Gain", false, Use::Let, ValueType::Single, test_set::kNone,
     "Gain of the path in dB"},
    {Role::PathDelay, "PathDelay", TestSetObject::FadingPath, "Delay", false, Use::Let, ValueType::Single,
     test_set::kNone, "Delay of the path in microseconds"},

    {Role::ANPublicKey, "ANPublicKey", TestSetObject::Security, "GetANPublicKey", false, Use::Call, ValueType::Object,
     test_set::kKeyLength, "Draws a new exponent; its public key as a message object of KeyLength bits"},
    {Role::ATPublicKey, "ATPublicKey", TestSetObject::Security, "SetATPublicKey", false, Use::Call, ValueType::Empty,
     test_set::kPublicKey, "Takes the terminal's public key and computes the session key"},
    {Role::Nonce, "Nonce", TestSetObject::Security, "Nonce", false, Use::Get, ValueType::String, test_set::kNone,
     "A new Nonce of ANKeyComplete, 16 bits; read first of the three"},
    {Role::TimeStampShort, "TimeStampShort", TestSetObject::Security, "TimeStampShort", false, Use::Get,
     ValueType::String, test_set::kNone, "The TimeStampShort of ANKeyComplete, 16 bits"},
    {Role::KeySignature, "KeySignature", TestSetObject::Security, "GetKeySignature", false, Use::Call,
     ValueType::String, test_set::kTransactionId,
     "The KeySignature over session key, TransactionID, Nonce and time, 160 bits"},
};

/// The row of a role.
constexpr const TestSetMember& test_set_member(Role role) noexcept {
  return kTestSetMembers[static_cast<std::size_t>(role)];
}

namespace test_set {
consteval bool rows_stand_in_order() {
  std::size_t row = 0;
  for (const TestSetMember& member : kTestSetMembers) {
    if (static_cast<std::size_t>(member.role) != row++) return false;
  }
  return row == static_cast<std::size_t>(Role::KeySignature) + 1;
}
static_assert(rows_stand_in_order());
}  // namespace test_set

}  // namespace vorlan
