// What the server process holds: its classes, its clients, and the objects that it has handed out.
#pragma once

#include <unordered_map>

#include "automation/registry.hpp"
#include "server/com/client.hpp"
#include "server/com/com_pointer.hpp"
#include "server/com/ids.hpp"

namespace vorlan::com {

class ServedObject;

/// The numbers of one class.
struct ClassIds {
  MemberIds members;
  /// Of the members as the type library has them, which clients ask for that were compiled with it; null for a class
  /// that is in no library.
  IID interface_id;
};

class Host final : private Directory {
 public:
  Host(const Registry& registry, Client::MakePlatform make_platform);
  Host(const Host&) = delete;
  Host& operator=(const Host&) = delete;
  ~Host() = default;

  [[nodiscard]] Clients& clients() noexcept { return clients_; }
  const ClassIds& ids_of(const ClassInfo& info);
  /// What the type library says of a class under one of its numbers; empty if the library is not registered.
  ComPointer<ITypeInfo> type_info(const ClassInfo& info, Uuid (*number)(std::string_view prog_id));

  void add(ServedObject& face);
  void add_object(ServedObject& face, const Object& object);
  void remove(ServedObject& face, const Object* object) noexcept;

  /// Set when a client has ended or the last object or lock is gone.
  [[nodiscard]] HANDLE wake() const noexcept { return wake_.get(); }
  /// Gives up a reference to the process; the server's own is left at the end.
  void release_process() noexcept;
  /// Lets go of what clients have left behind that are no more.
  void clear_up();

 private:
  Ref<Object> object_of(IUnknown* unknown, Client& client) override;
  IDispatch* face_of(const Ref<Object>& object, Client& client) override;

  struct Closing {
    void operator()(HANDLE handle) const noexcept { CloseHandle(handle); }
  };

  const Registry& registry_;
  std::unique_ptr<std::remove_pointer_t<HANDLE>, Closing> wake_;
  Clients clients_;
  std::mutex mutex_;
  std::unordered_map<const IUnknown*, ServedObject*> faces_;  // by what each answers to IUnknown with
  std::unordered_map<const Object*, ServedObject*> by_object_;
  std::unordered_map<const ClassInfo*, ClassIds> ids_;
  std::unordered_map<std::string_view, ComPointer<ITypeLib>> libraries_;
};

}  // namespace vorlan::com
