#include "text/game_list.h"

#include <gtest/gtest.h>

#include <vector>

namespace quillomat {
namespace {

using Items = std::vector<std::wstring>;

ItemText text_in(const Items& items) {
    return [&items](int index) { return items.at(static_cast<std::size_t>(index)); };
}

TEST(GameList, WalksFromGroupToGroup) {
    const Items items = {L"1a", L"1b", L"A", L"a", L"a2", L"", L"", L"B"};
    const int count = static_cast<int>(items.size());
    const struct {
        int selected;
        std::optional<int> up;
        std::optional<int> down;
    } cases[] = {
        {-1, std::nullopt, std::nullopt},
        {0, std::nullopt, 2},
        {2, 1, 3},  // letter case counts
        {4, 2, 5},  // an item without a character is a group of its own
        {5, 4, 7},
        {7, 6, std::nullopt},  // the last item of the group above
        {8, std::nullopt, std::nullopt},
    };
    for (const auto& [selected, up, down] : cases) {
        EXPECT_EQ(previous_group(selected, count, text_in(items)), up) << selected;
        EXPECT_EQ(next_group(selected, count, text_in(items)), down) << selected;
    }
}

TEST(GameList, JumpsToTheFirstItemWithAnInitial) {
    const Items items = {L"", L"bravo", L"Alpha", L"Bravo", L"Beta"};
    const int count = static_cast<int>(items.size());
    EXPECT_EQ(first_with_initial(L'B', count, text_in(items)), 3);
    EXPECT_EQ(first_with_initial(L'C', count, text_in(items)), std::nullopt);
    EXPECT_EQ(first_with_initial(L'A', 0, text_in(items)), std::nullopt);
}

}  // namespace
}  // namespace quillomat
