#include "server/com/ids.hpp"

#include <algorithm>
#include <stdexcept>

#include "server/com/sha1.hpp"

namespace vorlan::com {

namespace {

// 4bd6c1f2-93a7-4e05-8c1d-7f2ab064e91d; drawn once. Another one would be another server.
constexpr Uuid kNamespace{0x4B, 0xD6, 0xC1, 0xF2, 0x93, 0xA7, 0x4E, 0x05,
                          0x8C, 0x1D, 0x7F, 0x2A, 0xB0, 0x64, 0xE9, 0x1D};

Uuid uuid_of(std::string_view what, std::string_view name) {
  return name_based_uuid(kNamespace, std::string(what).append(" ").append(name));
}

}  // namespace

Uuid name_based_uuid(const Uuid& name_space, std::string_view name) {
  std::vector<std::uint8_t> octets(name_space.begin(), name_space.end());
  octets.insert(octets.end(), name.begin(), name.end());
  const auto digest = sha1(octets);
  Uuid uuid;
  std::copy_n(digest.begin(), uuid.size(), uuid.begin());
  uuid[6] = static_cast<std::uint8_t>(0x50U | (uuid[6] & 0x0FU));
  uuid[8] = static_cast<std::uint8_t>(0x80U | (uuid[8] & 0x3FU));
  return uuid;
}

std::string uuid_text(const Uuid& uuid) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string text;
  for (std::size_t i = 0; i < uuid.size(); ++i) {
    if (i == 4 || i == 6 || i == 8 || i == 10) text += '-';
    text += kDigits[uuid[i] >> 4U];
    text += kDigits[uuid[i] & 15U];
  }
  return text;
}

Uuid class_uuid(std::string_view prog_id) { return uuid_of("class", prog_id); }
Uuid members_uuid(std::string_view prog_id) { return uuid_of("members", prog_id); }
Uuid library_uuid(std::string_view server) { return uuid_of("library", server); }

std::int32_t member_id(std::string_view name) {
  if (equals_ignoring_case(name, "Item")) return 0;
  std::vector<std::uint8_t> octets;
  for (const char c : name) octets.push_back(static_cast<std::uint8_t>(c >= 'A' && c <= 'Z' ? c + ('a' - 'A') : c));
  const auto digest = sha1(octets);
  std::uint32_t bits = 0;
  for (std::size_t i = 0; i < 4; ++i) bits = bits << 8U | digest[i];
  return static_cast<std::int32_t>((bits & 0x3FFFFFFFU) | 0x40000000U);
}

bool is_collection(const ClassInfo& info) noexcept {
  const int item = info.find(PreparedName("Item"));
  return item >= 0 && info.find(PreparedName("Count")) >= 0 &&
         info.members()[static_cast<std::size_t>(item)].parameters.size() == 1;
}

MemberIds::MemberIds(const ClassInfo& info) {
  for (const MemberInfo& member : info.members()) {
    const auto index = static_cast<int>(ids_.size());
    ids_.push_back(member_id(member.name));
    if (!members_.emplace(ids_.back(), index).second) {
      throw std::logic_error(std::string(info.name()) + ": two members have the DISPID of " + std::string(member.name));
    }
  }
}

int MemberIds::member(std::int32_t id) const noexcept {
  const auto found = members_.find(id);
  return found == members_.end() ? -1 : found->second;
}

}  // namespace vorlan::com
