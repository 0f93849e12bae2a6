// Reverse traffic channel, session set-up and security.
#include <array>

#include "parameters/parameter_spec.hpp"

namespace vorlan {

namespace {

bool is_session_key_length(const Value& value) {
  const std::int16_t bits = value.to_integer();
  return bits == 768 || bits == 1024;
}
bool is_authentication_key_length(const Value& value) {
  const std::int32_t bits = value.to_long();
  return bits >= 0 && bits <= 65535;
}

constexpr std::array kRows{
    ParameterSpec{.name = "PRint_RevTCHPropagationDelay",
                  .where = Where::BaseStation,
                  .summary = "Propagation delay of the reverse traffic channel in chips"},
    ParameterSpec{.name = "PRbln_DRCLogging", .where = Where::BaseStation, .summary = "Whether DRC values are logged"},
    ParameterSpec{.name = "PRbln_RRILogging",
                  .where = Where::BaseStation,
                  .summary = "Whether reverse rate indications are logged"},
    ParameterSpec{.name = "PRbln_DRCGating",
                  .live_key = "DRCGating ",
                  .summary = "Whether the access terminal gates its DRC channel"},
    ParameterSpec{.name = "PRint_Transition009k6_019k2",
                  .summary = "Probability of a step up from 9.6 kbit/s in 1/255; 0 to 255"},
    ParameterSpec{.name = "PRint_Transition019k2_038k4",
                  .summary = "Probability of a step up from 19.2 kbit/s in 1/255; 0 to 255"},
    ParameterSpec{.name = "PRint_Transition038k4_076k8",
                  .summary = "Probability of a step up from 38.4 kbit/s in 1/255; 0 to 255"},
    ParameterSpec{.name = "PRint_Transition076k8_153k6",
                  .summary = "Probability of a step up from 76.8 kbit/s in 1/255; 0 to 255"},
    ParameterSpec{.name = "PRint_Transition019k2_009k6",
                  .summary = "Probability of a step down from 19.2 kbit/s in 1/255; 0 to 255"},
    ParameterSpec{.name = "PRint_Transition038k4_019k2",
                  .summary = "Probability of a step down from 38.4 kbit/s in 1/255; 0 to 255"},
    ParameterSpec{.name = "PRint_Transition076k8_038k4",
                  .summary = "Probability of a step down from 76.8 kbit/s in 1/255; 0 to 255"},
    ParameterSpec{.name = "PRint_Transition153k6_076k8",
                  .summary = "Probability of a step down from 153.6 kbit/s in 1/255; 0 to 255"},
    ParameterSpec{.name = "PRint_DataOffsetNom", .summary = "Nominal data channel offset in 0.5 dB; -8 to 7"},
    ParameterSpec{.name = "PRint_DataOffset9k6", .summary = "Data channel offset at 9.6 kbit/s in 0.25 dB; -8 to 7"},
    ParameterSpec{.name = "PRint_DataOffset19k2", .summary = "Data channel offset at 19.2 kbit/s in 0.25 dB; -8 to 7"},
    ParameterSpec{.name = "PRint_DataOffset38k4", .summary = "Data channel offset at 38.4 kbit/s in 0.25 dB; -8 to 7"},
    ParameterSpec{.name = "PRint_DataOffset76k8", .summary = "Data channel offset at 76.8 kbit/s in 0.25 dB; -8 to 7"},
    ParameterSpec{.name = "PRint_DataOffset153k6",
                  .summary = "Data channel offset at 153.6 kbit/s in 0.25 dB; -8 to 7"},
    ParameterSpec{.name = "PRint_RPCStep", .summary = "Reverse power control step; 0 = 0.5 dB, 1 = 1 dB"},

    ParameterSpec{.name = "PRint_SessionSetupTimeout", .summary = "Time for a session to be set up in seconds"},
    ParameterSpec{.name = "PRint_StreamType", .summary = "Application on the tested stream, an application subtype"},
    ParameterSpec{.name = "PRint_StreamConfigured",
                  .initial = "21",
                  .summary = "Protocol type of the stream that carries test packets; 20 to 23 = stream 0 to 3"},
    ParameterSpec{.name = "PRint_PersonalityCount", .summary = "Personalities that a session negotiates; 1 to 16"},
    ParameterSpec{.name = "PRint_ScriptPersonality",
                  .summary = "Personality that the script tests; 0 = default protocols"},
    ParameterSpec{.name = "PRint_BSOverheadConfig", .summary = "Set of overhead messages that the base station sends"},
    ParameterSpec{.name = "PRbln_SendOverheadWithNewSubnet",
                  .summary = "Whether overhead messages announce another subnet"},
    ParameterSpec{.name = "PRbln_Include_UATISubnet", .summary = "Whether UATIAssignment carries the subnet"},

    ParameterSpec{.name = "PRint_SKeyLength",
                  .key = "SessionKeyLength",
                  .valid = is_session_key_length,
                  .where = Where::BaseStation,
                  .label = "SessionKeyLength [Valid values: 768/1024]",
                  .summary = "Session key length in bits; 768 or 1024"},
    ParameterSpec{.name = "PRlng_AuthKeyLength",
                  .key = "AuthenticationKeyLength",
                  .valid = is_authentication_key_length,
                  .where = Where::BaseStation,
                  .label = "AuthenticationKeyLength [Valid range: 0 to 65535]",
                  .summary = "Authentication key length in bits; 0 to 65535"},
    ParameterSpec{.name = "PRint_SecurityType",
                  .where = Where::BaseStation,
                  .initial = "0",
                  .summary = "Security protocol; 0 = default, 1 = generic"},
    ParameterSpec{.name = "PRint_KeyXChangeType",
                  .where = Where::BaseStation,
                  .initial = "0",
                  .summary = "Key exchange protocol; 0 = default, 1 = Diffie-Hellman"},
    ParameterSpec{.name = "PRint_AuthenticationType",
                  .where = Where::BaseStation,
                  .initial = "0",
                  .summary = "Authentication protocol; 0 = default, 1 = SHA-1"},
    ParameterSpec{.name = "PRint_EncryptionType",
                  .where = Where::BaseStation,
                  .initial = "0",
                  .summary = "Encryption protocol; 0 = default"},
};

}  // namespace

std::span<const ParameterSpec> traffic_parameters() noexcept { return kRows; }

}  // namespace vorlan
