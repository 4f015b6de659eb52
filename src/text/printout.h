#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "text/game_list.h"

namespace quillomat {

/// Returns the printed text of a game: its name, its cheats and the footer, with empty lines between them.
std::wstring cheats_printout(std::wstring_view name, std::wstring_view cheats);

/// The heading of the printed list of games, and the name of the document in the print queue.
inline constexpr std::wstring_view game_list_heading = L"List of Games";

/// Returns the printed text below the heading: an empty line, the names, an empty line and the footer.
std::wstring game_list_printout(std::span<const std::wstring> names);

/// Returns the names of all `count` games of a list, and an empty one, as if the list had one more entry.
std::vector<std::wstring> all_game_names(int count, const ItemText& item_text);
/// Returns the names of the games `first` to `last`, which are numbered from 1 and must be in the list.
std::vector<std::wstring> game_names_in_range(int first, int last, const ItemText& item_text);

}  // namespace quillomat
