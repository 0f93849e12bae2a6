// Whether a class lists what it raises.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>

#include "automation/class_info.hpp"
#include "support/raised.hpp"

namespace vorlan::test {

/// "<...>" in what is listed stands for any text.
inline bool stands_for(std::string_view listed, std::string_view text) {
  const std::size_t open = listed.find('<');
  const std::size_t close = open == std::string_view::npos ? open : listed.find('>', open);
  if (close == std::string_view::npos) return listed == text;
  if (listed.substr(0, open) != text.substr(0, open)) return false;
  for (std::size_t end = open; end <= text.size(); ++end) {
    if (stands_for(listed.substr(close + 1), text.substr(end))) return true;
  }
  return false;
}

/// What an object raised; an error 1 must be one that its class lists.
inline Raised listed(const Object& object, Raised raised) {
  const auto errors = object.class_info()->errors();
  const bool found = std::any_of(errors.begin(), errors.end(), [&](const ErrorInfo& error) {
    return error.number == raised.number && stands_for(error.source, raised.source) &&
           stands_for(error.description, raised.description);
  });
  EXPECT_TRUE(found || raised.number != 1)
      << object.class_info()->name() << " does not list " << testing::PrintToString(raised);
  return raised;
}

}  // namespace vorlan::test
