#pragma once

#include <cstdint>
#include <string>

#include "text/mail_result.h"
#include "win/api.h"

namespace quillomat {

/// A mail to one recipient.
struct Mail {
    std::wstring address;
    std::wstring name;
    std::wstring subject;
    std::wstring text;
    /// Path of the attached file; empty for none.
    std::wstring attachment;
};

/// A Simple MAPI session with the user's mail program, from signing on to signing off. MAPI is loaded on demand, so
/// that Quillomat also runs on computers without a mail program.
class MailSession {
  public:
    /// Signs on. The mail program shows its dialogs above `owner`. Throws `Error` with MailFailure and a sentence for
    /// the user if there is no mail program or it refuses.
    explicit MailSession(HWND owner);
    /// Signs off, unless `end` has done so.
    ~MailSession();
    MailSession(const MailSession&) = delete;
    MailSession& operator=(const MailSession&) = delete;

    /// Hands a mail to the mail program, which makes its own copy of the attachment. Throws as the constructor does.
    void send(const Mail& mail);
    /// Signs off after a mail was sent. Throws `Error` with MailFailure if the mail program refuses. The mail may then
    /// still be in its outbox.
    void end();

  private:
    MailResult sign_off();

    HWND owner_;
    HMODULE library_;
    std::uintptr_t session_ = 0;
    bool ended_ = false;
};

}  // namespace quillomat
