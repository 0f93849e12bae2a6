// What a worker answers, call by call.
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

constexpr std::string_view kWorkerXml = R"( <interface name="Vorlan.Worker">
  <method name="Create"><arg type="s" name="class" direction="in"/><arg type="s" name="service" direction="out"/>
   <arg type="o" name="path" direction="out"/></method>
  <method name="Cancel"><arg type="u" name="cancelled" direction="out"/></method>
  <property name="Objects" type="u" access="read"/>
 </interface>
)";

std::string_view text_or_none(const char* text) noexcept { return text != nullptr ? text : std::string_view(); }

Access access_of(const std::string& name) {
  for (const Access access : {Access::Get, Access::Let, Access::Set, Access::Call}) {
    if (equals_ignoring_case(name, text_of(access))) return access;
  }
  throw Refusal{SD_BUS_ERROR_INVALID_ARGS, "\"" + name + "\" is none of Get, Let, Set and Call."};
}

void reply_with(sd_bus_message* call, const char* signature, auto... values) {
  const Message reply = new_return(call);
  if (*signature != '\0') check(sd_bus_message_append(reply.get(), signature, values...), "reply");
  send_reply(call, reply.get());
}

}  // namespace

void Worker::Target::refuse_method() const {
  throw Refusal{SD_BUS_ERROR_UNKNOWN_METHOD, "No method " + std::string(member) + " of " + std::string(interface) +
                                                 " at " + std::string(path) + "."};
}

Worker::Target Worker::target_of(sd_bus_message* call) {
  return {call, text_or_none(sd_bus_message_get_path(call)), text_or_none(sd_bus_message_get_interface(call)),
          text_or_none(sd_bus_message_get_member(call))};
}

bool Worker::dispatch_at_once(const Target& target) {
  if (target.interface == kIntrospectable && target.member == "Introspect") {
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
  if (target.interface == kProperties) return use_properties(target, *object);
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
      interfaces = kWorkerXml;
    } else if (children.empty()) {
      throw Refusal{SD_BUS_ERROR_UNKNOWN_OBJECT, "There is no object " + std::string(target.path) + " here."};
    }
  }
  reply_with(target.call, "s", introspection(interfaces, children).c_str());
}

void Worker::call_root(const Target& target) {
  const auto count = static_cast<std::uint32_t>(objects_.size());
  if (target.is_for(kWorkerInterface) && target.member == "Create") {
    require_signature(target.call, "s");
    const Reference name = name_of(registry_.create(read_text(target.call), platform_));
    return reply_with(target.call, "so", name.service.c_str(), name.path.c_str());
  }
  if (target.interface != kProperties) target.refuse_method();
  if (target.member == "GetAll") {
    require_signature(target.call, "s");
    if (read_text(target.call) != kWorkerInterface) return reply_with(target.call, "a{sv}", 0U);
    return reply_with(target.call, "a{sv}", 1U, "Objects", "u", count);
  }
  if (target.member != "Get") target.refuse_method();
  require_signature(target.call, "ss");
  const std::string interface = read_text(target.call);
  if (interface != kWorkerInterface || read_text(target.call) != "Objects") {
    throw Refusal{SD_BUS_ERROR_UNKNOWN_PROPERTY, "A worker has the property Objects."};
  }
  reply_with(target.call, "v", "u", count);
}

void Worker::use_properties(const Target& target, Object& object) {
  if (target.member == "GetAll") return get_all(target, object);
  const bool sets = target.member == "Set";
  if (!sets && target.member != "Get") target.refuse_method();
  require_signature(target.call, sets ? "ssv" : "ss");
  const char* wanted = nullptr;
  const char* name = nullptr;
  check(sd_bus_message_read(target.call, "ss", &wanted, &name), "property");
  if (wanted == std::string_view(kObjectInterface) && name == std::string_view("Class") && !sets) {
    return reply_with(target.call, "v", "s", class_name(object).c_str());
  }
  const ClassInfo* info = object.class_info();
  const ClassInterface* interface = info != nullptr ? &interfaces_.of(*info) : nullptr;
  const bool known = interface != nullptr && (*wanted == '\0' || interface->name() == wanted);
  const MemberInfo* member = known ? interface->property(name) : nullptr;
  if (member == nullptr) {
    throw Refusal{SD_BUS_ERROR_UNKNOWN_PROPERTY, std::string("No property ") + name + " of " + wanted + "."};
  }
  const Message reply = new_return(target.call);
  if (sets) {
    if (!member->lets && !member->sets)
      throw Refusal{SD_BUS_ERROR_PROPERTY_READ_ONLY, std::string(name) + " is read only."};
    std::array value{read_value(target.call, *this)};
    object.invoke(member->name, assignment_of(*member, value[0]), value);
  } else {
    const char* signature = signature_of(member->type);
    const Value value = object.invoke(member->name, Access::Get, {});
    check(sd_bus_message_open_container(reply.get(), 'v', signature), "property");
    append_value(reply.get(), member->type, value, *this);
    check(sd_bus_message_close_container(reply.get()), "property");
  }
  send_reply(target.call, reply.get());
}

void Worker::get_all(const Target& target, Object& object) {
  require_signature(target.call, "s");
  const std::string wanted = read_text(target.call);
  const Message reply = new_return(target.call);
  const ClassInfo* info = object.class_info();
  check(sd_bus_message_open_container(reply.get(), 'a', "{sv}"), "properties");
  if (wanted == kObjectInterface || wanted.empty()) {
    check(sd_bus_message_append(reply.get(), "{sv}", "Class", "s", class_name(object).c_str()), "properties");
  }
  if (info != nullptr && (wanted.empty() || wanted == interfaces_.of(*info).name())) {
    for (const MemberInfo* member : interfaces_.of(*info).properties()) append_readable(reply.get(), *member, object);
  } else if (!wanted.empty() && wanted != kObjectInterface) {
    throw Refusal{SD_BUS_ERROR_UNKNOWN_INTERFACE, "No interface " + wanted + " here."};
  }
  check(sd_bus_message_close_container(reply.get()), "properties");
  send_reply(target.call, reply.get());
}

void Worker::append_readable(sd_bus_message* reply, const MemberInfo& member, Object& object) {
  if (!member.gets || member.get_changes) return;
  Value value;
  try {
    value = object.invoke(member.name, Access::Get, {});
    if (member.type != ValueType::Any) value = value.converted_to(member.type);
  } catch (const Error&) {
    return;  // One property that cannot be read now does not hide the others.
  }
  if (const auto* text = value.as<std::string>(); text != nullptr && !is_bus_text(*text)) return;
  check(sd_bus_message_open_container(reply, 'e', "sv"), "properties");
  check(sd_bus_message_append_basic(reply, 's', std::string(member.name).c_str()), "properties");
  check(sd_bus_message_open_container(reply, 'v', signature_of(member.type)), "properties");
  append_value(reply, member.type, value, *this);
  check(sd_bus_message_close_container(reply), "properties");
  check(sd_bus_message_close_container(reply), "properties");
}

void Worker::call_method(const Target& target, Object& object, const BusMethod& method) {
  const char* given = sd_bus_message_get_signature(target.call, 1);
  if (!method.accepts(text_or_none(given))) refuse_signature(target.call, method.signature);
  std::vector<Value> arguments = read_values(target.call, *this);
  const MemberInfo& member = *method.member;
  const Access access = method.assigns       ? assignment_of(member, arguments.back())
                        : member.is_method() ? Access::Call
                                             : Access::Get;
  const Value result = object.invoke(member.name, access, arguments);
  const Message reply = new_return(target.call);
  if (method.has_result) append_value(reply.get(), member.type, result, *this);
  for (const std::size_t i : method.by_reference) {
    append_value(reply.get(), method.in[i].type, i < arguments.size() ? arguments[i] : Value(), *this);
  }
  send_reply(target.call, reply.get());
}

void Worker::invoke(const Target& target, Object& object) {
  require_signature(target.call, "ssav");
  const std::string member = read_text(target.call);
  const Access access = access_of(read_text(target.call));
  check(sd_bus_message_enter_container(target.call, 'a', "v"), "arguments");
  Value::Array arguments = read_values(target.call, *this);
  const Value result = object.invoke(member, access, arguments);
  const Message reply = new_return(target.call);
  append_value(reply.get(), ValueType::Any, result, *this);
  append_values(reply.get(), arguments, *this);
  send_reply(target.call, reply.get());
}

}  // namespace vorlan::dbus
