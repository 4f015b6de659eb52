#include "forms/picture.h"

#include <cstdint>
#include <span>

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
    BITMAPINFO format{};
    format.bmiHeader.biSize = sizeof format.bmiHeader;
    format.bmiHeader.biWidth = pixels;
    format.bmiHeader.biHeight = pixels;
    format.bmiHeader.biPlanes = 1;
    format.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    GdiObject<HBITMAP> bitmap(CreateDIBSection(nullptr, &format, DIB_RGB_COLORS, &bits, nullptr, 0));
    if (!bitmap) return bitmap;
    {
        const MemoryCanvas memory(nullptr);
        const Selection selected(memory.get(), bitmap.get());
        const RECT area{0, 0, pixels, pixels};
        fill(memory.get(), area, background);
        draw(memory.get(), area);
    }
    GdiFlush();
    // Menus that do blend find every pixel opaque, instead of taking the background's unset alpha for transparent.
    constexpr std::uint32_t opaque = 0xFF000000;
    for (std::uint32_t& pixel : std::span(static_cast<std::uint32_t*>(bits), static_cast<std::size_t>(pixels) * pixels))
        pixel |= opaque;
    return bitmap;
}

Icon Picture::icon(int pixels) const {
    return load(resource_, pixels, pixels);
}

}  // namespace quillomat
