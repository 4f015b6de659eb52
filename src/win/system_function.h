#pragma once

#include "win/api.h"

namespace quillomat {

/// Loads a library of Windows and returns one of its functions, or null if Windows lacks it. For functions that not
/// every Windows 10 has, and for libraries that would delay the start of the program although few runs need them. The
/// library is never unloaded, because its threads may outlive the call.
template <class Function>
Function* system_function(const wchar_t* library, const char* name) {
    const HMODULE module = LoadLibraryExW(library, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    return module ? reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(module, name))) : nullptr;
}

}  // namespace quillomat
