#pragma once

#include "text/error.h"
#include "win/api.h"

namespace quillomat {

/// The error for a code of the system: a number of the program's own where there is one, else a device error with the
/// system's sentence.
Error error_from_code(DWORD code);

/// Throws the error of the system call that failed last.
[[noreturn]] void throw_last_error();

}  // namespace quillomat
