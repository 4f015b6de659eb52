#pragma once

#include <string_view>

namespace quillomat {

/// The line break of every text in the program: in files, in text boxes and on the clipboard.
inline constexpr std::wstring_view line_end = L"\r\n";

}  // namespace quillomat
