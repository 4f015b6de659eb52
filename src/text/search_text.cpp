#include "text/search_text.h"

#include "text/blanks.h"
#include "text/line_end.h"

namespace quillomat {

std::optional<std::wstring> search_menu_caption(std::wstring_view selected) {
    if (selected.empty() || selected == line_end) return std::nullopt;
    return L"Search for " + std::wstring(selected);
}

std::wstring keyword_of(std::wstring_view selected) {
    return std::wstring(without_surrounding_blanks(selected));
}

}  // namespace quillomat
