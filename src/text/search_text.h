#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quillomat {

/// The menu caption that offers to search for a text selected by a double-click; nothing where no word was met.
std::optional<std::wstring> search_menu_caption(std::wstring_view selected);

/// The keyword made of a selected text: without the blanks at its ends.
std::wstring keyword_of(std::wstring_view selected);

}  // namespace quillomat
