#include "forms/picture.h"

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

GdiObject<HBITMAP> Picture::bitmap(int pixels, Colour background) const {
    const HDC screen = GetDC(nullptr);
    const HDC memory = CreateCompatibleDC(screen);
    GdiObject<HBITMAP> bitmap(CreateCompatibleBitmap(screen, pixels, pixels));
    {
        const Selection selected(memory, bitmap.get());
        const RECT area{0, 0, pixels, pixels};
        fill(memory, area, background);
        draw(memory, area);
    }
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
    return bitmap;
}

Icon Picture::icon(int pixels) const {
    return load(resource_, pixels, pixels);
}

}  // namespace quillomat
