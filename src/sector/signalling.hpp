// The test set's signalling object: sends messages, waits for messages, keeps both by label.
#pragma once

#include "automation/error.hpp"
#include "sector/test_set_access.hpp"

namespace vorlan {

/// Protocol types that the control objects use (C.S0024 protocol type table).
namespace protocol_types {
inline constexpr std::int16_t kReverseTrafficMac = 4;
inline constexpr std::int16_t kKeyExchange = 5;
inline constexpr std::int16_t kAuthentication = 6;
inline constexpr std::int16_t kEncryption = 7;
inline constexpr std::int16_t kSecurity = 8;
inline constexpr std::int16_t kRouteUpdate = 14;
inline constexpr std::int16_t kSessionConfiguration = 18;
inline constexpr std::int16_t kStream = 19;
}  // namespace protocol_types

/// A message that is sent without waiting for an answer.
struct SentMessage {
  std::string_view label;
  std::string_view bits;
  std::int16_t protocol_type;
  std::int16_t announcement;  ///< test_set::kAnnouncement or kExchange
  std::int16_t when_sent;     ///< test_set::kWhenQueued or kWhenSent
};

/// A message that is sent, and the answer that is waited for.
struct MessageExchange {
  std::string_view label;
  Ref<Object> message;
  std::int16_t protocol_type;
  std::int16_t when_sent;
  std::string_view answer_label;
  std::int16_t answer_code;  ///< 1 or 3: the low four bits of the answer's MessageID
  std::int16_t time_out;     ///< in units of 20 ms
};

inline constexpr ErrorRow kNoReceivedBits{
    {}, "a received message is no bit string", "FetchMessage returns anything else", ErrorNumber::TypeMismatch};

/// Lives for one operation, or as long as its owner: it gets the message collection once.
class Signalling {
 public:
  /// A message collection that is given is used instead of the signalling object's own.
  Signalling(TestSetAccess access, Ref<Object> signalling, Ref<Object> messages = {})
      : access_(std::move(access)), signalling_(std::move(signalling)), messages_(std::move(messages)) {}

  /// Collects received messages of a MessageID and protocol; returns the filter's handle.
  Value add_filter(std::int16_t message_id, std::int16_t protocol_type);
  void remove_filter(const Value& filter);
  /// Whether a message came into the filter; it is put into the message collection.
  bool wait(std::string_view label, const Value& filter);
  /// The bits of the message that was waited for last.
  std::string fetch();

  void send(const SentMessage& message);
  /// Whether the answer came in time; it is put into the message collection.
  bool exchange(const MessageExchange& exchange);

  Ref<Object> new_message_object();
  /// Out of the message collection.
  Ref<Object> message(std::string_view label);
  void remove_message(std::string_view label);

 private:
  const Ref<Object>& messages();

  TestSetAccess access_;
  Ref<Object> signalling_;
  Ref<Object> messages_;
};

}  // namespace vorlan
