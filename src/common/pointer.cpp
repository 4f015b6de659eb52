#include "common/pointer.h"

#include "text/pointer_arithmetic.h"
#include "text/twips.h"

namespace quillomat {

void UpdatePointer(PointerState& pointer) {
    pointer.PointerResult = GetCursorPos(&pointer.PointerPos);
    pointer.PointerWindow = WindowFromPoint(pointer.PointerPos);
}

void GetScreenSize(int& width, int& height, int dpi) {
    width = GetSystemMetrics(SM_CXSCREEN);
    height = GetSystemMetrics(SM_CYSCREEN);
    if (dpi) {
        width = MulDiv(width, twips_per_inch, dpi);
        height = MulDiv(height, twips_per_inch, dpi);
    }
}

int ToAbsoluteX(int x) {
    return to_absolute(x, GetSystemMetrics(SM_CXSCREEN));
}

int ToAbsoluteY(int y) {
    return to_absolute(y, GetSystemMetrics(SM_CYSCREEN));
}

void MoveMouseTo(int x, int y) {
    mouse_event(MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE, static_cast<DWORD>(ToAbsoluteX(x)),
                static_cast<DWORD>(ToAbsoluteY(y)), 0, 0);
}

bool CenterMouseOn(HWND window) {
    PixelSize screen;
    GetScreenSize(screen.width, screen.height);
    RECT area{};
    if (!GetWindowRect(window, &area)) return false;
    const auto centre = centre_on_screen({area.left, area.top, area.right, area.bottom}, screen);
    if (!centre) return false;
    MoveMouseTo(centre->x, centre->y);
    return true;
}

}  // namespace quillomat
