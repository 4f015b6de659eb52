#include "output/mail_window.h"

#include <algorithm>

#include "common/hover_help.h"
#include "forms/button.h"
#include "forms/graphics.h"
#include "forms/message_box.h"
#include "forms/text_box.h"
#include "text/mail.h"

namespace quillomat {

void tell_mail_requirements(Form& form) {
    show_message(form.window(), {.text = mail_requirements, .title = L"Message", .icon = MessageIcon::Information});
}

void tell_message_sent(Form& form) {
    show_message(form.window(), {.text = L"The message was sent!", .title = form.application().title()});
}

Sending::Sending(Form& form, Label& please_wait)
    : please_wait_(please_wait), focused_(Control::from(GetFocus())), hourglass_(form) {
    please_wait_.set_visible(true);
    please_wait_.refresh();
}

Sending::~Sending() {
    please_wait_.set_visible(false);
    modal_.end();
    // The focus does not stay in a window that cannot be used.
    if (focused_) focused_->set_focus();
}

void keep_above_pointer(TextBox& help_box, HoverHelp& hover_help, std::initializer_list<Button*> buttons) {
    const auto place = [&help_box](const Control& control, const MouseEvent& pointer) {
        constexpr double above_pointer = 500;
        const double free_width = std::max(0.0, help_box.form().inner_width() - help_box.width());
        const double left = control.left() + pointer.x - help_box.width() / 2;
        const double top = control.top() + pointer.y - above_pointer;
        help_box.move({std::clamp(left, 0.0, free_width), std::max(0.0, top), help_box.width(), help_box.height()});
    };
    for (Button* button : buttons) {
        button->on_mouse_move = [place, button](const MouseEvent& pointer) { place(*button, pointer); };
    }
    hover_help.on_shown = place;
}

}  // namespace quillomat
