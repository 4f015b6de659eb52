#pragma once

#include <optional>
#include <string>

namespace quillomat {

/// Returns a text value of the current user's registry, up to its first NUL, or nothing if the value cannot be read or
/// has another type. `key` is the path below HKEY_CURRENT_USER.
std::optional<std::wstring> read_user_text(const std::wstring& key, const std::wstring& name);

/// Stores a text value in the current user's registry and creates the key if necessary. Throws `Error` if Windows
/// refuses.
void write_user_text(const std::wstring& key, const std::wstring& name, const std::wstring& text);

}  // namespace quillomat
