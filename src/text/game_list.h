#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace quillomat {

/// Returns the text of a list item. Indexes count from 0.
using ItemText = std::function<std::wstring(int index)>;

/// Returns the tooltip for an item of the full list. In the text, items are numbered from 1.
std::wstring full_list_tooltip(std::wstring_view name, int index, int count);
/// Returns the tooltip for an item of the search results.
std::wstring result_list_tooltip(std::wstring_view name, int index, int count, std::wstring_view keyword);

/// Returns the nearest item above `selected` that begins with another character, or nothing if there is none or
/// `selected` is not an item. Letter case counts; an empty item differs from every other.
std::optional<int> previous_group(int selected, int count, const ItemText& item_text);
/// Returns the nearest such item below `selected`.
std::optional<int> next_group(int selected, int count, const ItemText& item_text);

/// Returns the first item that begins with `initial`, or nothing. Letter case counts.
std::optional<int> first_with_initial(wchar_t initial, int count, const ItemText& item_text);

}  // namespace quillomat
