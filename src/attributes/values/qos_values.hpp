// Value records of QoS reservations (C.S0024-A 4; the profile of type 1 is that of X.S0011-004).
#pragma once

#include <algorithm>
#include <array>

#include "attributes/values/app_values.hpp"

namespace vorlan {

inline constexpr Code kProfileTypes[] = {{0, "none"}, {1, "attribute sets"}, {2, "FlowProfileIDs"}};
inline constexpr Meaning kProfileType{.codes = kProfileTypes, .summary = "profile type"};

inline constexpr RecordField kProfileTypeField =
    fixed("PRstr_ProfileType", 8, {}, &kProfileType, "0: none, which ends the record; 1: attribute sets.");
inline constexpr RecordField kProfileLengthField{.name = "PRstr_ProfileLength",
                                                 .bits = 8,
                                                 .only = if_not_zero("PRstr_ProfileType"),
                                                 .meaning = &kOctets,
                                                 .summary = "Length of the profile."};
constexpr RecordField profile_value(std::vector<DissectedField> (*inside)(std::size_t, std::string_view, Extent)) {
  return {.name = "PRstr_ProfileValue",
          .width = octets_of("PRstr_ProfileLength"),
          .only = if_not_zero("PRstr_ProfileType"),
          .meaning = &kHex,
          .summary = "The profile.",
          .inside = inside,
          .kind = "PRstr_ProfileType"};
}

// --- Requests

/// An attribute set of a profile of type 1. Length counts its octets from Length on; later issues of the standard put
/// PacketSize into verbose sets, which are longer by it.
inline constexpr RecordField kQoSSetFields[] = {
    {.name = "PRstr_QoSAttribSetLength", .bits = 4, .meaning = &kOctets},
    {.name = "PRstr_QoSAttribSetID", .bits = 7},
    {.name = "PRstr_QoSAttribSetVerbose", .bits = 1},
    {.name = "PRstr_QoSAttribSetProfileID", .bits = 16, .only = if_zero("PRstr_QoSAttribSetVerbose"), .meaning = &kHex},
    {.name = "TrafficClass", .bits = 3, .only = if_one("PRstr_QoSAttribSetVerbose")},
    {.name = "PeakRate", .bits = 16, .only = if_one("PRstr_QoSAttribSetVerbose")},
    {.name = "BucketSize", .bits = 16, .only = if_one("PRstr_QoSAttribSetVerbose")},
    {.name = "TokenRate", .bits = 16, .only = if_one("PRstr_QoSAttribSetVerbose")},
    {.name = "MaxLatency", .bits = 8, .only = if_one("PRstr_QoSAttribSetVerbose")},
    {.name = "MaxIPPacketLossRate", .bits = 8, .only = if_one("PRstr_QoSAttribSetVerbose")},
    {.name = "DelayVarSensitive", .bits = 1, .only = if_one("PRstr_QoSAttribSetVerbose")},
};
inline constexpr std::size_t kQoSSetRows = std::size(kQoSSetFields);
inline constexpr auto kQoSSetWithPacketSizeFields = [] {
  std::array<RecordField, kQoSSetRows + 1> rows{};
  std::copy(std::begin(kQoSSetFields), std::end(kQoSSetFields) - 1, rows.begin());
  rows[kQoSSetRows - 1] = {.name = "PacketSize", .bits = 8, .only = if_one("PRstr_QoSAttribSetVerbose")};
  rows[kQoSSetRows] = kQoSSetFields[kQoSSetRows - 1];
  return rows;
}();

/// The profile of type 1: the priority and up to seven attribute sets, each filled up to an octet.
inline constexpr auto kQoSProfileFields = [] {
  constexpr Repeated kInEachSet = list_by("PRstr_QoSAttribSetCount", 1);
  std::array<RecordField, kQoSSetRows + 3> rows{};
  rows[0] = {.name = "PRstr_FlowPriority", .bits = 4};
  rows[1] = {.name = "PRstr_QoSAttribSetCount", .bits = 3};
  for (std::size_t i = 0; i < kQoSSetRows; ++i) {
    rows[i + 2] = kQoSSetFields[i];
    rows[i + 2].repeat = kInEachSet;
  }
  rows.back() = {.name = "PRstr_ReserveBits", .width = to_octet(), .repeat = kInEachSet, .settable = false};
  return rows;
}();

/// What a request's profile holds, for people: attribute sets or FlowProfileIDs.
std::vector<DissectedField> dissect_requested_profile(std::size_t type, std::string_view whole, Extent profile);

/// Takes the profile apart into the properties of the attribute sets. Error 1 if the profile is not of type 1, or ends
/// before its last set.
void decode_profile_type_1(Record& record);
/// Makes ProfileType, ProfileLength and ProfileValue of these properties.
void set_profile(Record& record);

inline constexpr Refusal kDecodeRefusals[] = {
    {"ProfileType is not 1.", "call with another ProfileType"},
    {"Length of <ProfileValue> field is not correct.", "call for a profile that ends before its last set"}};
inline constexpr Refusal kProfileSetRefusals[] = {
    {"a verbose attribute set", "call with QoSAttribSetVerbose 1", ErrorNumber::InvalidCall}};

inline constexpr ValueOperation kQoSRequestOperations[] = {
    {"Decode_ProfileType1", decode_profile_type_1, "Takes the profile apart into priority and attribute sets.",
     kDecodeRefusals},
    {"ProfileSet", set_profile, "Makes the profile of priority and attribute sets.", kProfileSetRefusals},
};

/// Of the properties that Decode_ProfileType1 and ProfileSet go between: not sent themselves.
inline constexpr std::string_view kOfProfile = "SB_App_ValReservationKKQoSRequestRev";

inline constexpr RecordField kQoSRequestFields[] = {
    kValueIdField,
    kProfileTypeField,
    kProfileLengthField,
    profile_value(dissect_requested_profile),
    {.name = "PRstr_FlowPriority", .bits = 4, .sent = false, .source = kOfProfile, .summary = "Priority of the flow."},
    {.name = "PRstr_QoSAttribSetCount",
     .bits = 3,
     .sent = false,
     .source = kOfProfile,
     .summary = "The number of attribute sets."},
    {.name = "PRstr_ReserveBits",
     .width = to_octet(),
     .repeat = list_by("PRstr_QoSAttribSetCount", 1),
     .settable = false,
     .sent = false,
     .summary = "The bits that fill a set's last octet up."},
    {.name = "PRstr_QoSAttribSetLength",
     .bits = 4,
     .repeat = list_by("PRstr_QoSAttribSetCount", 1),
     .sent = false,
     .source = kOfProfile,
     .meaning = &kOctets,
     .summary = "Length of a set."},
    {.name = "PRstr_QoSAttribSetID",
     .bits = 7,
     .repeat = list_by("PRstr_QoSAttribSetCount", 1),
     .sent = false,
     .source = kOfProfile,
     .summary = "By which a response names the set that is granted; from 1."},
    {.name = "PRstr_QoSAttribSetVerbose",
     .bits = 1,
     .repeat = list_by("PRstr_QoSAttribSetCount", 1),
     .sent = false,
     .source = kOfProfile,
     .summary = "\"0\" for a set that is a FlowProfileID."},
    {.name = "PRstr_QoSAttribSetProfileID",
     .bits = 16,
     .repeat = list_by("PRstr_QoSAttribSetCount", 1),
     .sent = false,
     .source = kOfProfile,
     .meaning = &kHex,
     .summary = "FlowProfileID."},
};
inline constexpr ValueSpec kValReservationKKQoSReqFwd{.name = "SB_App_ValReservationKKQoSReqFwd",
                                                      .summary = "A value of ReservationKKQoSRequestFwd",
                                                      .clause = "4",
                                                      .fields = kQoSRequestFields,
                                                      .source = "SB_App_ValReservationKKQoSRequestFwd",
                                                      .tells_length = true,
                                                      .operations = kQoSRequestOperations};
using SB_App_ValReservationKKQoSReqFwd = ValueOf<kValReservationKKQoSReqFwd>;
inline constexpr ValueSpec kValReservationKKQoSReqRev{.name = "SB_App_ValReservationKKQoSReqRev",
                                                      .summary = "A value of ReservationKKQoSRequestRev",
                                                      .clause = "4",
                                                      .fields = kQoSRequestFields,
                                                      .source = "SB_App_ValReservationKKQoSRequestRev",
                                                      .tells_length = true,
                                                      .operations = kQoSRequestOperations};
using SB_App_ValReservationKKQoSReqRev = ValueOf<kValReservationKKQoSReqRev>;

// --- Responses

/// The granted set, in the first seven bits of the profile.
std::string_view granted_set(const Record& record, std::size_t index);
/// Makes a profile of type 1 that grants a set.
void let_granted_set(Record& record, std::size_t index, std::string_view bits);
std::vector<DissectedField> dissect_granted_profile(std::size_t type, std::string_view whole, Extent profile);

template <const std::string_view& Source>
inline constexpr RecordField kQoSResponseFields[] = {
    kValueIdField,
    kProfileTypeField,
    kProfileLengthField,
    profile_value(dissect_granted_profile),
    {.name = "PRstr_QoSAttribSetID",
     .bits = 7,
     .view = granted_set,
     .let = let_granted_set,
     .source = Source,
     .summary = "The granted attribute set, 0: none. Setting it makes the profile."},
};
inline constexpr std::string_view kResponseFwd = "SB_App_ValReservationKKQoSResponseFwd";
inline constexpr std::string_view kResponseRev = "SB_App_ValReservationKKQoSResponseRev";
inline constexpr ValueSpec kValReservationKKQoSRespFwd =
    app_value("SB_App_ValReservationKKQoSRespFwd", "A value of ReservationKKQoSResponseFwd",
              kQoSResponseFields<kResponseFwd>, kResponseFwd);
using SB_App_ValReservationKKQoSRespFwd = ValueOf<kValReservationKKQoSRespFwd>;
// Its record's fields answer with the name of the forward class.
inline constexpr ValueSpec kValReservationKKQoSRespRev =
    app_value("SB_App_ValReservationKKQoSRespRev", "A value of ReservationKKQoSResponseRev",
              kQoSResponseFields<kResponseRev>, kResponseFwd);
using SB_App_ValReservationKKQoSRespRev = ValueOf<kValReservationKKQoSRespRev>;

}  // namespace vorlan
