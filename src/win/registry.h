#pragma once

#include <optional>
#include <string>

namespace quillomat {

/// A text among the user's settings in the registry; nothing when there is none or it is no text.
std::optional<std::wstring> read_user_text(const std::wstring& key, const std::wstring& name);

/// Stores a text among the user's settings, making the key as needed. Throws `Error`.
void write_user_text(const std::wstring& key, const std::wstring& name, const std::wstring& text);

}  // namespace quillomat
