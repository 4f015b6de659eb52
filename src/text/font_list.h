#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillomat {

/// The font names of a font list file, one to a line, in the file's order; empty lines name no font.
std::vector<std::wstring> font_names(std::wstring_view file_text);

}  // namespace quillomat
