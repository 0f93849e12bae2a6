// The one list of classes that scripts can create.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "automation/class_info.hpp"

namespace vorlan {

struct Platform;

/// One public class. Each folder offers its entries as a constexpr table.
struct ClassEntry {
  std::string_view name;                      ///< without the server's name
  const ClassInfo& (*info)();                 ///< made on first use
  Ref<Object> (*create)(Platform& platform);  ///< a new object of the class
};

/// A table of classes under the name of the server that offers them.
struct ClassTable {
  std::string_view server;
  std::span<const ClassEntry> classes;
};

/// Finds classes by name; a name may be preceded by its server's, as in "Vorlan.SB_Sector".
class Registry {
 public:
  explicit Registry(std::span<const ClassTable> tables);

  struct Class {
    std::string_view server;
    const ClassEntry* entry;
    [[nodiscard]] std::string_view name() const noexcept { return entry->name; }
    [[nodiscard]] const ClassInfo& info() const { return entry->info(); }
    [[nodiscard]] std::string prog_id() const { return std::string(server) + "." + std::string(entry->name); }
  };

  /// All classes, sorted by name without regard to case.
  [[nodiscard]] std::span<const Class> classes() const noexcept { return classes_; }
  /// Null if there is no such class.
  [[nodiscard]] const Class* find(std::string_view name) const noexcept;
  /// Error 429 if there is no such class.
  [[nodiscard]] const Class& at(std::string_view name) const;
  [[nodiscard]] Ref<Object> create(std::string_view name, Platform& platform) const;

 private:
  std::vector<Class> classes_;
};

}  // namespace vorlan
