// Test applications, the bit sequence scripts and the 1x system beside the sector.
#include <array>

#include "parameters/parameter_spec.hpp"

namespace vorlan {

namespace {

constexpr std::array kRows{
    ParameterSpec{.name = "PRstr_TAS_DRCValue",
                  .bits = 8,
                  .writes_back = true,
                  .summary = "DRC value of the fixed mode; 0 to 12"},
    ParameterSpec{.name = "PRstr_TAS_DRCCover", .bits = 8, .summary = "DRC cover of the fixed mode; 0 to 7"},
    ParameterSpec{.name = "PRstr_TAS_ACKChannelBit", .bits = 8, .summary = "ACK channel bit of the fixed mode; 0 or 1"},
    ParameterSpec{.name = "PRstr_TAS_LoopBackPersistence",
                  .bits = 8,
                  .summary = "Whether loop-back outlives the connection; 0 or 1"},
    ParameterSpec{.name = "PRstr_TAS_RTAPTestPacketPersistence",
                  .bits = 8,
                  .summary = "Whether reverse test packets outlive the connection; 0 or 1"},
    ParameterSpec{.name = "PRstr_TAS_MinRate", .bits = 8, .summary = "Lowest reverse rate, an index; 0 to 5"},
    ParameterSpec{.name = "PRstr_TAS_MaxRate", .bits = 8, .summary = "Highest reverse rate, an index; 0 to 5"},
    ParameterSpec{.name = "PRbln_TAS_PacketLogging", .summary = "Whether test packets are logged"},

    ParameterSpec{.name = "PRint_ChannelForBitSequence",
                  .where = Where::Sector0Only,
                  .summary = "Channel that carries the bit sequence, an index"},
    ParameterSpec{.name = "PRint_BitSequence", .where = Where::Sector0Only, .summary = "The bit sequence, a number"},
    ParameterSpec{.name = "PRint_BitSequenceFixedBit",
                  .where = Where::Sector0Only,
                  .summary = "Bit sent outside the sequence; 0 or 1"},
    ParameterSpec{.name = "PRbln_BitSequenceRepeating",
                  .where = Where::Sector0Only,
                  .summary = "Whether the sequence starts again at its end"},
    ParameterSpec{.name = "PRint_BitSequenceDelay",
                  .where = Where::Sector0Only,
                  .summary = "Delay in front of the sequence in slots"},

    ParameterSpec{.name = "PRbln_Include_1X_Service",
                  .where = Where::Sector0,
                  .summary = "Whether a 1x system is emulated as well"},
    ParameterSpec{.name = "PRint_1XTestSet_Number", .where = Where::Sector0, .summary = "Number of the 1x test set"},
    ParameterSpec{.name = "PRint_1XChannelNumber", .where = Where::Sector0, .summary = "1x channel number; 0 to 2047"},
    ParameterSpec{.name = "PRint_1XBandClass", .where = Where::Sector0, .summary = "1x band class; 0 to 31"},
    ParameterSpec{.name = "PRint_1XPilotPN",
                  .where = Where::Sector0,
                  .summary = "1x pilot PN offset in units of 64 chips; 0 to 511"},
    ParameterSpec{.name = "PRint_1XIor", .where = Where::Sector0, .summary = "Level of the 1x forward channel in dBm"},
    ParameterSpec{.name = "PRint_1XSID", .where = Where::Sector0, .summary = "1x system identification; 0 to 32767"},
    ParameterSpec{.name = "PRint_1XNID", .where = Where::Sector0, .summary = "1x network identification; 0 to 32767"},
    ParameterSpec{.name = "PRint_1XP_REV", .where = Where::Sector0, .summary = "1x protocol revision; 1 to 11"},
    ParameterSpec{.name = "PRbln_UseBCCH_FCCCH",
                  .where = Where::Sector0,
                  .summary = "Whether 1x uses the broadcast and common control channels"},
};

}  // namespace

std::span<const ParameterSpec> test_parameters() noexcept { return kRows; }

}  // namespace vorlan
