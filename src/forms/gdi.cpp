#include "forms/gdi.h"

#include <cstdlib>

namespace quillomat {
namespace {

/// What a text and its background must differ by.
constexpr int least_contrast = 128;

/// As the eye sees it, from 0 to 255.
int brightness(COLORREF colour) {
    return (299 * GetRValue(colour) + 587 * GetGValue(colour) + 114 * GetBValue(colour)) / 1000;
}

}  // namespace

COLORREF legible(Colour text, Colour background) {
    const COLORREF chosen = resolve(text);
    if (text.follows_theme() && background.follows_theme()) return chosen;
    const int behind = brightness(resolve(background));
    if (std::abs(brightness(chosen) - behind) >= least_contrast) return chosen;
    return resolve(behind < 128 ? colours::white : colours::black);
}

}  // namespace quillomat
