#include "text/game_list.h"

#include <gtest/gtest.h>

#include <vector>

#include "text/game_range.h"
#include "text/picked_games.h"

namespace quillomat {
namespace {

constexpr std::nullopt_t none = std::nullopt;
using Index = std::optional<int>;

TEST(GameList, WalksFromGroupToGroup) {
    const std::vector<std::wstring> items = {L"1a", L"1b", L"A", L"a", L"a2", L"", L"", L"B"};
    const auto text = [&](int index) { return items.at(static_cast<std::size_t>(index)); };
    const std::tuple<int, Index, Index> cases[] = {{-1, none, none}, {0, none, 2}, {2, 1, 3},  // letter case counts
                                                   {4, 2, 5},  // an item without a character is a group of its own
                                                   {5, 4, 7},        {7, 6, none},  // the last item of the group above
                                                   {8, none, none}};
    for (const auto& [selected, up, down] : cases) {
        EXPECT_EQ(previous_group(selected, 8, text), up) << selected;
        EXPECT_EQ(next_group(selected, 8, text), down) << selected;
    }
    EXPECT_EQ(first_with_initial(L'a', 8, text), 3);
    EXPECT_EQ(first_with_initial(L'C', 8, text), none);
}

TEST(GameRange, IsWhatWasTypedWhenTheListHasIt) {
    const std::tuple<const wchar_t*, const wchar_t*, const wchar_t*, std::optional<GameRange>> cases[] = {
        {L"1", L"2000", L"2000", GameRange{1, 2000}},
        {L"1", L"2001", L"2001", none},
        {L"0", L"5", L"6", none},
        {L"1", L"", L"0", none},
        {L"5", L"3", L"-1", none},
        {L" 003 pasted", L"4th", L"2", GameRange{3, 4}},
        {L"1", L"99999999999999999999999999", L"4000000000000000000", none}};
    for (const auto& [first, last, total, range] : cases) {
        EXPECT_EQ(typed_range_total(first, last), total) << first << L" to " << last;
        EXPECT_EQ(typed_range(first, last, 2000), range) << first << L" to " << last;
    }
}

TEST(PickedGames, TheCursorGoesRoundFromOneToTheNext) {
    const std::tuple<int, std::vector<int>, Index, Index> cases[] = {{5, {}, none, none},     {5, {5}, 5, 5},
                                                                     {5, {2}, 2, 2},          {4, {2, 4, 7, 9}, 2, 7},
                                                                     {9, {2, 4, 7, 9}, 7, 2}, {2500, {0, 2500}, 0, 0}};
    for (const auto& [current, picked, previous, next] : cases) {
        EXPECT_EQ(previous_picked(current, picked), previous) << current;
        EXPECT_EQ(next_picked(current, picked), next) << current;
    }
}

}  // namespace
}  // namespace quillomat
