#include "forms/top_level_window.h"

#include <algorithm>
#include <utility>

namespace quillomat {
namespace {

MONITORINFO monitor_of(HWND window) {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTOPRIMARY), &monitor);
    return monitor;
}

RECT work_area(HWND window) {
    return monitor_of(window).rcWork;
}

}  // namespace

RECT TopLevelWindow::outer() const {
    // GetWindowRect returns a place far off the screen for a minimised window.
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    if (IsIconic(window()) && GetWindowPlacement(window(), &placement)) {
        // This position counts from the work area, which a taskbar at the left or top edge moves.
        const MONITORINFO monitor = monitor_of(window());
        RECT normal = placement.rcNormalPosition;
        OffsetRect(&normal, monitor.rcWork.left - monitor.rcMonitor.left, monitor.rcWork.top - monitor.rcMonitor.top);
        return normal;
    }
    RECT area{};
    GetWindowRect(window(), &area);
    return area;
}

double TopLevelWindow::left() const {
    return to_twips(outer().left, dpi_);
}

double TopLevelWindow::top() const {
    return to_twips(outer().top, dpi_);
}

double TopLevelWindow::width() const {
    return to_twips(outer().right - outer().left, dpi_);
}

double TopLevelWindow::height() const {
    return to_twips(outer().bottom - outer().top, dpi_);
}

void TopLevelWindow::set_size(double width, double height) {
    SetWindowPos(window(), nullptr, 0, 0, to_pixels(std::max(width, 0.0), dpi_), to_pixels(std::max(height, 0.0), dpi_),
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void TopLevelWindow::move_to(double left, double top) {
    SetWindowPos(window(), nullptr, to_pixels(left, dpi_), to_pixels(top, dpi_), 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

double TopLevelWindow::inner_width() const {
    RECT client{};
    GetClientRect(window(), &client);
    return to_twips(client.right, dpi_);
}

double TopLevelWindow::inner_height() const {
    RECT client{};
    GetClientRect(window(), &client);
    return to_twips(client.bottom, dpi_);
}

void TopLevelWindow::set_inner_size(double width, double height) {
    // Windows gives a new menu bar its height only when it draws the bar.
    if (GetMenu(window())) DrawMenuBar(window());
    inner_size_ = WindowSize{width, height};
    const RECT area = outer();
    RECT client{};
    GetClientRect(window(), &client);
    SetWindowPos(window(), nullptr, 0, 0, area.right - area.left - client.right + to_pixels(width, dpi_),
                 area.bottom - area.top - client.bottom + to_pixels(height, dpi_),
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void TopLevelWindow::place_over(const TopLevelWindow& other, Over place) {
    const RECT below = other.outer();
    // Twice, because the move to a monitor of another resolution changes the size.
    for (int i = 0; i < 2; ++i) {
        const RECT own = outer();
        const LONG left = (below.left + below.right - (own.right - own.left)) / 2;
        LONG top = below.top;
        if (place == Over::Middle) top = (below.top + below.bottom - (own.bottom - own.top)) / 2;
        SetWindowPos(window(), nullptr, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

void TopLevelWindow::centre_on_screen() {
    const RECT screen = work_area(window());
    const RECT area = outer();
    SetWindowPos(window(), nullptr, screen.left + (screen.right - screen.left - (area.right - area.left)) / 2,
                 screen.top + (screen.bottom - screen.top - (area.bottom - area.top)) / 2, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void TopLevelWindow::place_on_screen() {
    const RECT screen = work_area(window());
    const RECT area = outer();
    const LONG width = std::min(area.right - area.left, screen.right - screen.left);
    const LONG height = std::min(area.bottom - area.top, screen.bottom - screen.top);
    const LONG left = std::clamp(area.left, screen.left, screen.right - width);
    const LONG top = std::clamp(area.top, screen.top, screen.bottom - height);
    const RECT place{left, top, left + width, top + height};
    if (EqualRect(&place, &area)) return;
    SetWindowPos(window(), nullptr, left, top, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
}

void TopLevelWindow::limit_size(MINMAXINFO& limits) const {
    const RECT screen = work_area(window());
    POINT& least = limits.ptMinTrackSize;
    least.x = std::max(least.x, std::min<LONG>(to_pixels(minimum_.width, dpi_), screen.right - screen.left));
    least.y = std::max(least.y, std::min<LONG>(to_pixels(minimum_.height, dpi_), screen.bottom - screen.top));
}

void TopLevelWindow::size_changed(WPARAM state) {
    if (state != SIZE_RESTORED) return;
    const WindowSize size = outer_size_;
    outer_size_ = {width(), height()};
    if (std::exchange(fits_resolution_, true)) return;
    // The resolution has changed while the window was minimised or maximised.
    if (inner_size_) {
        set_inner_size(inner_size_->width, inner_size_->height);
    } else {
        set_size(size.width, size.height);
    }
    outer_size_ = size;
}

bool TopLevelWindow::scale_size(int dpi, SIZE& size) const {
    if (!is_normal()) return false;
    if (inner_size_) {
        RECT area{0, 0, to_pixels(inner_size_->width, dpi), to_pixels(inner_size_->height, dpi)};
        const auto style = static_cast<DWORD>(GetWindowLongPtrW(window(), GWL_STYLE));
        const auto extended = static_cast<DWORD>(GetWindowLongPtrW(window(), GWL_EXSTYLE));
        AdjustWindowRectExForDpi(&area, style, GetMenu(window()) != nullptr, extended, static_cast<UINT>(dpi));
        size = {area.right - area.left, area.bottom - area.top};
    } else {
        size = {to_pixels(outer_size_.width, dpi), to_pixels(outer_size_.height, dpi)};
    }
    return true;
}

void TopLevelWindow::place_for_resolution(const RECT& suggested) {
    const WindowSize size = outer_size_;
    fits_resolution_ = true;
    if (!IsIconic(window())) {
        SetWindowPos(window(), nullptr, suggested.left, suggested.top, suggested.right - suggested.left,
                     suggested.bottom - suggested.top, SWP_NOZORDER | SWP_NOACTIVATE);
    }
    fits_resolution_ = is_normal();
    if (fits_resolution_ && inner_size_) set_inner_size(inner_size_->width, inner_size_->height);
    // Keep the size before its rounding to whole pixels, which would add up over several changes.
    outer_size_ = size;
}

}  // namespace quillomat
