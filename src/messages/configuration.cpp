#include "messages/configuration.hpp"

#include "common/conversions.hpp"

namespace vorlan {

Value Configuration::value(std::string_view property, std::string_view section) const {
  return deref(parameters_, property).get(property, section);
}

void Configuration::append(std::string_view property, std::string& bits) const {
  if (const std::string* held = deref(parameters_, property).held_text(property)) {
    bits += *held;
  } else {
    bits += text(property);
  }
}

std::string Configuration::text(std::string_view property, std::string_view section) const {
  Value found = value(property, section);
  if (auto* text = found.as<std::string>()) return std::move(*text);
  return found.to_text();
}

std::string Configuration::bits(std::string_view property, int width) const {
  return dec_to_bin(value(property), width);
}

std::string Configuration::sector_name() const {
  return deref(sector_, "PRstr_SectorName").get("PRstr_SectorName").to_text();
}

}  // namespace vorlan
