#pragma once

#include <string_view>

#include "win/api.h"

namespace quillomat {

/// Returns as soon as no program has the clipboard open, at the latest after some seconds.
void wait_for_clipboard();

/// Replaces what is on the clipboard by a text; `owner` is the program's window that has put it there. A NUL, at which
/// readers would stop, becomes a blank. Throws `Error`: ClipboardError if another program has the clipboard open,
/// OutOfMemory.
void put_on_clipboard(HWND owner, std::wstring_view text);

}  // namespace quillomat
