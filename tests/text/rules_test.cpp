// Rules of a few lines each: numbers, places on the screen, and texts that are made of other texts.

#include <gtest/gtest.h>

#include <limits>

#include "text/error.h"
#include "text/numbers.h"
#include "text/rounding.h"
#include "text/splash_animation.h"

namespace quillomat {
namespace {

constexpr std::nullopt_t none = std::nullopt;

TEST(Numbers, ConvertAWholeTextOrNothing) {
    const std::tuple<const wchar_t*, std::optional<std::int32_t>, std::optional<std::int32_t>> cases[] = {
        {L" 42 ", 42, 42},           {L"32767.5", 32768, none},    {L"2.500000000000000000000000001", 3, 3},
        {L"2147483648", none, none}, {L"-2147483649", none, none}, {L"-32768.5", -32768, -32768},
        {L"", none, none},           {L".5", none, none},          {L"1e3", none, none}};
    for (const auto& [text, as_32, as_16] : cases) {
        EXPECT_EQ(to_int32(text), as_32) << testing::PrintToString(text);
        EXPECT_EQ(to_int16(text), as_16) << testing::PrintToString(text);
    }
    EXPECT_EQ(to_boolean(L" tRUE "), true);
    EXPECT_EQ(to_boolean(L"Tru"), none);
}

TEST(Numbers, AreRoundedHalfToEvenAndNeverWrap) {
    const std::pair<double, int> cases[] = {{0.5, 0}, {1.5, 2}, {-1.5, -2}, {2.51, 3}, {2147483647.4, 2147483647}};
    for (const auto& [value, expected] : cases) EXPECT_EQ(round_half_even(value), expected) << value;
    EXPECT_THROW(round_half_even(2147483647.5), Error);
    EXPECT_THROW(round_half_even(std::numeric_limits<double>::quiet_NaN()), Error);
    EXPECT_EQ(checked_add_16(32766, 1), 32767);
    EXPECT_THROW(checked_add_16(32767, 1), Error);
}

TEST(Motto, EveryOneOfEightCanBeChosenAndNoOther) {
    EXPECT_EQ(motto_number(0), 1);
    EXPECT_EQ(motto_number(0.9999999999999999), 8);
}

}  // namespace
}  // namespace quillomat
