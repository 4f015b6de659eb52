// Works that may take long: they run beside the message loop, so that the windows repaint meanwhile.

#include <optional>
#include <utility>

#include "forms/application.h"
#include "forms/form.h"
#include "win/worker.h"

namespace quillomat {
namespace {

/// True for the input of the user at a window that cannot be used, or could not a moment ago: a library that the work
/// has called may have enabled the window.
bool is_stray_input(const MSG& message) {
    const bool is_input = (message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST) ||
                          (message.message > WM_MOUSEMOVE && message.message <= WM_MOUSELAST) ||
                          (message.message > WM_NCMOUSEMOVE && message.message <= WM_NCXBUTTONDBLCLK);
    return is_input && !IsWindowEnabled(GetAncestor(message.hwnd, GA_ROOT));
}

/// Counts down a time in milliseconds.
class Patience {
  public:
    explicit Patience(DWORD milliseconds) : milliseconds_(milliseconds) {}
    DWORD left() const {
        if (milliseconds_ == INFINITE) return INFINITE;
        const ULONGLONG waited = GetTickCount64() - start_;
        return waited < milliseconds_ ? milliseconds_ - static_cast<DWORD>(waited) : 0;
    }

  private:
    DWORD milliseconds_;
    ULONGLONG start_ = GetTickCount64();
};

}  // namespace

bool Application::run_without_blocking(std::function<void()> work, DWORD milliseconds) {
    if (std::exchange(working_, true)) return false;
    struct Reset {
        bool& flag;
        ~Reset() { flag = false; }
    } const reset{working_};

    const HWND focused = GetFocus();
    ModalScope others(*this);
    Worker worker(std::move(work));
    const HANDLE thread = worker.thread();
    const Patience patience(milliseconds);
    std::optional<int> quit;
    DWORD result = WAIT_OBJECT_0 + 1;
    while (result == WAIT_OBJECT_0 + 1) {
        result = MsgWaitForMultipleObjectsEx(1, &thread, patience.left(), QS_ALLINPUT, MWMO_INPUTAVAILABLE);
        others.hold();
        MSG message{};
        if (result != WAIT_OBJECT_0 + 1 || !PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) continue;
        others.hold();
        if (message.message == WM_QUIT) {
            quit = static_cast<int>(message.wParam);
        } else if (!is_stray_input(message)) {
            dispatch(message);
        }
    }
    if (quit) PostQuitMessage(*quit);
    others.end();
    // The focus leaves a window that cannot be used.
    if (IsWindow(focused)) SetFocus(focused);
    if (result == WAIT_TIMEOUT) {
        worker.leave_alone();
        return false;
    }
    worker.join();
    return true;
}

}  // namespace quillomat
