#include "viewer/check_box.h"

namespace quillomat {

CheckBox::CheckBox(Container& container, std::wstring_view caption, Bounds bounds)
    : Control(container, bounds, L"BUTTON", caption, BS_AUTOCHECKBOX | WS_TABSTOP | WS_GROUP) {}

void CheckBox::set_value(bool value) {
    send(BM_SETCHECK, value ? BST_CHECKED : BST_UNCHECKED);
    if (value == value_) return;
    value_ = value;
    raise(on_click);
}

void CheckBox::notified(WORD code) {
    if (code == BN_CLICKED) set_value(send(BM_GETCHECK) == BST_CHECKED);
}

}  // namespace quillomat
