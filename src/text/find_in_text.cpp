#include "text/find_in_text.h"

#include <algorithm>

namespace quillomat {

std::optional<std::size_t> find_in_text(const FindState& state, std::wstring text, std::size_t caret,
                                        UpperCase upper_case) {
    const bool on_last_match = caret == state.gCurPos && !state.gFirstTime;
    const std::size_t start = caret + (on_last_match ? 1 : 0);
    std::wstring wanted = state.gFindString;

    // Only the part that this step can reach is converted.
    std::size_t begin = 0;
    std::size_t end = text.size();
    if (state.gFindDirection) {
        begin = std::min(start, end);
    } else {
        if (start < 2) return std::nullopt;
        end = std::min(start - 2 + wanted.size(), end);
    }
    if (state.gFindCase == 0) {
        upper_case(wanted.data(), wanted.size());
        upper_case(text.data() + begin, end - begin);
    }
    std::size_t found = std::wstring::npos;
    if (state.gFindDirection) {
        found = text.find(wanted, start);
    } else {
        found = std::wstring_view(text).substr(0, end).rfind(wanted, start - 2);
    }
    if (found == std::wstring::npos) return std::nullopt;
    return found;
}

}  // namespace quillomat
