#pragma once

#include <functional>
#include <initializer_list>
#include <string>

#include "win/api.h"

namespace quillomat {

constexpr wchar_t message_box_class[] = L"#32770";

/// What another program sees of a window.
inline std::wstring text_of(HWND window) {
    std::wstring text(static_cast<std::size_t>(SendMessageW(window, WM_GETTEXTLENGTH, 0, 0)) + 1, L'\0');
    text.resize(
        static_cast<std::size_t>(SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()))));
    return text;
}

/// The text of a message box.
inline std::wstring message_of(HWND box) {
    constexpr int text_control = 0xFFFF;
    const HWND text = GetDlgItem(box, text_control);
    return text_of(text ? text : FindWindowExW(box, nullptr, L"Static", nullptr));
}

/// Real input: presses a key on whatever has the focus, or releases it.
inline void send_key(WORD key, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki = {key, static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC)), flags, 0, 0};
    SendInput(1, &input, sizeof input);
}

/// Real input: presses and releases a key while others are held.
inline void press_key(WORD key, std::initializer_list<WORD> held = {}) {
    for (const WORD modifier : held) send_key(modifier, 0);
    send_key(key, 0);
    send_key(key, KEYEVENTF_KEYUP);
    for (const WORD modifier : held) send_key(modifier, KEYEVENTF_KEYUP);
}

/// Whether a menu of a thread is open.
inline bool in_menu(DWORD thread = GetCurrentThreadId()) {
    GUITHREADINFO information{};
    information.cbSize = sizeof information;
    return GetGUIThreadInfo(thread, &information) && information.flags & GUI_INMENUMODE;
}

}  // namespace quillomat
