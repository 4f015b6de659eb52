#pragma once

#include <chrono>

#include "controls/graphics.h"
#include "forms/form.h"
#include "text/font_collection.h"

namespace quillomat {

/// Shows how far the collection of fonts is, and lets the user cancel it with F10.
class frmStatus final : public Form {
  public:
    /// The window stays in front of the viewer and closes with it.
    frmStatus(Application& application, const Form& viewer);

    Shape Shape1{*this, {120, 120, 0, 300}};
    Shape Shape2{*this, {120, 120, full_progress_bar, 300}};

    /// The collection may go on.
    bool GoingOn = false;

    /// Begins a collection: the bar is empty, and the seconds count from now.
    void begin();
    /// Whether it is time to show what was reached and to let events run. A font is collected in a fraction of the
    /// time that this takes, so it is not done for every one, but still many times a second.
    bool is_due() const;
    /// Shows how far the collection is.
    void show_progress(int collected, int count);
    /// The fonts are collected: shows how far that came, while the rest is done.
    void end(int collected, int count);

  private:
    using Clock = std::chrono::steady_clock;

    void Form_KeyDown(KeyEvent& event);

    Clock::time_point started_;
    Clock::time_point shown_;
};

}  // namespace quillomat
