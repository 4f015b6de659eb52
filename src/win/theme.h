#pragma once

#include "win/api.h"
// These need <windows.h> before them.
#include <uxtheme.h>
#include <vssym32.h>

namespace quillomat {

/// The visual style of a class of controls at a resolution. Converts to false in the classic look, which has none.
class Theme {
  public:
    /// `class_name` is the name of the class of controls, such as L"BUTTON".
    Theme(HWND window, const wchar_t* class_name, int dpi);
    ~Theme() {
        if (handle_) CloseThemeData(handle_);
    }
    Theme(const Theme&) = delete;
    Theme& operator=(const Theme&) = delete;

    explicit operator bool() const { return handle_ != nullptr; }
    /// Draws a part into an area, in pixels.
    void draw(HDC canvas, int part, int state, const RECT& area) const {
        DrawThemeBackground(handle_, canvas, part, state, &area, nullptr);
    }

  private:
    HTHEME handle_;
};

}  // namespace quillomat
