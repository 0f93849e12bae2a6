// Rows of text in aligned columns.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vorlan::cli {

/// What can be read at a glance, and leaves room for other columns.
inline constexpr std::size_t kWidestCell = 60;

/// The text in lines of at most `width`, as far as it has gaps to be broken at; a gap ends with a blank.
std::vector<std::string> wrapped(std::string_view text, std::size_t width, std::string_view gap = " ");

class Table {
 public:
  Table() = default;
  explicit Table(std::vector<std::string> titles) : titled_(true) { rows_.push_back(std::move(titles)); }
  void add(std::vector<std::string> row) { rows_.push_back(std::move(row)); }
  /// Columns are two blanks apart; a column that is empty but for its title is left out. Cells behind the first column
  /// that are wider than `widest` go on in the line below.
  [[nodiscard]] std::string text(std::string_view indent = {}, std::size_t widest = std::string::npos) const;

 private:
  std::vector<std::vector<std::string>> rows_;
  bool titled_ = false;
};

}  // namespace vorlan::cli
