#include "shell/picture_box.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace quillomat {

PictureBox::PictureBox(Container& container, Picture picture, std::wstring_view description, Bounds bounds, Edge edge)
    : Control(container, bounds, L"STATIC", description, SS_OWNERDRAW | SS_NOTIFY | WS_GROUP),
      picture_(picture),
      edge_(edge) {}

void PictureBox::set_width_factor(double factor) {
    if (factor == width_factor_) return;
    width_factor_ = factor;
    InvalidateRect(window(), nullptr, FALSE);
}

void PictureBox::draw(const DRAWITEMSTRUCT& request) {
    const RECT& area = request.rcItem;
    const int size = std::min(area.right - area.left, area.bottom - area.top);
    if (size <= 0) return;
    const COLORREF background = resolve(back_colour());
    if (std::exchange(bitmap_size_, size) != size || std::exchange(bitmap_background_, background) != background) {
        bitmap_ = GdiObject<HBITMAP>(CreateCompatibleBitmap(request.hDC, size, size));
        const MemoryCanvas memory(request.hDC);
        const Selection selected(memory.get(), bitmap_.get());
        const RECT whole{0, 0, size, size};
        fill(memory.get(), whole, back_colour());
        picture_.draw(memory.get(), whole);
    }
    const BufferedCanvas buffer(request.hDC, area);
    const HDC canvas = buffer.canvas();
    fill(canvas, area, back_colour());

    const MemoryCanvas source(canvas);
    const Selection selected(source.get(), bitmap_.get());
    const int width = static_cast<int>(std::lrint(size * width_factor_));
    int left = (area.left + area.right - width) / 2;
    // With a negative width, StretchBlt draws to the left of `left`, including that column itself.
    if (width < 0) --left;
    const int top = (area.top + area.bottom - size) / 2;
    SetStretchBltMode(canvas, HALFTONE);
    SetBrushOrgEx(canvas, 0, 0, nullptr);
    StretchBlt(canvas, left, top, width, size, source.get(), 0, 0, size, size, SRCCOPY);

    if (edge_ == Edge::Thin) {
        SetDCBrushColor(canvas, resolve(colours::grey_text));
        FrameRect(canvas, &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
    }
}

}  // namespace quillomat
