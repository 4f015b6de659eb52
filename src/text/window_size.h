#pragma once

#include <optional>

namespace quillomat {

/// The size of a window in twips: the outer size, unless a name or a comment says inner.
struct WindowSize {
    double width = 0;
    double height = 0;

    bool operator==(const WindowSize&) const = default;
};

/// Returns the next size for a window that is below its minimum, or nothing if the window is large enough. Corrects the
/// height first, and the width in a second call. Compares whole pixels, because a window set to its minimum may read
/// back half a pixel smaller.
std::optional<WindowSize> corrected_size(const WindowSize& actual, const WindowSize& minimum, double twips_per_pixel);

}  // namespace quillomat
