#include "text/window_size.h"

#include "text/rounding.h"

namespace quillomat {

std::optional<WindowSize> corrected_size(const WindowSize& actual, const WindowSize& minimum, double twips_per_pixel) {
    const auto is_below = [twips_per_pixel](double length, double least) {
        return round_half_even(length / twips_per_pixel) < round_half_even(least / twips_per_pixel);
    };
    if (is_below(actual.height, minimum.height)) return WindowSize{actual.width, minimum.height};
    if (is_below(actual.width, minimum.width)) return WindowSize{minimum.width, actual.height};
    return std::nullopt;
}

}  // namespace quillomat
