#pragma once

// Other files include this one instead of <windows.h>. The guards are there because the standard library of mingw-w64
// defines some of these macros itself.
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef UNICODE
#define UNICODE
#endif
#undef WINVER
#undef _WIN32_WINNT
#define WINVER 0x0A00
#define _WIN32_WINNT 0x0A00

#include <windows.h>
// These need <windows.h> before them.
#include <commctrl.h>
#include <windowsx.h>
