#include "simulator/terminal/plain_answers.hpp"

#include <algorithm>

namespace vorlan::simulator {

namespace {

using Received = std::span<const std::uint8_t>;

/// An answer that has nothing but the TransactionID, or MessageSequence, of what it answers.
template <std::uint8_t kMessageId>
Octets same_transaction(Received received) {
  return {kMessageId, received[1]};
}

Octets uati_complete(Received received) { return {0x02, received[1], 0x00}; }

Octets hardware_id_response(Received received) {
  // HardwareIDType 0x010000: an ESN, four octets.
  return {0x04, received[1], 0x01, 0x00, 0x00, 0x04, 0x80, 0x12, 0x34, 0x56};
}

Octets session_close(Received) {
  constexpr std::uint8_t kCloseReply = 0x01;
  return {0x01, kCloseReply, 0x00};
}

/// One record for every statistics attribute that is asked for, all counts zero.
Octets ftap_statistics(Received received) {
  Octets response{0x05, received[1]};
  for (const std::uint8_t attribute : received.subspan(2)) {
    if (attribute < 0x04 || attribute > 0x06) continue;
    const std::uint8_t length = attribute == 0x06 ? 5 : 6;
    response.insert(response.end(), {length, attribute});
    response.insert(response.end(), static_cast<std::size_t>(length - 1), 0);
  }
  return response;
}

constexpr int kRouteUpdate = 14;
constexpr int kSessionManagement = 16;
constexpr int kAddressManagement = 17;
constexpr int kStream0 = 20;
constexpr int kStream3 = 23;

constexpr PlainAnswer kAnswers[] = {
    {kRouteUpdate, kRouteUpdate, 0x01, 2, same_transaction<0x02>, Effect::TakesChannel},
    {kSessionManagement, kSessionManagement, 0x01, 2, session_close, Effect::ClosesSession},
    {kSessionManagement, kSessionManagement, 0x02, 2, same_transaction<0x03>},
    {kAddressManagement, kAddressManagement, 0x01, 2, uati_complete},
    {kAddressManagement, kAddressManagement, 0x03, 2, hardware_id_response},
    // The test applications (C.S0029): FTAP up to 0x7F, RTAP above.
    {kStream0, kStream3, 0x00, 2, same_transaction<0x01>},
    {kStream0, kStream3, 0x02, 2, same_transaction<0x03>},
    {kStream0, kStream3, 0x04, 2, ftap_statistics},
    {kStream0, kStream3, 0x80, 2, same_transaction<0x81>},
};

}  // namespace

const PlainAnswer* plain_answer(int protocol, int message_id) noexcept {
  const auto* const found = std::find_if(std::begin(kAnswers), std::end(kAnswers), [&](const PlainAnswer& row) {
    return protocol >= row.first_protocol && protocol <= row.last_protocol && message_id == row.message_id;
  });
  return found == std::end(kAnswers) ? nullptr : found;
}

}  // namespace vorlan::simulator
