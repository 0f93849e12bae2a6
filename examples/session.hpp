// A whole session of the simulated test set in C++: what examples/session.py does, as a program and for the benchmarks.
#pragma once

#include "parameters/global_parameters.hpp"
#include "sector/reverse_traffic_channel.hpp"
#include "sector/sector.hpp"
#include "security/security.hpp"
#include "simulator/test_set.hpp"

namespace vorlan::examples {

/// A sector of the test set: every object that it works with is handed to it once.
inline Ref<SB_Sector> connect(Platform& platform, const Ref<simulator::TestSet>& test_set,
                              const Ref<Object>& parameters) {
  using Held = SB_Sector::Held;
  const Ref<SB_Sector> sector = make<SB_Sector>(platform);
  sector->set_global_parameters(parameters);
  sector->set_object<Held::TestSet>(test_set);
  sector->set_object<Held::TestReport>(test_set->test_report());
  sector->set_object<Held::FChCollection>(test_set->forward_channels());
  sector->set_object<Held::RCHCollection>(test_set->reverse_traffic_channels());
  sector->set_object<Held::AccChCollection>(test_set->access_channels());
  sector->set_object<Held::SubType1AccChCollection>(test_set->subtype1_access_channels());
  sector->set_object<Held::SubType2AccChCollection>(test_set->subtype2_access_channels());
  sector->set_object<Held::RevTrafficChannel>(
      test_set->reverse_traffic_channels()->call("Item", "RTC_SECTOR 0").to_object());
  sector->set_object<Held::EvSignalling>(test_set->signalling());
  sector->set_object<Held::EvProtocolController>(test_set->protocol_controller());
  sector->set_object<Held::RadioChannelEmulator>(test_set->radio_channel_emulator());
  return sector;
}

/// Generic security, a Diffie-Hellman key exchange with 1024 bits, and SHA-1 authentication.
inline void secure(Platform& platform, SB_Sector& sector) {
  using Family = SecurityFamilyId;
  constexpr std::int16_t kSessionKeyBits = 1024;
  constexpr std::int32_t kAuthenticationKeyBits = 160;
  const Ref<Object> parameters = sector.global_parameters();
  for (const char* type : {"PRint_SecurityType", "PRint_KeyXChangeType", "PRint_AuthenticationType"}) {
    parameters->let(type, std::int16_t{1});
  }
  parameters->let("PRint_SKeyLength", kSessionKeyBits);
  parameters->let("PRlng_AuthKeyLength", kAuthenticationKeyBits);
  SB_Security security(platform);
  security.Initialise(Ref<Object>(&sector));
  security.configure_family<Family::Security>();
  security.configure_family<Family::KeyXChange>();
  security.configure_family<Family::Authentication>();
  security.configure_family<Family::Encryption>();

  security.protocol<kGenericSecurity>()->call("NegotiateProtocolSubtype");
  const Ref<Object> exchange = security.protocol<kDHKeyXChange>();
  exchange->call("NegotiateProtocolSubtype");
  exchange->call("NegotiateSKeyLength", kSessionKeyBits);
  exchange->call("ExecuteDHKeyXChange");
  const Ref<Object> authentication = security.protocol<kSHA1Authentication>();
  authentication->call("NegotiateProtocolSubtype");
  authentication->call("NegotiateAuthKeyLength", kAuthenticationKeyBits);
  security.protocol<kDefaultEncryption>()->call("NegotiateProtocolSubtype");
}

inline void run_session(Platform& platform, const Ref<simulator::TestSet>& test_set, SB_Sector& sector,
                        bool secured = true) {
  sector.ConfigureFwdAndAccChannel(true, std::int16_t{0});

  // The access network opens the session configuration, the terminal proposes, and both complete.
  sector.StartSessionNegotiationFromAN();
  std::int16_t transaction = 0;
  sector.EndSessionNegotiationFromAN(transaction);

  if (secured) secure(platform, sector);

  sector.AcquireReverseTrafficChannel();
  SB_PROT_RevTrafficChannel reverse(platform);
  reverse.Initialize(sector.global_parameters(), test_set->signalling(), test_set->signalling()->get("Messages"));
  reverse.NegotiateRateParametersAttribute();
  reverse.NegotiatePowerParametersAttribute();

  sector.global_parameters()->let("PRbln_FadingEnabled", true);
  sector.set_reference_velocity(30);
  sector.set_path_count(2);
  sector.EnableFading();
  sector.SetGainAndDelay(1, -3.0, 0.0);
  sector.SetGainAndDelay(2, -6.0, Null{});

  // Forward test packets with a fixed DRC value and cover.
  sector.NegotiateFTAP(true, true, false, false);
  sector.EnableFTAPTestPktFlow();
  sector.LowerLevel(10.0F, 2);
  sector.RaiseLevel(5.0F, 2);
  sector.DisableFTAPTestPktFlow();
  sector.SendFTAPClearStats();

  sector.DestoyFadingObjects();
  sector.CleanUp();
}

inline Ref<Object> load_configuration(Platform& platform, const std::string& parameter_file,
                                      const std::string& sector_name) {
  const Ref<SB_GlobalParameters> parameters = make<SB_GlobalParameters>(platform);
  parameters->set_file_name(parameter_file);
  parameters->Initialize(sector_name);
  return parameters;
}

}  // namespace vorlan::examples
