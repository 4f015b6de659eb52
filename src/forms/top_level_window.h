#pragma once

#include <optional>

#include "forms/container.h"
#include "forms/geometry.h"
#include "text/window_size.h"

namespace quillomat {

/// The place, size and resolution of a top-level window. Sizes and positions are in twips.
class TopLevelWindow : public Container {
  public:
    /// The resolution of the window, in dots per inch.
    int dpi() const { return dpi_; }

    /// Outer position and size; those to restore if the window is minimised.
    double left() const;
    double top() const;
    double width() const;
    double height() const;
    void set_size(double width, double height);
    void move_to(double left, double top);
    /// Inner size.
    double inner_width() const;
    double inner_height() const;
    /// Sizes the window so that its inside, without border, title bar and menu bar, has this size. The inner size is
    /// kept when the resolution changes.
    void set_inner_size(double width, double height);
    /// Centres the window in the work area of its monitor.
    void centre_on_screen();
    /// Moves and shrinks the window as needed to fit it into the work area of its monitor.
    void place_on_screen();

  protected:
    /// `minimum` is the smallest size to which the user can drag the border.
    explicit TopLevelWindow(const WindowSize& minimum) : minimum_(minimum) {}

    void set_dpi(int dpi) { dpi_ = dpi; }
    /// Enlarges `area`, in pixels, to the minimum size, for WM_SIZING with `edge`.
    void limit_sizing(WPARAM edge, RECT& area) const;
    /// Moves the window to the rectangle that Windows suggests for a new resolution, in pixels. Keeps an inner size set
    /// by `set_inner_size`.
    void place_for_resolution(const RECT& suggested);

  private:
    RECT outer() const;

    WindowSize minimum_;
    std::optional<WindowSize> inner_size_;  // kept at every resolution
    int dpi_ = 96;
};

}  // namespace quillomat
