#pragma once

#include <string>
#include <utility>
#include <vector>

#include "win/api.h"

namespace quillomat {

/// The tool tips of one form. The window that shows them takes a while to make, so that nobody waits for it: it comes
/// after the form has been shown.
class ToolTips {
  public:
    explicit ToolTips(HWND form) : form_(form) {}

    /// Sets the text shown while the pointer rests on `control`; an empty one shows none.
    void set(HWND control, const std::wstring& text);
    /// The same for an area of `window`, in pixels. `owner` tells the areas apart.
    void set(HWND window, const void* owner, const RECT& area, const std::wstring& text);
    /// What is set before takes effect now.
    void begin();
    /// Breaks long texts into lines that are as wide on every screen; `dpi` is that of the form.
    void fit_resolution(int dpi);

  private:
    void create();
    void put(TTTOOLINFOW& tool, const std::wstring& text);

    HWND form_;
    int dpi_ = 96;
    bool begun_ = false;
    std::vector<std::pair<TTTOOLINFOW, std::wstring>> waiting_;
    HWND window_ = nullptr;  // owned by the form's window and destroyed with it
};

}  // namespace quillomat
