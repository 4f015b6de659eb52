#include "text/font_list.h"

#include <algorithm>

namespace quillomat {

std::vector<std::wstring> font_names(std::wstring_view file_text) {
    std::vector<std::wstring> names;
    while (!file_text.empty()) {
        const std::size_t end = std::min(file_text.find_first_of(L"\r\n"), file_text.size());
        if (end > 0) names.emplace_back(file_text.substr(0, end));
        file_text.remove_prefix(std::min(end + 1, file_text.size()));
    }
    return names;
}

}  // namespace quillomat
