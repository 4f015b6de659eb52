#include "win/code_page.h"

#include <algorithm>
#include <cstdio>
#include <limits>

#include "win/errors.h"

namespace quillomat {
namespace {

constexpr std::size_t most_at_once = std::numeric_limits<int>::max() / 4;

bool is_utf8() {
    return GetACP() == CP_UTF8;
}

int encode_piece(std::wstring_view text, char* bytes, int size) {
    // The code page's own nearest letters are another text, and UTF-8 knows neither these flags nor the report.
    BOOL replaced = FALSE;
    const int length = is_utf8() ? WideCharToMultiByte(CP_ACP, WC_ERR_INVALID_CHARS, text.data(),
                                                       static_cast<int>(text.size()), bytes, size, nullptr, nullptr)
                                 : WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, text.data(),
                                                       static_cast<int>(text.size()), bytes, size, nullptr, &replaced);
    return replaced ? 0 : length;
}

bool is_pair(std::wstring_view text, std::size_t index) {
    return index + 1 < text.size() && IS_SURROGATE_PAIR(text[index], text[index + 1]);
}

[[noreturn]] void refuse(std::wstring_view text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::wstring_view character = text.substr(i, is_pair(text, i) ? 2 : 1);
        char bytes[8];
        if (encode_piece(character, bytes, static_cast<int>(sizeof bytes)) > 0) {
            i += character.size() - 1;
            continue;
        }
        const unsigned code = character.size() == 2
                                  ? 0x10000u + ((character[0] - 0xD800u) << 10) + (character[1] - 0xDC00u)
                                  : static_cast<unsigned>(character[0]);
        wchar_t number[16];
        std::swprintf(number, std::size(number), L"U+%04X", code);
        throw Error(ErrorCode::InvalidArgument,
                    L"The character \"" + std::wstring(character) + L"\" (" + number +
                        L") cannot be saved in this system's character set. Please replace it and try again.");
    }
    throw_last_error();
}

}  // namespace

DecodedText decode(std::string_view bytes) {
    DecodedText text;
    // No code page needs more characters than bytes, so there is no pass for measuring.
    text.characters = std::make_unique_for_overwrite<wchar_t[]>(std::max<std::size_t>(bytes.size(), 1));
    while (!bytes.empty()) {
        std::size_t piece = bytes.size();
        if (piece > most_at_once) {
            // Ends behind a line end, where no character is cut in two.
            const std::size_t line_end = bytes.rfind('\n', most_at_once);
            piece = line_end == std::string_view::npos ? most_at_once : line_end + 1;
        }
        const int length = MultiByteToWideChar(CP_ACP, 0, bytes.data(), static_cast<int>(piece),
                                               text.characters.get() + text.length, static_cast<int>(piece));
        if (length == 0) throw_last_error();
        text.length += static_cast<std::size_t>(length);
        bytes.remove_prefix(piece);
    }
    return text;
}

std::string encode(std::wstring_view text) {
    if (text.empty()) return {};
    if (text.size() > most_at_once) throw Error(ErrorCode::OutOfMemory);
    constexpr std::size_t most_bytes_per_character = 4;
    std::string bytes(text.size() * most_bytes_per_character, '\0');
    const int length = encode_piece(text, bytes.data(), static_cast<int>(bytes.size()));
    if (length == 0) refuse(text);
    bytes.resize(static_cast<std::size_t>(length));
    return bytes;
}

}  // namespace quillomat
