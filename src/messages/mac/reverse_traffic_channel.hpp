// Reverse Traffic Channel MAC Protocol messages (C.S0024-A 10.8).
#pragma once

#include "messages/message_of.hpp"

namespace vorlan {

namespace reverse_traffic_channel {
inline constexpr Code kRateLimits[] = {{0, "0 kbit/s"},    {1, "9.6 kbit/s"},  {2, "19.2 kbit/s"},
                                       {3, "38.4 kbit/s"}, {4, "76.8 kbit/s"}, {5, "153.6 kbit/s"}};
inline constexpr Meaning kRateLimit{.codes = kRateLimits, .summary = "0 to 153.6 kbit/s, by table"};
}  // namespace reverse_traffic_channel

inline constexpr MessageSpec kRTCAck{
    .name = "SB_Mac_MsgRTCAck",
    .summary = "The access network has acquired the reverse traffic channel.",
    .clause = "10.8.6.2",
    .protocol = Protocol::ReverseTrafficChannelMac,
    .id = "00000000",
    .not_initialized = "Class not initialized. Please call <Initialize> of RTCAck message first.",
};
using SB_Mac_MsgRTCAck = MessageOf<kRTCAck>;

inline constexpr FieldSpec kBroadcastRevRateLimitFields[] = {
    {.name = "PRstr_RPCCount",
     .bits = 6,
     .initial = "000001",
     .wrong_length = "Length of <RPCCount> field should be 6 bits.",
     .summary = "Number of reverse power control channels; setting it makes the limits afresh."},
    {.name = "PRstr_RateLimit",
     .bits = 4,
     .repeat = list_of("PRstr_RPCCount"),
     .wrong_length = "Length of <RateLimit> field should be 4 bits.",
     .get_beyond_count = " Index more than the upper bound of RateLimit array ",
     .meaning = &reverse_traffic_channel::kRateLimit,
     .summary = "Highest rate of the access terminal with MACIndex 63 - Index."},
};
// Sources have another name of the class; scripts compare them.
inline constexpr MessageSpec kBroadcastRevRateLimit{
    .name = "SB_Mac_MsgBroadcastRevRateLimit",
    .summary = "The highest reverse rates of all access terminals of the sector.",
    .clause = "10.8.6.2",
    .protocol = Protocol::ReverseTrafficChannelMac,
    .id = "00000001",
    .fields = kBroadcastRevRateLimitFields,
    .padded = true,
    .not_initialized = "Class not initialized. Please call <Initialize> of BroadcastReverseRateLimit Message first.",
    .in_encoder_mode = "Encoder and this property cannot be used simultaneously",
    .source = "SB_Mac_BroadcastReverseRateLimit",
};
using SB_Mac_MsgBroadcastRevRateLimit = MessageOf<kBroadcastRevRateLimit>;

inline constexpr FieldSpec kUnicastRevRateLimitFields[] = {
    // In encoder mode it names another class; scripts compare it.
    {.name = "PRstr_RateLimit",
     .bits = 4,
     .wrong_length = "Length of <RateLimit> field should be 4 bits.",
     .encoder_source = "SB_Mac_MsgFixedModeXoff.PRobj_MessageObject",
     .meaning = &reverse_traffic_channel::kRateLimit,
     .summary = "Highest rate of the access terminal."},
};
inline constexpr MessageSpec kUnicastRevRateLimit{
    .name = "SB_Mac_MsgUnicastRevRateLimit",
    .summary = "The highest reverse rate of one access terminal.",
    .clause = "10.8.6.2",
    .protocol = Protocol::ReverseTrafficChannelMac,
    .id = "00000010",
    .fields = kUnicastRevRateLimitFields,
    .padded = true,
    .not_initialized = "Class not initialized. Please call <Initialize> of UnicastReverseRateLimit Message first.",
    .in_encoder_mode = "Encoder and this property cannot be used simultaneously",
};
using SB_Mac_MsgUnicastRevRateLimit = MessageOf<kUnicastRevRateLimit>;

}  // namespace vorlan
