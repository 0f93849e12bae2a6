// What the front process answers by itself: what there is to create.
#include <array>

#include "server/dbus/front.hpp"
#include "server/dbus/introspection.hpp"
#include "server/dbus/names.hpp"

namespace vorlan::dbus {

namespace {

constexpr std::string_view kServerXml = R"xml( <interface name="Vorlan.Server">
  <method name="Create"><arg type="s" name="class" direction="in"/><arg type="s" name="service" direction="out"/>
   <arg type="o" name="path" direction="out"/></method>
  <method name="Classes"><arg type="a(ss)" name="classes" direction="out"/></method>
  <method name="OpenSession"><arg type="u" name="process" direction="in"/><arg type="s" name="name" direction="in"/>
   <arg type="s" name="service" direction="out"/></method>
 </interface>
)xml";

}  // namespace

void Front::dispatch(sd_bus_message* call) {
  require_owner(call);
  const std::string path = sd_bus_message_get_path(call);
  if (sd_bus_message_is_method_call(call, kIntrospectable, "Introspect") > 0) return introspect(call, path);
  if (sd_bus_message_is_method_call(call, kProperties, "GetAll") > 0) {
    // Classes have no values; tools ask all the same.
    require_signature(call, "s");
    const Message reply = new_return(call);
    check(sd_bus_message_append(reply.get(), "a{sv}", 0U), "properties");
    return send_reply(call, reply.get());
  }
  const char* interface = sd_bus_message_get_interface(call);
  const bool own = path == kRootPath && (interface == nullptr || interface == std::string_view(kServerInterface));
  const std::string_view member = sd_bus_message_get_member(call);
  if (own && member == "Create") return create(call);
  if (own && member == "Classes") return list_classes(call);
  if (own && member == "OpenSession") return open_session(call);
  throw Refusal{SD_BUS_ERROR_UNKNOWN_METHOD, "No method " + std::string(member) + " at " + path +
                                                 "; objects are made by Vorlan.Server.Create at /Vorlan."};
}

void Front::introspect(sd_bus_message* call, const std::string& path) {
  require_signature(call, "");
  std::string interfaces;
  std::vector<std::string> children;
  const std::string below = std::string(kRootPath) + "/";
  if (path == kRootPath) {
    interfaces = kServerXml;
    for (const Registry::Class& listed : registry_.classes()) children.emplace_back(listed.name());
  } else if (path == "/") {
    children.emplace_back(kRootPath + 1);
  } else {
    const Registry::Class* listed = path.starts_with(below) ? registry_.find(path.substr(below.size())) : nullptr;
    if (listed == nullptr) throw Refusal{SD_BUS_ERROR_UNKNOWN_OBJECT, "There is no " + path + "."};
    interfaces = interfaces_.of(listed->info()).xml();
  }
  const Message reply = new_return(call);
  check(sd_bus_message_append(reply.get(), "s", introspection(interfaces, children).c_str()), "introspection");
  send_reply(call, reply.get());
}

void Front::list_classes(sd_bus_message* call) {
  require_signature(call, "");
  const Message reply = new_return(call);
  check(sd_bus_message_open_container(reply.get(), 'a', "(ss)"), "classes");
  for (const Registry::Class& listed : registry_.classes()) {
    const std::string summary(listed.info().summary());
    check(sd_bus_message_append(reply.get(), "(ss)", listed.prog_id().c_str(), summary.c_str()), "classes");
  }
  check(sd_bus_message_close_container(reply.get()), "classes");
  send_reply(call, reply.get());
}

}  // namespace vorlan::dbus
