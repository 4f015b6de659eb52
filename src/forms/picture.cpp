#include "forms/picture.h"

namespace quillomat {
namespace {

HICON load(int resource, int width, int height) {
    return static_cast<HICON>(
        LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(resource), IMAGE_ICON, width, height, LR_DEFAULTCOLOR));
}

}  // namespace

void Picture::draw(HDC canvas, const RECT& area) const {
    const int width = area.right - area.left;
    const int height = area.bottom - area.top;
    const HICON icon = load(resource_, width, height);
    if (!icon) return;
    DrawIconEx(canvas, area.left, area.top, icon, width, height, 0, nullptr, DI_NORMAL);
    DestroyIcon(icon);
}

GdiObject<HBITMAP> Picture::bitmap(int pixels) const {
    BITMAPINFO description{};
    description.bmiHeader.biSize = sizeof description.bmiHeader;
    description.bmiHeader.biWidth = pixels;
    description.bmiHeader.biHeight = -pixels;
    description.bmiHeader.biPlanes = 1;
    description.bmiHeader.biBitCount = 32;
    description.bmiHeader.biCompression = BI_RGB;
    void* bits = nullptr;
    GdiObject<HBITMAP> bitmap(CreateDIBSection(nullptr, &description, DIB_RGB_COLORS, &bits, nullptr, 0));
    const HDC memory = CreateCompatibleDC(nullptr);
    {
        const Selection selected(memory, bitmap.get());
        draw(memory, {0, 0, pixels, pixels});
    }
    DeleteDC(memory);
    return bitmap;
}

}  // namespace quillomat
