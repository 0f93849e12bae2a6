// The arguments of the test set's members, in order, and the values among them that never change.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "automation/value.hpp"

namespace vorlan {

namespace test_set {

// Time-outs count in units of 20 ms, 50 to the second.
inline constexpr std::int16_t kTimeOutsPerSecond = 50;

// AddFilter.
inline constexpr std::int16_t kMessageIdOctets = 1;    ///< of the MessageID that is compared
inline constexpr std::int16_t kFilterCapacity = 1000;  ///< messages that wait in a filter; the oldest is dropped

// SendMessage and SendAndWait. Flags are numbers: 0 is no, -1 is yes.
inline constexpr std::int16_t kAnyChannel = 3;     ///< sent on control or traffic channel, whichever is open
inline constexpr std::int16_t kOneAnswer = 1;      ///< answers that end the wait
inline constexpr std::int16_t kExchange = 0;       ///< a request or the response to one
inline constexpr std::int16_t kAnnouncement = -1;  ///< no message of the other side belongs to it
inline constexpr std::int16_t kReliable = 2;       ///< delivery by the signalling link protocol
inline constexpr std::int16_t kPriority = 40;      ///< of the message on the air
inline constexpr std::int16_t kWhenQueued = 0;     ///< the call goes on once the message is queued
inline constexpr std::int16_t kWhenSent = -1;      ///< the call goes on once the message is on the air

// Apply.
inline constexpr std::int16_t kAtOnce = 0;    ///< instead of a system time
inline constexpr std::int16_t kAllParts = 0;  ///< instead of a mask of parts

}  // namespace test_set

/// One argument of a call. Nothing is passed as the empty object reference.
struct TestSetArgument {
  std::string_view name;
  ValueType type;
  std::string_view meaning;
  std::optional<std::int16_t> constant = {};  ///< the library never passes another value
  std::optional<std::int16_t> or_constant = {};
};

namespace test_set {

inline constexpr std::span<const TestSetArgument> kNone;
inline constexpr TestSetArgument kApply[] = {
    {"When", ValueType::Integer, "0: at once", kAtOnce},
    {"Event", ValueType::Object, "always Nothing: no object is told"},
    {"Parts", ValueType::Integer, "0: everything that was changed", kAllParts},
};
inline constexpr TestSetArgument kText[] = {{"Text", ValueType::String, "one line"}};
inline constexpr TestSetArgument kChannelKey[] = {{"Key", ValueType::String, "\"FC_SECTOR 0\", \"ST2_ACH_SECTOR 5\""}};
inline constexpr TestSetArgument kAccessChannel[] = {
    {"Key", ValueType::String, "\"ACH_SECTOR 0\""},
    {"SectorID24", ValueType::Long, "the low 24 bits of SectorID"},
    {"ColorCode", ValueType::Integer, "0 to 255"},
};
inline constexpr TestSetArgument kForwardSettings[] = {
    {"PilotPN", ValueType::Integer, "0 to 511, in units of 64 chips"},
    {"PropagationDelay", ValueType::Integer, "chips"},
    {"MACIndex", ValueType::Integer, "5 to 63; up to 127 for subtype 2"},
    {"DRCCover", ValueType::Integer, "1 to 7"},
    {"HandoffDelay", ValueType::Integer, "slots"},
    {"CCDataRate", ValueType::Single, "kbit/s: 38.4 or 76.8"},
    {"CCOffset", ValueType::Integer, "slots, 0 to 3"},
    {"RABLength", ValueType::Integer, "0 to 3 = 8, 16, 32 or 64 slots"},
    {"RABOffset", ValueType::Integer, "0 to 7, in eighths of RABLength"},
    {"DRCLockPeriod", ValueType::Integer, "0 or 1 = every 8 or 16 slots"},
    {"DRCLockLength", ValueType::Integer, "0 to 3 = 4, 8, 16 or 32 repetitions"},
    {"Argument", ValueType::Any, "what the script gave ConfigureFwdAndAccChannel, untouched"},
};
inline constexpr TestSetArgument kForwardChannel[] = {
    {"ForwardChannel", ValueType::Object, "the sector's forward channel"}};
inline constexpr TestSetArgument kAcquire[] = {
    {"TimeOut", ValueType::Integer, "750 = 15 s", static_cast<std::int16_t>(750)}};
inline constexpr TestSetArgument kAddFilter[] = {
    {"MessageID", ValueType::Integer, "0 to 255"},
    {"MessageIDOctets", ValueType::Integer, "octets of the MessageID", kMessageIdOctets},
    {"Content", ValueType::Object, "always Nothing: whatever stands behind the MessageID"},
    {"ProtocolType", ValueType::Integer, "4, 14, 18 or 19"},
    {"Capacity", ValueType::Integer, "messages kept until they are waited for", kFilterCapacity},
};
inline constexpr TestSetArgument kFilter[] = {{"Filter", ValueType::Any, "what AddFilter returned"}};
inline constexpr TestSetArgument kWait[] = {
    {"Label", ValueType::String, "under which the message is put into the message collection"},
    {"Filter", ValueType::Any, "what AddFilter returned"},
    {"TimeOut", ValueType::Integer, "100 = 2 s", static_cast<std::int16_t>(100)},
};
inline constexpr TestSetArgument kSend[] = {
    {"Label", ValueType::String, "under which the message is put into the message collection"},
    {"Channel", ValueType::Integer, "3: the one that is open", kAnyChannel},
    {"Message", ValueType::String, "bit string"},
    {"ProtocolType", ValueType::Integer, "4, 14, 18 or 19"},
    {"Announcement", ValueType::Integer, "-1: no answer belongs to it; 0: part of an exchange", kAnnouncement,
     kExchange},
    {"Delivery", ValueType::Integer, "2: reliable", kReliable},
    {"Priority", ValueType::Integer, "on the air", kPriority},
    {"WhenSent", ValueType::Integer, "-1: returns once it is sent; 0: once it is queued", kWhenSent, kWhenQueued},
};
inline constexpr TestSetArgument kSendAndWait[] = {
    {"Label", ValueType::String, "under which the message is put into the message collection"},
    {"Channel", ValueType::Integer, "3: the one that is open", kAnyChannel},
    {"Answers", ValueType::Integer, "that end the wait", kOneAnswer},
    {"Message", ValueType::Object, "message object, as CreateMessageObject made it"},
    {"ProtocolType", ValueType::Integer, "of the message and its answer: 4, 5, 6, 18, 20 to 23"},
    {"Announcement", ValueType::Integer, "0: part of an exchange", kExchange},
    {"Delivery", ValueType::Integer, "2: reliable", kReliable},
    {"Priority", ValueType::Integer, "on the air", kPriority},
    {"WhenSent", ValueType::Integer, "-1 or, for the test application, 0", kWhenSent, kWhenQueued},
    {"AnswerLabel", ValueType::String, "under which the answer is put into the message collection"},
    {"AnswerCode", ValueType::Integer, "the low four bits of the answer's MessageID", static_cast<std::int16_t>(1),
     static_cast<std::int16_t>(3)},
    {"TimeOut", ValueType::Integer, "in units of 20 ms"},
};
inline constexpr TestSetArgument kLabel[] = {{"Label", ValueType::String, "given with the message"}};
inline constexpr TestSetArgument kPathKey[] = {{"Key", ValueType::String, "\"Path1\" to \"Path8\""}};
inline constexpr TestSetArgument kKeyLength[] = {{"KeyLength", ValueType::Integer, "bits: 768 or 1024"}};
inline constexpr TestSetArgument kPublicKey[] = {{"PublicKey", ValueType::Object, "message object, KeyLength bits"}};
inline constexpr TestSetArgument kTransactionId[] = {
    {"TransactionID", ValueType::Integer, "of the exchange; 0 to 255, part of what is signed"}};

}  // namespace test_set

}  // namespace vorlan
