// A record of fields: stored ones, which build, and a received one, which is taken apart.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "attributes/values/record_class.hpp"

namespace vorlan {

/// What value objects, and the attributes that are made of fields, hold. Setters store; getters read from the received
/// record once there is one. Errors leave the record as it was.
class Record {
 public:
  explicit Record(const RecordClass& record_class);

  [[nodiscard]] const RecordClass& record_class() const noexcept { return *class_; }

  /// Takes a received record; false if it ends before its last field, unless parts of fields may be missing.
  [[nodiscard]] bool receive(std::string_view bits, bool may_be_cut_off = false);
  [[nodiscard]] std::string_view received_bits() const noexcept { return received_bits_; }
  [[nodiscard]] bool received() const noexcept { return received_; }
  /// Which of the two the getters read; the caller sees to it that there is a received record to read.
  void read_received(bool received) noexcept { received_ = received; }
  /// Everything as in a new object.
  void reset();

  /// A property's getter and setter. Views hold until the record changes.
  [[nodiscard]] std::string_view get(std::size_t field, At at = {}) const;
  void let(std::size_t field, At at, std::string_view value);
  /// What let() would refuse.
  void check(std::size_t field, At at, std::string_view value) const;
  /// The width that a setter takes now.
  [[nodiscard]] std::size_t width(std::size_t field, std::size_t index = 0) const noexcept;
  /// How many elements a list has now, or a table's row.
  [[nodiscard]] std::size_t count(std::size_t field) const noexcept;
  [[nodiscard]] std::size_t inner_count(std::size_t field, std::size_t index) const noexcept;

  /// Whether there is such an element, to be set or to be read.
  [[nodiscard]] bool has(std::size_t field, At at, bool to_set) const noexcept;

  /// The stored value, no check made.
  [[nodiscard]] std::string_view stored(std::size_t field, At at = {}) const noexcept;
  void store(std::size_t field, At at, std::string_view value);
  // The same by name, for hooks, which name other fields of their class.
  [[nodiscard]] std::string_view get(std::string_view name, At at = {}) const { return get(class_->find(name), at); }
  void let(std::string_view name, std::string_view value) { let(class_->find(name), {}, value); }
  void let(std::string_view name, At at, std::string_view value) { let(class_->find(name), at, value); }

  /// The stored fields, joined and filled up to whole octets. Error 1 with the field's own text where a stored value is
  /// not as wide as the fields before it say.
  [[nodiscard]] std::string build() const;

 private:
  struct List {
    /// A list has one row; a table a row for each repetition.
    std::vector<std::vector<std::string>> rows;
  };

  [[nodiscard]] std::string* element(std::size_t field, At at) noexcept;
  [[nodiscard]] const std::string* element(std::size_t field, At at) const noexcept;
  void count_changed(std::size_t field, std::size_t index, std::size_t count);
  [[noreturn]] void refuse_index(std::size_t field, At at) const;
  [[noreturn]] void raise(std::size_t field, At at, std::string_view text) const;

  const RecordClass* class_;
  std::vector<std::string> singles_;
  std::vector<List> lists_;
  bool received_ = false;
  std::string received_bits_;
  RecordLayout layout_;
};

}  // namespace vorlan
