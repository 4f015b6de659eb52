#include "forms/application.h"

#include <algorithm>
#include <iterator>
#include <new>
#include <utility>

#include "forms/form.h"
#include "forms/message_box.h"
#include "text/error.h"

namespace quillomat {

Application::Application(std::wstring title) : title_(std::move(title)) {
    const INITCOMMONCONTROLSEX classes{sizeof classes, ICC_STANDARD_CLASSES | ICC_WIN95_CLASSES};
    InitCommonControlsEx(&classes);
}

int Application::run() {
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) dispatch(message);
    return static_cast<int>(message.wParam);
}

void Application::run_until(const std::function<bool()>& finished) {
    MSG message{};
    while (!finished()) {
        const BOOL result = GetMessageW(&message, nullptr, 0, 0);
        if (result == 0) PostQuitMessage(static_cast<int>(message.wParam));
        if (result <= 0) return;
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
}

void Application::close_all_forms() {
    std::vector<HWND> windows;
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND window, LPARAM list) -> BOOL {
            reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&windows));
    // The system lists them from front to back. What closes may take others with it.
    for (const HWND window : windows) {
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
    if (form && form->translate(message)) return;
    TranslateMessage(&message);
    DispatchMessageW(&message);
}

void Application::report_current_exception(HWND owner) {
    std::wstring description;
    try {
        throw;
    } catch (const Error& error) {
        if (error.code() == ErrorCode::Cancelled) return;
        description = error.description();
    } catch (const std::bad_alloc&) {
        description = Error(ErrorCode::OutOfMemory).description();
    } catch (const std::exception& error) {
        const std::string narrow = error.what();
        description.assign(narrow.begin(), narrow.end());
    }
    show_message(owner, {.text = description, .title = title_, .icon = MessageIcon::Critical});
}

void pause_milliseconds(int milliseconds) {
    Sleep(static_cast<DWORD>(milliseconds));
}

ModalScope::ModalScope(HWND spared) : spared_(spared) {
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND window, LPARAM scope) -> BOOL {
            auto& self = *reinterpret_cast<ModalScope*>(scope);
            if (window != self.spared_ && IsWindowVisible(window) && IsWindowEnabled(window)) {
                EnableWindow(window, FALSE);
                self.disabled_.push_back(window);
            }
            return TRUE;
        },
        reinterpret_cast<LPARAM>(this));
}

void ModalScope::end() {
    for (const HWND window : std::exchange(disabled_, {})) EnableWindow(window, TRUE);
}

}  // namespace quillomat
