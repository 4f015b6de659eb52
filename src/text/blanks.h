#pragma once

#include <algorithm>
#include <string_view>

namespace quillomat {

/// Return a text without the blanks at its beginning, at its end, or at both.
constexpr std::wstring_view without_leading_blanks(std::wstring_view text) {
    return text.substr(std::min(text.find_first_not_of(L' '), text.size()));
}
constexpr std::wstring_view without_trailing_blanks(std::wstring_view text) {
    return text.substr(0, text.find_last_not_of(L' ') + 1);
}
constexpr std::wstring_view without_surrounding_blanks(std::wstring_view text) {
    return without_leading_blanks(without_trailing_blanks(text));
}

}  // namespace quillomat
