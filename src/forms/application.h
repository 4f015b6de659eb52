#pragma once

#include <exception>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "forms/font.h"

namespace quillomat {

class Form;

/// What all windows of the program share: its title, its fonts, and the message loop they live in. Owned by the entry
/// and handed down.
class Application {
  public:
    /// `title` is that of its messages.
    explicit Application(std::wstring title);
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    const std::wstring& title() const { return title_; }
    FontCache& fonts() { return fonts_; }

    /// Makes every window take `dpi` for its resolution instead of asking the system; 0 asks again. For tests.
    void force_dpi(int dpi) { forced_dpi_ = dpi; }
    /// The resolution that was forced; 0 for none.
    int forced_dpi() const { return forced_dpi_; }

    /// Runs the windows until `quit` is called; the result is the program's exit code.
    int run();
    /// Runs the windows until `finished` holds. A request to quit ends it too and is passed on to the outer loop.
    void run_until(const std::function<bool()>& finished);
    /// Handles the messages that wait now, so that a long task stays responsive.
    void let_pending_events_run();
    /// Drops the second press of a double-click, if the mouse click that is being handled turns out to be one: what
    /// opens under the pointer instead of the clicked window is not meant.
    void drop_second_press();
    /// Closes every form that is open, dialogs before the windows below them.
    void close_all_forms();
    /// Ends the outermost `run`.
    void quit();

    /// Shows the user what went wrong in the handler that is being left, in a critical message box; to be called while
    /// the exception is handled.
    void report_current_exception(HWND owner);

  private:
    void dispatch(MSG& message);
    bool is_second_press(const MSG& message);

    std::wstring title_;
    FontCache fonts_;
    int forced_dpi_ = 0;
    std::optional<DWORD> first_click_;  // the time of the click whose second press is dropped
};

/// Stops the program for a moment, in the middle of an animation.
void pause_milliseconds(int milliseconds);

/// While it lives, the user can reach none of the program's windows but those opened later: a dialog is up.
class ModalScope {
  public:
    /// `spared` stays enabled: the dialog itself, or the owner of a system dialog, which the system disables and
    /// enables by itself.
    explicit ModalScope(HWND spared = nullptr);
    ~ModalScope() { end(); }
    ModalScope(const ModalScope&) = delete;
    ModalScope& operator=(const ModalScope&) = delete;

    /// Enables the windows again. Must run before the dialog's window is destroyed, or the system activates another
    /// program's window instead of the owner.
    void end();

  private:
    HWND spared_;
    std::vector<HWND> disabled_;
};

}  // namespace quillomat
