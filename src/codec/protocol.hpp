// The protocols of the messages that the classes encode and decode, by layer and by the type number of C.S0024-A 13.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace vorlan {

enum class Protocol : std::uint8_t {
  None,  ///< messages that several protocols share
  AccessChannelMac,
  ForwardTrafficChannelMac,
  ReverseTrafficChannelMac,
  KeyExchange,
  Authentication,  ///< this and the two below have no messages but those that propose attributes
  Encryption,
  Security,
  AirLinkManagement,
  InitializationState,
  IdleState,
  ConnectedState,
  RouteUpdate,
  OverheadMessages,
  SessionManagement,
  AddressManagement,
  SessionConfiguration,
  DefaultSignaling,
  DefaultPacket,
  MultiFlowPacket,
  EnhancedMultiFlowPacket,
  TestApplication,
  Stream,
};

struct ProtocolInfo {
  Protocol protocol;
  std::string_view name;   ///< "session-management": what a person types
  std::string_view layer;  ///< "session"
  std::int16_t type;       ///< protocol type number; -1 where a stream's application decides
};

/// All protocols but None.
std::span<const ProtocolInfo> protocols() noexcept;

}  // namespace vorlan
