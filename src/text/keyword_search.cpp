#include "text/keyword_search.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace quillomat {

bool occurs_in(std::wstring_view text, std::wstring_view keyword) {
    if (keyword.empty()) return true;
    constexpr std::size_t block_size = 128;
    std::array<std::uint8_t, block_size> candidates{};
    const wchar_t first = keyword.front();
    const wchar_t last = keyword.back();
    while (text.size() >= keyword.size()) {
        const std::size_t count = std::min(block_size, text.size() - keyword.size() + 1);
        const wchar_t* starts = text.data();
        const wchar_t* ends = starts + keyword.size() - 1;
        // No branch in the loop, so that the compiler vectorises it.
        for (std::size_t i = 0; i < count; ++i) {
            candidates[i] = static_cast<std::uint8_t>((starts[i] == first) & (ends[i] == last));
        }
        std::size_t place = 0;
        while (const void* found = std::memchr(candidates.data() + place, 1, count - place)) {
            place = static_cast<std::size_t>(static_cast<const std::uint8_t*>(found) - candidates.data());
            if (text.substr(place, keyword.size()) == keyword) return true;
            ++place;
        }
        text.remove_prefix(count);
    }
    return false;
}

}  // namespace quillomat
