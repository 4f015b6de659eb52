#pragma once

#include <vector>

#include "win/api.h"

namespace quillomat {

/// Sends real mouse input. `flags` are `MOUSEEVENTF_` values; with `MOUSEEVENTF_MOVE` the pointer goes to `place`, in
/// pixels of the screen. `data` is the distance of `MOUSEEVENTF_WHEEL`.
inline void send_mouse(DWORD flags, POINT place = {}, int data = 0) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dx = MulDiv(place.x, 65536, GetSystemMetrics(SM_CXSCREEN)) + 1;
    input.mi.dy = MulDiv(place.y, 65536, GetSystemMetrics(SM_CYSCREEN)) + 1;
    input.mi.mouseData = static_cast<DWORD>(data);
    input.mi.dwFlags = MOUSEEVENTF_ABSOLUTE | flags;
    SendInput(1, &input, sizeof input);
}

/// Presses a key on whatever has the focus or, with `KEYEVENTF_KEYUP`, releases it. Real input.
inline void send_key(WORD key, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki = {key, static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC)), flags, 0, 0};
    SendInput(1, &input, sizeof input);
}

/// Presses and releases a key while other keys are held. Real input.
inline void press_key(WORD key, const std::vector<WORD>& held = {}) {
    for (const WORD modifier : held) send_key(modifier, 0);
    send_key(key, 0);
    send_key(key, KEYEVENTF_KEYUP);
    for (const WORD modifier : held) send_key(modifier, KEYEVENTF_KEYUP);
}

}  // namespace quillomat
