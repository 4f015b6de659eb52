#pragma once

#include <string>

#include "win/api.h"

namespace quillomat {

/// The tool tips of one form.
class ToolTips {
  public:
    /// Makes the window that shows them; the form's window owns and destroys it.
    void create(HWND form, int dpi);
    /// Sets the text shown while the pointer rests on `control`; an empty one shows none.
    void set(HWND control, const std::wstring& text);
    /// The same for an area of `window`, in pixels. `owner` tells the areas apart.
    void set(HWND window, const void* owner, const RECT& area, const std::wstring& text);
    /// Breaks long texts into lines that are as wide on every screen; `dpi` is that of the form.
    void fit_resolution(int dpi);

  private:
    void put(TTTOOLINFOW& tool, const std::wstring& text);

    HWND form_ = nullptr;
    HWND window_ = nullptr;
};

}  // namespace quillomat
