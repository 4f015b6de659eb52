#pragma once

#include <cmath>

#include "text/twips.h"

namespace quillomat {

/// The position and size of an item in its container, in twips.
struct Bounds {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;

    bool operator==(const Bounds&) const = default;
};

/// Converts twips to whole pixels, rounding half to even.
inline int to_pixels(double twips, int dpi) {
    return static_cast<int>(std::lrint(twips * dpi / twips_per_inch));
}

/// Converts pixels to twips.
inline double to_twips(int pixels, int dpi) {
    return static_cast<double>(pixels) * twips_per_inch / dpi;
}

}  // namespace quillomat
