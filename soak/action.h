#pragma once

#include <optional>
#include <string>

#include "win/api.h"

namespace quillomat::soak {

/// One thing that a player does with mouse or keyboard, or `Rest`: everything but the main screen is put away and
/// what the program holds is counted.
struct Action {
    enum class Kind { Move, Click, DoubleClick, RightClick, Drag, Wheel, Key, Character, Rest };
    /// Keys that are held meanwhile; and `Ahead`: the next action follows even if the program is still at work.
    enum Modifier : unsigned { Shift = 1, Control = 2, Alt = 4, Ahead = 8 };

    Kind kind = Kind::Rest;
    POINT at{};              ///< where the mouse does it, in pixels of the screen
    POINT to{};              ///< where a drag ends
    int value = 0;           ///< the virtual key, the character's code unit, or the notches of the wheel
    unsigned modifiers = 0;  ///< of `Modifier`
    int pause = 0;           ///< milliseconds before the next action
};

/// The action as a line of a log.
std::string to_line(const Action& action);
/// The action of such a line, of which everything behind a "#" is a remark; nothing for a line that has none. Throws
/// `std::invalid_argument` for any other line.
std::optional<Action> from_line(const std::string& line);

/// Does it, by real input to whatever is there. Nothing for `Rest`, whose doing is the caller's.
void perform(const Action& action);

}  // namespace quillomat::soak
