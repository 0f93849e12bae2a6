// The emulated sector: band and channel, forward and control channels, access channel, levels.
#include <array>

#include "parameters/parameter_spec.hpp"

namespace vorlan {

namespace {

constexpr std::array kRows{
    ParameterSpec{.name = "PRint_BandClass", .where = Where::BaseStation, .summary = "Band class; 0 to 31"},
    ParameterSpec{.name = "PRint_ChannelNumber",
                  .where = Where::BaseStation,
                  .summary = "Channel number in the band class; 0 to 2047"},

    ParameterSpec{.name = "PRint_PropagationDelay", .summary = "Propagation delay of the forward channel in chips"},
    ParameterSpec{.name = "PRint_MACIndex", .summary = "MACIndex of physical layer subtypes 0 and 1; 5 to 63"},
    ParameterSpec{.name = "PRint_MACIndex_SubType2",
                  .key = "MACIndexSubType2",
                  .summary = "MACIndex of physical layer subtype 2; 5 to 127"},
    ParameterSpec{.name = "PRint_DRCCover", .summary = "DRC cover that the sector is assigned; 1 to 7"},
    ParameterSpec{.name = "PRint_HandoffDelay", .summary = "Delay of a handoff in slots"},
    ParameterSpec{.name = "PRint_CCOffset", .summary = "Control channel offset in slots; 0 to 3"},
    ParameterSpec{.name = "PRint_RABLength", .summary = "Reverse activity bit length; 0 to 3 = 8, 16, 32 or 64 slots"},
    ParameterSpec{.name = "PRint_RABOffset", .summary = "Reverse activity bit offset in eighths of its length; 0 to 7"},
    ParameterSpec{.name = "PRint_DRCLockPeriod", .summary = "DRCLock bits are sent every 8 (0) or 16 (1) slots"},
    ParameterSpec{.name = "PRint_DRCLockLength", .summary = "Repetitions of a DRCLock bit; 0 to 3 = 4, 8, 16 or 32"},
    ParameterSpec{.name = "PRint_SyncRate", .summary = "Rate of the synchronous control channel capsule, an index"},
    ParameterSpec{.name = "PRint_ControlMACIndex",
                  .summary = "MACIndex of the control channel; 2 or 3, 71 for subtype 2"},
    ParameterSpec{.name = "PRint_SubSyncCycleLength",
                  .summary = "Cycle of sub-synchronous capsules in control channel cycles"},
    ParameterSpec{.name = "PRint_DSCValue", .summary = "Data source control value; 1 to 7"},
    ParameterSpec{.name = "PRint_DSCLength", .summary = "Data source control length in units of 8 slots"},
    ParameterSpec{.name = "PRint_DRCLength",
                  .where = Where::BaseStation,
                  .summary = "Slots that a DRC value is repeated in; 0 to 3 = 1, 2, 4 or 8"},
    ParameterSpec{
        .name = "PRint_FrameOffset", .where = Where::BaseStation, .summary = "Frame offset in slots; 0 to 15"},
    ParameterSpec{.name = "PRdbl_CCDataRate", .summary = "Control channel data rate in kbit/s; 38.4 or 76.8"},
    ParameterSpec{.name = "PRdbl_FTCServingProbability",
                  .summary = "Probability that a slot serves the access terminal; 0 to 1"},
    ParameterSpec{.name = "PRbln_SlotContentsState", .summary = "Whether the test set reports the contents of slots"},
    ParameterSpec{.name = "PRbln_ARQMode", .summary = "Whether the forward channel of subtype 2 uses the ARQ channel"},

    ParameterSpec{.name = "PRint_CapsuleLengthMax", .summary = "Longest access capsule in frames; 2 to 15"},
    ParameterSpec{.name = "PRint_PowerStep",
                  .where = Where::BaseStation,
                  .summary = "Step between access probes in 0.5 dB; 0 to 15"},
    ParameterSpec{
        .name = "PRint_ProbeNumStep", .where = Where::BaseStation, .summary = "Access probes in a sequence; 1 to 15"},
    ParameterSpec{.name = "PRint_AccChPropogationDelay",
                  .where = Where::BaseStation,
                  .summary = "Propagation delay of the access channel in chips"},
    ParameterSpec{.name = "PRint_PreambleLength",
                  .where = Where::BaseStation,
                  .summary = "Preamble of an access probe in frames; 1 to 7"},
    ParameterSpec{.name = "PRint_AccChFramesToDecode",
                  .where = Where::BaseStation,
                  .summary = "Frames of an access probe that the test set decodes"},
    ParameterSpec{
        .name = "PRint_AccessCycleDuration", .where = Where::BaseStation, .summary = "Access cycle in slots; 0 to 255"},
    ParameterSpec{.name = "PRsin_OpenLoopAdjust",
                  .read = ReadAs::Integer,
                  .where = Where::BaseStation,
                  .summary = "Open-loop power estimate in -1 dB; 0 to 255"},
    ParameterSpec{.name = "PRsin_ProbeInitialAdjust",
                  .read = ReadAs::Integer,
                  .where = Where::BaseStation,
                  .summary = "Correction of the first access probe in dB; -16 to 15"},
    ParameterSpec{.name = "PRint_AccessOffset", .summary = "Offset of access probes in slots; 0 to 3"},
    ParameterSpec{.name = "PRint_PreambleLengthSlots",
                  .summary = "Preamble of an enhanced access probe in slots; 4 or 16"},

    ParameterSpec{.name = "PRsin_Ior", .summary = "Level of the forward channel in dBm"},
    ParameterSpec{.name = "PRdbl_MAC_RPC_DRCLock_Channel_Ec_Ior",
                  .key = "MacRPC_DRCLockEc_Ior",
                  .summary = "Share of the RPC and DRCLock channels in dB; 0 and below"},
    ParameterSpec{.name = "PRdbl_MacRACEc_Ior", .summary = "Share of the reverse activity channel in dB; 0 and below"},
    ParameterSpec{.name = "PRdbl_MacARQEc_Ior", .summary = "Share of the ARQ channel in dB; 0 and below"},
    ParameterSpec{.name = "PRsin_AWGNIor", .where = Where::BaseStation, .summary = "Level of the noise in dBm"},
    ParameterSpec{
        .name = "PRsin_AWGNBandWidth", .where = Where::BaseStation, .summary = "Bandwidth of the noise in MHz"},
    ParameterSpec{.name = "PRbln_FadingEnabled",
                  .initial = "False",
                  .summary = "Whether the radio channel emulator fades the sector's forward channel"},

    // Reads for a named sector ask for a key with a blank at its end, and in that sector's section.
    ParameterSpec{.name = "PRdbl_FwdFreqAdjustment",
                  .read = ReadAs::Long,
                  .where = Where::BaseStation,
                  .live_key = "FwdFreqAdjustment ",
                  .summary = "Correction of the forward frequency in Hz"},
    ParameterSpec{.name = "PRdbl_RevFreqAdjustment",
                  .read = ReadAs::Long,
                  .where = Where::BaseStation,
                  .live_key = "RevFreqAdjustment ",
                  .summary = "Correction of the reverse frequency in Hz"},
};

}  // namespace

std::span<const ParameterSpec> channel_parameters() noexcept { return kRows; }

}  // namespace vorlan
