// Tests that run without an operator: the computer of the access terminal, its dial-up connection, file transfers.
#include <array>

#include "parameters/parameter_spec.hpp"

namespace vorlan {

namespace {

constexpr ParameterSpec row(std::string_view name, std::string_view summary) {
  return {.name = name, .where = Where::Automation, .summary = summary};
}

constexpr std::array kRows{
    row("PRbln_Automate", "Whether a test runs without an operator"),
    row("PRbln_SkipDataCallSetupAutomation", "Whether the operator sets up data calls nevertheless"),
    row("PRbln_SkipFileTransferAutomation", "Whether the operator transfers files nevertheless"),
    row("PRstr_DMTool", "Diagnostic monitor that controls the access terminal"),
    row("PRstr_UEConnectionType", "How the access terminal is connected; AUTOMODE or MANUALMODE"),
    row("PRstr_RemoteMachineName", "Computer that the access terminal is connected to"),
    row("PRstr_ATKeySeqFileName", "File of key sequences for the access terminal"),
    row("PRstr_ControllerMachineName", "Computer that controls the test"),
    row("PRstr_DialUpUserName", "User name of the dial-up connection"),
    row("PRstr_DialUpUserPassword", "Password of the dial-up connection"),
    row("PRstr_UserNameBrowserCall", "User name of a browser call"),
    row("PRstr_PasswordBrowserCall", "Password of a browser call"),
    row("PRstr_UserNameAccessStreamCall", "User name of an access stream call"),
    row("PRstr_PasswordAccessStreamCall", "Password of an access stream call"),
    row("PRstr_DialUpUserDomain", "Domain of the dial-up connection"),
    row("PRstr_PhoneBookEntryName", "Name of the phone book entry"),
    row("PRstr_PhoneNumber", "Number that is dialled"),
    row("PRlng_PhoneBookEntryBaudRate", "Speed of the phone book entry in bit/s"),
    row("PRbln_SoftwareCompression", "Whether software compression is used"),
    row("PRbln_DisableLCPExtension", "Whether LCP extensions are left out"),
    row("PRbln_IPHeaderCompression", "Whether IP headers are compressed"),
    row("PRstr_ModemPortName", "Port of the modem"),
    row("PRlng_MaximumPortSpeed", "Highest speed of the port in bit/s"),
    row("PRbln_HardwareFlowControl", "Whether the port uses hardware flow control"),
    row("PRstr_ATExtraSettings", "Further modem commands"),
    row("PRstr_PPPAuthenticationType", "PPP authentication; PAP, CHAP or NONE"),
    row("PRbln_UseBlankDialup", "Whether user name and password are left out"),
    row("PRint_CallInitiationTimeOut", "Time for a call to be set up in seconds"),
    row("PRstr_FTPUser", "User name for file transfers"),
    row("PRstr_FTPPassword", "Password for file transfers"),
    row("PRstr_UploadFileSource", "File that is sent"),
    row("PRstr_UploadFileDestination", "Where the sent file goes"),
    row("PRint_UploadFileTimeout", "Time for sending the file in seconds"),
    row("PRstr_DownloadFileSource", "File that is fetched"),
    row("PRstr_DownloadFileDestination", "Where the fetched file goes"),
    row("PRint_DownloadFileTimeout", "Time for fetching the file in seconds"),
};

}  // namespace

std::span<const ParameterSpec> automation_parameters() noexcept { return kRows; }

}  // namespace vorlan
