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

/// A window that contains items. A container paints its graphics in one double-buffered pass, raises their mouse
/// events, and forwards the notifications of its controls.
class Container {
  public:
    Container() = default;
    virtual ~Container() = default;
    Container(const Container&) = delete;
    Container& operator=(const Container&) = delete;

    /// The window handle; null once the window has been destroyed.
    virtual HWND window() const = 0;
    /// The form that contains this container, or the container itself if it is a form.
    virtual Form& owner_form() = 0;

    /// The colour behind all items.
    Colour back_colour() const { return back_colour_; }
    void set_back_colour(Colour colour);

    /// The controls in the order of their construction, which is the Tab order. For the toolkit.
    const std::vector<Control*>& controls() const { return controls_; }
    /// The graphics from back to front. For the toolkit and its tests.
    const std::vector<Graphic*>& graphics() const { return graphics_; }
    void add(Control& control) { controls_.push_back(&control); }
    void remove(Control& control) { std::erase(controls_, &control); }
    void add(Graphic& graphic) { graphics_.push_back(&graphic); }
    void remove(Graphic& graphic);
    void bring_to_front(Graphic& graphic);

  protected:
    /// The mouse events of the container itself, where no graphic is hit.
    virtual MouseEvents& surface() = 0;
    /// Draws the background behind the graphics.
    virtual void draw_background(HDC canvas, const RECT& client);

    /// Handles the messages that all containers handle in the same way. Returns nothing for any other message.
    std::optional<LRESULT> handle_container_message(UINT message, WPARAM wparam, LPARAM lparam);
    /// Tells all items that the resolution has changed.
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
    int presses_ = 0;  // mouse buttons that are down
    bool double_clicked_ = false;
};

/// Returns the event of a mouse message, with the position relative to `origin`, which is in pixels.
MouseEvent to_mouse_event(UINT message, WPARAM wparam, LPARAM lparam, POINT origin, int dpi);

/// Returns the state of the Shift, Ctrl and Alt keys at the time of the message being handled.
Modifiers current_modifiers();

}  // namespace quillomat
