// SB_Sector as scripts see it.
#include "sector/sector.hpp"
#include "sector/sector_errors.hpp"

namespace vorlan {

ClassInfo::Texts SB_Sector::texts() noexcept {
  return {"SB_Sector", "One emulated sector: channels, levels, fading, test packets and session configuration", ""};
}

namespace {

using S = SB_Sector;
using H = SB_Sector::Held;

template <H Which>
constexpr BoundMember reads(std::string_view name, std::string_view summary) {
  return property<&S::object<Which>>(name, summary);
}
template <H Which>
constexpr BoundMember reads_and_sets(std::string_view name, std::string_view summary) {
  return property<&S::object<Which>, &S::set_object<Which>>(name, summary);
}

constexpr std::array kMembers{
    property<&S::global_parameters, &S::set_global_parameters>("PRobj_GlobalParameters",
                                                               "Configuration of the sector, an SB_GlobalParameters"),
    property<&S::sector_name, &S::set_sector_name>("PRstr_SectorName", "\"SECTOR 0\" to \"SECTOR 5\""),
    property<&S::current_subtype, &S::set_current_subtype>("PRint_CurrentSubType",
                                                           "Physical layer subtype of the channels in use; 0 to 2"),
    property<&S::expects_connection_request, &S::set_expects_connection_request>(
        "PRbln_ReceiveConnReqInSessionSetup", "Whether a ConnectionRequest is expected during session set-up"),
    // Misspelt on purpose.
    property<&S::connection_request_received, &S::set_connection_request_received>(
        "PRbln_IsConnReqReceivedInSesstionSetup", "Whether a ConnectionRequest came during session set-up"),
    property<&S::connection_request_time, &S::set_connection_request_time>("PRdte_ConnReqReceivedTime",
                                                                           "When that ConnectionRequest came"),

    reads_and_sets<H::TestSet>("PRobj_TestSet", "The test set"),
    reads_and_sets<H::ParentTestSet>("PRobj_ParentTestSet", "The test set, where PRobj_TestSet is Nothing"),
    reads_and_sets<H::TestReport>("PRobj_TestReport", "The test report"),
    reads_and_sets<H::EvSignalling>("PRobj_EvSignalling", "The test set's signalling object"),
    reads_and_sets<H::EvProtocolController>("PRobj_EvProtocolController", "The test set's protocol controller"),
    reads_and_sets<H::FChCollection>("PRobj_FChCollection", "The test set's forward channels"),
    reads_and_sets<H::RCHCollection>("PRobj_RCHCollection", "The test set's reverse traffic channels"),
    reads_and_sets<H::AccChCollection>("PRobj_AccChCollection", "The test set's access channels"),
    reads_and_sets<H::SubType1AccChCollection>("PRobj_SubType1AccChCollection", "Its access channels of subtype 1"),
    reads_and_sets<H::SubType2AccChCollection>("PRobj_SubType2AccChCollection", "Its access channels of subtype 2"),
    reads<H::ForwardChannel>("PRobj_ForwardChannel", "Forward channel, once it is configured"),
    reads<H::SubType1ForwardChannel>("PRobj_SubType1ForwardChannel", "Forward channel of subtype 1"),
    reads<H::SubType2ForwardChannel>("PRobj_SubType2ForwardChannel", "Forward channel of subtype 2"),
    property<&S::subtype2_configured, &S::set_subtype2_configured>(
        "PRbln_SubType2ForwardChannelConfigured", "Whether the forward channel of subtype 2 is configured"),
    reads<H::AccessChannel>("PRobj_AccessChannel", "Access channel, once it is configured"),
    reads<H::SubType1AccessChannel>("PRobj_SubType1AccessChannel", "Access channel of subtype 1"),
    reads<H::SubType2AccessChannel>("PRobj_SubType2AccessChannel", "Access channel of subtype 2"),
    reads_and_sets<H::RevTrafficChannel>("PRobj_RevTrafficChannel", "Reverse traffic channel"),
    reads_and_sets<H::SubType1RevTrafficChannel>(
        "PRobj_SubType1RevTrafficChannel", "Reverse traffic channel of subtype 1; Nothing: PRobj_RevTrafficChannel"),
    reads_and_sets<H::SubType2RevTrafficChannel>(
        "PRobj_SubType2RevTrafficChannel", "Reverse traffic channel of subtype 2; Nothing: PRobj_RevTrafficChannel"),

    reads_and_sets<H::RadioChannelEmulator>("PRobj_RadioChannelEmulator", "The test set's radio channel emulator"),
    reads<H::RadioChannelVelocity>("PRobj_RadioChannelVelocity", "The emulator's velocity, once fading is enabled"),
    reads<H::RadioChannelPaths>("PRobj_RadioChannelPaths", "The emulator's fading paths, once fading is enabled"),
    property<&S::reference_velocity, &S::set_reference_velocity>("PR_intReferenceVelocity", "Velocity in km/h"),
    property<&S::path_count, &S::set_path_count>("PR_intNumPath", "Number of fading paths; 1 to 8"),
    property<&S::automatic_test_packets, &S::set_automatic_test_packets>(
        "PRbln_FTAPTestPktTxAutoOn", "Whether NegotiateFTAP has test packets start by themselves; True at first"),

    property<&S::last_transaction_id>("PRint_LastTransactionIDFromAT",
                                      "TransactionID of the last ConfigurationComplete received; remembered, else 1"),
    property<&S::preferred_cycle, &S::set_preferred_cycle>("PRlng_MRUPrefControlChannelCycle",
                                                           "Preferred control channel cycle; remembered, else -1"),
    property<&S::access_terminal_identifier>("PRint_GetATI", "Access terminal identifier of the configuration's UATI"),

    method<&S::ConfigureFwdAndAccChannel>("ConfigureFwdAndAccChannel", "configureAccess, argument",
                                          "Configures the forward channel and, if asked, the access channel"),
    method<&S::ReConfigureFwdAndAccChannel>("ReConfigureFwdAndAccChannel", "configureAccess, argument",
                                            "The same for the channels of the current subtype, 1 or 2"),
    method<&S::ConfigureAccessChannel>("ConfigureAccessChannel", "forwardChannel",
                                       "Makes the access channel and attaches it to the forward channel"),
    method<&S::ReConfigureAccessChannel>("ReConfigureAccessChannel", "forwardChannel",
                                         "The same for the channels of the current subtype, 1 or 2"),
    method<&S::AcquireReverseTrafficChannel>("AcquireReverseTrafficChannel", "",
                                             "Waits for the access terminal on the reverse traffic channel"),
    method<&S::RaiseLevel>("RaiseLevel", "stepdB, settleSeconds", "Raises the forward channel's level"),
    method<&S::LowerLevel>("LowerLevel", "stepdB, settleSeconds", "Lowers the forward channel's level"),
    method<&S::StartSessionNegotiationFromAN>(
        "StartSessionNegotiationFromAN", "",
        "Opens the session configuration, accepts what the access terminal proposes, waits until it is complete"),
    method<&S::EndSessionNegotiationFromAN>("EndSessionNegotiationFromAN", "transactionID",
                                            "Closes the session configuration from the access network's side"),
    method<&S::ClearSessionInfo>("ClearSessionInfo", "", "Forgets what is remembered of security and idle state"),
    method<&S::Enable>("Enable", "", "Applies the configuration on the test set"),
    method<&S::CleanUp>("CleanUp", "", "Removes the sector's channels from the test set"),
    method<&S::ValidateAndCorrectLength>("ValidateAndCorrectLength", "bits, width, maximum",
                                         "Whether a value is at most the maximum; it is then rewritten in this width"),

    method<&S::EnableFading>("EnableFading", "", "Connects the fading paths and switches the emulator on"),
    method<&S::SetGainAndDelay>("SetGainAndDelay", "path, gain, delay", "Gain in dB and delay in microseconds"),
    // Misspelt on purpose.
    method<&S::DestoyFadingObjects>("DestoyFadingObjects", "", "Lets go of the fading paths and resets the emulator"),
    method<&S::NegotiateFTAP>("NegotiateFTAP", "drcValue, drcCover, ackChannelBit, loopBackPersistence",
                              "Assigns the test application's parameters and clears its statistics"),
    method<&S::SendFTAPClearStats>("SendFTAPClearStats", "", "Has the access terminal clear its statistics"),
    method<&S::EnableFTAPTestPktFlow>("EnableFTAPTestPktFlow", "", "Starts the forward test packets"),
    method<&S::DisableFTAPTestPktFlow>("DisableFTAPTestPktFlow", "", "Stops the forward test packets"),
};

}  // namespace

std::span<const BoundMember> SB_Sector::members() noexcept { return kMembers; }

std::vector<ErrorInfo> SB_Sector::errors() {
  std::vector<ErrorInfo> list;
  list_errors(list, texts().name, sector_errors::kAll);
  TestSetAccess::list_errors(list, texts().name);
  return list;
}

}  // namespace vorlan
