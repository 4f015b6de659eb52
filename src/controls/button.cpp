#include "controls/button.h"

#include "forms/form.h"
#include "win/theme.h"

namespace quillomat {

Button::Button(Container& container, std::wstring_view caption, Bounds bounds)
    : Control(container, bounds, L"BUTTON", caption, BS_OWNERDRAW | WS_TABSTOP | WS_GROUP) {}

void Button::set_caption(const std::wstring& caption) {
    if (caption == window_text()) return;
    SetWindowTextW(window(), caption.c_str());
    InvalidateRect(window(), nullptr, FALSE);
}

void Button::notified(WORD code) {
    if (code == BN_CLICKED) click();
}

bool Button::is_default() const {
    // Enter presses a focused button instead of the default button.
    if (has_focus()) return true;
    const Control* focused = Control::from(GetFocus());
    return form().default_button() == this && !(focused && focused->is_button());
}

int Button::theme_state(bool pressed) const {
    if (!enabled()) return PBS_DISABLED;
    if (pressed) return PBS_PRESSED;
    if (hot_) return PBS_HOT;
    if (is_default()) return PBS_DEFAULTED;
    return PBS_NORMAL;
}

void Button::draw_face(HDC canvas, RECT& area, bool pressed) const {
    const Theme theme(window(), L"BUTTON", dpi());
    if (theme && back_colour() == colours::button_face) {
        constexpr double frame = 45;  // twips between the edge and the focus frame
        fill(canvas, area, colours::button_face);
        theme.draw(canvas, BP_PUSHBUTTON, theme_state(pressed), area);
        InflateRect(&area, -to_pixels(frame, dpi()), -to_pixels(frame, dpi()));
        return;
    }
    if (is_default()) {
        SetDCBrushColor(canvas, resolve(colours::window_text));
        FrameRect(canvas, &area, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
        InflateRect(&area, -1, -1);
    }
    fill(canvas, area, back_colour());
    DrawEdge(canvas, &area, pressed ? EDGE_SUNKEN : EDGE_RAISED, BF_RECT | BF_ADJUST);
}

COLORREF Button::caption_colour() const {
    if (!enabled()) return resolve(disabled_fore_colour_);
    // The caption must stay legible on a background that is animated through all colours.
    return legible(fore_colour(), back_colour());
}

void Button::draw(const DRAWITEMSTRUCT& request) {
    const BufferedCanvas buffer(request.hDC, request.rcItem);
    const HDC canvas = buffer.canvas();
    const bool pressed = request.itemState & ODS_SELECTED;
    RECT area = request.rcItem;
    draw_face(canvas, area, pressed);

    const Selection font(canvas, reinterpret_cast<HFONT>(send(WM_GETFONT)));
    SetBkMode(canvas, TRANSPARENT);
    SetTextColor(canvas, caption_colour());
    RECT text_area = area;
    if (pressed) OffsetRect(&text_area, 1, 1);
    const std::wstring caption = window_text();
    const UINT hidden_prefix = request.itemState & ODS_NOACCEL ? DT_HIDEPREFIX : 0;
    DrawTextW(canvas, caption.c_str(), static_cast<int>(caption.size()), &text_area,
              DT_CENTER | DT_VCENTER | DT_SINGLELINE | hidden_prefix);
    if ((request.itemState & ODS_FOCUS) && !(request.itemState & ODS_NOFOCUSRECT)) {
        SetTextColor(canvas, resolve(colours::window_text));
        DrawFocusRect(canvas, &area);
    }
}

LRESULT Button::handle_message(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
        case WM_MOUSEMOVE:
            if (!hot_) {
                hot_ = true;
                TRACKMOUSEEVENT leave{sizeof leave, TME_LEAVE, window(), 0};
                TrackMouseEvent(&leave);
                InvalidateRect(window(), nullptr, FALSE);
            }
            break;
        case WM_MOUSELEAVE:
            hot_ = false;
            InvalidateRect(window(), nullptr, FALSE);
            break;
        case WM_LBUTTONDBLCLK:
            // The second press of a double-click is a press like any other.
            return Control::handle_message(WM_LBUTTONDOWN, wparam, lparam);
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
            // Redraw the default button: it looks like one only while no other button has the focus.
            if (const Control* marked = form().default_button()) InvalidateRect(marked->window(), nullptr, FALSE);
            break;
        case WM_ERASEBKGND:
            return 1;
        case WM_GETDLGCODE:
            // IsDialogMessage presses a button of this code when its access key is typed.
            return DLGC_BUTTON | DLGC_UNDEFPUSHBUTTON;
        case BM_SETSTYLE:
            // IsDialogMessage would remove the owner-drawn style.
            return 0;
    }
    return Control::handle_message(message, wparam, lparam);
}

}  // namespace quillomat
