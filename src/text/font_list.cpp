#include "text/font_list.h"

#include <algorithm>

#include "text/line_end.h"

namespace quillomat {
namespace {

bool can_name_a_font(std::wstring_view line) {
    return !line.empty() && line.size() <= longest_font_name &&
           std::none_of(line.begin(), line.end(), [](wchar_t c) { return c < L' ' || c == 0x7F; });
}

}  // namespace

std::vector<std::wstring> font_names(std::wstring_view file_text) {
    std::vector<std::wstring> names;
    while (!file_text.empty() && names.size() < most_listed_fonts) {
        const std::size_t end = std::min(file_text.find_first_of(L"\r\n"), file_text.size());
        if (const std::wstring_view line = file_text.substr(0, end); can_name_a_font(line)) names.emplace_back(line);
        file_text.remove_prefix(std::min(end + 1, file_text.size()));
    }
    return names;
}

std::wstring font_list_text(const std::vector<std::wstring>& names) {
    std::wstring text;
    for (const std::wstring& name : names) {
        if (!text.empty()) text += line_end;
        text += name;
    }
    return text += line_end;
}

}  // namespace quillomat
