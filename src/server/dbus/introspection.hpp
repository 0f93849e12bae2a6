// Introspection data: what the bus's tools show of an object.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vorlan::dbus {

/// Text inside an XML attribute.
std::string xml_attribute(std::string_view text);

/// A whole document: the interfaces given, the standard ones, and the names of the paths below.
std::string introspection(std::string_view interfaces, std::span<const std::string> children = {});

/// The interface that every object has beside its class's own.
std::string_view object_interface_xml() noexcept;

/// Names of the next elements of those paths that lie below `path`, each once.
std::vector<std::string> children_of(std::string_view path, std::span<const std::string> paths);

}  // namespace vorlan::dbus
