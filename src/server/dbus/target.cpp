#include "server/dbus/target.hpp"

#include "server/dbus/names.hpp"

namespace vorlan::dbus {

namespace {

std::string_view text_or_none(const char* text) noexcept { return text != nullptr ? text : std::string_view(); }

}  // namespace

Target::Target(sd_bus_message* called) noexcept
    : call(called),
      path(text_or_none(sd_bus_message_get_path(called))),
      interface(text_or_none(sd_bus_message_get_interface(called))),
      member(text_or_none(sd_bus_message_get_member(called))) {}

bool Target::introspects() const noexcept { return is_for(kIntrospectable) && member == "Introspect"; }

bool Target::uses_properties() const noexcept {
  return interface == kProperties || (interface.empty() && (member == "Get" || member == "Set" || member == "GetAll"));
}

void Target::refuse_method() const {
  throw Refusal{SD_BUS_ERROR_UNKNOWN_METHOD, "No method " + std::string(member) + " of " + std::string(interface) +
                                                 " at " + std::string(path) + "."};
}

PropertyCall::PropertyCall(const Target& target) : all(target.member == "GetAll"), sets(target.member == "Set") {
  if (!all && !sets && target.member != "Get") target.refuse_method();
  require_signature(target.call, all ? "s" : sets ? "ssv" : "ss");
  interface = read_text(target.call);
  if (!all) name = read_text(target.call);
}

void PropertyCall::refuse(bool read_only) const {
  if (read_only) throw Refusal{SD_BUS_ERROR_PROPERTY_READ_ONLY, name + " is read only."};
  throw Refusal{SD_BUS_ERROR_UNKNOWN_PROPERTY, "No property " + name + " of " + interface + "."};
}

void PropertyCall::refuse_interface() const {
  throw Refusal{SD_BUS_ERROR_UNKNOWN_INTERFACE, "No interface " + interface + " here."};
}

}  // namespace vorlan::dbus
