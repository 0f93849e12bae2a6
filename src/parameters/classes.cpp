#include "parameters/classes.hpp"

#include <array>

#include "parameters/global_parameters.hpp"
#include "parameters/parameter_functions.hpp"

namespace vorlan {

namespace {

constexpr std::array kClasses{
    ClassEntry{"SB_GlobalParameters", &SB_GlobalParameters::info,
               [](Platform& platform) -> Ref<Object> { return make<SB_GlobalParameters>(platform); }},
};

constexpr std::array kFileClasses{
    ClassEntry{"ParameterFunctions", &ParameterFunctions::info,
               [](Platform& platform) -> Ref<Object> { return make<ParameterFunctions>(platform); }},
};

}  // namespace

std::span<const ClassEntry> parameter_classes() noexcept { return kClasses; }

std::span<const ClassEntry> parameter_file_classes() noexcept { return kFileClasses; }

}  // namespace vorlan
