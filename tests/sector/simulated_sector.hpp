// A sector of a simulated test set, with the configuration of the examples and a tap on every object in between.
#pragma once

#include <gtest/gtest.h>

#include "examples/session.hpp"
#include "sector/tap.hpp"
#include "simulator/script.hpp"
#include "support/listed.hpp"
#include "support/print_value.hpp"

namespace vorlan::test {

struct SimulatedSector : Script {
  static constexpr const char* kObjects[] = {"PRobj_TestSet",
                                             "PRobj_TestReport",
                                             "PRobj_FChCollection",
                                             "PRobj_AccChCollection",
                                             "PRobj_EvSignalling",
                                             "PRobj_SubType1AccChCollection",
                                             "PRobj_EvProtocolController",
                                             "PRobj_RevTrafficChannel",
                                             "PRobj_SubType2AccChCollection",
                                             "PRobj_RadioChannelEmulator"};

  SimulatedSector()
      : simulated(static_cast<simulator::TestSet*>(test_set.get())),
        parameters(examples::load_configuration(fake.platform, VORLAN_EXAMPLES "/sector.ini", "SECTOR 0")),
        sector(examples::connect(fake.platform, simulated, parameters)) {
    for (const char* property : kObjects) sector->set(property, tapped(sector->get(property).to_object()));
    sector->let("PRstr_SectorName", "SECTOR 0");
    sector->let("PR_intReferenceVelocity", i16(30));
    sector->let("PR_intNumPath", i16(2));
    parameters->let("PRstr_FileName", "");  // what a test sets is not written to the file
    parameters->let("PRbln_FadingEnabled", true);
    fake.debug->lines.clear();
  }

  /// What an operation of the sector raises.
  template <class... Arguments>
  Raised raised(std::string_view operation, const Arguments&... arguments) {
    return listed(*sector, raised_by([&] { sector->call(operation, arguments...); }));
  }
  Ref<Object> tapped(const Ref<Object>& object) { return make<Tap>(wire, object); }
  /// Personality 1 on channels of this subtype.
  void test_subtype(int subtype) {
    parameters->let("PRint_ScriptPersonality", i16(1));
    sector->let("PRint_CurrentSubType", i16(subtype));
  }

  /// A whole session without security.
  void run() {
    wire.take_calls();
    const Ref<Object> wired_signalling = tapped(signalling);
    sector->call("ConfigureFwdAndAccChannel", true, i16(0));
    sector->call("StartSessionNegotiationFromAN");
    sector->call("EndSessionNegotiationFromAN", i16(0));
    sector->call("AcquireReverseTrafficChannel");
    const auto reverse = make<SB_PROT_RevTrafficChannel>(fake.platform);
    reverse->call("Initialize", parameters, wired_signalling, wired_signalling->get("Messages"));
    reverse->call("NegotiateRateParametersAttribute");
    reverse->call("NegotiatePowerParametersAttribute");

    sector->call("EnableFading");
    sector->call("SetGainAndDelay", i16(1), -3.0, 0.0);
    sector->call("SetGainAndDelay", i16(2), -6.0, Null{});
    sector->call("NegotiateFTAP", true, true, false, false);
    sector->call("EnableFTAPTestPktFlow");
    sector->call("LowerLevel", 10.0F, i16(2));
    sector->call("RaiseLevel", 5.0F, i16(2));
    sector->call("DisableFTAPTestPktFlow");
    sector->call("SendFTAPClearStats");
    sector->call("DestoyFadingObjects");
    sector->call("CleanUp");
  }

  std::string report() { return part("TestReport")->get("Text").to_text(); }
  [[nodiscard]] std::string state() const { return terminal->get("State").to_text(); }
  Ref<Object> forward_channel(const char* key = "FC_SECTOR 0") {
    return part("ForwardChannels")->call("Item", key).to_object();
  }

  Wire wire;
  Ref<simulator::TestSet> simulated;
  Ref<Object> parameters;
  Ref<SB_Sector> sector;
};

}  // namespace vorlan::test
