#pragma once

#include <optional>

#include "forms/container.h"
#include "forms/geometry.h"
#include "text/window_size.h"

namespace quillomat {

/// A container that is a window of its own: where it stands on the screen, how large it is, and at which resolution.
/// Sizes and positions are in twips.
class TopLevelWindow : public Container {
  public:
    /// Dots per inch of the window.
    int dpi() const { return dpi_; }

    /// Outer position and size. Of a minimised window, those it goes back to.
    double left() const;
    double top() const;
    double width() const;
    double height() const;
    void set_size(double width, double height);
    void move_to(double left, double top);
    /// Inner size.
    double inner_width() const;
    double inner_height() const;
    /// Makes room for this much inside of the border, title bar and menu bar, now and at every other resolution.
    void set_inner_size(double width, double height);
    /// Puts the window in the middle of the screen's free area.
    void centre_on_screen();
    /// Moves the window, and makes it smaller if need be, so that all of it is in reach of the user.
    void place_on_screen();

  protected:
    /// `minimum` is what the user can make the window no smaller than by its border.
    explicit TopLevelWindow(const WindowSize& minimum) : minimum_(minimum) {}

    void set_dpi(int dpi) { dpi_ = dpi; }
    /// Keeps what the user makes of the window, in pixels, from being smaller than its minimum. `edge` is that of
    /// WM_SIZING.
    void limit_sizing(WPARAM edge, RECT& area) const;
    /// Takes the place that the system suggests for a new resolution, in pixels, with the inner size that was set.
    void place_for_resolution(const RECT& suggested);

  private:
    RECT outer() const;

    WindowSize minimum_;
    std::optional<WindowSize> inner_size_;  // kept at every resolution
    int dpi_ = 96;
};

}  // namespace quillomat
