#pragma once

#include <optional>
#include <string>
#include <vector>

namespace quillomat {

/// The tooltip of a list in which several games can be picked.
std::wstring picked_games_tooltip(const std::vector<std::wstring>& names);

/// The nearest picked position above `current`, or else the last one of the list. `picked` is in ascending order;
/// nothing when it is empty.
std::optional<int> previous_picked(int current, const std::vector<int>& picked);
/// The nearest picked position below `current`, or else the first one of the list.
std::optional<int> next_picked(int current, const std::vector<int>& picked);

}  // namespace quillomat
