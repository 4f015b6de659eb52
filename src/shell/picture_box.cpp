#include "shell/picture_box.h"

#include <algorithm>
#include <cstddef>

namespace quillomat {
namespace {

BITMAPINFO pixel_format(int size) {
    BITMAPINFO format{};
    format.bmiHeader.biSize = sizeof format.bmiHeader;
    format.bmiHeader.biWidth = size;
    format.bmiHeader.biHeight = -size;  // rows from the top
    format.bmiHeader.biPlanes = 1;
    format.bmiHeader.biBitCount = 32;
    format.bmiHeader.biCompression = BI_RGB;
    return format;
}

std::uint32_t pixel_of(Colour colour) {
    const COLORREF value = resolve(colour);
    return static_cast<std::uint32_t>(GetRValue(value) << 16 | GetGValue(value) << 8 | GetBValue(value));
}

}  // namespace

PictureBox::PictureBox(Container& container, Picture picture, std::wstring_view description, Bounds bounds)
    : Control(container, bounds, L"STATIC", description, SS_OWNERDRAW | SS_NOTIFY | WS_GROUP), picture_(picture) {}

void PictureBox::set_width_factor(double factor) {
    if (factor == width_factor_) return;
    width_factor_ = factor;
    InvalidateRect(window(), nullptr, FALSE);
}

void PictureBox::take_pixels(int size) {
    const COLORREF background = resolve(back_colour());
    if (pixels_.width == size && pixels_background_.value == background) return;
    pixels_ = {size, size, std::vector<std::uint32_t>(static_cast<std::size_t>(size) * static_cast<std::size_t>(size))};
    pixels_background_.value = background;
    const GdiObject<HBITMAP> bitmap = picture_.bitmap(size, back_colour());
    BITMAPINFO format = pixel_format(size);
    const WindowCanvas screen(nullptr);
    GetDIBits(screen.get(), bitmap.get(), 0, static_cast<UINT>(size), pixels_.pixels.data(), &format, DIB_RGB_COLORS);
}

void PictureBox::draw(const DRAWITEMSTRUCT& request) {
    const RECT& area = request.rcItem;
    const int width = area.right - area.left;
    const int height = area.bottom - area.top;
    const int size = std::min(width, height);
    if (size <= 0) return;
    take_pixels(size);
    const PixelPicture shown = squeezed(pixels_, width_factor_, pixel_of(back_colour()));
    const BITMAPINFO format = pixel_format(size);
    const BufferedCanvas buffer(request.hDC, area);
    fill(buffer.canvas(), area, back_colour());
    SetDIBitsToDevice(buffer.canvas(), area.left + (width - size) / 2, area.top + (height - size) / 2,
                      static_cast<DWORD>(size), static_cast<DWORD>(size), 0, 0, 0, static_cast<UINT>(size),
                      shown.pixels.data(), &format, DIB_RGB_COLORS);
}

}  // namespace quillomat
