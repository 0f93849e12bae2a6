// The configuration of a sector: what is read from where, and what is raised.
#include <gtest/gtest.h>

#include "parameters/fake_reader.hpp"
#include "parameters/global_parameters.hpp"
#include "support/fake_platform.hpp"
#include "support/print_value.hpp"
#include "support/raised.hpp"
#include "support/recording_object.hpp"
#include "support/temporary_folder.hpp"

namespace vorlan {
namespace {

using Lines = std::vector<std::string>;

class Configured : public ::testing::Test {
 protected:
  Configured() {
    fake_.platform.create_foreign_object = [this](std::string_view name) {
      EXPECT_EQ(name, "ReadINI.ParameterFunctions");
      ++readers_created_;
      return reader_;
    };
    store_->let("PRstr_FileName", "test.ini");
    fake_.debug->lines.clear();
  }
  test::Raised raised_by_initialize(const char* sector = "SECTOR 4") {
    return test::raised_by([&] { store_->call("Initialize", sector); });
  }
  std::int16_t integer(const char* property) { return store_->get(property).to_integer(); }

  test::FakePlatform fake_;
  Ref<test::FakeReader> reader_ = make<test::FakeReader>();
  int readers_created_ = 0;
  Ref<Object> store_ = make<SB_GlobalParameters>(fake_.platform);
};

TEST_F(Configured, WidthsOfBitStrings) {
  const std::pair<std::size_t, std::vector<const char*>> widths[] = {
      {2, {"RevLinkSilenceDuration", "RevLinkSilencePeriod"}},
      {4, {"SameChnl_PilotDropTimer", "DiffChnl_PilotDropTimer", "NeighborMaxAge"}},
      {6,
       {"SameChnl_PilotAdd", "SameChnl_PilotCompare", "SameChnl_PilotDrop", "DiffChnl_PilotAdd",
        "DiffChnl_PilotCompare", "DiffChnl_PilotDrop", "SoftSlope", "AddIntercept", "DropIntercept"}},
      {8,
       {"SystemType", "MaximumRevision", "MinimumRevision", "ColorCode", "SubnetMask", "LocationType", "TAS_DRCValue",
        "TAS_DRCCover", "TAS_ACKChannelBit", "TAS_LoopBackPersistence", "TAS_MinRate", "TAS_MaxRate",
        "TAS_RTAPTestPacketPersistence"}},
      {9, {"PilotPN"}},
      {11, {"RouteUpdateRadius"}},
      {12, {"CountryCode"}},
      {15, {"SID"}},
      {16, {"SectorSignature", "AccessSignature", "NID"}},
      {22, {"Latitude"}},
      {23, {"Longitude"}},
      {32, {"SectorID", "SectorID63_32", "SectorID95_64", "SectorID127_96"}},
      {128, {"UATI"}},
  };
  store_->call("Initialize", "SECTOR 0");
  for (const auto& [width, keys] : widths) {
    const std::string one = std::string(width - 1, '0') + "1";
    for (const char* key : keys) {
      const std::string property = std::string("PRstr_") + key;
      EXPECT_EQ(store_->get(property, "SECTOR 0"), Value(one)) << key;
      EXPECT_EQ(store_->get(property), Value(one)) << key;
    }
  }
}

TEST_F(Configured, WhereLiveReadsLook) {
  constexpr std::pair<const char*, const char*> kReads[] = {
      {"PRint_BandClass", "GetInteger|SECTOR 3|BandClass"},
      {"PRstr_ColorCode", "GetInteger|SECTOR 4|ColorCode"},
      {"PRstr_NID", "GetLong|SECTOR 4|NID"},
      {"PRstr_UATI", "GetString|SECTOR 3|UATI"},
      {"PRint_MACIndex_SubType2", "GetInteger|SECTOR 4|MACIndexSubType2"},
      {"PRdbl_MAC_RPC_DRCLock_Channel_Ec_Ior", "GetFloat|SECTOR 4|MacRPC_DRCLockEc_Ior"},
      {"PRsin_OpenLoopAdjust", "GetInteger|SECTOR 3|OpenLoopAdjust"},
      {"PRdbl_FwdFreqAdjustment", "GetLong|SECTOR 4|FwdFreqAdjustment "},
      {"PRdbl_RevFreqAdjustment", "GetLong|SECTOR 4|RevFreqAdjustment "},
      {"PRbln_DRCGating", "GetBool|SECTOR 4|DRCGating "},
      {"PRint_SKeyLength", "GetInteger|SECTOR 3|SessionKeyLength"},
      {"PRint_1XSID", "GetInteger|SECTOR 0|1XSID"},
      {"PRstr_UEConnectionType", "GetString|Automation|UEConnectionType"},
      {"PRdbl_TXReferenceLevel", "GetFloat|Location|TX Reference Level"},
      {"PRint_PhyLaySubType", "GetParamValue|PhyLaySubType(ScriptPersonality 1,BaseStation 2,Sector 2)"},
  };
  for (const auto& [property, call] : kReads) {
    store_->get(property, "SECTOR 4");
    EXPECT_EQ(reader_->last(), call);
  }
  EXPECT_EQ(readers_created_, 1);
  for (const char* property :
       {"PRstr_SystemType", "PRint_ChannelNumber", "PRint_DRCLength", "PRint_FrameOffset", "PRsin_AWGNIor",
        "PRsin_AWGNBandWidth", "PRint_PowerStep", "PRint_ProbeNumStep", "PRint_AccChPropogationDelay",
        "PRint_PreambleLength", "PRint_AccChFramesToDecode", "PRint_AccessCycleDuration", "PRsin_ProbeInitialAdjust",
        "PRint_RevTCHPropagationDelay", "PRbln_DRCLogging", "PRbln_RRILogging", "PRlng_AuthKeyLength"}) {
    store_->get(property, "SECTOR 2");
    EXPECT_NE(reader_->last().find("|SECTOR 0|"), std::string::npos) << property;
    store_->get(property, "SECTOR 5");
    EXPECT_NE(reader_->last().find("|SECTOR 3|"), std::string::npos) << property;
  }
  EXPECT_EQ(store_->call("Get_AsyncRate", "SECTOR 0", std::int16_t{2}).to_integer(), 1);
  EXPECT_EQ(reader_->last(), "GetParamValue|AsyncRate(ScriptPersonality 2,BaseStation 1,Sector 1)");
  // Loaded, the corrections and DRC gating have keys without the blank, the corrections once per base station.
  store_->call("Initialize", "SECTOR 4");
  for (const char* call : {"GetLong|SECTOR 3|FwdFreqAdjustment|test.ini", "GetBool|SECTOR 4|DRCGating|test.ini",
                           "GetInteger|SECTOR 0|BitSequence|test.ini"}) {
    EXPECT_EQ(std::count(reader_->calls.begin(), reader_->calls.end(), call), 1) << call;
  }
  const std::size_t calls = reader_->calls.size();
  EXPECT_EQ(store_->get("PRdbl_FwdFreqAdjustment", ""), Value(1.0));
  EXPECT_EQ(store_->get("PRstr_ColorCode", Value()), Value("00000001"));
  EXPECT_EQ(reader_->calls.size(), calls) << "what is loaded is not read again";
}

TEST_F(Configured, LiveErrorsLeaveALineAndReachTheCaller) {
  struct Case {
    const char* property;
    const char* sector;
    const char* value;
    const char* text;
    std::string source = "";  ///< none: the property
  };
  const char* const uati =
      "The maximum value for UATI that can be handled currently is limited to signed Long precision (2 raised to power "
      "31 - 1).";
  const std::string own = "SB_GlobalParameters";
  const std::string conversion = "SB_GeneralFunctions.LongToBin";
  const Case cases[] = {
      {"PRint_BandClass", "SECTOR 6", "1", "Sector Name: SECTOR 6 is invalid", own},
      {"PRint_BandClass", "sector 0", "1", "Sector Name: sector 0 is invalid", own},
      {"PRstr_UATI", "SECTOR 0", "2147483648", uati},
      {"PRstr_SectorID", "SECTOR 0", "4294967296", "The value for SectorID should be set between 0 and 4294967295"},
      {"PRstr_SectorID63_32", "SECTOR 0", "4294967296",
       "The value for SectorID63_32 should be set bewteen 0 and 4294967295 "},
      {"PRstr_SectorID95_64", "SECTOR 0", "99999999999",
       "The value for SectorID63_32 should be set between 0 and 4294967295 "},
      {"PRstr_SectorID127_96", "SECTOR 0", "4294967296",
       "The value for SectorID127_96 should be between 1 and 4294967295."},
      {"PRstr_ColorCode", "SECTOR 0", "256", "The given value: 256 cannot be converted into 8 bit length.", conversion},
      {"PRstr_Longitude", "SECTOR 0", "-1", "The given value: -1 cannot be converted into 23 bit length.", conversion},
      {"PRstr_SectorID", "SECTOR 0", "-1", "The given value: -1 cannot be converted into 32 bit length.", conversion},
      {"PRbln_BitSequenceRepeating", "SECTOR 1", "1",
       "BitSequenceRepeating value is BitSequence script specific and can be accesssed from SECTOR 0 only."},
  };
  for (const Case& c : cases) {
    reader_->values[std::string(c.property).substr(6)] = c.value;
    fake_.debug->lines.clear();
    EXPECT_EQ(test::raised_by([&] { store_->get(c.property, c.sector); }),
              (test::Raised{1, c.source.empty() ? own + "." + c.property : c.source, c.text}));
    EXPECT_EQ(fake_.debug->lines, Lines{std::string("SB_GlobalParameters::") + c.property + " - Exception raised."});
  }
  reader_->values["UATI"] = "2147483647";
  EXPECT_EQ(store_->get("PRstr_UATI", "SECTOR 0"), Value(std::string(97, '0') + std::string(31, '1')));
  reader_->values["SectorID"] = "4294967295";
  EXPECT_EQ(store_->get("PRstr_SectorID", "SECTOR 0"), Value(std::string(32, '1')));

  const auto report = make<test::RecordingObject>();
  store_->set("PRobj_TestReport", report);
  reader_->fails = {"GetLong|SECTOR 0|FwdFreqAdjustment |test.ini"};
  EXPECT_EQ(test::raised_by([&] { store_->get("PRdbl_FwdFreqAdjustment", "SECTOR 0"); }).source, "reader");
  EXPECT_EQ(report->calls, Lines{"AddText(SB_GlobalParameters::PRdbl_FwdFreqAdjustment - Exception raised.)"});
}

TEST_F(Configured, AFailedInitializeChangesNothingAndMayBeRepeated) {
  struct Case {
    const char* key;
    const char* value;
    std::string invalid;    ///< what has an invalid value
    const char* text = "";  ///< or what is said instead
  };
  const Case cases[] = {
      {"ColorCode", "256", "ColorCode"},
      {"BandClass", "x", "BandClass, SECTOR 3"},
      {"FwdFreqAdjustment", "x", "FwdFreqAdjustment, SECTOR 3"},
      {"SessionKeyLength", "512", "SessionKeyLength [Valid values: 768/1024]"},
      {"AuthenticationKeyLength", "65536", "AuthenticationKeyLength [Valid range: 0 to 65535]"},
      {"UATI", "abc", "UATI, SECTOR 3"},
      {"MACLayCCSubType(ScriptPersonality 1,BaseStation 2,Sector 2)", "x", "MACLayCCSubType"},
      {"SectorID", "4294967296", "", "The value for SectorID should be between 1 and 4294967295"},
      {"SectorID127_96", "4294967296", "", "The value for SectorID127_96 should be between 0 and 4294967295."},
  };
  store_->let("PRint_BandClass", std::int16_t{9});
  for (const Case& c : cases) {
    const auto values = reader_->values;
    reader_->values[c.key] = c.value;
    EXPECT_EQ(raised_by_initialize(),
              (c.invalid.empty() ? test::Raised{1, "SB_GlobalParameters.Initialize", c.text}
                                 : test::Raised{1, "SB_GlobalParameters.InvalidParameter",
                                                c.invalid + " script parameter has an invalid value"}));
    EXPECT_EQ(integer("PRint_BandClass"), 9);
    EXPECT_EQ(integer("PRint_PhyLaySubType"), -1);
    reader_->values = values;
  }
  EXPECT_EQ(fake_.debug->lines[0],
            "SB_GlobalParameters::InvalidParameter - Exception raised. Parameter ColorCodehas an invalid value");
  EXPECT_EQ(raised_by_initialize("SECTOR").description, "Sector Name: SECTOR is invalid");
  EXPECT_EQ(raised_by_initialize(), test::Raised{});
  EXPECT_EQ(integer("PRint_BandClass"), 1);
  reader_->values["BandClass"] = 5;
  EXPECT_EQ(raised_by_initialize("nowhere"), test::Raised{}) << "a second call does nothing";
  EXPECT_EQ(integer("PRint_BandClass"), 1);
}

TEST_F(Configured, WarningsOfInitialize) {
  const auto report = make<test::RecordingObject>();
  store_->set("PRobj_TestReport", report);
  reader_->values["ScriptPersonality"] = 2;
  reader_->values["UEConnectionType"] = "COM";
  reader_->values["PhyLaySubType(ScriptPersonality 1,BaseStation 1,Sector 1)"] = 7;
  store_->call("Set_MACLayRTCSubType", "", std::int16_t{1}, std::int16_t{0});
  store_->call("Initialize", "SECTOR 0");
  ASSERT_GE(report->calls.size(), 4U);
  EXPECT_EQ(report->calls[1], "AddText(Initialising the value of Physical Layer SubType to 0)");
  EXPECT_EQ((Lines{report->calls.end() - 2, report->calls.end()}),
            (Lines{"AddText(Script Personality 2 is currently not supported)",
                   "AddText(Warning: UEConnectionType COM is not supported. Taking it as Manual Mode)"}));
  const std::string kept = "GetParamValue|MACLayRTCSubType(ScriptPersonality 1,BaseStation 1,Sector 1)|test.ini";
  EXPECT_EQ(std::count(reader_->calls.begin(), reader_->calls.end(), kept), 0);
  EXPECT_EQ(integer("PRint_PhyLaySubType"), 2) << "as the multi-flow packet application needs it";
}

TEST_F(Configured, PersonalityMembers) {
  using I = std::int16_t;
  const auto set = [&](const char* name, I personality, I value) {
    return test::raised_by([&] { store_->call(std::string("Set_") + name, "", personality, value); });
  };
  const auto raised = [](std::string source, const char* text) {
    return test::Raised{1, "SB_GlobalParameters." + std::move(source), text};
  };
  const char* const kIdle = "Only Script Personality 1 is supported with Enhanced Idle State Protocol";
  const auto too_many = raised("InitialiseArrayForPersonalityCount",
                               "Personality Count index is greater than the Maximum number of personalities to be "
                               "negotiated");
  EXPECT_EQ(set("PhyLaySubType", 2, 1), too_many);
  store_->let("PRint_PersonalityCountAN", I{3});
  EXPECT_EQ(set("AsyncRate", 3, 4), raised("Set_AsyncRate", "Only Physical layer Sub type 2 supports AsyncRate"));
  EXPECT_EQ(test::error_number([&] { store_->call("Get_PhyLaySubType", "", I{3}); }), 9) << "nothing was reached";
  EXPECT_EQ(set("PhyLaySubType", 3, 2), test::Raised{});
  EXPECT_EQ(store_->call("Get_PhyLaySubType", "", I{2}), Value(I{-1}));
  EXPECT_EQ(test::error_number([&] { store_->call("Get_PhyLaySubType", "", I{4}); }), 9);
  EXPECT_EQ(set("AsyncRate", 1, 4), raised("Set_AsyncRate", "Only Physical layer Sub type 2 supports AsyncRate"));
  EXPECT_EQ(set("SubSyncRate", 1, 4), raised("Set_SubSyncRate", "Only Physical layer Sub type 2 supports SubSyncRate"));
  EXPECT_EQ(set("AsyncRate", 3, 4), test::Raised{});
  EXPECT_EQ(set("IdleStateSubType", 3, 1), raised("Set_IdleStateSubType", kIdle));
  EXPECT_EQ(set("MACLayCCSubType", 3, 1), raised("Set_MACLayCCSubType", kIdle));
  EXPECT_EQ(set("MACLayACHSubType", 3, 1), raised("Set_MACLayACHSubType", kIdle));
  EXPECT_EQ(set("PacketAppType", 0, 1), raised("Set_MACLayACHSubType", kIdle));
  EXPECT_EQ(set("PacketAppType", 1, 1), test::Raised{});
  store_->let("PRint_ActivePersonalityCount", I{3});
  EXPECT_EQ(integer("PRint_PhyLaySubType"), 2);
  constexpr std::pair<const char*, const char*> kProperties[] = {
      {"PRint_MACLayCCSubType", "Only Script Personality 1 is supported with Enhanced Control Channel MAC Protocol"},
      {"PRint_MACLayACHSubType", "Only Script Personality 1 is supported with Enhanced Access Channel MAC Protocol"},
      {"PRint_PacketAppType", "Only Script Personality 1 is supported with Multi-Flow Packet Application"},
  };
  for (const auto& [property, text] : kProperties) {
    EXPECT_EQ(test::raised_by([&, name = property] { store_->let(name, I{1}); }), raised(property, text));
  }

  std::array<Value, 2> arguments{Value::Array{I{7}}, Value(I{2})};
  store_->invoke("InitialiseArrayForPersonalityCount", Access::Call, arguments);
  EXPECT_EQ(arguments[0], Value(Value::Array{I{7}, I{-1}, I{-1}}));
  arguments[1] = I{4};
  EXPECT_EQ(test::raised_by([&] { store_->invoke("InitialiseArrayForPersonalityCount", Access::Call, arguments); }),
            too_many);
}

TEST_F(Configured, LetsStoreAndOneWritesBack) {
  store_->let("PRstr_ColorCode", "SECTOR 1", "101");
  EXPECT_EQ(store_->get("PRstr_ColorCode"), Value("101"));
  store_->let("PRstr_TAS_DRCValue", "00001100");
  EXPECT_EQ(reader_->calls, Lines{"SetParameterValue|SECTOR 0|TAS_DRCValue|12|test.ini"});
  reader_->fails = {"SetParameterValue|SECTOR 2|TAS_DRCValue|3|test.ini"};
  EXPECT_EQ(test::error_number([&] { store_->let("PRstr_TAS_DRCValue", "SECTOR 2", "00000011"); }), 13);
  EXPECT_EQ(store_->get("PRstr_TAS_DRCValue"), Value("00001100"));
  EXPECT_EQ(test::error_number([&] { store_->let("PRint_BandClass", 40000); }), 6);
  EXPECT_EQ(store_->call("GetParamStringValue", "Any", "Key"), Value("1"));
  EXPECT_EQ(reader_->last(), "GetString|Any|Key");
}

/// With files, through the built-in reader.
TEST(ConfiguredFromFile, ExampleHoldsEverythingForEverySector) {
  test::FakePlatform fake;
  for (const char* sector : {"SECTOR 0", "SECTOR 1", "SECTOR 2", "SECTOR 3", "SECTOR 4", "SECTOR 5"}) {
    const Ref<Object> store = make<SB_GlobalParameters>(fake.platform);
    store->let("PRstr_FileName", VORLAN_EXAMPLES "/sector.ini");
    store->call("Initialize", sector);
    for (const ParameterSpec* spec : all_parameters()) {
      if (spec->where == Where::Sector0Only && std::string_view(sector) != "SECTOR 0") continue;
      EXPECT_EQ(store->get(spec->name, sector), store->get(spec->name)) << sector << " " << spec->name;
    }
  }
  EXPECT_EQ(fake.debug->lines, Lines(6, "==========SB_GlobalParameters constructor ==============="));
}

TEST(ConfiguredFromFile, FaultsOfTheFileReachTheCaller) {
  test::FakePlatform fake;
  const test::TemporaryFolder folder;
  std::string text = test::text_of(VORLAN_EXAMPLES "/sector.ini");
  const Ref<Object> store = make<SB_GlobalParameters>(fake.platform);
  const auto initialize = [&](const std::string& contents) {
    store->let("PRstr_FileName", folder.write("s.ini", contents).string());
    return test::raised_by([&] { store->call("Initialize", "SECTOR 0"); });
  };
  EXPECT_EQ(initialize(text + "not a line\n").number, 75);
  EXPECT_EQ(initialize(text + "[SECTOR 0]\n").number, 75);
  store->let("PRstr_FileName", "/none/such.ini");
  EXPECT_EQ(test::raised_by([&] { store->call("Initialize", "SECTOR 0"); }).description,
            "File not found: /none/such.ini");
  // A key that this library added may be missing, no other one.
  const auto without = [&](std::string_view line) {
    return std::string(text).replace(text.find(line), line.size(), "\n");
  };
  EXPECT_EQ(initialize(without("\nPilotPN = 12\n")).description, "PilotPN script parameter has an invalid value");
  EXPECT_EQ(initialize(without("\nFadingEnabled = False\n")).number, 0);
  EXPECT_EQ(store->get("PRbln_FadingEnabled"), Value(false));
}

}  // namespace
}  // namespace vorlan
