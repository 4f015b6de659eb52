#include "text/game_range.h"

#include "text/numbers.h"

namespace quillomat {

std::wstring typed_range_total(std::wstring_view first, std::wstring_view last) {
    return std::to_wstring(leading_value(last) - leading_value(first) + 1);
}

std::optional<GameRange> typed_range(std::wstring_view first, std::wstring_view last, int count) {
    if (first.empty() || last.empty()) return std::nullopt;
    const auto from = leading_value(first);
    const auto to = leading_value(last);
    if (from < 1 || to < from || to > count) return std::nullopt;
    return GameRange{static_cast<int>(from), static_cast<int>(to)};
}

std::wstring typed_range_hint(int count) {
    return L"Please give a proper number ( 1 -" + std::to_wstring(count) + L").";
}

}  // namespace quillomat
