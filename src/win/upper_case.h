#pragma once

#include <cstddef>
#include <string>

namespace quillomat {

/// Converts characters to upper case where they stand, as the system does it; their number stays the same.
void upper_case(wchar_t* characters, std::size_t length);
/// The text in upper case.
std::wstring upper_cased(std::wstring text);

}  // namespace quillomat
