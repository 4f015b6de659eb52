#pragma once

#include <optional>

namespace quillomat {

/// The left edge, in twips, at which the list of games and the search panel rest, and where each begins to slide.
inline constexpr double panel_resting_left = 120;
inline constexpr double game_panel_start_left = -2535;
inline constexpr double search_panel_start_left = 2655;

/// Returns the next position of a panel that slides to its rest; nothing once it has arrived or passed it.
std::optional<double> next_game_panel_left(double left);
std::optional<double> next_search_panel_left(double left);

}  // namespace quillomat
