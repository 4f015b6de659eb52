#pragma once

#include <string>
#include <string_view>

namespace quillomat {

/// Stands for the code page that the system is set to, in which the program's text files are.
inline constexpr unsigned system_code_page = 0;

/// The characters of a text of less than 2 GB in a code page. Bytes that mean nothing there become some character.
/// Throws `std::bad_alloc` if there is no memory for them, and `Error` if the system does not know the code page.
std::wstring decode(std::string_view bytes, unsigned code_page = system_code_page);

/// The bytes of a text in a code page. Throws `Error` with InvalidArgument, naming the first character that the code
/// page does not have, instead of writing another one in its place.
std::string encode(std::wstring_view text, unsigned code_page = system_code_page);

}  // namespace quillomat
