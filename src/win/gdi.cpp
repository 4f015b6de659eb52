#include "win/gdi.h"

#include <cstdlib>

namespace quillomat {
namespace {

// The least difference in brightness at which a text can be read: black or white always has it.
constexpr int least_contrast = 128;

// Returns the perceived brightness of a colour, from 0 to 255.
int brightness(COLORREF colour) {
    return (299 * GetRValue(colour) + 587 * GetGValue(colour) + 114 * GetBValue(colour)) / 1000;
}

}  // namespace

COLORREF legible(Colour text, Colour background) {
    const COLORREF chosen = resolve(text);
    if (text.follows_theme() && background.follows_theme()) return chosen;
    const int behind = brightness(resolve(background));
    if (std::abs(brightness(chosen) - behind) >= least_contrast) return chosen;
    return resolve(behind < least_contrast ? colours::white : colours::black);
}

void blend(HDC canvas, const RECT& area, Colour colour, BYTE opacity) {
    const MemoryCanvas memory(canvas);
    const GdiObject<HBITMAP> bitmap(CreateCompatibleBitmap(canvas, 1, 1));
    const Selection selected(memory.get(), bitmap.get());
    SetPixelV(memory.get(), 0, 0, resolve(colour));
    const BLENDFUNCTION blending{AC_SRC_OVER, 0, opacity, 0};
    GdiAlphaBlend(canvas, area.left, area.top, area.right - area.left, area.bottom - area.top, memory.get(), 0, 0, 1, 1,
                  blending);
}

}  // namespace quillomat
