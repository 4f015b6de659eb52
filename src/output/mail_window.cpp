#include "output/mail_window.h"

#include "controls/graphics.h"
#include "forms/control.h"
#include "forms/message_box.h"
#include "text/mail.h"

namespace quillomat {

void tell_mail_requirements(Form& form) {
    show_message(form.window(), {.text = mail_requirements, .title = L"Message", .icon = MessageIcon::Information});
}

void tell_message_sent(Form& form) {
    show_message(form.window(), {.text = L"The message was sent!", .title = form.application().title()});
}

Sending::Sending(Form& form, Label& please_wait)
    : please_wait_(please_wait), focused_(Control::from(GetFocus())), hourglass_(form), modal_(form.application()) {
    please_wait_.set_visible(true);
    please_wait_.refresh();
}

Sending::~Sending() {
    please_wait_.set_visible(false);
    modal_.end();
    // The focus does not stay in a window that cannot be used.
    if (focused_) focused_->set_focus();
}

}  // namespace quillomat
