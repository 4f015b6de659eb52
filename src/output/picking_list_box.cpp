#include "output/picking_list_box.h"

#include <algorithm>

#include "text/error.h"
#include "win/gdi.h"

namespace quillomat {

PickingListBox::PickingListBox(Container& container, Bounds bounds)
    : ListBox(container, bounds, LBS_MULTIPLESEL | WS_HSCROLL) {}

std::optional<int> PickingListBox::selected_index() const {
    // The caret of an empty list is at 0.
    if (count() == 0) return std::nullopt;
    return static_cast<int>(send(LB_GETCARETINDEX));
}

void PickingListBox::select_index(int index) {
    if (send(LB_SETCARETINDEX, static_cast<WPARAM>(index)) == LB_ERR) throw Error(ErrorCode::SubscriptOutOfRange);
    raise(on_click);
}

std::vector<int> PickingListBox::picked_indexes() const {
    std::vector<int> indexes(static_cast<std::size_t>(std::max<LRESULT>(send(LB_GETSELCOUNT), 0)));
    send(LB_GETSELITEMS, indexes.size(), reinterpret_cast<LPARAM>(indexes.data()));
    return indexes;
}

void PickingListBox::set_picked(int index, bool picked) {
    if (index < 0 || send(LB_SETSEL, picked, index) == LB_ERR) throw Error(ErrorCode::SubscriptOutOfRange);
    raise(on_click);
}

void PickingListBox::fit_scroll_range() {
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

void PickingListBox::resolution_changed() {
    ListBox::resolution_changed();
    fit_scroll_range();
}

void PickingListBox::notified(WORD code) {
    if (code == LBN_SELCHANGE) change_notified_ = true;
    ListBox::notified(code);
}

LRESULT PickingListBox::handle_message(UINT message, WPARAM wparam, LPARAM lparam) {
    const bool picks_by_key = message == WM_KEYDOWN && wparam == VK_SPACE;
    if (picks_by_key) change_notified_ = false;
    const LRESULT result = ListBox::handle_message(message, wparam, lparam);
    // Wine: a list box sends no LBN_SELCHANGE when Space picks.
    if (picks_by_key && !change_notified_) raise(on_click);
    return result;
}

}  // namespace quillomat
