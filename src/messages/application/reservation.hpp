// Reservation messages of the Radio Link Protocol of the multi-flow packet application (C.S0024-A chapter 4).
#pragma once

#include "messages/message_of.hpp"

namespace vorlan {

namespace reservation {
inline constexpr Code kLinks[] = {{0, "reverse"}, {1, "forward"}};
inline constexpr Meaning kLink{.codes = kLinks, .summary = "reverse or forward"};

inline constexpr FieldSpec kTransactionId{.name = "PRstr_TransactionId",
                                          .bits = 8,
                                          .wrong_length = "Length of TransactionId string should be 8 bits.",
                                          .summary = "TransactionID; an answer repeats the request's."};
inline constexpr FieldSpec kReservationCount{.name = "PRstr_ReservationCount",
                                             .bits = 8,
                                             .wrong_length = "Length of ReservationCount string should be 8 bits.",
                                             .summary = "Number of reservations."};

inline constexpr FieldSpec kTransactionIdAlone[] = {kTransactionId};
inline constexpr FieldSpec kRequestFields[] = {
    kTransactionId,
    kReservationCount,
    {.name = "PRstr_Link",
     .bits = 1,
     .repeat = in_record(1, "PRstr_ReservationCount"),
     .meaning = &kLink,
     .summary = "Link of the reservation."},
    {.name = "PRstr_ReservationLabel",
     .bits = 8,
     .repeat = in_record(1, "PRstr_ReservationCount"),
     .summary = "Label of the reservation."},
};
// A script that sends one reservation need not give its index, nor set the count first.
inline constexpr FieldSpec kRejectFields[] = {
    kTransactionId,
    kReservationCount,
    {.name = "PRstr_Link",
     .bits = 1,
     .repeat = in_record(1, "PRstr_ReservationCount"),
     .on_resize = OnResize::KeepOld,
     .first_stays = true,
     .index_optional = true,
     .wrong_length = "Length of Link string should be 1 bit.",
     .meaning = &kLink,
     .summary = "Link of the reservation."},
    {.name = "PRstr_AllowableReservationLabel",
     .bits = 8,
     .repeat = in_record(1, "PRstr_ReservationCount"),
     .on_resize = OnResize::KeepOld,
     .first_stays = true,
     .index_optional = true,
     .wrong_length = "Length of <AllowableReservationLabel> Field should be 8 bits.",
     .summary = "Label of a reservation that would be accepted."},
};
inline constexpr FieldSpec kReverseFields[] = {
    kTransactionId,
    kReservationCount,
    {.name = "PRstr_ReservationLabel",
     .bits = 8,
     .repeat = list_of_at_least_one("PRstr_ReservationCount"),
     .on_resize = OnResize::KeepOld,
     .first_stays = true,
     .index_optional = true,
     .wrong_length = "Length of <ReservationLabel> Field should be 8 bits.",
     .summary = "Label of the reservation."},
};
}  // namespace reservation

inline constexpr MessageSpec kReservationOnRequest{
    .name = "SB_App_MsgReservationOnRequest",
    .summary = "The access terminal asks for reservations to be opened.",
    .clause = "4",
    .protocol = Protocol::MultiFlowPacket,
    .direction = Direction::Parsed,
    .id_value = 0x16,
    .has_id_value = true,
    .fields = reservation::kRequestFields,
    .not_set = "ReservationOnRequest Message object set to nothing. Please set <PRobj_MessageObject> property first.",
};
using SB_App_MsgReservationOnRequest = MessageOf<kReservationOnRequest>;

inline constexpr MessageSpec kReservationOffRequest{
    .name = "SB_App_MsgReservationOffRequest",
    .summary = "The access terminal asks for reservations to be closed.",
    .clause = "4",
    .protocol = Protocol::MultiFlowPacket,
    .direction = Direction::Parsed,
    .id_value = 0x17,
    .has_id_value = true,
    .fields = reservation::kRequestFields,
    .not_set = "ReservationOffRequest Message object set to nothing. Please set <PRobj_MessageObject> property first.",
};
using SB_App_MsgReservationOffRequest = MessageOf<kReservationOffRequest>;

inline constexpr MessageSpec kReservationAccept{
    .name = "SB_App_MsgReservationAccept",
    .summary = "The answer that grants a reservation request.",
    .clause = "4",
    .protocol = Protocol::MultiFlowPacket,
    .direction = Direction::Both,
    .id = "00011000",
    .fields = reservation::kTransactionIdAlone,
    .not_initialized = "Class not initialized. Please Call <Initialize> of ReservationAccept Message first.",
    .not_set = "ReservationAccept Message object set to nothing. Please set <PRobj_MessageObject> property first.",
};
using SB_App_MsgReservationAccept = MessageOf<kReservationAccept>;

inline constexpr MessageSpec kReservationReject{
    .name = "SB_App_MsgReservationReject",
    .summary = "The answer that refuses a reservation request, with reservations that would be granted.",
    .clause = "4",
    .protocol = Protocol::MultiFlowPacket,
    .id = "00011001",
    .fields = reservation::kRejectFields,
    .padded = true,
    .not_initialized = "Class not initialized. Please Call <Initialize> of ReservationReject Message first.",
};
using SB_App_MsgReservationReject = MessageOf<kReservationReject>;

inline constexpr MessageSpec kRevReservationOn{
    .name = "SB_App_MsgRevReservationOn",
    .summary = "The access network opens reverse reservations.",
    .clause = "4",
    .protocol = Protocol::MultiFlowPacket,
    .id = "00011010",
    .fields = reservation::kReverseFields,
    .not_initialized = "Class not initialized. Please Call <Initialize> of RevReservationOn Message first.",
};
using SB_App_MsgRevReservationOn = MessageOf<kRevReservationOn>;

inline constexpr MessageSpec kRevReservationOff{
    .name = "SB_App_MsgRevReservationOff",
    .summary = "The access network closes reverse reservations.",
    .clause = "4",
    .protocol = Protocol::MultiFlowPacket,
    .id = "00011011",
    .fields = reservation::kReverseFields,
    .not_initialized = "Class not initialized. Please Call <Initialize> of RevReservationOff Message first.",
};
using SB_App_MsgRevReservationOff = MessageOf<kRevReservationOff>;

}  // namespace vorlan
