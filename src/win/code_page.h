#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "database/catalogue.h"

namespace quillomat {

/// Stands for the code page that the system is set to, in which the program's text files are.
inline constexpr unsigned system_code_page = 0;

/// The characters of a text in a code page. Bytes that mean nothing there become some character. Throws
/// `std::bad_alloc` when there is no room for them, and `Error` when the system does not know the code page.
DecodedText decode(std::string_view bytes, unsigned code_page = system_code_page);

/// Decodes a text that comes in pieces, such as a file that is read block by block.
class Decoder {
  public:
    /// A decoder for at most `most_bytes`, for which it takes the room at once. Throws as `decode` does, as do the
    /// others.
    explicit Decoder(std::size_t most_bytes, unsigned code_page = system_code_page);

    /// Decodes the next bytes but for the last ones, where a character may be that has not come to its end; they must
    /// come again with what follows them. Returns how many bytes were decoded: at least one, unless there are none.
    std::size_t add(std::string_view bytes);
    /// Decodes the last bytes and hands the whole text over.
    DecodedText finish(std::string_view bytes);

  private:
    void decode(std::string_view bytes);

    unsigned code_page_;
    DecodedText text_;
};

/// The bytes of a text in a code page. Throws `Error` with InvalidArgument, naming the first character that the code
/// page does not have, instead of writing another one in its place.
std::string encode(std::wstring_view text, unsigned code_page = system_code_page);

}  // namespace quillomat
