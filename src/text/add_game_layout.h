#pragma once

#include "text/window_size.h"

namespace quillomat {

/// The minimum size of the window for adding a game.
inline constexpr WindowSize add_game_minimum_size{5715, 3960};

/// The layout of the window for adding a game, in twips.
struct AddGameLayout {
    double margin = 0;  ///< to the left and to the right of both boxes
    double box_width = 0;
    double cheats_height = 0;
    double add_left = 0;
    double cancel_left = 0;
    double button_top = 0;
    double button_width = 0;
};

inline constexpr double add_game_button_height = 375;

/// Returns the layout for the outer and the inner size of the window.
AddGameLayout add_game_layout(const WindowSize& outer, const WindowSize& inner);

}  // namespace quillomat
