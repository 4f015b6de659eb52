#pragma once

#include <optional>
#include <string>

namespace quillomat {

/// A text among the current user's values in the registry, up to its first zero; nothing when it cannot be read or is
/// no text. `key` is the path below the user's own root.
std::optional<std::wstring> read_user_text(const std::wstring& key, const std::wstring& name);

/// Stores a text among the current user's values, making the key as needed. Throws `Error` when the system refuses.
void write_user_text(const std::wstring& key, const std::wstring& name, const std::wstring& text);

}  // namespace quillomat
