#include "controls/list_box.h"

#include "text/error.h"

namespace quillomat {

ListBox::ListBox(Container& container, Bounds bounds, DWORD further_style)
    : Control(container, bounds, L"LISTBOX", {},
              LBS_NOTIFY | LBS_HASSTRINGS | LBS_NOINTEGRALHEIGHT | WS_VSCROLL | WS_TABSTOP | WS_GROUP | further_style,
              WS_EX_CLIENTEDGE) {
    set_default_back_colour(colours::window);
}

ListBox::RedrawLock::RedrawLock(ListBox& list) : list_(list) {
    list_.send(WM_SETREDRAW, FALSE);
}

ListBox::RedrawLock::~RedrawLock() {
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
    // Bypasses the handlers, like `item`, because windows add and read thousands of texts at once.
    if (default_message(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(displayable(text).c_str())) < 0) {
        throw Error(ErrorCode::OutOfMemory);
    }
}

std::wstring ListBox::item(int index) const {
    const LRESULT length = default_message(LB_GETTEXTLEN, static_cast<WPARAM>(index), 0);
    if (length <= 0) return {};
    std::wstring text(static_cast<std::size_t>(length), L'\0');
    default_message(LB_GETTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.data()));
    return text;
}

std::optional<int> ListBox::selected_index() const {
    const LRESULT index = send(LB_GETCURSEL);
    if (index == LB_ERR) return std::nullopt;
    return static_cast<int>(index);
}

void ListBox::select_index(int index) {
    if (send(LB_SETCURSEL, static_cast<WPARAM>(index)) == LB_ERR) throw Error(ErrorCode::SubscriptOutOfRange);
    raise(on_click);
}

std::wstring ListBox::text() const {
    const auto index = selected_index();
    if (!index) return {};
    return item(*index);
}

void ListBox::select_text(std::wstring_view text) {
    // LB_FINDSTRINGEXACT ignores case and does not find an empty text.
    const std::wstring wanted = displayable(text);
    const int items = count();
    for (int index = 0; index < items; ++index) {
        if (item(index) == wanted) {
            select_index(index);
            return;
        }
    }
}

void ListBox::set_top_index(int index) {
    send(LB_SETTOPINDEX, static_cast<WPARAM>(index));
}

int ListBox::item_from_point(int x, int y) const {
    return static_cast<int>(send(LB_ITEMFROMPOINT, 0, MAKELPARAM(x, y)));
}

void ListBox::notified(WORD code) {
    switch (code) {
        case LBN_SELCHANGE:
            raise(on_click);
            break;
        case LBN_DBLCLK:
            raise(on_double_click);
            break;
    }
}

}  // namespace quillomat
