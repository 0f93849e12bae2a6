// The description of a class, from which everything that lists, calls or documents its members is made.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "automation/member_key.hpp"
#include "automation/object.hpp"

namespace vorlan {

class Error;
struct ErrorRow;

struct ParameterInfo {
  std::string_view name;
  ValueType type = ValueType::Any;
  bool by_reference = false;
  bool optional = false;
};

/// A property or method. A property with parameters is indexed by them.
struct MemberInfo {
  std::string_view name;
  bool gets = false;
  bool lets = false;
  bool sets = false;
  bool calls = false;
  bool get_changes = false;         ///< reading it changes something: it is not read only to be shown
  ValueType type = ValueType::Any;  ///< of the property, or of the method's result (Empty: none)
  std::vector<ParameterInfo> parameters;
  std::string summary;

  [[nodiscard]] bool is_method() const noexcept { return calls; }
  [[nodiscard]] bool allows(Access access) const noexcept;
  [[nodiscard]] std::size_t required_parameters() const noexcept;
};

/// A field of a message or record, for listings: what `describe` prints beside the members.
struct FieldInfo {
  std::string_view name;
  std::string width;      ///< "8", "8 x MoreInfoLen"
  std::string condition;  ///< "if SubnetIncluded = 1", "per pilot"; empty: always there
  std::string initial;    ///< the bit string that a new object holds; empty: none
  std::string unit;       ///< "dB", "slots"; empty: none
  std::string origin;     ///< "set", "configuration", "constant", "received"
};

/// An error that a class raises. "<...>" in a text stands for what the call decides.
struct ErrorInfo {
  std::string source;
  std::string description;
  std::string when;
  std::int32_t number = 1;  ///< 1: raised on purpose; others are those of the automation rules
};
ErrorInfo error_info(const Error& error, std::string_view when);
/// `when`, and the member in brackets where the error's source names another.
std::string when_of(std::string_view member, std::string_view source, std::string_view when);
/// Adds rows of a class, as `raise` raises them.
void list_errors(std::vector<ErrorInfo>& list, std::string_view class_name, std::span<const ErrorRow> rows);

/// What the registry knows of a class. Immutable once made.
class ClassInfo {
 public:
  struct Texts {
    std::string_view name;     ///< "SB_Ses_MsgSessionClose"
    std::string_view summary;  ///< one line
    std::string_view clause;   ///< where the thing is defined: of C.S0024, or behind another document's name
  };

  ClassInfo(Texts texts, std::vector<MemberInfo> members, std::vector<FieldInfo> fields = {},
            std::vector<ErrorInfo> errors = {});

  [[nodiscard]] std::string_view name() const noexcept { return texts_.name; }
  [[nodiscard]] std::string_view summary() const noexcept { return texts_.summary; }
  [[nodiscard]] std::string_view clause() const noexcept { return texts_.clause; }
  /// "C.S0024 clause 7.2.6.2.1", "C.S0024-400-C clause 2.6", "C.S0063-A"; empty where the clause is.
  [[nodiscard]] std::string defined_in() const;
  [[nodiscard]] std::span<const MemberInfo> members() const noexcept { return members_; }
  [[nodiscard]] std::span<const FieldInfo> fields() const noexcept { return fields_; }
  [[nodiscard]] std::span<const ErrorInfo> errors() const noexcept { return errors_; }

  /// The index of a member, found without regard to case; -1 if there is none.
  [[nodiscard]] int find(const PreparedName& member) const noexcept {
    const int exact = find_as_spelt(member);
    return exact >= 0 ? exact : find_in_any_case(member);
  }
  /// The same for a name that is spelt as the class spells it.
  [[nodiscard]] int find_as_spelt(const PreparedName& member) const noexcept {
    return member.key.is_whole_name() ? find(by_name_, member.key, member.hash, [](int) { return true; })
                                      : find_long_name(member);
  }

  /// What a call must know of a member, kept small and together: every late-bound call looks here.
  struct Dispatch {
    std::string_view name;
    std::uint8_t allowed = 0;  ///< a bit per Access
    std::uint8_t fewest = 0;   ///< index arguments, or arguments of a method
    std::uint8_t most = 0;
  };
  [[nodiscard]] const Dispatch& dispatch(int member) const noexcept {
    return dispatch_[static_cast<std::size_t>(member)];
  }

 private:
  Texts texts_;
  std::vector<MemberInfo> members_;
  std::vector<FieldInfo> fields_;
  std::vector<ErrorInfo> errors_;
  std::vector<Dispatch> dispatch_;  // in the order of members_
  struct Slot {
    MemberKey key;
    int member = -1;
  };
  /// Open addressing; a power of two of slots, and that less one.
  struct Index {
    std::vector<Slot> slots;
    std::size_t mask = slots.size() - 1;
  };
  void enter(Index& index, const MemberKey& key, int member);
  [[nodiscard]] int find_in_any_case(const PreparedName& member) const noexcept;
  [[nodiscard]] int find_long_name(const PreparedName& member) const noexcept;
  template <class SameName>
  [[nodiscard]] int find(const Index& index, const MemberKey& key, std::size_t hash,
                         SameName&& same_name) const noexcept {
    for (std::size_t i = hash;; ++i) {
      const Slot& slot = index.slots[i & index.mask];
      if (slot.member < 0) return slot.member;
      if (slot.key == key && same_name(slot.member)) return slot.member;
    }
  }

  Index by_name_;           // spelt as the class spells it, as most clients do
  Index by_small_letters_;  // in any other case
};

/// An object whose class is in the registry: finds the member, checks access and number of arguments, names the
/// source of errors that do not name one.
class ClassObject : public Object {
 public:
  Value invoke(std::string_view member, Access access, std::span<Value> arguments) final;
  [[nodiscard]] const ClassInfo* class_info() const noexcept final { return info_; }

 protected:
  explicit ClassObject(const ClassInfo& info) noexcept : info_(&info) {}
  /// `member` is an index into class_info()->members(); the number of arguments has been checked.
  virtual Value invoke_member(int member, Access access, std::span<Value> arguments) = 0;

 private:
  [[noreturn]] void refuse_call(int member, std::string_view name, Access access) const;
  [[nodiscard]] std::string source(int member) const;

  const ClassInfo* info_;
};

/// Equal without regard to the case of the letters A to Z.
bool equals_ignoring_case(std::string_view a, std::string_view b) noexcept;

}  // namespace vorlan
