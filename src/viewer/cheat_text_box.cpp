#include "viewer/cheat_text_box.h"

namespace quillomat {

LRESULT CheatTextBox::handle_message(UINT message, WPARAM wparam, LPARAM lparam) {
    if (message == WM_CONTEXTMENU) {
        raise(on_context_menu);
        return 0;
    }
    if (message == WM_MOUSEWHEEL && (GET_KEYSTATE_WPARAM(wparam) & MK_CONTROL)) {
        wheel_delta_ += GET_WHEEL_DELTA_WPARAM(wparam);
        const int notches = wheel_delta_ / WHEEL_DELTA;
        wheel_delta_ %= WHEEL_DELTA;
        raise(on_control_wheel, notches);
        return 0;
    }
    return TextBox::handle_message(message, wparam, lparam);
}

}  // namespace quillomat
