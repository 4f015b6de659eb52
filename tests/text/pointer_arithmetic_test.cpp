#include "text/pointer_arithmetic.h"

#include <gtest/gtest.h>

#include <limits>

#include "text/error.h"

namespace quillomat {
namespace {

TEST(PointerArithmetic, MapsPixelsOntoTheAbsoluteRange) {
    struct Case {
        int pixels;
        int screen_size;
        int absolute;
    };
    const Case cases[] = {
        {0, 1024, 0},        {512, 1024, 32768},  // 32767.5 goes to the even neighbour
        {256, 1024, 16384},                       // 16383.75
        {1024, 1024, 65535},                      // the scale is over the whole size, not over the last pixel
        {1023, 1024, 65471}, {1, 65535, 1},      {-10, 1024, -640}, {3, 6, 32768},
        {960, 1920, 32768},  {476, 1366, 22836},  // 22836.5007, which single precision puts below the half
        {1097, 1366, 52630},                      // 52629.4985, which it puts above
    };
    for (const Case& expected : cases) {
        EXPECT_EQ(to_absolute(expected.pixels, expected.screen_size), expected.absolute)
            << expected.pixels << " of " << expected.screen_size;
    }
    EXPECT_THROW(to_absolute(1, 0), Error);
    EXPECT_THROW(to_absolute(0, 0), Error);
}

TEST(PointerArithmetic, FindsTheCentreWhereItIsOnTheScreen) {
    struct Case {
        PixelRectangle rectangle;
        std::optional<PixelPoint> centre;
    };
    const Case cases[] = {
        {{10, 20, 30, 60}, PixelPoint{20, 40}},
        {{0, 0, 3, 5}, PixelPoint{2, 2}},           // 1.5 and 2.5
        {{1, 1, 2, 4}, PixelPoint{2, 2}},           // 1.5 and 2.5 again
        {{900, 0, 1148, 10}, PixelPoint{1024, 5}},  // centre just on the far edge
        {{902, 0, 1148, 10}, std::nullopt},
        {{-10, 0, 10, 10}, PixelPoint{0, 5}},
        {{-12, 0, 10, 10}, std::nullopt},
        {{0, -40, 10, 20}, std::nullopt},
        {{0, 760, 10, 776}, PixelPoint{5, 768}},
        {{0, 760, 10, 780}, std::nullopt},
        {{-32000, -32000, -31900, -31900}, std::nullopt},  // where the system puts minimised windows
    };
    for (const Case& expected : cases) {
        EXPECT_EQ(centre_on_screen(expected.rectangle, {1024, 768}), expected.centre) << expected.rectangle.left;
    }
    constexpr int lowest = std::numeric_limits<int>::min();
    constexpr int highest = std::numeric_limits<int>::max();
    EXPECT_THROW(centre_on_screen({lowest, 0, highest, 10}, {1024, 768}), Error);
}

}  // namespace
}  // namespace quillomat
