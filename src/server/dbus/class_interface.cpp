#include "server/dbus/class_interface.hpp"

#include "server/dbus/introspection.hpp"
#include "server/dbus/names.hpp"
#include "server/dbus/wire_value.hpp"

namespace vorlan::dbus {

namespace {

constexpr const char* kSetter = "Set_";
/// The mark by which systemd's tools know a property that GetAll leaves out. Handing out an object is a change, too.
constexpr const char* kExplicit = "   <annotation name=\"org.freedesktop.systemd1.Explicit\" value=\"true\"/>\n";

std::string documentation(std::string_view summary) {
  if (summary.empty()) return {};
  return "   <annotation name=\"org.gtk.GDBus.DocString\" value=\"" + xml_attribute(summary) + "\"/>\n";
}

std::string argument_xml(const BusArgument& argument, const char* direction) {
  const std::string xml = std::string("   <arg type=\"") + signature_of(argument.type) + "\" name=\"" +
                          std::string(argument.name) + "\" direction=\"" + direction + "\"";
  if (!argument.optional) return xml + "/>\n";
  return xml + ">\n " + documentation(std::string("optional, ") + signature_of(*argument.optional)) + "   </arg>\n";
}

std::string method_xml(const BusMethod& method) {
  std::string xml = "  <method name=\"" + method.name + "\">\n";
  for (const BusArgument& argument : method.in) xml += argument_xml(argument, "in");
  if (method.has_result) xml += argument_xml({"result", method.member->type}, "out");
  for (const std::size_t i : method.by_reference) xml += argument_xml({method.in[i].name, method.in[i].type}, "out");
  return xml + documentation(method.member->summary) + "  </method>\n";
}

std::string property_xml(const MemberInfo& member) {
  const bool writable = member.lets || member.sets;
  const char* access = !writable ? "read" : member.gets ? "readwrite" : "write";
  return std::string("  <property name=\"") + std::string(member.name) + "\" type=\"" + signature_of(member.type) +
         "\" access=\"" + access + "\">\n" +
         "   <annotation name=\"org.freedesktop.DBus.Property.EmitsChangedSignal\" value=\"false\"/>\n" +
         (is_shown(member) ? "" : kExplicit) + documentation(member.summary) + "  </property>\n";
}

}  // namespace

bool is_bus_property(const MemberInfo& member) noexcept {
  return !member.is_method() && member.required_parameters() == 0;
}

bool is_shown(const MemberInfo& member) noexcept {
  return member.gets && !member.get_changes && member.type != ValueType::Object;
}

Access assignment_of(const MemberInfo& member, const Value& value) noexcept {
  if (!member.lets) return Access::Set;
  return member.sets && value.is(ValueType::Object) ? Access::Set : Access::Let;
}

bool BusMethod::accepts(std::string_view given) const noexcept {
  // An optional argument is a variant: one letter of the signature each.
  return given.size() <= signature.size() && signature.size() - given.size() <= optional &&
         std::string_view(signature).starts_with(given);
}

std::string BusMethod::expected() const {
  if (optional == 0) return signature;
  return std::string(signature).insert(signature.size() - optional, "[") + "]";
}

ClassInterface::ClassInterface(std::string name, const ClassInfo& info)
    : name_(std::move(name)), summary_(info.summary()) {
  for (const MemberInfo& member : info.members()) {
    if (is_bus_property(member)) {
      properties_.push_back(&member);
      properties_by_name_.emplace(member.name, &member);
      if (member.parameters.empty()) continue;
    }
    if (member.gets || member.calls) add_method(member, false);
    if (member.lets || member.sets) add_method(member, true);
  }
}

void ClassInterface::add_method(const MemberInfo& member, bool assigns) {
  BusMethod& method = *methods_.emplace_back(std::make_unique<BusMethod>());
  method.member = &member;
  method.name = (assigns ? kSetter : "") + std::string(member.name);
  method.assigns = assigns;
  method.has_result = !assigns && member.type != ValueType::Empty;
  for (const ParameterInfo& parameter : member.parameters) {
    if (parameter.by_reference) method.by_reference.push_back(method.in.size());
    const bool optional = parameter.optional;
    method.in.push_back({parameter.name, optional ? ValueType::Any : parameter.type,
                         optional ? std::optional(parameter.type) : std::nullopt});
    method.optional = parameter.optional ? method.optional + 1 : 0;
  }
  if (assigns) {
    method.in.push_back({"value", member.type});
    method.optional = 0;
  }
  for (const BusArgument& argument : method.in) method.signature += signature_of(argument.type);
  methods_by_name_.emplace(method.name, &method);
}

const MemberInfo* ClassInterface::property(std::string_view name) const noexcept {
  const auto found = properties_by_name_.find(name);
  return found == properties_by_name_.end() ? nullptr : found->second;
}

const BusMethod* ClassInterface::method(std::string_view name) const noexcept {
  const auto found = methods_by_name_.find(name);
  return found == methods_by_name_.end() ? nullptr : found->second;
}

std::string ClassInterface::xml() const {
  std::string members = documentation(summary_);
  for (const auto& method : methods_) members += method_xml(*method);
  for (const MemberInfo* member : properties_) members += property_xml(*member);
  return interface_xml(name_, members);
}

const ClassInterface& ClassInterfaces::of(const ClassInfo& info) {
  const auto known = made_.find(&info);
  if (known != made_.end()) return known->second;
  const Registry::Class* listed = registry_.find(info.name());
  const bool own = listed != nullptr && &listed->info() == &info;
  // A class that scripts cannot create still has a name.
  std::string name = own ? listed->prog_id() : "Vorlan." + std::string(info.name());
  return made_.try_emplace(&info, std::move(name), info).first->second;
}

}  // namespace vorlan::dbus
