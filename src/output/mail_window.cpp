#include "output/mail_window.h"

#include <algorithm>

#include "forms/control.h"
#include "forms/graphics.h"
#include "forms/message_box.h"
#include "forms/text_box.h"
#include "text/game_list.h"
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

void place_help_box(TextBox& help_box, const PointerState& pointer) {
    constexpr double above_pointer = 500;
    if (!help_box.visible()) return;
    const Form& form = help_box.form();
    POINT position = pointer.PointerPos;
    ScreenToClient(form.window(), &position);
    const double free_width = std::max(0.0, form.inner_width() - help_box.width());
    help_box.set_left(std::clamp(to_twips(position.x, form.dpi()) - help_box.width() / 2, 0.0, free_width));
    help_box.set_top(std::max(0.0, to_twips(position.y, form.dpi()) - above_pointer));
}

void keep_line_count(TextBox& message) {
    const auto ShowLineCount = [&message] { message.set_tool_tip(line_count_tooltip(message.line_count())); };
    message.on_change = ShowLineCount;
    message.on_click = ShowLineCount;
    message.on_key_press = [ShowLineCount](CharacterEvent&) { ShowLineCount(); };
    message.on_mouse_move = [ShowLineCount](const MouseEvent&) { ShowLineCount(); };
}

}  // namespace quillomat
