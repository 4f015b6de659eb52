#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace quillomat {

/// Looks up the text of a list's item by its index from 0.
using ItemText = std::function<std::wstring(int index)>;

/// The tooltip over an item of the full list. Indexes count from 0, the numbers in the text from 1.
std::wstring full_list_tooltip(std::wstring_view name, int index, int count);
/// The tooltip over an item of the list of search results.
std::wstring result_list_tooltip(std::wstring_view name, int index, int count, std::wstring_view keyword);

/// The nearest item above `selected` that begins with another character, exactly compared; an empty item begins with
/// none. Nothing when there is no such item or `selected` is not an item.
std::optional<int> previous_group(int selected, int count, const ItemText& item_text);
/// The same below `selected`.
std::optional<int> next_group(int selected, int count, const ItemText& item_text);

/// The first item that begins with `initial`, exactly compared.
std::optional<int> first_with_initial(wchar_t initial, int count, const ItemText& item_text);

}  // namespace quillomat
