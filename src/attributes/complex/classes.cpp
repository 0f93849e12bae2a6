#include "attributes/classes.hpp"
#include "attributes/complex/app_attributes.hpp"
#include "attributes/complex/con_ses_attributes.hpp"
#include "attributes/complex/mac_attributes.hpp"
#include "attributes/complex/tas_attributes.hpp"

namespace vorlan {

namespace {

template <const auto& Rows>
constexpr auto entries() {
  return entries_of<ComplexAttributeOf, Rows>();
}

constexpr auto kClasses = joined(entries<kConSesAttributes>(), entries<kMacAttributes>(), entries<kAppAttributes>(),
                                 entries<kTasAttributes>());

}  // namespace

std::span<const ClassEntry> complex_attribute_classes() noexcept { return kClasses; }

std::string supported_channels_value_id(ComplexAttribute& attribute, std::span<const Value> arguments) {
  const std::string band_class = arguments[0].to_text();
  const std::string subclass = arguments.size() > 1 ? arguments[1].to_text() : std::string();
  for (std::size_t i = 0; i < attribute.count(); ++i) {
    const Record& offered = attribute.value(i).record();
    const std::size_t bands = small_value(offered.get("PRstr_BandClassCount"));
    for (std::size_t band = 0; band < bands; ++band) {
      if (offered.get("PRstr_BandClass", {band}) != band_class) continue;
      const std::size_t subclasses = small_value(offered.get("PRstr_BandSubClassCount", {band}));
      bool offers = subclass.empty();
      for (std::size_t j = 0; j < subclasses && !offers; ++j) {
        offers = offered.get("PRstr_BandSubClass", {band, j}) == subclass;
      }
      if (offers) return std::string(offered.get("PRstr_ValueId"));
    }
  }
  return {};
}

}  // namespace vorlan
