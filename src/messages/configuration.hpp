// The configuration object of a sector, as the codecs read it: late-bound, whoever implements it.
#pragma once

#include <string>
#include <string_view>

#include "automation/object.hpp"
#include "messages/bit_buffer.hpp"

namespace vorlan {

/// Reads SB_GlobalParameters, or any object with its members. Values come from what the object holds (empty sector
/// name), not afresh from the parameter file, unless a section is named.
/// Lives no longer than the message whose it is. An object of a script may call back and give the message another
/// configuration: the one that was asked stays until it has answered.
class Configuration {
 public:
  Configuration(const Ref<Object>& sector, const Ref<Object>& parameters) noexcept
      : sector_(sector), parameters_(parameters) {}

  [[nodiscard]] Value value(std::string_view property, std::string_view section = {}) const;
  [[nodiscard]] std::string text(const PreparedName& property, std::string_view section = {}) const;
  /// The same text, joined to others.
  void append(const PreparedName& property, BitBuffer& bits) const {
    if (const std::string* held = held_text(property)) {
      bits += *held;
    } else {
      bits += late_bound_text(property.text, {});
    }
  }
  /// A number in so many bits, as DecToBin makes it.
  [[nodiscard]] std::string bits(std::string_view property, int width) const;
  [[nodiscard]] std::string sector_name() const;

 private:
  [[nodiscard]] const std::string* held_text(const PreparedName& property) const noexcept {
    return parameters_ ? parameters_->held_text(property) : nullptr;
  }
  [[nodiscard]] std::string late_bound_text(std::string_view property, std::string_view section) const;

  const Ref<Object>& sector_;
  const Ref<Object>& parameters_;
};

}  // namespace vorlan
