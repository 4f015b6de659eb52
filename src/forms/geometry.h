#pragma once

#include <cmath>

#include "text/twips.h"

namespace quillomat {

/// Where an item stands in its container, or a size with left and top of 0, in twips.
struct Bounds {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;

    bool operator==(const Bounds&) const = default;
};

/// Twips to whole pixels at `dpi`, a half going to the even neighbour.
inline int to_pixels(double twips, int dpi) {
    return static_cast<int>(std::lrint(twips * dpi / twips_per_inch));
}

/// Pixels at `dpi` to twips.
inline double to_twips(int pixels, int dpi) {
    return static_cast<double>(pixels) * twips_per_inch / dpi;
}

}  // namespace quillomat
