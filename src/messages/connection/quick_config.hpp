// QuickConfig of the Overhead Messages Protocol (C.S0024-A 8.9.6.2.1).
#pragma once

#include "messages/message_of.hpp"

namespace vorlan {

namespace quick_config {
/// The low 24 bits of the sector's identifier.
std::string low_sector_id(Configuration& configuration);
}  // namespace quick_config

// RPCCount and ForTrafficValid are older names of RPCCount63To0 and ForwardTrafficValid63To0. The validity bits come
// one by one, and CreateMessage asks for as many as their count says, in the words of the name that was used last. The
// count for MACIndex 127 to 64 and its bits are sent only when a script asks for them: older terminals do not know
// them.
inline constexpr FieldSpec kQuickConfigFields[] = {
    {.name = "ColorCode", .bits = 8, .from = configured("PRstr_ColorCode")},
    {.name = "SectorID24",
     .bits = 24,
     .from = {.property = "PRstr_SectorID", .read = quick_config::low_sector_id, .at_create = true}},
    {.name = "SectorSignature", .bits = 16, .from = configured("PRstr_SectorSignature")},
    {.name = "AccessSignature", .bits = 16, .from = configured("PRstr_AccessSignature")},
    {.name = "PRstr_Redirect",
     .bits = 1,
     .wrong_length = "Length of <Redirect> field should be 1 bit.",
     .summary = "\"1\" if access terminals are redirected away from the sector."},
    {.name = "PRstr_RPCCount63To0",
     .bits = 6,
     .wrong_length = "Length of <RPCCount63To0> field should be 6 bits.",
     .summary = "Number of reverse power control channels with MACIndex 63 and below."},
    // Its errors name the property above; scripts compare that.
    {.name = "PRstr_RPCCount",
     .bits = 6,
     .sent = false,
     .same_as = "PRstr_RPCCount63To0",
     .wrong_length = "Length of <RPCCount> field should be 6 bits.",
     .source = "SB_Con_MsgQuickConfig.PRstr_Redirect",
     .summary = "Another name of RPCCount63To0."},
    {.name = "PRstr_ForwardTrafficValid63To0",
     .bits = 1,
     .starts_empty = true,
     .repeat = list_of("PRstr_RPCCount63To0"),
     .on_resize = OnResize::GrowByIndex,
     .wrong_length = "Length of <ForwardTrafficValid63To0> field should be 1 bit.",
     .too_few = "mstr_ForwardTrafficValid63To0() array chould have ",
     .summary = "\"1\" if the forward traffic channel of MACIndex 63 - Index is valid."},
    {.name = "PRstr_ForTrafficValid",
     .bits = 1,
     .repeat = list_of("PRstr_RPCCount"),
     .on_resize = OnResize::GrowByIndex,
     .sent = false,
     .same_as = "PRstr_ForwardTrafficValid63To0",
     .index_optional = true,
     .wrong_length = "Length of <ForTrafficValid> field should be 1 bit.",
     .too_few = "ForTrafficValid() array chould have ",
     .summary = "Another name of ForwardTrafficValid63To0."},
    {.name = "PRstr_RPCCount127To64Included",
     .bits = 1,
     .present = in_chain(),
     .wrong_length = "Length of <RPCCount127To64Included> field should be 1 bit.",
     .summary = "\"1\" if RPCCount127To64 and its validity bits are sent."},
    {.name = "PRstr_RPCCount127To64",
     .bits = 6,
     .present = is_one("PRstr_RPCCount127To64Included"),
     .wrong_length = "Length of <RPCCount127To64> field should be 6 bits.",
     .summary = "Number of reverse power control channels with MACIndex 127 to 64."},
    {.name = "PRstr_ForwardTrafficValid127To64",
     .bits = 1,
     .starts_empty = true,
     .present = is_one("PRstr_RPCCount127To64Included"),
     .repeat = list_of("PRstr_RPCCount127To64"),
     .on_resize = OnResize::GrowByIndex,
     .wrong_length = "Length of <ForwardTrafficValid127To64> field should be 1 bit.",
     .too_few = "mstr_ForwardTrafficValid127To64() array chould have ",
     .summary = "\"1\" if the forward traffic channel of MACIndex 127 - Index is valid."},
};
inline constexpr MessageSpec kQuickConfig{
    .name = "SB_Con_MsgQuickConfig",
    .summary = "What changes fast in a sector: its signatures and the forward traffic channels in use.",
    .clause = "8.9.6.2.1",
    .protocol = Protocol::OverheadMessages,
    .id = "00000000",
    .fields = kQuickConfigFields,
    .takes_sector = true,
    .padded = true,
    .not_initialized = "Class not initialized. Please call <Initialize> of QuickConfig Message first.",
    .in_encoder_mode = "Encoder and this property cannot be used simultaneously",
    .too_few_end = " valid elements.",
    .check_source = "SB_Con_QuickConfig.CreateMessage",
};
using SB_Con_MsgQuickConfig = MessageOf<kQuickConfig>;

}  // namespace vorlan
