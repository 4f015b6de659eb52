#pragma once

#include <string>
#include <string_view>

namespace quillomat {

/// Selects the code page that Windows is set to, in which the program reads and writes its text files.
inline constexpr unsigned system_code_page = 0;

/// Decodes a text of less than 2 GB. Bytes that are invalid in the code page become some character.
/// Throws `std::bad_alloc` if there is no memory for them, and `Error` if the system does not know the code page.
std::wstring decode(std::string_view bytes, unsigned code_page = system_code_page);

/// Encodes a text. Throws `Error` with InvalidArgument, naming the first character that the code page cannot encode;
/// no character is replaced by another one.
std::string encode(std::wstring_view text, unsigned code_page = system_code_page);

}  // namespace quillomat
