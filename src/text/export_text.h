#pragma once

#include <string>
#include <string_view>

namespace quillomat {

/// The text of a game that is copied, printed and saved: its name, an empty line and its cheats.
std::wstring export_text(std::wstring_view name, std::wstring_view cheats);

}  // namespace quillomat
