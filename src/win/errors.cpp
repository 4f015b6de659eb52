#include "win/errors.h"

#include <iterator>

namespace quillomat {
namespace {

// Windows' description of a code in the user's language; empty if there is none.
std::wstring system_description(DWORD code) {
    wchar_t text[512];
    DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, code, 0, text,
                                  static_cast<DWORD>(std::size(text)), nullptr);
    while (length > 0 && text[length - 1] <= L' ') --length;
    return {text, length};
}

}  // namespace

Error error_from_code(DWORD code) {
    switch (code) {
        case ERROR_FILE_NOT_FOUND:
            return Error(ErrorCode::FileNotFound);
        case ERROR_PATH_NOT_FOUND:
        case ERROR_BAD_PATHNAME:
        case ERROR_DIRECTORY:
        case ERROR_INVALID_DRIVE:
        case ERROR_BAD_NETPATH:
        case ERROR_BAD_NET_NAME:
            return Error(ErrorCode::PathNotFound);
        case ERROR_ACCESS_DENIED:
        case ERROR_NETWORK_ACCESS_DENIED:
        case ERROR_SHARING_VIOLATION:
        case ERROR_LOCK_VIOLATION:
        case ERROR_WRITE_PROTECT:
        case ERROR_USER_MAPPED_FILE:
        case ERROR_DELETE_PENDING:
        case ERROR_UNABLE_TO_REMOVE_REPLACED:
            return Error(ErrorCode::PermissionDenied);
        case ERROR_DISK_FULL:
        case ERROR_HANDLE_DISK_FULL:
            return Error(ErrorCode::DiskFull);
        case ERROR_NOT_READY:
        case ERROR_NO_MEDIA_IN_DRIVE:
            return Error(ErrorCode::DiskNotReady);
        case ERROR_NOT_ENOUGH_MEMORY:
        case ERROR_OUTOFMEMORY:
            return Error(ErrorCode::OutOfMemory);
        case ERROR_SUCCESS:
            // The call failed without setting an error; "completed successfully" must not be shown.
            return Error(ErrorCode::DeviceError);
        default:
            const std::wstring description = system_description(code);
            if (description.empty()) return Error(ErrorCode::DeviceError);
            return {ErrorCode::DeviceError, description};
    }
}

void throw_last_error() {
    throw error_from_code(GetLastError());
}

}  // namespace quillomat
