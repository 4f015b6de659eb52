#include "forms/application.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "forms/form.h"
#include "win/errors.h"
#include "win/thread_windows.h"

namespace quillomat {

Application::Application(std::wstring title) : title_(std::move(title)) {
    const INITCOMMONCONTROLSEX classes{sizeof classes, ICC_STANDARD_CLASSES | ICC_WIN95_CLASSES};
    InitCommonControlsEx(&classes);
}

namespace {

/// Waits for the next message of the thread; false for a request to quit.
bool next_message(MSG& message) {
    const BOOL result = GetMessageW(&message, nullptr, 0, 0);
    if (result < 0) throw_last_error();
    return result > 0;
}

bool is_keyboard_input(UINT message) {
    return message >= WM_KEYFIRST && message <= WM_KEYLAST;
}

}  // namespace

int Application::run() {
    MSG message{};
    while (next_message(message)) dispatch(message);
    return static_cast<int>(message.wParam);
}

void Application::run_until(const std::function<bool()>& finished) {
    MSG message{};
    while (!finished()) {
        if (!next_message(message)) {
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        dispatch(message);
    }
}

void Application::let_pending_events_run() {
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        dispatch(message);
    }
    faults_.report();
}

void Application::close_all_forms() {
    for (const HWND window : thread_windows()) {
        // What closes may take others with it.
        Form* form = IsWindow(window) ? Form::from(window) : nullptr;
        if (form) form->close();
    }
}

void Application::drop_second_press() {
    first_click_ = static_cast<DWORD>(GetMessageTime());
}

bool Application::is_second_press(const MSG& message) {
    constexpr UINT presses[] = {WM_LBUTTONDOWN, WM_LBUTTONDBLCLK, WM_NCLBUTTONDOWN, WM_NCLBUTTONDBLCLK};
    if (std::ranges::find(presses, message.message) == std::end(presses)) return false;
    const std::optional<DWORD> first = std::exchange(first_click_, std::nullopt);
    return first && message.time - *first < GetDoubleClickTime();
}

void Application::quit() {
    PostQuitMessage(0);
}

void Application::dispatch(MSG& message) {
    if (is_second_press(message)) return;
    Form* form = message.hwnd ? Form::from(GetAncestor(message.hwnd, GA_ROOT)) : nullptr;
    // A window that waits for a dialog can still have the focus.
    const bool waits = form && !IsWindowEnabled(form->window()) && is_keyboard_input(message.message);
    if (!waits && !(form && form->internals().keyboard.translate(message))) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    faults_.report();
}

void Application::report_current_exception() {
    faults_.note_current_exception(nullptr, Occasion::Action);
    faults_.report();
}

void pause_milliseconds(int milliseconds) {
    Sleep(static_cast<DWORD>(milliseconds));
}

}  // namespace quillomat
