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

#ifdef __MINGW32__
// In the library, but not in these headers.
extern "C" {
HRESULT WINAPI RegisterTypeLibForUser(ITypeLib* library, OLECHAR* path, OLECHAR* help_folder);
HRESULT WINAPI UnRegisterTypeLibForUser(REFGUID id, WORD major, WORD minor, LCID locale, SYSKIND system);
}
#endif
