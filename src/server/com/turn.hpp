// Lets one call at a time into the objects of one client.
#pragma once

#include <mutex>
#include <vector>

#include "server/com/com_pointer.hpp"

namespace vorlan::com {

/// The objects of a script refer to each other and are not made for two calls at once, so its calls take turns. A
/// thread has one turn at most: it gives up the one that it has for another, and takes it back at the end. So no two
/// wait for each other.
class Turn {
 public:
  explicit Turn(std::mutex& objects) : Turn(&objects) {}
  Turn(const Turn&) = delete;
  Turn& operator=(const Turn&) = delete;
  ~Turn();

  /// Lets go of an object outside once this thread has no turn: that may last, and may call back.
  static void release_after(ComPointer<IUnknown> object);

 protected:
  explicit Turn(std::mutex* objects);

 private:
  static void change(std::mutex* from, std::mutex* to);

  std::mutex* objects_;
  Turn* before_;
  std::vector<ComPointer<IUnknown>> left_;
};

/// A call that sleeps, or that waits for an object outside, leaves its turn to others meanwhile; what that object calls
/// back is among them. Without a turn there is nothing to leave.
class Pause : private Turn {
 public:
  Pause() : Turn(nullptr) {}
};

}  // namespace vorlan::com
