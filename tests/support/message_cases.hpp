// Tables of texts: what a member of a class, found by name, raises.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "platform/platform.hpp"
#include "server/classes.hpp"
#include "support/listed.hpp"

namespace vorlan::test {

/// A new object of the class `prefix` + `name`, without a platform behind it.
inline Ref<Object> create(std::string_view name, std::string_view prefix = {}) {
  static const Registry kRegistry(class_tables());
  static Platform platform;
  return kRegistry.create(std::string(prefix) + std::string(name), platform);
}

/// Gets a property of a new object (no value), lets it (a value), or calls CreateMessage (the value "()").
inline void expect_text(std::string_view name, std::string_view prefix, std::string_view member, const char* value,
                        const Raised& expected) {
  const Ref<Object> object = create(name, prefix);
  const std::string_view given = value == nullptr ? "" : value;
  EXPECT_EQ(listed(*object, raised_by([&] {
              if (value == nullptr) {
                object->get(member);
              } else if (given == "()") {
                object->call("CreateMessage", Ref<Object>());
              } else {
                object->let(member, given);
              }
            })),
            expected)
      << prefix << name << "." << member;
}

}  // namespace vorlan::test
