// COM on this thread, in the multithreaded apartment: calls come in on as many threads as there are.
#pragma once

#include "server/com/com_error.hpp"
#include "server/com/com_headers.hpp"

namespace vorlan::com {

class Apartment {
 public:
  Apartment() { check(CoInitializeEx(nullptr, COINIT_MULTITHREADED), "COM"); }
  Apartment(const Apartment&) = delete;
  Apartment& operator=(const Apartment&) = delete;
  ~Apartment() { CoUninitialize(); }
};

}  // namespace vorlan::com
