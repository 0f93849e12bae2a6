// Names as people type them: classes and fields, without regard to case.
#pragma once

#include <string>
#include <string_view>

#include "automation/registry.hpp"
#include "codec/member_name.hpp"

namespace vorlan::cli {

/// "*" and "?" as in a shell; a pattern with neither matches every text that contains it.
bool matches(std::string_view pattern, std::string_view text) noexcept;

/// The name that a script creates the class by; the library's own classes go without their server's name.
std::string listed_name(const Registry::Class& named);

/// Error 429 if there is no such class; the description then names the classes that are meant, if they are few.
const Registry::Class& class_named(const Registry& registry, const std::string& name);

/// The same member, whether either name has its prefix or not.
bool same_member(std::string_view typed, std::string_view member) noexcept;

}  // namespace vorlan::cli
