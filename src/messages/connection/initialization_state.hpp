// Sync of the Initialization State Protocol (C.S0024-A 8.3.6.2.1).
#pragma once

#include "codec/meanings.hpp"
#include "messages/connection/system_time.hpp"
#include "messages/message_of.hpp"

namespace vorlan {

// Its MessageID has 2 bits, and it is 64 bits long without padding.
inline constexpr FieldSpec kSyncFields[] = {
    {.name = "MaximumRevision", .bits = 8, .from = configured("PRstr_MaximumRevision")},
    {.name = "MinimumRevision", .bits = 8, .from = configured("PRstr_MinimumRevision")},
    {.name = "PilotPN", .bits = 9, .from = configured("PRstr_PilotPN"), .meaning = &kPilotPN},
    {.name = "SystemTime",
     .bits = 37,
     .initial = "0000000000000000000000000000000001111",
     .constant = true,
     .meaning = &kTimeInFrames},
};
inline constexpr MessageSpec kSync{
    .name = "SB_Con_MsgSync",
    .summary = "The sector's revision, pilot and time, by which an access terminal acquires it.",
    .clause = "8.3.6.2.1",
    .protocol = Protocol::InitializationState,
    .id = "00",
    .fields = kSyncFields,
    .takes_sector = true,
    .not_initialized = "Class not initialized. Please call <Initialize> of Sync Message first.",
};
using SB_Con_MsgSync = MessageOf<kSync>;

}  // namespace vorlan
