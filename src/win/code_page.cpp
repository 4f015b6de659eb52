#include "win/code_page.h"

#include <cstdio>
#include <iterator>
#include <limits>

#include "win/errors.h"

namespace quillomat {
namespace {

static_assert(system_code_page == CP_ACP);

// The longest text whose bytes can be counted in an int in every code page.
constexpr std::size_t most_encoded = std::numeric_limits<int>::max() / 4;

bool holds_every_character(unsigned code_page) {
    constexpr unsigned gb_18030 = 54936;
    const unsigned actual = code_page == system_code_page ? GetACP() : code_page;
    return actual == CP_UTF8 || actual == gb_18030;
}

// Returns the number of bytes written (or needed, if room is 0); 0 if the code page cannot encode the text.
int encode_into(char* bytes, int room, std::wstring_view text, unsigned code_page) {
    const auto length = static_cast<int>(text.size());
    // These code pages lack only unpaired surrogates. Windows reports those by failing, and refuses the `lacking` flag.
    if (holds_every_character(code_page)) {
        return WideCharToMultiByte(code_page, WC_ERR_INVALID_CHARS, text.data(), length, bytes, room, nullptr, nullptr);
    }
    // By default Windows writes a similar letter for a lacking one, and the text would read back differently.
    BOOL lacking = FALSE;
    const int size =
        WideCharToMultiByte(code_page, WC_NO_BEST_FIT_CHARS, text.data(), length, bytes, room, nullptr, &lacking);
    return lacking ? 0 : size;
}

// The first character of a text: two code units if it is a surrogate pair.
std::wstring_view first_character(std::wstring_view text) {
    return text.substr(0, text.size() > 1 && IS_SURROGATE_PAIR(text[0], text[1]) ? 2 : 1);
}

unsigned code_point(std::wstring_view character) {
    if (character.size() == 1) return character[0];
    return 0x10000U + ((character[0] - 0xD800U) << 10) + (character[1] - 0xDC00U);
}

[[noreturn]] void refuse(std::wstring_view character) {
    wchar_t number[16];
    std::swprintf(number, std::size(number), L"U+%04X", code_point(character));
    throw Error(ErrorCode::InvalidArgument,
                std::wstring(L"The character \"")
                    .append(character)
                    .append(L"\" (")
                    .append(number)
                    .append(L") cannot be written to a text file in this system's character "
                            L"set. Please replace it and try again."));
}

void refuse_first_lacking(std::wstring_view text, unsigned code_page) {
    while (!text.empty()) {
        const std::wstring_view character = first_character(text);
        if (encode_into(nullptr, 0, character, code_page) == 0) refuse(character);
        text.remove_prefix(character.size());
    }
}

}  // namespace

std::wstring decode(std::string_view bytes, unsigned code_page) {
    if (bytes.empty()) return {};
    // No code page decodes to more characters than bytes, so the result fits without being counted first.
    std::wstring text(bytes.size(), L'\0');
    const auto length = static_cast<int>(bytes.size());
    const int decoded = MultiByteToWideChar(code_page, 0, bytes.data(), length, text.data(), length);
    if (decoded == 0) throw_last_error();
    text.resize(static_cast<std::size_t>(decoded));
    return text;
}

std::string encode(std::wstring_view text, unsigned code_page) {
    if (text.empty()) return {};
    if (text.size() > most_encoded) throw Error(ErrorCode::OutOfMemory);
    const int size = encode_into(nullptr, 0, text, code_page);
    if (size == 0) {
        refuse_first_lacking(text, code_page);
        throw_last_error();
    }
    std::string bytes(static_cast<std::size_t>(size), '\0');
    if (encode_into(bytes.data(), size, text, code_page) != size) throw_last_error();
    return bytes;
}

}  // namespace quillomat
