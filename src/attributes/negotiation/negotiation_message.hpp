// The engine of the messages that carry attribute records: ConfigurationRequest, ConfigurationResponse and
// AttributeUpdateRequest.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "attributes/negotiation/negotiation_spec.hpp"
#include "attributes/negotiation/record_index.hpp"

namespace vorlan {

/// A message's row, made ready for use. Made once per class, on first use.
class NegotiationClass {
 public:
  explicit NegotiationClass(const NegotiationSpec& spec);
  NegotiationClass(const NegotiationClass&) = delete;
  NegotiationClass& operator=(const NegotiationClass&) = delete;

  struct Member {
    NegotiationAction action;
    std::uint16_t index = 0;  ///< of the getter, or of the setting
  };

  [[nodiscard]] const NegotiationSpec& spec() const noexcept { return spec_; }
  [[nodiscard]] const ClassInfo& info() const noexcept { return info_; }
  [[nodiscard]] const Member& member(std::size_t index) const noexcept { return members_[index]; }
  /// What a new object keeps for scripts: zeros of the right type.
  [[nodiscard]] const std::vector<Value>& settings() const noexcept { return settings_; }
  [[nodiscard]] std::string source(std::string_view member) const;
  /// "ConfigurationRequest message object not set. ..."
  [[nodiscard]] std::string not_set() const;
  [[nodiscard]] std::string not_initialized() const;
  /// PRint_AttributeCount, and the searches of a response, before a message is received.
  [[nodiscard]] std::string not_counted(std::string_view attribute_id) const;
  [[nodiscard]] std::string not_searched(std::string_view attribute_id) const;
  [[nodiscard]] std::string no_records() const;
  [[nodiscard]] std::string no_flow() const;
  static constexpr std::string_view kWrongId =
      "Invalid Length of AttributeID. Length of parameter <AttributeID> should be 8 or 16.";
  /// Member part of the source of PRstr_EnhancedIdleStateAttrValue; it is spelt so.
  static constexpr std::string_view kEnhancedIdleStateSource = "PRstr_Attrvalue";
  static constexpr std::string_view kNoEntry = "Collection object has no entry for this index";
  /// "GET failed for ...", and the whole text where no message was received.
  [[nodiscard]] std::string failed(const AttributeGetter& getter) const;
  [[nodiscard]] std::string failed_without_message(const AttributeGetter& getter) const;
  [[nodiscard]] std::string source(const AttributeGetter& getter) const;

 private:
  [[nodiscard]] std::vector<MemberInfo> list_members();
  [[nodiscard]] std::vector<ErrorInfo> list_errors() const;

  const NegotiationSpec& spec_;
  std::vector<Member> members_;
  std::vector<Value> settings_;
  ClassInfo info_;
};

/// To build: initialize(), let_transaction_id(), create_message() with attribute records. To take apart: receive() a
/// message object, then ask for records or attributes. Errors are number 1 with the class's own texts, and leave the
/// object as it was.
class NegotiationMessage : public ClassObject {
 public:
  explicit NegotiationMessage(const NegotiationClass& message_class);

  [[nodiscard]] const NegotiationClass& message_class() const noexcept { return class_; }

  /// The message object is only held. A non-empty encoder string is sent unchanged from then on.
  void initialize(Ref<Object> message_object = {}, std::string_view encoder_string = {});
  void let_transaction_id(std::string_view bits);  ///< 8 bits
  /// Fills the message object with MessageID, TransactionID and the attribute records. Error 1 before initialize(), 6
  /// for a message of more than 32,767 bits, 91 without a message object.
  bool create_message(const Ref<Object>& message_object, std::string_view attribute_records);
  /// The bits that create_message would send.
  [[nodiscard]] std::string encode(std::string_view attribute_records) const;

  /// Decodes a received message object: its whole octets, each read once. Error 91 without one.
  void receive(Ref<Object> message_object);
  /// Decodes a message given as bits.
  void receive(std::string_view bits);
  [[nodiscard]] bool received() const noexcept { return received_; }
  [[nodiscard]] std::string_view message_string() const noexcept { return message_string_; }
  /// From the received message once there is one.
  [[nodiscard]] std::string_view message_id() const noexcept;
  [[nodiscard]] std::string_view transaction_id() const noexcept;

  /// The n-th record, from 0, with an AttributeID of 8 or 16 bits, Length included; the empty text if there is none.
  [[nodiscard]] std::string_view record(std::string_view attribute_id, std::size_t n = 0) const;
  /// How many there are. Error 1 before a message is received.
  [[nodiscard]] std::size_t count(std::string_view attribute_id) const;
  [[nodiscard]] const AttributeRecordIndex& index() const;
  /// The bits behind a record's AttributeID: the accepted ValueID, or the accepted value. Error 1 for an AttributeID of
  /// another width than 8 or 16, and before a message is received.
  [[nodiscard]] std::string_view accepted(std::string_view member, std::string_view attribute_id, std::size_t n) const;
  /// The attribute that a getter returns, filled with the n-th record. There is one object, whatever n. Error 1 before
  /// a message is received, and for a record that is not there: with the attribute's own text, or the message's.
  Attribute& attribute(const AttributeGetter& getter, std::size_t n, std::string_view attribute_id = {});
  /// The low octet of the last 16-bit AttributeID with one below 32. Error 1 if there is none, or no message.
  [[nodiscard]] std::int16_t flow_number() const;

 protected:
  Value invoke_member(int member, Access access, std::span<Value> arguments) override;

 private:
  void take(std::string bits) noexcept;
  [[nodiscard]] std::string_view checked_message_string() const;
  [[nodiscard]] std::string_view listed_record(std::size_t n) const;
  [[nodiscard]] std::string_view enhanced_idle_state() const;
  Value invoke_lookup(const NegotiationClass::Member& member, std::span<Value> arguments);
  Value invoke_property(const NegotiationClass::Member& member, bool assigns, std::span<Value> arguments);

  const NegotiationClass& class_;
  std::string transaction_id_;
  bool initialized_ = false;
  bool encoder_mode_ = false;
  std::string encoder_string_;
  bool received_ = false;
  Ref<Object> message_object_;
  std::string message_string_;
  mutable AttributeRecordIndex index_;
  mutable bool index_known_ = false;
  bool listed_ = false;  ///< the record list is there
  std::int16_t listed_count_ = 0;
  std::vector<Ref<Attribute>> attributes_;  ///< by getter, made on first use
  std::vector<Value> settings_;
};

}  // namespace vorlan
