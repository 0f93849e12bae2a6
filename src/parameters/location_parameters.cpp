// Location tests: the simulated satellites, the location server and its time limits.
#include <array>

#include "parameters/parameter_spec.hpp"

namespace vorlan {

namespace {

constexpr std::array kRows{
    ParameterSpec{.name = "PRdbl_Latitude_GPS", .where = Where::Location, .summary = "Latitude in degrees; -90 to 90"},
    ParameterSpec{
        .name = "PRdbl_Longitude_GPS", .where = Where::Location, .summary = "Longitude in degrees; -180 to 180"},
    ParameterSpec{.name = "PRlng_Height", .where = Where::Location, .summary = "Height in metres"},
    ParameterSpec{.name = "PRstr_GPSSystemStartDate",
                  .where = Where::Location,
                  .summary = "Date at which the satellites start, as the satellite simulator takes it"},
    ParameterSpec{.name = "PRstr_GPSSystemStartTime",
                  .where = Where::Location,
                  .summary = "Time of day at which the satellites start, as the satellite simulator takes it"},
    ParameterSpec{.name = "PRstr_BSScenario", .where = Where::Location, .summary = "Scenario of the base station"},
    ParameterSpec{.name = "PRdbl_DeltaT", .where = Where::Location, .summary = "Time offset in seconds"},
    ParameterSpec{.name = "PRdbl_USRCBLGPS", .where = Where::Location, .summary = "Loss of the user's GPS cable in dB"},
    ParameterSpec{.name = "PRdbl_USRCBLBC0",
                  .where = Where::Location,
                  .summary = "Loss of the user's cable in band class 0 in dB"},
    ParameterSpec{.name = "PRdbl_USRCBLBC1",
                  .where = Where::Location,
                  .summary = "Loss of the user's cable in band class 1 in dB"},
    ParameterSpec{.name = "PRdbl_TXReferenceLevel",
                  .key = "TX Reference Level",
                  .where = Where::Location,
                  .summary = "Reference level of the transmitter in dBm"},
    ParameterSpec{.name = "PRdbl_TXLevelStep",
                  .key = "TX Level Step",
                  .where = Where::Location,
                  .summary = "Level step of the transmitter in dB"},
    ParameterSpec{
        .name = "PRstr_NavLabHostName", .where = Where::Location, .summary = "Computer that simulates the satellites"},
    ParameterSpec{.name = "PRint_NavlabRefPowerLevel",
                  .where = Where::Location,
                  .summary = "Reference power of the satellites in dBm"},
    ParameterSpec{.name = "PRint_TapRciPort", .where = Where::Location, .summary = "TCP port; 1 to 32767"},
    ParameterSpec{.name = "PRint_TapSrvPort", .where = Where::Location, .summary = "TCP port; 1 to 32767"},
    ParameterSpec{
        .name = "PRint_TCPIPPort", .where = Where::Location, .summary = "TCP port of the location server; 1 to 32767"},
    ParameterSpec{.name = "PRbln_TCP_Service", .where = Where::Location, .summary = "Whether the location server runs"},
    ParameterSpec{.name = "PRbln_ManualDataEntryRequired",
                  .where = Where::Location,
                  .summary = "Whether the operator enters the data"},
    ParameterSpec{.name = "PRbln_CheckMSInfo",
                  .where = Where::Location,
                  .summary = "Whether the terminal's location abilities are checked"},
    ParameterSpec{
        .name = "PRbln_MSSupportsLoc", .where = Where::Location, .summary = "Whether the terminal can be located"},
    ParameterSpec{.name = "PRbln_AckEveryNavlabMsg",
                  .where = Where::Location,
                  .summary = "Whether every message of the satellite simulator is acknowledged"},
    ParameterSpec{.name = "PRlng_MSInfoTimeOut",
                  .where = Where::Location,
                  .summary = "Time for the terminal's abilities in seconds"},
    ParameterSpec{.name = "PRlng_PseudoRangeTimeOut",
                  .where = Where::Location,
                  .summary = "Time for a pseudo-range measurement in seconds"},
    ParameterSpec{.name = "PRlng_PilotphaseTimeOut",
                  .where = Where::Location,
                  .summary = "Time for a pilot phase measurement in seconds"},
    ParameterSpec{.name = "PRlng_LocationRespTimeOut",
                  .where = Where::Location,
                  .summary = "Time for a location response in seconds"},
};

}  // namespace

std::span<const ParameterSpec> location_parameters() noexcept { return kRows; }

}  // namespace vorlan
