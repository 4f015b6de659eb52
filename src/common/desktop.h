#pragma once

#include <string>

#include "win/api.h"

namespace quillomat {

class Form;
class TextBox;

/// Opens a web page or a "mailto:" address in the user's own program; tells the user when that fails.
void OpenLink(Form& form, const std::wstring& address);

/// Gives a text box the focus with all of its text selected.
void SelectAllText(TextBox& box);

/// Keeps a window above all others. Throws `Error` with Overflow for a handle above 32767: handles are taken for 16-bit
/// numbers here, and callers are prepared for it.
void StayOnTop(HWND window);

}  // namespace quillomat
