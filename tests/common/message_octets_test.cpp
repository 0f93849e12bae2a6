// Message objects: which octets are asked for, and in which order.
#include <gtest/gtest.h>

#include "common/bits.hpp"
#include "common/conversions.hpp"
#include "support/raised.hpp"
#include "support/recording_message.hpp"

namespace vorlan {
namespace {

using test::error_number;
using test::RecordingMessage;
using Accesses = std::vector<std::string>;

/// A message object of this process, whose octets are read and written whole.
class BufferedMessage final : public RecordingMessage, public OctetBuffer {
 public:
  using RecordingMessage::RecordingMessage;
  [[nodiscard]] OctetBuffer* octet_buffer() noexcept override { return this; }
  [[nodiscard]] std::int16_t length() const noexcept override { return RecordingMessage::length().to_integer(); }
  void set_length(std::int16_t bits) override { RecordingMessage::set_length(bits); }
  [[nodiscard]] std::span<const std::uint8_t> octets() const noexcept override { return RecordingMessage::octets(); }
  void write_octets(std::span<const std::uint8_t> octets) override { written.assign(octets.begin(), octets.end()); }

  std::vector<std::uint8_t> written;
};

TEST(MessageToBits, ReadsEveryOctetOnceThePastTheEndOneIncluded) {
  struct Case {
    std::int32_t length;
    const char* bits;
    Accesses accesses;
  };
  const Case cases[] = {
      {0, "", {"Length", "Octet(0)"}},
      {-8, "", {"Length", "Octet(0)"}},
      {3, "101", {"Length", "Octet(0)"}},
      {12, "101010111100", {"Length", "Octet(0)", "Octet(1)"}},
      {16, "1010101111000001", {"Length", "Octet(0)", "Octet(1)", "Octet(2)"}},
      {20, "10101011110000010000", {"Length", "Octet(0)", "Octet(1)", "Octet(2)"}},
  };
  for (const Case& c : cases) {
    const std::vector<std::uint8_t> octets{0xAB, 0xC1};
    const auto foreign = make<RecordingMessage>(c.length, octets);
    EXPECT_EQ(message_to_bits(*foreign), c.bits);
    EXPECT_EQ(foreign->accesses(), c.accesses);
    const auto local = make<BufferedMessage>(c.length, octets);
    EXPECT_EQ(message_to_bits(*local), c.bits);
    EXPECT_EQ(local->accesses(), Accesses{"Length"});
  }
}

TEST(BitsToMessage, WritesEveryOctetOnceThePastTheEndOneIncluded) {
  struct Case {
    const char* bits;
    std::vector<std::uint8_t> octets;
    Accesses accesses;
  };
  const Case cases[] = {
      {"", {0}, {"Octet(0)=0"}},
      {"1", {128}, {"Octet(0)=128"}},
      {"1x1", {160}, {"Octet(0)=160"}},
      {"11111111", {255, 0}, {"Octet(0)=255", "Octet(1)=0"}},
      {"000000011", {1, 128}, {"Octet(0)=1", "Octet(1)=128"}},
  };
  for (const Case& c : cases) {
    const auto foreign = make<RecordingMessage>();
    bits_to_message(c.bits, *foreign);
    EXPECT_EQ(foreign->accesses(), c.accesses) << c.bits;
    const auto local = make<BufferedMessage>();
    bits_to_message(c.bits, *local);
    EXPECT_EQ(local->written, c.octets) << c.bits;
    EXPECT_TRUE(local->accesses().empty());
  }
}

TEST(MessageOctets, LongestMessageRoundTrips) {
  std::string bits;
  for (std::size_t i = 0; i < kMaxMessageBits; ++i) bits += i % 3 == 0 || i % 7 == 0 ? '1' : '0';
  const auto message = make<RecordingMessage>();
  bits_to_message(bits, *message);
  message->set_length(32767);
  EXPECT_EQ(message_to_bits(*message), bits);

  message->forget_accesses();
  EXPECT_EQ(error_number([&] { bits_to_message(bits + "0", *message); }), 6);
  EXPECT_TRUE(message->accesses().empty());
  message->set_length(32768);
  EXPECT_EQ(error_number([&] { (void)message_to_bits(*message); }), 6);
}

TEST(MessageOctets, ErrorsOfTheObjectReachTheCaller) {
  const test::Raised failure{-7, "test set", "gone"};
  for (std::size_t accesses = 0; accesses < 4; ++accesses) {
    const auto message = make<RecordingMessage>(24, std::vector<std::uint8_t>{1, 2, 3});
    message->fail_after(accesses, Error(-7, "test set", "gone"));
    EXPECT_EQ(test::raised_by([&] { (void)message_to_bits(*message); }), failure);
    EXPECT_EQ(message->accesses().size(), accesses + 1);
  }
  const auto message = make<RecordingMessage>();
  message->set_length("no number");
  EXPECT_EQ(error_number([&] { (void)message_to_bits(*message); }), 13);
}

}  // namespace
}  // namespace vorlan
