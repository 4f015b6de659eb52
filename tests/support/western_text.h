#pragma once

#include <algorithm>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace quillomat {

/// Stands in for the system's conversion: the letters of the Western code page.
inline void upper_case(wchar_t* characters, std::size_t length) {
    for (wchar_t& letter : std::span(characters, length)) {
        const bool is_lower = (letter >= L'a' && letter <= L'z') || (letter >= 0xE0 && letter <= 0xFE);
        if (is_lower) letter = static_cast<wchar_t>(letter - 0x20);
    }
}

/// Bytes of a file, each as the character with the same code.
inline std::wstring widened(std::string_view bytes) {
    std::wstring text(bytes.size(), L' ');
    std::ranges::transform(bytes, text.begin(), [](char byte) { return static_cast<unsigned char>(byte); });
    return text;
}

}  // namespace quillomat
