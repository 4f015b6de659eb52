#pragma once

#include <optional>

namespace quillomat {

/// The left edge, in twips, of the list of games and the search panel at rest, and of each when it begins to slide.
inline constexpr double panel_resting_left = 120;
inline constexpr double game_panel_start_left = -2535;
inline constexpr double search_panel_start_left = 2655;

/// Returns the next left edge of a sliding panel, in twips, or nothing once the panel has arrived.
std::optional<double> next_game_panel_left(double left);
std::optional<double> next_search_panel_left(double left);

}  // namespace quillomat
