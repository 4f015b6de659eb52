#include "text/picked_games.h"

#include <algorithm>
#include <iterator>

#include "text/numbers.h"

namespace quillomat {

std::wstring picked_games_tooltip(const std::vector<std::wstring>& names) {
    std::wstring text =
        L"You have selected" + sign_position_text(static_cast<int>(names.size())) + L" games. These are: ";
    for (const std::wstring& name : names) {
        if (&name != &names.front()) text.append(L", ");
        text.append(name);
    }
    return text;
}

std::optional<int> previous_picked(int current, const std::vector<int>& picked) {
    if (picked.empty()) return std::nullopt;
    const auto not_above = std::lower_bound(picked.begin(), picked.end(), current);
    return not_above == picked.begin() ? picked.back() : *std::prev(not_above);
}

std::optional<int> next_picked(int current, const std::vector<int>& picked) {
    if (picked.empty()) return std::nullopt;
    const auto below = std::upper_bound(picked.begin(), picked.end(), current);
    return below == picked.end() ? picked.front() : *below;
}

}  // namespace quillomat
