#pragma once

#include <exception>
#include <string>

namespace quillomat {

/// The program's errors, by their customary numbers as run-time errors.
enum class ErrorCode {
    InvalidArgument = 5,
    Overflow = 6,
    OutOfMemory = 7,
    SubscriptOutOfRange = 9,
    FileNotFound = 53,
    FileAlreadyOpen = 55,
    DeviceError = 57,
    DiskFull = 61,
    PermissionDenied = 70,
    DiskNotReady = 71,
    PathNotFound = 76,
    PrinterError = 482,
    ClipboardError = 521,
    MailFailure = 32002,
    /// A library of another program has crashed.
    Crashed = 32003,
    /// The user cancelled; no message is shown.
    Cancelled = 32755,
};

/// The exception type of the program: a number, and a description that can be shown to the user.
class Error : public std::exception {
  public:
    /// An error with the standard description of its number, such as "File not found".
    explicit Error(ErrorCode code);
    /// An error whose description says more than the standard one.
    Error(ErrorCode code, std::wstring description);

    ErrorCode code() const noexcept { return code_; }
    const std::wstring& description() const noexcept { return description_; }
    /// For debuggers only: the user is shown `description`.
    const char* what() const noexcept override { return "quillomat::Error"; }

  private:
    ErrorCode code_;
    std::wstring description_;
};

}  // namespace quillomat
