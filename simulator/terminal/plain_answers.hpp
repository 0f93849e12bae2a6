// Messages that the terminal answers out of hand, without a procedure behind them.
#pragma once

#include "simulator/octets.hpp"

namespace vorlan::simulator {

enum class Effect : std::uint8_t { None, TakesChannel, ClosesSession };

struct PlainAnswer {
  int first_protocol;
  int last_protocol;
  int message_id;
  std::size_t fewest_octets;  ///< of the message that is answered
  Octets (*build)(std::span<const std::uint8_t> received);
  Effect effect = Effect::None;
};

/// Null where the terminal takes the message and says nothing.
const PlainAnswer* plain_answer(int protocol, int message_id) noexcept;

}  // namespace vorlan::simulator
