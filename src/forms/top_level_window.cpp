#include "forms/top_level_window.h"

#include <algorithm>

namespace quillomat {
namespace {

RECT free_area(HWND window) {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTOPRIMARY), &monitor);
    return monitor.rcWork;
}

}  // namespace

RECT TopLevelWindow::outer() const {
    // GetWindowRect returns a place far off the screen for a minimised window.
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    if (IsIconic(window()) && GetWindowPlacement(window(), &placement)) return placement.rcNormalPosition;
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
    const RECT area = outer();
    const int pixel_width = to_pixels(std::max(width, 0.0), dpi_);
    const int pixel_height = to_pixels(std::max(height, 0.0), dpi_);
    // Setting the present size must not lay the window out again.
    if (pixel_width == area.right - area.left && pixel_height == area.bottom - area.top) return;
    SetWindowPos(window(), nullptr, 0, 0, pixel_width, pixel_height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
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

void TopLevelWindow::centre_on_screen() {
    const RECT screen = free_area(window());
    const RECT area = outer();
    SetWindowPos(window(), nullptr, screen.left + (screen.right - screen.left - (area.right - area.left)) / 2,
                 screen.top + (screen.bottom - screen.top - (area.bottom - area.top)) / 2, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void TopLevelWindow::place_on_screen() {
    const RECT screen = free_area(window());
    const RECT area = outer();
    const LONG width = std::min(area.right - area.left, screen.right - screen.left);
    const LONG height = std::min(area.bottom - area.top, screen.bottom - screen.top);
    const LONG left = std::clamp(area.left, screen.left, screen.right - width);
    const LONG top = std::clamp(area.top, screen.top, screen.bottom - height);
    const RECT place{left, top, left + width, top + height};
    if (EqualRect(&place, &area)) return;
    SetWindowPos(window(), nullptr, left, top, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
}

void TopLevelWindow::limit_sizing(WPARAM edge, RECT& area) const {
    // Without this limit, the form's own rule would push the border back only after the user has dragged it.
    const LONG width = std::max<LONG>(area.right - area.left, to_pixels(minimum_.width, dpi_));
    const LONG height = std::max<LONG>(area.bottom - area.top, to_pixels(minimum_.height, dpi_));
    const bool pulls_left = edge == WMSZ_LEFT || edge == WMSZ_TOPLEFT || edge == WMSZ_BOTTOMLEFT;
    const bool pulls_top = edge == WMSZ_TOP || edge == WMSZ_TOPLEFT || edge == WMSZ_TOPRIGHT;
    if (pulls_left) {
        area.left = area.right - width;
    } else {
        area.right = area.left + width;
    }
    if (pulls_top) {
        area.top = area.bottom - height;
    } else {
        area.bottom = area.top + height;
    }
}

void TopLevelWindow::place_for_resolution(const RECT& suggested) {
    SetWindowPos(window(), nullptr, suggested.left, suggested.top, suggested.right - suggested.left,
                 suggested.bottom - suggested.top, SWP_NOZORDER | SWP_NOACTIVATE);
    if (inner_size_ && !IsIconic(window())) set_inner_size(inner_size_->width, inner_size_->height);
}

}  // namespace quillomat
