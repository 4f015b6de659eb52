#pragma once

#include <string_view>

#include "win/api.h"

namespace quillomat {

/// Waits until no program has the clipboard open, for about three seconds at most.
void wait_for_clipboard();

/// Replaces the contents of the clipboard with a text. `owner` becomes the clipboard's owner window. A NUL becomes a
/// blank, because readers would take it for the end of the text. Throws `Error`: ClipboardError if another program has
/// the clipboard open, OutOfMemory if there is no memory for the copy, or the reason that Windows gives.
void put_on_clipboard(HWND owner, std::wstring_view text);

}  // namespace quillomat
