#pragma once

#include <vector>

#include "win/api.h"

namespace quillomat {

class Application;
class ModalScope;

/// Decides which windows of the program take input: while something modal is up, all other windows wait for it.
class Modality {
  public:
    /// A window was opened by a handler of `opener`, which may be null: it waits for whatever its opener waits for.
    void opened(HWND window, HWND opener);
    /// A window becomes a dialog: it waits for nothing any more, because what is below it can end only after it has.
    void let_through(HWND window);
    /// A window is being destroyed.
    void forget(HWND window);

    /// Returns the window that a message asked for by `wanted` (which may be null) belongs to: `wanted` itself if the
    /// user can use it, else the active or the front-most window that the user can use. Null if there is none.
    HWND owner_for_message(HWND wanted) const;
    /// Brings the window that the user can use to the front: a waiting window was clicked or has just opened.
    void bring_usable_to_front() const;

  private:
    friend class ModalScope;
    bool waits(HWND window) const;

    std::vector<ModalScope*> scopes_;  // the innermost last
};

/// While it lives, the user can use none of the program's windows but `usable` and what is opened from there.
class ModalScope {
  public:
    /// `usable` is the dialog itself, or the owner of a system dialog, which Windows disables and enables by itself;
    /// null for neither.
    explicit ModalScope(Application& application, HWND usable = nullptr);
    ~ModalScope() { end(); }
    ModalScope(const ModalScope&) = delete;
    ModalScope& operator=(const ModalScope&) = delete;

    /// Makes the windows wait again that a library of another program has enabled.
    void hold() const;
    /// Enables the windows again that wait for nothing else. Must run before the dialog's window is destroyed, or
    /// Windows activates another program's window instead of the owner.
    void end();

  private:
    friend class Modality;
    bool holds(HWND window) const;

    Modality& modality_;
    std::vector<HWND> waiting_;
};

}  // namespace quillomat
