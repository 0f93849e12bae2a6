// What the implementations for the different systems share.
#pragma once

#include <thread>

#include "platform/platform.hpp"

namespace vorlan {

/// The part of the clock that the standard library offers.
class SteadyClock : public Clock {
 public:
  [[nodiscard]] std::chrono::milliseconds ticks() const final {
    return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now().time_since_epoch());
  }
  void sleep(std::chrono::milliseconds time) final { std::this_thread::sleep_for(time); }
};

/// What RegistryText answers for a value that cannot be read.
inline std::string unreadable_registry_text() { return {'\0'}; }

/// A registry text is read into so many characters, its NUL included.
inline constexpr std::size_t kRegistryBuffer = 255;

}  // namespace vorlan
