#pragma once

#include <string>
#include <string_view>

namespace quillomat {

/// Returns the name or keyword to look up that a command line gives: all words of `arguments`, which follow the
/// program's name, separated by single blanks and without quotation marks. Empty if there are no words.
std::wstring command_line_query(std::wstring_view arguments);

}  // namespace quillomat
