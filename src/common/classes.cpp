#include "common/classes.hpp"

#include <array>

#include "common/general_functions.hpp"

namespace vorlan {

namespace {

constexpr std::array kClasses{
    ClassEntry{"SB_GeneralFunctions", &SB_GeneralFunctions::info,
               [](Platform& platform) -> Ref<Object> { return make<SB_GeneralFunctions>(platform); }},
};

}  // namespace

std::span<const ClassEntry> common_classes() noexcept { return kClasses; }

}  // namespace vorlan
