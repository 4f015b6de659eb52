#include "output/combo_box.h"

#include "text/error.h"

namespace quillomat {
namespace {

constexpr int most_lines_in_list = 8;

}  // namespace

ComboBox::ComboBox(Container& container, Bounds bounds)
    : Control(container, bounds, L"COMBOBOX", {},
              CBS_DROPDOWN | CBS_AUTOHSCROLL | CBS_HASSTRINGS | WS_VSCROLL | WS_TABSTOP | WS_GROUP) {
    set_default_back_colour(colours::window);
    ComboBox::apply_bounds();
}

void ComboBox::add(std::wstring_view text) {
    if (send(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(displayable(text).c_str())) < 0) {
        throw Error(ErrorCode::OutOfMemory);
    }
}

void ComboBox::set_text(std::wstring_view text) {
    program_changes_ = true;
    SetWindowTextW(window(), displayable(text).c_str());
    program_changes_ = false;
    raise(on_change);
}

void ComboBox::notified(WORD code) {
    if (program_changes_) return;
    if (code == CBN_SELCHANGE) {
        // Windows sends CBN_SELCHANGE before it puts the selected text into the box.
        send(CB_SETCURSEL, static_cast<WPARAM>(send(CB_GETCURSEL)));
    }
    // Only the control with the focus shows a selection.
    if (code == CBN_KILLFOCUS || (code == CBN_CLOSEUP && !has_focus())) send(CB_SETEDITSEL, 0, MAKELPARAM(-1, 0));
    if (code == CBN_SELCHANGE || code == CBN_EDITCHANGE) raise(on_change);
}

void ComboBox::apply_bounds() {
    // The height of a combo box includes its open list.
    const RECT area = pixel_bounds();
    const int list_height = most_lines_in_list * static_cast<int>(send(CB_GETITEMHEIGHT));
    SetWindowPos(window(), nullptr, area.left, area.top, area.right - area.left, area.bottom - area.top + list_height,
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
    // Windows selects the text of a combo box that is resized.
    if (!has_focus()) send(CB_SETEDITSEL, 0, MAKELPARAM(0, 0));
}

}  // namespace quillomat
