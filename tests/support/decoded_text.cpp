#include "support/decoded_text.h"

#include <algorithm>
#include <memory>

namespace quillomat {

DecodedText decoded(std::wstring_view characters) {
    DecodedText text{std::make_unique_for_overwrite<wchar_t[]>(characters.size()), characters.size()};
    std::copy(characters.begin(), characters.end(), text.characters.get());
    return text;
}

DecodedText widened(std::string_view bytes) {
    DecodedText text{std::make_unique_for_overwrite<wchar_t[]>(bytes.size()), bytes.size()};
    for (std::size_t i = 0; i < bytes.size(); ++i) text.characters[i] = static_cast<unsigned char>(bytes[i]);
    return text;
}

}  // namespace quillomat
