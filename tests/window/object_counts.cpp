#include "object_counts.h"

#include <cstdint>

#include "win/api.h"

namespace quillomat {
namespace {

BOOL CALLBACK count_window(HWND, LPARAM count) {
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

BOOL CALLBACK count_windows(HWND window, LPARAM count) {
    EnumChildWindows(window, count_window, count);
    return count_window(window, count);
}

// Wine: counts nothing itself, but knows an object by the lower half of its handle.
ObjectCounts count_by_handle() {
    constexpr std::uintptr_t last = 0xFFFF;
    ObjectCounts counts;
    for (std::uintptr_t handle = 1; handle <= last; ++handle) {
        if (GetObjectType(reinterpret_cast<HGDIOBJ>(handle))) ++counts.gdi;
        if (IsMenu(reinterpret_cast<HMENU>(handle))) ++counts.user;
    }
    EnumThreadWindows(GetCurrentThreadId(), count_windows, reinterpret_cast<LPARAM>(&counts.user));
    return counts;
}

}  // namespace

ObjectCounts count_objects() {
    const HANDLE process = GetCurrentProcess();
    const ObjectCounts counted{static_cast<int>(GetGuiResources(process, GR_GDIOBJECTS)),
                               static_cast<int>(GetGuiResources(process, GR_USEROBJECTS))};
    return counted.gdi ? counted : count_by_handle();
}

}  // namespace quillomat
