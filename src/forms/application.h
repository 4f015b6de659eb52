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

/// The title, the fonts and the message loop of the program, which all windows share. wWinMain owns the object and
/// passes it by reference.
class Application {
  public:
    /// `title` is the title of message boxes.
    explicit Application(std::wstring title);
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    const std::wstring& title() const { return title_; }
    FontCache& fonts() { return fonts_; }
    /// Decides which windows the user can use.
    Modality& modality() { return modality_; }
    /// Reports exceptions that leave handlers.
    Faults& faults() { return faults_; }
    /// The window whose handler is running, or the innermost one if handlers are nested; null between events.
    HWND handling_window() const { return handling_window_; }

    /// Makes every window use `dpi` instead of asking Windows for its resolution; 0 asks again. For tests.
    void force_dpi(int dpi) { forced_dpi_ = dpi; }
    /// The forced resolution; 0 for none.
    int forced_dpi() const { return forced_dpi_; }

    /// Runs the message loop until `quit` is called and returns the program's exit code. Throws `Error` if messages
    /// cannot be read, as the other loops do.
    int run();
    /// Runs the message loop until `finished` returns true. A request to quit ends this loop and all outer ones.
    void run_until(const std::function<bool()>& finished);
    /// Handles the messages in the queue, so that windows respond during a long task.
    void let_pending_events_run();
    /// Drops the next mouse press if it makes a double-click of the click being handled. For clicks that close their
    /// window: the second press would reach the window that has opened under the pointer.
    void drop_second_press();
    /// Runs `work` on a thread of its own and returns true once the work has ended. Meanwhile windows repaint but take
    /// no input, even if a library called by the work enables one of them. The work must not touch any window.
    /// Returns false after `milliseconds`; the work then continues in the background. Returns false at once if other
    /// work is running. Rethrows exceptions that leave the work; throws `Error` with Crashed if the work crashes.
    bool run_without_blocking(std::function<void()> work, DWORD milliseconds = INFINITE);
    /// Closes every open form, dialogs before the windows below them.
    void close_all_forms();
    /// Ends the outermost `run`.
    void quit();

    /// Shows the exception being handled in a critical message box.
    void report_current_exception();

    /// Marks a window's handler as running during the lifetime of this object. For the toolkit.
    class HandlerScope {
      public:
        HandlerScope(Application& application, HWND window)
            : current_(application.handling_window_), former_(std::exchange(current_, window)) {}
        ~HandlerScope() { current_ = former_; }
        HandlerScope(const HandlerScope&) = delete;
        HandlerScope& operator=(const HandlerScope&) = delete;

      private:
        HWND& current_;
        HWND former_;
    };

  private:
    void dispatch(MSG& message);
    bool is_second_press(const MSG& message);

    std::wstring title_;
    FontCache fonts_;
    Modality modality_;
    Faults faults_{*this};
    HWND handling_window_ = nullptr;
    int forced_dpi_ = 0;
    bool working_ = false;              // during `run_without_blocking`
    std::optional<DWORD> first_click_;  // the time of the click whose second press is dropped
};

}  // namespace quillomat
