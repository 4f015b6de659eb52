#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "database/catalogue.h"
#include "database/record.h"
#include "support/western_text.h"
#include "text/error.h"
#include "text/find_in_text.h"
#include "text/keyword_search.h"

namespace quillomat {
namespace {

using Numbers = std::vector<int>;

TEST(Search, FindsNamesAndCheatsOfTheGamesAsTheyAreNow) {
    const std::pair<const wchar_t*, const wchar_t*> games[] = {{L"Super MARIO", L"press A"},
                                                               {L"Tetris", L"hold mario\r\nand wait"},
                                                               {L"mario", L""},
                                                               {L"\u00fcber Game", L""},
                                                               {L"mario", L"x"}};
    std::wstring text;
    for (const auto& [name, cheats] : games) text += record_text(name, cheats);
    Catalogue catalogue{upper_case};
    catalogue.load(text, [](std::wstring_view) {});
    int count = 5;
    const auto find = [&](SearchScope scope, const wchar_t* keyword) {
        Numbers found;
        catalogue.search(scope, keyword, count, [&](int number) { found.push_back(number); });
        return found;
    };
    const std::tuple<SearchScope, const wchar_t*, Numbers> cases[] = {
        {SearchScope::Names, L"MARIO", {0, 2, 4}},
        {SearchScope::Names, L"MARIO ", {}},
        {SearchScope::Names, L"\u00dcBER", {3}},
        {SearchScope::Cheats, L"MARIO", {1}},
        {SearchScope::Cheats, L"\nPRESS", {0}},  // the line end before each text belongs to it
        {SearchScope::Cheats, L"AX", {}},        // a keyword never spans two texts
        {SearchScope::Cheats, L"", {0, 1, 2, 3, 4}},
    };
    for (const auto& [scope, keyword, found] : cases) {
        EXPECT_EQ(find(scope, keyword), found) << testing::PrintToString(keyword);
    }
    count = 1;
    for (const wchar_t* name : {L"again two", L"three"}) catalogue.store(count++, name, L"new");
    EXPECT_EQ(find(SearchScope::Names, L"TWO"), Numbers{1});
    EXPECT_EQ(find(SearchScope::Cheats, L"MARIO"), Numbers{});
    EXPECT_EQ(find(SearchScope::Cheats, L"NEW"), (Numbers{1, 2}));
    catalogue.load(L"other\r\n$$$$$$$$$$$$$$$$$$$$ one", [](std::wstring_view) {});
    EXPECT_EQ(find(SearchScope::Cheats, L"NEW"), Numbers{});
    count = 2502;
    EXPECT_THROW(find(SearchScope::Cheats, L"NEW"), Error);
}

// Few different characters, so that beginnings of the keyword are everywhere and matches lie across block borders.
TEST(Search, AgreesWithPlainSubstringSearch) {
    std::mt19937 random(4);
    for (int run = 0; run < 20'000; ++run) {
        std::wstring text(random() % 300, L'A');
        for (wchar_t& letter : text) letter = static_cast<wchar_t>(letter + random() % (1 + run % 4));
        const std::wstring keyword = text.substr(text.size() / 2, random() % 12) + std::wstring(run % 3 / 2, L'B');
        ASSERT_EQ(occurs_in(text, keyword), text.find(keyword) != text.npos) << testing::PrintToString(keyword);
    }
}

constexpr std::size_t none = std::wstring::npos;
constexpr bool forwards = true;
constexpr bool backwards = false;

TEST(FindInText, StepsFromTheCaretAndMatchesTheCaseOnlyWhenAsked) {
    // Text, wanted text, direction, caret, where the step before left the caret (`none` before the first), whether the
    // letter case counts, and where the match begins.
    const std::tuple<const wchar_t*, const wchar_t*, bool, std::size_t, std::size_t, bool, std::size_t> cases[] = {
        {L"aaaa", L"aa", forwards, 1, none, true, 1},
        {L"aaaa", L"aa", forwards, 1, 1, true, 2},  // leaves the match just found, and may overlap it
        {L"aaaa", L"aa", forwards, 1, 2, true, 1},  // the caret has moved
        {L"aaaa", L"aa", forwards, 9, none, true, none},
        {L"aaaa", L"aa", backwards, 9, none, true, 2},  // the text has become shorter
        {L"aaaa", L"aa", backwards, 3, none, true, 1},
        {L"aaaa", L"aa", backwards, 3, 3, true, 2},
        {L"aaaa", L"aa", backwards, 1, none, true, none},
        {L"aaaa", L"aa", backwards, 1, 1, true, 0},
        {L"x\u00c9", L"\u00e9", forwards, 0, none, false, 1},
        {L"AB..", L"ab", backwards, 4, none, false, 0},
        {L"ABAB", L"ab", forwards, 0, none, true, none},
    };
    for (const auto& [text, wanted, way, caret, last, match_case, found] : cases) {
        const FindState state{wanted, match_case, way, last == none ? caret : last, last == none};
        EXPECT_EQ(find_in_text(state, text, caret, upper_case).value_or(none), found) << caret << ", " << last;
    }
}

}  // namespace
}  // namespace quillomat
