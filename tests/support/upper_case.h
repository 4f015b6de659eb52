#pragma once

#include <cstddef>

namespace quillomat {

/// Plays the system's conversion: Latin letters with their accents, which is enough to tell whether it is used.
inline void upper_case(wchar_t* characters, std::size_t length) {
    for (wchar_t* character = characters; character != characters + length; ++character) {
        const bool is_lower = (*character >= L'a' && *character <= L'z') || (*character >= 0xE0 && *character <= 0xFE);
        if (is_lower) *character = static_cast<wchar_t>(*character - 0x20);
    }
}

}  // namespace quillomat
