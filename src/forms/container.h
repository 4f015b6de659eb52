#pragma once

#include <optional>
#include <vector>

#include "forms/events.h"
#include "win/api.h"
#include "win/colour.h"

namespace quillomat {

class Control;
class Form;
class Graphic;

/// A window that items stand on. It paints its graphics in one pass that does not flicker, gives them their mouse
/// events, and passes the messages of its controls on to them.
class Container {
  public:
    Container() = default;
    virtual ~Container() = default;
    Container(const Container&) = delete;
    Container& operator=(const Container&) = delete;

    /// The system's window; null once it has gone.
    virtual HWND window() const = 0;
    /// The form that it is, or that it stands on.
    virtual Form& owner_form() = 0;

    /// What lies under all items.
    Colour back_colour() const { return back_colour_; }
    void set_back_colour(Colour colour);

    /// Items in the order they were made, which is the order of the Tab key. For the toolkit.
    const std::vector<Control*>& controls() const { return controls_; }
    /// The painted items, the backmost first. For the toolkit and its tests.
    const std::vector<Graphic*>& graphics() const { return graphics_; }
    void add(Control& control) { controls_.push_back(&control); }
    void remove(Control& control) { std::erase(controls_, &control); }
    void add(Graphic& graphic) { graphics_.push_back(&graphic); }
    void remove(Graphic& graphic);
    void bring_to_front(Graphic& graphic);

  protected:
    /// The events of the container's own surface.
    virtual MouseEvents& surface() = 0;
    /// Draws what lies under the graphics.
    virtual void draw_background(HDC canvas, const RECT& client);

    /// Handles what every container handles alike; nothing when the message is none of these.
    std::optional<LRESULT> handle_container_message(UINT message, WPARAM wparam, LPARAM lparam);
    /// Has all items take over a new resolution.
    void items_resolution_changed();

  private:
    void paint();
    void paint_onto(HDC canvas);
    std::optional<LRESULT> handle_mouse(UINT message, WPARAM wparam, LPARAM lparam);
    void press(MouseEvents& target, POINT origin);
    void release(const MouseEvent& event, WPARAM buttons_held);
    void release_all();
    Graphic* graphic_at(POINT point) const;

    Colour back_colour_ = colours::button_face;
    std::vector<Control*> controls_;
    std::vector<Graphic*> graphics_;
    MouseEvents* pressed_ = nullptr;
    POINT pressed_origin_{};
    int presses_ = 0;  // without their release
    bool double_clicked_ = false;
};

/// The mouse event of a message whose position is in pixels from `origin`.
MouseEvent to_mouse_event(UINT message, WPARAM wparam, LPARAM lparam, POINT origin, int dpi);

/// The Shift, Ctrl and Alt keys as they are now.
Modifiers current_modifiers();

}  // namespace quillomat
