// A value class's row, made ready for use: members listed. Made once per class, on first use.
#pragma once

#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "attributes/values/value_spec.hpp"

namespace vorlan {

class ValueClass {
 public:
  explicit ValueClass(const ValueSpec& spec);
  ValueClass(const ValueClass&) = delete;
  ValueClass& operator=(const ValueClass&) = delete;

  enum class Action : std::uint8_t {
    ValueString,
    ReceivedFlag,
    FlowNumber,
    Field,
    Element,     ///< a property of one element
    GetElement,  ///< a method that reads an element by index
    LetElement,  ///< and one that writes it
    SetFields,
    Build,
    LengthAt,
    Initialize,
    Operation,
  };
  struct Member {
    Action action;
    std::uint16_t field = 0;  ///< or the operation
    At at = {};
    std::string_view accessor = {};  ///< the method's name
  };

  [[nodiscard]] const ValueSpec& spec() const noexcept { return spec_; }
  [[nodiscard]] const RecordClass& record() const noexcept { return record_; }
  [[nodiscard]] const ClassInfo& info() const noexcept { return info_; }
  [[nodiscard]] const Member& member(std::size_t index) const noexcept { return members_[index]; }
  /// The fields and elements that the set operation takes, in its order.
  [[nodiscard]] std::span<const Member> settable() const noexcept { return settable_; }
  [[nodiscard]] std::string source(std::string_view member) const;
  [[nodiscard]] Error no_position() const;  ///< GetValLengthAt
  [[nodiscard]] Error no_flow() const;      ///< PRint_FlowNN
  [[nodiscard]] Error outside_grid(std::string_view accessor) const;

  /// The length in bits of the value record at the start of `bits`; 0 if the bits end before it does.
  [[nodiscard]] std::size_t length_at(std::string_view bits) const { return record_.length_at(bits); }
  /// The lengths of the value records that `bits` consists of. Empty if it is no whole number of them.
  [[nodiscard]] std::vector<std::size_t> split(std::string_view bits) const;

 private:
  void add(Action action, std::size_t field, At at, MemberInfo member);
  void add_elements(std::size_t field);
  void add_field(std::size_t field);
  void add_set_operation();
  void add_methods();
  [[nodiscard]] std::vector<MemberInfo> list_members();
  [[nodiscard]] std::vector<ErrorInfo> list_errors() const;

  const ValueSpec& spec_;
  RecordClass record_;
  std::vector<Member> members_;
  std::vector<Member> settable_;
  std::vector<MemberInfo> listed_;
  std::deque<std::string> names_;  ///< of members that rows stand for, not name
  ClassInfo info_;
};

}  // namespace vorlan
