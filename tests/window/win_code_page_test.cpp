#include "win/code_page.h"

#include <gtest/gtest.h>

#include <string>

#include "text/error.h"

namespace quillomat {
namespace {

constexpr unsigned western = 1252;
constexpr unsigned japanese = 932;
constexpr unsigned utf_8 = 65001;

std::wstring decoded(std::string_view bytes, unsigned code_page) {
    return std::wstring(decode(bytes, code_page).view());
}

/// Why a text cannot be encoded; empty when it can.
std::wstring refusal(std::wstring_view text, unsigned code_page) {
    try {
        encode(text, code_page);
        return {};
    } catch (const Error& error) {
        EXPECT_EQ(error.code(), ErrorCode::InvalidArgument);
        return error.description();
    }
}

TEST(CodePage, EveryByteOfASingleByteCodePageComesBack) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) bytes.push_back(static_cast<char>(byte));
    const std::wstring text = decoded(bytes, western);
    EXPECT_EQ(text.substr(0x41, 3), L"ABC");
    EXPECT_EQ(text[0x80], L'\u20AC');
    EXPECT_EQ(text[0xE9], L'\u00E9');
    EXPECT_EQ(encode(text, western), bytes);
}

TEST(CodePage, TextsComeBackInEveryKindOfCodePage) {
    const struct {
        unsigned code_page;
        const wchar_t* text;
        std::size_t bytes;
    } cases[] = {
        {western, L"Pok\u00E9mon \u2026 100 \u20AC?\r\n", 18},
        {japanese, L"\u65E5\u672C ABC", 8},
        {utf_8, L"Pok\u00E9mon \u65E5 \U0001F600", 17},
        {system_code_page, L"Level 1: $$$ ~\\?\t\r\n", 19},
    };
    for (const auto& [code_page, text, size] : cases) {
        const std::string bytes = encode(text, code_page);
        EXPECT_EQ(bytes.size(), size) << code_page;
        EXPECT_EQ(decoded(bytes, code_page), text) << code_page;
    }
    EXPECT_EQ(decoded({}, western), L"");
    EXPECT_EQ(encode({}, western), "");
}

TEST(CodePage, BytesThatMeanNothingStillDecode) {
    const struct {
        unsigned code_page;
        std::string_view bytes;
    } cases[] = {
        {japanese, "\x81"}, {japanese, "a\xFD\xFE\xFFz"}, {utf_8, "\xFF\xC3"}, {utf_8, "a\xED\xA0\x80\xF0\x9F"}};
    for (const auto& [code_page, bytes] : cases) {
        const std::wstring text = decoded(bytes, code_page);
        EXPECT_FALSE(text.empty());
        EXPECT_LE(text.size(), bytes.size());
        EXPECT_EQ(text[0] == L'a', bytes[0] == 'a');
    }
}

TEST(CodePage, TheFirstCharacterThatIsMissingIsNamed) {
    const struct {
        unsigned code_page;
        std::wstring_view text;
        const wchar_t* character;
        const wchar_t* number;
    } cases[] = {
        {western, L"\u2026\u65E5\u672C", L"\"\u65E5\"", L"(U+65E5)"},
        {western, L"a\U0001F600", L"\"\U0001F600\"", L"(U+1F600)"},
        // These have a look-alike that the system would write instead.
        {western, L"Poke\u0301mon", L"\"\u0301\"", L"(U+0301)"},
        {western, L"\u0100", L"\"\u0100\"", L"(U+0100)"},
        {western, L"\u221E", L"\"\u221E\"", L"(U+221E)"},
        {western, L"\uFF21", L"\"\uFF21\"", L"(U+FF21)"},
        {western, L"1\u2011", L"\"\u2011\"", L"(U+2011)"},
        {japanese, L"Pok\u00E9mon", L"\"\u00E9\"", L"(U+00E9)"},
        {utf_8, L"ab\xD83D", L"\"\xD83D\"", L"(U+D83D)"},
        {utf_8, L"\xDE00\xD83D", L"\"\xDE00\"", L"(U+DE00)"},
    };
    for (const auto& [code_page, text, character, number] : cases) {
        const std::wstring sentence = refusal(text, code_page);
        EXPECT_NE(sentence.find(character), std::wstring::npos) << testing::PrintToString(sentence);
        EXPECT_NE(sentence.find(number), std::wstring::npos) << testing::PrintToString(sentence);
    }
}

}  // namespace
}  // namespace quillomat
