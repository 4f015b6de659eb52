#pragma once

#include <string>
#include <vector>

#include "support/desktop.h"

namespace quillomat::soak {

/// The text for the log, without control characters.
std::string narrow(std::wstring text);

/// What of a program is on the screen now.
class Scene {
  public:
    explicit Scene(DWORD process);

    /// Its visible windows without the tool tips, the topmost first.
    const std::vector<HWND>& windows() const { return windows_; }
    bool is_own(HWND window) const;
    /// The open menu; null when there is none.
    HWND menu() const;
    /// The topmost window that takes input; null when there is none.
    HWND topmost() const;
    /// What is wrong about which windows take input; empty if nothing is. While a message box or a dialog is up, no
    /// other window does, and without one every window does.
    std::string input_fault() const;
    /// Whether the keys that are pressed now go to the program.
    bool has_keyboard() const { return is_own(GetForegroundWindow()); }
    /// Whether a click at a place of the screen goes to the program.
    bool has(POINT place) const { return is_own(WindowFromPoint(place)); }

  private:
    DWORD process_;
    std::vector<HWND> windows_;
};

/// The visible controls of a window that have none of these in them.
std::vector<HWND> controls_of(HWND window);

/// Closes what other programs show in front, like a mail program that was started by a link.
void close_strangers(DWORD process);

}  // namespace quillomat::soak
