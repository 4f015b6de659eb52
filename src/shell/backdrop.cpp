#include "shell/backdrop.h"

#include <algorithm>
#include <iterator>

namespace quillomat {
namespace {

// Returns the resolution of the bitmap to draw: the lowest one that need not be enlarged, or the highest one.
int drawn_resolution(int dpi) {
    constexpr int drawn[] = {96, 120, 144, 192};
    const int* const found = std::lower_bound(std::begin(drawn), std::end(drawn), dpi);
    return found == std::end(drawn) ? drawn[std::size(drawn) - 1] : *found;
}

}  // namespace

Backdrop::Backdrop(Container& container, int resource, Bounds bounds)
    : Graphic(container, bounds), resource_(resource) {}

void Backdrop::resolution_changed() {
    bitmap_ = {};
    Graphic::resolution_changed();
}

void Backdrop::draw(HDC canvas) const {
    if (!bitmap_) {
        bitmap_ = GdiObject<HBITMAP>(static_cast<HBITMAP>(
            LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(resource_ + drawn_resolution(dpi())), IMAGE_BITMAP,
                       0, 0, LR_DEFAULTCOLOR)));
    }
    BITMAP size{};
    if (!GetObjectW(bitmap_.get(), sizeof size, &size)) return;
    const RECT& area = pixels();
    const MemoryCanvas memory(canvas);
    const Selection selected(memory.get(), bitmap_.get());
    // Usually the bitmap has the size of the bounds, and StretchBlt only copies it.
    SetStretchBltMode(canvas, HALFTONE);
    SetBrushOrgEx(canvas, 0, 0, nullptr);
    StretchBlt(canvas, area.left, area.top, area.right - area.left, area.bottom - area.top, memory.get(), 0, 0,
               size.bmWidth, size.bmHeight, SRCCOPY);
}

}  // namespace quillomat
