#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quillomat {

/// A line that begins with this many marker characters closes a record. One separator character follows, which is
/// ignored, and then the game's name.
inline constexpr std::size_t record_marker_length = 20;
inline constexpr wchar_t record_marker_character = L'$';

/// Returns the record of a game: the cheats as typed, then the name line. Nothing is escaped, so cheats that contain a
/// name line read back as two games.
std::wstring record_text(std::wstring_view name, std::wstring_view cheats);

}  // namespace quillomat
