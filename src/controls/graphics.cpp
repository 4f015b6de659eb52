#include "controls/graphics.h"

#include "forms/application.h"
#include "forms/container.h"
#include "forms/form.h"

namespace quillomat {

void Label::fit_to_caption() {
    const SIZE size = text_extent(form().application().fonts().get(font_, dpi()).get(), caption_);
    set_size(to_twips(size.cx, dpi()), to_twips(size.cy, dpi()));
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

void Shape::draw(HDC canvas) const {
    if (fill_colour_) fill(canvas, pixels(), *fill_colour_);
    SetDCBrushColor(canvas, resolve(border_colour_));
    FrameRect(canvas, &pixels(), static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

void Line::draw(HDC canvas) const {
    RECT area = pixels();
    const bool is_horizontal = area.right - area.left >= area.bottom - area.top;
    DrawEdge(canvas, &area, EDGE_ETCHED, is_horizontal ? BF_TOP : BF_LEFT);
}

}  // namespace quillomat
