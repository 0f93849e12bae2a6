// What the front process answers by itself: what there is to create.
#include <array>

#include "server/dbus/front.hpp"
#include "server/dbus/introspection.hpp"
#include "server/dbus/names.hpp"

namespace vorlan::dbus {

namespace {

constexpr std::string_view kServerMembers =
    R"xml(  <method name="Classes"><arg type="a(ss)" name="classes" direction="out"/></method>
  <method name="OpenSession"><arg type="u" name="process" direction="in"/><arg type="s" name="name" direction="in"/>
   <arg type="s" name="service" direction="out"/></method>
  <method name="CloseSession"><arg type="s" name="name" direction="in"/></method>
)xml";

}  // namespace

void Front::dispatch(sd_bus_message* call) {
  const Target target(call);
  const bool own = target.path == kRootPath && target.is_for(kServerInterface);
  const bool creates = own && target.member == "Create";
  const bool opens = own && target.member == "OpenSession";
  const bool closes = own && target.member == "CloseSession";
  // All else has no effect but its answer.
  if (!creates && !opens && !closes && sd_bus_message_get_expect_reply(call) == 0) return;
  require_owner(call);
  if (creates) return create(call);
  if (opens) return open_session(call);
  if (closes) return close_session(call);
  if (own && target.member == "Classes") return list_classes(call);
  if (target.introspects()) return introspect(target);
  if (target.uses_properties()) return use_properties(target);
  throw Refusal{SD_BUS_ERROR_UNKNOWN_METHOD, "No method " + std::string(target.member) + " at " +
                                                 std::string(target.path) +
                                                 "; objects are made by Vorlan.Server.Create at /Vorlan."};
}

const ClassInterface* Front::class_at(std::string_view path) {
  if (path == kRootPath || path == "/") return nullptr;
  const std::string below = std::string(kRootPath) + "/";
  const Registry::Class* listed = path.starts_with(below) ? registry_.find(path.substr(below.size())) : nullptr;
  if (listed == nullptr) throw Refusal{SD_BUS_ERROR_UNKNOWN_OBJECT, "There is no " + std::string(path) + "."};
  return &interfaces_.of(listed->info());
}

void Front::introspect(const Target& target) {
  require_signature(target.call, "");
  std::string interfaces;
  std::vector<std::string> children;
  if (const ClassInterface* shown = class_at(target.path)) {
    interfaces = shown->xml();
  } else if (target.path == kRootPath) {
    interfaces = interface_xml(kServerInterface, std::string(kCreateXml).append(kServerMembers));
    for (const Registry::Class& listed : registry_.classes()) children.emplace_back(listed.name());
  } else {
    children.emplace_back(kRootPath + 1);
  }
  reply_with(target.call, "s", introspection(interfaces, children).c_str());
}

void Front::use_properties(const Target& target) {
  const PropertyCall wanted(target);
  const ClassInterface* shown = class_at(target.path);
  const std::string own = shown != nullptr ? shown->name() : target.path == kRootPath ? kServerInterface : "";
  if (!wanted.interface.empty() && wanted.interface != own) wanted.refuse_interface();
  // A class has no values; tools ask all the same.
  if (!wanted.all) wanted.refuse(false);
  reply_with(target.call, "a{sv}", 0U);
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
