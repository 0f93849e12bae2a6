// The errors that SB_Sector raises: a row each.
#pragma once

#include "sector/signalling.hpp"

namespace vorlan::sector_errors {

inline constexpr ErrorRow kNoParameters{
    "SB_Sector.PRobj_GlobalParameters",
    "Global Parameters object not set to the Sector. Please set <PRobj_GlobalParameters> property first.",
    "get before it is set; likewise in operations that need it"};

// Channels.
inline constexpr ErrorRow kForwardFailed{"SB_Sector.ConfigureFwdAndAccChannel",
                                         "Forward Channel could not be configured.",
                                         "whatever fails in configuring the forward channel"};
inline constexpr ErrorRow kAccessFailed{"SB_Sector.ConfigureFwdAndAccChannel",
                                        "Access Channel could not be configured.",
                                        "whatever fails in configuring the access channel"};
inline constexpr ErrorRow kLaterForwardFailed{
    "SB_Sector.ReConfigureFwdAndAccChannel", "Forward Channel could not be reconfigured.",
    "whatever fails in configuring the forward channel; another subtype than 1 and 2"};
inline constexpr ErrorRow kLaterAccessFailed{"SB_Sector.ReConfigureFwdAndAccChannel",
                                             "Access Channel could not be reconfigured.",
                                             "whatever fails in configuring the access channel"};
inline constexpr ErrorRow kShortSectorId{{},
                                         "PRstr_SectorID is too short",
                                         "ConfigureAccessChannel or ReConfigureAccessChannel with less than 24 bits",
                                         ErrorNumber::TypeMismatch};
inline constexpr ErrorRow kNoChannel{{},
                                     "the channel has not been configured",
                                     "access channels and fading, without a forward channel",
                                     ErrorNumber::ObjectNotSet};
inline constexpr ErrorRow kNotAcquired{"SB_Sector.AcquireReverseTrafficChannel", "Reverse Traffic acquisition failed.",
                                       "the terminal does not come within 15 s, or the call fails"};

// Levels.
inline constexpr ErrorRow kHighestLevel{"SB_Sector.RaiseLevel", "Power level cannot be raised above -50 dB",
                                        "the level before is above that"};
inline constexpr ErrorRow kLowestLevel{"SB_Sector.LowerLevel", "Power level cannot be reduced below -120 dB",
                                       "the level before is below that"};

// Session configuration.
inline constexpr ErrorRow kNoStart{"SB_Sector.StartSessionNegotiationFromAN",
                                   "Configuration Start Message could not be created.",
                                   "whatever fails in building it"};
// The source is another class's on purpose.
inline constexpr ErrorRow kNoResponse{
    "SB_DefaultSession.DefSessionNegotiation", "Configuration Response Message could not be created.",
    "StartSessionNegotiationFromAN, the terminal's ConfigurationRequest is malformed"};
inline constexpr ErrorRow kNoComplete{"SB_Sector.StartSessionNegotiationFromAN",
                                      "ConfigurationComplete Message not received from the Access Terminal.",
                                      "none comes within 2 s, or one that is cut short"};
inline constexpr ErrorRow kNoSoftComplete{"SB_Sector.EndSessionNegotiationFromAN",
                                          "Soft Configuration Complete Message could not be created.",
                                          "whatever fails in building it"};
inline constexpr ErrorRow kNoHardComplete{"SB_Sector.EndSessionNegotiationFromAN",
                                          "Configuration Complete Message could not be created.",
                                          "whatever fails in building it"};

// Fading.
inline constexpr ErrorRow kNoFadingObjects{"SB_Sector.EnableFading",
                                           "Could not create objects for RadioChannelVelocity and RadioChannelPaths.",
                                           "the emulator does not give them"};
inline constexpr ErrorRow kFadingDisabled{"SB_Sector.SetGainAndDelay",
                                          "This function will be called only when Fading is to be enabled",
                                          "PRbln_FadingEnabled of the configuration is False"};
inline constexpr ErrorRow kNoPath{
    "SB_Sector.SetGainAndDelay", {}, "a path that is not connected", ErrorNumber::SubscriptOutOfRange};
// The colon is part of the source.
inline constexpr ErrorRow kNoEmulator{
    "SB_Sector.DestoyFadingObjects:", "Could not create objects for RadioChannelEmulator",
    "PRobj_RadioChannelEmulator is Nothing"};

// Forward test application. The texts about the configuration end in a blank.
inline constexpr ErrorRow kDRCValueRange{"SB_Sector.NegotiateFTAP",
                                         "DRCValue invalid in script parameters. Valid range 0 to 12. ",
                                         "PRstr_TAS_DRCValue out of range"};
inline constexpr ErrorRow kDRCCoverRange{"SB_Sector.NegotiateFTAP",
                                         "DRCCover invalid in script parameters. Valid range 0 to 7. ",
                                         "PRstr_TAS_DRCCover out of range"};
inline constexpr ErrorRow kACKChannelBitRange{"SB_Sector.NegotiateFTAP",
                                              "Invalid ACKChannelBit in script parameters. Valid values 0 and 1. ",
                                              "PRstr_TAS_ACKChannelBit out of range"};
inline constexpr ErrorRow kLoopBackPersistenceRange{
    "SB_Sector.NegotiateFTAP", "Invalid LoopBackPersistence in script parameters. Valid values 0 and 1. ",
    "PRstr_TAS_LoopBackPersistence out of range"};
// The source is odd on purpose.
inline constexpr ErrorRow kNotAssigned{"18_6_4.Negotiate_FTAP",
                                       "FTAPParameterComplete not received in response to FTAPParameterAssignment",
                                       "NegotiateFTAP, the terminal does not answer within 3 s"};
inline constexpr ErrorRow kNotCleared{
    "SB_Sector.NegotiateFTAP",
    "AT did not clear its current statistics to 0 when requested through FTAPStatsClearRequest",
    "the terminal does not answer within 5 s"};

inline constexpr ErrorRow kAll[] = {
    kNoParameters,
    {"SB_Sector.PRint_GetATI", {}, "get of more than 2147483647", ErrorNumber::Overflow},
    kForwardFailed,
    kAccessFailed,
    kLaterForwardFailed,
    kLaterAccessFailed,
    kShortSectorId,
    kNoChannel,
    kNotAcquired,
    kHighestLevel,
    {"SB_Sector.RaiseLevel", {}, "33 s and more to settle, when the level is raised", ErrorNumber::Overflow},
    kLowestLevel,
    {"SB_Sector.LowerLevel", {}, "33 s and more to settle, when the level is lowered", ErrorNumber::Overflow},
    kNoStart,
    kNoResponse,
    kNoReceivedBits.from("SB_Sector.StartSessionNegotiationFromAN"),
    kNoComplete,
    kNoSoftComplete,
    kNoHardComplete,
    kNoFadingObjects,
    kFadingDisabled,
    kNoPath,
    kNoEmulator,
    kDRCValueRange,
    kDRCCoverRange,
    kACKChannelBitRange,
    kLoopBackPersistenceRange,
    kNotAssigned,
    kNotCleared,
    kNotCleared.from("SB_Sector.SendFTAPClearStats"),
};

}  // namespace vorlan::sector_errors
