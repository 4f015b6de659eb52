#pragma once

#include <string>

namespace quillomat {

/// The results of Simple MAPI that mean something to a user. Other numbers occur.
enum class MailResult : unsigned {
    Success = 0,
    UserAbort = 1,
    Failure = 2,
    LogonFailure = 3,
    DiskFull = 4,
    InsufficientMemory = 5,
    AccessDenied = 6,
    TooManySessions = 8,
    TooManyFiles = 9,
    TooManyRecipients = 10,
    AttachmentNotFound = 11,
    AttachmentOpenFailure = 12,
    AttachmentWriteFailure = 13,
    UnknownRecipient = 14,
    BadRecipientType = 15,
    TextTooLarge = 18,
    TypeNotSupported = 20,
    AmbiguousRecipient = 21,
    NetworkFailure = 23,
    InvalidRecipients = 25,
    NotSupported = 26,
    UnicodeNotSupported = 27,
};

/// What to tell the user when a mail program has not sent a mail: what happened and, where there is something, what to
/// do about it. For any number, known or not.
std::wstring mail_failure_description(MailResult result);

/// What to tell the user when a mail program took a mail, but then failed to sign off.
std::wstring sign_off_failure_description(MailResult result);

/// What to tell the user when a mail program has crashed while it had the message.
std::wstring mail_crash_description();

/// What to tell a user whose computer has no program to send mails with.
std::wstring no_mail_program_description();

}  // namespace quillomat
