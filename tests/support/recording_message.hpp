// A test set's message object as a foreign server has it: only Length and Octet, no octet buffer.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "automation/class_info.hpp"
#include "automation/error.hpp"

namespace vorlan::test {

/// Records every access in order, as "Length", "Length=16", "Octet(0)", "Octet(0)=255".
class RecordingMessage : public Object {
 public:
  RecordingMessage() = default;
  RecordingMessage(std::int32_t length, std::vector<std::uint8_t> octets)
      : length_(length), octets_(std::move(octets)) {}

  Value invoke(std::string_view member, Access access, std::span<Value> arguments) override {
    const bool lets = access == Access::Let;
    const bool octet = equals_ignoring_case(member, "Octet");
    if (!octet && !equals_ignoring_case(member, "Length")) throw Error(ErrorNumber::MemberNotFound, "message", member);
    if (arguments.size() != (octet ? 1U : 0U) + (lets ? 1U : 0U)) throw Error(ErrorNumber::WrongArgumentCount);
    std::string entry = octet ? "Octet(" + arguments[0].to_text() + ")" : "Length";
    if (lets) entry += "=" + arguments.back().to_text();
    accesses_.push_back(std::move(entry));
    if (fails_at_ && accesses_.size() > *fails_at_) throw *failure_;
    if (!octet) {
      if (lets) length_ = arguments[0];
      return lets ? Value() : length_;
    }
    const auto index = static_cast<std::size_t>(arguments[0].to_long());
    if (lets) {
      if (octets_.size() <= index) octets_.resize(index + 1);
      octets_[index] = static_cast<std::uint8_t>(arguments[1].to_long());
      return {};
    }
    return std::int32_t{index < octets_.size() ? octets_[index] : std::uint8_t{0}};
  }

  /// Every access after the first `accesses` ones raises this error.
  void fail_after(std::size_t accesses, const Error& failure) {
    fails_at_ = accesses;
    failure_ = failure;
  }
  /// What Length answers: any value, as a foreign object may.
  void set_length(Value length) { length_ = std::move(length); }

  [[nodiscard]] const std::vector<std::string>& accesses() const noexcept { return accesses_; }
  [[nodiscard]] const std::vector<std::uint8_t>& octets() const noexcept { return octets_; }
  [[nodiscard]] const Value& length() const noexcept { return length_; }
  void forget_accesses() noexcept { accesses_.clear(); }

 private:
  Value length_{std::int32_t{0}};
  std::vector<std::uint8_t> octets_;
  std::vector<std::string> accesses_;
  std::optional<std::size_t> fails_at_;
  std::optional<Error> failure_;
};

}  // namespace vorlan::test
