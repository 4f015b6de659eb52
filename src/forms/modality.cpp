#include "forms/modality.h"

#include <algorithm>
#include <utility>

#include "forms/application.h"
#include "win/thread_windows.h"

namespace quillomat {
namespace {

bool is_usable(HWND window) {
    return IsWindowVisible(window) && IsWindowEnabled(window);
}

bool is_tool_tip(HWND window) {
    return (GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_TOOLWINDOW) != 0;
}

// Returns the active window if it is usable, else the front-most usable window, else null.
HWND usable_window() {
    const HWND active = GetActiveWindow();
    if (active && is_usable(active)) return active;
    const std::vector<HWND> windows = thread_windows();
    const auto found = std::find_if(windows.begin(), windows.end(),
                                    [](HWND window) { return is_usable(window) && !is_tool_tip(window); });
    if (found == windows.end()) return nullptr;
    return *found;
}

}  // namespace

bool Modality::waits(HWND window) const {
    return std::any_of(scopes_.begin(), scopes_.end(), [&](const ModalScope* scope) { return scope->holds(window); });
}

void Modality::opened(HWND window, HWND opener) {
    if (scopes_.empty() || !opener || IsWindowEnabled(opener)) return;
    // If no scope holds the opener, Windows has disabled it as the owner of a message box; the new window waits too.
    const bool in_a_scope = waits(opener);
    for (ModalScope* scope : scopes_) {
        if (scope->holds(opener) || (!in_a_scope && scope == scopes_.back())) scope->waiting_.push_back(window);
    }
    EnableWindow(window, FALSE);
}

void Modality::let_through(HWND window) {
    forget(window);
    EnableWindow(window, TRUE);
}

void Modality::forget(HWND window) {
    for (ModalScope* scope : scopes_) std::erase(scope->waiting_, window);
}

HWND Modality::owner_for_message(HWND wanted) const {
    if (wanted && is_usable(wanted)) return wanted;
    return usable_window();
}

void Modality::bring_usable_to_front() const {
    const HWND window = usable_window();
    if (!window) return;
    if (IsIconic(window)) ShowWindow(window, SW_RESTORE);
    SetForegroundWindow(window);
}

ModalScope::ModalScope(Application& application, HWND usable) : modality_(application.modality()) {
    for (const HWND window : thread_windows()) {
        // A window disabled by anything but a scope must not be enabled at the end. One disabled by another scope is
        // held here too, because that scope may end first.
        if (window != usable && (IsWindowEnabled(window) || modality_.waits(window))) waiting_.push_back(window);
    }
    modality_.scopes_.push_back(this);
    for (const HWND window : waiting_) EnableWindow(window, FALSE);
}

bool ModalScope::holds(HWND window) const {
    return std::find(waiting_.begin(), waiting_.end(), window) != waiting_.end();
}

void ModalScope::hold() const {
    for (const HWND window : waiting_) {
        if (IsWindowEnabled(window)) EnableWindow(window, FALSE);
    }
}

void ModalScope::end() {
    std::erase(modality_.scopes_, this);
    for (const HWND window : std::exchange(waiting_, {})) {
        if (!modality_.waits(window)) EnableWindow(window, TRUE);
    }
}

}  // namespace quillomat
