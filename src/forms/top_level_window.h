#pragma once

#include <optional>

#include "forms/container.h"
#include "forms/geometry.h"
#include "text/window_size.h"

namespace quillomat {

/// Where a window is placed over another window.
enum class Over { Middle, Top };

/// The place, size and resolution of a top-level window. Sizes and positions are in twips.
class TopLevelWindow : public Container {
  public:
    /// The resolution of the window, in dots per inch.
    int dpi() const { return dpi_; }

    /// Outer position and size; for a minimised window, those to which Windows will restore it.
    double left() const;
    double top() const;
    double width() const;
    double height() const;
    void set_size(double width, double height);
    void move_to(double left, double top);
    /// Size of the client area.
    double inner_width() const;
    double inner_height() const;
    /// Sizes the window so that its client area has this size, also after the resolution changes.
    void set_inner_size(double width, double height);
    /// Centres the window over another one, which may be on a monitor of another resolution: in both directions, or
    /// horizontally with the upper edges in line.
    void place_over(const TopLevelWindow& other, Over place = Over::Middle);
    /// Centres the window in the work area of its monitor.
    void centre_on_screen();
    /// Moves and shrinks the window as needed to fit it into the work area of its monitor.
    void place_on_screen();

  protected:
    /// `minimum` is the smallest size that the window takes, except on a smaller screen.
    explicit TopLevelWindow(const WindowSize& minimum) : minimum_(minimum) {}

    void set_dpi(int dpi) { dpi_ = dpi; }
    /// Handles WM_GETMINMAXINFO: raises the smallest size in `limits` to the minimum.
    void limit_size(MINMAXINFO& limits) const;
    /// Handles WM_SIZE, whose wParam is `state`.
    void size_changed(WPARAM state);
    /// Handles WM_GETDPISCALEDSIZE: sets `size` to the outer size at a new resolution, in pixels. Returns false, to
    /// leave the size to Windows, if the window is minimised or maximised.
    bool scale_size(int dpi, SIZE& size) const;
    /// Handles WM_DPICHANGED: moves the window to the rectangle that Windows suggests, in pixels. Keeps an inner size
    /// set by `set_inner_size`.
    void place_for_resolution(const RECT& suggested);

  private:
    RECT outer() const;
    bool is_normal() const { return !IsIconic(window()) && !IsZoomed(window()); }

    WindowSize minimum_;
    std::optional<WindowSize> inner_size_;  // kept at every resolution
    WindowSize outer_size_;                 // kept at every resolution unless `inner_size_` is set
    bool fits_resolution_ = true;           // false after a change while the window was minimised or maximised
    int dpi_ = 96;
};

}  // namespace quillomat
