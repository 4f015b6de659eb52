#pragma once

#include <cmath>

namespace quillomat {

/// Twips are 1/1440 inch: 15 to a pixel at 96 dots per inch.
inline constexpr double twips_per_inch = 1440.0;

/// Where an item stands in its container, or a size with left and top of 0, in twips.
struct Bounds {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
};

/// Twips to whole pixels at `dpi`, a half going to the even neighbour.
inline int to_pixels(double twips, int dpi) {
    return static_cast<int>(std::lrint(twips * dpi / twips_per_inch));
}

/// Pixels at `dpi` to twips.
inline double to_twips(int pixels, int dpi) {
    return pixels * twips_per_inch / dpi;
}

}  // namespace quillomat
