#include "controls/option_button.h"

#include "forms/container.h"

namespace quillomat {

OptionButton::OptionButton(Container& container, std::wstring_view caption, Bounds bounds, Group group, Choice choice)
    : Control(container, bounds, L"BUTTON", caption,
              // Tab stops at the set button of a group; Windows moves WS_TABSTOP when another button is set.
              BS_AUTORADIOBUTTON | (group == Group::Starts ? WS_GROUP : 0) |
                  (group == Group::Starts || choice == Choice::Set ? WS_TABSTOP : 0)),
      value_(choice == Choice::Set) {
    if (value_) send(BM_SETCHECK, BST_CHECKED);
}

void OptionButton::clear_others() {
    for (Control* control : container().controls()) {
        auto* other = dynamic_cast<OptionButton*>(control);
        if (!other || other == this) continue;
        other->value_ = false;
        // Clear even a clear button: this removes WS_TABSTOP from the first button of the group.
        other->send(BM_SETCHECK, BST_UNCHECKED);
    }
}

void OptionButton::set_value(bool value) {
    if (value == value_) return;
    value_ = value;
    send(BM_SETCHECK, value ? BST_CHECKED : BST_UNCHECKED);
    if (!value) return;
    clear_others();
    raise(on_click);
}

void OptionButton::notified(WORD code) {
    if (code == BN_CLICKED) set_value(true);
}

}  // namespace quillomat
