#pragma once

#include <string>
#include <string_view>

#include "database/catalogue.h"

namespace quillomat {

/// The characters of a text in the system's code page. Bytes that mean nothing there become some character.
DecodedText decode(std::string_view bytes);

/// A text in the system's code page. Throws `Error` with InvalidArgument, naming the first character that the code page
/// does not have, instead of writing another one in its place.
std::string encode(std::wstring_view text);

}  // namespace quillomat
