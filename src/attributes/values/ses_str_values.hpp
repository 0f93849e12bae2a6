// Value records of the session and stream layers (C.S0024-A 5.4, 6).
#pragma once

#include "attributes/values/common_fields.hpp"

namespace vorlan {

inline constexpr RecordField kValPriorSessionFields[] = {
    kValueIdField,
    fixed("PRstr_Restore", 1, {}, nullptr, "\"1\" asks for the prior session and carries what identifies it."),
    {.name = "PRstr_Reserved",
     .width = to_octet(),
     .settable = false,
     .summary = "The bits that fill the octet of Restore up."},
    {.name = "PRstr_UATI",
     .bits = 128,
     .only = if_one("PRstr_Restore"),
     .meaning = &kHex,
     .summary = "The UATI of the prior session."},
    {.name = "PRstr_SecurityPacketLength",
     .bits = 8,
     .only = if_one("PRstr_Restore"),
     .meaning = &kOctets,
     .summary = "Length of the security packet."},
    {.name = "PRstr_SecurityPacket",
     .width = octets_of("PRstr_SecurityPacketLength"),
     .only = if_one("PRstr_Restore"),
     .meaning = &kHex,
     .summary = "The packet that the prior session's security protocol makes."},
};
inline constexpr ValueSpec kValPriorSession{.name = "SB_Ses_ValPriorSession",
                                            .summary = "A value of PriorSession",
                                            .clause = "5.4.7",
                                            .fields = kValPriorSessionFields,
                                            .tells_length = true};
using SB_Ses_ValPriorSession = ValueOf<kValPriorSession>;

inline constexpr Code kApplications[] = {{0x0000, "default signaling"},
                                         {0x0001, "default packet, access network"},
                                         {0x0002, "default packet, service network"},
                                         {0x0003, "test application"},
                                         {0x0004, "multi-flow packet, access network"},
                                         {0x0005, "multi-flow packet, service network"},
                                         {0x0006, "enhanced test application"},
                                         {0x0008, "enhanced multi-flow packet, access network"},
                                         {0x0009, "enhanced multi-flow packet, service network"},
                                         {0xFFFF, "not used"}};
inline constexpr Meaning kApplication{.codes = kApplications, .summary = "application subtype"};

inline constexpr RecordField kValStreamConfigFields[] = {
    kValueIdField,
    fixed("PRstr_Stream0Application", 16, {}, &kApplication, "What stream 0 carries."),
    fixed("PRstr_Stream1Application", 16, "1111111111111111", &kApplication, "What stream 1 carries."),
    fixed("PRstr_Stream2Application", 16, "1111111111111111", &kApplication, "What stream 2 carries."),
    fixed("PRstr_Stream3Application", 16, "1111111111111111", &kApplication, "What stream 3 carries."),
};
inline constexpr ValueSpec kValStreamConfig{.name = "SB_Str_ValStreamConfig",
                                            .summary = "A value of StreamConfiguration",
                                            .clause = "6",
                                            .fields = kValStreamConfigFields};
using SB_Str_ValStreamConfig = ValueOf<kValStreamConfig>;

}  // namespace vorlan
