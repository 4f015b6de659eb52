#pragma once

#include <functional>

namespace quillomat {

class Form;
class Label;

/// Tells the user of a window that opens what is needed for sending mails.
void tell_mail_requirements(Form& form);

/// Runs `send`, from signing on to signing off, on a thread of its own. Meanwhile the form shows the hourglass and
/// `please_wait`, and no window takes input; the mail program asks its questions in windows of its own. Returns false
/// if nothing was sent because a mail is on its way already. Throws `Error` with a sentence for the user if it is not
/// certain that the message was sent.
bool send_mail(Form& form, Label& please_wait, const std::function<void()>& send);

/// Tells the user that the message was sent, and closes the form.
void close_after_sending(Form& form);

}  // namespace quillomat
