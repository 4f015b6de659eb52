#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "database/catalogue.h"
#include "database/record.h"
#include "support/upper_case.h"
#include "text/error.h"
#include "text/find_in_text.h"
#include "text/keyword_search.h"

namespace quillomat {
namespace {

struct Library {
    explicit Library(const std::vector<std::pair<const wchar_t*, const wchar_t*>>& games) {
        std::wstring text;
        for (const auto& [name, cheats] : games) text += record_text(name, cheats);
        catalogue.load(text, [](std::wstring_view) {});
        count = static_cast<int>(games.size());
    }

    std::vector<int> find(SearchScope scope, std::wstring_view keyword) {
        std::vector<int> found;
        catalogue.search(scope, keyword, count, [&](int number) { found.push_back(number); });
        return found;
    }

    Catalogue catalogue{upper_case};
    int count = 0;
};

using Numbers = std::vector<int>;

TEST(Search, FindsNamesAndCheatsInCatalogueOrder) {
    Library library({{L"Super MARIO", L"press A"},
                     {L"Tetris", L"hold mario\r\nand wait"},
                     {L"mario", L""},
                     {L"\u00fcber Game", L""},
                     {L"mario", L"x"}});
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
        EXPECT_EQ(library.find(scope, keyword), found) << testing::PrintToString(keyword);
    }
}

TEST(Search, LooksAtTheGamesAsTheyAreNow) {
    Library library({{L"one", L"same"}, {L"two", L"same"}});
    EXPECT_EQ(library.find(SearchScope::Cheats, L"SAME"), (Numbers{0, 1}));
    library.count = 1;
    EXPECT_EQ(library.find(SearchScope::Cheats, L"SAME"), Numbers{0});
    for (const wchar_t* name : {L"again two", L"three"}) library.catalogue.store(library.count++, name, L"new");
    EXPECT_EQ(library.find(SearchScope::Names, L"TWO"), Numbers{1});
    EXPECT_EQ(library.find(SearchScope::Cheats, L"SAME"), Numbers{0});
    EXPECT_EQ(library.find(SearchScope::Cheats, L"NEW"), (Numbers{1, 2}));
    library.catalogue.load(L"other\r\n$$$$$$$$$$$$$$$$$$$$ one", [](std::wstring_view) {});
    EXPECT_EQ(library.find(SearchScope::Cheats, L"SAME"), Numbers{});
    library.count = 2502;
    EXPECT_THROW(library.find(SearchScope::Cheats, L"SAME"), Error);
}

/// Few different characters, so that beginnings of the keyword are everywhere and matches lie across block borders.
TEST(Search, AgreesWithPlainSubstringSearch) {
    std::mt19937 random(4);
    const auto letters = [&](std::size_t length, unsigned alphabet) {
        std::wstring text;
        while (text.size() < length) text += static_cast<wchar_t>(L'A' + random() % alphabet);
        return text;
    };
    for (int run = 0; run < 20'000; ++run) {
        const unsigned alphabet = 1 + random() % 4;
        const std::wstring text = letters(random() % 300, alphabet);
        const std::wstring keyword = letters(random() % 12, alphabet);
        ASSERT_EQ(occurs_in(text, keyword), text.find(keyword) != text.npos) << testing::PrintToString(keyword);
    }
}

constexpr std::size_t none = std::wstring::npos;
constexpr bool forwards = true;
constexpr bool backwards = false;

/// A step in `text` from `caret`, when the step before left it at `last`; `none` makes it a first step.
std::size_t found(const std::wstring& text, const std::wstring& wanted, bool way, std::size_t caret, std::size_t last,
                  std::int16_t match_case) {
    const FindState state{wanted, match_case, way, last == none ? caret : last, last == none};
    return find_in_text(state, text, caret, upper_case).value_or(none);
}

TEST(FindInText, StartsFromTheCaretAndMatchesTheCaseOnlyWhenAsked) {
    EXPECT_EQ(found(L"abab", L"ab", forwards, 0, 2, 1), 0U) << "the caret has moved";
    EXPECT_EQ(found(L"ab", L"b", backwards, 9, none, 1), 1U) << "the text has become shorter";
    EXPECT_EQ(found(L"ab", L"b", forwards, 9, none, 1), none);
    EXPECT_EQ(found(L"x\u00c9", L"\u00e9", forwards, 0, none, 0), 1U);
    EXPECT_EQ(found(L"AB..", L"ab", backwards, 4, none, 0), 0U);
    EXPECT_EQ(found(L"ABAB", L"ab", forwards, 0, none, 1), none);
}

/// Against the library's search for every text of few letters: backwards, a match begins two places before the caret.
TEST(FindInText, AgreesWithTheRuleEverywhere) {
    for (unsigned bits = 0; bits < 64; ++bits) {
        std::wstring text;
        for (int i = 0; i < 6; ++i) text += bits >> i & 1 ? L'A' : L'B';
        for (const wchar_t* wanted : {L"A", L"AB", L"AAB", L"BABA"}) {
            for (std::size_t caret = 0; caret <= text.size(); ++caret) {
                for (const std::size_t last : {none, caret}) {
                    const std::size_t start = caret + (last == caret ? 1 : 0);
                    const std::size_t before = start < 2 ? none : text.rfind(wanted, start - 2);
                    SCOPED_TRACE(testing::PrintToString(text) + " " + std::to_string(caret));
                    EXPECT_EQ(found(text, wanted, forwards, caret, last, 1), text.find(wanted, start));
                    EXPECT_EQ(found(text, wanted, backwards, caret, last, 1), before);
                }
            }
        }
    }
}

}  // namespace
}  // namespace quillomat
