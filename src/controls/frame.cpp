#include "controls/frame.h"

#include "forms/form.h"
#include "win/theme.h"

namespace quillomat {

Frame::Frame(Container& container, std::wstring_view caption, Bounds bounds, FrameBorder border)
    : Control(container, bounds, L"BUTTON", caption, BS_GROUPBOX | WS_CLIPCHILDREN, WS_EX_CONTROLPARENT),
      border_(border) {}

void Frame::draw_background(HDC canvas, const RECT& client) {
    fill(canvas, client, Container::back_colour());
    if (border_ == FrameBorder::None) return;
    const Selection font(canvas, reinterpret_cast<HFONT>(send(WM_GETFONT)));
    const std::wstring caption = window_text();
    TEXTMETRICW metrics{};
    GetTextMetricsW(canvas, &metrics);
    const int indent = metrics.tmAveCharWidth * 2;

    RECT border = client;
    border.top += metrics.tmHeight / 2;
    if (const Theme theme(window(), L"BUTTON", dpi()); theme) {
        theme.draw(canvas, BP_GROUPBOX, enabled() ? GBS_NORMAL : GBS_DISABLED, border);
    } else {
        DrawEdge(canvas, &border, EDGE_ETCHED, BF_RECT);
    }
    if (caption.empty()) return;
    RECT text{indent, 0, client.right, metrics.tmHeight};
    DrawTextW(canvas, caption.c_str(), static_cast<int>(caption.size()), &text, DT_CALCRECT | DT_SINGLELINE);
    InflateRect(&text, 2, 0);
    fill(canvas, text, Container::back_colour());
    SetBkMode(canvas, TRANSPARENT);
    SetTextColor(canvas, resolve(enabled() ? colours::button_text : colours::grey_text));
    DrawTextW(canvas, caption.c_str(), static_cast<int>(caption.size()), &text, DT_CENTER | DT_SINGLELINE);
}

LRESULT Frame::handle_message(UINT message, WPARAM wparam, LPARAM lparam) {
    // A standard group box is transparent to the mouse and paints in steps; a container must do neither.
    if (message == WM_NCHITTEST) return HTCLIENT;
    if (message == WM_ENABLE) {
        // In the classic look, a standard group box would paint itself at once.
        InvalidateRect(window(), nullptr, FALSE);
        return 0;
    }
    if (const auto result = handle_container_message(message, wparam, lparam)) return *result;
    return Control::handle_message(message, wparam, lparam);
}

void Frame::resolution_changed() {
    Control::resolution_changed();
    items_resolution_changed();
}

}  // namespace quillomat
