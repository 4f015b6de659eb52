#include "database/catalogue.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "support/reference_loader.h"
#include "support/upper_case.h"
#include "text/error.h"

namespace quillomat {
namespace {

const std::wstring marker(20, L'$');

std::wstring name_lines(int count) {
    std::wstring text;
    for (int number = 0; number < count; ++number) text += marker + L" Game " + std::to_wstring(number) + L"\r\n";
    return text;
}

using Names = std::vector<std::wstring>;

/// The names that are listed again, and behind them "..." for the error of a list that is full.
Names relist(const Catalogue& catalogue) {
    Names listed;
    try {
        catalogue.relist([&](std::wstring_view name) { listed.emplace_back(name); });
    } catch (const Error& error) {
        EXPECT_EQ(error.code(), ErrorCode::SubscriptOutOfRange);
        listed.emplace_back(L"...");
    }
    return listed;
}

TEST(Catalogue, FillsTheSlots) {
    const std::tuple<const char*, std::wstring, Names, Names> cases[] = {
        {"a name line first", marker + L" A\r\nx\r\n" + marker + L" B\r\n", {L"A", L"B"}, {L"", L"x", L""}},
        {"empty lines around", L"\r\n\r\na\r\n\r\nb\r\n\r\n" + marker + L" A\r\n", {L"A"}, {L"a\r\n\r\nb\r\n"}},
        {"more dollar signs belong to the name", marker + L"$$$\r\n", {L"$$"}, {L""}},
        {"an empty name", marker + L" \r\n" + marker + L" B\r\n", {L"", L"B"}, {L"", L""}},
        {"dollar signs inside a line", L" " + marker + L" A\r\n", {}, {L" " + marker + L" A"}},
        {"trailing text", marker + L" A\r\nleft\r\nover", {L"A"}, {L"", L"left\r\nover"}},
        {"a lone CR ends a line", L"a\rb\r\r\n" + marker + L" A\r", {L"A"}, {L"a\r\nb\r\n"}},
        {"a lone LF does not", L"a\n" + marker + L" A\r\n", {}, {L"a\n" + marker + L" A"}},
        {"NUL characters", std::wstring(L"a\0b\r\n", 5) + marker + L" A", {L"A"}, {{L"a\0b", 3}}},
    };
    for (const auto& [what, text, names, cheats] : cases) {
        Catalogue catalogue{upper_case};
        Names listed;
        catalogue.load(text, [&](std::wstring_view name) { listed.emplace_back(name); });
        EXPECT_EQ(listed, names) << what;
        for (std::size_t slot = 0; slot < cheats.size(); ++slot) {
            EXPECT_EQ(catalogue.cheats(static_cast<int>(slot)), cheats[slot]) << what << ", slot " << slot;
        }
    }
}

TEST(Catalogue, HoldsAllItsSlotsAndNoLineMore) {
    Catalogue catalogue{upper_case};
    for (const std::wstring& more : {std::wstring(), std::wstring(L"\r\n"), std::wstring(L"x"), marker}) {
        EXPECT_EQ(difference_from_reference(name_lines(2501) + more, catalogue), std::nullopt);
        const Names listed = relist(catalogue);
        EXPECT_EQ(listed.size(), 2502U);
        EXPECT_EQ(listed[2500] + listed[2501], L"Game 2500...");
    }
}

TEST(Catalogue, RelistsUpToTheFirstEmptyNameWithAddedGames) {
    Catalogue catalogue{upper_case};
    const auto load = [&](const std::wstring& text) { catalogue.load(text, [](std::wstring_view) {}); };
    load(name_lines(2) + marker + L" \r\n" + marker + L" hidden\r\nleft over");
    EXPECT_EQ(relist(catalogue), (Names{L"Game 0", L"Game 1"}));
    for (const auto& [slot, name] : {std::pair{2, L"Added"}, {4, L"A"}, {5, L"B"}, {4, L"C"}}) {
        catalogue.store(slot, name, name);
    }
    EXPECT_EQ(relist(catalogue), (Names{L"Game 0", L"Game 1", L"Added", L"hidden", L"C", L"B"}));
    EXPECT_EQ(catalogue.cheats(4), L"C") << "and not the text that trailed";
    load(name_lines(1));
    EXPECT_EQ(relist(catalogue), Names{L"Game 0"});
    EXPECT_EQ(catalogue.cheats(4), L"");
}

TEST(Catalogue, RefusesNumbersOutsideItsSlots) {
    Catalogue catalogue{upper_case};
    for (const int number : {-1, 2501, 32768}) {
        EXPECT_THROW(catalogue.name(number), Error);
        EXPECT_THROW(catalogue.cheats(number), Error);
        EXPECT_THROW(catalogue.store(number, L"A", L"a"), Error);
    }
}

/// Every piece is something the loader has to tell from its neighbours, so that any two of them meet.
std::wstring random_database(std::mt19937& random) {
    static const std::wstring name_line = marker + L" Name\r\n";
    static const std::vector<std::wstring> pieces = {
        L"\r\n",       L"\r\n",         L"\r", L"\n", {L"\0", 1}, L"\r\r\n",           L"\n\r",          L"a",
        L"some words", marker + marker, L" ",  L"$",  name_line,  L"\r\n" + name_line, marker.substr(1), marker,
        marker + L"$", marker + L" "};
    std::wstring text;
    for (auto count = random() % 24; count > 0; --count) text += pieces[random() % pieces.size()];
    return text;
}

TEST(Catalogue, AgreesWithReadingLineByLine) {
    std::mt19937 random(20);
    Catalogue catalogue{upper_case};  // the same one all the time, so that nothing of an earlier text may be left
    const std::wstring nearly_all_games = name_lines(2498);
    for (int run = 0; run < 20200; ++run) {
        const std::wstring end = random_database(random);
        const std::wstring text = run < 20000 ? end : nearly_all_games + end;
        ASSERT_EQ(difference_from_reference(text, catalogue), std::nullopt) << run << testing::PrintToString(end);
    }
}

}  // namespace
}  // namespace quillomat
