// The numbers that COM clients have compiled in: they must never change.
#include "server/com/ids.hpp"

#include <gtest/gtest.h>

#include <set>

#include "server/classes.hpp"
#include "simulator/classes.hpp"

namespace vorlan::com {
namespace {

TEST(ComIds, NameBasedUuid) {
  // The namespace of domain names, and what other implementations make of these names.
  const Uuid dns{0x6B, 0xA7, 0xB8, 0x10, 0x9D, 0xAD, 0x11, 0xD1, 0x80, 0xB4, 0x00, 0xC0, 0x4F, 0xD4, 0x30, 0xC8};
  EXPECT_EQ(uuid_text(name_based_uuid(dns, "python.org")), "886313e1-3b8a-5372-9b90-0c9aee199e5d");
  // Two blocks of the hash, one of them only just.
  EXPECT_EQ(uuid_text(name_based_uuid(dns, std::string(39, 'a'))), "5824f981-4282-59d4-9716-acb6d741350e");
  EXPECT_EQ(uuid_text(name_based_uuid(dns, std::string(40, 'a'))), "39f39c20-db47-5131-8879-62f8f67f9014");
  EXPECT_EQ(uuid_text(name_based_uuid(dns, std::string(200, 'b'))), "74678596-6c70-5563-8444-3ad77191f2e0");
}

TEST(ComIds, StayWhatTheyAre) {
  EXPECT_EQ(uuid_text(class_uuid("Vorlan.SB_Sector")), "e474c650-4a08-54a0-b681-9ed328dfd419");
  EXPECT_EQ(uuid_text(members_uuid("Vorlan.SB_Sector")), "7b853ced-e7b2-57fa-8993-93953bece4c9");
  EXPECT_EQ(uuid_text(library_uuid("Vorlan")), "3c3c4b28-2f36-59c1-9e6b-f8eb11499adb");
  EXPECT_EQ(member_id("PRstr_MessageID"), 0x61E77A36);
  EXPECT_EQ(member_id("prstr_messageid"), member_id("PRstr_MessageID"));
  EXPECT_EQ(member_id("Item"), 0) << "the member that is meant when none is named";
}

TEST(ComIds, DifferInEveryClass) {
  const auto own = class_tables();
  std::vector<ClassTable> tables(own.begin(), own.end());
  tables.push_back({"VorlanSim", simulator::classes()});
  std::set<Uuid> seen;
  for (const Registry registry(tables); const Registry::Class& cls : registry.classes()) {
    EXPECT_TRUE(seen.insert(class_uuid(cls.prog_id())).second) << cls.prog_id();
    EXPECT_TRUE(seen.insert(members_uuid(cls.prog_id())).second) << cls.prog_id();
    const MemberIds ids(cls.info());
    for (std::size_t i = 0; i < cls.info().members().size(); ++i) {
      const auto index = static_cast<int>(i);
      EXPECT_EQ(ids.member(ids.id(index)), index) << cls.prog_id();
    }
    EXPECT_EQ(ids.member(-4), -1);
  }
}

}  // namespace
}  // namespace vorlan::com
