#include "text/window_size.h"

#include <gtest/gtest.h>

#include "text/rounding.h"

namespace quillomat {
namespace {

TEST(WindowSize, CorrectsTheHeightFirstAndTheWidthInTheNextRound) {
    const struct {
        WindowSize actual;
        std::optional<WindowSize> corrected;
    } cases[] = {
        {{5970, 5340}, std::nullopt},
        {{8925, 6660}, std::nullopt},
        {{5955, 5325}, WindowSize{5955, 5340}},
        {{5955, 5340}, WindowSize{5970, 5340}},
    };
    for (const auto& [actual, corrected] : cases) {
        EXPECT_EQ(corrected_size(actual, viewer_minimum_size, 15), corrected) << actual.width << " x " << actual.height;
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
