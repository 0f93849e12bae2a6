#include "messages/configuration.hpp"

#include "common/conversions.hpp"

namespace vorlan {

Value Configuration::value(std::string_view property, std::string_view section) const {
  const Ref<Object> asked = parameters_;
  return deref(asked, property).get(property, section);
}

std::string Configuration::text(const PreparedName& property, std::string_view section) const {
  const std::string* held = section.empty() ? held_text(property) : nullptr;
  return held != nullptr ? *held : late_bound_text(property.text, section);
}

std::string Configuration::late_bound_text(std::string_view property, std::string_view section) const {
  return value(property, section).to_text();
}

std::string Configuration::bits(std::string_view property, int width) const {
  return dec_to_bin(value(property), width);
}

std::string Configuration::sector_name() const {
  const Ref<Object> asked = sector_;
  return deref(asked, "PRstr_SectorName").get("PRstr_SectorName").to_text();
}

}  // namespace vorlan
