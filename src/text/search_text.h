#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quillomat {

/// Returns the caption of the menu entry that searches for the selected text, or nothing if the selection is empty or a
/// line end.
std::optional<std::wstring> search_menu_caption(std::wstring_view selected);

/// Returns the selected text without leading and trailing blanks.
std::wstring keyword_of(std::wstring_view selected);

}  // namespace quillomat
