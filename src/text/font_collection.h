#pragma once

#include <string>

namespace quillomat {

/// The width of a full progress bar, in twips.
inline constexpr double full_progress_bar = 8775;

/// How far a collection of fonts has come.
struct CollectionProgress {
    double bar_width = 0;  ///< in twips
    int percent = 0;

    bool operator==(const CollectionProgress&) const = default;
};

/// After `collected` of `count` fonts; a collection of none has not begun.
CollectionProgress collection_progress(int collected, int count);

/// The progress window's caption while fonts are collected.
std::wstring collection_caption(int percent, int seconds);

/// The top of the progress window in twips: below the viewer where the screen has room for that, else at the screen's
/// lower end.
double progress_window_top(double viewer_bottom, double height, double screen_height);

}  // namespace quillomat
