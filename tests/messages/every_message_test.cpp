// What holds for every message class of the registry: nothing here names one.
#include <gtest/gtest.h>

#include "common/conversions.hpp"
#include "messages/dissection.hpp"
#include "messages/message.hpp"
#include "support/fake_sector.hpp"
#include "support/message_cases.hpp"
#include "support/octets.hpp"
#include "support/recording_message.hpp"

namespace vorlan::test {
namespace {

/// Every message class, as a fresh object.
template <class F>
void for_every_message(F&& test) {
  const Registry registry(class_tables());
  for (const Registry::Class& cls : registry.classes()) {
    const Ref<Object> object = create(cls.name());
    if (auto* message = dynamic_cast<Message*>(object.get())) {
      SCOPED_TRACE(cls.name());
      test(*message);
    }
  }
}

Ref<Object> sector() { return fake_sector(fake_configuration()); }

bool settable(const Message& message, std::size_t field) {
  const FieldSpec& spec = message.message_class().spec().fields[field];
  return message.message_class().spec().builds() && is_stored(spec) && spec.exposure != Exposure::GetOnly &&
         !spec.integer;
}

/// Alternating bits, another pattern for every field and element.
std::string pattern(std::size_t width, std::size_t salt) {
  std::string bits(width, '0');
  for (std::size_t i = 0; i < width; ++i) bits[i] = ((i * 7 + salt * 5 + i * salt) % 3 == 0) ? '1' : '0';
  return bits;
}

std::size_t width_of(const Message& message, std::size_t field) {
  const FieldSpec& spec = message.message_class().spec().fields[field];
  if (spec.accepts == Accepts::WholeOctets) return 24;
  if (spec.accepts == Accepts::OctetsAndSixBits) return 22;
  const auto& row = message.message_class().field(field);
  switch (spec.width.kind) {
    case WidthRule::Kind::OctetsCountedBy:
      return 8 * small_value(message.stored(static_cast<std::size_t>(row.width_field)));
    case WidthRule::Kind::ValuePlus:
      return small_value(message.stored(static_cast<std::size_t>(row.width_field))) + spec.width.addend;
    default: return spec.bits;
  }
}

bool sizes_something(const Message& message, std::size_t field) {
  const auto fields = message.message_class().fields();
  return !message.message_class().sized_by(field).empty() ||
         std::any_of(fields.begin(), fields.end(),
                     [&](const auto& row) { return row.width_field == static_cast<std::int16_t>(field); });
}

/// Sets every field: counts to `count` (cut to their width), flags to `flag`, everything else to patterns.
void fill(Message& message, std::size_t count, char flag) {
  const MessageSpec& spec = message.message_class().spec();
  for (std::size_t i = 0; i < spec.fields.size(); ++i) {
    if (!settable(message, i) || spec.fields[i].check != nullptr) continue;
    const std::size_t width = width_of(message, i);
    if (is_repeated(spec.fields[i])) {
      std::size_t elements = message.stored_count(i);
      if (spec.fields[i].on_resize == OnResize::GrowByIndex)
        elements = small_value(message.stored(spec.fields[i].repeat.count));
      for (std::size_t element = 0; element < elements; ++element) {
        message.let_field(i, element, width == 1 ? std::string(1, flag) : pattern(width, i + element));
      }
    } else if (sizes_something(message, i)) {
      std::string bits(width, '0');
      std::size_t value = std::min(count, (std::size_t{1} << width) - 1);
      for (std::size_t bit = 0; bit < width; ++bit, value >>= 1U) bits[width - 1 - bit] = (value & 1U) != 0 ? '1' : '0';
      message.let_field(i, bits);
    } else {
      message.let_field(i, width == 1 ? std::string(1, flag) : pattern(width, i));
    }
  }
}

TEST(EveryMessage, ComesBackAsItWasSent) {
  for_every_message([](Message& prototype) {
    const MessageSpec& spec = prototype.message_class().spec();
    if (!spec.builds()) return;
    for (const std::size_t count : {std::size_t{0}, std::size_t{1}, std::size_t{255}}) {
      for (const char flag : {'0', '1'}) {
        const Ref<Object> object = create(spec.name);
        auto& message = dynamic_cast<Message&>(*object);
        fill(message, count, flag);
        message.initialize(sector(), {}, "");
        fill(message, count, flag);
        const std::string bits = message.encode();
        if (spec.create != nullptr || bits.size() > kMaxMessageBits) continue;
        Layout layout;
        std::vector<std::string> stored = message.message_class().initial_texts();
        layout.find(message.message_class(), bits, stored);
        ASSERT_LE(layout.end(), bits.size());
        EXPECT_LT(bits.size() - layout.end(), 8U) << "more than padding behind the last field";
        EXPECT_EQ(bits.substr(0, spec.id.size()), spec.id);
        for (std::size_t i = 0; i < spec.fields.size(); ++i) {
          if (!settable(message, i) || !spec.fields[i].sent || !spec.fields[i].same_as.empty()) continue;
          for (std::size_t element = 0; element < layout.count(i); ++element) {
            const Extent extent = layout.extent(i, element);
            if (!extent.present) continue;
            EXPECT_EQ(slice(bits, extent), message.get_field_or_element(i, element)) << spec.fields[i].name << element;
          }
        }
        if (!spec.parses()) continue;
        // A class that parses gives back through its getters what another one sent.
        const Ref<Object> other = create(spec.name);
        auto& receiver = dynamic_cast<Message&>(*other);
        receiver.receive(bits);
        EXPECT_EQ(receiver.message_string(), bits);
      }
    }
  });
}

TEST(EveryMessage, SendsAnEncoderStringAsItStandsAndRefusesFields) {
  for_every_message([](Message& message) {
    const MessageSpec& spec = message.message_class().spec();
    if (!spec.builds()) return;
    fill(message, 1, '1');
    message.initialize(sector(), {}, "");
    message.initialize(sector(), {}, "1100101");
    message.initialize(sector(), {}, "");  // never switches the mode off
    EXPECT_EQ(message.encode(), "1100101");
    const auto object = make<RecordingMessage>();
    EXPECT_TRUE(message.create_message(object));
    EXPECT_EQ(object->length().to_long(), 7);
    EXPECT_EQ(object->octets(), std::vector<std::uint8_t>{0xCA});
    for (std::size_t i = 0; i < spec.fields.size(); ++i) {
      if (!settable(message, i)) continue;
      const std::string before(message.stored(i));
      const auto let = [&] {
        is_repeated(spec.fields[i]) ? message.let_field(i, 0, pattern(width_of(message, i), 3))
                                    : message.let_field(i, pattern(width_of(message, i), 3));
      };
      EXPECT_EQ(listed(message, raised_by(let)).number, 1) << spec.fields[i].name;
      EXPECT_EQ(message.stored(i), before);
    }
  });
}

TEST(EveryMessage, RefusesWrongWidthsAndKeepsItsValues) {
  for_every_message([](Message& message) {
    const MessageSpec& spec = message.message_class().spec();
    fill(message, 1, '1');
    for (std::size_t i = 0; i < spec.fields.size(); ++i) {
      if (!settable(message, i)) continue;
      const std::string before(message.stored(i));
      const std::size_t width = width_of(message, i);
      for (const std::size_t wrong : {width + 1, width + 7, width == 0 ? 1 : width - 1}) {
        const std::string bits(wrong, '1');
        const Raised raised =
            listed(message, raised_by([&] {
                     is_repeated(spec.fields[i]) ? message.let_field(i, 0, bits) : message.let_field(i, bits);
                   }));
        EXPECT_EQ(raised.number, message.stored_count(i) == 0 && raised.number == 9 ? 9 : 1) << spec.fields[i].name;
        EXPECT_EQ(message.stored(i), before);
      }
    }
  });
}

/// Whatever octets come, every getter ends with a value or one clear error.
TEST(EveryMessage, ReadsShortLongAndOddMessages) {
  for_every_message([](Message& message) {
    const MessageSpec& spec = message.message_class().spec();
    if (!spec.parses()) return;
    for (const std::size_t octets :
         {std::size_t{0}, std::size_t{1}, std::size_t{2}, std::size_t{5}, std::size_t{40}, std::size_t{4095}}) {
      for (const std::string& bits :
           {std::string(octets * 8, '0'), std::string(octets * 8, '1'), pattern(octets * 8, 1)}) {
        message.receive(bits);
        EXPECT_EQ(message.message_id(), bits.substr(0, spec.received_id_bits));
        for (std::size_t i = 0; i < spec.fields.size(); ++i) {
          if (!is_property(spec.fields[i])) continue;
          for (const std::size_t element : {std::size_t{0}, std::size_t{1}, std::size_t{300}}) {
            const Raised raised = listed(message, raised_by([&] {
                                           EXPECT_LE(message.get_field_or_element(i, element).size(),
                                                     std::max(bits.size(), std::size_t{256}));
                                         }));
            EXPECT_TRUE(raised.number <= 1 || raised.number == 9) << testing::PrintToString(raised);
          }
        }
        for (const DissectedField& field : dissect(message.message_class(), bits)) EXPECT_FALSE(field.name.empty());
      }
    }
  });
}

TEST(EveryMessage, NamesItsFamilyBeforeAMessageIsSet) {
  for_every_message([](Message& message) {
    const MessageSpec& spec = message.message_class().spec();
    if (spec.direction != Direction::Parsed) return;
    for (std::size_t i = 0; i < spec.fields.size(); ++i) {
      if (!is_property(spec.fields[i])) continue;
      const auto get = [&] { static_cast<void>(message.get_field_or_element(i, 0)); };
      EXPECT_EQ(listed(message, raised_by(get)).number, 1) << spec.fields[i].name;
    }
  });
}

TEST(EveryMessage, IsDescribed) {
  for_every_message([](Message& message) {
    EXPECT_EQ(fault(message.message_class().spec()), "");
    const ClassInfo& info = message.message_class().info();
    EXPECT_FALSE(info.clause().empty());
    for (const MemberInfo& member : info.members()) EXPECT_FALSE(member.summary.empty()) << member.name;
  });
}

}  // namespace
}  // namespace vorlan::test
