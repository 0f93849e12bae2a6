// The Python class of a class of the registry, and the quick way from an attribute's name to the member.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "automation/class_info.hpp"
#include "state.hpp"

namespace vorlan::python {

/// A member as Python sees it.
struct Member {
  /// Optional: a property with indices that may all be left out; Indexed: at least one is needed.
  enum class Kind : std::uint8_t { Property, Optional, Indexed, Method };
  const MemberInfo* info;
  Kind kind;
};

/// Remembers spellings of member names by the address of their text, which is shared in compiled Python code. A
/// spelling that is not remembered is looked up in the ClassInfo.
class NameCache {
 public:
  explicit NameCache(std::size_t members);
  NameCache(const NameCache&) = delete;
  NameCache& operator=(const NameCache&) = delete;
  ~NameCache() = default;

  [[nodiscard]] const Member* find(const PyObject* name) const noexcept {
    for (std::size_t slot = hash(name);; ++slot) {
      const Entry& entry = entries_[slot & (entries_.size() - 1)];
      if (entry.name == name || entry.name == nullptr) return entry.member;
    }
  }
  void remember(PyObject* name, const Member& member);

 private:
  struct Entry {
    PyObject* name = nullptr;  ///< kept alive: its address must not become another name's
    const Member* member = nullptr;
  };
  static std::size_t hash(const PyObject* name) noexcept { return reinterpret_cast<std::uintptr_t>(name) >> 4U; }

  std::vector<Entry> entries_;  // open addressing; a power of two, never more than half full
  std::size_t used_ = 0;
};

/// Made when a class is used for the first time; lives as long as the module.
class ClassType {
 public:
  ClassType(State& state, const ClassInfo& info);
  ClassType(const ClassType&) = delete;
  ClassType& operator=(const ClassType&) = delete;
  ~ClassType() = default;

  [[nodiscard]] State& state() const noexcept { return state_; }
  [[nodiscard]] const ClassInfo& info() const noexcept { return info_; }
  [[nodiscard]] PyTypeObject* type() const noexcept { return type_; }
  /// Null if there is no such member.
  [[nodiscard]] const Member* find(PyObject* name) {
    const Member* found = cache_.find(name);
    return found != nullptr ? found : look_up(name);
  }

 private:
  const Member* look_up(PyObject* name);
  void make_type();
  void add_members();
  void add_constructor();

  State& state_;
  const ClassInfo& info_;
  std::vector<Member> members_;
  NameCache cache_;
  std::string name_;
  PyTypeObject* type_ = nullptr;
};

/// The Python class of a class of the library, made on first use.
ClassType& class_type(State& state, const ClassInfo& info);

}  // namespace vorlan::python
