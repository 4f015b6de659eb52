#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "win/gdi.h"

namespace quillomat {

/// What a window shows inside of its frame, with everything that still has to be painted painted before.
class ShownPixels {
  public:
    explicit ShownPixels(HWND window) {
        RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        RECT client{};
        GetClientRect(window, &client);
        width_ = client.right;
        const WindowCanvas shown(window);
        const GdiObject<HBITMAP> copy(CreateCompatibleBitmap(shown.get(), client.right, client.bottom));
        const MemoryCanvas memory(shown.get());
        {
            const Selection selected(memory.get(), copy.get());
            BitBlt(memory.get(), 0, 0, client.right, client.bottom, shown.get(), 0, 0, SRCCOPY);
        }
        pixels_.resize(static_cast<std::size_t>(client.right) * static_cast<std::size_t>(client.bottom));
        BITMAPINFO format{};
        format.bmiHeader = {sizeof format.bmiHeader, client.right, -client.bottom, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        GetDIBits(memory.get(), copy.get(), 0, static_cast<UINT>(client.bottom), pixels_.data(), &format,
                  DIB_RGB_COLORS);
    }

    COLORREF at(LONG x, LONG y) const {
        const COLORREF pixel = pixels_[static_cast<std::size_t>(y * width_ + x)];
        return RGB(GetBValue(pixel), GetGValue(pixel), GetRValue(pixel));
    }
    int count(const RECT& area, COLORREF colour) const {
        int count = 0;
        for (LONG y = area.top; y < area.bottom; ++y) {
            for (LONG x = area.left; x < area.right; ++x) count += at(x, y) == colour;
        }
        return count;
    }
    /// The part of an area whose pixels differ from another picture's; nothing if none does.
    std::optional<RECT> difference(const ShownPixels& other, const RECT& area) const {
        RECT changed{};
        for (LONG y = area.top; y < area.bottom; ++y) {
            for (LONG x = area.left; x < area.right; ++x) {
                const RECT pixel{x, y, x + 1, y + 1};
                if (at(x, y) != other.at(x, y)) UnionRect(&changed, &changed, &pixel);
            }
        }
        return IsRectEmpty(&changed) ? std::nullopt : std::optional(changed);
    }

  private:
    LONG width_ = 0;
    std::vector<COLORREF> pixels_;
};

}  // namespace quillomat
