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
    /// Widens the bar and changes the caption after `collected` of `count` fonts.
    void show_progress(int collected, int count);
    /// Whether the user can close the window by its border.
    void set_closable(bool closable);
    /// Says that the collection has ended and only the rest is still to be done.
    void end();

  private:
    using Clock = std::chrono::steady_clock;

    void Form_KeyDown(KeyEvent& event);

    Clock::time_point started_;
};

}  // namespace quillomat
