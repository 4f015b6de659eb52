#include "viewer/game_list_box.h"

#include "forms/application.h"
#include "forms/form.h"
#include "text/shortened_name.h"
#include "win/gdi.h"

namespace quillomat {

GameListBox::GameListBox(Container& container, Bounds bounds) : ListBox(container, bounds, LBS_OWNERDRAWFIXED) {
    fit_items();
}

void GameListBox::fit_items() {
    const Font drawn = form().application().fonts().get(font(), dpi());
    send(LB_SETITEMHEIGHT, 0, text_extent(drawn.get(), L"Xg").cy);
}

void GameListBox::resolution_changed() {
    ListBox::resolution_changed();
    fit_items();
}

LRESULT GameListBox::handle_message(UINT message, WPARAM wparam, LPARAM lparam) {
    const LRESULT top_index = default_message(LB_GETTOPINDEX, 0, 0);
    const LRESULT result = ListBox::handle_message(message, wparam, lparam);
    // Scrolling and resizing keep the pixels, also of a row that was left blank because it did not fit, but fits now.
    if (message == WM_SIZE || default_message(LB_GETTOPINDEX, 0, 0) != top_index) {
        InvalidateRect(window(), nullptr, FALSE);
    }
    return result;
}

void GameListBox::draw(const DRAWITEMSTRUCT& request) {
    RECT client{};
    GetClientRect(window(), &client);
    const bool is_whole = request.rcItem.bottom <= client.bottom;
    const bool is_selected = is_whole && (request.itemState & ODS_SELECTED);
    const BufferedCanvas buffer(request.hDC, request.rcItem);
    Colour background = back_colour();
    COLORREF text = legible(fore_colour(), background);
    if (is_selected) {
        background = colours::highlight;
        text = resolve(colours::highlight_text);
    }
    fill(buffer.canvas(), request.rcItem, background);
    SetTextColor(buffer.canvas(), text);
    const int index = static_cast<int>(request.itemID);
    if (is_whole && index >= 0) {
        draw_name(buffer.canvas(), index, request.rcItem);
    }
    if (is_whole && (request.itemState & ODS_FOCUS) && !(request.itemState & ODS_NOFOCUSRECT)) {
        DrawFocusRect(buffer.canvas(), &request.rcItem);
    }
}

void GameListBox::draw_name(HDC canvas, int index, RECT area) const {
    constexpr LONG margin = 2;
    InflateRect(&area, -margin, 0);
    const Font drawn = form().application().fonts().get(font(), dpi());
    const Selection selected(canvas, drawn.get());
    const auto fits = [&](const std::wstring& text) {
        SIZE size{};
        GetTextExtentPoint32W(canvas, text.c_str(), static_cast<int>(text.size()), &size);
        return size.cx <= area.right - area.left;
    };
    const std::wstring name = shortened_name(item(index), fits);
    SetBkMode(canvas, TRANSPARENT);
    DrawTextW(canvas, name.c_str(), static_cast<int>(name.size()), &area, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
}

}  // namespace quillomat
