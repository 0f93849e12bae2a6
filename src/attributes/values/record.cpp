#include "attributes/values/record.hpp"

#include <algorithm>

#include "automation/error.hpp"

namespace vorlan {

namespace {

/// The side of walk() that builds: stored values in, bits out.
class Builder {
 public:
  Builder(const Record& record, std::string& bits) : record_(record), bits_(bits) {}

  [[nodiscard]] std::string_view value(std::size_t field, std::size_t index) const noexcept {
    return record_.stored(field, {index, 0});
  }
  [[nodiscard]] std::size_t position() const noexcept { return bits_.size(); }
  [[nodiscard]] static bool done() noexcept { return false; }
  void visit(std::size_t field, At at, std::size_t width) {
    const RecordField& row = *record_.record_class().field(field).spec;
    if (row.width.kind == RecordWidth::Kind::ToOctet) {
      bits_.append(width, '0');
      return;
    }
    const std::string_view value = record_.stored(field, at);
    if (value.size() != width) {
      raise(record_.record_class().source(field, at), record_.record_class().wrong_length(field, at, width));
    }
    bits_ += value;
  }

 private:
  const Record& record_;
  std::string& bits_;
};

}  // namespace

Record::Record(const RecordClass& record_class) : class_(&record_class) { reset(); }

void Record::reset() {
  received_ = false;
  received_bits_.clear();
  layout_ = {};
  singles_.clear();
  lists_.assign(class_->lists(), {});
  singles_.reserve(class_->singles());
  for (const RecordClass::Field& field : class_->fields()) {
    const Repeated& repeat = field.spec->repeat;
    if (!is_list(*field.spec)) {
      singles_.push_back(field.initial);
    } else if (repeat.places != 0 && is_table(*field.spec)) {
      lists_[field.slot].rows.assign(repeat.places, std::vector<std::string>(repeat.inner_places, field.initial));
    } else if (!is_table(*field.spec)) {
      lists_[field.slot].rows.emplace_back(repeat.places, field.initial);
    }
  }
  for (std::size_t i = 0; i < class_->fields().size(); ++i) {
    if (class_->field(i).counts && !is_list(*class_->field(i).spec)) count_changed(i, 0, small_value(stored(i)));
  }
}

void Record::raise(std::size_t field, At at, std::string_view text) const {
  vorlan::raise(class_->source(field, at), text);
}

void Record::refuse_index(std::size_t field, At at) const { throw class_->beyond_count(field, at); }

// --- stored values

const std::string* Record::element(std::size_t field, At at) const noexcept {
  const RecordClass::Field& row = class_->field(field);
  if (!is_list(*row.spec)) return &singles_[row.slot];
  const auto& rows = lists_[row.slot].rows;
  const std::size_t line = is_table(*row.spec) ? at.index : 0;
  const std::size_t place = is_table(*row.spec) ? at.inner : at.index;
  return line < rows.size() && place < rows[line].size() ? &rows[line][place] : nullptr;
}

std::string* Record::element(std::size_t field, At at) noexcept {
  return const_cast<std::string*>(std::as_const(*this).element(field, at));  // NOLINT: the record is not const here
}

std::string_view Record::stored(std::size_t field, At at) const noexcept {
  const std::string* found = element(field, at);
  return found != nullptr ? std::string_view(*found) : std::string_view{};
}

void Record::store(std::size_t field, At at, std::string_view value) {
  if (std::string* found = element(field, at)) *found = value;
  if (class_->field(field).counts) count_changed(field, at.index, small_value(value));
}

/// Makes as many elements as a count says, in the lists that have no places of their own.
void Record::count_changed(std::size_t field, std::size_t index, std::size_t count) {
  const RecordField& counter = *class_->field(field).spec;
  for (const RecordClass::Field& row : class_->fields()) {
    const Repeated& repeat = row.spec->repeat;
    if (!is_list(*row.spec) || repeat.places != 0) continue;
    auto& list = lists_[row.slot];
    if (repeat.count == counter.name) {
      if (is_table(*row.spec)) {
        list.rows.resize(count);
      } else {
        list.rows.front().resize(count, row.initial);
      }
    } else if (repeat.inner == counter.name && index < list.rows.size()) {
      list.rows[index].resize(count, row.initial);
    }
  }
}

std::size_t Record::width(std::size_t field, std::size_t index) const noexcept {
  const RecordClass::Field& row = class_->field(field);
  const auto number = [&] { return small_value(stored(static_cast<std::size_t>(row.width), {index, 0})); };
  switch (row.spec->width.kind) {
    case RecordWidth::Kind::OctetsOf: return 8 * number();
    case RecordWidth::Kind::BitsOf: return number();
    case RecordWidth::Kind::Fixed:
    case RecordWidth::Kind::ToOctet: break;  // what fills an octet up is never set
  }
  return row.spec->bits;
}

void Record::check(std::size_t field, At at, std::string_view value) const {
  const RecordClass::Field& row = class_->field(field);
  const RecordField& spec = *row.spec;
  const std::size_t wanted = width(field, at.index);
  if (value.size() != wanted) raise(field, at, class_->wrong_length(field, at, wanted));
  const auto printable = [](char c) { return c >= ' ' && c <= '~'; };
  if (!std::all_of(value.begin(), value.end(), printable)) throw class_->no_bit_string(field, at);
  if (!spec.not_settable.empty() && small_value(stored(static_cast<std::size_t>(row.only), {at.index, 0})) == 0) {
    raise(field, at, spec.not_settable);
  }
  if (spec.view == nullptr && element(field, at) == nullptr) refuse_index(field, at);
  if (!row.counts) return;
  const std::size_t number = small_value(value);
  for (const RecordClass::Field& other : class_->fields()) {
    const Repeated& repeat = other.spec->repeat;
    if (repeat.places == 0) continue;
    if ((repeat.count == spec.name && number > repeat.places) ||
        (repeat.inner == spec.name && number > repeat.inner_places)) {
      refuse_index(field, at);
    }
  }
}

void Record::let(std::size_t field, At at, std::string_view value) {
  check(field, at, value);
  const RecordField& spec = *class_->field(field).spec;
  if (spec.let != nullptr) {
    spec.let(*this, at.index, value);
  } else {
    store(field, at, value);
  }
}

std::string Record::build() const {
  constexpr std::size_t kUsualBits = 128;
  std::string bits;
  bits.reserve(kUsualBits);
  Builder builder(*this, bits);
  walk(*class_, builder);
  bits.append((8 - bits.size() % 8) % 8, '0');
  return bits;
}

// --- received records

bool Record::receive(std::string_view bits, bool may_be_cut_off) {
  RecordLayout layout(*class_, bits);
  if (!layout.is_whole() && !may_be_cut_off) return false;
  received_bits_ = bits;
  layout_ = std::move(layout);
  received_ = true;
  return true;
}

std::size_t Record::count(std::size_t field) const noexcept {
  const RecordClass::Field& row = class_->field(field);
  if (!is_list(*row.spec)) return 1;
  const auto counter = static_cast<std::size_t>(class_->groups()[row.group].count);
  const bool from_received = received_ && is_on_air(*row.spec);
  if (from_received) {
    const Extent* extent = layout_.find(counter);
    return extent != nullptr ? small_value(slice(received_bits_, *extent)) : 0;
  }
  if (row.spec->repeat.places != 0) return row.spec->repeat.places;
  return is_table(*row.spec) ? lists_[row.slot].rows.size() : lists_[row.slot].rows.front().size();
}

std::size_t Record::inner_count(std::size_t field, std::size_t index) const noexcept {
  const RecordClass::Field& row = class_->field(field);
  if (!is_table(*row.spec)) return 1;
  if (received_) {
    const bool own = is_list(*class_->field(static_cast<std::size_t>(row.inner)).spec);
    const Extent* extent = layout_.find(static_cast<std::size_t>(row.inner), {own ? index : 0, 0});
    return extent != nullptr ? small_value(slice(received_bits_, *extent)) : 0;
  }
  const auto& rows = lists_[row.slot].rows;
  return index < rows.size() ? rows[index].size() : 0;
}

bool Record::has(std::size_t field, At at, bool to_set) const noexcept {
  return to_set ? element(field, at) != nullptr : at.index < count(field) && at.inner < inner_count(field, at.index);
}

std::string_view Record::get(std::size_t field, At at) const {
  const RecordClass::Field& row = class_->field(field);
  const RecordField& spec = *row.spec;
  if (spec.view != nullptr) return spec.view(*this, at.index);
  if (!received_ || !spec.sent) {
    if (!spec.settable && spec.sent)
      raise(field, at, spec.not_received.empty() ? class_->texts().not_received : spec.not_received);
    if (element(field, at) == nullptr) refuse_index(field, at);
    return stored(field, at);
  }
  if (const Extent* extent = layout_.find(field, at)) return slice(received_bits_, *extent);
  if (is_list(spec) && (at.index >= count(field) || at.inner >= inner_count(field, at.index))) refuse_index(field, at);
  if (!spec.absent.empty()) raise(field, at, spec.absent);
  return {};
}

}  // namespace vorlan
