#include "controls/list_box.h"

#include <algorithm>

#include "text/error.h"
#include "win/gdi.h"

namespace quillomat {

ListBox::ListBox(Container& container, Bounds bounds, Picking picking)
    : ListBox(container, bounds, picking == Picking::Several ? DWORD{LBS_MULTIPLESEL | WS_HSCROLL} : 0) {}

ListBox::ListBox(Container& container, Bounds bounds, DWORD further_style)
    : Control(container, bounds, L"LISTBOX", {},
              LBS_NOTIFY | LBS_HASSTRINGS | LBS_NOINTEGRALHEIGHT | WS_VSCROLL | WS_TABSTOP | WS_GROUP | further_style,
              WS_EX_CLIENTEDGE),
      picking_(further_style & LBS_MULTIPLESEL ? Picking::Several : Picking::One) {
    set_default_back_colour(colours::window);
}

ListBox::Filling::Filling(ListBox& list) : list_(list) {
    list_.send(WM_SETREDRAW, FALSE);
}

ListBox::Filling::~Filling() {
    list_.send(WM_SETREDRAW, TRUE);
    InvalidateRect(list_.window(), nullptr, TRUE);
}

int ListBox::count() const {
    return static_cast<int>(send(LB_GETCOUNT));
}

void ListBox::clear() {
    send(LB_RESETCONTENT);
}

void ListBox::add(std::wstring_view text) {
    // Past the handlers, which have nothing to do with it: thousands are added at once.
    if (default_message(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(displayable(text).c_str())) < 0) {
        throw Error(ErrorCode::OutOfMemory);
    }
}

std::wstring ListBox::item(int index) const {
    const LRESULT length = send(LB_GETTEXTLEN, static_cast<WPARAM>(index));
    if (length <= 0) return {};
    std::wstring text(static_cast<std::size_t>(length), L'\0');
    send(LB_GETTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.data()));
    return text;
}

std::optional<int> ListBox::selected_index() const {
    const LRESULT index = send(picking_ == Picking::Several ? LB_GETCARETINDEX : LB_GETCURSEL);
    // An empty list for picking several still has its cursor at 0.
    return index == LB_ERR || index >= count() ? std::nullopt : std::optional(static_cast<int>(index));
}

void ListBox::select_index(int index) {
    const UINT message = picking_ == Picking::Several ? LB_SETCARETINDEX : LB_SETCURSEL;
    if (send(message, static_cast<WPARAM>(index)) == LB_ERR) throw Error(ErrorCode::SubscriptOutOfRange);
    raise(on_click);
}

std::vector<int> ListBox::picked_indexes() const {
    std::vector<int> indexes(static_cast<std::size_t>(std::max<LRESULT>(send(LB_GETSELCOUNT), 0)));
    send(LB_GETSELITEMS, indexes.size(), reinterpret_cast<LPARAM>(indexes.data()));
    return indexes;
}

void ListBox::set_picked(int index, bool picked) {
    if (index < 0 || send(LB_SETSEL, picked, index) == LB_ERR) throw Error(ErrorCode::SubscriptOutOfRange);
    raise(on_click);
}

std::wstring ListBox::text() const {
    const auto index = selected_index();
    return index ? item(*index) : std::wstring();
}

std::optional<int> ListBox::find(std::wstring_view text) const {
    // The system's own search ignores case and finds no empty text.
    const std::wstring wanted = displayable(text);
    const int items = count();
    for (int index = 0; index < items; ++index) {
        const LRESULT length = send(LB_GETTEXTLEN, static_cast<WPARAM>(index));
        if (length == static_cast<LRESULT>(wanted.size()) && item(index) == wanted) return index;
    }
    return std::nullopt;
}

void ListBox::select_text(std::wstring_view text) {
    if (const auto index = find(text)) select_index(*index);
}

void ListBox::set_top_index(int index) {
    send(LB_SETTOPINDEX, static_cast<WPARAM>(index));
}

int ListBox::item_from_point(int x, int y) const {
    return static_cast<int>(send(LB_ITEMFROMPOINT, 0, MAKELPARAM(x, y)));
}

void ListBox::fit_scroll_range() {
    LONG widest = 0;
    {
        const WindowCanvas canvas(window());
        const Selection font(canvas.get(), reinterpret_cast<HFONT>(send(WM_GETFONT)));
        for (int index = 0; index < count(); ++index) {
            const std::wstring text = item(index);
            SIZE size{};
            GetTextExtentPoint32W(canvas.get(), text.c_str(), static_cast<int>(text.size()), &size);
            widest = std::max(widest, size.cx);
        }
    }
    constexpr LONG margin = 4;
    widest += margin;
    send(LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(widest));
}

void ListBox::resolution_changed() {
    Control::resolution_changed();
    if (picking_ == Picking::Several) fit_scroll_range();
}

void ListBox::notified(WORD code) {
    switch (code) {
        case LBN_SELCHANGE:
            told_of_change_ = true;
            raise(on_click);
            break;
        case LBN_DBLCLK:
            raise(on_double_click);
            break;
    }
}

LRESULT ListBox::handle_message(UINT message, WPARAM wparam, LPARAM lparam) {
    const bool picks_by_key = picking_ == Picking::Several && message == WM_KEYDOWN && wparam == VK_SPACE;
    if (picks_by_key) told_of_change_ = false;
    const LRESULT result = Control::handle_message(message, wparam, lparam);
    // Wine: the control picks, but sends no LBN_SELCHANGE.
    if (picks_by_key && !told_of_change_) raise(on_click);
    return result;
}

}  // namespace quillomat
