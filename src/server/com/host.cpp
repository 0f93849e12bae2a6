#include "server/com/host.hpp"

#include "automation/error.hpp"
#include "server/com/com_error.hpp"
#include "server/com/foreign_object.hpp"
#include "server/com/guid.hpp"
#include "server/com/served_object.hpp"
#include "server/com/type_library.hpp"

namespace vorlan::com {

namespace {

HANDLE new_event() {
  HANDLE event = CreateEventW(nullptr, FALSE, FALSE, nullptr);
  if (event == nullptr) check_status(static_cast<LSTATUS>(GetLastError()), "event");
  return event;
}

}  // namespace

Host::Host(const Registry& registry, Client::MakePlatform make_platform)
    : registry_(registry), wake_(new_event()), clients_(*this, std::move(make_platform), wake_.get()) {}

void Host::release_process() noexcept {
  if (CoReleaseServerProcess() <= 1) SetEvent(wake());
}

const ClassIds& Host::ids_of(const ClassInfo& info) {
  const std::scoped_lock guard(mutex_);
  const auto known = ids_.find(&info);
  if (known != ids_.end()) return known->second;
  const Registry::Class* found = registry_.find(info.name());
  const IID interface_id = found != nullptr ? guid_of(members_uuid(found->prog_id())) : IID_NULL;
  return ids_.emplace(&info, ClassIds{MemberIds(info), interface_id}).first->second;
}

ComPointer<ITypeInfo> Host::type_info(const ClassInfo& info, Uuid (*number)(std::string_view)) {
  const Registry::Class* found = registry_.find(info.name());
  if (found == nullptr) return {};
  const std::scoped_lock guard(mutex_);
  ComPointer<ITypeLib>& library = libraries_[found->server];
  if (!library) library = registered_type_library(found->server);
  ComPointer<ITypeInfo> members;
  if (library) library->GetTypeInfoOfGuid(guid_of(number(found->prog_id())), members.out());
  return members;
}

void Host::add(ServedObject& face) {
  const std::scoped_lock guard(mutex_);
  faces_.emplace(static_cast<IDispatch*>(&face), &face);
}

void Host::add_object(ServedObject& face, const Object& object) {
  const std::scoped_lock guard(mutex_);
  by_object_[&object] = &face;
}

void Host::remove(ServedObject& face, const Object* object) noexcept {
  const std::scoped_lock guard(mutex_);
  faces_.erase(static_cast<IDispatch*>(&face));
  const auto found = by_object_.find(object);
  // Another face may have taken the place while this one was going.
  if (found != by_object_.end() && found->second == &face) by_object_.erase(found);
}

Ref<Object> Host::object_of(IUnknown* unknown, Client& client) {
  if (unknown == nullptr) return {};
  ServedObject* own = nullptr;
  {
    const std::scoped_lock guard(mutex_);
    const auto found = faces_.find(unknown);
    if (found != faces_.end()) own = found->second;
  }
  return own != nullptr ? own->object(client) : foreign_object_of(*unknown, client);
}

IDispatch* Host::face_of(const Ref<Object>& object, Client& client) {
  if (!object) return nullptr;
  if (const auto* foreign = dynamic_cast<ForeignObject*>(object.get())) {
    return ComPointer<IDispatch>::sharing(foreign->dispatch()).detach();
  }
  const ClassIds& ids = ids_of(ServedObject::info_of(*object));
  const std::scoped_lock guard(mutex_);
  const auto known = by_object_.find(object.get());
  if (known != by_object_.end() && known->second->add_reference_if_alive()) return known->second;
  auto* face = new ServedObject(*this, client, object, ids);
  faces_.emplace(static_cast<IDispatch*>(face), face);
  by_object_[object.get()] = face;
  return face;
}

void Host::clear_up() {
  for (const Client* client : clients_.ended()) {
    std::vector<ComPointer<IDispatch>> left;
    {
      const std::scoped_lock guard(mutex_);
      for (const auto& [unknown, face] : faces_) {
        if (face->is_of(*client) && face->add_reference_if_alive()) left.emplace_back(face);
      }
    }
    for (const auto& face : left) CoDisconnectObject(face.get(), 0);
  }
}

}  // namespace vorlan::com
