#pragma once

#include "win/api.h"

namespace quillomat {

/// The last pointer position read. The hover timers of all windows share it.
struct PointerState {
    POINT PointerPos{};            ///< in pixels of the screen
    BOOL PointerResult = FALSE;    ///< false if the position could not be read
    HWND PointerWindow = nullptr;  ///< the window or control under the pointer
};

/// Reads the pointer's position and the window under it.
void UpdatePointer(PointerState& pointer);

/// Gets the width and height of the primary screen: in pixels if `dpi` is 0, otherwise in twips at that resolution.
void GetScreenSize(int& width, int& height, int dpi = 0);

/// Converts a horizontal position from pixels to the units of `mouse_event`, of which the screen's width has 65535.
int ToAbsoluteX(int x);
/// Converts a vertical position from pixels to the units of `mouse_event`, of which the screen's height has 65535.
int ToAbsoluteY(int y);

/// Moves the pointer to a position in pixels.
void MoveMouseTo(int x, int y);

/// Moves the pointer to the centre of a window or control. Returns false and leaves the pointer alone if the window is
/// gone or its centre is off the screen.
bool CenterMouseOn(HWND window);

}  // namespace quillomat
