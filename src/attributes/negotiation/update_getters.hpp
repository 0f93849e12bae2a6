// The attribute getters of AttributeUpdateRequest.
#pragma once

#include "attributes/complex/app_attributes.hpp"
#include "attributes/complex/mac_attributes.hpp"
#include "attributes/mac_simple_attributes.hpp"
#include "attributes/negotiation/attribute_getter.hpp"

namespace vorlan {

inline constexpr std::string_view kUpdateRequest = "Attribute Update Request";

/// An attribute with an AttributeID of its own, whose texts part the message's name.
template <class T>
constexpr AttributeGetter update_getter(std::string_view name, std::string_view searched) {
  return {.name = name, .make = make_attribute<T>, .searched = searched, .message = kUpdateRequest};
}
/// An attribute of a reservation, which the script may name by the AttributeID.
template <class T>
constexpr AttributeGetter reservation_getter(std::string_view name, std::string_view searched,
                                             std::string_view source) {
  AttributeGetter row = update_getter<T>(name, searched);
  row.takes_id = true;
  row.source = source;
  return row;
}
/// An attribute of a flow.
template <class T>
constexpr AttributeGetter update_flow_getter(std::string_view name) {
  return {.name = name, .make = make_attribute<T>, .takes_id = true};
}

inline constexpr AttributeGetter kUpdateGetters[] = {
    reservation_getter<SB_App_AttrReservationKKQoSReqFwd>(
        "PRobj_AttrReservationKKQoSRequestFwd", "0000011110101010",
        "SB_App_AttrReservationKKQoSRequestFwd.PRobj_AttrReservationKKQoSRequestFwd"),
    // Unlike the other three it searches for reservation label 0x00.
    reservation_getter<SB_App_AttrReservationKKQoSReqRev>(
        "PRobj_AttrReservationKKQoSRequestRev", "0000100000000000",
        "SB_App_AttrReservationKKQoSRequestRev.PRobj_AttrReservationKKQoSRequestRev"),
    reservation_getter<SB_App_AttrReservationKKQoSRespFwd>(
        "PRobj_AttrReservationKKQoSResponseFwd", "0000100110101010",
        "SB_App_AttrReservationKKQoSResponseFwd.PRobj_AttrReservationKKQoSResponseFwd"),
    reservation_getter<SB_App_AttrReservationKKQoSRespRev>(
        "PRobj_AttrReservationKKQoSResponseRev", "0000101010101010",
        "SB_App_AttrReservationKKQoSResponseRev.PRobj_AttrReservationKKQoSResponseRev"),
    update_getter<SB_Mac_AttrMaxMACFlows>("PRobj_AttrMaxMACFlows", "0000000000010100"),
    update_getter<SB_MAC_AttrAssociatedFlowsNN>("PRobj_AttrAssociatedFlowsNN", "0000000100000001"),
    update_getter<SB_MAC_AttrBucketLevelMaxNN>("PRobj_AttrBucketLevelMaxNN", "1111111000000010"),
    update_flow_getter<SB_App_AttrFlowNNReservationFwd>("PRobj_AttrFlowNNReservationFwd"),
    update_flow_getter<SB_App_AttrFlowNNReservationRev>("PRobj_AttrFlowNNReservationRev"),
    update_flow_getter<SB_App_AttrFlowNNIdentificationFwd>("PRobj_AttrFlowNNIdentificationFwd"),
    update_flow_getter<SB_App_AttrFlowNNIdentificationRev>("PRobj_AttrFlowNNIdentificationRev"),
};

}  // namespace vorlan
