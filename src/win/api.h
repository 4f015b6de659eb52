#pragma once

// The one place where the system's headers come in. The compiler's library sets some of these for itself.
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
// Needs the above.
#include <commctrl.h>
#include <windowsx.h>
