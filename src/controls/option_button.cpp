#include "controls/option_button.h"

#include "forms/container.h"

namespace quillomat {

OptionButton::OptionButton(Container& container, std::wstring_view caption, Bounds bounds, Group group, Choice choice)
    : Control(container, bounds, L"BUTTON", caption,
              // A group is one stop of the Tab key, at what is set; the system moves the stop with the choice.
              BS_AUTORADIOBUTTON | (group == Group::Starts ? WS_GROUP : 0) |
                  (group == Group::Starts || choice == Choice::Set ? WS_TABSTOP : 0)),
      value_(choice == Choice::Set) {
    // Now and not later: the system looks through all that stands on the container for the others of the group.
    if (value_) send(BM_SETCHECK, BST_CHECKED);
}

void OptionButton::take_back_others() {
    for (Control* control : container().controls()) {
        auto* other = dynamic_cast<OptionButton*>(control);
        if (!other || other == this) continue;
        other->value_ = false;
        // Also one that was not set: the first one is a stop of the Tab key until it is told that another one is.
        other->send(BM_SETCHECK, BST_UNCHECKED);
    }
}

void OptionButton::set_value(bool value) {
    if (value == value_) return;
    value_ = value;
    send(BM_SETCHECK, value ? BST_CHECKED : BST_UNCHECKED);
    if (!value) return;
    take_back_others();
    raise(on_click);
}

void OptionButton::notified(WORD code) {
    if (code == BN_CLICKED) set_value(true);
}

}  // namespace quillomat
