#include "attributes/app_simple_attributes.hpp"
#include "attributes/classes.hpp"
#include "attributes/con_ses_simple_attributes.hpp"
#include "attributes/mac_simple_attributes.hpp"
#include "attributes/security_simple_attributes.hpp"

namespace vorlan {

namespace {

template <const auto& Rows>
constexpr auto entries() {
  return entries_of<AttributeOf, Rows>();
}

constexpr auto kClasses = joined(entries<kAppSimpleAttributes>(), entries<kConSesSimpleAttributes>(),
                                 entries<kMacSimpleAttributes>(), entries<kSecuritySimpleAttributes>());

}  // namespace

std::span<const ClassEntry> simple_attribute_classes() noexcept { return kClasses; }

}  // namespace vorlan
