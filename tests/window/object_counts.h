#pragma once

#include <cstdint>

#include "support/desktop.h"

namespace quillomat {

/// What this process holds of the system.
struct ObjectCounts {
    int gdi = 0;   ///< brushes, fonts, bitmaps, device contexts and the like
    int user = 0;  ///< windows and menus

    bool operator==(const ObjectCounts&) const = default;
};

inline ObjectCounts count_objects() {
    const HANDLE process = GetCurrentProcess();
    ObjectCounts counts{static_cast<int>(GetGuiResources(process, GR_GDIOBJECTS)),
                        static_cast<int>(GetGuiResources(process, GR_USEROBJECTS))};
    if (counts.gdi) return counts;
    // Wine: counts nothing itself, but knows an object by the lower half of its handle.
    counts = {};
    for (std::uintptr_t handle = 1; handle <= 0xFFFF; ++handle) {
        counts.gdi += GetObjectType(reinterpret_cast<HGDIOBJ>(handle)) != 0;
        counts.user += IsMenu(reinterpret_cast<HMENU>(handle)) != 0;
    }
    const auto count_own = [](HWND window, LPARAM count) -> BOOL {
        *reinterpret_cast<int*>(count) += process_of(window) == GetCurrentProcessId();
        return TRUE;
    };
    EnumChildWindows(GetDesktopWindow(), count_own, reinterpret_cast<LPARAM>(&counts.user));
    return counts;
}

}  // namespace quillomat
