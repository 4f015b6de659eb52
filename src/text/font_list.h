#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quillomat {

/// No font of the system has a longer name.
inline constexpr std::size_t longest_font_name = 31;
/// More fonts than any system has, and as many entries as a menu can still be opened with.
inline constexpr std::size_t most_listed_fonts = 10'000;

/// The font names of a font list file, one to a line, in the file's order. Lines that can name no font are passed over:
/// empty ones, longer ones than any name, and those with control characters. Past the most that are listed, so are all.
std::vector<std::wstring> font_names(std::wstring_view file_text);

/// The text of a font list file: the names, one to a line. A list without a name has one empty line.
std::wstring font_list_text(const std::vector<std::wstring>& names);

}  // namespace quillomat
