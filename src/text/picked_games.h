#pragma once

#include <optional>
#include <string>
#include <vector>

namespace quillomat {

/// Returns the tooltip of a list in which several games can be picked. `names` are those of the picked games.
std::wstring picked_games_tooltip(const std::vector<std::wstring>& names);

/// Returns the nearest picked position above `current`, or the last picked one if there is none above. `picked` is in
/// ascending order. Returns nothing if `picked` is empty.
std::optional<int> previous_picked(int current, const std::vector<int>& picked);
/// Returns the nearest picked position below `current`, or the first picked one if there is none below.
std::optional<int> next_picked(int current, const std::vector<int>& picked);

}  // namespace quillomat
