// "FIELD=VALUE" and "FIELD[i]=VALUE" as typed.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "automation/error.hpp"

namespace vorlan::cli {

struct Assignment {
  std::string name;
  std::optional<std::string> index;  ///< as typed: the class says what is wrong with it
  std::string value;

  [[nodiscard]] long index_number() const noexcept;
};

/// Usage error if the word is not an assignment.
Assignment parse_assignment(std::string_view word);

/// Error 438: decode takes only assignments to properties that select a layout.
Error no_layout(std::string_view class_name, const Assignment& assignment);

}  // namespace vorlan::cli
