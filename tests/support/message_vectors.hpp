// Vectors: a class, its fields, and the octets in which they travel.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/message_cases.hpp"
#include "support/octets.hpp"

namespace vorlan::test {

/// A property, "PRstr_Link(1)" with an index, and its bits.
struct FieldBits {
  std::string_view member;
  std::string_view bits;
};

/// One message. Built classes send the octets when the fields are let in this order; classes that receive read the
/// fields back from them.
struct MessageVector {
  std::string_view name;
  std::vector<FieldBits> fields;
  std::string hex;
};

inline void let_field(Object& object, const FieldBits& field) {
  const std::size_t open = field.member.find('(');
  if (open == std::string_view::npos) return object.let(field.member, field.bits);
  object.let(field.member.substr(0, open), std::stoi(std::string(field.member.substr(open + 1))), field.bits);
}

inline std::string got_field(Object& object, std::string_view member) {
  const std::size_t open = member.find('(');
  if (open == std::string_view::npos) return object.get(member).to_text();
  return object.get(member.substr(0, open), std::stoi(std::string(member.substr(open + 1)))).to_text();
}

inline std::string sent_by(Object& object) {
  auto message = make<simulator::MessageObject>();
  EXPECT_TRUE(object.call("CreateMessage", Ref<Object>(message)).to_boolean());
  EXPECT_EQ(message->length() % 8, 0);
  return message->hex();
}

inline void expect_vector(std::string_view prefix, const MessageVector& vector) {
  SCOPED_TRACE(std::string(prefix).append(vector.name).append(": ").append(vector.hex));
  const Ref<Object> built = create(vector.name, prefix);
  if (built->class_info()->find("CreateMessage") >= 0) {
    for (const FieldBits& field : vector.fields) let_field(*built, field);
    built->call("Initialize", Ref<Object>());
    EXPECT_EQ(sent_by(*built), vector.hex);
  }
  const Ref<Object> reader = create(vector.name, prefix);
  if (reader->class_info()->find("PRobj_MessageObject") < 0) return;
  reader->set("PRobj_MessageObject", Ref<Object>(received(vector.hex)));
  EXPECT_EQ(reader->get("PRstr_MessageString").to_text(), bits_of(vector.hex));
  for (const FieldBits& field : vector.fields) EXPECT_EQ(got_field(*reader, field.member), field.bits) << field.member;
}

}  // namespace vorlan::test
