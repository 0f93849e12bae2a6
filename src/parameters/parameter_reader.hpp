// Reads parameters from a parameter file, through whatever object reads such files.
#pragma once

#include <string>

#include "automation/error.hpp"
#include "automation/object.hpp"
#include "parameters/parameter_spec.hpp"

namespace vorlan {

/// Where to look for a parameter of a sector (index 0 to 5).
struct KeyPlace {
  std::string_view section;
  std::string_view key;
};

/// As Initialize reads it.
KeyPlace loaded_place(const ParameterSpec& spec, int sector) noexcept;
/// As a read for a named sector finds it. Error 1 for a parameter that other sectors do not have.
KeyPlace live_place(const ParameterSpec& spec, int sector);

/// How the invalid-parameter error names a parameter.
std::string invalid_label(const ParameterSpec& spec, int sector);

/// Whether an error is about the file, not about one key.
bool concerns_file(const Error& error) noexcept;

/// Calls the reader's member for the parameter. Errors are the reader's. A key that may be missing is, if the reader
/// has no text for it: the parameter's initial value then.
Value read_key(Object& reader, const ParameterSpec& spec, const KeyPlace& place, const std::string& file);

/// Error 1 with this text for a decimal text above the parameter's limit.
void check_range(const ParameterSpec& spec, const Value& read, std::string_view source, std::string_view text);

/// What was read, as the property gives it: a bit string of the parameter's width, or a value of its type. Error 1 for
/// a number that the width does not hold, a negative one included.
Value converted(const ParameterSpec& spec, const Value& read);

}  // namespace vorlan
