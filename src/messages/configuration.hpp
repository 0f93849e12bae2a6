// The configuration object of a sector, as the codecs read it: late-bound, whoever implements it.
#pragma once

#include <string>
#include <string_view>

#include "automation/object.hpp"

namespace vorlan {

/// Reads SB_GlobalParameters, or any object with its members. Values come from what the object holds (empty sector
/// name), not afresh from the parameter file, unless a section is named.
class Configuration {
 public:
  Configuration(Ref<Object> sector, Ref<Object> parameters)
      : sector_(std::move(sector)), parameters_(std::move(parameters)) {}

  [[nodiscard]] Value value(std::string_view property, std::string_view section = {}) const;
  [[nodiscard]] std::string text(std::string_view property, std::string_view section = {}) const;
  /// A number in so many bits, as DecToBin makes it.
  [[nodiscard]] std::string bits(std::string_view property, int width) const;
  [[nodiscard]] std::string sector_name() const;

 private:
  Ref<Object> sector_;
  Ref<Object> parameters_;
};

}  // namespace vorlan
