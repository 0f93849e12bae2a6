// Lets one call at a time into the objects of one client.
#pragma once

#include <condition_variable>
#include <mutex>

#include "server/com/com_headers.hpp"

namespace vorlan::com {

/// The objects of a script refer to each other and are not made for two calls at once, so they share a lock. It is held
/// through calls out to the script's own objects: what these call back, on whatever thread it arrives, is part of the
/// same call (COM's logical thread) and comes in.
class CallLock {
 public:
  void lock() {
    const GUID caller = logical_thread();
    std::unique_lock guard(mutex_);
    free_.wait(guard, [&] { return depth_ == 0 || InlineIsEqualGUID(holder_, caller) != 0; });
    holder_ = caller;
    ++depth_;
  }
  void unlock() {
    const std::scoped_lock guard(mutex_);
    if (--depth_ == 0) free_.notify_one();
  }

 private:
  static GUID logical_thread() noexcept {
    GUID id{};
    // Where COM knows none, the thread itself will do.
    if (FAILED(CoGetCurrentLogicalThreadId(&id))) id.Data1 = GetCurrentThreadId();
    return id;
  }

  std::mutex mutex_;
  std::condition_variable free_;
  GUID holder_{};
  int depth_ = 0;
};

}  // namespace vorlan::com
