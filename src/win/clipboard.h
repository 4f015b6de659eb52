#pragma once

#include <string_view>

#include "win/api.h"

namespace quillomat {

/// Makes a text what the clipboard holds, on behalf of the window `owner`. Throws `Error` when another program keeps
/// the clipboard to itself for longer than a moment; the clipboard then holds what it did.
void set_clipboard_text(HWND owner, std::wstring_view text);

}  // namespace quillomat
