// A clock whose sleep leaves the interpreter to other threads and ends at Ctrl-C.
#pragma once

#include <memory>

#include "platform/platform.hpp"

namespace vorlan::python {

/// A sleep may end with a Python exception, such as KeyboardInterrupt.
std::shared_ptr<Clock> make_interruptible(std::shared_ptr<Clock> clock);

}  // namespace vorlan::python
