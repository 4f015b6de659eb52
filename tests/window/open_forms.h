#pragma once

#include "forms/form.h"

namespace quillomat {

/// The form of a kind that is open; null when there is none.
template <class Window>
Window* find_form() {
    Window* found = nullptr;
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND window, LPARAM result) -> BOOL {
            auto& place = *reinterpret_cast<Window**>(result);
            place = dynamic_cast<Window*>(Form::from(window));
            return !place;
        },
        reinterpret_cast<LPARAM>(&found));
    return found;
}

}  // namespace quillomat
