#include "codec/protocol.hpp"

namespace vorlan {

namespace {

constexpr ProtocolInfo kProtocols[] = {
    {Protocol::AccessChannelMac, "access-channel-mac", "mac", 0x02},
    {Protocol::ForwardTrafficChannelMac, "forward-traffic-channel-mac", "mac", 0x03},
    {Protocol::ReverseTrafficChannelMac, "reverse-traffic-channel-mac", "mac", 0x04},
    {Protocol::KeyExchange, "key-exchange", "security", 0x05},
    {Protocol::Authentication, "authentication", "security", 0x06},
    {Protocol::Encryption, "encryption", "security", 0x07},
    {Protocol::Security, "security", "security", 0x08},
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

}  // namespace vorlan
