#include "attributes/values/record_class.hpp"

#include <algorithm>
#include <tuple>

#include "codec/member_name.hpp"

namespace vorlan {

namespace {

/// "<nn>" in names of elements, for listings. No index is so large, nor does a negative one become it.
constexpr At kAnyElement{std::size_t{1} << 30U, std::size_t{1} << 30U};

std::int16_t index_of(std::span<const RecordField> rows, std::string_view name) {
  return name.empty() ? RecordClass::kNone : static_cast<std::int16_t>(find_field(rows, name));
}

/// The order in which a walk comes by.
bool comes_before(const RecordLayout::Visit& visit, const RecordLayout::Visit& other) noexcept {
  return std::tie(visit.group, visit.at.index, visit.field, visit.at.inner) <
         std::tie(other.group, other.at.index, other.field, other.at.inner);
}
bool is_same(const RecordLayout::Visit& visit, const RecordLayout::Visit& other) noexcept {
  return visit.field == other.field && visit.at.index == other.at.index && visit.at.inner == other.at.inner;
}

std::string width_text(const RecordField& row) {
  switch (row.width.kind) {
    case RecordWidth::Kind::Fixed: return std::to_string(row.bits);
    case RecordWidth::Kind::OctetsOf: return "8 x " + std::string(bare_name(row.width.field));
    case RecordWidth::Kind::BitsOf: return std::string(bare_name(row.width.field));
    case RecordWidth::Kind::ToOctet: return "to the octet";
  }
  return {};
}

std::string condition_text(const RecordField& row) {
  std::string text;
  const std::string field(bare_name(row.only.field));
  switch (row.only.kind) {
    case OnlyIf::Kind::Always: break;
    case OnlyIf::Kind::One: text = "if " + field + " = 1"; break;
    case OnlyIf::Kind::Zero: text = "if " + field + " = 0"; break;
    case OnlyIf::Kind::NotZero: text = "if " + field + " is not 0"; break;
  }
  if (!is_list(row)) return text;
  if (!text.empty()) text += ", ";
  text.append(bare_name(row.repeat.count)).append(" times");
  if (is_table(row)) text.append(", each ").append(bare_name(row.repeat.inner)).append(" times");
  return text;
}

}  // namespace

RecordClass::RecordClass(std::span<const RecordField> rows, const Texts& texts) : texts_(texts), fields_(rows.size()) {
  bool fixed = true;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const RecordField& row = rows[i];
    Field& field = fields_[i];
    field.spec = &row;
    field.width = index_of(rows, row.width.field);
    field.only = index_of(rows, row.only.field);
    field.inner = index_of(rows, row.repeat.inner);
    for (const std::string_view count : {row.repeat.count, row.repeat.inner}) {
      if (!count.empty()) fields_[find_field(rows, count)].counts = true;
    }
    field.initial = row.initial.empty() ? std::string(row.bits, '0') : std::string(row.initial);
    field.slot = static_cast<std::uint16_t>(is_list(row) ? lists_++ : singles_++);
    const bool joins = i > 0 && (is_list(row) ? row.repeat.group != 0 && row.repeat.group == rows[i - 1].repeat.group
                                              : !is_list(rows[i - 1]));
    if (joins) {
      groups_.back().end = static_cast<std::uint16_t>(i + 1);
    } else {
      groups_.push_back(
          {static_cast<std::uint16_t>(i), static_cast<std::uint16_t>(i + 1), index_of(rows, row.repeat.count)});
    }
    field.group = static_cast<std::uint16_t>(groups_.size() - 1);
    if (!is_on_air(row)) continue;
    if (row.width.kind == RecordWidth::Kind::ToOctet) continue;
    fixed =
        fixed && row.width.kind == RecordWidth::Kind::Fixed && row.only.kind == OnlyIf::Kind::Always && !is_list(row);
    fixed_bits_ += row.bits;
  }
  fixed_bits_ = fixed ? (fixed_bits_ + 7) / 8 * 8 : 0;
}

std::size_t RecordClass::find(std::string_view name) const noexcept {
  std::size_t index = 0;
  while (index < fields_.size() && fields_[index].spec->name != name) ++index;
  return index;
}

std::size_t RecordClass::length_at(std::string_view bits) const {
  if (fixed_bits_ != 0) return fixed_bits_ <= bits.size() ? fixed_bits_ : 0;
  const RecordLayout layout(*this, bits);
  const std::size_t length = (layout.end() + 7) / 8 * 8;
  return layout.is_whole() && length <= bits.size() ? length : 0;
}

std::string RecordClass::wrong_length(std::size_t field, At at, std::size_t width) const {
  return wrong_length(field, at, std::to_string(width));
}

std::string RecordClass::wrong_length(std::size_t field, At at, std::string_view width) const {
  const RecordField& row = *fields_[field].spec;
  if (!row.wrong_length.empty()) return std::string(row.wrong_length);
  const bool of_element = !row.repeat.elements.empty();
  const std::string whole = of_element ? element_name(row.repeat.elements, at) : std::string(row.name);
  const std::string name(bare_name(whole));
  const std::string bits(width);
  switch (texts_.family) {
    case RecordTexts::Named: return "Length of <" + name + "> field should be " + bits + " bits.";
    case RecordTexts::OfArgument:
      return "The length of argument passed should be equal to the length of " + name + " (length=" + bits + ").  ";
    case RecordTexts::WithError: return "Error: Length of " + name + " should be " + bits + " bits.";
  }
  return {};
}

std::string RecordClass::source(std::size_t field, At at) const {
  const RecordField& row = *fields_[field].spec;
  std::string text(row.source.empty() ? texts_.source : row.source);
  text += '.';
  if (!row.source_member.empty()) return text.append(row.source_member);
  if (!row.repeat.elements.empty()) return text + element_name(row.repeat.elements, at);
  if (!row.repeat.accessors.empty()) return text.append("Set_").append(row.repeat.accessors);
  return text.append(row.name);
}

std::vector<FieldInfo> RecordClass::list_fields() const {
  std::vector<FieldInfo> list;
  for (const Field& field : fields_) {
    const RecordField& row = *field.spec;
    if (!is_on_air(row)) continue;
    FieldInfo info{.name = row.name, .width = width_text(row), .condition = condition_text(row)};
    info.origin = row.settable ? "set" : "reserved";
    if (row.settable && row.bits != 0) info.initial = field.initial;
    if (row.meaning != nullptr) info.unit = row.meaning->listed();
    list.push_back(std::move(info));
  }
  return list;
}

Error RecordClass::beyond_count(std::size_t field, At at) const {
  return Error(ErrorNumber::SubscriptOutOfRange, source(field, at));
}

Error RecordClass::no_bit_string(std::size_t field, At at) const {
  return Error(ErrorNumber::TypeMismatch, source(field, at), "a bit string wanted");
}

/// The number that a count does not take any more; 0 where it takes all.
std::size_t RecordClass::too_many(std::size_t field) const {
  const RecordField& counter = *fields_[field].spec;
  for (const Field& other : fields_) {
    const Repeated& repeat = other.spec->repeat;
    const std::size_t places = repeat.count == counter.name ? repeat.places : repeat.inner_places;
    const bool counts = repeat.count == counter.name || repeat.inner == counter.name;
    if (counts && places != 0 && places + 1 < std::size_t{1} << counter.bits) return places + 1;
  }
  return 0;
}

void RecordClass::list_errors(std::vector<ErrorInfo>& errors) const {
  std::vector<std::string> without_member;  // sources up to their points
  for (std::size_t i = 0; i < fields_.size(); ++i) {
    const RecordField& row = *fields_[i].spec;
    const std::string from = source(i, kAnyElement);
    const std::string_view not_received = row.not_received.empty() ? texts_.not_received : row.not_received;
    if (row.settable) {
      const bool varies = row.width.kind != RecordWidth::Kind::Fixed;
      const std::string width = varies ? "(" + width_text(row) + ")" : std::to_string(row.bits);
      errors.push_back(
          {from, wrong_length(i, kAnyElement, width),
           varies ? "let of another width, build once " + std::string(bare_name(row.width.field)) + " says another"
                  : "let of another width"});
      const std::string front = from.substr(0, from.find('.') + 1);
      if (std::find(without_member.begin(), without_member.end(), front) == without_member.end()) {
        without_member.push_back(front);
      }
    } else if (is_property(row) && row.sent && !not_received.empty()) {
      errors.push_back({from, std::string(not_received), "get before a record is received"});
    }
    if (!row.absent.empty()) {
      errors.push_back({from, std::string(row.absent), "get of what the received record does not carry"});
    }
    if (!row.not_settable.empty()) {
      errors.push_back({from, std::string(row.not_settable), "let while the flag is 0"});
    }
    const bool has_accessors_alone = !row.repeat.accessors.empty() && row.repeat.elements.empty();
    if (is_list(row) && !has_accessors_alone) {
      errors.push_back(error_info(beyond_count(i, kAnyElement), row.repeat.elements.empty()
                                                                    ? "get or let beyond the count"
                                                                    : "get of what a received record has not"));
    }
    if (const std::size_t number = too_many(i); number != 0) {
      errors.push_back(error_info(beyond_count(i, kAnyElement), "let of " + std::to_string(number) + " or more"));
    }
  }
  for (const std::string& front : without_member) {
    ErrorInfo info = error_info(no_bit_string(0, {}), "let of a text with control or non-ASCII characters");
    info.source = front + "<property>";
    errors.push_back(std::move(info));
  }
}

std::string element_name(std::string_view pattern, At at) {
  std::string name;
  std::size_t number = at.index;
  while (!pattern.empty()) {
    const std::size_t start = std::min(pattern.find('#'), pattern.size());
    name += pattern.substr(0, start);
    pattern.remove_prefix(start);
    const std::size_t run = std::min(pattern.find_first_not_of('#'), pattern.size());
    if (run == 0) break;
    if (number == kAnyElement.index) {
      name.append("<").append(run, 'n').append(">");
    } else {
      const std::string digits = std::to_string(static_cast<std::int64_t>(number));  // an index may have been negative
      name.append(run > digits.size() ? run - digits.size() : 0, '0').append(digits);
    }
    pattern.remove_prefix(run);
    number = at.inner;
  }
  return name;
}

RecordLayout::RecordLayout(const RecordClass& record, std::string_view bits) : record_(&record), bits_(bits) {
  visits_.reserve(record.fields().size());
  walk(record, *this);
  bits_ = {};  // only the walk reads them, and they need not last
}

bool RecordLayout::done() noexcept {
  if (position_ < bits_.size()) return false;
  whole_ = false;
  return true;
}

void RecordLayout::visit(std::size_t field, At at, std::size_t width) {
  visits_.push_back({static_cast<std::uint16_t>(field),
                     record_->field(field).group,
                     at,
                     {static_cast<std::uint32_t>(position_), static_cast<std::uint32_t>(width), true}});
  position_ += width;
  const bool fills_up = record_->field(field).spec->width.kind == RecordWidth::Kind::ToOctet;
  if (position_ > bits_.size() && !fills_up) whole_ = false;
}

const Extent* RecordLayout::find(std::size_t field, At at) const noexcept {
  if (record_ == nullptr) return nullptr;
  const Visit wanted{static_cast<std::uint16_t>(field), record_->field(field).group, at, {}};
  // Before the first list and where nothing is left out, a field stands where its row does.
  if (field < visits_.size() && is_same(visits_[field], wanted)) return &visits_[field].extent;
  const auto found = std::lower_bound(visits_.begin(), visits_.end(), wanted, comes_before);
  return found != visits_.end() && is_same(*found, wanted) ? &found->extent : nullptr;
}

std::string_view RecordLayout::value(std::size_t field, std::size_t index) const noexcept {
  const Extent* extent = find(field, {is_list(*record_->field(field).spec) ? index : 0, 0});
  return extent != nullptr ? slice(bits_, *extent) : std::string_view{};
}

}  // namespace vorlan
