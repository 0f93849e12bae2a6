// The numbers by which COM knows classes and members. They follow from the names and never change: scripts and other
// programs have them compiled in.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "automation/class_info.hpp"

namespace vorlan::com {

/// The sixteen octets as a universally unique identifier is written, most significant first.
using Uuid = std::array<std::uint8_t, 16>;

/// RFC 4122, version 5: from SHA-1 of the namespace and the name.
Uuid name_based_uuid(const Uuid& name_space, std::string_view name);

/// "886313e1-3b8a-5372-9b90-0c9aee199e5d", as registries and type libraries write it.
std::string uuid_text(const Uuid& uuid);

/// Of a class ("Vorlan.SB_Sector"), of the members of that class, and of the type library of a server ("Vorlan").
Uuid class_uuid(std::string_view prog_id);
Uuid members_uuid(std::string_view prog_id);
Uuid library_uuid(std::string_view server);

/// The DISPID of a member: 30 bits of SHA-1 of its name in small letters, above zero. "Item" is the member that a
/// client means who names none: 0.
std::int32_t member_id(std::string_view name);

/// Whether For Each goes through objects of the class: it has `Count` and an `Item` that takes numbers from 1 on.
bool is_collection(const ClassInfo& info) noexcept;

/// The DISPIDs of one class, both ways. Throws std::logic_error if two of its members have the same one.
class MemberIds {
 public:
  explicit MemberIds(const ClassInfo& info);
  [[nodiscard]] std::int32_t id(int member) const noexcept { return ids_[static_cast<std::size_t>(member)]; }
  /// The index of the member; -1 if there is none.
  [[nodiscard]] int member(std::int32_t id) const noexcept;

 private:
  std::vector<std::int32_t> ids_;  // in the order of the members
  std::unordered_map<std::int32_t, int> members_;
};

}  // namespace vorlan::com
