#include "text/numbers.h"

#include <gtest/gtest.h>

#include <limits>

#include "text/error.h"
#include "text/rounding.h"

namespace quillomat {
namespace {

constexpr std::nullopt_t none = std::nullopt;

TEST(Numbers, ConvertsAWholeTextOrNothing) {
    const std::tuple<const wchar_t*, std::optional<std::int32_t>, std::optional<std::int32_t>> cases[] = {
        {L" 42 ", 42, 42},
        {L"0000000000000000000000012", 12, 12},
        {L"32768", 32768, none},
        {L"2147483647", 2147483647, none},
        {L"2147483648", none, none},
        {L"-2147483648", std::numeric_limits<std::int32_t>::min(), none},
        {L"-2147483649", none, none},
        {L"2.500000000000000000000000001", 3, 3},
        {L"32767.5", 32768, none},
        {L"2147483647.5", none, none},
        {L"", none, none},
        {L".5", none, none},
        {L"1e3", none, none},
        {L"\u0663", none, none},
    };
    for (const auto& [text, as_32, as_16] : cases) {
        EXPECT_EQ(to_int32(text), as_32) << testing::PrintToString(text);
        EXPECT_EQ(to_int16(text), as_16) << testing::PrintToString(text);
    }
    EXPECT_EQ(to_int32(std::wstring_view(L"5\0", 2)), none);
}

TEST(Numbers, ConvertsTheTwoWordsOfABoolean) {
    const std::pair<const wchar_t*, std::optional<bool>> cases[] = {
        {L"tRUE", true}, {L" false ", false}, {L"", none}, {L"Tru", none}, {L"1", none}, {L"\u0422rue", none},
    };
    for (const auto& [text, expected] : cases) EXPECT_EQ(to_boolean(text), expected) << testing::PrintToString(text);
}

TEST(Numbers, LeadingValueNeverOverflows) {
    const std::pair<const wchar_t*, std::int64_t> cases[] = {
        {L"", 0},
        {L"  12abc34", 12},
        {L"-", 0},
        {L"4000000000000000000", leading_value_limit},
        {L"4000000000000000001", leading_value_limit},
        {L"-99999999999999999999999999999999", -leading_value_limit},
    };
    for (const auto& [text, expected] : cases) EXPECT_EQ(leading_value(text), expected) << testing::PrintToString(text);
}

TEST(Numbers, CheckedAdditionThrowsInsteadOfWrapping) {
    EXPECT_EQ(checked_add_16(32766, 1), 32767);
    EXPECT_EQ(checked_add_16(-32767, -1), -32768);
    const std::pair<std::int16_t, int> overflowing[] = {
        {32767, 1}, {-32768, -1}, {1, std::numeric_limits<int>::max()}, {-1, std::numeric_limits<int>::min()}};
    for (const auto& [value, increase] : overflowing) {
        EXPECT_THROW(checked_add_16(value, increase), Error) << value << " + " << increase;
    }
}

TEST(Rounding, HalvesGoToTheEvenNeighbour) {
    const std::pair<double, int> cases[] = {
        {0.5, 0}, {1.5, 2}, {2.5, 2}, {-0.5, 0}, {-1.5, -2}, {2.51, 3}, {2147483647.4, 2147483647}};
    for (const auto& [value, expected] : cases) EXPECT_EQ(round_half_even(value), expected) << value;
    for (const double value : {2147483647.5, -2147483649.0, 1e300, std::numeric_limits<double>::quiet_NaN(),
                               std::numeric_limits<double>::infinity()}) {
        EXPECT_THROW(round_half_even(value), Error) << value;
    }
}

}  // namespace
}  // namespace quillomat
