// Rules of a few lines each: numbers, places on the screen, and texts that are made of other texts.

#include <gtest/gtest.h>

#include <limits>

#include "text/error.h"
#include "text/mail_result.h"
#include "text/numbers.h"
#include "text/pointer_arithmetic.h"
#include "text/rounding.h"
#include "text/shortened_name.h"
#include "text/splash_animation.h"
#include "text/window_size.h"

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
    EXPECT_EQ(to_boolean(L"tRUE"), true);
    EXPECT_EQ(to_boolean(L" false "), false);
    EXPECT_EQ(to_boolean(L"Tru"), none);
}

TEST(Numbers, AreRoundedHalfToEvenAndNeverWrap) {
    const std::pair<double, int> cases[] = {{0.5, 0}, {1.5, 2}, {-1.5, -2}, {2.51, 3}, {2147483647.4, 2147483647}};
    for (const auto& [value, expected] : cases) EXPECT_EQ(round_half_even(value), expected) << value;
    EXPECT_THROW(round_half_even(2147483647.5), Error);
    EXPECT_THROW(round_half_even(std::numeric_limits<double>::quiet_NaN()), Error);
    EXPECT_EQ(checked_add_16(32766, 1), 32767);
    EXPECT_THROW(checked_add_16(32767, 1), Error);
    EXPECT_THROW(checked_add_16(-1, std::numeric_limits<int>::min()), Error);
}

TEST(Motto, EveryOneOfEightCanBeChosenAndNoOther) {
    EXPECT_EQ(motto_number(0), 1);
    EXPECT_EQ(motto_number(0.9999999999999999), 8);
}

TEST(PointerArithmetic, FindsTheCentreAndMapsItOntoTheAbsoluteRange) {
    EXPECT_EQ(to_absolute(512, 1024), 32768) << "32767.5 goes to the even neighbour";
    EXPECT_EQ(to_absolute(1024, 1024), 65535) << "the scale is over the whole size, not over the last pixel";
    EXPECT_EQ(to_absolute(476, 1366), 22836) << "22836.5007, which single precision puts below the half";
    EXPECT_EQ(to_absolute(-10, 1024), -640);
    EXPECT_THROW(to_absolute(0, 0), Error);

    const std::pair<PixelRectangle, std::optional<PixelPoint>> centres[] = {
        {{0, 0, 3, 5}, PixelPoint{2, 2}},           // 1.5 and 2.5
        {{900, 0, 1148, 10}, PixelPoint{1024, 5}},  // centre just on the far edge
        {{902, 0, 1148, 10}, none},
        {{-12, 0, 10, 10}, none},
        {{0, 760, 10, 780}, none}};
    for (const auto& [place, centre] : centres) EXPECT_EQ(centre_on_screen(place, {1024, 768}), centre) << place.left;
}

/// A window that could not reach its minimum would be corrected for ever, and never laid out.
TEST(WindowSize, IsLargeEnoughAtItsMinimumAtEveryDpi) {
    for (int dpi = 72; dpi <= 480; ++dpi) {
        const double pixel = 1440.0 / dpi;
        for (const WindowSize& minimum : {viewer_minimum_size, WindowSize{5715, 3960}}) {
            WindowSize actual{round_half_even(minimum.width / pixel) * pixel,
                              round_half_even(minimum.height / pixel) * pixel};
            EXPECT_EQ(corrected_size(actual, minimum, pixel), none) << dpi;
            actual.width -= pixel;
            EXPECT_NE(corrected_size(actual, minimum, pixel), none) << dpi;
        }
    }
}

TEST(ShortenedName, LeavesOutTheMiddleOfANameThatHasNotEnoughRoom) {
    const std::tuple<const wchar_t*, std::size_t, const wchar_t*> cases[] = {
        {L"", 0, L""},
        {L"Doom", 4, L"Doom"},
        {L"Doom", 3, L"Do\u2026"},
        {L"Doom", 2, L"D\u2026"},
        {L"Doom", 0, L"\u2026"},
        {L"Old Republic II", 8, L"Old Re\u2026I"},
    };
    for (const auto& [name, room, shown] : cases) {
        EXPECT_EQ(shortened_name(name, [room](const std::wstring& text) { return text.size() <= room; }), shown);
    }
}

TEST(Mail, ANumberNobodyKnowsIsToldSoThatSomebodyCanLookItUp) {
    EXPECT_NE(mail_failure_description(MailResult{0x80004005}).find(L"2147500037"), std::wstring::npos);
}

}  // namespace
}  // namespace quillomat
