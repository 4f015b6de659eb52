#include "text/squeeze.h"

#include <gtest/gtest.h>

#include <numeric>

namespace quillomat {
namespace {

constexpr std::uint32_t white = 0xFFFFFF;

TEST(Squeeze, AveragesWhatFallsOnAPixel) {
    const std::pair<double, std::vector<std::uint32_t>> cases[] = {
        {1, {0x000000, 0x400000, 0x008000, 0x0000C0}},
        {0.5, {white, 0x200000, 0x004060, white}},
        // A quarter of each middle pixel is black and a quarter another colour, the rest background.
        {0.25, {white, 0x908080, 0x80A0B0, white}},
        {0, {white, white, white, white}},
    };
    for (const auto& [factor, row] : cases) {
        EXPECT_EQ(squeezed({4, 1, {0x000000, 0x400000, 0x008000, 0x0000C0}}, factor, white).pixels, row) << factor;
    }
}

TEST(Squeeze, RowsStayApart) {
    EXPECT_EQ(squeezed({3, 2, {1, 2, 3, 4, 5, 6}}, -1, white).pixels, (std::vector<std::uint32_t>{3, 2, 1, 6, 5, 4}));
    EXPECT_TRUE(squeezed({}, 0.3, white).pixels.empty());
}

TEST(Squeeze, TheAmountOfPictureFollowsTheFactor) {
    // Without this the edges of a slowly turning picture would jump from pixel to pixel.
    for (const int width : {1, 7, 120}) {
        const PixelPicture black{width, 1, std::vector<std::uint32_t>(static_cast<std::size_t>(width), 0)};
        for (double factor = -1; factor <= 1; factor += 0.013) {
            const PixelPicture result = squeezed(black, factor, 0xFF);
            const auto light = std::accumulate(result.pixels.begin(), result.pixels.end(), 0.0);
            EXPECT_NEAR(light / 0xFF, width * (1 - std::abs(factor)), 0.01 + width / 510.0) << width << ' ' << factor;
        }
    }
}

}  // namespace
}  // namespace quillomat
