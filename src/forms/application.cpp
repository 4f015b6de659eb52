#include "forms/application.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "forms/form.h"
#include "win/errors.h"
#include "win/thread_windows.h"
#include "win/worker.h"

namespace quillomat {

Application::Application(std::wstring title) : title_(std::move(title)) {
    const INITCOMMONCONTROLSEX classes{sizeof classes, ICC_STANDARD_CLASSES | ICC_WIN95_CLASSES};
    InitCommonControlsEx(&classes);
}

namespace {

// Waits for the next message. Returns false for a request to quit. Throws `Error` if GetMessage fails.
bool next_message(MSG& message) {
    const BOOL result = GetMessageW(&message, nullptr, 0, 0);
    if (result < 0) throw_last_error();
    return result > 0;
}

bool is_keyboard_input(UINT message) {
    return message >= WM_KEYFIRST && message <= WM_KEYLAST;
}

// Returns true for keyboard and mouse input to a disabled window. Such input arrives if a library has enabled the
// window for a moment.
bool is_stray_input(const MSG& message) {
    const bool is_input = is_keyboard_input(message.message) ||
                          (message.message > WM_MOUSEMOVE && message.message <= WM_MOUSELAST) ||
                          (message.message > WM_NCMOUSEMOVE && message.message <= WM_NCXBUTTONDBLCLK);
    return is_input && !IsWindowEnabled(GetAncestor(message.hwnd, GA_ROOT));
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

bool Application::run_without_blocking(std::function<void()> work, DWORD milliseconds) {
    if (std::exchange(working_, true)) return false;
    struct Reset {
        bool& flag;
        ~Reset() { flag = false; }
    } const reset{working_};

    const HWND focused = GetFocus();
    ModalScope modal(*this);
    Worker worker(std::move(work));
    const HANDLE thread = worker.thread();
    const ULONGLONG end = GetTickCount64() + milliseconds;
    std::optional<int> quit;
    DWORD result = WAIT_OBJECT_0 + 1;
    while (result == WAIT_OBJECT_0 + 1) {
        result = MsgWaitForMultipleObjectsEx(1, &thread, static_cast<DWORD>(end - std::min(GetTickCount64(), end)),
                                             QS_ALLINPUT, MWMO_INPUTAVAILABLE);
        modal.hold();
        MSG message{};
        if (result != WAIT_OBJECT_0 + 1 || !PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) continue;
        modal.hold();
        if (message.message == WM_QUIT) {
            quit = static_cast<int>(message.wParam);
        } else if (!is_stray_input(message)) {
            dispatch(message);
        }
    }
    if (quit) PostQuitMessage(*quit);
    modal.end();
    // Windows takes the focus away from a window that is disabled.
    if (IsWindow(focused)) SetFocus(focused);
    if (result == WAIT_TIMEOUT) {
        worker.leave_alone();
        return false;
    }
    worker.join();
    return true;
}

void Application::close_all_forms() {
    for (const HWND window : thread_windows()) {
        // Closing a form may destroy others; `Form::from` returns null for those.
        if (Form* form = Form::from(window)) form->close();
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
    Form* form = Form::from(GetAncestor(message.hwnd, GA_ROOT));
    // A window that is disabled by a dialog can still have the focus.
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

}  // namespace quillomat
