#include "win/picture.h"

namespace quillomat {
namespace {

Icon load(int resource, int width, int height) {
    return Icon(static_cast<HICON>(
        LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(resource), IMAGE_ICON, width, height, LR_DEFAULTCOLOR)));
}

}  // namespace

void Picture::draw(HDC canvas, const RECT& area) const {
    const int width = area.right - area.left;
    const int height = area.bottom - area.top;
    const Icon icon = load(resource_, width, height);
    if (icon) DrawIconEx(canvas, area.left, area.top, icon.get(), width, height, 0, nullptr, DI_NORMAL);
}

GdiObject<HBITMAP> Picture::bitmap(int pixels) const {
    BITMAPINFO format{};
    format.bmiHeader.biSize = sizeof format.bmiHeader;
    format.bmiHeader.biWidth = pixels;
    format.bmiHeader.biHeight = pixels;
    format.bmiHeader.biPlanes = 1;
    format.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    GdiObject<HBITMAP> bitmap(CreateDIBSection(nullptr, &format, DIB_RGB_COLORS, &bits, nullptr, 0));
    if (!bitmap) return bitmap;
    const MemoryCanvas memory(nullptr);
    const Selection selected(memory.get(), bitmap.get());
    // The new bitmap is transparent black, so drawing an icon with an alpha channel leaves premultiplied colours.
    draw(memory.get(), {0, 0, pixels, pixels});
    return bitmap;
}

Icon Picture::icon(int pixels) const {
    return load(resource_, pixels, pixels);
}

}  // namespace quillomat
