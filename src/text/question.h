#pragma once

#include <string>
#include <string_view>

namespace quillomat {

/// Returns what a command line asks for, from what follows the program's name: all words as one question, with one
/// blank between two of them and without quotation marks. Empty if there are no words.
std::wstring question_of(std::wstring_view arguments);

}  // namespace quillomat
