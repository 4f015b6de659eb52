#include "shell/link.h"

#include "forms/application.h"
#include "forms/container.h"
#include "forms/form.h"

namespace quillomat {
namespace {

constexpr Colour idle{0xFF0000};
constexpr Colour held_down{0x0000FF};

// Space for the focus rectangle.
constexpr int margin_pixels = 2;

constexpr UINT text_format = DT_LEFT | DT_SINGLELINE;

}  // namespace

Link::Link(Container& container, std::wstring_view caption, double left, double top)
    : Button(container, caption, {left, top, 0, 0}) {
    fit_to_caption();
}

void Link::fit_to_caption() {
    const std::wstring text = caption();
    RECT area{};
    {
        const WindowCanvas canvas(window());
        const Font used = form().application().fonts().get(font(), dpi());
        const Selection selected(canvas.get(), used.get());
        DrawTextW(canvas.get(), text.c_str(), static_cast<int>(text.size()), &area, DT_CALCRECT | text_format);
    }
    // A font with bitmaps for its small sizes can be drawn a little wider than Windows measures it.
    const LONG spare = area.bottom / 2;
    set_width(to_twips(static_cast<int>(area.right + spare) + 2 * margin_pixels, dpi()));
    set_height(to_twips(static_cast<int>(area.bottom) + 2 * margin_pixels, dpi()));
}

void Link::resolution_changed() {
    Button::resolution_changed();
    fit_to_caption();
}

void Link::draw(const DRAWITEMSTRUCT& request) {
    const BufferedCanvas buffer(request.hDC, request.rcItem);
    const HDC canvas = buffer.canvas();
    fill(canvas, request.rcItem, container().back_colour());
    // A link that has captured the mouse looks pressed even if the pointer has left it.
    const bool down = (request.itemState & ODS_SELECTED) || GetCapture() == window();
    const Colour own = down ? held_down : idle;
    const COLORREF shown = legible(own, container().back_colour());
    // Without the colour, only the underline tells a link from other text.
    FontSpec spec = font();
    spec.underline = hot() || shown != resolve(own);
    const Font used = form().application().fonts().get(spec, dpi());
    const Selection selected(canvas, used.get());
    SetBkMode(canvas, TRANSPARENT);
    SetTextColor(canvas, shown);
    RECT area = request.rcItem;
    InflateRect(&area, -margin_pixels, 0);
    const std::wstring text = caption();
    const UINT hidden_prefix = request.itemState & ODS_NOACCEL ? DT_HIDEPREFIX : 0;
    DrawTextW(canvas, text.c_str(), static_cast<int>(text.size()), &area, text_format | DT_VCENTER | hidden_prefix);
    if ((request.itemState & ODS_FOCUS) && !(request.itemState & ODS_NOFOCUSRECT)) {
        SetTextColor(canvas, resolve(colours::window_text));
        DrawFocusRect(canvas, &request.rcItem);
    }
}

LRESULT Link::handle_message(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case WM_SETCURSOR:
            SetCursor(LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_HAND)));
            return TRUE;
        case WM_CAPTURECHANGED:
            InvalidateRect(window(), nullptr, FALSE);
            break;
    }
    return Button::handle_message(message, wparam, lparam);
}

}  // namespace quillomat
