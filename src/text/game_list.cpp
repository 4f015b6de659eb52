#include "text/game_list.h"

#include "text/numbers.h"

namespace quillomat {
namespace {

std::wstring numbered(std::wstring_view name, int index, int count) {
    return std::wstring(name) + L" (Game No." + sign_position_text(index + 1) + L" of" + sign_position_text(count);
}

enum class Direction { Up = -1, Down = 1 };

std::optional<int> neighbour_group(int selected, int count, const ItemText& item_text, Direction direction) {
    if (selected < 0 || selected >= count) return std::nullopt;
    const std::wstring initial = item_text(selected).substr(0, 1);
    const int step = static_cast<int>(direction);
    for (int index = selected + step; index >= 0 && index < count; index += step) {
        if (item_text(index).substr(0, 1) != initial) return index;
    }
    return std::nullopt;
}

}  // namespace

std::wstring full_list_tooltip(std::wstring_view name, int index, int count) {
    return numbered(name, index, count) + L" games.)";
}

std::wstring result_list_tooltip(std::wstring_view name, int index, int count, std::wstring_view keyword) {
    return numbered(name, index, count).append(L" games found for the search keyword - '").append(keyword) + L"'.)";
}

std::optional<int> previous_group(int selected, int count, const ItemText& item_text) {
    return neighbour_group(selected, count, item_text, Direction::Up);
}

std::optional<int> next_group(int selected, int count, const ItemText& item_text) {
    return neighbour_group(selected, count, item_text, Direction::Down);
}

std::optional<int> first_with_initial(wchar_t initial, int count, const ItemText& item_text) {
    for (int index = 0; index < count; ++index) {
        if (item_text(index).starts_with(initial)) return index;
    }
    return std::nullopt;
}

}  // namespace quillomat
