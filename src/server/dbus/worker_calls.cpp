// What a worker answers, call by call.
#include <algorithm>
#include <array>
#include <utility>

#include "automation/class_info.hpp"
#include "automation/error.hpp"
#include "server/dbus/introspection.hpp"
#include "server/dbus/names.hpp"
#include "server/dbus/wire_text.hpp"
#include "server/dbus/worker.hpp"

namespace vorlan::dbus {

namespace {

constexpr std::string_view kWorkerMembers =
    R"(  <method name="Cancel"><arg type="u" name="cancelled" direction="out"/></method>
  <property name="Objects" type="u" access="read">
   <annotation name="org.freedesktop.DBus.Property.EmitsChangedSignal" value="false"/>
  </property>
)";

Access access_of(const std::string& name) {
  for (const Access access : {Access::Get, Access::Let, Access::Set, Access::Call}) {
    if (equals_ignoring_case(name, text_of(access))) return access;
  }
  throw Refusal{SD_BUS_ERROR_INVALID_ARGS, "\"" + name + "\" is none of Get, Let, Set and Call."};
}

/// Whether a value is or holds an object, which would be given a path by being shown.
bool has_object(const Value& value) noexcept {
  if (const auto* values = value.as<Value::Array>()) return std::any_of(values->begin(), values->end(), has_object);
  return value.is(ValueType::Object);
}

}  // namespace

bool Worker::dispatch_at_once(const Target& target) {
  if (target.introspects()) {
    introspect(target);
    return true;
  }
  if (target.path == kRootPath && target.is_for(kWorkerInterface) && target.member == "Cancel") {
    require_signature(target.call, "");
    reply_with(target.call, "u", pump_.cancel());
    return true;
  }
  return false;
}

void Worker::dispatch(const Target& target) {
  if (target.path == kRootPath) return call_root(target);
  // Held: the call itself may release it.
  const Ref<Object> object(objects_.find(target.path));
  if (!object) throw Refusal{SD_BUS_ERROR_UNKNOWN_OBJECT, "There is no object " + std::string(target.path) + " here."};
  if (target.uses_properties()) return use_properties(target, *object);
  if (const ClassInfo* info = object->class_info()) {
    const ClassInterface& interface = interfaces_.of(*info);
    const BusMethod* method = target.is_for(interface.name()) ? interface.method(target.member) : nullptr;
    if (method != nullptr) return call_method(target, *object, *method);
  }
  if (!target.is_for(kObjectInterface)) target.refuse_method();
  if (target.member == "Invoke") return invoke(target, *object);
  if (target.member != "Release") target.refuse_method();
  require_signature(target.call, "");
  objects_.release(target.path);
  reply_with(target.call, "");
}

void Worker::introspect(const Target& target) {
  require_signature(target.call, "");
  std::string interfaces;
  std::vector<std::string> children;
  if (Object* object = objects_.find(target.path)) {
    if (const ClassInfo* info = object->class_info()) interfaces = interfaces_.of(*info).xml();
    interfaces += object_interface_xml();
  } else {
    std::vector<std::string> paths = objects_.paths();
    paths.emplace_back(kRootPath);
    children = children_of(target.path, paths);
    if (target.path == kRootPath) {
      interfaces = interface_xml(kWorkerInterface, std::string(kCreateXml).append(kWorkerMembers));
    } else if (children.empty()) {
      throw Refusal{SD_BUS_ERROR_UNKNOWN_OBJECT, "There is no object " + std::string(target.path) + " here."};
    }
  }
  reply_with(target.call, "s", introspection(interfaces, children).c_str());
}

void Worker::call_root(const Target& target) {
  if (target.uses_properties()) return use_root_properties(target);
  if (!target.is_for(kWorkerInterface) || target.member != "Create") target.refuse_method();
  require_signature(target.call, "s");
  const Reference name = name_of(registry_.create(read_text(target.call), platform_));
  reply_with(target.call, "so", name.service.c_str(), name.path.c_str());
}

void Worker::use_root_properties(const Target& target) {
  const auto count = static_cast<std::uint32_t>(objects_.size());
  const PropertyCall wanted(target);
  const bool own = wanted.interface.empty() || wanted.interface == kWorkerInterface;
  if (!own) wanted.refuse_interface();
  if (wanted.all) return reply_with(target.call, "a{sv}", 1U, "Objects", "u", count);
  const bool known = wanted.name == "Objects";
  if (!known || wanted.sets) wanted.refuse(known);
  reply_with(target.call, "v", "u", count);
}

template <class Function>
void Worker::use(const Target& target, const Object& object, std::string_view member, Function&& function) {
  const auto source = [&] {
    const ClassInfo* info = object.class_info();
    return std::string(info != nullptr ? info->name() : "Object").append(".").append(member);
  };
  const Message reply = new_return(target.call);
  try {
    function(reply.get());
  } catch (Error& error) {
    // The library may have made something else of the error that ended a wait.
    if (pump_.interrupted() && error.number() != kInterrupted) throw interrupt(source());
    if (!error.is(ErrorNumber::Failed)) error.set_source_if_empty(source());
    throw;
  }
  if (pump_.interrupted()) throw interrupt(source());
  send_reply(target.call, reply.get());
}

void Worker::use_properties(const Target& target, Object& object) {
  const PropertyCall wanted(target);
  if (wanted.all) return get_all(wanted, target, object);
  const ClassInfo* info = object.class_info();
  const ClassInterface* interface = info != nullptr ? &interfaces_.of(*info) : nullptr;
  const bool own = interface != nullptr && (wanted.interface.empty() || wanted.interface == interface->name());
  const MemberInfo* member = own ? interface->property(wanted.name) : nullptr;
  if (member == nullptr) {
    const bool known = wanted.interface == kObjectInterface && wanted.name == "Class";
    if (!own && !wanted.interface.empty() && wanted.interface != kObjectInterface) wanted.refuse_interface();
    if (!known || wanted.sets) wanted.refuse(known);
    return reply_with(target.call, "v", "s", class_name(object).c_str());
  }
  if (wanted.sets && !member->lets && !member->sets) wanted.refuse(true);
  use(target, object, member->name, [&](sd_bus_message* reply) {
    if (wanted.sets) {
      std::array value{read_value(target.call, *this)};
      object.invoke(member->name, assignment_of(*member, value[0]), value);
      return;
    }
    const Value value = object.invoke(member->name, Access::Get, {});
    check(sd_bus_message_open_container(reply, 'v', signature_of(member->type)), "property");
    Writer(reply, *this).append(member->type, value);
    check(sd_bus_message_close_container(reply), "property");
  });
}

void Worker::get_all(const PropertyCall& wanted, const Target& target, Object& object) {
  const std::string& interface = wanted.interface;
  const Message reply = new_return(target.call);
  Writer writer(reply.get(), *this);
  const ClassInfo* info = object.class_info();
  check(sd_bus_message_open_container(reply.get(), 'a', "{sv}"), "properties");
  if (interface == kObjectInterface || interface.empty()) {
    check(sd_bus_message_append(reply.get(), "{sv}", "Class", "s", class_name(object).c_str()), "properties");
  }
  if (info != nullptr && (interface.empty() || interface == interfaces_.of(*info).name())) {
    for (const MemberInfo* member : interfaces_.of(*info).properties()) {
      append_readable(reply.get(), writer, *member, object);
    }
  } else if (!interface.empty() && interface != kObjectInterface) {
    wanted.refuse_interface();
  }
  check(sd_bus_message_close_container(reply.get()), "properties");
  send_reply(target.call, reply.get());
}

void Worker::append_readable(sd_bus_message* reply, Writer& writer, const MemberInfo& member, Object& object) {
  if (!is_shown(member)) return;
  Value value;
  try {
    // Who looks at an object does not ask those of the script, which may not answer.
    const Pump::Impatience impatience(pump_);
    value = object.invoke(member.name, Access::Get, {});
    if (pump_.interrupted()) return;
    if (member.type != ValueType::Any) value = value.converted_to(member.type);
  } catch (const Error&) {
    return;  // One property that cannot be read now does not hide the others.
  }
  // Nor does one that the bus cannot carry, or that would leave the others little room.
  const auto* text = value.as<std::string>();
  if (text != nullptr && (text->size() > writer.room() / 2 || !is_bus_text(*text))) return;
  if (has_object(value)) return;
  check(sd_bus_message_open_container(reply, 'e', "sv"), "properties");
  check(sd_bus_message_append_basic(reply, 's', std::string(member.name).c_str()), "properties");
  check(sd_bus_message_open_container(reply, 'v', signature_of(member.type)), "properties");
  writer.append(member.type, value);
  check(sd_bus_message_close_container(reply), "properties");
  check(sd_bus_message_close_container(reply), "properties");
}

void Worker::call_method(const Target& target, Object& object, const BusMethod& method) {
  const char* given = sd_bus_message_get_signature(target.call, 1);
  if (!method.accepts(given != nullptr ? given : "")) refuse_signature(target.call, method.expected());
  const MemberInfo& member = *method.member;
  use(target, object, member.name, [&](sd_bus_message* reply) {
    std::vector<Value> arguments = read_values(target.call, *this);
    const Access access = method.assigns       ? assignment_of(member, arguments.back())
                          : member.is_method() ? Access::Call
                                               : Access::Get;
    const Value result = object.invoke(member.name, access, arguments);
    Writer writer(reply, *this);
    if (method.has_result) writer.append(member.type, result);
    for (const std::size_t i : method.by_reference) {
      writer.append(method.in[i].type, i < arguments.size() ? arguments[i] : Value());
    }
  });
}

void Worker::invoke(const Target& target, Object& object) {
  require_signature(target.call, "ssav");
  const std::string member = read_text(target.call);
  const Access access = access_of(read_text(target.call));
  check(sd_bus_message_enter_container(target.call, 'a', "v"), "arguments");
  use(target, object, member, [&](sd_bus_message* reply) {
    Value::Array arguments = read_values(target.call, *this);
    const Value result = object.invoke(member, access, arguments);
    Writer writer(reply, *this);
    writer.append(ValueType::Any, result);
    writer.append_all(arguments);
  });
}

}  // namespace vorlan::dbus
