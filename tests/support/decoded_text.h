#pragma once

#include <algorithm>
#include <memory>
#include <string_view>

#include "database/catalogue.h"

namespace quillomat {

/// The characters in a block of exactly their size, so that a sanitizer sees the first one read behind it.
inline DecodedText decoded(std::wstring_view characters) {
    DecodedText text{std::make_unique_for_overwrite<wchar_t[]>(characters.size()), characters.size()};
    std::ranges::copy(characters, text.characters.get());
    return text;
}

/// Bytes of a file, each as the character of the same code.
inline DecodedText widened(std::string_view bytes) {
    DecodedText text{std::make_unique_for_overwrite<wchar_t[]>(bytes.size()), bytes.size()};
    std::ranges::transform(bytes, text.characters.get(), [](char byte) { return static_cast<unsigned char>(byte); });
    return text;
}

}  // namespace quillomat
