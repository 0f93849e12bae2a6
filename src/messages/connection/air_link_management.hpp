// Redirect of the Air-Link Management Protocol (C.S0024-A 8.2.6.2.1).
#pragma once

#include "messages/connection/channel.hpp"
#include "messages/message_of.hpp"

namespace vorlan {

namespace air_link_management {
/// Checks that every channel record is whole.
void create_redirect(const BuildContext& context, BitBuffer& bits);
inline constexpr ErrorRow kWrongRecord{"SB_Con_MsgRedirect.CreateMessage",
                                       "Error: Channel record value should be 24 bits long.",
                                       "CreateMessage with a channel of the configuration that has another width"};
}  // namespace air_link_management

inline constexpr FieldSpec kRedirectFields[] = {
    {.name = "PRstr_NumChannel",
     .bits = 8,
     .wrong_length = "Length of <NumChannel> field should be 8 bits.",
     .summary = "Number of channels, 0 for any other channel; setting it makes the records of the channels afresh."},
    {.name = "PRstr_SystemType",
     .bits = 8,
     .repeat = in_record(1, "PRstr_NumChannel"),
     .from = {.property = "PRstr_SystemType", .at_count = true},
     .wrong_length = "Length of <SystemType> field should be 8 bits.",
     .beyond_count = "Index for <SystemType> exceeds NumChannel.",
     .meaning = &kSystemType,
     .summary = "System of the channel."},
    {.name = "PRstr_BandClass",
     .bits = 5,
     .repeat = in_record(1, "PRstr_NumChannel"),
     .from = {.property = "PRint_BandClass", .bits = 5, .at_count = true},
     .wrong_length = "Length of <BandClass> field should be 5 bits.",
     .beyond_count = "Index for <BandClass> exceeds NumChannel.",
     .summary = "Band class of the channel."},
    {.name = "PRstr_ChannelNumber",
     .bits = 11,
     .repeat = in_record(1, "PRstr_NumChannel"),
     .from = {.property = "PRint_ChannelNumber", .bits = 11, .at_count = true},
     .wrong_length = "Length of <ChannelNumber> field should be 11 bits.",
     .beyond_count = "Index for <ChannelNumber> exceeds NumChannel.",
     .summary = "Number of the channel within its band class."},
};
inline constexpr MessageSpec kRedirect{
    .name = "SB_Con_MsgRedirect",
    .summary = "The access network sends access terminals to other channels.",
    .clause = "8.2.6.2.1",
    .protocol = Protocol::AirLinkManagement,
    .id = "00000000",
    .fields = kRedirectFields,
    .takes_sector = true,
    .create = air_link_management::create_redirect,
    .not_initialized = "Class not initialized. Please Call <Initialize> of Redirect Message first.",
    .in_encoder_mode = "Encoder and this property cannot be used simultaneously",
    .further_errors = {&air_link_management::kWrongRecord, 1},
};
using SB_Con_MsgRedirect = MessageOf<kRedirect>;

}  // namespace vorlan
