#pragma once

#include <optional>
#include <string>

#include "win/api.h"

namespace quillomat {

/// Returns a registry value as text: a string up to its first NUL, a 32-bit number as "&h" and eight hexadecimal
/// digits. Returns nothing if the value cannot be read, is of another type or is longer than 1023 characters.
std::optional<std::wstring> GetKeyValue(HKEY root, const std::wstring& key, const std::wstring& name);

/// Returns the path of the System Information tool from the registry; nothing if there is none.
std::optional<std::wstring> system_information_tool();

/// Starts a program in a normal window. Returns false if Windows cannot start it.
bool start_program(const std::wstring& path);

}  // namespace quillomat
