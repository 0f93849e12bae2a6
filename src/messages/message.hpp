// The engine of all message classes: construction, setters and getters, encoding and decoding, driven by rows.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "automation/class_info.hpp"
#include "messages/configuration.hpp"
#include "messages/message_class.hpp"
#include "messages/walk.hpp"

namespace vorlan {

/// One air-interface message. To build: initialize(), set fields, create_message(). To take apart: receive() a message
/// object, get fields. Errors are number 1 with the class's own texts, and leave the object as it was.
class Message : public ClassObject {
 public:
  explicit Message(const MessageClass& message_class);

  [[nodiscard]] const MessageClass& message_class() const noexcept { return class_; }

  /// The test set is only held. The sector is given to classes that take values from its configuration. A non-empty
  /// encoder string is sent unchanged; the mode can be switched on again with another string, but never off.
  void initialize(Ref<Object> sector, Ref<Object> test_set, std::string_view encoder_string);
  void initialize(Ref<Object> test_set = {}, std::string_view encoder_string = {}) {
    initialize({}, std::move(test_set), encoder_string);
  }
  [[nodiscard]] bool encodes_verbatim() const noexcept { return encoder_mode_; }
  [[nodiscard]] const std::string& encoder_string() const noexcept { return encoder_string_; }

  /// Fills the message object's octets and length.
  bool create_message(const Ref<Object>& message_object, std::span<const Value> arguments = {});
  /// The bits that create_message would send.
  [[nodiscard]] std::string encode(std::span<const Value> arguments = {});
  /// Joins MessageID and fields as their rows say: what most classes send.
  void compose(const BuildContext& context, BitBuffer& bits);

  /// Decodes a received message object: its whole octets, each read once.
  void receive(Ref<Object> message_object);
  /// Decodes a message given as bits.
  void receive(std::string_view bits);
  [[nodiscard]] bool received() const noexcept { return received_; }
  [[nodiscard]] std::string_view message_string() const noexcept { return message_string_; }
  /// PRstr_MessageString, with its check.
  [[nodiscard]] std::string_view checked_message_string() const;
  [[nodiscard]] std::string message_id() const;

  /// A property's setter and getter, by row. A view holds until the next call.
  void let_field(std::size_t field, std::string_view value);
  void let_field(std::size_t field, std::size_t index, std::string_view value);
  [[nodiscard]] std::string_view get_field(std::size_t field) const;
  [[nodiscard]] std::string_view get_field(std::size_t field, std::size_t index) const;
  /// The width that a setter takes now; 0 where the row fixes none.
  [[nodiscard]] std::size_t accepted_width(std::size_t field) const noexcept;
  /// Of a single field whatever the index, of a list the element: for those who walk over all fields.
  [[nodiscard]] std::string_view get_field_or_element(std::size_t field, std::size_t index) const {
    return class_.field(field).repeated ? get_field(field, index) : get_field(field);
  }
  /// The stored value, no check made, and the number of stored elements.
  [[nodiscard]] std::string_view stored(std::size_t field, std::size_t index = 0) const noexcept {
    const MessageClass::Field& row = class_.field(field);
    const auto slot = static_cast<std::size_t>(row.slot);
    if (!row.repeated) return texts_[slot];
    return index < lists_[slot].size() ? std::string_view(lists_[slot][index]) : std::string_view{};
  }
  [[nodiscard]] std::span<const std::string> stored_list(std::size_t field, std::size_t count) const noexcept;
  [[nodiscard]] std::size_t stored_count(std::size_t field) const noexcept;
  void store(std::size_t field, std::string_view value);

  /// The row of a property; for hooks, which name other fields of their class.
  [[nodiscard]] std::size_t row(std::string_view name) const noexcept { return find_field(class_.spec().fields, name); }
  [[nodiscard]] std::string_view stored(std::string_view name, std::size_t index = 0) const noexcept {
    return stored(row(name), index);
  }

  [[nodiscard]] Configuration configuration() const noexcept { return {sector_, parameters_}; }
  /// What a row takes from the configuration now.
  [[nodiscard]] std::string configured_text(const Configured& from) const;

 protected:
  Value invoke_member(int member, Access access, std::span<Value> arguments) override;

 private:
  Value invoke_action(const MessageClass::Member& action, Access access, std::span<Value> arguments);
  Value invoke_field(std::size_t field, Access access, std::span<Value> arguments);
  void encode_into(BitBuffer& bits, std::span<const Value> arguments);
  void check_letting(const FieldSpec& spec) const;
  void check_width(std::size_t field, std::size_t index, std::string_view value) const;
  void resize_lists(std::size_t count_field);
  void take_initial_configuration();
  void check_counts() const;
  void find_layout() const;
  [[nodiscard]] std::string_view unreceived(std::size_t field, std::size_t index) const;
  /// Of a field whose place is the same in every received message.
  [[nodiscard]] std::string_view received_at_its_place(std::size_t field) const;
  [[nodiscard]] Extent received_extent(std::size_t field, std::size_t index) const;
  [[nodiscard]] Object& existing(const Ref<Object>& object, std::string_view member) const;
  [[noreturn]] void raise(const FieldSpec& spec, Fault fault, std::string_view appended = {}) const;

  const MessageClass& class_;
  std::vector<std::string> texts_;
  std::vector<std::vector<std::string>> lists_;
  bool second_names_ = false;  ///< what has two names was last set by the second one

  bool initialized_ = false;
  bool encoder_mode_ = false;
  std::string encoder_string_;
  Ref<Object> sector_;
  Ref<Object> parameters_;
  Ref<Object> test_set_;

  bool received_ = false;
  Ref<Object> message_object_;
  std::string message_string_;
  std::string spare_;  ///< the message string before, for its memory
  mutable Layout layout_;
  mutable bool layout_known_ = false;
  mutable std::string viewed_;  ///< the last value made by a row's view
};

}  // namespace vorlan
