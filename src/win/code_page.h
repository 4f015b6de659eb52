#pragma once

#include <string>
#include <string_view>

namespace quillomat {

/// Selects the code page of the system, in which the program reads and writes its text files.
inline constexpr unsigned system_code_page = 0;

/// Decodes a text of less than 2 GB. Bytes that are invalid in the code page become replacement characters.
/// Throws `std::bad_alloc` if there is no memory for the result, and `Error` if Windows does not know the code page.
std::wstring decode(std::string_view bytes, unsigned code_page = system_code_page);

/// Encodes a text without replacing any character by a similar one. Throws `Error`: InvalidArgument, naming the first
/// character that the code page lacks, or OutOfMemory for more than 500 million characters.
std::string encode(std::wstring_view text, unsigned code_page = system_code_page);

}  // namespace quillomat
