// The objects of a worker's client: which path names which.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "automation/object.hpp"

namespace vorlan::dbus {

/// Holds each object until it is released. An object has one path, however often it is handed out:
/// "/Vorlan/SB_Ses_MsgSessionClose/17". A path is not given out a second time.
class ObjectTable {
 public:
  const std::string& path_of(const Ref<Object>& object);
  /// Null if there is no object of that path.
  [[nodiscard]] Object* find(std::string_view path) const noexcept;
  bool release(std::string_view path);
  [[nodiscard]] std::size_t size() const noexcept { return objects_.size(); }
  [[nodiscard]] std::vector<std::string> paths() const;

 private:
  struct Hash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const noexcept { return std::hash<std::string_view>{}(text); }
  };

  std::unordered_map<std::string, Ref<Object>, Hash, std::equal_to<>> objects_;
  std::unordered_map<const Object*, const std::string*> paths_;
  std::uint64_t last_ = 0;
};

}  // namespace vorlan::dbus
