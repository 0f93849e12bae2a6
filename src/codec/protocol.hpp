// The protocols of the messages that the classes encode and decode, by layer and by the type number of C.S0024-A 13.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace vorlan {

enum class Protocol : std::uint8_t {
  None,           ///< messages that several protocols share
  PhysicalLayer,  ///< no messages; attributes name it
  ControlChannelMac,
  AccessChannelMac,
  ForwardTrafficChannelMac,
  ReverseTrafficChannelMac,
  KeyExchange,
  Authentication,  ///< this and the two below have no messages but those that propose attributes
  Encryption,
  Security,
  PacketConsolidation,
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

/// The protocol types of the streams' applications.
inline constexpr int kStream0Type = 0x14;
inline constexpr int kStream3Type = 0x17;
constexpr bool is_stream_type(int type) noexcept { return type >= kStream0Type && type <= kStream3Type; }

/// "session-management" of 16, "stream-0-application" of 20; the empty text for a type that no protocol has.
std::string protocol_name(int type);
/// A type number as a person types it, "16" or "0x10"; nothing for any other text, and above 255.
std::optional<int> parse_protocol_type(std::string_view text) noexcept;

}  // namespace vorlan
