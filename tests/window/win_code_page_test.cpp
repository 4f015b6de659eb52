#include "win/code_page.h"

#include <gtest/gtest.h>

#include <string>

#include "text/error.h"

namespace quillomat {
namespace {

constexpr unsigned western = 1252;
constexpr unsigned japanese = 932;
constexpr unsigned utf_8 = 65001;

TEST(CodePage, TextsComeBackInEveryKindOfCodePage) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) bytes.push_back(static_cast<char>(byte));
    EXPECT_EQ(decode(bytes, western)[0x80], L'\u20AC');
    EXPECT_EQ(encode(decode(bytes, western), western), bytes);
    const std::pair<unsigned, const wchar_t*> cases[] = {
        {japanese, L"\u65E5\u672C ABC"},
        {utf_8, L"Pok\u00E9mon \u65E5 \U0001F600"},
        {system_code_page, L"Level 1: $$$ ~\\?\t\r\n"},
        {western, L""},
    };
    for (const auto& [code_page, text] : cases) EXPECT_EQ(decode(encode(text, code_page), code_page), text);
    // Bytes that mean nothing are no reason to refuse a file.
    for (const std::string_view broken : {"a\x81", "a\xFD\xFE\xFFz", "a\xED\xA0\x80\xF0\x9F"}) {
        for (const unsigned code_page : {japanese, utf_8}) EXPECT_EQ(decode(broken, code_page)[0], L'a');
    }
}

TEST(CodePage, TheFirstCharacterThatIsMissingIsNamed) {
    const std::tuple<unsigned, std::wstring_view, const wchar_t*> cases[] = {
        {western, L"\u2026\u65E5\u672C", L"(U+65E5)"},
        {western, L"a\U0001F600", L"(U+1F600)"},
        // These have a look-alike that the system would write instead.
        {western, L"Poke\u0301mon", L"(U+0301)"},
        {western, L"1\u2011", L"(U+2011)"},
        {japanese, L"Pok\u00E9mon", L"(U+00E9)"},
        {utf_8, L"ab\xD83D", L"(U+D83D)"},
    };
    for (const auto& [code_page, text, number] : cases) {
        std::wstring fault;
        try {
            encode(text, code_page);
        } catch (const Error& error) {
            fault = error.description();
        }
        EXPECT_NE(fault.find(number), fault.npos) << testing::PrintToString(text);
    }
}

}  // namespace
}  // namespace quillomat
