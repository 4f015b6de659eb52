#pragma once

#include <functional>
#include <utility>

#include "win/api.h"

namespace quillomat {

/// A mouse button; in a move, the button that is held.
enum class MouseButton { None, Left, Right, Middle };

/// The Shift, Ctrl and Alt keys held down during an event.
struct Modifiers {
    bool shift = false;
    bool control = false;
    bool alt = false;

    bool only_control() const { return control && !shift && !alt; }
    bool only_alt() const { return alt && !shift && !control; }
};

/// A press, release or move of the mouse. The position is in twips from the item's left and top.
struct MouseEvent {
    MouseButton button = MouseButton::None;
    Modifiers modifiers;
    double x = 0;
    double y = 0;
};

/// The virtual-key codes that the windows handle.
namespace keys {
inline constexpr int enter = VK_RETURN;
inline constexpr int escape = VK_ESCAPE;
inline constexpr int up = VK_UP;
inline constexpr int down = VK_DOWN;
inline constexpr int f = 'F';
inline constexpr int context_menu = VK_APPS;
inline constexpr int f1 = VK_F1;
inline constexpr int f10 = VK_F10;
}  // namespace keys

/// A key press. A handler that sets `handled` keeps the key from the control and from dialog handling.
struct KeyEvent {
    int key = 0;
    Modifiers modifiers;
    bool handled = false;
};

/// A typed character. A handler that sets `handled` keeps the character from the control.
struct CharacterEvent {
    wchar_t character = 0;
    bool handled = false;
};

/// Calls a handler if one is bound.
template <class... Arguments, class... Values>
void raise(const std::function<void(Arguments...)>& handler, Values&&... values) {
    if (handler) handler(std::forward<Values>(values)...);
}

/// The mouse events of items and forms.
struct MouseEvents {
    std::function<void(const MouseEvent&)> on_mouse_down;
    std::function<void(const MouseEvent&)> on_mouse_move;
    std::function<void(const MouseEvent&)> on_mouse_up;
    std::function<void()> on_click;
    std::function<void()> on_double_click;
};

}  // namespace quillomat
