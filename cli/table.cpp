#include "cli/table.hpp"

#include <algorithm>

namespace vorlan::cli {

std::vector<std::string> wrapped(std::string_view text, std::size_t width, std::string_view gap) {
  std::vector<std::string> lines;
  while (text.size() > width) {
    const std::size_t before = gap.size() - 1;
    std::size_t end = text.rfind(gap, width - before);
    if (end == std::string_view::npos) end = std::min(text.find(gap), text.size());
    lines.emplace_back(text.substr(0, end + before));
    text.remove_prefix(std::min(end + gap.size(), text.size()));
  }
  if (!text.empty() || lines.empty()) lines.emplace_back(text);
  return lines;
}

std::string Table::text(std::string_view indent, std::size_t widest) const {
  std::vector<std::size_t> widths;
  std::vector<bool> used;
  std::vector<std::vector<std::string>> lines;
  for (std::size_t r = 0; r < rows_.size(); ++r) {
    const auto& row = rows_[r];
    const std::size_t first = lines.size();
    widths.resize(std::max(widths.size(), row.size()));
    used.resize(widths.size());
    for (std::size_t i = 0; i < row.size(); ++i) {
      if ((r > 0 || !titled_) && !row[i].empty()) used[i] = true;
      const auto parts = wrapped(row[i], i == 0 ? std::string::npos : widest);
      for (std::size_t p = 0; p < parts.size(); ++p) {
        if (lines.size() == first + p) lines.emplace_back(row.size());
        lines[first + p][i] = parts[p];
        widths[i] = std::max(widths[i], parts[p].size());
      }
    }
  }
  std::string text;
  for (const auto& cells : lines) {
    std::string line(indent);
    for (std::size_t i = 0; i < cells.size(); ++i) {
      if (used[i]) line.append(cells[i]).append(widths[i] - cells[i].size() + 2, ' ');
    }
    line.erase(line.find_last_not_of(' ') + 1);
    text.append(line).append("\n");
  }
  return text;
}

}  // namespace vorlan::cli
