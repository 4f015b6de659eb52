#include "win/errors.h"

namespace quillomat {
namespace {

std::wstring system_description(DWORD code) {
    wchar_t text[512];
    const DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, code, 0,
                                        text, static_cast<DWORD>(std::size(text)), nullptr);
    std::wstring description(text, length);
    while (!description.empty() && (description.back() == L'\n' || description.back() == L'\r')) description.pop_back();
    return description;
}

}  // namespace

Error error_from_code(DWORD code) {
    switch (code) {
        case ERROR_FILE_NOT_FOUND:
            return Error(ErrorCode::FileNotFound);
        case ERROR_PATH_NOT_FOUND:
        case ERROR_BAD_NETPATH:
        case ERROR_BAD_NET_NAME:
        case ERROR_INVALID_DRIVE:
            return Error(ErrorCode::PathNotFound);
        case ERROR_ACCESS_DENIED:
        case ERROR_SHARING_VIOLATION:
        case ERROR_LOCK_VIOLATION:
        case ERROR_WRITE_PROTECT:
        case ERROR_USER_MAPPED_FILE:
            return Error(ErrorCode::PermissionDenied);
        case ERROR_DISK_FULL:
        case ERROR_HANDLE_DISK_FULL:
            return Error(ErrorCode::DiskFull);
        case ERROR_NOT_READY:
            return Error(ErrorCode::DiskNotReady);
        case ERROR_NOT_ENOUGH_MEMORY:
        case ERROR_OUTOFMEMORY:
            return Error(ErrorCode::OutOfMemory);
    }
    const std::wstring description = system_description(code);
    return description.empty() ? Error(ErrorCode::DeviceError) : Error(ErrorCode::DeviceError, description);
}

void throw_last_error() {
    throw error_from_code(GetLastError());
}

}  // namespace quillomat
