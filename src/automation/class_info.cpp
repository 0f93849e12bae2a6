#include "automation/class_info.hpp"

#include <algorithm>
#include <bit>
#include <stdexcept>

#include "automation/error.hpp"

namespace vorlan {

namespace {

constexpr char lower(char c) noexcept { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; }

constexpr std::uint8_t bit(Access access) noexcept {
  return static_cast<std::uint8_t>(1U << static_cast<unsigned>(access));
}

}  // namespace

bool equals_ignoring_case(std::string_view a, std::string_view b) noexcept {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) { return lower(x) == lower(y); });
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

std::string when_of(std::string_view member, std::string_view source, std::string_view when) {
  std::string text(when);
  if (!source.ends_with(member)) text.append(" (").append(member).append(")");
  return text;
}

ErrorInfo error_info(const Error& error, std::string_view when) {
  return {error.source(), error.description(), std::string(when), error.number()};
}

void list_errors(std::vector<ErrorInfo>& list, std::string_view class_name, std::span<const ErrorRow> rows) {
  for (const ErrorRow& row : rows) {
    Error error = row.error();
    if (!error.is(ErrorNumber::Failed)) error.set_source_if_empty(std::string(class_name).append(".<operation>"));
    list.push_back(error_info(error, row.when));
  }
}

std::string ClassInfo::defined_in() const {
  std::string_view clause = texts_.clause;
  if (clause.empty()) return {};
  std::string document = "C.S0024";
  const std::size_t space = clause.find(' ');
  // "8.7" and "400-C 2.6" are of C.S0024; "C.S0029" and "C.S0029 3.2" are not.
  const bool named = clause.front() < '0' || clause.front() > '9';
  if (named || space != std::string_view::npos) {
    document = std::string(named ? "" : "C.S0024-").append(clause.substr(0, space));
    clause.remove_prefix(space == std::string_view::npos ? clause.size() : space + 1);
  }
  return clause.empty() ? document : document.append(" clause ").append(clause);
}

ClassInfo::ClassInfo(Texts texts, std::vector<MemberInfo> members, std::vector<FieldInfo> fields,
                     std::vector<ErrorInfo> errors)
    : texts_(texts),
      members_(std::move(members)),
      fields_(std::move(fields)),
      errors_(std::move(errors)),
      by_name_{std::vector<Slot>(std::bit_ceil(members_.size() * 2 + 1))},
      by_small_letters_(by_name_) {
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
    dispatch.fewest = static_cast<std::uint8_t>(member.required_parameters());
    dispatch.most = static_cast<std::uint8_t>(member.parameters.size());
    const MemberKey key(member.name);
    enter(by_name_, key, static_cast<int>(i));
    enter(by_small_letters_, key.in_small_letters(), static_cast<int>(i));
  }
}

void ClassInfo::enter(Index& index, const MemberKey& key, int member) {
  std::size_t slot = key.hash();
  while (index.slots[slot & index.mask].member >= 0) ++slot;
  index.slots[slot & index.mask] = {key, member};
}

int ClassInfo::find_long_name(const PreparedName& member) const noexcept {
  return find(by_name_, member.key, member.hash, [&](int found) { return dispatch(found).name == member.text; });
}

int ClassInfo::find_in_any_case(const PreparedName& member) const noexcept {
  const MemberKey key = member.key.in_small_letters();
  return find(by_small_letters_, key, key.hash(),
              [&](int found) { return equals_ignoring_case(dispatch(found).name, member.text); });
}

void ClassObject::refuse_call(int member, std::string_view name, Access access) const {
  if (member < 0) throw Error(ErrorNumber::MemberNotFound, info_->name(), name);
  if ((info_->dispatch(member).allowed & bit(access)) == 0) {
    throw Error(ErrorNumber::MemberNotFound, source(member), "this access");
  }
  throw Error(ErrorNumber::WrongArgumentCount, source(member));
}

std::string ClassObject::source(int member) const {
  return std::string(info_->name()).append(".").append(info_->dispatch(member).name);
}

Value ClassObject::invoke(std::string_view member, Access access, std::span<Value> arguments) {
  const int index = info_->find(member);
  if (index < 0) refuse_call(index, member, access);
  const ClassInfo::Dispatch& dispatch = info_->dispatch(index);
  const std::size_t value = access == Access::Let || access == Access::Set ? 1 : 0;
  // Too few arguments wrap around to a large number, so that one comparison refuses both too few and too many.
  if ((dispatch.allowed & bit(access)) == 0 ||
      arguments.size() - dispatch.fewest - value > std::size_t{dispatch.most} - dispatch.fewest) {
    refuse_call(index, member, access);
  }
  try {
    return invoke_member(index, access, arguments);
  } catch (Error& error) {
    // What a class raises on purpose may have an empty source on purpose.
    if (!error.is(ErrorNumber::Failed)) error.set_source_if_empty(source(index));
    throw;
  }
}

}  // namespace vorlan
