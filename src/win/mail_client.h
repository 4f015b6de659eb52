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
    /// Path of the file that goes with it; empty for none.
    std::wstring attachment;
};

/// A session with the user's mail program, from signing on to signing off.
///
/// The mail program is found when it is needed, through the system's simple mail interface, so that Quillomat runs on a
/// computer that has none.
class MailSession {
  public:
    /// Signs on. The mail program shows its dialogs above `owner`. Throws `Error` with MailFailure and a sentence for
    /// the user when there is no mail program or it refuses.
    explicit MailSession(HWND owner);
    /// Signs off, unless `end` has done so.
    ~MailSession();
    MailSession(const MailSession&) = delete;
    MailSession& operator=(const MailSession&) = delete;

    /// Hands a mail to the mail program, which takes over a copy of the attachment. Throws as the constructor does.
    void send(const Mail& mail);
    /// Signs off after a mail was sent. Throws `Error` with MailFailure if the mail program refuses: the mail may then
    /// still wait in the mail program.
    void end();

  private:
    MailResult sign_off();

    HWND owner_;
    HMODULE library_;
    std::uintptr_t session_ = 0;
    bool ended_ = false;
};

}  // namespace quillomat
