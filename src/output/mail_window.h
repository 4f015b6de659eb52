#pragma once

#include <functional>

namespace quillomat {

class Form;
class Item;

/// Tells the user what is needed for sending mail, when a window for it opens.
void tell_mail_requirements(Form& form);

/// Runs `send`, which must cover a whole mail session, on a thread of its own. Meanwhile the form shows the hourglass
/// and `please_wait`, and no window takes input, except those of the mail program. Returns false if nothing was sent
/// because another mail is being sent. Throws `Error` with a sentence for the user if the message may not have been
/// sent.
bool send_mail(Form& form, Item& please_wait, const std::function<void()>& send);

/// Tells the user that the message was sent, and closes the form.
void close_after_sending(Form& form);

}  // namespace quillomat
