#pragma once

#include "win/gdi.h"

namespace quillomat {

/// What a window shows inside its frame once everything is painted that waits for it.
class ShownPixels {
  public:
    explicit ShownPixels(HWND window) {
        RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        GetClientRect(window, &area_);
        const WindowCanvas shown(window);
        BITMAPINFO format{{sizeof(BITMAPINFOHEADER), area_.right, -area_.bottom, 1, 32, BI_RGB, 0, 0, 0, 0, 0}, {}};
        void* bits = nullptr;
        bitmap_ = GdiObject(CreateDIBSection(shown.get(), &format, DIB_RGB_COLORS, &bits, nullptr, 0));
        pixels_ = static_cast<const RGBQUAD*>(bits);
        const MemoryCanvas memory(shown.get());
        const Selection selected(memory.get(), bitmap_.get());
        BitBlt(memory.get(), 0, 0, area_.right, area_.bottom, shown.get(), 0, 0, SRCCOPY);
        GdiFlush();
    }

    const RECT& area() const { return area_; }
    COLORREF at(LONG x, LONG y) const {
        const RGBQUAD& pixel = pixels_[y * area_.right + x];
        return RGB(pixel.rgbRed, pixel.rgbGreen, pixel.rgbBlue);
    }
    int count(const RECT& area, COLORREF colour) const {
        int count = 0;
        bounds(area, [&](LONG x, LONG y) { return at(x, y) == colour && ++count; });
        return count;
    }
    /// Returns the part of an area in which another picture differs; an empty one if none does.
    RECT difference(const ShownPixels& other, const RECT& area) const {
        return bounds(area, [&](LONG x, LONG y) { return at(x, y) != other.at(x, y); });
    }
    /// Returns the smallest rectangle around all pixels of an area that are not of the colour behind what is painted.
    RECT ink(const RECT& area, COLORREF behind) const {
        return bounds(area, [&](LONG x, LONG y) { return at(x, y) != behind; });
    }

  private:
    /// Returns the smallest rectangle around all pixels of an area that meet the condition.
    template <class Condition>
    static RECT bounds(const RECT& area, Condition meets) {
        RECT around{};
        for (LONG y = area.top; y < area.bottom; ++y) {
            for (LONG x = area.left; x < area.right; ++x) {
                const RECT pixel{x, y, x + 1, y + 1};
                if (meets(x, y)) UnionRect(&around, &around, &pixel);
            }
        }
        return around;
    }

    RECT area_{};
    GdiObject<HBITMAP> bitmap_;
    const RGBQUAD* pixels_ = nullptr;
};

}  // namespace quillomat
