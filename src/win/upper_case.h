#pragma once

#include <cstddef>
#include <string>

namespace quillomat {

/// Converts `length` characters to upper case in place, as Windows does; their number stays the same.
void upper_case(wchar_t* characters, std::size_t length);
/// Returns the text in upper case.
std::wstring upper_cased(std::wstring text);

}  // namespace quillomat
