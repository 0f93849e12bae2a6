// Type libraries: what development environments know of the classes before they run.
#pragma once

#include <filesystem>

#include "automation/registry.hpp"
#include "server/com/com_pointer.hpp"

namespace vorlan::com {

inline constexpr WORD kLibraryMajor = 1;
inline constexpr WORD kLibraryMinor = 0;

/// Writes the library of one server: for every class its members as a dispatch interface "_SB_Sector", and the class.
void write_type_library(const std::filesystem::path& file, std::string_view server,
                        std::span<const Registry::Class> classes);

/// Empty if it is not registered.
ComPointer<ITypeLib> registered_type_library(std::string_view server);

}  // namespace vorlan::com
