#include <gtest/gtest.h>

#include "text/error.h"
#include "text/pointer_arithmetic.h"
#include "text/rounding.h"
#include "text/window_size.h"

namespace quillomat {
namespace {

TEST(PointerArithmetic, FindsTheCentreAndMapsItOntoTheAbsoluteRange) {
    const std::tuple<int, int, int> places[] = {
        {512, 1024, 32768},   // 32767.5 goes to the even neighbour
        {1024, 1024, 65535},  // the scale is over the whole size, not over the last pixel
        {476, 1366, 22836},   // 22836.5007, which single precision puts below the half
        {-10, 1024, -640}};
    for (const auto& [pixels, screen_size, absolute] : places) EXPECT_EQ(to_absolute(pixels, screen_size), absolute);
    EXPECT_THROW(to_absolute(0, 0), Error);

    const std::pair<PixelRectangle, std::optional<PixelPoint>> centres[] = {
        {{0, 0, 3, 5}, PixelPoint{2, 2}},           // 1.5 and 2.5
        {{900, 0, 1148, 10}, PixelPoint{1024, 5}},  // centre just on the far edge
        {{902, 0, 1148, 10}, std::nullopt},
        {{-12, 0, 10, 10}, std::nullopt},
        {{0, 760, 10, 780}, std::nullopt}};
    for (const auto& [rectangle, centre] : centres) {
        EXPECT_EQ(centre_on_screen(rectangle, {1024, 768}), centre) << rectangle.left << " " << rectangle.top;
    }
}

/// A window that could not reach its minimum would be corrected for ever, and never laid out.
TEST(WindowSize, IsLargeEnoughAtItsMinimumAtEveryDpi) {
    for (int dpi = 72; dpi <= 480; ++dpi) {
        const double twips_per_pixel = 1440.0 / dpi;
        const auto read_back = [&](double twips) { return round_half_even(twips / twips_per_pixel) * twips_per_pixel; };
        for (const WindowSize& minimum : {viewer_minimum_size, WindowSize{5715, 3960}}) {
            const WindowSize actual{read_back(minimum.width), read_back(minimum.height)};
            EXPECT_EQ(corrected_size(actual, minimum, twips_per_pixel), std::nullopt) << dpi;
            const WindowSize narrower{actual.width - twips_per_pixel, actual.height};
            EXPECT_NE(corrected_size(narrower, minimum, twips_per_pixel), std::nullopt) << dpi;
        }
    }
}

}  // namespace
}  // namespace quillomat
