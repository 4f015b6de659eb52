#pragma once

#include <optional>
#include <string>

#include "win/api.h"

namespace quillomat {

/// A value of the registry as a text: a text up to its terminating zero, a 32-bit number as "&h" and its eight
/// hexadecimal digits. Nothing when it cannot be read, is of another type or is longer than 1023 characters.
std::optional<std::wstring> GetKeyValue(HKEY root, const std::wstring& key, const std::wstring& name);

/// The path of the system's information tool as the registry tells it; nothing where there is none.
std::optional<std::wstring> system_information_tool();

/// Starts a program in a normal window; false when the system cannot.
bool start_program(const std::wstring& path);

}  // namespace quillomat
