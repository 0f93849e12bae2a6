#include "server/com/call_arguments.hpp"

#include "automation/error.hpp"

namespace vorlan::com {

CallArguments::CallArguments(const MemberInfo& member, const DISPPARAMS& parameters, bool assigns, Objects& objects)
    : member_(member), objects_(objects) {
  VARIANT* assigned = nullptr;
  const UINT named = parameters.cNamedArgs;
  const UINT positional = parameters.cArgs - named;
  values_.reserve(parameters.cArgs);
  given_.reserve(parameters.cArgs);
  for (UINT i = 0; i < positional; ++i) place(i, parameters.rgvarg[parameters.cArgs - 1 - i]);
  for (UINT i = 0; i < named; ++i) {
    const DISPID name = parameters.rgdispidNamedArgs[i];
    if (name == DISPID_PROPERTYPUT) {
      assigned = &parameters.rgvarg[i];
    } else {
      const auto position = static_cast<std::size_t>(name);
      if (name < 0 || position >= member.parameters.size() ||
          (position < given_.size() && given_[position] != nullptr)) {
        throw Error(ErrorNumber::WrongArgumentCount);
      }
      place(position, parameters.rgvarg[i]);
    }
  }
  // Some clients do not name the value that they assign: it is the last one.
  if (assigns && assigned == nullptr && !given_.empty()) {
    assigned = given_.back();
    given_.pop_back();
    values_.pop_back();
  }
  while (!given_.empty() && (given_.back() == nullptr || is_left_out(*given_.back()))) {
    given_.pop_back();
    values_.pop_back();
  }
  if (assigned != nullptr) place(given_.size(), *assigned);
}

void CallArguments::place(std::size_t position, VARIANT& given) {
  if (position >= values_.size()) {
    values_.resize(position + 1);
    given_.resize(position + 1);
  }
  values_[position] = to_value(given, objects_);
  given_[position] = &given;
}

void CallArguments::give_back() {
  for (std::size_t i = 0; i < values_.size() && i < member_.parameters.size(); ++i) {
    if (given_[i] != nullptr && member_.parameters[i].by_reference) {
      assign_to_reference(*given_[i], values_[i], objects_);
    }
  }
}

}  // namespace vorlan::com
