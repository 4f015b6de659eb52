#include "output/mail_window.h"

#include "forms/application.h"
#include "forms/message_box.h"
#include "output/wait_notice.h"
#include "text/error.h"
#include "text/mail.h"
#include "text/mail_result.h"

namespace quillomat {

void tell_mail_requirements(Form& form) {
    show_message(form, {.text = mail_requirements, .title = L"Message", .icon = MessageIcon::Information});
}

bool send_mail(Form& form, Item& please_wait, const std::function<void()>& send) {
    if (please_wait.visible()) return false;
    try {
        const WaitNotice notice(form, please_wait);
        return form.application().run_without_blocking(send);
    } catch (const Error& error) {
        if (error.code() == ErrorCode::Crashed) throw Error(ErrorCode::MailFailure, mail_crash_description());
        throw;
    }
}

void close_after_sending(Form& form) {
    // The user may have closed the program meanwhile.
    if (form.closed()) return;
    show_message(form, {.text = L"The message was sent!", .title = form.application().title()});
    form.close();
}

}  // namespace quillomat
