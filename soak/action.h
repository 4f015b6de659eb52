#pragma once

#include <optional>
#include <string>

#include "win/api.h"

namespace quillomat::soak {

/// An action with the mouse or the keyboard, or `Rest`, which closes every window but the main screen and counts the
/// program's system objects.
struct Action {
    enum class Kind { Move, Click, DoubleClick, RightClick, Drag, Wheel, Key, Character, Rest };
    /// The keys held during the action. `Ahead` is no key: the next action follows even if the program is still busy.
    enum Modifier : unsigned { Shift = 1, Control = 2, Alt = 4, Ahead = 8 };

    Kind kind = Kind::Rest;
    POINT at{};              ///< the pointer's place, in pixels of the screen
    POINT to{};              ///< the end of a drag
    int value = 0;           ///< the virtual key, the character's code unit, or the notches of the wheel
    unsigned modifiers = 0;  ///< of `Modifier`
    int pause = 0;           ///< milliseconds before the next action
};

/// Returns the action as a line of the log.
std::string to_line(const Action& action);
/// Returns the action in a line of the log, or nothing if the line is a comment, which begins with "#", or empty.
/// Throws `std::invalid_argument` for any other line.
std::optional<Action> from_line(const std::string& line);

/// Performs the action as real input to the windows on the screen. The caller performs `Rest`.
void perform(const Action& action);

}  // namespace quillomat::soak
