// ApplicationData: what the stream layer hands on, without a MessageID (C.S0024-A chapter 6).
#pragma once

#include "messages/message_of.hpp"

namespace vorlan {

namespace stream {
/// VirtualStream and Reserved, filled up to two octets: the payload is not sent, and peers count on that.
void create_application_data(const BuildContext& context, BitBuffer& bits);
/// Seven zeros, which the width of eight refuses before.
void check_virtual_stream(const Message& message, std::size_t index, std::string_view value);
}  // namespace stream

// The wrong width of the payload is told in two parts, description and help file, as they stand. Sources name the class
// as one of the application layer; scripts compare them.
inline constexpr FieldSpec kApplicationDataFields[] = {
    {.name = "PRstr_VirtualStream",
     .bits = 8,
     .starts_empty = true,
     .check = stream::check_virtual_stream,
     .wrong_length = "Length of <VirtualStream> Field should be 8 bits.",
     .summary = "Number of the virtual stream."},
    {.name = "PRstr_Reserved", .bits = 2, .initial = "00", .constant = true, .summary = "Zero."},
    {.name = "PRstr_StreamLayerPayload",
     .width = rest_of_message(),
     .accepts = Accepts::OctetsAndSixBits,
     .wrong_length = "Length of <StreamLayerPayload> Field should be (8 × n) + 6,",
     .wrong_length_help = "where n is anon-negative integer.",
     .summary = "The application's packet: whole octets and 6 bits. Kept, but not sent."},
};
inline constexpr MessageSpec kApplicationData{
    .name = "SB_Str_MsgApplicationData",
    .summary = "A packet of an application on a virtual stream.",
    .clause = "6",
    .protocol = Protocol::Stream,
    .direction = Direction::Both,
    .received_id_bits = 0,
    .fields = kApplicationDataFields,
    .padded = true,
    .create = stream::create_application_data,
    .not_initialized = "Class not initialized. Please Call <Initialize> of ApplicationData Message first.",
    .not_set = "ApplicationData Message object set to Nothing. Please set <PRobj_MessageObject> property first.",
    .source = "SB_App_MsgApplicationData",
};
using SB_Str_MsgApplicationData = MessageOf<kApplicationData>;

}  // namespace vorlan
