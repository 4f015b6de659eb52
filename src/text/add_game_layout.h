#pragma once

#include "text/window_size.h"

namespace quillomat {

/// What the window for adding a game is no smaller than.
inline constexpr WindowSize add_game_minimum_size{5715, 3960};

/// Where the controls of the window for adding a game stand, in twips.
struct AddGameLayout {
    double margin = 0;  ///< left of both boxes, and right of them
    double box_width = 0;
    double cheats_height = 0;
    double add_left = 0;
    double cancel_left = 0;
    double button_top = 0;
    double button_width = 0;
};

inline constexpr double add_game_button_height = 375;

/// The layout for the outer and the inner size of the window.
AddGameLayout add_game_layout(const WindowSize& outer, const WindowSize& inner);

}  // namespace quillomat
