#include "simulator/security/security_object.hpp"

#include "common/bits.hpp"
#include "common/octets.hpp"
#include "simulator/message_object.hpp"

namespace vorlan::simulator {

namespace {

using S = SecurityObject;

constexpr BoundMember kMembers[] = {
    method<&S::an_public_key>("GetANPublicKey", "KeyLength",
                              "Draws a new exponent; its public key as a message object of 768 or 1024 bits."),
    method<&S::set_at_public_key>(
        "SetATPublicKey", "PublicKey",
        "Takes the terminal's public key, a message object, and computes the session key; error 5 for a bad one."),
    property<&S::nonce>("Nonce", "A new Nonce of ANKeyComplete, 16 bits; the time is taken with it."),
    property<&S::time_stamp_short>("TimeStampShort", "The TimeStampShort that goes with the latest Nonce, 16 bits."),
    method<&S::key_signature>("GetKeySignature", "TransactionID",
                              "The KeySignature over session key, TransactionID, Nonce and time, 160 bits."),
    property<&S::session_key>("SessionKey",
                              "Simulator only: the session key in hexadecimal; empty before there is one."),
    property<&S::keys_agree>("KeysAgree", "Simulator only: whether the terminal has computed the same session key."),
};

std::string number_bits(std::uint16_t number) {
  const std::uint8_t octets[] = {static_cast<std::uint8_t>(number >> 8), static_cast<std::uint8_t>(number & 0xFF)};
  return bits_of(octets);
}

}  // namespace

std::span<const BoundMember> SecurityObject::members() { return kMembers; }

Ref<Object> SecurityObject::an_public_key(std::int16_t key_length) {
  return make<MessageObject>(simulation_->security.new_public_key(key_length));
}

void SecurityObject::set_at_public_key(Ref<Object> key) {
  simulation_->security.take_at_public_key(octets_of(deref(key, "Security.SetATPublicKey")));
}

std::string SecurityObject::nonce() { return number_bits(simulation_->security.new_nonce()); }

std::string SecurityObject::time_stamp_short() const { return number_bits(simulation_->security.time_stamp_short()); }

std::string SecurityObject::key_signature(std::int16_t transaction_id) const {
  if (transaction_id < 0 || transaction_id > 0xFF) {
    throw Error(ErrorNumber::InvalidCall, {}, "a TransactionID is 0 to 255");
  }
  return bits_of(simulation_->security.signature(static_cast<std::uint8_t>(transaction_id)));
}

std::string SecurityObject::session_key() const { return octets_text(simulation_->security.session_key()); }

bool SecurityObject::keys_agree() const {
  const Octets& own = simulation_->security.session_key();
  return !own.empty() && own == simulation_->terminal.key_exchange.session_key();
}

}  // namespace vorlan::simulator
