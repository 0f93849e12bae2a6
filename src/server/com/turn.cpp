#include "server/com/turn.hpp"

#include <utility>

namespace vorlan::com {

namespace {

/// What this thread is in; null: its first turn is to come.
thread_local Turn* latest = nullptr;

}  // namespace

Turn::Turn(std::mutex* objects) : objects_(objects), before_(latest) {
  change(before_ != nullptr ? before_->objects_ : nullptr, objects_);
  latest = this;
}

Turn::~Turn() {
  std::mutex* const next = before_ != nullptr ? before_->objects_ : nullptr;
  if (before_ != nullptr && objects_ == next) {
    for (auto& object : left_) before_->left_.push_back(std::move(object));
  } else {
    change(std::exchange(objects_, nullptr), nullptr);
    left_.clear();
    change(nullptr, next);
  }
  latest = before_;
}

void Turn::release_after(ComPointer<IUnknown> object) {
  if (latest != nullptr && latest->objects_ != nullptr) latest->left_.push_back(std::move(object));
}

void Turn::change(std::mutex* from, std::mutex* to) {
  if (from == to) return;
  if (from != nullptr) from->unlock();
  if (to != nullptr) to->lock();
}

}  // namespace vorlan::com
