// The interfaces that the server's objects are called through, known to RPC from first to last.
#pragma once

#include <vector>

#include "server/com/com_pointer.hpp"

namespace vorlan::com {

/// RPC gets to know an interface with the first object that is handed out by it. With the last one it would forget it
/// again, and wait for calls that are about to end: a script that lets go of its only object right behind a call. Wine
/// may miss such an end and then waits for ever, with every client. While this lives, no object is the last.
class KeptInterfaces {
 public:
  KeptInterfaces();
  KeptInterfaces(const KeptInterfaces&) = delete;
  KeptInterfaces& operator=(const KeptInterfaces&) = delete;
  ~KeptInterfaces();

 private:
  std::vector<ComPointer<IStream>> marshalled_;
};

}  // namespace vorlan::com
