// Rows of text in aligned columns.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vorlan::cli {

class Table {
 public:
  Table() = default;
  explicit Table(std::vector<std::string> titles) : titled_(true) { rows_.push_back(std::move(titles)); }
  void add(std::vector<std::string> row) { rows_.push_back(std::move(row)); }
  /// Columns are two blanks apart; a column that is empty but for its title is left out.
  [[nodiscard]] std::string text(std::string_view indent = {}) const;

 private:
  std::vector<std::vector<std::string>> rows_;
  bool titled_ = false;
};

}  // namespace vorlan::cli
