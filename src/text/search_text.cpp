#include "text/search_text.h"

#include "text/line_end.h"

namespace quillomat {

std::optional<std::wstring> search_menu_caption(std::wstring_view selected) {
    if (selected.empty() || selected == line_end) return std::nullopt;
    return L"Search for " + std::wstring(selected);
}

std::wstring keyword_of(std::wstring_view selected) {
    const std::size_t first = selected.find_first_not_of(L' ');
    if (first == std::wstring_view::npos) return {};
    return std::wstring(selected.substr(first, selected.find_last_not_of(L' ') - first + 1));
}

}  // namespace quillomat
