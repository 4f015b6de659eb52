#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <regex>
#include <string>
#include <vector>

#include "database/catalogue.h"
#include "support/decoded_text.h"
#include "text/error.h"

namespace quillomat {
namespace {

std::string starter_database() {
    std::ifstream file(QUILLOMAT_STARTER_DATABASE, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::size_t count_of(const std::string& text, const std::string& part) {
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + part.size())) ++count;
    return count;
}

std::wstring lower_case(std::wstring text) {
    for (wchar_t& character : text) {
        const bool upper = (character >= L'A' && character <= L'Z') || (character >= 0xC0 && character <= 0xDE);
        if (upper) character = static_cast<wchar_t>(character + 0x20);
    }
    return text;
}

/// The database a new user starts with, checked for what the program relies on and for slips of whoever edits it.
class StarterDatabase : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_FALSE(bytes.empty()) << "no " QUILLOMAT_STARTER_DATABASE;
        catalogue.load(widened(bytes), [this](std::wstring_view name) { names.emplace_back(name); });
    }

    std::string bytes = starter_database();
    Catalogue catalogue;
    std::vector<std::wstring> names;
};

TEST_F(StarterDatabase, HoldsEveryRecordWhole) {
    const std::size_t name_lines = count_of("\r\n" + bytes, "\r\n$$$$$$$$$$$$$$$$$$$$ ");
    EXPECT_EQ(names.size(), name_lines);
    EXPECT_EQ(count_of(bytes, "$$$$$$$$$$"), 2 * name_lines) << "a marker that is too short, too long or misplaced";
    EXPECT_GE(names.size(), 150U);
    EXPECT_LE(names.size(), 250U);
    EXPECT_TRUE(bytes.ends_with("\r\n"));
    EXPECT_EQ(catalogue.cheats(static_cast<int>(names.size())), L"") << "text behind the last name line";
}

TEST_F(StarterDatabase, IsPlainTextWithWholeLineEnds) {
    const std::size_t line_ends = count_of(bytes, "\r\n");
    const auto is_control = [](char byte) { return static_cast<unsigned char>(byte) < 0x20 || byte == 0x7F; };
    EXPECT_EQ(std::count_if(bytes.begin(), bytes.end(), is_control), 2 * static_cast<std::ptrdiff_t>(line_ends));
    // The five codes that the Western code page leaves without a character.
    EXPECT_EQ(bytes.find_first_of("\x81\x8D\x8F\x90\x9D"), std::string::npos);
    const auto two_bytes_of_utf_8 = [](char first, char second) {
        const auto lead = static_cast<unsigned char>(first);
        const auto trail = static_cast<unsigned char>(second);
        return lead >= 0xC2 && lead <= 0xF4 && trail >= 0x80 && trail <= 0xBF;
    };
    EXPECT_EQ(std::adjacent_find(bytes.begin(), bytes.end(), two_bytes_of_utf_8), bytes.end()) << "saved as UTF-8";
}

TEST_F(StarterDatabase, ListsTheGamesInAlphabeticalOrder) {
    for (std::size_t i = 0; i < names.size(); ++i) {
        const std::wstring& name = names[i];
        ASSERT_FALSE(name.empty());
        const bool findable = (name[0] >= L'0' && name[0] <= L'9') || (name[0] >= L'A' && name[0] <= L'Z');
        EXPECT_TRUE(findable) << testing::PrintToString(name) << " is out of the alphabet bar's reach";
        EXPECT_FALSE(name.ends_with(L' ')) << testing::PrintToString(name);
        if (i > 0) {
            EXPECT_LT(lower_case(names[i - 1]), lower_case(name));
        }
    }
}

TEST_F(StarterDatabase, SaysOfEveryGameHowToEnterItsCheats) {
    const std::wregex how_to_enter(L"\\b(press|type|enter|hold|start|open|console|choose|run|add|edit|use|pause|name)",
                                   std::regex::icase);
    for (std::size_t i = 0; i < names.size(); ++i) {
        const std::wstring cheats(catalogue.cheats(static_cast<int>(i)));
        EXPECT_TRUE(std::regex_search(cheats, how_to_enter)) << testing::PrintToString(names[i]);
        EXPECT_NE(cheats.find(L"\r\n"), std::wstring::npos) << testing::PrintToString(names[i]) << " has but one line";
        EXPECT_FALSE(cheats.ends_with(L"\r\n")) << testing::PrintToString(names[i]) << " ends with an empty line";
    }
}

}  // namespace
}  // namespace quillomat
