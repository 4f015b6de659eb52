#pragma once

#include <string>
#include <vector>

#include "support/desktop.h"

namespace quillomat::soak {

/// Converts a text for the log, without its control characters.
std::string narrow(std::wstring text);

/// The windows that a program shows now.
class Scene {
  public:
    explicit Scene(DWORD process);

    /// The program's visible windows except tooltips, the topmost first.
    const std::vector<HWND>& windows() const { return windows_; }
    bool is_own(HWND window) const;
    /// The open menu, or null.
    HWND menu() const;
    /// The topmost window that takes input, or null.
    HWND topmost() const;
    /// Describes which windows take input if those are the wrong ones; empty otherwise. While a message box or a dialog
    /// is up, no other window may take input; without one, every window must.
    std::string input_fault() const;
    /// True if the program receives the keys that are pressed now.
    bool has_keyboard() const { return is_own(GetForegroundWindow()); }
    /// True if the program receives a click at this place of the screen.
    bool has(POINT place) const { return is_own(WindowFromPoint(place)); }

  private:
    DWORD process_;
    std::vector<HWND> windows_;
};

/// Returns the visible controls of a window, without those that contain other visible controls.
std::vector<HWND> controls_of(HWND window);

/// Closes the windows of other programs, for example of a mail program that a link has started.
void close_strangers(DWORD process);

}  // namespace quillomat::soak
