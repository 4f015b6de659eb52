#pragma once

#include <optional>

namespace quillomat {

/// The outer size of a window, in twips.
struct WindowSize {
    double width = 0;
    double height = 0;

    bool operator==(const WindowSize&) const = default;
};

/// Returns the next size for a window that is below its minimum: with the height corrected, or else the width; never
/// both at once, since each correction resizes the window anew. Nothing if the window is large enough. Lengths are
/// compared in whole pixels, because a window set to its minimum may read back half a pixel smaller.
std::optional<WindowSize> corrected_size(const WindowSize& actual, const WindowSize& minimum, double twips_per_pixel);

/// What the viewer is no smaller than.
inline constexpr WindowSize viewer_minimum_size{5970, 5340};

/// The sizes of the viewer's controls that follow the size of its window, in twips.
struct ViewerLayout {
    double text_width = 0;
    double text_height = 0;
    double game_list_height = 0;
    double result_list_height = 0;
    double search_panel_height = 0;
};

/// The layout for the outer size of the window.
ViewerLayout viewer_layout(const WindowSize& window);

}  // namespace quillomat
