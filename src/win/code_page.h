#pragma once

#include <string>
#include <string_view>

#include "database/catalogue.h"

namespace quillomat {

/// Stands for the code page that the system is set to, in which the program's text files are.
inline constexpr unsigned system_code_page = 0;

/// The characters of a text in a code page. Bytes that mean nothing there become some character.
DecodedText decode(std::string_view bytes, unsigned code_page = system_code_page);

/// The bytes of a text in a code page. Throws `Error` with InvalidArgument, naming the first character that the code
/// page does not have, instead of writing another one in its place.
std::string encode(std::wstring_view text, unsigned code_page = system_code_page);

}  // namespace quillomat
