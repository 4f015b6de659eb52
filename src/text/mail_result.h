#pragma once

#include <string>

namespace quillomat {

/// The results of Simple MAPI that mean something to a user. Mail programs return other numbers, too.
enum class MailResult : unsigned {
    Success = 0,
    UserAbort = 1,
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

/// Returns the message for a mail that was not sent: what happened and, if possible, what the user can do about it.
/// `result` may be any number that a mail program returns.
std::wstring mail_failure_description(MailResult result);

/// Returns the message for a mail program that took a mail, but then failed to sign off.
std::wstring sign_off_failure_description(MailResult result);

/// Returns the message for a mail program that crashed during the session.
std::wstring mail_crash_description();

/// Returns the message for a computer without a mail program.
std::wstring no_mail_program_description();

}  // namespace quillomat
