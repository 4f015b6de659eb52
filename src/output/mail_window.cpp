#include "output/mail_window.h"

#include "controls/graphics.h"
#include "forms/application.h"
#include "forms/form.h"
#include "forms/message_box.h"
#include "text/error.h"
#include "text/mail.h"
#include "text/mail_result.h"

namespace quillomat {
namespace {

/// Shows a label for as long as the object lives.
class Showing {
  public:
    explicit Showing(Label& label) : label_(label) { label_.set_visible(true); }
    ~Showing() { label_.set_visible(false); }
    Showing(const Showing&) = delete;
    Showing& operator=(const Showing&) = delete;

  private:
    Label& label_;
};

}  // namespace

void tell_mail_requirements(Form& form) {
    show_message(form.window(), {.text = mail_requirements, .title = L"Message", .icon = MessageIcon::Information});
}

bool send_mail(Form& form, Label& please_wait, const std::function<void()>& send) {
    if (please_wait.visible()) return false;
    try {
        const Showing showing(please_wait);
        const Hourglass hourglass(form);
        return form.application().run_without_blocking(send);
    } catch (const Error& error) {
        if (error.code() == ErrorCode::Crashed) throw Error(ErrorCode::MailFailure, mail_crash_description());
        throw;
    }
}

void close_after_sending(Form& form) {
    // The user may have closed the program meanwhile.
    if (form.closed()) return;
    show_message(form.window(), {.text = L"The message was sent!", .title = form.application().title()});
    form.close();
}

}  // namespace quillomat
