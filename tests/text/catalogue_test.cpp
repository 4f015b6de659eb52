#include "database/catalogue.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/western_text.h"
#include "text/error.h"

namespace quillomat {
namespace {

using Names = std::vector<std::wstring>;

const std::wstring marker(20, L'$');

std::wstring name_lines(int count) {
    std::wstring text;
    for (int number = 0; number < count; ++number) text += marker + L" Game " + std::to_wstring(number) + L"\r\n";
    return text;
}

// The names that are listed, and behind them the error that ends the list, if one does.
Names listed(const std::function<void(const Catalogue::ListName&)>& list) {
    Names names;
    try {
        list([&](std::wstring_view name) { names.emplace_back(name); });
    } catch (const Error& error) {
        names.push_back(error.description());
    }
    return names;
}

Names load(Catalogue& catalogue, const std::wstring& text) {
    return listed([&](const Catalogue::ListName& list_name) { catalogue.load(text, list_name); });
}

Names relist(const Catalogue& catalogue) {
    return listed([&](const Catalogue::ListName& list_name) { catalogue.relist(list_name); });
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
        {"lone CRs at the beginning", L"\r\ra\r\r" + marker + L" A\r" + marker + L" B", {L"A", L"B"}, {L"a\r\n", L""}},
        {"a lone LF does not", L"a\n" + marker + L" A\r\n", {}, {L"a\n" + marker + L" A"}},
        {"NUL characters", std::wstring(L"a\0b\r\n", 5) + marker + L" A", {L"A"}, {{L"a\0b", 3}}},
        {"no room for a name",
         name_lines(1) + L"read\r\n" + marker + L"\r\n" + name_lines(1),
         {L"Game 0", L"Invalid procedure call or argument"},
         {L"", L"read"}},
    };
    for (const auto& [what, text, names, cheats] : cases) {
        Catalogue catalogue{upper_case};
        EXPECT_EQ(load(catalogue, text), names) << what;
        for (std::size_t slot = 0; slot < cheats.size(); ++slot) {
            EXPECT_EQ(catalogue.cheats(static_cast<int>(slot)), cheats[slot]) << what << ", slot " << slot;
        }
    }
}

TEST(Catalogue, HoldsAllItsSlotsAndNothingBeyond) {
    const std::wstring full = L"Subscript out of range";
    Catalogue catalogue{upper_case};
    for (const std::wstring& more : {std::wstring(), std::wstring(L"\r\n"), std::wstring(L"x"), marker}) {
        EXPECT_EQ(load(catalogue, name_lines(2501) + more).back(), more.empty() ? L"Game 2500" : full);
        EXPECT_EQ(relist(catalogue).size(), 2502U);
        EXPECT_EQ(relist(catalogue).back(), full);
        EXPECT_EQ(catalogue.name(2500), L"Game 2500");
    }
    for (const int number : {-1, 2501, 32768}) {
        EXPECT_THROW(catalogue.name(number), Error);
        EXPECT_THROW(catalogue.cheats(number), Error);
        EXPECT_THROW(catalogue.store(number, L"A", L"a"), Error);
    }
}

TEST(Catalogue, RelistsUpToTheFirstEmptyNameWithAddedGames) {
    Catalogue catalogue{upper_case};
    load(catalogue, name_lines(2) + marker + L" \r\n" + marker + L" hidden\r\nleft over");
    EXPECT_EQ(relist(catalogue), (Names{L"Game 0", L"Game 1"}));
    for (const auto& [slot, name] : {std::pair{2, L"Added"}, {4, L"A"}, {5, L"B"}, {4, L"C"}}) {
        catalogue.store(slot, name, name);
    }
    EXPECT_EQ(relist(catalogue), (Names{L"Game 0", L"Game 1", L"Added", L"hidden", L"C", L"B"}));
    EXPECT_EQ(catalogue.cheats(4), L"C") << "and not the text that trailed";
    load(catalogue, name_lines(1));
    EXPECT_EQ(relist(catalogue), Names{L"Game 0"});
    EXPECT_EQ(catalogue.cheats(4), L"");
}

}  // namespace
}  // namespace quillomat
