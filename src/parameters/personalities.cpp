#include "parameters/personalities.hpp"

#include "automation/error.hpp"

namespace vorlan {

std::int16_t Personalities::at(std::size_t parameter, std::int16_t personality) const {
  const std::vector<std::int16_t>& elements = elements_[parameter];
  if (personality < 0 || static_cast<std::size_t>(personality) >= elements.size()) {
    throw Error(ErrorNumber::SubscriptOutOfRange);
  }
  return elements[static_cast<std::size_t>(personality)];
}

std::int16_t Personalities::at_or_not_set(std::size_t parameter, std::int16_t personality) const {
  const auto count = static_cast<std::int32_t>(elements_[parameter].size());
  return personality < count ? at(parameter, personality) : kNotSet;
}

std::int16_t& Personalities::reach(std::size_t parameter, std::int16_t personality) {
  if (personality < 0) throw Error(ErrorNumber::SubscriptOutOfRange);
  std::vector<std::int16_t>& elements = elements_[parameter];
  const auto index = static_cast<std::size_t>(personality);
  if (index >= elements.size()) elements.resize(index + 1, kNotSet);
  return elements[index];
}

}  // namespace vorlan
