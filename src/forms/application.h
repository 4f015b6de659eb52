#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "forms/faults.h"
#include "forms/modality.h"
#include "win/font.h"

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
    /// Which windows the user can use.
    Modality& modality() { return modality_; }
    /// What went wrong in handlers.
    Faults& faults() { return faults_; }
    /// The window whose handler is running, the innermost one; null between events.
    HWND handling() const { return handling_; }

    /// Makes every window take `dpi` for its resolution instead of asking the system; 0 asks again. For tests.
    void force_dpi(int dpi) { forced_dpi_ = dpi; }
    /// The resolution that was forced; 0 for none.
    int forced_dpi() const { return forced_dpi_; }

    /// Runs the windows until `quit` is called; the result is the program's exit code. Throws `Error` if the messages
    /// cannot be read, as the other loops do.
    int run();
    /// Runs the windows until `finished` holds. A request to quit ends it too and is passed on to the outer loop.
    void run_until(const std::function<bool()>& finished);
    /// Handles the messages that wait now, so that a long task stays responsive.
    void let_pending_events_run();
    /// Drops the next mouse press if it turns the click being handled into a double-click. For a click that closes its
    /// window: the second press would reach whatever has opened under the pointer.
    void drop_second_press();
    /// Runs `work` on a thread of its own and returns true when the work has ended. Meanwhile the windows repaint, but
    /// none of them takes input, even if a library that the work calls enables one. The work must not touch a window.
    /// Returns false after `milliseconds`, and the work then goes on by itself; and at once if a work is running
    /// already. Rethrows the exception that leaves the work; throws `Error` with Crashed if the work crashes.
    bool run_without_blocking(std::function<void()> work, DWORD milliseconds = INFINITE);
    /// Closes every form that is open, dialogs before the windows below them.
    void close_all_forms();
    /// Ends the outermost `run`.
    void quit();

    /// Shows the user the exception being handled, in a critical message box.
    void report_current_exception();

    /// Marks a window's handler as running for as long as it lives. For the toolkit.
    class Handling {
      public:
        Handling(Application& application, HWND window)
            : handling_(application.handling_), former_(std::exchange(handling_, window)) {}
        ~Handling() { handling_ = former_; }
        Handling(const Handling&) = delete;
        Handling& operator=(const Handling&) = delete;

      private:
        HWND& handling_;
        HWND former_;
    };

  private:
    void dispatch(MSG& message);
    bool is_second_press(const MSG& message);

    std::wstring title_;
    FontCache fonts_;
    Modality modality_;
    Faults faults_{*this};
    HWND handling_ = nullptr;
    int forced_dpi_ = 0;
    bool working_ = false;              // by `run_without_blocking`
    std::optional<DWORD> first_click_;  // the time of the click whose second press is dropped
};

}  // namespace quillomat
