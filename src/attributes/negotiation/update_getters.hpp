// The attribute getters of AttributeUpdateRequest.
#pragma once

#include "attributes/complex/app_attributes.hpp"
#include "attributes/complex/mac_attributes.hpp"
#include "attributes/mac_simple_attributes.hpp"
#include "attributes/negotiation/attribute_getter.hpp"

namespace vorlan {

inline constexpr std::string_view kUpdateRequest = "Attribute Update Request";

inline constexpr AttributeGetter kUpdateGetters[] = {
    {.name = "PRobj_AttrReservationKKQoSRequestFwd",
     .make = make_attribute<SB_App_AttrReservationKKQoSReqFwd>,
     .searched = "0000011110101010",
     .takes_id = true,
     .message = kUpdateRequest,
     .source = "SB_App_AttrReservationKKQoSRequestFwd.PRobj_AttrReservationKKQoSRequestFwd"},
    // Unlike the other three it searches for reservation label 0x00.
    {.name = "PRobj_AttrReservationKKQoSRequestRev",
     .make = make_attribute<SB_App_AttrReservationKKQoSReqRev>,
     .searched = "0000100000000000",
     .takes_id = true,
     .message = kUpdateRequest,
     .source = "SB_App_AttrReservationKKQoSRequestRev.PRobj_AttrReservationKKQoSRequestRev"},
    {.name = "PRobj_AttrReservationKKQoSResponseFwd",
     .make = make_attribute<SB_App_AttrReservationKKQoSRespFwd>,
     .searched = "0000100110101010",
     .takes_id = true,
     .message = kUpdateRequest,
     .source = "SB_App_AttrReservationKKQoSResponseFwd.PRobj_AttrReservationKKQoSResponseFwd"},
    {.name = "PRobj_AttrReservationKKQoSResponseRev",
     .make = make_attribute<SB_App_AttrReservationKKQoSRespRev>,
     .searched = "0000101010101010",
     .takes_id = true,
     .message = kUpdateRequest,
     .source = "SB_App_AttrReservationKKQoSResponseRev.PRobj_AttrReservationKKQoSResponseRev"},
    {.name = "PRobj_AttrMaxMACFlows",
     .make = make_attribute<SB_Mac_AttrMaxMACFlows>,
     .searched = "0000000000010100",
     .message = kUpdateRequest},
    {.name = "PRobj_AttrAssociatedFlowsNN",
     .make = make_attribute<SB_MAC_AttrAssociatedFlowsNN>,
     .searched = "0000000100000001",
     .message = kUpdateRequest},
    {.name = "PRobj_AttrBucketLevelMaxNN",
     .make = make_attribute<SB_MAC_AttrBucketLevelMaxNN>,
     .searched = "1111111000000010",
     .message = kUpdateRequest},
    {.name = "PRobj_AttrFlowNNReservationFwd",
     .make = make_attribute<SB_App_AttrFlowNNReservationFwd>,
     .takes_id = true},
    {.name = "PRobj_AttrFlowNNReservationRev",
     .make = make_attribute<SB_App_AttrFlowNNReservationRev>,
     .takes_id = true},
    {.name = "PRobj_AttrFlowNNIdentificationFwd",
     .make = make_attribute<SB_App_AttrFlowNNIdentificationFwd>,
     .takes_id = true},
    {.name = "PRobj_AttrFlowNNIdentificationRev",
     .make = make_attribute<SB_App_AttrFlowNNIdentificationRev>,
     .takes_id = true},
};

}  // namespace vorlan
