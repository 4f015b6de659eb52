#include "text/error.h"

#include <utility>

namespace quillomat {
namespace {

const wchar_t* standard_description(ErrorCode code) {
    switch (code) {
        case ErrorCode::InvalidArgument:
            return L"Invalid procedure call or argument";
        case ErrorCode::Overflow:
            return L"Overflow";
        case ErrorCode::OutOfMemory:
            return L"Out of memory";
        case ErrorCode::SubscriptOutOfRange:
            return L"Subscript out of range";
        case ErrorCode::DeviceError:
            return L"Device I/O error";
        case ErrorCode::FileNotFound:
            return L"File not found";
        case ErrorCode::FileAlreadyOpen:
            return L"File already open";
        case ErrorCode::DiskFull:
            return L"Disk full";
        case ErrorCode::PermissionDenied:
            return L"Permission denied";
        case ErrorCode::DiskNotReady:
            return L"Disk not ready";
        case ErrorCode::PathNotFound:
            return L"Path not found";
        case ErrorCode::PrinterError:
            return L"Printer error";
        case ErrorCode::ClipboardError:
            return L"Can't open Clipboard";
        case ErrorCode::MailFailure:
            return L"The message could not be sent";
        case ErrorCode::Crashed:
            return L"The program that was called has stopped working";
        case ErrorCode::Cancelled:
            return L"Cancel was selected";
    }
    return L"Unknown error";
}

}  // namespace

Error::Error(ErrorCode code) : Error(code, standard_description(code)) {}

Error::Error(ErrorCode code, std::wstring description) : code_(code), description_(std::move(description)) {}

}  // namespace quillomat
