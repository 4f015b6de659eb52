#include "text/mail_result.h"

namespace quillomat {
namespace {

// Returns the second half of a sentence that says what happened, or null for a result that means nothing to a user.
const wchar_t* reason(MailResult result) {
    switch (result) {
        case MailResult::UserAbort:
            return L"you cancelled it";
        case MailResult::LogonFailure:
            return L"signing on to your mail program failed. Start the mail program, check that an account is set up "
                   L"in it, and try again";
        case MailResult::DiskFull:
            return L"the disk is full";
        case MailResult::InsufficientMemory:
            return L"there is not enough memory. Close some programs and try again";
        case MailResult::AccessDenied:
            return L"your mail program does not allow other programs to send messages. Look for this in its security "
                   L"settings";
        case MailResult::TooManySessions:
            return L"your mail program is busy with other programs. Close them and try again";
        case MailResult::TooManyFiles:
            return L"your mail program does not take an attached file. Include the text in the message instead";
        case MailResult::AttachmentNotFound:
        case MailResult::AttachmentOpenFailure:
        case MailResult::AttachmentWriteFailure:
            return L"your mail program could not take over the attached file. Include the text in the message instead";
        case MailResult::UnknownRecipient:
        case MailResult::InvalidRecipients:
        case MailResult::BadRecipientType:
        case MailResult::TooManyRecipients:
            return L"your mail program does not accept the e-mail address. Check how it is written";
        case MailResult::AmbiguousRecipient:
            return L"more than one person in your mail program's address book fits the e-mail address. Write it in "
                   L"full";
        case MailResult::TextTooLarge:
            return L"the text is too long for your mail program. Make it shorter or send it as an attached file";
        case MailResult::NetworkFailure:
            return L"the network cannot be reached. Check the connection and try again";
        case MailResult::NotSupported:
        case MailResult::TypeNotSupported:
            return L"your mail program cannot send messages for 64-bit programs such as this one. Make another one, "
                   L"such as a 64-bit Thunderbird or Outlook, your default mail program";
        case MailResult::UnicodeNotSupported:
            return L"your mail program cannot send some of the characters in it";
        default:
            return nullptr;
    }
}

}  // namespace

std::wstring mail_failure_description(MailResult result) {
    const wchar_t* known = reason(result);
    const std::wstring unknown = L"your mail program reported a failure (number " +
                                 std::to_wstring(static_cast<unsigned>(result)) +
                                 L"). Start the mail program, check that it can send messages, and try again";
    return std::wstring(L"The message was not sent: ").append(known ? known : unknown).append(L".");
}

std::wstring sign_off_failure_description(MailResult result) {
    return L"Your mail program took the message, but could not end the connection (number " +
           std::to_wstring(static_cast<unsigned>(result)) +
           L"). Look into its outbox before you send the message again.";
}

std::wstring mail_crash_description() {
    return L"Your mail program has stopped working, so that it is not known whether the message was sent. Look into "
           L"its outbox before you send the message again.";
}

std::wstring no_mail_program_description() {
    return L"The message was not sent: no mail program is set up on this computer. Install one, such as Thunderbird "
           L"or Outlook, make it the default mail program in the settings of Windows, and try again. A mail account "
           L"that you use in a web browser or the Mail app of Windows cannot be used for this.";
}

}  // namespace quillomat
