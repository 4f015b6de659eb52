#pragma once

#include <string_view>

namespace quillomat {

/// What separates two lines in every text of the program: in files, text boxes and on the clipboard alike.
inline constexpr std::wstring_view line_end = L"\r\n";

}  // namespace quillomat
