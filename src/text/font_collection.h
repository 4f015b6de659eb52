#pragma once

#include <string>

namespace quillomat {

/// The width of a full progress bar, in twips.
inline constexpr double full_progress_bar = 8775;

/// The progress of collecting fonts.
struct CollectionProgress {
    double bar_width = 0;  ///< in twips
    int percent = 0;

    bool operator==(const CollectionProgress&) const = default;
};

/// Returns the progress after `collected` of `count` fonts; none if `count` is 0.
CollectionProgress collection_progress(int collected, int count);

/// Returns the progress window's caption, with the seconds since the start.
std::wstring collection_caption(int percent, int seconds);

/// Returns the top of the progress window, in twips: below the viewer if the screen has room there, otherwise near the
/// screen's lower edge.
double progress_window_top(double viewer_bottom, double height, double screen_height);

}  // namespace quillomat
