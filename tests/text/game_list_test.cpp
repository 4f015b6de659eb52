#include "text/game_list.h"

#include <gtest/gtest.h>

#include <vector>

#include "text/game_range.h"
#include "text/picked_games.h"

namespace quillomat {
namespace {

using Items = std::vector<std::wstring>;

ItemText text_in(const Items& items) {
    return [&items](int index) { return items.at(static_cast<std::size_t>(index)); };
}

TEST(GameList, WalksFromGroupToGroup) {
    const Items items = {L"1a", L"1b", L"A", L"a", L"a2", L"", L"", L"B"};
    const int count = static_cast<int>(items.size());
    const std::tuple<int, std::optional<int>, std::optional<int>> cases[] = {
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

TEST(GameRange, IsWhatWasTypedWhenTheListHasIt) {
    const std::tuple<const wchar_t*, const wchar_t*, const wchar_t*, std::optional<GameRange>> cases[] = {
        {L"1", L"2000", L"2000", GameRange{1, 2000}},
        {L"0012", L"20", L"9", GameRange{12, 20}},
        {L"1", L"2001", L"2001", std::nullopt},
        {L"0", L"5", L"6", std::nullopt},
        {L"1", L"", L"0", std::nullopt},
        {L"5", L"3", L"-1", std::nullopt},
        {L"3 pasted", L"4th", L"2", GameRange{3, 4}},
        {L"1", L"99999999999999999999999999", L"4000000000000000000", std::nullopt},
    };
    for (const auto& [first, last, total, range] : cases) {
        EXPECT_EQ(typed_range_total(first, last), total) << first << L" to " << last;
        EXPECT_EQ(typed_range(first, last, 2000), range) << first << L" to " << last;
    }
    EXPECT_EQ(typed_range(L"1", L"1", 0), std::nullopt) << "an empty list has no range at all";
}

TEST(PickedGames, TheCursorGoesRoundFromOneToTheNext) {
    using Picked = std::vector<int>;
    const std::tuple<int, Picked, std::optional<int>, std::optional<int>> cases[] = {
        {5, {}, {}, {}},          // nothing to go to
        {5, {5}, 5, 5},           // only where it is
        {5, {2}, 2, 2},           // round
        {4, {2, 4, 7, 9}, 2, 7},  // from a picked one
        {9, {2, 4, 7, 9}, 7, 2},  // round from the last
        {2500, {0, 2500}, 0, 0},  // the ends of the longest list
    };
    for (const auto& [current, picked, previous, next] : cases) {
        EXPECT_EQ(previous_picked(current, picked), previous) << current;
        EXPECT_EQ(next_picked(current, picked), next) << current;
    }
}

}  // namespace
}  // namespace quillomat
