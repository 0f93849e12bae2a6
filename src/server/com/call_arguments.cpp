#include "server/com/call_arguments.hpp"

#include <algorithm>

#include "automation/error.hpp"
#include "server/com/foreign_object.hpp"
#include "server/com/script_array.hpp"

namespace vorlan::com {

CallArguments::CallArguments(const MemberInfo& member, const DISPPARAMS& parameters, WORD kind, Objects& objects)
    : member_(member), objects_(objects) {
  take(parameters, assigns(kind));
  values_.reserve(given_.size());
  for (std::size_t i = 0; i < given_.size(); ++i) {
    ValueType due = ValueType::Any;
    if (i < indices_) {
      if (i < member.parameters.size()) due = member.parameters[i].type;
    } else {
      due = (kind & DISPATCH_PROPERTYPUT) != 0 ? member.type : ValueType::Object;
    }
    values_.push_back(given_[i] != nullptr ? value_of(*given_[i], due) : Value());
    if (!goes_back(i)) continue;
    before_.resize(i + 1);
    before_[i] = values_[i];
  }
}

void CallArguments::take(const DISPPARAMS& parameters, bool assigns) {
  VARIANT* assigned = nullptr;
  const UINT named = parameters.cNamedArgs;
  if (named > parameters.cArgs) throw Error(ErrorNumber::WrongArgumentCount);
  for (UINT i = parameters.cArgs; i > named; --i) given_.push_back(&parameters.rgvarg[i - 1]);
  for (UINT i = 0; i < named; ++i) {
    const DISPID name = parameters.rgdispidNamedArgs[i];
    if (name == DISPID_PROPERTYPUT) {
      assigned = &parameters.rgvarg[i];
      continue;
    }
    const auto position = static_cast<std::size_t>(name);
    if (name < 0 || position >= member_.parameters.size()) throw Error(ErrorNumber::WrongArgumentCount);
    if (position >= given_.size()) given_.resize(position + 1);
    if (given_[position] != nullptr) throw Error(ErrorNumber::WrongArgumentCount);
    given_[position] = &parameters.rgvarg[i];
  }
  // Some clients do not name the value that they assign: it is the last one.
  if (assigns && assigned == nullptr && !given_.empty()) {
    assigned = given_.back();
    given_.pop_back();
  }
  while (!given_.empty() && (given_.back() == nullptr || is_left_out(*given_.back()))) given_.pop_back();
  indices_ = given_.size();
  if (assigned != nullptr) given_.push_back(assigned);
  check_left_out();
}

void CallArguments::check_left_out() const {
  const std::size_t known = std::min(indices_, member_.parameters.size());
  for (std::size_t i = 0; i < given_.size(); ++i) {
    const bool optional = i < known && i >= member_.required_parameters();
    if (!optional && (given_[i] == nullptr || is_left_out(*given_[i]))) {
      throw Error(ErrorNumber::WrongArgumentCount);
    }
  }
}

Value CallArguments::value_of(const VARIANT& given, ValueType due) {
  Value value = to_value(given, objects_);
  if (due == ValueType::Object && value.is(ValueType::Null)) return Ref<Object>();
  const bool is_plain = due >= ValueType::Boolean && due <= ValueType::String;
  const bool may_be_array = due == ValueType::Any || due == ValueType::Array;
  const auto* object = value.as<Ref<Object>>();
  auto* const foreign = object != nullptr ? dynamic_cast<ForeignObject*>(object->get()) : nullptr;
  if (foreign == nullptr) return value;
  if (is_plain) {
    if (std::optional<Value> meant = foreign->default_value()) return *std::move(meant);
  } else if (may_be_array) {
    if (std::optional<Value::Array> elements = script_array(*foreign->dispatch(), objects_))
      return *std::move(elements);
  }
  return value;
}

bool CallArguments::goes_back(std::size_t position) const noexcept {
  return position < std::min(indices_, member_.parameters.size()) && member_.parameters[position].by_reference &&
         given_[position] != nullptr && (given_[position]->vt & VT_BYREF) != 0;
}

void CallArguments::give_back() {
  for (std::size_t i = 0; i < before_.size(); ++i) {
    if (goes_back(i) && !(values_[i] == before_[i])) assign_to_reference(*given_[i], values_[i], objects_);
  }
}

}  // namespace vorlan::com
