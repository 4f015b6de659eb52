#include "text/game_range.h"

#include <gtest/gtest.h>

namespace quillomat {
namespace {

TEST(GameRange, IsWhatWasTypedWhenTheListHasIt) {
    const struct {
        const wchar_t* first;
        const wchar_t* last;
        const wchar_t* total;
        std::optional<GameRange> range;
    } cases[] = {
        {L"1", L"2000", L"2000", GameRange{1, 2000}},
        {L"0012", L"20", L"9", GameRange{12, 20}},
        {L"1", L"2001", L"2001", std::nullopt},
        {L"0", L"5", L"6", std::nullopt},
        {L"", L"5", L"6", std::nullopt},
        {L"1", L"", L"0", std::nullopt},
        {L"5", L"3", L"-1", std::nullopt},
        {L"-2", L"3", L"6", std::nullopt},
        {L"3 pasted", L"4th", L"2", GameRange{3, 4}},
        {L"1", L"99999999999999999999999999", L"4000000000000000000", std::nullopt},
    };
    for (const auto& [first, last, total, range] : cases) {
        EXPECT_EQ(typed_range_total(first, last), total) << first << L" to " << last;
        EXPECT_EQ(typed_range(first, last, 2000), range) << first << L" to " << last;
    }
    EXPECT_EQ(typed_range(L"1", L"1", 0), std::nullopt) << "an empty list has no range at all";
}

}  // namespace
}  // namespace quillomat
