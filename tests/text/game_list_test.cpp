#include "text/game_list.h"

#include <gtest/gtest.h>

#include <vector>

namespace quillomat {
namespace {

using Items = std::vector<std::wstring>;

ItemText text_in(const Items& items) {
    return [&items](int index) { return items.at(static_cast<std::size_t>(index)); };
}

TEST(GameList, TooltipsNumberGamesFromOne) {
    EXPECT_EQ(full_list_tooltip(L"Mario", 2, 2040), L"Mario (Game No. 3 of 2040 games.)");
    EXPECT_EQ(full_list_tooltip(L"", 65535 + 12, 12), L" (Game No. 65548 of 12 games.)");
    EXPECT_EQ(result_list_tooltip(L"Mario", 0, 7, L"MAR"),
              L"Mario (Game No. 1 of 7 games found for the search keyword - 'MAR'.)");
}

TEST(GameList, WalksFromGroupToGroup) {
    const Items items = {L"1a", L"1b", L"A", L"a", L"a2", L"", L"", L"B"};
    const int count = static_cast<int>(items.size());
    struct Case {
        int selected;
        std::optional<int> up;
        std::optional<int> down;
    };
    const Case cases[] = {
        {-1, std::nullopt, std::nullopt},
        {0, std::nullopt, 2},
        {1, std::nullopt, 2},
        {2, 1, 3},  // letter case counts
        {4, 2, 5},  // an item without a character is a group of its own
        {5, 4, 7},
        {7, 6, std::nullopt},  // the last item of the group above
        {8, std::nullopt, std::nullopt},
    };
    for (const Case& expected : cases) {
        EXPECT_EQ(previous_group(expected.selected, count, text_in(items)), expected.up) << expected.selected;
        EXPECT_EQ(next_group(expected.selected, count, text_in(items)), expected.down) << expected.selected;
    }
}

TEST(GameList, JumpsToTheFirstItemWithAnInitial) {
    const Items items = {L"", L"bravo", L"Alpha", L"Bravo", L"Beta"};
    const int count = static_cast<int>(items.size());
    EXPECT_EQ(first_with_initial(L'B', count, text_in(items)), 3);
    EXPECT_EQ(first_with_initial(L'C', count, text_in(items)), std::nullopt);
    EXPECT_EQ(first_with_initial(L'A', 0, text_in(items)), std::nullopt);
}

TEST(GameList, ComposesTheOtherTexts) {
    EXPECT_EQ(export_text(L"Mario", L"a\r\nb"), L"Mario\r\n\r\na\r\nb");
    EXPECT_EQ(minimised_caption(L""), L"Quillomat - ");
    EXPECT_EQ(line_count_tooltip(1), L"Total - 1 lines.");
}

}  // namespace
}  // namespace quillomat
