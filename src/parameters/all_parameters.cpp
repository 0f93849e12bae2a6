#include <vector>

#include "parameters/parameter_spec.hpp"

namespace vorlan {

std::span<const ParameterSpec* const> all_parameters() {
  static const auto kAll = [] {
    std::vector<const ParameterSpec*> all;
    for (const auto table : {air_interface_parameters(), channel_parameters(), traffic_parameters(), test_parameters(),
                             location_parameters(), automation_parameters()}) {
      for (const ParameterSpec& row : table) all.push_back(&row);
    }
    return all;
  }();
  return kAll;
}

}  // namespace vorlan
