// The bus library's C interface with owners, and its error codes as exceptions.
#pragma once

#include <systemd/sd-bus.h>

#include <memory>
#include <string>

namespace vorlan::dbus {

template <auto Drop>
struct Dropper {
  template <class T>
  void operator()(T* held) const noexcept {
    Drop(held);
  }
};

using Bus = std::unique_ptr<sd_bus, Dropper<&sd_bus_flush_close_unref>>;
using Message = std::unique_ptr<sd_bus_message, Dropper<&sd_bus_message_unref>>;
using Slot = std::unique_ptr<sd_bus_slot, Dropper<&sd_bus_slot_unref>>;
using Credentials = std::unique_ptr<sd_bus_creds, Dropper<&sd_bus_creds_unref>>;

/// One of the bus's own errors, such as SD_BUS_ERROR_UNKNOWN_METHOD: the call is not one that could reach the library.
struct Refusal {
  std::string name;
  std::string text;
};

/// The result of a function of the bus library; std::system_error if it failed.
int check(int result, const char* doing);

/// The user's session bus.
Bus open_session_bus();
std::string unique_name(sd_bus* bus);
/// The user that the bus's own process runs as.
unsigned bus_owner(sd_bus* bus);
/// Whether a connection belongs to that user. Asks the bus, and waits for its answer.
bool is_of_user(sd_bus* bus, const char* connection, unsigned user);

Message hold(sd_bus_message* message) noexcept;
Message new_call(sd_bus* bus, const char* service, const char* path, const char* interface, const char* member);
Message new_return(sd_bus_message* call);
/// Sends a reply, unless the caller wants none.
void send_reply(sd_bus_message* call, sd_bus_message* reply);
/// The text is cut off where it is longer than any that is meant to be read.
void send_refusal(sd_bus_message* call, const char* name, const char* text) noexcept;

template <class... Values>
void reply_with(sd_bus_message* call, const char* signature, Values... values) {
  const Message reply = new_return(call);
  if (*signature != '\0') check(sd_bus_message_append(reply.get(), signature, values...), "reply");
  send_reply(call, reply.get());
}

/// Refuses a call whose arguments are not those of `signature`.
void require_signature(sd_bus_message* call, const char* signature);
[[noreturn]] void refuse_signature(sd_bus_message* call, const std::string& expected);
/// What reading from a message gave; a text that the bus library does not take is refused.
int check_read(int result);
std::string read_text(sd_bus_message* message);

}  // namespace vorlan::dbus
