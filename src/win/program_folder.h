#pragma once

#include <string>

namespace quillomat {

/// Returns the folder of the running program, without a trailing separator. Throws `Error` if Windows fails.
std::wstring program_folder();

}  // namespace quillomat
