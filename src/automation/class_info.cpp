#include "automation/class_info.hpp"

#include <algorithm>
#include <bit>
#include <cstring>
#include <stdexcept>

#include "automation/error.hpp"

namespace vorlan {

namespace {

constexpr char lower(char c) noexcept { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; }

std::uint64_t load(const char* text) noexcept {
  std::uint64_t word = 0;
  std::memcpy(&word, text, sizeof word);
  return word;
}

/// Bit 5 is the case of a letter; setting it folds the names that members have, and never parts two equal ones.
constexpr std::uint64_t kCaseBits = 0x2020202020202020;

/// Length, first and last octets tell nearly all names of a class apart: names share long prefixes, not both ends.
std::size_t fold_hash(std::string_view name) noexcept {
  std::uint64_t first = 0;
  std::uint64_t last = 0;
  std::uint64_t middle = 0;
  if (name.size() >= 8) {
    first = load(name.data()) | kCaseBits;
    last = load(name.data() + name.size() - 8) | kCaseBits;
    middle = load(name.data() + (name.size() - 8) / 2) | kCaseBits;
  } else {
    for (const char c : name) first = (first << 8) | (static_cast<unsigned char>(c) | 0x20U);
  }
  std::uint64_t hash = (first ^ std::rotl(middle, 23)) * 0x9E3779B97F4A7C15U;
  hash = (hash ^ last ^ name.size()) * 0xC2B2AE3D27D4EB4FU;
  return static_cast<std::size_t>(hash >> 40U);
}

constexpr std::uint8_t bit(Access access) noexcept {
  return static_cast<std::uint8_t>(1U << static_cast<unsigned>(access));
}

}  // namespace

namespace {

/// Names are short: comparing words in place is quicker than a call.
bool same(const char* a, const char* b, std::size_t size) noexcept {
  if (size < 8) return std::equal(a, a + size, b);
  for (std::size_t i = 0; i + 8 < size; i += 8) {
    if (load(a + i) != load(b + i)) return false;
  }
  return load(a + size - 8) == load(b + size - 8);
}

}  // namespace

bool equals_ignoring_case(std::string_view a, std::string_view b) noexcept {
  if (a.size() != b.size()) return false;
  if (same(a.data(), b.data(), a.size())) return true;
  return std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) { return lower(x) == lower(y); });
}

bool MemberInfo::allows(Access access) const noexcept {
  switch (access) {
    // Clients that cannot tell a method from a property with arguments ask for either.
    case Access::Get:
    case Access::Call: return gets || calls;
    case Access::Let:
    case Access::Set: return lets || sets;
  }
  return false;
}

std::size_t MemberInfo::required_parameters() const noexcept {
  const auto optional = std::find_if(parameters.begin(), parameters.end(), [](const auto& p) { return p.optional; });
  return static_cast<std::size_t>(optional - parameters.begin());
}

ClassInfo::ClassInfo(Texts texts, std::vector<MemberInfo> members, std::vector<FieldInfo> fields,
                     std::vector<ErrorInfo> errors)
    : texts_(texts),
      members_(std::move(members)),
      fields_(std::move(fields)),
      errors_(std::move(errors)),
      slots_(std::bit_ceil(members_.size() * 2 + 1), -1) {
  dispatch_.reserve(members_.size());
  for (std::size_t i = 0; i < members_.size(); ++i) {
    const MemberInfo& member = members_[i];
    if (find(member.name) >= 0) {
      throw std::logic_error(std::string(texts.name) + " lists a member twice: " + std::string(member.name));
    }
    Dispatch& dispatch = dispatch_.emplace_back();
    dispatch.name = member.name;
    for (const Access access : {Access::Get, Access::Let, Access::Set, Access::Call}) {
      if (member.allows(access)) dispatch.allowed |= bit(access);
    }
    dispatch.required = static_cast<std::uint8_t>(member.required_parameters());
    dispatch.parameters = static_cast<std::uint8_t>(member.parameters.size());
    std::size_t slot = fold_hash(member.name);
    while (slots_[slot & (slots_.size() - 1)] >= 0) ++slot;
    slots_[slot & (slots_.size() - 1)] = static_cast<std::int16_t>(i);
  }
}

int ClassInfo::find(std::string_view member) const noexcept {
  const std::size_t mask = slots_.size() - 1;
  for (std::size_t slot = fold_hash(member);; ++slot) {
    const int index = slots_[slot & mask];
    if (index < 0 || equals_ignoring_case(dispatch_[static_cast<std::size_t>(index)].name, member)) return index;
  }
}

Value ClassObject::invoke(std::string_view member, Access access, std::span<Value> arguments) {
  const int index = info_->find(member);
  if (index < 0) throw Error(ErrorNumber::MemberNotFound, info_->name(), member);
  const ClassInfo::Dispatch& dispatch = info_->dispatch(index);
  const auto source = [&] { return std::string(info_->name()) + "." + std::string(dispatch.name); };
  if ((dispatch.allowed & bit(access)) == 0) throw Error(ErrorNumber::MemberNotFound, source(), "this access");
  const bool assigns = access == Access::Let || access == Access::Set;
  if (arguments.size() < dispatch.required + (assigns ? 1U : 0U) ||
      arguments.size() > dispatch.parameters + (assigns ? 1U : 0U)) {
    throw Error(ErrorNumber::WrongArgumentCount, source());
  }
  try {
    return invoke_member(index, access, arguments);
  } catch (Error& error) {
    // What a class raises on purpose may have an empty source on purpose.
    if (!error.is(ErrorNumber::Failed)) error.set_source_if_empty(source());
    throw;
  }
}

}  // namespace vorlan
