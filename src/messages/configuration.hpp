// The configuration object of a sector, as the codecs read it: late-bound, whoever implements it.
#pragma once

#include <string>
#include <string_view>

#include "automation/object.hpp"

namespace vorlan {

/// Reads SB_GlobalParameters, or any object with its members. Values come from what the object holds (empty sector
/// name), not afresh from the parameter file, unless a section is named.
/// Lives no longer than the message whose it is.
class Configuration {
 public:
  Configuration(const Ref<Object>& sector, const Ref<Object>& parameters) noexcept
      : sector_(sector), parameters_(parameters) {}

  [[nodiscard]] Value value(std::string_view property, std::string_view section = {}) const;
  [[nodiscard]] std::string text(std::string_view property, std::string_view section = {}) const;
  /// The same text, joined to others.
  void append(std::string_view property, std::string& bits) const;
  /// A number in so many bits, as DecToBin makes it.
  [[nodiscard]] std::string bits(std::string_view property, int width) const;
  [[nodiscard]] std::string sector_name() const;

 private:
  const Ref<Object>& sector_;
  const Ref<Object>& parameters_;
};

}  // namespace vorlan
