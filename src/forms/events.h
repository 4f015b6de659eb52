#pragma once

#include <functional>

namespace quillomat {

/// A mouse button; for a movement, the one held down.
enum class MouseButton { None, Left, Right, Middle };

/// The Shift, Ctrl and Alt keys held down during an event.
struct Modifiers {
    bool shift = false;
    bool control = false;
    bool alt = false;

    bool only_control() const { return control && !shift && !alt; }
    bool only_alt() const { return alt && !shift && !control; }
};

/// A press, release or movement of the mouse. The position is in twips from the item's left and top.
struct MouseEvent {
    MouseButton button = MouseButton::None;
    Modifiers modifiers;
    double x = 0;
    double y = 0;
};

/// Codes of the keys that windows of the program answer to.
namespace keys {
inline constexpr int enter = 13;
inline constexpr int escape = 27;
inline constexpr int up = 38;
inline constexpr int down = 40;
inline constexpr int f = 'F';
inline constexpr int menu = 93;
inline constexpr int f1 = 112;
inline constexpr int f10 = 121;
}  // namespace keys

/// A key that goes down. A handler that sets `handled` keeps it from the control and from the dialog keys.
struct KeyEvent {
    int key = 0;
    Modifiers modifiers;
    bool handled = false;
};

/// A character about to be typed. A handler that sets `handled` keeps it from the control.
struct CharacterEvent {
    wchar_t character = 0;
    bool handled = false;
};

/// Calls a handler if one is bound.
template <class... Arguments, class... Values>
void raise(const std::function<void(Arguments...)>& handler, Values&&... values) {
    if (handler) handler(values...);
}

/// The mouse events that every item and every form has.
struct MouseEvents {
    std::function<void(const MouseEvent&)> on_mouse_down;
    std::function<void(const MouseEvent&)> on_mouse_move;
    std::function<void(const MouseEvent&)> on_mouse_up;
    std::function<void()> on_click;
    std::function<void()> on_double_click;
};

}  // namespace quillomat
