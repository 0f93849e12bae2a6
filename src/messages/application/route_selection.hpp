// Route selection and network-interface restart of the enhanced multi-flow packet application (C.S0063-A). The
// multi-flow packet application uses MessageIDs 0x1C and 0x1D for other messages: they tell nothing without the
// protocol.
#pragma once

#include "messages/message_of.hpp"

namespace vorlan {

namespace route_selection {
// A blank before the full stop in both texts. The air interface has one bit of Route; the setter insists on four.
inline constexpr FieldSpec kFields[] = {
    {.name = "PRstr_TransactionId",
     .bits = 8,
     .wrong_length = "Length of <TransactionId> field should be 8 bits .",
     .summary = "TransactionID."},
    {.name = "PRstr_Route",
     .bits = 4,
     .wrong_length = "Length of <Route> field should be 4 bits .",
     .summary = "The route, in four bits."},
};
inline constexpr FieldSpec kAnswerFields[] = {
    {.name = "PRstr_TransactionId", .bits = 8, .summary = "That of the message answered."},
};
}  // namespace route_selection

inline constexpr MessageSpec kRouteSelect{
    .name = "SB_App_MsgRouteSelect",
    .summary = "The access network selects the route over which it sends.",
    .clause = "C.S0063-A",
    .protocol = Protocol::EnhancedMultiFlowPacket,
    .id = "00011110",
    .fields = route_selection::kFields,
    .padded = true,
    .not_initialized = "Class not initialized. Please Call <Initialize> of RouteSelect Message first.",
};
using SB_App_MsgRouteSelect = MessageOf<kRouteSelect>;

inline constexpr MessageSpec kRouteSelectAck{
    .name = "SB_App_MsgRouteSelectAck",
    .summary = "The answer to RouteSelect.",
    .clause = "C.S0063-A",
    .protocol = Protocol::EnhancedMultiFlowPacket,
    .direction = Direction::Parsed,
    .id_value = 0x1F,
    .has_id_value = true,
    .fields = route_selection::kAnswerFields,
    .not_set = "RouteSelectAck Message object set to nothing. Please set <PRobj_MessageObject> property first.",
};
using SB_App_MsgRouteSelectAck = MessageOf<kRouteSelectAck>;

inline constexpr MessageSpec kActivateRoute{
    .name = "SB_App_MsgActivateRoute",
    .summary = "The access network activates a route.",
    .clause = "C.S0063-A",
    .protocol = Protocol::EnhancedMultiFlowPacket,
    .id = "00100000",
    .fields = route_selection::kFields,
    .padded = true,
    .not_initialized = "Class not initialized. Please Call <Initialize> of ActivateRoute Message first.",
};
using SB_App_MsgActivateRoute = MessageOf<kActivateRoute>;

inline constexpr MessageSpec kActivateRouteAck{
    .name = "SB_App_MsgActivateRouteAck",
    .summary = "The answer to ActivateRoute.",
    .clause = "C.S0063-A",
    .protocol = Protocol::EnhancedMultiFlowPacket,
    .direction = Direction::Parsed,
    .id_value = 0x21,
    .has_id_value = true,
    .fields = route_selection::kAnswerFields,
    .not_set = "ActivateRouteAck Message object set to nothing. Please set <PRobj_MessageObject> property first.",
};
using SB_App_MsgActivateRouteAck = MessageOf<kActivateRouteAck>;

inline constexpr FieldSpec kRestartNetworkInterfaceFields[] = {
    {.name = "PRstr_TransactionId",
     .bits = 8,
     .wrong_length = "Length of <TransactionID> should be 8 bits.",
     .summary = "TransactionID."},
};
inline constexpr MessageSpec kRestartNetworkInterface{
    .name = "SB_App_MsgRestartNetworkInterface",
    .summary = "The access network asks for the network interface to be restarted.",
    .clause = "C.S0063-A",
    .protocol = Protocol::EnhancedMultiFlowPacket,
    .id = "00011100",
    .fields = kRestartNetworkInterfaceFields,
    .not_initialized = "Class not initialized. Please Call <Initialize> of RestartNetworkInterface Message first.",
};
using SB_App_MsgRestartNetworkInterface = MessageOf<kRestartNetworkInterface>;

inline constexpr MessageSpec kRestartNetworkIntAck{
    .name = "SB_App_MsgRestartNetworkIntAck",
    .summary = "The answer to RestartNetworkInterface.",
    .clause = "C.S0063-A",
    .protocol = Protocol::EnhancedMultiFlowPacket,
    .direction = Direction::Parsed,
    .id_value = 0x1D,
    .has_id_value = true,
    .fields = route_selection::kAnswerFields,
    .not_set = "RestartNetworkIntAck Message object set to nothing. Please set <PRobj_MessageObject> property first.",
};
using SB_App_MsgRestartNetworkIntAck = MessageOf<kRestartNetworkIntAck>;

}  // namespace vorlan
