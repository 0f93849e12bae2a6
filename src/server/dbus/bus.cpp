#include "server/dbus/bus.hpp"

#include <cerrno>
#include <stdexcept>
#include <system_error>

#include "server/dbus/wire_text.hpp"

namespace vorlan::dbus {

namespace {

constexpr std::size_t kLongestRefusal = 10'000;

}  // namespace

int check(int result, const char* doing) {
  if (result < 0) throw std::system_error(-result, std::generic_category(), doing);
  return result;
}

Bus open_session_bus() {
  sd_bus* bus = nullptr;
  const int opened = sd_bus_open_user(&bus);
  if (opened == -ENOMEDIUM) {
    throw std::runtime_error("no session bus: neither DBUS_SESSION_BUS_ADDRESS nor XDG_RUNTIME_DIR is set");
  }
  check(opened, "session bus");
  return Bus(bus);
}

std::string unique_name(sd_bus* bus) {
  const char* name = nullptr;
  check(sd_bus_get_unique_name(bus, &name), "own name on the bus");
  return name;
}

unsigned bus_owner(sd_bus* bus) {
  sd_bus_creds* got = nullptr;
  check(sd_bus_get_owner_creds(bus, SD_BUS_CREDS_EUID, &got), "owner of the bus");
  const Credentials credentials(got);
  uid_t user = 0;
  check(sd_bus_creds_get_euid(credentials.get(), &user), "owner of the bus");
  return user;
}

bool is_of_user(sd_bus* bus, const char* connection, unsigned user) {
  sd_bus_creds* got = nullptr;
  // A caller that has left meanwhile is no one's.
  if (sd_bus_get_name_creds(bus, connection, SD_BUS_CREDS_EUID, &got) < 0) return false;
  const Credentials credentials(got);
  uid_t caller = 0;
  return sd_bus_creds_get_euid(credentials.get(), &caller) >= 0 && caller == user;
}

Message hold(sd_bus_message* message) noexcept { return Message(sd_bus_message_ref(message)); }

Message new_call(sd_bus* bus, const char* service, const char* path, const char* interface, const char* member) {
  sd_bus_message* made = nullptr;
  check(sd_bus_message_new_method_call(bus, &made, service, path, interface, member), "call");
  return Message(made);
}

Message new_return(sd_bus_message* call) {
  sd_bus_message* made = nullptr;
  check(sd_bus_message_new_method_return(call, &made), "reply");
  return Message(made);
}

void send_reply(sd_bus_message* call, sd_bus_message* reply) {
  if (sd_bus_message_get_expect_reply(call) == 0) return;
  check(sd_bus_send(nullptr, reply, nullptr), "reply");
}

void send_refusal(sd_bus_message* call, const char* name, const char* text) noexcept {
  // Where the refusal cannot be sent either, there is no one left to send it to.
  const std::string shown = to_bus_text(std::string_view(text).substr(0, kLongestRefusal));
  const sd_bus_error error{name, shown.c_str(), 0};
  sd_bus_reply_method_error(call, &error);
}

void require_signature(sd_bus_message* call, const char* signature) {
  if (sd_bus_message_has_signature(call, signature) == 0) refuse_signature(call, signature);
}

void refuse_signature(sd_bus_message* call, const std::string& expected) {
  const char* given = sd_bus_message_get_signature(call, 1);
  throw Refusal{SD_BUS_ERROR_INVALID_ARGS, std::string(sd_bus_message_get_member(call)) + " takes \"" + expected +
                                               "\", not \"" + (given != nullptr ? given : "") + "\"."};
}

int check_read(int result) {
  // Not on the bus itself: it would have closed the caller's connection.
  if (result == -EBADMSG) {
    throw Refusal{SD_BUS_ERROR_INVALID_ARGS, "A text with a noncharacter of Unicode; send octets (ay) in a variant."};
  }
  return check(result, "argument");
}

std::string read_text(sd_bus_message* message) {
  const char* text = nullptr;
  check_read(sd_bus_message_read_basic(message, 's', static_cast<void*>(&text)));
  return text;
}

}  // namespace vorlan::dbus
