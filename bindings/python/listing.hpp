// Texts made from the registry: docstrings and signatures, in the module and in its stubs.
#pragma once

#include <string>

#include "automation/class_info.hpp"
#include "automation/registry.hpp"

namespace vorlan::python {

/// The classes that the module offers: the library's and the simulated test set's.
Registry module_registry();

/// The Python type of a value, as annotations name it.
std::string_view python_type(ValueType type) noexcept;

/// "($self, TestSet, EncoderString=...)"
std::string text_signature(const MemberInfo& member);

/// Docstrings of a member and of a class.
std::string member_text(const MemberInfo& member);
std::string class_text(const ClassInfo& info);

}  // namespace vorlan::python
