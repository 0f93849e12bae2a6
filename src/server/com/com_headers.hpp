// COM's own headers, which want to be read in this order.
#pragma once

#include <windows.h>

#include <objbase.h>
#include <ocidl.h>
#include <oleauto.h>

#ifdef __GNUC__
// COM's interfaces have no destructors; objects end themselves.
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"
#endif
