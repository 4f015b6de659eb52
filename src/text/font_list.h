#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quillomat {

/// The length of the longest font name that Windows allows, in characters.
inline constexpr std::size_t longest_font_name = 31;
/// The most names that are read. A menu with more entries may not open, and no system has that many fonts.
inline constexpr std::size_t most_listed_fonts = 10'000;

/// Returns the font names of a font list file, one per line, in the file's order, at most `most_listed_fonts`. Skips
/// lines that cannot be a font name: empty ones, ones that are too long, and ones with control characters.
std::vector<std::wstring> font_names(std::wstring_view file_text);

/// Returns the text of a font list file: one name per line, or one empty line if there are no names.
std::wstring font_list_text(const std::vector<std::wstring>& names);

}  // namespace quillomat
