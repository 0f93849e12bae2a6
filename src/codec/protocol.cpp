#include "codec/protocol.hpp"

#include <charconv>

namespace vorlan {

namespace {

constexpr ProtocolInfo kProtocols[] = {
    {Protocol::PhysicalLayer, "physical-layer", "physical", 0x00},
    {Protocol::ControlChannelMac, "control-channel-mac", "mac", 0x01},
    {Protocol::AccessChannelMac, "access-channel-mac", "mac", 0x02},
    {Protocol::ForwardTrafficChannelMac, "forward-traffic-channel-mac", "mac", 0x03},
    {Protocol::ReverseTrafficChannelMac, "reverse-traffic-channel-mac", "mac", 0x04},
    {Protocol::KeyExchange, "key-exchange", "security", 0x05},
    {Protocol::Authentication, "authentication", "security", 0x06},
    {Protocol::Encryption, "encryption", "security", 0x07},
    {Protocol::Security, "security", "security", 0x08},
    {Protocol::PacketConsolidation, "packet-consolidation", "connection", 0x09},
    {Protocol::AirLinkManagement, "air-link-management", "connection", 0x0A},
    {Protocol::InitializationState, "initialization-state", "connection", 0x0B},
    {Protocol::IdleState, "idle-state", "connection", 0x0C},
    {Protocol::ConnectedState, "connected-state", "connection", 0x0D},
    {Protocol::RouteUpdate, "route-update", "connection", 0x0E},
    {Protocol::OverheadMessages, "overhead-messages", "connection", 0x0F},
    {Protocol::SessionManagement, "session-management", "session", 0x10},
    {Protocol::AddressManagement, "address-management", "session", 0x11},
    {Protocol::SessionConfiguration, "session-configuration", "session", 0x12},
    {Protocol::DefaultSignaling, "default-signaling", "application", -1},
    {Protocol::DefaultPacket, "default-packet", "application", -1},
    {Protocol::MultiFlowPacket, "multi-flow-packet", "application", -1},
    {Protocol::EnhancedMultiFlowPacket, "enhanced-multi-flow-packet", "application", -1},
    {Protocol::TestApplication, "test-application", "testapp", -1},
    {Protocol::Stream, "stream", "stream", 0x13},
};

}  // namespace

std::span<const ProtocolInfo> protocols() noexcept { return kProtocols; }

std::string protocol_name(int type) {
  if (is_stream_type(type)) return "stream-" + std::to_string(type - kStream0Type) + "-application";
  for (const ProtocolInfo& info : kProtocols) {
    if (info.type >= 0 && info.type == type) return std::string(info.name);
  }
  return {};
}

std::optional<int> parse_protocol_type(std::string_view text) noexcept {
  const bool is_hex = text.starts_with("0x") || text.starts_with("0X");
  const std::string_view digits = text.substr(is_hex ? 2 : 0);
  const char* const end = digits.data() + digits.size();
  unsigned type = 0;
  const auto [read, fault] = std::from_chars(digits.data(), end, type, is_hex ? 16 : 10);
  if (read != end || fault != std::errc() || type > 0xFF) return std::nullopt;
  return static_cast<int>(type);
}

}  // namespace vorlan
