// A test set's message object that lives in this process: what messages are encoded into and decoded from when there
// is no test set.
#pragma once

#include "automation/bind.hpp"
#include "simulator/classes.hpp"
#include "simulator/octets.hpp"

namespace vorlan::simulator {

inline constexpr std::size_t kMostMessageBits = 32767;

/// `Length` in bits and `Octet(index)`, 0 to 255. Octets past those written read as 0; a bit string of 32767 bits is
/// the longest.
class MessageObject final : public BoundObject<MessageObject>, public OctetBuffer {
 public:
  MessageObject() = default;
  explicit MessageObject(std::span<const std::uint8_t> octets);

  [[nodiscard]] std::int16_t length() const noexcept override { return length_; }
  void set_length(std::int16_t bits) override;
  [[nodiscard]] std::int16_t octet(std::int16_t index) const;
  void set_octet(std::int16_t index, std::int16_t value);
  /// The whole octets as hexadecimal text, "01 0A FF"; assigning sets the length too.
  [[nodiscard]] std::string hex() const;
  void set_hex(const std::string& text);

  [[nodiscard]] OctetBuffer* octet_buffer() noexcept override { return this; }
  [[nodiscard]] std::span<const std::uint8_t> octets() const noexcept override { return octets_; }
  void write_octets(std::span<const std::uint8_t> octets) override;

  static constexpr ClassInfo::Texts texts() {
    return {"MessageObject", "A message as octets, without a test set around it.", ""};
  }
  static std::span<const BoundMember> members();

 private:
  std::int16_t length_ = 0;
  Octets octets_;
};

/// The octets of a message object, one of ours or a script's own, as many as its Length says.
Octets octets_of(Object& message);

}  // namespace vorlan::simulator
