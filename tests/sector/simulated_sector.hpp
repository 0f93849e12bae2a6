// A sector of a simulated test set, with the configuration of the examples.
#pragma once

#include <gtest/gtest.h>

#include "examples/session.hpp"
#include "simulator/script.hpp"

namespace vorlan::test {

struct SimulatedSector : Script {
  SimulatedSector()
      : simulated(static_cast<simulator::TestSet*>(test_set.get())),
        parameters(examples::load_configuration(fake.platform, VORLAN_EXAMPLES "/sector.ini", "SECTOR 0")),
        sector(examples::connect(fake.platform, simulated, parameters)) {
    sector->let("PRstr_SectorName", "SECTOR 0");
  }

  /// A whole session without security.
  void run() {
    sector->call("ConfigureFwdAndAccChannel", true, i16(0));
    sector->call("StartSessionNegotiationFromAN");
    sector->call("EndSessionNegotiationFromAN", i16(0));
    sector->call("AcquireReverseTrafficChannel");
    const auto reverse = make<SB_PROT_RevTrafficChannel>(fake.platform);
    reverse->call("Initialize", parameters, signalling, signalling->get("Messages"));
    reverse->call("NegotiateRateParametersAttribute");
    reverse->call("NegotiatePowerParametersAttribute");

    parameters->let("PRbln_FadingEnabled", true);
    sector->let("PR_intReferenceVelocity", i16(30));
    sector->let("PR_intNumPath", i16(2));
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
  Value of_trace(std::string_view what, int index) { return trace->get(what, i16(index)); }
  [[nodiscard]] int messages() const { return trace->get("Count").to_integer(); }
  /// Each message as "> label | octets", or "<" where the terminal sent it.
  std::vector<std::string> rungs() {
    std::vector<std::string> all;
    for (int i = 0; i < messages(); ++i) {
      const bool forward = of_trace("Direction", i).to_text() == "forward";
      all.push_back((forward ? "> " : "< ") + of_trace("Label", i).to_text() + " | " + of_trace("Octets", i).to_text());
    }
    return all;
  }
  std::string report() { return part("TestReport")->get("Text").to_text(); }
  [[nodiscard]] std::string state() const { return terminal->get("State").to_text(); }
  /// What the session leaves at the test set: as it was, but for the message that is kept.
  void expect_clean() {
    EXPECT_EQ(signalling->get("Filters").to_integer(), 0);
    EXPECT_EQ(signalling->get("Messages").to_object()->get("Keys"), Value(Value::Array{"ConfigurationCompleteMSG"}));
    for (const char* channels : {"ForwardChannels", "AccessChannels"}) {
      EXPECT_EQ(part(channels)->get("Count").to_integer(), 0) << channels;
    }
    EXPECT_FALSE(part("RadioChannelEmulator")->get("Enabled").to_boolean());
    EXPECT_FALSE(part("ProtocolController")->get("StartFTAPTestPktTx").to_boolean());
  }

  Ref<simulator::TestSet> simulated;
  Ref<Object> parameters;
  Ref<SB_Sector> sector;
};

}  // namespace vorlan::test
