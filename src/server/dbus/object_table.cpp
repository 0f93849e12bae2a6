#include "server/dbus/object_table.hpp"

#include "automation/class_info.hpp"
#include "server/dbus/names.hpp"

namespace vorlan::dbus {

const std::string& ObjectTable::path_of(const Ref<Object>& object) {
  const auto known = paths_.find(object.get());
  if (known != paths_.end()) return *known->second;
  const ClassInfo* info = object->class_info();
  const std::string name(info != nullptr ? info->name() : "Object");
  const auto added = objects_.emplace(kRootPath + ("/" + name) + "/" + std::to_string(++last_), object).first;
  paths_.emplace(object.get(), &added->first);
  return added->first;
}

Object* ObjectTable::find(std::string_view path) const noexcept {
  const auto found = objects_.find(path);
  return found == objects_.end() ? nullptr : found->second.get();
}

bool ObjectTable::release(std::string_view path) {
  const auto found = objects_.find(path);
  if (found == objects_.end()) return false;
  paths_.erase(found->second.get());
  // The object's own end may bring others here: the table is to be whole by then.
  const auto taken = objects_.extract(found);
  return true;
}

std::vector<std::string> ObjectTable::paths() const {
  std::vector<std::string> paths;
  for (const auto& [path, object] : objects_) paths.push_back(path);
  return paths;
}

}  // namespace vorlan::dbus
