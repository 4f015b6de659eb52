#pragma once

#include <string_view>

#include "database/catalogue.h"

namespace quillomat {

/// The characters in a block of exactly their size, so that a sanitizer sees the first one read behind it.
DecodedText decoded(std::wstring_view characters);

/// Bytes of a file, each as the character of the same code.
DecodedText widened(std::string_view bytes);

}  // namespace quillomat
