#include "cli/table.hpp"

#include <algorithm>

namespace vorlan::cli {

std::string Table::text(std::string_view indent) const {
  std::vector<std::size_t> widths;
  std::vector<bool> used;
  for (std::size_t r = 0; r < rows_.size(); ++r) {
    widths.resize(std::max(widths.size(), rows_[r].size()));
    used.resize(widths.size());
    for (std::size_t i = 0; i < rows_[r].size(); ++i) {
      widths[i] = std::max(widths[i], rows_[r][i].size());
      if ((r > 0 || !titled_) && !rows_[r][i].empty()) used[i] = true;
    }
  }
  std::string text;
  for (const auto& row : rows_) {
    std::string line(indent);
    for (std::size_t i = 0; i < row.size(); ++i) {
      if (used[i]) line.append(row[i]).append(widths[i] - row[i].size() + 2, ' ');
    }
    line.erase(line.find_last_not_of(' ') + 1);
    text.append(line).append("\n");
  }
  return text;
}

}  // namespace vorlan::cli
