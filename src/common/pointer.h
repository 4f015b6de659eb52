#pragma once

#include "win/api.h"

namespace quillomat {

/// Where the pointer was when a window last asked, shared by the hover timers of all windows.
struct PointerState {
    POINT PointerPos{};            ///< in pixels of the screen
    BOOL PointerResult = FALSE;    ///< whether the position could be read
    HWND PointerWindow = nullptr;  ///< the window or control that lay under it
};

/// Reads the pointer's position and the window under it.
void UpdatePointer(PointerState& pointer);

/// What lengths on the screen are counted in.
enum class ScreenUnit { Pixels, Twips };

/// The width and height of the primary screen.
void GetScreenSize(int& width, int& height, ScreenUnit unit = ScreenUnit::Pixels);

/// A horizontal position in pixels on the scale of 65535 to the screen's width that `MoveMouseTo` works in.
int ToAbsoluteX(int x);
/// A vertical position in pixels on the scale of 65535 to the screen's height.
int ToAbsoluteY(int y);

/// Moves the pointer to a position in pixels.
void MoveMouseTo(int x, int y);

/// Moves the pointer to the middle of a window or control. False, and the pointer stays, when the window is gone or
/// its middle lies outside of the screen.
bool CenterMouseOn(HWND window);

}  // namespace quillomat
