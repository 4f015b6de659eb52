#pragma once

#include <vector>

#include "win/api.h"

namespace quillomat {

class Application;
class ModalScope;

/// Decides which windows take input. While a dialog or message box is open, all other windows wait, i.e. are disabled.
class Modality {
  public:
    /// Records a new window opened by a handler of `opener`, which may be null. The window waits for the same dialogs
    /// as its opener.
    void opened(HWND window, HWND opener);
    /// Enables a window that becomes a dialog. The dialogs opened before can close only after this one.
    void let_through(HWND window);
    /// Forgets a window that is being destroyed.
    void forget(HWND window);

    /// Returns the owner for a message box: `wanted` if that window is visible and enabled, else the active window,
    /// else the front-most such window. `wanted` may be null; the result is null if there is no such window.
    HWND owner_for_message(HWND wanted) const;
    /// Activates the window that takes input, restored if it is minimised. For a waiting window that was clicked or has
    /// opened.
    void bring_usable_to_front() const;

  private:
    friend class ModalScope;
    bool waits(HWND window) const;

    std::vector<ModalScope*> scopes_;  // the innermost last
};

/// Disables all windows during its lifetime, except one window and those opened from there.
class ModalScope {
  public:
    /// `usable` stays enabled: the dialog, or the owner of a dialog of Windows, which Windows disables itself. Null for
    /// neither.
    explicit ModalScope(Application& application, HWND usable = nullptr);
    ~ModalScope() { end(); }
    ModalScope(const ModalScope&) = delete;
    ModalScope& operator=(const ModalScope&) = delete;

    /// Disables the windows that a library has enabled meanwhile.
    void hold() const;
    /// Enables the windows again unless they wait for another dialog. Call this before the dialog's window is
    /// destroyed, or Windows activates another program's window instead of the owner.
    void end();

  private:
    friend class Modality;
    bool holds(HWND window) const;

    Modality& modality_;
    std::vector<HWND> waiting_;
};

}  // namespace quillomat
