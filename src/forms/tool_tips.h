#pragma once

#include <string>

#include "win/api.h"

namespace quillomat {

/// The tool tips of a form.
class ToolTips {
  public:
    /// Creates the tool tip window, which is owned by the form's window and destroyed with it.
    void create(HWND form, int dpi);
    /// Sets the tool tip of a control; an empty text removes it.
    void set(HWND control, const std::wstring& text);
    /// Sets the tool tip of an area of `window`, in pixels. `owner` identifies the area.
    void set(HWND window, const void* owner, const RECT& area, const std::wstring& text);
    /// Sets the width at which long texts break into lines, for the form's resolution.
    void fit_resolution(int dpi);

  private:
    void put(TTTOOLINFOW& tool, const std::wstring& text);

    HWND form_ = nullptr;
    HWND window_ = nullptr;
};

}  // namespace quillomat
