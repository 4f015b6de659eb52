#pragma once

#include <string_view>

namespace quillomat {

/// Returns true if the text contains the keyword in the same letter case. Every text contains an empty keyword.
bool occurs_in(std::wstring_view text, std::wstring_view keyword);

}  // namespace quillomat
