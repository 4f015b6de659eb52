#pragma once

#include <string>

namespace quillomat {

/// The folder of the running program, without a separator at its end.
std::wstring program_folder();

}  // namespace quillomat
