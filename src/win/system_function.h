#pragma once

#include "win/api.h"

namespace quillomat {

/// A function of one of the system's libraries, which is brought in now; none when the system lacks it. What few runs
/// need is called this way, as loading its library with the program would hold up the first window. The library stays:
/// it may still be at work when the function has returned.
template <class Function>
Function* system_function(const wchar_t* library, const char* name) {
    const HMODULE module = LoadLibraryExW(library, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    return module ? reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(module, name))) : nullptr;
}

}  // namespace quillomat
