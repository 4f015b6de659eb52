#pragma once

#include <string_view>

namespace quillomat {

/// Whether a keyword occurs in a text, by plain comparison of characters. An empty keyword occurs in every text.
bool occurs_in(std::wstring_view text, std::wstring_view keyword);

}  // namespace quillomat
