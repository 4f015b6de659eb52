#include "forms/form_keyboard.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "forms/application.h"
#include "forms/control.h"
#include "forms/form.h"

namespace quillomat {
namespace {

constexpr LPARAM alt_held = 1 << 29;
constexpr LPARAM was_down_before = 1 << 30;

bool is_key_down(UINT message) {
    return message == WM_KEYDOWN || message == WM_SYSKEYDOWN;
}

bool takes_tab(HWND window) {
    return (GetWindowLongPtrW(window, GWL_STYLE) & WS_TABSTOP) && IsWindowVisible(window) && IsWindowEnabled(window);
}

// Collects windows in the order of the controls' construction, which is the Tab order. The z-order is not, because
// bringing a control to the front changes it.
void collect_in_reading_order(const Container& container, std::vector<HWND>& windows) {
    for (Control* control : container.controls()) {
        windows.push_back(control->window());
        if (const auto* inner = dynamic_cast<const Container*>(control)) collect_in_reading_order(*inner, windows);
    }
}

}  // namespace

bool FormKeyboard::translate(MSG& message) {
    if (form_.closed()) return false;
    bool handled = false;
    form_.guarded([&] {
        if (message.message == WM_MOUSEMOVE) raise(form_.on_pointer_moved);
        if (is_key_down(message.message)) handled = raise_key_events(message);
        if (!handled && !form_.closed()) {
            handled = (message.message == WM_KEYDOWN && handle_dialog_key(message)) ||
                      IsDialogMessageW(form_.window(), &message);
        }
        // Tell Windows of a handled key pressed with Alt, or releasing Alt would open the menu bar. Leave out Alt
        // itself: Windows would take the second message for a key pressed with Alt, and Alt alone would not open the
        // menu bar.
        const bool with_alt = message.message == WM_SYSKEYDOWN && (message.lParam & alt_held);
        if (handled && with_alt && message.wParam != VK_F4 && message.wParam != VK_MENU && form_.window()) {
            DefWindowProcW(form_.window(), message.message, message.wParam, message.lParam);
        }
        return LRESULT{};
    });
    return handled || form_.closed();
}

bool FormKeyboard::handle_dialog_key(const MSG& message) {
    const Modifiers modifiers = current_modifiers();
    switch (message.wParam) {
        case VK_TAB:
            if (modifiers.control) return false;
            show_cues();
            move_focus(modifiers.shift);
            return true;
        case VK_RETURN: {
            const LRESULT wanted =
                SendMessageW(message.hwnd, WM_GETDLGCODE, message.wParam, reinterpret_cast<LPARAM>(&message));
            if (wanted & DLGC_WANTALLKEYS) return false;
            Control* button = Control::from(message.hwnd);
            if (!button || !button->is_button()) button = default_button_;
            if (!button) return false;
            // Key repeat must not press the buttons of windows that open while Enter is held.
            if (message.lParam & was_down_before) return true;
            if (button->enabled() && IsWindowVisible(button->window())) button->click();
            return true;
        }
        case VK_ESCAPE:
            // Escape closes an open drop-down list first.
            if (const Control* control = Control::from(message.hwnd);
                control && SendMessageW(control->window(), CB_GETDROPPEDSTATE, 0, 0)) {
                return false;
            }
            if (!cancel_button_ || !cancel_button_->enabled()) return false;
            cancel_button_->click();
            return true;
        default:
            return false;
    }
}

void FormKeyboard::move_focus(bool backwards) {
    std::vector<HWND> windows;
    collect_in_reading_order(form_, windows);
    if (backwards) std::reverse(windows.begin(), windows.end());
    // Search once around, starting after the focused control, which need not be a tab stop.
    const Control* focused = Control::from(GetFocus());
    const auto current = std::find(windows.begin(), windows.end(), focused ? focused->window() : nullptr);
    if (current != windows.end()) std::rotate(windows.begin(), std::next(current), windows.end());
    const auto next = std::find_if(windows.begin(), windows.end(), takes_tab);
    if (next == windows.end()) return;
    SetFocus(*next);
    // As in a dialog, Tab selects the text of a single-line input.
    const bool is_input = SendMessageW(*next, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL;
    if (is_input && !(GetWindowLongPtrW(*next, GWL_STYLE) & ES_MULTILINE)) SendMessageW(*next, EM_SETSEL, 0, -1);
}

void FormKeyboard::focus(HWND control) {
    last_focus_ = control;
    if (form_.shown()) SetFocus(control);
}

void FormKeyboard::move_last_focus(HWND former, HWND present) {
    if (last_focus_ == former) last_focus_ = present;
}

void FormKeyboard::remember_focus() {
    // A window that is being minimised has lost the focus before it is deactivated; keep the control remembered before.
    if (IsChild(form_.window(), GetFocus())) last_focus_ = GetFocus();
}

void FormKeyboard::restore_focus() {
    // The form may not be visible yet, so IsWindowVisible would fail.
    const auto style = last_focus_ ? GetWindowLongPtrW(last_focus_, GWL_STYLE) : 0;
    if (IsChild(form_.window(), last_focus_) && (style & WS_VISIBLE) && !(style & WS_DISABLED)) {
        SetFocus(last_focus_);
        return;
    }
    for (const Control* control : form_.controls()) {
        if ((GetWindowLongPtrW(control->window(), GWL_STYLE) & WS_TABSTOP) && control->visible() &&
            control->enabled()) {
            SetFocus(control->window());
            return;
        }
    }
}

bool FormKeyboard::raise_key_events(const MSG& message) {
    raise(form_.on_key_pressed);
    const int key = static_cast<int>(message.wParam);
    if (Control* control = Control::from(message.hwnd)) return control->raise_key_down(key);
    if (message.hwnd != form_.window()) return false;
    KeyEvent event{.key = key, .modifiers = current_modifiers()};
    raise(form_.on_key_down, event);
    return event.handled;
}

void FormKeyboard::show_cues() {
    SendMessageW(form_.window(), WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS | UISF_HIDEACCEL), 0);
}

void FormKeyboard::set_default_button(Control* button) {
    if (button == default_button_) return;
    Control* const former = std::exchange(default_button_, button);
    if (former) InvalidateRect(former->window(), nullptr, FALSE);
    if (button) InvalidateRect(button->window(), nullptr, FALSE);
}

}  // namespace quillomat
