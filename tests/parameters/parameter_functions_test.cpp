// The built-in parameter-file object, on real files.
#include <gtest/gtest.h>

#include "parameters/parameter_functions.hpp"
#include "support/fake_platform.hpp"
#include "support/print_value.hpp"
#include "support/raised.hpp"
#include "support/temporary_folder.hpp"

namespace vorlan {
namespace {

class ParameterFile : public ::testing::Test {
 protected:
  Value read(const char* member, const char* key) { return functions_->call(member, "SECTOR 3", key, file_); }

  test::FakePlatform fake_;
  test::TemporaryFolder folder_;
  std::string file_ = folder_
                          .write("sector.ini",
                                 "[SECTOR 3]\nWhole = 0x10\nReal = 2.5\nText = two words\nLarge = 70000\nHuge = 1e10\n"
                                 "PhyLaySubType = 1\nPhyLaySubType(ScriptPersonality 2) = 2\nOn = yes\n")
                          .string();
  Ref<ParameterFunctions> functions_ = make<ParameterFunctions>(fake_.platform);
};

TEST_F(ParameterFile, TypedReads) {
  EXPECT_EQ(read("GetInteger", "Whole"), Value(std::int16_t{16}));
  EXPECT_EQ(read("GetLong", "Large"), Value(70000));
  EXPECT_EQ(read("GetFloat", "Real"), Value(2.5));
  EXPECT_EQ(read("GetBool", "On"), Value(true));
  EXPECT_EQ(read("GetString", "Text"), Value("two words"));
  EXPECT_EQ(functions_->call("GetSectionStrings", "SECTOR 3", file_).as<Value::Array>()->at(1), Value("Real=2.5"));
  EXPECT_EQ(test::raised_by([&] { read("GetInteger", "Text"); }),
            (test::Raised{13, "ParameterFunctions.GetInteger",
                          "Type mismatch: " + file_ + ", line 4: Text = two words is no number"}));
  EXPECT_EQ(test::error_number([&] { read("GetInteger", "Real"); }), 13);
  EXPECT_EQ(test::error_number([&] { read("GetInteger", "Large"); }), 6);
  EXPECT_EQ(test::error_number([&] { read("GetLong", "Huge"); }), 6);
  EXPECT_EQ(test::error_number([&] { read("GetBool", "Text"); }), 13);
  EXPECT_EQ(test::error_number([&] { read("GetString", "None"); }), 5);
}

TEST_F(ParameterFile, Expressions) {
  const auto value = [&](const char* expression) { return functions_->call("GetParamValue", expression, file_); };
  EXPECT_EQ(value("PhyLaySubType(ScriptPersonality 2,BaseStation 2,Sector 1)").to_integer(), 2);
  EXPECT_EQ(value("PhyLaySubType(ScriptPersonality 1,BaseStation 2,Sector 1)").to_integer(), 1);
  EXPECT_EQ(value("Text(BaseStation 2,Sector 1)"), Value("two words"));
  for (const char* wrong : {"PhyLaySubType", "A(BaseStation 2)", "A(BaseStation 3,Sector 1)",
                            "A(BaseStation 2,Sector 4)", "(BaseStation 2,Sector 1)", "A(BaseStation 2,Sector 1"}) {
    EXPECT_EQ(test::error_number([&] { value(wrong); }), 5) << wrong;
  }
}

TEST_F(ParameterFile, AChangeIsSeenAtTheNextRead) {
  // Within one tick of the file system's clock, and of the same length.
  for (const char* value : {"1", "2", "3"}) {
    file_ = folder_.write("sector.ini", std::string("[SECTOR 3]\nWhole = ") + value).string();
    EXPECT_EQ(read("GetInteger", "Whole").to_text(), value);
  }
  std::filesystem::remove(file_);
  EXPECT_EQ(test::raised_by([&] { read("GetInteger", "Whole"); }).description, "File not found: " + file_);
  EXPECT_EQ(test::error_number([&] { functions_->call("GetString", "A", "K", folder_.path().string()); }), 75);
}

TEST_F(ParameterFile, SettingAValueRewritesItsLine) {
  const std::string before = test::text_of(file_);
  functions_->call("SetParameterValue", "SECTOR 3", "Whole", 17, file_);
  std::string expected = before;
  EXPECT_EQ(test::text_of(file_), expected.replace(expected.find("0x10"), 4, "17"));
  EXPECT_EQ(read("GetInteger", "Whole").to_text(), "17");
  // A file that cannot be replaced stays as it is, and no other file is left beside it.
  std::filesystem::permissions(file_, std::filesystem::perms::owner_read);
  EXPECT_EQ(test::error_number([&] { functions_->call("SetParameterValue", "SECTOR 3", "Whole", 18, file_); }), 75);
  EXPECT_EQ(test::text_of(file_), expected);
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder_.path()), {}), 1);
  std::filesystem::permissions(file_, std::filesystem::perms::owner_all);
  EXPECT_EQ(test::error_number([&] { functions_->call("SetParameterValue", "SECTOR 3", "A", "x\ny", file_); }), 5);
  EXPECT_EQ(test::text_of(file_), expected);
}

}  // namespace
}  // namespace vorlan
