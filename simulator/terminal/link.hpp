// What the parts of the terminal use of the whole.
#pragma once

#include "simulator/terminal/behaviour.hpp"

namespace vorlan::simulator {

class Link {
 public:
  /// Sends a message, unless the terminal has been told otherwise.
  virtual void send(int protocol, Octets octets) = 0;
  /// Tells what is wrong with the message just received.
  virtual void complain(std::string text) = 0;
  [[nodiscard]] virtual const Behaviour& behaviour() const noexcept = 0;

 protected:
  ~Link() = default;
};

}  // namespace vorlan::simulator
