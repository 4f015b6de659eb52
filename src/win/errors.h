#pragma once

#include "text/error.h"
#include "win/api.h"

namespace quillomat {

/// Converts a Windows error code: to the matching ErrorCode if there is one, else to DeviceError with the description
/// that Windows gives.
Error error_from_code(DWORD code);

/// Throws the `Error` for GetLastError().
[[noreturn]] void throw_last_error();

}  // namespace quillomat
