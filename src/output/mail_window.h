#pragma once

#include "forms/application.h"
#include "forms/form.h"

namespace quillomat {

class Control;
class Label;

/// Tells the user of a window that opens what is needed for sending mails.
void tell_mail_requirements(Form& form);
/// Tells the user that all went well.
void tell_message_sent(Form& form);

/// While it lives, a mail is on its way: the window says so, and the user can change nothing. What the mail program
/// asks meanwhile, it asks in windows of its own.
class Sending {
  public:
    Sending(Form& form, Label& please_wait);
    ~Sending();
    Sending(const Sending&) = delete;
    Sending& operator=(const Sending&) = delete;

  private:
    Label& please_wait_;
    Control* focused_;
    Hourglass hourglass_;
    ModalScope modal_;
};

}  // namespace quillomat
