// What a parameter file may look like, and what is said about one that is wrong.
#include <gtest/gtest.h>

#include "parameters/ini_file.hpp"
#include "parameters/ini_number.hpp"
#include "support/raised.hpp"

namespace vorlan {
namespace {

TEST(IniFileText, ValuesAsPeopleWriteThem) {
  const IniFile file("f",
                     "\xEF\xBB\xBF; a comment\r\n"
                     "# another\r\n"
                     "\t[ Sector 0 ] ; with a comment\r\n"
                     "Plain=1\r\n"
                     "  Blanks  =  two words \t\r\n"
                     "Commented = 5 ; why\r\n"
                     "Hashed = 6 # why\r\n"
                     "Nothing = ; why\r\n"
                     "Dial = #777 # call\r\n"
                     "Joined = a;b#c\r\n"
                     "Quoted = \" x ; \"\"y\"\" \" ; why\r\n"
                     "TX Reference Level = -60\r\n"
                     "PhyLaySubType(ScriptPersonality 1) = 2\r\n"
                     "\"DRCGating \" = a\r\n"
                     "DRCGating = b\r\n"
                     "[Empty]\n"
                     "Last = \xC3\xA9");
  constexpr std::pair<const char*, const char*> kValues[] = {{"Plain", "1"},
                                                             {"plain", "1"},
                                                             {"Blanks", "two words"},
                                                             {"Commented", "5"},
                                                             {"Hashed", "6"},
                                                             {"Nothing", ""},
                                                             {"Dial", "#777"},
                                                             {"Joined", "a;b#c"},
                                                             {"Quoted", " x ; \"y\" "},
                                                             {"TX Reference Level", "-60"},
                                                             {"PhyLaySubType(ScriptPersonality 1)", "2"},
                                                             {"DRCGating ", "a"},
                                                             {"DRCGating", "b"},
                                                             {"Plain ", "1"}};
  for (const auto& [key, value] : kValues) EXPECT_EQ(file.at("SECTOR 0", key).value, value) << key;
  EXPECT_EQ(file.at("Sector 0", "Plain").value, "1");
  EXPECT_EQ(file.find("SECTOR 0", "Plai"), nullptr);
  EXPECT_EQ(file.section_strings("empty"), std::vector<std::string>{"Last=\xC3\xA9"});
}

TEST(IniFileText, FaultsNameFileAndLine) {
  struct Case {
    const char* text;
    int number;
    const char* reason;
  };
  constexpr Case kCases[] = {
      {"[A]\nno value\n", 75, "f, line 2: neither a section nor key = value"},
      {"K = 1\n", 75, "f, line 1: a key in front of the first section"},
      {"[A\n", 75, "f, line 1: a section without its ]"},
      {"[A] B\n", 75, "f, line 1: something follows the section"},
      {"[A]\n\n= 1\n", 75, "f, line 3: no key in front of ="},
      {"[A]\n\"K = 1\n", 75, "f, line 2: a key in quotes without = behind it"},
      {"[A]\nK = \"1\n", 75, "f, line 2: a value without its closing quote"},
      {"[A]\nK = \"1\" 2\n", 75, "f, line 2: something follows the value in quotes"},
      {"[A]\nK = \x01\n", 75, "f, line 2: holds a control character"},
      {"\xFF\xFE[", 75, "f: is UTF-16; UTF-8 is wanted"},
      {"[A]\nK = 1\nk = 1\n", 75, "f: key K of section [A] stands in line 2 and again in line 3"},
      {"[A]\nK = 1\n[B]\n[a]\nL = 1\n", 75, "f: section [A] begins in line 1 and again in line 4"},
      {"[a]\n[A]\nK = 1\n", 75, "f: section [A] begins in line 1 and again in line 2"},
      {"[A]\nL = 1\n", 5, "f: no key K in section [A]"},
      {"[B]\nK = 1\n", 5, "f: no section [A]"},
      {"", 5, "f: no section [A]"},
  };
  for (const Case& c : kCases) {
    const test::Raised raised = test::raised_by([&] { (void)IniFile("f", c.text).at("A", "K"); });
    EXPECT_EQ(raised.number, c.number) << c.text;
    EXPECT_TRUE(raised.description.ends_with(std::string(": ") + c.reason)) << raised.description;
  }
}

TEST(IniFileText, ChangingAValueKeepsEverythingElse) {
  const std::string before = "; top\r\n[A]\r\nK =  1  ; one\r\nE = ; none\r\n\r\n; of B\r\n[B]\r\nX=1";
  struct Case {
    const char* section;
    const char* key;
    const char* value;
    const char* after;
  };
  constexpr Case kCases[] = {
      {"A", "k", "22", "; top\r\n[A]\r\nK =  22  ; one\r\nE = ; none\r\n\r\n; of B\r\n[B]\r\nX=1"},
      {"A", "E", "5", "; top\r\n[A]\r\nK =  1  ; one\r\nE =5 ; none\r\n\r\n; of B\r\n[B]\r\nX=1"},
      {"A", "N", "x", "; top\r\n[A]\r\nK =  1  ; one\r\nE = ; none\r\nN = x\r\n\r\n; of B\r\n[B]\r\nX=1"},
      {"B", "Y", " \"", "; top\r\n[A]\r\nK =  1  ; one\r\nE = ; none\r\n\r\n; of B\r\n[B]\r\nX=1\r\nY = \" \"\"\"\r\n"},
      {"C", "Z ", "1",
       "; top\r\n[A]\r\nK =  1  ; one\r\nE = ; none\r\n\r\n; of B\r\n[B]\r\nX=1\r\n[C]\r\n\"Z \" = 1\r\n"},
  };
  const IniFile file("f", before);
  for (const Case& c : kCases) {
    const std::string after = file.with_value(c.section, c.key, c.value);
    EXPECT_EQ(after, c.after) << c.key;
    EXPECT_EQ(IniFile("f", after).at(c.section, c.key).value, c.value) << c.key;
  }
  for (const char* value : {"a ; b", "#777", "; x", "", "\"q\"", "a # b", " blank "}) {
    EXPECT_EQ(IniFile("f", file.with_value("A", "K", value)).at("A", "K").value, value);
    EXPECT_EQ(IniFile("f", file.with_value("A", "new", value)).at("A", "new").value, value);
  }
  EXPECT_EQ(test::error_number([&] { (void)file.with_value("A", "K", "a\nb"); }), 5);
  EXPECT_EQ(test::error_number([&] { (void)file.with_value("A]", "K", "1"); }), 5);
}

TEST(IniNumber, WrittenForms) {
  constexpr std::pair<const char*, double> kNumbers[] = {
      {"12", 12}, {"-3.5", -3.5}, {"0x1F", 31}, {"&hFFFF", 65535}, {"1e3", 1000}, {"0XFFFFFFFF", 4294967295.0}};
  for (const auto& [text, number] : kNumbers) EXPECT_EQ(parse_ini_number(text), number) << text;
  for (const char* text : {"", "x", "1,5", "12 apples", "0x", "0x1G", "0x100000000"}) {
    EXPECT_FALSE(parse_ini_number(text)) << text;
  }
  for (const char* text : {"True", "YES", "on", "1", "-1"}) EXPECT_EQ(parse_ini_switch(text), true) << text;
  for (const char* text : {"False", "no", "OFF", "0"}) EXPECT_EQ(parse_ini_switch(text), false) << text;
  EXPECT_FALSE(parse_ini_switch("maybe"));
}

}  // namespace
}  // namespace vorlan
