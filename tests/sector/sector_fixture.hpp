// A sector between a configuration and a test set that records.
#pragma once

#include <gtest/gtest.h>

#include "parameters/global_parameters.hpp"
#include "sector/recording_test_set.hpp"
#include "sector/sector.hpp"
#include "support/fake_platform.hpp"
#include "support/print_value.hpp"
#include "support/raised.hpp"

namespace vorlan::test {

struct SectorFixture : RecordingTestSet {
  SectorFixture() {
    configure();
    for (const auto& [property, object] : objects()) sector->set(property, object);
    sector->set("PRobj_GlobalParameters", Ref<Object>(parameters));
    sector->let("PR_intReferenceVelocity", std::int16_t{30});
    sector->let("PR_intNumPath", std::int16_t{2});
  }

  using Objects = std::vector<std::pair<std::string, Ref<Object>>>;
  [[nodiscard]] Objects objects() const {
    return {{"PRobj_TestSet", test_set},
            {"PRobj_TestReport", report},
            {"PRobj_FChCollection", forward},
            {"PRobj_AccChCollection", access},
            {"PRobj_SubType1AccChCollection", access1},
            {"PRobj_SubType2AccChCollection", access2},
            {"PRobj_RevTrafficChannel", reverse},
            {"PRobj_EvSignalling", signalling},
            {"PRobj_EvProtocolController", controller},
            {"PRobj_RadioChannelEmulator", emulator}};
  }

  void configure() {
    const auto integer = [this](std::string_view name, std::int16_t value) { parameters->let(name, value); };
    parameters->let("PRstr_PilotPN", "000001100");
    parameters->let("PRstr_SectorID", "11111111000000000000000000000101");
    parameters->let("PRstr_ColorCode", "00010001");
    parameters->let("PRstr_UATI", std::string(96, '1') + "00000000000000000000000100000001");
    std::int16_t next = 101;
    for (const char* name : {"PRint_PropagationDelay", "PRint_MACIndex", "PRint_DRCCover", "PRint_HandoffDelay",
                             "PRint_CCOffset", "PRint_RABLength", "PRint_RABOffset", "PRint_DRCLockPeriod",
                             "PRint_DRCLockLength", "PRint_MACIndex_SubType2"}) {
      integer(name, next++);
    }
    integer("PRint_RevTCHPropagationDelay", 120);
    integer("PRint_FrameOffset", 9);
    integer("PRint_StreamConfigured", 21);
    parameters->let("PRdbl_CCDataRate", 76.8);
    parameters->let("PRbln_SlotContentsState", true);
    parameters->let("PRbln_ARQMode", true);
    parameters->let("PRbln_FadingEnabled", true);
    parameters->let("PRsin_Ior", -55.5F);
    parameters->let("PRdbl_MAC_RPC_DRCLock_Channel_Ec_Ior", -7.25);
    parameters->let("PRdbl_MacRACEc_Ior", -9.5);
    parameters->let("PRdbl_MacARQEc_Ior", -11.5);
    for (const char* name :
         {"PRstr_TAS_DRCValue", "PRstr_TAS_DRCCover", "PRstr_TAS_ACKChannelBit", "PRstr_TAS_LoopBackPersistence"}) {
      parameters->let(name, "00000001");
    }
  }

  /// Personality 1 on channels of this subtype.
  void test_subtype(std::int16_t subtype) {
    parameters->let("PRint_ScriptPersonality", std::int16_t{1});
    sector->let("PRint_CurrentSubType", subtype);
  }
  [[nodiscard]] std::vector<std::string>& debug_lines() const { return system.debug->lines; }

  FakePlatform system;
  Ref<SB_GlobalParameters> parameters = make<SB_GlobalParameters>(system.platform);
  Ref<SB_Sector> sector = make<SB_Sector>(system.platform);
};

using Calls = std::vector<std::string>;

}  // namespace vorlan::test
