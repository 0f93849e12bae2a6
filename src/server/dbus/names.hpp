// Names that the server has on the bus. Everything else is named as the class registry names it: the interface of a
// class is its programmatic identifier.
#pragma once

namespace vorlan::dbus {

inline constexpr const char* kServerName = "Vorlan.Server";       ///< bus name of the front process
inline constexpr const char* kSessionPrefix = "Vorlan.Session.";  ///< bus name of a session's worker: this and its name
inline constexpr const char* kRootPath = "/Vorlan";

inline constexpr const char* kServerInterface = "Vorlan.Server";  ///< of the front process, at the root path
inline constexpr const char* kWorkerInterface = "Vorlan.Worker";  ///< of a worker, at the root path
inline constexpr const char* kObjectInterface = "Vorlan.Object";  ///< of every object, a client's own included

/// An automation error's name is this and its number; a minus sign becomes the word Minus.
inline constexpr const char* kErrorPrefix = "Vorlan.Error.Number";

inline constexpr const char* kIntrospectable = "org.freedesktop.DBus.Introspectable";
inline constexpr const char* kProperties = "org.freedesktop.DBus.Properties";
inline constexpr const char* kPeer = "org.freedesktop.DBus.Peer";

}  // namespace vorlan::dbus
