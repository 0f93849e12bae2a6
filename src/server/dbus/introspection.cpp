#include "server/dbus/introspection.hpp"

#include <set>

#include "server/dbus/names.hpp"

namespace vorlan::dbus {

namespace {

constexpr std::string_view kHead = R"(<!DOCTYPE node PUBLIC "-//freedesktop//DTD D-BUS Object Introspection 1.0//EN" )"
                                   R"("http://www.freedesktop.org/standards/dbus/1.0/introspect.dtd">
<node>
)";

constexpr std::string_view kIntrospectableMembers =
    R"(  <method name="Introspect"><arg type="s" name="data" direction="out"/></method>
)";
constexpr std::string_view kPeerMembers = R"(  <method name="Ping"/>
  <method name="GetMachineId"><arg type="s" name="id" direction="out"/></method>
)";
constexpr std::string_view kPropertiesMembers = R"(  <method name="Get">
   <arg type="s" name="interface" direction="in"/><arg type="s" name="property" direction="in"/>
   <arg type="v" name="value" direction="out"/>
  </method>
  <method name="GetAll">
   <arg type="s" name="interface" direction="in"/><arg type="a{sv}" name="properties" direction="out"/>
  </method>
  <method name="Set">
   <arg type="s" name="interface" direction="in"/><arg type="s" name="property" direction="in"/>
   <arg type="v" name="value" direction="in"/>
  </method>
)";
constexpr std::string_view kObjectMembers = R"(  <method name="Invoke">
   <arg type="s" name="member" direction="in"/><arg type="s" name="access" direction="in"/>
   <arg type="av" name="arguments" direction="in"/>
   <arg type="v" name="result" direction="out"/><arg type="av" name="arguments" direction="out"/>
  </method>
  <method name="Release"/>
  <property name="Class" type="s" access="read">
   <annotation name="org.freedesktop.DBus.Property.EmitsChangedSignal" value="const"/>
  </property>
)";

}  // namespace

std::string xml_attribute(std::string_view text) {
  std::string result;
  for (const char c : text) {
    switch (c) {
      case '&': result += "&amp;"; break;
      case '<': result += "&lt;"; break;
      case '>': result += "&gt;"; break;
      case '"': result += "&quot;"; break;
      default: result += c;
    }
  }
  return result;
}

std::string interface_xml(std::string_view name, std::string_view members) {
  std::string xml = " <interface name=\"";
  return xml.append(name).append("\">\n").append(members).append(" </interface>\n");
}

std::string introspection(std::string_view interfaces, std::span<const std::string> children) {
  std::string xml(kHead);
  xml.append(interfaces);
  xml += interface_xml(kIntrospectable, kIntrospectableMembers);
  xml += interface_xml(kPeer, kPeerMembers);
  xml += interface_xml(kProperties, kPropertiesMembers);
  for (const std::string& child : children) xml.append(" <node name=\"").append(child).append("\"/>\n");
  return xml + "</node>\n";
}

std::string object_interface_xml() { return interface_xml(kObjectInterface, kObjectMembers); }

std::vector<std::string> children_of(std::string_view path, std::span<const std::string> paths) {
  const std::string start = std::string(path == "/" ? "" : path) + "/";
  std::set<std::string> names;
  for (const std::string& below : paths) {
    if (below.starts_with(start))
      names.insert(below.substr(start.size(), below.find('/', start.size()) - start.size()));
  }
  return {names.begin(), names.end()};
}

}  // namespace vorlan::dbus
