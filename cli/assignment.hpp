// "FIELD=VALUE" and "FIELD[i]=VALUE" as typed.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vorlan::cli {

struct Assignment {
  std::string name;
  std::optional<std::string> index;  ///< as typed: the class says what is wrong with it
  std::string value;

  [[nodiscard]] long index_number() const noexcept;
};

/// Usage error if the word is not an assignment.
Assignment parse_assignment(std::string_view word);

}  // namespace vorlan::cli
