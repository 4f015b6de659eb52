#pragma once

#include <iterator>
#include <string>
#include <vector>

#include "win/api.h"

// What any process can see of the desktop's windows.
namespace quillomat {

constexpr wchar_t message_box_class[] = L"#32770";

/// Returns the text of a window or a control of any process; empty if there is no answer within five seconds.
inline std::wstring text_of(HWND window) {
    // Wine: a message to a window of another process that is being destroyed may never be answered.
    const auto ask = [window](UINT message, WPARAM wparam, LPARAM lparam) {
        DWORD_PTR answer = 0;
        SendMessageTimeoutW(window, message, wparam, lparam, SMTO_NORMAL, 5000, &answer);
        return static_cast<std::size_t>(answer);
    };
    std::wstring text(ask(WM_GETTEXTLENGTH, 0, 0) + 1, L'\0');
    text.resize(ask(WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data())));
    return text;
}

/// Returns the window's class, or an empty text if the window has gone.
inline std::wstring class_of(HWND window) {
    wchar_t name[64]{};
    GetClassNameW(window, name, static_cast<int>(std::size(name)));
    return name;
}

inline DWORD process_of(HWND window) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    return process;
}

/// Returns the visible top-level windows of all processes, the topmost first.
inline std::vector<HWND> visible_windows() {
    std::vector<HWND> windows;
    EnumWindows(
        [](HWND window, LPARAM parameter) -> BOOL {
            if (IsWindowVisible(window)) reinterpret_cast<std::vector<HWND>*>(parameter)->push_back(window);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&windows));
    return windows;
}

/// Returns the text of a message box.
inline std::wstring message_of(HWND box) {
    constexpr int text_control = 0xFFFF;
    HWND text = GetDlgItem(box, text_control);
    if (!text) text = FindWindowExW(box, nullptr, L"Static", nullptr);
    return text_of(text);
}

/// Returns the button of a message box that declines: Cancel or No, or OK if the box has neither.
inline int refusing_button(HWND box) {
    for (const int button : {IDCANCEL, IDNO}) {
        if (GetDlgItem(box, button)) return button;
    }
    return IDOK;
}

/// Posts the press of a message box's button, by its identifier.
inline void answer_message(HWND box, int button) {
    PostMessageW(box, WM_COMMAND, MAKEWPARAM(button, BN_CLICKED), reinterpret_cast<LPARAM>(GetDlgItem(box, button)));
}

/// Returns the state of a thread's keyboard and mouse input; all zero if the thread has no windows.
inline GUITHREADINFO input_state(DWORD thread) {
    GUITHREADINFO state{};
    state.cbSize = sizeof state;
    GetGUIThreadInfo(thread, &state);
    return state;
}

/// True while a menu of the thread is open or its menu bar has the keyboard.
inline bool in_menu(DWORD thread = GetCurrentThreadId()) {
    return (input_state(thread).flags & GUI_INMENUMODE) != 0;
}

}  // namespace quillomat
