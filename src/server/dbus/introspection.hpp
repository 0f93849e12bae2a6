// Introspection data: what the bus's tools show of an object.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vorlan::dbus {

/// Text inside an XML attribute.
std::string xml_attribute(std::string_view text);

/// The method that the front process and the workers have in common.
inline constexpr std::string_view kCreateXml =
    R"(  <method name="Create"><arg type="s" name="class" direction="in"/><arg type="s" name="service" direction="out"/>
   <arg type="o" name="path" direction="out"/></method>
)";

std::string interface_xml(std::string_view name, std::string_view members);

/// A whole document: the interfaces given, the standard ones, and the names of the paths below.
std::string introspection(std::string_view interfaces, std::span<const std::string> children = {});

/// The interface that every object has beside its class's own.
std::string object_interface_xml();

/// Names of the next elements of those paths that lie below `path`, each once.
std::vector<std::string> children_of(std::string_view path, std::span<const std::string> paths);

}  // namespace vorlan::dbus
