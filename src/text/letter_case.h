#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace quillomat {

/// Converts `length` characters to upper case in place; their number stays the same.
using UpperCase = void (*)(wchar_t* characters, std::size_t length);

/// Returns the upper case of a letter from a to z, and any other character unchanged. For words that are the same in
/// every language, such as extensions and device names.
constexpr wchar_t ascii_upper_case(wchar_t letter) {
    if (letter < L'a' || letter > L'z') return letter;
    return static_cast<wchar_t>(letter - L'a' + L'A');
}

/// Returns true if two texts are equal but for the case of the letters from a to z.
constexpr bool equal_ignoring_ascii_case(std::wstring_view first, std::wstring_view second) {
    return std::ranges::equal(first, second, {}, ascii_upper_case, ascii_upper_case);
}

}  // namespace quillomat
