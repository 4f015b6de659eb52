#include "text/font_collection.h"

#include <cstdint>

namespace quillomat {

CollectionProgress collection_progress(int collected, int count) {
    if (count < 1) return {};
    // Computed from the number of fonts: with a growing sum, rounding errors would add up.
    return {full_progress_bar * collected / count, static_cast<int>(std::int64_t{100} * collected / count)};
}

std::wstring collection_caption(int percent, int seconds) {
    return L"Please wait... " + std::to_wstring(percent) + L"% Done, " + std::to_wstring(seconds) +
           L" seconds elapsed (Press F10 to cancel).";
}

double progress_window_top(double viewer_bottom, double height, double screen_height) {
    constexpr double gap = 100;
    constexpr double lower_end = 1000;
    if (height + gap <= screen_height - viewer_bottom) return viewer_bottom + gap;
    return screen_height - lower_end;
}

}  // namespace quillomat
