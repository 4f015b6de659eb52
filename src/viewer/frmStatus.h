#pragma once

#include <chrono>

#include "controls/graphics.h"
#include "forms/form.h"
#include "text/font_collection.h"

namespace quillomat {

/// Shows the progress while the viewer collects fonts, and lets the user cancel with F10.
class frmStatus final : public Form {
  public:
    /// The window stays in front of the viewer and closes with it.
    frmStatus(Application& application, const Form& viewer);

    Shape Shape1{*this, {120, 120, 0, 300}};
    Shape Shape2{*this, {120, 120, full_progress_bar, 300}};

    /// True while fonts are collected and the user has not cancelled.
    bool GoingOn = false;

    /// Shows an empty bar and starts counting the seconds.
    void begin_collecting();
    /// Updates the bar and the caption after `collected` of `count` fonts.
    void show_progress(int collected, int count);
    /// Lets the user close the window, or prevents it.
    void set_closable(bool closable);
    /// Asks the user to wait while the collected fonts are sorted and stored.
    void end_collecting();

  private:
    using Clock = std::chrono::steady_clock;

    void Form_KeyDown(KeyEvent& event);

    Clock::time_point started_;
};

}  // namespace quillomat
