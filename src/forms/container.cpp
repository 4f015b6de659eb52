#include "forms/container.h"

#include <algorithm>
#include <utility>

#include "forms/control.h"
#include "forms/form.h"
#include "forms/graphic.h"
#include "win/gdi.h"

namespace quillomat {

Modifiers current_modifiers() {
    const auto is_down = [](int key) { return GetKeyState(key) < 0; };
    return {.shift = is_down(VK_SHIFT), .control = is_down(VK_CONTROL), .alt = is_down(VK_MENU)};
}

namespace {

// Returns the button of a press or release, or the button that is held during a move.
MouseButton button_of(UINT message, WPARAM held) {
    struct Messages {
        MouseButton button;
        UINT first;
        UINT last;
        WPARAM held;
    };
    constexpr Messages buttons[] = {
        {MouseButton::Left, WM_LBUTTONDOWN, WM_LBUTTONDBLCLK, MK_LBUTTON},
        {MouseButton::Right, WM_RBUTTONDOWN, WM_RBUTTONDBLCLK, MK_RBUTTON},
        {MouseButton::Middle, WM_MBUTTONDOWN, WM_MBUTTONDBLCLK, MK_MBUTTON},
    };
    for (const auto& [button, first, last, mask] : buttons) {
        const bool is_press_or_release = message >= first && message <= last;
        const bool is_held_in_move = message == WM_MOUSEMOVE && (held & mask);
        if (is_press_or_release || is_held_in_move) return button;
    }
    return MouseButton::None;
}

}  // namespace

MouseEvent to_mouse_event(UINT message, WPARAM wparam, LPARAM lparam, POINT origin, int dpi) {
    return {.button = button_of(message, wparam),
            .modifiers = current_modifiers(),
            .x = to_twips(GET_X_LPARAM(lparam) - origin.x, dpi),
            .y = to_twips(GET_Y_LPARAM(lparam) - origin.y, dpi)};
}

void Container::set_back_colour(Colour colour) {
    if (colour == back_colour_) return;
    back_colour_ = colour;
    InvalidateRect(window(), nullptr, FALSE);
}

void Container::remove(Graphic& graphic) {
    std::erase(graphics_, &graphic);
    if (pressed_ == &graphic) {
        pressed_ = nullptr;
        presses_ = 0;
    }
}

void Container::bring_to_front(Graphic& graphic) {
    std::erase(graphics_, &graphic);
    graphics_.push_back(&graphic);
    graphic.invalidate();
}

void Container::draw_background(HDC canvas, const RECT& client) {
    fill(canvas, client, back_colour_);
}

void Container::paint_onto(HDC canvas) {
    RECT client{};
    GetClientRect(window(), &client);
    draw_background(canvas, client);
    for (const Graphic* graphic : graphics_) {
        if (graphic->visible() && RectVisible(canvas, &graphic->pixels())) graphic->draw(canvas);
    }
}

void Container::paint() {
    const PaintCanvas target(window());
    if (!target.get() || IsRectEmpty(&target.area())) return;
    const BufferedCanvas buffer(target.get(), target.area());
    paint_onto(buffer.canvas());
}

Graphic* Container::graphic_at(POINT point) const {
    const auto hit = std::find_if(graphics_.rbegin(), graphics_.rend(), [point](const Graphic* graphic) {
        return graphic->visible() && graphic->enabled() && graphic->takes_mouse() &&
               PtInRect(&graphic->pixels(), point);
    });
    if (hit == graphics_.rend()) return nullptr;
    return *hit;
}

std::optional<LRESULT> Container::handle_mouse(UINT message, WPARAM wparam, LPARAM lparam) {
    const POINT point{GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam)};
    MouseEvents* target = pressed_;
    POINT origin = pressed_origin_;
    if (!target) {
        Graphic* graphic = graphic_at(point);
        target = graphic ? static_cast<MouseEvents*>(graphic) : &surface();
        origin = graphic ? POINT{graphic->pixels().left, graphic->pixels().top} : POINT{};
    }
    const MouseEvent event = to_mouse_event(message, wparam, lparam, origin, owner_form().dpi());
    switch (message) {
        case WM_MOUSEMOVE:
            raise(target->on_mouse_move, event);
            break;
        case WM_LBUTTONDOWN:
        case WM_RBUTTONDOWN:
        case WM_MBUTTONDOWN:
        case WM_RBUTTONDBLCLK:
        case WM_MBUTTONDBLCLK:
            press(*target, origin);
            raise(target->on_mouse_down, event);
            break;
        case WM_LBUTTONDBLCLK:
            // The second press of a double-click raises on_double_click instead of on_mouse_down, but needs a release.
            press(*target, origin);
            double_clicked_ = true;
            raise(target->on_double_click);
            break;
        default: {
            // Ignore the release of a button that was pressed elsewhere, on a menu for example.
            if (presses_ == 0) break;
            const bool clicked = message == WM_LBUTTONUP && !std::exchange(double_clicked_, false);
            release(event, wparam);
            const bool still_on_it = target == &surface() || static_cast<MouseEvents*>(graphic_at(point)) == target;
            if (clicked && still_on_it) raise(target->on_click);
        }
    }
    return 0;
}

void Container::press(MouseEvents& target, POINT origin) {
    // While a button is held, all mouse moves go to the item that was pressed, even outside its bounds.
    pressed_ = &target;
    pressed_origin_ = origin;
    // Calling SetCapture again would send WM_CAPTURECHANGED, which means losing the mouse.
    if (presses_++ == 0) SetCapture(window());
}

void Container::release(const MouseEvent& event, WPARAM buttons_held) {
    MouseEvents& target = *pressed_;
    // The last release ends every press, so that each on_mouse_down gets its on_mouse_up.
    const int releases = buttons_held & (MK_LBUTTON | MK_RBUTTON | MK_MBUTTON) ? 1 : presses_;
    presses_ -= releases;
    if (presses_ == 0) {
        pressed_ = nullptr;
        ReleaseCapture();
    }
    for (int i = 0; i < releases; ++i) raise(target.on_mouse_up, event);
}

void Container::release_all() {
    // Another window has captured the mouse, so the release will not arrive here.
    double_clicked_ = false;
    while (presses_ > 0) {
        MouseEvents& target = *pressed_;
        if (--presses_ == 0) pressed_ = nullptr;
        raise(target.on_mouse_up, MouseEvent{});
    }
}

std::optional<LRESULT> Container::handle_container_message(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case WM_ERASEBKGND:
            return 1;
        case WM_PAINT:
            paint();
            return 0;
        case WM_PRINTCLIENT:
            paint_onto(reinterpret_cast<HDC>(wparam));
            return 0;
        case WM_MOUSEMOVE:
        case WM_LBUTTONDOWN:
        case WM_LBUTTONUP:
        case WM_LBUTTONDBLCLK:
        case WM_RBUTTONDOWN:
        case WM_RBUTTONUP:
        case WM_RBUTTONDBLCLK:
        case WM_MBUTTONDOWN:
        case WM_MBUTTONUP:
        case WM_MBUTTONDBLCLK:
            return handle_mouse(message, wparam, lparam);
        case WM_CAPTURECHANGED:
            release_all();
            return 0;
        case WM_SYSCOLORCHANGE:
            // Windows sends this message to top-level windows only. Frames forward it to their own controls.
            for (const Control* control : controls_) SendMessageW(control->window(), message, wparam, lparam);
            [[fallthrough]];
        case WM_THEMECHANGED:
            InvalidateRect(window(), nullptr, TRUE);
            break;
        case WM_COMMAND:
            if (Control* control = Control::from(reinterpret_cast<HWND>(lparam))) {
                control->notified(HIWORD(wparam));
                return 0;
            }
            break;
        case WM_CTLCOLOREDIT:
        case WM_CTLCOLORLISTBOX:
        case WM_CTLCOLORSTATIC:
        case WM_CTLCOLORBTN:
            if (Control* control = Control::from(reinterpret_cast<HWND>(lparam))) {
                return reinterpret_cast<LRESULT>(control->prepare_colours(reinterpret_cast<HDC>(wparam)));
            }
            break;
        case WM_DRAWITEM:
            if (const auto* request = reinterpret_cast<const DRAWITEMSTRUCT*>(lparam); request->CtlType != ODT_MENU) {
                if (Control* control = Control::from(request->hwndItem)) control->draw(*request);
                return TRUE;
            }
            break;
    }
    return std::nullopt;
}

void Container::items_resolution_changed() {
    for (Graphic* graphic : graphics_) graphic->resolution_changed();
    for (Control* control : controls_) control->resolution_changed();
    InvalidateRect(window(), nullptr, FALSE);
}

}  // namespace quillomat
