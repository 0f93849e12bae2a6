#include "messages/mac/access_channel.hpp"

#include "common/conversions.hpp"

namespace vorlan::access_channel {

std::string probe_initial_adjust(Configuration& configuration) {
  constexpr int kBits = 5;
  const Value adjust = configuration.value("PRsin_ProbeInitialAdjust");
  const float decibels = adjust.to_single();
  return decibels < 0 ? find_2s_complement(dec_to_bin(-decibels, kBits), kBits) : dec_to_bin(adjust, kBits);
}

std::string persistence_text(std::string_view bits) {
  if (bits.find('0') == std::string_view::npos) return "0";
  return "2^(-" + std::to_string(small_value(bits)) + "/4)";
}

}  // namespace vorlan::access_channel
