#include "controls/graphics.h"

#include <algorithm>
#include <utility>

#include "forms/application.h"
#include "forms/container.h"
#include "forms/form.h"

namespace quillomat {

Label::Label(Container& container, std::wstring caption, Bounds bounds)
    : Graphic(container, bounds), caption_(std::move(caption)) {
    place_now();
}

void Label::set_caption(std::wstring caption) {
    if (caption == caption_) return;
    caption_ = std::move(caption);
    invalidate();
}

void Label::set_alignment(Alignment alignment) {
    alignment_ = alignment;
    invalidate();
}

void Label::set_back_style(BackStyle style) {
    back_style_ = style;
    invalidate();
}

void Label::set_back_colour(Colour colour) {
    if (colour == back_colour_) return;
    back_colour_ = colour;
    invalidate();
}

void Label::set_fore_colour(Colour colour) {
    if (colour == fore_colour_) return;
    fore_colour_ = colour;
    invalidate();
}

void Label::set_font(FontSpec font) {
    if (font == font_) return;
    font_ = std::move(font);
    invalidate();
}

void Label::fit_to_caption() {
    const SIZE size = text_extent(form().application().fonts().get(font_, dpi()).get(), caption_);
    set_width(to_twips(size.cx, dpi()));
    set_height(to_twips(size.cy, dpi()));
}

void Label::draw(HDC canvas) const {
    RECT area = pixels();
    if (back_style_ == BackStyle::Opaque) fill(canvas, area, back_colour_);
    const Font font = form().application().fonts().get(font_, dpi());
    const Selection selected(canvas, font.get());
    SetBkMode(canvas, TRANSPARENT);
    SetTextColor(canvas, resolve(enabled() ? fore_colour_ : colours::grey_text));
    constexpr UINT alignments[] = {DT_LEFT, DT_CENTER, DT_RIGHT};
    DrawTextW(canvas, caption_.c_str(), static_cast<int>(caption_.size()), &area,
              alignments[static_cast<int>(alignment_)] | DT_WORDBREAK | DT_NOPREFIX);
}

Image::Image(Container& container, Picture picture, Bounds bounds) : Graphic(container, bounds), picture_(picture) {
    place_now();
}

void Image::set_picture_size(double twips) {
    picture_size_ = twips;
    invalidate();
}

void Image::set_border(ImageBorder border) {
    if (border == border_) return;
    border_ = border;
    invalidate();
}

void Image::draw(HDC canvas) const {
    RECT area = pixels();
    if (border_ == ImageBorder::Single) DrawEdge(canvas, &area, BDR_SUNKENOUTER, BF_RECT | BF_ADJUST);
    if (!picture_) return;
    if (const int size = to_pixels(picture_size_, dpi())) {
        const int x = (area.left + area.right - size) / 2;
        const int y = (area.top + area.bottom - size) / 2;
        area = {x, y, x + size, y + size};
    }
    picture_.draw(canvas, area);
    if (!enabled()) {
        constexpr BYTE fading = 160;
        blend(canvas, area, container().back_colour(), fading);
    }
}

Shape::Shape(Container& container, Bounds bounds) : Graphic(container, bounds) {
    place_now();
}

void Shape::set_border_colour(Colour colour) {
    if (colour == border_colour_) return;
    border_colour_ = colour;
    invalidate();
}

void Shape::set_fill_colour(Colour colour) {
    fill_colour_ = colour;
    invalidate();
}

void Shape::draw(HDC canvas) const {
    if (fill_colour_) fill(canvas, pixels(), *fill_colour_);
    SetDCBrushColor(canvas, resolve(border_colour_));
    FrameRect(canvas, &pixels(), static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

Line::Line(Container& container, Bounds bounds) : Graphic(container, bounds) {
    place_now();
}

void Line::draw(HDC canvas) const {
    RECT area = pixels();
    DrawEdge(canvas, &area, EDGE_ETCHED, area.right - area.left >= area.bottom - area.top ? BF_TOP : BF_LEFT);
}

}  // namespace quillomat
