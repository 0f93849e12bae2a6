#include "server/dbus/client_object.hpp"

#include <array>
#include <system_error>

#include "automation/error.hpp"
#include "server/dbus/names.hpp"
#include "server/dbus/wire_error.hpp"

namespace vorlan::dbus {

namespace {

constexpr const char* kCalling = "call of a client's object";
/// The bus library takes no message with more before its values.
constexpr std::size_t kLongestPath = 60'000;

struct Answer {
  Pump::Wait wait;
  Message message;
};

int take_answer(sd_bus_message* message, void* answer, sd_bus_error*) noexcept {
  auto& taken = *static_cast<Answer*>(answer);
  taken.message = hold(message);
  taken.wait.finish();
  return 1;
}

}  // namespace

const char* text_of(Access access) noexcept {
  constexpr std::array kTexts{"Get", "Let", "Set", "Call"};
  return kTexts[static_cast<std::size_t>(access)];
}

Ref<Object> ClientObject::of(Clients& clients, const Reference& name) {
  const auto known = clients.objects.find({name.service, name.path});
  if (known != clients.objects.end()) return Ref<Object>(known->second);
  if (sd_bus_service_name_is_valid(name.service.c_str()) == 0) {
    throw Error(ErrorNumber::TypeMismatch, {}, "\"" + name.service + "\" is no bus name");
  }
  if (name.path.size() > kLongestPath) throw Error(ErrorNumber::TypeMismatch, {}, "a path too long");
  return Ref<Object>::adopt(new ClientObject(clients, name));
}

ClientObject::ClientObject(Clients& clients, const Reference& name) : clients_(clients), name_(name) {
  clients_.objects.emplace(std::pair(name.service, name.path), this);
}

ClientObject::~ClientObject() { clients_.objects.erase({name_.service, name_.path}); }

Value ClientObject::invoke(std::string_view member, Access access, std::span<Value> arguments) {
  // What runs until the answer comes may let go of the object.
  const Ref<Object> held(this);
  const std::string name(member);
  // The library knows of automation errors alone; nor is it the caller of the library who did what is refused here.
  try {
    return ask(name, access, arguments);
  } catch (const Refusal& refusal) {
    throw Error(kAutomationError, source_of(name), refusal.text);
  } catch (const std::system_error& error) {
    throw Error(kAutomationError, source_of(name), error.what());
  }
}

Value ClientObject::ask(const std::string& name, Access access, std::span<Value> arguments) {
  clients_.pump.require_patience();
  const Message call = new_call(clients_.bus, name_.service.c_str(), name_.path.c_str(), kObjectInterface, "Invoke");
  Writer writer(call.get(), clients_.references);
  writer.append(ValueType::String, name);
  writer.append(ValueType::String, text_of(access));
  writer.append_all(arguments);

  Answer answer;
  sd_bus_slot* made = nullptr;
  check(sd_bus_call_async(clients_.bus, &made, call.get(), &take_answer, &answer, UINT64_MAX), kCalling);
  const Slot slot(made);
  clients_.pump.until(answer.wait);

  sd_bus_message* reply = answer.message.get();
  if (sd_bus_message_is_method_error(reply, nullptr) > 0) throw read_error(reply, source_of(name));
  const bool changes = sd_bus_message_has_signature(reply, "vav") > 0;
  if (!changes && sd_bus_message_has_signature(reply, "v") == 0) {
    throw Error(ErrorNumber::TypeMismatch, source_of(name), "Invoke returns \"vav\"");
  }
  Value result = read_value(reply, clients_.references);
  if (changes) {
    check(sd_bus_message_enter_container(reply, 'a', "v"), kCalling);
    Value::Array changed = read_values(reply, clients_.references);
    for (std::size_t i = 0; i < std::min(changed.size(), arguments.size()); ++i) arguments[i] = std::move(changed[i]);
  }
  return result;
}

}  // namespace vorlan::dbus
