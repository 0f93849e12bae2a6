#include "simulator/terminal/access_terminal.hpp"

#include <algorithm>

#include "common/octets.hpp"
#include "simulator/message_object.hpp"

namespace vorlan::simulator {

namespace {

using A = AccessTerminal;

constexpr BoundMember kMembers[] = {
    property<&A::state>("State", "\"Idle\", \"Proposing\", \"AnsweringAN\" or \"Open\": how far the session is."),
    property<&A::configuration_order, &A::set_configuration_order>(
        "ConfigurationOrder",
        "Protocol types of its ConfigurationRequests in order: an array, or a text such as \"18 19 4 14\"."),
    property<&A::proposal, &A::set_proposal>(
        "Proposal", "The attribute records that it proposes for a protocol, in hexadecimal.", "ProtocolType"),
    property<&A::transaction_id, &A::set_transaction_id>("TransactionID", "Of its next request, 0 to 255."),
    property<&A::subtype>("SubType", "The protocol subtype agreed upon; 0 before.", "ProtocolType"),
    property<&A::session_key_length>("SessionKeyLength", "768 or 1024 bits, as agreed upon."),
    property<&A::key_time_out, &A::set_key_time_out>("KeyTimeOut", "Timeout of its KeyResponse, 0 to 255 seconds."),
    property<&A::answer_delay, &A::set_answer_delay>("AnswerDelay", "Milliseconds from a message to its answer."),
    property<&A::acquires_reverse_channel, &A::set_acquires_reverse_channel>(
        "AcquiresReverseChannel", "Whether it comes up on the reverse traffic channel when it is waited for."),
    property<&A::on_reverse_channel>("OnReverseChannel", "Whether it is on the reverse traffic channel."),
    method<&A::leave_reverse_channel>("LeaveReverseChannel", "", "It drops off the reverse traffic channel."),
    property<&A::complaints>("Complaints", "What was wrong with the messages it received: an array of texts."),
    method<&A::forget_complaints>("ForgetComplaints", "", "Empties Complaints."),
    method<&A::send>("Send", "ProtocolType, Octets", "Sends a message of its own accord: octets in hexadecimal."),
    method<&A::refuse>("Refuse", "ProtocolType, AttributeID",
                       "Refuses what the access network proposes for a protocol, or for one attribute of it."),
    method<&A::stay_silent>("StaySilent", "ProtocolType, MessageID", "Does not send these messages."),
    method<&A::answer_late>("AnswerLate", "Milliseconds, ProtocolType, MessageID", "Sends these messages later."),
    method<&A::wrong_transaction_id>("WrongTransactionID", "ProtocolType, MessageID",
                                     "Sends these messages with a TransactionID one too large."),
    method<&A::send_garbage>("SendGarbage", "Octets, ProtocolType, MessageID",
                             "Sends these octets, in hexadecimal, instead of these messages."),
    method<&A::cheat_in_key_exchange>(
        "CheatInKeyExchange", "How",
        "\"WrongKey\", \"DegenerateKey\", \"FalseSuccess\", \"FalseFailure\" or \"None\"; error 5 for anything else."),
    method<&A::behave>("Behave", "", "Forgets everything it was told to do wrong."),
};

constexpr std::string_view kStates[] = {"Idle", "Proposing", "AnsweringAN", "Open"};
/// In the order of Cheat.
constexpr std::string_view kCheats[] = {"None", "WrongKey", "DegenerateKey", "FalseSuccess", "FalseFailure"};

std::uint8_t checked_octet(std::string_view name, std::int16_t value) {
  if (value < 0 || value > 0xFF) throw Error(ErrorNumber::InvalidCall, {}, std::string(name) + " is 0 to 255");
  return static_cast<std::uint8_t>(value);
}

int chosen(A::Choice choice) { return choice ? *choice : Behaviour::kAny; }

std::chrono::milliseconds checked_delay(std::int32_t milliseconds) {
  if (milliseconds < 0) throw Error(ErrorNumber::InvalidCall, {}, "nothing is sent before its time");
  return std::chrono::milliseconds(milliseconds);
}

/// A message has fewer than 4096 octets; the answers of the terminal itself come nowhere near.
void check_size(const Octets& message) {
  if (message.size() * 8 > kMostMessageBits) throw Error(ErrorNumber::Overflow);
}

/// The numbers of an array, or of a text with blanks or commas between them.
std::vector<int> numbers(const Value& value) {
  std::vector<int> found;
  if (const auto* const array = value.as<Value::Array>()) {
    for (const Value& element : *array) found.push_back(element.to_integer());
    return found;
  }
  const std::string text = value.to_text();
  constexpr std::string_view kBetween = " ,";
  for (std::size_t at = text.find_first_not_of(kBetween); at != std::string::npos;) {
    const std::size_t end = text.find_first_of(kBetween, at);
    found.push_back(Value(text.substr(at, end - at)).to_integer());
    at = text.find_first_not_of(kBetween, end);
  }
  return found;
}

}  // namespace

std::span<const BoundMember> AccessTerminal::members() { return kMembers; }

std::string AccessTerminal::state() const {
  return std::string(kStates[static_cast<std::size_t>(terminal().negotiation.state())]);
}

Value AccessTerminal::configuration_order() const {
  Value::Array order;
  for (const int protocol : terminal().negotiation.order) order.emplace_back(static_cast<std::int16_t>(protocol));
  return order;
}

void AccessTerminal::set_configuration_order(const Value& protocols) {
  terminal().negotiation.order = numbers(protocols);
}

std::string AccessTerminal::proposal(std::int16_t protocol) const {
  const auto& proposals = terminal().negotiation.proposals;
  const auto found = proposals.find(protocol);
  return found == proposals.end() ? std::string() : octets_text(found->second);
}

void AccessTerminal::set_proposal(std::int16_t protocol, const std::string& records) {
  terminal().negotiation.proposals[protocol] = parse_hex(records);
}

void AccessTerminal::set_transaction_id(std::int16_t id) {
  terminal().negotiation.transaction_id = checked_octet("TransactionID", id);
}

std::int16_t AccessTerminal::subtype(std::int16_t protocol) const {
  return static_cast<std::int16_t>(terminal().negotiation.subtype(protocol));
}

std::int16_t AccessTerminal::session_key_length() const {
  return static_cast<std::int16_t>(terminal().negotiation.session_key_length());
}

void AccessTerminal::set_key_time_out(std::int16_t seconds) {
  terminal().key_exchange.time_out = checked_octet("KeyTimeOut", seconds);
}

std::int32_t AccessTerminal::answer_delay() const { return static_cast<std::int32_t>(terminal().answer_delay.count()); }

void AccessTerminal::set_answer_delay(std::int32_t milliseconds) {
  terminal().answer_delay = checked_delay(milliseconds);
}

Value AccessTerminal::complaints() const {
  Value::Array texts;
  for (const std::string& text : terminal().complaints()) texts.emplace_back(text);
  return texts;
}

void AccessTerminal::send(std::int16_t protocol, const std::string& octets) {
  Octets message = parse_hex(octets);
  check_size(message);
  terminal().send(protocol, std::move(message));
}

void AccessTerminal::refuse(std::int16_t protocol, Choice attribute) {
  terminal().told.refuse({protocol, chosen(attribute)});
}

void AccessTerminal::stay_silent(Choice protocol, Choice message_id) {
  terminal().told.add({Fault::StaySilent, chosen(protocol), chosen(message_id)});
}

void AccessTerminal::answer_late(std::int32_t milliseconds, Choice protocol, Choice message_id) {
  terminal().told.add({Fault::AnswerLate, chosen(protocol), chosen(message_id), checked_delay(milliseconds)});
}

void AccessTerminal::wrong_transaction_id(Choice protocol, Choice message_id) {
  terminal().told.add({Fault::WrongTransactionId, chosen(protocol), chosen(message_id)});
}

void AccessTerminal::send_garbage(const std::string& octets, Choice protocol, Choice message_id) {
  Octets garbage = parse_hex(octets);
  check_size(garbage);
  terminal().told.add({Fault::SendGarbage, chosen(protocol), chosen(message_id), {}, std::move(garbage)});
}

void AccessTerminal::cheat_in_key_exchange(const std::string& how) {
  const auto* const found = std::find_if(std::begin(kCheats), std::end(kCheats),
                                         [&](std::string_view name) { return equals_ignoring_case(name, how); });
  if (found == std::end(kCheats)) throw Error(ErrorNumber::InvalidCall, {}, "no way of cheating is called " + how);
  terminal().told.cheat = static_cast<Cheat>(found - std::begin(kCheats));
}

}  // namespace vorlan::simulator
