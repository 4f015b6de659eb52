#pragma once

#include <string>
#include <string_view>

namespace quillomat {

/// Returns the text that is copied, printed and saved for a game: its name, an empty line and its cheats.
std::wstring export_text(std::wstring_view name, std::wstring_view cheats);

}  // namespace quillomat
