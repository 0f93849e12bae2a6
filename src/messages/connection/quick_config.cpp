#include "messages/connection/quick_config.hpp"

namespace vorlan::quick_config {

std::string low_sector_id(Configuration& configuration) {
  constexpr std::size_t kBits = 24;
  std::string id = configuration.text("PRstr_SectorID");
  return id.size() > kBits ? id.substr(id.size() - kBits) : id;
}

}  // namespace vorlan::quick_config
