#include "text/squeeze.h"

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace quillomat
