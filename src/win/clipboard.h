#pragma once

#include <string_view>

#include "win/api.h"

namespace quillomat {

/// Puts a text on the clipboard, in the place of what is there, for every program to paste; `owner` is the program's
/// window that has put it there. A NUL, at which readers would stop, becomes a blank. Throws `Error`: ClipboardError
/// when another program keeps the clipboard open for longer than a moment, OutOfMemory.
void put_on_clipboard(HWND owner, std::wstring_view text);

}  // namespace quillomat
