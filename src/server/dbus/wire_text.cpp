#include "server/dbus/wire_text.hpp"

#include <cstddef>

namespace vorlan::dbus {

namespace {

constexpr unsigned octet(char c) noexcept { return static_cast<unsigned char>(c); }

/// U+FDD0 to U+FDEF and the last two of every 65536: D-Bus allows them, but the bus library does not.
bool is_noncharacter(std::string_view character) noexcept {
  const unsigned last = octet(character.back());
  if (character.size() == 3 && character.starts_with("\xEF\xB7")) return last >= 0x90 && last <= 0xAF;
  const std::size_t tail = character.size() - 2;
  return character.size() >= 3 && octet(character[tail]) == 0xBF && last >= 0xBE &&
         (octet(character[tail - 1]) & 0x0FU) == 0x0F;
}

/// The length of the character that a text begins with; 0 if it is none that the bus carries.
std::size_t character_length(std::string_view text) noexcept {
  const unsigned lead = octet(text[0]);
  if (lead < 0x80) return lead != 0 ? 1 : 0;
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || text.size() < length) return 0;
  for (std::size_t i = 1; i < length; ++i) {
    if ((octet(text[i]) & 0xC0U) != 0x80) return 0;
  }
  const unsigned second = octet(text[1]);
  const bool too_long = (lead == 0xE0 && second < 0xA0) || (lead == 0xF0 && second < 0x90);
  const bool surrogate = lead == 0xED && second > 0x9F;
  const bool past_the_end = lead == 0xF4 && second > 0x8F;
  return too_long || surrogate || past_the_end || is_noncharacter(text.substr(0, length)) ? 0 : length;
}

}  // namespace

bool is_bus_text(std::string_view text) noexcept {
  while (!text.empty()) {
    const std::size_t length = character_length(text);
    if (length == 0) return false;
    text.remove_prefix(length);
  }
  return true;
}

std::string to_bus_text(std::string_view text) {
  std::string result;
  while (!text.empty()) {
    const std::size_t length = character_length(text);
    length == 0 ? result.append(1, '?') : result.append(text.substr(0, length));
    text.remove_prefix(length == 0 ? 1 : length);
  }
  return result;
}

}  // namespace vorlan::dbus
