#include "output/drop_down_list.h"

#include "text/error.h"

namespace quillomat {
namespace {

// The frame around the field's text, above and below together.
constexpr int frame_pixels = 6;
constexpr int most_texts_shown = 12;

}  // namespace

DropDownList::DropDownList(Container& container, Bounds bounds)
    : Control(container, bounds, L"COMBOBOX", {},
              CBS_DROPDOWNLIST | CBS_HASSTRINGS | WS_VSCROLL | WS_TABSTOP | WS_GROUP) {
    set_default_back_colour(colours::window);
    DropDownList::apply_bounds();
}

void DropDownList::add(std::wstring_view text) {
    if (send(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(displayable(text).c_str())) < 0) {
        throw Error(ErrorCode::OutOfMemory);
    }
}

std::optional<int> DropDownList::selected_index() const {
    const LRESULT index = send(CB_GETCURSEL);
    if (index == CB_ERR) return std::nullopt;
    return static_cast<int>(index);
}

void DropDownList::select_index(int index) {
    if (index < 0 || send(CB_SETCURSEL, static_cast<WPARAM>(index)) == CB_ERR) {
        throw Error(ErrorCode::SubscriptOutOfRange);
    }
    report_change();
}

void DropDownList::notified(WORD code) {
    // While the list is open, a selection is not final.
    if (code == CBN_CLOSEUP || (code == CBN_SELCHANGE && !send(CB_GETDROPPEDSTATE))) report_change();
}

void DropDownList::report_change() {
    const auto selected = selected_index();
    if (selected == reported_) return;
    reported_ = selected;
    raise(on_change);
}

void DropDownList::apply_bounds() {
    const RECT area = pixel_bounds();
    constexpr auto field = static_cast<WPARAM>(-1);
    send(CB_SETITEMHEIGHT, field, area.bottom - area.top - frame_pixels);
    // The height of a combo box includes its open list, which Windows makes shorter if there are fewer texts.
    const int list_height = most_texts_shown * static_cast<int>(send(CB_GETITEMHEIGHT, 0));
    SetWindowPos(window(), nullptr, area.left, area.top, area.right - area.left, area.bottom - area.top + list_height,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace quillomat
