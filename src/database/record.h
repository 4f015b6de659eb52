#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quillomat {

/// A line that begins with this many marker characters closes a record: behind them stand one separator, which nobody
/// looks at, and the game's name.
inline constexpr std::size_t record_marker_length = 20;
inline constexpr wchar_t record_marker_character = L'$';

/// The record that appends a game to a database whose last line is complete: the cheats as typed, then the name line.
/// Nothing is escaped, so cheats with a line that looks like a name line read back as two games.
std::wstring record_text(std::wstring_view name, std::wstring_view cheats);

}  // namespace quillomat
