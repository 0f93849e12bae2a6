#include "platform/settings_text.hpp"

#include <gtest/gtest.h>

namespace vorlan {
namespace {

TEST(SettingsText, AnyTextRoundTrips) {
  const std::string texts[] = {
      "",
      "1",
      " both ends ",
      "a=b",
      "[x]",
      ";no comment",
      "%41",
      "two\r\nlines",
      std::string("\0\x7F", 2),
      "back\\slash",
      "]",
      "\xC3\xA9\xE2\x82\xAC",
      "\xFF\xFE",
  };
  SettingsText settings;
  for (const std::string& text : texts) settings.write("app" + text, text, text, text);
  const auto again = SettingsText::parse(settings.text());
  ASSERT_TRUE(again);
  for (const std::string& text : texts) EXPECT_EQ(again->read("app" + text, text, text), text);
}

TEST(SettingsText, SectionsDoNotRunTogether) {
  SettingsText settings;
  settings.write("a\\b", "c", "k", "1");
  settings.write("a", "b\\c", "k", "2");
  settings.write("a", "b", "k", "3");
  settings.write("A\\B", "C", "K", "4");
  EXPECT_EQ(settings.read("a\\b", "c", "k"), "4");
  EXPECT_EQ(settings.read("a", "b\\c", "k"), "2");
  EXPECT_EQ(settings.read("a", "b", "k"), "3");
  EXPECT_EQ(settings.read("a", "b", "other"), std::nullopt);
}

TEST(SettingsText, KeepsCommentsAndOrder) {
  auto settings = SettingsText::parse("\xEF\xBB\xBF; mine\r\n\r\n[app\\one]\r\na=1\r\n\r\n[app\\two]\nb=2");
  ASSERT_TRUE(settings);
  settings->write("app", "one", "c", "3");
  settings->write("app", "two", "b", "4");
  EXPECT_EQ(settings->text(), "; mine\n\n[app\\one]\na=1\nc=3\n\n[app\\two]\nb=4\n");
}

TEST(SettingsText, RefusesDamage) {
  const std::string damaged[] = {
      "key=before any section\n", "[app\\s]\nno equals sign\n",        "[app\\s]\nkey=%4\n",
      "[app\\s]\nkey=%ZZ\n",      std::string("[app\\s]\nkey=\0", 13), "[app\\s\nkey=1\n",
  };
  for (const std::string& text : damaged) EXPECT_FALSE(SettingsText::parse(text)) << text;
  EXPECT_TRUE(SettingsText::parse(""));
}

}  // namespace
}  // namespace vorlan
